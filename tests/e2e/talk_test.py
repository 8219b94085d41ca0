"""A talk as its speaker gives it: from the first start to the last line, with interruptions, and again
the next day."""

import unittest

from harness import wait_until
from harness.waiting import holds_for
from settings_case import HEIGHT, WIDTH
from talk_case import PROMPTER, TalkTestCase, talk

STRIP = 30  # the panel's height
HINT = "Ctrl+V\nto paste"


class FirstTalk(TalkTestCase):
    first_run = True

    def test_goes_from_the_first_start_to_the_last_line(self):
        text = talk(7)
        self.start_first()
        self.press("Welcome to Tessaline", "Get Started")
        self.wait_for_prompter()
        self.wait_for_script(HINT)
        self.copy_elsewhere(text)
        self.paste()
        self.wait_for_script(text)
        self.assertEqual(self.bar_rows(), [], "the end is not seen yet")
        self.ctl("rate", "fast")
        self.ctl("speed", "5")
        self.press(PROMPTER, "Toggle Auto-Scroll")
        self.assert_scrolls_on()
        self.wait_for_the_end()
        bar = self.bar_rows()
        self.assertGreater(len(bar), 10, "the last line is seen")
        self.assertLess(bar[-1], self.script().area[3] - 1, "wholly")
        self.assertTrue(holds_for(lambda: self.status()["autoScroll"] and self.is_at_the_end(), 0.5))
        self.assertEqual(self.bar_rows(), bar)

    def is_at_the_end(self):
        status = self.status()
        return status["scrollPosition"] == status["maximumScrollPosition"] > 0

    def wait_for_the_end(self):
        wait_until(self.is_at_the_end, "the text has come to its end", 40)


class ComingAndGoing(TalkTestCase):
    def setUp(self):
        super().setUp()
        self.write_settings(scrollSpeed=5.0, scrollRate="fast", autoScrollEnabled=True)
        self.start(self.write_script(talk(60)))
        self.assert_scrolls_on()

    def test_folds_and_unfolds_without_losing_its_place(self):
        self.press(PROMPTER, "Minimize")
        self.wait_for_prompter_area(self.left, 0, WIDTH, STRIP)
        folded = self.position()
        self.press(PROMPTER, "Minimize")
        self.wait_for_prompter_area(self.left, 0, WIDTH, HEIGHT)
        self.assertGreaterEqual(self.position(), folded)
        self.assert_scrolls_on()

    def test_hides_and_comes_back_without_losing_its_place(self):
        self.press(PROMPTER, "Quit")
        self.wait_for_prompter(shown=False)
        hidden = self.position()
        self.assertEqual(self.call()[0], 0)
        self.wait_for_prompter_area(self.left, 0, WIDTH, HEIGHT)
        self.assertGreaterEqual(self.position(), hidden)
        self.assert_scrolls_on()


class TheNextDay(TalkTestCase):
    def test_looks_as_it_did_the_day_before(self):
        text = talk(60)
        self.copy_elsewhere(text)
        self.start_with_settings()
        self.paste()
        self.wait_for_script(text)
        for name, value in (("Width", 520), ("Height", 300), ("Font Size", 22), ("Position", -120)):
            self.drag(name, value)
            self.desktop.release_button()
        self.choose("Medium", "Slow")
        before = self.what_is_seen()
        self.quit_and_start()
        wait_until(lambda: self.what_is_seen() == before, "everything is as it was", 5)

    def what_is_seen(self):
        return self.prompter_area(), self.desktop.picture(self.window)

    def test_starts_at_the_top_and_scrolls_on_by_itself(self):
        self.write_settings(scrollSpeed=5.0, scrollRate="fast")
        self.start(self.write_script(talk(60)))
        for _ in range(10):
            self.ctl("down")
        self.press(PROMPTER, "Toggle Auto-Scroll")
        self.assertGreaterEqual(self.position(), 400)
        self.quit_and_start()
        self.assertLess(self.position(), 400)
        self.assert_scrolls_on()


if __name__ == "__main__":
    unittest.main()
