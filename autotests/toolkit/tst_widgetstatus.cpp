#include <SetWidgetsReadOnly.h>
#include <VNCheckBox.h>
#include <VNDoubleSpinBox.h>
#include <VNLabel.h>
#include <VNLineEdit.h>
#include <VNPushButton.h>
#include <VNRadioButton.h>
#include <VNStyleSheet.h>
#include <VNWidgetInterface.h>
#include <VNWidgetStatus.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QToolButton>

#include <functional>

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

// Every widget family the toolkit style gives a status look, plain and toolkit.
const QList<QPair<const char*, std::function<QWidget*()>>> families = {
    {"QLineEdit", [] { return new QLineEdit(QStringLiteral("42.0")); }},
    {"VNLineEdit", [] { return new VNLineEdit(QStringLiteral("42.0")); }},
    {"QSpinBox", [] { return new QSpinBox; }},
    {"QDoubleSpinBox", [] { return new QDoubleSpinBox; }},
    {"VNDoubleSpinBox", [] { return new VNDoubleSpinBox; }},
    {"QComboBox",
     [] {
         auto* combo = new QComboBox;
         combo->addItems({QStringLiteral("Steel"), QStringLiteral("Aluminium")});
         return combo;
     }},
    {"QPushButton", [] { return new QPushButton(QStringLiteral("Apply")); }},
    {"VNPushButton", [] { return new VNPushButton(QStringLiteral("Apply")); }},
    {"QToolButton",
     [] {
         auto* button = new QToolButton;
         button->setText(QStringLiteral("Tool"));
         return button;
     }},
    {"editable QComboBox",
     [] {
         auto* combo = new QComboBox;
         combo->setEditable(true);
         combo->addItem(QStringLiteral("Steel"));
         return combo;
     }},
    {"QToolButton with menu",
     [] {
         auto* button = new QToolButton;
         button->setText(QStringLiteral("File"));
         button->setPopupMode(QToolButton::MenuButtonPopup);
         button->setMenu(new QMenu(button));
         return button;
     }},
    {"QPlainTextEdit", [] { return new QPlainTextEdit(QStringLiteral("Result")); }},
    {"QCheckBox", [] { return new QCheckBox(QStringLiteral("Option")); }},
    {"VNCheckBox", [] { return new VNCheckBox(QStringLiteral("Option")); }},
    {"QRadioButton", [] { return new QRadioButton(QStringLiteral("Choice")); }},
    {"VNRadioButton", [] { return new VNRadioButton(QStringLiteral("Choice")); }},
};

void setStatus(QWidget* widget, int word)
{
    if (auto* toolkitWidget = dynamic_cast<VNWidgetInterface*>(widget))
        toolkitWidget->setWidgetStatus(Flags(word));
    else
        VNWidgetStatus::setStatusProperty(widget, Flags(word));
}

// Where a family keeps what makes it work: the step arrows, the drop-down arrow.
QRect subControlRect(QWidget* widget)
{
    if (auto* spin = qobject_cast<QAbstractSpinBox*>(widget)) {
        QStyleOptionSpinBox option;
        option.initFrom(spin);
        option.subControls = QStyle::SC_All;
        option.frame = spin->hasFrame();
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
        return spin->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, spin);
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        option.subControls = QStyle::SC_All;
        option.frame = combo->hasFrame();
        return combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, combo);
    }
    return QRect();
}

bool hasDarkPixel(const QImage& image, const QRect& rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (qGray(image.pixel(x, y)) < 130)
                return true;
        }
    }
    return false;
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
    void setFlagSwitchesOneBit();
    void decision_data();
    void decision();
    void statusLooks_data();
    void statusLooks();
    void fieldsShareOneHeight();
    void readOnlyStaysReadable();
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

void WidgetStatusTest::setFlagSwitchesOneBit()
{
    Flags flags(0x3000);
    VNWidgetStatus::setFlag(flags, VNWidgetStatus::compareDifferent, true);
    QCOMPARE(int(flags), 0x3800);
    VNWidgetStatus::setFlag(flags, VNWidgetStatus::standardDefined, false);
    QCOMPARE(int(flags), 0x1800);
    QCOMPARE(int(VNWidgetStatus::setFlag(Flags(0x820), Flags(0x800), false)), 0x20);
}

