#pragma once

#include "VNWidgetInterface.h"
#include "vnwidgets_export.h"

#include <QColor>
#include <QFrame>
#include <QPointer>

class QCheckBox;
class QLabel;
class QToolButton;
class QVariantAnimation;
class QVBoxLayout;
class VNDisclosureResizeHandle;
class VNProgressiveDisclosureBtn;

// A collapsible section: a head with the caption, a state label, an optional check box, a colour
// box and an info button, then the content, framed by a top and a bottom line. Clicking the head
// opens and closes the content with an animation of its height.
//
// The content is the first child widget whose object name ends in "Container" (so that forms can
// put it there), or the widget given to setContentWidget(). State label, info button and both
// lines each have a show mode. The optional check box either switches the content's visibility or
// (enable switch) leaves it visible and enables or disables it.
//
// Forms can set the dynamic properties "resizeAble" (the user can drag the content's height),
// "showOptionalCheck" and "enableClientWidget" (the optional check is an enable switch).
//
// A widget status (VNWidgetInterface) shows on the head, so that it stays visible while the
// section is closed.
class VNWIDGETS_EXPORT VNProgressiveDisclosure : public QFrame, public VNWidgetInterface
{
    Q_OBJECT
    Q_PROPERTY(QString widgetCaption READ getWidgetCaption WRITE setWidgetCaption)
    Q_PROPERTY(QString stateLabelText READ getStateLabelText WRITE setStateLabelText)
    Q_PROPERTY(QString infoButtonText READ getInfoButtonText WRITE setInfoButtonText)
    Q_PROPERTY(int showStateLabel READ getShowStateLabel WRITE setShowStateLabel)
    Q_PROPERTY(int showInfoButton READ getShowInfoButton WRITE setShowInfoButton)
    Q_PROPERTY(int showTopLine READ getShowTopLine WRITE setShowTopLine)
    Q_PROPERTY(int showBottomLine READ getShowBottomLine WRITE setShowBottomLine)
    Q_PROPERTY(bool open READ isOpen WRITE setOpen NOTIFY openChanged)

public:
    enum ShowMode
    {
        ShowNever = 0,
        ShowAlways = 1,
        ShowOnClose = 2
    };
    Q_ENUM(ShowMode)

    explicit VNProgressiveDisclosure(QWidget* parent = nullptr);
    ~VNProgressiveDisclosure() override;

    QString getWidgetCaption() const;
    void setWidgetCaption(const QString& caption);
    QString getStateLabelText() const;
    void setStateLabelText(const QString& text);
    QString getInfoButtonText() const { return m_infoText; }
    void setInfoButtonText(const QString& text);

    int getShowStateLabel() const { return m_stateLabelMode; }
    void setShowStateLabel(int mode);
    int getShowInfoButton() const { return m_infoButtonMode; }
    void setShowInfoButton(int mode);
    int getShowTopLine() const { return m_topLineMode; }
    void setShowTopLine(int mode);
    int getShowBottomLine() const { return m_bottomLineMode; }
    void setShowBottomLine(int mode);
    // A state label shown on close stays visible while the section is open, too.
    bool showStateAlsoWhenOpen() const { return m_stateAlsoWhenOpen; }
    void setShowStateAlsoWhenOpen(bool show);

    QCheckBox* getOptionalCheckBox() const { return m_optionalCheck; }
    bool isOptionalCheckVisible() const { return m_optionalCheckVisible; }
    void setOptionalCheckVisible(bool visible);
    bool isOptionalCheckForVisibilitySwitch() const { return m_checkSwitchesVisibility; }
    void setOptionalCheckForVisibilitySwitch(bool visibilitySwitch);

    bool isWidgetEnabled() const { return m_widgetEnabled; }
    void setWidgetEnabled(bool enabled);

    // An invalid colour hides the colour box.
    QColor colorBox() const { return m_color; }
    void setColorBox(const QColor& color);

    bool isResizable() const { return m_resizable; }
    void setResizable(bool resizable);
    // The content height the user dragged to; 0 while the content takes its own height.
    int contentHeight() const { return m_userHeight; }
    void setContentHeight(int height);

    QWidget* contentWidget();
    // Replaces the content; the disclosure takes ownership.
    void setContentWidget(QWidget* widget);

    bool isOpen() const { return m_open; }
    // Whether the content shows (open, and not switched off by the optional check).
    bool isContentShown() const;

    // Length of the open and close animation; 0 switches at once.
    int animationDuration() const { return m_duration; }
    void setAnimationDuration(int milliseconds);
    QVariantAnimation* animation() const { return m_animation; }
    bool isAnimating() const;

public slots:
    void setOpen(bool open);
    void toggle();
    void showInfo();

signals:
    void openChanged(bool open);

protected:
    bool event(QEvent* event) override;
    void statusChanged() override;

private:
    void buildHead();
    void adoptContent();
    void applyDynamicProperty(const QByteArray& name);
    void updateParts();
    void updateContentEnabled();
    void animateContent(bool show);
    void onAnimationFinished();
    int openContentHeight() const;
    bool shows(int mode) const;
    void setMode(int& member, int mode);

    VNProgressiveDisclosureBtn* m_button;
    QLabel* m_colorLabel;
    QLabel* m_stateLabel;
    QCheckBox* m_optionalCheck;
    QToolButton* m_infoButton;
    QFrame* m_topLine;
    QFrame* m_bottomLine;
    QWidget* m_contentArea;
    QVBoxLayout* m_contentLayout;
    VNDisclosureResizeHandle* m_handle;
    QVariantAnimation* m_animation;
    QPointer<QWidget> m_content;

    QString m_infoText;
    QColor m_color;
    int m_stateLabelMode = ShowOnClose;
    int m_infoButtonMode = ShowNever;
    int m_topLineMode = ShowNever;
    int m_bottomLineMode = ShowAlways;
    int m_duration = 180;
    int m_userHeight = 0;
    int m_dragStartHeight = 0;
    bool m_open = true;
    bool m_contentShown = true;
    bool m_stateAlsoWhenOpen = false;
    bool m_optionalCheckVisible = false;
    bool m_checkSwitchesVisibility = true;
    bool m_widgetEnabled = true;
    bool m_resizable = false;
    bool m_building = true;
};
