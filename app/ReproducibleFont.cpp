#include "ReproducibleFont.h"

#include <QtCompat.h>

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QtEndian>

#include <cmath>
#include <optional>

// Shipped by Debian's fonts-dejavu-core, so that texts measure the same on every machine.
const QString ReproducibleFont::file = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
const QString ReproducibleFont::changedFamily = QStringLiteral("DejaVu Sans Whole Pixel");

namespace {
const int pointSize = 9;
// The styles a dialog asks for besides the regular one; each has a file of its own.
const char* const styleFiles[] = {"DejaVuSans-Bold.ttf", "DejaVuSans-Oblique.ttf", "DejaVuSans-BoldOblique.ttf"};
const int smallestPixelSize = 8;
const int largestPixelSize = 19;

struct Table
{
    int offset = 0;
    int length = 0;
    int recordOffset = 0;
};

int read16(const QByteArray& data, int at)
{
    return qFromBigEndian<qint16>(data.constData() + at);
}

int readUnsigned16(const QByteArray& data, int at)
{
    return qFromBigEndian<quint16>(data.constData() + at);
}

void write16(QByteArray& data, int at, int value)
{
    qToBigEndian<quint16>(quint16(value), data.data() + at);
}

std::optional<Table> findTable(const QByteArray& font, const char* tag)
{
    if (font.size() < 12)
        return std::nullopt;
    const int count = readUnsigned16(font, 4);
    for (int i = 0; i < count; ++i) {
        const int record = 12 + 16 * i;
        if (record + 16 > font.size())
            return std::nullopt;
        if (font.mid(record, 4) != QByteArray(tag))
            continue;
        Table table{int(qFromBigEndian<quint32>(font.constData() + record + 8)),
                    int(qFromBigEndian<quint32>(font.constData() + record + 12)), record};
        if (table.offset < 0 || table.length < 0 || table.offset > font.size() - table.length)
            return std::nullopt;
        return table;
    }
    return std::nullopt;
}

// A value in font units that Qt 6 rounds (value * pixels / unitsPerEm) to the whole pixels FreeType
// rounds the original up to, at every size the collection uses: the middle of the range all sizes
// admit.
std::optional<int> wholePixelValue(int original, int unitsPerEm)
{
    double lowest = 0;
    double highest = 1e9;
    for (int pixels = smallestPixelSize; pixels <= largestPixelSize; ++pixels) {
        const double wanted = std::ceil(double(original) * pixels / unitsPerEm);
        lowest = qMax(lowest, (wanted - 0.5) * unitsPerEm / pixels);
        highest = qMin(highest, (wanted + 0.5) * unitsPerEm / pixels);
    }
    if (lowest >= highest)
        return std::nullopt;
    return int(std::lround((lowest + highest) / 2));
}

QString decoded(const QByteArray& bytes, int platform)
{
    if (platform == 1)
        return QString::fromLatin1(bytes);
    QString text;
    for (int i = 0; i + 1 < bytes.size(); i += 2)
        text += QChar(readUnsigned16(bytes, i));
    return text;
}

QByteArray encoded(const QString& text, int platform)
{
    if (platform == 1)
        return text.toLatin1();
    QByteArray bytes(text.size() * 2, '\0');
    for (int i = 0; i < text.size(); ++i)
        write16(bytes, 2 * i, text.at(i).unicode());
    return bytes;
}

// A new name table in which the family (and the names made of it) reads family; appended to the
// font, the table directory pointing to it.
bool renameFamily(QByteArray& font, const QString& family)
{
    const std::optional<Table> name = findTable(font, "name");
    if (!name || name->length < 6)
        return false;
    const QByteArray table = font.mid(name->offset, name->length);
    const int count = readUnsigned16(table, 2);
    const int storage = readUnsigned16(table, 4);
    if (6 + 12 * count > table.size())
        return false;
    QString original;
    QByteArray records = table.left(6);
    QByteArray strings;
    for (int i = 0; i < count; ++i) {
        QByteArray record = table.mid(6 + 12 * i, 12);
        const int platform = readUnsigned16(record, 0);
        const int id = readUnsigned16(record, 6);
        QString text = decoded(table.mid(storage + readUnsigned16(record, 10), readUnsigned16(record, 8)), platform);
        if (id == 1 && original.isEmpty())
            original = text;
        if (!original.isEmpty() && (id == 1 || id == 4 || id == 16))
            text.replace(original, family);
        if (!original.isEmpty() && id == 6)
            text.replace(QString(original).remove(QLatin1Char(' ')), QString(family).remove(QLatin1Char(' ')));
        const QByteArray bytes = encoded(text, platform);
        write16(record, 8, bytes.size());
        write16(record, 10, strings.size());
        records += record;
        strings += bytes;
    }
    if (original.isEmpty())
        return false;
    write16(records, 4, records.size());
    font.append(QByteArray((4 - font.size() % 4) % 4, '\0'));
    qToBigEndian<quint32>(quint32(font.size()), font.data() + name->recordOffset + 8);
    qToBigEndian<quint32>(quint32(records.size() + strings.size()), font.data() + name->recordOffset + 12);
    font.append(records + strings);
    return true;
}

bool registerFont(const QByteArray& data)
{
    return !data.isEmpty() && QFontDatabase::addApplicationFontFromData(data) >= 0;
}

QByteArray fileData(const QString& path)
{
    QFile input(path);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray();
}

// Qt 6 only: the regular font and its styles, changed, under the changed family.
bool registerWholePixelFonts()
{
    const QByteArray regular =
        ReproducibleFont::withWholePixelLineMetrics(fileData(ReproducibleFont::file), ReproducibleFont::changedFamily);
    if (!registerFont(regular))
        return false;
    const QString folder = ReproducibleFont::file.section(QLatin1Char('/'), 0, -2);
    for (const char* style : styleFiles)
        registerFont(ReproducibleFont::withWholePixelLineMetrics(fileData(folder + QLatin1Char('/') + style),
                                                                 ReproducibleFont::changedFamily));
    return true;
}

// The family to use; empty when the font is missing.
QString registeredFamily()
{
    if (QtCompat::fontLineMetricsKeepFractions && registerWholePixelFonts())
        return ReproducibleFont::changedFamily;
    return QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(ReproducibleFont::file)).value(0);
}
} // namespace

