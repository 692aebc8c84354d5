#include "VNStatusPalette.h"

#include <QMetaEnum>

#include <cmath>

namespace {
using Look = VNStatusPalette::Look;
using SigmaLook = VNStatusPalette::SigmaLook;
using Flags = VNWidgetStatus::StatusFlags;

// Which look a word shows, most urgent first: the first rule whose bits are all set decides. The
// bits of that rule are the word's dominant status.
template<typename L>
struct Rule
{
    VNWidgetStatus::Status bits;
    L look;
};

const Rule<Look> lookRules[] = {
    {VNWidgetStatus::needInput, Look::needInput},
    {VNWidgetStatus::different, Look::different},
    {VNWidgetStatus::standardChangedLocked, Look::standardChangedLocked},
    {VNWidgetStatus::standardLocked, Look::standardLocked},
    {VNWidgetStatus::standardDefaultChanged, Look::standardDefaultChanged},
    {VNWidgetStatus::standardDefault, Look::standardDefault},
    {VNWidgetStatus::standardDeviate, Look::standardChanged},
    {VNWidgetStatus::standardDefined, Look::standardDefined},
    {VNWidgetStatus::standardEnabled, Look::standardDefined},
    {VNWidgetStatus::userEdit, Look::userEdit},
};

const Rule<SigmaLook> sigmaRules[] = {
    {VNWidgetStatus::sigmaError, SigmaLook::invalid},
    {VNWidgetStatus::sigmaStandardChanged, SigmaLook::standardChanged},
    {VNWidgetStatus::sigmaOn, SigmaLook::active},
    {VNWidgetStatus::sigmaAvailable, SigmaLook::available},
};

template<typename L, std::size_t N>
const Rule<L>* firstMatch(const Rule<L> (&rules)[N], Flags flags)
{
    for (const Rule<L>& rule : rules) {
        if ((flags & rule.bits) == Flags(rule.bits))
            return &rule;
    }
    return nullptr;
}

struct LookColors
{
    QRgb frame;
    QRgb fill;
    QRgb text;
    QRgb disabledFill;
};

// The palette. Every frame and mark stands at 3:1 or more against the window around the widget
// (#efefef), every text at 4.5:1 or more on its fill, so that neither colour nor contrast alone has
// to carry the meaning. A disabled widget keeps frame and marks and fades its fill halfway to the
// disabled field fill (#f4f4f4); its text takes the disabled grey.
// One row per look after Look::undef, which keeps the widget's own colours.
const LookColors lookColors[] = {
    // needInput: red, the only look that asks the user to act, and it wins over every other.
    {0xd32f2f, 0xffd6d6, 0x5c0000, 0xf9e5e5},
    // userEdit: the toolkit's accent blue of focus and selection: "you changed this".
    {0x3d7cc9, 0xdcebff, 0x0b3d7a, 0xe8eff9},
    // different: the selected objects disagree; a caution, so yellow, with a dark gold frame
    // (the yellow frame #c9a400 stood at 2.1:1 and vanished against the window).
    {0x9a7b00, 0xfff1b8, 0x4d3e00, 0xf9f2d6},
    // standardDefined: the value comes from a standard, all in order: green, a shade darker than
    // the old #4c9a4c, which missed 3:1.
    {0x3d8c3d, 0xdff2df, 0x1d4d1d, 0xe9f3e9},
    // standardChanged: the value deviates from its standard, a warning between green and red:
    // burnt orange (#e07b00 stood at 2.6:1).
    {0xc06400, 0xffe2c4, 0x5c3200, 0xf9ebdc},
    // standardLocked: the standard fixes the value, nothing to do: neutral grey #7a7a7a, quieter
    // than the text and than the looks that ask for attention (not the darker #555555).
    {0x7a7a7a, 0xe4e4e4, 0x3a3a3a, 0xececec},
    // standardChangedLocked: the orange of a change muted by the grey of the lock: brown.
    {0x9c6a3f, 0xeed9c8, 0x4a2d12, 0xf1e6de},
    // standardDefault: the standard's own default: cyan, a cool sibling of the defined green that
    // must not look like it (the painters' green made the two gallery words alike).
    {0x3d8fb0, 0xe0f0f8, 0x0d3c4f, 0xeaf2f6},
    // standardDefaultChanged: the default was overridden: violet, the cyan pushed towards red.
    {0x9b4fb0, 0xf1e0f5, 0x45134f, 0xf2eaf4},
};

const QRgb disabledText = 0x9aa3ad;

// The sigma bar and marker. Sigma is violet (#6a3db8), not the blue #1f5fbf, because the bar
// often sits on a field framed in the user-edit blue; available is the same violet greyed,
// invalid crimson (next to, not the same as, the need-input red), a changed standard the
// standard-changed orange.
// One entry per sigma look after SigmaLook::none.
const QRgb sigmaColors[] = {0x807898, 0x6a3db8, 0xc2185b, 0xc06400};

// The compare-differs mark: magenta #e0129a, the one hue no other look uses, so the dashed frame
// reads over every fill (#c01ca8 came too close to the violets of sigma and a changed default).
const QRgb compareMark = 0xe0129a;

double relativeLuminance(const QColor& color)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) + 0.0722 * linear(color.blue());
}
} // namespace

VNStatusPalette::StatusLook VNStatusPalette::statusLook(VNWidgetStatus::StatusFlags flags)
{
    StatusLook result;
    result.compare = flags.testFlag(VNWidgetStatus::compareDifferent);
    if (result.compare)
        result.dominant = VNWidgetStatus::compareDifferent;
    if (const Rule<SigmaLook>* rule = firstMatch(sigmaRules, flags)) {
        result.sigma = rule->look;
        result.dominant = rule->bits;
    }
    if (const Rule<Look>* rule = firstMatch(lookRules, flags)) {
        result.look = rule->look;
        result.dominant = rule->bits;
    }
    return result;
}

QString VNStatusPalette::name(Look look)
{
    return QLatin1String(QMetaEnum::fromType<Look>().valueToKey(int(look)));
}

QString VNStatusPalette::name(SigmaLook sigma)
{
    return QLatin1String(QMetaEnum::fromType<SigmaLook>().valueToKey(int(sigma)));
}

VNStatusPalette::Colors VNStatusPalette::colors(Look look, bool enabled)
{
    if (look == Look::undef)
        return {};
    const LookColors& row = lookColors[int(look) - 1];
    return {QColor(row.frame), QColor(enabled ? row.fill : row.disabledFill),
            QColor(enabled ? row.text : disabledText)};
}

VNStatusPalette::Colors VNStatusPalette::colors(VNWidgetStatus::StatusFlags flags, bool enabled)
{
    return colors(statusLook(flags).look, enabled);
}

QColor VNStatusPalette::sigmaColor(SigmaLook sigma)
{
    return sigma == SigmaLook::none ? QColor() : QColor(sigmaColors[int(sigma) - 1]);
}

QColor VNStatusPalette::compareColor()
{
    return QColor(compareMark);
}

QColor VNStatusPalette::markColor(VNWidgetStatus::StatusFlags flags)
{
    const StatusLook look = statusLook(flags);
    if (look.look != Look::undef)
        return colors(look.look).frame;
    if (look.sigma != SigmaLook::none)
        return sigmaColor(look.sigma);
    return look.compare ? compareColor() : QColor();
}

double VNStatusPalette::contrastRatio(const QColor& first, const QColor& second)
{
    const double a = relativeLuminance(first);
    const double b = relativeLuminance(second);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}
