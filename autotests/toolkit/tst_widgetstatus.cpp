#include <SetWidgetsReadOnly.h>
#include <VNLabel.h>
#include <VNPushButton.h>
#include <VNStyleSheet.h>
#include <VNWidgetInterface.h>
#include <VNWidgetStatus.h>

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
using Flags = VNWidgetStatus::StatusFlags;

// The status words offered by the widget status gallery, with their button texts.
const QList<QPair<const char*, int>> galleryWords = {
    {"None", 0x0},
    {"Need Input", 0x20},
    {"User Edited", 0x2},
    {"Different", 0x400},
    {"Sigma Enabled", 0x40},
    {"Sigma Active", 0x140},
    {"Sigma Invalid", 0x340},
    {"Sigma Std Changed", 0x101C0},
    {"Sigma && Standard", 0x3040},
    {"Sigma && Std Changed", 0x13040},
    {"Standard Defined", 0x3000},
    {"Standard Changed", 0x13000},
    {"Standard Locked", 0x23000},
    {"Std Changed Locked", 0x33000},
    {"Standard Default", 0x7000},
    {"Std Default Changed", 0xF000},
};

QImage lookOf(int word)
{
    QLineEdit edit(QStringLiteral("42.0"));
    edit.resize(120, 26);
    VNWidgetStatus::setStatusProperty(&edit, Flags(word));
    return edit.grab().toImage();
}
} // namespace

class WidgetStatusTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void debugText_data();
    void debugText();
    void dominantStatus_data();
    void dominantStatus();
    void setFlagSwitchesOneBit();
    void everyWordHasItsOwnLook();
    void needInputIsRed();
    void toolkitWidgetsPublishTheirStatus();
    void readOnly_data();
    void readOnly();
    void headerLabelLooksDifferent();
};

void WidgetStatusTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
    QVERIFY(!qApp->styleSheet().isEmpty());
}

void WidgetStatusTest::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void WidgetStatusTest::debugText_data()
{
    QTest::addColumn<int>("word");
    QTest::addColumn<QString>("text");
    QTest::newRow("undef") << 0x0 << "undef";
    QTest::newRow("need input and compare") << 0x820 << "needInput | compareDifferent";
    QTest::newRow("standard changed") << 0x12000 << "standardDefined | standardDeviate";
    QTest::newRow("sigma active") << 0x140 << "sigmaAvailable | sigmaOn";
    QTest::newRow("user edit") << 0x2 << "userEdit";
}

void WidgetStatusTest::debugText()
{
    QFETCH(int, word);
    QFETCH(QString, text);
    QCOMPARE(VNWidgetStatus::debugStatusFlag(Flags(word)), text);
}

void WidgetStatusTest::dominantStatus_data()
{
    QTest::addColumn<int>("word");
    QTest::addColumn<int>("dominant");
    QTest::newRow("nothing") << 0x0 << 0x0;
    QTest::newRow("need input wins") << 0x13822 << 0x20;
    QTest::newRow("compare over standard") << 0x3800 << 0x800;
    QTest::newRow("locked standard") << 0x23000 << 0x20000;
    QTest::newRow("changed standard") << 0x13000 << 0x10000;
    QTest::newRow("sigma active") << 0x140 << 0x100;
}

void WidgetStatusTest::dominantStatus()
{
    QFETCH(int, word);
    QFETCH(int, dominant);
    QCOMPARE(int(VNWidgetStatus::getDominantStatusFromFlag(Flags(word))), dominant);
}

void WidgetStatusTest::setFlagSwitchesOneBit()
{
    Flags flags(0x3000);
    VNWidgetStatus::setFlag(flags, VNWidgetStatus::compareDifferent, true);
    QCOMPARE(int(flags), 0x3800);
    VNWidgetStatus::setFlag(flags, VNWidgetStatus::standardDefined, false);
    QCOMPARE(int(flags), 0x1800);
    QCOMPARE(int(VNWidgetStatus::setFlag(Flags(0x820), Flags(0x800), false)), 0x20);
}

