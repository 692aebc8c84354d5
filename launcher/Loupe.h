#pragma once

#include "ui_Loupe.h"

#include <QPixmap>
#include <QWidget>

class QAction;

// A pixel magnifier floating inside a window: it shows an enlarged copy of the strip of its parent
// next to it, with guides for checking alignment by eye, and follows the live widgets.
class Loupe : public QWidget
{
    Q_OBJECT

public:
    explicit Loupe(QWidget* parent);
    ~Loupe() override;

public slots:
    void showRight();
    void showLeft();
    void showBottom();
    void showCenterLine(bool _show);
    void showBaseLine(bool _show);
    void showSize(QAction* action);
    void onChangeOrientation(bool _checked);
    void onChangeShowRect(bool show);
    void onChangeShowCoord(bool show);
    void showVAlignation(bool show);
    void showHAlignation(bool show);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void createActions();
    QAction* addCheckAction(const QString& text, bool checked, const char* slot);
    void addSeparator();
    void applySize();
    void updateMarker();
    void capture();
    void paintRuler(QPainter& painter);
    void paintGuides(QPainter& painter);

    Ui::LoupeClass ui;
    QPoint m_dragOffset;
    QPixmap m_pixmap;
    int m_zoom;
    QRect m_rect;
    int m_position;
    bool m_showCenterLine;
    bool m_showBaseLine[3];
    bool m_showRect;
    bool m_showCoord;
    int m_size;
    QPoint m_alignOffset;
    bool m_showVAlignation;
    bool m_showHAlignation;
    int m_orientation;
};
