#include "TestRegExp.h"
#include "TestWidgetCollection.h"
#include "TranslationFileTool.h"
#include "TranslationMessages.h"

#include <VNInfoArea.h>

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

// The mock Swedish translation that the build makes from the collection's own texts.
class MockLocaleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void panelTexts_data();
    void panelTexts();
    void dialogTexts();
    void resultTexts();

private:
    QString mock(const char* english) const { return m_tool.mockSwedish(QString::fromUtf8(english)); }

    TranslationFileTool m_tool;
    QTranslator m_translator;
};

void MockLocaleTest::initTestCase()
{
    if (!TWC_HAS_MOCK_TRANSLATION)
        QSKIP("built without lupdate and lrelease");
    QVERIFY(m_translator.load(QStringLiteral(":/TestWidgetCollection/Translations/testwidgetcollection_mock.qm")));
    QVERIFY(QCoreApplication::installTranslator(&m_translator));
}

void MockLocaleTest::cleanupTestCase()
{
    QCoreApplication::removeTranslator(&m_translator);
}

void MockLocaleTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void MockLocaleTest::panelTexts_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("english");
    QTest::newRow("loupe") << "loupe"
                           << "Show Loupe";
    QTest::newRow("reg exp") << "m_testRegExp"
                             << "Reg Exp";
    QTest::newRow("qt training") << "m_QtTraining"
                                 << "Qt Training";
}

void MockLocaleTest::panelTexts()
{
    QFETCH(QString, button);
    QFETCH(QString, english);
    TestWidgetCollection panel(nullptr, Qt::WindowFlags());
    const QString shown = panel.findChild<QPushButton*>(button)->text();
    QCOMPARE(shown, m_tool.mockSwedish(english));
    QVERIFY(shown != english);
}

void MockLocaleTest::dialogTexts()
{
    TestRegExp dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), mock("TestRegExp"));
    QCOMPARE(dialog.findChild<VNInfoArea*>(QStringLiteral("m_infoArea"))->text(),
             mock("We need this for the mock Swedish!"));
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("m_btnFileDialog"))->text(), mock("Choose file..."));
    auto* modes = dialog.findChild<QComboBox*>(QStringLiteral("m_modeSelection"));
    QCOMPARE(modes->itemText(1), mock("Mock swedish"));
    QCOMPARE(modes->itemText(5), mock("tr to translate in whole project"));
}

void MockLocaleTest::resultTexts()
{
    QCOMPARE(TranslationMessages::featureDisabled(), mock("This feature is disabled."));
    // The numbers are filled in after translating, so the placeholders must survive.
    const QString counts = TranslationMessages::braceCounts(3, 4);
    QVERIFY2(counts.contains(QLatin1Char('3')) && counts.contains(QLatin1Char('4')), qPrintable(counts));
    QVERIFY(counts.startsWith(QStringLiteral("ü")));
}

QTEST_MAIN(MockLocaleTest)
#include "tst_mocklocale.moc"
