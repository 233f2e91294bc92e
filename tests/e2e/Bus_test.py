# SPDX-License-Identifier: GPL-3.0-or-later
"""What can be done through the accessibility interface alone: a game, and the work on a list."""
import subprocess

from stage.assistive import AssistedPerson
from stage.conditions import until
from stage.game import Entries, Game, GameTest, Miss, Scores, Title
from stage.listfile import entries, writes
from stage.testing import main

New = ("lemon", "a sour fruit", "A lemon is yellow.")
Friends = [
    ("Bread", "what a baker bakes", "The bread is fresh."),
    ("melon", "a large fruit", "We share a melon."),
    ("honey", "what bees make", "Honey is sweet."),
]
Empty = ("", "", "")


class Bus(GameTest):
    kind_of_person = AssistedPerson

    def setUp(self):
        super().setUp()
        person = self.person
        person.chooses("File", "Open...")
        person.answers("End current lesson?", "OK")
        person.window("Open File")
        person.fills("File name:", "Food.lwx")
        person.pushes("Open")
        person.window(Title)

    # The game

    def enters(self, text):
        self.person.fills("Your answer", text)
        self.person.pushes("Enter")

    def test_aGame(self):
        person = self.person
        person.pushes("Play")
        person.window(Game)
        for step, level in ((-1, "2"), (1, "1"), (1, "1")):
            person.control("scroll bar", "Starting level").value = step
            until(f"level {level}", lambda: self.beside("Level"), level)
        person.pushes("Start")
        self.word()
        person.pushes("View Top 10")
        person.window(Scores)
        person.pushes("Close")
        person.window(Game)

        for hits in (1, 2):
            self.enters(self.word())
            self.showsHits(hits)
        score = self.beside("Score")
        person.pushes("Hide")
        person.pushes("Show")
        for lives in (4, 3, 2, 1, 0):
            word = self.word()
            self.enters("wrong")
            person.window(Miss)
            self.shows(f"The correct answer is: {word}")
            if lives == 4:
                person.pushes("Hide Word")
                person.fills("Type the word", "still wrong")
                person.pushes("OK")
                person.answers(f"The correct word is: '{word}'", "OK")
                person.window(Miss)
            person.fills("Type the word", word)
            person.pushes("OK")
            if lives > 0:
                person.window(Game)
                until(f"{lives} lives", lambda: self.beside("Lives"), str(lives))
        person.window(Scores)
        person.fills("Your name", "Anna")
        person.pushes("Enter")
        self.showsScoreOf("Anna", score)
        person.pushes("Close")
        person.window(Game)
        self.shows("Please click Restart to shuffle.")
        person.pushes("Restart")
        self.shows("Word List has been shuffled. Please click Start to begin.")
        person.pushes("Quit")
        person.window(Scores)
        person.pushes("Close")
        self.assertBackAtTheList()

    # The list

    def test_theWorkOnAList(self):
        listed = list(Entries)
        self.readsTheGrid()
        self.adds(listed)
        self.updates(listed)
        self.saves(listed)
        self.imports(listed)
        self.saves(listed)
        self.prints(listed)
        self.person.chooses("File", "Exit")
        until("the program's end", lambda: self.person.process.poll(), 0)

    def readsTheGrid(self):
        """Cell by cell, each with its headers."""
        grid = self.person.control("table", "Word list")
        self.assertEqual([grid.column_header(column).name for column in (1, 2, 3)],
                         ["Vocabulary Word", "Definition", "Sentence"])
        for number, entry in enumerate(Entries, 1):
            self.assertEqual(grid.row_header(number).name, str(number))
            self.assertEqual(self.person.row(number), (str(number), *entry))

    def adds(self, listed):
        person = self.person
        person.pushes("New Word")
        self.fillsBoxes(New)
        person.pushes("Add")
        listed.append(New)
        until("empty boxes for the next", person.entry, Empty)
        person.pushes("Abort")
        person.control("push button", "New Word")
        until("the new word in the grid", lambda: person.row(len(listed)),
              (str(len(listed)), *New))

    def updates(self, listed):
        person = self.person
        person.picks(2)
        until("the entry in its boxes", person.entry, listed[1])
        listed[1] = (*listed[1][:2], "The bread is still warm.")
        person.fills("Sentence", listed[1][2])
        person.pushes("Update")
        until("the new sentence in the grid", lambda: person.row(2), ("2", *listed[1]))
        person.reads(f"{len(listed)} words · not saved · Save writes Food.lwx")

    def fillsBoxes(self, entry):
        for name, text in zip(("Word", "Definition", "Sentence"), entry):
            self.person.fills(name, text)

    def saves(self, listed):
        person = self.person
        person.chooses("File", "Save")
        person.answers(f"{self.list} has been saved.", "OK")
        until("the entries on disk", lambda: entries(self.list), listed)

    def imports(self, listed):
        person = self.person
        writes(self.folder / "Friend.lwx", Friends)
        person.chooses("File", "Import...")
        person.window("Import words")
        person.fills("File name:", "Friend.lwx")
        person.pushes("Open")
        self.seesConflict(Friends[0], 2, listed)
        person.pushes("Allow Modify")
        listed[1] = (listed[1][0], "a loaf", listed[1][2])
        person.fills("Existing definition", "a loaf")
        person.pushes("Update changes")
        person.answers("Are you sure you want to change the content of this word?", "OK")
        person.window("Word already existed")
        person.pushes("Yes")
        self.seesConflict(Friends[2], 7, listed)
        person.pushes("No")
        person.answers("2 words imported", "OK")
        listed += Friends[:2]
        person.window(Title)
        person.sets("First entry shown", 1)
        until("all words in the grid", lambda: [person.row(row) for row in range(1, 11)],
              [(str(number), *entry) for number, entry in enumerate(listed, 1)])

    def seesConflict(self, incoming, position, listed):
        person = self.person
        existing = listed[position - 1]
        self.shows(f"'{existing[0]}' already exist. Add anyway?")
        until("the own word's number",
              lambda: person.front().find("panel", f"Word in current wordlist: {position}"))
        for whose, entry in (("Incoming", incoming), ("Existing", existing)):
            until(f"the entry ({whose})", lambda: tuple(
                person.control("text", f"{whose} {box}").text
                for box in ("word", "definition", "sentence")), entry)

    def prints(self, listed):
        person = self.person
        person.chooses("File", "Print...")
        person.window("Print")
        person.does("list item", "Print to PDF")
        person.does("radio button", "Landscape")
        person.does("radio button", "Subset")
        person.fills("From word number", "2")
        person.fills("To word number", "4")
        person.fills("Left margin in inches", "1.5")
        person.sets("Top margin in tenths of an inch", 20)
        person.does("check box", "Print item number of each word")
        until("no numbers", lambda: not person.control(
            "check box", "Print item number of each word").checked)
        person.sets("Number of copies", 2)
        until("the pages of both copies", lambda: person.front().find("status bar", "Page 1 of 2"))
        person.pushes("Next page")
        until("page 2", lambda: person.front().find("status bar", "Page 2 of 2"))
        person.pushes("Print")
        person.window("Print to PDF")
        person.fills("File name:", "Food")
        person.pushes("Save")
        person.window(Title)
        file = self.folder / "Food.pdf"
        until("the file", file.exists)
        words = " ".join(f"{word}: {definition} {sentence}"
                         for word, definition, sentence in listed[1:4])
        printed = subprocess.run(["pdftotext", "-raw", file, "-"], check=True, capture_output=True,
                                 text=True).stdout
        self.assertEqual(printed.split(), (words + " " + words).split())
        person.reads("Printed to Food.pdf.")


if __name__ == "__main__":
    main()
