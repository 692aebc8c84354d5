#include "TestVNAnimatedTabBar.h"

#include <SvgIcons.h>
#include <VNAnimatedOPTabBar.h>
#include <VNAnimatedTabBar.h>
#include <VNModuleNavigation.h>
#include <VNTabBar.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
const char* const arrowImage = ":/Style/VnWidgets/VNOPTabBar/op_tab_triangle.svg";

VNModuleNavigation* createNavigation()
{
    auto* navigation = new VNModuleNavigation;
    navigation->setMinimumHeight(20);
    return navigation;
}
} // namespace

TestVNAnimatedTabBar::TestVNAnimatedTabBar(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("TestVNAnimatedTabBar"));
    setWindowTitle(tr("Animated Tab Bar"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    createButtonRow();
    createBars();
    fillBars();

    connect(m_useArrowsBtn, SIGNAL(toggled(bool)), this, SLOT(onUseArrowsBtnToggled(bool)));
    connect(m_mirrorArrowsBtn, SIGNAL(toggled(bool)), this, SLOT(onMirrorImageToggled(bool)));
    connect(m_tabBar, SIGNAL(currentChanged(int)), this, SLOT(onCurrentChanged(int)));
    connect(m_animatedTabBar, SIGNAL(currentChanged(int)), this, SLOT(onCurrentChanged(int)));
    connect(m_opTabBar, SIGNAL(currentChanged(int)), this, SLOT(onCurrentChanged(int)));
    connect(m_animatedTabBar, SIGNAL(closeButtonClicked(int)), this, SLOT(onCloseButtonClicked(int)));
    connect(m_opTabBar, SIGNAL(closeButtonClicked(int)), this, SLOT(onCloseButtonClicked(int)));
    connect(m_addBtn, &QPushButton::clicked, this, &TestVNAnimatedTabBar::onAddBtnClicked);
    connect(m_removeBtn, &QPushButton::clicked, this, &TestVNAnimatedTabBar::onRemoveBtnClicked);
    connect(m_animatedTabBar, &VNAnimatedTabBar::menuButtonClicked, this, &TestVNAnimatedTabBar::menuButtonClicked);
    connect(m_animatedTabBar, &QWidget::customContextMenuRequested, this, &TestVNAnimatedTabBar::showCustomContextMenu);
}

TestVNAnimatedTabBar::~TestVNAnimatedTabBar() = default;

void TestVNAnimatedTabBar::createButtonRow()
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    m_addBtn = new QPushButton(tr("Add Tab"), this);
    m_addBtn->setObjectName(QStringLiteral("m_addBtn"));
    m_removeBtn = new QPushButton(tr("Remove Tab"), this);
    m_removeBtn->setObjectName(QStringLiteral("m_removeBtn"));
    m_useArrowsBtn = new QPushButton(tr("Use Arrows"), this);
    m_useArrowsBtn->setObjectName(QStringLiteral("m_useArrowsBtn"));
    m_useArrowsBtn->setCheckable(true);
    m_useArrowsBtn->setChecked(true);
    m_mirrorArrowsBtn = new QPushButton(tr("Mirror Arrows"), this);
    m_mirrorArrowsBtn->setObjectName(QStringLiteral("m_mirrorArrowsBtn"));
    m_mirrorArrowsBtn->setCheckable(true);
    for (QPushButton* button : {m_addBtn, m_removeBtn, m_useArrowsBtn, m_mirrorArrowsBtn})
        row->addWidget(button);
    row->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum));
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void TestVNAnimatedTabBar::createBars()
{
    auto* layout = static_cast<QVBoxLayout*>(this->layout());
    m_tabBar = new VNTabBar(this);
    m_tabBar->setObjectName(QStringLiteral("m_tabBar"));
    layout->addWidget(new QLabel(tr("VNTabBar"), this));
    layout->addWidget(m_tabBar);
    layout->addWidget(createNavigation());

    m_animatedTabBar = new VNAnimatedTabBar(this);
    m_animatedTabBar->setObjectName(QStringLiteral("m_animatedTabBar"));
    m_animatedTabBar->setMinimumHeight(28);
    layout->addWidget(new QLabel(tr("AnimatedTabBar"), this));
    layout->addWidget(m_animatedTabBar);
    layout->addWidget(createNavigation());

    m_opTabBar = new VNAnimatedOPTabBar(this);
    m_opTabBar->setObjectName(QStringLiteral("m_opTabBar"));
    m_opTabBar->setMinimumHeight(28);
    layout->addWidget(new QLabel(tr("AnimatedOPTabBar"), this));
    layout->addWidget(m_opTabBar);
    layout->addWidget(createNavigation());
}

