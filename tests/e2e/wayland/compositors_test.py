"""The prompter on the compositors that many desktops have."""

import itertools
import shutil
import unittest

from harness import Desktop, TessalineTestCase, wait_until
from harness.waiting import repeat_until
from harness.wayland import main
from harness.wayland.case import BLUE, HEIGHT, WIDTH
from harness.wayland.nested import SIZE, KWin, Mutter, Weston
from harness.wayland.other_application import OtherApplication

LEFT = (SIZE[0] - WIDTH) // 2
MIDDLE = (SIZE[0] // 2, 150)
BLACK = (0, 0, 0)


class CompositorTestCase(TessalineTestCase):
    desktop_class = Desktop
    platform = "xwayland"
    kind_of_other = "fullscreen"
    desktop_options = {"size": (1600, 1000), "panel": False}

    def setUp(self):
        super().setUp()
        if not shutil.which(self.compositor.program):
            self.skipTest(f"{self.compositor.program} is not installed")
        outer = self.desktop
        outer.use_up()
        self.steps = 0
        self.desktop = self.compositor(outer)
        self.addCleanup(self.desktop.close)
        self.addCleanup(self._report_failure, self.desktop)
        self.write_settings()

    def start(self):
        """The prompter, over another application that has the keyboard."""
        self.other = OtherApplication(self.desktop, self.kind_of_other, "#0000ff")
        self.place_of_other = wait_until(self.find_other, "the other application is seen")
        if not self.other.has_keyboard():
            self.desktop.click(*self.place_of_other)
        self.other.wait_for_keyboard()
        self.prompter = self.start_tessaline(self.write_script("A line of a talk\n\n" * 100))
        wait_until(self.is_shown, "the prompter is shown at the top centre")
        self.assertEqual(self.status()["platform"], self.platform)

    def find_other(self):
        """A place in it that the prompter leaves free; compositors put windows where they like."""
        self.shake_mouse()
        picture = self.desktop.picture()
        for x, y in itertools.product(range(20, SIZE[0] - 20, 20), range(60, SIZE[1] - 20, 20)):
            is_free = y > HEIGHT + 20 or not LEFT - 20 < x < LEFT + WIDTH + 20
            if is_free and picture.pixel(x, y) == BLUE:
                return x, y
        return None

    def shake_mouse(self):
        """Weston shows some changes only together with the next one."""
        self.steps += 1
        self.desktop.move_mouse(SIZE[0] // 2 + self.steps % 2, SIZE[1] - 30)

    def is_shown(self):
        self.shake_mouse()
        picture = self.desktop.picture()
        row = [picture.pixel(x, HEIGHT // 2) for x in (LEFT + 3, LEFT + WIDTH - 3)]
        beside = [picture.pixel(x, HEIGHT // 2) for x in (LEFT - 3, LEFT + WIDTH + 3)]
        return set(row) == {BLACK} and BLACK not in beside

    def assert_keys_go_to_other(self):
        """Sooner or later: who gets the keyboard back may lose the first ones."""
        before = len(self.other.keys())
        repeat_until(
            lambda: self.desktop.key("a"),
            lambda: len(self.other.keys()) > before,
            "the other application gets a key",
        )

    def scroll_by_the_wheel(self):
        self.desktop.enter_mouse(*MIDDLE)
        repeat_until(
            lambda: self.desktop.hands("click", 5),
            lambda: self.status()["scrollPosition"] > 0,
            "the wheel scrolls",
        )

    def check_keyboard_is_never_lost(self):
        self.assert_keys_go_to_other()
        self.scroll_by_the_wheel()
        self.desktop.click(*MIDDLE)
        self.desktop.move_mouse(*self.place_of_other)
        self.assert_keys_go_to_other()


class OnKWin(CompositorTestCase):
    compositor = KWin
    platform = "wayland"

    def test_hangs_over_a_full_screen_window_and_leaves_it_the_keyboard(self):
        self.start()
        self.check_keyboard_is_never_lost()
        self.desktop.click(*MIDDLE)
        self.other.wait_for_keyboard(False)
        self.desktop.key("End")
        wait_until(lambda: self.status()["scrollPosition"] > 1000, "keys come after a click")


class OnMutter(CompositorTestCase):
    compositor = Mutter

    def test_hangs_over_a_full_screen_window_and_leaves_it_the_keyboard(self):
        self.start()
        self.check_keyboard_is_never_lost()


class OnWeston(CompositorTestCase):
    compositor = Weston
    kind_of_other = "normal"

    def test_hangs_at_the_top_centre_and_leaves_others_the_keyboard(self):
        self.start()
        self.check_keyboard_is_never_lost()


if __name__ == "__main__":
    main()
