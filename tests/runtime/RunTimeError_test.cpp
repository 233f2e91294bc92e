// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/RunTimeError.h"

#include <QTest>

using namespace Qt::StringLiterals;

class RunTimeError_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsItsNumberAndWords_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("report");
        const auto row = [](int number, const QString &words) {
            QTest::addRow("%d", number)
                << number << u"Run-time error '"_s + QString::number(number) + u"':\n\n"_s + words;
        };
        row(5, u"Invalid procedure call or argument"_s);
        row(6, u"Overflow"_s);
        row(7, u"Out of memory"_s);
        row(9, u"Subscript out of range"_s);
        row(13, u"Type mismatch"_s);
        row(52, u"Bad file name or number"_s);
        row(53, u"File not found"_s);
        row(57, u"Device I/O error"_s);
        row(61, u"Disk full"_s);
        row(67, u"Too many files"_s);
        row(70, u"Permission denied"_s);
        row(75, u"Path/File access error"_s);
        row(76, u"Path not found"_s);
        row(321, u"Invalid file format"_s);
        row(482, u"Printer error"_s);
    }

    void reportsItsNumberAndWords()
    {
        QFETCH(int, number);
        QFETCH(QString, report);
        const RunTimeError error{RunTimeError::Number(number)};
        QCOMPARE(int(error.number()), number);
        QCOMPARE(error.report(), report);
        QCOMPARE(QString::fromUtf8(error.what()), report);
    }

    void aDetailGetsALineOfItsOwn()
    {
        const RunTimeError error(RunTimeError::DiskFull, u"/home/ann/list.lwx: No space left"_s);
        QCOMPARE(error.report(),
                 u"Run-time error '61':\n\nDisk full\n/home/ann/list.lwx: No space left"_s);
        QCOMPARE(QString::fromUtf8(error.what()), error.report());
    }

    void aPathWithPercentSignsAndAccentsIsShownAsItIs()
    {
        const RunTimeError error(RunTimeError::PathNotFound, u"/Écoles/100%1/%2"_s);
        QCOMPARE(error.report(), u"Run-time error '76':\n\nPath not found\n/Écoles/100%1/%2"_s);
        QCOMPARE(QString::fromUtf8(error.what()), error.report());
    }

    void isCaughtAsAStandardException()
    {
        QByteArray what;
        try {
            throw RunTimeError(RunTimeError::TypeMismatch);
        } catch (const std::exception &error) {
            what = error.what();
        }
        QCOMPARE(what, "Run-time error '13':\n\nType mismatch"_ba);
    }
};

QTEST_GUILESS_MAIN(RunTimeError_test)
#include "RunTimeError_test.moc"
