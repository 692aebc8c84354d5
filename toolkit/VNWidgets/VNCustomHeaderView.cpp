#include "VNCustomHeaderView.h"

#include "QtCompat.h"

#include "VNItemDataRoles.h"
#include "VNStatusPalette.h"

#include <QAbstractTextDocumentLayout>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QToolTip>

namespace {
const int statusBandWidth = 3;
const int toolTipButtonSize = 14;
const QColor selectedFill(0xcf, 0xe2, 0xf7);
const QColor selectedLine(0x3d, 0x7c, 0xc9);
const QColor mutedText(0x6e, 0x6e, 0x6e);
} // namespace

VNCustomHeaderView::VNCustomHeaderView(Qt::Orientation orientation, QSize sectionPadding, QWidget* parent)
    : QHeaderView(orientation, parent)
    , m_sectionPadding(sectionPadding)
{
    setMouseTracking(true);
    setHighlightSections(false);
    // Toggle and marker columns may be narrower than the style's text-based minimum.
    setMinimumSectionSize(12);
}

void VNCustomHeaderView::setSelectable(bool selectable, int section)
{
    if (selectable)
        m_selectable.insert(section);
    else {
        m_selectable.remove(section);
        m_selected.removeAll(section);
    }
    viewport()->update();
}

bool VNCustomHeaderView::isSelectable(int section) const
{
    if (!m_selectable.contains(section))
        return false;
    return !model() || !model()->headerData(section, orientation(), VNItemDataRoles::ReadOnlyRole).toBool();
}

void VNCustomHeaderView::setSelectedIndexes(const QList<int>& sections)
{
    QList<int> selected;
    for (int section : sections) {
        if (isSelectable(section) && !selected.contains(section))
            selected.append(section);
    }
    if (selected == m_selected)
        return;
    m_selected = selected;
    viewport()->update();
}

QList<int> VNCustomHeaderView::selectedSections() const
{
    return m_selected;
}

bool VNCustomHeaderView::isSectionSelected(int section) const
{
    return m_selected.contains(section);
}

void VNCustomHeaderView::setToolTipButtonText(int section, const QString& text)
{
    if (text.isEmpty())
        m_toolTipButtons.remove(section);
    else
        m_toolTipButtons.insert(section, text);
    viewport()->update();
}

QString VNCustomHeaderView::toolTipButtonText(int section) const
{
    return m_toolTipButtons.value(section);
}

QRect VNCustomHeaderView::toolTipButtonRect(int section) const
{
    if (!m_toolTipButtons.contains(section))
        return {};
    return toolTipButtonRectIn(sectionRect(section));
}

void VNCustomHeaderView::setCheckBoxSection(int section, Qt::Alignment alignment)
{
    m_checkBoxSection = section;
    m_checkBoxAlignment = alignment;
    viewport()->update();
}

void VNCustomHeaderView::setCheckBoxState(Qt::CheckState state)
{
    if (m_checkBoxState == state)
        return;
    m_checkBoxState = state;
    viewport()->update();
}

QRect VNCustomHeaderView::checkBoxRect() const
{
    if (m_checkBoxSection < 0)
        return {};
    return checkBoxRectIn(sectionRect(m_checkBoxSection));
}

void VNCustomHeaderView::setCompareDifferent(bool different)
{
    if (m_compareDifferent == different)
        return;
    m_compareDifferent = different;
    viewport()->update();
}

QRect VNCustomHeaderView::sectionRect(int logicalIndex) const
{
    if (logicalIndex < 0 || logicalIndex >= count() || isSectionHidden(logicalIndex))
        return {};
    const int position = sectionViewportPosition(logicalIndex);
    const int size = sectionSize(logicalIndex);
    if (orientation() == Qt::Horizontal)
        return QRect(position, 0, size, viewport()->height());
    return QRect(0, position, viewport()->width(), size);
}

QRect VNCustomHeaderView::checkBoxRectIn(const QRect& rect) const
{
    QStyleOptionButton option;
    const QRect indicator = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    return QStyle::alignedRect(layoutDirection(), m_checkBoxAlignment, indicator.size(), rect.adjusted(4, 0, -4, 0));
}

