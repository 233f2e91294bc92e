// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Windows1252.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;

namespace {

// The characters of the bytes 80 to 9F. Five bytes have none and are control characters. Each other
// byte is the code point of its character.
constexpr std::array<char16_t, 32> Middle{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t characterOf(int byte)
{
    return byte < 0x80 || byte > 0x9F ? char16_t(byte) : Middle[std::size_t(byte - 0x80)];
}

} // namespace

class Windows1252_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyByteHasItsCharacter()
    {
        for (int byte = 0; byte < 256; ++byte) {
            const QByteArray bytes(1, char(byte));
            const QString text = fromWindows1252(bytes);
            QCOMPARE(text.size(), 1);
            QCOMPARE(int(text[0].unicode()), int(characterOf(byte)));
            QCOMPARE(toWindows1252(text), bytes);
        }
    }

    void allBytesInOneTextRoundTrip()
    {
        QByteArray bytes;
        for (int byte = 0; byte < 256; ++byte)
            bytes.append(char(byte));
        QCOMPARE(fromWindows1252(bytes).size(), 256);
        QCOMPARE(toWindows1252(fromWindows1252(bytes)), bytes);
    }

    void everyCharacterThatTheCodePageLacksIsAQuestionMark()
    {
        std::array<QByteArray, 65536> expected;
        expected.fill("?"_ba);
        for (int byte = 0; byte < 256; ++byte)
            expected[characterOf(byte)] = QByteArray(1, char(byte));
        for (int unit = 0; unit < 65536; ++unit)
            QCOMPARE(toWindows1252(QString(QChar(char16_t(unit)))), expected[std::size_t(unit)]);
    }

    void textsAreWritten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QString() << QByteArray();
        QTest::newRow("euro sign") << u"5 €"_s << "5 \x80"_ba;
        QTest::newRow("accents") << u"à la carte, señor Œ"_s << "\xE0 la carte, se\xF1or \x8C"_ba;
        QTest::newRow("line break and tab") << u"a\r\nb\tc"_s << "a\r\nb\tc"_ba;
        QTest::newRow("zero character") << QString::fromUtf16(u"a\0b", 3) << QByteArray("a\0b", 3);
        QTest::newRow("Greek") << u"αβγ"_s << "???"_ba;
        QTest::newRow("look-alike is not guessed") << u"Ａ∞"_s << "??"_ba;
        QTest::newRow("accent apart") << u"e\u0301"_s << "e?"_ba;
        QTest::newRow("surrogate pair") << u"a😀b"_s << "a?b"_ba;
        QTest::newRow("two surrogate pairs") << u"😀😀"_s << "??"_ba;
        const char16_t high = 0xD83D;
        const char16_t low = 0xDE00;
        const auto units = [](std::initializer_list<char16_t> list) {
            return QString::fromUtf16(list.begin(), qsizetype(list.size()));
        };
        QTest::newRow("lone high") << units({u'a', high, u'b'}) << "a?b"_ba;
        QTest::newRow("lone low") << units({u'a', low, u'b'}) << "a?b"_ba;
        QTest::newRow("high at the end") << units({u'a', high}) << "a?"_ba;
        QTest::newRow("high before a pair") << units({high, high, low, u'b'}) << "??b"_ba;
        QTest::newRow("wrong way round") << units({low, high, u'b'}) << "??b"_ba;
    }

    void textsAreWritten()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QCOMPARE(toWindows1252(text), bytes);
    }

    void charactersThatAreLostAreNamed_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("most");
        QTest::addColumn<QStringList>("lost");
        QTest::newRow("none") << u"5 €, señor Œ?\r\n\t"_s << 9 << QStringList();
        QTest::newRow("each once") << u"łódź łąka"_s << 9 << QStringList{u"ł"_s, u"ź"_s, u"ą"_s};
        QTest::newRow("no more than asked for")
            << u"łódź łąka"_s << 2 << QStringList{u"ł"_s, u"ź"_s};
        QTest::newRow("surrogate pair") << u"a😀b漢"_s << 9 << QStringList{u"😀"_s, u"漢"_s};
        QTest::newRow("lone surrogate")
            << QString(QChar(0xD83D)) << 9 << QStringList{QString(QChar(0xD83D))};
    }

    void charactersThatAreLostAreNamed()
    {
        QFETCH(QString, text);
        QFETCH(int, most);
        QTEST(notInWindows1252(text, most), "lost");
    }
};

QTEST_GUILESS_MAIN(Windows1252_test)
#include "Windows1252_test.moc"
