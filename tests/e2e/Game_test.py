# SPDX-License-Identifier: GPL-3.0-or-later
"""A whole game by the keyboard alone."""
from stage.conditions import until
from stage.game import Game, GameTest, Miss, Scores, Title
from stage.testing import main


class WholeGame(GameTest):
    def box(self, name):
        return self.person.control("text", name)

    def hasKeyboard(self, role, name):
        until(f"the keyboard in '{name}'", lambda: self.person.control(role, name).focused)

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
        person.window(Title)
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
            self.showsHits(hits)
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
        self.showsScoreOf("Anna", score)
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


if __name__ == "__main__":
    main()
