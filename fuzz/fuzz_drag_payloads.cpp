// Fuzzes the readers of the item views' private drag formats ("myMimeData",
// "application/dragContent", "application/ap-component"): drag data comes from any application.
#include "FuzzSupport.h"
#include "ItemViewPayloads.h"

#include <QByteArray>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));

    QString text;
    if (ItemViewPayloads::readText(bytes, text)) {
        QString again;
        FUZZ_CHECK(ItemViewPayloads::readText(ItemViewPayloads::writeText(text), again) && again == text);
    }

    // Every string takes at least its 4-byte length, so no more texts than that can come back.
    const ItemViewPayloads::DragContent content = ItemViewPayloads::readDragContent(bytes);
    FUZZ_CHECK(size_t(content.texts.size()) * 4 <= size);
    if (content.texts.isEmpty())
        FUZZ_CHECK(content.index == -1 || size >= 16);
    const ItemViewPayloads::DragContent copy =
        ItemViewPayloads::readDragContent(ItemViewPayloads::writeDragContent(content.index, content.texts));
    FUZZ_CHECK(copy.texts == content.texts);

    const int component = ItemViewPayloads::readFirstComponent(bytes);
    FUZZ_CHECK(component >= -1);
    if (component >= 0)
        FUZZ_CHECK(ItemViewPayloads::readFirstComponent(ItemViewPayloads::writeComponents({component})) == component);
    return 0;
}

void checkGrowth(const QByteArray& seed)
{
    checkLinearGrowth(QString::fromLatin1(seed), [](const QString& input) {
        const QByteArray bytes = input.toLatin1();
        QString text;
        ItemViewPayloads::readText(bytes, text);
        ItemViewPayloads::readDragContent(bytes);
        ItemViewPayloads::readFirstComponent(bytes);
    });
}
