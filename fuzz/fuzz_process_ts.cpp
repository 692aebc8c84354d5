// Fuzzes TsFileRewriter::processContent(): the first byte picks the mode (fix tags, mock Swedish, an
// unknown one, or mock Swedish with the numerus forms kept), the rest is the .ts content.
#include "FuzzSupport.h"
#include "TranslationOracle.h"
#include "TsFileRewriter.h"

namespace {
const int unknownMode = 2;
const int keepingForms = 3;

TsFileRewriter::Mode modeOf(int mode)
{
    return mode == keepingForms ? TsFileRewriter::MockSwedish : TsFileRewriter::Mode(mode);
}

TsFileRewriter::Forms formsOf(int mode)
{
    return mode == keepingForms ? TsFileRewriter::Forms::Keep : TsFileRewriter::Forms::Flatten;
}

QString processed(const QString& content, int mode)
{
    return TsFileRewriter().processContent(content, modeOf(mode), formsOf(mode));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const int mode = data[0] % 4;
    const QString content = textOf(data + 1, size - 1);
    const QString result = processed(content, mode);
    if (mode == unknownMode || !content.contains(QLatin1String("<source>")))
        FUZZ_CHECK(result == content);
    // Without numerus messages or length variants there are no forms to keep.
    if (mode == keepingForms && !content.contains(QLatin1String("numerus=\"yes\"")) &&
        !content.contains(QLatin1String("<lengthvariant")))
        FUZZ_CHECK(result == processed(content, TsFileRewriter::MockSwedish));
    // Valid UTF-8 is processed as bytes, with the same result.
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, int(size - 1));
    if (content.toUtf8() == bytes)
        FUZZ_CHECK(TsFileRewriter().processUtf8(bytes, modeOf(mode), formsOf(mode)) == result.toUtf8());
    if (mode != unknownMode && size <= oracleLimit)
        FUZZ_CHECK(result == TranslationOracle::processTsContent(content, modeOf(mode), mode == keepingForms));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    if (seed.isEmpty())
        return;
    const int mode = uchar(seed.at(0)) % 4;
    const QString content = textOf(seed.mid(1));
    // Many entries (or broken ones), one huge source text, and one translation with very many forms.
    if (mode != unknownMode)
        checkLinearGrowth(content, [&](const QString& text) { processed(text, mode); });
    checkLinearGrowth(
        content, [&](const QString& text) { processed(text, TsFileRewriter::MockSwedish); }, QStringLiteral("<source>"),
        QStringLiteral("</source><translation></translation>"));
    if (mode == keepingForms)
        checkLinearGrowth(
            content, [&](const QString& text) { processed(text, keepingForms); },
            QStringLiteral("<message numerus=\"yes\"><source>x</source><translation>"),
            QStringLiteral("</translation>"));
}
