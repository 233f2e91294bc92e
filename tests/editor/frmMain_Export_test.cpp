// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_Export_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        m_list = m_main->path(u"animals.lwx"_s);
        m_target = m_main->path(u"other.lwx"_s);
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void anEmptyListCannotBeExported()
    {
        m_main->answers.expectMsgBox(u"Cannot export: Your current wordlist is empty"_s,
                                     QMessageBox::Ok, [](QMessageBox &box) {
                                         QCOMPARE(box.standardButtons(),
                                                  QMessageBox::StandardButtons(QMessageBox::Ok));
                                     });
        m_main->choose("mnuExport");
    }

    void afterwardsSaveWritesTheTargetButTheCaptionNamesTheList()
    {
        open(5);
        addEntry(*m_main, u"cow"_s);
        QVERIFY(gChanged);
        const Entries entries = openEntries();
        exportRange(1, 2);
        QCOMPARE(gFileName, m_target);
        QVERIFY(!gChanged);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"animals.lwx"_s);
        QCOMPARE(gFileTitle, u"animals.lwx"_s);
        QCOMPARE(gOpenedFile, m_list);
        QCOMPARE(openEntries(), entries);
        QCOMPARE(readFile(m_target), listBytes(entries.mid(0, 2)));

        // From now on Save writes that file.
        m_main->answers.expectMsgBox(m_target + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_target), listBytes(entries));
        QCOMPARE(readFile(m_list), listBytes(entries.mid(0, 5)));
        QCOMPARE(gOpenedFile, m_target);
    }

    void anUntitledListStaysUntitledInTheCaption()
    {
        m_main->fill(5);
        exportRange(5, 1);
        QCOMPARE(gFileName, m_target);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"(Untitled)"_s);
    }

    void thePageAndTheEditorStayAsTheyWere()
    {
        open(60);
        m_main->bar().setValue(30);
        m_main->clickCell(4, 2);
        QList<QStringList> page;
        for (int row = 1; row < m_main->grid().rowCount(); ++row)
            page += m_main->row(row);
        exportRange(50, 60);
        for (int row = 1; row < m_main->grid().rowCount(); ++row)
            QCOMPARE(m_main->row(row), page.at(row - 1));
        QCOMPARE(m_main->bar().value(), 30);
        QCOMPARE(m_main->markedRows(), QList<int>{4});
        QCOMPARE(m_main->look(), EditorModes::editing());
        QCOMPARE(m_main->text("txtWord"), u"animal 33"_s);
    }

    void aPickedEntryIsWhatUpdateChangesAfterwards()
    {
        open(5);
        m_main->clickCell(3, 1);
        exportRange(1, 5);
        m_main->type("txtWord", u"camel"_s);
        m_main->click("cmdAdd");
        Entries expected = someEntries(5, u"animal"_s);
        expected[2][0] = u"camel"_s;
        QCOMPARE(openEntries(), expected);
    }

    void aPickedEntryIsWhatDeleteRemovesAfterwards()
    {
        open(5);
        m_main->clickCell(3, 1);
        exportRange(1, 5);
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'animal 3' ?"_s,
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        Entries expected = someEntries(5, u"animal"_s);
        expected.removeAt(2);
        QCOMPARE(openEntries(), expected);
    }

    void cancelLeavesTheListAndItsNameAsTheyWere()
    {
        open(5);
        addEntry(*m_main, u"cow"_s);
        m_main->clickCell(2, 1);
        const Entries entries = openEntries();
        m_main->answers.useForm("dlgExport", [](QDialog &dialog) {
            Controls::type(Controls::find<QLineEdit>(dialog, "txtStart"), u"3"_s);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdCancel"));
        });
        m_main->choose("mnuExport");
        QCOMPARE(openEntries(), entries);
        QCOMPARE(gFileName, m_list);
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
        QCOMPARE(m_main->text("txtWord"), u"animal 2"_s);
    }

    void theDialogOpensWithItsFirstValuesEachTime()
    {
        open(5);
        exportRange(2, 3);
        m_main->answers.useForm("dlgExport", [this](QDialog &dialog) {
            QVERIFY(dialog.isModal());
            QCOMPARE(Controls::find<QLineEdit>(dialog, "txtStart").text(), u"1"_s);
            QCOMPARE(Controls::find<QLineEdit>(dialog, "txtEnd").text(), u"5"_s);
            QCOMPARE(Controls::find<QLineEdit>(dialog, "txtFilename").text(), QString());
            QCOMPARE(Controls::find<QListWidget>(dialog, "lstExportWords").count(), 5);
            m_main->answers.cancelFileDialog([](QFileDialog &browse) {
                QCOMPARE(Controls::find<QLineEdit>(browse, "fileNameEdit").text(), QString());
            });
            Controls::click(Controls::find<QPushButton>(dialog, "cmdBrowse"));
            Controls::click(Controls::find<QPushButton>(dialog, "cmdCancel"));
        });
        m_main->choose("mnuExport");
    }

    void theOpenListPickedWithBrowseIsRefused()
    {
        open(5);
        m_main->answers.useForm("dlgExport", [this](QDialog &dialog) {
            m_main->answers.chooseFile(m_list);
            m_main->answers.expectMsgBox(m_list + u" file is currently in use."_s);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdBrowse"));
            QCOMPARE(Controls::find<QLineEdit>(dialog, "txtFilename").text(), QString());
            Controls::click(Controls::find<QPushButton>(dialog, "cmdCancel"));
        });
        m_main->choose("mnuExport");
        QCOMPARE(readFile(m_list), listBytes(someEntries(5, u"animal"_s)));
    }

    void whatWasExportedOpensAsAList()
    {
        open(30);
        exportRange(12, 9);
        openList(*m_main, m_target);
        // gFileName names the target already, but it is not the opened file.
        const Entries all = someEntries(30, u"animal"_s);
        QCOMPARE(openEntries(), (Entries{all[11], all[10], all[9], all[8]}));
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"other.lwx"_s);
    }

private:
    void open(int entries)
    {
        writeFile(m_list, listBytes(someEntries(entries, u"animal"_s)));
        openList(*m_main, m_list);
    }

    void exportRange(int start, int end)
    {
        m_main->answers.useForm("dlgExport", [this, start, end](QDialog &dialog) {
            Controls::type(Controls::find<QLineEdit>(dialog, "txtStart"), QString::number(start));
            Controls::type(Controls::find<QLineEdit>(dialog, "txtEnd"), QString::number(end));
            Controls::type(Controls::find<QLineEdit>(dialog, "txtFilename"), m_target);
            m_main->answers.expectMsgBox(
                u"%1 words has been added to %2"_s.arg(std::abs(end - start) + 1).arg(m_target));
            Controls::click(Controls::find<QPushButton>(dialog, "cmdOk"));
        });
        m_main->choose("mnuExport");
        QVERIFY(m_main->answers.allSeen());
    }

    QString m_list;
    QString m_target;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Export_test>(argc, argv);
}

#include "frmMain_Export_test.moc"
