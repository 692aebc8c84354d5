#include "VNProgressiveDisclosure.h"

#include "QtCompat.h"

#include "VNDisclosureResizeHandle_p.h"
#include "VNProgressiveDisclosureBtn.h"
#include "VNSvgIcon_p.h"
#include "VNWidgetStatus.h"

#include <QCheckBox>
#include <QDynamicPropertyChangeEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <QToolTip>
#include <QVariantAnimation>

namespace {
constexpr int minimumContentHeight = 16;

QFrame* makeLine(QWidget* parent, const char* name)
{
    auto* line = new QFrame(parent);
    line->setObjectName(QLatin1String(name));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setFixedHeight(1);
    return line;
}
} // namespace

VNDisclosureResizeHandle::VNDisclosureResizeHandle(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("resizeHandle"));
    setCursor(Qt::SizeVerCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void VNDisclosureResizeHandle::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    painter.setPen(palette().color(QPalette::Mid));
    const int cx = width() / 2;
    for (int dx = -8; dx <= 8; dx += 4) {
        painter.drawPoint(cx + dx, height() / 2 - 1);
        painter.drawPoint(cx + dx, height() / 2 + 1);
    }
}

void VNDisclosureResizeHandle::mousePressEvent(QMouseEvent* event)
{
    m_pressY = QtCompat::globalPosition(event).y();
    emit dragStarted();
}

void VNDisclosureResizeHandle::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        emit dragged(QtCompat::globalPosition(event).y() - m_pressY);
}

VNProgressiveDisclosure::VNProgressiveDisclosure(QWidget* parent)
    : QFrame(parent)
    , VNWidgetInterface(this)
    , m_animation(new QVariantAnimation(this))
{
    buildHead();
    m_animation->setEasingCurve(QEasingCurve::InOutQuad);
    connect(m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { m_contentArea->setMaximumHeight(value.toInt()); });
    connect(m_animation, &QVariantAnimation::finished, this, &VNProgressiveDisclosure::onAnimationFinished);
    m_building = false;
    updateParts();
}

VNProgressiveDisclosure::~VNProgressiveDisclosure() = default;

void VNProgressiveDisclosure::buildHead()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);

    m_topLine = makeLine(this, "topLine");
    m_bottomLine = makeLine(this, "bottomLine");
    m_button = new VNProgressiveDisclosureBtn(this);
    m_button->setObjectName(QStringLiteral("disclosureButton"));
    m_button->setChecked(true);
    connect(m_button, &QAbstractButton::clicked, this, &VNProgressiveDisclosure::setOpen);

    m_colorLabel = new QLabel(this);
    m_colorLabel->setObjectName(QStringLiteral("colorBox"));
    m_colorLabel->setFixedSize(12, 12);
    m_stateLabel = new QLabel(this);
    m_stateLabel->setObjectName(QStringLiteral("stateLabel"));
    m_optionalCheck = new QCheckBox(this);
    m_optionalCheck->setObjectName(QStringLiteral("optionalCheck"));
    m_optionalCheck->setAccessibleName(tr("Optional part visible"));
    m_optionalCheck->setChecked(true);
    connect(m_optionalCheck, &QCheckBox::toggled, this, [this] {
        updateParts();
        updateContentEnabled();
    });
    m_infoButton = new QToolButton(this);
    m_infoButton->setObjectName(QStringLiteral("infoButton"));
    m_infoButton->setAccessibleName(tr("Information"));
    m_infoButton->setIcon(VNSvgIcon::fromFile(QStringLiteral(":/Style/VnWidgets/VNInfoArea/info.svg")));
    m_infoButton->setAutoRaise(true);
    connect(m_infoButton, &QToolButton::clicked, this, &VNProgressiveDisclosure::showInfo);

    auto* head = new QHBoxLayout;
    head->setSpacing(6);
    head->addWidget(m_button, 1);
    head->addWidget(m_colorLabel);
    head->addWidget(m_stateLabel);
    head->addWidget(m_optionalCheck);
    head->addWidget(m_infoButton);

    m_contentArea = new QWidget(this);
    m_contentArea->setObjectName(QStringLiteral("contentArea"));
    m_contentLayout = new QVBoxLayout(m_contentArea);
    m_contentLayout->setContentsMargins(16, 0, 0, 0);
    m_handle = new VNDisclosureResizeHandle(this);
    connect(m_handle, &VNDisclosureResizeHandle::dragStarted, this,
            [this] { m_dragStartHeight = m_contentArea->height(); });
    connect(m_handle, &VNDisclosureResizeHandle::dragged, this,
            [this](int delta) { setContentHeight(m_dragStartHeight + delta); });

    layout->addWidget(m_topLine);
    layout->addLayout(head);
    layout->addWidget(m_contentArea);
    layout->addWidget(m_handle);
    layout->addWidget(m_bottomLine);
}

