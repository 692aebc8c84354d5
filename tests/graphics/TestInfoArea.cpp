#include "TestInfoArea.h"

#include <PropertyChangeFilter.h>
#include <VNInfoArea.h>

#include <QMetaEnum>

TestInfoArea::TestInfoArea(QWidget* parent)
    : QDialog(parent, Qt::WindowFlags())
{
    ui.setupUi(this);
    ui.m_infoArea->setText(QStringLiteral("Lorem ipsum dolor sit amet, consetetur sadipscing elitr, sed diam nonumy "
                                          "eirmod tempor invidunt ut  ..."));
    ui.m_infoArea->setInfoButtonText(QStringLiteral(
        "Lorem ipsum dolor sit amet, consetetur sadipscing elitr, sed diam nonumy eirmod tempor invidunt ut labore "
        "et dolore magna aliquyam erat, sed diam voluptua. At vero eos et accusam et justo duo dolores et ea rebum. "
        "Stet clita kasd gubergren, no sea takimata sanctus est Lorem ipsum dolor sit amet."));

    const QMetaObject& meta = VNInfoArea::staticMetaObject;
    const QMetaEnum iconTypes = meta.enumerator(meta.indexOfEnumerator("IconType"));
    for (int value = 0; value <= 5; ++value)
        ui.typeCombo->addItem(QLatin1String(iconTypes.valueToKey(value)));
    ui.typeCombo->setCurrentIndex(ui.m_infoArea->iconType());
}

TestInfoArea::~TestInfoArea() = default;

void TestInfoArea::on_showInfoBtn_clicked(bool checked)
{
    ui.m_infoArea->setInfoButtonVisible(checked);
}

void TestInfoArea::on_verticalArranged_clicked(bool checked)
{
    ui.m_infoArea->setVerticalArranged(checked);
}

void TestInfoArea::on_typeCombo_currentIndexChanged(int index)
{
    ui.m_infoArea->setIconType(index);
    // The style sheet selects the look by the icon type: re-evaluate it.
    PropertyChangeFilter::repolish(ui.m_infoArea, true);
}
