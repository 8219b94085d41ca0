"""The first run on a fresh home, from the first window to the prompter."""

import shutil
import signal
import unittest

from harness import wait_until
from harness.accessible_case import AccessibleTestCase
from harness.clipboard import Clipboard
from harness.obsidian import ICON_COLOR, PLUGIN, PLUGIN_FILES, Obsidian
from harness.tessaline import PROMPTER, WELCOME
from harness.waiting import holds_for

TITLE = "Welcome to Tessaline"
INSTALLED = "Notes Bridge Installed"
FAILED = "Plugin Installation"
PANEL = "Grant Access to Obsidian Vault"
INSTALLED_TEXT = (
    "Restart Obsidian to activate.\n\n"
    'In Obsidian, you\'ll find a "Send to Tessaline" icon in the sidebar, '
    'or press Ctrl+P and type "tessaline".'
)
INVITATION = "Send notes from Obsidian straight into the prompter"


class OnboardingTestCase(AccessibleTestCase):
    first_run = True

    def setUp(self):
        super().setUp()
        self.obsidian = Obsidian(self.desktop.home)

    def start_first(self):
        super().start_first()
        self.desktop.wait_for_keyboard(self.welcome)

    def obsidian_switch(self):
        return self.control(TITLE, "check box", "Obsidian")

    def read_alert(self, title):
        """Waits for the alert with this title; what it says."""
        alert = self.open_window(title)
        self.assertEqual(alert.role, "dialog")
        self.assertEqual([button.name for button in alert.find_all("push button")], ["OK"])
        shown_title, text = alert.texts()[-2:]
        self.assertEqual(shown_title, title)
        self.assertEqual(alert.description, text)
        return text

    def finish(self):
        """Presses Return in the window, and waits for the prompter."""
        self.desktop.wait_for_keyboard(self.welcome)
        self.desktop.key("Return")
        self.wait_for_prompter()
        self.assertEqual(self.desktop.windows(WELCOME, self.prompter.pid), [])

    def assert_prompter_comes_at_once(self):
        self.prompter.end()
        self.start()
        self.assertTrue(self.status()["visible"])
        self.assertEqual(self.desktop.windows(WELCOME, self.prompter.pid), [])

    def assert_history(self, obsidian_enabled):
        self.assertEqual(len(self.end_and_read_history("onboarding_started")), 1)
        self.assertEqual(
            self.end_and_read_history("onboarding_completed"),
            [{"accessibility_granted": "true", "obsidian_enabled": obsidian_enabled}],
        )


