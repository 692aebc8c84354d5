#include "AllowList.h"
#include "ColorContrast.h"
#include "ContrastCheck.h"
#include "DensityCheck.h"
#include "ExpectedStatusLook.h"
#include "KeyboardCheck.h"
#include "LookAudit.h"
#include "NameCheck.h"
#include "QtCompat.h"
#include "StatusMatrix.h"
#include "SwatchReader.h"

#include <VNSlider.h>
#include <VNStyleSheet.h>
#include <VNWidgetStatus.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QVBoxLayout>

#include <functional>
#include <memory>

// Each check of the look audit on a small window made for it, with and without the fault that the
// check is there to find. The suite runs on a screen of two device pixels per pixel (see main()).
namespace {
using Status = VNWidgetStatus::Status;
using Build = std::function<void(QWidget* window)>;

// A widget that takes the focus and always paints the same: a keyboard user cannot see it focused.
class Plain : public QWidget
{
public:
    Plain() { setFocusPolicy(Qt::StrongFocus); }
    QSize sizeHint() const override { return QSize(40, 20); }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::darkCyan); }
};

std::unique_ptr<QWidget> window(const Build& build)
{
    auto window = std::make_unique<QWidget>();
    new QVBoxLayout(window.get());
    build(window.get());
    window->show();
    QApplication::setActiveWindow(window.get());
    return window;
}

template<typename Widget>
Widget* add(QWidget* window, Widget* widget, const QString& name)
{
    widget->setObjectName(name);
    window->layout()->addWidget(widget);
    return widget;
}

// "objectName:rule" of every finding.
QStringList rules(const QList<AuditFinding>& findings)
{
    QStringList found;
    for (const AuditFinding& finding : findings)
        found << finding.objectName + QLatin1Char(':') + finding.rule;
    return found;
}

QImage grabWithMargin(QWidget* widget)
{
    return widget->parentWidget()->grab(widget->geometry().adjusted(-3, -3, 3, 3)).toImage();
}

QPixmap twoColorPixmap(int extent, qreal ratio)
{
    QPixmap pixmap(extent, extent);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    QPainter(&pixmap).fillRect(QRectF(0, 0, extent / ratio / 2, extent / ratio), Qt::black);
    return pixmap;
}
} // namespace

Q_DECLARE_METATYPE(Build)

class LookAuditTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void contrastRatio_data();
    void contrastRatio();
    void names_data();
    void names();
    void keyboard_data();
    void keyboard();
    void statusLookAgainstPalette_data();
    void statusLookAgainstPalette();
    void lowContrastIsFound();
    void highDensity_data();
    void highDensity();
    void allowListNeedsReasons();
    void reportAndExitCode();
};

void LookAuditTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
}

// Reference values of the accessibility guidelines' contrast formula.
void LookAuditTest::contrastRatio_data()
{
    QTest::addColumn<QColor>("first");
    QTest::addColumn<QColor>("second");
    QTest::addColumn<double>("ratio");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("white on white") << QColor(Qt::white) << QColor(Qt::white) << 1.0;
    QTest::newRow("#767676 on white, the lightest grey for text")
        << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
    QTest::newRow("#777777 on white, just too light") << QColor(0x77, 0x77, 0x77) << QColor(Qt::white) << 4.48;
    QTest::newRow("pure red on white") << QColor(Qt::red) << QColor(Qt::white) << 4.0;
}

void LookAuditTest::contrastRatio()
{
    QFETCH(QColor, first);
    QFETCH(QColor, second);
    QFETCH(double, ratio);
    QCOMPARE(qRound(ColorContrast::ratio(first, second) * 100), qRound(ratio * 100));
    QCOMPARE(qRound(ColorContrast::ratio(second, first) * 100), qRound(ratio * 100));
}

