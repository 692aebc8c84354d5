#include "ContactSheet.h"
#include "HostApplication.h"
#include "ObjectMap.h"
#include "ReproducibleFont.h"
#include "ReproducibleRun.h"
#include "TranslationFileTool.h"

#include <QApplication>
#include <QFontDatabase>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

// Besides the map's own checks, compares what robots rely on in every window with its baseline in
// autotests/app/objectmap: one line per widget with its path, classes and texts. With
// TWC_ACCEPT_OBJECT_MAP=1 (scripts/accept-object-map.sh) the current windows become the baseline.
namespace {
const QString baselineDirectory = QStringLiteral(TWC_SOURCE_DIR "/autotests/app/objectmap");
const QString acceptCommand = QStringLiteral("scripts/accept-object-map.sh");
const QString baselineSuffix = QStringLiteral(".txt");
const QString fieldSeparator = QStringLiteral("  ");
// Qt's composite widgets make unnamed inner parts of their own, which differ between Qt versions.
const char* const qtComposites[] = {"QAbstractScrollArea", "QAbstractSpinBox", "QComboBox", "QLineEdit",
                                    "QTabWidget",          "QCalendarWidget",  "QToolBar",  "QMenuBar"};
// A tab bar names its scroll buttons without Qt's prefix; whether one is enabled while its tab bar
// has not been laid out (on a page never shown) is Qt's own affair and differs between versions.
const char* const tabBarScrollButtons[] = {"ScrollLeftButton", "ScrollRightButton"};

QStringList strings(const QJsonValue& array)
{
    QStringList list;
    for (const QJsonValue& value : array.toArray())
        list << value.toString();
    return list;
}

bool isQtPart(const QJsonObject& node, const QStringList& parentClasses, bool parentIsQtPart)
{
    const QString name = node.value(QStringLiteral("objectName")).toString();
    if (name.startsWith(QLatin1String("qt_")) || name.startsWith(QLatin1String("_q_")))
        return true;
    if (parentClasses.contains(QLatin1String("QTabBar")) &&
        std::any_of(std::begin(tabBarScrollButtons), std::end(tabBarScrollButtons),
                    [&](const char* button) { return name == QLatin1String(button); }))
        return true;
    if (!name.isEmpty() || !node.value(QStringLiteral("class")).toString().contains(QRegularExpression("^Q[A-Z]")))
        return false;
    return parentIsQtPart || std::any_of(std::begin(qtComposites), std::end(qtComposites), [&](const char* composite) {
               return parentClasses.contains(QLatin1String(composite));
           });
}

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    text.replace(QLatin1Char('\n'), QLatin1String("\\n")).replace(QLatin1Char('\t'), QLatin1String("\\t"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// The path (ending in "/" for an unnamed widget), the classes down to QWidget, what it shows, and
// whether it is checked and enabled.
QString nodeLine(const QJsonObject& node)
{
    QStringList classes = strings(node.value(QStringLiteral("classes")));
    classes = classes.mid(0, classes.indexOf(QStringLiteral("QWidget")));
    QString line = node.value(QStringLiteral("path")).toString();
    if (node.value(QStringLiteral("objectName")).toString().isEmpty())
        line += QLatin1Char('/');
    line += fieldSeparator + (classes.isEmpty() ? QStringLiteral("QWidget") : classes.join(QLatin1String(" : ")));
    for (const char* key : {"text", "title", "windowTitle"}) {
        if (node.contains(QLatin1String(key)))
            line += fieldSeparator + QLatin1String(key) + QLatin1Char('=') +
                    quoted(node.value(QLatin1String(key)).toString());
    }
    QStringList items = strings(node.value(QStringLiteral("items")));
    if (!items.isEmpty()) {
        for (QString& item : items)
            item = quoted(item);
        line += fieldSeparator + QStringLiteral("items=[%1]").arg(items.join(QLatin1String(", ")));
    }
    if (node.contains(QStringLiteral("checked")))
        line += fieldSeparator + (node.value(QStringLiteral("checked")).toBool() ? "checked" : "unchecked");
    if (!node.value(QStringLiteral("enabled")).toBool())
        line += fieldSeparator + QStringLiteral("disabled");
    return line;
}

void collectLines(const QJsonObject& node, const QStringList& parentClasses, bool parentIsQtPart, QStringList& lines)
{
    const bool qtPart = !parentClasses.isEmpty() && isQtPart(node, parentClasses, parentIsQtPart);
    if (!qtPart)
        lines << nodeLine(node);
    const QStringList classes = strings(node.value(QStringLiteral("classes")));
    for (const QJsonValue& child : node.value(QStringLiteral("children")).toArray())
        collectLines(child.toObject(), classes, qtPart, lines);
}

// Every window's lines in a stable order, named like its screenshot: by its launcher button (the
// panel by its object name), a further window of the same button with "_2", "_3"...
QMap<QString, QStringList> baselines(const QJsonArray& map)
{
    QMap<QString, QStringList> windows;
    for (const QJsonValue& entry : map) {
        const QJsonObject window = entry.toObject().value(QStringLiteral("window")).toObject();
        QString name = entry.toObject().value(QStringLiteral("button")).toString();
        if (name.isEmpty())
            name = window.value(QStringLiteral("objectName")).toString();
        const QString button = name;
        for (int number = 2; windows.contains(name); ++number)
            name = QStringLiteral("%1_%2").arg(button).arg(number);
        QStringList lines;
        collectLines(window, {}, false, lines);
        lines.sort();
        windows.insert(name, lines);
    }
    return windows;
}

QString pathOf(const QString& line)
{
    return line.section(fieldSeparator, 0, 0);
}

QStringList readLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool writeLines(const QString& path, const QStringList& lines)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Text) &&
           file.write((lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8()) >= 0;
}

// The lines only the first of two sorted lists has.
QStringList onlyInFirst(const QStringList& first, const QStringList& second)
{
    QStringList only;
    std::set_difference(first.begin(), first.end(), second.begin(), second.end(), std::back_inserter(only));
    return only;
}

// The windows of an object-map run in the fixed environment, with further arguments.
QJsonArray mapWindows(const QStringList& arguments)
{
    QTemporaryDir home;
    const QString path = home.filePath(QStringLiteral("map.json"));
    if (!ReproducibleRun::runHost(ReproducibleRun::environment(QDir(home.path())),
                                  QStringList{QStringLiteral("--object-map"), path} + arguments))
        qWarning("the object map run failed");
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object().value(QStringLiteral("windows")).toArray();
}

// What a user reads is translated; what editors hold, values, enumerator keys and the loupe's
// menu (a developer's tool, in English by design) are not.
bool showsData(const QJsonObject& node)
{
    const QStringList classes = strings(node.value(QStringLiteral("classes")));
    for (const char* editor : {"QLineEdit", "QAbstractSpinBox", "QComboBox", "QCalendarWidget", "Loupe"}) {
        if (classes.contains(QLatin1String(editor)))
            return true;
    }
    const QString path = node.value(QStringLiteral("path")).toString();
    return node.value(QStringLiteral("objectName")).toString().isEmpty() &&
           path.contains(QRegularExpression(QStringLiteral("^TestCurveInputControlClass/widget[ADE]$")));
}

// Names that scripts look for in every locale, by the path of the widget that shows them: these
// stay English under any translation.
const QSet<QString> plainTexts = {
    QStringLiteral("FileConverterDialog \"TestConverter\""),
    QStringLiteral("FileConverterDialog/description \"This is the description of the converter.\""),
    QStringLiteral("TestLayoutExample/frame \"QLineEdit\""),
    QStringLiteral("TestLayoutExample/frame \"Button\""),
    QStringLiteral("TestLayoutExample/groupBox/buttonText \"Button\""),
    QStringLiteral("TestSVG/replaceScrollArea/qt_scrollarea_viewport/replaceList \"Ignore\""),
    QStringLiteral("TestSVG/replaceScrollArea/qt_scrollarea_viewport/replaceList \"Text\""),
    QStringLiteral("TestModuleNavigationClass/m_moduleNavigation/groupButton \"Switch to PX\""),
    QStringLiteral("TestModuleNavigationClass/m_moduleNavigation/moduleButton \"Nose\""),
    QStringLiteral("TestModuleNavigationClass/m_moduleNavigation/moduleButton \"Adjust\""),
    QStringLiteral("TestModuleNavigationClass/m_moduleNavigation/moduleButton \"Clamp\""),
    QStringLiteral("TestModuleNavigationClass/m_moduleNavigation/moduleButton \"Apron\""),
    QStringLiteral("TestModuleNavigationClass/m_moduleNavigation/moduleButton \"Edgetest\""),
    QStringLiteral("TestModuleNavigationClass/m_moduleNavigation/moduleButton \"Shapetest\""),
};

struct TextCheck
{
    const TranslationFileTool tool;
    QStringList untranslated;
    QStringList translatedPlain;
    QSet<QString> plainSeen;
};

// Editors and their parts show data; only plain names are looked for in them.
void collectUntranslated(const QJsonObject& english, const QJsonObject& mocked, TextCheck& check, bool inData = false)
{
    const bool data = inData || showsData(english);
    for (const char* key : {"text", "title", "windowTitle", "items"}) {
        const QJsonValue value = english.value(QLatin1String(key));
        const QStringList texts = value.isArray() ? strings(value) : QStringList(value.toString());
        const QStringList shown = value.isArray() ? strings(mocked.value(QLatin1String(key)))
                                                  : QStringList(mocked.value(QLatin1String(key)).toString());
        for (int index = 0; index < texts.size(); ++index) {
            const QString& text = texts.at(index);
            const QString entry = english.value(QStringLiteral("path")).toString() + QLatin1Char(' ') + quoted(text);
            if (plainTexts.contains(entry)) {
                check.plainSeen.insert(entry);
                if (shown.value(index) != text)
                    check.translatedPlain << entry;
            } else if (!data && text.contains(QRegularExpression(QStringLiteral("^\\D.*[A-Za-z]|^[A-Za-z]"))) &&
                       shown.value(index) != check.tool.mockSwedish(text)) {
                check.untranslated << entry;
            }
        }
    }
    const QJsonArray children = english.value(QStringLiteral("children")).toArray();
    const QJsonArray mockedChildren = mocked.value(QStringLiteral("children")).toArray();
    for (int index = 0; index < children.size(); ++index)
        collectUntranslated(children.at(index).toObject(), mockedChildren.at(index).toObject(), check, data);
}

QJsonObject childNamed(const QJsonObject& node, const QString& name)
{
    for (const QJsonValue& child : node.value(QStringLiteral("children")).toArray()) {
        if (child.toObject().value(QStringLiteral("objectName")).toString() == name)
            return child.toObject();
    }
    return {};
}
} // namespace

class ObjectMapTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void matchesBaseline_data();
    void matchesBaseline();
    void mockLocaleTranslatesEveryText();
    void describesWhereRobotsClick();
    void unwritableMapIsReported();
    void contactSheetEscapesTexts();
    void linesAsFreeTypeRoundsThem_data();
    void linesAsFreeTypeRoundsThem();
    void fontThatCannotBeChangedIsRefused();

private:
    void acceptBaselines();

