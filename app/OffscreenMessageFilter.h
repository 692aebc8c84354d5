#pragma once

#include <QString>
#include <QtGlobal>

// The headless platform warns "This plugin does not support raise()" (or propagateSizeHints(), ...)
// for nearly every window it shows, which buries what a screenshot or object-map run has to say.
// The filter drops exactly those warnings and hands every other message to the handler that was
// installed before.
class OffscreenMessageFilter
{
public:
    static void install();
    static bool drops(QtMsgType type, const QString& message);
};
