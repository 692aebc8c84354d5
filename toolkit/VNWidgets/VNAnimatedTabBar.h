#pragma once

#include "VNContainerWidgetInterface.h"
#include "VNWidgetStatus.h"
#include "vnwidgets_export.h"

#include <QIcon>
#include <QVector>
#include <QWidget>

class QMenu;
class QSvgRenderer;
class QToolButton;
class QVariantAnimation;

// A tab bar whose current-tab indicator slides to the new tab. Tabs may carry a menu button and a
// close button, a dark style, a status look and a mark; an image (an arrow, say) can be drawn
// after each tab, and extra buttons follow the last tab.
class VNWIDGETS_EXPORT VNAnimatedTabBar : public QWidget, public VNContainerWidgetInterface
{
    Q_OBJECT

public:
    explicit VNAnimatedTabBar(QWidget* parent = nullptr);
    ~VNAnimatedTabBar() override;

    int addTab(const QString& text, const QString& iconPath = QString());
    int insertTab(int index, const QString& text, const QString& iconPath = QString());
    void removeTab(int index);
    int count() const;
    QString tabText(int index) const;

    int currentIndex() const { return m_current; }
    virtual void setCurrentIndex(int index);

    // A tool button placed after the last tab.
    QToolButton* addButton(const QIcon& icon = QIcon(), const QString& toolTip = QString());
    QList<QToolButton*> buttons() const { return m_buttons; }

    void useMenuButton(int index, bool on);
    bool hasMenuButton(int index) const;
    void useCloseButton(int index, bool on);
    bool hasCloseButton(int index) const;
    // Opens the menu below the tab and returns when it is closed.
    void showMenu(int index, QMenu* menu);

    int getIndexAtPosition(const QPoint& globalPosition) const;
    QRect tabRect(int index) const;
    QRect menuButtonRect(int index) const;
    QRect closeButtonRect(int index) const;

    void setImageAfterTabs(const QString& resourcePath);
    QString imageAfterTabs() const { return m_imagePath; }
    void setImageAfterTabsMirrored(bool mirrored);
    bool isImageAfterTabsMirrored() const { return m_imageMirrored; }
    void setNoImageAfterTab(int index, bool noImage);
    bool hasImageAfterTab(int index) const;

    void setDarkStyle(int index, bool dark);
    bool isDarkStyle(int index) const;
    void setMarkedIndex(int index);
    int markedIndex() const { return m_marked; }
    // The first tab keeps its preferred width when the bar is too narrow for all tabs.
    void setFixFirstWidthPreferred(bool fix);
    bool isFixFirstWidthPreferred() const { return m_fixFirstWidth; }

    void setWidgetStatus(int index, VNWidgetStatus::StatusFlags status);
    VNWidgetStatus::StatusFlags widgetStatus(int index) const;

    int containerItemCount() const override { return count(); }
    VNWidgetStatus::StatusFlags itemWidgetStatus(int index) const override { return widgetStatus(index); }
    void setItemWidgetStatus(const int& index, const VNWidgetStatus::StatusFlags& status) override
    {
        setWidgetStatus(index, status);
    }

    // Where the current-tab indicator is drawn now (moving while the animation runs).
    QRectF indicatorRect() const { return m_indicator; }
    QVariantAnimation* indicatorAnimation() const { return m_animation; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void currentChanged(int index);
    void closeButtonClicked(int index);
    void menuButtonClicked(int index);

protected:
    struct TabLook
    {
        QColor fill;
        QColor text;
        QColor frame;
        bool strikeOut = false;
    };

    // Subclasses add their own decorations and refuse tabs the user may not select.
    virtual TabLook tabLook(int index) const;
    virtual void paintTabDecoration(QPainter& painter, int index, const QRect& rect) const;
    virtual bool isTabSelectable(int index) const;
    virtual int decorationWidth(int index) const;
    void relayout();
    // Flags a subclass keeps per tab; they move with the tab when tabs are inserted or removed.
    int tabFlags(int index) const { return validIndex(index) ? m_tabs.at(index).flags : 0; }
    void setTabFlags(int index, int flags);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    struct Tab
    {
        QString text;
        QIcon icon;
        QRect rect;
        VNWidgetStatus::StatusFlags status;
        bool menuButton = false;
        bool closeButton = false;
        bool dark = false;
        bool noImageAfter = false;
        int flags = 0;
    };

    int preferredTabWidth(int index) const;
    int imageWidth() const;
    QRectF targetIndicator() const;
    void moveIndicator();
    bool validIndex(int index) const { return index >= 0 && index < m_tabs.size(); }
    // A hidden bar gets no resize events; geometry questions lay it out for its current size.
    void ensureLayout() const;

    QVector<Tab> m_tabs;
    QList<QToolButton*> m_buttons;
    QVariantAnimation* m_animation;
    QSvgRenderer* m_image = nullptr;
    QString m_imagePath;
    QRectF m_indicator;
    QSize m_layoutSize;
    int m_current = -1;
    int m_marked = -1;
    int m_hovered = -1;
    bool m_imageMirrored = false;
    bool m_fixFirstWidth = false;
};
