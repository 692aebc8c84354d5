#pragma once

#include "ui_TestCompareIcons.h"

#include <QDialog>
#include <QIcon>
#include <QSize>

// An icon drawn from an SVG file next to the same icon as a PNG file: the PNG at 100 %, the SVG
// at the PNG's size and at twice that size, and their difference, on a grey background. The whole
// comparison can be exported as one PNG image.
class TestCompareIcons : public QDialog, private Ui::TestCompareIcons
{
    Q_OBJECT

public:
    explicit TestCompareIcons(QWidget* parent);
    ~TestCompareIcons() override;

    // The PNG pixel minus the SVG pixel, subtracted as whole 32-bit words so that any difference
    // shows as a strong colour; rows or columns that a source lacks are left transparent.
    static QImage subtractImages(const QImage& png, const QImage& svg, const QSize& size);

protected:
    // The file dialogs and the message box, replaceable so that tests never wait for a user.
    virtual QString chooseOpenFile(const QString& caption, const QString& directory, const QString& filter);
    virtual QString chooseSaveFile(const QString& caption, const QString& suggestion, const QString& filter);
    virtual void reportProblem(const QString& title, const QString& text);

private:
    void loadPng();
    void loadSvg();
    void exportImage();
    void sizeChanged();
    void refresh();
    void showDifference();

    QSize m_iconSize;
    QIcon m_svgIcon;
    QString m_lastPngFolder;
    QString m_lastSvgFolder;
    QString m_svgBaseName;
    QString m_lastExportFolder;
};
