#include "TestVNMessageBox.h"

#include <VNMessageBox.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <functional>

using Varnis::VNMessageBox;

namespace {
// Runs the action on the next message box once its modal loop has started.
void onNextBox(const std::function<void(VNMessageBox*)>& action)
{
    auto* timer = new QTimer;
    timer->setInterval(5);
    QObject::connect(timer, &QTimer::timeout, [timer, action] {
        if (auto* box = qobject_cast<VNMessageBox*>(QApplication::activeModalWidget())) {
            timer->stop();
            timer->deleteLater();
            action(box);
        }
    });
    timer->start();
}

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
    void escape_data();
    void escape();
    void testDialogForm();
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
    onNextBox([&seen](VNMessageBox* box) {
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

void MessageBoxTest::escape_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("closeButton");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<int>("result");
    QTest::newRow("single button acts") << int(QMessageBox::Ok) << false << true << int(QMessageBox::Ok);
    QTest::newRow("cancel acts") << int(QMessageBox::Ok | QMessageBox::Cancel) << false << true
                                 << int(QMessageBox::Cancel);
    QTest::newRow("no acts") << int(QMessageBox::Yes | QMessageBox::No) << false << true << int(QMessageBox::No);
    QTest::newRow("no escape button, no close") << int(QMessageBox::Ok | QMessageBox::Apply) << false << false << 0;
    QTest::newRow("no escape button, close shown")
        << int(QMessageBox::Ok | QMessageBox::Apply) << true << true << int(QMessageBox::NoButton);
}

void MessageBoxTest::escape()
{
    QFETCH(int, buttons);
    QFETCH(bool, closeButton);
    QFETCH(bool, closes);
    QFETCH(int, result);
    VNMessageBox box(QMessageBox::Warning, QStringLiteral("Warning"), QStringLiteral("Text"),
                     QMessageBox::StandardButtons(buttons));
    box.setTitleCloseButtonVisible(closeButton);
    bool stillOpen = false;
    onNextBox([&stillOpen](VNMessageBox* shown) {
        QTest::keyClick(shown, Qt::Key_Escape);
        stillOpen = shown->isVisible();
        if (stillOpen)
            shown->button(QMessageBox::Ok)->click();
    });
    const int answer = box.exec();
    QCOMPARE(!stillOpen, closes);
    if (closes)
        QCOMPARE(answer, result);
}

void MessageBoxTest::testDialogForm()
{
    TestVNMessageBox dialog(nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("TestVNMessageBoxClass"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Dialog"));
    QCOMPARE(dialog.size(), QSize(765, 573));
    auto* def = dialog.findChild<QPushButton*>(QStringLiteral("m_btn_def"));
    auto* noClose = dialog.findChild<QPushButton*>(QStringLiteral("m_btn_noclose"));
    QVERIFY(def && noClose);
    QCOMPARE(def->text(), QStringLiteral("new default MessageBox"));
    QCOMPARE(noClose->text(), QStringLiteral("new MessageBox without close option"));
    QVERIFY(dialog.findChild<QLayout*>(QStringLiteral("gridLayout_2")));
    QVERIFY(dialog.findChild<QLayout*>(QStringLiteral("gridLayout")));
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
    onNextBox([&](VNMessageBox* box) {
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
