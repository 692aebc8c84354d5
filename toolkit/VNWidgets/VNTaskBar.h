#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QFrame>

class QButtonGroup;
class QHBoxLayout;
class QToolButton;

// The stage bar of a process: one large button per stage (icon above text), left to right with a
// chevron between neighbours, exactly one stage current. Clicking a stage makes it current and
// emits currentIndexChanged(). The bar shows its status as a frame around all stages.
class VNWIDGETS_EXPORT VNTaskBar : public QFrame, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)

public:
    explicit VNTaskBar(QWidget* parent = nullptr);

    // Returns the index of the new stage; the first stage added becomes current.
    int addItem(const QIcon& icon, const QString& text);
    int count() const;
    QString itemText(int index) const;
    QToolButton* itemButton(int index) const;

    int currentIndex() const;
    void setCurrentIndex(int index);

signals:
    void currentIndexChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void statusChanged() override { update(); }

private:
    QHBoxLayout* m_layout;
    QButtonGroup* m_group;
};
