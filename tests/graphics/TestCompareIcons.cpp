#include "TestCompareIcons.h"

#include "ImageFiles.h"
#include "QtCompat.h"

#include <SVGImage.h>

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QImageReader>
#include <QMessageBox>
#include <QSignalBlocker>

#include <algorithm>

namespace {
QString folderOf(const QString& path)
{
    return path.left(path.lastIndexOf(QLatin1Char('/')));
}

const QImage::Format wordFormat = QImage::Format_ARGB32;

// File-dialog filters are patterns: a translated "*.png" would hide every file.
const QString pngFilter = QStringLiteral("PNG (*.png)");
const QString svgFilter = QStringLiteral("SVG (*.svg)");
} // namespace

TestCompareIcons::TestCompareIcons(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    setupUi(this);
    connect(loadPngButton, &QPushButton::clicked, this, &TestCompareIcons::loadPng);
    connect(loadSvgButton, &QPushButton::clicked, this, &TestCompareIcons::loadSvg);
    connect(exportButton, &QPushButton::clicked, this, &TestCompareIcons::exportImage);
    connect(svgWidth, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestCompareIcons::sizeChanged);
    connect(svgHeight, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestCompareIcons::sizeChanged);
}

TestCompareIcons::~TestCompareIcons() = default;

void TestCompareIcons::loadPng()
{
    const QString fileName = chooseOpenFile(tr("Load PNG Icon"), m_lastPngFolder, pngFilter);
    if (fileName.isEmpty())
        return;
    m_lastPngFolder = folderOf(fileName);
    QImageReader reader(fileName);
    const QImage image = reader.read();
    if (image.isNull()) {
        reportProblem(tr("Load PNG Icon"), tr("%1 cannot be read as an image: %2").arg(fileName, reader.errorString()));
        return;
    }
    const QPixmap pixmap = QPixmap::fromImage(image);
    m_iconSize = pixmap.size();
    {
        const QSignalBlocker widthBlocker(svgWidth);
        const QSignalBlocker heightBlocker(svgHeight);
        svgWidth->setValue(m_iconSize.width());
        svgHeight->setValue(m_iconSize.height());
    }
    png100->setPixmap(pixmap);
}

void TestCompareIcons::loadSvg()
{
    const QString fileName = chooseOpenFile(tr("Load SVG Icon"), m_lastSvgFolder, svgFilter);
    if (fileName.isEmpty())
        return;
    m_lastSvgFolder = folderOf(fileName);
    // Checked first: a malformed or hostile file must not reach the icon engine.
    const SVGImage check(fileName);
    if (!check.isValid()) {
        reportProblem(tr("Load SVG Icon"), tr("%1 is not a valid SVG image: %2").arg(fileName, check.errorString()));
        return;
    }
    QString name = fileName.mid(fileName.lastIndexOf(QLatin1Char('/')));
    name = name.left(name.lastIndexOf(QLatin1Char('.')));
    m_svgBaseName = name;
    showFileName->setText(name.mid(1));
    QApplication::clipboard()->setText(name.mid(1));
    m_svgIcon = QIcon(fileName);
    if (!m_svgIcon.isNull())
        refresh();
}

void TestCompareIcons::exportImage()
{
    const QString suggestion = m_lastExportFolder + QLatin1Char('/') + m_svgBaseName.mid(1);
    const QString fileName = chooseSaveFile(tr("Save Image"), suggestion, pngFilter);
    if (fileName.isEmpty())
        return;
    m_lastExportFolder = folderOf(fileName);
    // A window that was never shown has not laid out its children yet.
    layout()->activate();
    QPixmap pixmap(iconsWidget->size());
    iconsWidget->render(&pixmap, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    const QString failure = savePixmapSafely(pixmap, fileName);
    if (!failure.isEmpty())
        reportProblem(tr("Save Image"), tr("%1 was not saved: %2").arg(fileName, failure));
}

void TestCompareIcons::sizeChanged()
{
    m_iconSize = QSize(svgWidth->value(), svgHeight->value());
    refresh();
}

void TestCompareIcons::refresh()
{
    svg100->setIconSize(m_iconSize);
    svg100->setIcon(m_svgIcon);
    svg200->setIconSize(QSize(qRound(m_iconSize.width() * 2.0), qRound(m_iconSize.height() * 2.0)));
    svg200->setIcon(m_svgIcon);
    showDifference();
}

void TestCompareIcons::showDifference()
{
    const QPixmap pngPixmap = QtCompat::pixmap(png100);
    if (pngPixmap.isNull())
        return;
    const qreal ratio = qApp->devicePixelRatio();
    const QSize requested(qRound(m_iconSize.width() / ratio), qRound(m_iconSize.height() / ratio));
    const QImage svg = m_svgIcon.pixmap(requested).toImage();
    difference->setPixmap(QPixmap::fromImage(TestCompareIcons::subtractImages(pngPixmap.toImage(), svg, m_iconSize)));
}

QImage TestCompareIcons::subtractImages(const QImage& png, const QImage& svg, const QSize& size)
{
    // Whole-word subtraction needs 32-bit pixels on both sides.
    const QImage pngWords = png.depth() == 32 ? png : png.convertToFormat(wordFormat);
    const QImage svgWords = svg.convertToFormat(pngWords.format());
    QImage result(size, pngWords.format());
    result.fill(0);
    for (int y = 0; y < size.height(); ++y) {
        if (y >= pngWords.height() || y >= svgWords.height())
            continue;
        const auto* pngLine = reinterpret_cast<const quint32*>(pngWords.constScanLine(y));
        const auto* svgLine = reinterpret_cast<const quint32*>(svgWords.constScanLine(y));
        auto* resultLine = reinterpret_cast<quint32*>(result.scanLine(y));
        const int columns = std::min({size.width(), pngWords.width(), svgWords.width()});
        for (int x = 0; x < columns; ++x)
            resultLine[x] = pngLine[x] - svgLine[x];
    }
    return result;
}

QString TestCompareIcons::chooseOpenFile(const QString& caption, const QString& directory, const QString& filter)
{
    return QFileDialog::getOpenFileName(this, caption, directory, filter);
}

QString TestCompareIcons::chooseSaveFile(const QString& caption, const QString& suggestion, const QString& filter)
{
    return QFileDialog::getSaveFileName(this, caption, suggestion, filter);
}

void TestCompareIcons::reportProblem(const QString& title, const QString& text)
{
    QMessageBox::warning(this, title, text);
}
