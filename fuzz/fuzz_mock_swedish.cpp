// Fuzzes MockSwedishTranslator against the reference transformation, on text and on UTF-8 bytes.
#include "FuzzSupport.h"
#include "MockSwedishTranslator.h"
#include "TranslationOracle.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MockSwedishTranslator translator;
    const QString source = textOf(data, size);
    const QString result = translator.translate(source);
    if (source.isEmpty() || source.contains(QLatin1String("html"), Qt::CaseInsensitive))
        FUZZ_CHECK(result == source);
    else
        FUZZ_CHECK(result.startsWith(QStringLiteral("ü")));
    // Valid UTF-8 is transformed as bytes, with the same result.
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    if (source.toUtf8() == bytes) {
        const std::string_view translated = translator.translateUtf8(std::string_view(bytes.constData(), size));
        FUZZ_CHECK(QByteArray(translated.data(), int(translated.size())) == result.toUtf8());
    }
    if (size <= oracleLimit)
        FUZZ_CHECK(result == TranslationOracle::mockSwedish(source));
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    MockSwedishTranslator translator;
    checkLinearGrowth(textOf(seed), [&](const QString& text) { translator.translate(text); });
    checkLinearGrowth(textOf(seed), [&](const QString& text) { translator.translateUtf8(text.toStdString()); });
}
