// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/ByteReader.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ByteReader_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreLittleEndian()
    {
        const QByteArray bytes = QByteArray::fromHex("0180 FFFF FFFF 0000000000100540");
        ByteReader reader(bytes);
        QCOMPARE(reader.number<qint16>(), qint16(-32767));
        QCOMPARE(reader.number<qint16>(), qint16(-1));
        QCOMPARE(reader.number<quint16>(), quint16(65535));
        QVERIFY(!reader.atEnd());
        QCOMPARE(reader.number<double>(), 2.6328125);
        QVERIFY(reader.atEnd());
    }

    void readsNumbersAtOddAddresses()
    {
        const QByteArray bytes = QByteArray::fromHex("0100 61 000000000000F03F 0200");
        ByteReader reader(bytes);
        QCOMPARE(reader.text(), u"a"_s);
        QCOMPARE(reader.number<double>(), 1.0);
        QCOMPARE(reader.number<quint16>(), quint16(2));
    }

    void aNumberThatIsCutOffIsZeroAndTakesTheRest_data()
    {
        QTest::addColumn<int>("size");
        for (int size = 0; size < 8; ++size)
            QTest::addRow("%d bytes", size) << size;
    }

    void aNumberThatIsCutOffIsZeroAndTakesTheRest()
    {
        QFETCH(int, size);
        const QByteArray bytes(size, '\x01');
        ByteReader reader(bytes);
        QCOMPARE(reader.number<double>(), 0.0);
        QVERIFY(reader.atEnd());
        QCOMPARE(reader.number<qint16>(), qint16(0));
    }

    void textsAreRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("atEnd");
        QTest::newRow("whole") << QByteArray::fromHex("0300636174") << u"cat"_s << true;
        QTest::newRow("more behind") << QByteArray::fromHex("020063617400") << u"ca"_s << false;
        QTest::newRow("empty") << QByteArray::fromHex("000061") << QString() << false;
        QTest::newRow("code page") << QByteArray::fromHex("010080") << u"€"_s << true;
        QTest::newRow("text cut off") << QByteArray::fromHex("0500636174") << u"cat"_s << true;
        QTest::newRow("longest length, three bytes")
            << QByteArray::fromHex("FFFF636174") << u"cat"_s << true;
        QTest::newRow("length without text") << QByteArray::fromHex("0500") << QString() << true;
        QTest::newRow("length cut off") << QByteArray::fromHex("05") << QString() << true;
        QTest::newRow("nothing") << QByteArray() << QString() << true;
    }

    void textsAreRead()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QFETCH(bool, atEnd);
        ByteReader reader(bytes);
        QCOMPARE(reader.text(), text);
        QCOMPARE(reader.atEnd(), atEnd);
    }

    void aLengthAbove32767IsNotNegative()
    {
        const QByteArray bytes = QByteArray::fromHex("0080") + QByteArray(32769, 'x');
        ByteReader reader(bytes);
        QCOMPARE(reader.text().size(), 32768);
        QVERIFY(!reader.atEnd());
    }

    void allIsEmptyBeyondTheEnd()
    {
        ByteReader reader{QByteArrayView()};
        QVERIFY(reader.atEnd());
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(reader.number<qint16>(), qint16(0));
            QCOMPARE(reader.text(), QString());
        }
    }
};

QTEST_GUILESS_MAIN(ByteReader_test)
#include "ByteReader_test.moc"
