#include "TestComposePixmap.h"

#include "ImageFiles.h"
#include "QtCompat.h"

#include <PixmapFunctions.h>
#include <VNDoubleSpinBox.h>

#include <QFileDialog>

namespace {
const QString baseImage = QStringLiteral(":/TestWidgetCollection/Resources/Rectangle_48.png");
const QString overlayImage = QStringLiteral(":/TestWidgetCollection/Resources/procplan_sngldraw_45x45.png");
const QString secondOverlayImage = QStringLiteral(":/TestWidgetCollection/Resources/Heating_Operation_Blank_45.png");
const QString imageFilter = QStringLiteral("Images (*.png *.xpm *.jpg)");

bool hasImage(const QLabel* label)
{
    return !QtCompat::pixmap(label).isNull();
}
} // namespace

TestComposePixmap::TestComposePixmap(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    setupUi(this);
    // Made on purpose in addition to the auto-connections: the first two slots run twice per
    // toggle, and the third connection names no slot ("o" in lower case) and fails.
    connect(chkUseBaseImage, SIGNAL(toggled(bool)), this, SLOT(on_chkUseBaseImage_toggled(bool)));
    connect(chkUseOverlayImage, SIGNAL(toggled(bool)), this, SLOT(on_chkUseOverlayImage_toggled(bool)));
    connect(chkUseSecondOverlayImage, SIGNAL(toggled(bool)), this, SLOT(on_chkUseSecondoverlayImage_toggled(bool)));

    lblBaseImage->setPixmap(QPixmap());
    lblOverlayImage->setPixmap(QPixmap());
    lblSecondOverlayImage->setPixmap(QPixmap());

    connect(loadButton, &QPushButton::clicked, this, &TestComposePixmap::onLoadImage);
    connect(saveButton, &QPushButton::clicked, this, &TestComposePixmap::onSaveImage);
    for (QRadioButton* option : {noOption, disbledOption, disabled2Option, adjustBrightness})
        connect(option, &QRadioButton::toggled, this, &TestComposePixmap::onOptionChanged);
    connect(factorBox, &VNDoubleSpinBox::editingFinished, this, &TestComposePixmap::updateOutPix);

    updateOutPix();
}

TestComposePixmap::~TestComposePixmap() = default;

void TestComposePixmap::on_chkUseBaseImage_toggled(bool checked)
{
    showRowImage(lblBaseImage, checked, baseImage);
}

void TestComposePixmap::on_chkUseOverlayImage_toggled(bool checked)
{
    showRowImage(lblOverlayImage, checked, overlayImage);
}

void TestComposePixmap::on_chkUseSecondOverlayImage_toggled(bool checked)
{
    showRowImage(lblSecondOverlayImage, checked, secondOverlayImage);
}

void TestComposePixmap::showRowImage(QLabel* label, bool checked, const QString& path)
{
    QPixmap pixmap;
    if (checked)
        pixmap.load(path);
    label->setPixmap(pixmap);
    updateResult();
}

void TestComposePixmap::updateResult()
{
    const QString base = chkUseBaseImage->isChecked() ? baseImage : QString();
    const QString overlay = chkUseOverlayImage->isChecked() ? overlayImage : QString();
    const QString secondOverlay = chkUseSecondOverlayImage->isChecked() ? secondOverlayImage : QString();
    lblResultImage->setPixmap(composePixmap(base, overlay, secondOverlay));
}

void TestComposePixmap::onLoadImage()
{
    const QString fileName = chooseImageToLoad();
    if (fileName.isEmpty())
        return;
    inPix->setPixmap(QPixmap(fileName));
    updateOutPix();
}

// The outcome of saving is not reported; the write goes through a save file, so a failed save
// leaves an earlier file whole.
void TestComposePixmap::onSaveImage()
{
    if (!hasImage(outPix))
        return;
    const QString fileName = chooseImageToSave();
    if (!fileName.isEmpty())
        savePixmapSafely(QtCompat::pixmap(outPix), fileName);
}

QString TestComposePixmap::chooseImageToLoad()
{
    return QFileDialog::getOpenFileName(this, QStringLiteral("Load Image"), QString(), imageFilter);
}

QString TestComposePixmap::chooseImageToSave()
{
    return QFileDialog::getSaveFileName(this, QStringLiteral("Save Image"), QString(), imageFilter);
}

void TestComposePixmap::onOptionChanged(bool checked)
{
    if (checked)
        updateOutPix();
}

void TestComposePixmap::updateOutPix()
{
    if (!hasImage(inPix)) {
        outPix->setPixmap(QPixmap());
        saveButton->setEnabled(false);
        return;
    }
    const QPixmap in = QtCompat::pixmap(inPix);
    if (disbledOption->isChecked())
        outPix->setPixmap(disabledPixmap(in));
    else if (disabled2Option->isChecked())
        outPix->setPixmap(disabledPixmapByTransparency(in));
    else if (adjustBrightness->isChecked())
        outPix->setPixmap(adjustPixmapBrightness(in, int(factorBox->value())));
    else
        outPix->setPixmap(in);
    saveButton->setEnabled(true);
}
