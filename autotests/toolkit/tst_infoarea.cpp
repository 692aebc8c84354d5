#include <VNInfoArea.h>
#include <VNStyleSheet.h>

#include <QApplication>
#include <QFrame>
#include <QImage>
#include <QLabel>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace {
const QString longText = QStringLiteral("Lorem ipsum dolor sit amet, consetetur sadipscing elitr, sed diam nonumy "
                                        "eirmod tempor invidunt ut labore et dolore magna aliquyam erat.");

QToolButton* infoButton(VNInfoArea& area)
{
    return area.findChild<QToolButton*>(QStringLiteral("infoButton"));
}

// How many pixels of the left band, where the icon sits, differ from the area's fill colour.
int iconPixels(const QImage& image)
{
    const QRgb fill = image.pixel(image.width() / 2, 3);
    int count = 0;
    for (int y = 2; y < image.height() - 2; ++y) {
        for (int x = 4; x < 36; ++x)
            count += image.pixel(x, y) != fill ? 1 : 0;
    }
    return count;
}
} // namespace

class InfoAreaTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void setIconType_data();
    void setIconType();
    void refusesUnknownIconType();
    void infoTextProperty();
    void looksPerIconType();
    void elision_data();
    void elision();
    void infoButtonShowsFullText();
    void verticalArrangementWraps();
};

void InfoAreaTest::initTestCase()
{
    VNStyleSheet::applyTo(qApp);
}

void InfoAreaTest::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

void InfoAreaTest::setIconType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    const QMetaEnum types = QMetaEnum::fromType<VNInfoArea::IconType>();
    for (int value = 1; value < 6; ++value)
        QTest::newRow(types.key(value)) << value << QString::fromLatin1(types.key(value));
}

void InfoAreaTest::setIconType()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    VNInfoArea area;
    QSignalSpy changed(&area, &VNInfoArea::iconTypeChanged);
    area.setIconType(type);
    QCOMPARE(int(area.iconType()), type);
    QCOMPARE(area.property("iconTypeName").toString(), name);
    QCOMPARE(changed.count(), 1);
    area.setIconType(VNInfoArea::IconType(type));
    QCOMPARE(changed.count(), 1);
    area.setIconType(VNInfoArea::NoIcon);
    QCOMPARE(changed.count(), 2);
    QVERIFY(VNInfoArea::iconResource(VNInfoArea::IconType(type)).startsWith(QLatin1String(":/")));
}

void InfoAreaTest::refusesUnknownIconType()
{
    VNInfoArea area;
    area.setIconType(VNInfoArea::Warning);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("6 is no icon type")));
    area.setIconType(6);
    QCOMPARE(area.iconType(), VNInfoArea::Warning);
}

void InfoAreaTest::infoTextProperty()
{
    VNInfoArea area;
    QSignalSpy changed(&area, &VNInfoArea::textChanged);
    area.setProperty("infoText", QStringLiteral("We need this"));
    QCOMPARE(area.text(), QStringLiteral("We need this"));
    QCOMPARE(changed.count(), 1);
    area.setText(QStringLiteral("We need this"));
    QCOMPARE(changed.count(), 1);
}

// Every icon type has its own fill and its own icon; without an icon the band stays empty.
void InfoAreaTest::looksPerIconType()
{
    VNInfoArea area; // no text: the left band shows the icon alone
    area.resize(300, 40);
    area.show();
    QSet<QRgb> fills;
    QList<QImage> icons;
    for (int type = 0; type < 6; ++type) {
        area.setIconType(type);
        const QImage image = area.grab().toImage();
        fills << image.pixel(image.width() / 2, 3);
        const int pixels = iconPixels(image);
        if (type == VNInfoArea::NoIcon)
            QCOMPARE(pixels, 0);
        else
            QVERIFY2(pixels > 100, qPrintable(QString::number(type)));
        icons << image.copy(4, 2, 32, image.height() - 4);
    }
    QCOMPARE(fills.size(), 6);
    for (int a = 1; a < icons.size(); ++a) {
        for (int b = a + 1; b < icons.size(); ++b)
            QVERIFY(icons.at(a) != icons.at(b));
    }
}

void InfoAreaTest::elision_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("buttonWanted");
    QTest::addColumn<bool>("elided");
    QTest::addColumn<bool>("buttonShown");
    QTest::newRow("fits") << 1400 << false << false << false;
    QTest::newRow("fits, button wanted") << 1400 << true << false << true;
    QTest::newRow("cut") << 250 << false << true << true;
    QTest::newRow("cut, button wanted") << 250 << true << true << true;
}

void InfoAreaTest::elision()
{
    QFETCH(int, width);
    QFETCH(bool, buttonWanted);
    QFETCH(bool, elided);
    QFETCH(bool, buttonShown);
    VNInfoArea area;
    area.setIconType(VNInfoArea::Info);
    area.setText(longText);
    area.setInfoButtonVisible(buttonWanted);
    area.resize(width, 40);
    area.show();
    QCOMPARE(area.isTextElided(), elided);
    QCOMPARE(infoButton(area)->isVisible(), buttonShown);
    const QStringList lines = area.displayedLines();
    QCOMPARE(lines.size(), 1);
    if (elided) {
        QVERIFY(lines.first().endsWith(QChar(0x2026)));
        QVERIFY(longText.startsWith(lines.first().chopped(1)));
        QVERIFY(area.fontMetrics().horizontalAdvance(lines.first()) < width);
        // The button sits inside the area, right of the text.
        QVERIFY(area.rect().contains(infoButton(area)->geometry()));
    } else {
        QCOMPARE(lines.first(), longText);
    }
}

void InfoAreaTest::infoButtonShowsFullText()
{
    VNInfoArea area;
    area.setText(longText);
    area.setInfoButtonText(QStringLiteral("More about it."));
    area.resize(250, 40);
    area.show();
    QVERIFY(infoButton(area)->isVisible());
    infoButton(area)->click();
    auto* popup = area.findChild<QFrame*>(QStringLiteral("infoPopup"));
    QVERIFY(popup);
    QVERIFY(popup->isVisible());
    const QString shown = popup->findChild<QLabel*>(QStringLiteral("infoPopupText"))->text();
    QCOMPARE(shown, longText + QStringLiteral("\n\nMore about it."));

    // Once the whole text fits, the button shows only the detail.
    popup->close();
    area.resize(1400, 40);
    area.setInfoButtonVisible(true);
    infoButton(area)->click();
    QCOMPARE(popup->findChild<QLabel*>(QStringLiteral("infoPopupText"))->text(), QStringLiteral("More about it."));
    popup->close();
}

void InfoAreaTest::verticalArrangementWraps()
{
    VNInfoArea area;
    area.setIconType(VNInfoArea::Warning);
    // Too long for three lines at the default font of either Qt version.
    area.setText(longText + QLatin1Char(' ') + longText);
    area.resize(250, 40);
    area.show();
    const QString oneLine = area.displayedLines().first();
    area.setVerticalArranged(true);
    QVERIFY(area.sizeHint().height() > 3 * area.fontMetrics().height());
    area.resize(250, area.sizeHint().height());
    const QStringList lines = area.displayedLines();
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.join(QLatin1Char(' ')).size() > oneLine.size());
    QVERIFY(area.isTextElided());
    // Tall enough for the whole text: no cut, no button.
    area.resize(250, 400);
    QVERIFY(!area.isTextElided());
    QCOMPARE(lines.mid(0, 2), area.displayedLines().mid(0, 2));
    QVERIFY(!infoButton(area)->isVisible());
}

QTEST_MAIN(InfoAreaTest)
#include "tst_infoarea.moc"
