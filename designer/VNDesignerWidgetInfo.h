#pragma once

#include <QString>

#include <functional>

class QWidget;

// What the designer plugin tells Qt Designer about one toolkit widget, and how it makes one.
struct VNDesignerWidgetInfo
{
    QString className;   // as forms name it, with its namespace
    QString includeFile; // the public header that uic output includes
    QString group;       // the widget box group: the toolkit library that holds the class
    QString family;      // names the icon: ":/VNDesigner/icons/<family>.svg"
    const char* toolTip; // untranslated; context "VNDesignerCatalog"
    const char* whatsThis;
    bool container = false;
    QString domXml; // the default object name, size and properties of a new instance
    std::function<QWidget*(QWidget* parent)> create;
};
