// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "runtime/RunTimeError.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Module1;
using namespace Qt::StringLiterals;

class cVocabList_Unsaved_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_folder.isValid());
        gFileName = m_folder.filePath(u"list.lwx"_s);
        m_list = cVocabList();
        m_list.AddVocab(u"cat"_s, u"an animal"_s, u"The cat sat."_s);
        m_list.SaveFile();
        m_calls = 0;
        m_list.setChangeHook([this](cVocabList::Change change) {
            ++m_calls;
            m_lastChange = change;
            m_changedThen = gChanged;
        });
    }

    void everyChangeOfAnEntryIsTold()
    {
        m_list.AddVocab(u"dog"_s, {}, {});
        QCOMPARE(m_calls, 1);
        m_list.Edit(u"hen"_s, {}, {});
        QCOMPARE(m_calls, 2);
        m_list.DeleteVocab();
        QCOMPARE(m_calls, 3);
        QVERIFY(m_lastChange == cVocabList::Change::OfEntries);
    }

    void aSaveIsTold()
    {
        m_list.SaveFile();
        QVERIFY(m_lastChange == cVocabList::Change::Saved);
        QCOMPARE(m_calls, 1);
    }

    void theSaveOfAnEmptyListIsTold()
    {
        m_list.DeleteVocab();
        m_list.SaveFile();
        QVERIFY(m_lastChange == cVocabList::Change::Saved);
        QCOMPARE(m_calls, 2);
    }

    void replacingTheListIsTold_data()
    {
        QTest::addColumn<bool>("changed");
        QTest::newRow("after a change") << true;
        QTest::newRow("after none") << false;
    }

    void replacingTheListIsTold()
    {
        QFETCH(bool, changed);
        gChanged = changed;
        QVERIFY(m_list.OpenFile());
        QVERIFY(m_lastChange == cVocabList::Change::Replaced);
        QCOMPARE(m_changedThen, changed);
        QVERIFY(!gChanged);
        m_list.AddVocab(u"dog"_s, {}, {});
        m_list.ClearList();
        QVERIFY(m_lastChange == cVocabList::Change::Replaced);
        QCOMPARE(m_calls, 3);
    }

    void failuresAreNotTold()
    {
        gFileName = m_folder.filePath(u"nowhere/list.lwx"_s);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, m_list.SaveFile());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, static_cast<void>(m_list.OpenFile()));
        gFileName.clear();
        QVERIFY(!m_list.OpenFile());
        QCOMPARE(m_calls, 0);
    }

    void anotherListsSaveIsNotTold()
    {
        cVocabList other;
        QVERIFY(other.OpenFile());
        other.SaveFile();
        QCOMPARE(m_calls, 0);
    }

    void readingAndMovingIsNoChange()
    {
        QCOMPARE(m_list.SearchWord(u"cat"_s), 1);
        QVERIFY(m_list.Exist(u"cat"_s, 1));
        m_list.CurrentWord(1);
        QCOMPARE(m_list.Word(), u"cat"_s);
        QCOMPARE(m_calls, 0);
    }

    void theFileBytesAreThoseOfTheEntriesAlone()
    {
        m_list.AddVocab(u"dog"_s, {}, {});
        m_list.DeleteVocab(); // its slot stays
        const QByteArray bytes = m_list.fileBytes();
        gFileName = m_folder.filePath(u"copy.lwx"_s);
        writeFile(gFileName, bytes);
        cVocabList read;
        QVERIFY(read.OpenFile());
        QCOMPARE(read.NumWords(), 1);
        QCOMPARE(read.Sentence(), u"The cat sat."_s);
        QCOMPARE(bytes.size(), 2 + (2 + 3) + (2 + 9) + (2 + 12));
        m_list.ClearList();
        QCOMPARE(m_list.fileBytes(), QByteArray(2, '\0'));
    }

private:
    QTemporaryDir m_folder;
    cVocabList m_list;
    int m_calls = 0;
    cVocabList::Change m_lastChange{};
    bool m_changedThen = false; // gChanged at the last call
};

QTEST_GUILESS_MAIN(cVocabList_Unsaved_test)
#include "cVocabList_Unsaved_test.moc"