void LookAuditTest::names_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QStringList>("rules");
    QTest::newRow("field without a label")
        << Build([](QWidget* w) { add(w, new QLineEdit, "field"); }) << QStringList{"field:no-name"};
    QTest::newRow("spin box without a label")
        << Build([](QWidget* w) { add(w, new QDoubleSpinBox, "field"); }) << QStringList{"field:no-name"};
    QTest::newRow("spin box with a buddy label") << Build([](QWidget* w) {
        add(w, new QLabel("&Angle"), "label")->setBuddy(add(w, new QDoubleSpinBox, "field"));
    }) << QStringList{};
    QTest::newRow("field with a buddy label")
        << Build([](QWidget* w) { add(w, new QLabel("&Width"), "label")->setBuddy(add(w, new QLineEdit, "field")); })
        << QStringList{};
    QTest::newRow("field with an accessible name")
        << Build([](QWidget* w) { add(w, new QLineEdit, "field")->setAccessibleName("Width"); }) << QStringList{};
    QTest::newRow("button with a text") << Build([](QWidget* w) { add(w, new QPushButton("Apply"), "field"); })
                                        << QStringList{};
    QTest::newRow("focusable widget that says nothing about itself")
        << Build([](QWidget* w) { add(w, new Plain, "field")->setAccessibleName("Swatch"); })
        << QStringList{"field:wrong-role"};
}

void LookAuditTest::names()
{
    QFETCH(Build, build);
    QFETCH(QStringList, rules);
    const auto shown = window(build);
    QCOMPARE(::rules(NameCheck::run("window", shown.get())), rules);
}

void LookAuditTest::keyboard_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QStringList>("rules");
    QTest::addColumn<int>("stops");
    const auto withField = [](const std::function<void(QWidget*)>& middle) {
        return Build([middle](QWidget* w) {
            add(w, new QLineEdit, "first");
            middle(w);
            add(w, new QLineEdit, "last");
        });
    };
    QTest::newRow("text edit that keeps Tab") << withField([](QWidget* w) { add(w, new QTextEdit("text"), "middle"); })
                                              << QStringList{"middle:keeps-tab"} << 3;
    QTest::newRow("text edit without undo that keeps Tab")
        << withField([](QWidget* w) { add(w, new QTextEdit("text"), "middle")->setUndoRedoEnabled(false); })
        << QStringList{"middle:keeps-tab"} << 3;
    QTest::newRow("the window's only text edit keeps Tab")
        << Build([](QWidget* w) { add(w, new QTextEdit("text"), "only"); }) << QStringList{"only:keeps-tab"} << 1;
    QTest::newRow("the window's only button: Tab comes straight back")
        << Build([](QWidget* w) { add(w, new QPushButton("OK"), "only"); }) << QStringList{} << 1;
    QTest::newRow("radio buttons of one group are one stop") << withField([](QWidget* w) {
        add(w, new QRadioButton("A"), "a")->setChecked(true);
        add(w, new QRadioButton("B"), "b");
    }) << QStringList{} << 4;
    QTest::newRow("text edit that passes Tab on")
        << withField([](QWidget* w) { add(w, new QTextEdit("text"), "middle")->setTabChangesFocus(true); })
        << QStringList{} << 3;
    QTest::newRow("focus that does not show")
        << withField([](QWidget* w) { add(w, new Plain, "middle"); }) << QStringList{"middle:focus-invisible"} << 3;
    QTest::newRow("first widget's focus does not show") << Build([](QWidget* w) {
        add(w, new Plain, "first");
        add(w, new QLineEdit, "middle");
        add(w, new QLineEdit, "last");
    }) << QStringList{"first:focus-invisible"} << 3;
    QTest::newRow("button whose focus shows")
        << withField([](QWidget* w) { add(w, new QPushButton("OK"), "middle"); }) << QStringList{} << 3;
}

void LookAuditTest::keyboard()
{
    QFETCH(Build, build);
    QFETCH(QStringList, rules);
    QFETCH(int, stops);
    const auto shown = window(build);
    KeyboardCheck check("window", shown.get());
    const QList<AuditFinding> findings = check.run();
    QCOMPARE(check.tabStopCount(), stops);
    QCOMPARE(::rules(findings), rules);
    if (auto* edit = shown->findChild<QTextEdit*>())
        QCOMPARE(edit->toPlainText(), QStringLiteral("text")); // the Tab it kept is taken out again
    // A focus that does not show is pictured unfocused and focused, side by side.
    for (const AuditFinding& finding : findings) {
        if (finding.rule != QLatin1String("focus-invisible"))
            continue;
        QCOMPARE(finding.crop.pixelColor(1, 1), QColor(Qt::darkCyan));
        QCOMPARE(finding.crop.pixelColor(finding.crop.width() - 2, 1), QColor(Qt::darkCyan));
    }
}

