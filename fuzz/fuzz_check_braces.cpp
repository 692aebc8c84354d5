// Fuzzes TranslationFileCounter::bracesBalanceIn().
#include "FuzzSupport.h"
#include "TranslationFileCounter.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString content = textOf(data, size);
    const bool balanced = TranslationFileCounter::bracesBalanceIn(content);
    // Balanced brackets come in pairs, and wrapping balanced text in a pair keeps it balanced.
    if (balanced) {
        FUZZ_CHECK(content.count(QLatin1Char('<')) == content.count(QLatin1Char('>')));
        FUZZ_CHECK(TranslationFileCounter::bracesBalanceIn(QLatin1Char('<') + content + QLatin1Char('>')));
    }
    // A leading '>' can close nothing.
    FUZZ_CHECK(!TranslationFileCounter::bracesBalanceIn(QLatin1Char('>') + content));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    checkLinearGrowth(textOf(seed), [](const QString& text) { TranslationFileCounter::bracesBalanceIn(text); });
}
