// Fuzzes TranslationFileTool::mockSwedish() against the reference transformation.
#include "FuzzSupport.h"
#include "TranslationFileTool.h"
#include "TranslationOracle.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString source = textOf(data, size);
    const QString result = TranslationFileTool().mockSwedish(source);
    if (source.isEmpty() || source.contains(QLatin1String("html"), Qt::CaseInsensitive))
        FUZZ_CHECK(result == source);
    else
        FUZZ_CHECK(result.startsWith(QStringLiteral("ü")));
    // Valid UTF-8 is transformed as bytes, with the same result.
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    if (source.toUtf8() == bytes)
        FUZZ_CHECK(TranslationFileTool().mockSwedishUtf8(bytes) == result.toUtf8());
    if (size <= oracleLimit)
        FUZZ_CHECK(result == TranslationOracle::mockSwedish(source));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    const TranslationFileTool tool;
    checkLinearGrowth(textOf(seed), [&](const QString& text) { tool.mockSwedish(text); });
    checkLinearGrowth(textOf(seed), [&](const QString& text) { tool.mockSwedishUtf8(text.toUtf8()); });
}
