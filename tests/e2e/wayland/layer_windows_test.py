"""The other windows of the program over a Wayland desktop, and how the prompter looks beside them."""

import signal

from harness import wait_until
from harness.wayland import main
from harness.wayland.case import BLUE, WIDTH
from layer_case import LEFT, MIDDLE, PLACE, SCREEN, LayerTestCase

BUTTON = (10, 132, 255)
BESIDE = (LEFT + WIDTH, 0)  # the corner of the settings
CLOSE = (BESIDE[0] + 302, 15)
TITLE = (BESIDE[0] + 150, 15)
GROUND = (LEFT + 420, 150)  # beside the text
SMALL = (640, 480)


class Windows(LayerTestCase):
    def setUp(self):
        super().setUp()
        self.start()

    def side(self):
        """What the window beside the prompter shows."""
        return self.desktop.region(*BESIDE, 280, 400)

    def is_side_free(self):
        return set(b"".join(self.side())) == {0, 255} and self.desktop.pixel(*TITLE) == BLUE

    def open(self, command):
        before = self.side()
        self.ctl(command)
        wait_until(lambda: self.side() != before and not self.is_side_free(), f"{command} are seen")
        self.desktop.move_mouse(*TITLE)
        return self.settled_side()

    def settled_side(self):
        last = None
        while last != self.side():
            last = self.side()
        return last

    def test_take_turns_and_give_the_keyboard_back(self):
        settings = self.open("settings")
        self.other.wait_for_keyboard(False)
        reading = self.open("reading")
        self.assertNotEqual(settings, reading)
        self.open("settings")
        wait_until(lambda: self.side() == settings, "the settings are above again")
        self.desktop.click(*TITLE)
        self.desktop.key("ctrl+w")
        wait_until(lambda: self.settled_side() == reading, "closed, they leave the other window")
        self.desktop.click(*CLOSE)
        wait_until(self.is_side_free, "nothing is beside the prompter")
        self.other.wait_for_keyboard()

    def drag(self, *places):
        """All of it before the program moves its window for the first time, as on a busy machine."""
        self.desktop.move_mouse(*places[0])
        self.prompter.send(signal.SIGSTOP)
        self.desktop.press_button()
        for place in places[1:]:
            self.desktop.move_mouse(*place)
        self.desktop.release_button()
        self.prompter.send(signal.SIGCONT)

    def test_follow_the_mouse_however_late(self):
        self.open("settings")
        self.drag(TITLE, (900, 100), (1000, 200), (800, 400))
        wait_until(lambda: self.corner() == (BESIDE[0] + 800 - TITLE[0], 400 - TITLE[1]), "they came along")

    def corner(self):
        """The top left corner of a window below the prompter."""
        picture = self.desktop.picture()
        rows = range(300, SCREEN[1])
        top = next((y for y in rows if picture.pixel(800, y) != BLUE), None)
        if top is None:
            return None
        return next(x for x in range(SCREEN[0]) if picture.pixel(x, top + 20) != BLUE), top

    def test_are_seen_where_they_lie_over_the_prompter(self):
        self.open("settings")
        self.drag(TITLE, (MIDDLE[0] - 40, 100), (MIDDLE[0], 120))
        # The window's title bar, in place of the text.
        wait_until(
            lambda: self.desktop.pixel(MIDDLE[0] + 60, 130) == self.desktop.pixel(MIDDLE[0] + 60, 300),
            "the prompter is cut out below the settings",
        )
        self.assertNotEqual(self.desktop.pixel(MIDDLE[0] + 60, 130), (0, 0, 0))
        self.assertEqual(self.desktop.pixel(MIDDLE[0], 5), (0, 0, 0))

    def test_fit_a_small_screen(self):
        self.desktop.command("output HEADLESS-1 mode {}x{}".format(*SMALL))
        wait_until(lambda: self.desktop.extent() == SMALL, "the screen is small")
        self.ctl("settings")
        right = SMALL[0] - 100
        wait_until(
            lambda: self.desktop.pixel(right, 300) not in (BLUE, (0, 0, 0)), "the settings are seen"
        )
        self.assertEqual(self.desktop.pixel(SMALL[0] // 2 - 60, 5), (0, 0, 0), "and so is the prompter")

    def test_see_through_the_ground_and_its_clicks(self):
        self.ctl("opacity", "50")
        wait_until(lambda: self.desktop.pixel(*GROUND) not in (BLUE, (0, 0, 0)), "the ground is seen through")
        red, green, blue = self.desktop.pixel(*GROUND)
        self.assertEqual((red, green), (0, 0))
        self.assertAlmostEqual(blue, 127, delta=2)
        self.ctl("click-through", "on")
        self.desktop.click(*MIDDLE)
        self.desktop.type("x")
        wait_until(lambda: self.other.keys() == "x", "the click went to the window below")
        self.ctl("click-through", "off")
        self.desktop.click(*MIDDLE)
        self.other.wait_for_keyboard(False)


class FirstRun(LayerTestCase):
    first_run = True

    def button(self):
        """Where the button is that starts."""
        picture = self.desktop.picture()
        for y in range(SCREEN[1] - 1, SCREEN[1] // 2, -4):
            for x in range(SCREEN[0] // 2 - 200, SCREEN[0] // 2 + 200, 4):
                if picture.pixel(x, y) == BUTTON:
                    return x, y
        return None

    def test_is_gone_through_by_mouse(self):
        self.prompter = self.start_tessaline(self.write_script("Some words"))
        place = wait_until(self.button, "the window has its button")
        self.desktop.click(place[0] + 20, place[1])
        self.wait_for_area(*PLACE)
        self.assertEqual(self.desktop.pixel(SCREEN[0] // 2, SCREEN[1] - 200), BLUE)
        self.assertTrue(self.settings()["hasCompletedOnboarding"])


if __name__ == "__main__":
    main()
