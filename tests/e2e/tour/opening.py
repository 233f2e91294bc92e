# SPDX-License-Identifier: GPL-3.0-or-later
"""A sample list is opened and leafed through."""
from stage.conditions import until
from stage.listfile import entries

Name = "French - First Words"


def rows_from(listed, first):
    """The grid's rows when entry `first` is at the top."""
    return [(str(first + i), *entry) for i, entry in enumerate(listed[first - 1:first + 22])]


def last_page(listed):
    """The first entry of the last full page."""
    return max(1, len(listed) - 22)


def opens(guide, name, picture=None):
    """File > Open from the question to the chosen list."""
    person = guide.person
    person.chooses("File", "Open...")
    person.is_told("End current lesson?")
    if picture:
        guide.picture("question-end-lesson")
    person.answers("End current lesson?", "OK")
    picks(guide, "Open File", name, picture)
    return person.window(f"LexiBrook- The Tanglewit: {name}.lwx")


def picks(guide, title, name, picture=None):
    """The list in the file dialog of that title."""
    person = guide.person
    dialog = person.window(title)
    file = until(f"{name} offered", lambda: dialog.find("table cell", f"{name}.lwx"))
    person.clicks(file)
    until("the name taken", lambda: dialog.find("text", "File name:").text, f"{name}.lwx")
    if picture:
        guide.picture(picture)
    person.clicks(dialog.find("push button", "Open"))


def take(guide):
    person = guide.person
    listed = entries(guide.lists / f"{Name}.lwx")

    with guide.step("The File menu opens"):
        items = person.opens_menu("File")
        until("Save not yet possible", lambda: not items["Save"].usable)
        guide.picture("menu-file")
        person.presses("Escape", "Escape")
        until("the menu closed", lambda: not items["Open..."].shows)

    with guide.step(f"File > Open asks to end the lesson and opens \"{Name}\""):
        opens(guide, Name, "dialog-open")

    with guide.step("The first page of the list stands in the grid"):
        until("the first page", lambda: person.page(), rows_from(listed, 1))
        person.reads(f"{len(listed)} words · Save writes {Name}.lwx")
        guide.picture("list-opened")

    with guide.step("Wheel, Page Down, End and Home leaf through the list"):
        grid = person.control("table", "Word list")
        bar = person.control("scroll bar", "First entry shown")
        person.turns_the_wheel(grid, 2)
        moved = until("the page moved by the wheel", lambda: bar.value > 1 and bar.value)
        until("the page of the wheel", lambda: person.page(), rows_from(listed, moved))
        person.presses("Next")
        until("the next page", lambda: person.page(),
              rows_from(listed, min(moved + 23, last_page(listed))))
        guide.picture("list-scrolled")
        person.presses("End")
        until("the last full page", lambda: person.page(), rows_from(listed, last_page(listed)))
        person.presses("Home")
        until("the first page again", lambda: person.page(), rows_from(listed, 1))
