#include "StatusSwatch.h"

const StatusSwatch::Part StatusSwatch::parts[4] = {Frame, Fill, Sigma, Compare};

QColor StatusSwatch::measured(Part part) const
{
    switch (part) {
    case Frame:
        return frame;
    case Fill:
        return fill;
    case Sigma:
        return sigma;
    case Compare:
        return compare;
    default:
        return QColor();
    }
}

QColor StatusSwatch::expected(Part part) const
{
    switch (part) {
    case Frame:
        return expectedFrame;
    case Fill:
        return expectedFill;
    case Sigma:
        return expectedSigma;
    case Compare:
        return expectedCompare;
    default:
        return QColor();
    }
}

QString StatusSwatch::partName(Part part)
{
    switch (part) {
    case Frame:
        return QStringLiteral("frame");
    case Fill:
        return QStringLiteral("fill");
    case Sigma:
        return QStringLiteral("sigma");
    case Compare:
        return QStringLiteral("compare");
    default:
        return QString();
    }
}

QJsonObject StatusSwatch::toJson() const
{
    const auto name = [](const QColor& color) { return color.isValid() ? color.name() : QString(); };
    QJsonObject object;
    for (Part part : parts) {
        if (!expected(part).isValid() && !measured(part).isValid())
            continue;
        object.insert(partName(part), QJsonObject{{QStringLiteral("measured"), name(measured(part))},
                                                  {QStringLiteral("expected"), name(expected(part))}});
    }
    if (text.isValid())
        object.insert(QStringLiteral("text"), text.name());
    object.insert(QStringLiteral("surround"), name(surround));
    object.insert(QStringLiteral("agrees"), agrees());
    return object;
}
