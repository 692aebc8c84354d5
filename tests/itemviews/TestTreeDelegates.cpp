#include "TestTreeDelegates.h"

#include <ColorBoxDelegate.h>
#include <IconToggleDelegate.h>
#include <SvgIcons.h>
#include <VNComboBoxDelegate.h>
#include <VNCustomHeaderView.h>
#include <VNDoubleSpinBoxData.h>
#include <VNEditPreventionDelegate.h>
#include <VNIncludeExcludeButtonDelegate.h>
#include <VNItemDataRoles.h>
#include <VNItemDelegate.h>
#include <VNMenuButtonDelegate.h>
#include <VNMenuButtonDelegateData.h>
#include <VNMessageBox.h>
#include <VNMultiPushButtonDelegate.h>
#include <VNNameSuggestionDelegate.h>
#include <VNPushButtonDelegate.h>
#include <VNToolTipButtonDelegate.h>
#include <VNTwinPushButtonDelegate.h>
#include <VNWidgetStatus.h>

#include <QDebug>
#include <QHash>
#include <QStandardItemModel>

namespace {
const int firstValueColumn = 1;
const int lastValueColumn = 4;
const QString iconPath = QStringLiteral(":/Icons/Shared/");
const QString clampDouble = QStringLiteral(":/Icons/Process/clamp_double_sided_16.svg");
const QString clampSingle = QStringLiteral(":/Icons/Process/clamp_single_sided_16.svg");
const QString clampDoubleDark = QStringLiteral(":/Icons/Process/clamp_double_sided_dark_16.svg");
const QString clampSingleDark = QStringLiteral(":/Icons/Process/clamp_single_sided_dark_16.svg");

QList<QIcon> comboIcons()
{
    QList<QIcon> icons;
    for (const char* name : {"add_16", "copy_16", "edit_16", "search_16", "sync_all_16", "delete_16"})
        icons << createSvgIcon(iconPath + QLatin1String(name) + QLatin1String(".svg"));
    return icons;
}
} // namespace

// Qt picks a row's delegate before a column's, so the value columns get this dispatcher, which
// hands each cell to the delegate of its row; the caption column keeps its own delegate.
class TreeDelegatesDispatcher : public QStyledItemDelegate
{
public:
    TreeDelegatesDispatcher(QAbstractItemDelegate* fallback, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_fallback(fallback)
    {
        adopt(fallback);
    }

    void setDelegateForRow(int row, QAbstractItemDelegate* delegate)
    {
        m_rows.insert(row, delegate);
        adopt(delegate);
    }
    QAbstractItemDelegate* delegateFor(const QModelIndex& index) const { return m_rows.value(index.row(), m_fallback); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        delegateFor(index)->paint(painter, option, index);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return delegateFor(index)->sizeHint(option, index);
    }
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return delegateFor(index)->createEditor(parent, option, index);
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        delegateFor(index)->setEditorData(editor, index);
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        delegateFor(index)->setModelData(editor, model, index);
    }
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override
    {
        delegateFor(index)->updateEditorGeometry(editor, option, index);
    }
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override
    {
        return delegateFor(index)->helpEvent(event, view, option, index);
    }

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override
    {
        return delegateFor(index)->editorEvent(event, model, option, index);
    }

private:
    // The view listens to the dispatcher only, so the row delegates' editor signals go through it.
    void adopt(QAbstractItemDelegate* delegate)
    {
        connect(delegate, &QAbstractItemDelegate::commitData, this, &QAbstractItemDelegate::commitData,
                Qt::UniqueConnection);
        connect(delegate, &QAbstractItemDelegate::closeEditor, this, &QAbstractItemDelegate::closeEditor,
                Qt::UniqueConnection);
    }

    QAbstractItemDelegate* m_fallback;
    QHash<int, QAbstractItemDelegate*> m_rows;
};

