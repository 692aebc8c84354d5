#include <DebugStateInfo.h>
#include <DebugStyleSheet.h>
#include <VNPushButton.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace {
const QString originalSheet = QStringLiteral("QPushButton { color: #102030; }");

QString valueOf(const QList<QPair<QString, QString>>& rows, const QString& name)
{
    for (const auto& row : rows) {
        if (row.first == name)
            return row.second;
    }
    return QStringLiteral("<missing>");
}

QTreeWidgetItem* findItem(QTreeWidget* tree, const QString& text)
{
    const QList<QTreeWidgetItem*> found = tree->findItems(text, Qt::MatchContains | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
}
} // namespace

class DebugWindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void styleSheetEditorAppliesAndReverts();
    void styleSheetViewerIsReadOnly();
    void stateInfoIsAWindowOfItsOwn();
    void stateInfoDescribesWidget();
    void stateInfoPicksFromWindowTree();
};

void DebugWindowsTest::init()
{
    qApp->setStyleSheet(originalSheet);
}

void DebugWindowsTest::cleanup()
{
    qApp->setStyleSheet(QString());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void DebugWindowsTest::styleSheetEditorAppliesAndReverts()
{
    DebugStyleSheet viewer(nullptr, false);
    auto* editor = viewer.findChild<QPlainTextEdit*>(QStringLiteral("styleSheetEdit"));
    auto* apply = viewer.findChild<QPushButton*>(QStringLiteral("applyButton"));
    QCOMPARE(editor->toPlainText(), originalSheet);
    QVERIFY(!editor->isReadOnly());
    QVERIFY(!apply->isEnabled());

    const QString edited = QStringLiteral("QPushButton { color: red; }");
    editor->setPlainText(edited);
    QVERIFY(apply->isEnabled());
    QCOMPARE(qApp->styleSheet(), originalSheet);
    apply->click();
    QCOMPARE(qApp->styleSheet(), edited);

    viewer.findChild<QCheckBox*>(QStringLiteral("liveCheckBox"))->setChecked(true);
    editor->appendPlainText(QStringLiteral("QLabel { color: blue; }"));
    QCOMPARE(qApp->styleSheet(), editor->toPlainText());

    viewer.findChild<QPushButton*>(QStringLiteral("revertButton"))->click();
    QCOMPARE(qApp->styleSheet(), originalSheet);
    QCOMPARE(editor->toPlainText(), originalSheet);
}

void DebugWindowsTest::styleSheetViewerIsReadOnly()
{
    DebugStyleSheet viewer(nullptr, true);
    viewer.show();
    auto* editor = viewer.findChild<QPlainTextEdit*>(QStringLiteral("styleSheetEdit"));
    QVERIFY(editor->isReadOnly());
    QVERIFY(!viewer.findChild<QPushButton*>(QStringLiteral("applyButton"))->isVisible());
    viewer.applyStyleSheet();
    QCOMPARE(qApp->styleSheet(), originalSheet);
}

void DebugWindowsTest::stateInfoIsAWindowOfItsOwn()
{
    QWidget panel;
    auto* info = new DebugStateInfo(&panel);
    QVERIFY(info->isWindow());
    QCOMPARE(info->parentWidget(), &panel);
}

void DebugWindowsTest::stateInfoDescribesWidget()
{
    QWidget window;
    window.setObjectName(QStringLiteral("host"));
    auto* button = new VNPushButton(QStringLiteral("Update"), &window);
    button->setObjectName(QStringLiteral("updateBtn"));
    button->setGeometry(10, 20, 100, 30);
    button->setProperty("rightButton", true);
    button->setWidgetStatus(VNWidgetStatus::StatusFlags(0x820));
    button->setEnabled(false);

    const auto rows = DebugStateInfo::describe(button);
    QCOMPARE(valueOf(rows, QStringLiteral("Class")), QStringLiteral("VNPushButton"));
    QCOMPARE(valueOf(rows, QStringLiteral("Object name")), QStringLiteral("updateBtn"));
    QCOMPARE(valueOf(rows, QStringLiteral("Geometry")), QStringLiteral("10, 20  100 x 30"));
    QCOMPARE(valueOf(rows, QStringLiteral("Enabled")), QStringLiteral("no"));
    QCOMPARE(valueOf(rows, QStringLiteral("Status")), QStringLiteral("needInput | compareDifferent (0x820)"));
    QCOMPARE(valueOf(rows, QStringLiteral("rightButton")), QStringLiteral("true"));
    QCOMPARE(valueOf(rows, QStringLiteral("Window")), QStringLiteral("QWidget \"host\""));
}

void DebugWindowsTest::stateInfoPicksFromWindowTree()
{
    QWidget window;
    window.setObjectName(QStringLiteral("inspectedWindow"));
    auto* edit = new QLineEdit(&window);
    edit->setObjectName(QStringLiteral("nameEdit"));
    window.show();
    DebugStateInfo info;
    info.show();
    info.rebuildWindowTree();
    auto* tree = info.findChild<QTreeWidget*>(QStringLiteral("windowTree"));
    QTreeWidgetItem* item = findItem(tree, QStringLiteral("nameEdit"));
    QVERIFY(item);
    QVERIFY(!findItem(tree, QStringLiteral("DebugStateInfo")));
    emit tree->itemClicked(item, 0);
    QCOMPARE(info.inspectedWidget(), edit);
    QVERIFY(!info.isFollowingMouse());
    auto* view = info.findChild<QTreeWidget*>(QStringLiteral("stateView"));
    QVERIFY(!view->findItems(QStringLiteral("nameEdit"), Qt::MatchExactly, 1).isEmpty());
}

QTEST_MAIN(DebugWindowsTest)
#include "tst_debugwindows.moc"
