#include "QtTraining.h"

QtTraining::QtTraining(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);
}

QtTraining::~QtTraining() = default;
