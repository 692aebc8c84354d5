#pragma once

#include "FileName.h"
#include "vnfilehandling_export.h"

#include <string>

// The file types the toolkit knows, each with its preferred ending (suffix) and the name shown in
// file dialog filters. The numbers are stable: converters name the types they accept by them.
enum FileType
{
    FileTypeUnknown = 0,
    FileTypeSvg = 1,
    FileTypePng = 2,
    FileTypeJpeg = 3,
    FileTypeXpm = 4,
    FileTypeCsv = 5,
    FileTypeXml = 6,
    FileTypeJson = 7,
    FileTypeStep = 8,
    FileTypeIges = 9,
    FileTypeStl = 10,
    FileTypeDxf = 11,
    FileTypeText = 12,
    FileTypePdf = 13,
};

// The type of a file from its ending (letter case ignored; "jpeg", "step", "iges" and "text" are
// recognised too); FileTypeUnknown for any other ending or none.
VNFILEHANDLING_EXPORT int getFileType(const Varnis::FileName& file);

// The preferred ending of a type, without the dot ("txt" for FileTypeText); empty for an unknown type.
VNFILEHANDLING_EXPORT std::string getEndingForFileType(int type);

// A file dialog filter for an ending: "Text files (*.txt)" for "txt"; an ending of no known type
// gives "Files (*.<ending>)", and an empty ending "All files (*)".
VNFILEHANDLING_EXPORT std::string getFileFilterForEnding(const std::string& ending);