QString VNProgressiveDisclosure::getWidgetCaption() const
{
    return m_button->text();
}

void VNProgressiveDisclosure::setWidgetCaption(const QString& caption)
{
    m_button->setText(caption);
    m_button->updateGeometry();
}

QString VNProgressiveDisclosure::getStateLabelText() const
{
    return m_stateLabel->text();
}

void VNProgressiveDisclosure::setStateLabelText(const QString& text)
{
    m_stateLabel->setText(text);
    updateParts();
}

void VNProgressiveDisclosure::setInfoButtonText(const QString& text)
{
    m_infoText = text;
    m_infoButton->setToolTip(text);
}

void VNProgressiveDisclosure::setMode(int& member, int mode)
{
    member = qBound(int(ShowNever), mode, int(ShowOnClose));
    updateParts();
}

void VNProgressiveDisclosure::setShowStateLabel(int mode)
{
    setMode(m_stateLabelMode, mode);
}

void VNProgressiveDisclosure::setShowInfoButton(int mode)
{
    setMode(m_infoButtonMode, mode);
}

void VNProgressiveDisclosure::setShowTopLine(int mode)
{
    setMode(m_topLineMode, mode);
}

void VNProgressiveDisclosure::setShowBottomLine(int mode)
{
    setMode(m_bottomLineMode, mode);
}

void VNProgressiveDisclosure::setShowStateAlsoWhenOpen(bool show)
{
    m_stateAlsoWhenOpen = show;
    updateParts();
}

void VNProgressiveDisclosure::setOptionalCheckVisible(bool visible)
{
    m_optionalCheckVisible = visible;
    updateParts();
    updateContentEnabled();
}

void VNProgressiveDisclosure::setOptionalCheckForVisibilitySwitch(bool visibilitySwitch)
{
    m_checkSwitchesVisibility = visibilitySwitch;
    updateParts();
    updateContentEnabled();
}

void VNProgressiveDisclosure::setWidgetEnabled(bool enabled)
{
    m_widgetEnabled = enabled;
    updateContentEnabled();
}

void VNProgressiveDisclosure::updateContentEnabled()
{
    // As an enable switch, an unchecked optional check disables the content as well.
    const bool checkAllows = !m_optionalCheckVisible || m_checkSwitchesVisibility || m_optionalCheck->isChecked();
    m_contentArea->setEnabled(m_widgetEnabled && checkAllows);
}

void VNProgressiveDisclosure::setColorBox(const QColor& color)
{
    m_color = color;
    m_colorLabel->setStyleSheet(
        color.isValid() ? QStringLiteral("background-color: %1; border: 1px solid #80868b;").arg(color.name())
                        : QString());
    updateParts();
}

void VNProgressiveDisclosure::setResizable(bool resizable)
{
    m_resizable = resizable;
    if (!resizable)
        setContentHeight(0);
    updateParts();
}

void VNProgressiveDisclosure::setContentHeight(int height)
{
    m_userHeight = height > 0 ? qMax(minimumContentHeight, height) : 0;
    if (m_animation->state() == QAbstractAnimation::Running || !isContentShown())
        return;
    if (m_userHeight > 0)
        m_contentArea->setFixedHeight(m_userHeight);
    else {
        m_contentArea->setMinimumHeight(0);
        m_contentArea->setMaximumHeight(QWIDGETSIZE_MAX);
    }
}

QWidget* VNProgressiveDisclosure::contentWidget()
{
    adoptContent();
    return m_content;
}

void VNProgressiveDisclosure::setContentWidget(QWidget* widget)
{
    adoptContent();
    if (m_content && m_content != widget)
        m_content->deleteLater();
    m_content = widget;
    if (widget) {
        m_contentLayout->addWidget(widget);
        widget->show();
    }
    updateContentEnabled();
}

