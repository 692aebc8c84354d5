#pragma once

#include "vnwidgets_export.h"

#include <QColor>
#include <QVector>
#include <QWidget>

// A horizontal bar chart under a header: one labelled, coloured bar per value, the value written
// behind the bar. Bars are scaled to the largest value. A status word stored with
// VNWidgetStatus::setStatusProperty() frames it in the status look.
class VNWIDGETS_EXPORT VNBarChart : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString headerLabel READ headerLabel WRITE setHeaderLabel)

public:
    struct Bar
    {
        QString label;
        double value;
        QColor color;
    };

    explicit VNBarChart(QWidget* parent = nullptr);

    QString headerLabel() const { return m_header; }
    void setHeaderLabel(const QString& header);

    void addBar(const QString& label, double value, const QColor& color);
    void clear();
    QVector<Bar> bars() const { return m_bars; }

    // Where the bar of that index is painted, in widget coordinates.
    QRect barRect(int index) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int headerHeight() const;
    int labelWidth() const;
    int valueWidth() const;
    QString valueText(double value) const;

    QString m_header;
    QVector<Bar> m_bars;
};
