#pragma once

#include "vnwidgets_export.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QVector>

// The entries of one menu-button cell: texts with an optional additional text shown on the right
// of the entry, each enabled or not, and the default entry that the button's face shows and a
// click on it triggers. Stored as a pointer in item data under VNMenuButtonDelegate's role.
class VNWIDGETS_EXPORT VNMenuButtonDelegateData : public QObject
{
    Q_OBJECT

public:
    explicit VNMenuButtonDelegateData(QObject* parent = nullptr);

    // Appends an entry and returns its number.
    int addMenuItem(const QString& text, const QString& additionalText = QString());
    void removeMenuItem(int item);
    int count() const { return m_items.size(); }
    QString text(int item) const;
    QString additionalText(int item) const;

    void setMenuItemEnabled(int item, bool enabled);
    bool isMenuItemEnabled(int item) const;
    // -1 for none: the button then only opens the menu.
    void setDefaultItem(int item);
    int defaultItem() const { return m_defaultItem; }

private:
    struct Item
    {
        QString text;
        QString additionalText;
        bool enabled = true;
    };
    QVector<Item> m_items;
    int m_defaultItem = -1;
};

Q_DECLARE_METATYPE(VNMenuButtonDelegateData*)
Q_DECLARE_METATYPE(QList<VNMenuButtonDelegateData*>)
