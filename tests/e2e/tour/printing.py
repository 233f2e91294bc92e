# SPDX-License-Identifier: GPL-3.0-or-later
"""The list is laid out beside the print settings and printed into a PDF file."""
import re
import subprocess

from stage.conditions import until

Name = "French words"
Title = "Print"


def take(guide):
    person = guide.person
    main = person.front().name
    file = guide.lists / f"{Name}.pdf"
    with guide.step("File > Print shows the printers and the first page as it will be"):
        person.chooses("File", "Print...")
        person.window(Title)
        person.clicks(person.control("list item", "Print to PDF"))
        until("the first page", lambda: page_shown(person)[0], 1)
        guide.picture("dialog-print")

    with guide.step("Wider margins make more pages; the preview follows"):
        pages = page_shown(person)[1]
        for margin in ("Left", "Right", "Top", "Bottom"):
            person.fills(f"{margin} margin in inches", "1.5")
        person.presses("Tab")
        until("more pages", lambda: page_shown(person)[1] > pages)
        guide.picture("print-margins")
        guide.picture_for_handbook("print", person.front())

    with guide.step("Next page shows the second one"):
        person.pushes("Next page")
        until("page 2", lambda: page_shown(person)[0], 2)
        guide.picture("print-next-page")

    pages = page_shown(person)[1]
    with guide.step("Landscape turns the sheet"):
        person.clicks(person.control("radio button", "Landscape"))
        until("another number of pages", lambda: page_shown(person)[1] != pages)
        guide.picture("print-landscape")

    with guide.step("Print to PDF writes the pages of the preview into a file"):
        pages = page_shown(person)[1]
        person.pushes("Print")
        dialog = person.window("Print to PDF")
        person.fills("File name:", Name)
        guide.picture("dialog-print-to-pdf")
        person.clicks(dialog.find("push button", "Save"))
        person.window(main)
        until("the file", file.exists)
        facts = output("pdfinfo", file)
        until("its pages", lambda: int(re.search(r"Pages: +(\d+)", facts)[1]), pages, limit=0)
        width, height = re.search(r"Page size: +(\S+) x (\S+)", facts).groups()
        until("landscape sheets", lambda: float(width) > float(height), limit=0)
        words = "".join(f"{number}. {word}: {definition} {sentence} " for
                        number, (word, definition, sentence) in enumerate(guide.expected, 1))
        until("the words of the list",
              lambda: output("pdftotext", "-raw", file, "-").split(), words.split(), limit=0)
    guide.keeps(file)
    guide.picture_of_page(file, 2, "printed-page")


def page_shown(person):
    """The number of the page in the preview, and how many there are, once they are counted."""
    def look():
        names = [part.name for part in person.front().below() if part.role == "status bar"]
        numbers = next(filter(None, (re.fullmatch(r"Page (\d+) of (\d+)", name) for name in names)))
        return tuple(map(int, numbers.groups()))

    return until("the pages counted", look)


def output(program, *arguments):
    return subprocess.run([program, *map(str, arguments)], check=True, capture_output=True,
                          text=True).stdout
