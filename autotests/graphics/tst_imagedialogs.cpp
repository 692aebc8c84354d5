#include "../TestSupport.h"
#include "ImageFiles.h"
#include "QtCompat.h"
#include "TestCompareIcons.h"
#include "TestComposePixmap.h"
#include "TestSVG.h"

#include <PixmapFunctions.h>
#include <VNDoubleSpinBox.h>
#include <VNLabel.h>
#include <VNLineEdit.h>
#include <VNPushButton.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {
QImage imageOf(const QLabel* label)
{
    return QtCompat::pixmap(label).toImage().convertToFormat(QImage::Format_ARGB32);
}

QString writeImage(const QTemporaryDir& dir, const QString& name, const QSize& size, QColor colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    image.save(dir.filePath(name));
    return dir.filePath(name);
}

// The compose form's connection by name to a missing slot warns while the dialog is built.
void expectComposeConnectWarnings()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such slot"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("sender name"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("receiver name"));
}

// Reads the receiver count of a signal, which QObject keeps protected. The sender is no
// ReceiverCount, so the count is reached through a pointer to QObject's own member, not a downcast.
struct ReceiverCount : QObject
{
    static int of(const QObject* sender, const char* signal)
    {
        int (QObject::*receivers)(const char*) const = &ReceiverCount::receivers;
        return (sender->*receivers)(signal);
    }
};

// The dialogs with their file dialogs and message boxes answered by the test.
class ComposePixmapUnderTest : public TestComposePixmap
{
public:
    using TestComposePixmap::TestComposePixmap;
    QString toLoad;
    QString toSave;
    int saveAsked = 0;

protected:
    QString chooseImageToLoad() override { return toLoad; }
    QString chooseImageToSave() override
    {
        ++saveAsked;
        return toSave;
    }
};

class CompareIconsUnderTest : public TestCompareIcons
{
public:
    using TestCompareIcons::TestCompareIcons;
    QString toOpen;
    QString toSave;
    QString suggested;
    QStringList problems;

protected:
    QString chooseOpenFile(const QString&, const QString&, const QString&) override { return toOpen; }
    QString chooseSaveFile(const QString&, const QString& suggestion, const QString&) override
    {
        suggested = suggestion;
        return toSave;
    }
    void reportProblem(const QString&, const QString& text) override { problems << text; }
};

class SvgUnderTest : public TestSVG
{
public:
    using TestSVG::TestSVG;
    QString toOpen;
    int invalidReports = 0;

protected:
    QString chooseSvgFile() override { return toOpen; }
    void reportInvalidFile() override { ++invalidReports; }
};

const QString defaultSvg = QStringLiteral(":/Icons/Blank/Sketches/embed_chevron_help.svg");
} // namespace

class TestImageDialogs : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void composeConnections();
    void composeCheckBoxes();
    void composeOptionsAndTruncatedFactor_data();
    void composeOptionsAndTruncatedFactor();
    void composeCorruptImageDisablesSave();
    void composeSaveLeavesOldFileOnFailure();

    void differenceOfWords_data();
    void differenceOfWords();
    void compareLoadsAndLimitsSpinBoxes();
    void compareRefusesBadFiles();
    void compareExport();

    void svgListsItemsAndRebuildsRows();
    void svgUpdateAppliesReplacements();
    void svgEditedSourceMode();
    void svgCancelAndInvalidFiles();

    void filtersStayPatterns_data();
    void filtersStayPatterns();
};

void TestImageDialogs::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// Two connections each for the first two check boxes (by name and explicitly); the explicit one of
// the third names a slot that does not exist, so it has only its connection by name.
void TestImageDialogs::composeConnections()
{
    QTest::ignoreMessage(QtWarningMsg, "QObject::connect: No such slot "
                                       "TestComposePixmap::on_chkUseSecondoverlayImage_toggled(bool)");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("sender name"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("receiver name"));
    TestComposePixmap dialog(nullptr);
    QCOMPARE(ReceiverCount::of(child<QCheckBox>(&dialog, "chkUseBaseImage"), SIGNAL(toggled(bool))), 2);
    QCOMPARE(ReceiverCount::of(child<QCheckBox>(&dialog, "chkUseOverlayImage"), SIGNAL(toggled(bool))), 2);
    QCOMPARE(ReceiverCount::of(child<QCheckBox>(&dialog, "chkUseSecondOverlayImage"), SIGNAL(toggled(bool))), 1);
}