TestTreeDelegates::TestTreeDelegates(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_model(nullptr)
    , m_delegate(nullptr)
{
    ui.setupUi(this);
    setUpHeader();
    m_model = ui.treeWidget->model();
    m_delegate = new VNItemDelegate(ui.treeWidget);
    ui.treeWidget->setItemDelegate(m_delegate);
    ui.treeWidget->setItemDelegateForColumn(0, new VNEditPreventionDelegate(ui.treeWidget));
    m_dispatcher = new TreeDelegatesDispatcher(m_delegate, ui.treeWidget);
    for (int column = firstValueColumn; column <= lastValueColumn; ++column)
        ui.treeWidget->setItemDelegateForColumn(column, m_dispatcher);
    ui.treeWidget->setRootIsDecorated(false);
    ui.treeWidget->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                                   QAbstractItemView::SelectedClicked);
    fillRows();
    connect(m_delegate, &VNItemDelegate::sigmaClicked, this, &TestTreeDelegates::onSigmaClicked);
    connect(ui.treeWidget, &QTreeWidget::itemChanged, this, &TestTreeDelegates::onItemChanged);
}

QAbstractItemDelegate* TestTreeDelegates::delegateForRow(int row) const
{
    return m_dispatcher->delegateFor(m_model->index(row, firstValueColumn));
}

void TestTreeDelegates::setUpHeader()
{
    auto* header = new VNCustomHeaderView(Qt::Horizontal, QSize(0, 0), nullptr);
    ui.treeWidget->setHeader(header);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setTextElideMode(Qt::ElideMiddle);
    header->setStretchLastSection(true);
    ui.treeWidget->setHeaderLabels({tr("v VNEditPreventionDelegate"), tr("<p>Col1 </ p>"), tr("Col2withloooongname"),
                                    tr("Col3"), tr("Col4 with very long name")});
    header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    const QString toolTipText = tr("This is a tooltip which should be shown by ToolTipButton");
    header->setToolTipButtonText(0, toolTipText);
    header->setToolTipButtonText(4, toolTipText);
    QTreeWidgetItem* headerItem = ui.treeWidget->headerItem();
    headerItem->setToolTip(0, tr("Different Tooltip"));
    headerItem->setToolTip(4, tr("Different Tooltip"));
    headerItem->setTextAlignment(3, Qt::AlignHCenter | Qt::AlignVCenter);
    headerItem->setIcon(2, createSvgIcon(iconPath + QStringLiteral("edit_16.svg")));
}

QTreeWidgetItem* TestTreeDelegates::addRow(const QString& caption, const QStringList& texts,
                                           QAbstractItemDelegate* delegate)
{
    auto* item = new QTreeWidgetItem(ui.treeWidget, QStringList(caption) + texts);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable);
    if (delegate)
        m_dispatcher->setDelegateForRow(ui.treeWidget->indexOfTopLevelItem(item), delegate);
    return item;
}

void TestTreeDelegates::fillRows()
{
    QTreeWidgetItem* colors = addRow(tr("ColorBoxDelegate"), {}, new ColorBoxDelegate(ui.treeWidget));
    const QColor sample[] = {QColor(0xd3, 0x2f, 0x2f), QColor(0x4c, 0xaf, 0x50), QColor(0x1e, 0x88, 0xe5),
                             QColor(0xf0, 0x62, 0x92)};
    for (int column = firstValueColumn; column <= lastValueColumn; ++column)
        colors->setData(column, Qt::EditRole, sample[column - firstValueColumn]);

    QTreeWidgetItem* toolTips = addRow(tr("VNToolTipButtonDelegate"), {tr("Text 1"), tr("Text 2"), tr("Text 3")},
                                       new VNToolTipButtonDelegate(ui.treeWidget));
    for (int column = firstValueColumn; column < lastValueColumn; ++column)
        toolTips->setToolTip(column, tr("This is the tooltip given by Qt::ToolTipRole"));

    fillToggleRows();
    fillValueRows();
    fillButtonRows();
    fillMultiButtonRows();

    QTreeWidgetItem* names =
        addRow(tr("VNNameSuggestionDelegate"), {tr("Test_Name.Alias")}, new VNNameSuggestionDelegate(ui.treeWidget));
    names->setData(1, VNNameSuggestionDelegate::s_suggestionRole, QStringLiteral("fa00aat8.geo_fin001.011999"));
}

