// SPDX-License-Identifier: GPL-3.0-or-later
// Edits a list in the main window until it is killed, and writes each action to its standard
// output. The actions are random; the same seed gives the same ones.
#include "editor/EditingSession.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"

#include <QDir>

#include <cstdio>
#include <random>

using namespace EditingSession;
using namespace Qt::StringLiterals;

namespace {

void tell(const char *what, const QByteArray &more)
{
    std::fputs(what, stdout);
    std::fputs(more.constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace

class editing_child final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editWithoutEnd();

private:
    static constexpr int FewestEntries = 2; // an emptied list is not written by a save
    static constexpr int MostEntries = 15;  // all of them in sight
    static constexpr int LongestPause = 150;

    [[nodiscard]] int below(int end) { return std::uniform_int_distribution(0, end - 1)(m_random); }
    void act();
    void tellBegin() const;
    void add();
    void update();
    void remove();
    void search();
    void save();
    // Picks an entry as a person does; returns its place in the model.
    [[nodiscard]] int pick();

    std::mt19937 m_random;
    std::unique_ptr<MainWindow> m_main;
    Entries m_entries; // what the list should hold
    int m_number = 0;  // of the last text that was typed
};

void editing_child::editWithoutEnd()
{
    m_random.seed(qEnvironmentVariable(Seed).toUInt());
    m_main = std::make_unique<MainWindow>();
    const QString list = m_main->path(QString::fromLatin1(ListName));
    if (below(2) == 0) {
        m_entries = someEntries(3, u"old"_s);
        writeFile(list, listBytes(m_entries));
        openList(*m_main, list);
    }
    tell(Home, QDir::homePath().toUtf8());
    while (!QTest::currentTestFailed()) {
        act();
        QTest::qWait(below(LongestPause));
    }
}

void editing_child::act()
{
    const int kind = below(10);
    if (kind == 0)
        save();
    else if (kind == 1)
        search();
    else if (kind < 6 || m_entries.size() <= FewestEntries)
        add();
    else if (kind < 8)
        update();
    else
        remove();
}

void editing_child::tellBegin() const
{
    QByteArray list;
    for (const QStringList &entry : m_entries)
        for (const QString &text : entry)
            list += text.toLatin1() + FieldEnd;
    tell(Begin, list);
}

void editing_child::add()
{
    if (m_entries.size() == MostEntries)
        return remove();
    const QString word = u"word %1"_s.arg(++m_number);
    m_entries += addedEntry(word);
    tellBegin();
    addEntry(*m_main, word);
    tell(End, QByteArray::number(milliseconds()));
}

int editing_child::pick()
{
    const int place = below(static_cast<int>(m_entries.size()));
    m_main->clickCell(place + 1, 1 + below(3));
    if (m_main->text("txtWord") != m_entries.at(place).at(0))
        failTest(u"the grid does not show entry %1 there"_s.arg(place + 1));
    return place;
}

void editing_child::update()
{
    QStringList &entry = m_entries[pick()];
    entry[1] = u"definition %1"_s.arg(++m_number);
    m_main->type("txtDefinition", entry.at(1));
    tellBegin();
    m_main->click("cmdAdd");
    tell(End, QByteArray::number(milliseconds()));
}

void editing_child::remove()
{
    const int place = pick();
    m_main->answers.expectMsgBox(
        u"Are you sure you want to delete '%1' ?"_s.arg(m_entries.at(place).at(0)),
        QMessageBox::Yes);
    m_entries.removeAt(place);
    tellBegin();
    m_main->click("cmdDelete");
    tell(End, QByteArray::number(milliseconds()));
}

void editing_child::search()
{
    if (m_entries.isEmpty())
        return;
    m_main->click("cmdSearch");
    m_main->type("txtWord", m_entries.constLast().at(0));
    m_main->click("cmdSearch");
    m_main->click("cmdAbort");
}

void editing_child::save()
{
    if (!m_main->action("mnuSave").isEnabled())
        return;
    const QString list = m_main->path(QString::fromLatin1(ListName));
    if (Module1::gFileName.isEmpty())
        m_main->answers.chooseFile(list);
    else
        m_main->answers.expectMsgBox(list + u" has been saved."_s);
    m_main->choose("mnuSave");
}

int main(int argc, char *argv[])
{
    return runFormTest<editing_child>(argc, argv);
}

#include "editing_child.moc"
