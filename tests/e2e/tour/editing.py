# SPDX-License-Identifier: GPL-3.0-or-later
"""Entries are changed, added, found and deleted."""
from stage.conditions import until
from stage.listfile import entries
from tour import opening

Changed = "Ce soir, la fille dort déjà."
Added = [
    ("papillon", "butterfly", "Un papillon se pose sur la rose."),
    ("fauteuil", "armchair", "Le chat dort dans le fauteuil."),
]
Twin = ("Papillon", "bow tie", "Il porte un papillon noir.")
Duplicate = "Word already exist.  Add word anyway?"
Empty = ("", "", "")


def take(guide):
    person = guide.person
    listed = entries(guide.lists / f"{opening.Name}.lwx")
    picks_and_updates(guide, listed)
    adds(guide, listed)
    meets_a_duplicate(guide, listed)
    searches(guide, listed)
    deletes(guide, listed)
    until("Save possible", lambda: person.opens_menu("File")["Save"].usable)
    person.presses("Escape", "Escape")
    guide.expected = listed


def picks_and_updates(guide, listed):
    person = guide.person
    with guide.step("A click in the grid picks an entry"):
        person.clicks(person.control("table", "Word list").cell(4, 3))
        until("the entry in its boxes", person.entry, listed[3])
        until("the cursor in the sentence",
              lambda: person.control("text", "Sentence").focused)

    with guide.step("Its sentence is changed and updated"):
        person.fills("Sentence", Changed)
        until("the length in the frame's title",
              lambda: person.front().find("panel", f"Sentence: {len(Changed)}"))
        guide.picture("entry-picked")
        guide.picture_for_handbook("editor")
        person.pushes("Update")
        listed[3] = (*listed[3][:2], Changed)
        until("the new sentence in the grid", lambda: person.page(),
              opening.rows_from(listed, 1))
        until("empty boxes", person.entry, Empty)
        person.reads(f"{len(listed)} words · not saved · Save writes {opening.Name}.lwx")


def adds(guide, listed):
    person = guide.person
    with guide.step("New Word takes two words, each confirmed with Enter"):
        person.pushes("New Word")
        until("the row of the new word", lambda: person.row(23)[0], str(len(listed) + 1))
        for word in Added:
            until("the cursor in the word box", lambda: person.control("text", "Word").focused)
            for part in word:
                person.types(part)
                person.presses("Tab")
            person.presses("shift+Tab")
            until("the typed entry", person.entry, word)
            if word == Added[0]:
                guide.picture("new-word")
                guide.picture_for_handbook("new-word")
            person.presses("Return")
            listed.append(word)
            until("empty boxes for the next", person.entry, Empty)
            until("the new word in the grid", lambda: person.row(22),
                  (str(len(listed)), *word))


def meets_a_duplicate(guide, listed):
    person = guide.person
    with guide.step("A word that is there already is asked about; No keeps it out"):
        for name, text in zip(("Word", "Definition", "Sentence"), Twin):
            person.fills(name, text)
        person.presses("Return")
        person.is_told(Duplicate)
        guide.picture("question-duplicate")
        person.answers(Duplicate, "No")
        until("what was typed", person.entry, Twin)
        until("the cursor in the word box", lambda: person.control("text", "Word").focused)
        until("no new row", lambda: person.row(22), (str(len(listed)), *listed[-1]))

    with guide.step("Asked again, Yes adds it all the same"):
        person.presses("Return")
        person.answers(Duplicate, "Yes")
        listed.append(Twin)
        until("the new row", lambda: person.row(22), (str(len(listed)), *Twin))
        person.pushes("Abort")


def searches(guide, listed):
    person = guide.person
    first = [word for word, _, _ in listed].index(Added[0][0]) + 1
    with guide.step("Search finds the word and shows the page that begins with it"):
        person.pushes("Search")
        until("the cursor in the word box", lambda: person.control("text", "Word").focused)
        person.types("PAPILLON")
        until("the word typed", lambda: person.control("text", "Word").text, "PAPILLON")
        person.pushes("Search")
        until("the entry found", person.entry, Added[0])
        until("its row at the top", lambda: person.row(1), (str(first), *Added[0]))
        guide.picture("word-found")
        guide.picture_for_handbook("word-found")

    with guide.step("Search again finds the next one"):
        person.pushes("Search")
        until("the entry found", person.entry, Twin)
        until("its row at the top", lambda: person.row(1), (str(len(listed)), *Twin))

    with guide.step("A word that is not in the list is said to be missing"):
        person.fills("Word", "xylophone")
        person.pushes("Search")
        person.is_told("xylophone is not in the list.")
        guide.picture("message-not-in-the-list")
        person.answers("xylophone is not in the list.", "OK")


def deletes(guide, listed):
    person = guide.person
    question = f"Are you sure you want to delete '{Twin[0]}' ?"
    with guide.step("The found word is deleted after a question"):
        person.fills("Word", Twin[0])
        person.pushes("Search")
        until("a word found", person.entry, Added[0])
        person.pushes("Search")
        until("the entry found", person.entry, Twin)
        person.pushes("Delete")
        person.is_told(question)
        guide.picture("question-delete")
        person.answers(question, "Yes")
        listed.remove(Twin)
        until("empty boxes", person.entry, Empty)
        until("the word gone from the grid",
              lambda: [row for row in person.page() if row[1] == Twin[0]] == [])