// Which looks a word shows, most urgent first, and the dominant status that stands for it alone.
void WidgetStatusTest::decision_data()
{
    QTest::addColumn<int>("word");
    QTest::addColumn<QString>("look");
    QTest::addColumn<QString>("sigma");
    QTest::addColumn<int>("dominant");
    const struct
    {
        const char* tag;
        int word;
        const char* look;
        const char* sigma;
        int dominant;
    } table[] = {
        {"nothing", 0x0, "undef", "none", 0x0},
        {"need input over different", 0x422, "needInput", "none", 0x20},
        {"different over standard", 0x3402, "different", "none", 0x400},
        {"locked over changed", 0x33000, "standardChangedLocked", "none", 0x30000},
        {"default changed over default", 0xF000, "standardDefaultChanged", "none", 0x8000},
        {"standard over user edit", 0x3002, "standardDefined", "none", 0x2000},
        {"standard over compare", 0x3800, "standardDefined", "none", 0x2000},
        {"sigma error over active", 0x340, "undef", "invalid", 0x200},
        {"sigma over compare", 0x840, "undef", "available", 0x40},
        {"sigma standard changed over active", 0x101C0, "standardChanged", "standardChanged", 0x10000},
        {"compare alone", 0x800, "undef", "none", 0x800},
    };
    for (const auto& row : table)
        QTest::newRow(row.tag) << row.word << QString::fromLatin1(row.look) << QString::fromLatin1(row.sigma)
                               << row.dominant;
}

void WidgetStatusTest::decision()
{
    QFETCH(int, word);
    QFETCH(QString, look);
    QFETCH(QString, sigma);
    QFETCH(int, dominant);
    QCOMPARE(VNWidgetStatus::lookName(Flags(word)), look);
    QCOMPARE(VNWidgetStatus::sigmaLookName(Flags(word)), sigma);
    QCOMPARE(int(VNWidgetStatus::getDominantStatusFromFlag(Flags(word))), dominant);
}

void WidgetStatusTest::statusLooks_data()
{
    QTest::addColumn<int>("family");
    for (int family = 0; family < families.size(); ++family)
        QTest::newRow(families.at(family).first) << family;
}

// Every gallery word, alone and with "Compare Differs" on top, on one widget of the family: each
// look is its own, the widget keeps its size and place, its arrows and its indicator.
void WidgetStatusTest::statusLooks()
{
    QFETCH(int, family);
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    QWidget* widget = families.at(family).second();
    layout->addWidget(widget);
    layout->addWidget(new QLineEdit(QStringLiteral("neighbour")));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* button = qobject_cast<QAbstractButton*>(widget);
    const bool checkable = qobject_cast<QCheckBox*>(widget) || qobject_cast<QRadioButton*>(widget);

    const QSize sizeHint = widget->sizeHint();
    const QRect geometry = widget->geometry();
    const QRect subControl = subControlRect(widget);
    QList<QImage> looks;
    QStringList names;
    for (int compare : {0, 0x800}) {
        for (const auto& word : galleryWords) {
            const QString name =
                QLatin1String(word.first) + (compare ? QStringLiteral(" + Compare Differs") : QString());
            setStatus(widget, word.second | compare);
            QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            QCOMPARE(widget->sizeHint(), sizeHint);
            QVERIFY2(widget->geometry() == geometry, qPrintable(name));
            const QImage look = widget->grab().toImage();
            if (subControl.isValid())
                QVERIFY2(hasDarkPixel(look, subControl), qPrintable(name + QStringLiteral(": no arrow")));
            if (auto* spin = qobject_cast<QAbstractSpinBox*>(widget)) {
                const QString before = spin->text();
                QTest::mouseClick(spin, Qt::LeftButton, Qt::NoModifier, subControl.center());
                QVERIFY2(spin->text() != before, qPrintable(name + QStringLiteral(": the up arrow does not step")));
                spin->stepDown();
            }
            if (checkable) {
                QStyleOptionButton option;
                option.initFrom(button);
                const QRect indicator = widget->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, widget);
                QVERIFY2(hasDarkPixel(look, indicator), qPrintable(name + QStringLiteral(": no indicator")));
                button->setChecked(!button->isChecked());
                QVERIFY2(widget->grab().toImage() != look, qPrintable(name + QStringLiteral(": no check mark")));
                button->setChecked(!button->isChecked());
            }
            looks << look;
            names << name;
        }
    }
    for (int a = 0; a < looks.size(); ++a) {
        for (int b = a + 1; b < looks.size(); ++b) {
            QVERIFY2(looks.at(a) != looks.at(b),
                     qPrintable(QStringLiteral("\"%1\" looks like \"%2\"").arg(names.at(a), names.at(b))));
        }
    }
}

