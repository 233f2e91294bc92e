#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the spelling of the handbook and the manual page, with hunspell and British English.

The argument is the folder of the sources. The program's own words are in words.txt.
"""
import pathlib
import re
import shutil
import subprocess
import sys

SKIPPED = 77
HERE = pathlib.Path(__file__).resolve().parent
# Code, the targets of links, and what is set in italics: foreign words and words that are examples.
NO_PROSE = re.compile(r"```.*?```|`[^`]*`|\]\([^)]*\)|\*[^*\n]+\*|(?<= )/\S+", re.DOTALL)


def hunspell(text, *options):
    return subprocess.run(["hunspell", "-i", "utf-8", "-d", "en_GB", *options], input=text,
                          capture_output=True, text=True)


def mistakes(text, *options):
    own = set((HERE / "words.txt").read_text().split())
    return [word for word in hunspell(text, "-l", *options).stdout.split() if word not in own]


def main():
    root = pathlib.Path(sys.argv[1])
    if not shutil.which("hunspell") or hunspell("word", "-l").returncode != 0:
        print("Skipped: there is no hunspell with a dictionary of British English")
        return SKIPPED
    if mistakes("The wrod.") != ["wrod"]:
        print("hunspell does not find a mistake that was made on purpose")
        return 1
    found = []
    for page in sorted((root / "docs" / "handbook").glob("*.md")):
        prose = NO_PROSE.sub(" ", page.read_text().replace("**", ""))
        found += [f"{page.name}: {word}" for word in mistakes(prose)]
    manual = root / "docs" / "tanglewit.6.in"
    found += [f"{manual.name}: {word}" for word in mistakes(manual.read_text(), "-n")]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
