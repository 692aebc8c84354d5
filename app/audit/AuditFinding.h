#pragma once

#include <QImage>
#include <QJsonObject>
#include <QString>

class QWidget;

// One thing the look audit found: where (window and widget), which check and rule, what it
// measured against what it expected, and a picture of the widget.
struct AuditFinding
{
    // The checks, as the report and the allow-list name them.
    static const QString statusCheck;
    static const QString contrastCheck;
    static const QString keyboardCheck;
    static const QString namesCheck;
    static const QString densityCheck;

    QString window;     // the window's name in the run: its launcher button's object name
    QString objectName; // see nameOf()
    QString check;
    QString rule;    // what exactly, e.g. "keeps-tab" or "no-name"
    QString message; // one sentence for people
    QJsonObject measured;
    QJsonObject expected;
    QImage crop;
    QString allowedBecause; // the allow-list's reason, when the finding is right by design

    QJsonObject toJson() const;

    // The widget's object name; a widget without one is named by its nearest named ancestor and
    // its class ("m_vnCustomMenuButton/QLineEdit"), so that robots and the allow-list still find it.
    static QString nameOf(const QWidget* widget);

    // A finding about one widget of a window: named by nameOf(), its class measured, its picture cropped.
    static AuditFinding aboutWidget(const QString& window, QWidget* widget, const QString& check, const QString& rule,
                                    const QString& message);
};
