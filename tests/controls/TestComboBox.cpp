#include "TestComboBox.h"

#include "QtCompat.h"

#include <VNComboBox.h>
#include <VNComboBoxDoubleInput.h>
#include <VNFilterComboBox.h>
#include <VNFormatter.h>
#include <VNGroupableComboBox.h>
#include <VNValueEdit.h>
#include <VNWidgetStatus.h>

#include <QCoreApplication>
#include <QDebug>

namespace {
struct StatusEntry
{
    const char* text;
    VNWidgetStatus::StatusFlags status;
};

const StatusEntry statusList[] = {
    {QT_TRANSLATE_NOOP("TestComboBoxClass", "undef"), VNWidgetStatus::undef},
    {QT_TRANSLATE_NOOP("TestComboBoxClass", "needInput"), VNWidgetStatus::needInput},
    {QT_TRANSLATE_NOOP("TestComboBoxClass", "userEdit"), VNWidgetStatus::userEdit},
    {QT_TRANSLATE_NOOP("TestComboBoxClass", "compareDifferent"), VNWidgetStatus::compareDifferent},
    {QT_TRANSLATE_NOOP("TestComboBoxClass", "different"), VNWidgetStatus::different},
    {QT_TRANSLATE_NOOP("TestComboBoxClass", "standardDefined"), VNWidgetStatus::standardDefined},
    {QT_TRANSLATE_NOOP("TestComboBoxClass", "standardChanged"), VNWidgetStatus::standardChanged},
};

// QComboBox counts rows under its root only, so the row of a grouped entry names another entry
// there: a groupable box's entry is removed by its place in the groups.
void removeCurrentItem(QComboBox* combo)
{
    auto* groupable = qobject_cast<VNGroupableComboBox*>(combo);
    if (groupable && groupable->currentChildRow() >= 0) {
        const QModelIndex group = combo->model()->index(groupable->currentTopLevelRow(), combo->modelColumn());
        combo->model()->removeRow(groupable->currentChildRow(), group);
        return;
    }
    combo->removeItem(combo->currentIndex());
}

QIcon iconFromFile(const QString& path)
{
    QIcon icon;
    icon.addFile(path, QSize(), QIcon::Normal, QIcon::Off);
    return icon;
}
} // namespace

