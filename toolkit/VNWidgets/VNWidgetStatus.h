#pragma once

#include "vnwidgets_export.h"

#include <QFlags>
#include <QObject>
#include <QString>

class QWidget;

// The status bits that select how an input widget looks. Toolkit widgets keep them through
// VNWidgetInterface; plain Qt widgets carry them as dynamic properties that the style sheet reads.
//
// Which looks a word shows, and in which colours, is decided in one place: VNStatusPalette. The
// functions here that name a look or a dominant status are views of that one decision:
// - lookName() names the main look (fill, frame and text colour), most urgent first: needInput,
//   different, the standard states, userEdit, else "undef" (the plain frame);
// - sigmaLookName() names the bar on the left edge ("none" without sigma);
// - compareDifferent adds a dashed frame on top of both;
// - getDominantStatusFromFlag() gives the status whose look dominates, for widgets that can show
//   one status only.
// A status never changes a widget's size or position: looks change colours, and where a border
// grows, the padding shrinks by as much.
class VNWIDGETS_EXPORT VNWidgetStatus
{
    Q_GADGET
public:
    enum Status
    {
        undef = 0x0,
        userEdit = 0x2,
        needInput = 0x20,
        sigmaAvailable = 0x40,
        sigmaStandardChanged = 0x80,
        sigmaOn = 0x100,
        sigmaError = 0x200,
        different = 0x400,
        compareDifferent = 0x800,
        standardEnabled = 0x1000,
        standardDefined = 0x2000,
        standardDefault = 0x4000,
        standardDefaultChanged = 0x8000,
        standardDeviate = 0x10000,
        standardLocked = 0x20000,
        standardChanged = standardDeviate | standardDefined,
        standardChangedLocked = standardDeviate | standardLocked
    };
    Q_DECLARE_FLAGS(StatusFlags, Status)
    Q_FLAG(StatusFlags)

    // Names of the dynamic properties that the style sheet selects on.
    static const char* const statusPropertyName;    // int: the whole status word
    static const char* const lookPropertyName;      // string: the main look ("needInput", "standardLocked", ...)
    static const char* const sigmaLookPropertyName; // string: the sigma look ("none", "available", "active", ...)
    static const char* const comparePropertyName;   // bool: the compare-differs frame

    static void setFlag(StatusFlags& flags, Status flag, bool on);
    static StatusFlags setFlag(StatusFlags flags, StatusFlags flag, bool on);
    static Status getDominantStatusFromFlag(StatusFlags flags);

    static QString lookName(StatusFlags flags);
    static QString sigmaLookName(StatusFlags flags);
    static QString debugStatusFlag(StatusFlags flags);

    // For plain Qt widgets: stores the word in the dynamic properties and repolishes.
    static void setStatusProperty(QWidget* widget, StatusFlags flags);
    static void setStatusProperty(QWidget* widget, Status flag, bool on);
    static StatusFlags statusFromProperty(const QWidget* widget);

    // Re-applies the style sheet to a widget after one of the properties above changed.
    static void repolish(QWidget* widget);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VNWidgetStatus::StatusFlags)
Q_DECLARE_METATYPE(VNWidgetStatus::StatusFlags)
