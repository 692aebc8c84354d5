#include "GatheredBytes.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QTest>

/*
  Output gathered from referenced, copied and shared pieces must read, compare and write exactly
  as the same bytes in one buffer would, whatever range is cut out of it.
*/
class TestGatheredBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void behavesAsOneBuffer_data();
    void behavesAsOneBuffer();
    void emptyAndSharedContent();
};

void TestGatheredBytes::behavesAsOneBuffer_data()
{
    QTest::addColumn<int>("pieces");
    QTest::addColumn<int>("largestPiece");
    QTest::newRow("a few small pieces") << 5 << 10;
    QTest::newRow("copies over several blocks") << 400 << 3000;
    QTest::newRow("more pieces than one system call writes") << 5000 << 8;
    QTest::newRow("pieces larger than a block") << 4 << 3 * 1024 * 1024;
}

void TestGatheredBytes::behavesAsOneBuffer()
{
    QFETCH(int, pieces);
    QFETCH(int, largestPiece);
    QRandomGenerator random{quint32(pieces)};
    QByteArray referenced(largestPiece * 2, Qt::Uninitialized);
    for (char& byte : referenced)
        byte = char(random.bounded(256));
    GatheredBytes gathered;
    QByteArray expected;
    for (int piece = 0; piece < pieces; ++piece) {
        const int size = 1 + random.bounded(largestPiece);
        const int from = random.bounded(referenced.size() - size);
        const char* data = referenced.constData() + from;
        switch (random.bounded(3)) {
        case 0:
            gathered.appendReferenced(data, size);
            break;
        case 1:
            gathered.appendCopy(data, size);
            break;
        default:
            gathered.appendShared(QByteArray(data, size));
            break;
        }
        expected.append(data, size);
    }
    QCOMPARE(gathered.size(), qint64(expected.size()));
    QCOMPARE(gathered.toByteArray(), expected);
    QVERIFY(gathered.equals(expected));

    QTemporaryFile file;
    QVERIFY(file.open());
    for (int round = 0; round < 8; ++round) {
        const int from = random.bounded(expected.size());
        const int to = from + random.bounded(expected.size() - from + 1);
        const int offset = random.bounded(100);
        QVERIFY(gathered.matchesAt(from, expected.constData() + from, to - from));
        QByteArray changed = expected.mid(from, to - from);
        if (!changed.isEmpty()) {
            changed[changed.size() - 1] = char(changed.at(changed.size() - 1) ^ 1);
            QVERIFY(!gathered.matchesAt(from, changed.constData(), changed.size()));
        }
        QVERIFY(file.resize(0));
        QString reason;
        QVERIFY2(gathered.writeTo(file, offset, from, to, &reason), qPrintable(reason));
        QVERIFY(file.seek(0));
        QCOMPARE(file.readAll(), QByteArray(offset, '\0') + expected.mid(from, to - from));
    }
}

void TestGatheredBytes::emptyAndSharedContent()
{
    GatheredBytes empty;
    empty.appendCopy("x", 0);
    empty.appendReferenced("x", 0);
    QCOMPARE(empty.size(), qint64(0));
    QVERIFY(empty.equals(QByteArray()));
    QVERIFY(!empty.equals(QByteArrayLiteral("x")));

    const QByteArray content = QByteArrayLiteral("<source>a</source>");
    const GatheredBytes shared(content);
    QCOMPARE(shared.toByteArray(), content);
    QVERIFY(!shared.matchesAt(10, "urce>a</source>", 15)); // beyond the end
}

QTEST_GUILESS_MAIN(TestGatheredBytes)

#include "tst_gatheredbytes.moc"
