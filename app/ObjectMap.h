#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class QWidget;

// The widgets of the collection's windows as a test robot addresses them: for every widget its
// object name, class with base classes, path of object names from the window down, geometry,
// visibility, enabled state and text, nested as the widgets are.
class ObjectMap
{
public:
    // Adds a window that the launcher button `button` opened; an empty name stands for the panel.
    void addWindow(const QString& button, const QWidget* window);
    QJsonObject toJson() const;
    // Returns an empty string on success, otherwise what went wrong.
    QString save(const QString& path) const;

    static QJsonObject describe(const QWidget* widget, const QString& parentPath);

private:
    QJsonArray m_windows;
};
