#pragma once

#include "vnwidgets_export.h"

#include <QIcon>
#include <QMap>
#include <QWidget>

class QButtonGroup;
class QGridLayout;
class QToolButton;

// A row of module buttons, one of them current. Group buttons below the modules span a range of
// them (one group button per row); a locked module shows a lock and cannot be chosen.
class VNWIDGETS_EXPORT VNModuleNavigation : public QWidget
{
    Q_OBJECT

public:
    explicit VNModuleNavigation(QWidget* parent = nullptr);

    int addButton(const QString& text, const QString& toolTip = QString());
    int insertButton(const QString& text, int index);
    void removeButton(int index);
    int count() const { return m_modules.size(); }
    QString buttonText(int index) const;
    QToolButton* button(int index) const;

    int currentIndex() const;
    void setCurrentIndex(int index);

    void setModuleLocked(int index, bool locked);
    bool isModuleLocked(int index) const;

    // Adds the group button of a row, replacing the row's previous one. checked shows it active.
    QToolButton* addGroupButton(int row, int firstModule, int lastModule, const QIcon& icon, const QString& text,
                                bool checked);
    void removeGroupButton(int row);
    QToolButton* groupButton(int row) const;
    QPair<int, int> groupButtonRange(int row) const;

signals:
    void currentChanged(int index);
    void groupButtonClicked(int row);

private:
    struct GroupButton
    {
        QToolButton* button = nullptr;
        int first = 0;
        int last = 0;
    };

    void rebuild();
    void showLock(int index);

    QList<QToolButton*> m_modules;
    QMap<int, GroupButton> m_groups;
    QButtonGroup* m_exclusive;
    QGridLayout* m_layout;
};
