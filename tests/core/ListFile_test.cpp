// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ListFile.h"

#include "core/ListTools.h"

#include <QDataStream>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

constexpr int MaxCount = Integer::Max;

QString textOf(const VocabRecord &record)
{
    return QStringList{record.Word, record.Definition, record.Sentence}.join(u'|');
}

// Reads the layout in another way: field by field with QDataStream.
QStringList readByStream(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    qint16 count = 0;
    stream >> count;
    if (stream.status() != QDataStream::Ok)
        count = 0;
    QStringList records;
    for (int i = 0; i < count; ++i) {
        QStringList texts;
        for (int field = 0; field < 3; ++field) {
            quint16 length = 0;
            stream >> length;
            if (stream.status() != QDataStream::Ok)
                length = 0;
            QByteArray text(length, '\0');
            text.truncate(std::max(0, stream.readRawData(text.data(), length)));
            texts << fromWindows1252(text);
        }
        records << texts.join(u'|');
    }
    return records;
}

QStringList readByDecode(const QByteArray &bytes)
{
    QStringList records;
    const ListFile::Content content = ListFile::decode(bytes, MaxCount);
    for (const VocabRecord &record : content.records)
        records << textOf(record);
    return records;
}

int countOf(const QByteArray &bytes)
{
    return bytes.size() < 2 ? 0 : qFromLittleEndian<qint16>(bytes.constData());
}

QByteArray severalEntries()
{
    return number16(4) + recordBytes("cat", "a small animal", "The cat sat.") +
           recordBytes("", "", "") + recordBytes("\xE9t\xE9", "line\r\nbreak", "") +
           recordBytes("dog", "x", "y") + recordBytes("behind", "the", "count");
}

} // namespace