void VNProgressiveDisclosure::adoptContent()
{
    if (m_content)
        return;
    const QList<QWidget*> parts = {m_button,  m_colorLabel, m_stateLabel,  m_optionalCheck, m_infoButton,
                                   m_topLine, m_bottomLine, m_contentArea, m_handle};
    QWidget* candidate = nullptr;
    for (QObject* child : children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || parts.contains(widget))
            continue;
        if (widget->objectName().endsWith(QLatin1String("Container"))) {
            candidate = widget;
            break;
        }
        if (!candidate)
            candidate = widget;
    }
    if (!candidate)
        return;
    m_content = candidate;
    m_contentLayout->addWidget(candidate);
}

bool VNProgressiveDisclosure::isContentShown() const
{
    const bool switchedOff = m_optionalCheckVisible && m_checkSwitchesVisibility && !m_optionalCheck->isChecked();
    return m_open && !switchedOff;
}

void VNProgressiveDisclosure::setAnimationDuration(int milliseconds)
{
    m_duration = qMax(0, milliseconds);
}

bool VNProgressiveDisclosure::isAnimating() const
{
    return m_animation->state() == QAbstractAnimation::Running;
}

void VNProgressiveDisclosure::setOpen(bool open)
{
    m_button->setChecked(open);
    if (open == m_open)
        return;
    m_open = open;
    updateParts();
    emit openChanged(open);
}

void VNProgressiveDisclosure::toggle()
{
    setOpen(!m_open);
}

void VNProgressiveDisclosure::showInfo()
{
    if (m_infoText.isEmpty())
        return;
    QToolTip::showText(m_infoButton->mapToGlobal(QPoint(0, m_infoButton->height())), m_infoText, m_infoButton);
}

bool VNProgressiveDisclosure::shows(int mode) const
{
    return mode == ShowAlways || (mode == ShowOnClose && !m_open);
}

void VNProgressiveDisclosure::updateParts()
{
    if (m_building)
        return;
    m_topLine->setVisible(shows(m_topLineMode));
    m_bottomLine->setVisible(shows(m_bottomLineMode));
    const bool stateShown = shows(m_stateLabelMode) || (m_stateLabelMode == ShowOnClose && m_stateAlsoWhenOpen);
    m_stateLabel->setVisible(stateShown && !m_stateLabel->text().isEmpty());
    m_infoButton->setVisible(shows(m_infoButtonMode));
    m_optionalCheck->setVisible(m_optionalCheckVisible);
    m_colorLabel->setVisible(m_color.isValid());
    m_handle->setVisible(m_resizable && isContentShown());
    animateContent(isContentShown());
}

int VNProgressiveDisclosure::openContentHeight() const
{
    if (m_userHeight > 0)
        return m_userHeight;
    return m_contentArea->sizeHint().height();
}

void VNProgressiveDisclosure::animateContent(bool show)
{
    if (show == m_contentShown)
        return;
    m_contentShown = show;
    const int from = m_contentArea->isHidden() ? 0 : m_contentArea->height();
    m_animation->stop();
    m_animation->setStartValue(from);
    m_animation->setEndValue(show ? qMax(1, openContentHeight()) : 0);
    m_contentArea->setMinimumHeight(0);
    m_contentArea->show();
    if (m_duration == 0 || !isVisible()) {
        // Nothing on screen to animate: switch at once.
        onAnimationFinished();
        return;
    }
    m_animation->setDuration(m_duration);
    m_contentArea->setMaximumHeight(from);
    m_animation->start();
}

void VNProgressiveDisclosure::onAnimationFinished()
{
    if (m_animation->endValue().toInt() == 0) {
        m_contentArea->hide();
        return;
    }
    m_contentArea->setMaximumHeight(QWIDGETSIZE_MAX);
    setContentHeight(m_userHeight);
}

void VNProgressiveDisclosure::applyDynamicProperty(const QByteArray& name)
{
    const QVariant value = property(name.constData());
    if (name == "resizeAble")
        setResizable(value.toBool());
    else if (name == "showOptionalCheck")
        setOptionalCheckVisible(value.toBool());
    else if (name == "enableClientWidget")
        setOptionalCheckForVisibilitySwitch(!value.toBool());
}

bool VNProgressiveDisclosure::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::DynamicPropertyChange:
        applyDynamicProperty(static_cast<QDynamicPropertyChangeEvent*>(event)->propertyName());
        break;
    case QEvent::Polish:
        adoptContent();
        updateParts();
        updateContentEnabled();
        break;
    default:
        break;
    }
    return QFrame::event(event);
}

void VNProgressiveDisclosure::statusChanged()
{
    VNWidgetStatus::setStatusProperty(m_button, getWidgetStatus());
}
