# SPDX-License-Identifier: GPL-3.0-or-later
"""The words of another list are imported; it shares some with the list that is open."""
from stage.conditions import until
from stage.listfile import writes
from tour import opening, saving

Name = "French - From a Friend"
Words = [
    ("Forêt", "forest; many trees that stand together", "La forêt est calme la nuit."),
    ("grenouille", "frog", "La grenouille saute dans l'eau."),
    ("école", "school", "L'école est fermée le dimanche."),
    ("chaussure", "shoe", "Il a perdu une chaussure."),
    ("frère", "brother", "Son frère chante bien."),
    ("tournesol", "sunflower", "Le tournesol regarde le soleil."),
]
First, Second = Words[0], Words[2]
Boxes = ("word", "definition", "sentence")


def take(guide):
    person = guide.person
    listed = list(guide.expected)
    own = {word.casefold(): (word, definition, sentence)
           for word, definition, sentence in reversed(listed)}
    writes(guide.lists / f"{Name}.lwx", Words)

    with guide.step("File > Import takes a friend's list"):
        person.chooses("File", "Import...")
        opening.picks(guide, "Import words", Name, "dialog-import")

    with guide.step("A word that is there already is shown beside the own one; Yes adds it"):
        sees_conflict(guide, First, own, listed)
        guide.picture("question-word-existed")
        guide.picture_for_handbook("word-existed", person.front())
        person.pushes("Yes")

    with guide.step("No To All keeps the next one out, and all after it"):
        sees_conflict(guide, Second, own, listed)
        guide.picture("question-next-word")
        person.pushes("No To All")

    new = [word for word in Words if word == First or word[0].casefold() not in own]
    listed += new
    with guide.step("The import says how many words came in"):
        message = f"{len(new)} words imported"
        person.is_told(message)
        guide.picture("message-imported")
        person.answers(message, "OK")

    with guide.step("The new words stand at the end of the list"):
        grid = person.control("table", "Word list")
        # The page in sight depends on the last word of the game.
        person.turns_the_wheel(grid, -len(listed))
        person.turns_the_wheel(grid, len(listed))
        until("the last full page", lambda: person.page(),
              opening.rows_from(listed, opening.last_page(listed)))
        guide.picture("words-imported")

    guide.expected = listed
    with guide.step("Save writes them to the list's own file"):
        saving.saves(guide, guide.lists / f"{saving.NewName}.lwx", "message-saved-import")


def sees_conflict(guide, incoming, own, listed):
    person = guide.person
    existing = own[incoming[0].casefold()]
    person.window("Word already existed")
    until("the question",
          lambda: person.front().find("label", f"'{existing[0]}' already exist. Add anyway?"))
    position = listed.index(existing) + 1
    until("the own word's number",
          lambda: person.front().find("panel", f"Word in current wordlist: {position}"))
    for whose, entry in (("Incoming", incoming), ("Existing", existing)):
        until(f"the entry ({whose})",
              lambda: tuple(person.control("text", f"{whose} {box}").text for box in Boxes), entry)
