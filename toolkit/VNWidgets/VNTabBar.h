#pragma once

#include "vnwidgets_export.h"

#include <QTabBar>

// A tab bar in the toolkit's look (the style sheet draws its tabs).
class VNWIDGETS_EXPORT VNTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit VNTabBar(QWidget* parent = nullptr);
};