void TestVNAnimatedTabBar::fillBars()
{
    const QString texts[] = {tr("PL"), tr("(F-40)"), tr("D-20"), tr("(T40)")};
    for (const QString& text : texts) {
        m_tabBar->addTab(QIcon(), text);
        m_animatedTabBar->addTab(text, QString());
        m_opTabBar->addTab(text, QString());
    }

    QToolButton* addButton = m_animatedTabBar->addButton();
    auto* addMenu = new QMenu(addButton);
    QAction* add = addMenu->addAction(createSvgIcon(QStringLiteral(":/Icons/Shared/add_16.svg")), tr("Add"));
    addButton->setMenu(addMenu);
    addButton->setPopupMode(QToolButton::MenuButtonPopup);
    addButton->setDefaultAction(add);
    m_opTabBar->addButton()->setAccessibleName(tr("Tab bar button"));

    m_animatedTabBar->useMenuButton(3, true);

    m_opTabBar->setNoImageAfterTab(0, true);
    m_opTabBar->setOperationSemiLocked(1, true);
    m_opTabBar->setOperationCycled(2, true);
    m_opTabBar->setOperationSkipped(3, true);
    m_opTabBar->setNoImageAfterTab(0, true);
    m_opTabBar->setDarkStyle(0, true);
    m_opTabBar->setMarkedIndex(0);
    m_opTabBar->setMarkedIndex(2);
    m_opTabBar->setFixFirstWidthPreferred(true);
    m_opTabBar->useCloseButton(2, true);
    m_opTabBar->setWidgetStatus(1, VNWidgetStatus::needInput);
    m_opTabBar->setOperationCycled(2, true);
}

void TestVNAnimatedTabBar::showCustomContextMenu(const QPoint& position)
{
    const QPoint global = m_animatedTabBar->mapToGlobal(position);
    if (m_animatedTabBar->getIndexAtPosition(global) == -1)
        return;
    QMenu menu;
    menu.addAction(tr("Test1"));
    menu.addAction(tr("Test2"));
    menu.exec(global);
}

void TestVNAnimatedTabBar::menuButtonClicked(int index)
{
    if (index == -1)
        return;
    QMenu menu;
    menu.addAction(tr("Test1"));
    menu.addSeparator();
    menu.addAction(tr("Test2"));
    menu.addSeparator();
    menu.addAction(tr("Test3"));
    m_animatedTabBar->showMenu(index, &menu);
}

void TestVNAnimatedTabBar::onCurrentChanged(int index)
{
    m_tabBar->setCurrentIndex(index);
    m_animatedTabBar->setCurrentIndex(index);
    m_opTabBar->setCurrentIndex(index);
}

void TestVNAnimatedTabBar::onCloseButtonClicked(int index)
{
    m_opTabBar->removeTab(index);
    m_animatedTabBar->removeTab(index);
}

void TestVNAnimatedTabBar::onAddBtnClicked()
{
    const QString text = tr("(D-%1)").arg(m_tabBar->count(), 0, 10, QLatin1Char(' '));
    m_tabBar->addTab(QIcon(), text);
    m_animatedTabBar->addTab(text, QString());
    const int index = m_opTabBar->addTab(text, QString());
    m_opTabBar->setOperationLocked(index, true);
}

void TestVNAnimatedTabBar::onRemoveBtnClicked()
{
    m_tabBar->removeTab(m_tabBar->count() - 1);
    if (m_tabBar->currentIndex() > m_tabBar->count() - 1)
        m_tabBar->setCurrentIndex(m_tabBar->count() - 1);
    m_animatedTabBar->removeTab(m_animatedTabBar->count() - 1);
    if (m_animatedTabBar->currentIndex() > m_animatedTabBar->count() - 1)
        m_animatedTabBar->setCurrentIndex(m_animatedTabBar->count() - 1);
    m_opTabBar->removeTab(m_opTabBar->count() - 1);
    if (m_opTabBar->currentIndex() > m_opTabBar->count() - 1)
        m_opTabBar->setCurrentIndex(m_opTabBar->count() - 1);
}

void TestVNAnimatedTabBar::onUseArrowsBtnToggled(bool checked)
{
    m_opTabBar->setImageAfterTabs(checked ? QLatin1String(arrowImage) : QString());
}

void TestVNAnimatedTabBar::onMirrorImageToggled(bool mirrored)
{
    m_opTabBar->setImageAfterTabsMirrored(mirrored);
}
