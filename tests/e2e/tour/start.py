# SPDX-License-Identifier: GPL-3.0-or-later
"""From the start to the empty main window."""
import time

from stage.conditions import until
from stage.listfile import entries, written

Untitled = "LexiBrook- The Tanglewit: (Untitled)"


def take(guide):
    person = guide.person
    with guide.step("The splash shows the program's name and version"):
        person.starts_the_program()
        splash = until("the splash", lambda: person.windows()[0])
        came = time.monotonic()
        for words in ("The Tanglewit", "Version 1.0.0a", "LexiBrook"):
            until(f"'{words}' on the splash", lambda: splash.find("label", words))
        guide.picture("splash", splash)
        guide.picture_for_handbook("splash", splash)

    with guide.step("Three seconds later the main window takes its place"):
        main = person.window(Untitled)
        lasted = time.monotonic() - came
        until("the splash gone", lambda: person.titles(), [Untitled])
        until(f"a splash of about 3 s (it took {lasted:.1f} s)", lambda: 2.5 < lasted < 6, limit=0)

    with guide.step("The grid is empty and numbered, the entry boxes wait"):
        until("the grid's header", lambda: person.row(0),
              ("", "Vocabulary Word", "Definition", "Sentence"))
        until("an empty page", lambda: person.page(),
              [(str(number), "", "", "") for number in range(1, 24)])
        for name in ("Word", "Definition", "Sentence"):
            until(f"'{name}' disabled", lambda: not main.find("text", name).usable)
        until("New Word to be pushed", lambda: main.find("push button", "New Word").usable)
        guide.picture("main-window")

    with guide.step("The sample lists lie in Documents/Lexibrook/MyLists"):
        names = sorted(source.stem for source in guide.sources.glob("*.txt"))
        until("the sample lists", lambda: sorted(file.stem for file in guide.lists.iterdir()),
              names)
        for name in names:
            until(f"the entries of {name}", lambda: entries(guide.lists / f"{name}.lwx"),
                  written(guide.sources / f"{name}.txt"), limit=0)
