#include "VNItemDelegate.h"

#include "VNDoubleSpinBox.h"
#include "VNDoubleSpinBoxData.h"
#include "VNItemDataRoles.h"
#include "VNStatusPalette.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {
const int treeLineStep = 12;
const int statusBarWidth = 3;
const QColor readOnlyFill(0xf3, 0xf3, 0xf3);
const QColor treeLineColor(0x9a, 0xa4, 0xb0);
const QColor separatorColor(0xdc, 0xe0, 0xe5);
const QColor fieldFrameColor(0xb4, 0xbb, 0xc4);
const int fieldWidths[] = {40, 70, 100, 140};
const int sigmaSize = 13;
const int markSize = 4;
const int colorBoxSize = 12;

// The corner marks, laid out from the right: one for each status bit that has a look of its own,
// and one for the standard bits together, in the colour of the standard look they make.
const int markedBits[] = {
    VNWidgetStatus::userEdit,
    VNWidgetStatus::needInput,
    VNWidgetStatus::different,
    VNWidgetStatus::compareDifferent,
    VNWidgetStatus::standardEnabled | VNWidgetStatus::standardDefined | VNWidgetStatus::standardDefault |
        VNWidgetStatus::standardDefaultChanged | VNWidgetStatus::standardDeviate | VNWidgetStatus::standardLocked,
};

void paintEye(QPainter* painter, const QRect& rect, bool open, const QColor& color)
{
    const QRectF r = QRectF(rect).adjusted(0.5, rect.height() * 0.2, -0.5, -rect.height() * 0.2);
    QPainterPath eye;
    eye.moveTo(r.left(), r.center().y());
    eye.quadTo(r.center().x(), r.top() - r.height() * 0.5, r.right(), r.center().y());
    eye.quadTo(r.center().x(), r.bottom() + r.height() * 0.5, r.left(), r.center().y());
    painter->setPen(QPen(color, 1.2));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(eye);
    if (open) {
        painter->setBrush(color);
        painter->drawEllipse(r.center(), r.height() * 0.3, r.height() * 0.3);
    } else {
        painter->drawLine(QPointF(r.left() + 1, r.bottom() + 1), QPointF(r.right() - 1, r.top() - 1));
    }
}

const QStyle* styleOf(const QStyleOptionViewItem& option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}
} // namespace

VNItemDelegate::VNItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

void VNItemDelegate::setCheckIndicator(bool visible)
{
    m_checkIndicator = visible;
}

void VNItemDelegate::updateLeftIconIndentationUpdateHandler()
{
    m_indentForLeftIcon = true;
}

void VNItemDelegate::setCheckIndicatorMargins(int left, int top, int right, int bottom)
{
    m_checkMargins = QMargins(left, top, right, bottom);
}

void VNItemDelegate::setCheckIndicatorAlignment(Qt::Alignment alignment)
{
    m_checkAlignment = alignment;
}

void VNItemDelegate::setDrawValueBackground(bool draw)
{
    m_drawValueBackground = draw;
}

void VNItemDelegate::setValueFieldWidth(int width)
{
    m_valueFieldWidth = qBound(-1, width, 3);
}

QRect VNItemDelegate::valueFieldRect(const QRect& cellRect) const
{
    QRect field = cellRect.adjusted(1, 1, -1, -1);
    if (m_valueFieldWidth >= 0)
        field.setLeft(qMax(field.left(), field.right() - fieldWidths[m_valueFieldWidth]));
    return field;
}

QRect VNItemDelegate::sigmaRect(const QRect& cellRect)
{
    return QRect(cellRect.right() - sigmaSize - 1, cellRect.center().y() - sigmaSize / 2, sigmaSize, sigmaSize);
}

bool VNItemDelegate::hasValue(const QModelIndex& index)
{
    return index.data(VNItemDataRoles::ValueRole).isValid() ||
           index.data(Qt::EditRole).canConvert<VNDoubleSpinBoxData>();
}

QString VNItemDelegate::valueText(const QModelIndex& index)
{
    const QVariant data = index.data(Qt::EditRole);
    if (data.userType() == qMetaTypeId<VNDoubleSpinBoxData>())
        return data.value<VNDoubleSpinBoxData>().text();
    const QVariant value = index.data(VNItemDataRoles::ValueRole);
    if (!value.isValid())
        return {};
    VNDoubleSpinBoxData number;
    number.value = value.toDouble();
    number.unit = index.data(VNItemDataRoles::UnitRole).toString();
    const QVariant decimals = index.data(VNItemDataRoles::DecimalsRole);
    if (decimals.isValid())
        number.decimals = decimals.toInt();
    return number.text();
}

