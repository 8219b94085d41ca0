"""The settings window: its controls by mouse, keys and screen reader, and the prompter that follows
while they move."""

import json
import unittest

from harness import wait_until
from harness.accessible_case import AccessibleTestCase
from harness.obsidian import PLUGIN, Obsidian
from harness.tessaline import SETTINGS
from harness.waiting import holds_for

TITLE = "Settings"
WIDTH, HEIGHT = 450, 256
STRIP_MIDDLE = 15
GEAR = 58
KNOB = 15
TALK = "A line of the talk that is long enough to be broken where the prompter is narrow\n\n" * 300
CONTROLS = [
    ("check box", "Obsidian"),
    ("combo box", "Clipboard"),
    ("combo box", "Auto"),
    ("slider", "Width"),
    ("slider", "Height"),
    ("slider", "Font Size"),
    ("slider", "Position"),
    ("combo box", "Medium"),
]


class SettingsTestCase(AccessibleTestCase):
    desktop_options = {"size": (1280, 1024)}

    def setUp(self):
        super().setUp()
        self.screen_width, self.screen_height = self.desktop.size
        self.left = (self.screen_width - WIDTH) // 2
        self.obsidian = Obsidian(self.desktop.home)

    def open_settings(self):
        """Presses the gear in the prompter's strip; the prompter hangs where it hung at first."""
        self.desktop.click(self.left + GEAR, STRIP_MIDDLE)
        self.window_of_settings = self.desktop.wait_for_window(SETTINGS, self.prompter.pid)
        wait_until(
            lambda: self.desktop.active_window() == self.window_of_settings, "it has the keyboard"
        )

    def start_with_settings(self, *arguments):
        self.start(*arguments)
        self.open_settings()

    def settings_are_open(self):
        return bool(self.desktop.windows(SETTINGS, self.prompter.pid))

    def prompter_area(self):
        return self.desktop.geometry(self.window)

    def wait_for_prompter_area(self, *area):
        wait_until(lambda: self.prompter_area() == area, f"the prompter is at {area}")

    def slider(self, name):
        return self.control(TITLE, "slider", name)

    def place_of(self, slider, value):
        """Where on the screen the knob's middle is for a value."""
        x, y, width, height = slider.area
        low, high = slider.range
        reach = (width - KNOB) * (value - low) / (high - low)
        return round(x + KNOB / 2 + reach), y + height // 2

    def grab(self, name):
        """Presses the mouse on a slider's knob; it stays down."""
        slider = self.slider(name)
        self.desktop.move_mouse(*self.place_of(slider, slider.value))
        self.desktop.press_button()
        return slider

    def frame(self):
        """The upper and the lower edge of the window manager's frame around the window."""
        _, top, _, height = self.open_window(TITLE).area
        extents = self.desktop.property(self.window_of_settings, "_NET_FRAME_EXTENTS")
        _, _, above, below = map(int, extents.split(","))
        return top - above, top + height + below

    def wait_for_top(self, top):
        wait_until(lambda: self.frame()[0] == top, f"the top of the window is at {top}")

    def focused(self):
        """(role, name) of what has the keyboard in the window; None if nothing has."""
        for node in self.open_window(TITLE).shown():
            if "focused" in node.states:
                return node.role, node.name
        return None

    def wait_for_focus(self, role, name):
        wait_until(lambda: self.focused() == (role, name), f"the {role} {name} has the keyboard")

    def focus(self, role, name):
        """Goes to a control with the Tab key."""
        for _ in range(len(CONTROLS) + 3):
            if self.focused() == (role, name):
                return
            before = self.focused()
            self.desktop.key("Tab")
            wait_until(lambda before=before: self.focused() != before, "the next one has the keys")
        self.fail(f"Tab does not come to the {role} {name}")

    def end_and_read_history(self, name):
        """Ends the program; the properties of all events of this name."""
        self.assertEqual(self.prompter.end(), 0)
        events = json.loads((self.support_folder() / "analytics.json").read_text())
        return [event["properties"] for event in events if event["name"] == name]


