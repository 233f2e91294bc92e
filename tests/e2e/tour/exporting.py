# SPDX-License-Identifier: GPL-3.0-or-later
"""A part of the list is added to another list."""
from stage.conditions import until
from stage.listfile import entries
from tour import importing, saving

First, Last = 3, 5


def take(guide):
    person = guide.person
    own = guide.lists / f"{saving.NewName}.lwx"
    target = guide.lists / f"{importing.Name}.lwx"
    chosen = guide.expected[First - 1:Last]
    main = person.front().name

    with guide.step("File > Export lists all words, then those of the range"):
        person.chooses("File", "Export...")
        person.window("Export words")
        until("all words", lambda: preview(person), [word for word, _, _ in guide.expected])
        person.fills("Starting at word number", str(First))
        person.fills("Ending at word number", str(Last))
        person.fills("File name", str(target))
        until("the words of the range", lambda: preview(person), [word for word, _, _ in chosen])
        guide.picture("dialog-export")
        guide.picture_for_handbook("export", person.front())

    with guide.step("OK adds them to the words that the target holds"):
        person.pushes("OK")
        message = f"{len(chosen)} words has been added to {target}"
        person.is_told(message)
        until("the entries on disk", lambda: entries(target), [*importing.Words, *chosen], limit=0)
        until("the list's own file as it was", lambda: entries(own), guide.expected, limit=0)
        guide.picture("message-exported")
        person.answers(message, "OK")
        person.window(main)
        person.reads(f"{len(guide.expected)} words · Save writes {target.name}"
                     f" in {target.parent.name}")
    guide.keeps(target)


def preview(person):
    return [item.name for item in person.control("list", "Words to export").children]
