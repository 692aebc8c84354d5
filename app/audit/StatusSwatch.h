#pragma once

#include <QColor>
#include <QFlags>
#include <QJsonObject>
#include <QStringList>

// What one widget family shows for one status word, read from its painted pixels, next to what the
// status palette expects. A measured colour is invalid where nothing of that part was painted.
struct StatusSwatch
{
    // The parts of a status look that a family can show.
    enum Part
    {
        Frame = 0x1,
        Fill = 0x2,
        Sigma = 0x4,
        Compare = 0x8,
        AllParts = Frame | Fill | Sigma | Compare
    };
    Q_DECLARE_FLAGS(Parts, Part)

    QColor frame;
    QColor fill;
    QColor sigma;
    QColor compare;
    QColor text;     // the strongest text pixel on the fill; invalid where there is no text or fill
    QColor surround; // the window around the widget (or the view around a cell)

    QColor expectedFrame;
    QColor expectedFill;
    QColor expectedSigma;
    QColor expectedCompare;

    QStringList disagreeing; // names of the parts whose colour differs from the palette

    bool agrees() const { return disagreeing.isEmpty(); }
    QColor measured(Part part) const;
    QColor expected(Part part) const;
    static QString partName(Part part);
    static const Part parts[4];
    QJsonObject toJson() const;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(StatusSwatch::Parts)
