#pragma once

#include <QDir>
#include <QProcessEnvironment>

// The fixed environment in which the screenshot comparison and the look audit run the host: its
// own home, C.UTF-8, UTC and only the fonts of Debian's fonts-dejavu-core, so that neither the
// machine's nor the user's settings reach a pixel.
namespace ReproducibleEnvironment {

inline const QString fontConfiguration()
{
    return QStringLiteral(TWC_SOURCE_DIR "/autotests/app/screenshot-fonts.conf");
}

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

inline QProcessEnvironment forHome(const QDir& home)
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
    environment.insert(QStringLiteral("FONTCONFIG_FILE"), fontConfiguration());
    return environment;
}

} // namespace ReproducibleEnvironment
