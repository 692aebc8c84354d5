#pragma once

#include "vnuitools_export.h"

#include <QString>

namespace Varnis {

class FileName;
class FileConverterDialog;
class PathProvider;

// What a concrete converter tells the toolkit's file converter frame: how to ask for the input
// file and the output directory, and how to convert.
class VNUITOOLS_EXPORT FileConverterConfigurationInterface
{
public:
    virtual ~FileConverterConfigurationInterface();

    virtual void getInputFileSettings(QString& caption, QString& filter, QString& settingsKey) const = 0;
    virtual void getOutputDirectorySettings(QString& caption, QString& settingsKey) const = 0;
    // Supplies remembered start directories; none by default.
    virtual PathProvider* getPathProvider() const;
    // Returns 0 on success; the frame shows any other value as a failure.
    virtual int convert(const FileName& input, const QString& outputDirectory, FileConverterDialog* messageSink) = 0;
};

} // namespace Varnis
