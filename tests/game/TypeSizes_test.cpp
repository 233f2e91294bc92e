// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TypeSizes.h"

#include <QTest>

class TypeSizes_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsShrinkInFourSteps()
    {
        for (qsizetype length = 0; length <= 100; ++length) {
            QCOMPARE(wordTypeSize(length).points, length < 17   ? 34
                                                  : length < 26 ? 18
                                                  : length < 31 ? 16
                                                                : 14);
            QCOMPARE(wordTypeSize(length).bold, length < 17);
        }
        QCOMPARE(wordTypeSize(32767).points, 14);
    }

    void definitionsShrinkInThreeSteps()
    {
        for (qsizetype length = 0; length <= 300; ++length) {
            QCOMPARE(definitionTypeSize(length).points, length < 101 ? 18 : length < 151 ? 14 : 12);
            QVERIFY(!definitionTypeSize(length).bold);
        }
        QCOMPARE(definitionTypeSize(65535).points, 12);
    }

    void definitionsAfterAMissShrinkInTwoSteps()
    {
        for (qsizetype length = 0; length <= 300; ++length) {
            QCOMPARE(missedDefinitionTypeSize(length).points, length < 101 ? 18 : 14);
            QVERIFY(!missedDefinitionTypeSize(length).bold);
        }
    }

    void sentencesShrinkInTwoSteps()
    {
        for (qsizetype length = 0; length <= 300; ++length) {
            QCOMPARE(sentenceTypeSize(length).points, length < 151 ? 14 : 12);
            QVERIFY(!sentenceTypeSize(length).bold);
        }
        QCOMPARE(sentenceTypeSize(65535).points, 12);
    }
};

QTEST_APPLESS_MAIN(TypeSizes_test)

#include "TypeSizes_test.moc"
