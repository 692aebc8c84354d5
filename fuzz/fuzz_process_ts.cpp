// Fuzzes TsFileRewriter::processContent(): the first byte picks the mode (fix tags, mock Swedish or
// an unknown one), the rest is the .ts content.
#include "FuzzSupport.h"
#include "TranslationOracle.h"
#include "TsFileRewriter.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const auto mode = TsFileRewriter::Mode(data[0] % 3);
    const QString content = textOf(data + 1, size - 1);
    const QString result = TsFileRewriter().processContent(content, mode);
    if (mode == 2 || !content.contains(QLatin1String("<source>")))
        FUZZ_CHECK(result == content);
    // Valid UTF-8 is processed as bytes, with the same result.
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, int(size - 1));
    if (content.toUtf8() == bytes)
        FUZZ_CHECK(TsFileRewriter().processUtf8(bytes, mode) == result.toUtf8());
    if (mode != 2 && size <= oracleLimit)
        FUZZ_CHECK(result == TranslationOracle::processTsContent(content, mode));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    if (seed.isEmpty())
        return;
    const TsFileRewriter rewriter;
    const auto mode = TsFileRewriter::Mode(uchar(seed.at(0)) % 3);
    const QString content = textOf(seed.mid(1));
    // Many entries (or broken ones), and one huge source text.
    if (mode != 2)
        checkLinearGrowth(content, [&](const QString& text) { rewriter.processContent(text, mode); });
    checkLinearGrowth(
        content, [&](const QString& text) { rewriter.processContent(text, TsFileRewriter::MockSwedish); },
        QStringLiteral("<source>"), QStringLiteral("</source><translation></translation>"));
}
