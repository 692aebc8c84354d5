#include "VNNameSuggestionDelegate.h"

#include "VNItemDataRoles.h"
#include "VNItemDelegate.h"

#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QPainter>

namespace {
const QColor suggestionColor(0x7a, 0x84, 0x90);
}

const int VNNameSuggestionDelegate::s_suggestionRole = Qt::UserRole + 71;

VNNameSuggestionDelegate::VNNameSuggestionDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

void VNNameSuggestionDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    if (!VNItemDelegate::isActive(index))
        opt.state &= ~QStyle::State_Enabled;
    const QString name = opt.text;
    const QString suggestion = index.data(s_suggestionRole).toString();
    opt.text.clear();
    VNItemDelegate::paintCellBackground(painter, option.rect, index);
    QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);

    const QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &opt, opt.widget).adjusted(2, 0, -2, 0);
    const QPalette::ColorGroup group = (opt.state & QStyle::State_Enabled) ? QPalette::Normal : QPalette::Disabled;
    painter->save();
    painter->setPen(
        opt.palette.color(group, (opt.state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text));
    const QFontMetrics metrics(opt.font);
    const QString shownName = metrics.elidedText(name, Qt::ElideRight, text.width());
    painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter, shownName);
    const int nameWidth = metrics.horizontalAdvance(shownName) + metrics.horizontalAdvance(QLatin1Char(' ')) * 2;
    QFont italic = opt.font;
    italic.setItalic(true);
    painter->setFont(italic);
    painter->setPen(suggestionColor);
    const QRect rest = text.adjusted(nameWidth, 0, 0, 0);
    painter->drawText(rest, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(italic).elidedText(suggestion, Qt::ElideMiddle, rest.width()));
    painter->restore();
    VNItemDelegate::paintStatusMarks(painter, option.rect, index.data(VNItemDataRoles::StatusRole).toInt());
}

QWidget* VNNameSuggestionDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                                const QModelIndex& index) const
{
    if (!VNItemDelegate::isActive(index) || VNItemDelegate::isReadOnly(index))
        return nullptr;
    auto* edit = new QLineEdit(parent);
    const QString suggestion = index.data(s_suggestionRole).toString();
    edit->setPlaceholderText(suggestion);
    auto* completer = new QCompleter(QStringList{suggestion}, edit);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    edit->setCompleter(completer);
    return edit;
}

void VNNameSuggestionDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    static_cast<QLineEdit*>(editor)->setText(index.data(Qt::DisplayRole).toString());
}

void VNNameSuggestionDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const QString text = static_cast<QLineEdit*>(editor)->text().trimmed();
    if (!text.isEmpty())
        model->setData(index, text, Qt::EditRole);
}
