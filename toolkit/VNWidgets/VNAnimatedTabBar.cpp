#include "VNAnimatedTabBar.h"
#include "QtCompat.h"
#include "VNStatusPainter_p.h"
#include "VNSvgIcon_p.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgRenderer>
#include <QToolButton>
#include <QVariantAnimation>

namespace {
const int horizontalPadding = 12;
const int iconExtent = 16;
const int smallButtonExtent = 14;
const int minimumTabWidth = 36;
const int indicatorHeight = 3;
const int buttonSpacing = 2;
const QColor barColor(0xee, 0xf2, 0xf6);
const QColor tabColor(0xf8, 0xfa, 0xfc);
const QColor currentTabColor(Qt::white);
const QColor darkTabColor(0x2f, 0x3b, 0x47);
const QColor frameColor(0xb9, 0xc3, 0xcc);
const QColor textColor(0x1f, 0x3a, 0x56);
const QColor indicatorColor(0x2f, 0x6f, 0xb0);
const QColor markColor(0xe0, 0x7b, 0x1a);
} // namespace

VNAnimatedTabBar::VNAnimatedTabBar(QWidget* parent)
    : QWidget(parent)
    , m_animation(new QVariantAnimation(this))
{
    setMouseTracking(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_animation->setDuration(180);
    m_animation->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_animation, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        m_indicator = value.toRectF();
        update();
    });
}

VNAnimatedTabBar::~VNAnimatedTabBar() = default;

int VNAnimatedTabBar::addTab(const QString& text, const QString& iconPath)
{
    return insertTab(m_tabs.size(), text, iconPath);
}

int VNAnimatedTabBar::insertTab(int index, const QString& text, const QString& iconPath)
{
    index = qBound(0, index, m_tabs.size());
    Tab tab;
    tab.text = text;
    if (!iconPath.isEmpty())
        tab.icon = VNSvgIcon::fromFile(iconPath);
    m_tabs.insert(index, tab);
    if (m_marked >= index)
        ++m_marked;
    relayout();
    if (m_current < 0) {
        setCurrentIndex(index);
    } else if (index <= m_current) {
        ++m_current;
        moveIndicator();
    }
    return index;
}

void VNAnimatedTabBar::removeTab(int index)
{
    if (!validIndex(index))
        return;
    m_tabs.remove(index);
    if (m_marked == index)
        m_marked = -1;
    else if (m_marked > index)
        --m_marked;
    relayout();
    if (index < m_current) {
        --m_current;
        moveIndicator();
    } else if (index == m_current) {
        m_current = -1;
        setCurrentIndex(qMin(index, m_tabs.size() - 1));
        if (m_current < 0)
            emit currentChanged(-1);
    }
    update();
}

int VNAnimatedTabBar::count() const
{
    return m_tabs.size();
}

QString VNAnimatedTabBar::tabText(int index) const
{
    return validIndex(index) ? m_tabs.at(index).text : QString();
}

void VNAnimatedTabBar::setCurrentIndex(int index)
{
    if (!validIndex(index) || index == m_current)
        return;
    m_current = index;
    moveIndicator();
    update();
    emit currentChanged(index);
}

QToolButton* VNAnimatedTabBar::addButton(const QIcon& icon, const QString& toolTip)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("tabBarButton"));
    button->setIcon(icon);
    button->setToolTip(toolTip);
    if (!toolTip.isEmpty())
        button->setAccessibleName(toolTip);
    button->setAutoRaise(true);
    m_buttons.append(button);
    button->show();
    relayout();
    return button;
}

void VNAnimatedTabBar::useMenuButton(int index, bool on)
{
    if (!validIndex(index))
        return;
    m_tabs[index].menuButton = on;
    relayout();
}

bool VNAnimatedTabBar::hasMenuButton(int index) const
{
    return validIndex(index) && m_tabs.at(index).menuButton;
}

void VNAnimatedTabBar::useCloseButton(int index, bool on)
{
    if (!validIndex(index))
        return;
    m_tabs[index].closeButton = on;
    relayout();
}

bool VNAnimatedTabBar::hasCloseButton(int index) const
{
    return validIndex(index) && m_tabs.at(index).closeButton;
}

