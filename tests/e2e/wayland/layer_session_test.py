"""The prompter as a surface over the desktop while outputs, scales and the session itself change."""

import signal

from harness import wait_until
from harness.status_area import StatusArea
from harness.wayland import main
from harness.wayland.case import BLUE, HEIGHT, WIDTH
from harness.wayland.sway import PANEL_COLOR
from layer_case import PLACE, LayerTestCase

FIRST = "HEADLESS-1"


class ChosenOutput(LayerTestCase):
    desktop_options = {"outputs": ("mode 1280x800 position 0 0", "mode 1024x768 position 1280 0")}

    def id_of(self, output):
        return next(screen["id"] for screen in self.screens() if screen["name"] == output)

    def screens(self):
        return self.other.reports("screens")[-1]["all"]

    def test_is_where_the_prompter_hangs(self):
        wait_until(lambda: len(self.screens()) == 2, "both outputs are known")
        self.write_settings(preferredDisplayID=self.id_of("HEADLESS-2"))
        self.start()
        self.wait_for_area((1024 - WIDTH) // 2, 0, WIDTH, HEIGHT, output="HEADLESS-2")
        self.assertIsNone(self.prompter_area(FIRST))


class UnpluggedOutputs(LayerTestCase):
    """In a session whose outputs are windows of another one, so that they can be unplugged."""

    desktop_options = {"outputs": ("mode 2560x800",)}

    def setUp(self):
        super().setUp()
        self.other.end()
        self.outer = self.desktop
        self.desktop = self.start_desktop(
            outputs=("position 0 0", "position 1280 0"), nested_in=self.outer
        )
        self.write_settings()

    def unplug(self, output):
        self.outer.command(f'[title="{output}"] kill')
        wait_until(lambda: output not in self.desktop.outputs(), f"{output} is unplugged")

    def wait_for_prompter_on(self, output):
        """The outer session makes what is left of its windows as wide as itself, but not at once."""
        wait_until(lambda: self.hangs_on(output), f"the prompter hangs on {output}")

    def hangs_on(self, output):
        width = self.desktop.outputs()[output][2]
        return self.prompter_area(output) == ((width - WIDTH) // 2, 0, WIDTH, HEIGHT)

    def test_send_the_prompter_to_the_one_that_is_left(self):
        self.start()
        self.wait_for_prompter_on("WL-1")
        self.unplug("WL-1")
        self.wait_for_prompter_on("WL-2")
        self.unplug("WL-2")
        self.assertTrue(self.status()["visible"])
        self.desktop.command("create_output")
        wait_until(lambda: "WL-3" in self.desktop.outputs(), "there is an output again")
        self.wait_for_prompter_on("WL-3")


class Scales(LayerTestCase):
    def has_size(self, width, height):
        """Give or take a pixel, as half of one is to some side of an edge."""
        area = self.prompter_area(FIRST)
        return area and abs(area[2] - width) <= 1 and abs(area[3] - height) <= 1

    def blur(self):
        """The share of the text's pixels that are neither ground nor as bright as its strokes."""
        picture = self.desktop.picture(FIRST)
        left, _, width, height = self.prompter_area(FIRST)
        area = left + width // 20, height // 5, width // 2, height * 3 // 5
        ink = picture.share(*area, lambda *pixel: max(pixel) > 30)
        return picture.share(*area, lambda *pixel: 30 < max(pixel) < 170) / ink

    def test_is_sharp_at_each(self):
        self.start()
        self.wait_for_area(*PLACE)
        coarse = self.blur()
        for scale in 2, 1.5:
            self.desktop.command(f"output {FIRST} scale {scale}")
            wait_until(lambda: self.has_size(WIDTH * scale, HEIGHT * scale), f"it is {scale} as large")
            wait_until(lambda: self.blur() < coarse - 0.1, f"it is sharp at {scale}")


class End(LayerTestCase):
    def test_ends_cleanly_when_the_compositor_is_killed(self):
        self.write_settings(autoScrollEnabled=True, scrollSpeed=2.0)
        self.start()
        self.desktop.compositor.send(signal.SIGKILL)
        status = self.prompter.wait(10)
        self.assertGreaterEqual(status, 0, "it ended by itself")
        self.assertIn("app_terminate", self.event_names())


class Session(LayerTestCase):
    def test_has_a_tray_icon_later_starts_and_a_clean_stop(self):
        area = StatusArea(self.desktop)
        area.wait_until_ready()
        self.start()
        item = area.wait_for_item()
        self.ctl("hide")
        self.wait_for_prompter(shown=False)
        item.choose("Show Tessaline")
        self.wait_for_prompter()
        other = self.desktop.home / "other.md"
        other.write_text("Three new words")
        self.assertEqual(self.call(other)[0], 0)
        wait_until(lambda: self.status()["words"] == 3, "the later start's file is shown")
        self.assertEqual(self.prompter.end(), 0)
        self.assertIn("app_terminate", self.event_names())


class Lock(LayerTestCase):
    def test_is_there_after_the_session_was_locked(self):
        self.start()
        lock = self.desktop.start("swaylock", ["swaylock", "--color", "00ff00"])
        self.desktop.wait_for_pixel(100, 600, PANEL_COLOR)
        lock.send(signal.SIGUSR1)
        self.desktop.wait_for_pixel(100, 600, BLUE)
        self.wait_for_area(*PLACE)
        self.assertTrue(self.status()["visible"])


if __name__ == "__main__":
    main("swaylock")
