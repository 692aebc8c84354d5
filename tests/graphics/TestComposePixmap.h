#pragma once

#include "ui_TestComposePixmap.h"

#include <QDialog>

// The toolkit's pixmap helpers: the left half stacks up to three of the collection's images with
// composePixmap, the right half shows a loaded image disabled, disabled by transparency or with
// its brightness adjusted, and saves the result.
class TestComposePixmap : public QDialog, private Ui::TestComposePixmap
{
    Q_OBJECT

public:
    explicit TestComposePixmap(QWidget* parent);
    ~TestComposePixmap() override;

private slots:
    void on_chkUseBaseImage_toggled(bool checked);
    void on_chkUseOverlayImage_toggled(bool checked);
    void on_chkUseSecondOverlayImage_toggled(bool checked);
    void onLoadImage();
    void onSaveImage();
    void onOptionChanged(bool checked);
    void updateOutPix();

protected:
    // The file dialogs, replaceable so that tests never wait for a user.
    virtual QString chooseImageToLoad();
    virtual QString chooseImageToSave();

private:
    void showRowImage(QLabel* label, bool checked, const QString& path);
    void updateResult();
};
