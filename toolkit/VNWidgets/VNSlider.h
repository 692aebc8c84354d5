#pragma once

#include "vnwidgets_export.h"

#include <QBrush>
#include <QSlider>
#include <QVector>

// The toolkit's slider. Besides the value handle it paints coloured marker intervals on its
// groove, a best mark, an admissible range whose two handles the user drags with the mouse, the
// current sublimit, the range the user finds relevant and, on request, a Gaussian curve. As a
// span slider the admissible range is the span: two full handles with the groove between them
// filled. All of it follows the orientation and the inverted appearance of the QSlider base.
// A status word stored with VNWidgetStatus::setStatusProperty() frames the slider in the status
// colours (and the sigma bar and compare-differs frame), as fields show it.
class VNWIDGETS_EXPORT VNSlider : public QSlider
{
    Q_OBJECT
    Q_PROPERTY(bool isDVValueSlider READ isDVValueSlider WRITE setIsDVValueSlider)
    Q_PROPERTY(bool extended READ isExtended WRITE setExtended)
    Q_PROPERTY(bool subPageFilled READ isSubPageFilled WRITE setSubPageFilled)

public:
    struct SliderInterval
    {
        int minimum;
        int maximum;
    };

    struct Marker
    {
        int from;
        int to;
        QBrush brush;
        bool usesSliderBrush; // follows setBrushColor()
    };

    explicit VNSlider(QWidget* parent = nullptr);
    explicit VNSlider(Qt::Orientation orientation, QWidget* parent = nullptr);

    // Shades the groove outside the admissible range, so values the model rejects look unavailable.
    bool shadeOutsideAdmissibleRange = false;

    static QBrush redBrush();
    static QBrush greenBrush();

    QBrush markerBrush() const { return m_brush; }
    void setBrushColor(const QColor& color);

    // Adds an interval; a reversed pair is kept as given and painted between its two ends.
    void mark(int from, int to, const QBrush& brush);
    void clearMarkers();
    QVector<Marker> markers() const { return m_markers; }

    void markBest(int value);
    int bestMark() const { return m_best; }
    bool hasBestMark() const { return m_hasBest; }

    void setAdmissibleRange(int minimum, int maximum, bool userAdjustable);
    SliderInterval admissibleRange() const { return m_admissible; }
    bool hasAdmissibleRange() const { return m_hasAdmissible; }
    bool isAdmissibleRangeAdjustable() const { return m_admissibleAdjustable; }

    void setCurrentSublimit(SliderInterval sublimit);
    SliderInterval currentSublimit() const { return m_sublimit; }

    void setUserRelevantRange(double minimum, double maximum);

    void setShowGaussianCurve(bool show);
    bool showGaussianCurve() const { return m_showGauss; }

    // Without input the value handle is drawn hollow and the user cannot move it.
    void setInputEnabled(bool enabled);
    bool isInputEnabled() const { return m_inputEnabled; }

    // The value slider of a design variable: a slim value line instead of the round knob.
    void setIsDVValueSlider(bool dvSlider);
    bool isDVValueSlider() const { return m_dvSlider; }

    // Extended: a broad groove in which the markers show at full height.
    void setExtended(bool extended);
    bool isExtended() const { return m_extended; }

    void setSubPageFilled(bool filled);
    bool isSubPageFilled() const { return m_subPageFilled; }

    void setUseAsSpanSlider(bool span);
    bool isSpanSlider() const { return m_span; }

    // Pixel position along the groove of a value, in widget coordinates (x, or y when vertical).
    int pixelPosition(double value) const;
    QRect grooveRect() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void admissibleRangeChanged(int minimum, int maximum);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum DragTarget
    {
        NoDrag,
        DragValue,
        DragAdmissibleMinimum,
        DragAdmissibleMaximum
    };

    void init();
    int length() const;
    int crossLength() const;
    int grooveThickness() const;
    int grooveCross() const;
    double axisPosition(double value) const;
    int valueAt(int axis) const;
    int axisOf(const QPoint& point) const;
    DragTarget hitTarget(int axis) const;
    void dragAdmissibleTo(DragTarget target, int value);

    void paintRelevantRange(QPainter& painter) const;
    void paintGroove(QPainter& painter) const;
    void paintMarkers(QPainter& painter) const;
    void paintOutsideAdmissible(QPainter& painter) const;
    void paintSublimit(QPainter& painter) const;
    void paintGaussianCurve(QPainter& painter) const;
    void paintBestMark(QPainter& painter) const;
    void paintAdmissibleHandles(QPainter& painter) const;
    void paintSpanHandles(QPainter& painter) const;
    void paintValueHandle(QPainter& painter) const;
    QColor shown(const QColor& color) const;

    QBrush m_brush;
    QVector<Marker> m_markers;
    int m_best = 0;
    bool m_hasBest = false;
    SliderInterval m_admissible{0, 0};
    bool m_hasAdmissible = false;
    bool m_admissibleAdjustable = false;
    SliderInterval m_sublimit{0, 0};
    bool m_hasSublimit = false;
    double m_relevantMin = 0.0;
    double m_relevantMax = 0.0;
    bool m_hasRelevant = false;
    bool m_showGauss = false;
    bool m_inputEnabled = true;
    bool m_dvSlider = false;
    bool m_extended = false;
    bool m_subPageFilled = false;
    bool m_span = false;
    DragTarget m_drag = NoDrag;
};
