#pragma once

#include <QDialog>

class QPushButton;
class VNAnimatedOPTabBar;
class VNAnimatedTabBar;
class VNTabBar;

// Stacks a plain, an animated and an operation tab bar, each above a module navigation strip;
// the buttons on top add and remove tabs on all three bars at once and switch the arrow images.
class TestVNAnimatedTabBar : public QDialog
{
    Q_OBJECT

public:
    explicit TestVNAnimatedTabBar(QWidget* parent);
    ~TestVNAnimatedTabBar() override;

public slots:
    void showCustomContextMenu(const QPoint& position);
    void menuButtonClicked(int index);
    void onCurrentChanged(int index);
    void onCloseButtonClicked(int index);
    void onAddBtnClicked();
    void onRemoveBtnClicked();
    void onUseArrowsBtnToggled(bool checked);
    void onMirrorImageToggled(bool mirrored);

private:
    void createButtonRow();
    void createBars();
    void fillBars();

    VNTabBar* m_tabBar = nullptr;
    VNAnimatedTabBar* m_animatedTabBar = nullptr;
    VNAnimatedOPTabBar* m_opTabBar = nullptr;
    QPushButton* m_addBtn = nullptr;
    QPushButton* m_removeBtn = nullptr;
    QPushButton* m_useArrowsBtn = nullptr;
    QPushButton* m_mirrorArrowsBtn = nullptr;
};
