#include "VNWidgetStatus.h"

#include "VNStatusPalette.h"

#include <QStringList>
#include <QStyle>
#include <QVariant>
#include <QWidget>

const char* const VNWidgetStatus::statusPropertyName = "widgetStatus";
const char* const VNWidgetStatus::lookPropertyName = "statusLook";
const char* const VNWidgetStatus::sigmaLookPropertyName = "sigmaLook";
const char* const VNWidgetStatus::comparePropertyName = "compareDiffers";

namespace {
struct BitName
{
    VNWidgetStatus::Status bit;
    const char* name;
};

const BitName bitNames[] = {
    {VNWidgetStatus::userEdit, "userEdit"},
    {VNWidgetStatus::needInput, "needInput"},
    {VNWidgetStatus::sigmaAvailable, "sigmaAvailable"},
    {VNWidgetStatus::sigmaStandardChanged, "sigmaStandardChanged"},
    {VNWidgetStatus::sigmaOn, "sigmaOn"},
    {VNWidgetStatus::sigmaError, "sigmaError"},
    {VNWidgetStatus::different, "different"},
    {VNWidgetStatus::compareDifferent, "compareDifferent"},
    {VNWidgetStatus::standardEnabled, "standardEnabled"},
    {VNWidgetStatus::standardDefined, "standardDefined"},
    {VNWidgetStatus::standardDefault, "standardDefault"},
    {VNWidgetStatus::standardDefaultChanged, "standardDefaultChanged"},
    {VNWidgetStatus::standardDeviate, "standardDeviate"},
    {VNWidgetStatus::standardLocked, "standardLocked"},
};

} // namespace

void VNWidgetStatus::setFlag(StatusFlags& flags, Status flag, bool on)
{
    flags = setFlag(flags, StatusFlags(flag), on);
}

VNWidgetStatus::StatusFlags VNWidgetStatus::setFlag(StatusFlags flags, StatusFlags flag, bool on)
{
    return on ? (flags | flag) : (flags & ~flag);
}

VNWidgetStatus::Status VNWidgetStatus::getDominantStatusFromFlag(StatusFlags flags)
{
    return VNStatusPalette::statusLook(flags).dominant;
}

QString VNWidgetStatus::lookName(StatusFlags flags)
{
    return VNStatusPalette::name(VNStatusPalette::statusLook(flags).look);
}

QString VNWidgetStatus::sigmaLookName(StatusFlags flags)
{
    return VNStatusPalette::name(VNStatusPalette::statusLook(flags).sigma);
}

QString VNWidgetStatus::debugStatusFlag(StatusFlags flags)
{
    QStringList names;
    for (const BitName& entry : bitNames) {
        if (flags.testFlag(entry.bit))
            names << QLatin1String(entry.name);
    }
    return names.isEmpty() ? QStringLiteral("undef") : names.join(QStringLiteral(" | "));
}

void VNWidgetStatus::setStatusProperty(QWidget* widget, StatusFlags flags)
{
    if (!widget)
        return;
    const QVariant word(static_cast<int>(flags));
    if (widget->property(statusPropertyName) == word)
        return;
    widget->setProperty(statusPropertyName, word);
    const VNStatusPalette::StatusLook look = VNStatusPalette::statusLook(flags);
    widget->setProperty(lookPropertyName, VNStatusPalette::name(look.look));
    widget->setProperty(sigmaLookPropertyName, VNStatusPalette::name(look.sigma));
    widget->setProperty(comparePropertyName, look.compare);
    repolish(widget);
}

void VNWidgetStatus::setStatusProperty(QWidget* widget, Status flag, bool on)
{
    setStatusProperty(widget, setFlag(statusFromProperty(widget), StatusFlags(flag), on));
}

VNWidgetStatus::StatusFlags VNWidgetStatus::statusFromProperty(const QWidget* widget)
{
    return widget ? StatusFlags(widget->property(statusPropertyName).toInt()) : StatusFlags();
}

void VNWidgetStatus::repolish(QWidget* widget)
{
    // A widget that is not polished yet takes its look from its properties when it is, so a
    // polish now, while it is being built, would be done twice.
    if (widget->testAttribute(Qt::WA_WState_Polished)) {
        QStyle* style = widget->style();
        style->unpolish(widget);
        style->polish(widget);
    }
    widget->update();
}
