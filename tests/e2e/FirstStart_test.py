# SPDX-License-Identifier: GPL-3.0-or-later
import pathlib

from stage.conditions import until
from stage.listfile import entries, written
from stage.testing import DesktopTest, Untitled, main

Sources = pathlib.Path(__file__).resolve().parents[2] / "assets" / "lists"


def contents(folder):
    return {file.name: (file.read_bytes(), file.stat().st_mtime_ns) for file in folder.iterdir()}


class FirstStart(DesktopTest):
    def setUp(self):
        super().setUp()
        self.lists = self.home / "Documents" / "Lexibrook" / "MyLists"

    def startsAndLeaves(self):
        person = self.starts()
        person.window(Untitled)
        self.leaves(person)

    def test_theFirstStartPutsTheSampleListsInTheirPlace(self):
        self.assertFalse(self.lists.exists())
        self.startsAndLeaves()
        names = {source.stem for source in Sources.glob("*.txt")}
        self.assertGreaterEqual(len(names), 5)
        self.assertEqual({file.name for file in self.lists.iterdir()},
                         {f"{name}.lwx" for name in names})
        for name in names:
            with self.subTest(name):
                listed = entries(self.lists / f"{name}.lwx")
                self.assertEqual(listed, written(Sources / f"{name}.txt"))
                self.assertGreaterEqual(len(listed), 40)

    def test_nothingElseIsLeftBesideTheSampleLists(self):
        self.startsAndLeaves()
        self.assertEqual([entry.name for entry in self.lists.parent.iterdir()], ["MyLists"])

    def test_aLaterStartTouchesNothing(self):
        self.startsAndLeaves()
        deleted, changed, *_ = sorted(self.lists.iterdir())
        deleted.unlink()
        changed.write_bytes(b"\x00\x00")
        (self.lists / "Mine.lwx").write_bytes(b"\x00\x00")
        before = contents(self.lists)
        self.startsAndLeaves()
        self.assertEqual(contents(self.lists), before)

    def test_anEmptiedFolderStaysEmpty(self):
        self.startsAndLeaves()
        for file in self.lists.iterdir():
            file.unlink()
        self.startsAndLeaves()
        self.assertEqual(contents(self.lists), {})

    def test_theOpenDialogStartsAmongTheSampleLists(self):
        person = self.starts()
        person.window(Untitled)
        person.chooses("File", "Open...")
        person.answers("End current lesson?", "OK")
        dialog = person.window("Open File")
        for source in sorted(Sources.glob("*.txt")):
            until("a sample list", lambda: dialog.find("table cell", f"{source.stem}.lwx"))


if __name__ == "__main__":
    main()
