// Fuzzes TranslationFileTool::checkBracesInContent().
#include "FuzzSupport.h"
#include "TranslationFileTool.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString content = textOf(data, size);
    const TranslationFileTool tool;
    const bool balanced = tool.checkBracesInContent(content);
    // Balanced brackets come in pairs, and wrapping balanced text in a pair keeps it balanced.
    if (balanced) {
        FUZZ_CHECK(content.count(QLatin1Char('<')) == content.count(QLatin1Char('>')));
        FUZZ_CHECK(tool.checkBracesInContent(QLatin1Char('<') + content + QLatin1Char('>')));
    }
    // A leading '>' can close nothing.
    FUZZ_CHECK(!tool.checkBracesInContent(QLatin1Char('>') + content));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    const TranslationFileTool tool;
    checkLinearGrowth(textOf(seed), [&](const QString& text) { tool.checkBracesInContent(text); });
}
