# SPDX-License-Identifier: GPL-3.0-or-later
"""The program ends."""
from stage.conditions import until


def take(guide):
    person = guide.person
    with guide.step("Exit ends the program without a question"):
        person.chooses("File", "Exit")
        until("the program's end", lambda: person.process.poll(), 0)
