// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Notice.h"

#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;

class Notice_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setNoticeHook({}); }

    void theHookGetsEachTextOnce()
    {
        QStringList texts;
        setNoticeHook([&](const QString &text) { texts << text; });
        notice(u"Result=0"_s);
        notice(u"100%1"_s);
        QCOMPARE(texts, (QStringList{u"Result=0"_s, u"100%1"_s}));
    }

    void theLastHookSetIsTheOne()
    {
        QStringList first;
        QStringList second;
        setNoticeHook([&](const QString &text) { first << text; });
        setNoticeHook([&](const QString &text) { second << text; });
        notice(u"a"_s);
        QCOMPARE(first, QStringList());
        QCOMPARE(second, QStringList{u"a"_s});
        setNoticeHook({});
        notice(u"dropped"_s);
        QCOMPARE(second, QStringList{u"a"_s});
    }
};

QTEST_GUILESS_MAIN(Notice_test)
#include "Notice_test.moc"
