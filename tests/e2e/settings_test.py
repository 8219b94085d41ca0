"""The settings window: its controls by mouse, keys and screen reader, and the prompter that follows
while they move."""

import re
import signal
import unittest

from harness import wait_until
from harness.session import PANEL_HEIGHT
from harness.tessaline import SETTINGS
from harness.waiting import holds_for
from settings_case import CONTROLS, HEIGHT, TITLE, WIDTH, SettingsTestCase

WINDOW_COLOR, PROMPTER_COLOR = (42, 42, 44), (0, 0, 0)
TEXT = (10, 44, 430, 202)  # x, y, width, height in the prompter
TALK = "A line of the talk that is long enough to be broken where the prompter is narrow\n\n" * 300


class Place(SettingsTestCase):
    def test_is_right_below_the_prompter_in_the_middle_of_the_screen(self):
        self.start_with_settings()
        self.wait_for_top(HEIGHT)
        x, _, width, _ = self.open_window(TITLE).area
        self.assertAlmostEqual(x + width / 2, self.screen_width / 2, delta=1)

    def test_follows_the_height_of_the_prompter_and_gives_way_to_a_high_one(self):
        self.start_with_settings()
        self.focus("slider", "Height")
        self.desktop.key("End")
        self.wait_for_prompter_area(self.left, 0, WIDTH, 800)
        self.wait_for_top(PANEL_HEIGHT)
        self.assertGreaterEqual(self.open_window(TITLE).area[0], self.left + WIDTH)
        self.desktop.key("Home")
        self.wait_for_prompter_area(self.left, 0, WIDTH, 100)
        self.wait_for_top(100)
        self.assertLess(self.open_window(TITLE).area[0], self.left + WIDTH)

    def test_has_the_keyboard_also_when_the_window_manager_is_late(self):
        manager = self.desktop.process("openbox")
        manager.send(signal.SIGSTOP)
        self.start()
        self.assertEqual(self.call("ctl", "settings")[0], 0)
        # The program hears only afterwards that the window manager has got so far.
        self.prompter.send(signal.SIGSTOP)
        manager.send(signal.SIGCONT)
        window = self.desktop.wait_for_window(SETTINGS, self.prompter.pid)
        wait_until(lambda: self.desktop.focused_window() == window, "it has the keyboard")
        self.prompter.send(signal.SIGCONT)
        self.assertTrue(holds_for(lambda: self.desktop.focused_window() == window, 0.3))

    def test_stays_open_when_escape_is_pressed(self):
        self.start_with_settings()
        self.desktop.key("Escape")
        self.assertTrue(holds_for(self.settings_are_open, 0.5))

    def test_can_be_closed_and_opened_again(self):
        self.start_with_settings()
        self.desktop.close_by_keys(self.window_of_settings)
        wait_until(lambda: not self.settings_are_open(), "it is closed")
        self.open_settings()
        self.wait_for_top(HEIGHT)
        self.focus("slider", "Width")
        self.desktop.key("End")
        self.wait_for_prompter_area((self.screen_width - 800) // 2, 0, 800, HEIGHT)


class Sliders(SettingsTestCase):
    def test_the_prompter_follows_the_width_while_the_mouse_is_down(self):
        self.start_with_settings(self.write_script(TALK))
        slider = self.grab("Width")
        before = self.desktop.region(self.left, 60, WIDTH, HEIGHT - 80)
        widths = []
        for value in (500, 600, 700):
            self.desktop.move_mouse(*self.place_of(slider, value))
            wait_until(
                lambda value=value: abs(self.prompter_area()[2] - value) <= 2,
                f"the prompter is about {value} wide",
            )
            x, y, width, height = self.prompter_area()
            widths.append(width)
            self.assertEqual((y, height), (0, HEIGHT))
            self.assertAlmostEqual(x + width / 2, self.screen_width / 2, delta=1)
        self.assertTrue(
            holds_for(lambda: self.prompter_area()[2] == widths[-1], 0.3), "nothing moves by itself"
        )
        inside = self.desktop.region(self.left, 60, WIDTH, HEIGHT - 80)
        self.assertNotEqual(inside, before, "the text is broken anew")
        self.assertAlmostEqual(self.settings()["width"], widths[-1], delta=1)
        self.wait_for_text(TITLE, f"{int(self.settings()['width'])}px")
        self.desktop.release_button()
        self.assertTrue(holds_for(lambda: self.prompter_area()[2] == widths[-1], 0.3))

    def test_the_text_grows_while_the_mouse_is_down(self):
        self.start_with_settings(self.write_script(TALK))
        before = self.desktop.picture(self.window).region(*TEXT)
        self.drag("Font Size", 25)
        wait_until(
            lambda: self.desktop.picture(self.window).region(*TEXT) != before, "the text has changed"
        )
        self.assertAlmostEqual(self.settings()["fontSize"], 25, delta=0.2)
        x, y = self.place_of(self.slider("Font Size"), 18)
        for pixel in range(4):
            before = self.desktop.picture(self.window).region(*TEXT)
            self.desktop.move_mouse(x + pixel, y)
            wait_until(
                lambda: self.desktop.picture(self.window).region(*TEXT) != before,
                f"the text is another at pixel {pixel}",
            )
        self.desktop.release_button()

    def test_the_position_snaps_at_the_centre(self):
        self.start_with_settings()
        slider = self.grab("Position")
        self.desktop.move_mouse(*self.place_of(slider, 100))
        wait_until(lambda: self.prompter_area()[0] > self.left + 90, "the prompter has moved")
        moved = int(self.settings()["xOffset"])
        self.wait_for_text(TITLE, f"+{moved}px right")
        self.desktop.move_mouse(*self.place_of(slider, 15))
        wait_until(lambda: self.prompter_area()[0] == self.left, "the prompter is in the middle")
        self.assertEqual(self.settings()["xOffset"], 0)
        self.wait_for_text(TITLE, "Center")
        self.desktop.move_mouse(*self.place_of(slider, -60))
        wait_until(lambda: self.prompter_area()[0] < self.left - 50, "the prompter has moved")
        self.desktop.release_button()
        self.wait_for_text(TITLE, f"{int(self.settings()['xOffset'])}px left")

    def test_the_position_reaches_both_edges_of_the_screen(self):
        self.start_with_settings()
        self.focus("slider", "Position")
        self.desktop.key("End")
        self.wait_for_prompter_area(self.screen_width - WIDTH, 0, WIDTH, HEIGHT)
        self.desktop.key("Home")
        self.wait_for_prompter_area(0, 0, WIDTH, HEIGHT)

    def test_are_moved_by_the_arrow_keys(self):
        self.start_with_settings()
        self.focus("slider", "Width")
        self.desktop.key("Right", "Right", "Left")
        wait_until(lambda: self.prompter_area()[2] == WIDTH + 1, "the prompter is a point wider")
        self.assertEqual(self.settings()["width"], WIDTH + 1)
        self.assertEqual(self.slider("Width").value, WIDTH + 1)

    def test_record_every_movement_by_four_events(self):
        self.start_with_settings()
        self.focus("slider", "Font Size")
        self.desktop.key("Right")
        wait_until(lambda: self.settings().get("fontSize") == 17, "the size is saved")
        self.assertEqual(
            self.end_and_read_history("setting_changed"),
            [
                {"setting_name": "width", "setting_value": "450"},
                {"setting_name": "height", "setting_value": "256"},
                {"setting_name": "fontSize", "setting_value": "17"},
                {"setting_name": "scrollRate", "setting_value": "medium"},
            ],
        )

    def test_the_rate_is_chosen_with_the_keys(self):
        self.start_with_settings()
        self.focus("combo box", "Medium")
        self.desktop.key("Down")
        self.wait_for_focus("combo box", "Fast")
        wait_until(lambda: self.settings()["scrollRate"] == "fast", "it is saved")
        self.desktop.key("Up", "Up")
        self.wait_for_focus("combo box", "Slow")
        wait_until(lambda: self.settings()["scrollRate"] == "slow", "it is saved")

    def test_the_rate_is_chosen_with_the_mouse(self):
        self.start_with_settings()
        self.choose("Medium", "Slow")
        wait_until(lambda: self.settings().get("scrollRate") == "slow", "it is saved")


class ForScreenReaders(SettingsTestCase):
    def test_every_control_has_a_role_and_a_name(self):
        self.start_with_settings()
        roles = {"check box", "combo box", "slider", "push button"}
        controls = [node for node in self.open_window(TITLE).shown() if node.role in roles]
        self.assertEqual(
            [(node.role, node.name) for node in controls], [("check box", "Clipboard"), *CONTROLS]
        )

    def test_is_a_window(self):
        self.start_with_settings()
        self.assertEqual(self.open_window(TITLE).role, "frame")

    def test_popups_are_labelled_by_what_stands_beside_them(self):
        self.start_with_settings()
        popups = self.open_window(TITLE).find_all("combo box")
        self.assertEqual(
            {popup.name: popup.labels for popup in popups},
            {"Clipboard": ["Active Source"], "Auto": ["Screen"], "Medium": ["Scroll Speed"]},
        )

    def test_sliders_tell_their_values_in_points(self):
        self.start_with_settings()
        values = {node.name: node.value for node in self.open_window(TITLE).find_all("slider")}
        self.assertEqual(values, {"Width": 450, "Height": 256, "Font Size": 16, "Position": 0})
        self.assertEqual(self.slider("Width").range, [380, 800])
        self.assertEqual(self.slider("Position").range, [-415, 415])

    def test_switches_are_check_boxes_with_their_state(self):
        self.start_with_settings()
        clipboard = self.control(TITLE, "check box", "Clipboard")
        self.assertIn("checked", clipboard.states)
        self.assertNotIn("enabled", clipboard.states)
        obsidian = self.control(TITLE, "check box", "Obsidian")
        self.assertNotIn("checked", obsidian.states)
        self.assertIn("enabled", obsidian.states)

    def test_the_tab_key_goes_from_top_to_bottom(self):
        self.start_with_settings()
        for role, name in CONTROLS + CONTROLS[:1]:
            self.desktop.key("Tab")
            self.wait_for_focus(role, name)
        self.desktop.key("shift+Tab")
        self.wait_for_focus(*CONTROLS[-1])


class LowScreen(SettingsTestCase):
    desktop_options = {"size": (1280, 700)}

    def assert_whole_on_the_screen(self):
        """Beside the prompter, below the panel."""
        self.wait_for_top(PANEL_HEIGHT)
        self.assertLessEqual(self.frame()[1], self.screen_height)
        x, _, width, _ = self.open_window(TITLE).area
        self.assertGreaterEqual(x, self.left + WIDTH)
        self.assertLessEqual(x + width, self.screen_width)

    def is_in_sight(self, node):
        return node.lies_in(self.open_window(TITLE).area)

    def test_scrolls_to_what_has_the_keyboard(self):
        self.start_with_settings()
        self.assert_whole_on_the_screen()
        for role, name in CONTROLS:
            self.desktop.key("Tab")
            self.wait_for_focus(role, name)
            wait_until(
                lambda role=role, name=name: self.is_in_sight(self.control(TITLE, role, name)),
                f"the {role} {name} is in sight",
            )
        self.assertTrue(self.is_in_sight(self.last_row()), "so is what comes after the last one")

    def test_scrolls_to_its_end_with_the_wheel(self):
        self.start_with_settings()
        self.assert_whole_on_the_screen()
        x, y, _, height = self.open_window(TITLE).area
        self.desktop.move_mouse(x + 5, y + height // 2)
        before = self.settings()
        self.desktop.hands("click", "--repeat", 40, 5)
        wait_until(
            lambda: self.is_in_sight(self.last_row()),
            "the last row is in sight",
        )
        self.assertEqual(self.settings(), before)

    def test_stays_on_the_screen_when_the_prompter_grows(self):
        self.start_with_settings()
        self.drag("Height", 700)
        wait_until(lambda: self.prompter_area()[3] > 690, "the prompter is higher")
        self.desktop.release_button()
        self.assert_whole_on_the_screen()
        self.assertTrue(self.is_in_sight(self.slider("Height")))

    def test_stays_on_the_screen_when_it_grows(self):
        self.obsidian.install()
        self.obsidian.add_vault()
        self.start_with_settings()
        self.click_on(self.control(TITLE, "check box", "Obsidian"))
        self.dismiss("Plugin Reinstalled")
        self.wait_for_text(TITLE, "Plugin active")
        self.assert_whole_on_the_screen()


class SmallScreen(SettingsTestCase):
    """There is no room but over the prompter."""

    desktop_options = {"size": (640, 480)}

    def wait_for_ground(self, color):
        """Waits for a colour between the window's left edge and its controls, where the prompter
        is as well."""
        x, y, _, _ = self.open_window(TITLE).area
        self.desktop.wait_for_pixel(x + 10, y + 100, color)

    def test_can_be_used_over_the_prompter(self):
        self.start_with_settings()
        self.wait_for_top(PANEL_HEIGHT)
        x, _, width, _ = self.open_window(TITLE).area
        self.assertLess(x, self.left + WIDTH)
        self.assertLessEqual(x + width, self.screen_width)
        self.assertLessEqual(self.frame()[1], self.screen_height)
        self.wait_for_ground(WINDOW_COLOR)
        self.choose("Clipboard", "Clipboard")
        self.wait_for_ground(WINDOW_COLOR)
        self.focus("slider", "Height")
        self.desktop.key("End")
        self.wait_for_prompter_area(self.left, 0, WIDTH, 800)
        self.wait_for_ground(WINDOW_COLOR)

        other = self.desktop.start("other", [self.probe(), "normal", "blue"])
        other_window = self.desktop.wait_for_window(pid=other.pid)
        self.desktop.activate(other_window)
        self.wait_for_ground(PROMPTER_COLOR)
        self.press("Tessaline", "Settings")
        self.wait_for_ground(WINDOW_COLOR)

    def test_its_first_key_changes_nothing_and_scrolls(self):
        self.start_with_settings()
        before = self.settings()
        self.desktop.key("space", "Down", "End")
        window = self.open_window(TITLE).area
        wait_until(
            lambda: self.last_row().lies_in(window), "the last row is in sight"
        )
        self.assertNotIn("checked", self.control(TITLE, "check box", "Obsidian").states)
        self.assertEqual(self.settings(), before)


class LargeScale(SettingsTestCase):
    desktop_options = {"size": (1366, 768)}

    def test_is_whole_on_the_screen(self):
        for scale in "2", "1.5":
            self.start(QT_SCALE_FACTOR=scale)
            self.call("ctl", "settings")
            settings = self.desktop.wait_for_window(SETTINGS, self.prompter.pid)
            self.desktop.wait_for_keyboard(settings)
            wait_until(lambda: self.is_on_the_screen(settings), f"it is on the screen at {scale}")
            self.prompter.end()

    def is_on_the_screen(self, window):
        info = self.desktop.run("xwininfo", "-id", window)
        left, top, width, height = (
            int(re.search(rf"{name}: +(-?\d+)", info).group(1))
            for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        )
        below = self.desktop.picture().pixel(left + width // 2, min(top + height, 767) - 4)
        return (
            left >= 0
            and top > PANEL_HEIGHT
            and height > 0.9 * (self.screen_height - PANEL_HEIGHT)
            and left + width <= self.screen_width
            and top + height <= self.screen_height
            and below != PROMPTER_COLOR
            and self.desktop.pixel(left + 10, top + 40) == WINDOW_COLOR
        )


if __name__ == "__main__":
    unittest.main()
