#include "TestModuleNavigation.h"

#include <VNModuleNavigation.h>

TestModuleNavigation::TestModuleNavigation(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);
    // "Adjust" appears twice on purpose: modules are told apart by position, not by name. Module and
    // group texts are names that scripts look for in every locale.
    const QString modules[] = {QStringLiteral("Nose"),     QStringLiteral("Adjust"), QStringLiteral("Clamp"),
                               QStringLiteral("Apron"),    QStringLiteral("Adjust"), QStringLiteral("Edgetest"),
                               QStringLiteral("Shapetest")};
    for (const QString& module : modules)
        ui.m_moduleNavigation->addButton(module, QString());
    addGroupButton();
    connect(ui.m_moduleNavigation, &VNModuleNavigation::groupButtonClicked, this,
            &TestModuleNavigation::onSwitchButtonClicked);
}

TestModuleNavigation::~TestModuleNavigation() = default;

void TestModuleNavigation::addGroupButton()
{
    const QIcon icon(QStringLiteral(":/Icons/Shared/flip_arrow_16.svg"));
    if (m_compact)
        ui.m_moduleNavigation->addGroupButton(0, 3, 3, icon, QStringLiteral("Switch to RX"), true);
    else
        ui.m_moduleNavigation->addGroupButton(0, 3, 4, icon, QStringLiteral("Switch to PX"), false);
}

void TestModuleNavigation::onSwitchButtonClicked()
{
    m_compact = !m_compact;
    if (!m_compact) {
        ui.m_moduleNavigation->removeButton(3);
        ui.m_moduleNavigation->insertButton(QStringLiteral("Adjust"), 3);
        ui.m_moduleNavigation->insertButton(QStringLiteral("Apron"), 4);
    } else {
        ui.m_moduleNavigation->removeButton(4);
        ui.m_moduleNavigation->removeButton(3);
        ui.m_moduleNavigation->insertButton(QStringLiteral("PX"), 3);
    }
    ui.m_moduleNavigation->setModuleLocked(1, m_compact);
    addGroupButton();
}
