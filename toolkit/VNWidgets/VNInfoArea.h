#pragma once

#include "vnwidgets_export.h"

#include <QPointer>
#include <QWidget>

class QFrame;
class QLabel;
class QToolButton;

// A message area: an icon that tells what kind of message it is, the message text and an info
// button. Text that does not fit is cut with an ellipsis; the info button then appears, so that
// the full text is always one click away. The style sheet colours the area by its icon type
// (VNInfoArea[iconTypeName="Warning"]).
class VNWIDGETS_EXPORT VNInfoArea : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString infoText READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(IconType iconType READ iconType WRITE setIconType NOTIFY iconTypeChanged)
    Q_PROPERTY(QString infoButtonText READ infoButtonText WRITE setInfoButtonText NOTIFY infoButtonTextChanged)
    Q_PROPERTY(bool infoButtonVisible READ isInfoButtonVisible WRITE setInfoButtonVisible)
    Q_PROPERTY(bool verticalArranged READ isVerticalArranged WRITE setVerticalArranged)

public:
    enum IconType
    {
        NoIcon = 0,
        Info = 1,
        Warning = 2,
        Error = 3,
        Success = 4,
        Help = 5
    };
    Q_ENUM(IconType)

    explicit VNInfoArea(QWidget* parent = nullptr);
    ~VNInfoArea() override;

    QString text() const { return m_text; }
    void setText(const QString& text);

    IconType iconType() const { return m_iconType; }
    void setIconType(IconType type);
    // Takes the enum's value; a value outside NoIcon..Help is refused with a warning.
    void setIconType(int type);

    // Extra detail that the info button shows below the text; without it the button shows the text.
    QString infoButtonText() const { return m_infoButtonText; }
    void setInfoButtonText(const QString& text);

    // Shows the info button also while the whole text fits; a cut text always gets the button.
    bool isInfoButtonVisible() const { return m_infoButtonVisible; }
    void setInfoButtonVisible(bool visible);

    // Vertically arranged, the icon sits above the text, which then wraps over several lines.
    bool isVerticalArranged() const { return m_verticalArranged; }
    void setVerticalArranged(bool vertical);

    bool isTextElided() const { return m_parts.elided; }
    // The lines as painted, with an ellipsis where the text is cut.
    QStringList displayedLines() const { return m_parts.lines; }
    // What the info button shows.
    QString fullText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    static QString iconResource(IconType type);

public slots:
    // Opens the small window with the full text under the info button.
    void showInfo();

signals:
    void textChanged(const QString& text);
    void iconTypeChanged(VNInfoArea::IconType type);
    void infoButtonTextChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Parts
    {
        QRect icon;
        QRect text;
        QRect button;
        QStringList lines;
        bool elided = false;
    };

    Parts arrange(bool withButton) const;
    Parts arrangeHorizontally(const QRect& area, bool withButton) const;
    Parts arrangeVertically(const QRect& area, bool withButton) const;
    QStringList fitText(int width, int maxLines, bool* elided) const;
    void updateParts();
    void publishIconTypeName();
    QPixmap iconPixmap() const;
    int lineHeight() const;

    QString m_text;
    QString m_infoButtonText;
    IconType m_iconType = NoIcon;
    bool m_infoButtonVisible = false;
    bool m_verticalArranged = false;
    Parts m_parts;
    QToolButton* m_infoButton = nullptr;
    QPointer<QFrame> m_popup;
    QLabel* m_popupText = nullptr;
};
