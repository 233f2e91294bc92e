# SPDX-License-Identifier: GPL-3.0-or-later
import signal

from stage.conditions import until
from stage.listfile import entries
from stage.session import SessionManager
from stage.testing import DesktopTest, Untitled, main

Question = "Your changes have not been saved.  Do you want to save them?"


class EndRequest(DesktopTest):
    def startsAndAdds(self, word):
        person = self.starts()
        person.window(Untitled)
        person.pushes("New Word")
        person.writes("Word", word)
        person.presses("Return")
        until("the word in the list", lambda: person.row(1)[1], word)
        return person

    def saves(self, person, name):
        """Answers Yes and gives the file a name, in the folder of the lists."""
        person.answers(Question, "Yes")
        dialog = person.window("Save File As")
        person.fills("File name:", name)
        person.clicks(dialog.find("push button", "Save"))
        return self.home / "Documents" / "Lexibrook" / "MyLists" / f"{name}.lwx"

    def ends(self, person):
        until("the program's end", lambda: person.process.poll(), 0)

    def test_aSignalWithoutChangesEndsTheProgram(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                person = self.starts()
                person.window(Untitled)
                person.process.send_signal(number)
                self.ends(person)

    def test_aSignalDuringTheSplashEndsTheProgram(self):
        person = self.starts()
        until("the splash", person.titles, ["The Tanglewit"])
        person.process.terminate()
        self.ends(person)

    def test_afterASignalTheWordsAreSavedWithYes(self):
        person = self.startsAndAdds("cow")
        person.process.terminate()
        person.is_told(Question)
        self.picture("end-request")
        person.process.terminate()  # as one that is in a hurry does: the question stands
        file = self.saves(person, "animals")
        self.ends(person)
        self.assertEqual(entries(file), [("cow", "", "")])

    def test_afterASignalNothingIsSavedWithNo(self):
        person = self.startsAndAdds("cow")
        person.process.terminate()
        person.answers(Question, "No")
        self.ends(person)

    def test_aSignalCancelsAFileDialogFirst(self):
        person = self.startsAndAdds("cow")
        person.chooses("File", "Import...")
        person.window("Import words")
        person.process.terminate()
        file = self.saves(person, "animals")
        self.ends(person)
        self.assertEqual(entries(file), [("cow", "", "")])

    def test_logoutWithoutChangesEndsTheProgram(self):
        with SessionManager() as session:
            person = self.starts()
            person.window(Untitled)
            until("the program in the session", lambda: session.is_saved)
            session.logs_out()
            self.ends(person)
            self.assertFalse(session.is_cancelled)

    def test_atLogoutTheWordsAreSavedWithYes(self):
        with SessionManager() as session:
            person = self.startsAndAdds("cow")
            until("the program in the session", lambda: session.is_saved)
            session.logs_out()
            file = self.saves(person, "animals")
            self.ends(person)
            self.assertEqual(entries(file), [("cow", "", "")])
            self.assertFalse(session.is_cancelled)

    def test_atLogoutNothingIsSavedWithNo(self):
        with SessionManager() as session:
            person = self.startsAndAdds("cow")
            until("the program in the session", lambda: session.is_saved)
            session.logs_out()
            person.answers(Question, "No")
            self.ends(person)
            self.assertFalse(session.is_cancelled)

    def test_anOpenDialogHoldsUpTheLogoutUntilItsCommandHasEnded(self):
        with SessionManager() as session:
            person = self.startsAndAdds("cow")
            until("the program in the session", lambda: session.is_saved)
            person.chooses("File", "Import...")
            person.window("Import words")
            session.logs_out()
            until("a logout that is held up", lambda: session.is_cancelled)
            file = self.saves(person, "animals")
            self.ends(person)
            self.assertEqual(entries(file), [("cow", "", "")])


if __name__ == "__main__":
    main()
