#include "VNComboBoxDelegate.h"

#include "VNItemDataRoles.h"
#include "VNItemDelegate.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QStyleOptionComboBox>

VNComboBoxDelegate::VNComboBoxDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

void VNComboBoxDelegate::setItems(const QStringList& texts, const QList<QIcon>& icons)
{
    m_model = nullptr;
    m_texts = texts;
    m_icons = icons;
}

void VNComboBoxDelegate::setModel(QAbstractItemModel* model)
{
    m_model = model;
    m_texts.clear();
    m_icons.clear();
}

int VNComboBoxDelegate::count() const
{
    return m_model ? m_model->rowCount() : m_texts.size();
}

QString VNComboBoxDelegate::itemText(int row) const
{
    return m_model ? m_model->index(row, 0).data(Qt::DisplayRole).toString() : m_texts.value(row);
}

QIcon VNComboBoxDelegate::itemIcon(int row) const
{
    return m_model ? m_model->index(row, 0).data(Qt::DecorationRole).value<QIcon>() : m_icons.value(row);
}

int VNComboBoxDelegate::findText(const QString& text) const
{
    for (int row = 0; row < count(); ++row) {
        if (itemText(row) == text)
            return row;
    }
    return -1;
}

void VNComboBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    cell.icon = QIcon();
    cell.features &= ~(QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration);
    VNItemDelegate::paintCellBackground(painter, option.rect, index);
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, option.widget);

    QStyleOptionComboBox combo;
    combo.rect = option.rect.adjusted(1, 1, -1, -1);
    combo.palette = option.palette;
    combo.state = QStyle::State_Active;
    if (VNItemDelegate::isActive(index) && (index.flags() & Qt::ItemIsEnabled))
        combo.state |= QStyle::State_Enabled;
    combo.editable = false;
    combo.frame = true;
    combo.currentText = index.data(Qt::DisplayRole).toString();
    combo.currentIcon = itemIcon(findText(combo.currentText));
    combo.iconSize = QSize(16, 16);
    style->drawComplexControl(QStyle::CC_ComboBox, &combo, painter, option.widget);
    style->drawControl(QStyle::CE_ComboBoxLabel, &combo, painter, option.widget);
    VNItemDelegate::paintStatusMarks(painter, option.rect, index.data(VNItemDataRoles::StatusRole).toInt());
}

QSize VNComboBoxDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    return QSize(size.width() + 40, qMax(size.height(), 24));
}

QWidget* VNComboBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    if (!VNItemDelegate::isActive(index) || VNItemDelegate::isReadOnly(index))
        return nullptr;
    auto* combo = new QComboBox(parent);
    for (int row = 0; row < count(); ++row)
        combo->addItem(itemIcon(row), itemText(row));
    connect(combo, QOverload<int>::of(&QComboBox::activated), this,
            [this, combo] { emit const_cast<VNComboBoxDelegate*>(this)->commitData(combo); });
    return combo;
}

void VNComboBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* combo = static_cast<QComboBox*>(editor);
    combo->setCurrentIndex(combo->findText(index.data(Qt::DisplayRole).toString()));
}

void VNComboBoxDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    model->setData(index, static_cast<QComboBox*>(editor)->currentText(), Qt::EditRole);
}
