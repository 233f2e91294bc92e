// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TextMarks.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TextMarks_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsOfLostCharactersAreFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<TextRange>>("runs");
        const auto row = [](const char *name, const QString &text, const QList<TextRange> &runs) {
            QTest::newRow(name) << text << runs;
        };
        row("no text", {}, {});
        row("all kept", u"na\u00EFve \u20AC\n"_s, {});
        row("several", u"\u0142\u00F3d\u017A"_s, {{0, 1}, {3, 1}});
        row("side by side", u"a\u6F22\u5B57"_s, {{1, 2}});
        row("a surrogate pair", QString::fromUcs4(U"a \U0001F600 b"), {{2, 2}});
        row("a combining mark", u"cafe\u0301 e"_s, {{3, 2}});
        row("too many", u"\u0142 "_s.repeated(5), {{0, 1}, {2, 1}, {4, 1}});
    }

    void runsOfLostCharactersAreFound()
    {
        QFETCH(QString, text);
        QTEST(lostCharacters(text, 3), "runs");
    }

    void lostCharactersAreNamed()
    {
        QCOMPARE(lostCharactersText({}), QString());
        QCOMPARE(lostCharactersText(u"a\u0301 \u200B\U0001F600"),
                 u"This list cannot keep: U+0301, U+200B, \U0001F600"_s);
        QCOMPARE(lostCharactersText(u"na\u00EFve"), QString());
        QCOMPARE(lostCharactersText(u"\u0142\u6F22\u0142"),
                 u"This list cannot keep: \u0142, \u6F22"_s);
        QCOMPARE(
            lostCharactersText(u"\u0400\u0401\u0402\u0403\u0404\u0405\u0406\u0407"),
            u"This list cannot keep: \u0400, \u0401, \u0402, \u0403, \u0404, \u0405, \u0406, \u0407"_s);
        QCOMPARE(
            lostCharactersText(u"\u0400\u0401\u0402\u0403\u0404\u0405\u0406\u0407\u0408\u0409"),
            u"This list cannot keep: \u0400, \u0401, \u0402, \u0403, \u0404, \u0405, \u0406, \u0407, …"_s);
    }
};

QTEST_GUILESS_MAIN(TextMarks_test)
#include "TextMarks_test.moc"
