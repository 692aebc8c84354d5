#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QComboBox>

// The toolkit's combo box. It shows its items as icon only, text only or icon and text, in the
// box and in the popup alike. Each item may carry a widget status, painted as a coloured bar in
// front of it; a box that observes its items takes the current item's status as its own look
// (keeping the status it had of its own while it has no current item).
class VNWIDGETS_EXPORT VNComboBox : public QComboBox, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(ComboStyle comboBoxStyle READ comboBoxStyle WRITE setComboBoxStyle)
    Q_PROPERTY(bool needInputStatus READ isNeedInputStatus WRITE setNeedInputStatus)
    Q_PROPERTY(bool userEditStatus READ isUserEditStatus WRITE setUserEditStatus)

public:
    enum ComboStyle
    {
        IconOnly = 0,
        TextOnly = 1,
        IconAndText = 2
    };
    Q_ENUM(ComboStyle)

    // The item data role that holds an item's status word.
    static const int WidgetStatusRole = Qt::UserRole + 0x5700;

    explicit VNComboBox(QWidget* parent = nullptr);

    ComboStyle comboBoxStyle() const { return m_style; }
    void setComboBoxStyle(ComboStyle style);

    void setItemWidgetStatus(const int& index, const QFlags<VNWidgetStatus::Status>& status);
    VNWidgetStatus::StatusFlags itemWidgetStatus(int index) const;
    VNWidgetStatus::StatusFlags getWidgetStatusOfCurrent() const;

    void observeItemsForWidgetStatus();
    bool isObservingItems() const { return m_observing; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    // For a subclass that shows its items in a view of its own, which keeps its own delegate.
    void setPopupView(QAbstractItemView* view);

private:
    void takeStatusOfCurrent();
    bool showsFocusInsideFrame() const;

    ComboStyle m_style = IconAndText;
    bool m_observing = false;
    // Qt builds the whole popup when a delegate is set, so the box sets its own at the first popup.
    bool m_popupDelegatePending = true;
    VNWidgetStatus::StatusFlags m_ownStatus;
};
