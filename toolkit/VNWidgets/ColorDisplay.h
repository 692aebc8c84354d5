#pragma once

#include "vnwidgets_export.h"

#include <QColor>
#include <QWidget>

// A framed colour swatch. It shows one colour, or with two sides a left and a right colour side by
// side; the three colours are kept apart, so switching the sides loses none. An invalid colour is
// drawn as a crossed-out field; a disabled swatch shows its colours faded.
class VNWIDGETS_EXPORT ColorDisplay : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor colorLeft READ colorLeft WRITE setColorLeft NOTIFY colorLeftChanged)
    Q_PROPERTY(QColor colorRight READ colorRight WRITE setColorRight NOTIFY colorRightChanged)
    Q_PROPERTY(bool twoSides READ twoSides WRITE setTwoSides NOTIFY twoSidesChanged)

public:
    explicit ColorDisplay(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    QColor colorLeft() const { return m_colorLeft; }
    void setColorLeft(const QColor& color);
    QColor colorRight() const { return m_colorRight; }
    void setColorRight(const QColor& color);

    bool twoSides() const { return m_twoSides; }
    void setTwoSides(bool twoSides);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void colorChanged(const QColor& color);
    void colorLeftChanged(const QColor& color);
    void colorRightChanged(const QColor& color);
    void twoSidesChanged(bool twoSides);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintSwatch(QPainter& painter, const QRect& area, const QColor& color) const;
    QColor shown(const QColor& color) const;

    QColor m_color = Qt::white;
    QColor m_colorLeft = Qt::white;
    QColor m_colorRight = Qt::black;
    bool m_twoSides = false;
};