bool ReproducibleFont::install()
{
    // Registered once per process; a later call sets the application's font again.
    static const QString family = registeredFamily();
    if (family.isEmpty())
        return false;
    QFont font(family, pointSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    QApplication::setFont(font);
    return true;
}

QByteArray ReproducibleFont::withWholePixelLineMetrics(const QByteArray& original, const QString& family)
{
    QByteArray font = original;
    const std::optional<Table> head = findTable(font, "head");
    const std::optional<Table> horizontalHeader = findTable(font, "hhea");
    const std::optional<Table> os2 = findTable(font, "OS/2");
    if (!head || head->length < 20 || !horizontalHeader || horizontalHeader->length < 10 || !os2 || os2->length < 78)
        return {};
    const int unitsPerEm = readUnsigned16(font, head->offset + 18);
    const int ascent = read16(font, horizontalHeader->offset + 4);
    const int descent = -read16(font, horizontalHeader->offset + 6);
    const int lineGap = read16(font, horizontalHeader->offset + 8);
    if (unitsPerEm <= 0)
        return {};
    const std::optional<int> wholeAscent = wholePixelValue(ascent, unitsPerEm);
    const std::optional<int> wholeDescent = wholePixelValue(descent, unitsPerEm);
    if (!wholeAscent || !wholeDescent)
        return {};
    // The distance from line to line stays as it was. Qt 6 rounds ascent, descent and gap apart, so
    // at a few sizes (9, 13 and 16 pixels, none of them the collection's own) it is a pixel off.
    const int wholeLineGap = ascent + descent + lineGap - *wholeAscent - *wholeDescent;
    write16(font, horizontalHeader->offset + 4, *wholeAscent);
    write16(font, horizontalHeader->offset + 6, -*wholeDescent);
    write16(font, horizontalHeader->offset + 8, wholeLineGap);
    // Qt 6 prefers the OS/2 table's values to these: the typographic ones when the font says to use
    // them, else the Windows ones. All get the same.
    const int useTypographicMetrics = 0x80;
    write16(font, os2->offset + 62, readUnsigned16(font, os2->offset + 62) | useTypographicMetrics);
    write16(font, os2->offset + 68, *wholeAscent);
    write16(font, os2->offset + 70, -*wholeDescent);
    write16(font, os2->offset + 72, wholeLineGap);
    write16(font, os2->offset + 74, *wholeAscent);
    write16(font, os2->offset + 76, *wholeDescent);
    if (!renameFamily(font, family))
        return {};
    return font;
}