void VNAnimatedTabBar::showMenu(int index, QMenu* menu)
{
    if (!menu || !validIndex(index))
        return;
    menu->exec(mapToGlobal(tabRect(index).bottomLeft()));
}

void VNAnimatedTabBar::ensureLayout() const
{
    if (m_layoutSize != size())
        const_cast<VNAnimatedTabBar*>(this)->relayout();
}

int VNAnimatedTabBar::getIndexAtPosition(const QPoint& globalPosition) const
{
    ensureLayout();
    const QPoint local = mapFromGlobal(globalPosition);
    for (int i = 0; i < m_tabs.size(); ++i) {
        if (m_tabs.at(i).rect.contains(local))
            return i;
    }
    return -1;
}

QRect VNAnimatedTabBar::tabRect(int index) const
{
    ensureLayout();
    return validIndex(index) ? m_tabs.at(index).rect : QRect();
}

QRect VNAnimatedTabBar::closeButtonRect(int index) const
{
    if (!hasCloseButton(index))
        return QRect();
    const QRect tab = tabRect(index);
    return QRect(tab.right() - 4 - smallButtonExtent, tab.center().y() - smallButtonExtent / 2, smallButtonExtent,
                 smallButtonExtent);
}

QRect VNAnimatedTabBar::menuButtonRect(int index) const
{
    if (!hasMenuButton(index))
        return QRect();
    const QRect tab = tabRect(index);
    const int right = hasCloseButton(index) ? closeButtonRect(index).left() - 1 : tab.right() - 4;
    return QRect(right - smallButtonExtent, tab.center().y() - smallButtonExtent / 2, smallButtonExtent,
                 smallButtonExtent);
}

void VNAnimatedTabBar::setImageAfterTabs(const QString& resourcePath)
{
    if (m_imagePath == resourcePath)
        return;
    m_imagePath = resourcePath;
    delete m_image;
    m_image = nullptr;
    if (!resourcePath.isEmpty()) {
        m_image = new QSvgRenderer(resourcePath, this);
        if (!m_image->isValid()) {
            delete m_image;
            m_image = nullptr;
        }
    }
    relayout();
}

void VNAnimatedTabBar::setImageAfterTabsMirrored(bool mirrored)
{
    m_imageMirrored = mirrored;
    update();
}

void VNAnimatedTabBar::setNoImageAfterTab(int index, bool noImage)
{
    if (!validIndex(index))
        return;
    m_tabs[index].noImageAfter = noImage;
    relayout();
}

bool VNAnimatedTabBar::hasImageAfterTab(int index) const
{
    return m_image && validIndex(index) && !m_tabs.at(index).noImageAfter;
}

void VNAnimatedTabBar::setDarkStyle(int index, bool dark)
{
    if (!validIndex(index))
        return;
    m_tabs[index].dark = dark;
    update();
}

bool VNAnimatedTabBar::isDarkStyle(int index) const
{
    return validIndex(index) && m_tabs.at(index).dark;
}

void VNAnimatedTabBar::setMarkedIndex(int index)
{
    m_marked = validIndex(index) ? index : -1;
    update();
}

void VNAnimatedTabBar::setFixFirstWidthPreferred(bool fix)
{
    m_fixFirstWidth = fix;
    relayout();
}

void VNAnimatedTabBar::setWidgetStatus(int index, VNWidgetStatus::StatusFlags status)
{
    if (!validIndex(index))
        return;
    m_tabs[index].status = status;
    update();
}

VNWidgetStatus::StatusFlags VNAnimatedTabBar::widgetStatus(int index) const
{
    return validIndex(index) ? m_tabs.at(index).status : VNWidgetStatus::StatusFlags();
}

void VNAnimatedTabBar::setTabFlags(int index, int flags)
{
    if (!validIndex(index))
        return;
    m_tabs[index].flags = flags;
    relayout();
}

int VNAnimatedTabBar::decorationWidth(int) const
{
    return 0;
}

bool VNAnimatedTabBar::isTabSelectable(int) const
{
    return true;
}

