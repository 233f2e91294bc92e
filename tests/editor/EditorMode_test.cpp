// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorMode.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Shown = EntryLook::Shown;
using Boxes = EntryLook::Boxes;

constexpr EditorMode Modes[] = {EditorMode::Idle,    EditorMode::NewList, EditorMode::NewWord,
                                EditorMode::Editing, EditorMode::Search,  EditorMode::Found};

// The captions of the buttons that are shown and enabled, in their order.
QString enabledButtons(const EntryLook &look)
{
    QStringList buttons;
    if (look.shown == Shown::NewWord && look.isEnabled(EntryLook::NewWord))
        buttons += u"New Word"_s;
    if (look.shown != Shown::NewWord && look.isEnabled(EntryLook::Add))
        buttons += look.shown == Shown::Update ? u"Update"_s : u"Add"_s;
    if (look.isEnabled(EntryLook::Abort))
        buttons += u"Abort"_s;
    if (look.isEnabled(EntryLook::Delete))
        buttons += u"Delete"_s;
    if (look.isEnabled(EntryLook::Search))
        buttons += u"Search"_s;
    return buttons.join(u", "_s);
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
        QTest::addColumn<EntryLook::Button>("defaultButton");
        QTest::addColumn<Boxes>("boxes");
        QTest::addColumn<EntryFocus>("focus");
        QTest::newRow("Idle") << EditorMode::Idle << u"New Word, Search"_s << EntryLook::NewWord
                              << Boxes::None << EntryFocus::Grid;
        QTest::newRow("NewList") << EditorMode::NewList << u"New Word, Abort"_s << EntryLook::Add
                                 << Boxes::All << EntryFocus::Word;
        QTest::newRow("NewWord") << EditorMode::NewWord << u"Add, Abort"_s << EntryLook::Add
                                 << Boxes::All << EntryFocus::Word;
        QTest::newRow("Editing") << EditorMode::Editing << u"Update, Abort, Delete"_s
                                 << EntryLook::Add << Boxes::All << EntryFocus::Word;
        QTest::newRow("Search") << EditorMode::Search << u"Abort, Search"_s << EntryLook::Search
                                << Boxes::Word << EntryFocus::Word;
        QTest::newRow("Found") << EditorMode::Found << u"Abort, Delete, Search"_s
                               << EntryLook::Search << Boxes::Word << EntryFocus::Word;
    }

    void aModeOffers()
    {
        QFETCH(EditorMode, mode);
        const EntryLook &look = lookOf(mode);
        QTEST(enabledButtons(look), "buttons");
        QTEST(look.defaultButton, "defaultButton");
        QTEST(look.enabledBoxes, "boxes");
        QTEST(look.focus, "focus");
    }

    void addIsDisabledWhereItIsHiddenExceptInANewList()
    {
        for (const EditorMode mode : Modes) {
            const EntryLook &look = lookOf(mode);
            const bool isShown = look.shown != Shown::NewWord;
            QCOMPARE(look.isEnabled(EntryLook::Add), isShown || mode == EditorMode::NewList);
            QVERIFY(!isShown || !look.isEnabled(EntryLook::NewWord));
        }
    }

    void theDefaultButtonIsEnabledInEachMode()
    {
        for (const EditorMode mode : Modes)
            QVERIFY(lookOf(mode).isEnabled(lookOf(mode).defaultButton));
    }

    void aColumnHasItsBox()
    {
        QCOMPARE(boxOfColumn(0), EntryFocus::Word);
        QCOMPARE(boxOfColumn(1), EntryFocus::Word);
        QCOMPARE(boxOfColumn(2), EntryFocus::Definition);
        QCOMPARE(boxOfColumn(3), EntryFocus::Sentence);
    }
};

QTEST_APPLESS_MAIN(EditorMode_test)

#include "EditorMode_test.moc"