// Pairs of rows: the toggle delegate and the item delegate's own drawing of the same check states.
void TestTreeDelegates::fillToggleRows()
{
    const struct
    {
        const char* toggleCaption;
        const char* itemCaption;
        IconToggleDelegate::Type type;
    } forms[] = {
        {QT_TR_NOOP("IconToggleDelegate Check"), QT_TR_NOOP("VNItemDelegate Check"), IconToggleDelegate::Check},
        {QT_TR_NOOP("IconToggleDelegate Radio"), QT_TR_NOOP("VNItemDelegate Radio"), IconToggleDelegate::Radio},
        {QT_TR_NOOP("IconToggleDelegate Visibility"), QT_TR_NOOP("VNItemDelegate Visibility"),
         IconToggleDelegate::Visibility},
    };
    for (const auto& form : forms) {
        QTreeWidgetItem* toggles = addRow(tr(form.toggleCaption), {}, new IconToggleDelegate(form.type, ui.treeWidget));
        QTreeWidgetItem* checks = addRow(tr(form.itemCaption), {tr("On"), tr("Off"), tr("On"), tr("Off")}, nullptr);
        checks->setFlags(checks->flags() & ~Qt::ItemIsEditable);
        for (int column = firstValueColumn; column <= lastValueColumn; ++column) {
            const Qt::CheckState state = column % 2 ? Qt::Checked : Qt::Unchecked;
            toggles->setCheckState(column, state);
            checks->setCheckState(column, state);
            checks->setData(column, VNItemDataRoles::CheckStyleRole, int(form.type));
        }
        toggles->setFlags(toggles->flags() | Qt::ItemIsUserCheckable);
        checks->setFlags(checks->flags() | Qt::ItemIsUserCheckable);
    }
}

void TestTreeDelegates::fillValueRows()
{
    addRow(tr("VNItemDelegate"), {QStringLiteral("1"), QStringLiteral("22"), QStringLiteral("333"), tr("Text")},
           nullptr);

    QTreeWidgetItem* spinRoles = addRow(tr("VNItemDelegate - Spinbox Roles"), {}, nullptr);
    const double inches[] = {1.5, 12.25, 0.125, 100.0};
    for (int column = firstValueColumn; column <= lastValueColumn; ++column) {
        spinRoles->setData(column, VNItemDataRoles::ValueRole, inches[column - firstValueColumn]);
        spinRoles->setData(column, VNItemDataRoles::UnitRole, QStringLiteral("inch"));
        spinRoles->setData(column, VNItemDataRoles::DecimalsRole, 3);
    }

    QTreeWidgetItem* spinData = addRow(tr("VNItemDelegate - VNDoubleSpinBoxData"), {}, nullptr);
    const double millimetres[] = {25.4, 3.0, 1250.5, 0.75};
    for (int column = firstValueColumn; column <= lastValueColumn; ++column) {
        VNDoubleSpinBoxData number;
        number.value = millimetres[column - firstValueColumn];
        number.unit = QStringLiteral("mm");
        number.decimals = 2;
        spinData->setData(column, Qt::EditRole, QVariant::fromValue(number));
    }

    const QIcon tool(QStringLiteral(":/Icons/Process/HotForming/tool_with_temperatures_16.svg"));
    QTreeWidgetItem* icons = addRow(tr("VNItemDelegate with Icon"),
                                    {tr("Icon Right"), tr("Icon Left"), tr("Icon Right"), tr("Icon Left")}, nullptr);
    for (int column = firstValueColumn; column <= lastValueColumn; ++column) {
        icons->setIcon(column, tool);
        icons->setData(column, VNItemDataRoles::IconRightRole, column % 2 == 1);
    }

    QTreeWidgetItem* boxes = addRow(tr("VNItemDelegate with ColorBox"), {tr("Blue"), tr("Pink")}, nullptr);
    boxes->setData(1, VNItemDataRoles::ColorBoxRole, QColor(0x1e, 0x88, 0xe5));
    boxes->setData(2, VNItemDataRoles::ColorBoxRole, QColor(0xf0, 0x62, 0x92));

    for (const char* caption :
         {QT_TR_NOOP("VNItemDelegate Color Box"), QT_TR_NOOP("VNItemDelegate Visibility / Color Box")}) {
        QTreeWidgetItem* row = addRow(tr(caption), {tr("This is a long text"), tr("Short text")}, nullptr);
        row->setData(1, VNItemDataRoles::ColorBoxRole, QColor(0x4c, 0xaf, 0x50));
        row->setData(2, VNItemDataRoles::ColorBoxRole, QColor(0xff, 0x98, 0x00));
        if (row->text(0) == tr("VNItemDelegate Color Box"))
            continue;
        row->setFlags(row->flags() | Qt::ItemIsUserCheckable);
        for (int column : {1, 2}) {
            row->setCheckState(column, column == 1 ? Qt::Checked : Qt::Unchecked);
            row->setData(column, VNItemDataRoles::CheckStyleRole, int(IconToggleDelegate::Visibility));
        }
    }

    QTreeWidgetItem* elide =
        addRow(tr("VNItemDelegate ElideMode"),
               {QString(), tr("this is an extreme long text which preferably should be elided."),
                tr("A string consists of characters, which can be numbers, letters, spaces and additional characters."),
                tr("the text you are reading does not contain numbers, just letters and spaces")},
               nullptr);
    elide->setData(2, VNItemDataRoles::ElideModeRole, int(Qt::ElideRight));
    elide->setData(3, VNItemDataRoles::ElideModeRole, int(Qt::ElideMiddle));
    elide->setData(4, VNItemDataRoles::ElideModeRole, int(Qt::ElideLeft));
}

