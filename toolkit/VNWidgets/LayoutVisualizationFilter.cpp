#include "LayoutVisualizationFilter.h"

#include "LayoutVisualizationOverlay_p.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLayout>
#include <QPainter>
#include <QWidget>

namespace {
const char* const overlayName = "layoutVisualizationOverlay";

// Sent to the inspected widget to ask whether the filter still sits on it: only an installed
// filter sees the event and accepts it.
class InstalledProbe : public QEvent
{
public:
    static QEvent::Type probeType()
    {
        static const int type = QEvent::registerEventType();
        return static_cast<QEvent::Type>(type);
    }
    explicit InstalledProbe(const LayoutVisualizationFilter* asked)
        : QEvent(probeType())
        , filter(asked)
    {}

    const LayoutVisualizationFilter* filter;
    bool answered = false;
};
} // namespace

LayoutVisualizationFilter::LayoutVisualizationFilter(QObject* parent)
    : QObject(parent)
{}

LayoutVisualizationFilter::~LayoutVisualizationFilter() = default;

bool LayoutVisualizationFilter::isInstalledOn(QWidget* widget) const
{
    if (!widget)
        return false;
    InstalledProbe probe(this);
    QCoreApplication::sendEvent(widget, &probe);
    return probe.answered;
}

bool LayoutVisualizationFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == InstalledProbe::probeType()) {
        auto* probe = static_cast<InstalledProbe*>(event);
        if (probe->filter == this) {
            probe->answered = true;
            return true;
        }
        return false;
    }
    if (!watched->isWidgetType())
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Paint:
    case QEvent::Resize:
    case QEvent::LayoutRequest:
        ensureOverlay(widget);
        break;
    case QEvent::ChildAdded:
        // Keep the drawing on top of widgets added later.
        if (QWidget* overlay = widget->findChild<QWidget*>(QLatin1String(overlayName), Qt::FindDirectChildrenOnly))
            overlay->raise();
        break;
    default:
        break;
    }
    return false;
}

void LayoutVisualizationFilter::ensureOverlay(QWidget* widget)
{
    auto* overlay =
        widget->findChild<LayoutVisualizationOverlay*>(QLatin1String(overlayName), Qt::FindDirectChildrenOnly);
    if (!overlay) {
        overlay = new LayoutVisualizationOverlay(this, widget);
        overlay->setObjectName(QLatin1String(overlayName));
    }
    if (overlay->geometry() != widget->rect())
        overlay->setGeometry(widget->rect());
    if (overlay->isHidden())
        overlay->show();
}

LayoutVisualizationOverlay::LayoutVisualizationOverlay(LayoutVisualizationFilter* filter, QWidget* inspected)
    : QWidget(inspected)
    , m_filter(filter)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(inspected->rect());
    raise();
}

QRect LayoutVisualizationOverlay::mapped(QLayout* layout, const QRect& rect) const
{
    QWidget* owner = layout->parentWidget();
    if (!owner)
        return rect;
    return QRect(owner->mapTo(parentWidget(), rect.topLeft()), rect.size());
}

void LayoutVisualizationOverlay::paintEvent(QPaintEvent*)
{
    QWidget* inspected = parentWidget();
    if (!m_filter || !m_filter->isInstalledOn(inspected))
        return;
    QPainter painter(this);
    QList<QLayout*> layouts;
    if (inspected->layout())
        layouts.append(inspected->layout());
    for (QWidget* child : inspected->findChildren<QWidget*>()) {
        if (child != this && child->layout() && child->isVisible())
            layouts.append(child->layout());
    }
    for (QLayout* layout : layouts)
        paintLayout(painter, layout);
}

void LayoutVisualizationOverlay::paintLayout(QPainter& painter, QLayout* layout) const
{
    QRect geometry = layout->geometry();
    QWidget* owner = layout->parentWidget();
    // A widget's own layout learns its rectangle only with a resize event, which a widget that
    // was laid out while hidden may still wait for; its rectangle is the widget's.
    if (owner && owner->layout() == layout)
        geometry = owner->rect();
    const QRect outer = mapped(layout, geometry);
    if (outer.isEmpty())
        return;
    const QRect inner = outer.marginsRemoved(layout->contentsMargins());
    QRegion gaps(inner);
    QVector<QRect> cells;
    QVector<QRect> spacers;
    for (int index = 0; index < layout->count(); ++index) {
        QLayoutItem* item = layout->itemAt(index);
        if (item->isEmpty() && !item->spacerItem())
            continue;
        QRect cell = item->geometry();
        if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
            int row, column, rowSpan, columnSpan;
            grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
            cell = grid->cellRect(row, column).united(grid->cellRect(row + rowSpan - 1, column + columnSpan - 1));
        }
        cell = mapped(layout, cell);
        gaps -= cell;
        if (QLayout* nested = item->layout()) {
            paintLayout(painter, nested);
            continue;
        }
        (item->spacerItem() ? spacers : cells).append(cell);
    }
    painter.setPen(Qt::NoPen);
    for (const QRect& band : QRegion(outer).subtracted(QRegion(inner)))
        painter.fillRect(band, QColor(255, 60, 60, 70));
    // A layout whose items are all hidden (a flip widget while it turns) has no spacing to show.
    if (gaps != QRegion(inner)) {
        for (const QRect& gap : gaps)
            painter.fillRect(gap, QColor(255, 220, 0, 90));
    }
    painter.setBrush(QBrush(QColor(0, 160, 0, 120), Qt::BDiagPattern));
    for (const QRect& spacer : spacers)
        painter.drawRect(spacer);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QColor(0, 90, 255, 200));
    for (const QRect& cell : cells)
        painter.drawRect(cell.adjusted(0, 0, -1, -1));
    painter.setPen(QColor(220, 0, 0, 220));
    painter.drawRect(outer.adjusted(0, 0, -1, -1));
}
