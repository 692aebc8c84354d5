#pragma once

#include <QPushButton>
#include <QSize>

// A push button whose size hints follow the layout example's own rule: the minimum size hint is
// the text's bounding rectangle widened by 20 pixels, the size hint adds an extra size to it.
class MyButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MyButton(QWidget* parent = nullptr);
    ~MyButton() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QSize extraSize() const { return m_extraSize; }
    void setExtraWidth(int width);

private:
    QSize m_extraSize;
};