void TestTreeDelegates::fillButtonRows()
{
    const QIcon reset(iconPath + QStringLiteral("reset.svg"));
    QTreeWidgetItem* push = addRow(tr("VNPushButtonDelegate"), {tr("PB1 checkable"), tr("PB2"), QString()},
                                   new VNPushButtonDelegate(ui.treeWidget));
    push->setFlags(push->flags() | Qt::ItemIsUserCheckable);
    push->setCheckState(1, Qt::Unchecked);
    push->setIcon(2, reset);
    push->setIcon(3, reset);

    QTreeWidgetItem* include =
        addRow(tr("VNIncludeExcludeButtonDelegate"), {}, new VNIncludeExcludeButtonDelegate(ui.treeWidget));
    for (int column = firstValueColumn; column <= lastValueColumn; ++column)
        include->setData(column, Qt::EditRole, column % 2 == 1);

    const QStringList items{tr("Item 1"), tr("Item 2"), tr("Item 3"), tr("Item 4"), tr("Item 5"), tr("Item 6")};
    auto* combo = new VNComboBoxDelegate(ui.treeWidget);
    combo->setItems(items, comboIcons());
    addRow(tr("VNComboBoxDelegate"), items.mid(0, 4), combo);
    auto* itemModel = new QStandardItemModel(this);
    const QList<QIcon> icons = comboIcons();
    for (int row = 0; row < items.size(); ++row)
        itemModel->appendRow(new QStandardItem(icons.value(row), items.at(row)));
    auto* modelCombo = new VNComboBoxDelegate(ui.treeWidget);
    modelCombo->setModel(itemModel);
    addRow(tr("VNComboBoxDelegate from Model"), {items.at(5), items.at(4), items.at(3), items.at(2)}, modelCombo);

    auto* menuDelegate = new VNMenuButtonDelegate(ui.treeWidget);
    auto* input = new VNMenuButtonDelegateData(this);
    for (const QString& text : {tr("Input..."), tr("Copy From..."), tr("Edit")})
        input->addMenuItem(text);
    input->setDefaultItem(0);
    input->setMenuItemEnabled(1, false);
    auto* edit = new VNMenuButtonDelegateData(this);
    for (const QString& text : {tr("Edit..."), tr("Copy..."), tr("Reset")})
        edit->addMenuItem(text);
    edit->setDefaultItem(2);
    QTreeWidgetItem* menus = addRow(tr("VNMenuButtonDelegate"), {tr("Menu"), tr("Menu")}, menuDelegate);
    menus->setData(1, VNMenuButtonDelegate::s_delegateDataRole, QVariant::fromValue(input));
    menus->setData(2, VNMenuButtonDelegate::s_delegateDataRole, QVariant::fromValue(edit));

    auto* tests = new VNMenuButtonDelegateData(this);
    tests->addMenuItem(tr("Test1"), tr("additional Text1"));
    tests->addMenuItem(tr("Test2"), tr("additional Text2"));
    tests->addMenuItem(tr("Test3"), tr("additional Text3 which is much longer than the other additional texts"));
    auto* shortTests = new VNMenuButtonDelegateData(this);
    shortTests->addMenuItem(tr("Test1"), tr("additional Text1"));
    shortTests->addMenuItem(tr("Test2"), tr("additional Text2"));
    shortTests->addMenuItem(tr("Test3"));
    shortTests->removeMenuItem(1);
    shortTests->setDefaultItem(0);
    QTreeWidgetItem* menus2 =
        addRow(tr("VNMenuButtonDelegate2"), {tr("Tests"), tr("Tests")}, new VNMenuButtonDelegate(ui.treeWidget));
    menus2->setData(1, VNMenuButtonDelegate::s_delegateDataRole, QVariant::fromValue(tests));
    menus2->setData(2, VNMenuButtonDelegate::s_delegateDataRole, QVariant::fromValue(shortTests));

    addRow(tr("VNTwinPushButtonDelegate"), {}, new VNTwinPushButtonDelegate(tr("Apply"), tr("Reset"), ui.treeWidget));
}

