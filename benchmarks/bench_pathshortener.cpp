// Prints what one PathShortener::adjust costs on a 200-character path, at widths that keep most of
// the path, leave out directories, and force the name to be elided. Run it headless:
// QT_QPA_PLATFORM=offscreen ./bench_pathshortener
#include "BenchTiming.h"

#include <PathShortener.h>

#include <QApplication>
#include <QFont>
#include <QFontMetrics>
#include <QTextStream>

namespace {
QString pathOf200Characters()
{
    const QStringList directories = {QStringLiteral("E:"),
                                     QStringLiteral("TestFiles"),
                                     QStringLiteral("AddendumTestExamples_R4"),
                                     QStringLiteral("7_KESTA_windowframe"),
                                     QStringLiteral("customer_projects"),
                                     QStringLiteral("2024_second_quarter"),
                                     QStringLiteral("assemblies"),
                                     QStringLiteral("window_frames"),
                                     QStringLiteral("sub_assemblies"),
                                     QStringLiteral("profiles"),
                                     QStringLiteral("revision_0815"),
                                     QStringLiteral("checked_in")};
    QString name = QStringLiteral("my_test_file_one.vnd");
    const QString path = directories.join(QLatin1Char('\\')) + QLatin1Char('\\');
    name.prepend(QString(200 - path.size() - name.size(), QLatin1Char('x')));
    return path + name;
}
} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QTextStream out(stdout);
    const QString path = pathOf200Characters();
    const QFontMetrics metrics(QApplication::font());
    const int full = metrics.horizontalAdvance(path);
    out << QStringLiteral("PathShortener::adjust on a %1-character path (%2 px wide), goal 0.05 ms (50 us) per call:\n")
               .arg(path.size())
               .arg(full);

    const int calls = 2000;
    for (int width : {full, full * 3 / 4, 500, 250, 120, 40}) {
        const PathShortener shortener(width, metrics);
        QString result = shortener.adjust(path); // warm the glyph caches
        const BenchTiming::Samples samples = BenchTiming::repeat(10, [&] {
            for (int call = 0; call < calls; ++call)
                result = shortener.adjust(path);
        });
        out << BenchTiming::line(QStringLiteral("  width %1 px, one call").arg(width, 4), samples.median().per(calls))
            << QStringLiteral("    -> %1\n").arg(result);
    }
    return 0;
}
