#pragma once

#include <QWidget>

// The grip under a resizable disclosure's content: dragging it up or down changes the content
// height.
class VNDisclosureResizeHandle : public QWidget
{
    Q_OBJECT

public:
    explicit VNDisclosureResizeHandle(QWidget* parent);

    QSize sizeHint() const override { return QSize(24, 7); }

signals:
    void dragged(int deltaY);
    void dragStarted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    int m_pressY = 0;
};
