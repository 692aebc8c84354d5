#include "../TestSupport.h"
#include "TestTreeDelegates.h"

#include <VNDoubleSpinBox.h>
#include <VNDoubleSpinBoxData.h>
#include <VNDragTreeWidget.h>
#include <VNItemDataRoles.h>
#include <VNItemDelegate.h>
#include <VNMenuButtonDelegate.h>
#include <VNMultiPushButtonDelegate.h>
#include <VNPushButtonDelegate.h>
#include <VNStatusPalette.h>
#include <VNToolTipButtonDelegate.h>
#include <VNTwinPushButtonDelegate.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {
const int statusRole = VNItemDataRoles::StatusRole;

VNDragTreeWidget* treeOf(QWidget* dialog)
{
    return child<VNDragTreeWidget>(dialog, QStringLiteral("treeWidget"));
}

int rowOf(QTreeWidget* tree, const QString& caption)
{
    for (int row = 0; row < tree->topLevelItemCount(); ++row) {
        if (tree->topLevelItem(row)->text(0) == caption)
            return row;
    }
    qFatal("no row %s", qPrintable(caption));
    return -1;
}

QRect cellRect(QTreeWidget* tree, int row, int column)
{
    return tree->visualRect(tree->model()->index(row, column));
}

// Scrolls the cell into view and returns its rectangle in the viewport.
QRect shownCell(QTreeWidget* tree, int row, int column)
{
    tree->scrollTo(tree->model()->index(row, column));
    return cellRect(tree, row, column);
}

bool cellContains(QTreeWidget* tree, const QRect& rect, QRgb colour)
{
    const QImage image = tree->viewport()->grab(rect).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if ((image.pixel(x, y) & 0xffffff) == (colour & 0xffffff))
                return true;
        }
    }
    return false;
}
} // namespace

class TestTreeDelegatesTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dialog = new TestTreeDelegates(nullptr);
        m_dialog->resize(1400, 900);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog));
        m_tree = treeOf(m_dialog);
    }
    void cleanup() { delete m_dialog; }

    // A cell shows a number as a value field does: without digit grouping, so it can be typed back.
    void cellNumbersHaveNoGrouping()
    {
        const QLocale previous;
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        VNDoubleSpinBoxData number;
        number.value = 1250.5;
        number.unit = QStringLiteral("mm");
        number.decimals = 2;
        const QString text = number.text();
        QLocale::setDefault(previous);
        QCOMPARE(text, QStringLiteral("1250.50 mm"));
    }

    void headerAndRows()
    {
        QCOMPARE(m_tree->headerItem()->toolTip(4), QStringLiteral("Different Tooltip"));
        // Painting the toggles must leave the other rows' values alone.
        m_tree->viewport()->grab();
        QCoreApplication::processEvents();
        QCOMPARE(m_tree->topLevelItem(1)->text(1), QStringLiteral("Text 1"));
        QCOMPARE(m_tree->topLevelItem(m_tree->topLevelItemCount() - 1)->text(1), QStringLiteral("Test_Name.Alias"));
    }

    void statusSlots_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<int>("bits");
        QTest::newRow("need input") << "m_needInput" << 0x20;
        QTest::newRow("user edited") << "m_userEdited" << 0x2;
        QTest::newRow("compare differs") << "m_compareDiffers" << 0x800;
        QTest::newRow("standard enabled") << "m_standardEnabled" << 0x3000;
        QTest::newRow("deviate") << "m_standardDeviate" << 0x10000;
        QTest::newRow("locked") << "m_standardLocked" << 0x20000;
        QTest::newRow("sigma on") << "m_sigmaOn" << 0x100;
        QTest::newRow("sigma invalid") << "m_sigmaError" << 0x200;
        QTest::newRow("sigma standard changed") << "m_sigmaStandardChanged" << 0x80;
    }
    void statusSlots()
    {
        QFETCH(QString, box);
        QFETCH(int, bits);
        QAbstractItemModel* model = m_tree->model();
        // Words that other boxes set before; they must survive.
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 1; column <= 4; ++column)
                model->setData(model->index(row, column), 0x400 | (row << 20), statusRole);
        }
        child<QCheckBox>(m_dialog, box)->setChecked(true);
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 1; column <= 4; ++column)
                QCOMPARE(model->index(row, column).data(statusRole).toInt(), 0x400 | (row << 20) | bits);
        }
        for (int column = 1; column <= 4; ++column)
            QCOMPARE(m_tree->headerItem()->data(column, statusRole).toInt(),
                     0x400 | ((model->rowCount() - 1) << 20) | bits);
        child<QCheckBox>(m_dialog, box)->setChecked(false);
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 1; column <= 4; ++column)
                QCOMPARE(model->index(row, column).data(statusRole).toInt(), 0x400 | (row << 20));
        }
    }

    void sigmaAvailableRule()
    {
        const QModelIndex cell = m_tree->model()->index(0, 1);
        auto* available = child<QCheckBox>(m_dialog, QStringLiteral("m_sigmaAvailable"));
        available->setChecked(true);
        QCOMPARE(cell.data(statusRole).toInt(), 0x40);
        available->setChecked(false);
        child<QCheckBox>(m_dialog, QStringLiteral("m_sigmaOn"))->setChecked(true);
        QCOMPARE(cell.data(statusRole).toInt(), 0x100);
        available->setChecked(true);
        QCOMPARE(cell.data(statusRole).toInt(), 0x140);
        available->setChecked(false);
        QCOMPARE(cell.data(statusRole).toInt(), 0);
    }

    void enabledAndReadOnlyRoles()
    {
        const QModelIndex cell = m_tree->model()->index(3, 4);
        child<QCheckBox>(m_dialog, QStringLiteral("disableItems"))->setChecked(true);
        QCOMPARE(cell.data(VNItemDataRoles::ActiveRole), QVariant(false));
        QVERIFY(!m_tree->model()->index(3, 0).data(VNItemDataRoles::ActiveRole).isValid());
        child<QCheckBox>(m_dialog, QStringLiteral("readOnlyItems"))->setChecked(true);
        QCOMPARE(cell.data(VNItemDataRoles::ReadOnlyRole), QVariant(true));
    }

    void valueFieldWidth()
    {
        auto* delegate = qobject_cast<VNItemDelegate*>(m_tree->itemDelegate());
        QVERIFY(delegate);
        auto* combo = child<QComboBox>(m_dialog, QStringLiteral("m_valueFiledWidth"));
        combo->setCurrentIndex(4);
        QCOMPARE(delegate->valueFieldWidth(), 3);
        combo->setCurrentIndex(0);
        QCOMPARE(delegate->valueFieldWidth(), -1);
        delegate->setValueFieldWidth(1);
        child<QCheckBox>(m_dialog, QStringLiteral("m_showValueBackground"))->setChecked(true);
        QVERIFY(delegate->drawValueBackground());
        QCOMPARE(combo->currentIndex(), 2);
    }

    // Only edits of column 1 print, and only the number (a stray message does not fail a test by
    // itself, so the messages are collected).
    void columnOneEditsAreLogged()
    {
        static QStringList printed;
        printed.clear();
        const QtMessageHandler previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& message) { printed << message; });
        QTreeWidgetItem* item = m_tree->topLevelItem(rowOf(m_tree, QStringLiteral("VNItemDelegate")));
        for (int column : {0, 2, 3, 4})
            item->setText(column, QStringLiteral("43"));
        item->setText(1, QStringLiteral("42"));
        qInstallMessageHandler(previous);
        QCOMPARE(printed, QStringList{"42"});
    }

    void headerCompareDiffersFramesHeader()
    {
        QHeaderView* header = m_tree->header();
        const QImage plain = header->grab().toImage();
        clickButton(m_dialog, QStringLiteral("m_headerDifferentFromComparison"));
        QVERIFY(m_tree->isHeaderDifferentFromComparison());
        QVERIFY(header->grab().toImage() != plain);
        clickButton(m_dialog, QStringLiteral("m_headerDifferentFromComparison"));
        QCOMPARE(header->grab().toImage(), plain);
    }

    // Read-only cells open no editor, by mouse or key, and their check marks do not flip.
    void readOnlyCellsCannotChange()
    {
        clickButton(m_dialog, QStringLiteral("readOnlyItems"));
        for (const char* caption : {"VNItemDelegate", "VNItemDelegate - Spinbox Roles"}) {
            const int row = rowOf(m_tree, QString::fromLatin1(caption));
            QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, {}, shownCell(m_tree, row, 1).center());
            m_tree->setCurrentIndex(m_tree->model()->index(row, 1));
            QTest::keyClick(m_tree->viewport(), Qt::Key_F2);
            QVERIFY(!m_tree->viewport()->findChild<QLineEdit*>());
        }
        QTreeWidgetItem* toggles = m_tree->topLevelItem(rowOf(m_tree, QStringLiteral("IconToggleDelegate Check")));
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {},
                          shownCell(m_tree, m_tree->indexOfTopLevelItem(toggles), 1).center());
        QTreeWidgetItem* checks = m_tree->topLevelItem(rowOf(m_tree, QStringLiteral("VNItemDelegate Check")));
        m_tree->setCurrentIndex(m_tree->model()->index(m_tree->indexOfTopLevelItem(checks), 1));
        QTest::keyClick(m_tree->viewport(), Qt::Key_Space);
        QCOMPARE(toggles->checkState(1), Qt::Checked);
        QCOMPARE(checks->checkState(1), Qt::Checked);
        clickButton(m_dialog, QStringLiteral("readOnlyItems"));
        QTest::keyClick(m_tree->viewport(), Qt::Key_Space);
        QCOMPARE(checks->checkState(1), Qt::Unchecked);
    }

    // The status fill and the sigma marker are what a designer compares.
    void statusIsPainted()
    {
        const int row = rowOf(m_tree, QStringLiteral("VNItemDelegate"));
        const QRect cell = shownCell(m_tree, row, 1);
        QVERIFY(!cellContains(m_tree, cell, VNStatusPalette::colors(VNStatusPalette::Look::needInput).fill.rgb()));
        child<QCheckBox>(m_dialog, QStringLiteral("m_needInput"))->setChecked(true);
        QVERIFY(cellContains(m_tree, cell, VNStatusPalette::colors(VNStatusPalette::Look::needInput).fill.rgb()));
        QVERIFY(!cellContains(m_tree, VNItemDelegate::sigmaRect(cell),
                              VNStatusPalette::sigmaColor(VNStatusPalette::SigmaLook::available).rgb()));
        child<QCheckBox>(m_dialog, QStringLiteral("m_sigmaAvailable"))->setChecked(true);
        QVERIFY(cellContains(m_tree, VNItemDelegate::sigmaRect(cell),
                             VNStatusPalette::sigmaColor(VNStatusPalette::SigmaLook::available).rgb()));
        // A button cell shows the status bit's mark too.
        const int buttons = rowOf(m_tree, QStringLiteral("VNPushButtonDelegate"));
        QVERIFY(cellContains(m_tree, shownCell(m_tree, buttons, 1),
                             VNStatusPalette::markColor(VNWidgetStatus::needInput).rgb()));
    }

    // Each status bit leaves its own mark in the cell's top right corner, on its own.
    void everyStatusBitIsMarked_data()
    {
        QTest::addColumn<int>("bits");
        QTest::addColumn<QRgb>("colour");
        QTest::newRow("user edited") << 0x2 << VNStatusPalette::markColor(VNWidgetStatus::userEdit).rgb();
        QTest::newRow("need input") << 0x20 << VNStatusPalette::markColor(VNWidgetStatus::needInput).rgb();
        QTest::newRow("different") << 0x400 << VNStatusPalette::markColor(VNWidgetStatus::different).rgb();
        QTest::newRow("compare differs") << 0x800 << VNStatusPalette::compareColor().rgb();
        QTest::newRow("standard enabled")
            << 0x3000 << VNStatusPalette::markColor(VNWidgetStatus::standardDefined).rgb();
        QTest::newRow("deviate") << 0x10000 << VNStatusPalette::markColor(VNWidgetStatus::standardChanged).rgb();
        QTest::newRow("locked") << 0x20000 << VNStatusPalette::markColor(VNWidgetStatus::standardLocked).rgb();
    }
    void everyStatusBitIsMarked()
    {
        QFETCH(int, bits);
        QFETCH(QRgb, colour);
        const int row = rowOf(m_tree, QStringLiteral("VNItemDelegate"));
        const QRect cell = shownCell(m_tree, row, 2);
        const QRect corner(cell.right() - 5, cell.top(), 6, 6);
        QVERIFY(!cellContains(m_tree, corner, colour));
        m_tree->topLevelItem(row)->setData(2, statusRole, bits);
        QVERIFY(cellContains(m_tree, corner, colour));
    }

    void sigmaClickShowsMessage()
    {
        child<QCheckBox>(m_dialog, QStringLiteral("m_sigmaAvailable"))->setChecked(true);
        const QRect cell = shownCell(m_tree, rowOf(m_tree, QStringLiteral("VNItemDelegate")), 1);
        QString shown;
        QTimer::singleShot(0, this, [&shown] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                const auto labels = box->findChildren<QLabel*>();
                for (QLabel* label : labels)
                    shown += label->text();
                box->reject();
            }
        });
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, VNItemDelegate::sigmaRect(cell).center());
        QVERIFY(shown.contains(QStringLiteral("Sigma clicked")));
    }

    void pushButtonClickToggles()
    {
        const int row = rowOf(m_tree, QStringLiteral("VNPushButtonDelegate"));
        auto* delegate = qobject_cast<VNPushButtonDelegate*>(m_dialog->delegateForRow(row));
        QVERIFY(delegate);
        QSignalSpy clicked(delegate, &VNButtonCellDelegate::clicked);
        const QRect cell = shownCell(m_tree, row, 1);
        QTest::mousePress(m_tree->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(delegate->pressedButton(m_tree->model()->index(row, 1)), 0);
        QTest::mouseRelease(m_tree->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(m_tree->topLevelItem(row)->checkState(1), Qt::Checked);
        // Space on the current cell clicks it like a focused button.
        m_tree->setCurrentIndex(m_tree->model()->index(row, 1));
        QTest::keyClick(m_tree->viewport(), Qt::Key_Space);
        QCOMPARE(m_tree->topLevelItem(row)->checkState(1), Qt::Unchecked);
    }

    void multiButtonsToggleAndRespectEnabledRole()
    {
        const int row = rowOf(m_tree, QStringLiteral("VNMultiPushButtonDelegate Different Disabled Icon"));
        auto* delegate = qobject_cast<VNMultiPushButtonDelegate*>(m_dialog->delegateForRow(row));
        QVERIFY(delegate);
        const QModelIndex cell = m_tree->model()->index(row, 1);
        const QRect rect = shownCell(m_tree, row, 1);
        const int checkedRole = VNMultiPushButtonDelegate::getMultiPushButtonCheckedRole();
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, delegate->buttonRect(rect, cell, 2).center());
        QCOMPARE(cell.data(checkedRole).toInt(), 0x5);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, delegate->buttonRect(rect, cell, 1).center());
        QCOMPARE(cell.data(checkedRole).toInt(), 0x5); // the middle button is disabled
        QCOMPARE(delegate->buttonToolTip(cell, 1), QStringLiteral("Tooltip for PB 2 disabled"));
        QCOMPARE(delegate->buttonToolTip(cell, 0), QStringLiteral("Tooltip for PB 1 checked"));
    }

    void menuButtonTriggersDefaultItem()
    {
        const int row = rowOf(m_tree, QStringLiteral("VNMenuButtonDelegate"));
        auto* delegate = qobject_cast<VNMenuButtonDelegate*>(m_dialog->delegateForRow(row));
        QSignalSpy triggered(delegate, &VNMenuButtonDelegate::menuItemTriggered);
        const QModelIndex cell = m_tree->model()->index(row, 2);
        const QRect rect = shownCell(m_tree, row, 2);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, delegate->buttonRect(rect, cell, 0).center());
        QCOMPARE(triggered.count(), 1);
        QCOMPARE(triggered.at(0).at(1).toInt(), 2); // "Reset"
        QScopedPointer<QMenu> menu(delegate->createMenu(m_tree->model()->index(row, 1), nullptr));
        QCOMPARE(menu->actions().size(), 3);
        QVERIFY(!menu->actions().at(1)->isEnabled()); // "Copy From..."
    }

    void comboCellEditsWithItsEntries()
    {
        const int row = rowOf(m_tree, QStringLiteral("VNComboBoxDelegate from Model"));
        const QModelIndex cell = m_tree->model()->index(row, 1);
        m_tree->scrollTo(cell);
        m_tree->edit(cell);
        auto* editor = m_tree->viewport()->findChild<QComboBox*>();
        QVERIFY(editor);
        QCOMPARE(editor->count(), 6);
        QCOMPARE(editor->currentText(), QStringLiteral("Item 6"));
        QVERIFY(!editor->itemIcon(0).isNull());
        editor->setCurrentIndex(1);
        emit editor->activated(1);
        QTRY_COMPARE(cell.data().toString(), QStringLiteral("Item 2"));
    }

    void captionsAndDisabledCellsOpenNoEditor()
    {
        const QModelIndex caption = m_tree->model()->index(0, 0);
        m_tree->edit(caption);
        QVERIFY(!m_tree->indexWidget(caption) && !m_tree->viewport()->findChild<QLineEdit*>());
        child<QCheckBox>(m_dialog, QStringLiteral("disableItems"))->setChecked(true);
        const QModelIndex value = m_tree->model()->index(rowOf(m_tree, QStringLiteral("VNItemDelegate")), 1);
        m_tree->edit(value);
        QVERIFY(!m_tree->viewport()->findChild<QLineEdit*>());
        // A disabled button cell ignores clicks.
        const int row = rowOf(m_tree, QStringLiteral("VNIncludeExcludeButtonDelegate"));
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, shownCell(m_tree, row, 1).center());
        QCOMPARE(m_tree->model()->index(row, 1).data(Qt::EditRole), QVariant(true));
    }

    void toolTipAndTwinButtonsClick()
    {
        const int tips = rowOf(m_tree, QStringLiteral("VNToolTipButtonDelegate"));
        auto* tipDelegate = qobject_cast<VNToolTipButtonDelegate*>(m_dialog->delegateForRow(tips));
        QVERIFY(tipDelegate);
        QSignalSpy shown(tipDelegate, &VNToolTipButtonDelegate::toolTipShown);
        const QModelIndex tipCell = m_tree->model()->index(tips, 2);
        QRect rect = shownCell(m_tree, tips, 2);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, rect.center()); // beside the button
        QCOMPARE(shown.count(), 0);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, tipDelegate->buttonRect(rect, tipCell, 0).center());
        QCOMPARE(shown.count(), 1);
        QCOMPARE(shown.at(0).at(1).toString(), QStringLiteral("This is the tooltip given by Qt::ToolTipRole"));

        const int twins = rowOf(m_tree, QStringLiteral("VNTwinPushButtonDelegate"));
        auto* twinDelegate = qobject_cast<VNTwinPushButtonDelegate*>(m_dialog->delegateForRow(twins));
        QVERIFY(twinDelegate);
        QSignalSpy clicked(twinDelegate, &VNButtonCellDelegate::clicked);
        const QModelIndex twinCell = m_tree->model()->index(twins, 1);
        rect = shownCell(m_tree, twins, 1);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, twinDelegate->buttonRect(rect, twinCell, 1).center());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(1).toInt(), 1);
    }

    void includeExcludeClickFlips()
    {
        const int row = rowOf(m_tree, QStringLiteral("VNIncludeExcludeButtonDelegate"));
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, shownCell(m_tree, row, 1).center());
        QCOMPARE(m_tree->model()->index(row, 1).data(Qt::EditRole), QVariant(false));
    }

    // Both kinds of value cell take a typed value and show it with their unit and decimals.
    void valueCellEditsWithUnit_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<int>("decimals");
        QTest::newRow("roles") << "VNItemDelegate - Spinbox Roles" << 1.5 << "inch" << 3;
        QTest::newRow("data") << "VNItemDelegate - VNDoubleSpinBoxData" << 25.4 << "mm" << 2;
    }
    void valueCellEditsWithUnit()
    {
        QFETCH(QString, caption);
        QFETCH(QString, unit);
        QFETCH(int, decimals);
        const QModelIndex cell = m_tree->model()->index(rowOf(m_tree, caption), 1);
        m_tree->scrollTo(cell);
        m_tree->edit(cell);
        auto* editor = m_tree->viewport()->findChild<VNDoubleSpinBox*>();
        QVERIFY(editor);
        QTEST(editor->value(), "value");
        QCOMPARE(editor->valueUnit(), unit);
        editor->selectAll();
        QTest::keyClicks(editor, QLocale().toString(2.75));
        QTest::keyClick(editor, Qt::Key_Return);
        // committed queued
        QTRY_COMPARE(VNItemDelegate::valueText(cell),
                     QLocale().toString(2.75, 'f', decimals) + QLatin1Char(' ') + unit);
    }

private:
    TestTreeDelegates* m_dialog = nullptr;
    VNDragTreeWidget* m_tree = nullptr;
};

QTEST_MAIN(TestTreeDelegatesTest)
#include "tst_treedelegates.moc"
