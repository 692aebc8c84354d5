#include "../TestSupport.h"
#include "TestVNMessageBox.h"

#include <VNMessageBox.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <iterator>

using Varnis::VNMessageBox;

namespace {
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    bool closeButtonVisible = false;
    bool frameless = false;
    bool iconShown = false;
};

SeenBox look(VNMessageBox* box)
{
    SeenBox seen;
    seen.title = box->findChild<QLabel*>(QStringLiteral("titleLabel"))->text();
    seen.text = box->findChild<QLabel*>(QStringLiteral("textLabel"))->text();
    seen.icon = box->icon();
    seen.closeButtonVisible = box->findChild<QToolButton*>(QStringLiteral("titleCloseButton"))->isVisible();
    seen.frameless = box->windowFlags().testFlag(Qt::FramelessWindowHint);
    const QLabel* icon = box->findChild<QLabel*>(QStringLiteral("iconLabel"));
    seen.iconShown = icon->isVisible() && !icon->pixmap(Qt::ReturnByValue).isNull();
    return seen;
}
} // namespace

class MessageBoxTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void staticFunctionReturnsPressedButton();
    void escapeLikeQt();
    void escapeWithoutEscapeButtonClosesThroughOpenTitleBar();
    void testDialogButtons_data();
    void testDialogButtons();
};

void MessageBoxTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void MessageBoxTest::staticFunctionReturnsPressedButton()
{
    SeenBox seen;
    onNextModal<VNMessageBox>([&seen](VNMessageBox* box) {
        seen = look(box);
        box->button(QMessageBox::No)->click();
    });
    const auto result = VNMessageBox::question(nullptr, QStringLiteral("Question"), QStringLiteral("Go on?"));
    QCOMPARE(result, QMessageBox::No);
    QCOMPARE(seen.title, QStringLiteral("Question"));
    QCOMPARE(seen.text, QStringLiteral("Go on?"));
    QCOMPARE(seen.icon, QMessageBox::Question);
    QVERIFY(seen.iconShown);
}

namespace {
const QMessageBox::StandardButton everyButton[] = {
    QMessageBox::Ok,       QMessageBox::Save,  QMessageBox::SaveAll,        QMessageBox::Open,    QMessageBox::Yes,
    QMessageBox::YesToAll, QMessageBox::No,    QMessageBox::NoToAll,        QMessageBox::Abort,   QMessageBox::Retry,
    QMessageBox::Ignore,   QMessageBox::Close, QMessageBox::Cancel,         QMessageBox::Discard, QMessageBox::Help,
    QMessageBox::Apply,    QMessageBox::Reset, QMessageBox::RestoreDefaults};

// What Escape answers on the toolkit box; -1 when it leaves the box open.
int toolkitEscape(QMessageBox::StandardButtons buttons)
{
    VNMessageBox box(QMessageBox::Warning, QStringLiteral("Warning"), QStringLiteral("Text"), buttons);
    box.setTitleCloseButtonVisible(false);
    int answer = -1;
    QObject::connect(&box, &QDialog::finished, [&answer](int result) { answer = result; });
    QTest::keyClick(&box, Qt::Key_Escape);
    return answer;
}

// What Escape answers on Qt's own message box, which users know from every other application.
int qtEscape(QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Warning"), QStringLiteral("Text"), buttons);
    box.show();
    QTest::keyClick(&box, Qt::Key_Escape);
    return box.clickedButton() ? int(box.standardButton(box.clickedButton())) : -1;
}
} // namespace

// Every set of up to three standard buttons: Escape answers as on Qt's own message box.
void MessageBoxTest::escapeLikeQt()
{
    const int count = int(std::size(everyButton));
    for (int a = 0; a < count; ++a) {
        for (int b = a; b < count; ++b) {
            for (int c = b; c < count; ++c) {
                const QMessageBox::StandardButtons set = everyButton[a] | everyButton[b] | everyButton[c];
                QCOMPARE(toolkitEscape(set), qtEscape(set));
            }
        }
    }
}

void MessageBoxTest::escapeWithoutEscapeButtonClosesThroughOpenTitleBar()
{
    VNMessageBox box(QMessageBox::Warning, QStringLiteral("Warning"), QStringLiteral("Text"),
                     QMessageBox::Ok | QMessageBox::Apply);
    QSignalSpy finished(&box, &QDialog::finished);
    QTest::keyClick(&box, Qt::Key_Escape);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.first().first().toInt(), int(QMessageBox::NoButton));
}

void MessageBoxTest::testDialogButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("closeButton");
    QTest::newRow("default") << "m_btn_def"
                             << "This is a default message box" << true;
    QTest::newRow("without close") << "m_btn_noclose"
                                   << "This message box must not be closeable" << false;
}

void MessageBoxTest::testDialogButtons()
{
    QFETCH(QString, button);
    QFETCH(QString, text);
    QFETCH(bool, closeButton);
    TestVNMessageBox dialog(nullptr);
    dialog.show();
    SeenBox seen;
    bool escapeClosed = false;
    onNextModal<VNMessageBox>([&](VNMessageBox* box) {
        seen = look(box);
        QCOMPARE(box->parentWidget(), &dialog);
        QTest::keyClick(box, Qt::Key_Escape); // the only button is Ok, so Escape acts as Ok
        escapeClosed = !box->isVisible();
    });
    dialog.findChild<QPushButton*>(button)->click();
    QVERIFY(escapeClosed);
    QCOMPARE(seen.title, QStringLiteral("Warning"));
    QCOMPARE(seen.text, text);
    QCOMPARE(seen.icon, QMessageBox::Warning);
    QVERIFY(seen.iconShown);
    QVERIFY(seen.frameless);
    QCOMPARE(seen.closeButtonVisible, closeButton);
}

QTEST_MAIN(MessageBoxTest)
#include "tst_messagebox.moc"
