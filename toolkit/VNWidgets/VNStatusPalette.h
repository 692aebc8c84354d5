#pragma once

#include "VNWidgetStatus.h"
#include "vnwidgets_export.h"

#include <QColor>
#include <QObject>
#include <QString>

// The colours of the status looks, in one table: the style sheet's status rules are written from
// it when the toolkit is built, and every widget that paints a status itself reads it.
//
// A status word shows up to three layers, and statusLook() alone decides which:
// - the main look: frame, fill and text of the widget (Look);
// - the sigma bar on the left edge (SigmaLook);
// - the dashed compare-differs mark on top of both.
// Where a widget has room for one colour only (a header band, a bar in front of a list item),
// it shows markColor(): the main look's frame, else the sigma bar, else the compare mark.
//
// To check a painted widget against the palette, take statusLook() of its word, then colors()
// (with the widget's enabled state), sigmaColor() and compareColor() for what it must show. Every
// frame, sigma bar and mark stands at 3:1 or more against the window and view backgrounds, every
// enabled text at 4.5:1 or more on its fill (contrastRatio()); the palette's own test holds it there.
class VNWIDGETS_EXPORT VNStatusPalette
{
    Q_GADGET
public:
    // The enumerator names are the values of the statusLook and sigmaLook properties.
    enum class Look
    {
        undef,
        needInput,
        userEdit,
        different,
        standardDefined,
        standardChanged,
        standardLocked,
        standardChangedLocked,
        standardDefault,
        standardDefaultChanged
    };
    Q_ENUM(Look)

    enum class SigmaLook
    {
        none,
        available,
        active,
        invalid,
        standardChanged
    };
    Q_ENUM(SigmaLook)

    struct StatusLook
    {
        Look look = Look::undef;
        SigmaLook sigma = SigmaLook::none;
        bool compare = false;
        // The status whose look dominates the word, for widgets that can show one status only:
        // the bits of its main look, else its sigma bit, else the compare bit.
        VNWidgetStatus::Status dominant = VNWidgetStatus::undef;
    };

    // The colours of a main look; all invalid for Look::undef, which keeps the widget's own.
    struct Colors
    {
        QColor frame;
        QColor fill;
        QColor text;
        bool isValid() const { return frame.isValid(); }
    };

    // The one decision which looks a status word shows; VNWidgetStatus::lookName(),
    // sigmaLookName() and getDominantStatusFromFlag() only read its result.
    static StatusLook statusLook(VNWidgetStatus::StatusFlags flags);

    // The enumerator's name, as the style sheet selects on it ("standardLocked", "active").
    static QString name(Look look);
    static QString name(SigmaLook sigma);

    // A disabled widget keeps its frame and marks, so the status still reads; its fill fades and
    // its text greys.
    static Colors colors(Look look, bool enabled = true);
    static Colors colors(VNWidgetStatus::StatusFlags flags, bool enabled = true);
    // Invalid for SigmaLook::none.
    static QColor sigmaColor(SigmaLook sigma);
    static QColor compareColor();
    // Invalid for a word that shows nothing.
    static QColor markColor(VNWidgetStatus::StatusFlags flags);

    // The WCAG contrast ratio of two colours (1 to 21), from their relative luminance.
    static double contrastRatio(const QColor& first, const QColor& second);
};
