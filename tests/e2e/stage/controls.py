# SPDX-License-Identifier: GPL-3.0-or-later
"""Windows and controls as assistive tools see them."""
import dataclasses

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# Milliseconds.
WAITED_FOR_AN_ANSWER = 100
USUAL_TIMEOUT = 800
USUAL_TIMEOUT_AT_START = 15000  # since the program is known


@dataclasses.dataclass(frozen=True)
class Box:
    """A place on the screen, in the program's own (logical) pixels."""

    x: int
    y: int
    width: int
    height: int

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height

    @property
    def middle(self):
        return self.x + self.width // 2, self.y + self.height // 2

    def holds(self, other):
        return (
            self.x <= other.x
            and self.y <= other.y
            and other.right <= self.right
            and other.bottom <= self.bottom
        )

    def overlaps(self, other):
        return (
            self.x < other.right
            and other.x < self.right
            and self.y < other.bottom
            and other.y < self.bottom
        )


class Control:
    def __init__(self, accessible):
        self._accessible = accessible

    def __repr__(self):
        return f"{self.role} '{self.name}'"

    @property
    def name(self):
        return self._accessible.get_name()

    @property
    def role(self):
        return self._accessible.get_role_name()

    @property
    def text(self):
        length = Atspi.Text.get_character_count(self._accessible)
        return Atspi.Text.get_text(self._accessible, 0, length)

    @text.setter
    def text(self, text):
        Atspi.EditableText.set_text_contents(self._accessible, text)

    def takes_the_keyboard(self):
        Atspi.Component.grab_focus(self._accessible)

    def does(self):
        """What the control is for: a button is pressed, a menu opens, an item is chosen."""
        # Where a dialog opens, the answer comes after it has closed.
        Atspi.set_timeout(WAITED_FOR_AN_ANSWER, 0)
        try:
            Atspi.Action.do_action(self._accessible, 0)
        except GLib.Error:
            pass
        finally:
            Atspi.set_timeout(USUAL_TIMEOUT, USUAL_TIMEOUT_AT_START)

    @property
    def box(self):
        box = self._accessible.get_extents(Atspi.CoordType.SCREEN)
        return Box(box.x, box.y, box.width, box.height)

    @property
    def shows(self):
        return self._has(Atspi.StateType.SHOWING)

    @property
    def usable(self):
        return self.shows and self._has(Atspi.StateType.SENSITIVE)

    @property
    def focused(self):
        return self._has(Atspi.StateType.FOCUSED)

    @property
    def active(self):
        return self._has(Atspi.StateType.ACTIVE)

    @property
    def children(self):
        found = (
            self._accessible.get_child_at_index(i)
            for i in range(self._accessible.get_child_count())
        )
        return [Control(child) for child in found if child]

    def below(self):
        """All controls that show below this one; a table's cells are left to cell()."""
        if self.role == "table":
            return
        for child in self.children:
            if child.shows:
                yield child
                yield from child.below()

    def find(self, role, name):
        for control in self.below():
            if control.role == role and control.name == name:
                return control
        raise LookupError(f"no {role} '{name}' shows in {self}")

    def cell(self, row, column):
        return Control(Atspi.Table.get_accessible_at(self._accessible, row, column))

    @property
    def value(self):
        """Of a scroll bar."""
        return int(Atspi.Value.get_current_value(self._accessible))

    @value.setter
    def value(self, value):
        Atspi.Value.set_current_value(self._accessible, value)

    @property
    def checked(self):
        """Of a radio button or a check box."""
        return self._has(Atspi.StateType.CHECKED)

    def row_header(self, row):
        """What a table has for the header of a row."""
        return Control(Atspi.Table.get_row_header(self._accessible, row))

    def column_header(self, column):
        return Control(Atspi.Table.get_column_header(self._accessible, column))

    def _has(self, state):
        return self._accessible.get_state_set().contains(state)


def windows_of(process_id):
    """The windows of a program that show, or none where it is not there."""
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(index)
        if program and program.get_process_id() == process_id:
            return [window for window in Control(program).children if window.shows]
    return []
