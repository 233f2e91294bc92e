// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/TextFile.h"

#include "core/cVocabList.h"
#include "runtime/Windows1252.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TextFile_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachEntryIsALineOfThreeTexts()
    {
        cVocabList list;
        list.AddVocab(u"cat"_s, u"a small animal"_s, u"The cat sat."_s);
        list.AddVocab(u"dog"_s, {}, {});
        QCOMPARE(textOfList(list), "cat\ta small animal\tThe cat sat.\r\ndog\t\t\r\n"_ba);
    }

    void textsAreWrittenAsTheyAre_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("a tab") << u"two\tparts"_s << "two\tparts"_ba;
        QTest::newRow("a line break") << u"two\r\nlines"_s << "two\r\nlines"_ba;
        QTest::newRow("a line feed") << u"two\nlines"_s << "two\nlines"_ba;
        QTest::newRow("quotation marks") << u"\"so\" 'said'"_s << "\"so\" 'said'"_ba;
        QTest::newRow("outer blanks") << u"  so  "_s << "  so  "_ba;
        QTest::newRow("accents") << u"d\u00E9j\u00E0 vu"_s << "d\xE9j\xE0 vu"_ba;
        QTest::newRow("signs of the code page") << u"\u20AC\u2019\u0178"_s << "\x80\x92\x9F"_ba;
        QTest::newRow("a character that the code page lacks") << u"\u4E2D"_s << "?"_ba;
        QTest::newRow("a byte without a character") << u"\u0081"_s << "\x81"_ba;
    }

    void textsAreWrittenAsTheyAre()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        cVocabList list;
        list.AddVocab(text, text, text);
        QCOMPARE(textOfList(list), bytes + '\t' + bytes + '\t' + bytes + "\r\n");
    }

    void everyByteOfTheCodePageComesOutAsItCameIn()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all += static_cast<char>(byte);
        cVocabList list;
        list.AddVocab(fromWindows1252(all), {}, {});
        QCOMPARE(textOfList(list), all + "\t\t\r\n");
    }

    void theCurrentPositionEndsOnTheLastEntry()
    {
        cVocabList list;
        for (int i = 1; i <= 5; ++i)
            list.AddVocab(QString::number(i), {}, {});
        list.CurrentWord(2);
        static_cast<void>(textOfList(list));
        QCOMPARE(list.CurrentWord(), Integer(5));
        QCOMPARE(list.NumWords(), Integer(5));
    }

    void anEntryThatADeletionLeftBehindIsNoLine()
    {
        cVocabList list;
        list.AddVocab(u"cat"_s, {}, {});
        list.AddVocab(u"dog"_s, {}, {});
        list.DeleteVocab();
        QCOMPARE(textOfList(list), "cat\t\t\r\n"_ba);
    }

    void anEmptyListIsNoText()
    {
        cVocabList list;
        QCOMPARE(textOfList(list), QByteArray());
    }

    void aFullListHasALineForEachEntry()
    {
        cVocabList list;
        QByteArray lines;
        for (int i = 1; i <= cVocabList::MaxWords; ++i) {
            list.AddVocab(QString::number(i), u"d"_s, u"s"_s);
            lines += QByteArray::number(i) + "\td\ts\r\n";
        }
        QCOMPARE(textOfList(list), lines);
        QCOMPARE(list.CurrentWord(), Integer(cVocabList::MaxWords));
    }
};

QTEST_APPLESS_MAIN(TextFile_test)

#include "TextFile_test.moc"
