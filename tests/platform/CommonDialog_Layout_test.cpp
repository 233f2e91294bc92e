// SPDX-License-Identifier: GPL-3.0-or-later
// The size of the file dialogs, and what their columns and places show. CTest runs this on screens
// of several sizes.
#include "platform/CommonDialog.h"
#include "platform/Paths.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"
#include "support/FreshHome.h"
#include "support/LargeType.h"
#include "support/Layout.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QListView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

const QStringList Files{u"Animals.lwx"_s, u"A long name of a list for the second term.lwx"_s,
                        u"WEATHER.LWX"_s, u"words.dif"_s,
                        u"words.txt"_s,   u"words.pdf"_s};

QTreeView &filesOf(const QFileDialog &dialog)
{
    auto &files = Controls::find<QTreeView>(dialog, "treeView");
    const auto rows = [&] { return files.model()->rowCount(files.rootIndex()); };
    if (!QTest::qWaitFor([&] { return rows() == Files.size() + 1; }))
        failTest(u"the dialog shows %1 files"_s.arg(rows()), Caller::current());
    return files;
}

QModelIndex cell(const QTreeView &files, const QString &name, int column)
{
    for (int row = 0; row < files.model()->rowCount(files.rootIndex()); ++row)
        if (files.model()->index(row, 0, files.rootIndex()).data().toString() == name)
            return files.model()->index(row, column, files.rootIndex());
    return {};
}

} // namespace

class CommonDialog_Layout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<FreshHome>();
        m_lists = pathOf(Place::WordLists);
        QVERIFY(QDir().mkpath(m_lists + u"/Class.lwx"_s));
        for (const QString &name : Files)
            writeFile(m_lists + u'/' + name, "x");
    }

    void cleanup()
    {
        QVERIFY(m_answers.allSeen());
        m_home.reset();
    }

    void itFitsTheScreen_data() { Layout::addTypeSizes(); }

    void itFitsTheScreen()
    {
        QFETCH(double, type);
        const LargeType font(type);
        for (const bool save : {false, true})
            open([](QFileDialog &dialog) { Layout::checkFitsTheScreen(dialog); }, save);
    }

    void itOpensAsItWasLeft_data()
    {
        QTest::addColumn<bool>("isAccepted");
        QTest::newRow("Cancel") << false;
        QTest::newRow("Open") << true;
    }

    void itOpensAsItWasLeft()
    {
        QFETCH(bool, isAccepted);
        const QRect left = isAccepted ? QRect(30, 40, 610, 420) : QRect(20, 50, 640, 400);
        const auto leave = [&left](QFileDialog &dialog) { dialog.setGeometry(left); };
        CommonDialog dialog(m_lists);
        if (isAccepted)
            m_answers.chooseFile(Files[0], leave);
        else
            m_answers.cancelFileDialog(leave);
        QCOMPARE(dialog.ShowOpen(nullptr), isAccepted);
        open([&left](QFileDialog &again) { QCOMPARE(again.geometry(), left); });
    }

    void namesAndDatesAreReadWhole()
    {
        open([](QFileDialog &dialog) {
            const QTreeView &files = filesOf(dialog);
            for (const QString &name : Files)
                for (int column = 0; column < files.model()->columnCount(); ++column) {
                    const QModelIndex index = cell(files, name, column);
                    QTRY_VERIFY2(files.sizeHintForIndex(index).width() <=
                                     files.visualRect(index).width(),
                                 qPrintable(index.data().toString()));
                }
        });
    }

    void theColumnTypeNamesTheKinds()
    {
        open([](QFileDialog &dialog) {
            const QTreeView &files = filesOf(dialog);
            const auto kind = [&files](const QString &name) {
                return cell(files, name, 2).data().toString();
            };
            QCOMPARE(files.model()->headerData(2, Qt::Horizontal).toString(), u"Type"_s);
            QTRY_COMPARE(kind(u"Animals.lwx"_s), u"Word list"_s);
            QTRY_COMPARE(kind(u"WEATHER.LWX"_s), u"Word list"_s);
            QTRY_COMPARE(kind(u"words.dif"_s), u"Spreadsheet data"_s);
            QTRY_COMPARE(kind(u"words.txt"_s), u"Text file"_s);
            QTRY_COMPARE(kind(u"words.pdf"_s), u"PDF document"_s);
            QTRY_COMPARE(kind(u"Class.lwx"_s), u"Folder"_s);
        });
    }

    void theFolderOfTheListsIsAPlace()
    {
        CommonDialog dialog(m_home->home());
        m_answers.cancelFileDialog([this](QFileDialog &shown) {
            QCOMPARE(shown.directory().absolutePath(), m_home->home());
            auto &places = Controls::find<QListView>(shown, "sidebar");
            const QModelIndex place = places.model()->index(places.model()->rowCount() - 1, 0);
            QCOMPARE(place.data().toString(), u"MyLists"_s);
            for (int row = 0; row < places.model()->rowCount(); ++row)
                QVERIFY(places.sizeHintForIndex(places.model()->index(row, 0)).width() <=
                            places.viewport()->width() ||
                        places.width() >= shown.width() / 4);
            QTest::mouseClick(places.viewport(), Qt::LeftButton, {},
                              places.visualRect(place).center());
            QCOMPARE(shown.directory().absolutePath(), m_lists);
        });
        QVERIFY(!dialog.ShowOpen(nullptr));
    }

    void aFolderThatIsMissingIsNoPlace()
    {
        QVERIFY(QDir(m_lists).removeRecursively());
        CommonDialog dialog(m_home->home());
        m_answers.cancelFileDialog([](QFileDialog &shown) {
            for (const QUrl &place : shown.sidebarUrls())
                QVERIFY(!place.path().endsWith(u"MyLists"_s));
        });
        QVERIFY(!dialog.ShowOpen(nullptr));
    }

private:
    void open(std::function<void(QFileDialog &)> look, bool save = false)
    {
        CommonDialog dialog(m_lists);
        m_answers.cancelFileDialog(std::move(look));
        QVERIFY(!(save ? dialog.ShowSave(nullptr) : dialog.ShowOpen(nullptr)));
    }

    DialogAnswers m_answers;
    std::unique_ptr<FreshHome> m_home;
    QString m_lists;
};

int main(int argc, char *argv[])
{
    return runFormTest<CommonDialog_Layout_test>(argc, argv);
}

#include "CommonDialog_Layout_test.moc"