void WidgetStatusTest::everyWordHasItsOwnLook()
{
    // Each word alone and with the compare bit on top: thirty-two looks, no two alike.
    QList<QImage> looks;
    QStringList names;
    for (int compare : {0, 0x800}) {
        for (const auto& word : galleryWords) {
            looks << lookOf(word.second | compare);
            names << QLatin1String(word.first) + (compare ? QStringLiteral(" + Compare Differs") : QString());
        }
    }
    for (int a = 0; a < looks.size(); ++a) {
        for (int b = a + 1; b < looks.size(); ++b) {
            QVERIFY2(looks.at(a) != looks.at(b),
                     qPrintable(QStringLiteral("\"%1\" looks like \"%2\"").arg(names.at(a), names.at(b))));
        }
    }
}

void WidgetStatusTest::needInputIsRed()
{
    const QImage image = lookOf(0x20);
    const QColor fill = image.pixelColor(image.width() - 8, image.height() / 2);
    QVERIFY2(fill.red() > fill.green() + 25 && fill.red() > fill.blue() + 25, qPrintable(fill.name()));
}

void WidgetStatusTest::toolkitWidgetsPublishTheirStatus()
{
    VNPushButton button(QStringLiteral("Update"));
    button.resize(100, 28);
    const QImage plain = button.grab().toImage();
    button.setNeedInputStatus(true);
    QCOMPARE(int(button.getWidgetStatus()), 0x20);
    QCOMPARE(button.property("statusLook").toString(), QStringLiteral("needInput"));
    QVERIFY(button.grab().toImage() != plain);

    button.setSigmaActive(true);
    QVERIFY(button.isSigmaActive());
    QVERIFY(!button.isSigmaEnabled());
    QCOMPARE(int(VNWidgetStatus::statusFromProperty(&button)), 0x120);
    button.setWidgetStatus(Flags());
    QCOMPARE(button.grab().toImage(), plain);
}

void WidgetStatusTest::readOnly_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("line edit") << "QLineEdit";
    QTest::newRow("spin box") << "QDoubleSpinBox";
    QTest::newRow("combo box") << "QComboBox";
    QTest::newRow("push button") << "QPushButton";
}

void WidgetStatusTest::readOnly()
{
    QFETCH(QString, kind);
    QWidget window;
    QWidget* widget = nullptr;
    if (kind == QLatin1String("QLineEdit"))
        widget = new QLineEdit(QStringLiteral("text"), &window);
    else if (kind == QLatin1String("QDoubleSpinBox"))
        widget = new QDoubleSpinBox(&window);
    else if (kind == QLatin1String("QComboBox"))
        widget = new QComboBox(&window);
    else
        widget = new QPushButton(QStringLiteral("Press"), &window);
    const Qt::FocusPolicy focus = widget->focusPolicy();

    SetWidgetsReadOnly(true)(widget);
    QCOMPARE(widget->property("readOnly").toBool(), true);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        QTest::keyClicks(edit, QStringLiteral("more"));
        QCOMPARE(edit->text(), QStringLiteral("text"));
    } else if (!qobject_cast<QAbstractSpinBox*>(widget)) {
        QVERIFY(widget->testAttribute(Qt::WA_TransparentForMouseEvents));
        QCOMPARE(widget->focusPolicy(), Qt::NoFocus);
    }

    SetWidgetsReadOnly(false)(widget);
    QCOMPARE(widget->property("readOnly").toBool(), false);
    QCOMPARE(widget->focusPolicy(), focus);
    QVERIFY(!widget->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void WidgetStatusTest::headerLabelLooksDifferent()
{
    VNLabel label(QStringLiteral("VNWidgets Examples"));
    label.resize(200, 30);
    const QImage plain = label.grab().toImage();
    label.setIsHeader(true);
    QVERIFY(label.grab().toImage() != plain);
}

QTEST_MAIN(WidgetStatusTest)
#include "tst_widgetstatus.moc"
