#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QFrame>

class QButtonGroup;
class QHBoxLayout;
class QPushButton;

// A segmented switch between views of the same data ("Forces" / "Distances"): the views sit side
// by side as joined buttons, exactly one of them pressed. Clicking a view makes it current and
// emits currentChanged(). Views can form several independent groups in one switcher ("Forces" /
// "Distances" and "Modify" / "Original"), set apart by a gap, with one current view per group;
// indexes count all views in the order added. The switcher shows its status as a frame around
// all segments.
class VNWIDGETS_EXPORT VNViewSwitcher : public QFrame, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)
    // The gap between groups.
    static const int groupGap = 10;

public:
    explicit VNViewSwitcher(QWidget* parent = nullptr);

    // Returns the index of the new view; the first view of each group becomes its current one.
    int addView(const QString& text, int group = 0);
    int groupOf(int index) const;
    int count() const;
    QString viewText(int index) const;
    QPushButton* viewButton(int index) const;

    // The current view of a group.
    int currentIndex(int group = 0) const;
    // Makes a view the current one of its group.
    void setCurrentIndex(int index);

signals:
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void statusChanged() override { update(); }

private:
    QButtonGroup* groupFor(int group);

    QHBoxLayout* m_layout;
    QList<QPushButton*> m_buttons;
    QList<QButtonGroup*> m_groups;
};