    QJsonArray m_english;
    QMap<QString, QStringList> m_windows;
};

void ObjectMapTest::initTestCase()
{
    m_english = mapWindows({});
    m_windows = baselines(m_english);
    QVERIFY(m_windows.size() > 10);
    if (qEnvironmentVariableIntValue("TWC_ACCEPT_OBJECT_MAP") == 1)
        acceptBaselines();
}

void ObjectMapTest::acceptBaselines()
{
    QDir directory(baselineDirectory);
    QVERIFY(directory.mkpath(QStringLiteral(".")));
    for (const QString& file : directory.entryList({QLatin1Char('*') + baselineSuffix}, QDir::Files))
        QVERIFY(directory.remove(file));
    for (auto window = m_windows.cbegin(); window != m_windows.cend(); ++window) {
        const QString path = directory.filePath(window.key() + baselineSuffix);
        QVERIFY2(writeLines(path, window.value()), qPrintable(path));
    }
    qInfo("Accepted %d windows into %s", int(m_windows.size()), qPrintable(baselineDirectory));
}

void ObjectMapTest::matchesBaseline_data()
{
    QTest::addColumn<QString>("window");
    QStringList names = QDir(baselineDirectory).entryList({QLatin1Char('*') + baselineSuffix}, QDir::Files);
    for (QString& name : names)
        name.chop(baselineSuffix.size());
    names += m_windows.keys();
    names.removeDuplicates();
    names.sort();
    for (const QString& name : qAsConst(names))
        QTest::newRow(qPrintable(name)) << name;
}

