# SPDX-License-Identifier: GPL-3.0-or-later
"""The list as flash cards: turned by hand, then by themselves."""
import time

from stage.conditions import until

Title = "Dialog Caption"
Closed = "Click on card"


def take(guide):
    person = guide.person
    main = person.front().name
    definitions = {word: definition for word, definition, _ in guide.expected}
    turns_by_hand(guide, definitions)
    lets_them_run(guide, definitions)
    with guide.step("Cancel returns to the main window"):
        person.pushes("Cancel")
        person.window(main)
        until("only the main window", person.titles, [main])


def card(person, name):
    return person.control("text", name).text


def new_word(person, definitions, last):
    """The word on the word card, once it is another one of the list."""
    def look():
        word = card(person, "Word card")
        return word if word != last and word in definitions else ""

    return until("another word of the list on the word card", look)


def turns_by_hand(guide, definitions):
    person = guide.person
    with guide.step("Game > Quick Flash shows a word; its definition card is closed"):
        person.chooses("Game", "Quick Flash")
        dialog = person.window(Title)
        word = new_word(person, definitions, None)
        until("the closed card", lambda: card(person, "Definition card").strip(), Closed)
        until("Auto Flash offered", lambda: dialog.find("push button", "Auto Flash").usable)
        guide.picture("card-closed")

    with guide.step("A click opens the definition card"):
        person.clicks(person.control("text", "Definition card"))
        until("the definition", lambda: card(person, "Definition card"), definitions[word])
        until("the same word", lambda: card(person, "Word card"), word, limit=0)
        guide.picture("card-open")
        guide.picture_for_handbook("cards", person.front())

    with guide.step("Next shows another word, its card closed again; Previous goes back"):
        person.pushes("Next")
        new_word(person, definitions, word)
        until("the closed card", lambda: card(person, "Definition card"), Closed)
        guide.picture("card-next")
        person.pushes("Previous")
        until("the first word", lambda: card(person, "Word card"), word)


def lets_them_run(guide, definitions):
    person = guide.person
    word = card(person, "Word card")
    with guide.step("Auto Flash shows the next word alone, and Stop in its own place"):
        place = person.control("push button", "Auto Flash").box
        person.pushes("Auto Flash")
        dialog = person.front()
        stop = until("Stop", lambda: dialog.find("push button", "Stop"))
        began = time.monotonic()
        until("Stop where Auto Flash was", lambda: stop.box, place)
        word = new_word(person, definitions, word)
        until("an empty definition card", lambda: card(person, "Definition card"), "")
        for name in ("Next", "Previous"):
            until(f"{name} disabled", lambda: not dialog.find("push button", name).usable)
        guide.picture("cards-run-word", still=person.control("text", "Word card"))

    with guide.step("About three seconds later its definition follows by itself"):
        until("the definition", lambda: card(person, "Definition card"), definitions[word])
        lasted = time.monotonic() - began
        until(f"a word alone for about 3 s (it took {lasted:.1f} s)", lambda: 2 < lasted < 6,
              limit=0)
        until("the same word", lambda: card(person, "Word card"), word, limit=0)
        guide.picture("cards-run-definition", still=person.control("text", "Definition card"))

    with guide.step("Stop leaves the cards as they are and gives the buttons back"):
        person.pushes("Stop")
        for name in ("Auto Flash", "Next", "Previous"):
            until(f"{name} to be pushed", lambda: dialog.find("push button", name).usable)
        until("Stop gone", lambda: not stop.shows)
        until("the same cards",
              lambda: (card(person, "Word card"), card(person, "Definition card")),
              (word, definitions[word]), limit=0)
