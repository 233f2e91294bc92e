# SPDX-License-Identifier: GPL-3.0-or-later
"""The list is saved, saved under another name and opened again."""
from stage.conditions import until
from stage.listfile import entries
from tour import opening

NewName = "French - My Words"


def saves(guide, file, picture):
    """File > Save, which writes to that file."""
    person = guide.person
    person.chooses("File", "Save")
    message = f"{file} has been saved."
    person.is_told(message)
    until("the entries on disk", lambda: entries(file), guide.expected, limit=0)
    guide.picture(picture)
    person.answers(message, "OK")


def take(guide):
    person = guide.person
    file = guide.lists / f"{opening.Name}.lwx"
    with guide.step("Save writes the file and says so"):
        saves(guide, file, "message-saved")

    copy = guide.lists / f"{NewName}.lwx"
    with guide.step("Save As writes the list under another name"):
        person.chooses("File", "Save As...")
        dialog = person.window("Save File As")
        person.fills("File name:", NewName)
        guide.picture("dialog-save-as")
        person.clicks(dialog.find("push button", "Save"))
        person.window(f"LexiBrook- The Tanglewit: {NewName}.lwx")
        until("the entries on disk", lambda: entries(copy), guide.expected)
        until("the first file as it was", lambda: entries(file), guide.expected, limit=0)

    with guide.step("Opened one after the other, both lists show the changes"):
        for name in (opening.Name, NewName):
            opening.opens(guide, name)
            until("the changed page", lambda: person.page(),
                  opening.rows_from(guide.expected, 1))
        person.presses("End")
        until("the last entries", lambda: person.page(),
              opening.rows_from(guide.expected, opening.last_page(guide.expected)))
        guide.picture("opened-again")
    guide.keeps(file)
    guide.keeps(copy)
