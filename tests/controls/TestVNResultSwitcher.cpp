#include "TestVNResultSwitcher.h"

#include <VNFixedFontSizeToolButton.h>
#include <VNMenu.h>
#include <VNResultSwitcher.h>

#include <QToolButton>

namespace {
const char* const zebraIcon = ":/Icons/Ribbon/ResultVariable/ZEBRA_LINES.svg";
const char* const deltaIcon = ":/Icons/Ribbon/ResultVariable/SB_DELTA_ANGLE.svg";
const char* const curvatureIcon = ":/Icons/Ribbon/ResultVariable/GEOM_CURVCASE.svg";
const char* const drawingIcon = ":/Icons/Ribbon/ResultVariable/TOOL_DRAWING_ANGLE.svg";

void addDropDownMenu(QToolButton* button)
{
    button->setPopupMode(QToolButton::MenuButtonPopup);
    auto* menu = new VNMenu(button);
    auto* action =
        new QAction(QIcon(QStringLiteral(":/Icons/Shared/edit_16.svg")), TestVNResultSwitcher::tr("Action 2"), nullptr);
    // The menu does not own the action; the button deletes it with the menu.
    QObject::connect(menu, &QObject::destroyed, action, &QObject::deleteLater);
    menu->addAction(action);
    button->setMenu(menu);
}
} // namespace

void addZebraButton(VNResultSwitcher* switcher)
{
    switcher->insertButton(QIcon(QLatin1String(zebraIcon)), TestVNResultSwitcher::tr("Zebra"), -1, 0);
}

TestVNResultSwitcher::TestVNResultSwitcher(QWidget* parent)
    : QDialog(parent)
{
    setupUi(this);

    addZebraButton(m_resultSwitcherSingle);

    m_resultSwitcher->beginModifyButtons();
    addDropDownMenu(m_resultSwitcher->insertButton(QIcon(QLatin1String(curvatureIcon)), tr("Test 3"), -1, 0));
    auto* fixedFontButton = new VNFixedFontSizeToolButton(m_resultSwitcher, 3);
    fixedFontButton->setIcon(QIcon(QLatin1String(zebraIcon)));
    fixedFontButton->setToolTip(tr("Test 2"));
    fixedFontButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
    m_resultSwitcher->insertButton(fixedFontButton, 0, 0);
    addDropDownMenu(m_resultSwitcher->insertButton(QIcon(QLatin1String(deltaIcon)), tr("Test 1"), 0, 0));
    m_resultSwitcher->insertButton(QIcon(QLatin1String(drawingIcon)), tr("Test 0"), 0, 0);
    m_resultSwitcher->endModifyButtons();

    const struct
    {
        const char* text;
        const char* icon;
        int part;
    } multi[] = {{QT_TR_NOOP("Test 0"), zebraIcon, 0},     {QT_TR_NOOP("Test 1"), deltaIcon, 0},
                 {QT_TR_NOOP("Test 2"), curvatureIcon, 0}, {QT_TR_NOOP("Test 3"), zebraIcon, 0},
                 {QT_TR_NOOP("Test 4"), deltaIcon, 0},     {QT_TR_NOOP("Test 5"), drawingIcon, 1},
                 {QT_TR_NOOP("Test 6"), deltaIcon, 1},     {QT_TR_NOOP("Test 7"), zebraIcon, 1},
                 {QT_TR_NOOP("Test 8"), deltaIcon, 1},     {QT_TR_NOOP("Test 9"), curvatureIcon, 1}};
    m_resultSwitcherMulti->beginModifyButtons();
    for (const auto& button : multi)
        m_resultSwitcherMulti->insertButton(QIcon(QLatin1String(button.icon)), tr(button.text), -1, button.part);
    m_resultSwitcherMulti->endModifyButtons();

    connect(m_enableCB, &QCheckBox::toggled, this, &TestVNResultSwitcher::enableButtons);

    m_countSingle->setText(QString::number(m_resultSwitcherSingle->count()));
    m_count->setText(QString::number(m_resultSwitcher->count()));
    m_countMulti->setText(QString::number(m_resultSwitcherMulti->count()));
}

TestVNResultSwitcher::~TestVNResultSwitcher() = default;

void TestVNResultSwitcher::enableButtons(bool checked)
{
    m_resultSwitcher->setAllButtonsEnabled(checked);
    m_resultSwitcherSingle->setAllButtonsEnabled(checked);
    m_resultSwitcherMulti->setAllButtonsEnabled(checked);
}