bool VNItemDelegate::isActive(const QModelIndex& index)
{
    const QVariant active = index.data(VNItemDataRoles::ActiveRole);
    return !active.isValid() || active.toBool();
}

bool VNItemDelegate::isReadOnly(const QModelIndex& index)
{
    return index.data(VNItemDataRoles::ReadOnlyRole).toBool();
}

QRect VNItemDelegate::checkIndicatorRect(const QStyleOptionViewItem& option) const
{
    const QStyle* style = styleOf(option);
    const QSize size(style->pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style->pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    return QStyle::alignedRect(option.direction, m_checkAlignment, size, option.rect.marginsRemoved(m_checkMargins));
}

void VNItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    if (!index.data(Qt::TextAlignmentRole).isValid())
        opt.displayAlignment = m_alignment;
    const QVariant elide = index.data(VNItemDataRoles::ElideModeRole);
    if (elide.isValid())
        opt.textElideMode = static_cast<Qt::TextElideMode>(elide.toInt());
    if (!isActive(index)) {
        opt.state &= ~QStyle::State_Enabled;
        opt.palette.setCurrentColorGroup(QPalette::Disabled);
        opt.palette.setColor(QPalette::Text, opt.palette.color(QPalette::Disabled, QPalette::Text));
    }
    paintCellBackground(painter, opt.rect, index);
    if (m_indentForLeftIcon && !(opt.features & QStyleOptionViewItem::HasDecoration))
        opt.rect.setLeft(opt.rect.left() + opt.decorationSize.width() + 4);

    const int treeLine = index.data(VNItemDataRoles::TreeLineRole).toInt();
    if (treeLine & Connected)
        opt.rect.setLeft(opt.rect.left() + paintTreeLines(painter, opt, treeLine));

    const bool hasCheck = m_checkIndicator && (opt.features & QStyleOptionViewItem::HasCheckIndicator);
    opt.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    if (hasCheck) {
        const QRect check = checkIndicatorRect(opt);
        paintCheckIndicator(painter, opt, opt.checkState, index.data(VNItemDataRoles::CheckStyleRole).toInt());
        if (m_checkAlignment & Qt::AlignRight)
            opt.rect.setRight(check.left() - m_checkMargins.left());
        else if (m_checkAlignment & Qt::AlignLeft)
            opt.rect.setLeft(check.right() + m_checkMargins.right());
    }
    paintDecorations(painter, opt, index);
    styleOf(opt)->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
    paintStatusMarks(painter, option.rect, index.data(VNItemDataRoles::StatusRole).toInt());

    if (m_drawColumnSeparators) {
        painter->save();
        painter->setPen(separatorColor);
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
        painter->restore();
    }
}

void VNItemDelegate::paintCellBackground(QPainter* painter, const QRect& rect, const QModelIndex& index)
{
    const VNStatusPalette::Colors colors = VNStatusPalette::colors(
        VNWidgetStatus::StatusFlags(index.data(VNItemDataRoles::StatusRole).toInt()), isActive(index));
    if (colors.isValid()) {
        painter->fillRect(rect, colors.fill);
        painter->fillRect(QRect(rect.left(), rect.top(), statusBarWidth, rect.height()), colors.frame);
    } else if (isReadOnly(index)) {
        painter->fillRect(rect, readOnlyFill);
    }
}