class ListFile_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodeWritesTheCountGivenAndEveryRecord()
    {
        const std::vector<VocabRecord> records{{u"cat"_s, u"a small animal"_s, u"The cat sat."_s},
                                               {u"été"_s, QString(), u"a\r\nb"_s}};
        const QByteArray first = recordBytes("cat", "a small animal", "The cat sat.");
        const QByteArray second = recordBytes("\xE9t\xE9", "", "a\r\nb");
        QCOMPARE(ListFile::encode(2, records), number16(2) + first + second);
        QCOMPARE(ListFile::encode(1, records), number16(1) + first + second);
        QCOMPARE(ListFile::encode(0, {}), number16(0));
        QCOMPARE(ListFile::encode(32000, {}), QByteArray::fromHex("007D"));
    }

    void theExampleHasTheseBytes()
    {
        const std::vector<VocabRecord> cat{{u"cat"_s, u"a small animal"_s, u"The cat sat."_s}};
        const QByteArray bytes = QByteArray::fromHex("0100"
                                                     "0300 636174"
                                                     "0E00 6120736D616C6C20616E696D616C"
                                                     "0C00 54686520636174207361742E");
        QCOMPARE(ListFile::encode(1, cat), bytes);
        QCOMPARE(readByDecode(bytes), QStringList{u"cat|a small animal|The cat sat."_s});
    }

    void lengthsCountBytesUpTo65535_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::newRow("256") << QString(256, u'é') << 256;
        QTest::newRow("32,768") << QString(32'768, u'€') << 32'768;
        QTest::newRow("65,535") << QString(65'535, u'x') << 65'535;
        QTest::newRow("65,535 pairs") << u"😀"_s.repeated(65'535) << 65'535;
        QTest::newRow("65,536") << QString(65'536, u'x') << -1;
        QTest::newRow("65,536 pairs") << u"😀"_s.repeated(65'536) << -1;
        QTest::newRow("two times over") << QString(131'073, u'x') << -1;
    }

    void lengthsCountBytesUpTo65535()
    {
        QFETCH(QString, text);
        QFETCH(int, length);
        for (int field = 0; field < 3; ++field) {
            std::vector<VocabRecord> records(2);
            QString *const fields[] = {&records[1].Word, &records[1].Definition,
                                       &records[1].Sentence};
            *fields[field] = text;
            if (length < 0) {
                QCOMPARE(reportOf([&] { return ListFile::encode(2, records); }),
                         u"Run-time error '6':\n\nOverflow\n"
                         "A text of word 2 is longer than 65535 characters"_s);
                const QByteArray cut = ListFile::encode(2, records, ListFile::LongTexts::AreCut);
                *fields[field] = fromWindows1252(toWindows1252(text).first(65'535));
                QCOMPARE(cut, ListFile::encode(2, records));
                continue;
            }
            const QByteArray bytes = ListFile::encode(2, records);
            QCOMPARE(bytes.size(), 2 + 6 + 6 + length);
            QCOMPARE(qFromLittleEndian<quint16>(bytes.constData() + 8 + 2 * field), length);
            QString back = textOf(ListFile::decode(bytes, MaxCount).records[1]);
            QCOMPARE(back.remove(u'|'), fromWindows1252(toWindows1252(text)));
        }
    }

    void decodeReadsExactlyTheCountedRecords()
    {
        QCOMPARE(readByDecode(severalEntries()),
                 (QStringList{u"cat|a small animal|The cat sat."_s, u"||"_s,
                              u"été|line\r\nbreak|"_s, u"dog|x|y"_s}));
    }

    void aFileCutAnywhereKeepsTheBytesThatAreThere()
    {
        const QByteArray whole = severalEntries();
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            const QByteArray cut = whole.first(size);
            QCOMPARE(readByDecode(cut), readByStream(cut));
        }
        // Three places as examples.
        QCOMPARE(readByDecode(whole.first(1)), QStringList());
        QCOMPARE(readByDecode(whole.first(6)), (QStringList{u"ca||"_s, u"||"_s, u"||"_s, u"||"_s}));
        QCOMPARE(readByDecode(whole.first(8)).first(), u"cat||"_s);
    }

    void recordsAreWholeOnceTheLastOneIsComplete()
    {
        const QByteArray whole = severalEntries();
        const qsizetype end = whole.size() - recordBytes("behind", "the", "count").size();
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            const QByteArray start = whole.first(size);
            QCOMPARE(ListFile::RecordsEnd(MaxCount).isIn(start), size >= end);
            // An empty file is a list without entries.
            QCOMPARE(ListFile::decode(start, MaxCount).isWhole, size >= end || size == 0);
        }
    }

    void theEndOfTheRecordsIsFoundPieceByPiece()
    {
        const QByteArray whole = severalEntries();
        const qsizetype end = whole.size() - recordBytes("behind", "the", "count").size();
        for (qsizetype step = 1; step <= whole.size(); ++step) {
            ListFile::RecordsEnd records(MaxCount);
            for (qsizetype size = 0; size <= whole.size(); size += step)
                QCOMPARE(records.isIn(whole.first(size)), size >= end);
        }
    }

    void bytesAfterTheRecordsAreNotKept()
    {
        const QByteArray records = number16(2) + addedRecord("cat") + addedRecord("dog");
        const ListFile::Content content =
            ListFile::decode(records + QByteArray(1'000'000, 't'), MaxCount);
        QCOMPARE(content.characters.size(), records.size());
        QCOMPARE(textOf(content.records[1]), u"dog|dog def|dog sen"_s);
    }

    void countsOutsideZeroToTheMaximumAreRefused_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("none") << 0 << 3 << true;
        QTest::newRow("maximum") << 3 << 3 << true;
        QTest::newRow("one more") << 4 << 3 << false;
        QTest::newRow("minus one") << -1 << 3 << false;
        QTest::newRow("lowest") << -32768 << MaxCount << false;
        QTest::newRow("largest") << 32767 << MaxCount << true;
        QTest::newRow("above another maximum") << 32767 << 32766 << false;
    }

    void countsOutsideZeroToTheMaximumAreRefused()
    {
        QFETCH(int, count);
        QFETCH(int, maximum);
        QFETCH(bool, accepted);
        const QByteArray bytes = number16(count);
        // The count alone is refused, without any records.
        QCOMPARE(ListFile::RecordsEnd(maximum).isIn(bytes), !accepted || count == 0);
        std::size_t records = 0;
        const auto decode = [&] {
            return records = ListFile::decode(bytes, maximum).records.size();
        };
        const QString report = reportOf(decode);
        if (accepted) {
            QCOMPARE(report, QString());
            QCOMPARE(records, std::size_t(count));
        } else {
            QVERIFY(report.startsWith(u"Run-time error '9':\n\nSubscript out of range\n"_s));
            QVERIFY(report.contains(QString::number(count)));
            QVERIFY(report.contains(QString::number(maximum)));
        }
    }

    void randomBytesAreReadAsTheLayoutSays()
    {
        std::mt19937 random(7);
        int decoded = 0;
        for (unsigned i = 0; i < 2000; ++i) {
            QByteArray bytes = randomBytes(qsizetype(random() % 2000), i);
            if (i % 50 != 0 && bytes.size() >= 2)
                bytes.replace(0, 2, number16(qsizetype(random() % 100)));
            if (countOf(bytes) < 0 || countOf(bytes) > MaxCount) {
                QCOMPARE(errorNumberOf([&] { return ListFile::decode(bytes, MaxCount); }),
                         RunTimeError::SubscriptOutOfRange);
                continue;
            }
            QCOMPARE(readByDecode(bytes), readByStream(bytes));
            ++decoded;
        }
        QVERIFY(decoded > 1900);
    }

    void randomDamageIsReadAsTheLayoutSays()
    {
        std::mt19937 random(11);
        for (int i = 0; i < 2000; ++i) {
            QByteArray bytes = severalEntries();
            for (auto hits = 1 + random() % 4; hits > 0; --hits) {
                const auto at = qsizetype(random() % unsigned(bytes.size()));
                switch (random() % 3) {
                case 0:
                    bytes[at] = static_cast<char>(random() & 0xFF);
                    break;
                case 1:
                    bytes.insert(at, static_cast<char>(random() & 0xFF));
                    break;
                default:
                    bytes.remove(at, 1);
                }
            }
            if (countOf(bytes) < 0 || countOf(bytes) > MaxCount)
                QCOMPARE(errorNumberOf([&] { return ListFile::decode(bytes, MaxCount); }),
                         RunTimeError::SubscriptOutOfRange);
            else
                QCOMPARE(readByDecode(bytes), readByStream(bytes));
        }
    }
};

QTEST_GUILESS_MAIN(ListFile_test)
#include "ListFile_test.moc"
