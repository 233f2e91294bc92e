# SPDX-License-Identifier: GPL-3.0-or-later
"""A game: tiles, a hit, a miss, the next level, and a name in the Top 10."""
from stage.conditions import until

Game = "The Tanglewit"
Miss = "Incorrect Answer"
Scores = "Top 10"
Player = "Anna"


def take(guide):
    person = guide.person
    main = person.front().name
    words = {definition: word for word, definition, _ in guide.expected}
    opens(guide)
    gets_a_first_word(guide, words)
    misses(guide, words)
    reaches_level_2(guide, words)
    loses(guide, words)
    quits(guide, main)


def opens(guide):
    person = guide.person
    with guide.step("Game > Music offers two kinds of music and none"):
        music = person.opens_menu("Game")["Music"]
        person.clicks(music)
        item = until("Upbeat offered", lambda: music.find("menu item", "Upbeat"))
        guide.picture("menu-music")
        person.clicks(item)

    with guide.step("Play opens the game in the main window's place"):
        person.pushes("Play")
        person.window(Game)
        until("the main window gone", person.titles, [Game])
        until("what to do", lambda: person.front().find("label", "Please click Start to begin."))
        guide.picture("game-ready")


def clue(person, words):
    """The definition on show."""
    def look():
        shown = [part.name for part in person.front().below() if part.role == "label"]
        return next((text for text in shown if text in words), "")

    return until("the clue of a word of the list", look)


def label(person, text):
    return until(f"'{text}'", lambda: person.front().find("label", text))


def beside(person, caption):
    """What the label behind a caption shows."""
    shown = [part.name for part in person.front().below() if part.role == "label"]
    return shown[shown.index(caption) + 1]


def answers(person, words, last=None):
    """Types the word of the clue."""
    shown = until("another clue", lambda: (now := clue(person, words)) != last and now)
    person.writes("Your answer", words[shown])
    person.presses("Return")
    return shown


def gets_a_first_word(guide, words):
    person = guide.person
    with guide.step("Start shows a scrambled word with its definition as the clue"):
        person.presses("Return")
        word = words[clue(person, words)]
        game = person.front()
        scrambled = until("its letters", lambda: next(
            part.name for part in game.below()
            if part.role == "label" and sorted(part.name) == sorted(word)))
        # Letters that occur twice may change places, so "été" may read as before.
        until("them in another order",
              lambda: scrambled != word or len(set(word)) < len(word), limit=0)

    with guide.step("The countdown runs and turns up one tile after another"):
        for letter in word[:2]:
            until(f"a tile with {letter}", lambda: game.find("label", letter), limit=30)
        guide.picture("game-tiles")
        guide.picture_for_handbook("game", game)

    with guide.step("The right word is a hit"):
        answers(person, words)
        until("one hit", lambda: game.find("panel", "Hits: 1"))
        until("its points", lambda: beside(person, "Score"), str(len(word) - 3))
        guide.picture("game-hit")


def misses(guide, words):
    person = guide.person
    with guide.step("A wrong word costs a life and asks for the right one"):
        word = words[clue(person, words)]
        loses_a_life(guide, word, "game-miss")
        until("4 lives", lambda: beside(person, "Lives"), "4")


def loses_a_life(guide, word, picture=None):
    person = guide.person
    game = person.front()
    person.writes("Your answer", "wrong")
    person.presses("Return")
    person.window(Miss)
    label(person, f"The correct answer is: {word}")
    if picture:
        guide.picture(picture)
        guide.picture_for_handbook(picture, game)
    person.writes("Type the word", word)
    person.pushes("OK")
    person.window(Game)


def reaches_level_2(guide, words):
    person = guide.person
    with guide.step("Twenty hits lead to level 2"):
        last = None
        game = person.front()
        for hits in range(2, 21):
            last = answers(person, words, last)
            if hits < 20:
                until(f"{hits} hits", lambda: person.front().find("panel", f"Hits: {hits}"))
        person.is_told("Level 2")
        guide.picture("game-level")
        guide.picture_for_handbook("game-level", game)
        person.answers("Level 2", "OK")
        person.window(Game)
        until("level 2", lambda: beside(person, "Level"), "2")


def loses(guide, words):
    person = guide.person
    with guide.step("The last life gone, the score enters the Top 10 with a name"):
        for _ in range(3):
            loses_a_life(guide, words[clue(person, words)])
        word = words[clue(person, words)]
        game = person.front()
        person.writes("Your answer", "wrong")
        person.presses("Return")
        person.window(Miss)
        person.writes("Type the word", word)
        person.pushes("OK")
        person.window(Scores)
        person.writes("Your name", Player)
        guide.picture("top10-name")
        guide.picture_for_handbook("top10", game)
        person.presses("Return")
        until("the row with the name", lambda: next(
            part for part in person.front().below() if part.name.endswith(f" :   {Player}")))
        guide.picture("top10")
        person.pushes("Close")
        person.window(Game)
        label(person, "Please click Restart to shuffle.")
        guide.picture("game-over")
        guide.picture_for_handbook("game-over", game)


def quits(guide, main):
    person = guide.person
    with guide.step("Quit says good-bye and brings the main window back"):
        person.pushes("Quit")
        person.window(Scores)
        label(person, "Good bye. Thank you for playing The Tanglewit!!!")
        guide.picture("good-bye")
        guide.picture_for_handbook("good-bye", person.front())
        person.pushes("Close")
        person.window(main)
        until("only the main window", person.titles, [main])