// A robot-visible change names the window and the first node it touches, with both versions.
void ObjectMapTest::matchesBaseline()
{
    QFETCH(QString, window);
    const QString file = QDir(baselineDirectory).filePath(window + baselineSuffix);
    if (!QFile::exists(file))
        QFAIL(qPrintable(QStringLiteral("window %1 has no baseline; accept it with %2").arg(window, acceptCommand)));
    if (!m_windows.contains(window))
        QFAIL(qPrintable(QStringLiteral("baseline %1 has no window any more; remove it with %2")
                             .arg(window + baselineSuffix, acceptCommand)));
    const QStringList expected = readLines(file);
    const QStringList actual = m_windows.value(window);
    const QStringList gone = onlyInFirst(expected, actual);
    const QStringList added = onlyInFirst(actual, expected);
    if (gone.isEmpty() && added.isEmpty())
        return;
    const QString none = QStringLiteral("(nothing)");
    QFAIL(qPrintable(
        QStringLiteral("window %1, node %2 differs from its baseline (lines gone: %3, new: %4)\n"
                       "   expected: %5\n   actual:   %6\n"
                       "After an intended change accept it with %7 and review git diff autotests/app/objectmap.")
            .arg(window, pathOf(gone.isEmpty() ? added.first() : gone.first()))
            .arg(gone.size())
            .arg(added.size())
            .arg(gone.value(0, none), added.value(0, none), acceptCommand)));
}

