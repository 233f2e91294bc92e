# SPDX-License-Identifier: GPL-3.0-or-later
"""The program says what it is."""
from stage.conditions import until


def take(guide):
    person = guide.person
    main = person.front().name
    with guide.step("The Help menu opens"):
        items = person.opens_menu("Help")
        until("the handbook offered", lambda: items["Handbook"].usable)
        guide.picture("menu-help")
        person.presses("Escape", "Escape")
        until("the menu closed", lambda: not items["Handbook"].shows)

    with guide.step("Help > About The Tanglewit tells version and folder of the lists"):
        person.chooses("Help", "About The Tanglewit")
        about = person.window("About The Tanglewit")
        until("the version", lambda: about.find("label", "Version 1.0.0"))
        until("the folder", lambda: about.find("text", "Folder of word lists").text,
              str(guide.lists))
        guide.picture("dialog-about")
        person.pushes("OK")
        person.window(main)
