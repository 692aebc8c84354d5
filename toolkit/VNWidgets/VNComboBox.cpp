#include "VNComboBox.h"

#include "VNComboBoxPopupDelegate_p.h"
#include "VNFocusMark_p.h"
#include "VNStatusPalette.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace {
const int statusBarWidth = 4;
}

VNComboBoxPopupDelegate::VNComboBoxPopupDelegate(VNComboBox* combo)
    : QStyledItemDelegate(combo)
    , m_combo(combo)
{}

bool VNComboBoxPopupDelegate::isSeparator(const QModelIndex& index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
}

void VNComboBoxPopupDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (m_combo->comboBoxStyle() == VNComboBox::TextOnly) {
        option->icon = QIcon();
        option->features &= ~QStyleOptionViewItem::HasDecoration;
    } else if (m_combo->comboBoxStyle() == VNComboBox::IconOnly && !option->icon.isNull()) {
        option->text.clear();
        option->features &= ~QStyleOptionViewItem::HasDisplay;
    }
}

void VNComboBoxPopupDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    if (isSeparator(index)) {
        const int y = option.rect.center().y();
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->drawLine(option.rect.left() + 4, y, option.rect.right() - 4, y);
        return;
    }
    QStyleOptionViewItem shifted = option;
    shifted.rect.adjust(statusBarWidth + 2, 0, 0, 0);
    QStyledItemDelegate::paint(painter, shifted, index);
    const QColor color =
        VNStatusPalette::markColor(VNWidgetStatus::StatusFlags(index.data(VNComboBox::WidgetStatusRole).toInt()));
    if (color.isValid())
        painter->fillRect(
            QRect(option.rect.left() + 1, option.rect.top() + 2, statusBarWidth, option.rect.height() - 4), color);
}

QSize VNComboBoxPopupDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (isSeparator(index))
        return QSize(10, 7);
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.rwidth() += statusBarWidth + 2;
    return size;
}

VNComboBox::VNComboBox(QWidget* parent)
    : QComboBox(parent)
    , VNWidgetInterface(this)
{}

void VNComboBox::showPopup()
{
    if (m_popupDelegatePending) {
        m_popupDelegatePending = false;
        // A delegate or view its user set before the first popup stays; only Qt's default goes.
        const QAbstractItemDelegate* current = itemDelegate();
        if (current->inherits("QComboMenuDelegate") || current->inherits("QComboBoxDelegate"))
            setItemDelegate(new VNComboBoxPopupDelegate(this));
    }
    QComboBox::showPopup();
}

void VNComboBox::setPopupView(QAbstractItemView* view)
{
    m_popupDelegatePending = false;
    setView(view);
}

void VNComboBox::setComboBoxStyle(ComboStyle style)
{
    if (style == m_style)
        return;
    m_style = style;
    updateGeometry();
    update();
    if (view())
        view()->viewport()->update();
}

void VNComboBox::setItemWidgetStatus(const int& index, const QFlags<VNWidgetStatus::Status>& status)
{
    if (index < 0 || index >= count())
        return;
    setItemData(index, int(status), WidgetStatusRole);
    if (m_observing && index == currentIndex())
        takeStatusOfCurrent();
}

VNWidgetStatus::StatusFlags VNComboBox::itemWidgetStatus(int index) const
{
    return VNWidgetStatus::StatusFlags(itemData(index, WidgetStatusRole).toInt());
}

VNWidgetStatus::StatusFlags VNComboBox::getWidgetStatusOfCurrent() const
{
    return itemWidgetStatus(currentIndex());
}

void VNComboBox::observeItemsForWidgetStatus()
{
    if (!m_observing) {
        m_observing = true;
        m_ownStatus = getWidgetStatus();
        connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &VNComboBox::takeStatusOfCurrent);
        connect(model(), &QAbstractItemModel::dataChanged, this, &VNComboBox::takeStatusOfCurrent);
    }
    takeStatusOfCurrent();
}

// An observing box always publishes its look, "undef" included, so that it shows which item
// status it follows. Without a current item it shows the status it had of its own.
void VNComboBox::takeStatusOfCurrent()
{
    const VNWidgetStatus::StatusFlags status = currentIndex() < 0 ? m_ownStatus : getWidgetStatusOfCurrent();
    setWidgetStatus(status);
    VNWidgetStatus::setStatusProperty(this, status);
}

QSize VNComboBox::sizeHint() const
{
    QSize hint = QComboBox::sizeHint();
    if (m_style == IconOnly && !isEditable()) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        option.currentText.clear();
        const QSize content(iconSize().width() + 4, hint.height());
        hint.setWidth(style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this).width());
    }
    return hint;
}

QSize VNComboBox::minimumSizeHint() const
{
    return m_style == IconOnly ? sizeHint() : QComboBox::minimumSizeHint();
}

void VNComboBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (m_style == TextOnly)
        option.currentIcon = QIcon();
    else if (m_style == IconOnly && !option.currentIcon.isNull() && !isEditable())
        option.currentText.clear();
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    if (showsFocusInsideFrame())
        VNFocusMark::paint(painter,
                           style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this));
}

// The style sheet turns a focused box's frame blue; a status frame keeps its colour and a box
// without a frame has none to turn, so these show the focus as buttons do, inside.
bool VNComboBox::showsFocusInsideFrame() const
{
    if (!hasFocus() || isEditable())
        return false;
    const VNStatusPalette::StatusLook shown = VNStatusPalette::statusLook(getWidgetStatus());
    return !hasFrame() || shown.look != VNStatusPalette::Look::undef ||
           shown.sigma != VNStatusPalette::SigmaLook::none || shown.compare;
}
