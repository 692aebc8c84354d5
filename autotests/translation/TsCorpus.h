#pragma once

#include <QDir>
#include <QFileInfoList>
#include <QString>

// Real Qt Linguist files beside the source tree, read-only; $TWC_TS_CORPUS names another folder
// for a checkout laid out differently.
namespace TsCorpus {

inline QFileInfoList files()
{
    QString folder = qEnvironmentVariable("TWC_TS_CORPUS");
#if defined(TRANSLATION_CORPUS_DIR)
    if (folder.isEmpty())
        folder = QStringLiteral(TRANSLATION_CORPUS_DIR);
#else
    if (folder.isEmpty())
        folder = QStringLiteral(TWC_SOURCE_DIR "/../shared/corpus/ts");
#endif
    return QDir(folder).entryInfoList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
}

} // namespace TsCorpus
