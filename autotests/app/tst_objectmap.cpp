#include "ContactSheet.h"
#include "HostApplication.h"
#include "ObjectMap.h"

#include <QDirIterator>
#include <QGroupBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QMultiHash>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

namespace {
using FormWidget = QPair<QString, QString>; // object name, class

// Every named widget of a Designer form, with the class the form gives it.
QList<FormWidget> formWidgets(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<FormWidget> widgets;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("widget"))
            continue;
        const QString name = xml.attributes().value(QLatin1String("name")).toString();
        if (!name.isEmpty())
            widgets << FormWidget(name, xml.attributes().value(QLatin1String("class")).toString());
    }
    return xml.hasError() ? QList<FormWidget>{FormWidget(xml.errorString(), path)} : widgets;
}

void collectClasses(const QJsonObject& node, QMultiHash<QString, QStringList>& classesByName)
{
    QStringList classes;
    for (const QJsonValue& value : node.value(QStringLiteral("classes")).toArray())
        classes << value.toString();
    classesByName.insert(node.value(QStringLiteral("objectName")).toString(), classes);
    for (const QJsonValue& child : node.value(QStringLiteral("children")).toArray())
        collectClasses(child.toObject(), classesByName);
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
    void describesWhatRobotsAddress();
    void everyFormWidgetAppearsWithItsClass();
    void unwritableMapIsReported();
    void contactSheetEscapesTexts();
};

void ObjectMapTest::describesWhatRobotsAddress()
{
    QWidget window;
    window.setObjectName(QStringLiteral("form"));
    window.setWindowTitle(QStringLiteral("Form"));
    auto* unnamed = new QWidget(&window);
    auto* group = new QGroupBox(QStringLiteral("Limits"), unnamed);
    group->setObjectName(QStringLiteral("limitsBox"));
    auto* edit = new QLineEdit(QStringLiteral("12.5"), group);
    edit->setObjectName(QStringLiteral("minimumEdit"));
    edit->setGeometry(4, 20, 80, 24);
    edit->setEnabled(false);
    unnamed->move(10, 5);
    group->move(3, 0);
    window.show();

    const QJsonObject root = ObjectMap::describe(&window, QString());
    QCOMPARE(root.value(QStringLiteral("windowTitle")).toString(), QStringLiteral("Form"));
    const QJsonObject box = childNamed(childNamed(root, QString()), QStringLiteral("limitsBox"));
    QCOMPARE(box.value(QStringLiteral("path")).toString(), QStringLiteral("form/limitsBox"));
    QCOMPARE(box.value(QStringLiteral("title")).toString(), QStringLiteral("Limits"));
    QVERIFY(!box.contains(QStringLiteral("windowTitle")));
    const QJsonObject node = childNamed(box, QStringLiteral("minimumEdit"));
    QCOMPARE(node.value(QStringLiteral("path")).toString(), QStringLiteral("form/limitsBox/minimumEdit"));
    QCOMPARE(node.value(QStringLiteral("classes")).toArray(),
             QJsonArray({QStringLiteral("QLineEdit"), QStringLiteral("QWidget"), QStringLiteral("QObject")}));
    QCOMPARE(node.value(QStringLiteral("text")).toString(), QStringLiteral("12.5"));
    QCOMPARE(node.value(QStringLiteral("enabled")).toBool(), false);
    QCOMPARE(node.value(QStringLiteral("visible")).toBool(), true);
    const QJsonObject geometry = node.value(QStringLiteral("geometry")).toObject();
    QCOMPARE(geometry.value(QStringLiteral("x")).toInt(), 4);
    QCOMPARE(geometry.value(QStringLiteral("width")).toInt(), 80);
    const QJsonObject inWindow = node.value(QStringLiteral("windowGeometry")).toObject();
    QCOMPARE(inWindow.value(QStringLiteral("x")).toInt(), 17);
    QCOMPARE(inWindow.value(QStringLiteral("y")).toInt(), 25);
}

void ObjectMapTest::everyFormWidgetAppearsWithItsClass()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("map.json"));
    {
        HostApplication host;
        QCOMPARE(host.start({QStringLiteral("testwidgetcollection"), QStringLiteral("--object-map"), path}), 0);
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray windows =
        QJsonDocument::fromJson(file.readAll()).object().value(QStringLiteral("windows")).toArray();
    QVERIFY(windows.size() > 10);
    QMultiHash<QString, QStringList> classesByName;
    for (const QJsonValue& window : windows)
        collectClasses(window.toObject().value(QStringLiteral("window")).toObject(), classesByName);

    int checked = 0;
    for (const char* folder : {"launcher", "tests"}) {
        QDirIterator forms(QStringLiteral(TWC_SOURCE_DIR "/") + QLatin1String(folder), {QStringLiteral("*.ui")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (forms.hasNext()) {
            const QString form = forms.next();
            for (const FormWidget& widget : formWidgets(form)) {
                const QList<QStringList> found = classesByName.values(widget.first);
                const bool matches = std::any_of(found.begin(), found.end(), [&](const QStringList& classes) {
                    return classes.contains(widget.second);
                });
                QVERIFY2(matches, qPrintable(QStringLiteral("%1: %2 (%3)").arg(form, widget.first, widget.second)));
                ++checked;
            }
        }
    }
    QVERIFY(checked > 100);
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

QTEST_MAIN(ObjectMapTest)
#include "tst_objectmap.moc"
