"""The end of the user's session, as a session manager brings it about."""

import json
import pathlib
import signal
import unittest

from harness import TessalineTestCase, wait_until
from harness.accessibility import PYTHON
from harness.tessaline import WELCOME

MANAGER = pathlib.Path(__file__).parent / "harness/session_manager.py"


class SessionEnd(TessalineTestCase):
    desktop_options = {"panel": False}

    def setUp(self):
        super().setUp()
        self.manager = self.desktop.start("session-manager", [PYTHON, MANAGER])
        self.manager.wait_for_output("address ")
        self.desktop.env["SESSION_MANAGER"] = self.said("address")[0]

    def said(self, word):
        """What the session manager has been told so far under this word."""
        lines = (line.partition(" ") for line in self.manager.stdout().splitlines())
        return [rest for first, _, rest in lines if first == word]

    def wait_until_joined(self):
        wait_until(lambda: self.said("saved"), "the program is part of the session")

    def end_session(self):
        self.manager.send(signal.SIGUSR1)
        self.assertEqual(self.prompter.wait(), 0)
        self.assertEqual(self.event_names()[-1], "app_terminate")
        self.assertEqual(self.event_names().count("app_terminate"), 1)

    def test_ends_the_program_well(self):
        self.start()
        self.wait_until_joined()
        self.end_session()

    def test_is_no_answer_to_the_first_run_window(self):
        self.write_settings(hasCompletedOnboarding=False)
        self.prompter = self.start_tessaline()
        self.desktop.wait_for_window(WELCOME, self.prompter.pid)
        self.wait_until_joined()
        self.end_session()
        self.assertFalse(self.settings()["hasCompletedOnboarding"])
        names = self.event_names()
        self.assertNotIn("window_shown", names)
        self.assertNotIn("content_loaded", names, "the normal start never came")

    def test_leaves_a_command_that_starts_the_program_again(self):
        self.start()
        self.wait_until_joined()
        command = json.loads(self.said("restart")[-1])
        self.end_session()
        del self.desktop.env["SESSION_MANAGER"]
        self.prompter = self.desktop.start("restored", command)
        self.wait_for_prompter()


if __name__ == "__main__":
    unittest.main()
