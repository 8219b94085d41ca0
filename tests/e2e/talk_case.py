"""What the scenarios of a speaker with a talk have in common."""

from harness import wait_until
from harness.clipboard import Clipboard
from settings_case import SettingsTestCase

PROMPTER = "Tessaline"
BAR = "█" * 12
BAR_PIXELS = 80  # longer than any stroke of a letter
INK = 90  # the least brightness of a pixel that something is drawn on


def talk(paragraphs):
    """A text whose last line is a bar."""
    lines = [f"Paragraph {number} of a talk that takes its time." for number in range(paragraphs)]
    return "\n\n".join(lines) + "\n\n" + BAR


class TalkTestCase(SettingsTestCase):
    def setUp(self):
        super().setUp()
        self.clipboard = Clipboard(self.desktop)

    def script(self):
        """The text as a screen reader reads it."""
        return self.control(PROMPTER, "text", "Script")

    def wait_for_script(self, text):
        wait_until(lambda: self.script().text == text, f"the prompter shows {text[:40]!r}")

    def copy_elsewhere(self, text):
        self.clipboard.offer(text.encode())

    def paste(self, keys="ctrl+v"):
        """Clicks the text and presses the keys."""
        self.click_on(self.script())
        self.desktop.key(keys)

    def ctl(self, *words):
        self.assertEqual(self.call("ctl", *words)[::2], (0, ""), words)

    def quit_and_start(self):
        self.click_on(self.script())
        self.desktop.key("ctrl+q")
        self.assertEqual(self.prompter.wait(), 0)
        settings = self.settings()
        self.start()
        self.assertEqual(self.settings(), settings)

    def position(self):
        return self.status()["scrollPosition"]

    def bar_rows(self):
        """The rows of the text, from its top, on which a screenshot has the bar."""
        return [
            number
            for number, row in enumerate(self.desktop.region(*self.script().area))
            if b"\1" * BAR_PIXELS in bytes(max(row[i : i + 3]) > INK for i in range(0, len(row), 3))
        ]

    def assert_scrolls_on(self):
        """By what the program tells, and by what is seen."""
        area = self.script().area
        before, start = self.desktop.region(*area), self.position()
        wait_until(lambda: self.position() > start + 2, "the text scrolls on")
        self.assertNotEqual(self.desktop.region(*area), before)
