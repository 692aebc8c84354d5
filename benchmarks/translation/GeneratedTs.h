#pragma once

// Generated input for the translation benchmarks: the same .ts text in every program and run.

#include <QByteArray>
#include <QList>

class Generator
{
public:
    QByteArray word() { return words()[next() % words().size()]; }
    QByteArray sentence(int maxWords)
    {
        QByteArray text = word();
        for (int count = int(next() % maxWords); count > 0; --count)
            text += ' ' + word();
        return text;
    }
    quint32 next()
    {
        m_state = m_state * 1664525u + 1013904223u;
        return m_state >> 8;
    }

private:
    static const QList<QByteArray>& words()
    {
        static const QList<QByteArray> list = {
            "Open",      "file", "Cancel", "Information", "Save", "as",   "Width",  "folder",         "&amp;Edit",
            "&lt;b&gt;", "%1",   "%n",     "Overview",    "tion", "Auto", "window", "\xc3\xa4nderung"};
        return list;
    }
    quint32 m_state = 20240611;
};

inline QByteArray message(Generator& generator, int index)
{
    const QByteArray location = "        <location filename=\"../src/widgets/dialog" + QByteArray::number(index % 97) +
                                ".cpp\" line=\"" + QByteArray::number(index) + "\"/>\n";
    const QByteArray source = generator.sentence(8);
    switch (generator.next() % 5) {
    case 0:
        return "    <message>\n" + location + "        <source>" + source +
               "</source>\n        <translation type=\"unfinished\"></translation>\n    </message>\n";
    case 1:
        return "    <message numerus=\"yes\">\n" + location + "        <source>" + source +
               "</source>\n        <translation>\n            <numerusform>" + generator.sentence(4) +
               "</numerusform>\n            <numerusform>" + generator.sentence(4) +
               "</numerusform>\n        </translation>\n    </message>\n";
    case 2:
        return "    <message>\n" + location + "        <source>" + source + "</source>\n        <comment>" +
               generator.sentence(5) + "</comment>\n        <translation type=\"obsolete\">" + generator.sentence(8) +
               "</translation>\n    </message>\n";
    default:
        return "    <message>\n" + location + "        <source>" + source + "</source>\n        <translation>" +
               generator.sentence(8) + "</translation>\n    </message>\n";
    }
}

inline QByteArray generateTs(qint64 size)
{
    Generator generator;
    QByteArray ts =
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"de_DE\">\n";
    ts.reserve(int(size + 4096));
    for (int index = 0; ts.size() < size; ++index) {
        ts += "<context>\n    <name>Context" + QByteArray::number(index) + "</name>\n";
        for (int count = 0; count < 12; ++count)
            ts += message(generator, index * 12 + count);
        ts += "</context>\n";
    }
    return ts + "</TS>\n";
}
