# SPDX-License-Identifier: GPL-3.0-or-later
import signal

from stage.conditions import until
from stage.testing import DesktopTest, Untitled, main

Message = "The Tanglewit(c) is already running."


class SecondCopy(DesktopTest):
    def test_aSecondCopyOnlySaysThatOneRunsAndEnds(self):
        first = self.starts()
        first.window(Untitled)

        second = self.starts()
        shown = until("a window of the second copy", second.titles)
        self.assertEqual(shown, ["Tanglewit"])
        second.is_told(Message)
        self.picture("second-copy")
        self.assertEqual(second.titles(), ["Tanglewit"])
        self.assertIsNone(second.process.poll())
        self.assertEqual(first.titles(), [Untitled])
        second.answers(Message, "OK")
        until("the second copy's end", lambda: second.process.poll(), 0)

        first.window(Untitled)
        first.pushes("New Word")
        until("the first copy at work", lambda: first.control("text", "Word").focused)
        self.assertIsNone(first.process.poll())

    def test_afterTheFirstHasEndedACopyStarts(self):
        first = self.starts()
        first.window(Untitled)
        self.leaves(first)
        self.starts().window(Untitled)

    def test_afterTheFirstWasKilledACopyStarts(self):
        first = self.starts()
        first.window(Untitled)
        first.process.send_signal(signal.SIGKILL)
        first.process.wait()

        second = self.starts()
        until("the splash", second.titles, ["The Tanglewit"])
        second.window(Untitled)


if __name__ == "__main__":
    main()
