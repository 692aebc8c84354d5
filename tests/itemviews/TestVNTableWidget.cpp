#include "TestVNTableWidget.h"

#include <VNCustomHeaderView.h>
#include <VNItemDataRoles.h>

#include <QStandardItemModel>

namespace {
VNCustomHeaderView* newHeader(Qt::Orientation orientation)
{
    auto* header = new VNCustomHeaderView(orientation, QSize(0, 0), nullptr);
    header->setSectionsClickable(true);
    return header;
}
} // namespace

TestVNTableWidget::TestVNTableWidget(QWidget* parent)
    : QDialog(parent)
    , m_model(nullptr)
{
    setupUi(this);
    connect(m_addRowPB, &QPushButton::pressed, this, &TestVNTableWidget::addRow);
    connect(m_removeRowPB, &QPushButton::pressed, this, &TestVNTableWidget::removeRow);
    connect(m_addColumnPB, &QPushButton::pressed, this, &TestVNTableWidget::addColumn);
    connect(m_removeColumnPB, &QPushButton::pressed, this, &TestVNTableWidget::removeColumn);
    m_model = new QStandardItemModel;
    m_vnTableView->setModel(m_model);
    // The views take over their headers (setHorizontalHeader re-parents them).
    m_vnTableView->setHorizontalHeader(newHeader(Qt::Horizontal));
    m_vnTableView->setVerticalHeader(newHeader(Qt::Vertical));
    m_vnTableWidget->setHorizontalHeader(newHeader(Qt::Horizontal));
    m_vnTableWidget->setVerticalHeader(newHeader(Qt::Vertical));
}

TestVNTableWidget::~TestVNTableWidget()
{
    m_vnTableView->setModel(nullptr);
    delete m_model;
}

QString TestVNTableWidget::headerText(const QString& baseWord, int index) const
{
    if (m_htmlHeaderCB->isChecked())
        return QStringLiteral("%1<sub>%2</sub>").arg(baseWord).arg(index);
    return QStringLiteral("%1%2").arg(baseWord).arg(index);
}

int TestVNTableWidget::colorCoding(Qt::Orientation orientation) const
{
    if (!m_colorCodingCB->isChecked())
        return 0;
    return orientation == Qt::Horizontal ? 2 : 32;
}

void TestVNTableWidget::addColumn()
{
    const QString text = headerText(QStringLiteral("Column"), m_vnTableWidget->columnCount());
    const int coding = colorCoding(Qt::Horizontal);
    const int widgetColumn = m_vnTableWidget->columnCount();
    m_vnTableWidget->insertColumn(widgetColumn);
    auto* item = new QTableWidgetItem;
    item->setData(VNItemDataRoles::StatusRole, coding);
    item->setData(Qt::DisplayRole, text);
    item->setData(VNItemDataRoles::RichTextRole, true);
    m_vnTableWidget->setHorizontalHeaderItem(widgetColumn, item);

    const int modelColumn = m_model->columnCount();
    m_model->insertColumn(modelColumn);
    m_model->setHeaderData(modelColumn, Qt::Horizontal, coding, VNItemDataRoles::StatusRole);
    m_model->setHeaderData(modelColumn, Qt::Horizontal, headerText(QStringLiteral("Column"), modelColumn),
                           Qt::EditRole);
    m_model->setHeaderData(modelColumn, Qt::Horizontal, true, VNItemDataRoles::RichTextRole);
}

void TestVNTableWidget::removeColumn()
{
    m_vnTableWidget->removeColumn(m_vnTableWidget->columnCount() - 1);
    m_model->removeColumn(m_model->columnCount() - 1);
}

void TestVNTableWidget::addRow()
{
    const QString text = headerText(QStringLiteral("Row"), m_vnTableWidget->rowCount());
    const int coding = colorCoding(Qt::Vertical);
    const int widgetRow = m_vnTableWidget->rowCount();
    m_vnTableWidget->insertRow(widgetRow);
    auto* item = new QTableWidgetItem;
    item->setData(VNItemDataRoles::StatusRole, coding);
    item->setData(Qt::DisplayRole, text);
    item->setData(VNItemDataRoles::RichTextRole, true);
    m_vnTableWidget->setVerticalHeaderItem(widgetRow, item);

    const int modelRow = m_model->rowCount();
    m_model->insertRow(modelRow);
    m_model->setHeaderData(modelRow, Qt::Vertical, coding, VNItemDataRoles::StatusRole);
    m_model->setHeaderData(modelRow, Qt::Vertical, headerText(QStringLiteral("Row"), modelRow), Qt::EditRole);
    m_model->setHeaderData(modelRow, Qt::Vertical, true, VNItemDataRoles::RichTextRole);
}

void TestVNTableWidget::removeRow()
{
    m_vnTableWidget->removeRow(m_vnTableWidget->rowCount() - 1);
    m_model->removeRow(m_model->rowCount() - 1);
}