class Place(SettingsTestCase):
    def test_is_right_below_the_prompter_in_the_middle_of_the_screen(self):
        self.start_with_settings()
        self.wait_for_top(HEIGHT)
        x, _, width, _ = self.open_window(TITLE).area
        self.assertAlmostEqual(x + width / 2, self.screen_width / 2, delta=1)

    def test_follows_the_height_of_the_prompter(self):
        self.start_with_settings()
        self.focus("slider", "Height")
        self.desktop.key("End")
        self.wait_for_prompter_area(self.left, 0, WIDTH, 800)
        self.wait_for_top(800)
        self.desktop.key("Home")
        self.wait_for_prompter_area(self.left, 0, WIDTH, 100)
        self.wait_for_top(100)

    def test_stays_open_when_escape_is_pressed(self):
        self.start_with_settings()
        self.desktop.key("Escape")
        self.assertTrue(holds_for(self.settings_are_open, 0.5))

    def test_can_be_closed_and_opened_again(self):
        self.start_with_settings()
        self.desktop.key("alt+F4")
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
        before = self.desktop.picture().region(self.left, 60, WIDTH, HEIGHT - 80)
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
        inside = self.desktop.picture().region(self.left, 60, WIDTH, HEIGHT - 80)
        self.assertNotEqual(inside, before, "the text is broken anew")
        self.assertAlmostEqual(self.settings()["width"], widths[-1], delta=1)
        self.wait_for_text(TITLE, f"{int(self.settings()['width'])}px")
        self.desktop.release_button()
        self.assertTrue(holds_for(lambda: self.prompter_area()[2] == widths[-1], 0.3))

    def test_the_text_grows_while_the_mouse_is_down(self):
        self.start_with_settings(self.write_script(TALK))
        before = self.desktop.picture(self.window).ppm
        slider = self.grab("Font Size")
        self.desktop.move_mouse(*self.place_of(slider, 25))
        wait_until(lambda: self.desktop.picture(self.window).ppm != before, "the text has changed")
        self.assertAlmostEqual(self.settings()["fontSize"], 25, delta=0.2)
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
        self.click_on(self.control(TITLE, "combo box", "Medium"))
        self.click_on(self.control(TITLE, "list item", "Slow"))
        wait_until(lambda: self.settings().get("scrollRate") == "slow", "it is saved")
        self.control(TITLE, "combo box", "Slow")


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
        self.wait_for_focus(*CONTROLS[0])
        for role, name in CONTROLS[1:] + CONTROLS[:1]:
            self.desktop.key("Tab")
            self.wait_for_focus(role, name)
        self.desktop.key("shift+Tab")
        self.wait_for_focus(*CONTROLS[-1])


