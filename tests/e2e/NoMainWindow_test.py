# SPDX-License-Identifier: GPL-3.0-or-later
import os
import unittest.mock

from stage.testing import DesktopTest, main

Message = "Run-time error '7':\n\nOut of memory"


class NoMainWindow(DesktopTest):
    def test_theProgramSaysSoAndEndsAsFailed(self):
        with unittest.mock.patch.dict(os.environ, LD_PRELOAD=str(self.options.preload)):
            person = self.starts()
        person.answers(Message, "OK")
        self.assertEqual(person.process.wait(15), 1)


if __name__ == "__main__":
    main()
