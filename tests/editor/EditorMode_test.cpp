// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorMode.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Boxes = EntryLook::Boxes;
using Button = EntryLook::Button;

constexpr EditorMode Modes[] = {EditorMode::Idle,    EditorMode::NewList, EditorMode::NewWord,
                                EditorMode::Editing, EditorMode::Search,  EditorMode::Found};

// The captions of the buttons that are shown and enabled, in their order.
QStringList enabledButtons(const EntryLook &look)
{
    QStringList buttons;
    if (!look.showsAdd && look.newWord)
        buttons += u"New Word"_s;
    if (look.showsAdd && look.add)
        buttons += look.isUpdate ? u"Update"_s : u"Add"_s;
    if (look.abort)
        buttons += u"Abort"_s;
    if (look.deletion)
        buttons += u"Delete"_s;
    if (look.search)
        buttons += u"Search"_s;
    return buttons;
}

} // namespace

class EditorMode_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModeOffers_data()
    {
        QTest::addColumn<EditorMode>("mode");
        QTest::addColumn<QString>("buttons");
        QTest::addColumn<Button>("defaultButton");
        QTest::addColumn<Boxes>("boxes");
        QTest::addColumn<EntryFocus>("focus");
        QTest::newRow("Idle") << EditorMode::Idle << u"New Word,Search"_s << Button::NewWord
                              << Boxes::None << EntryFocus::Grid;
        QTest::newRow("NewList") << EditorMode::NewList << u"New Word,Abort"_s << Button::Add
                                 << Boxes::All << EntryFocus::Word;
        QTest::newRow("NewWord") << EditorMode::NewWord << u"Add,Abort"_s << Button::Add
                                 << Boxes::All << EntryFocus::Word;
        QTest::newRow("Editing") << EditorMode::Editing << u"Update,Abort,Delete"_s << Button::Add
                                 << Boxes::All << EntryFocus::Word;
        QTest::newRow("Search") << EditorMode::Search << u"Abort,Search"_s << Button::Search
                                << Boxes::Word << EntryFocus::Word;
        QTest::newRow("Found") << EditorMode::Found << u"Abort,Delete,Search"_s << Button::Search
                               << Boxes::Word << EntryFocus::Word;
    }

    void aModeOffers()
    {
        QFETCH(EditorMode, mode);
        const EntryLook look = lookOf(mode);
        QTEST(enabledButtons(look).join(QLatin1Char(',')), "buttons");
        QTEST(look.defaultButton, "defaultButton");
        QTEST(look.boxes, "boxes");
        QTEST(look.focus, "focus");
    }

    void addIsDisabledWhereItIsHiddenButInANewList()
    {
        for (const EditorMode mode : Modes) {
            const EntryLook look = lookOf(mode);
            QCOMPARE(look.add, look.showsAdd || mode == EditorMode::NewList);
            QVERIFY(!look.isUpdate || look.showsAdd);
            QVERIFY(!look.showsAdd || !look.newWord);
        }
    }

    void enterIsNeverDeadAndTheFocusNeverLost()
    {
        for (const EditorMode mode : Modes) {
            const EntryLook look = lookOf(mode);
            const bool enabled = look.defaultButton == Button::Add       ? look.add
                                 : look.defaultButton == Button::NewWord ? look.newWord
                                                                         : look.search;
            QVERIFY(enabled);
            QCOMPARE(look.focus == EntryFocus::Word, look.boxes != Boxes::None);
        }
    }

    void aColumnLeadsToItsBox()
    {
        QCOMPARE(boxOfColumn(0), EntryFocus::Word);
        QCOMPARE(boxOfColumn(1), EntryFocus::Word);
        QCOMPARE(boxOfColumn(2), EntryFocus::Definition);
        QCOMPARE(boxOfColumn(3), EntryFocus::Sentence);
    }
};

QTEST_APPLESS_MAIN(EditorMode_test)

#include "EditorMode_test.moc"
