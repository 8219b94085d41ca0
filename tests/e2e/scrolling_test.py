"""What a speaker changes while the text scrolls: it scrolls on, and the prompter follows."""

import time
import unittest

from harness import wait_until
from settings_case import HEIGHT, TITLE, WIDTH
from talk_case import PROMPTER, TalkTestCase, talk

TOP_SPEED = {"slow": 9.6, "medium": 12.8, "fast": 19.2}  # points a second
MEASURED_POINTS = 12


class ScrollingTestCase(TalkTestCase):
    def setUp(self):
        super().setUp()
        self.write_settings(scrollSpeed=5.0, scrollRate="fast")
        self.start_with_settings(self.write_script(talk(200)))
        self.press(PROMPTER, "Toggle Auto-Scroll")
        self.assert_scrolls_on()


class Sliders(ScrollingTestCase):
    """Each is dragged; the text scrolls while the mouse is down, and afterwards. The screen has room
    for the settings below the prompter however high it gets here."""

    desktop_options = {"size": (1280, 1200)}

    def drag_while_it_scrolls(self, name, key, value):
        self.drag(name, value)
        wait_until(lambda: abs(self.settings().get(key, 0) - value) <= 2, f"{key} is {value}")
        self.assert_scrolls_on()
        self.desktop.release_button()
        self.assert_scrolls_on()
        return self.settings()[key]

    def assert_hangs_at(self, *area):
        for now, wanted in zip(self.prompter_area(), area):
            self.assertAlmostEqual(now, wanted, delta=1)

    def test_make_it_wider(self):
        width = self.drag_while_it_scrolls("Width", "width", 700)
        self.assert_hangs_at((self.screen_width - width) / 2, 0, width, HEIGHT)

    def test_make_it_higher(self):
        height = self.drag_while_it_scrolls("Height", "height", 400)
        self.assert_hangs_at(self.left, 0, WIDTH, height)
        self.assertAlmostEqual(self.frame()[0], height, delta=1, msg="the settings follow")

    def test_make_its_letters_larger(self):
        self.drag_while_it_scrolls("Font Size", "fontSize", 28)
        self.assert_hangs_at(self.left, 0, WIDTH, HEIGHT)

    def test_move_it_aside(self):
        offset = self.drag_while_it_scrolls("Position", "xOffset", 150)
        self.assert_hangs_at(self.left + offset, 0, WIDTH, HEIGHT)


class Rate(ScrollingTestCase):
    def points_per_second(self):
        start, began = self.position(), time.monotonic()
        wait_until(lambda: self.position() >= start + MEASURED_POINTS, "the text scrolls on")
        return (self.position() - start) / (time.monotonic() - began)

    def test_changes_the_pace_at_once(self):
        shown = "Fast"
        for rate in ("slow", "medium", "fast"):
            self.choose(shown, rate.capitalize())
            shown = rate.capitalize()
            self.assertAlmostEqual(self.points_per_second() / TOP_SPEED[rate], 1, delta=0.15)


class Screens(ScrollingTestCase):
    NOTEBOOK = {"eDP-1": (0, 0, 1280, 1024)}
    PROJECTOR = {"HDMI-1": (1280, 0, 1024, 768)}
    BOTH = {**NOTEBOOK, **PROJECTOR}
    desktop_options = {"size": (2304, 1024), "panel": False, "monitors": BOTH}

    def wait_for_screen(self, name):
        left, top, width, _ = self.BOTH[name]
        self.wait_for_prompter_area(left + (width - WIDTH) // 2, top, WIDTH, HEIGHT)
        self.assert_scrolls_on()

    def test_can_be_chosen(self):
        self.wait_for_screen("eDP-1")
        self.choose("Auto", "HDMI-1")
        self.wait_for_screen("HDMI-1")
        self.choose("HDMI-1", "eDP-1")
        self.wait_for_screen("eDP-1")

    def test_come_and_go(self):
        self.choose("Auto", "HDMI-1")
        self.wait_for_screen("HDMI-1")
        self.desktop.set_monitors(self.NOTEBOOK)
        self.wait_for_screen("eDP-1")
        self.control(TITLE, "combo box", "Auto")
        self.desktop.set_monitors(self.BOTH)
        self.wait_for_screen("HDMI-1")
        self.control(TITLE, "combo box", "HDMI-1")

    def test_stay_chosen_the_next_day(self):
        self.choose("Auto", "HDMI-1")
        self.wait_for_screen("HDMI-1")
        self.quit_and_start()
        self.wait_for_screen("HDMI-1")


if __name__ == "__main__":
    unittest.main()
