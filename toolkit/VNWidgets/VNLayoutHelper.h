#pragma once

#include "vnwidgets_export.h"

#include <QObject>
#include <QPointer>
#include <QVector>

class QGridLayout;
class QWidget;

// Lines up the label columns of several separate grid layouts of one form, as if they were one
// grid: after help(), the label column of every registered grid ends at the same x in the form.
// The label column is column 0, or the column of the hint widget given with the layout. The
// helper widens label columns only (through their minimum width), keeps them from growing with the
// form (a grid without column stretch gets it on its last column) and aligns again whenever the
// form is shown or resized, since the grids' positions are known only once the form is laid out.
class VNWIDGETS_EXPORT VNLayoutHelper : public QObject
{
    Q_OBJECT

public:
    explicit VNLayoutHelper(QWidget* parent);
    ~VNLayoutHelper() override;

    // A layout that is registered already is not added twice.
    void addLayout(QGridLayout* layout, QWidget* hint = nullptr);
    // Forgets every layout and gives the label columns back their own minimum widths.
    void removeAllLayouts();
    int layoutCount() const { return m_entries.size(); }

    // Aligns the label columns now (and checks once more after the form's next layout pass).
    void help();

    // Where the label column of the layout ends, in the coordinates of the helper's widget.
    int labelColumnEnd(QGridLayout* layout) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry
    {
        QPointer<QGridLayout> layout;
        QPointer<QWidget> hint;
        int column = 0;
        int ownMinimumWidth = 0;
        int fieldColumn = -1;
        int ownLabelStretch = 0;
        int ownFieldStretch = 0;
    };

    int labelColumn(const Entry& entry) const;
    int neededWidth(const Entry& entry) const;
    int columnLeft(const Entry& entry) const;
    bool alignOnce();
    void scheduleHelp();

    QWidget* m_widget;
    QVector<Entry> m_entries;
    bool m_helpPending = false;
    bool m_helping = false;
};
