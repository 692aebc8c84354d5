#pragma once

#include "AuditFinding.h"
#include "StatusMatrix.h"

#include <QList>
#include <QRect>

class QAbstractButton;
class QTabWidget;
class QWidget;

// Drives the widget status gallery as a designer does: for every status word of its left panel,
// without and with "Compare Differs", on every tab that holds a widget family, and reads each
// family's look from its pixels into a StatusMatrix. Delegate cells and header sections take
// their status from their model, so the word is written there, as the tree delegates test does.
class StatusGallery
{
public:
    StatusGallery(const QString& windowName, QWidget* window);
    // A window is the gallery when it has the gallery's status buttons and tabs.
    static bool isGallery(const QWidget* window);

    StatusMatrix measure();
    // One finding per family, part and wrong colour, naming the words that show it.
    QList<AuditFinding> findings(const StatusMatrix& matrix) const;

    struct Subject; // a family's widget and the rectangle its look fills

private:
    struct WordButton
    {
        QAbstractButton* button;
        QString label;
    };

    QList<WordButton> wordButtons() const;
    void measurePage(StatusMatrix& matrix, const QString& page);
    void measureModelPage(StatusMatrix& matrix);
    void setCompare(bool on);
    VNWidgetStatus::StatusFlags appliedWord(QWidget* page) const;
    void record(StatusMatrix& matrix, int family, int word, bool compare, const Subject& subject,
                VNWidgetStatus::StatusFlags flags);

    QString m_windowName;
    QWidget* m_window;
    QTabWidget* m_tabs;
    QList<WordButton> m_words;
    QList<VNWidgetStatus::StatusFlags> m_flags;
    QHash<int, QImage> m_plain; // family -> the picture without status
};
