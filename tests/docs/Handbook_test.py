#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the handbook against itself and against the program.

The arguments are the folder of the sources and that of the built pages, if they are built.
"""
import html
import html.parser
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(sys.argv[1])
BUILT = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
HANDBOOK = ROOT / "docs" / "handbook"
PAGES = {path.stem: path.read_text() for path in sorted(HANDBOOK.glob("*.md"))}

LINK = re.compile(r"!?\[[^]]*\]\(([^)]+)\)")
# A window that closes by itself and takes no keys.
WITHOUT_PAGE = {"frmSplash"}
# Errors, which have a table of their own or are texts of Qt; and a word order's notice of a random
# number that cannot be drawn.
NOT_ON_THE_PAGE = {"error.report()", "RunTimeError(RunTimeError::OutOfMemory).report()",
                   "QString::fromUtf8(error.what())", "text",
                   'QStringLiteral("Result=0")'}
# Each table of keys, and the form that has them.
FORM_OF_KEYS = {
    "Main window": "editor/frmMain",
    "Flash cards": "flash/dlgQuickFlash",
    "Print dialog": "print/frmPrint",
    "Game": "game/frmTanglewit",
}


def rows(page, heading):
    """The cells of the tables below a heading."""
    part = re.split(r"^## ", page, flags=re.MULTILINE)
    text = next(text for text in part if text.startswith(heading + "\n"))
    lines = [line.strip("|") for line in text.splitlines() if line.startswith("| ")]
    return [[cell.strip() for cell in line.split(" | ")] for line in lines]


def form_text(form):
    return html.unescape((ROOT / "src" / f"{form}.ui").read_text())


def source_text(folder):
    """All texts in the sources, those that go on in the next line joined."""
    text = "\n".join(path.read_text() for path in sorted((ROOT / "src" / folder).rglob("*.cpp")))
    return re.sub(r'"\s*\n\s*"', "", text)


def strings(source):
    """The string literals of a source."""
    return re.findall(r'"((?:[^"\\\n]|\\.)*)"', source)


def first_arguments(sources, *functions):
    """The first argument of each call of these functions, as it is in the source."""
    for call in re.finditer(rf"(?<![\w:.>])(?:{'|'.join(functions)})\(", sources):
        depth, end = 0, call.end()
        while depth > 0 or sources[end] not in ",)":
            if sources[end] == '"':
                end += re.match(r'"(?:[^"\\]|\\.)*', sources[end:]).end()
            depth += {"(": 1, ")": -1}.get(sources[end], 0)
            end += 1
        argument = sources[call.end():end].strip()
        if not argument.startswith("const "):  # the function itself
            yield argument


def texts_of(message, sources):
    """The fixed parts of each text that an expression can give."""
    function = re.fullmatch(r"([\w:]+)\(\w*\)", message)
    if function:
        body = re.search(rf"\b{function[1]}\([^)]*\)\n{{(.*?)\n}}", sources, re.DOTALL)[1]
        return [texts for text in strings(body) for texts in texts_of(f'"{text}"', sources)]
    return [fixed_parts("…".join(strings(message)), r"…|%\d|\\n")]


def fixed_parts(text, gap="…|32000"):
    """A text without what is put in at run time, nor the quotation marks around it."""
    return [part.strip(" '") for part in re.split(gap, text) if part.strip(" '")]


class References(html.parser.HTMLParser):
    def __init__(self, page):
        super().__init__()
        self.found = []
        self.feed(page)

    def handle_starttag(self, tag, attributes):
        self.found += [value for name, value in attributes if name in ("href", "src")]


class Handbook(unittest.TestCase):
    def test_eachLinkAndPictureIsThere(self):
        for name, page in PAGES.items():
            for target in LINK.findall(page):
                self.assertTrue((HANDBOOK / target).is_file(), f"{name}.md: {target}")

    @unittest.skipUnless(BUILT, "the handbook is not built: there is no cmark-gfm")
    def test_theBuiltPagesFindEachOther(self):
        for name in PAGES:
            page = References((BUILT / f"{name}.html").read_text())
            self.assertGreater(len(page.found), len(PAGES) - 1)
            for target in page.found:
                self.assertTrue((BUILT / target).is_file(), f"{name}.html: {target}")

    def test_theFirstPageAndTheBuildListAllPages(self):
        listed = set(re.findall(r"\(([a-z-]+)\.md\)", PAGES["index"])) | {"index"}
        self.assertEqual(listed, set(PAGES))
        build = (HANDBOOK / "CMakeLists.txt").read_text()
        built = re.search(r"set\(pages\s+([^)]+)\)", build)[1].split()
        self.assertEqual(sorted(built), sorted(PAGES))

    def test_eachPageBeginsWithItsTitle(self):
        for name, page in PAGES.items():
            self.assertRegex(page, r"\A# \S", name)
            self.assertEqual(len(re.findall(r"^# ", page, re.MULTILINE)), 1, name)

    def test_eachPictureIsUsed(self):
        used = {target for page in PAGES.values() for target in LINK.findall(page)}
        readme = LINK.findall((ROOT / "README.md").read_text())
        used |= {target.removeprefix("docs/handbook/") for target in readme}
        for picture in HANDBOOK.glob("pictures/*.png"):
            self.assertIn(f"pictures/{picture.name}", used)

    def test_eachWindowHasAPage(self):
        table = dict(re.findall(r'WindowPage\{"(\w+)", "([a-z-]*)"\}',
                                (ROOT / "src" / "help" / "Handbook.cpp").read_text()))
        forms = {path.stem for path in (ROOT / "src").rglob("*.ui")}
        self.assertEqual(forms - WITHOUT_PAGE - set(table), set())
        for window, page in table.items():
            self.assertIn(page, set(PAGES) | {""}, window)

    def test_eachKeyOfThePageIsAKeyOfItsWindow(self):
        for heading, form in FORM_OF_KEYS.items():
            # The letter of a menu item works only while its menu is open.
            without_items = re.sub(r"<action .*?</action>", "", form_text(form), flags=re.DOTALL)
            captions = re.findall(r"<string>([^<]*)</string>", without_items)
            captions += strings(source_text(form.split("/")[0]))
            letters = {letter.upper() for caption in captions
                       for letter in re.findall(r"&(\w)", caption)}
            for keys, _ in rows(PAGES["keyboard"], heading)[1:]:
                for letter in re.findall(r"\bAlt\+(\w)\b", keys):
                    self.assertIn(letter, letters, f"{heading}: {keys}")

    def test_eachKeyOfAWindowIsOnThePage(self):
        for heading, form in FORM_OF_KEYS.items():
            listed = {key for row in rows(PAGES["keyboard"], heading)[1:]
                      for key in row[0].split(", ")}
            listed |= {key.split(",")[0].split(" ")[0] for key in listed}
            buttons = re.findall(r'<widget class="QPushButton".*?</widget>', form_text(form),
                                 re.DOTALL)
            self.assertTrue(buttons, form)
            for button in buttons:
                for letter in re.findall(r"&(\w)", button):
                    key = f"Alt+{letter.upper()}"
                    self.assertTrue(key in listed, f"{heading}: {key}")
            for shortcut in re.findall(r'<string notr="true">([^<]+)</string>', form_text(form)):
                if re.match(r"(Ctrl\+|F\d)", shortcut):
                    self.assertTrue(shortcut in listed, f"{heading}: {shortcut}")

    def test_eachMenuKeyIsThatOfItsItem(self):
        form = form_text("editor/frmMain")
        for keys, what in rows(PAGES["keyboard"], "Main window"):
            shortcut = re.search(r"(Ctrl\+[A-Z]|Ctrl\+Shift\+[A-Z]|F1)$", keys)
            item = shortcut and re.search(
                r"<string>([^<]+)</string></property>\s*<property name=\"shortcut\">"
                rf'<string notr="true">{re.escape(shortcut[1])}</string>', form)
            if item:
                caption = item[1].replace("&", "").removesuffix("...")
                self.assertTrue(what.startswith(caption), f"{keys}: {what}, not {caption}")

    def test_eachMessageIsOneOfTheProgram(self):
        sources = source_text(".") + "".join(
            path.read_text() for path in (ROOT / "src").rglob("*.h"))
        for message, _ in rows(PAGES["messages"], "Messages")[1:]:
            for part in fixed_parts(message):
                self.assertTrue(part in sources, message)
        for number, words, _ in rows(PAGES["messages"], "Run-time errors")[1:]:
            self.assertTrue(f'QStringLiteral("{words}")' in sources, words)
            self.assertTrue(re.search(rf"= {number}\b", sources), words)

    def test_eachMessageOfTheProgramIsOnThePage(self):
        sources = source_text(".")
        listed = [fixed_parts(message) for message, _ in rows(PAGES["messages"], "Messages")]
        messages = [argument for argument in first_arguments(sources, "MsgBox", "notice")
                    if argument not in NOT_ON_THE_PAGE]
        self.assertGreater(len(messages), 25)
        for message in messages:
            for texts in texts_of(message, sources):
                self.assertTrue(texts, message)
                self.assertIn(texts, listed, message)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
