#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileInfoList>
#include <QString>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

// Files that the translation tests make in a scratch directory and read back, and the real ones
// they read.
namespace ScratchFiles {

inline QString write(const QDir& directory, const QString& name, const QByteArray& content)
{
    const QString path = directory.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

inline QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

// Real Qt Linguist files beside the source tree, read-only; $TWC_TS_CORPUS names another folder
// for a checkout laid out differently.
#ifndef TRANSLATION_CORPUS_DIR
#define TRANSLATION_CORPUS_DIR TWC_SOURCE_DIR "/../shared/corpus/ts"
#endif
inline QFileInfoList corpusFiles()
{
    const QString folder = qEnvironmentVariable("TWC_TS_CORPUS", QStringLiteral(TRANSLATION_CORPUS_DIR));
    return QDir(folder).entryInfoList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
}

#ifdef Q_OS_UNIX
// Makes every write beyond limit bytes fail (with "File too large"), as a full disk would, while
// it lives; the signal such a write raises is ignored, so the write just fails.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t limit)
    {
        m_previousHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_previous);
        rlimit limited = m_previous;
        limited.rlim_cur = limit;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_previous);
        std::signal(SIGXFSZ, m_previousHandler);
    }

private:
    rlimit m_previous;
    void (*m_previousHandler)(int);
};
#endif

} // namespace ScratchFiles