// With the mock translation every text that a user reads in any window shows in mock Swedish,
// except the names that scripts look for in every locale.
void ObjectMapTest::mockLocaleTranslatesEveryText()
{
    if (!TWC_HAS_MOCK_TRANSLATION)
        QSKIP("built without lupdate and lrelease");
    const QJsonArray mocked = mapWindows({QStringLiteral("--mock-locale")});
    QCOMPARE(mocked.size(), m_english.size());
    TextCheck check;
    for (int index = 0; index < mocked.size(); ++index) {
        const auto window = [](const QJsonValue& entry) {
            return entry.toObject().value(QStringLiteral("window")).toObject();
        };
        collectUntranslated(window(m_english.at(index)), window(mocked.at(index)), check);
    }
    QVERIFY2(check.untranslated.isEmpty(),
             qPrintable(QStringLiteral("texts that stay English:\n") + check.untranslated.join(QLatin1Char('\n'))));
    QVERIFY2(check.translatedPlain.isEmpty(), qPrintable(QStringLiteral("names that must not be translated:\n") +
                                                         check.translatedPlain.join(QLatin1Char('\n'))));
    const QSet<QString> missing = plainTexts - check.plainSeen;
    QVERIFY2(missing.isEmpty(), qPrintable(QStringLiteral("plain names no window shows:\n") +
                                           QStringList(missing.values()).join(QLatin1Char('\n'))));
}

// Where a robot clicks, which the baseline leaves out: geometry in the parent and in the window,
// through unnamed containers that add no step to the path.
void ObjectMapTest::describesWhereRobotsClick()
{
    QWidget window;
    window.setObjectName(QStringLiteral("form"));
    auto* unnamed = new QWidget(&window);
    auto* edit = new QLineEdit(unnamed);
    edit->setObjectName(QStringLiteral("minimumEdit"));
    edit->setGeometry(4, 20, 80, 24);
    unnamed->move(10, 5);
    window.show();

    const QJsonObject node =
        childNamed(childNamed(ObjectMap::describe(&window, QString()), QString()), QStringLiteral("minimumEdit"));
    QCOMPARE(node.value(QStringLiteral("path")).toString(), QStringLiteral("form/minimumEdit"));
    QCOMPARE(node.value(QStringLiteral("visible")).toBool(), true);
    const QJsonObject geometry = node.value(QStringLiteral("geometry")).toObject();
    QCOMPARE(geometry.value(QStringLiteral("x")).toInt(), 4);
    QCOMPARE(geometry.value(QStringLiteral("width")).toInt(), 80);
    const QJsonObject inWindow = node.value(QStringLiteral("windowGeometry")).toObject();
    QCOMPARE(inWindow.value(QStringLiteral("x")).toInt(), 14);
    QCOMPARE(inWindow.value(QStringLiteral("y")).toInt(), 25);
}

