"""The prompter as a surface over the desktop: where it hangs, and what it hangs over."""

from harness import wait_until
from harness.wayland import WaylandTestCase, main
from harness.wayland.case import HEIGHT, RED, WIDTH
from harness.wayland.sway import PANEL_COLOR

SCREEN = (1280, 800)
LEFT = (SCREEN[0] - WIDTH) // 2
PLACE = (LEFT, 0, WIDTH, HEIGHT)
TEXT = (LEFT + 25, 54, 400, 150)
MIDDLE = (640, 150)
FOLDED = 24
ELSEWHERE = (100, 700)
TALK = "A line of a talk\n\n" * 100


class Layer(WaylandTestCase):
    desktop_options = {"panel": True}

    def setUp(self):
        super().setUp()
        self.other = self.start_other()
        self.desktop.move_mouse(*ELSEWHERE)

    def start(self, *arguments):
        super().start(*(arguments or [self.write_script(TALK)]))
        self.assertEqual(self.status()["platform"], "wayland")

    def ctl(self, *words):
        self.assertEqual(self.call("ctl", *words)[::2], (0, ""), words)

    def text(self):
        return self.desktop.region(*TEXT)

    def position(self):
        return self.status()["scrollPosition"]

    def test_hangs_at_the_top_centre_over_panel_full_screen_and_workspaces(self):
        self.start()
        self.assertEqual(self.desktop.pixel(100, 10), PANEL_COLOR)
        self.wait_for_area(*PLACE)
        self.desktop.switch_to_workspace("elsewhere")
        wait_until(lambda: not self.desktop.windows(), "nothing else is on show")
        self.assertTrue(self.prompter_is_shown())
        full = self.start_other("fullscreen", "#ff0000")
        self.desktop.wait_for_pixel(100, 10, RED)
        self.assertEqual(self.prompter_area(), PLACE)
        full.end()

    def test_folds_hides_and_moves_aside(self):
        self.write_settings(xOffset=100)
        self.start()
        heights = set()
        self.wait_for_area(LEFT + 100, *PLACE[1:])
        self.ctl("minimize")

        def is_folded():
            heights.add(self.prompter_area()[3])
            return self.prompter_area() == (LEFT + 100, 0, WIDTH, FOLDED)

        wait_until(is_folded, "it is folded")
        self.ctl("expand")
        self.wait_for_area(LEFT + 100, *PLACE[1:])
        self.ctl("hide")
        self.wait_for_prompter(shown=False)
        self.ctl("show")
        self.wait_for_area(LEFT + 100, *PLACE[1:])
        self.assertTrue(any(FOLDED < height < HEIGHT for height in heights), heights)


if __name__ == "__main__":
    main()
