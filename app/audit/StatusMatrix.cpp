#include "StatusMatrix.h"

#include <QJsonArray>
#include <QPainter>

namespace {
const int nameColumnWidth = 170;
const int headerHeight = 150;
const int cellWidth = 30;
const int cellHeight = 24;
const int groupGap = 12;
const int margin = 8;
const QColor background(Qt::white);
const QColor gridColor(0xd0, 0xd0, 0xd0);
const QColor labelColor(0x20, 0x20, 0x20);
const QColor disagreeColor(0xe0, 0x00, 0x00);
} // namespace

int StatusMatrix::addFamily(const Family& family)
{
    m_families << family;
    return m_families.size() - 1;
}

void StatusMatrix::setCell(int family, int word, bool compare, const StatusSwatch& swatch, const QImage& picture)
{
    m_cells.insert(key(family, word, compare), swatch);
    m_pictures.insert(key(family, word, compare), picture);
}

bool StatusMatrix::hasCell(int family, int word, bool compare) const
{
    return m_cells.contains(key(family, word, compare));
}

StatusSwatch StatusMatrix::cell(int family, int word, bool compare) const
{
    return m_cells.value(key(family, word, compare));
}

QImage StatusMatrix::picture(int family, int word, bool compare) const
{
    return m_pictures.value(key(family, word, compare));
}

int StatusMatrix::disagreeingCount() const
{
    int count = 0;
    for (const StatusSwatch& swatch : m_cells)
        count += swatch.agrees() ? 0 : 1;
    return count;
}

QJsonObject StatusMatrix::toJson() const
{
    QJsonArray words;
    for (const Word& word : m_words)
        words << QJsonObject{{QStringLiteral("label"), word.label},
                             {QStringLiteral("status"), VNWidgetStatus::debugStatusFlag(word.flags)}};
    QJsonArray families;
    for (int family = 0; family < m_families.size(); ++family) {
        QJsonArray cells;
        for (int word = 0; word < m_words.size(); ++word) {
            for (bool compare : {false, true}) {
                if (!hasCell(family, word, compare))
                    continue;
                QJsonObject cellObject = cell(family, word, compare).toJson();
                cellObject.insert(QStringLiteral("word"), m_words.at(word).label);
                cellObject.insert(QStringLiteral("compareDiffers"), compare);
                cells << cellObject;
            }
        }
        families << QJsonObject{{QStringLiteral("family"), m_families.at(family).name},
                                {QStringLiteral("objectName"), m_families.at(family).objectName},
                                {QStringLiteral("cells"), cells}};
    }
    return QJsonObject{{QStringLiteral("words"), words},
                       {QStringLiteral("families"), families},
                       {QStringLiteral("disagreeingCells"), disagreeingCount()},
                       {QStringLiteral("cells"), cellCount()}};
}

QImage StatusMatrix::render() const
{
    const int columns = m_words.size();
    const int width = margin * 2 + nameColumnWidth + 2 * columns * cellWidth + groupGap;
    const int height = margin * 2 + headerHeight + m_families.size() * cellHeight;
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(background);
    QPainter painter(&image);
    painter.setPen(labelColor);
    const auto columnLeft = [&](int word, bool compare) {
        return margin + nameColumnWidth + (compare ? columns * cellWidth + groupGap : 0) + word * cellWidth;
    };
    for (bool compare : {false, true}) {
        const QString group = compare ? QStringLiteral("with Compare Differs") : QStringLiteral("status words");
        painter.drawText(QRect(columnLeft(0, compare), margin, columns * cellWidth, 16), Qt::AlignCenter, group);
        for (int word = 0; word < columns; ++word) {
            painter.save();
            painter.translate(columnLeft(word, compare) + cellWidth / 2 + 5, margin + headerHeight - 4);
            painter.rotate(-90);
            painter.drawText(QPoint(0, 0), m_words.at(word).label);
            painter.restore();
        }
    }
    for (int family = 0; family < m_families.size(); ++family) {
        const int top = margin + headerHeight + family * cellHeight;
        painter.setPen(labelColor);
        painter.drawText(QRect(margin, top, nameColumnWidth - 6, cellHeight), Qt::AlignVCenter | Qt::AlignRight,
                         m_families.at(family).name);
        for (int word = 0; word < columns; ++word) {
            for (bool compare : {false, true}) {
                const QRect rect(columnLeft(word, compare), top, cellWidth, cellHeight);
                painter.setPen(gridColor);
                painter.setBrush(Qt::NoBrush);
                painter.drawRect(rect.adjusted(0, 0, -1, -1));
                if (hasCell(family, word, compare))
                    paintCell(painter, rect, cell(family, word, compare));
            }
        }
    }
    return image;
}

void StatusMatrix::paintCell(QPainter& painter, const QRect& rect, const StatusSwatch& swatch) const
{
    const QRect swatchRect = rect.adjusted(4, 4, -4, -4);
    painter.fillRect(swatchRect, swatch.fill.isValid() ? swatch.fill : background);
    if (swatch.frame.isValid()) {
        painter.setPen(QPen(swatch.frame, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(swatchRect.adjusted(1, 1, -1, -1));
    }
    if (swatch.sigma.isValid())
        painter.fillRect(QRect(swatchRect.left(), swatchRect.top(), 4, swatchRect.height()), swatch.sigma);
    if (swatch.compare.isValid()) {
        const QPoint corner = swatchRect.topRight() + QPoint(1, 0);
        const QPolygon triangle({corner, corner + QPoint(-8, 0), corner + QPoint(0, 8)});
        painter.setPen(Qt::NoPen);
        painter.setBrush(swatch.compare);
        painter.drawPolygon(triangle);
    }
    if (swatch.agrees())
        return;
    painter.setPen(QPen(disagreeColor, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(1, 1, -2, -2));
    painter.drawLine(rect.topLeft() + QPoint(2, 2), rect.bottomRight() - QPoint(3, 3));
}