// The steps between the check indicator and the text: sigma marker, colour box, right icon and
// the value field; each takes its room from opt.rect.
void VNItemDelegate::paintDecorations(QPainter* painter, QStyleOptionViewItem& opt, const QModelIndex& index) const
{
    const int status = index.data(VNItemDataRoles::StatusRole).toInt();
    if (status & VNWidgetStatus::sigmaAvailable) {
        paintSigma(painter, sigmaRect(opt.rect), status);
        opt.rect.setRight(sigmaRect(opt.rect).left() - 2);
    }
    const QVariant color = index.data(VNItemDataRoles::ColorBoxRole);
    if (color.canConvert<QColor>() && color.value<QColor>().isValid()) {
        const QRect box(opt.rect.left() + 3, opt.rect.center().y() - colorBoxSize / 2, colorBoxSize, colorBoxSize);
        painter->save();
        painter->setPen(QColor(0x60, 0x60, 0x60));
        painter->setBrush(color.value<QColor>());
        painter->drawRect(box.adjusted(0, 0, -1, -1));
        painter->restore();
        opt.rect.setLeft(box.right() + 4);
    }
    if (index.data(VNItemDataRoles::IconRightRole).toBool() && (opt.features & QStyleOptionViewItem::HasDecoration)) {
        const QRect iconRect(opt.rect.right() - opt.decorationSize.width() - 2,
                             opt.rect.center().y() - opt.decorationSize.height() / 2, opt.decorationSize.width(),
                             opt.decorationSize.height());
        opt.icon.paint(painter, iconRect, Qt::AlignCenter,
                       (opt.state & QStyle::State_Enabled) ? QIcon::Normal : QIcon::Disabled);
        opt.features &= ~QStyleOptionViewItem::HasDecoration;
        opt.icon = QIcon();
        opt.rect.setRight(iconRect.left() - 2);
    }
    if (hasValue(index)) {
        opt.text = valueText(index);
        opt.features |= QStyleOptionViewItem::HasDisplay;
        opt.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
    if ((index.flags() & Qt::ItemIsEditable) && !(opt.features & QStyleOptionViewItem::HasCheckIndicator)) {
        opt.rect = valueFieldRect(opt.rect);
        if (m_drawValueBackground && !isReadOnly(index)) {
            painter->save();
            painter->setPen(fieldFrameColor);
            painter->setBrush(Qt::white);
            painter->drawRect(opt.rect.adjusted(0, 0, -1, -1));
            painter->restore();
        }
        opt.rect.adjust(2, 0, -2, 0);
    }
}

void VNItemDelegate::paintSigma(QPainter* painter, const QRect& rect, int status) const
{
    // The marker takes the colour of the sigma bar a field shows; a changed standard has its own dot.
    using SigmaLook = VNStatusPalette::SigmaLook;
    const VNWidgetStatus::StatusFlags flags(status);
    const QColor color = VNStatusPalette::sigmaColor(
        VNStatusPalette::statusLook(flags & ~VNWidgetStatus::StatusFlags(VNWidgetStatus::sigmaStandardChanged)).sigma);
    const bool on = status & VNWidgetStatus::sigmaOn;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, 1));
    painter->setBrush(on ? color : QColor(Qt::white));
    painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    QFont font = painter->font();
    font.setPixelSize(rect.height() - 2);
    painter->setFont(font);
    painter->setPen(on ? QColor(Qt::white) : color);
    painter->drawText(rect, Qt::AlignCenter, QString(QChar(0x03c3)));
    if (status & VNWidgetStatus::sigmaStandardChanged) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(VNStatusPalette::sigmaColor(SigmaLook::standardChanged));
        painter->drawEllipse(QRectF(rect.right() - 3.5, rect.top() - 1.5, 5, 5));
    }
    painter->restore();
}

void VNItemDelegate::paintStatusMarks(QPainter* painter, const QRect& rect, int status)
{
    int right = rect.right() - 1;
    for (int bits : markedBits) {
        const QColor color = VNStatusPalette::markColor(VNWidgetStatus::StatusFlags(status & bits));
        if (!color.isValid())
            continue;
        painter->fillRect(QRect(right - markSize + 1, rect.top() + 1, markSize, markSize), color);
        right -= markSize + 1;
    }
}

// Returns the width taken by the lines, by which the cell's contents move right.
int VNItemDelegate::paintTreeLines(QPainter* painter, const QStyleOptionViewItem& option, int kind) const
{
    const QRect rect = option.rect;
    const int outerX = rect.left() + treeLineStep / 2;
    const int x = (kind & Nested) ? outerX + treeLineStep : outerX;
    const int middle = rect.center().y();
    painter->save();
    painter->setPen(QPen(treeLineColor, 1));
    if (kind & Nested)
        painter->drawLine(outerX, rect.top(), outerX, rect.bottom());
    painter->drawLine(x, rect.top(), x, (kind & LastSibling) ? middle : rect.bottom());
    painter->drawLine(x, middle, x + treeLineStep - 3, middle);
    painter->restore();
    return x - rect.left() + treeLineStep;
}

void VNItemDelegate::paintCheckIndicator(QPainter* painter, const QStyleOptionViewItem& option, Qt::CheckState state,
                                         int checkStyle) const
{
    if (checkStyle == 2) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        paintEye(painter, checkIndicatorRect(option), state != Qt::Unchecked, option.palette.color(QPalette::Text));
        painter->restore();
        return;
    }
    QStyleOptionViewItem check = option;
    check.rect = checkIndicatorRect(option);
    check.state &= ~(QStyle::State_On | QStyle::State_Off | QStyle::State_NoChange);
    check.state |= state == Qt::Checked            ? QStyle::State_On
                   : state == Qt::PartiallyChecked ? QStyle::State_NoChange
                                                   : QStyle::State_Off;
    if (checkStyle == 1) {
        QStyleOptionButton radio;
        radio.QStyleOption::operator=(check);
        styleOf(option)->drawPrimitive(QStyle::PE_IndicatorRadioButton, &radio, painter, option.widget);
        return;
    }
    styleOf(option)->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &check, painter, option.widget);
}

