#include <DebugStateInfo.h>
#include <DebugStyleSheet.h>
#include <VNPushButton.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
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

QWidget* colouredChild(QWidget* parent, const QColor& colour, const QRect& geometry)
{
    auto* child = new QWidget(parent);
    child->setObjectName(colour.name());
    child->setAutoFillBackground(true);
    QPalette palette = child->palette();
    palette.setColor(QPalette::Window, colour);
    child->setPalette(palette);
    child->setGeometry(geometry);
    return child;
}

// Two coloured areas side by side, beside the inspector on the screen.
struct PixelScene
{
    QWidget window;
    QWidget* left = colouredChild(&window, QColor(0x33, 0x66, 0xcc), QRect(0, 0, 60, 40));
    QWidget* right = colouredChild(&window, QColor(0xe0, 0x10, 0x10), QRect(60, 0, 60, 40));
    DebugStateInfo info;

    PixelScene()
    {
        window.setGeometry(20, 20, 120, 40);
        info.move(20, 200);
    }
    bool show()
    {
        window.show();
        info.show();
        return QTest::qWaitForWindowExposed(&window) && QTest::qWaitForWindowExposed(&info);
    }
    QString pixelAt(QWidget* widget)
    {
        QCursor::setPos(widget->mapToGlobal(widget->rect().center()));
        info.poll();
        return info.findChild<QLabel*>(QStringLiteral("pixelColorLabel"))->text();
    }
};

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
    void stateInfoShowsPixelUnderMouse_data();
    void stateInfoShowsPixelUnderMouse();
    void freezeKeyStopsFollowingMouse();
    void copiesInspectedWidgetImage();
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

void DebugWindowsTest::stateInfoShowsPixelUnderMouse_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("shown");
    QTest::newRow("blue") << QColor(0x33, 0x66, 0xcc) << QStringLiteral("#3366cc  RGB(51, 102, 204)");
    QTest::newRow("white") << QColor(Qt::white) << QStringLiteral("#ffffff  RGB(255, 255, 255)");
    QTest::newRow("near black") << QColor(1, 2, 3) << QStringLiteral("#010203  RGB(1, 2, 3)");
}

void DebugWindowsTest::stateInfoShowsPixelUnderMouse()
{
    QFETCH(QColor, colour);
    QFETCH(QString, shown);
    PixelScene scene;
    scene.left->setPalette(QPalette(colour, colour));
    QVERIFY(scene.show());
    QTRY_COMPARE(scene.pixelAt(scene.left), shown);
    QCOMPARE(scene.info.pixelColor(), colour);
    QCOMPARE(scene.info.inspectedWidget(), scene.left);
    // Over the inspector itself the last reading stays, so that it can be read.
    QCOMPARE(scene.pixelAt(scene.info.findChild<QLabel*>(QStringLiteral("pixelColorLabel"))), shown);
}

void DebugWindowsTest::freezeKeyStopsFollowingMouse()
{
    PixelScene scene;
    QVERIFY(scene.show());
    QApplication::setActiveWindow(&scene.window);
    QTRY_COMPARE(scene.pixelAt(scene.left), QStringLiteral("#3366cc  RGB(51, 102, 204)"));
    // The key works in the inspected window, where the keyboard focus is.
    QTest::keyClick(&scene.window, Qt::Key_F8);
    QVERIFY(!scene.info.isFollowingMouse());
    QCOMPARE(scene.pixelAt(scene.right), QStringLiteral("#3366cc  RGB(51, 102, 204)"));
    QCOMPARE(scene.info.inspectedWidget(), scene.left);
    QTest::keyClick(&scene.window, Qt::Key_F8);
    QVERIFY(scene.info.isFollowingMouse());
    QCOMPARE(scene.pixelAt(scene.right), QStringLiteral("#e01010  RGB(224, 16, 16)"));
    QCOMPARE(scene.info.inspectedWidget(), scene.right);
}

void DebugWindowsTest::copiesInspectedWidgetImage()
{
    PixelScene scene;
    QVERIFY(scene.show());
    QApplication::setActiveWindow(&scene.window);
    QApplication::clipboard()->clear();
    QTRY_COMPARE(scene.pixelAt(scene.right), QStringLiteral("#e01010  RGB(224, 16, 16)"));
    QTest::keyClick(&scene.window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QImage image = QApplication::clipboard()->image();
    QCOMPARE(image.size(), QSize(60, 40));
    QCOMPARE(image.pixelColor(30, 20), QColor(0xe0, 0x10, 0x10));

    scene.info.inspect(scene.left);
    scene.info.findChild<QPushButton*>(QStringLiteral("copyImageButton"))->click();
    QCOMPARE(QApplication::clipboard()->image().pixelColor(5, 5), QColor(0x33, 0x66, 0xcc));
}

QTEST_MAIN(DebugWindowsTest)
#include "tst_debugwindows.moc"
