# SPDX-License-Identifier: GPL-3.0-or-later
"""What the chapters of the tour have in common: numbered pictures, told steps."""
import contextlib
import shutil
import subprocess

from stage.person import Person


class Guide:
    def __init__(self, desktop, program, sources, pictures, handbook=None):
        self.person = Person(desktop, program)
        self.home = desktop.new_home()
        self.sources = sources  # folder of the texts that the sample lists are made of
        self._pictures = pictures
        self._handbook = handbook
        self._taken = 0
        self._empty_pictures()

    @property
    def lists(self):
        """The folder of the person's word lists."""
        return self.home / "Documents" / "Lexibrook" / "MyLists"

    @contextlib.contextmanager
    def step(self, what):
        try:
            yield
        except Exception as error:
            print(f"NOT SEEN  {what}\n  {error}", flush=True)
            raise
        print(f"seen      {what}", flush=True)

    def picture(self, name, window=None, still=None):
        """Of the screen or a window, at rest; `still` is a control beside which something moves."""
        self.person.desktop.picture(self._next_picture(name), window.box if window else None,
                                    still.box if still else None)

    def picture_for_handbook(self, name, window=None):
        """Of the window without its frame, or of the whole screen; only where these are wanted."""
        if self._handbook:
            file = self._handbook / f"{name}.png"
            self.person.desktop.picture(file, window.box if window else None)
            # As small as it gets: the windows have few colours.
            subprocess.run(["mogrify", "-strip", "+dither", "-colors", "256", "-define",
                            "png:compression-level=9", f"PNG8:{file}"], check=True)

    def picture_of_page(self, file, page, name):
        """Of a page of a PDF file."""
        subprocess.run(
            ["pdftoppm", "-png", "-singlefile", "-r", "72", "-f", str(page), file,
             self._next_picture(name).with_suffix("")],
            check=True,
        )

    def keeps(self, file):
        """A file that the program made goes beside the pictures."""
        shutil.copy(file, self._pictures)

    def _next_picture(self, name):
        self._taken += 1
        return self._pictures / f"{self._taken:02}-{name}.png"

    def _empty_pictures(self):
        self._pictures.mkdir(parents=True, exist_ok=True)
        for pattern in ("*.png", "*.lwx", "*.pdf", "*.txt"):
            for old in self._pictures.glob(pattern):
                old.unlink()
