// SPDX-License-Identifier: GPL-3.0-or-later
// Thousands of operations on the list and on ReferenceList; both must always agree.
#include "core/cVocabList.h"

#include "core/ReferenceList.h"

#include <QTest>

using namespace Qt::StringLiterals;

class cVocabList_Model_test : public QObject
{
    Q_OBJECT

    std::mt19937 m_random;
    TestFolder m_folder;
    QStringList m_pool;
    int m_serial = 0;

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    QString anyWord() { return m_pool[below(int(m_pool.size()))]; }

    VocabRecord anyRecord()
    {
        ++m_serial; // makes entries with the same word different
        return {anyWord(), u"def %1"_s.arg(m_serial), u"sen %1"_s.arg(m_serial)};
    }

    // Does the same with both and compares the results or the errors.
    template <class Real, class Plain>
    static void answerAlike(Real &&real, Plain &&plain, const char *what)
    {
        int realAnswer = -1;
        int plainAnswer = -1;
        const auto realError = errorNumberOf([&] { return realAnswer = int(real()); });
        const auto plainError = errorNumberOf([&] { return plainAnswer = int(plain()); });
        QVERIFY2(realError == plainError && realAnswer == plainAnswer,
                 qPrintable(
                     u"%1: %2 instead of %3, error %4 instead of %5"_s.arg(QLatin1StringView(what))
                         .arg(realAnswer)
                         .arg(plainAnswer)
                         .arg(int(realError))
                         .arg(int(plainError))));
    }

    static void areAlike(cVocabList &list, ReferenceList &plain)
    {
        QCOMPARE(list.NumWords().toInt(), plain.count);
        QCOMPARE(list.CurrentWord().toInt(), plain.current);
        for (int i = -1; i <= plain.count + 3; ++i) {
            QCOMPARE(hasSlot(list, i), plain.slots.contains(i));
            if (i != 0 && plain.slots.contains(i)) {
                const VocabRecord &record = plain.slot(i);
                QCOMPARE(entryText(list, i),
                         (QStringList{record.Word, record.Definition, record.Sentence}.join(u'|')));
            }
        }
    }

    void lookUp(cVocabList &list, ReferenceList &plain)
    {
        const QString word = anyWord();
        if (below(2) == 0) {
            answerAlike([&] { return list.SearchWord(word).toInt(); },
                        [&] { return plain.SearchWord(word); }, "SearchWord");
        } else {
            const int start = below(10) == 0 ? -below(4) : below(plain.count + 4);
            answerAlike([&] { return list.Exist(word, start); },
                        [&] { return plain.Exist(word, start); }, "Exist");
        }
    }

    void change(cVocabList &list, ReferenceList &plain)
    {
        const VocabRecord record = anyRecord();
        const auto &[word, definition, sentence] = record;
        const int kind = below(100);
        if (kind < 40) {
            list.AddVocab(word, definition, sentence);
            plain.AddVocab(record);
        } else if (kind < 65) {
            answerAlike([&] { return list.DeleteVocab(), 0; },
                        [&] { return plain.DeleteVocab(), 0; }, "DeleteVocab");
        } else if (kind < 98) {
            answerAlike(
                [&, d = definition, s = sentence, w = word] { return list.Edit(w, d, s), 0; },
                [&] { return plain.Edit(record), 0; }, "Edit");
        } else if (kind == 98) {
            list.ClearList();
            plain.ClearList();
        } else {
            open(list, plain);
        }
    }

    void open(cVocabList &list, ReferenceList &plain)
    {
        std::vector<VocabRecord> records(std::size_t(below(30)));
        QByteArray bytes = number16(qsizetype(records.size()));
        for (VocabRecord &record : records) {
            record = anyRecord();
            bytes += recordBytes(toWindows1252(record.Word), toWindows1252(record.Definition),
                                 toWindows1252(record.Sentence));
        }
        Module1::gFileName = m_folder.write(u"open.lwx"_s, bytes);
        answerAlike([&] { return list.OpenFile(); }, [] { return true; }, "OpenFile");
        plain.OpenFile(records);
    }

    void save(cVocabList &list, ReferenceList &plain)
    {
        QFile::remove(m_folder.path(u"save.lwx"_s));
        Module1::gFileName = m_folder.path(u"save.lwx"_s);
        list.SaveFile();
        if (plain.count > 0)
            QCOMPARE(m_folder.bytes(u"save.lwx"_s), plain.fileBytes());
        else
            QVERIFY(!QFile::exists(Module1::gFileName));
    }

private Q_SLOTS:
    void init()
    {
        m_random.seed(20);
        m_pool =
            u"cat|CAT|Cat|dog|DOG|été|ÉTÉ|big cat|Big Cat|straße|STRASSE|œuf|Œuf|"_s.split(u'|');
    }

    void cleanup() { Module1::gFileName.clear(); }

    void smallListsAgreeAfterEveryOfThirtyThousandOperations()
    {
        cVocabList list;
        ReferenceList plain;
        for (int step = 0; step < 30'000; ++step) {
            const int kind = below(10);
            if (kind < 4) {
                change(list, plain);
            } else if (kind < 8) {
                lookUp(list, plain);
            } else {
                const int position = below(15) == 0 ? 32767 : below(plain.count + 5) - 2;
                list.CurrentWord(position);
                plain.current = position;
            }
            if (step % 200 == 0)
                save(list, plain);
            areAlike(list, plain);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(u"at step %1"_s.arg(step)));
        }
    }

    void aLargeListAgrees()
    {
        for (int i = 0; i < 3000; ++i)
            m_pool << u"word %1"_s.arg(i);
        cVocabList list;
        ReferenceList plain;
        for (int i = 0; i < 4000; ++i) {
            const VocabRecord record = anyRecord();
            list.AddVocab(record.Word, record.Definition, record.Sentence);
            plain.AddVocab(record);
        }
        for (int step = 0; step < 3000; ++step) {
            const int position = 1 + below(plain.count);
            const VocabRecord record = anyRecord();
            switch (below(8)) {
            case 0:
                list.CurrentWord(position);
                plain.current = position;
                list.DeleteVocab();
                plain.DeleteVocab();
                break;
            case 1:
                list.CurrentWord(position);
                plain.current = position;
                list.Edit(record.Word, record.Definition, record.Sentence);
                plain.Edit(record);
                break;
            case 2:
                list.AddVocab(record.Word, record.Definition, record.Sentence);
                plain.AddVocab(record);
                break;
            default:
                lookUp(list, plain);
            }
            QCOMPARE(list.NumWords().toInt(), plain.count);
            QCOMPARE(list.CurrentWord().toInt(), plain.current);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(u"at step %1"_s.arg(step)));
        }
        areAlike(list, plain);
        save(list, plain);
    }
};

QTEST_GUILESS_MAIN(cVocabList_Model_test)
#include "cVocabList_Model_test.moc"
