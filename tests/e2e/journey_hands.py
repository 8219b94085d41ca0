"""How a reader of the random journey works the program, and what is to be on show then."""

from harness.waiting import wait_until
from journey_scripts import any_script

WAITING = "Waiting for content from Obsidian...\n\nUse 'Send to Tessaline' command in Obsidian."
PLACEHOLDER = "PLACEHOLDER"


class Hands:
    """`shown` is the text that the prompter is to show now."""

    def __init__(self, case, random):
        self.case = case
        self.desktop = case.desktop
        self.random = random
        self.shown = PLACEHOLDER
        self.kept = None  # the clipboard source's text
        self.followed = None
        self.note = None  # the Obsidian source's text
        self.screen_numbers = {}  # by number: the names of those that were chosen
        self.obsidian_is_enabled = True
        self.number = 0

    def _status(self):
        return self.case.status()

    def _ctl(self, *words):
        status, output, error = self.case.call("ctl", *words)
        self.case.assertEqual((status, error), (0, ""), words)
        return f"{' '.join(map(str, words))}: {output.strip()}"

    def _prompter_area(self):
        """None while there is nothing of the text to be seen."""
        status = self._status()
        if not status["visible"] or status["collapsed"]:
            return None
        return self.desktop.geometry(self.case.window)

    def _over_text(self, *then):
        area = self._prompter_area()
        if not area:
            return "nothing to be seen"
        self.desktop.hands("mousemove", area[0] + area[2] // 2, area[1] + 70, *then)
        return None

    def _keys(self, *keys):
        missing = self._over_text("click", 1)
        if missing:
            return missing
        wait_until(
            lambda: self.desktop.focused_window() == self.case.window, "the prompter has the keys"
        )
        self.desktop.hands("key", *keys)
        return " ".join(keys)

    def _script(self):
        """A file with a new text."""
        kind, text = any_script(self.random)
        self.number += 1
        path = self.desktop.home / f"talk-{self.number % 5}.md"
        return path, kind, text

    def _take(self, text):
        """The program took a text in as if it had been pasted."""
        if text:
            self.shown = self.kept = text

    def _choose_clipboard(self):
        self.shown = self.kept or PLACEHOLDER

    def _choose_obsidian(self):
        self.followed = None
        self.shown = WAITING if self.note is None else self.note

    def _at_rest(self):
        """The status once a page that is being turned has been turned."""
        statuses = []

        def rests():
            statuses.append(self._status())
            places = [status["scrollPosition"] for status in statuses[-4:]]
            return statuses[-1]["autoScroll"] or places == [places[0]] * 4

        wait_until(rests, "the text is at rest", 3)
        return statuses[-1]

    def _moves(self, delta, act):
        """Does something that scrolls by so many points, and sees whether it did."""
        before = self._at_rest()
        what = act()
        if before["autoScroll"] or len(self.shown) > 10000 or what == "nothing to be seen":
            return what

        def moved():
            after = self._status()
            maximum = after["maximumScrollPosition"]
            if maximum != before["maximumScrollPosition"]:
                return True
            expected = min(max(before["scrollPosition"] + delta, 0), maximum)
            return abs(after["scrollPosition"] - expected) < 0.01

        wait_until(moved, f"{what} scrolls by {delta} from {before}", 3)
        return what