void TestTreeDelegates::fillMultiButtonRows()
{
    const QIcon doubleSided(clampDouble), singleSided(clampSingle);
    const QIcon doubleDark(clampDoubleDark), singleDark(clampSingleDark);
    const struct
    {
        const char* caption;
        QIcon icon;
        QIcon disabled;
        QIcon checked;
        bool enabled;
    } variants[] = {
        {QT_TR_NOOP("VNMultiPushButtonDelegate"), {}, {}, {}, true},
        {QT_TR_NOOP("VNMultiPushButtonDelegateWithIcon"), doubleSided, {}, {}, true},
        {QT_TR_NOOP("VNMultiPushButtonDelegateWithIcon getMultiPushButtonEnabledRole = false"),
         doubleSided,
         {},
         {},
         false},
        {QT_TR_NOOP("VNMultiPushButtonDelegate Different Checked Icon"), doubleSided, {}, doubleDark, true},
        {QT_TR_NOOP("VNMultiPushButtonDelegate Simple Icon"), singleSided, {}, {}, true},
        {QT_TR_NOOP("VNMultiPushButtonDelegate Different Disabled Icon"), singleSided, singleDark, {}, true},
        {QT_TR_NOOP("VNMultiPushButtonDelegate Same Disabled Icon"), singleSided, singleSided, {}, true},
        {QT_TR_NOOP("VNMultiPushButtonDelegate Checked Icon"), singleSided, {}, singleDark, true},
    };
    for (const auto& variant : variants) {
        auto* delegate = new VNMultiPushButtonDelegate(ui.treeWidget);
        for (int number = 1; number <= 3; ++number) {
            const int button =
                delegate->addButton(tr("PB %1").arg(number), variant.icon, variant.disabled, variant.checked);
            delegate->setButtonToolTips(button, tr("Tooltip for PB %1 enabled").arg(number),
                                        tr("Tooltip for PB %1 disabled").arg(number),
                                        tr("Tooltip for PB %1 checked").arg(number));
        }
        QTreeWidgetItem* row = addRow(tr(variant.caption), {}, delegate);
        row->setData(1, VNMultiPushButtonDelegate::getMultiPushButtonCheckedRole(), 0x1);
        // The disabled-icon rows disable their middle button so that the disabled look shows.
        if (!variant.enabled)
            row->setData(1, VNMultiPushButtonDelegate::getMultiPushButtonEnabledRole(), false);
        else if (!variant.disabled.isNull())
            row->setData(1, VNMultiPushButtonDelegate::getMultiPushButtonEnabledRole(),
                         QVariantList{true, false, true});
    }
}

