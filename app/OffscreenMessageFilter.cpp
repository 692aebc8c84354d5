#include "OffscreenMessageFilter.h"

#include <QRegularExpression>

namespace {
QtMessageHandler previousHandler = nullptr;

void filterMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!OffscreenMessageFilter::drops(type, message) && previousHandler)
        previousHandler(type, context, message);
}
} // namespace

void OffscreenMessageFilter::install()
{
    previousHandler = qInstallMessageHandler(filterMessage);
}

bool OffscreenMessageFilter::drops(QtMsgType type, const QString& message)
{
    static const QRegularExpression unsupported(QStringLiteral("^This plugin does not support \\w+\\(\\)$"));
    return type == QtWarningMsg && unsupported.match(message).hasMatch();
}
