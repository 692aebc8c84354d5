#include "TestCurveInputControl.h"

#include <VNCurveInputControl.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QMetaEnum>
#include <QRadioButton>

namespace {
// A zero option stands for the empty set: it is on only while no other option is.
bool isOptionSet(int value, int flags)
{
    return (value & flags) == value && (value != 0 || flags == 0);
}
} // namespace

TestCurveInputControl::TestCurveInputControl(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
    , m_defaultGroup(nullptr)
{
    ui.setupUi(this);
    m_defaultGroup = new QButtonGroup(ui.widgetD);
    buildOptionButtons();
    connect(m_defaultGroup, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            &TestCurveInputControl::onDefaultClicked);
    connect(ui.enableCheckbox, &QCheckBox::toggled, this, &TestCurveInputControl::onEnabledToggled);
    connect(ui.inputTypeCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TestCurveInputControl::onInputTypeChanged);
}

TestCurveInputControl::~TestCurveInputControl() = default;

// The option keys are the enum's own names, shown untranslated on purpose: they name code.
void TestCurveInputControl::buildOptionButtons()
{
    VNCurveInputControl* control = ui.vnCurveInputControl;
    const int available = int(control->getOptionsAvailable());
    const int enabled = int(control->getOptionsEnabled());
    const int defaultOption = int(control->getDefaultOption());
    ui.enableCheckbox->setChecked(control->isEnabled());

    const QMetaObject* meta = control->metaObject();
    const QMetaEnum options = meta->enumerator(meta->indexOfEnumerator("Option"));
    for (int i = 0; i < options.keyCount(); ++i) {
        const QString key = QString::fromLatin1(options.key(i));
        const int value = options.value(i);

        auto* availableBox = new QCheckBox(key, ui.widgetA);
        availableBox->setChecked(isOptionSet(value, available));
        ui.verticalLayoutA->addWidget(availableBox);
        connect(availableBox, &QCheckBox::toggled, this, &TestCurveInputControl::onAToggled);

        auto* enabledBox = new QCheckBox(key, ui.widgetE);
        enabledBox->setChecked(isOptionSet(value, enabled));
        ui.verticalLayoutE->addWidget(enabledBox);
        connect(enabledBox, &QCheckBox::toggled, this, &TestCurveInputControl::onEToggled);

        auto* defaultRadio = new QRadioButton(key, ui.widgetD);
        defaultRadio->setChecked(value == defaultOption);
        ui.verticalLayoutD->addWidget(defaultRadio);
        m_defaultGroup->addButton(defaultRadio);
    }
}

int TestCurveInputControl::optionValue(const QAbstractButton* button) const
{
    const QMetaObject* meta = ui.vnCurveInputControl->metaObject();
    const QMetaEnum options = meta->enumerator(meta->indexOfEnumerator("Option"));
    return options.keyToValue(button->text().toLocal8Bit().constData());
}

void TestCurveInputControl::onAToggled(bool checked)
{
    auto* box = qobject_cast<QAbstractButton*>(sender());
    if (!box)
        return;
    VNCurveInputControl::Options flags = ui.vnCurveInputControl->getOptionsAvailable();
    flags.setFlag(VNCurveInputControl::Option(optionValue(box)), checked);
    ui.vnCurveInputControl->setOptionsAvailable(flags);
}

void TestCurveInputControl::onEToggled(bool checked)
{
    auto* box = qobject_cast<QAbstractButton*>(sender());
    if (!box)
        return;
    VNCurveInputControl::Options flags = ui.vnCurveInputControl->getOptionsEnabled();
    flags.setFlag(VNCurveInputControl::Option(optionValue(box)), checked);
    ui.vnCurveInputControl->setOptionsEnabled(flags);
}

void TestCurveInputControl::onDefaultClicked(QAbstractButton* button)
{
    ui.vnCurveInputControl->setDefaultOption(VNCurveInputControl::Option(optionValue(button)));
}

void TestCurveInputControl::onEnabledToggled(bool enabled)
{
    ui.vnCurveInputControl->setEnabled(enabled);
}

void TestCurveInputControl::onInputTypeChanged(int index)
{
    switch (index) {
    case 0:
        ui.vnCurveInputControl->setInputType(VNCurveInputControl::InputType(0));
        break;
    case 1:
        ui.vnCurveInputControl->setInputType(VNCurveInputControl::InputType(1));
        break;
    case 2:
        ui.vnCurveInputControl->setInputType(VNCurveInputControl::InputType(2));
        break;
    default:
        break;
    }
}
