"""The program around its prompter: status item and menu, settings, the first start."""

import re
import unittest

from harness import TessalineTestCase, wait_until
from harness.tessaline import PROMPTER, SETTINGS, WELCOME

SCREEN = (1280, 1024)
LEFT = (SCREEN[0] - 450) // 2
STRIP_MIDDLE = 15
CLOSE = (LEFT + 16, STRIP_MIDDLE)
CONFIG = (LEFT + 58, STRIP_MIDDLE)
TRAY_ICON = (SCREEN[0] - 15, STRIP_MIDDLE)
TRAY_AREA = (SCREEN[0] - 30, 0, 30, 30)
PANEL = {"dark": ("#202020", (32, 32, 32)), "light": ("#f4f4f4", (244, 244, 244))}
MENU = {"Show Tessaline": 0, "Settings": 1, "Reading": 2, "Quit Tessaline": 3}
ROW = 24


class ShellTestCase(TessalineTestCase):
    desktop_options = {"size": SCREEN, "tray": PANEL["dark"][0]}

    def wait_for_tray_icon(self):
        wait_until(lambda: self.icon_share(PANEL["dark"][1]) > 0.1, "the tray shows the icon")

    def icon_share(self, panel):
        """The share of the tray that clearly differs from the panel's colour."""
        return self.desktop.picture().share(
            *TRAY_AREA, lambda *color: sum(abs(a - b) for a, b in zip(color, panel)) > 150
        )

    def menus(self):
        """The open menus of the program: windows without a title that are larger than an icon."""
        titled = self.desktop.windows(f"{PROMPTER}|{SETTINGS}|{WELCOME}", self.prompter.pid)
        return [
            window
            for window in self.desktop.windows(pid=self.prompter.pid)
            if window not in titled and self.desktop.geometry(window)[2] > 100
        ]

    def open_menu(self):
        self.wait_for_tray_icon()
        self.desktop.click(*TRAY_ICON, button=3)
        return wait_until(self.menus, "the menu is open")[0]

    def choose(self, title):
        x, y, _, _ = self.desktop.geometry(self.open_menu())
        self.desktop.click(x + 60, y + ROW * MENU[title] + ROW // 2)
        wait_until(lambda: not self.menus(), "the menu is closed")

    def wait_for_settings(self):
        return self.desktop.wait_for_window(SETTINGS, self.prompter.pid)

    def settings_are_open(self):
        return bool(self.desktop.windows(SETTINGS, self.prompter.pid))

    def frame(self, window):
        """(x, y, width) of the window manager's frame around a window."""
        shown = self.desktop.run("xwininfo", "-id", window)
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width")
        x, y, width = (int(re.search(name + r":\s+(-?\d+)", shown).group(1)) for name in names)
        extents = self.desktop.property(window, "_NET_FRAME_EXTENTS").split(",")
        left, right, top, _ = map(int, extents)
        return x - left, y - top, width + left + right


class StatusItem(ShellTestCase):
    def test_goes_on_without_a_window_and_comes_back_by_the_menu(self):
        self.start()
        self.desktop.click(*CLOSE)
        self.wait_for_prompter(shown=False)
        self.assertFalse(self.status()["visible"], "it goes on")
        self.choose("Show Tessaline")
        self.wait_for_prompter()
        window = self.desktop.wait_for_window(PROMPTER, self.prompter.pid)
        self.assertEqual(self.desktop.geometry(window), (LEFT, 0, 450, 256))

    def test_shows_the_prompter_when_its_icon_is_clicked(self):
        self.start()
        self.desktop.click(*CLOSE)
        self.wait_for_prompter(shown=False)
        self.wait_for_tray_icon()
        self.desktop.click(*TRAY_ICON)
        self.wait_for_prompter()

    def test_quits_by_the_menu(self):
        self.start()
        self.choose("Quit Tessaline")
        self.assertEqual(self.prompter.wait(), 0)

    def test_opens_the_settings_by_the_menu_right_below_the_prompter(self):
        self.start()
        self.choose("Settings")
        window = self.wait_for_settings()
        self.desktop.wait_for_keyboard(window)
        wait_until(lambda: self.frame(window)[1] == 256, "its top is at 256")
        x, _, width = self.frame(window)
        self.assertEqual(x + width / 2, SCREEN[0] / 2)

    def test_has_a_menu_entry_for_the_keyboard(self):
        self.start()
        self.open_menu()
        self.desktop.key("Down", "Down", "Return")
        self.wait_for_settings()

    def test_can_be_told_from_a_dark_and_from_a_light_panel(self):
        self.start()
        self.wait_for_tray_icon()
        self.desktop.process("tint2").end()
        color, pixel = PANEL["light"]
        self.desktop.start_panel(tray=color)
        wait_until(lambda: self.icon_share(pixel) > 0.1, "the new tray shows the icon")


class NoTray(ShellTestCase):
    desktop_options = {"panel": False}

    def test_starts_with_one_line_in_the_log_and_gets_its_icon_later(self):
        self.start()
        self.assertEqual(self.prompter.stderr().count("tray"), 1, self.prompter.stderr())
        self.desktop.start_panel(tray=PANEL["dark"][0])
        self.wait_for_tray_icon()
        self.desktop.click(*CLOSE)
        self.wait_for_prompter(shown=False)
        self.choose("Show Tessaline")
        self.wait_for_prompter()

    def test_is_reached_by_starting_it_again(self):
        self.start()
        self.desktop.click(*CLOSE)
        self.wait_for_prompter(shown=False)
        again = self.desktop.start("again", [self.binary()])
        self.assertEqual(again.wait(), 0)
        self.wait_for_prompter()


class Keys(ShellTestCase):
    def test_the_menus_keys_work_in_the_prompter(self):
        self.start()
        self.desktop.click(LEFT + 200, 150)
        self.desktop.key("ctrl+comma")
        self.wait_for_settings()
        self.desktop.click(LEFT + 200, 150)
        self.desktop.key("ctrl+q")
        self.assertEqual(self.prompter.wait(), 0)


class Buttons(ShellTestCase):
    def test_the_gear_opens_the_settings_and_closing_them_ends_nothing(self):
        self.start()
        self.desktop.click(*CONFIG)
        window = self.wait_for_settings()
        self.desktop.hands("windowclose", window)
        wait_until(lambda: not self.settings_are_open(), "the settings are closed")
        self.assertTrue(self.status()["visible"], "it goes on")


class FirstStart(ShellTestCase):
    first_run = True

    def close_welcome(self):
        self.desktop.close_by_keys(self.welcome)

    def test_greets_first_and_shows_the_prompter_when_the_window_is_closed(self):
        self.start_first()
        self.assertFalse(self.status()["visible"])
        self.assertFalse(self.prompter_is_shown())
        self.close_welcome()
        self.wait_for_prompter()
        self.assertEqual(self.desktop.windows(WELCOME, self.prompter.pid), [])
        self.prompter.end()
        self.start_first()

    def test_shows_the_script_of_the_command_line_afterwards(self):
        self.start_first(self.write_script("# Hello"))
        kept = self.support_folder() / "clipboard-content.md"
        self.assertFalse(kept.exists())
        self.close_welcome()
        self.wait_for_prompter()
        wait_until(kept.exists, "the script is kept")
        self.assertEqual(kept.read_text(), "# Hello")

    def test_comes_to_the_front_when_it_is_started_again(self):
        self.start_first()
        other = self.desktop.start("other", [self.probe(), "normal", "#0000ff"])
        window = self.desktop.wait_for_window(pid=other.pid)
        self.desktop.activate(window)
        again = self.desktop.start("again", [self.binary()])
        self.assertEqual(again.wait(), 0)
        self.desktop.wait_for_keyboard(self.welcome)
        self.assertFalse(self.prompter_is_shown())

    def test_quits_by_the_menu(self):
        self.start_first()
        self.choose("Quit Tessaline")
        self.assertEqual(self.prompter.wait(), 0)


if __name__ == "__main__":
    unittest.main()
