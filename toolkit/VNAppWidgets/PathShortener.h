#pragma once

#include "vnappwidgets_export.h"

#include <QFontMetrics>
#include <QString>

// Shortens a file path so that it fits into a pixel width when drawn with given font metrics.
//
// The path keeps its root (drive "C:\", UNC share "\\server\share\", "/" or nothing for relative
// paths) and its file name as long as possible. Whole directories are replaced by one ellipsis
// first, starting in the middle, so that "C:\a\b\c\d\file.txt" becomes "C:\a\…\d\file.txt"; only
// when every directory is gone the file name itself is elided in its middle, which keeps its
// extension visible. Backslash and slash paths are both understood, and the separator next to the
// ellipsis is the one the path uses there.
//
// The result is never wider than the width. When not even an ellipsis fits, the result is empty.
class VNAPPWIDGETS_EXPORT PathShortener
{
public:
    PathShortener(int width, const QFontMetrics& metrics);
    ~PathShortener();

    int width() const { return m_width; }
    void setWidth(int width);

    QFontMetrics metrics() const { return m_metrics; }
    void setMetrics(const QFontMetrics& metrics);

    // Returns the path itself when it fits, otherwise its shortened form.
    QString adjust(const QString& path) const;

    // The character that stands for the left-out part.
    static const QChar ellipsis;

private:
    struct Parts;
    class Measure;
    static Parts split(const QString& path);
    static QString longestPiece(const Parts& parts);

    QString withoutMiddleDirectories(const Parts& parts, Measure& measure) const;
    QString withElidedName(const Parts& parts) const;
    QString elidedToFit(const QString& prefix, const QString& text, Qt::TextElideMode mode) const;
    bool fits(const QString& text) const;

    int m_width;
    QFontMetrics m_metrics;
    QFontMetricsF m_exactMetrics;
};
