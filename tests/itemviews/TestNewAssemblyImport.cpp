#include "TestNewAssemblyImport.h"

#include <SvgIcons.h>
#include <TreeViewContextMenu.h>
#include <VNButton.h>
#include <VNItemDelegate.h>
#include <VNLabel.h>
#include <VNTreeView.h>

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegExp>
#include <QSortFilterProxyModel>
#include <QSpacerItem>
#include <QStandardItemModel>

TestNewAssemblyImport::TestNewAssemblyImport(QWidget* parent)
    : QDialog(parent)
    , m_tree(new VNTreeView(this))
    , m_model(new QStandardItemModel(this))
    , m_proxy(new QtCompat::RegExpFilterProxyModel(this))
    , m_searchField(new QLineEdit(this))
    , m_resetButton(new VNButton(nullptr))
{
    setupUi(this);
    m_tree->setObjectName(QStringLiteral("m_tree"));
    m_searchField->setObjectName(QStringLiteral("m_searchField"));
    m_resetButton->setObjectName(QStringLiteral("m_resetButton"));
    m_tree->setAccessibleName(tr("Assemblies"));
    m_searchField->setAccessibleName(tr("Search"));
    m_resetButton->setAccessibleName(tr("Reset Search"));
    QWidget* searchBar = createSearchBar();
    setUpTree();
    m_verticalLayout->addWidget(searchBar);
    m_verticalLayout->addWidget(m_tree);
    fillModel();

    connect(m_searchField, &QLineEdit::textChanged, this, &TestNewAssemblyImport::onSearchTextChanged);
    connect(m_resetButton, &VNButton::clicked, this, &TestNewAssemblyImport::onResetSearchBtn);
    connect(m_model, &QStandardItemModel::itemChanged, this, &TestNewAssemblyImport::onCommentUpdated);
    connect(m_tree, &VNTreeView::customContextMenuRequested, this,
            &TestNewAssemblyImport::onCustomContextMenuRequested);
}

QWidget* TestNewAssemblyImport::createSearchBar()
{
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("m_searchBar"));
    frame->setProperty("NewAssemblyImport", 1);
    auto* barLayout = new QHBoxLayout(frame);
    barLayout->setObjectName(QStringLiteral("barLayout"));
    barLayout->setContentsMargins(0, 3, 0, 3);
    barLayout->setSpacing(0);
    barLayout->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Preferred));

    auto* searchIcon = new VNLabel(frame);
    searchIcon->setObjectName(QStringLiteral("m_searchIcon"));
    searchIcon->setIcon(createSvgIcon(QStringLiteral(":/Icons/Shared/search_light_16.svg")));
    barLayout->addWidget(searchIcon);
    barLayout->addItem(new QSpacerItem(3, 3, QSizePolicy::Fixed, QSizePolicy::Fixed));

    m_searchField->setPlaceholderText(tr("Search..."));
    m_searchField->setMinimumHeight(22);
    barLayout->addWidget(m_searchField);

    m_resetButton->setToolTip(tr("Reset Search"));
    m_resetButton->setIcon(createSvgIcon(QStringLiteral(":/Icons/Shared/reset.svg")));
    m_resetButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
    barLayout->addWidget(m_resetButton);
    barLayout->addItem(new QSpacerItem(3, 3, QSizePolicy::Fixed, QSizePolicy::Fixed));
    return frame;
}

void TestNewAssemblyImport::setUpTree()
{
    m_proxy->setSourceModel(m_model);
    m_proxy->setRecursiveFilteringEnabled(true);
    m_proxy->setFilterKeyColumn(-1);

    m_headerLabels << tr("Name") << tr("Comment");
    m_model->setHorizontalHeaderLabels(m_headerLabels);
    QHeaderView* header = m_tree->header();
    header->setStretchLastSection(true);

    auto* nameDelegate = new VNItemDelegate(m_tree);
    nameDelegate->setCheckIndicator(true);
    nameDelegate->setCheckIndicatorMargins(0, 0, 6, 0);
    nameDelegate->setCheckIndicatorAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_tree->setItemDelegateForColumn(0, nameDelegate);
    auto* commentDelegate = new VNItemDelegate(m_tree);
    commentDelegate->m_alignment = Qt::AlignLeft | Qt::AlignVCenter;
    commentDelegate->updateLeftIconIndentationUpdateHandler();
    m_tree->setItemDelegateForColumn(1, commentDelegate);

    header->resizeSection(1, 20);
    m_tree->setModel(m_proxy);
    m_tree->setHeader(header);
    // The sections exist only now; names need more room than the default width.
    header->resizeSection(0, 300);
    m_tree->expandAll();
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
}

void TestNewAssemblyImport::fillModel()
{
    const struct
    {
        const char* name;
        const char* child;
        int count;
    } groups[] = {{QT_TR_NOOP("Geometries"), QT_TR_NOOP("Geometry"), 4},
                  {QT_TR_NOOP("Curves"), QT_TR_NOOP("Curve"), 3},
                  {QT_TR_NOOP("Points"), QT_TR_NOOP("Point"), 5},
                  {QT_TR_NOOP("Coordinate Systems"), QT_TR_NOOP("Coordinate System"), 2}};
    for (const auto& group : groups) {
        auto* parentItem = new QStandardItem(tr(group.name));
        m_model->appendRow({parentItem, new QStandardItem});
        for (int i = 0; i < group.count; ++i) {
            const QString name = tr(group.child) + QStringLiteral(" %0").arg(i);
            parentItem->appendRow({new QStandardItem(name), new QStandardItem(tr("Enter Comment"))});
        }
    }
    m_tree->expandAll();
}

void TestNewAssemblyImport::onSearchTextChanged(const QString& text)
{
    m_proxy->setFilterRegExp(QRegExp(text, Qt::CaseInsensitive, QRegExp::RegExp));
}

void TestNewAssemblyImport::onResetSearchBtn()
{
    m_searchField->setText(QString());
}

void TestNewAssemblyImport::onCommentUpdated(QStandardItem* item)
{
    Q_UNUSED(item)
}

void TestNewAssemblyImport::onCustomContextMenuRequested(const QPoint& position)
{
    auto* menu = new TreeViewContextMenu(m_tree, position);
    const QModelIndex sourceIndex = m_proxy->mapToSource(m_tree->indexAt(position));
    QStandardItem* item = m_model->itemFromIndex(sourceIndex.sibling(sourceIndex.row(), 0));

    auto* addAction = new QAction(tr("Add to Group"), this);
    auto* removeAction = new QAction(tr("Remove from Group"), menu);
    // The add action belongs to the dialog; the menu frees it when it closes.
    connect(menu, &QObject::destroyed, addAction, &QObject::deleteLater);
    connect(addAction, &QAction::triggered, this, [this, item] { addToGroup(item); });
    connect(removeAction, &QAction::triggered, this, [this, item] { removeFromGroup(item); });
    menu->appendAction(addAction, true);
    menu->appendAction(removeAction, true);
    menu->show();
}

// The clicked row is taken out of its parent, not copied, so the items live on inside the group.
void TestNewAssemblyImport::addToGroup(QStandardItem* item)
{
    if (!item || !item->parent())
        return;
    QStandardItem* parentItem = item->parent();
    auto* group = new QStandardItem(tr("Group"));
    parentItem->appendRow({group, new QStandardItem});
    const QList<QStandardItem*> row = parentItem->takeRow(item->row());
    group->appendRow(row);
    m_tree->expandAll();
}

void TestNewAssemblyImport::removeFromGroup(QStandardItem* item)
{
    if (!item || !item->parent())
        return;
    item->parent()->removeRow(item->row());
}