void WidgetStatusTest::fieldsShareOneHeight()
{
    // Side by side in a row, fields and buttons share their top and bottom edges.
    QLineEdit edit(QStringLiteral("Beam 1"));
    const int height = edit.sizeHint().height();
    for (const auto& family : families) {
        QScopedPointer<QWidget> widget(family.second());
        if (!qobject_cast<QCheckBox*>(widget.data()) && !qobject_cast<QRadioButton*>(widget.data()) &&
            !qobject_cast<QPlainTextEdit*>(widget.data()))
            QVERIFY2(widget->sizeHint().height() == height, qPrintable(QStringLiteral("%1: %2 px, line edit %3 px")
                                                                           .arg(QLatin1String(family.first))
                                                                           .arg(widget->sizeHint().height())
                                                                           .arg(height)));
    }
}

void WidgetStatusTest::readOnlyStaysReadable()
{
    // Read-only result texts keep dark text; only disabled ones grey out.
    QPlainTextEdit text(QStringLiteral("MMMMMMMM"));
    text.resize(160, 40);
    const auto darkestInk = [&text] {
        const QImage image = text.grab().toImage();
        int darkest = 255;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 6; x < image.width() - 6; ++x)
                darkest = qMin(darkest, qGray(image.pixel(x, y)));
        return darkest;
    };
    const int writable = darkestInk();
    SetWidgetsReadOnly(true)(&text);
    const QImage readOnly = text.grab().toImage();
    QVERIFY2(darkestInk() < 90, qPrintable(QString::number(darkestInk())));
    QVERIFY(qAbs(darkestInk() - writable) < 40);
    text.setEnabled(false);
    QVERIFY2(darkestInk() > 110, qPrintable(QString::number(darkestInk())));
    QVERIFY(text.grab().toImage() != readOnly);
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
    QTest::addColumn<int>("family");
    for (int family = 0; family < families.size(); ++family) {
        const QLatin1String name(families.at(family).first);
        if (name == QLatin1String("QLineEdit") || name == QLatin1String("QDoubleSpinBox") ||
            name == QLatin1String("QComboBox") || name == QLatin1String("QPushButton"))
            QTest::newRow(families.at(family).first) << family;
    }
}

void WidgetStatusTest::readOnly()
{
    QFETCH(int, family);
    QWidget window;
    QWidget* widget = families.at(family).second();
    widget->setParent(&window);
    const Qt::FocusPolicy focus = widget->focusPolicy();

    SetWidgetsReadOnly(true)(widget);
    QCOMPARE(widget->property("readOnly").toBool(), true);
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
        QTest::keyClicks(edit, QStringLiteral("more"));
        QCOMPARE(edit->text(), QStringLiteral("42.0"));
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
    const QImage header = label.grab().toImage();
    QVERIFY(header != plain);
    // The rule under the header runs the whole width on the bottom line.
    const int bottom = header.height() - 1;
    for (int x : {0, header.width() / 2, header.width() - 1})
        QCOMPARE(header.pixelColor(x, bottom).name(), QStringLiteral("#8aa2b8"));
}

QTEST_MAIN(WidgetStatusTest)
#include "tst_widgetstatus.moc"
