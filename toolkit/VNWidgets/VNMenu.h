#pragma once

#include "vnwidgets_export.h"

#include <QMenu>

// A pop-up menu in the toolkit's look (the style sheet draws frame, items and separators).
class VNWIDGETS_EXPORT VNMenu : public QMenu
{
    Q_OBJECT

public:
    explicit VNMenu(QWidget* parent = nullptr);
    explicit VNMenu(const QString& title, QWidget* parent = nullptr);
};
