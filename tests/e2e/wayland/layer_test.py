"""The prompter as a surface over the desktop: where it hangs, and what it hangs over."""

from harness import wait_until
from harness.wayland import main
from harness.wayland.case import HEIGHT, RED, WIDTH
from harness.wayland.sway import PANEL_COLOR
from layer_case import LEFT, PLACE, LayerTestCase

FOLDED = 24


class Layer(LayerTestCase):
    desktop_options = {"panel": True}

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