void TestImageDialogs::composeCheckBoxes()
{
    expectComposeConnectWarnings();
    TestComposePixmap dialog(nullptr);
    auto* base = child<QLabel>(&dialog, "lblBaseImage");
    auto* result = child<QLabel>(&dialog, "lblResultImage");
    QVERIFY(imageOf(base).isNull());
    QVERIFY(imageOf(result).isNull());
    child<QCheckBox>(&dialog, "chkUseBaseImage")->setChecked(true);
    QCOMPARE(imageOf(base).size(), QSize(48, 48));
    child<QCheckBox>(&dialog, "chkUseOverlayImage")->setChecked(true);
    child<QCheckBox>(&dialog, "chkUseSecondOverlayImage")->setChecked(true);
    QCOMPARE(imageOf(child<QLabel>(&dialog, "lblSecondOverlayImage")).size(), QSize(45, 45));
    const QImage expected = composePixmap(":/TestWidgetCollection/Resources/Rectangle_48.png",
                                          ":/TestWidgetCollection/Resources/procplan_sngldraw_45x45.png",
                                          ":/TestWidgetCollection/Resources/Heating_Operation_Blank_45.png")
                                .toImage()
                                .convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(imageOf(result), expected);
    child<QCheckBox>(&dialog, "chkUseBaseImage")->setChecked(false);
    QVERIFY(imageOf(base).isNull());
    QCOMPARE(imageOf(result).size(), QSize(45, 45));
}

void TestImageDialogs::composeOptionsAndTruncatedFactor_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("kind"); // 0 original, 1 disabled, 2 transparent, 3 brightness
    QTest::addColumn<int>("passed");
    QTest::newRow("original ignores the factor") << "noOption" << 50.0 << 0 << 0;
    QTest::newRow("disabled") << "disbledOption" << 50.0 << 1 << 0;
    QTest::newRow("transparent") << "disabled2Option" << 50.0 << 2 << 0;
    QTest::newRow("12.7 is 12") << "adjustBrightness" << 12.7 << 3 << 12;
    QTest::newRow("-20.9 is -20") << "adjustBrightness" << -20.9 << 3 << -20;
}

void TestImageDialogs::composeOptionsAndTruncatedFactor()
{
    QFETCH(QString, option);
    QFETCH(double, factor);
    QFETCH(int, kind);
    QFETCH(int, passed);
    expectComposeConnectWarnings();
    TestComposePixmap dialog(nullptr);
    const QPixmap in = QtCompat::pixmap(child<QLabel>(&dialog, "inPix"));
    QCOMPARE(imageOf(child<QLabel>(&dialog, "outPix")), in.toImage().convertToFormat(QImage::Format_ARGB32));
    QVERIFY(child<QPushButton>(&dialog, "saveButton")->isEnabled());
    child<QRadioButton>(&dialog, option)->setChecked(true);
    auto* factorBox = child<VNDoubleSpinBox>(&dialog, "factorBox");
    factorBox->setValue(factor);
    emit factorBox->editingFinished();
    const QPixmap expected[] = {in, disabledPixmap(in), disabledPixmapByTransparency(in),
                                adjustPixmapBrightness(in, passed)};
    QCOMPARE(imageOf(child<QLabel>(&dialog, "outPix")),
             expected[kind].toImage().convertToFormat(QImage::Format_ARGB32));
}

void TestImageDialogs::composeCorruptImageDisablesSave()
{
    QTemporaryDir dir;
    expectComposeConnectWarnings();
    ComposePixmapUnderTest dialog(nullptr);
    const QByteArray pngHead("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (const QString& file : {writeFile(dir, "cut.png", pngHead), writeFile(dir, "bad.xpm", "/* XPM */ static"),
                                writeFile(dir, "bad.jpg", "\xff\xd8\xff\xe0 garbage")}) {
        dialog.toLoad = file;
        child<QPushButton>(&dialog, "loadButton")->click();
        QVERIFY(imageOf(child<QLabel>(&dialog, "outPix")).isNull());
        QVERIFY(!child<QPushButton>(&dialog, "saveButton")->isEnabled());
        QMetaObject::invokeMethod(&dialog, "onSaveImage");
        QCOMPARE(dialog.saveAsked, 0);
    }
    dialog.toLoad = writeImage(dir, "good.png", QSize(20, 10), Qt::red);
    child<QPushButton>(&dialog, "loadButton")->click();
    QCOMPARE(imageOf(child<QLabel>(&dialog, "outPix")).size(), QSize(20, 10));
    dialog.toSave = dir.filePath("out.png");
    child<QPushButton>(&dialog, "saveButton")->click();
    QCOMPARE(QImage(dialog.toSave).size(), QSize(20, 10));
}

