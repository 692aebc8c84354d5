#include <SVGImage.h>
#include <SVGImageConfiguration.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {
QString svg(const QString& body, const QString& prolog = QString())
{
    return prolog + QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"120\" height=\"40\">") + body +
           QStringLiteral("</svg>");
}

QString writeFile(const QTemporaryDir& dir, const QString& name, const QByteArray& content)
{
    QFile file(dir.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(content);
    return file.fileName();
}
} // namespace

class TestSVGImage : public QObject
{
    Q_OBJECT

private slots:
    void textItems_data();
    void textItems();
    void replacementRoundTrip_data();
    void replacementRoundTrip();
    void unusedReplacementsKeepTheSource();
    void defaultSizeAndRendering();
    void invalidSources_data();
    void invalidSources();
    void failedSetKeepsTheImage();
    void invalidFiles();
    void embeddedHtmlImage();
};

void TestSVGImage::textItems_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("items");
    QTest::newRow("plain") << svg("<text>Width</text><text>Height</text>") << QStringList{"Width", "Height"};
    QTest::newRow("nested tspans")
        << svg("<text>Outer <tspan font-weight=\"bold\">inner <tspan>deep</tspan> after</tspan> tail</text>")
        << QStringList{"Outer ", "inner ", "deep", " after", " tail"};
    QTest::newRow("entities") << svg("<text>A &amp; B &lt;1&gt; &#x41;</text>") << QStringList{"A & B <1> A"};
    QTest::newRow("declared entity") << svg("<text>&brand;!</text>", "<!DOCTYPE svg [ <!ENTITY brand \"Acme\"> ]>")
                                     << QStringList{"Acme!"};
    QTest::newRow("CDATA") << svg("<text><![CDATA[a < b]]> more</text>") << QStringList{"a < b more"};
    QTest::newRow("groups and defs")
        << svg("<defs><text id=\"t\">In defs</text></defs><g><g><text>Grouped</text></g></g>")
        << QStringList{"In defs", "Grouped"};
    QTest::newRow("comment splits") << svg("<text>one<!-- c -->two</text>") << QStringList{"one", "two"};
    QTest::newRow("white space and other elements")
        << svg("<title>Title</title><text>\n  <tspan>x</tspan>\n</text><desc>d</desc>") << QStringList{"x"};
    QTest::newRow("none") << svg("<rect width=\"10\" height=\"10\"/>") << QStringList();
}

void TestSVGImage::textItems()
{
    QFETCH(QString, source);
    QFETCH(QStringList, items);
    SVGImage image;
    QVERIFY2(image.setSVGSource(source), qPrintable(image.errorString()));
    QCOMPARE(image.getTextItems(), items);
    for (int index = 0; index < items.size(); ++index) {
        bool used = true;
        QCOMPARE(image.getModifiedTextItem(index, &used), items.at(index));
        QVERIFY(!used);
    }
}

void TestSVGImage::replacementRoundTrip_data()
{
    textItems_data();
}

// Every item replaced: the modified source is valid again and lists exactly the replacements,
// while the markup around the items is kept.
void TestSVGImage::replacementRoundTrip()
{
    QFETCH(QString, source);
    QFETCH(QStringList, items);
    SVGImage image;
    QVERIFY(image.setSVGSource(source));
    QStringList replacements;
    for (int index = 0; index < items.size(); ++index) {
        replacements << QStringLiteral("R%1 <&> \"]]>").arg(index);
        image.setTextItem(index, replacements.last());
        image.setTextItemUsed(index, true);
    }
    const QString modified = image.getModifiedSource();
    SVGImage reparsed;
    QVERIFY2(reparsed.setSVGSource(modified), qPrintable(modified));
    QCOMPARE(reparsed.getTextItems(), replacements);
    QCOMPARE(modified.count(QLatin1String("<tspan")), source.count(QLatin1String("<tspan")));
    QCOMPARE(modified.count(QLatin1String("font-weight=\"bold\"")),
             source.count(QLatin1String("font-weight=\"bold\"")));
}

void TestSVGImage::unusedReplacementsKeepTheSource()
{
    const QString source = svg("<text>A &amp; B</text><text>C</text>");
    SVGImage image;
    QVERIFY(image.setSVGSource(source));
    image.setTextItem(0, "changed");
    QCOMPARE(image.getModifiedSource(), source);
    image.setTextItemUsed(1, true);
    image.setTextItem(1, "x & y");
    QCOMPARE(image.getModifiedSource(), svg("<text>A &amp; B</text><text>x &amp; y</text>"));
    bool used = false;
    QCOMPARE(image.getModifiedTextItem(1, &used), QStringLiteral("x & y"));
    QVERIFY(used);
    image.setTextItemUsed(1, false);
    QCOMPARE(image.getModifiedSource(), source);
}

