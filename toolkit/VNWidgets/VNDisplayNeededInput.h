#pragma once

#include "vnwidgets_export.h"

#include <QWidget>

class QPainter;

// Shows how many input points an operation needs, how many more it accepts optionally and how
// many the user has given so far, beside an instruction text.
//
// Points are drawn as a row of circles: given points are filled, needed points still missing are
// outlined, optional points still missing have a lighter dashed outline. The needed points come
// first, so the first `checked` circles are filled.
//
// Optional count: with useOptional off, optional() is the count set by setOptional(). With
// useOptional on, the widget derives it from the needed count: an operation that needs n points
// accepts up to n - 1 more, so optional() is max(0, needed() - 1). Switching useOptional off keeps
// the count last shown until setOptional() sets another.
class VNWIDGETS_EXPORT VNDisplayNeededInput : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int needed READ needed WRITE setNeeded NOTIFY neededChanged)
    Q_PROPERTY(int optional READ optional WRITE setOptional NOTIFY optionalChanged)
    Q_PROPERTY(int checked READ checked WRITE setChecked NOTIFY checkedChanged)
    Q_PROPERTY(bool useOptional READ useOptional WRITE setUseOptional NOTIFY useOptionalChanged)
    Q_PROPERTY(QString infoText READ infoText WRITE setInfoText NOTIFY infoTextChanged)

public:
    explicit VNDisplayNeededInput(QWidget* parent = nullptr);
    ~VNDisplayNeededInput() override;

    // Negative counts are taken as 0.
    int needed() const { return m_needed; }
    void setNeeded(int count);

    // The optional count shown; see the class comment for how it follows useOptional.
    int optional() const;
    void setOptional(int count);
    int manualOptional() const { return m_manualOptional; }

    int checked() const { return m_checked; }
    void setChecked(int count);

    bool useOptional() const { return m_useOptional; }
    void setUseOptional(bool use);

    QString infoText() const { return m_infoText; }
    void setInfoText(const QString& text);

    // All points drawn, needed and optional.
    int pointCount() const { return m_needed + optional(); }
    // True when every needed point has been given.
    bool isComplete() const { return m_checked >= m_needed; }
    // Where point `index` is drawn; empty when it is not drawn (the row is full). Lets test
    // scripts find and click single points.
    QRect pointRect(int index) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

signals:
    void neededChanged(int count);
    void optionalChanged(int count);
    void checkedChanged(int count);
    void useOptionalChanged(bool use);
    void infoTextChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row;
    Row row(int width) const;
    int diameter() const;
    QRect textRect(const QRect& contents, const Row& row) const;
    void drawInfoText(QPainter& painter, const QRect& area) const;
    void updateOptional(int before);
    void changed();

    int m_needed = 0;
    int m_manualOptional = 0;
    int m_checked = 0;
    bool m_useOptional = false;
    QString m_infoText;
};
