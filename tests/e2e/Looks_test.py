# SPDX-License-Identifier: GPL-3.0-or-later
"""Every window fits the screen, and in it nothing is cut or covered."""
import dataclasses
import itertools

from stage.conditions import until
from stage.controls import Box
from stage.person import Person
from stage.testing import DesktopTest, Untitled, main

VisibleRows = 24  # the header and 23 entries
Columns = 4


class Looks(DesktopTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        scale = cls.desktop.scale
        cls.screen = Box(0, 0, round(cls.desktop.width / scale), round(cls.desktop.height / scale))
        cls.name = f"{cls.options.size}@{scale:g}"
        # One copy of the program serves all tests; each leaves it idle and without a dialog.
        cls.person = Person(cls.desktop, cls.options.program)
        cls.person.starts_the_program()
        cls.window = cls.person.window(Untitled)

    def assertHolds(self, outer, inner, what):
        self.assertGreater(min(inner.width, inner.height), 0, what)
        self.assertTrue(outer.holds(inner), f"{what}: {inner} is not inside {outer}")

    def assertNothingIsCut(self, window):
        """Each control lies inside the one that it is part of."""
        for control in [window, *window.below()]:
            if control.role == "table":
                continue
            for part in control.children:
                if part.shows:
                    self.assertHolds(control.box, part.box, f"{part} in {control}")

    def assertNothingIsCovered(self, window):
        for control in [window, *window.below()]:
            if control.role == "table":
                continue
            parts = [part for part in control.children if part.shows]
            for one, other in itertools.combinations(parts, 2):
                self.assertFalse(one.box.overlaps(other.box),
                                 f"{one} {one.box} and {other} {other.box} overlap")

    def assertFits(self, window):
        box = window.box
        if self.desktop.scale != 1 and box.bottom == self.screen.bottom + 1:
            # Its upper edge lies on half a logical pixel.
            box = dataclasses.replace(box, height=box.height - 1)
        self.assertHolds(self.screen, box, repr(window))
        self.assertNothingIsCut(window)

    def test_theSplashFitsTheScreen(self):
        # A home of its own, and with it a copy of its own.
        self.desktop.new_home()
        person = self.starts()
        splash = until("the splash", lambda: person.windows()[0])
        until("the labels of the splash", lambda: splash.find("label", "The Tanglewit"))
        self.assertFits(splash)
        self.assertNothingIsCovered(splash)

    def test_theMainWindowIsWholeInEachMode(self):
        self.assertFits(self.window)
        self.assertNothingIsCovered(self.window)
        self.picture(f"main-{self.name}")
        self.person.pushes("New Word")
        until("Add to be pushed", lambda: self.window.find("push button", "Add").usable)
        self.assertFits(self.window)
        self.assertNothingIsCovered(self.window)
        self.person.pushes("Abort")
        until("New Word shown", lambda: self.window.find("push button", "New Word").usable)

    def test_theMainWindowFillsTheScreen(self):
        box = self.window.box
        self.assertEqual(box.width, self.screen.width)
        self.assertLessEqual(self.screen.bottom - box.bottom, 1)
        self.assertLess(box.y, 40)  # below its caption

    def test_headerAnd23RowsFillTheGridExactly(self):
        grid = self.person.control("table", "Word list")
        bottom = grid.box.y
        for row in range(VisibleRows):
            for column in range(Columns):
                cell = grid.cell(row, column).box
                self.assertHolds(grid.box, cell, f"row {row}, column {column}")
            self.assertLessEqual(abs(cell.y - bottom), 1, f"a gap above row {row}")
            bottom = cell.bottom
        self.assertLessEqual(grid.box.bottom - bottom, 2)

    def test_theMenusFitTheScreen(self):
        for menu in ("File", "Edit", "Game", "Help"):
            for name, item in self.person.opens_menu(menu).items():
                self.assertHolds(self.screen, item.box, f"{menu} > {name}")
            self.picture(f"menu-{menu}-{self.name}")
            self.person.presses("Escape", "Escape")
            until("the menu closed", lambda: not item.shows)

    def test_theQuestionAndTheFileDialogsFitTheScreen(self):
        self.person.chooses("File", "Open...")
        self.assertFits(self.person.is_told("End current lesson?"))
        self.person.answers("End current lesson?", "OK")
        self.assertFits(self.person.window("Open File"))
        self.picture(f"open-{self.name}")
        self.person.pushes("Cancel")
        self.person.window(Untitled)
        self.person.chooses("File", "Save As...")
        self.assertFits(self.person.window("Save File As"))
        self.person.pushes("Cancel")
        self.person.window(Untitled)


if __name__ == "__main__":
    main()
