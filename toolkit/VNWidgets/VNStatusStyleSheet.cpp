#include "VNStatusStyleSheet_p.h"

#include "VNStatusPalette.h"

#include <QMetaEnum>
#include <QStringList>

namespace {
using Look = VNStatusPalette::Look;
using SigmaLook = VNStatusPalette::SigmaLook;

// Every widget family that shows the status looks in its own frame.
const char* const fieldFamilies[] = {"QLineEdit", "QAbstractSpinBox", "QComboBox", "QPushButton",   "QToolButton",
                                     "QCheckBox", "QRadioButton",     "QTextEdit", "QPlainTextEdit"};
const char* const disclosureHead = "VNProgressiveDisclosureBtn";

// Every look of the enumeration but the one that shows nothing.
template<typename E>
QList<E> shownLooks()
{
    const QMetaEnum looks = QMetaEnum::fromType<E>();
    QList<E> shown;
    for (int index = 1; index < looks.keyCount(); ++index)
        shown << E(looks.value(index));
    return shown;
}

QString attribute(const char* property, const QString& value)
{
    return QStringLiteral("[%1=\"%2\"]").arg(QLatin1String(property), value);
}

QString lookSelector(Look look)
{
    return attribute("statusLook", VNStatusPalette::name(look));
}

QString sigmaSelector(SigmaLook sigma)
{
    return attribute("sigmaLook", VNStatusPalette::name(sigma));
}

QString compareSelector()
{
    return attribute("compareDiffers", QStringLiteral("true"));
}

QString rule(const QStringList& selectors, const QStringList& declarations)
{
    return selectors.join(QStringLiteral(",\n")) + QStringLiteral(" {\n    ") +
           declarations.join(QStringLiteral(";\n    ")) + QStringLiteral(";\n}\n\n");
}

QStringList fields(const QString& suffix)
{
    QStringList selectors;
    for (const char* family : fieldFamilies)
        selectors << QLatin1String(family) + suffix;
    return selectors;
}

QString declaration(const char* property, const QColor& color)
{
    return QStringLiteral("%1: %2").arg(QLatin1String(property), color.name());
}

QString dashed(const char* edge, const QColor& color)
{
    return QStringLiteral("border-%1: 2px dashed %2").arg(QLatin1String(edge), color.name());
}

QString bar(int width, const QColor& color)
{
    return QStringLiteral("border-left: %1px solid %2").arg(width).arg(color.name());
}

// Fields: the main look colours frame, fill and text; the border widths stay, so nothing moves.
QString fieldLooks()
{
    QString text;
    for (Look look : shownLooks<Look>()) {
        const VNStatusPalette::Colors colors = VNStatusPalette::colors(look);
        text += rule(fields(lookSelector(look)),
                     {declaration("background-color", colors.fill), declaration("border-color", colors.frame),
                      declaration("color", colors.text)});
        const VNStatusPalette::Colors disabled = VNStatusPalette::colors(look, false);
        text += rule(fields(lookSelector(look) + QStringLiteral(":disabled")),
                     {declaration("background-color", disabled.fill), declaration("color", disabled.text)});
    }
    return text;
}

// The sigma bar widens the left border to 5 px and takes the 4 px from the padding.
QString fieldSigmaBars()
{
    QString text;
    QStringList pushButtons;
    for (SigmaLook sigma : shownLooks<SigmaLook>()) {
        text += rule(fields(sigmaSelector(sigma)),
                     {bar(5, VNStatusPalette::sigmaColor(sigma)), QStringLiteral("padding-left: 1px")});
        pushButtons << QStringLiteral("QPushButton") + sigmaSelector(sigma);
    }
    return text + rule(pushButtons, {QStringLiteral("padding-left: 6px")});
}

// The compare mark: a 2 px dashed frame over every other look; the left edge keeps a sigma bar
// and turns dashed only without one. Each family's padding gives back the extra pixel.
QString fieldCompareFrames()
{
    const QColor mark = VNStatusPalette::compareColor();
    const QString compare = compareSelector();
    const QString withoutSigma = compare + sigmaSelector(SigmaLook::none);
    return rule(fields(compare),
                {dashed("top", mark), dashed("right", mark), dashed("bottom", mark), QStringLiteral("padding-top: 0px"),
                 QStringLiteral("padding-right: 1px"), QStringLiteral("padding-bottom: 0px")}) +
           rule({QStringLiteral("QPushButton") + compare},
                {QStringLiteral("padding-top: 1px"), QStringLiteral("padding-right: 6px"),
                 QStringLiteral("padding-bottom: 1px")}) +
           rule({QStringLiteral("QToolButton") + compare},
                {QStringLiteral("border-bottom-width: 1px"), QStringLiteral("padding-bottom: 0px")}) +
           rule({QStringLiteral("QComboBox") + compare}, {QStringLiteral("padding-right: 17px")}) +
           rule({QStringLiteral("QToolButton") + compare + attribute("popupMode", QStringLiteral("1"))},
                {QStringLiteral("padding-right: 13px")}) +
           rule(fields(withoutSigma), {dashed("left", mark), QStringLiteral("padding-left: 4px")}) +
           rule({QStringLiteral("QPushButton") + withoutSigma}, {QStringLiteral("padding-left: 9px")});
}

// The head of a progressive disclosure paints its content at fixed places, so its borders move
// nothing: the main look as fill and a 3 px bar, sigma as a 5 px bar, the compare mark as a frame.
QString disclosureHeads()
{
    const QString head = QLatin1String(disclosureHead);
    QString text;
    for (Look look : shownLooks<Look>()) {
        const VNStatusPalette::Colors colors = VNStatusPalette::colors(look);
        text += rule({head + lookSelector(look)}, {declaration("background-color", colors.fill), bar(3, colors.frame),
                                                   declaration("color", colors.text)});
        const VNStatusPalette::Colors disabled = VNStatusPalette::colors(look, false);
        text += rule({head + lookSelector(look) + QStringLiteral(":disabled")},
                     {declaration("background-color", disabled.fill), declaration("color", disabled.text)});
    }
    for (SigmaLook sigma : shownLooks<SigmaLook>())
        text += rule({head + sigmaSelector(sigma)}, {bar(5, VNStatusPalette::sigmaColor(sigma))});
    const QColor mark = VNStatusPalette::compareColor();
    return text +
           rule({head + compareSelector()}, {dashed("top", mark), dashed("right", mark), dashed("bottom", mark)});
}
} // namespace

QString VNStatusStyleSheet::marker()
{
    return QStringLiteral("/* @STATUS_RULES@ */");
}

QString VNStatusStyleSheet::rules()
{
    return QStringLiteral("/* ---- status looks: written from VNStatusPalette when the toolkit is built ---- */\n\n") +
           fieldLooks() + fieldSigmaBars() + fieldCompareFrames() + disclosureHeads();
}

QString VNStatusStyleSheet::complete(const QString& handWritten)
{
    const int at = handWritten.indexOf(marker());
    if (at < 0)
        return QString();
    QString sheet = handWritten;
    return sheet.replace(at, marker().size(), rules().trimmed());
}
