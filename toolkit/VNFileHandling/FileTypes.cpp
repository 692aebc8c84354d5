#include "FileTypes.h"

#include <QString>

#include <array>

namespace {
struct FileTypeEntry
{
    int type;
    const char* ending;
    const char* filterName;
    const char* otherEnding;
};

constexpr std::array<FileTypeEntry, 13> fileTypes{{
    {FileTypeSvg, "svg", "SVG images", nullptr},
    {FileTypePng, "png", "PNG images", nullptr},
    {FileTypeJpeg, "jpg", "JPEG images", "jpeg"},
    {FileTypeXpm, "xpm", "XPM images", nullptr},
    {FileTypeCsv, "csv", "CSV tables", nullptr},
    {FileTypeXml, "xml", "XML documents", nullptr},
    {FileTypeJson, "json", "JSON documents", nullptr},
    {FileTypeStep, "stp", "STEP models", "step"},
    {FileTypeIges, "igs", "IGES models", "iges"},
    {FileTypeStl, "stl", "STL meshes", nullptr},
    {FileTypeDxf, "dxf", "DXF drawings", nullptr},
    {FileTypeText, "txt", "Text files", "text"},
    {FileTypePdf, "pdf", "PDF documents", nullptr},
}};
} // namespace

int getFileType(const Varnis::FileName& file)
{
    const std::string ending = file.suffix().toLower().toStdString();
    if (ending.empty())
        return FileTypeUnknown;
    for (const FileTypeEntry& entry : fileTypes) {
        if (ending == entry.ending || (entry.otherEnding && ending == entry.otherEnding))
            return entry.type;
    }
    return FileTypeUnknown;
}

std::string getEndingForFileType(int type)
{
    for (const FileTypeEntry& entry : fileTypes) {
        if (entry.type == type)
            return entry.ending;
    }
    return std::string();
}

std::string getFileFilterForEnding(const std::string& ending)
{
    if (ending.empty())
        return "All files (*)";
    for (const FileTypeEntry& entry : fileTypes) {
        if (ending == entry.ending)
            return std::string(entry.filterName) + " (*." + ending + ")";
    }
    return "Files (*." + ending + ")";
}
