#pragma once

#include "VNContainerWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QIcon>
#include <QWidget>

class QButtonGroup;
class QHBoxLayout;
class QToolButton;

// A row of exclusive, checkable tool buttons, each standing for one result to display. Buttons
// belong to numbered parts; a gap separates neighbouring parts. A batch of insertions between
// beginModifyButtons() and endModifyButtons() lays the row out once.
class VNWIDGETS_EXPORT VNResultSwitcher : public QWidget, public VNContainerWidgetInterface
{
    Q_OBJECT

public:
    explicit VNResultSwitcher(QWidget* parent = nullptr);

    // index -1 appends, 0 inserts at the front.
    QToolButton* insertButton(const QIcon& icon, const QString& text, int index, int part);
    QToolButton* insertButton(QToolButton* button, int index, int part);
    void removeButton(int index);

    void beginModifyButtons();
    void endModifyButtons();
    bool isModifyingButtons() const { return m_modifying > 0; }

    int count() const { return m_buttons.size(); }
    QToolButton* button(int index) const;
    int part(int index) const;

    void setAllButtonsEnabled(bool enabled);
    void setChecked(int index, bool checked = true);
    int checkedIndex() const;

    int containerItemCount() const override { return count(); }
    VNWidgetStatus::StatusFlags itemWidgetStatus(int index) const override;
    void setItemWidgetStatus(const int& index, const VNWidgetStatus::StatusFlags& status) override;

    static const int partGap = 10;

signals:
    void currentChanged(int index);

private:
    void relayout();

    QList<QToolButton*> m_buttons;
    QButtonGroup* m_group;
    QHBoxLayout* m_layout;
    int m_modifying = 0;
};
