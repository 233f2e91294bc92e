// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TypedWord.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TypedWord_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWordIsComparedCharacterForCharacter_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("word");
        QTest::addColumn<bool>("right");
        QTest::newRow("same") << u"cat"_s << u"cat"_s << true;
        QTest::newRow("letter case") << u"Cat"_s << u"cat"_s << false;
        QTest::newRow("part of it") << u"ca"_s << u"cat"_s << false;
        QTest::newRow("blanks round the answer") << u"  cat "_s << u"cat"_s << true;
        QTest::newRow("blanks round the word") << u"cat"_s << u" cat  "_s << true;
        QTest::newRow("blanks inside") << u"ice  cream"_s << u"ice cream"_s << false;
        QTest::newRow("blanks only") << u"   "_s << u"cat"_s << false;
        QTest::newRow("empty word") << u""_s << u""_s << true;
        QTest::newRow("accents") << u"ete"_s << u"\u00E9t\u00E9"_s << false;
        QTest::newRow("tab inside") << u"ice cream"_s << u"ice\tcream"_s << true;
        QTest::newRow("line break behind") << u"cat"_s << u"cat\r\n"_s << true;
        QTest::newRow("line break inside") << u"ice cream"_s << u"ice\r\ncream"_s << true;
        QTest::newRow("line feed inside") << u"ice cream"_s << u"ice\ncream"_s << true;
        QTest::newRow("line separator inside") << u"ice cream"_s << u"ice\u2028cream"_s << true;
        QTest::newRow("paragraph separator inside")
            << u"ice cream"_s << u"ice\u2029cream"_s << true;
        QTest::newRow("hard blank behind") << u"cat"_s << u"cat\u00A0"_s << true;
        QTest::newRow("hard blank inside") << u"ice cream"_s << u"ice\u00A0cream"_s << true;
        QTest::newRow("hard blank typed") << u"cat\u00A0"_s << u"cat"_s << false;
        QTest::newRow("pasted with its tab") << u"ice\tcream"_s << u"ice\tcream"_s << true;
        // When the word is pasted, the box replaces the line break by a blank and keeps the tab.
        QTest::newRow("pasted with its tab and line break")
            << u"ice\tcream cone"_s << u"ice\tcream\ncone"_s << true;
    }

    void theWordIsComparedCharacterForCharacter()
    {
        QFETCH(QString, typed);
        QFETCH(QString, word);
        QTEST(isWord(typed, word), "right");
        QTEST(isWordTypedAgain(typed, word), "right");
    }

    void whatNoKeyGivesCanBeTypedAgainAsABlank_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("word");
        const QString softHyphen = u"co\u00ADoperate"_s;
        const QString invisible = u"\uFEFFice\u200Bcream"_s;
        QTest::newRow("soft hyphen") << u"co operate"_s << softHyphen;
        QTest::newRow("soft hyphen left out") << u"cooperate"_s << softHyphen;
        QTest::newRow("invisible characters") << u"ice cream"_s << invisible;
        QTest::newRow("invisible characters left out") << u"icecream"_s << invisible;
        QTest::newRow("thin blank") << u"ice cream"_s << u"ice\u2009cream"_s;
        QTest::newRow("accents") << u"d j  vu"_s << u"déjà vu"_s;
        QTest::newRow("accents at the ends") << u"t"_s << u"été"_s;
        QTest::newRow("another script") << u"to  "_s << u"to 漢字"_s;
        QTest::newRow("both and a tab") << u"an ice cre am"_s << u"an\tice\u2009cre\u00ADam"_s;
    }

    void whatNoKeyGivesCanBeTypedAgainAsABlank()
    {
        QFETCH(QString, typed);
        QFETCH(QString, word);
        QVERIFY(isWordTypedAgain(typed, word));
        QVERIFY(!isWord(typed, word));
    }

    void aLetterThatEveryKeyboardHasIsNoBlank()
    {
        QVERIFY(!isWordTypedAgain(u"d j v "_s, u"déjà vu"_s));
        QVERIFY(!isWordTypedAgain(u"c t"_s, u"cat"_s));
        QVERIFY(!isWordTypedAgain(u"dxjx vu"_s, u"déjà vu"_s));
    }
};

QTEST_GUILESS_MAIN(TypedWord_test)
#include "TypedWord_test.moc"