void ObjectMapTest::unwritableMapIsReported()
{
    QTemporaryDir dir;
    HostApplication host;
    QCOMPARE(host.start({QStringLiteral("testwidgetcollection"), QStringLiteral("--object-map"), dir.path()}), 1);
    QVERIFY(QDir(dir.path()).isEmpty());
}

void ObjectMapTest::contactSheetEscapesTexts()
{
    ContactSheet sheet;
    sheet.addShot(QStringLiteral("m_testLayouts"), QStringLiteral("Layout && <SizeHint>"),
                  QStringLiteral("m_testLayouts.png"));
    const QString html = sheet.html();
    QVERIFY2(html.contains(QStringLiteral("<code>m_testLayouts</code> Layout &amp;&amp; &lt;SizeHint&gt;")),
             qPrintable(html));
    QVERIFY(html.contains(QStringLiteral("<img src=\"m_testLayouts.png\"")));
}

// Windows sized from their texts, and the sizes a dialog measures, are the same under Qt 5 and
// Qt 6 only if every line of the reproducible font is as high: the figures are FreeType's for
// DejaVu Sans (ascent and descent rounded up to whole pixels), as Qt 5 shows them.
void ObjectMapTest::linesAsFreeTypeRoundsThem_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("ascent");
    QTest::addColumn<int>("descent");
    QTest::addColumn<int>("lineSpacing");
    QTest::newRow("8 pt") << 11 << false << 11 << 3 << 13;
    QTest::newRow("9 pt") << 12 << false << 12 << 3 << 14;
    QTest::newRow("9 pt bold") << 12 << true << 12 << 3 << 14;
    QTest::newRow("10.5 pt") << 14 << false << 13 << 4 << 16;
    QTest::newRow("11.25 pt bold") << 15 << true << 14 << 4 << 17;
    QTest::newRow("14 pt bold") << 19 << true << 18 << 5 << 22;
}

void ObjectMapTest::linesAsFreeTypeRoundsThem()
{
    QFETCH(int, pixels);
    QFETCH(bool, bold);
    const QFont applicationFont = QApplication::font();
    if (!ReproducibleFont::install())
        QSKIP("DejaVu Sans is not installed");
    QFont font = QApplication::font();
    QApplication::setFont(applicationFont);
    font.setPixelSize(pixels);
    font.setBold(bold);
    const QFontMetrics metrics(font);
    QCOMPARE(QFontInfo(font).bold(), bold);
    QTEST(metrics.ascent(), "ascent");
    QTEST(metrics.descent(), "descent");
    QTEST(metrics.lineSpacing(), "lineSpacing");
}

void ObjectMapTest::fontThatCannotBeChangedIsRefused()
{
    QFile file(ReproducibleFont::file);
    if (!file.open(QIODevice::ReadOnly))
        QSKIP("DejaVu Sans is not installed");
    const QByteArray font = file.readAll();
    const QString family = QStringLiteral("Changed");
    QVERIFY(ReproducibleFont::withWholePixelLineMetrics(QByteArray(), family).isEmpty());
    QVERIFY(ReproducibleFont::withWholePixelLineMetrics(QByteArray("not a font at all"), family).isEmpty());
    QVERIFY(ReproducibleFont::withWholePixelLineMetrics(font.left(300), family).isEmpty());
    const QByteArray changed = ReproducibleFont::withWholePixelLineMetrics(font, family);
    const int id = QFontDatabase::addApplicationFontFromData(changed);
    QCOMPARE(QFontDatabase::applicationFontFamilies(id), QStringList(family));
}

QTEST_MAIN(ObjectMapTest)
#include "tst_objectmap.moc"
