#include "HostApplication.h"

#include <QApplication>

namespace {
bool hasOption(int argc, char* argv[], const QByteArray& option)
{
    for (int index = 1; index < argc; ++index) {
        const QByteArray argument(argv[index]);
        if (argument == option || argument.startsWith(option + '='))
            return true;
    }
    return false;
}

// Listing the buttons and writing screenshots need no display.
void preferOffscreenWithoutDisplay(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY") ||
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return;
    if (hasOption(argc, argv, "--list") || hasOption(argc, argv, "--screenshot") ||
        hasOption(argc, argv, "--object-map"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// Screenshots and object maps give the same pixels and geometry on every machine: one device pixel
// per logical pixel and 96 dots per inch for fonts, whatever the screen and the user's settings.
void fixDevicePixelRatio(int argc, char* argv[])
{
    if (!hasOption(argc, argv, "--screenshot") && !hasOption(argc, argv, "--object-map"))
        return;
    for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
                                 "QT_ENABLE_HIGHDPI_SCALING", "QT_DEVICE_PIXEL_RATIO"})
        qunsetenv(variable);
    qputenv("QT_FONT_DPI", "96");
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, false);
}
} // namespace

int main(int argc, char* argv[])
{
    preferOffscreenWithoutDisplay(argc, argv);
    fixDevicePixelRatio(argc, argv);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("testwidgetcollection"));
    HostApplication host;
    const int code = host.start(QApplication::arguments());
    return code >= 0 ? code : QApplication::exec();
}
