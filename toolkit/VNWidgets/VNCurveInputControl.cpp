#include "VNCurveInputControl.h"

#include <QMenu>
#include <QMetaEnum>
#include <QPainter>
#include <QPainterPath>

namespace {
const QSize iconPixels(16, 16);
}

VNCurveInputControl::VNCurveInputControl(QWidget* parent)
    : VNButton(parent)
    , m_available(Sketch | PickPoints | Coordinates)
    , m_enabled(Sketch | PickPoints | Coordinates)
    , m_default(Sketch)
    , m_menu(new QMenu(this))
{
    setMenu(m_menu);
    setPopupMode(QToolButton::MenuButtonPopup);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize(iconPixels);
    connect(this, &QToolButton::clicked, this, &VNCurveInputControl::triggerDefault);
    rebuildMenu();
    updateLook();
}

QString VNCurveInputControl::optionText(Option option)
{
    switch (option) {
    case NoOption:
        return tr("No Input");
    case Sketch:
        return tr("Sketch");
    case PickPoints:
        return tr("Pick Points");
    case Coordinates:
        return tr("Coordinates");
    case Formula:
        return tr("Formula");
    case ImportFile:
        return tr("Import File");
    }
    return QString();
}

void VNCurveInputControl::setOptionsAvailable(Options options)
{
    if (options == m_available)
        return;
    m_available = options;
    rebuildMenu();
    updateLook();
}

void VNCurveInputControl::setOptionsEnabled(Options options)
{
    if (options == m_enabled)
        return;
    m_enabled = options;
    rebuildMenu();
    updateLook();
}

void VNCurveInputControl::setDefaultOption(Option option)
{
    if (option == m_default)
        return;
    m_default = option;
    rebuildMenu();
    updateLook();
}

void VNCurveInputControl::setInputType(InputType type)
{
    if (type == m_inputType)
        return;
    m_inputType = type;
    updateLook();
}

QAction* VNCurveInputControl::optionAction(Option option) const
{
    for (QAction* action : m_menu->actions()) {
        if (action->data().toInt() == int(option))
            return action;
    }
    return nullptr;
}

// One entry per available option, in the enum's order; the zero option is an entry only while
// nothing else is available.
void VNCurveInputControl::rebuildMenu()
{
    m_menu->clear();
    const QMetaEnum options = QMetaEnum::fromType<Option>();
    for (int i = 0; i < options.keyCount(); ++i) {
        const auto option = Option(options.value(i));
        const bool available = option == NoOption ? m_available == 0 : m_available.testFlag(option);
        if (!available)
            continue;
        QAction* action = m_menu->addAction(optionText(option));
        action->setData(int(option));
        action->setEnabled(option == NoOption ? m_enabled == 0 : m_enabled.testFlag(option));
        action->setCheckable(true);
        action->setChecked(option == m_default);
        if (option == m_default) {
            QFont font = action->font();
            font.setBold(true);
            action->setFont(font);
        }
        connect(action, &QAction::triggered, this, [this, option] { emit optionTriggered(option); });
    }
}

// The button names the default option; it is greyed when that option cannot be used now.
void VNCurveInputControl::updateLook()
{
    QAction* main = optionAction(m_default);
    const bool usable = main && main->isEnabled();
    setText(optionText(m_default));
    setToolTip(usable ? tr("Enter the curve: %1").arg(optionText(m_default))
                      : tr("The default input is not available"));
    const QColor color = usable ? palette().color(QPalette::ButtonText) : palette().color(QPalette::Mid);
    setIcon(inputTypeIcon(m_inputType, color));
    setProperty("inputType", int(m_inputType));
    setProperty("defaultUsable", usable);
}

void VNCurveInputControl::triggerDefault()
{
    QAction* main = optionAction(m_default);
    if (main && main->isEnabled())
        emit optionTriggered(m_default);
}

QIcon VNCurveInputControl::inputTypeIcon(InputType type, const QColor& color)
{
    QPixmap pixmap(iconPixels * 2);
    pixmap.setDevicePixelRatio(2.0);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap));
    switch (type) {
    case Line:
        painter.drawLine(QPointF(2, 14), QPointF(14, 2));
        break;
    case Point:
        painter.setBrush(color);
        for (const QPointF& point : {QPointF(3, 12), QPointF(8, 5), QPointF(13, 10)})
            painter.drawEllipse(point, 1.8, 1.8);
        break;
    case Generic: {
        QPainterPath curve(QPointF(1, 13));
        curve.cubicTo(QPointF(5, -2), QPointF(10, 18), QPointF(15, 3));
        painter.drawPath(curve);
        break;
    }
    }
    return QIcon(pixmap);
}