QRect VNCustomHeaderView::toolTipButtonRectIn(const QRect& rect) const
{
    return QRect(rect.right() - toolTipButtonSize - 3, rect.center().y() - toolTipButtonSize / 2, toolTipButtonSize,
                 toolTipButtonSize);
}

void VNCustomHeaderView::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    if (!rect.isValid())
        return;
    const bool readOnly = model()->headerData(logicalIndex, orientation(), VNItemDataRoles::ReadOnlyRole).toBool();
    const bool selected = !readOnly && isSectionSelected(logicalIndex);

    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = rect;
    option.section = logicalIndex;
    option.state |= QStyle::State_Enabled;
    if (!isEnabled())
        option.state &= ~QStyle::State_Enabled;
    painter->save();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    if (selected) {
        painter->fillRect(rect.adjusted(0, 0, -1, -1), selectedFill);
        painter->fillRect(orientation() == Qt::Horizontal ? QRect(rect.left(), rect.bottom() - 1, rect.width(), 2)
                                                          : QRect(rect.right() - 1, rect.top(), 2, rect.height()),
                          selectedLine);
    }
    const int status = model()->headerData(logicalIndex, orientation(), VNItemDataRoles::StatusRole).toInt();
    paintStatusBand(painter, rect, status);

    QRect titleRect = rect.adjusted(3, 1, -3, -1);
    if (orientation() == Qt::Vertical && status)
        titleRect.setLeft(titleRect.left() + statusBandWidth);
    if (m_toolTipButtons.contains(logicalIndex)) {
        const QRect button = toolTipButtonRectIn(rect);
        titleRect.setRight(button.left() - 2);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(selectedLine, 1));
        painter->setBrush(Qt::white);
        painter->drawEllipse(button.adjusted(0, 0, -1, -1));
        painter->setPen(selectedLine);
        painter->drawText(button, Qt::AlignCenter, QStringLiteral("?"));
    }
    if (logicalIndex == m_checkBoxSection) {
        QStyleOptionButton check;
        check.rect = checkBoxRectIn(rect);
        check.state = QStyle::State_Enabled;
        if (!isEnabled())
            check.state = QStyle::State_None;
        check.state |= m_checkBoxState == Qt::Checked            ? QStyle::State_On
                       : m_checkBoxState == Qt::PartiallyChecked ? QStyle::State_NoChange
                                                                 : QStyle::State_Off;
        style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &check, painter, this);
        if (m_checkBoxAlignment & Qt::AlignLeft)
            titleRect.setLeft(check.rect.right() + 4);
        else
            titleRect.setRight(check.rect.left() - 4);
    }
    paintTitle(painter, titleRect, logicalIndex, readOnly || !isEnabled());
    painter->restore();
}

void VNCustomHeaderView::paintStatusBand(QPainter* painter, const QRect& rect, int status) const
{
    const QColor color = VNStatusPalette::markColor(VNWidgetStatus::StatusFlags(status));
    if (!color.isValid())
        return;
    if (orientation() == Qt::Horizontal)
        painter->fillRect(QRect(rect.left() + 1, rect.bottom() - statusBandWidth, rect.width() - 2, statusBandWidth),
                          color);
    else
        painter->fillRect(QRect(rect.left(), rect.top() + 1, statusBandWidth, rect.height() - 2), color);
}

