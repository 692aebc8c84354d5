#include "TestConverterConfig.h"

#include <FileConverterDialog.h>
#include <FileName.h>
#include <FileTypes.h>
#include <FileUtilities.h>

#include <QThread>

namespace Varnis {

namespace {
const int acceptedFileType = 12;
int stepDelay = 200;
} // namespace

TestConverterConfig::~TestConverterConfig() = default;

void TestConverterConfig::getInputFileSettings(QString& caption, QString& filter, QString& settingsKey) const
{
    caption = tr("Select test input file");
    filter = QString::fromStdString(getFileFilterForEnding(getEndingForFileType(acceptedFileType)));
    settingsKey = QStringLiteral("Test");
}

void TestConverterConfig::getOutputDirectorySettings(QString& caption, QString& settingsKey) const
{
    caption = tr("Select test output directory");
    settingsKey = QStringLiteral("Test");
}

int TestConverterConfig::convert(const FileName& input, const QString& /*outputDirectory*/,
                                 FileConverterDialog* messageSink)
{
    if (getFileType(input) != acceptedFileType || FileUtilities::isEmpty(input)) {
        messageSink->addMessage(QStringLiteral("The input file ") + QLatin1Char('"') + input.toString() +
                                QLatin1Char('"') + QStringLiteral(" is not valid."));
        return 2;
    }
    messageSink->addMessage(QStringLiteral("Start Convertion"));
    for (int step = 1; step <= 10; ++step) {
        QThread::msleep(static_cast<unsigned long>(stepDelay));
        messageSink->addMessage(QStringLiteral("In Progress... step %1/10").arg(step));
    }
    messageSink->addMessage(QStringLiteral("Convertion Finished - Yippie :-)"));
    return 0;
}

int TestConverterConfig::stepMilliseconds()
{
    return stepDelay;
}

void TestConverterConfig::setStepMilliseconds(int milliseconds)
{
    stepDelay = milliseconds;
}

} // namespace Varnis
