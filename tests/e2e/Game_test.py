# SPDX-License-Identifier: GPL-3.0-or-later
"""A whole game without a mouse: by the keyboard alone, and by what assistive tools can do alone."""
from stage.conditions import until
from stage.listfile import writes
from stage.testing import DesktopTest, Untitled, main

Game = "The Tanglewit"
Miss = "Incorrect Answer"
Scores = "Top 10"
Entries = [(word, f"a definition of {word}", f"Here is one {word}.")
           for word in ("apple", "bread", "cream", "dough", "flour", "grape", "honey")]
Words = {definition: word for word, definition, _ in Entries}


class WholeGame(DesktopTest):
    def setUp(self):
        super().setUp()
        folder = self.home / "Documents" / "Lexibrook" / "MyLists"
        folder.mkdir(parents=True)
        self.list = folder / "Food.lwx"
        writes(self.list, Entries)
        self.person = self.starts()
        self.person.window(Untitled)

    # Looking

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

    def box(self, name):
        return self.person.control("text", name)

    def hasKeyboard(self, role, name):
        until(f"the keyboard in '{name}'", lambda: self.person.control(role, name).focused)

    def assertBackAtTheList(self):
        title = "LexiBrook- The Tanglewit: Food.lwx"
        self.person.window(title)
        until("only the main window", self.person.titles, [title])
        table = (self.home / ".local" / "share" / "Lexibrook" / "top10.bin").read_bytes()
        self.assertIn(b"Anna", table)

    # By the keyboard

    def types(self, name, text):
        self.hasKeyboard("text", name)
        self.person.types(text)
        until(f"the text in '{name}'", lambda: self.box(name).text, text)

    def answers(self, text):
        """Types it and presses Enter."""
        self.types("Your answer", text)
        self.person.presses("Return")

    def test_byTheKeyboardAlone(self):
        person = self.person
        person.presses("alt+f", "o")
        person.is_told("End current lesson?")
        person.presses("Return")
        person.window("Open File")
        self.types("File name:", "Food.lwx")
        person.presses("Return")
        person.window("LexiBrook- The Tanglewit: Food.lwx")
        person.presses("alt+g", "p")
        person.window(Game)
        self.shows("Please click Start to begin.")
        person.presses("alt+l", "Up", "Down")  # the starting level
        until("level 1 again", lambda: self.beside("Level"), "1")
        person.presses("alt+s")

        score = 0
        for hits in (1, 2, 3):
            word = self.word()
            self.answers(word)
            until(f"hit {hits}", lambda: person.front().find("panel", f"Hits: {hits}"))
            score = int(self.beside("Score"))
        self.assertGreater(score, 0)

        person.presses("alt+h")
        until("Show in the place of Hide", lambda: person.front().find("push button", "Show"))
        self.hasKeyboard("text", "Your answer")
        person.presses("alt+w")
        until("Hide again", lambda: person.front().find("push button", "Hide"))
        self.hasKeyboard("text", "Your answer")

        # The word is in sight: Enter goes to OK, and once more presses it.
        word = self.word()
        self.answers("wrong")
        person.window(Miss)
        self.shows(f"The correct answer is: {word}")
        self.types("Type the word", word)
        person.presses("Return")
        self.hasKeyboard("push button", "OK")
        self.shows("Press Enter again for OK.")
        person.presses("Return")
        person.window(Game)
        until("4 lives", lambda: self.beside("Lives"), "4")

        # The word is hidden: Enter is OK.
        word = self.word()
        self.answers(word.upper())
        person.window(Miss)
        person.presses("alt+h")
        until("the word hidden", lambda: person.front().find("push button", "Show Word"))
        self.types("Type the word", "still wrong")
        person.presses("Return")
        person.is_told(f"The correct word is: '{word}'")
        person.presses("Return")
        person.window(Miss)
        self.hasKeyboard("text", "Type the word")
        person.presses("ctrl+a")
        self.types("Type the word", word)
        person.presses("Return")
        person.window(Game)
        until("3 lives", lambda: self.beside("Lives"), "3")

        person.presses("alt+t")
        person.window(Scores)
        self.shows("Close ends this game's points; Esc goes back to the game")
        person.presses("Escape")
        person.window(Game)
        self.assertEqual(self.beside("Score"), str(score))
        self.hasKeyboard("text", "Your answer")

        for _ in range(3):
            word = self.word()
            self.answers("wrong")
            person.window(Miss)
            self.types("Type the word", word)
            person.presses("Return", "Return")
            until("the dialog gone", lambda: Miss not in person.titles())
        person.window(Scores)
        self.types("Your name", "Anna")
        person.presses("Return")
        until("the row with the name", lambda: any(
            f"   {score} :   Anna" in text for text in self.labels()))
        person.presses("Return")
        person.window(Game)
        self.shows("Please click Restart to shuffle.")
        self.hasKeyboard("push button", "Restart")
        person.presses("Return")
        self.shows("Word List has been shuffled. Please click Start to begin.")
        person.presses("alt+q")
        person.window(Scores)
        self.shows("Good bye. Thank you for playing The Tanglewit!!!")
        person.presses("Return")
        self.assertBackAtTheList()
        person.presses("alt+f", "x")
        until("the program's end", lambda: person.process.poll(), 0)

    # By assistive tools

    def does(self, role, name):
        self.person.control(role, name).does()

    def puts(self, name, text):
        self.box(name).text = text
        until(f"the text in '{name}'", lambda: self.box(name).text, text)

    def enters(self, text):
        self.puts("Your answer", text)
        self.does("push button", "Enter")

    def test_byAssistiveToolsAlone(self):
        person = self.person
        self.menu("File", "Open...")
        person.is_told("End current lesson?")
        self.does("push button", "OK")
        person.window("Open File")
        self.puts("File name:", "Food.lwx")
        self.does("push button", "Open")
        person.window("LexiBrook- The Tanglewit: Food.lwx")
        self.does("push button", "Play")
        person.window(Game)
        self.does("push button", "View Top 10")
        person.window(Scores)
        self.does("push button", "Close")
        person.window(Game)
        self.does("push button", "Start")

        for hits in (1, 2):
            self.enters(self.word())
            until(f"hit {hits}", lambda: person.front().find("panel", f"Hits: {hits}"))
        score = self.beside("Score")
        self.does("push button", "Hide")
        self.does("push button", "Show")
        for _ in range(5):
            person.window(Game)
            word = self.word()
            self.enters("wrong")
            person.window(Miss)
            self.shows(f"The correct answer is: {word}")
            self.puts("Type the word", word)
            self.does("push button", "OK")
            until("the dialog gone", lambda: Miss not in person.titles())
        person.window(Scores)
        self.puts("Your name", "Anna")
        self.does("push button", "Enter")
        until("the row with the name", lambda: any(
            f"   {score} :   Anna" in text for text in self.labels()))
        self.does("push button", "Close")
        person.window(Game)
        self.shows("Please click Restart to shuffle.")
        self.does("push button", "Quit")
        person.window(Scores)
        self.does("push button", "Close")
        self.assertBackAtTheList()

    def menu(self, name, item):
        bar = next(part for part in self.person.front().below() if part.role == "menu bar")
        bar.find("menu item", name).does()
        until(f"{item} in the menu", lambda: self.person.front().find("menu item", item)).does()


if __name__ == "__main__":
    main()
