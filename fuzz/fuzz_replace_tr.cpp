// Fuzzes TrCallRewriter::rewriteContent() against the QRegExp reference.
#include "FuzzSupport.h"
#include "TrCallRewriter.h"
#include "TranslationOracle.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString content = textOf(data, size);
    const QString context = QStringLiteral("FuzzDialog");
    const QString result = TrCallRewriter().rewriteContent(content, context);
    // A text without "tr" cannot change. (A call may shrink: the blanks before its parenthesis go.)
    if (!content.contains(QLatin1String("tr")))
        FUZZ_CHECK(result == content);
    if (size <= oracleLimit)
        FUZZ_CHECK(result == TranslationOracle::replaceTrCalls(content, context));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    const TrCallRewriter rewriter;
    checkLinearGrowth(textOf(seed), [&](const QString& text) { rewriter.rewriteContent(text, "Growth"); });
}
