#pragma once

#include <QList>
#include <QString>

// An HTML page of every screenshot of a run, each under the object name and text of the launcher
// button that opened its window, for designers to page through in a browser.
class ContactSheet
{
public:
    void addShot(const QString& buttonName, const QString& buttonText, const QString& fileName);
    QString html() const;
    // Returns an empty string on success, otherwise what went wrong.
    QString save(const QString& path) const;

private:
    struct Shot
    {
        QString buttonName;
        QString buttonText;
        QString fileName;
    };
    QList<Shot> m_shots;
};
