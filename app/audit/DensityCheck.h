#pragma once

#include "AuditFinding.h"

#include <QList>

class QIcon;
class QPixmap;
class QWidget;

// On a screen of more than one device pixel per pixel, whether every visible icon and picture of
// a window is drawn from enough pixels: an icon that Qt can only draw by enlarging a bitmap made
// for one device pixel per pixel looks blurred there. Runs in a process started with --scale 2.
class DensityCheck
{
public:
    DensityCheck(const QString& windowName, QWidget* window);
    QList<AuditFinding> run();

private:
    void checkWidget(QWidget* widget);
    void checkIcon(QWidget* widget, const QIcon& icon, const QSize& size, const QString& what);
    void checkPixmap(QWidget* widget, const QPixmap& pixmap, const QSize& shownSize, const QString& what);
    void checkItemIcons(QWidget* widget);
    void report(QWidget* widget, const QString& what, double pixelsPerPixel, const QImage& picture);

    QString m_windowName;
    QWidget* m_window;
    qreal m_ratio;
    QList<AuditFinding> m_findings;
};
