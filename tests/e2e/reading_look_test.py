"""How a text looks: turned over, on a ground that is seen through, clicked through, its font."""

import json
import signal
import unittest

from event_tap_case import Application
from harness import wait_until
from reading_view_test import ReadingViewTestCase
from talk_case import PROMPTER, talk

TITLE = "Reading"
WORDS = "alpha beta gamma\n\nsecond line\n\n" + talk(30)
STRIP_MIDDLE = 30  # in points from the top, between what is drawn in the strip
GONE = "A Font That Is Gone"
COMPOSITOR_HINT = (
    "To see through the ground takes a compositing manager, and none runs on this desktop: "
    "it stays black."
)


class LookTestCase(ReadingViewTestCase):
    def options(self):
        path = self.support_folder() / "reading.json"
        return json.loads(path.read_text()) if path.exists() else {}

    def answer(self, *words):
        """What the running prompter answers to a command."""
        status, output, error = self.call("ctl", *words)
        self.assertEqual((status, error), (0, ""), words)
        return output.rstrip("\n")

    def text_pixels(self):
        return self.desktop.region(*self.area)


class Mirror(LookTestCase):
    @staticmethod
    def turned_over(rows, sideways, upside_down):
        if upside_down:
            rows = rows[::-1]
        if not sideways:
            return rows
        return [
            b"".join(row[i : i + 3] for i in range(len(row) - 3, -1, -3)) for row in rows
        ]

    def ink_of_the_first_word(self):
        """Where on the screen its middle is: of the first line, the ink up to a gap of 4 pixels."""
        left, top, _, _ = self.area
        rows = self.text_pixels()[: 10 + 19]
        columns = [
            x for x in range(len(rows[0]) // 3) if any(row[3 * x] > 90 for row in rows)
        ]
        end = next(a for a, b in zip(columns, columns[1:]) if b - a > 4)
        return left + (columns[0] + end) // 2, top + 10 + 19 // 2

    def seen_at(self, x, y, sideways, upside_down):
        left, top, width, height = self.area
        return (
            2 * left + width - 1 - x if sideways else x,
            2 * top + height - 1 - y if upside_down else y,
        )

    def test_is_seen_and_hit_where_it_is(self):
        self.start_with(WORDS)
        written = self.text_pixels()
        word = self.ink_of_the_first_word()
        for way, sideways, upside_down in (
            ("horizontal", True, False),
            ("vertical", False, True),
            ("both", True, True),
        ):
            with self.subTest(way):
                self.ctl("mirror", way)
                wanted = self.turned_over(written, sideways, upside_down)
                wait_until(lambda rows=wanted: self.text_pixels() == rows, "it is turned over")
                x, y = self.seen_at(*word, sideways, upside_down)
                self.desktop.hands("mousemove", x, y, "click", "--repeat", 2, 1)
                self.desktop.key("ctrl+c")
                wait_until(lambda: self.clipboard.read() == b"alpha", "the word is copied")
                # The click on a place without text takes the selection away.
                self.desktop.click(*self.seen_at(*self.place_of(0.2), sideways, upside_down))
                self.copy_elsewhere("something else")
        self.desktop.key("m")
        wait_until(lambda: self.options()["mirror"] == "none", "M turns it back")
        wait_until(lambda: self.text_pixels() == written, "it is as it was written")


class ClickThrough(LookTestCase):
    def presses(self):
        return len(self.below.events("press"))

    def click_text(self):
        self.desktop.click(*self.place_of(0.7))

    def assert_reaches_the_window_below(self):
        before = self.presses()
        self.click_text()
        wait_until(lambda: self.presses() == before + 1, "the window below has the click")

    def test_lets_another_program_have_the_mouse(self):
        self.below = Application(self.desktop, "watch", "--window", "100,0,1000,600")
        self.start_with(WORDS)
        self.click_text()
        wait_until(lambda: self.desktop.focused_window() == self.window, "the text was clicked")
        self.assertEqual(self.presses(), 0)

        self.assertEqual(self.answer("click-through", "on"), "click-through on")
        self.assert_reaches_the_window_below()
        self.desktop.click(*self.place_of(0.7), button=5)
        wait_until(self.below.wheel, "and the wheel")
        self.assertEqual(self.position(), 0)

        self.press(PROMPTER, "Minimize")
        wait_until(lambda: self.status()["collapsed"], "the strip has the mouse as ever")
        self.press(PROMPTER, "Minimize")
        wait_until(lambda: not self.status()["collapsed"], "it is unfolded")
        wait_until(lambda: self.script().area == self.area, "it has its height")
        self.assert_reaches_the_window_below()
        self.ctl("hide")
        self.wait_for_prompter(False)
        self.ctl("show")
        self.wait_for_prompter()
        self.assert_reaches_the_window_below()

        self.ctl("click-through", "off")
        before = self.presses()
        self.desktop.click(*self.place_of(0.7), button=5)
        wait_until(lambda: self.position() > 0, "the text has the wheel")
        self.click_text()
        wait_until(lambda: self.desktop.focused_window() == self.window, "the text was clicked")
        self.assertEqual(self.presses(), before)


class Ground(LookTestCase):
    desktop_options = {"size": (1280, 1024), "compositor": True, "panel": False}

    def ground(self):
        """A pixel of the text without ink."""
        left, top, _, _ = self.area
        return self.desktop.pixel(left + 3, top + 3)

    def wait_for_ground(self, grey):
        wait_until(lambda: abs(self.ground()[0] - grey) <= 1, f"the ground is {grey}", 5)

    def brightest(self):
        return max(max(row[channel::3]) for row in self.text_pixels() for channel in (0, 1))

    def test_is_seen_through_while_a_compositor_runs(self):
        self.start_with(WORDS)
        below = self.desktop.pixel(5, 900)[0]
        self.assertGreater(below, 100)
        self.wait_for_ground(0)
        ink = self.brightest()
        self.assertEqual(self.answer("opacity", 60), "opacity 60 percent")
        self.wait_for_ground(0.4 * below)
        self.assertEqual(self.brightest(), ink, "the text is opaque")
        left, _, width, _ = self.area
        self.assertEqual(self.desktop.pixel(left + width // 3, STRIP_MIDDLE), (0, 0, 0))

        self.ctl("reading")
        self.assertFalse(self.open_window(TITLE).find_all("label", COMPOSITOR_HINT))
        self.desktop.process("picom").send(signal.SIGTERM)
        self.control(TITLE, "label", COMPOSITOR_HINT)
        self.wait_for_ground(0)
        self.assertEqual(
            self.answer("opacity", 50),
            "opacity 50 percent, which needs a compositing manager: the ground is opaque",
        )
        status = self.status()
        self.assertEqual((status["opacity"], status["opacityShown"]), (50, 100))
        self.desktop.start_compositor()
        self.wait_for_ground(0.5 * below)
        self.ctl("opacity", 100)
        self.wait_for_ground(0)


class Letters(LookTestCase):
    def test_are_those_of_the_desktop_where_a_font_is_gone(self):
        self.start_with(WORDS)
        usual = self.text_pixels()
        self.quit_and_start()
        self.desktop.key("ctrl+q")
        self.prompter.wait()
        self.start_with(WORDS, fontFamily=GONE)
        self.assertEqual(self.text_pixels(), usual)
        self.assertEqual(
            self.prompter.stdout().count(f"The font “{GONE}” is not installed"), 1
        )
        status = self.status()
        self.assertEqual((status["font"], status["fontShown"]), (GONE, "default"))
        self.assertEqual(self.options()["fontFamily"], GONE)
        self.assertEqual(self.answer("font", "DejaVu", "Sans", "Mono"), "font DejaVu Sans Mono")
        wait_until(lambda: self.text_pixels() != usual, "the text is in another font")
        self.ctl("font", "default")
        wait_until(lambda: self.text_pixels() == usual, "it is as before")

    def test_are_chosen_in_the_window_by_keys_and_sized_for_the_distance(self):
        self.start_with(WORDS)
        before = self.text_pixels()
        self.ctl("reading")
        window = self.desktop.wait_for_window("^Reading$", self.prompter.pid)
        self.desktop.wait_for_keyboard(window)
        self.title = TITLE
        self.focus("combo box", "Off")
        self.desktop.key("Down")
        wait_until(lambda: self.options().get("mirror") == "horizontal", "it is turned over")
        self.desktop.key("Up")
        self.focus("slider", "Opacity of the Ground")
        self.desktop.key("Left", "Left")
        wait_until(lambda: self.options().get("groundOpacity") == 0.9, "the ground is thinner")
        self.focus("check box", "Click Through the Text")
        self.desktop.key("space")
        wait_until(lambda: self.options().get("clickThrough"), "clicks go through")
        self.desktop.key("space")
        self.focus("combo box", "Default")
        self.desktop.type("DejaVu Sans M")
        wait_until(lambda: self.options().get("fontFamily") == "DejaVu Sans Mono", "by its name")
        self.focus("slider", "Line Spacing")
        self.desktop.key("Right")
        wait_until(lambda: self.options().get("lineSpacing") == 1.05, "lines are higher")
        self.assertNotEqual(self.text_pixels(), before)
        self.focus("slider", "Reading Distance")
        self.desktop.key("Home")
        wait_until(lambda: self.options().get("readingDistance") == 40, "the reader is near")
        self.focus("push button", "Suggest a font size for this distance")
        self.desktop.key("space")
        wait_until(lambda: "fontSize" in self.settings(), "the size is saved")
        status = self.status()
        wait_until(lambda: self.settings()["fontSize"] == self.status()["fontSize"], "it counts")
        self.assertNotEqual(status["fontSize"], 16)
        self.assertEqual(self.answer("suggest"), status["suggestion"])
        self.assertIn("20 minutes of arc at 40 cm", status["suggestion"])
        self.control(TITLE, "label", status["suggestion"])


if __name__ == "__main__":
    unittest.main()
