#include "VNStyleSheet.h"

#include <QApplication>
#include <QFile>

QString VNStyleSheet::resourcePath()
{
    return QStringLiteral(":/Style/VnWidgets/vnwidgets.qss");
}

QString VNStyleSheet::styleSheet()
{
    QFile file(resourcePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    return QString::fromUtf8(file.readAll());
}

void VNStyleSheet::applyTo(QApplication* application)
{
    if (application)
        application->setStyleSheet(styleSheet());
}
