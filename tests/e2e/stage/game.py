# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests of a whole game have in common: its list, and what a player sees."""
from stage.conditions import until
from stage.listfile import writes
from stage.testing import DesktopTest, Untitled

Game = "The Tanglewit"
Miss = "Incorrect Answer"
Scores = "Top 10"
Entries = [(word, f"a definition of {word}", f"Here is one {word}.")
           for word in ("apple", "bread", "cream", "dough", "flour", "grape", "honey")]
Words = {definition: word for word, definition, _ in Entries}
Title = "LexiBrook- The Tanglewit: Food.lwx"


class GameTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.folder = self.home / "Documents" / "Lexibrook" / "MyLists"
        self.folder.mkdir(parents=True)
        self.list = self.folder / "Food.lwx"
        writes(self.list, Entries)
        self.person = self.starts()
        self.person.window(Untitled)

    def labels(self):
        return [part.name for part in self.person.front().below() if part.role == "label"]

    def word(self):
        """The word that is asked for, by its definition."""
        return until("the clue of a word", lambda: next(
            Words[text] for text in self.labels() if text in Words))

    def beside(self, caption):
        shown = self.labels()
        return shown[shown.index(caption) + 1]

    def shows(self, text):
        until(f"'{text}'", lambda: text in self.labels())

    def showsHits(self, count):
        until(f"hit {count}", lambda: self.person.front().find("panel", f"Hits: {count}"))

    def showsScoreOf(self, name, score):
        until("the row with the name", lambda: any(
            f"   {score} :   {name}" in text for text in self.labels()))

    def assertBackAtTheList(self):
        self.person.window(Title)
        until("only the main window", self.person.titles, [Title])
        table = (self.home / ".local" / "share" / "Lexibrook" / "top10.bin").read_bytes()
        self.assertIn(b"Anna", table)
