#pragma once

#include "ui_TestVNSliderView.h"

#include <QColor>
#include <QDialog>

// Drives the toolkit slider in its variants. Spin boxes and check boxes set every property and
// the sliders' own signals flow back into the spin boxes; the sigma tab keeps its zones in one
// record and rebuilds the slider's markings from it after each change.
class TestVNSliderView : public QDialog, private Ui::TestVNSliderView
{
    Q_OBJECT

public:
    explicit TestVNSliderView(QWidget* parent);
    ~TestVNSliderView() override;

private slots:
    void onCurrentValueChanged(int value);
    void onSliderValueChanged(int value);
    void onMinimumChanged(int value);
    void onMaximumChanged(int value);
    void onAdmissMinimumChanged(int value);
    void onAdmissMaximumChanged(int value);
    void onAdmissibleRangeChanged(int minimum, int maximum);
    void onSublimitMinimumChanged(int value);
    void onSublimitMaximumChanged(int value);
    void onBestChanged(int value);
    void onGaussChanged(int state);
    void onInputModeChanged(int state);
    void onDefExtendToggled(bool checked);
    void onDefEnabledToggled(bool checked);
    void onDefFillToggled(bool checked);
    void onDefAddClicked();
    void onDefDefaultClicked();
    void onDefResetClicked();
    void onPosChanged(int value);
    void onRValueChanged(int value);
    void onGValueChanged(int value);
    void onBValueChanged(int value);
    void onAValueChanged(int value);
    void onDefCurrentValueChanged(int value);
    void onExtendedSliderValueChanged(int value);
    void onVertEnabledToggled(bool checked);

private:
    struct SigmaZones
    {
        qint32 redLowFrom;
        qint32 redLowTo;
        qint32 redHighFrom;
        qint32 redHighTo;
        qint32 greenFrom;
        qint32 greenTo;
        qint32 admissibleMinimum;
        qint32 admissibleMaximum;
        qint32 sublimitMinimum;
        qint32 sublimitMaximum;
        qint32 best;
    };

    void rebuildSigmaMarkings();
    void pushColor();

    QColor m_color;
    SigmaZones* m_zones;
};
