#pragma once

#include "VNDragTreeWidget.h"
#include "vnwidgets_export.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Varnis {

// A tree widget whose top-level rows are components and whose further columns are assembly
// operations. It draws the links of its model over the rows: an item-to-column link as a mark in
// the row's cell of that column with a line from the row's name to it; a column-to-column link as
// a connector that gathers the marks of the start column and runs on to the end column. Links to
// rows or columns that do not exist are left out.
class VNWIDGETS_EXPORT VNDendrogramWidget : public VNDragTreeWidget
{
    Q_OBJECT

public:
    struct DendrogramModel
    {
        using Link = std::pair<std::int32_t, std::int32_t>;
        std::vector<Link> itemToColumn;   // (column, top-level row)
        std::vector<Link> columnToColumn; // (start column, end column)
    };

    explicit VNDendrogramWidget(QWidget* parent = nullptr);

    // Keeps the model and redraws the links.
    void setDendrogramModel(std::shared_ptr<DendrogramModel> model);
    std::shared_ptr<DendrogramModel> dendrogramModel() const { return m_model; }

    // The centre of the mark of an item-to-column link in viewport coordinates; null if not drawn.
    QPoint linkMarkPosition(int column, int row) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Geometry;
    bool isDrawableColumn(int column) const;
    void paintLinks(QPainter& painter, const Geometry& geometry, const QRect& exposed) const;

    std::shared_ptr<DendrogramModel> m_model;
};

} // namespace Varnis
