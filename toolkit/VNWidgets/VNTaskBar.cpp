#include "VNTaskBar.h"

#include "VNStatusPainter_p.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>
#include <QVariant>

namespace {
const int chevronGap = 16;
}

VNTaskBar::VNTaskBar(QWidget* parent)
    : QFrame(parent)
    , VNWidgetInterface(this)
    , m_layout(new QHBoxLayout(this))
    , m_group(new QButtonGroup(this))
{
    m_layout->setContentsMargins(6, 4, 4, 4); // room for the status frame and sigma bar
    m_layout->setSpacing(chevronGap);
    m_layout->addStretch();
    connect(m_group, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            emit currentIndexChanged(id);
    });
}

int VNTaskBar::addItem(const QIcon& icon, const QString& text)
{
    auto* button = new QToolButton(this);
    button->setIcon(icon);
    button->setText(text);
    button->setIconSize(QSize(32, 32));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setProperty("taskBarItem", true);
    const int index = count();
    m_group->addButton(button, index);
    m_layout->insertWidget(index, button);
    if (index == 0)
        button->setChecked(true);
    return index;
}

int VNTaskBar::count() const
{
    return m_group->buttons().size();
}

QString VNTaskBar::itemText(int index) const
{
    QToolButton* button = itemButton(index);
    return button ? button->text() : QString();
}

QToolButton* VNTaskBar::itemButton(int index) const
{
    return qobject_cast<QToolButton*>(m_group->button(index));
}

int VNTaskBar::currentIndex() const
{
    return m_group->checkedId();
}

void VNTaskBar::setCurrentIndex(int index)
{
    if (QToolButton* button = itemButton(index))
        button->setChecked(true);
}

void VNTaskBar::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 2));
    for (int i = 0; i + 1 < count(); ++i) {
        const QRect left = itemButton(i)->geometry();
        const int x = left.right() + chevronGap / 2 - 2;
        const int y = left.center().y();
        painter.drawPolyline(QPolygon({QPoint(x - 3, y - 6), QPoint(x + 3, y), QPoint(x - 3, y + 6)}));
    }
    VNStatusPainter::paint(painter, rect(), getWidgetStatus());
}
