// SPDX-License-Identifier: GPL-3.0-or-later
// How printing commands end on errors.
#include "print/PrintJob.h"

#include "platform/SystemPrinter.h"
#include "runtime/ErrorNumber.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <new>

using namespace Qt::StringLiterals;

namespace {

std::function<void()> failure(RunTimeError::Number number)
{
    return [number] { throw RunTimeError(number); };
}

} // namespace

class PrintJob_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(m_answers.allSeen()); }

    void aPrinterErrorIsReportedWithTheNameOfThePrinter()
    {
        for (const auto run : {tellPrinterError, tellPrinterErrorOnly}) {
            m_answers.expectMsgBox(m_printer.DeviceName() + u" has encountered an error"_s);
            run(m_printer, failure(RunTimeError::PrinterFault));
            QVERIFY(m_answers.allSeen());
        }
    }

    void anyOtherErrorPassesOrEndsTheCommandWithoutAMessage()
    {
        for (const auto number : {RunTimeError::Overflow, RunTimeError::DiskFull}) {
            QCOMPARE(errorNumberOf([&] { tellPrinterError(m_printer, failure(number)); }), number);
            QCOMPARE(errorNumberOf([&] { tellPrinterErrorOnly(m_printer, failure(number)); }),
                     NoRunTimeError);
        }
    }

    void otherExceptionsPass()
    {
        for (const auto run : {tellPrinterError, tellPrinterErrorOnly})
            QVERIFY_THROWS_EXCEPTION(std::bad_alloc,
                                     run(m_printer, [] { throw std::bad_alloc(); }));
    }

private:
    DialogAnswers m_answers;
    SystemPrinter m_printer;
};

int main(int argc, char *argv[])
{
    return runFormTest<PrintJob_test>(argc, argv);
}

#include "PrintJob_test.moc"