void TestImageDialogs::composeSaveLeavesOldFileOnFailure()
{
    QTemporaryDir dir;
    QPixmap pixmap(4, 4);
    pixmap.fill(Qt::green);
    QVERIFY(!savePixmapSafely(pixmap, dir.filePath("missing/folder/out.png")).isEmpty());
    const QString existing = writeFile(dir, "old.unknownformat", "keep me");
    QVERIFY(!savePixmapSafely(pixmap, existing).isEmpty());
    QFile file(existing);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("keep me"));
    QVERIFY(savePixmapSafely(pixmap, dir.filePath("new.png")).isEmpty());
}

void TestImageDialogs::differenceOfWords_data()
{
    QTest::addColumn<uint>("png");
    QTest::addColumn<uint>("svg");
    QTest::addColumn<uint>("result");
    QTest::newRow("equal") << 0xff336699u << 0xff336699u << 0x0u;
    QTest::newRow("borrow runs across channels") << 0xff000000u << 0x00000001u << 0xfeffffffu;
    QTest::newRow("wraps below zero") << 0x00000000u << 0xff000000u << 0x01000000u;
    QTest::newRow("per word, not per channel") << 0xff102030u << 0xff201010u << 0xfff01020u;
}

void TestImageDialogs::differenceOfWords()
{
    QFETCH(uint, png);
    QFETCH(uint, svg);
    QFETCH(uint, result);
    QImage pngImage(3, 2, QImage::Format_ARGB32);
    pngImage.fill(png);
    QImage svgImage(3, 1, QImage::Format_ARGB32); // one row short: that row is skipped
    svgImage.fill(svg);
    const QImage difference = TestCompareIcons::subtractImages(pngImage, svgImage, QSize(3, 2));
    QCOMPARE(difference.format(), QImage::Format_ARGB32);
    QCOMPARE(uint(difference.pixel(2, 0)), result);
    QCOMPARE(uint(difference.pixel(2, 1)), 0u);
}

