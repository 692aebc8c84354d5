#include <PathShortener.h>

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>

namespace {
const QString ellipsis(PathShortener::ellipsis);
const QRegularExpression separators(QStringLiteral("[\\\\/]+"));

struct Path
{
    const char* tag;
    QString text;
    QString root;
    QString name;
};

QList<Path> samplePaths()
{
    return {
        {"drive backslash", QStringLiteral("I:\\datablabla\\work\\temporary\\TP_96757_hemming_plan.vnd"),
         QStringLiteral("I:\\"), QStringLiteral("TP_96757_hemming_plan.vnd")},
        {"drive slash", QStringLiteral("C:/Program Files/Vendor/Suite 2024/bin/plugins/designer/widgets.dll"),
         QStringLiteral("C:/"), QStringLiteral("widgets.dll")},
        {"unix absolute", QStringLiteral("/home/someone/projects/widgets/src/kernel/qwidget.cpp"), QStringLiteral("/"),
         QStringLiteral("qwidget.cpp")},
        {"unc", QStringLiteral("\\\\fileserver\\share\\department\\projects\\2024\\report_final.docx"),
         QStringLiteral("\\\\fileserver\\share\\"), QStringLiteral("report_final.docx")},
        {"relative", QStringLiteral("build/debug/autotests/values/output.log"), QString(),
         QStringLiteral("output.log")},
        {"name only", QStringLiteral("an_extremely_long_file_name_without_any_directory_at_all_v2.txt"), QString(),
         QStringLiteral("an_extremely_long_file_name_without_any_directory_at_all_v2.txt")},
        {"long names",
         QStringLiteral("E:\\TestFiles\\AddendumTestExamples_R4_with_a_directory_name_that_goes_on_and_on\\"
                        "7_KESTA_windowframe\\my_test_file_one_with_a_very_long_name_indeed.vnd"),
         QStringLiteral("E:\\"), QStringLiteral("my_test_file_one_with_a_very_long_name_indeed.vnd")},
    };
}

QList<QFont> sampleFonts()
{
    QFont sans(QStringLiteral("DejaVu Sans"), 9);
    QFont serif(QStringLiteral("DejaVu Serif"), 12);
    QFont mono(QStringLiteral("DejaVu Sans Mono"), 10);
    QFont bold(QStringLiteral("DejaVu Sans"), 16, QFont::Bold);
    return {sans, serif, mono, bold};
}

QStringList directoriesOf(const QString& text)
{
    QStringList parts = text.split(separators, Qt::SkipEmptyParts);
    if (!parts.isEmpty())
        parts.removeLast();
    return parts;
}
} // namespace

class PathShortenerTest : public QObject
{
    Q_OBJECT

private slots:
    void fitsMeasuredWidth_data();
    void fitsMeasuredWidth();
    void leavesOutMiddleDirectoriesFirst_data();
    void leavesOutMiddleDirectoriesFirst();
    void elidesNameKeepingExtension();
    void nothingFits_data();
    void nothingFits();
    void settersChangeResult();
    void shapedTextThatFitsStays();
    void loneEllipsisOnlyWhenNothingElseFits();
};

void PathShortenerTest::fitsMeasuredWidth_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("name");
    for (const QFont& font : sampleFonts()) {
        const QFontMetrics metrics(font);
        for (const Path& path : samplePaths()) {
            const int full = metrics.horizontalAdvance(path.text);
            const int widths[] = {0, 3, metrics.horizontalAdvance(ellipsis), 40, 90, 160, 250, full - 1, full, 2000};
            for (int width : widths) {
                const QString tag = QStringLiteral("%1 %2pt %3 @%4")
                                        .arg(font.family())
                                        .arg(font.pointSize())
                                        .arg(QLatin1String(path.tag))
                                        .arg(width);
                QTest::newRow(qPrintable(tag)) << font << width << path.text << path.root << path.name;
            }
        }
    }
}

// Whatever the width: the result fits, is the path itself when that fits, keeps the root and the
// name while they fit beside an ellipsis, and leaves out only whole directories around one
// ellipsis before it touches the name.
void PathShortenerTest::fitsMeasuredWidth()
{
    QFETCH(QFont, font);
    QFETCH(int, width);
    QFETCH(QString, path);
    QFETCH(QString, root);
    QFETCH(QString, name);
    const QFontMetrics metrics(font);
    const QString result = PathShortener(width, metrics).adjust(path);

    QVERIFY2(metrics.horizontalAdvance(result) <= width, qPrintable(result));
    if (metrics.horizontalAdvance(path) <= width) {
        QCOMPARE(result, path);
        return;
    }
    QCOMPARE(result.isEmpty(), metrics.horizontalAdvance(ellipsis) > width);

    const QString separator = root.isEmpty() ? path.mid(path.indexOf(separators), 1) : root.right(1);
    const QString leastWithName = root + (name == path ? QString() : ellipsis + separator) + name;
    if (metrics.horizontalAdvance(leastWithName) > width)
        return; // the name itself had to be elided
    QVERIFY2(result.count(PathShortener::ellipsis) == 1, qPrintable(result));
    QVERIFY2(result.startsWith(root), qPrintable(result));
    QVERIFY2(result.endsWith(name), qPrintable(result));
    const QStringList kept = directoriesOf(result.mid(root.size()));
    const QStringList all = directoriesOf(path.mid(root.size()));
    const int gap = kept.indexOf(ellipsis);
    QVERIFY2(gap >= 0, qPrintable(result));
    QCOMPARE(kept.mid(0, gap), all.mid(0, gap));
    const int behind = kept.size() - gap - 1;
    QCOMPARE(kept.mid(gap + 1), all.mid(all.size() - behind));
}