int VNAnimatedTabBar::preferredTabWidth(int index) const
{
    const Tab& tab = m_tabs.at(index);
    // Measured in bold, the look of the current tab, so that a tab does not elide when chosen.
    QFont bold = font();
    bold.setBold(true);
    int width = 2 * horizontalPadding + QFontMetrics(bold).horizontalAdvance(tab.text) + decorationWidth(index);
    if (!tab.icon.isNull())
        width += iconExtent + 4;
    if (tab.menuButton)
        width += smallButtonExtent + 1;
    if (tab.closeButton)
        width += smallButtonExtent + 1;
    return width;
}

int VNAnimatedTabBar::imageWidth() const
{
    return m_image ? qMax(8, height() / 2) : 0;
}

// Tabs get their preferred widths; when the bar is too narrow they shrink in proportion, except a
// first tab whose width is fixed.
void VNAnimatedTabBar::relayout()
{
    m_layoutSize = size();
    int buttonsWidth = 0;
    for (QToolButton* button : qAsConst(m_buttons))
        buttonsWidth += button->sizeHint().width() + buttonSpacing;
    QVector<int> widths(m_tabs.size());
    int total = 0;
    int images = 0;
    for (int i = 0; i < m_tabs.size(); ++i) {
        widths[i] = preferredTabWidth(i);
        total += widths[i];
        if (hasImageAfterTab(i))
            images += imageWidth();
    }
    const int available = width() - buttonsWidth - images;
    const int fixed = m_fixFirstWidth && !widths.isEmpty() ? widths.first() : 0;
    if (total > available && total - fixed > 0) {
        const double factor = qMax(0.0, double(available - fixed)) / double(total - fixed);
        for (int i = fixed ? 1 : 0; i < widths.size(); ++i)
            widths[i] = qMax(minimumTabWidth, int(widths[i] * factor));
    }
    int x = 0;
    for (int i = 0; i < m_tabs.size(); ++i) {
        m_tabs[i].rect = QRect(x, 0, widths[i], height());
        x += widths[i] + (hasImageAfterTab(i) ? imageWidth() : 0);
    }
    for (QToolButton* button : qAsConst(m_buttons)) {
        const QSize hint = button->sizeHint();
        button->setGeometry(x + buttonSpacing, (height() - hint.height()) / 2, hint.width(), hint.height());
        x += hint.width() + buttonSpacing;
    }
    if (m_animation->state() != QAbstractAnimation::Running)
        m_indicator = targetIndicator();
    updateGeometry();
    update();
}

QRectF VNAnimatedTabBar::targetIndicator() const
{
    if (!validIndex(m_current))
        return QRectF();
    const QRect tab = m_tabs.at(m_current).rect;
    return QRectF(tab.left(), tab.bottom() + 1 - indicatorHeight, tab.width(), indicatorHeight);
}

void VNAnimatedTabBar::moveIndicator()
{
    const QRectF target = targetIndicator();
    m_animation->stop();
    if (!isVisible() || m_indicator.isNull() || target.isNull()) {
        m_indicator = target;
        update();
        return;
    }
    m_animation->setStartValue(m_indicator);
    m_animation->setEndValue(target);
    m_animation->start();
}

QSize VNAnimatedTabBar::sizeHint() const
{
    int width = 0;
    for (int i = 0; i < m_tabs.size(); ++i)
        width += preferredTabWidth(i) + (hasImageAfterTab(i) ? imageWidth() : 0);
    for (QToolButton* button : m_buttons)
        width += button->sizeHint().width() + buttonSpacing;
    return QSize(qMax(width, 60), fontMetrics().height() + 14);
}

QSize VNAnimatedTabBar::minimumSizeHint() const
{
    return QSize(60, fontMetrics().height() + 14);
}

VNAnimatedTabBar::TabLook VNAnimatedTabBar::tabLook(int index) const
{
    const Tab& tab = m_tabs.at(index);
    TabLook look;
    look.fill = index == m_current ? currentTabColor : tabColor;
    look.text = textColor;
    look.frame = frameColor;
    if (index == m_hovered && index != m_current)
        look.fill = look.fill.darker(104);
    if (tab.dark) {
        look.fill = index == m_current ? darkTabColor.lighter(130) : darkTabColor;
        look.text = Qt::white;
    }
    // A dark tab takes the light status fill, so the status text too.
    const VNStatusPalette::Colors status = VNStatusPalette::colors(tab.status, isEnabled());
    if (status.isValid()) {
        look.fill = status.fill;
        look.frame = status.frame;
        look.text = status.text;
    } else if (!isEnabled()) {
        look.text = palette().color(QPalette::Disabled, QPalette::WindowText);
    }
    return look;
}

