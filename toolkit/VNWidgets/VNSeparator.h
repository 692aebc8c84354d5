#pragma once

#include "vnwidgets_export.h"

#include <QFrame>

// A thin separator line; horizontal unless made vertical.
class VNWIDGETS_EXPORT VNSeparator : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)

public:
    explicit VNSeparator(QWidget* parent = nullptr);
    explicit VNSeparator(Qt::Orientation orientation, QWidget* parent = nullptr);

    Qt::Orientation orientation() const { return m_orientation; }
    void setOrientation(Qt::Orientation orientation);

private:
    Qt::Orientation m_orientation = Qt::Horizontal;
};
