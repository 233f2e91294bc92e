# SPDX-License-Identifier: GPL-3.0-or-later
"""The list is written to a plain text file."""
from stage.conditions import until
from tour import saving

Name = "French words"


def take(guide):
    person = guide.person
    file = guide.lists / f"{Name}.txt"
    lines = ["\t".join(entry) for entry in guide.expected]
    with guide.step("File > Create Text File writes a line for each entry"):
        person.chooses("File", "Create Text File...")
        dialog = person.window("Create Text File")
        person.fills("File name:", Name)
        guide.picture("dialog-text-file")
        person.clicks(dialog.find("push button", "Save"))
        person.window(f"LexiBrook- The Tanglewit: {saving.NewName}.lwx")
        until("the text file", file.exists)
        until("a line for each entry",
              lambda: file.read_bytes().decode("cp1252").split("\r\n"), [*lines, ""])
    guide.keeps(file)
