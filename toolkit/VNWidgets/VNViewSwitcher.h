#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QFrame>

class QButtonGroup;
class QHBoxLayout;
class QPushButton;

// A segmented switch between views of the same data ("Forces" / "Distances"): the views sit side
// by side as joined buttons, exactly one of them pressed. Clicking a view makes it current and
// emits currentChanged(). The switcher shows its status as a frame around all segments.
class VNWIDGETS_EXPORT VNViewSwitcher : public QFrame, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)

public:
    explicit VNViewSwitcher(QWidget* parent = nullptr);

    // Returns the index of the new view; the first view added becomes current.
    int addView(const QString& text);
    int count() const;
    QString viewText(int index) const;
    QPushButton* viewButton(int index) const;

    int currentIndex() const;
    void setCurrentIndex(int index);

signals:
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void statusChanged() override { update(); }

private:
    QHBoxLayout* m_layout;
    QButtonGroup* m_group;
};
