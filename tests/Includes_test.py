#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the arrows between the folders of src/: what a folder includes and what it links.

docs/architecture.md shows the arrows. The argument is the folder src/.
"""
import pathlib
import re
import sys

# Each folder and the folders that it may use.
BASE = {"runtime"}
LIST = BASE | {"core"}
WINDOWS = LIST | {"platform"}
MIDDLE = {"transfer", "game", "flash", "print"}
ARROWS = {
    "runtime": set(),
    "core": BASE,
    "platform": BASE,
    **{folder: WINDOWS for folder in MIDDLE},
    "help": BASE | {"platform"},
    "editor": WINDOWS | MIDDLE | {"help"},
    "main.cpp": WINDOWS | MIDDLE | {"help", "editor"},
}

# Only platform/ names these classes.
OF_PLATFORM = ["QMessageBox", "QFileDialog", "QPrinter", "QPrintDialog", "QLockFile", "QAudioSink"]

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"/]+)/', re.MULTILINE)
LINK = re.compile(r"\btanglewit_([a-z]+)\b")
CLASS = re.compile(r"\b(%s)\b" % "|".join(OF_PLATFORM))


def mistakes(source):
    """What is wrong in src/, a line each."""
    folders = {path.name for path in source.iterdir() if path.is_dir()} | {"main.cpp"}
    for folder in sorted(folders ^ ARROWS.keys()):
        yield f"{folder}: is not in {source} or has no arrows in this test"
    files = [path for path in source.rglob("*") if path.suffix in {".h", ".cpp", ".ui"}]
    if not files:
        yield f"{source}: has no sources"
    for path in sorted(files):
        text = path.read_text()
        folder = path.relative_to(source).parts[0]
        for used in INCLUDE.findall(text):
            if used != folder and used not in ARROWS.get(folder, set()):
                yield f"{path}: {folder} must not include {used}/"
        for name in CLASS.findall(text) if folder != "platform" else []:
            yield f"{path}: only platform/ may use {name}"
    for path in sorted(source.glob("*/CMakeLists.txt")):
        folder = path.parent.name
        for used in set(LINK.findall(path.read_text())) & ARROWS.keys():
            if used != folder and used not in ARROWS.get(folder, set()):
                yield f"{path}: {folder} must not link tanglewit_{used}"


def main():
    found = list(mistakes(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