void TestSVGImage::defaultSizeAndRendering()
{
    SVGImage image(":/Icons/Blank/Sketches/embed_chevron_help.svg");
    QVERIFY(image.isValid());
    QCOMPARE(image.getDefaultSize(), QSize(160, 120));
    QVERIFY(image.getTextItems().size() >= 3);
    const QImage rendered = image.renderPixmap(QSize(80, 60)).toImage();
    QCOMPARE(rendered.size(), QSize(80, 60));
    QCOMPARE(qAlpha(rendered.pixel(0, 0)), 0);
    QVERIFY(qAlpha(rendered.pixel(40, 30)) > 0);
}

void TestSVGImage::invalidSources_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("empty") << QString();
    QTest::newRow("malformed") << QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\"><text>a</svg>");
    QTest::newRow("not svg") << QStringLiteral("<html><text>a</text></html>");
    QTest::newRow("undeclared entity") << svg("<text>&nope;</text>");
    QString nested;
    for (int depth = 0; depth < 5000; ++depth)
        nested += QStringLiteral("<g>");
    for (int depth = 0; depth < 5000; ++depth)
        nested += QStringLiteral("</g>");
    QTest::newRow("deeply nested") << svg(nested);
    QString bomb = QStringLiteral("<!DOCTYPE svg [ <!ENTITY a0 \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\">");
    for (int level = 1; level < 10; ++level)
        bomb += QStringLiteral("<!ENTITY a%1 \"&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;&a%2;\">")
                    .arg(level)
                    .arg(level - 1);
    bomb += QStringLiteral("]>");
    QTest::newRow("entity expansion bomb") << svg("<text>&a9;</text>", bomb);
    QTest::newRow("entity with markup") << svg("<text>a &e; b</text>",
                                               "<!DOCTYPE svg [ <!ENTITY e \"<tspan>x</tspan>\"> ]>");
    QTest::newRow("huge") << svg(QStringLiteral("<text>%1</text>").arg(QString(int(SVGImage::maximumSourceSize), 'x')));
}

void TestSVGImage::invalidSources()
{
    QFETCH(QString, source);
    SVGImage image;
    QVERIFY(!image.setSVGSource(source));
    QVERIFY(!image.isValid());
    QVERIFY(!image.errorString().isEmpty());
    QVERIFY(image.getTextItems().isEmpty());
    QVERIFY(image.renderPixmap(QSize(20, 20)).isNull());
}

void TestSVGImage::failedSetKeepsTheImage()
{
    SVGImage image;
    const QString good = svg("<text>Kept</text>");
    QVERIFY(image.setSVGSource(good));
    image.setTextItemUsed(0, true);
    QVERIFY(!image.setSVGSource("<svg"));
    QVERIFY(image.isValid());
    QCOMPARE(image.getSource(), good);
    QCOMPARE(image.getTextItems(), QStringList{"Kept"});
}

void TestSVGImage::invalidFiles()
{
    QTemporaryDir dir;
    const QString binary = writeFile(dir, "binary.svg", QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11));
    const QString truncated = writeFile(dir, "truncated.svg", svg("<text>cut").toUtf8());
    const QString good = writeFile(dir, "good.svg", svg("<text>ok</text>").toUtf8());
    SVGImage image(good);
    QVERIFY(image.isValid());
    for (const QString& file : {binary, truncated, dir.filePath("missing.svg")}) {
        QVERIFY(!image.loadSVG(file));
        QVERIFY(!image.isValid());
        QVERIFY(image.getTextItems().isEmpty());
        QCOMPARE(image.getDefaultSize(), QSize(0, 0));
    }
    QCOMPARE(image.getSource(), QString()); // the missing file has no source
    QFile huge(dir.filePath("huge.svg"));   // 50 MB: refused before it is read
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(50 * 1024 * 1024));
    huge.close();
    QVERIFY(!image.loadSVG(huge.fileName()));
    QVERIFY(image.errorString().contains("too large"));
    image.loadSVG(truncated);
    QCOMPARE(image.getSource(), svg("<text>cut")); // a malformed text file keeps its text
}

void TestSVGImage::embeddedHtmlImage()
{
    QPixmap pixmap(6, 4);
    pixmap.fill(Qt::red);
    const QString html = SVGImageConfiguration::pixmapToEmbeddedHtmlImageString(pixmap);
    QVERIFY(html.startsWith("<img src=\"data:image/png;base64,"));
    QVERIFY(html.endsWith("\" width=\"6\" height=\"4\">"));
    const int start = html.indexOf(',') + 1;
    const QByteArray png = QByteArray::fromBase64(html.mid(start, html.indexOf('"', start) - start).toLatin1());
    QCOMPARE(QImage::fromData(png, "PNG").pixelColor(5, 3), QColor(Qt::red));
    QVERIFY(SVGImageConfiguration::pixmapToEmbeddedHtmlImageString(QPixmap()).isEmpty());
}

QTEST_MAIN(TestSVGImage)
#include "tst_svgimage.moc"
