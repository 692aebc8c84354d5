#pragma once

#include "StatusSwatch.h"

#include <VNWidgetStatus.h>

#include <QHash>
#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QString>

// The status gallery's swatches: for every widget family (rows) and every status word, without
// and with the compare bit (columns), what the family shows against what the palette expects.
class StatusMatrix
{
public:
    struct Word
    {
        QString label; // the gallery button's text
        VNWidgetStatus::StatusFlags flags;
    };
    struct Family
    {
        QString name;       // "line edit", "header section", ...
        QString objectName; // the widget that stands for the family
    };

    void setWords(const QList<Word>& words) { m_words = words; }
    int addFamily(const Family& family);
    void setFamilyObjectName(int family, const QString& objectName) { m_families[family].objectName = objectName; }
    void setCell(int family, int word, bool compare, const StatusSwatch& swatch, const QImage& picture);

    const QList<Word>& words() const { return m_words; }
    const QList<Family>& families() const { return m_families; }
    bool hasCell(int family, int word, bool compare) const;
    StatusSwatch cell(int family, int word, bool compare) const;
    QImage picture(int family, int word, bool compare) const;
    int cellCount() const { return m_cells.size(); }
    int disagreeingCount() const;
    bool isEmpty() const { return m_cells.isEmpty(); }

    QJsonObject toJson() const;
    // The matrix as a picture: one swatch per cell (fill inside, frame around, sigma bar on the left,
    // compare corner top right), every cell that disagrees with the palette crossed out in red.
    QImage render() const;

private:
    static int key(int family, int word, bool compare) { return (family * 1000 + word) * 2 + (compare ? 1 : 0); }
    void paintCell(QPainter& painter, const QRect& rect, const StatusSwatch& swatch) const;

    QList<Word> m_words;
    QList<Family> m_families;
    QHash<int, StatusSwatch> m_cells;
    QHash<int, QImage> m_pictures;
};
