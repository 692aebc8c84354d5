#pragma once

#include <QString>

/*
  The translation transformations written as plain in-place QRegExp
  search-and-replace loops, exactly as they are defined. Quadratic on large
  inputs; the tests use it as the reference for TranslationFileTool.
*/
class TranslationOracle
{
public:
    // With keepForms, mock Swedish (mode 1) fills the numerus forms and length variants instead.
    static QString processTsContent(const QString& content, int mode, bool keepForms = false);
    static QString replaceTrCalls(const QString& content, const QString& context);
    static QString mockSwedish(const QString& source);
    static bool isBlank(const QString& text);
};