class ObsidianSwitch(SettingsTestCase):
    def setUp(self):
        super().setUp()
        self.obsidian.install()
        self.obsidian.add_vault()

    def switch(self):
        self.click_on(self.control(TITLE, "check box", "Obsidian"))

    def enabled_sources(self):
        return sorted(self.settings().get("enabledSourceTypes", []))

    def read_alert(self, title):
        alert = self.open_window(title)
        shown_title, text = alert.texts()[-2:]
        self.assertEqual(shown_title, title)
        return text

    def test_installs_the_plug_in_and_offers_the_source(self):
        self.start_with_settings()
        self.switch()
        self.assertEqual(
            self.read_alert("Plugin Reinstalled"),
            'Plugin installed in "Notes".\nRestart Obsidian to activate it.',
        )
        self.assertEqual(sorted(self.obsidian.plugin_files()), ["main.js", "manifest.json"])
        self.assertEqual(self.obsidian.plugins(), [PLUGIN])
        self.desktop.key("Escape")
        self.wait_until_closed("Plugin Reinstalled")
        self.assertTrue(holds_for(self.settings_are_open, 0.5), "Escape closed the alert alone")
        self.wait_for_text(TITLE, "Plugin active")
        self.assertEqual(self.enabled_sources(), ["clipboard", "obsidian"])
        self.focus("combo box", "Clipboard")
        self.desktop.key("Up")
        wait_until(lambda: self.settings()["activeSourceType"] == "obsidian", "it is chosen")
        self.wait_for_focus("combo box", "Obsidian")

    def test_takes_the_source_away_again(self):
        self.write_settings(
            activeSourceType="obsidian", enabledSourceTypes=["clipboard", "obsidian"]
        )
        self.start_with_settings()
        self.wait_for_text(TITLE, "Plugin not found")
        self.control(TITLE, "push button", "Reinstall Plugin")
        self.control(TITLE, "combo box", "Obsidian")
        self.switch()
        wait_until(lambda: self.enabled_sources() == ["clipboard"], "it is saved")
        self.assertEqual(self.settings()["activeSourceType"], "clipboard")
        self.control(TITLE, "combo box", "Clipboard")
        self.assertEqual(self.open_window(TITLE).find_all("push button"), [])
        self.assertNotIn("Plugin not found", self.open_window(TITLE).texts())
        self.assertEqual(
            self.end_and_read_history("source_disabled"), [{"source_type": "obsidian"}]
        )

    def test_follows_what_happens_in_the_vault(self):
        self.start_with_settings()
        self.switch()
        self.read_alert("Plugin Reinstalled")
        self.desktop.key("Return")
        self.wait_for_text(TITLE, "Plugin active")
        self.obsidian.switch_plugins_off()
        self.wait_for_text(TITLE, "Disabled in Obsidian")

    def test_says_when_the_installation_fails(self):
        self.obsidian.block_installation()
        self.start_with_settings()
        self.switch()
        self.open_window("Grant Access to Obsidian Vault")
        self.desktop.key("Escape")
        self.assertIn("Failed to install plugin: ", self.read_alert("Installation Failed"))
        self.desktop.key("Escape")
        self.wait_for_text(TITLE, "Plugin not found")
        self.assertEqual(self.enabled_sources(), ["clipboard", "obsidian"])


class LowScreen(SettingsTestCase):
    desktop_options = {"size": (1280, 700)}

    def assert_whole_on_the_screen(self):
        self.wait_for_top(HEIGHT)
        self.assertLessEqual(self.frame()[1], self.screen_height)

    def is_in_sight(self, node):
        _, window_top, _, window_height = self.open_window(TITLE).area
        _, y, _, height = node.area
        return window_top <= y and y + height <= window_top + window_height

    def test_scrolls_to_what_has_the_keyboard(self):
        self.start_with_settings()
        self.assert_whole_on_the_screen()
        for role, name in CONTROLS[1:]:
            self.desktop.key("Tab")
            self.wait_for_focus(role, name)
            wait_until(
                lambda role=role, name=name: self.is_in_sight(self.control(TITLE, role, name)),
                f"the {role} {name} is in sight",
            )

    def test_scrolls_to_its_end_with_the_wheel(self):
        self.start_with_settings()
        self.assert_whole_on_the_screen()
        x, y, _, height = self.open_window(TITLE).area
        self.desktop.move_mouse(x + 5, y + height // 2)
        before = self.settings()
        self.desktop.run("xdotool", "click", "--repeat", 40, 5)
        wait_until(
            lambda: self.is_in_sight(self.control(TITLE, "label", "Accessibility")),
            "the last row is in sight",
        )
        self.assertEqual(self.settings(), before)

    def test_stays_on_the_screen_when_it_grows(self):
        self.obsidian.install()
        self.obsidian.add_vault()
        self.start_with_settings()
        self.click_on(self.control(TITLE, "check box", "Obsidian"))
        self.open_window("Plugin Reinstalled")
        self.desktop.key("Escape")
        self.wait_for_text(TITLE, "Plugin active")
        self.assert_whole_on_the_screen()


if __name__ == "__main__":
    unittest.main()
