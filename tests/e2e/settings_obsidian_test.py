"""The settings window's switch for Obsidian: the plug-in, the source, and what goes wrong."""

import unittest

from harness import wait_until
from harness.obsidian import PLUGIN
from harness.waiting import holds_for
from settings_case import TITLE, SettingsTestCase


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
        self.dismiss("Plugin Reinstalled")
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
        self.dismiss("Plugin Reinstalled", "Return")
        self.wait_for_text(TITLE, "Plugin active")
        self.obsidian.switch_plugins_off()
        self.wait_for_text(TITLE, "Disabled in Obsidian")

    def test_says_when_the_installation_fails(self):
        self.obsidian.block_installation()
        self.start_with_settings()
        self.switch()
        self.dismiss("Grant Access to Obsidian Vault")
        self.assertEqual(
            self.read_alert("Installation Failed"),
            f"Failed to install plugin: {self.obsidian.plugin_folder}: Not a directory",
        )
        self.dismiss("Installation Failed")
        self.wait_for_text(TITLE, "Plugin not found")
        self.assertEqual(self.enabled_sources(), ["clipboard", "obsidian"])


if __name__ == "__main__":
    unittest.main()
