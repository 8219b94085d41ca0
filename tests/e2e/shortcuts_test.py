"""The program's shortcuts while another application is in use, and in its own windows."""

import signal
import unittest

from event_tap_case import TOGGLE, WHEEL_DOWN, WHEEL_UP, Xev, click
from harness import wait_until
from harness.waiting import holds_for
from prompter_test import LEFT, PrompterTestCase

A_MOMENT = 0.3  # in which what came twice would be seen
OVER_PROMPTER = (LEFT + 200, 150)
LINE = 80


class Shortcuts(PrompterTestCase):
    def setUp(self):
        super().setUp()
        self.start(self.write_script("A line to read.\n\n" * 100))
        self.wait_for_text()

    def position(self):
        return self.status()["scrollPosition"]

    def scrolls(self):
        return self.status()["autoScroll"]

    def with_control(self, *buttons):
        self.desktop.hands("keydown", "ctrl")
        for button in buttons:
            self.desktop.hands("click", button)
        self.desktop.hands("keyup", "ctrl")

    def wait_for_position(self, points):
        wait_until(lambda: self.position() == points, f"the prompter is at {points}")

    def wait_for_scrolling(self, on):
        wait_until(lambda: self.scrolls() == on, f"auto-scroll is {on}")


class InAnotherApplication(Shortcuts):
    def setUp(self):
        super().setUp()
        self.xev = Xev(self.desktop)

    def test_control_and_the_wheel_scroll_the_prompter_alone(self):
        self.with_control(WHEEL_DOWN, WHEEL_DOWN, WHEEL_DOWN, WHEEL_UP)
        self.wait_for_position(2 * LINE)
        self.assertEqual(self.xev.buttons(), [])

    def test_the_wheel_without_control_is_not_ours(self):
        self.desktop.hands("click", WHEEL_DOWN)
        wait_until(lambda: self.xev.buttons() == click(WHEEL_DOWN), "xev scrolls")
        self.assertEqual(self.position(), 0)

    def test_control_and_the_other_buttons_toggle(self):
        for button, on in ((2, True), (3, False), (8, True)):
            self.with_control(button)
            self.wait_for_scrolling(on)
        self.assertEqual(self.xev.buttons(), [])

    def test_control_and_the_fifth_button_are_not_ours(self):
        self.with_control(9)
        wait_until(lambda: self.xev.buttons() == click(9), "xev is clicked")
        self.assertFalse(self.scrolls())

    def test_the_chord_toggles_once(self):
        self.desktop.key(TOGGLE)
        self.wait_for_scrolling(True)
        self.assertTrue(holds_for(self.scrolls, A_MOMENT))

    def test_everything_is_given_back_when_the_program_is_killed(self):
        self.prompter.send(signal.SIGKILL)
        self.prompter.wait()
        self.with_control(WHEEL_DOWN)
        wait_until(lambda: self.xev.buttons() == click(WHEEL_DOWN), "xev scrolls")


class InThePrompter(Shortcuts):
    def setUp(self):
        super().setUp()
        self.desktop.click(*OVER_PROMPTER)

    def test_control_and_the_wheel_scroll_once(self):
        self.with_control(WHEEL_DOWN, WHEEL_DOWN)
        self.wait_for_position(2 * LINE)
        self.assertTrue(holds_for(lambda: self.position() == 2 * LINE, A_MOMENT))

    def test_control_and_arrows_scroll(self):
        self.desktop.key("ctrl+Down", "ctrl+Down", "ctrl+shift+Down", "ctrl+Up")
        self.wait_for_position(80)

    def test_the_chord_toggles_once(self):
        self.desktop.key(TOGGLE)
        self.wait_for_scrolling(True)
        self.assertTrue(holds_for(self.scrolls, A_MOMENT))


if __name__ == "__main__":
    unittest.main()
