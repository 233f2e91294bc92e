# SPDX-License-Identifier: GPL-3.0-or-later
"""Waiting for what a person would see, with a time limit."""
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import GLib  # noqa: E402

LIMIT = 15  # seconds; a busy machine is slow, a working program is not wrong
BETWEEN_LOOKS = 0.02


class Unseen(AssertionError):
    def __init__(self, what, expected, there):
        super().__init__(f"{what}\n    expected: {expected}\n    there:    {there}")


def difference(wanted, there):
    """The two as they are reported: of two lists only what one has and the other has not."""
    if wanted is None:
        return "it to be so", repr(there)
    if isinstance(wanted, list) and isinstance(there, list):
        return (repr([item for item in wanted if item not in there] or wanted),
                repr([item for item in there if item not in wanted] or there))
    return repr(wanted), repr(there)


def until(what, look, wanted=None, limit=LIMIT):
    """Looks until it sees `wanted` (without it: anything that counts as true) and returns it."""
    end = time.monotonic() + limit
    while True:
        try:
            there = look()
        except (GLib.Error, LookupError, AttributeError, StopIteration) as error:
            # It is not there yet, or vanished while it was looked at.
            there = f"({error})"
        else:
            if there == wanted if wanted is not None else there:
                return there
        if time.monotonic() > end:
            raise Unseen(what, *difference(wanted, there))
        time.sleep(BETWEEN_LOOKS)
