# SPDX-License-Identifier: GPL-3.0-or-later
"""A person at the desktop: sees windows and controls, clicks and types."""
import subprocess

from stage.conditions import until
from stage.controls import windows_of

EntryNames = ("Word", "Definition", "Sentence")


class Person:
    def __init__(self, desktop, program):
        self.desktop = desktop
        self._program = program
        self.process = None

    def starts_the_program(self):
        self.process = self.desktop.start(self._program)
        return self.process

    # Looking

    def windows(self):
        return windows_of(self.process.pid)

    def titles(self):
        return [window.name for window in self.windows()]

    def window(self, title):
        """The window of that title, once it is the one that is worked in."""
        def look():
            for window in self.windows():
                if window.name == title and window.active:
                    return window
            raise LookupError(self.what_shows())

        return until(f"the active window '{title}'", look)

    def front(self):
        """The window that is worked in now."""
        def look():
            return next((window for window in self.windows() if window.active), None)

        return until("an active window", look)

    def control(self, role, name):
        return until(f"{role} '{name}'", lambda: self.front().find(role, name))

    def entry(self):
        """What the three entry boxes hold."""
        window = self.front()
        return tuple(window.find("text", name).text for name in EntryNames)

    def reads(self, line):
        """The line beside the word box."""
        self.control("status bar", line)

    def row(self, number):
        """Item number, word, definition and sentence in a row of the grid; row 0 is the header."""
        grid = self.control("table", "Word list")
        return tuple(grid.cell(number, column).name for column in range(4))

    def page(self):
        return [self.row(number) for number in range(1, 24)]

    def what_shows(self):
        """The windows with their words, for a report."""
        shown = []
        for window in self.windows():
            words = [part.name for part in window.below() if part.role == "label" and part.name]
            shown.append(f"{window}{' (active)' if window.active else ''} {words}")
        return "; ".join(shown) or "no window"

    # Doing

    def clicks(self, control, times=1, mouse_button=1):
        place = self._steady_place(control)
        x, y = (round(part * self.desktop.scale) for part in place.middle)
        self._hand("mousemove", x, y, "click", "--repeat", times, mouse_button)

    def turns_the_wheel(self, control, notches):
        """Down for positive numbers."""
        x, y = (round(part * self.desktop.scale) for part in self._steady_place(control).middle)
        button = 5 if notches > 0 else 4
        self._hand("mousemove", x, y, "click", "--repeat", abs(notches), button)

    def presses(self, *keys):
        self._hand("key", *keys)

    def holds(self, key):
        self._hand("keydown", key)

    def releases(self, key, after):
        """After so many seconds; the keyboard repeats a key after two thirds of one."""
        self._hand("sleep", after, "keyup", key)

    def types(self, text):
        """Letters on the keys of keyboard.xkb: é, è, à, ç as capitals are not among them."""
        self._hand("type", "--delay", 4, "--", text)

    def fills(self, name, text):
        """Clicks into a text box and writes there."""
        self.clicks(self.control("text", name))
        self.writes(name, text)

    def writes(self, name, text):
        """Puts the text into the text box, which has the keyboard, in place of what it held."""
        box = self.control("text", name)
        until(f"the cursor in '{name}'", lambda: box.focused)
        self.presses("ctrl+a")
        self.types(text)
        until(f"the text in '{name}'", lambda: box.text, text)

    def pushes(self, button):
        self.clicks(self.control("push button", button))

    def opens_menu(self, name):
        """The items of the menu by their names."""
        menu = until(f"menu {name}", lambda: self._menu_bar().find("menu item", name))
        self.clicks(menu)

        def items():
            popup = next(child for child in menu.children if child.shows)
            return {item.name: item for item in popup.children if item.role == "menu item"}

        return until(f"the menu {name} open", items)

    def opens_menu_of(self, control):
        """The menu that the right mouse button opens; assistive tools do not see it."""
        before = self._windows_on_screen()
        self.clicks(control, mouse_button=3)
        until(f"the menu of {control}", lambda: self._windows_on_screen() > before)

    def chooses(self, menu, item):
        self.clicks(self.opens_menu(menu)[item])

    def is_told(self, message):
        """The message box of that text."""
        def box():
            for window in self.windows():
                if window.active and any(part.name == message for part in window.below()):
                    return window
            raise LookupError(self.what_shows())

        return until(f"a message box \"{message}\"", box)

    def answers(self, message, button):
        box = self.is_told(message)
        self.clicks(box.find("push button", button))
        # The program may end with its message.
        until(f"\"{message}\" gone", lambda: self.process.poll() is not None or not box.shows)

    def _windows_on_screen(self):
        found = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        return len(found.stdout.split())

    def _menu_bar(self):
        return next(part for part in self.front().below() if part.role == "menu bar")

    def _steady_place(self, control):
        seen = []

        def steady():
            seen.append(control.box)
            return control.usable and len(seen) > 1 and seen[-1] == seen[-2]

        until(f"{control} to be usable", steady)
        return seen[-1]

    @staticmethod
    def _hand(*arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True)