class WithAVault(OnboardingTestCase):
    def setUp(self):
        super().setUp()
        self.obsidian.install()
        self.obsidian.add_vault(plugins=["calendar"])

    def assert_installed(self):
        ours = {name: (PLUGIN_FILES / name).read_bytes() for name in ("main.js", "manifest.json")}
        wait_until(lambda: self.obsidian.plugin_files() == ours, "the plug-in is installed")
        self.assertEqual(self.obsidian.plugins(), ["calendar", PLUGIN])

    def assert_settings(self, sources):
        settings = self.settings()
        self.assertIs(settings["hasCompletedOnboarding"], True)
        self.assertEqual(sorted(settings["enabledSourceTypes"]), sources)
        self.assertEqual(settings["activeSourceType"], "clipboard")

    def test_shows_what_there_is_to_decide(self):
        self.start_first()
        self.assertEqual(
            [text for text in self.open_window(TITLE).texts() if text not in "📋📄"],
            [
                "Welcome to Tessaline",
                "Turn the top of your screen into a teleprompter. Read scripts, notes, or any text "
                "right below your camera.",
                "Optional Permissions",
                "Shortcuts in Any Application",
                "Lets you pause/resume auto-scroll and scroll through text even when Tessaline is "
                "not focused.",
                "Content Sources",
                "Clipboard",
                "Default — paste any text",
                "Obsidian",
                INVITATION,
            ],
        )
        clipboard = self.control(TITLE, "check box", "Clipboard")
        self.assertIn("checked", clipboard.states)
        self.assertNotIn("enabled", clipboard.states)
        obsidian = self.obsidian_switch()
        self.assertNotIn("checked", obsidian.states)
        self.assertIn("enabled", obsidian.states)
        granted = self.control(TITLE, "push button", "Available ✓")
        self.assertNotIn("enabled", granted.states)
        self.assertIn("is-default", self.control(TITLE, "push button", "Get Started").states)

    def test_shows_obsidians_own_icon(self):
        self.start_first()
        _, row, _, _ = self.obsidian_switch().area
        label = self.open_window(TITLE).find_all("label", "Obsidian")[0]
        wait_until(
            lambda: self.desktop.pixel(label.area[0] - 24, row + 10) == ICON_COLOR,
            "the icon stands before its name",
        )

    def test_is_in_the_middle_of_the_room_and_cannot_be_resized(self):
        self.start_first()
        x, y, width, height = self.desktop.geometry(self.welcome)
        self.assertEqual((width, height), (520, 520))
        self.assertAlmostEqual(x + width / 2, 640, delta=2)
        hints = self.desktop.property(self.welcome, "WM_NORMAL_HINTS")
        self.assertIn("minimum size: 520 by 520", hints)
        self.assertIn("maximum size: 520 by 520", hints)

    def test_is_gone_through_with_the_mouse(self):
        self.start_first()
        self.click_on(self.obsidian_switch())
        self.assertEqual(self.read_alert(INSTALLED), INSTALLED_TEXT)
        self.assert_installed()
        self.press(INSTALLED, "OK")
        self.wait_until_closed(INSTALLED)
        self.assertIn("checked", self.obsidian_switch().states)
        self.wait_for_text(TITLE, "Plugin active ✓")
        self.press(TITLE, "Get Started")
        self.wait_for_prompter()
        self.assert_settings(["clipboard", "obsidian"])
        self.assert_prompter_comes_at_once()
        self.assert_settings(["clipboard", "obsidian"])
        self.assert_history(obsidian_enabled="true")
        self.assertEqual(
            self.end_and_read_history("source_enabled"), [{"source_type": "obsidian"}]
        )
        self.assertEqual(
            self.end_and_read_history("obsidian_plugin_installed"), [{"success": "true"}]
        )

    def test_is_gone_through_with_the_keys(self):
        self.start_first()
        self.wait_for_state("focused", TITLE, "push button", "Get Started")
        self.desktop.key("Tab")
        self.wait_for_state("focused", TITLE, "check box", "Obsidian")
        self.desktop.key("space")
        self.read_alert(INSTALLED)
        self.assert_installed()
        self.dismiss(INSTALLED)
        self.assertIn("checked", self.obsidian_switch().states)
        self.assertFalse(self.prompter_is_shown(), "Escape closed the alert alone")
        self.finish()
        self.assert_settings(["clipboard", "obsidian"])
        self.assert_prompter_comes_at_once()

    def test_hangs_the_alert_below_the_middle_of_its_title_bar(self):
        self.start_first()
        self.click_on(self.obsidian_switch())
        self.read_alert(INSTALLED)
        x, y, width, _ = self.open_window(INSTALLED).area
        self.assertAlmostEqual(x + width / 2, 640, delta=2)
        _, top, _, _ = self.open_window(TITLE).area
        self.assertTrue(top < y < top + 60, (top, y))

    def test_keeps_the_alert_until_it_is_answered(self):
        self.start_first()
        self.click_on(self.obsidian_switch())
        self.read_alert(INSTALLED)
        start = self.open_window(TITLE).find_all("push button", "Get Started")[0]
        self.click_on(start)
        self.assertTrue(holds_for(lambda: not self.prompter_is_shown(), 0.5))
        self.wait_for_state("focused", INSTALLED, "push button", "OK")
        self.desktop.key("Return")
        self.wait_until_closed(INSTALLED)
        self.finish()

    def test_uninstalls_nothing_when_it_is_switched_off_again(self):
        self.start_first()
        self.click_on(self.obsidian_switch())
        self.read_alert(INSTALLED)
        self.dismiss(INSTALLED)
        self.click_on(self.obsidian_switch())
        self.wait_for_text(TITLE, INVITATION)
        self.assert_installed()
        self.finish()
        self.assert_settings(["clipboard"])
        self.assert_history(obsidian_enabled="false")
        self.assertEqual(self.end_and_read_history("source_disabled"), [])

    def test_comes_again_when_it_was_closed_unfinished(self):
        self.start_first()
        self.click_on(self.obsidian_switch())
        self.read_alert(INSTALLED)
        self.dismiss(INSTALLED)
        self.desktop.close_by_keys(self.welcome)
        self.wait_for_prompter()
        self.assertIs(self.settings()["hasCompletedOnboarding"], False)
        self.assertEqual(sorted(self.settings()["enabledSourceTypes"]), ["clipboard", "obsidian"])
        self.assertEqual(self.end_and_read_history("onboarding_completed"), [])
        self.start_first()
        self.assertEqual(self.settings()["enabledSourceTypes"], ["clipboard"])
        self.assertNotIn("checked", self.obsidian_switch().states)
        self.assertFalse(self.prompter_is_shown())
        self.finish()
        self.assertEqual(len(self.end_and_read_history("onboarding_started")), 2)

    def test_says_when_the_installation_fails(self):
        self.obsidian.block_installation()
        self.start_first()
        self.click_on(self.obsidian_switch())
        self.dismiss(PANEL)
        self.assertEqual(
            self.read_alert(FAILED),
            f"Failed to install plugin: {self.obsidian.plugin_folder}: Not a directory",
        )
        self.dismiss(FAILED)
        self.assertIn("checked", self.obsidian_switch().states)
        self.wait_for_text(TITLE, "Plugin not found")
        self.assertEqual(self.obsidian.plugins(), ["calendar"])
        self.finish()
        self.assert_settings(["clipboard", "obsidian"])
        self.assert_history(obsidian_enabled="true")
        self.assertEqual(
            self.end_and_read_history("obsidian_plugin_installed"), [{"success": "false"}]
        )

    def test_survives_to_be_told_to_quit_while_it_asks_for_a_folder(self):
        self.obsidian.block_installation()
        self.start_first()
        self.click_on(self.obsidian_switch())
        self.open_window(PANEL)
        self.assertEqual(self.prompter.end(), 0)