TestComboBox::TestComboBox(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_filterComboBox(nullptr)
{
    ui.setupUi(this);
    ui.itemText->setText(tr("default"));

    auto* valueEdit = new VNValueEdit(ui.vnDoubleComboBox);
    ui.vnDoubleComboBox->setLineEdit(valueEdit);
    ui.vnDoubleComboBox->setEditable(true);
    ui.vnDoubleComboBox->setInsertPolicy(QComboBox::NoInsert);
    VNFormatter formatter;
    for (double value : {0.1, 0.2, 0.5, 1.0, 10.0})
        ui.vnDoubleComboBox->addItem(formatter.textFromValue(value, false));

    ui.vnUnitComboBox->setValueUnit(QStringLiteral("mm"));
    for (double value : {1.0, 10.0, 25.0, 50.0})
        ui.vnUnitComboBox->addValue(value);
    connect(valueEdit, &VNValueEdit::valueChanged, this, &TestComboBox::onValueChanged);
    QtCompat::connectIndexText(ui.vnDoubleComboBox, this, &TestComboBox::onTextChanged);

    ui.comboDeg->setValueUnit(QStringLiteral("deg"));
    ui.comboDeg->addSpecialValue(tr("Automatic Direction"), 0);
    ui.comboDeg->addSpecialValue(tr("X"), 1);
    ui.comboDeg->addSpecialValue(tr("Y"), 2);
    ui.comboDeg->setSelectAllOnFocusIn(true);
    connect(ui.comboDeg, &VNComboBoxDoubleInput::doubleInputTextEdited, this, &TestComboBox::onDegValueChanged);
    connect(ui.comboDeg, QOverload<int>::of(&QComboBox::activated), this, &TestComboBox::onDegIndexChanged);

    fillGroups();
    connect(ui.groupableCB, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TestComboBox::onCollapsibleComboChanged);
    connect(ui.groupableCB, &VNGroupableComboBox::currentGroupIndexChanged, this,
            &TestComboBox::onCollapsibleGroupComboChanged);

    m_filterComboBox = new VNFilterComboBox(this);
    m_filterComboBox->setObjectName(QStringLiteral("filterComboBox"));
    fillStandardItems(m_filterComboBox);
    // In a row of its own below the form's last row, at the start, where scripts look for it.
    ui.gridLayout->addWidget(m_filterComboBox, ui.gridLayout->rowCount(), 0);

    fillStatusList();
    ui.m_widgetStatusCB->observeItemsForWidgetStatus();
    ui.m_widgetStatusCB_2->clear();
    ui.m_widgetStatusCB_2->observeItemsForWidgetStatus();
}

TestComboBox::~TestComboBox() = default;

// Icons first, texts after the items are in, as the form does it.
void TestComboBox::fillStandardItems(QComboBox* combo)
{
    combo->addItem(iconFromFile(QStringLiteral(":/Icons/Application/Titlebar/designer_bottom.svg")), QString());
    combo->addItem(iconFromFile(QStringLiteral(":/Icons/Application/Titlebar/designer_bottomleft.svg")), QString());
    combo->addItem(QString());
    combo->addItem(QString());
    const int first = combo->count() - 4;
    combo->setItemText(first, QCoreApplication::translate("TestComboBoxClass", "Entry 1"));
    combo->setItemText(first + 1, QCoreApplication::translate("TestComboBoxClass", "A longer Entry 2"));
    combo->setItemText(first + 2, QCoreApplication::translate("TestComboBoxClass", "New Item"));
    combo->setItemText(first + 3, QCoreApplication::translate("TestComboBoxClass", "3"));
}

void TestComboBox::fillStatusList()
{
    ui.m_widgetStatusCB->clear();
    for (const StatusEntry& entry : statusList) {
        ui.m_widgetStatusCB->addItem(QCoreApplication::translate("TestComboBoxClass", entry.text));
        ui.m_widgetStatusCB->setItemWidgetStatus(ui.m_widgetStatusCB->count() - 1, entry.status);
    }
}

void TestComboBox::fillGroups()
{
    VNGroupableComboBox* combo = ui.groupableCB;
    combo->clear();
    const QModelIndex group1 = combo->addGroupItem(tr("Group1"), QModelIndex(), QVariant());
    const QStringList children1{tr("Child1"), tr("Child 02"), tr("Child 03"), tr("Child 04"), tr("Child 05")};
    for (int i = 0; i < children1.size(); ++i)
        combo->addGroupItem(children1.at(i), group1, i);
    combo->addGroupItem(tr("ItemWithoutGroup"), QModelIndex(), QVariant());
    const QModelIndex group2 = combo->addGroupItem(tr("Group2"), QModelIndex(), QVariant());
    const QStringList children2{tr("Child 11"), tr("Child 12"), tr("Child 13"), tr("Child 14")};
    for (int i = 0; i < children2.size(); ++i)
        combo->addGroupItem(children2.at(i), group2, i);
    combo->setCurrentGroupIndex(2, 1);
}

QList<QComboBox*> TestComboBox::bulkComboBoxes() const
{
    QList<QComboBox*> combos = findChildren<QComboBox*>();
    combos.removeAll(ui.vnDoubleComboBox);
    return combos;
}

QList<VNComboBox*> TestComboBox::styledComboBoxes() const
{
    QList<VNComboBox*> combos = findChildren<VNComboBox*>();
    combos.removeAll(ui.vnDoubleComboBox);
    return combos;
}

void TestComboBox::on_add_clicked()
{
    QString text = ui.itemText->text();
    if (text.isEmpty())
        text = tr("default");
    for (QComboBox* combo : bulkComboBoxes()) {
        combo->addItem(text);
        const VNWidgetStatus::StatusFlags status = ui.m_widgetStatusCB->getWidgetStatusOfCurrent();
        if (auto* vnCombo = qobject_cast<VNComboBox*>(combo))
            vnCombo->setItemWidgetStatus(vnCombo->count() - 1, status);
    }
}

void TestComboBox::on_deleteCurrent_clicked()
{
    for (QComboBox* combo : bulkComboBoxes())
        removeCurrentItem(combo);
}

void TestComboBox::on_deleteAll_clicked()
{
    for (QComboBox* combo : bulkComboBoxes())
        combo->clear();
}

void TestComboBox::on_restore_clicked()
{
    for (QComboBox* combo : bulkComboBoxes()) {
        combo->clear();
        fillStandardItems(combo);
    }
    fillStatusList();
    ui.m_widgetStatusCB_2->clear();
    fillGroups();
}

void TestComboBox::setComboStyle(int style)
{
    for (VNComboBox* combo : styledComboBoxes())
        combo->setComboBoxStyle(VNComboBox::ComboStyle(style));
}

void TestComboBox::on_radioIcon_toggled(bool checked)
{
    if (checked)
        setComboStyle(VNComboBox::IconOnly);
}

void TestComboBox::on_radioText_toggled(bool checked)
{
    if (checked)
        setComboStyle(VNComboBox::TextOnly);
}

void TestComboBox::on_radioIconText_toggled(bool checked)
{
    if (checked)
        setComboStyle(VNComboBox::IconAndText);
}

void TestComboBox::on_addSeparator_clicked()
{
    for (QComboBox* combo : bulkComboBoxes())
        combo->insertSeparator(combo->count());
}

void TestComboBox::onValueChanged(double value)
{
    qDebug() << value;
}

void TestComboBox::onTextChanged(const QString& text)
{
    VNFormatter formatter;
    qDebug() << formatter.valueFromText(text);
}

void TestComboBox::onDegValueChanged(double value)
{
    VNFormatter formatter;
    formatter.setValueUnit(QStringLiteral("deg"));
    ui.comboOutput->setText(formatter.textFromValue(value, false));
}

void TestComboBox::onDegIndexChanged(int index)
{
    switch (index) {
    case 0:
        ui.comboOutput->setText(tr("Auto"));
        break;
    case 1:
        ui.comboOutput->setText(tr("X"));
        break;
    case 2:
        ui.comboOutput->setText(tr("Y"));
        break;
    default:
        ui.comboOutput->setText(tr("??"));
        break;
    }
}

// Hooks to stop at while debugging: they only read the box.
void TestComboBox::onCollapsibleComboChanged(int)
{
    auto* combo = qobject_cast<VNGroupableComboBox*>(sender());
    if (!combo)
        return;
    const int count = combo->count();
    const int current = combo->currentIndex();
    Q_UNUSED(count)
    Q_UNUSED(current)
}

void TestComboBox::onCollapsibleGroupComboChanged(int, int)
{
    auto* combo = qobject_cast<VNGroupableComboBox*>(sender());
    if (!combo)
        return;
    const int count = combo->count();
    const int current = combo->currentIndex();
    Q_UNUSED(count)
    Q_UNUSED(current)
}