void VNAnimatedTabBar::paintTabDecoration(QPainter&, int, const QRect&) const {}

void VNAnimatedTabBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), barColor);
    for (int i = 0; i < m_tabs.size(); ++i) {
        const Tab& tab = m_tabs.at(i);
        const TabLook look = tabLook(i);
        const QRect r = tab.rect.adjusted(0, 1, -1, -1);
        painter.setPen(look.frame);
        painter.setBrush(look.fill);
        painter.drawRoundedRect(QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
        VNStatusPainter::paintMarks(painter, r, tab.status);

        QRect content = r.adjusted(horizontalPadding, 0, -horizontalPadding / 2, 0);
        if (!tab.icon.isNull()) {
            tab.icon.paint(&painter, QRect(content.left(), r.center().y() - iconExtent / 2, iconExtent, iconExtent));
            content.setLeft(content.left() + iconExtent + 4);
        }
        const QRect menuRect = menuButtonRect(i);
        const QRect closeRect = closeButtonRect(i);
        if (menuRect.isValid())
            content.setRight(menuRect.left() - 2);
        else if (closeRect.isValid())
            content.setRight(closeRect.left() - 2);
        const int decoration = decorationWidth(i);
        const QRect decorationRect(content.right() - decoration, r.top(), decoration, r.height());
        content.setRight(content.right() - decoration);

        QFont font = painter.font();
        font.setBold(i == m_current);
        font.setStrikeOut(look.strikeOut);
        painter.setFont(font);
        painter.setPen(look.text);
        painter.drawText(content, Qt::AlignVCenter | Qt::AlignLeft,
                         QFontMetrics(font).elidedText(tab.text, Qt::ElideRight, content.width()));
        if (decoration > 0)
            paintTabDecoration(painter, i, decorationRect);

        if (menuRect.isValid()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(look.text);
            const QPointF c = QRectF(menuRect).center();
            painter.drawPolygon(QPolygonF({c + QPointF(-4, -2), c + QPointF(4, -2), c + QPointF(0, 3)}));
        }
        if (closeRect.isValid()) {
            painter.setPen(QPen(look.text, 1.5));
            const QRectF x = QRectF(closeRect).adjusted(4, 4, -4, -4);
            painter.drawLine(x.topLeft(), x.bottomRight());
            painter.drawLine(x.topRight(), x.bottomLeft());
        }
        if (i == m_marked) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(markColor);
            painter.drawEllipse(QPointF(r.right() - 4, r.top() + 4), 3, 3);
        }
        if (hasImageAfterTab(i)) {
            const QRectF imageRect(tab.rect.right() + 1, 0, imageWidth(), height());
            painter.save();
            if (m_imageMirrored) {
                painter.translate(imageRect.center());
                painter.scale(-1, 1);
                painter.translate(-imageRect.center());
            }
            m_image->render(&painter, imageRect.adjusted(1, height() / 4.0, -1, -height() / 4.0));
            painter.restore();
        }
    }
    if (!m_indicator.isNull())
        painter.fillRect(m_indicator, indicatorColor);
}

void VNAnimatedTabBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_animation->stop();
    relayout();
}

void VNAnimatedTabBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    for (int i = 0; i < m_tabs.size(); ++i) {
        if (!m_tabs.at(i).rect.contains(event->pos()))
            continue;
        if (closeButtonRect(i).contains(event->pos()))
            emit closeButtonClicked(i);
        else if (menuButtonRect(i).contains(event->pos()))
            emit menuButtonClicked(i);
        else if (isTabSelectable(i))
            setCurrentIndex(i);
        return;
    }
}

void VNAnimatedTabBar::mouseMoveEvent(QMouseEvent* event)
{
    const int hovered = getIndexAtPosition(QtCompat::globalPosition(event));
    if (hovered != m_hovered) {
        m_hovered = hovered;
        update();
    }
}

void VNAnimatedTabBar::leaveEvent(QEvent*)
{
    m_hovered = -1;
    update();
}
