#include "VNDendrogramWidget.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QVector>

namespace Varnis {

namespace {
const QColor linkColor(0x2f, 0x6d, 0xb5);
const QColor gridColor(0xe2, 0xe6, 0xeb);
const int markRadius = 4;
} // namespace

// Row centres and column centres, worked out once per paint so that thousands of links cost only
// lookups.
struct VNDendrogramWidget::Geometry
{
    QVector<int> rowCenter;    // per top-level row, -1 when not visible as a row
    QVector<int> nameEnd;      // x where a row's name ends
    QVector<int> columnCenter; // per column, -1 when hidden
};

VNDendrogramWidget::VNDendrogramWidget(QWidget* parent)
    : VNDragTreeWidget(parent)
    , m_model(std::make_shared<DendrogramModel>())
{
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    header()->setStretchLastSection(false);
    // Room for the component names; the operation columns are narrow.
    header()->resizeSection(0, 180);
}

void VNDendrogramWidget::setDendrogramModel(std::shared_ptr<DendrogramModel> model)
{
    m_model = model ? std::move(model) : std::make_shared<DendrogramModel>();
    viewport()->update();
}

bool VNDendrogramWidget::isDrawableColumn(int column) const
{
    return column > 0 && column < columnCount() && !header()->isSectionHidden(column);
}

QPoint VNDendrogramWidget::linkMarkPosition(int column, int row) const
{
    if (!isDrawableColumn(column) || row < 0 || row >= topLevelItemCount())
        return {};
    const QRect rect = visualItemRect(topLevelItem(row));
    if (!rect.isValid())
        return {};
    return QPoint(header()->sectionViewportPosition(column) + header()->sectionSize(column) / 2, rect.center().y());
}

void VNDendrogramWidget::paintEvent(QPaintEvent* event)
{
    VNDragTreeWidget::paintEvent(event);
    Geometry geometry;
    const int rows = topLevelItemCount();
    geometry.rowCenter.fill(-1, rows);
    geometry.nameEnd.fill(0, rows);
    const int nameRight = header()->sectionViewportPosition(0) + header()->sectionSize(0);
    const QFontMetrics metrics(font());
    // Rows without children all have the first row's height, so their centres follow from it;
    // asking the view for each row's rectangle would cost a search per row.
    bool flat = rows > 0 && uniformRowHeights();
    for (int row = 0; flat && row < rows; ++row)
        flat = topLevelItem(row)->childCount() == 0 && !topLevelItem(row)->isHidden();
    const QRect first = rows > 0 ? visualItemRect(topLevelItem(0)) : QRect();
    for (int row = 0; row < rows; ++row) {
        QTreeWidgetItem* item = topLevelItem(row);
        const QRect rect = flat ? first.translated(0, row * first.height()) : visualItemRect(item);
        if (!rect.isValid())
            continue;
        geometry.rowCenter[row] = rect.center().y();
        if (rect.bottom() >= event->rect().top() && rect.top() <= event->rect().bottom())
            geometry.nameEnd[row] = qMin(nameRight, rect.left() + 6 + metrics.horizontalAdvance(item->text(0)) + 4);
    }
    const int columns = columnCount();
    geometry.columnCenter.fill(-1, columns);
    for (int column = 1; column < columns; ++column) {
        if (isDrawableColumn(column))
            geometry.columnCenter[column] =
                header()->sectionViewportPosition(column) + header()->sectionSize(column) / 2;
    }
    QPainter painter(viewport());
    painter.setClipRect(event->rect());
    painter.setPen(gridColor);
    for (int column = 1; column < columns; ++column) {
        if (isDrawableColumn(column)) {
            const int x = header()->sectionViewportPosition(column);
            painter.drawLine(x, 0, x, viewport()->height());
        }
    }
    paintLinks(painter, geometry, event->rect());
}

void VNDendrogramWidget::paintLinks(QPainter& painter, const Geometry& geometry, const QRect& exposed) const
{
    const int exposedTop = exposed.top() - markRadius - 1;
    const int exposedBottom = exposed.bottom() + markRadius + 1;
    const int columns = geometry.columnCenter.size();
    const int rows = geometry.rowCenter.size();
    // Vertical extent of what arrives in each column: marks of rows and connectors of columns.
    QVector<int> top(columns, INT_MAX);
    QVector<int> bottom(columns, INT_MIN);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(linkColor, 1.5));
    painter.setBrush(linkColor);
    for (const DendrogramModel::Link& link : m_model->itemToColumn) {
        const int column = link.first;
        const int row = link.second;
        if (column <= 0 || column >= columns || row < 0 || row >= rows)
            continue;
        const int x = geometry.columnCenter[column];
        const int y = geometry.rowCenter[row];
        if (x < 0 || y < 0)
            continue;
        top[column] = qMin(top[column], y);
        bottom[column] = qMax(bottom[column], y);
        if (y < exposedTop || y > exposedBottom)
            continue;
        painter.drawLine(geometry.nameEnd[row], y, x - markRadius, y);
        painter.drawEllipse(QPoint(x, y), markRadius, markRadius);
    }
    for (const DendrogramModel::Link& link : m_model->columnToColumn) {
        const int start = link.first;
        const int end = link.second;
        if (start <= 0 || start >= columns || end <= 0 || end >= columns || start == end)
            continue;
        const int startX = geometry.columnCenter[start];
        const int endX = geometry.columnCenter[end];
        if (startX < 0 || endX < 0 || bottom[start] == INT_MIN)
            continue;
        const int y = bottom[start];
        painter.drawLine(startX, top[start], startX, y);
        painter.drawLine(startX, y, endX, y);
        painter.drawRect(QRect(endX - markRadius, y - markRadius, 2 * markRadius, 2 * markRadius));
        top[end] = qMin(top[end], y);
        bottom[end] = qMax(bottom[end], y);
    }
}

} // namespace Varnis
