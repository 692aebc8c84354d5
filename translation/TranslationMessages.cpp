#include "TranslationMessages.h"

#include <QFileInfo>

QString TranslationMessages::choosePathFirst()
{
    return tr("Please choose a file path before starting the translation.");
}

QString TranslationMessages::braceCounts(int opening, int closing)
{
    QString message = tr("The file contains:\n%1 opening braces and \n%2 closing braces.").arg(opening).arg(closing);
    if (opening != closing)
        message += tr("\nSomething went terribly wrong...");
    return message;
}

QString TranslationMessages::numerusCount(int count)
{
    return tr("The file contains:\n%1 numerus cases.").arg(count);
}

QString TranslationMessages::braceCheck(bool correct)
{
    return correct ? tr("The file's braces are correct.") : tr("The file's braces are incorrect.");
}

QString TranslationMessages::featureDisabled()
{
    return tr("This feature is disabled.");
}

QString TranslationMessages::unfinishedCount(int count)
{
    return QString::number(count) + tr(" strings are not translated yet.");
}

QString TranslationMessages::processing()
{
    return tr("Processing...");
}

QString TranslationMessages::translated(bool succeeded)
{
    return succeeded ? tr("The file was translated successfully.")
                     : tr("An error occurred. The file could not be translated.");
}

QString TranslationMessages::processingFile(const QString& filePath)
{
    return tr("Processing:\n") + filePath;
}

QString TranslationMessages::replacingFinished()
{
    return tr("Replacing finished.");
}

QString TranslationMessages::sourcePathNotSet()
{
    return tr("The environment variable $VN_TRANSLATION_SOURCE_PATH$ is not set. Set the variable first.");
}

QString TranslationMessages::notADirectory(const QString& path)
{
    return tr("\"%1\" is not a directory.").arg(path);
}

QString TranslationMessages::fileProblem(const TextFileIo::Result& result)
{
    using TextFileIo::Status;
    const QString& path = result.path;
    const bool exists = QFileInfo::exists(path);
    switch (result.status) {
    case Status::Ok:
        return QString();
    case Status::Excluded:
        return tr("\"%1\" was skipped: files whose names start with \"Rg\" or \"rg\" are never read.").arg(path);
    case Status::Missing:
        return tr("\"%1\" does not exist.").arg(path);
    case Status::NotRegularFile:
        return tr("\"%1\" is not a regular file.").arg(path);
    case Status::NotReadable:
        return tr("\"%1\" could not be read: %2").arg(path, result.detail);
    case Status::TooLarge:
        return tr("\"%1\" is larger than 128 MiB.").arg(path);
    case Status::SizeChanged:
        return tr("\"%1\" could not be read completely: it is not an ordinary file, or it changed while it was read.")
            .arg(path);
    case Status::Empty:
        return tr("\"%1\" is empty.").arg(path);
    case Status::Undecodable:
        return tr("\"%1\" is not valid %2 text; it was not processed and was left unchanged.").arg(path, result.detail);
    case Status::UnknownMode:
        return tr("\"%1\" was not processed: unknown mode.").arg(path);
    case Status::ReadOnly:
        return exists ? tr("\"%1\" was left unchanged: the file is read-only.").arg(path)
                      : tr("\"%1\" could not be created: its folder is read-only.").arg(path);
    case Status::WriteFailed:
        return exists ? tr("Writing \"%1\" failed (%2); the file was left as it was.").arg(path, result.detail)
                      : tr("Writing \"%1\" failed (%2); no file was left behind.").arg(path, result.detail);
    case Status::RestoreFailed:
        return result.detail.isEmpty()
                   ? tr("Writing \"%1\" failed, and its earlier content could not be written back or saved.").arg(path)
                   : tr("Writing \"%1\" failed, and its earlier content could not be written back; "
                        "a copy of it is in \"%2\".")
                         .arg(path, result.detail);
    }
    return QString();
}
