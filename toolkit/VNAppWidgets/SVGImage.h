#pragma once

#include "vnappwidgets_export.h"

#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

// An SVG image whose text items can be replaced.
//
// Text items are the runs of character data (plain text, entity references and CDATA sections,
// taken together while they follow each other) that lie directly inside a <text> or <tspan>
// element, anywhere in the document (groups and <defs> included), in document order. Runs of
// white space only are not items. Each item has a replacement text, initially its own text, and a
// used flag, initially off. The modified source is the source with the raw text of every used item
// replaced by its escaped replacement text; markup, attributes, nested <tspan>s, comments and the
// text of unused items stay byte for byte as they were, so the modified source is valid SVG.
//
// An image is valid when its source is well-formed XML with an <svg> root that QSvgRenderer
// accepts. Sources larger than maximumSourceSize, binary data, nesting deeper than
// maximumNestingDepth, entities that contain markup and entity expansion beyond the reader's limit
// are refused as invalid. An
// invalid image has no text items, a default size of 0 x 0, and renders a null pixmap.
class VNAPPWIDGETS_EXPORT SVGImage
{
public:
    static constexpr qint64 maximumSourceSize = 8 * 1024 * 1024;
    static constexpr int maximumNestingDepth = 256;

    explicit SVGImage(const QString& fileName = QString());
    ~SVGImage();

    // Replaces the image by the file's content; a file that cannot be read leaves an invalid image
    // with an empty source.
    bool loadSVG(const QString& fileName);
    // Replaces the image by the text, only when it is a valid image; otherwise nothing changes.
    bool setSVGSource(const QString& source);

    bool isValid() const { return m_valid; }
    // Why the last load or set failed, empty after a success.
    QString errorString() const { return m_error; }
    QString getSource() const { return m_source; }
    QString getModifiedSource() const;
    QSize getDefaultSize() const { return m_defaultSize; }

    QStringList getTextItems() const;
    QString getModifiedTextItem(int index, bool* used) const;
    void setTextItem(int index, const QString& text);
    void setTextItemUsed(int index, bool used);

    // The modified image drawn into a transparent pixmap of the given size.
    QPixmap renderPixmap(const QSize& size) const;

private:
    struct TextItem
    {
        int begin = 0;
        int end = 0;
        QString text;
        QString replacement;
        bool used = false;
    };

    bool parse(const QString& source, QVector<TextItem>* items, QSize* defaultSize, QString* error) const;
    void makeInvalid(const QString& source, const QString& error);

    QString m_source;
    QVector<TextItem> m_items;
    QSize m_defaultSize = QSize(0, 0);
    bool m_valid = false;
    QString m_error;
};
