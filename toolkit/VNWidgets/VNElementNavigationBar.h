#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QFrame>
#include <QIcon>

class QButtonGroup;
class QHBoxLayout;
class QToolButton;

// A bar that steps through the elements of a selection (parts, zones, issues): one flat button
// per element, exactly one selected. An element can carry an icon and a tool tip, and can be
// locked: a locked element shows its icon, stays visible and cannot be selected. Selecting an
// element emits currentChanged(). The bar shows its status as a frame around all elements.
class VNWIDGETS_EXPORT VNElementNavigationBar : public QFrame, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)

public:
    explicit VNElementNavigationBar(QWidget* parent = nullptr);

    // Returns the index of the new element; the first element added becomes current.
    int addButton(const QString& text, const QString& toolTip = QString(), const QIcon& icon = QIcon());
    void removeButton(int index);
    int buttonCount() const;
    QToolButton* button(int index) const;

    void setButtonIcon(int index, const QIcon& icon);
    void setButtonLocked(int index, bool locked);
    bool isButtonLocked(int index) const;

    int currentIndex() const;
    void setCurrentIndex(int index);

signals:
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void statusChanged() override { update(); }

private:
    QList<QToolButton*> m_buttons;
    QHBoxLayout* m_layout;
    QButtonGroup* m_group;
};
