#include "TranslationMessages.h"

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