void TestImageDialogs::compareLoadsAndLimitsSpinBoxes()
{
    QTemporaryDir dir;
    CompareIconsUnderTest dialog(nullptr);
    dialog.toOpen = writeImage(dir, "large.png", QSize(120, 40), Qt::red);
    child<QPushButton>(&dialog, "loadPngButton")->click();
    QCOMPARE(child<QSpinBox>(&dialog, "svgWidth")->value(), 99);
    QCOMPARE(child<QSpinBox>(&dialog, "svgHeight")->value(), 40);
    dialog.toOpen = QFINDTESTDATA("../../fuzz/corpus/fuzz_svg_text_items/nested.svg");
    child<QPushButton>(&dialog, "loadSvgButton")->click();
    QCOMPARE(child<QLineEdit>(&dialog, "showFileName")->text(), QStringLiteral("nested"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("nested"));
    // The icon size keeps the PNG's real width until a box changes.
    QCOMPARE(imageOf(child<VNLabel>(&dialog, "difference")).size(), QSize(120, 40));
    // Twice 120 x 40; the icon keeps the drawing's 5 : 2 aspect ratio inside it.
    QCOMPARE(imageOf(child<VNLabel>(&dialog, "svg200")).size(), QSize(200, 80));
    child<QSpinBox>(&dialog, "svgWidth")->setValue(30);
    QCOMPARE(imageOf(child<VNLabel>(&dialog, "difference")).size(), QSize(30, 40));
    QCOMPARE(imageOf(child<VNLabel>(&dialog, "png100")).size(), QSize(120, 40));
}

void TestImageDialogs::compareRefusesBadFiles()
{
    QTemporaryDir dir;
    CompareIconsUnderTest dialog(nullptr);
    dialog.toOpen = writeFile(dir, "cut.png", QByteArray("\x89PNG\r\n\x1a\n", 8));
    child<QPushButton>(&dialog, "loadPngButton")->click();
    QCOMPARE(dialog.problems.size(), 1);
    QVERIFY(imageOf(child<VNLabel>(&dialog, "png100")).isNull());
    dialog.toOpen = writeFile(dir, "bad.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\"><g>");
    child<QPushButton>(&dialog, "loadSvgButton")->click();
    QCOMPARE(dialog.problems.size(), 2);
    QVERIFY(child<QLineEdit>(&dialog, "showFileName")->text().isEmpty());
}

void TestImageDialogs::compareExport()
{
    QTemporaryDir dir;
    CompareIconsUnderTest dialog(nullptr);
    dialog.toOpen = QFINDTESTDATA("../../fuzz/corpus/fuzz_svg_text_items/nested.svg");
    child<QPushButton>(&dialog, "loadSvgButton")->click();
    dialog.toSave = dir.filePath("compare.png");
    child<QPushButton>(&dialog, "exportButton")->click();
    QCOMPARE(dialog.suggested, QStringLiteral("/nested"));
    const QImage exported(dialog.toSave);
    QCOMPARE(exported.size(), child<QWidget>(&dialog, "iconsWidget")->size());
    QCOMPARE(exported.pixelColor(3, 3), QColor("#737373")); // the grey background is exported too
    dialog.toSave = dir.filePath("no/such/folder/compare.png");
    child<QPushButton>(&dialog, "exportButton")->click();
    QCOMPARE(dialog.suggested, dir.path() + QStringLiteral("/nested"));
    QCOMPARE(dialog.problems.size(), 1);
}

void TestImageDialogs::svgListsItemsAndRebuildsRows()
{
    QTemporaryDir dir;
    SvgUnderTest dialog(nullptr);
    auto* grid = child<QWidget>(&dialog, "replaceList");
    QCOMPARE(grid->findChildren<QComboBox*>().size(), 4);
    QCOMPARE(grid->findChildren<VNLineEdit*>().at(0)->text(), QStringLiteral("Width"));
    auto* type = grid->findChildren<QComboBox*>().at(0);
    QCOMPARE(type->currentText(), QStringLiteral("Ignore"));
    QCOMPARE(type->itemData(0).toInt(), -1);
    QCOMPARE(type->itemData(1).toInt(), 0);
    QCOMPARE(imageOf(child<QLabel>(&dialog, "m_image")).size(), QSize(160, 120));

    dialog.toOpen = writeFile(dir, "one.svg",
                              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"30\" height=\"20\">"
                              "<text>only</text></svg>");
    child<QToolButton>(&dialog, "openFile")->click();
    QCOMPARE(grid->findChildren<QComboBox*>().size(), 1);
    QCOMPARE(grid->findChildren<VNLabel*>().size(), 1);
    QCOMPARE(grid->findChildren<VNLabel*>().at(0)->text(), QStringLiteral("1."));
    QCOMPARE(child<QLabel>(&dialog, "label_4")->parentWidget(), grid); // the header row stays
    QCOMPARE(child<QSpinBox>(&dialog, "m_width")->value(), 30);
    QCOMPARE(child<QLabel>(&dialog, "m_defHeight")->text(), QStringLiteral("20 px"));
    QVERIFY(!child<VNPushButton>(&dialog, "updateBtn")->isNeedInputStatus());
}

void TestImageDialogs::svgUpdateAppliesReplacements()
{
    SvgUnderTest dialog(nullptr);
    auto* grid = child<QWidget>(&dialog, "replaceList");
    auto* update = child<VNPushButton>(&dialog, "updateBtn");
    child<QSpinBox>(&dialog, "m_width")->setValue(80);
    QVERIFY(update->isNeedInputStatus());
    QCOMPARE(imageOf(child<QLabel>(&dialog, "m_image")).width(), 160); // not before Update
    grid->findChildren<QComboBox*>().at(1)->setCurrentIndex(1);
    QLineEdit* replace = grid->findChildren<VNLineEdit*>().at(3); // row 2: current, replace
    replace->setText("Tall & <wide>");
    update->click();
    QVERIFY(!update->isNeedInputStatus());
    QCOMPARE(imageOf(child<QLabel>(&dialog, "m_image")).width(), 80);
    const QString modified = child<QPlainTextEdit>(&dialog, "m_svgModifiedSource")->toPlainText();
    QVERIFY(modified.contains("<text x=\"86\" y=\"16\">Tall &amp; &lt;wide&gt;</text>"));
    QVERIFY(modified.contains(">Width</text>"));
}

void TestImageDialogs::svgEditedSourceMode()
{
    SvgUnderTest dialog(nullptr);
    auto* source = child<QPlainTextEdit>(&dialog, "m_svgSource");
    auto* update = child<VNPushButton>(&dialog, "updateBtn");
    auto* path = child<QLineEdit>(&dialog, "m_filePath");
    source->setPlainText("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"10\" height=\"10\"><text>a</text>"
                         "<text>b</text></svg>");
    QVERIFY(update->isNeedInputStatus());
    update->click();
    QCOMPARE(path->text(), QStringLiteral("User edited source file ..."));
    QCOMPARE(child<QWidget>(&dialog, "replaceList")->findChildren<QComboBox*>().size(), 2);
    source->setPlainText("<svg");
    update->click();
    QVERIFY(update->isNeedInputStatus());
    QCOMPARE(child<QWidget>(&dialog, "replaceList")->findChildren<QComboBox*>().size(), 2);
}

void TestImageDialogs::svgCancelAndInvalidFiles()
{
    QTemporaryDir dir;
    SvgUnderTest dialog(nullptr);
    QByteArray deep;
    for (int depth = 0; depth < 100000; ++depth)
        deep += "<g>";
    for (const QString& file : {writeFile(dir, "empty.svg", ""), writeFile(dir, "binary.svg", QByteArray(64, '\0')),
                                writeFile(dir, "deep.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\">" + deep)}) {
        dialog.toOpen = file;
        child<QToolButton>(&dialog, "openFile")->click();
        QCOMPARE(child<QLineEdit>(&dialog, "m_filePath")->text(), file);
        QVERIFY(child<QWidget>(&dialog, "replaceList")->findChildren<QComboBox*>().isEmpty());
    }
    QCOMPARE(dialog.invalidReports, 3);
    dialog.toOpen.clear();
    child<QToolButton>(&dialog, "openFile")->click();
    QCOMPARE(child<QLineEdit>(&dialog, "m_filePath")->text(), defaultSvg);
    QCOMPARE(child<QWidget>(&dialog, "replaceList")->findChildren<QComboBox*>().size(), 4);
    QCOMPARE(dialog.invalidReports, 3);
}

void TestImageDialogs::filtersStayPatterns_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("file");
    QTest::newRow("compare: load PNG") << "compare"
                                       << "loadPngButton"
                                       << "icon.png";
    QTest::newRow("compare: load SVG") << "compare"
                                       << "loadSvgButton"
                                       << "icon.svg";
    QTest::newRow("compare: export") << "compare"
                                     << "exportButton"
                                     << "icons.png";
    QTest::newRow("compose: load") << "compose"
                                   << "loadButton"
                                   << "photo.jpg";
    QTest::newRow("compose: save") << "compose"
                                   << "saveButton"
                                   << "photo.xpm";
    QTest::newRow("svg: open") << "svg"
                               << "openFile"
                               << "icon.svg";
}

// Under any translation the file dialogs still list the files they ask for: captions may be
// translated, patterns never (a mock "*.sfg" would hide every SVG file).
void TestImageDialogs::filtersStayPatterns()
{
    QFETCH(QString, dialog);
    QFETCH(QString, button);
    QFETCH(QString, file);
    const MockTranslation mock;
    if (!mock.loaded())
        QSKIP("built without lupdate and lrelease");
    std::unique_ptr<QDialog> window;
    if (dialog == QLatin1String("compose")) {
        expectComposeConnectWarnings();
        window.reset(new TestComposePixmap(nullptr));
    } else if (dialog == QLatin1String("compare")) {
        window.reset(new TestCompareIcons(nullptr));
    } else {
        window.reset(new TestSVG(nullptr));
    }
    QString filter;
    onNextModal<QFileDialog>([&filter](QFileDialog* files) {
        filter = files->nameFilters().value(0);
        files->reject();
    });
    clickButton(window.get(), button);
    const QString patterns = filter.section(QLatin1Char('('), 1).section(QLatin1Char(')'), 0, 0);
    QVERIFY2(QDir::match(patterns, file), qPrintable(filter));
}

QTEST_MAIN(TestImageDialogs)
#include "tst_imagedialogs.moc"
