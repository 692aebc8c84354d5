// Prints what one PathShortener::adjust costs on a 200-character path, at widths that keep most of
// the path, leave out directories, and force the name to be elided. Run it headless:
// QT_QPA_PLATFORM=offscreen ./bench_pathshortener
#include <PathShortener.h>

#include <QApplication>
#include <QElapsedTimer>
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
    out << QStringLiteral("PathShortener::adjust on a %1-character path (%2 px wide), goal 50 us:\n")
               .arg(path.size())
               .arg(full);

    const int runs = 20000;
    for (int width : {full, full * 3 / 4, 500, 250, 120, 40}) {
        const PathShortener shortener(width, metrics);
        QString result = shortener.adjust(path); // warm the glyph caches
        QElapsedTimer timer;
        timer.start();
        for (int run = 0; run < runs; ++run)
            result = shortener.adjust(path);
        const double microseconds = timer.nsecsElapsed() / 1000.0 / runs;
        out << QStringLiteral("  width %1 px: %2 us  -> %3\n").arg(width, 4).arg(microseconds, 6, 'f', 2).arg(result);
    }
    return 0;
}
