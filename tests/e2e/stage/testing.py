# SPDX-License-Identifier: GPL-3.0-or-later
"""What the end-to-end tests have in common; to be run as <Thing_test.py> <program> [options]."""
import argparse
import pathlib
import sys
import unittest

from stage.conditions import until
from stage.desktop import Desktop
from stage.person import Person

Untitled = "LexiBrook- The Tanglewit: (Untitled)"


class DesktopTest(unittest.TestCase):
    """Each test has an empty home folder on the one desktop."""

    options = None
    kind_of_person = Person

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.enterClassContext(Desktop(cls.options.size, cls.options.scale))

    def setUp(self):
        self.home = self.desktop.new_home()
        self._started = []

    def tearDown(self):
        for process in self._started:
            process.kill()
            process.wait()

    def starts(self):
        """A person who has just started the program."""
        person = self.kind_of_person(self.desktop, self.options.program)
        self._started.append(person.starts_the_program())
        return person

    def leaves(self, person):
        person.chooses("File", "Exit")
        until("the program's end", lambda: person.process.poll(), 0)

    def picture(self, name):
        self.options.pictures.mkdir(parents=True, exist_ok=True)
        self.desktop.picture(self.options.pictures / f"{name}.png")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program", type=lambda path: pathlib.Path(path).resolve())
    parser.add_argument("--size", default="1024x768")
    parser.add_argument("--scale", type=float, default=1)
    parser.add_argument("--pictures", type=pathlib.Path, default=pathlib.Path("pictures"))
    parser.add_argument("--preload", type=pathlib.Path, help="a library that the test knows of")
    DesktopTest.options, rest = parser.parse_known_args()
    unittest.main(argv=[sys.argv[0], "--verbose", *rest])
