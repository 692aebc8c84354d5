#include "TestVNSliderView.h"

#include <VNSlider.h>

#include <QSignalBlocker>

TestVNSliderView::TestVNSliderView(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_zones(nullptr)
{
    setupUi(this);
    m_zones = new SigmaZones{0, 20, 90, 100, 40, 60, 5, 95, 0, 100, 55};

    m_sigmaSlider->setTracking(false);
    m_sigmaSlider->setRange(0, 100);
    m_sigmaSlider->setIsDVValueSlider(true);
    m_sigmaSlider->shadeOutsideAdmissibleRange = true;
    rebuildSigmaMarkings();

    // Seeded before any connection, so no slot runs yet.
    m_markBest->setValue(m_zones->best);
    m_min->setValue(m_sigmaSlider->minimum());
    m_max->setValue(m_sigmaSlider->maximum());
    m_admissMin->setValue(m_zones->admissibleMinimum);
    m_admissMax->setValue(m_zones->admissibleMaximum);
    m_sublimitMin->setValue(m_zones->sublimitMinimum);
    m_sublimitMax->setValue(m_zones->sublimitMaximum);

    connect(m_current, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onCurrentValueChanged);
    connect(m_sigmaSlider, &QSlider::valueChanged, this, &TestVNSliderView::onSliderValueChanged);
    connect(m_min, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onMinimumChanged);
    connect(m_max, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onMaximumChanged);
    connect(m_admissMin, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onAdmissMinimumChanged);
    connect(m_admissMax, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onAdmissMaximumChanged);
    connect(m_sigmaSlider, &VNSlider::admissibleRangeChanged, this, &TestVNSliderView::onAdmissibleRangeChanged);
    connect(m_sublimitMin, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &TestVNSliderView::onSublimitMinimumChanged);
    connect(m_sublimitMax, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &TestVNSliderView::onSublimitMaximumChanged);
    connect(m_markBest, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onBestChanged);
    connect(m_gauss, &QCheckBox::stateChanged, this, &TestVNSliderView::onGaussChanged);
    connect(m_input, &QCheckBox::stateChanged, this, &TestVNSliderView::onInputModeChanged);
    connect(def_extend, &QCheckBox::toggled, this, &TestVNSliderView::onDefExtendToggled);
    connect(def_enabled, &QCheckBox::toggled, this, &TestVNSliderView::onDefEnabledToggled);
    connect(def_fill, &QCheckBox::toggled, this, &TestVNSliderView::onDefFillToggled);
    connect(def_add, &QToolButton::clicked, this, &TestVNSliderView::onDefAddClicked);
    connect(def_default, &QToolButton::clicked, this, &TestVNSliderView::onDefDefaultClicked);
    connect(def_reset, &QToolButton::clicked, this, &TestVNSliderView::onDefResetClicked);
    connect(def_pos, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onPosChanged);
    connect(m_r, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onRValueChanged);
    connect(m_g, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onGValueChanged);
    connect(m_b, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onBValueChanged);
    connect(m_a, QOverload<int>::of(&QSpinBox::valueChanged), this, &TestVNSliderView::onAValueChanged);

    m_color = m_extendedSlider->markerBrush().color();
    m_extendedSlider->setBrushColor(m_color);
    pushColor();

    connect(def_current, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &TestVNSliderView::onDefCurrentValueChanged);
    connect(m_extendedSlider, &QSlider::valueChanged, this, &TestVNSliderView::onExtendedSliderValueChanged);

    m_extendedSlider->setExtended(true);
    m_spanSlider->setUseAsSpanSlider(true);
    m_spanSlider->setAdmissibleRange(m_spanSlider->minimum() + 30, m_spanSlider->maximum() - 50, true);
    m_spanSlider->setUserRelevantRange(m_spanSlider->minimum(), m_spanSlider->maximum());

    connect(vert_enabled, &QCheckBox::toggled, this, &TestVNSliderView::onVertEnabledToggled);
}

TestVNSliderView::~TestVNSliderView()
{
    delete m_zones;
}

void TestVNSliderView::rebuildSigmaMarkings()
{
    m_sigmaSlider->clearMarkers();
    m_sigmaSlider->mark(m_zones->redLowFrom, m_zones->redLowTo, VNSlider::redBrush());
    m_sigmaSlider->mark(m_zones->greenFrom, m_zones->greenTo, VNSlider::greenBrush());
    m_sigmaSlider->mark(m_zones->redHighFrom, m_zones->redHighTo, VNSlider::redBrush());
    m_sigmaSlider->setAdmissibleRange(m_zones->admissibleMinimum, m_zones->admissibleMaximum, true);
    m_sigmaSlider->setCurrentSublimit({m_zones->sublimitMinimum, m_zones->sublimitMaximum});
    m_sigmaSlider->markBest(m_zones->best);
}

void TestVNSliderView::pushColor()
{
    m_extendedSlider->setBrushColor(m_color);
    const QSignalBlocker redBlocker(m_r);
    const QSignalBlocker greenBlocker(m_g);
    const QSignalBlocker blueBlocker(m_b);
    const QSignalBlocker alphaBlocker(m_a);
    m_r->setValue(m_color.red());
    m_g->setValue(m_color.green());
    m_b->setValue(m_color.blue());
    m_a->setValue(m_color.alpha());
}

void TestVNSliderView::onCurrentValueChanged(int value)
{
    m_sigmaSlider->setValue(value);
}

void TestVNSliderView::onSliderValueChanged(int value)
{
    const QSignalBlocker blocker(m_current);
    m_current->setValue(value);
}

void TestVNSliderView::onMinimumChanged(int value)
{
    const QSignalBlocker blocker(m_sigmaSlider);
    m_sigmaSlider->setMinimum(value);
    m_current->setMinimum(value);
    m_markBest->setMinimum(value);
}

void TestVNSliderView::onMaximumChanged(int value)
{
    const QSignalBlocker blocker(m_sigmaSlider);
    m_sigmaSlider->setMaximum(value);
    m_current->setMaximum(value);
    m_markBest->setMaximum(value);
}

void TestVNSliderView::onAdmissMinimumChanged(int value)
{
    m_zones->admissibleMinimum = value;
    rebuildSigmaMarkings();
}

void TestVNSliderView::onAdmissMaximumChanged(int value)
{
    m_zones->admissibleMaximum = value;
    rebuildSigmaMarkings();
}

// Not blocked: the record follows through the two spin box slots.
void TestVNSliderView::onAdmissibleRangeChanged(int minimum, int maximum)
{
    m_admissMin->setValue(minimum);
    m_admissMax->setValue(maximum);
}

void TestVNSliderView::onSublimitMinimumChanged(int value)
{
    m_zones->sublimitMinimum = value;
    rebuildSigmaMarkings();
}

void TestVNSliderView::onSublimitMaximumChanged(int value)
{
    m_zones->sublimitMaximum = value;
    rebuildSigmaMarkings();
}

void TestVNSliderView::onBestChanged(int value)
{
    m_zones->best = value;
    rebuildSigmaMarkings();
}

void TestVNSliderView::onGaussChanged(int state)
{
    m_sigmaSlider->setShowGaussianCurve(state == Qt::Checked);
}

void TestVNSliderView::onInputModeChanged(int state)
{
    m_sigmaSlider->setInputEnabled(state == Qt::Checked);
}

void TestVNSliderView::onDefExtendToggled(bool checked)
{
    m_extendedSlider->setExtended(checked);
}

void TestVNSliderView::onDefEnabledToggled(bool checked)
{
    m_extendedSlider->setEnabled(checked);
    m_vnSlider->setEnabled(checked);
    m_spanSlider->setEnabled(checked);
    frame->setEnabled(checked);
}

void TestVNSliderView::onDefFillToggled(bool checked)
{
    m_extendedSlider->setSubPageFilled(checked);
    m_vnSlider->setSubPageFilled(checked);
}

void TestVNSliderView::onDefAddClicked()
{
    for (VNSlider* slider : {m_extendedSlider, m_spanSlider})
        slider->mark(def_pos->value(), def_pos2->value(), slider->markerBrush());
}

void TestVNSliderView::onDefDefaultClicked()
{
    static const VNSlider::SliderInterval defaults[] = {{0, 5}, {10, 10}, {15, 16}, {33, 33}, {55, 65}, {95, 100}};
    for (VNSlider* slider : {m_extendedSlider, m_spanSlider}) {
        slider->clearMarkers();
        for (const VNSlider::SliderInterval& interval : defaults)
            slider->mark(interval.minimum, interval.maximum, slider->markerBrush());
    }
}

void TestVNSliderView::onDefResetClicked()
{
    m_extendedSlider->clearMarkers();
    m_spanSlider->clearMarkers();
}

void TestVNSliderView::onPosChanged(int value)
{
    def_pos2->setValue(value);
}

void TestVNSliderView::onRValueChanged(int value)
{
    m_color.setRed(value);
    pushColor();
}

void TestVNSliderView::onGValueChanged(int value)
{
    m_color.setGreen(value);
    pushColor();
}

void TestVNSliderView::onBValueChanged(int value)
{
    m_color.setBlue(value);
    pushColor();
}

void TestVNSliderView::onAValueChanged(int value)
{
    m_color.setAlpha(value);
    pushColor();
}

void TestVNSliderView::onDefCurrentValueChanged(int value)
{
    m_extendedSlider->setValue(value);
    m_vnSlider->setValue(value);
    m_spanSlider->setValue(value);
}

void TestVNSliderView::onExtendedSliderValueChanged(int value)
{
    const QSignalBlocker blocker(def_current);
    def_current->setValue(value);
}

void TestVNSliderView::onVertEnabledToggled(bool checked)
{
    m_verticalQSlider->setEnabled(checked);
    m_verticalVNSlider->setEnabled(checked);
}
