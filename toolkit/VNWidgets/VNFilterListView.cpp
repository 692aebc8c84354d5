#include "VNFilterListView.h"

#include "VNLineEdit.h"

#include <QListView>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QVBoxLayout>

VNFilterListView::VNFilterListView(QWidget* parent)
    : QWidget(parent)
    , VNWidgetInterface(this)
    , m_filter(new VNLineEdit(this))
    , m_view(new QListView(this))
    , m_model(new QStringListModel(this))
    , m_proxy(new QSortFilterProxyModel(this))
{
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setClearButtonEnabled(true);
    m_proxy->setSourceModel(m_model);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_view->setModel(m_proxy);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_filter);
    layout->addWidget(m_view);
    setFocusProxy(m_filter);
    connect(m_filter, &QLineEdit::textChanged, m_proxy, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_view, &QListView::activated, this,
            [this](const QModelIndex& index) { emit itemActivated(index.data().toString()); });
}

void VNFilterListView::setItems(const QStringList& items)
{
    m_model->setStringList(items);
}

void VNFilterListView::addItem(const QString& item)
{
    const int row = m_model->rowCount();
    m_model->insertRows(row, 1);
    m_model->setData(m_model->index(row), item);
}

QStringList VNFilterListView::items() const
{
    return m_model->stringList();
}

QStringList VNFilterListView::visibleItems() const
{
    QStringList visible;
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        visible << m_proxy->index(row, 0).data().toString();
    return visible;
}

QString VNFilterListView::filterText() const
{
    return m_filter->text();
}

void VNFilterListView::setFilterText(const QString& text)
{
    m_filter->setText(text);
}

void VNFilterListView::statusChanged()
{
    m_filter->setWidgetStatus(getWidgetStatus());
}
