#pragma once

#include <FileConverterConfigurationInterface.h>

#include <QCoreApplication>

namespace Varnis {

// A dummy converter for the toolkit's file converter frame: it accepts text files (file type 12)
// that are not empty, pretends to work for two seconds in ten steps and reports every step.
class TestConverterConfig : public FileConverterConfigurationInterface
{
    Q_DECLARE_TR_FUNCTIONS(TestConverterConfig)

public:
    ~TestConverterConfig() override;

    void getInputFileSettings(QString& caption, QString& filter, QString& settingsKey) const override;
    void getOutputDirectorySettings(QString& caption, QString& settingsKey) const override;
    // Blocks the calling thread for ten steps of stepMilliseconds() each.
    int convert(const FileName& input, const QString& outputDirectory, FileConverterDialog* messageSink) override;

    static int stepMilliseconds();
    // Lets tests shorten the pretended work.
    static void setStepMilliseconds(int milliseconds);
};

} // namespace Varnis
