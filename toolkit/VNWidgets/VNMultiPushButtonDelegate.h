#pragma once

#include "VNButtonCellDelegate.h"

#include <QIcon>
#include <QVector>

// A cell with a row of checkable push buttons. The check states are the bits of the int in
// getMultiPushButtonCheckedRole() (bit n for button n); getMultiPushButtonEnabledRole() holds a
// bool for all buttons or a list of bools, one per button (missing means enabled). Each button
// can have its own icons for the normal, disabled and checked looks and a tool tip per state.
class VNWIDGETS_EXPORT VNMultiPushButtonDelegate : public VNButtonCellDelegate
{
    Q_OBJECT

public:
    explicit VNMultiPushButtonDelegate(QObject* parent = nullptr);

    static int getMultiPushButtonEnabledRole();
    static int getMultiPushButtonCheckedRole();

    // Adds a button and returns its number. Without a disabled icon Qt greys the normal one;
    // without a checked icon the checked button shows the normal one.
    int addButton(const QString& text, const QIcon& icon = QIcon(), const QIcon& disabledIcon = QIcon(),
                  const QIcon& checkedIcon = QIcon());
    void setButtonToolTips(int button, const QString& enabled, const QString& disabled, const QString& checked);
    // The tool tip the button shows in this cell's state.
    QString buttonToolTip(const QModelIndex& index, int button) const;
    QIcon buttonIcon(int button) const;

    bool hasButtons(const QModelIndex& index) const override;
    int buttonCount(const QModelIndex& index) const override;
    bool isButtonChecked(const QModelIndex& index, int button) const;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

signals:
    void buttonToggled(const QModelIndex& index, int button, bool checked);

protected:
    void initButtonOption(QStyleOptionButton* button, const QModelIndex& index, int which) const override;
    bool isButtonEnabled(const QModelIndex& index, int button) const override;
    void buttonClicked(QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index,
                       int button) override;

private:
    struct Button
    {
        QString text;
        QIcon icon;
        QString toolTips[3]; // enabled, disabled, checked
    };
    QVector<Button> m_buttons;
};
