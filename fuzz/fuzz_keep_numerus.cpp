// Fuzzes mock Swedish with the numerus forms kept (TsFileRewriter::Forms::Keep) against the
// reference formulation, on text and on UTF-8 bytes.
#include "FuzzSupport.h"
#include "TranslationOracle.h"
#include "TsFileRewriter.h"

namespace {
QString keepingForms(const QString& content)
{
    return TsFileRewriter().processContent(content, TsFileRewriter::MockSwedish, TsFileRewriter::Forms::Keep);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString content = textOf(data, size);
    const QString result = keepingForms(content);
    // Without forms or numerus messages there is nothing to keep: the literal rule's output.
    if (!content.contains(QLatin1String("numerus=\"yes\"")) && !content.contains(QLatin1String("<lengthvariant")))
        FUZZ_CHECK(result == TsFileRewriter().processContent(content, TsFileRewriter::MockSwedish));
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    if (content.toUtf8() == bytes) {
        const QByteArray processed =
            TsFileRewriter().processUtf8(bytes, TsFileRewriter::MockSwedish, TsFileRewriter::Forms::Keep);
        FUZZ_CHECK(processed == result.toUtf8());
    }
    if (size <= oracleLimit)
        FUZZ_CHECK(result == TranslationOracle::processTsContent(content, 1, true));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    const QString content = textOf(seed);
    // Many messages, and one translation with very many forms.
    checkLinearGrowth(content, keepingForms);
    checkLinearGrowth(content, keepingForms, QStringLiteral("<message numerus=\"yes\"><source>x</source><translation>"),
                      QStringLiteral("</translation>"));
}
