#pragma once

// The host application run that the screenshot and object-map baselines come from: a fixed
// environment that sees neither the user's home, fonts, locale and time zone nor their Qt settings,
// so that every machine gives the same windows.

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

namespace ReproducibleRun {
const QString fontConfiguration = QStringLiteral(TWC_SOURCE_DIR "/autotests/app/screenshot-fonts.conf");
const QString fontFile = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");

inline bool isMachineSetting(const QString& name)
{
    for (const char* prefix : {"QT_", "LC_", "XDG_", "FONTCONFIG"}) {
        if (name.startsWith(QLatin1String(prefix)))
            return true;
    }
    for (const char* variable : {"LANG", "LANGUAGE", "TZ", "HOME", "DISPLAY", "WAYLAND_DISPLAY"}) {
        if (name == QLatin1String(variable))
            return true;
    }
    return false;
}

inline QProcessEnvironment environment(const QDir& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList names = environment.keys();
    for (const QString& name : names) {
        if (isMachineSetting(name))
            environment.remove(name);
    }
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home.filePath(QStringLiteral("cache")));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("FONTCONFIG_FILE"), fontConfiguration);
    return environment;
}

// Runs the host application with the arguments; false (with its error output as a warning) when
// it did not end successfully.
inline bool runHost(const QProcessEnvironment& environment, const QStringList& arguments)
{
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(QStringLiteral(HOST_EXECUTABLE), arguments);
    const bool ok = host.waitForFinished(240000) && host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0;
    if (!ok)
        qWarning("%s", host.readAllStandardError().constData());
    return ok;
}
} // namespace ReproducibleRun
