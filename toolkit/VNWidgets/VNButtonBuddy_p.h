#pragma once

#include <QObject>
#include <QPointer>

class QAbstractButton;
class VNDoubleSpinBox;

// Keeps a value field enabled exactly while its check box or radio button is checked and enabled
// itself, so that an option switches its value on and off.
class VNButtonBuddy : public QObject
{
public:
    explicit VNButtonBuddy(QAbstractButton* button);

    VNDoubleSpinBox* buddy() const;
    // Returns false when the buddy was already set.
    bool setBuddy(VNDoubleSpinBox* buddy);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();

    QAbstractButton* m_button;
    QPointer<VNDoubleSpinBox> m_buddy;
};