void TestTreeDelegates::writeOnValueCells(int role, const QVariant& value)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        for (int column = firstValueColumn; column < m_model->columnCount(); ++column)
            m_model->setData(m_model->index(row, column), value, role);
    }
}

void TestTreeDelegates::setStatusBit(int flag, bool on)
{
    int status = 0;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        status = m_model->index(row, firstValueColumn).data(VNItemDataRoles::StatusRole).toInt();
        status = on ? (status | flag) : (status & ~flag);
        for (int column = firstValueColumn; column < m_model->columnCount(); ++column)
            m_model->setData(m_model->index(row, column), status, VNItemDataRoles::StatusRole);
    }
    QTreeWidgetItem* headerItem = ui.treeWidget->headerItem();
    for (int column = firstValueColumn; column <= lastValueColumn; ++column)
        headerItem->setData(column, VNItemDataRoles::StatusRole, status);
}

void TestTreeDelegates::on_disableItems_toggled(bool checked)
{
    writeOnValueCells(VNItemDataRoles::ActiveRole, !checked);
}

void TestTreeDelegates::on_readOnlyItems_toggled(bool checked)
{
    writeOnValueCells(VNItemDataRoles::ReadOnlyRole, checked);
}

void TestTreeDelegates::on_m_needInput_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::needInput, checked);
}

void TestTreeDelegates::on_m_userEdited_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::userEdit, checked);
}

void TestTreeDelegates::on_m_compareDiffers_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::compareDifferent, checked);
}

void TestTreeDelegates::on_m_standardEnabled_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::standardEnabled | VNWidgetStatus::standardDefined, checked);
}

void TestTreeDelegates::on_m_standardDeviate_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::standardDeviate, checked);
}

void TestTreeDelegates::on_m_standardLocked_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::standardLocked, checked);
}

void TestTreeDelegates::onItemChanged(QTreeWidgetItem* item, int column)
{
    if (column == 1)
        qDebug() << item->text(1).toInt();
}

// Sigma can only be on while it is available.
void TestTreeDelegates::on_m_sigmaAvailable_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::sigmaAvailable, checked);
    setStatusBit(VNWidgetStatus::sigmaOn, ui.m_sigmaOn->isChecked() && checked);
}

void TestTreeDelegates::on_m_sigmaOn_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::sigmaOn, checked);
}

void TestTreeDelegates::on_m_sigmaError_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::sigmaError, checked);
}

void TestTreeDelegates::on_m_sigmaStandardChanged_toggled(bool checked)
{
    setStatusBit(VNWidgetStatus::sigmaStandardChanged, checked);
}

void TestTreeDelegates::on_m_showValueBackground_toggled(bool checked)
{
    m_delegate->setDrawValueBackground(checked);
    ui.m_valueFiledWidth->setCurrentIndex(m_delegate->valueFieldWidth() + 1);
    update();
    ui.treeWidget->viewport()->update();
}

void TestTreeDelegates::on_m_valueFiledWidth_currentIndexChanged(int index)
{
    m_delegate->setValueFieldWidth(index - 1);
    update();
    ui.treeWidget->viewport()->update();
}

void TestTreeDelegates::onSigmaClicked(QModelIndex, QAbstractItemView*)
{
    Varnis::VNMessageBox::information(this, tr("Sigma"), tr("Sigma clicked"), QMessageBox::Ok, QMessageBox::NoButton);
}

void TestTreeDelegates::on_m_headerDifferentFromComparison_toggled(bool checked)
{
    ui.treeWidget->setHeaderDifferentFromComparison(checked);
}
