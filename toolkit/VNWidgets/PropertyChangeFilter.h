#pragma once

#include "vnwidgets_export.h"

#include <QObject>

class QWidget;

// Keeps the style sheet in step with dynamic properties. Qt evaluates property selectors such as
// [statusLook="needInput"] only when a widget is polished, so a widget whose dynamic property
// changed keeps its old look until it is repolished. Installed as an event filter, it repolishes
// a widget whenever one of its dynamic properties changes; repolish() does it once, on demand.
class VNWIDGETS_EXPORT PropertyChangeFilter : public QObject
{
    Q_OBJECT

public:
    explicit PropertyChangeFilter(QObject* parent = nullptr);

    // Re-applies the style to the widget, and with alsoChildren to every descendant widget, then
    // updates the geometry and repaints, so that a new property value shows at once.
    static void repolish(QWidget* widget, bool alsoChildren);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
