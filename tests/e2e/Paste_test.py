# SPDX-License-Identifier: GPL-3.0-or-later
"""Pasting where there is nothing to paste: the program goes on, and its texts stay."""
from stage.conditions import until
from stage.person import EntryNames
from stage.testing import DesktopTest, Untitled, main

Typed = ("papillon", "butterfly", "Un papillon se pose sur la rose.")
Copied = "chat"


class Paste(DesktopTest):
    def starts_an_entry(self, typed):
        """A person who has typed a new entry."""
        person = self.starts()
        person.window(Untitled)
        person.pushes("New Word")
        for name, text in zip(EntryNames, typed):
            person.fills(name, text)
        until("the typed entry", person.entry, typed)
        return person

    def box(self, name):
        return self.person.control("text", name)

    def pastes_with_keys(self):
        self.person.presses("ctrl+v", "shift+Insert", "ctrl+shift+Insert")

    def assertEntryStays(self, name):
        # What is typed now comes after all that was pasted.
        expected = Typed[EntryNames.index(name)] + "x"
        self.person.presses("ctrl+End", "End", "x")
        until("the keys taken", lambda: self.person.process.poll() is not None
              or self.box(name).text == expected)
        self.assertIsNone(self.person.process.poll())
        self.person.presses("BackSpace")
        until("the entry as it was", self.person.entry, Typed)

    # No second click with the left button into the same box: it would select a word, and the
    # middle button would paste that.

    def test_withoutAnOwnerOfTheClipboard(self):
        self.person = self.starts_an_entry(Typed)
        for name in EntryNames:
            with self.subTest(name):
                self.person.opens_menu_of(self.box(name))
                self.person.presses("p", "Escape")  # Paste is disabled
                self.person.clicks(self.box(name), mouse_button=2)
                self.pastes_with_keys()
                self.assertEntryStays(name)

    def test_withoutAnOwnerWhatIsSelectedStays(self):
        self.person = self.starts_an_entry(Typed)
        for name in EntryNames:
            with self.subTest(name):
                self.person.clicks(self.box(name))
                self.person.presses("ctrl+a", "ctrl+v")
                self.person.presses("ctrl+a", "shift+Insert")
                self.assertEntryStays(name)

    def starts_beside_an_owner(self):
        """Another program has a text selected and copied. Returns what ends that program."""
        other = self.starts_an_entry((Copied, "", ""))
        other.clicks(other.control("text", "Word"), times=2)
        other.presses("ctrl+c")
        self.desktop.new_home()
        self.person = self.starts_an_entry(Typed)
        self.person.presses("ctrl+v")
        until("the copied text", self.person.entry, (*Typed[:2], Typed[2] + Copied))
        self.person.presses("ctrl+z")
        until("the entry as it was", self.person.entry, Typed)

        def end():
            other.process.kill()
            other.process.wait()

        return end

    def test_withAnOwnerThatHasJustGone(self):
        owner_goes = self.starts_beside_an_owner()
        owner_goes()
        self.pastes_with_keys()
        self.assertEntryStays("Sentence")
        for name in EntryNames:
            with self.subTest(name):
                self.person.clicks(self.box(name), mouse_button=2)
                self.pastes_with_keys()
                self.assertEntryStays(name)

    def test_withAnOwnerThatGoesWhileTheMenuIsOpen(self):
        owner_goes = self.starts_beside_an_owner()
        self.person.opens_menu_of(self.box("Definition"))
        owner_goes()
        self.person.presses("p")  # Paste
        self.assertEntryStays("Definition")


if __name__ == "__main__":
    main()
