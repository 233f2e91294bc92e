# SPDX-License-Identifier: GPL-3.0-or-later
"""The program where it is installed: <prefix>/bin/tanglewit."""
import configparser
import gzip
import os
import re
import shutil
import struct
import subprocess
import types
import unittest.mock
import xml.etree.ElementTree

from stage.conditions import until
from stage.testing import DesktopTest, Untitled, main
from tour import opening

Id = "org.lexibrook.Tanglewit"
Sizes = (16, 22, 24, 32, 48, 64, 128, 256)
SampleLists = 7


def needs(*programs):
    missing = [program for program in programs if not shutil.which(program)]
    return unittest.skipIf(missing, f"{', '.join(missing)} not installed")


class Installed(DesktopTest):
    @property
    def share(self):
        return self.options.program.parent.parent / "share"

    @property
    def metainfo(self):
        return self.share / "metainfo" / f"{Id}.metainfo.xml"

    def version(self):
        """The one that the change log begins with."""
        file, = (self.share / "doc" / "tanglewit").glob("changelog*")
        content = file.read_bytes()
        text = (gzip.decompress(content) if file.suffix == ".gz" else content).decode()
        return re.match(r"tanglewit \(([0-9.]+)\)", text)[1]

    def menu_entry(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(self.share / "applications" / f"{Id}.desktop")
        return entry["Desktop Entry"]

    def passes(self, *command):
        run = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)

    @needs("desktop-file-validate")
    def test_theMenuEntryIsValid(self):
        self.passes("desktop-file-validate", self.share / "applications" / f"{Id}.desktop")

    @needs("appstreamcli")
    def test_theMetainfoIsValid(self):
        self.passes("appstreamcli", "validate", "--no-net", self.metainfo)

    def test_theMenuEntryNamesTheProgramAndItsIcons(self):
        entry = self.menu_entry()
        self.assertEqual(entry["Exec"], self.options.program.name)
        icons, name = self.share / "icons" / "hicolor", entry["Icon"]
        for size in Sizes:
            header = (icons / f"{size}x{size}" / "apps" / f"{name}.png").read_bytes()[:24]
            self.assertEqual(struct.unpack(">8s8xII", header), (b"\x89PNG\r\n\x1a\n", size, size))
        self.assertTrue((icons / "scalable" / "apps" / f"{name}.svg").is_file())

    def test_theWindowsAreKnownAsThoseOfTheMenuEntry(self):
        self.starts().window(Untitled)
        self.passes("xdotool", "search", "--onlyvisible", "--classname",
                    f"^{self.menu_entry()['StartupWMClass']}$")

    def test_changeLogMetainfoAndSplashNameTheSameVersion(self):
        releases = xml.etree.ElementTree.parse(self.metainfo).iter("release")
        self.assertEqual(next(releases).get("version"), self.version())
        person = self.starts()
        splash = until("the splash", lambda: person.windows()[0])
        until("its version", lambda: splash.find("label", f"Version {self.version()}a"))

    def test_theManualPageIsThere(self):
        self.assertEqual(len(list((self.share / "man" / "man6").glob("tanglewit.6*"))), 1)

    def test_theHandbookIsFound(self):
        browser, opened = self.home / "bin" / "xdg-open", self.home / "opened"
        browser.parent.mkdir()
        browser.write_text(f"#!/bin/sh\necho \"$1\" >{opened}.new && mv {opened}.new {opened}\n")
        browser.chmod(0o755)
        browser.with_name("x-www-browser").symlink_to(browser)
        path = f"{browser.parent}:{os.environ['PATH']}"
        with unittest.mock.patch.dict(os.environ, PATH=path):
            person = self.starts()
        person.window(Untitled)
        person.presses("F1")
        page = self.share / "tanglewit" / "handbook" / "index.html"
        until("the handbook", lambda: opened.exists() and opened.read_text(), f"{page.as_uri()}\n")
        self.assertTrue(page.is_file())

    @needs("pulseaudio", "pactl")
    def test_sampleListsAndMusicAreFound(self):
        self.starts_sound_server()
        person = self.starts()
        person.window(Untitled)
        lists = self.home / "Documents" / "Lexibrook" / "MyLists"
        self.assertEqual(len(list(lists.glob("*.lwx"))), SampleLists)

        opening.opens(types.SimpleNamespace(person=person), opening.Name)
        music = person.opens_menu("Game")["Music"]
        person.clicks(music)
        person.clicks(until("Upbeat offered", lambda: music.find("menu item", "Upbeat")))
        person.pushes("Play")
        person.window("The Tanglewit")
        self.assertEqual(sounds(), "")
        person.presses("Return")
        until("the music", lambda: f'application.process.id = "{person.process.pid}"' in sounds())

    def starts_sound_server(self):
        socket = self.home / "sound"
        os.environ["PULSE_SERVER"] = f"unix:{socket}"
        self.addCleanup(os.environ.pop, "PULSE_SERVER")
        self._started.append(self.desktop.start(
            "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
            "--disable-shm=yes", "-L", "module-null-sink", "-L",
            f"module-native-protocol-unix auth-anonymous=1 socket={socket}"))
        until("a sound server", socket.exists)


def sounds():
    """What the sound server plays; a file that cannot be read is not played."""
    return subprocess.run(["pactl", "list", "sink-inputs"], check=True, capture_output=True,
                          text=True).stdout


if __name__ == "__main__":
    main()
