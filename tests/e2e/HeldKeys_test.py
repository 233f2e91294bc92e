# SPDX-License-Identifier: GPL-3.0-or-later
"""A key that is held down on the keyboard of a real display."""
from stage.conditions import until
from stage.testing import DesktopTest, Untitled, main

Duplicate = "Word already exist.  Add word anyway?"


class HeldKeys(DesktopTest):
    def test_enterAsksTheQuestionAndDoesNotAnswerIt(self):
        person = self.starts()
        person.window(Untitled)
        person.pushes("New Word")
        person.fills("Word", "chat")
        person.presses("Return")
        until("the added word", lambda: person.row(1)[1], "chat")
        until("the box emptied", lambda: not person.control("text", "Word").text)
        person.writes("Word", "chat")
        person.holds("Return")
        box = person.is_told(Duplicate)
        person.releases("Return", after=2)
        self.assertTrue(box.shows)  # and not another one of the same text
        # What is pressed now comes after all repeats.
        person.presses("Tab")
        until("the other button", lambda: box.find("push button", "Yes").focused)
        person.answers(Duplicate, "No")
        person.window(Untitled)
        self.assertEqual(person.control("text", "Word").text, "chat")


if __name__ == "__main__":
    main()
