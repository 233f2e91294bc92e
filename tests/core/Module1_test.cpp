// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"

#include "core/cVocabList.h"

#include <QTest>

using namespace Qt::StringLiterals;

class Module1_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListIsOneObjectForTheWholeRun()
    {
        cVocabList &list = Module1::gVocabList();
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 0);
        list.AddVocab(u"cat"_s, u"d"_s, u"s"_s);
        QCOMPARE(&Module1::gVocabList(), &list);
        QCOMPARE(Module1::gVocabList().Word(), u"cat"_s);
        cVocabList other;
        QCOMPARE(other.NumWords().toInt(), 0);
    }

    void theRunStartsWithNothingOpenAndNothingChanged()
    {
        QVERIFY(Module1::gFileName.isEmpty());
        QVERIFY(Module1::gFileTitle.isEmpty());
        QVERIFY(Module1::gOpenedFile.isEmpty());
        QVERIFY(!Module1::gChanged && !Module1::gSaved);
        QVERIFY(!Module1::gNewWord && !Module1::gWordSelected);
        QCOMPARE(Module1::gRowItem.size(), std::size_t(24));
        QCOMPARE(Module1::gTop10.size(), std::size_t(10));
        for (const Top10Entry &entry : Module1::gTop10) {
            QVERIFY(entry.PlayerName.isEmpty());
            QCOMPARE(entry.Points.toInt(), 0);
        }
    }
};

QTEST_GUILESS_MAIN(Module1_test)
#include "Module1_test.moc"
