#include "AuditFinding.h"

#include <QWidget>

const QString AuditFinding::statusCheck = QStringLiteral("status");
const QString AuditFinding::contrastCheck = QStringLiteral("contrast");
const QString AuditFinding::keyboardCheck = QStringLiteral("keyboard");
const QString AuditFinding::namesCheck = QStringLiteral("names");
const QString AuditFinding::densityCheck = QStringLiteral("density");

QJsonObject AuditFinding::toJson() const
{
    QJsonObject object{{QStringLiteral("window"), window},    {QStringLiteral("objectName"), objectName},
                       {QStringLiteral("check"), check},      {QStringLiteral("rule"), rule},
                       {QStringLiteral("message"), message},  {QStringLiteral("measured"), measured},
                       {QStringLiteral("expected"), expected}};
    if (!allowedBecause.isEmpty())
        object.insert(QStringLiteral("allowedBecause"), allowedBecause);
    return object;
}

AuditFinding AuditFinding::aboutWidget(const QString& window, QWidget* widget, const QString& check,
                                       const QString& rule, const QString& message)
{
    AuditFinding result;
    result.window = window;
    result.objectName = nameOf(widget);
    result.check = check;
    result.rule = rule;
    result.message = message;
    result.measured.insert(QStringLiteral("class"), QString::fromLatin1(widget->metaObject()->className()));
    result.crop = widget->grab().toImage();
    return result;
}

QString AuditFinding::nameOf(const QWidget* widget)
{
    if (!widget)
        return QString();
    if (!widget->objectName().isEmpty())
        return widget->objectName();
    const QString className = QString::fromLatin1(widget->metaObject()->className());
    for (const QWidget* ancestor = widget->parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        if (!ancestor->objectName().isEmpty())
            return ancestor->objectName() + QLatin1Char('/') + className;
        if (ancestor->isWindow())
            break;
    }
    return className;
}