QSize VNItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const int treeLine = index.data(VNItemDataRoles::TreeLineRole).toInt();
    if (treeLine & Connected)
        size.rwidth() += (treeLine & Nested) ? 3 * treeLineStep : 2 * treeLineStep;
    size.rwidth() += m_checkMargins.left() + m_checkMargins.right();
    return size;
}

QWidget* VNItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    if (!isActive(index) || isReadOnly(index))
        return nullptr;
    if (!hasValue(index))
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto* spinBox = new VNDoubleSpinBox(parent);
    spinBox->setFrame(false);
    return spinBox;
}

void VNItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* spinBox = qobject_cast<VNDoubleSpinBox*>(editor);
    if (!spinBox || !hasValue(index)) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    const QVariant data = index.data(Qt::EditRole);
    VNDoubleSpinBoxData number;
    if (data.userType() == qMetaTypeId<VNDoubleSpinBoxData>()) {
        number = data.value<VNDoubleSpinBoxData>();
    } else {
        number.value = index.data(VNItemDataRoles::ValueRole).toDouble();
        number.unit = index.data(VNItemDataRoles::UnitRole).toString();
        if (index.data(VNItemDataRoles::DecimalsRole).isValid())
            number.decimals = index.data(VNItemDataRoles::DecimalsRole).toInt();
    }
    spinBox->setDecimals(number.decimals);
    spinBox->setRange(number.minimum, number.maximum);
    // The field knows the unit, so that typed values in other units are converted.
    spinBox->setValueUnit(number.unit);
    spinBox->setDisplayUnit(number.unit, true);
    spinBox->setValue(number.value);
}

void VNItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    auto* spinBox = qobject_cast<VNDoubleSpinBox*>(editor);
    if (!spinBox || !hasValue(index)) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    const QVariant data = index.data(Qt::EditRole);
    if (data.userType() == qMetaTypeId<VNDoubleSpinBoxData>()) {
        auto number = data.value<VNDoubleSpinBoxData>();
        number.value = spinBox->value();
        model->setData(index, QVariant::fromValue(number), Qt::EditRole);
    } else {
        model->setData(index, spinBox->value(), VNItemDataRoles::ValueRole);
    }
}

bool VNItemDelegate::handleSigmaClick(QEvent* event, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (!(index.data(VNItemDataRoles::StatusRole).toInt() & VNWidgetStatus::sigmaAvailable))
        return false;
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease &&
        event->type() != QEvent::MouseButtonDblClick)
        return false;
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton || !sigmaRect(option.rect).contains(mouse->pos()))
        return false;
    if (event->type() == QEvent::MouseButtonRelease)
        emit sigmaClicked(index, qobject_cast<QAbstractItemView*>(const_cast<QWidget*>(option.widget)));
    return true;
}

bool VNItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                 const QModelIndex& index)
{
    if (handleSigmaClick(event, option, index))
        return true;
    const Qt::ItemFlags flags = model->flags(index);
    if (!isActive(index) || isReadOnly(index) || !(flags & Qt::ItemIsUserCheckable) || !(flags & Qt::ItemIsEnabled) ||
        !m_checkIndicator)
        return false;
    const QVariant value = index.data(Qt::CheckStateRole);
    if (!value.isValid())
        return false;
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const int treeLine = index.data(VNItemDataRoles::TreeLineRole).toInt();
    if (treeLine & Connected)
        opt.rect.setLeft(opt.rect.left() + ((treeLine & Nested) ? 2 : 1) * treeLineStep + treeLineStep / 2);
    if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton || !checkIndicatorRect(opt).contains(mouse->pos()))
            return false;
        if (event->type() == QEvent::MouseButtonDblClick)
            return true;
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Space && key != Qt::Key_Select)
            return false;
    } else {
        return false;
    }
    const auto state = static_cast<Qt::CheckState>(value.toInt());
    Qt::CheckState next = state == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    if ((flags & Qt::ItemIsUserTristate) && state == Qt::Unchecked)
        next = Qt::PartiallyChecked;
    else if ((flags & Qt::ItemIsUserTristate) && state == Qt::PartiallyChecked)
        next = Qt::Checked;
    return model->setData(index, next, Qt::CheckStateRole);
}
