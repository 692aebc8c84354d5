#include "TestVisualizePointsControl.h"

#include <VNDisplayNeededInput.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

namespace {
const QString sampleText = QStringLiteral("Click four points to define a spine as a master profile.");

struct Controls
{
    explicit Controls(QWidget* dialog)
        : points(dialog->findChild<QSpinBox*>(QStringLiteral("m_points")))
        , optional(dialog->findChild<QSpinBox*>(QStringLiteral("m_optionalPoints")))
        , checked(dialog->findChild<QSpinBox*>(QStringLiteral("m_checked")))
        , infoText(dialog->findChild<QLineEdit*>(QStringLiteral("m_infoText")))
        , useOptional(dialog->findChild<QCheckBox*>(QStringLiteral("m_useOptional")))
        , display(dialog->findChild<VNDisplayNeededInput*>(QStringLiteral("m_display")))
    {}

    void toggleUseOptional() const
    {
        QTest::mouseClick(useOptional, Qt::LeftButton, Qt::NoModifier,
                          QPoint(useOptional->height() / 2, useOptional->height() / 2));
    }

    QSpinBox* points;
    QSpinBox* optional;
    QSpinBox* checked;
    QLineEdit* infoText;
    QCheckBox* useOptional;
    VNDisplayNeededInput* display;
};
} // namespace

class PointsControlTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void sampleDataReachesDisplay();
    void fieldsDriveDisplay();
    void useOptionalMirrorsDisplayWithoutFeedback();
    void uncheckingResetsFieldButNotDisplay();
};

void PointsControlTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void PointsControlTest::sampleDataReachesDisplay()
{
    TestVisualizePointsControl dialog(nullptr);
    const Controls controls(&dialog);
    QCOMPARE(controls.display->needed(), 2);
    QCOMPARE(controls.display->infoText(), sampleText);
    QCOMPARE(controls.display->optional(), 0);
    QCOMPARE(controls.display->checked(), 0);
}

void PointsControlTest::fieldsDriveDisplay()
{
    TestVisualizePointsControl dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const Controls controls(&dialog);
    controls.points->setValue(4);
    controls.optional->setValue(2);
    controls.checked->setValue(3);
    controls.infoText->clear();
    QTest::keyClicks(controls.infoText, QStringLiteral("Pick a plane"));
    QCOMPARE(controls.display->needed(), 4);
    QCOMPARE(controls.display->optional(), 2);
    QCOMPARE(controls.display->checked(), 3);
    QCOMPARE(controls.display->infoText(), QStringLiteral("Pick a plane"));
    QVERIFY(!controls.display->pointRect(5).isEmpty());
}

// While the display derives the optional count, the disabled field shows that count after every
// change of the needed points; writing it must not call back into the dialog.
void PointsControlTest::useOptionalMirrorsDisplayWithoutFeedback()
{
    TestVisualizePointsControl dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const Controls controls(&dialog);
    QSignalSpy fieldChanges(controls.optional, qOverload<int>(&QSpinBox::valueChanged));
    controls.toggleUseOptional();
    QVERIFY(controls.useOptional->isChecked());
    QVERIFY(!controls.optional->isEnabled());
    QVERIFY(controls.display->useOptional());
    QCOMPARE(controls.optional->value(), controls.display->optional());
    for (int needed : {5, 1, 8}) {
        controls.points->setValue(needed);
        QCOMPARE(controls.optional->value(), controls.display->optional());
    }
    QCOMPARE(controls.display->optional(), 7);
    QCOMPARE(fieldChanges.count(), 0);

    controls.optional->setValue(3); // a script writing the disabled field does not reach the display
    QCOMPARE(controls.display->optional(), 7);
}

void PointsControlTest::uncheckingResetsFieldButNotDisplay()
{
    TestVisualizePointsControl dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const Controls controls(&dialog);
    controls.optional->setValue(3);
    QCOMPARE(controls.display->optional(), 3);
    controls.toggleUseOptional();
    controls.points->setValue(6);
    QCOMPARE(controls.optional->value(), 5);

    QSignalSpy fieldChanges(controls.optional, qOverload<int>(&QSpinBox::valueChanged));
    controls.toggleUseOptional();
    QVERIFY(controls.optional->isEnabled());
    QCOMPARE(controls.optional->value(), 0);
    QCOMPARE(fieldChanges.count(), 0);
    QCOMPARE(controls.display->optional(), 5); // the count it showed, not the field's 0

    controls.optional->setFocus();
    QTest::keyClick(controls.optional, Qt::Key_Up);
    QCOMPARE(controls.display->optional(), 1);
}

QTEST_MAIN(PointsControlTest)
#include "tst_pointscontrol.moc"