class WithoutAVault(OnboardingTestCase):
    def assert_obsidian_is_locked(self, status):
        """The row says so; neither mouse nor keys switch it; the rest works."""
        self.wait_for_text(TITLE, status)
        switch = self.obsidian_switch()
        self.assertNotIn("enabled", switch.states)
        self.click_on(switch)
        self.desktop.key("Tab")
        self.wait_for_state("focused", TITLE, "push button", "Get Started")
        self.assertNotIn("checked", self.obsidian_switch().states)
        self.finish()
        settings = self.settings()
        self.assertIs(settings["hasCompletedOnboarding"], True)
        self.assertEqual(settings["enabledSourceTypes"], ["clipboard"])
        self.assert_prompter_comes_at_once()
        self.assert_history(obsidian_enabled="false")
        self.assertEqual(self.end_and_read_history("obsidian_plugin_installed"), [])

    def test_cannot_switch_an_absent_obsidian_on(self):
        self.start_first()
        self.assert_obsidian_is_locked("Obsidian not detected on this computer")

    def test_takes_a_vault_in_the_users_folder_for_an_obsidian_without_a_menu_entry(self):
        self.desktop.env["XDG_CONFIG_HOME"] = str(self.desktop.home / "settings")
        self.obsidian.add_vault(configurations="settings")
        self.start_first()
        self.assertIn(INVITATION, self.open_window(TITLE).texts())
        self.click_on(self.obsidian_switch())
        self.assertEqual(self.read_alert(INSTALLED), INSTALLED_TEXT)
        self.assertEqual(self.obsidian.plugins(), [PLUGIN])

    def test_takes_no_vault_that_is_gone_for_an_obsidian(self):
        self.obsidian.add_vault()
        self.obsidian.vault.rename(self.desktop.home / "moved")
        self.start_first()
        self.assert_obsidian_is_locked("Obsidian not detected on this computer")

    def test_cannot_switch_obsidian_on_without_a_vault(self):
        self.obsidian.install()
        self.start_first()
        self.assert_obsidian_is_locked("No Obsidian vault found")


class OnASmallScreen(OnboardingTestCase):
    desktop_options = {"size": (640, 480)}

    def test_shows_its_button_and_scrolls_above_it(self):
        self.start_first()
        start = self.control(TITLE, "push button", "Get Started")
        self.assertTrue(start.lies_in(self.open_window(TITLE).area))
        self.assertTrue(start.lies_in((0, 0, 640, 480)))
        self.assertEqual(self.desktop.property(self.welcome, "_GTK_THEME_VARIANT"), '"dark"')
        self.click_on(start)
        self.wait_for_prompter()


class Afterwards(OnboardingTestCase):
    """The window manager answers the end of the first-run window after the prompter has come."""

    window_manager = "openbox"

    def setUp(self):
        self.desktop_options = {"panel": False, "window_manager": self.window_manager}
        super().setUp()
        self.clipboard = Clipboard(self.desktop)

    def press_amid_delay(self, key):
        """Presses a key while the window manager is busy with something else."""
        manager = self.desktop.process(self.window_manager)
        manager.send(signal.SIGSTOP)
        self.desktop.key(key)
        self.wait_for_prompter()
        manager.send(signal.SIGCONT)

    def assert_paste_after(self, finish, text):
        self.write_settings()
        self.clipboard.offer(text.encode())
        self.start_first()
        finish()
        self.window = self.desktop.wait_for_window(PROMPTER, self.prompter.pid)
        wait_until(lambda: self.welcome not in self.desktop.managed_windows(), "it is gone")
        wait_until(lambda: self.desktop.focused_window() == self.window, "it has the keyboard")
        self.assertTrue(holds_for(lambda: self.desktop.focused_window() == self.window, 0.3))
        self.desktop.key("ctrl+v")
        pasted = self.support_folder() / "clipboard-content.md"
        wait_until(lambda: pasted.exists() and pasted.read_text() == text, f"{text} is pasted")
        self.prompter.end()

    def test_the_prompter_has_the_keyboard(self):
        self.assert_paste_after(lambda: self.press_amid_delay("Return"), "one")
        self.desktop.start("other", [self.probe(), "normal", "blue"])
        self.assert_paste_after(lambda: self.press_amid_delay("space"), "two")
        self.assert_paste_after(lambda: self.desktop.close_by_keys(self.welcome), "three")


@unittest.skipUnless(shutil.which("mutter"), "mutter is not installed")
class AfterwardsOnGnome(Afterwards):
    window_manager = "mutter"

    def test_the_prompter_has_the_keyboard(self):
        try:
            super().test_the_prompter_has_the_keyboard()
        except AssertionError:
            if self.desktop.process("mutter").running:
                raise
            self.skipTest("mutter ended of an X error: it asked for a window that was gone")


if __name__ == "__main__":
    unittest.main()
