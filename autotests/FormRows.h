#pragma once

// The table of what robots rely on in a form: each row names a child by object name, its class and
// the text it shows.

#include <QList>
#include <QTest>
#include <QWidget>

#include <tuple>

using FormRow = std::tuple<const char*, const char*, const char*>; // name, class, text

inline void addFormRows(const QList<FormRow>& rows)
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("text");
    for (const auto& row : rows)
        QTest::newRow(std::get<0>(row)) << std::get<0>(row) << std::get<1>(row) << std::get<2>(row);
}

// Whether the form has the named child with that class, showing that text where it has a text.
// A failed comparison is reported as the test's failure.
inline bool formShows(const QWidget& form, const QString& name, const QString& className, const QString& text)
{
    const QWidget* widget = form.findChild<QWidget*>(name);
    if (!QTest::qVerify(widget != nullptr, "widget", qPrintable(name), __FILE__, __LINE__))
        return false;
    if (!QTest::qCompare(QString::fromLatin1(widget->metaObject()->className()), className, "class", "className",
                         __FILE__, __LINE__))
        return false;
    const QVariant shown = widget->property("text");
    return !shown.isValid() || QTest::qCompare(shown.toString(), text, "shown text", "text", __FILE__, __LINE__);
}
