#include "HostApplication.h"

#include <QApplication>

namespace {
// Listing the buttons and writing screenshots need no display.
void preferOffscreenWithoutDisplay(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY") ||
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return;
    for (int index = 1; index < argc; ++index) {
        const QByteArray argument(argv[index]);
        if (argument == "--list" || argument.startsWith("--screenshot")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            return;
        }
    }
}
} // namespace

int main(int argc, char* argv[])
{
    preferOffscreenWithoutDisplay(argc, argv);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("testwidgetcollection"));
    HostApplication host;
    const int code = host.start(QApplication::arguments());
    return code >= 0 ? code : QApplication::exec();
}
