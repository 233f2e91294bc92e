// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/DefinitionTime.h"

#include <QTest>

class DefinitionTime_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachCharacterIsGivenAFifthOfASecondWithinLimits_data()
    {
        QTest::addColumn<int>("characters");
        QTest::addColumn<int>("milliseconds");
        const auto row = [](int characters, int milliseconds) {
            QTest::addRow("%d characters", characters) << characters << milliseconds;
        };
        row(0, 3000);
        row(1, 3000);
        row(10, 3000);
        row(14, 3000);
        row(15, 3000);
        row(16, 3200);
        row(40, 8000);
        row(49, 9800);
        row(50, 10000);
        row(51, 10000);
        row(60, 10000);
        row(163, 10000);
    }

    void eachCharacterIsGivenAFifthOfASecondWithinLimits()
    {
        QFETCH(int, characters);
        QFETCH(int, milliseconds);
        QCOMPARE(definitionTime(characters).toInt(), milliseconds);
    }

    void aLongerDefinitionOverflows_data()
    {
        QTest::addColumn<int>("characters");
        for (const int characters : {164, 200, 327, 328, 5000, 32767})
            QTest::addRow("%d characters", characters) << characters;
    }

    void aLongerDefinitionOverflows()
    {
        QFETCH(int, characters);
        try {
            static_cast<void>(definitionTime(characters));
            QFAIL("no error");
        } catch (const RunTimeError &error) {
            QCOMPARE(error.number(), RunTimeError::Overflow);
        }
    }
};

QTEST_APPLESS_MAIN(DefinitionTime_test)

#include "DefinitionTime_test.moc"