// The toolkit's looks, read from their pixels, against the palette: a style sheet rule or a
// painter whose colour drifts from the palette disagrees.
void LookAuditTest::statusLookAgainstPalette_data()
{
    QTest::addColumn<QWidget*>("widget");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("parts");
    const int field = StatusSwatch::AllParts;
    const int painted = StatusSwatch::Frame | StatusSwatch::Sigma | StatusSwatch::Compare;
    for (Status status : {VNWidgetStatus::needInput, VNWidgetStatus::different, VNWidgetStatus::standardLocked,
                          VNWidgetStatus::standardDefault, VNWidgetStatus::sigmaOn}) {
        const char* name = VNWidgetStatus::staticMetaObject.enumerator(0).valueToKey(status);
        QTest::addRow("line edit, %s", name) << static_cast<QWidget*>(new QLineEdit("12.5")) << int(status) << field;
        QTest::addRow("slider, %s", name)
            << static_cast<QWidget*>(new VNSlider(Qt::Horizontal)) << int(status) << painted;
    }
    QTest::addRow("line edit, compare differs")
        << static_cast<QWidget*>(new QLineEdit("12.5")) << int(VNWidgetStatus::compareDifferent) << field;
}

void LookAuditTest::statusLookAgainstPalette()
{
    QFETCH(QWidget*, widget);
    QFETCH(int, status);
    QFETCH(int, parts);
    const auto shown = window([widget](QWidget* w) { add(w, widget, "subject"); });
    const QImage plain = grabWithMargin(widget);
    VNWidgetStatus::setStatusProperty(widget, VNWidgetStatus::StatusFlags(status));
    const QRect area(QPoint(3, 3) * 2, widget->size() * 2);
    const StatusSwatch swatch =
        SwatchReader(plain, grabWithMargin(widget), area)
            .read(ExpectedStatusLook::of(VNWidgetStatus::StatusFlags(status)), StatusSwatch::Parts(parts), false);
    QVERIFY2(swatch.agrees(), qPrintable(swatch.disagreeing.join(", ")));

    // The same widget painting the look in a colour of its own disagrees.
    QImage drifted = grabWithMargin(widget);
    QPainter painter(&drifted);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const ExpectedStatusLook look = ExpectedStatusLook::of(VNWidgetStatus::StatusFlags(status));
    for (const QColor& color : {look.frame, look.fill, look.sigma, look.compare}) {
        for (int y = 0; y < drifted.height(); ++y) {
            for (int x = 0; x < drifted.width(); ++x) {
                if (color.isValid() && SwatchReader::same(drifted.pixel(x, y), color.rgb()))
                    drifted.setPixel(x, y, color.darker(130).rgb());
            }
        }
    }
    painter.end();
    const StatusSwatch driftedSwatch = SwatchReader(plain, drifted, area).read(look, StatusSwatch::Parts(parts), false);
    QVERIFY(!driftedSwatch.agrees());
}

void LookAuditTest::lowContrastIsFound()
{
    StatusMatrix matrix;
    matrix.setWords({{"Different", VNWidgetStatus::different}, {"None", {}}});
    matrix.addFamily({"field", "subject"});
    StatusSwatch swatch;
    swatch.frame = QColor(0xc9, 0xa4, 0x00);
    swatch.surround = QColor(0xef, 0xef, 0xef);
    swatch.fill = QColor(Qt::white);
    swatch.text = QColor(0x99, 0x99, 0x99);
    matrix.setCell(0, 0, false, swatch, QImage());
    matrix.setCell(0, 0, true, swatch, QImage());
    swatch.text = QColor(Qt::black);
    matrix.setCell(0, 1, false, swatch, QImage());
    QStringList found;
    for (const AuditFinding& finding : ContrastCheck::run("window", matrix, Qt::white)) {
        if (finding.objectName == QLatin1String("subject"))
            found << QStringLiteral("%1 %2 %3 %4")
                         .arg(finding.rule)
                         .arg(finding.measured.value("ratio").toDouble())
                         .arg(finding.measured.value("families").toArray().size())
                         .arg(finding.measured.value("words").toArray().size());
    }
    // One finding per colour pair, with each family once and every word that shows it.
    QCOMPARE(found, QStringList({"frame 2.07 1 3", "text 2.84 1 2"}));
}

