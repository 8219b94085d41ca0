"""How a reader has the text before their eyes: where it is read, the guide, jumps, the countdown."""

import json
import unittest

from harness import wait_until
from harness.waiting import holds_for
from talk_case import PROMPTER, TalkTestCase, talk

EYE_LINE = 0.4
LINE = 19  # body text of the usual size, in points
MARGIN = 5  # from the text's left edge, where nothing is written
SECTIONS = "".join(f"# Section {name}\n\n{talk(20)}\n\n" for name in ("one", "two", "three"))
DIGIT = (209, 181, 140)
COUNTDOWN = "The text starts to move in 10 s"


class ReadingViewTestCase(TalkTestCase):
    def write_options(self, **options):
        (self.support_folder() / "reading.json").write_text(json.dumps(options))

    def start_with(self, text, **options):
        self.write_options(**options)
        self.start(self.write_script(text))
        self.wait_for_script(text.replace("# ", ""))
        self.area = self.script().area

    def place_of(self, share):
        """The point of the screen so far down in the middle of the text."""
        left, top, width, height = self.area
        return left + width // 2, top + round(share * height)

    def rest(self):
        """All places on the way until the text has come to a stand."""
        places = []

        def stands():
            places.append(self.position())
            return len(places) > 20 and len(set(places[-20:])) == 1

        wait_until(stands, "the text stands")
        return places


class Guide(ReadingViewTestCase):
    def band_rows(self):
        """The rows of the text, from its top, that are lighter than the ground beside it."""
        left, top, _, height = self.area
        column = self.desktop.region(left + MARGIN, top, 1, height)
        return [number for number, row in enumerate(column) if max(row) > 15]

    def assert_around_the_eye_line(self, rows, height):
        middle = (rows[0] + rows[-1] + 1) / 2
        self.assertAlmostEqual(middle, EYE_LINE * self.area[3], delta=1)
        self.assertAlmostEqual(len(rows), height, delta=1)

    def test_is_where_the_first_and_the_last_line_come_to(self):
        self.start_with(talk(1) + "\n\n" + talk(30), guide="band", guideLines=1, eyeLine=EYE_LINE)
        self.assert_around_the_eye_line(self.band_rows(), LINE)
        left, top, width, _ = self.area
        eye_line = top + round(EYE_LINE * self.area[3])
        self.assertGreater(
            max(max(row) for row in self.desktop.region(left, eye_line - 2, width, 4)),
            150,
            "the first line is there",
        )
        self.assertEqual(
            max(max(row) for row in self.desktop.region(left, top, width, 40)), 0, "nothing above"
        )
        self.click_on(self.script())
        self.desktop.key("End")
        wait_until(lambda: self.bar_rows(), "the last line is seen")
        rows = self.bar_rows()
        self.assertLessEqual(rows[0], EYE_LINE * self.area[3])
        self.assertGreaterEqual(rows[-1], EYE_LINE * self.area[3] - 1)

        self.ctl("guide", "band", 2)
        wait_until(lambda: len(self.band_rows()) > 1.5 * LINE, "the band has two lines")
        self.assert_around_the_eye_line(self.band_rows(), 2 * LINE)
        self.ctl("guide", "none")
        wait_until(lambda: not self.band_rows(), "there is no guide")

    def test_is_a_pair_of_markers(self):
        self.start_with(talk(30), guide="marker")
        left, top, width, _ = self.area
        eye_line = top + 10 + LINE * 3 // 2
        for x in (left, left + width - 1):
            self.assertEqual(self.desktop.pixel(x, eye_line), DIGIT)
            self.assertEqual(self.desktop.pixel(x, eye_line + LINE), (0, 0, 0))


class Jumps(ReadingViewTestCase):
    def test_glide_until_a_hand_comes(self):
        self.start_with(SECTIONS, glide=True)
        self.ctl("next-heading")
        places = self.rest()
        two = places[-1]
        self.assertEqual(places, sorted(places))
        self.assertGreater(len([place for place in places if 0 < place < two]), 3, places)
        self.ctl("top")
        self.assertEqual(self.rest()[-1], 0)

        self.ctl("next-heading")
        wait_until(lambda: self.position() > 0, "the text moves")
        self.desktop.click(*self.place_of(0.5), button=5)
        place = self.rest()[-1]
        self.assertGreater(place, 0)
        self.assertNotAlmostEqual(place, two, delta=0.5)
        self.assertTrue(holds_for(lambda: self.position() == place, 0.6))


class Countdown(ReadingViewTestCase):
    def assert_counts(self):
        wait_until(lambda: self.digits_share() > 0.03, "digits are seen")
        self.control(PROMPTER, "alert", COUNTDOWN)

    def assert_is_cancelled(self):
        wait_until(lambda: not self.settings()["autoScrollEnabled"], "auto-scroll is off")
        wait_until(
            lambda: not self.open_window(PROMPTER).find_all("alert"), "there is no countdown"
        )
        self.assertEqual(self.position(), 0)

    def digits_share(self):
        left, top, width, height = self.area
        rows = self.desktop.region(left, top, width, height)
        pixels = [tuple(row[i : i + 3]) for row in rows for i in range(0, len(row), 3)]
        return pixels.count(DIGIT) / len(pixels)

    def test_can_be_cancelled_and_comes_before_the_text_moves(self):
        self.start_with(talk(50), countdownSeconds=10)
        self.press(PROMPTER, "Toggle Auto-Scroll")
        self.assert_counts()
        self.desktop.key("Page_Down")
        self.assert_is_cancelled()

        self.ctl("play")
        self.assert_counts()
        self.press(PROMPTER, "Minimize")
        self.assert_is_cancelled()
        self.assertEqual(self.script().area, self.area, "the click did nothing else")

        self.ctl("play")
        self.assert_counts()
        self.ctl("pause")
        self.assert_is_cancelled()

        self.ctl("play")
        self.assert_counts()
        self.assertEqual(self.prompter.end(), 0)
        self.write_options(countdownSeconds=1)
        self.start()
        self.assert_scrolls_on()
        self.assertLess(self.digits_share(), 0.02)


if __name__ == "__main__":
    unittest.main()