void PathShortenerTest::leavesOutMiddleDirectoriesFirst_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one of three")
        << "I:\\datablabla\\work\\temporary\\TP_96757_hemming_plan.vnd"
        << QStringLiteral("I:\\datablabla\\%1\\temporary\\TP_96757_hemming_plan.vnd").arg(ellipsis);
    QTest::newRow("two of three, the name keeps its neighbour")
        << "I:\\datablabla\\work\\temporary\\TP_96757_hemming_plan.vnd"
        << QStringLiteral("I:\\%1\\temporary\\TP_96757_hemming_plan.vnd").arg(ellipsis);
    QTest::newRow("slash") << "/usr/local/share/widgets/icons/add.svg"
                           << QStringLiteral("/usr/local/%1/icons/add.svg").arg(ellipsis);
    QTest::newRow("unc") << "\\\\server\\share\\a1\\b2\\c3\\file.txt"
                         << QStringLiteral("\\\\server\\share\\a1\\%1\\c3\\file.txt").arg(ellipsis);
    QTest::newRow("mixed separators take the one behind the gap")
        << "C:\\first/second\\third/file.txt" << QStringLiteral("C:\\first/%1\\third/file.txt").arg(ellipsis);
}

// At exactly the width of the expected text the shortener finds that text.
void PathShortenerTest::leavesOutMiddleDirectoriesFirst()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    const QFontMetrics metrics(QFont(QStringLiteral("DejaVu Sans"), 10));
    QCOMPARE(PathShortener(metrics.horizontalAdvance(expected), metrics).adjust(path), expected);
}

void PathShortenerTest::elidesNameKeepingExtension()
{
    const QFontMetrics metrics(QFont(QStringLiteral("DejaVu Sans"), 10));
    const QString path = QStringLiteral("D:\\data\\measurements_of_the_second_prototype_series.csv");
    const int width = metrics.horizontalAdvance(QStringLiteral("D:\\…\\measurements_of…csv"));
    const QString result = PathShortener(width, metrics).adjust(path);
    QVERIFY2(result.startsWith(QStringLiteral("D:\\%1\\measure").arg(ellipsis)), qPrintable(result));
    QVERIFY2(result.endsWith(QStringLiteral(".csv")), qPrintable(result));
    QVERIFY(metrics.horizontalAdvance(result) <= width);
}

void PathShortenerTest::nothingFits_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("negative width") << -10 << "C:\\a\\b.txt" << QString();
    QTest::newRow("zero width, empty path") << 0 << QString() << QString();
    QTest::newRow("zero width") << 0 << "C:\\a\\b.txt" << QString();
    QTest::newRow("room for the ellipsis only")
        << QFontMetrics(QFont(QStringLiteral("DejaVu Sans"), 10)).horizontalAdvance(ellipsis) << "C:\\a\\b.txt"
        << ellipsis;
}

void PathShortenerTest::nothingFits()
{
    QFETCH(int, width);
    QFETCH(QString, path);
    QFETCH(QString, expected);
    const QFontMetrics metrics(QFont(QStringLiteral("DejaVu Sans"), 10));
    QCOMPARE(PathShortener(width, metrics).adjust(path), expected);
}

void PathShortenerTest::settersChangeResult()
{
    const QString path = QStringLiteral("/a/bb/ccc/dddd/eeeee/file.txt");
    const QFontMetrics small(QFont(QStringLiteral("DejaVu Sans"), 8));
    const QFontMetrics large(QFont(QStringLiteral("DejaVu Sans"), 20));
    PathShortener shortener(small.horizontalAdvance(path), small);
    QCOMPARE(shortener.adjust(path), path);
    shortener.setMetrics(large);
    QVERIFY(shortener.adjust(path) != path);
    shortener.setWidth(large.horizontalAdvance(path));
    QCOMPARE(shortener.width(), large.horizontalAdvance(path));
    QCOMPARE(shortener.adjust(path), path);
}

void PathShortenerTest::shapedTextThatFitsStays()
{
    // Joined Arabic letters are narrower than the sum of the letters alone.
    const QString path = QStringLiteral("C:\\مشروع\\التصميم\\الهيكل\\النوافذ\\ملف_الاختبار.vnd");
    const QFontMetrics metrics(QFont(QStringLiteral("DejaVu Sans"), 10));
    const int width = metrics.horizontalAdvance(path);
    QCOMPARE(PathShortener(width, metrics).adjust(path), path);
    QVERIFY(PathShortener(width - 20, metrics).adjust(path) != path);
}

void PathShortenerTest::loneEllipsisOnlyWhenNothingElseFits()
{
    const QString path = QStringLiteral("C:\\ユーザー\\山田\\ドキュメント\\測定結果の一覧表.csv");
    const QFontMetrics metrics(QFont(QStringLiteral("DejaVu Sans Mono"), 10));
    for (int width = 10; width <= 160; ++width) {
        const QString result = PathShortener(width, metrics).adjust(path);
        QVERIFY2(metrics.horizontalAdvance(result) <= width, qPrintable(QString::number(width)));
        const bool nameWouldFit = metrics.horizontalAdvance(QStringLiteral("測") + ellipsis) <= width;
        QVERIFY2(!(nameWouldFit && result == ellipsis), qPrintable(QStringLiteral("%1 px: %2").arg(width).arg(result)));
    }
}

QTEST_MAIN(PathShortenerTest)
#include "tst_pathshortener.moc"
