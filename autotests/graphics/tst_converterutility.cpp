#include "../TestSupport.h"
#include "TestConverterConfig.h"
#include "TestConverterUtility.h"
#include "TestWidgetCollection.h"

#include <FileConverterDialog.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace {
QStringList validMessages()
{
    QStringList messages{"Start Convertion"};
    for (int step = 1; step <= 10; ++step)
        messages << QStringLiteral("In Progress... step %1/10").arg(step);
    return messages << "Convertion Finished - Yippie :-)";
}

// The frame with its file dialogs answered by the test, which records what they were asked.
class FrameUnderTest : public Varnis::FileConverterDialog
{
public:
    FrameUnderTest()
        : FileConverterDialog(new Varnis::TestConverterConfig, "title", "description")
    {}
    QString answer;
    QStringList asked;

protected:
    QString askForInputFile(const QString& caption, const QString& startPath, const QString& filter) override
    {
        asked = QStringList{caption, startPath, filter};
        return answer;
    }
    QString askForOutputDirectory(const QString& caption, const QString& startDirectory) override
    {
        asked = QStringList{caption, startDirectory};
        return answer;
    }
};

// Counts the paintings of a widget.
struct PaintCounter : QObject
{
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};
} // namespace

class TestConverterUtilityFrame : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void conversion_data();
    void conversion();
    void incompleteChoices();
    void pickersUseTheConfiguration();
    void messagesArePaintedWhileTheConverterBlocks();
    void launcherOpensANewFrameEachClick();
};

void TestConverterUtilityFrame::initTestCase()
{
    // The frame remembers paths in the user's settings: keep them out of the real ones.
    static QTemporaryDir settingsDir;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
    QCoreApplication::setOrganizationName("TestWidgetCollectionTests");
    Varnis::TestConverterConfig::setStepMilliseconds(1);
}

void TestConverterUtilityFrame::cleanup()
{
    qDeleteAll(QApplication::topLevelWidgets());
}

void TestConverterUtilityFrame::conversion_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("status");
    QTest::newRow("text file") << "input.txt" << QByteArray("data") << 0;
    QTest::newRow("upper-case ending") << "INPUT.TXT" << QByteArray("data") << 0;
    QTest::newRow("empty text file") << "empty.txt" << QByteArray() << 2;
    QTest::newRow("other type") << "input.csv" << QByteArray("a;b") << 2;
    QTest::newRow("missing") << "" << QByteArray() << 2;
}

void TestConverterUtilityFrame::conversion()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(int, status);
    QTemporaryDir dir;
    const QString input = name.isEmpty() ? dir.filePath("missing.txt") : writeFile(dir, name, content);
    TestConverterUtility utility(nullptr);
    Varnis::FileConverterDialog* frame = utility.dialog();
    utility.run();
    QVERIFY(frame->isVisible());
    frame->setInputFile(input);
    frame->setOutputDirectory(dir.path());
    frame->findChild<QPushButton*>("convert")->click();
    QCOMPARE(frame->lastStatus(), status);
    const QStringList expected =
        status == 0 ? validMessages() : QStringList{QStringLiteral("The input file \"%1\" is not valid.").arg(input)};
    QCOMPARE(frame->messages(), expected);
    QCOMPARE(frame->findChild<QLabel*>("outcome")->property("success").toBool(), status == 0);
    // The paths are remembered for the next frame.
    const TestConverterUtility next(nullptr);
    QCOMPARE(next.dialog()->inputFile(), input);
    QCOMPARE(next.dialog()->outputDirectory(), dir.path());
}

void TestConverterUtilityFrame::incompleteChoices()
{
    TestConverterUtility utility(nullptr);
    Varnis::FileConverterDialog* frame = utility.dialog();
    frame->setInputFile("a.txt");
    frame->setOutputDirectory("/no/such/directory");
    QCOMPARE(frame->convert(), -1);
    QVERIFY(frame->messages().isEmpty());
    QVERIFY(frame->findChild<QLabel*>("outcome")->text().contains("/no/such/directory"));
    QVERIFY(!frame->findChild<QLabel*>("outcome")->property("success").toBool());
    frame->setOutputDirectory(QString());
    QVERIFY(!frame->findChild<QPushButton*>("convert")->isEnabled());
    QCOMPARE(frame->convert(), -1);
    QVERIFY(!frame->findChild<QLabel*>("outcome")->property("success").toBool());
}

void TestConverterUtilityFrame::pickersUseTheConfiguration()
{
    FrameUnderTest frame;
    frame.setInputFile("/data/in.txt");
    frame.answer = "/data/other.txt";
    frame.findChild<QToolButton*>("chooseInputFile")->click();
    QCOMPARE(frame.asked, (QStringList{"Select test input file", "/data/in.txt", "Text files (*.txt)"}));
    QCOMPARE(frame.inputFile(), QStringLiteral("/data/other.txt"));
    frame.answer.clear(); // cancelled
    frame.findChild<QToolButton*>("chooseOutputDirectory")->click();
    QCOMPARE(frame.asked.value(0), QStringLiteral("Select test output directory"));
    QCOMPARE(frame.inputFile(), QStringLiteral("/data/other.txt"));
    QCOMPARE(QSettings().value("FileConverter/Test/inputFile").toString(), QStringLiteral("/data/other.txt"));
}

void TestConverterUtilityFrame::messagesArePaintedWhileTheConverterBlocks()
{
    QTemporaryDir dir;
    FrameUnderTest frame;
    frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    frame.setInputFile(writeFile(dir, "in.txt", "data"));
    frame.setOutputDirectory(dir.path());
    PaintCounter counter;
    frame.findChild<QListWidget*>("messages")->viewport()->installEventFilter(&counter);
    QCOMPARE(frame.convert(), 0);
    QCOMPARE(counter.paints, 12); // one per message, although the event loop never ran
}

// The frame is shown and the click returns: the panel is never blocked by it.
void TestConverterUtilityFrame::launcherOpensANewFrameEachClick()
{
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    auto* button = panel.findChild<QPushButton*>("m_converterTest");
    QCOMPARE(button->text(), QStringLiteral("ConverterUtility"));
    button->click();
    button->click();
    const auto frames = panel.findChildren<Varnis::FileConverterDialog*>();
    QCOMPARE(frames.size(), 2);
    QVERIFY(frames.at(0)->isVisible() && frames.at(1)->isVisible());
    QVERIFY(!QApplication::activeModalWidget());
}

QTEST_MAIN(TestConverterUtilityFrame)
#include "tst_converterutility.moc"
