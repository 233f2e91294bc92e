# SPDX-License-Identifier: GPL-3.0-or-later
"""A person who uses the program through an assistive tool alone, without keys and pointer."""
from stage.conditions import until
from stage.person import Person


class AssistedPerson(Person):
    def does(self, role, name):
        """What the control is for: its button is pressed, its item chosen."""
        usable = until(f"{role} '{name}' usable", lambda: next(
            part for part in self.front().below()
            if part.role == role and part.name == name and part.usable))
        usable.does()

    def pushes(self, button):
        self.does("push button", button)

    def fills(self, name, text):
        box = self.control("text", name)
        until(f"'{name}' to be usable", lambda: box.usable)
        box.takes_the_keyboard()
        box.text = text
        until(f"the text in '{name}'", lambda: self.control("text", name).text, text)

    def sets(self, name, value):
        """The value of a scroll bar."""
        bar = self.control("scroll bar", name)
        bar.takes_the_keyboard()
        bar.value = value
        until(f"the value of '{name}'", lambda: bar.value, value)

    def picks(self, row, column=1):
        """The entry in a row of the grid."""
        self.control("table", "Word list").cell(row, column).does()

    def chooses(self, menu, item):
        until(f"menu {menu}", lambda: self._menu_bar().find("menu item", menu)).does()
        self.does("menu item", item)

    def answers(self, message, button):
        box = self.is_told(message)
        box.find("push button", button).does()
        until(f"\"{message}\" gone", lambda: self.process.poll() is not None or not box.shows)

    @staticmethod
    def _hand(*arguments):
        raise AssertionError(f"done by hand: {arguments}")
