#include "VNWidgetStatus.h"

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

// The main look follows the most urgent state first: missing input, then a differing value,
// then the standard (norm) states, then a plain user edit.
QString standardLookName(VNWidgetStatus::StatusFlags flags)
{
    const bool locked = flags.testFlag(VNWidgetStatus::standardLocked);
    const bool deviate = flags.testFlag(VNWidgetStatus::standardDeviate);
    if (locked && deviate)
        return QStringLiteral("standardChangedLocked");
    if (locked)
        return QStringLiteral("standardLocked");
    if (flags.testFlag(VNWidgetStatus::standardDefaultChanged))
        return QStringLiteral("standardDefaultChanged");
    if (flags.testFlag(VNWidgetStatus::standardDefault))
        return QStringLiteral("standardDefault");
    if (deviate)
        return QStringLiteral("standardChanged");
    if (flags & (VNWidgetStatus::standardDefined | VNWidgetStatus::standardEnabled))
        return QStringLiteral("standardDefined");
    return QString();
}
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
    static const Status priority[] = {
        needInput,       compareDifferent, different,       standardLocked, standardDeviate, standardDefaultChanged,
        standardDefault, standardDefined,  standardEnabled, sigmaError,     sigmaOn,         sigmaStandardChanged,
        sigmaAvailable,  userEdit};
    for (Status status : priority) {
        if (flags.testFlag(status))
            return status;
    }
    return undef;
}

QString VNWidgetStatus::lookName(StatusFlags flags)
{
    if (flags.testFlag(needInput))
        return QStringLiteral("needInput");
    if (flags.testFlag(different))
        return QStringLiteral("different");
    const QString standard = standardLookName(flags);
    if (!standard.isEmpty())
        return standard;
    if (flags.testFlag(userEdit))
        return QStringLiteral("userEdit");
    return QStringLiteral("undef");
}

QString VNWidgetStatus::sigmaLookName(StatusFlags flags)
{
    if (flags.testFlag(sigmaError))
        return QStringLiteral("invalid");
    if (flags.testFlag(sigmaStandardChanged))
        return QStringLiteral("standardChanged");
    if (flags.testFlag(sigmaOn))
        return QStringLiteral("active");
    if (flags.testFlag(sigmaAvailable))
        return QStringLiteral("available");
    return QStringLiteral("none");
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
    widget->setProperty(lookPropertyName, lookName(flags));
    widget->setProperty(sigmaLookPropertyName, sigmaLookName(flags));
    widget->setProperty(comparePropertyName, flags.testFlag(compareDifferent));
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
    QStyle* style = widget->style();
    style->unpolish(widget);
    style->polish(widget);
    widget->update();
}
