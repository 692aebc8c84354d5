#pragma once

#include "testwidgetcollection_export.h"

#include <QString>
#include <QVector>

class QWidget;
class TestWidgetCollection;

// Every button of the panel once, in the panel's order (the three inspection buttons, then the grid
// row by row): how a click makes its window and what the panel does with it. The panel's slots,
// the host's command line, its screenshot and object-map runs, the benchmarks and the tests all
// read this table, so a new dialog is one line here (besides its slot and its button).
class TESTWIDGETCOLLECTION_EXPORT LauncherTable
{
public:
    enum class Policy
    {
        Kept,         // made on the first click and shown again on every later one
        NewEachClick, // a new window on every click, which the panel keeps until it goes
        RunAtOnce,    // made anew on every click and its run operation called (which shows it)
        MovesLoupe,   // places the panel's one loupe into the latest visible window
    };

    enum class Extra
    {
        None,
        Raised,     // raised above the other windows on every click
        TakesLoupe, // the loupe, once there is one, moves into this window on every click
    };

    struct Entry
    {
        const char* button; // object name of the button
        Policy policy;
        Extra extra;
        // Carries out a click; returns the window it showed (the loupe for MovesLoupe).
        QWidget* (*open)(TestWidgetCollection& panel);
        // The window that the panel keeps for the button, null while there is none or when it keeps none.
        QWidget* (*kept)(const TestWidgetCollection& panel);
        // Object name of a tab widget whose every page the window shows as a view of its own, or null.
        const char* pages;
    };

    static const QVector<Entry>& entries();
    static const Entry* find(const QString& button);
    // Carries out a click on the named button, as its slot does.
    static QWidget* open(TestWidgetCollection& panel, const char* button);
};
