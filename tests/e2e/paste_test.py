"""Pasting what other programs offer, and from programs that do not answer."""

import signal
import time
import unittest

from harness import wait_until
from harness.clipboard import Clipboard
from prompter_test import LEFT, PrompterTestCase

SILENT = "the program that owns the clipboard does not answer"
NO_TEXT = "the clipboard holds no text"
LONGEST_PAUSE = 0.5  # seconds; the owner is given two
LONG_TEXT = "A line of a long text, Grüße.\n" * 100_000  # more than a server takes at once


class Paste(PrompterTestCase):
    def setUp(self):
        super().setUp()
        self.clipboard = Clipboard(self.desktop)
        self.addCleanup(self.clipboard.clear)

    def kept(self):
        return (self.support_folder() / "clipboard-content.md").read_text()

    def press_paste(self):
        self.desktop.click(LEFT + 200, 150)
        wait_until(lambda: self.desktop.focused_window() == self.window, "it has the keyboard")
        self.desktop.key("ctrl+v")

    def test_takes_a_text_as_whatever_it_is_offered(self):
        self.start(self.write_script("Before."))
        for target, encoding in (
            (None, "utf-8"),
            ("text/plain;charset=utf-8", "utf-8"),
            ("UTF8_STRING", "utf-8"),
            ("text/plain", "utf-8"),
            ("STRING", "latin-1"),
        ):
            with self.subTest(target=target):
                text = f"\ufeffGrüße als {target}" if encoding == "utf-8" else "Grüße in Latin 1"
                self.clipboard.offer(text.encode(encoding), target)
                self.press_paste()
                wait_until(lambda: self.kept() == text, "it is pasted")
        self.clipboard.offer(LONG_TEXT.encode())
        self.press_paste()
        wait_until(lambda: self.kept() == LONG_TEXT, "the long text is pasted")

    def test_goes_on_while_the_owner_hangs(self):
        self.write_settings(autoScrollEnabled=True, scrollSpeed=2.0)
        self.start(self.write_script("Before.\n\n" * 2000))
        self.wait_for_text()
        before = self.kept()
        self.clipboard.offer(b"never told")
        self.clipboard.owner.send(signal.SIGSTOP)
        self.press_paste()
        self.assertLess(self.longest_pause_until_told(SILENT), LONGEST_PAUSE)
        self.assertEqual(self.kept(), before)

        self.clipboard.offer(b"told")
        self.press_paste()
        wait_until(lambda: self.kept() == "told", "a later one is pasted")

    def longest_pause_until_told(self, problem):
        """For how long the text stood still before the problem was on standard error."""
        longest, position, since = 0.0, None, time.monotonic()

        def told():
            nonlocal longest, position, since
            now, here = time.monotonic(), self.status()["scrollPosition"]
            longest = max(longest, time.monotonic() - now)
            if here != position:
                longest, position, since = max(longest, now - since), here, now
            return problem in self.prompter.stderr()

        wait_until(told, f"it says: {problem}")
        return longest

    def test_says_when_there_is_no_text(self):
        self.start(self.write_script("Before."))
        self.press_paste()
        self.prompter.wait_for_output("Nothing was pasted: " + NO_TEXT)
        self.clipboard.offer(b"not really a picture", "image/png")
        self.press_paste()
        wait_until(lambda: self.prompter.stderr().count(NO_TEXT) == 2, "it says so again")
        self.assertEqual(self.kept(), "Before.")


if __name__ == "__main__":
    unittest.main()
