#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QWidget>

class QListView;
class QSortFilterProxyModel;
class QStringListModel;
class VNLineEdit;

// A list with a filter field above it: typing shows only the items that contain the typed text,
// ignoring case. Activating an item (double click, Enter) emits itemActivated() with its text.
// The status shows on the filter field, where the user types.
class VNWIDGETS_EXPORT VNFilterListView : public QWidget, public VNWidgetInterface
{
    Q_OBJECT

public:
    explicit VNFilterListView(QWidget* parent = nullptr);

    void setItems(const QStringList& items);
    void addItem(const QString& item);
    QStringList items() const;
    // The items the filter lets through, in list order.
    QStringList visibleItems() const;

    QString filterText() const;
    void setFilterText(const QString& text);

    VNLineEdit* filterEdit() const { return m_filter; }
    QListView* listView() const { return m_view; }

signals:
    void itemActivated(const QString& item);

protected:
    void statusChanged() override;

private:
    VNLineEdit* m_filter;
    QListView* m_view;
    QStringListModel* m_model;
    QSortFilterProxyModel* m_proxy;
};
