// SPDX-License-Identifier: GPL-3.0-or-later
// An export that fails leaves no new file, whatever the error is.
#include "transfer/dlgExport.h"

#include "support/FormTest.h"
#include "support/SmallFiles.h"
#include "support/TestFiles.h"
#include "transfer/ExportForm.h"

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString OpenList = u"/lists/animals.lwx"_s;

void makeATextTooLongForAFile()
{
    gVocabList().CurrentWord(7);
    gVocabList().Edit(u"w7"_s, QString(65'536, u'x'), {});
}

} // namespace

class dlgExport_Failing_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_form = std::make_unique<ExportForm>();
        m_folder = std::make_unique<TestFolder>();
        gFileName = gOpenedFile = OpenList;
        gChanged = true;
    }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
        m_folder.reset();
    }

    void aFileThatTheExportMadeIsRemoved()
    {
        makeATextTooLongForAFile();
        exportInVain(m_folder->path(u"new.lwx"_s), u"Run-time error '6':\n\nOverflow\n"_s);
        QCOMPARE(m_folder->names(), QStringList());
    }

    void aFileThatDoesNotFitOnTheDiskIsRemoved()
    {
        gVocabList().CurrentWord(7);
        gVocabList().Edit(u"w7"_s, QString(60'000, u'x'), {});
        const SmallFiles small(16 * 1024);
        exportInVain(m_folder->path(u"new.lwx"_s), u"Run-time error '"_s);
        QCOMPARE(m_folder->names(), QStringList());
    }

    void theTargetOfALinkIsRemovedAndTheLinkStays()
    {
        QVERIFY(QFile::link(m_folder->path(u"new.lwx"_s), m_folder->path(u"link.lwx"_s)));
        makeATextTooLongForAFile();
        exportInVain(m_folder->path(u"link.lwx"_s), u"Run-time error '6':\n\nOverflow\n"_s);
        QCOMPARE(m_folder->names(), QStringList{u"link.lwx"_s});
    }

    void anEmptyFileThatWasThereStays()
    {
        m_folder->write(u"old.lwx"_s, {});
        makeATextTooLongForAFile();
        exportInVain(m_folder->path(u"old.lwx"_s), u"Run-time error '6':\n\nOverflow\n"_s);
        QCOMPARE(m_folder->names(), QStringList{u"old.lwx"_s});
    }

    void aFolderThatDoesNotExistIsNotMade()
    {
        exportInVain(m_folder->path(u"lost/new.lwx"_s),
                     u"Run-time error '76':\n\nPath not found\n"_s);
        QCOMPARE(m_folder->names(), QStringList());
    }

    void aNameThatNoFileCanHaveLeavesNothing()
    {
        exportInVain(m_folder->path(QString(256, u'x')), u"Run-time error '"_s);
        QCOMPARE(m_folder->names(), QStringList());
    }

    void afterAFailureAnotherTargetWorks()
    {
        exportInVain(m_folder->path(u"lost/new.lwx"_s),
                     u"Run-time error '76':\n\nPath not found\n"_s);
        const QString target = m_folder->path(u"new.lwx"_s);
        m_form->answers.expectMsgBox(u"10 words has been added to "_s + target);
        exportInto(target);
        QCOMPARE(m_folder->bytes(u"new.lwx"_s),
                 number16(10) + ExportForm::records(ExportForm::words(1, 10)));
    }

private:
    void exportInto(const QString &target)
    {
        m_form->typeTarget(target);
        m_form->activate();
        m_form->click("cmdOk");
    }

    // Checks that the error is the only message, that the dialog stays open and the open list keeps
    // its name and its changes.
    void exportInVain(const QString &target, const QString &report)
    {
        m_form->answers.expectAnyMsgBox(QMessageBox::Ok, [report](QMessageBox &box) {
            QVERIFY2(box.text().startsWith(report), qPrintable(box.text()));
        });
        exportInto(target);
        QVERIFY(m_form->answers.allSeen());
        QVERIFY(m_form->dialog().isVisible());
        QCOMPARE(gFileName, OpenList);
        QVERIFY(gChanged);
        QCOMPARE(wordsOf(gVocabList()), ExportForm::words(1, 10));
    }

    std::unique_ptr<ExportForm> m_form;
    std::unique_ptr<TestFolder> m_folder;
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgExport_Failing_test>(argc, argv);
}

#include "dlgExport_Failing_test.moc"
