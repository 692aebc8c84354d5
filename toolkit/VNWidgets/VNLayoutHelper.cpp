#include "VNLayoutHelper.h"

#include <QEvent>
#include <QGridLayout>
#include <QTimer>
#include <QWidget>

VNLayoutHelper::VNLayoutHelper(QWidget* parent)
    : QObject(parent)
    , m_widget(parent)
{
    if (m_widget)
        m_widget->installEventFilter(this);
}

VNLayoutHelper::~VNLayoutHelper() = default;

void VNLayoutHelper::addLayout(QGridLayout* layout, QWidget* hint)
{
    if (!layout)
        return;
    for (const Entry& entry : qAsConst(m_entries)) {
        if (entry.layout == layout)
            return;
    }
    Entry entry;
    entry.layout = layout;
    entry.hint = hint;
    entry.column = labelColumn(entry);
    entry.ownMinimumWidth = layout->columnMinimumWidth(entry.column);
    entry.ownLabelStretch = layout->columnStretch(entry.column);
    bool anyStretch = false;
    for (int column = 0; column < layout->columnCount(); ++column)
        anyStretch = anyStretch || layout->columnStretch(column) > 0;
    // Extra width must go to the fields, or the label column would end wherever the grid's
    // width puts it.
    layout->setColumnStretch(entry.column, 0);
    if (!anyStretch && layout->columnCount() - 1 > entry.column) {
        entry.fieldColumn = layout->columnCount() - 1;
        entry.ownFieldStretch = layout->columnStretch(entry.fieldColumn);
        layout->setColumnStretch(entry.fieldColumn, 1);
    }
    m_entries.append(entry);
}

void VNLayoutHelper::removeAllLayouts()
{
    for (const Entry& entry : qAsConst(m_entries)) {
        if (!entry.layout)
            continue;
        if (entry.layout->columnMinimumWidth(entry.column) != entry.ownMinimumWidth)
            entry.layout->setColumnMinimumWidth(entry.column, entry.ownMinimumWidth);
        entry.layout->setColumnStretch(entry.column, entry.ownLabelStretch);
        if (entry.fieldColumn >= 0)
            entry.layout->setColumnStretch(entry.fieldColumn, entry.ownFieldStretch);
    }
    m_entries.clear();
}

int VNLayoutHelper::labelColumn(const Entry& entry) const
{
    if (!entry.hint)
        return 0;
    const int index = entry.layout->indexOf(entry.hint);
    if (index < 0)
        return 0;
    int row, column, rowSpan, columnSpan;
    entry.layout->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
    return column;
}

int VNLayoutHelper::neededWidth(const Entry& entry) const
{
    int width = entry.ownMinimumWidth;
    QGridLayout* layout = entry.layout;
    for (int index = 0; index < layout->count(); ++index) {
        int row, column, rowSpan, columnSpan;
        layout->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        QLayoutItem* item = layout->itemAt(index);
        if (column == entry.column && columnSpan == 1 && !item->isEmpty())
            width = qMax(width, item->sizeHint().width());
    }
    return width;
}

int VNLayoutHelper::columnLeft(const Entry& entry) const
{
    QGridLayout* layout = entry.layout;
    QWidget* owner = layout->parentWidget();
    const QRect cell = layout->cellRect(0, entry.column);
    if (!owner || !cell.isValid())
        return 0;
    return owner->mapTo(m_widget, cell.topLeft()).x();
}

int VNLayoutHelper::labelColumnEnd(QGridLayout* layout) const
{
    for (const Entry& entry : m_entries) {
        if (entry.layout == layout) {
            const QRect cell = layout->cellRect(0, entry.column);
            return columnLeft(entry) + cell.width();
        }
    }
    return -1;
}

bool VNLayoutHelper::alignOnce()
{
    int target = 0;
    for (const Entry& entry : qAsConst(m_entries)) {
        if (entry.layout)
            target = qMax(target, columnLeft(entry) + neededWidth(entry));
    }
    bool changed = false;
    for (const Entry& entry : qAsConst(m_entries)) {
        if (!entry.layout)
            continue;
        const int width = qMax(neededWidth(entry), target - columnLeft(entry));
        if (entry.layout->columnMinimumWidth(entry.column) != width) {
            entry.layout->setColumnMinimumWidth(entry.column, width);
            changed = true;
        }
    }
    return changed;
}

void VNLayoutHelper::help()
{
    if (m_helping || !m_widget)
        return;
    m_helping = true;
    if (m_widget->layout())
        m_widget->layout()->activate();
    // Widening a label column can move grids that sit to its right: look again once Qt has laid
    // the form out anew (that second look changes nothing when everything lines up).
    if (alignOnce())
        scheduleHelp();
    m_helping = false;
}

void VNLayoutHelper::scheduleHelp()
{
    if (m_helpPending || m_entries.isEmpty())
        return;
    m_helpPending = true;
    QTimer::singleShot(0, this, [this] {
        m_helpPending = false;
        help();
    });
}

bool VNLayoutHelper::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_widget && (event->type() == QEvent::Show || event->type() == QEvent::Resize))
        scheduleHelp();
    return QObject::eventFilter(watched, event);
}
