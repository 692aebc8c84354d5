#include "VNMenu.h"

VNMenu::VNMenu(QWidget* parent)
    : QMenu(parent)
{}

VNMenu::VNMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{}
