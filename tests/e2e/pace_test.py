"""A promised pace in the real program: the words pass at it, the label counts down, the end is reached."""

import json
import re
import time
import unittest

from harness import wait_until
from talk_case import PROMPTER, TalkTestCase

# Full and short lines, a heading, a direction that nobody says and a rule: forty spoken words.
TALK = """# What I have to say

One two three four five six seven eight nine ten eleven twelve thirteen fourteen.

[looks up]

- first
- second

---

One two three four five six seven eight nine ten eleven twelve thirteen fourteen fifteen.

Fine. And the end."""


class Pace(TalkTestCase):
    def start_with(self, text, **options):
        (self.support_folder() / "reading.json").write_text(json.dumps(options))
        self.start(self.write_script(text))
        wait_until(lambda: self.status()["words"] > 0, "the text is there")

    def statistics(self):
        """What the strip says of the text."""
        return next(text for text in self.open_window(PROMPTER).texts() if "words" in text)

    def seconds_of_label(self):
        """How long the rest takes, as the strip says."""
        label = self.statistics()
        found = re.fullmatch(r"\d+ words • ~(?:(\d+)m)?(?:(\d+)s)?", label)
        self.assertTrue(found, label)
        return 60 * int(found[1] or 0) + int(found[2] or 0)

    def play_to_the_end(self):
        """Returns what was told on the way, each with the seconds since the start."""
        told = []
        begin = time.monotonic()
        self.ctl("play")

        def ends():
            status = self.status()
            told.append((time.monotonic() - begin, status))
            return status["scrollPosition"] >= status["maximumScrollPosition"]

        wait_until(ends, "the end is reached")
        return told

    def test_is_kept_to_the_end(self):
        self.start_with(TALK, pace="words", wordsPerMinute=200, atEnd="stop")
        first = self.status()
        self.assertEqual(first["pace"], "words")
        self.assertAlmostEqual(self.seconds_of_label(), first["secondsLeft"], delta=1)

        told = self.play_to_the_end()
        seconds, last = told[-1]
        words = last["wordsRead"] - first["wordsRead"]
        self.assertGreater(words, 30)
        self.assertAlmostEqual(seconds, words / (200 / 60), delta=0.8)
        self.assertAlmostEqual(last["secondsElapsed"], seconds, delta=0.5)
        places = [status["scrollPosition"] for _, status in told]
        self.assertEqual(places, sorted(places), "it never goes back")
        half = min(told, key=lambda entry: abs(entry[0] - seconds / 2))[1]
        self.assertAlmostEqual(half["secondsLeft"], seconds / 2, delta=0.8)
        self.assertAlmostEqual(half["wordsPerMinute"], 200, delta=0.5)
        wait_until(lambda: not self.status()["autoScroll"], "auto-scroll is off at the end")
        wait_until(lambda: self.seconds_of_label() == 0, "nothing is left, as the strip says")

    def test_ends_on_time_although_the_reader_pauses_and_scrolls(self):
        self.start_with(TALK, pace="finish", finishMinutes=0.5)
        begin = time.monotonic()
        self.ctl("play")
        wait_until(lambda: self.status()["wordsRead"] > 8, "some words are read")
        self.assertAlmostEqual(self.seconds_of_label(), 30 - (time.monotonic() - begin), delta=1.5)
        self.ctl("pause")
        self.click_on(self.script())
        self.desktop.key("Down", "Down")
        self.ctl("play")
        wait_until(self.is_at_end, "the end is reached", seconds=40)
        self.assertAlmostEqual(time.monotonic() - begin, 30, delta=0.5)

    def is_at_end(self):
        status = self.status()
        return status["scrollPosition"] >= status["maximumScrollPosition"]

    def test_says_how_much_too_late_it_will_be(self):
        self.start_with("word " * 400, pace="finish", finishMinutes=1)
        self.ctl("play")
        wait_until(
            lambda: re.fullmatch(r"400 words • ~1m1\ds • 1\ds late", self.statistics()),
            "the strip says how late",
        )


if __name__ == "__main__":
    unittest.main()
