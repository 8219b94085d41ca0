"""A system that refuses threads, or whose files never answer."""

import errno
import os
import signal
import time
import unittest

from harness import TessalineTestCase
from harness.waiting import wait_until

END_SECONDS = 3.0  # after which a program that hangs ends itself
PATIENCE = 2.0  # with a busy machine


class SystemFaults(TessalineTestCase):
    desktop_options = {"panel": False}

    def start_with(self, *arguments, **fault):
        faults = {f"FAULT_{name.upper()}": str(value) for name, value in fault.items()}
        self.start(
            *arguments,
            LD_PRELOAD=os.environ["TESSALINE_FAILING_CALLS"],
            FAULT_ARMED="1",
            FAULT_NUMBER="1",
            FAULT_LASTS="1",
            **faults,
        )

    def test_it_reads_scrolls_and_ends_without_a_thread_of_its_own(self):
        self.write_settings(autoScrollEnabled=True, scrollSpeed=5.0)
        text = "A line of the talk\n\n" * 70_000  # too long to be rendered at once
        self.start_with(self.write_script(text), call="thread", kind=errno.EAGAIN)
        self.prompter.wait_for_output("Failed to create CVDisplayLink, falling back to Timer")
        wait_until(lambda: self.status()["words"] == 350_000, "the talk is shown")
        wait_until(lambda: self.status()["scrollPosition"] > 20, "it scrolls")
        self.prompter.send(signal.SIGTERM)
        self.assertEqual(self.prompter.wait(10), 0)
        self.assertEqual(self.event_names()[-1], "app_terminate")

    def test_it_ends_although_its_history_cannot_be_written(self):
        folder = self.support_folder() / "analytics.json"
        self.start_with(call="rename", kind="hang", folder=folder)
        begin = time.monotonic()
        self.prompter.send(signal.SIGTERM)
        self.assertEqual(self.prompter.wait(10), 1)
        self.assertLess(time.monotonic() - begin, END_SECONDS + PATIENCE)


if __name__ == "__main__":
    unittest.main()
