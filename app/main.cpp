#include "HostApplication.h"
#include "OffscreenMessageFilter.h"
#include "QtCompat.h"

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

QByteArray optionValue(int argc, char* argv[], const QByteArray& option)
{
    for (int index = 1; index < argc; ++index) {
        const QByteArray argument(argv[index]);
        if (argument == option && index + 1 < argc)
            return QByteArray(argv[index + 1]);
        if (argument.startsWith(option + '='))
            return argument.mid(option.size() + 1);
    }
    return QByteArray();
}

bool isReproducibleRun(int argc, char* argv[])
{
    return hasOption(argc, argv, "--screenshot") || hasOption(argc, argv, "--object-map") ||
           hasOption(argc, argv, "--audit");
}

bool needsNoDisplay(int argc, char* argv[])
{
    return hasOption(argc, argv, "--list") || hasOption(argc, argv, "--help") || hasOption(argc, argv, "-h");
}

// Listing the buttons and the help need no display. Screenshots and object maps are taken
// offscreen unless a platform is asked for: there no real mouse hovers a widget and no window
// manager moves windows.
void choosePlatform(int argc, char* argv[])
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (isReproducibleRun(argc, argv) || (needsNoDisplay(argc, argv) && !hasDisplay))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// Screenshots and object maps give the same pixels and geometry on every machine: one device pixel
// per logical pixel (or as many as --scale asks for), 96 dots per inch for fonts, UTC, a fixed
// order of hashes, and neither the user's style nor desktop theme, whatever the screen and the
// user's settings.
void fixReproducibleEnvironment(int argc, char* argv[])
{
    if (!isReproducibleRun(argc, argv))
        return;
    for (const char* variable :
         {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING",
          "QT_DEVICE_PIXEL_RATIO", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME"})
        qunsetenv(variable);
    qputenv("QT_FONT_DPI", "96");
    qputenv("TZ", "UTC");
    // Whatever shows the contents of a hash or set shows them in the same order in every run.
    qSetGlobalQHashSeed(0);
    QtCompat::disableHighDpiScaling();
    // --scale N draws every window for a screen of N device pixels per pixel, icons included.
    const QByteArray scale = optionValue(argc, argv, "--scale");
    const bool scaled = !scale.isEmpty() && scale != "1";
    if (scaled)
        qputenv("QT_SCALE_FACTOR", scale);
    QtCompat::useHighDpiPixmaps(scaled);
}

// The collection paints with the raster engine only; loading the X server's OpenGL integration for
// the first window would cost more than building the whole panel. A user's own choice stands.
void skipOpenGlIntegration()
{
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");
}
} // namespace

int main(int argc, char* argv[])
{
    choosePlatform(argc, argv);
    fixReproducibleEnvironment(argc, argv);
    skipOpenGlIntegration();
    QApplication application(argc, argv);
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        OffscreenMessageFilter::install();
    QApplication::setApplicationName(QStringLiteral("testwidgetcollection"));
    HostApplication host;
    const int code = host.start(QApplication::arguments());
    return code >= 0 ? code : QApplication::exec();
}
