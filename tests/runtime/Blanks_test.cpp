// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Blanks.h"

#include <QTest>

using namespace Qt::StringLiterals;

class Blanks_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outerBlanksAreRemoved_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("trimmed");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("none") << u"cat"_s << u"cat"_s;
        QTest::newRow("in front") << u"  cat"_s << u"cat"_s;
        QTest::newRow("behind") << u"cat   "_s << u"cat"_s;
        QTest::newRow("both") << u" cat "_s << u"cat"_s;
        QTest::newRow("inner stay") << u" big  cat "_s << u"big  cat"_s;
        QTest::newRow("one blank") << u" "_s << QString();
        QTest::newRow("blanks only") << u"     "_s << QString();
        QTest::newRow("tab stays") << u"\tcat\t"_s << u"\tcat\t"_s;
        QTest::newRow("blank before tab") << u" \tcat\t "_s << u"\tcat\t"_s;
        QTest::newRow("line break stays") << u" cat\r\n"_s << u"cat\r\n"_s;
        QTest::newRow("no-break space stays") << u"\u00A0cat\u00A0"_s << u"\u00A0cat\u00A0"_s;
    }

    void outerBlanksAreRemoved()
    {
        QFETCH(QString, text);
        QFETCH(QString, trimmed);
        QCOMPARE(withoutOuterBlanks(text), trimmed);
    }
};

QTEST_GUILESS_MAIN(Blanks_test)
#include "Blanks_test.moc"