void LookAuditTest::highDensity_data()
{
    QTest::addColumn<Build>("build");
    QTest::addColumn<QStringList>("rules");
    QTest::newRow("picture for one device pixel per pixel")
        << Build([](QWidget* w) { add(w, new QLabel, "subject")->setPixmap(twoColorPixmap(16, 1)); })
        << QStringList{"subject:upscaled"};
    QTest::newRow("picture for two") << Build([](QWidget* w) {
        add(w, new QLabel, "subject")->setPixmap(twoColorPixmap(32, 2));
    }) << QStringList{};
    QTest::newRow("bitmap icon") << Build([](QWidget* w) {
        add(w, new QPushButton(QIcon(twoColorPixmap(16, 1)), "Go"), "subject")->setIconSize(QSize(16, 16));
    }) << QStringList{"subject:upscaled"};
    QTest::newRow("vector icon") << Build([](QWidget* w) {
        add(w, new QPushButton(QIcon(":/Icons/Shared/add_16.svg"), "Add"), "subject")->setIconSize(QSize(16, 16));
    }) << QStringList{};
}

void LookAuditTest::highDensity()
{
    QFETCH(Build, build);
    QFETCH(QStringList, rules);
    const auto shown = window(build);
    QCOMPARE(::rules(DensityCheck("window", shown.get()).run()), rules);
}

void LookAuditTest::allowListNeedsReasons()
{
    // The allow-list that comes with the audit is there and every entry in it has its reason.
    const QString builtIn = LookAudit::builtInAllowList();
    QVERIFY(!builtIn.isEmpty());
    QCOMPARE(AllowList().parse(builtIn), QString());
    AllowList list;
    QVERIFY(!list.parse("window\tfield\tnames\n").isEmpty());
    QVERIFY(list.parse("# comment\n\n*\tfield\tkeyboard:keeps-tab\tthe field takes tabs as text\n").isEmpty());
    AuditFinding trap{};
    trap.window = "any";
    trap.objectName = "field";
    trap.check = AuditFinding::keyboardCheck;
    trap.rule = "keeps-tab";
    QVERIFY(list.allow(trap));
    QCOMPARE(trap.allowedBecause, QStringLiteral("the field takes tabs as text"));
    trap.rule = "focus-invisible";
    QVERIFY(!list.allow(trap));
}

void LookAuditTest::reportAndExitCode()
{
    const auto shown = window([](QWidget* w) { add(w, new QLabel, "subject")->setPixmap(twoColorPixmap(16, 1)); });
    for (const bool allowed : {false, true}) {
        QTemporaryDir directory;
        LookAudit audit(directory.path());
        AllowList list;
        QVERIFY(list.parse(allowed ? "win\tsubject\tdensity\ta picture shown pixel for pixel" : "").isEmpty());
        audit.setAllowList(list);
        QCOMPARE(audit.begin(), QString());
        audit.inspectWindow("win", "Window", shown.get());
        audit.inspectWindow("loupe", "Show Loupe", shown.get()); // the same window again: pictured, not checked
        QCOMPARE(audit.finish(), allowed ? 0 : 1);
        QCOMPARE(audit.report().findings().size(), 1);
        QCOMPARE(audit.report().openCountsByCheck().last(), qMakePair(AuditFinding::densityCheck, allowed ? 0 : 1));

        QFile json(QDir(directory.path()).filePath("audit.json"));
        QVERIFY(json.open(QIODevice::ReadOnly));
        const QJsonObject report = QJsonDocument::fromJson(json.readAll()).object();
        const QJsonObject finding = report.value("findings").toArray().first().toObject();
        QCOMPARE(finding.value("window").toString(), QStringLiteral("win"));
        QCOMPARE(finding.value("objectName").toString(), QStringLiteral("subject"));
        QCOMPARE(finding.value("check").toString(), AuditFinding::densityCheck);
        QCOMPARE(finding.contains("allowedBecause"), allowed);
        const QString picture = finding.value("picture").toString();
        QVERIFY(!picture.isEmpty() && QFile::exists(QDir(directory.path()).filePath(picture)));
        QFile html(QDir(directory.path()).filePath("audit.html"));
        QVERIFY(html.open(QIODevice::ReadOnly));
        const QString page = QString::fromUtf8(html.readAll());
        QVERIFY(page.contains("<code>subject</code>") && page.contains(picture));
        QCOMPARE(page.contains("Allowed: a picture shown pixel for pixel"), allowed);
    }
}

int main(int argc, char* argv[])
{
    // The high-density check needs a screen of two device pixels per pixel; the others work on any.
    qputenv("QT_SCALE_FACTOR", "2");
    QtCompat::useHighDpiPixmaps(true);
    QApplication application(argc, argv);
    LookAuditTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_lookaudit.moc"
