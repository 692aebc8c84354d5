#pragma once

#include "vnwidgets_export.h"

#include <QToolButton>

// A tool button whose font size comes from the toolkit's fixed size table instead of following
// the font of its parent or of the application.
class VNWIDGETS_EXPORT VNFixedFontSizeToolButton : public QToolButton
{
    Q_OBJECT

public:
    // sizeLevel indexes the table 7, 8, 9, 10, 11, 12 pt (clamped).
    VNFixedFontSizeToolButton(QWidget* parent, int sizeLevel);

    int sizeLevel() const { return m_level; }
    static int pointSizeForLevel(int sizeLevel);

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyFontSize();

    int m_level;
    bool m_applying = false;
};
