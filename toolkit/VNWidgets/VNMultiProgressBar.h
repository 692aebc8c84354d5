#pragma once

#include "vnwidgets_export.h"

#include <QPair>
#include <QStringList>
#include <QVector>
#include <QWidget>

// A progress bar for a sequence of named operations, one of them current. Each operation has a
// range and a step; finished operations are filled, the current one is filled up to its step.
// Drawn as a row of segments or, in the circular look, as a ring of segments. A status word
// stored with VNWidgetStatus::setStatusProperty() frames it in the status look.
class VNWIDGETS_EXPORT VNMultiProgressBar : public QWidget
{
    Q_OBJECT

public:
    // How the segment widths are chosen: a bell around the current operation, all equal, by the
    // space each label needs, or fixed widths set per operation.
    enum StretchMode
    {
        GaussianBell = 0,
        Constant = 1,
        Balance = 2,
        Manual = 3
    };
    Q_ENUM(StretchMode)

    static const int defaultManualWidth = 80;

    explicit VNMultiProgressBar(QWidget* parent = nullptr);

    void setProgressItems(const QStringList& items);
    QStringList progressItems() const { return m_items; }
    int progressItemsCount() const { return m_items.size(); }

    // -1 means no operation is current.
    void setCurrent(int index);
    int current() const { return m_current; }

    int currentStep() const;
    // Sets the step of the current operation; at the end of its range the next operation
    // becomes current (the last one stays, complete).
    void stepCurrent(int step);

    void setRange(int index, int minimum, int maximum);
    QPair<int, int> getRange(int index) const;

    void setCircular(bool circular);
    bool isCircular() const { return m_circular; }

    void setStretchMode(int mode);
    int stretchMode() const { return m_stretchMode; }
    void setManualWidth(int index, int width);

    // Where the operation's segment lies in the row look (empty in the circular look).
    QRectF segmentRect(int index) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Operation
    {
        int minimum = 0;
        int maximum = 100;
        int step = 0;
        int manualWidth = defaultManualWidth;
    };

    QVector<double> segmentWidths(double available) const;
    double completion(int index) const;
    void paintRow(QPainter& painter);
    void paintRing(QPainter& painter);

    QStringList m_items;
    QVector<Operation> m_operations;
    int m_current = -1;
    int m_stretchMode = GaussianBell;
    bool m_circular = false;
};