void VNCustomHeaderView::paintTitle(QPainter* painter, const QRect& rect, int logicalIndex, bool muted) const
{
    const QAbstractItemModel* headerModel = model();
    QString text = headerModel->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString();
    const QVariant alignmentData = headerModel->headerData(logicalIndex, orientation(), Qt::TextAlignmentRole);
    const Qt::Alignment alignment = alignmentData.isValid() ? Qt::Alignment(alignmentData.toInt()) : defaultAlignment();
    QRect textRect = rect;
    const QIcon icon = qvariant_cast<QIcon>(headerModel->headerData(logicalIndex, orientation(), Qt::DecorationRole));
    if (!icon.isNull()) {
        const QRect iconRect(textRect.left(), textRect.center().y() - 8, 16, 16);
        icon.paint(painter, iconRect);
        textRect.setLeft(iconRect.right() + 4);
    }
    const QColor color = muted ? mutedText : palette().color(QPalette::ButtonText);
    if (headerModel->headerData(logicalIndex, orientation(), VNItemDataRoles::RichTextRole).toBool()) {
        QTextDocument& document = *richTextDocument(text);
        const QSizeF size = document.size();
        const QRect target = QStyle::alignedRect(layoutDirection(), alignment, size.toSize(), textRect);
        painter->save();
        painter->setClipRect(textRect);
        painter->translate(target.topLeft());
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, color);
        document.documentLayout()->draw(painter, context);
        painter->restore();
        return;
    }
    painter->setPen(color);
    // A clipped title reads as a different word ("ath" for "Path 1"); an elided one does not.
    const Qt::TextElideMode elideMode = textElideMode() == Qt::ElideNone ? Qt::ElideRight : textElideMode();
    text = fontMetrics().elidedText(text, elideMode, textRect.width());
    painter->drawText(textRect, int(alignment), text);
}

QTextDocument* VNCustomHeaderView::richTextDocument(const QString& html) const
{
    std::shared_ptr<QTextDocument>& cached = m_richTextCache[html];
    if (!cached || cached->defaultFont() != font()) {
        if (m_richTextCache.size() > 1000) {
            m_richTextCache.clear();
            return richTextDocument(html);
        }
        cached = std::make_shared<QTextDocument>();
        cached->setDefaultFont(font());
        cached->setDocumentMargin(0);
        cached->setHtml(html);
    }
    return cached.get();
}

QSize VNCustomHeaderView::sectionSizeFromContents(int logicalIndex) const
{
    QSize size = QHeaderView::sectionSizeFromContents(logicalIndex);
    if (model() && model()->headerData(logicalIndex, orientation(), VNItemDataRoles::RichTextRole).toBool()) {
        const QTextDocument* document =
            richTextDocument(model()->headerData(logicalIndex, orientation(), Qt::DisplayRole).toString());
        const QSize richSize = document->size().toSize() + QSize(12, 6);
        size.setHeight(qMax(size.height(), richSize.height()));
        if (orientation() == Qt::Vertical)
            size.setWidth(richSize.width());
    }
    if (m_toolTipButtons.contains(logicalIndex))
        size.rwidth() += toolTipButtonSize + 4;
    if (logicalIndex == m_checkBoxSection)
        size.rwidth() += checkBoxRectIn(QRect(0, 0, 100, 20)).width() + 4;
    size.rwidth() += statusBandWidth;
    return size + m_sectionPadding;
}

void VNCustomHeaderView::paintEvent(QPaintEvent* event)
{
    QHeaderView::paintEvent(event);
    if (!m_compareDifferent)
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(VNStatusPalette::compareColor(), 2, Qt::DashLine));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

void VNCustomHeaderView::mousePressEvent(QMouseEvent* event)
{
    const int section = logicalIndexAt(event->pos());
    if (event->button() == Qt::LeftButton && section >= 0 && section == m_checkBoxSection &&
        checkBoxRect().contains(event->pos())) {
        m_pressedCheckBoxSection = section;
        event->accept();
        return;
    }
    if (event->button() == Qt::LeftButton && toolTipButtonRect(section).contains(event->pos())) {
        QToolTip::showText(QtCompat::globalPosition(event), m_toolTipButtons.value(section), this);
        emit toolTipButtonClicked(section);
        event->accept();
        return;
    }
    QHeaderView::mousePressEvent(event);
}

void VNCustomHeaderView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_pressedCheckBoxSection >= 0) {
        const bool inside = checkBoxRect().contains(event->pos());
        m_pressedCheckBoxSection = -1;
        if (inside)
            emit checkBoxClicked(m_checkBoxState == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        event->accept();
        return;
    }
    QHeaderView::mouseReleaseEvent(event);
}

bool VNCustomHeaderView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int section = logicalIndexAt(help->pos());
        if (toolTipButtonRect(section).contains(help->pos())) {
            QToolTip::showText(help->globalPos(), m_toolTipButtons.value(section), this);
            return true;
        }
    }
    return QHeaderView::viewportEvent(event);
}
