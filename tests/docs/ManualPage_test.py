#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the manual page, the argument, with mandoc and, where it is installed, with man."""
import os
import shutil
import subprocess
import sys

SKIPPED = 77


def complaints(*command):
    environment = dict(os.environ, LC_ALL="C.UTF-8", MANROFFSEQ="", MANWIDTH="80")
    done = subprocess.run(command, capture_output=True, text=True, env=environment)
    return done.stdout if command[0] == "mandoc" else done.stderr


def main():
    page = sys.argv[1]
    if not shutil.which("mandoc"):
        print("Skipped: there is no mandoc")
        return SKIPPED
    found = complaints("mandoc", "-T", "lint", "-W", "style", page)
    if shutil.which("man"):
        found += complaints("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page)
    print(found)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
