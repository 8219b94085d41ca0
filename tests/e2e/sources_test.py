"""Every way from one source of the text to the other: what is shown, and what the strip, the settings
window and the disk say of it."""

import unittest

from settings_case import TITLE
from talk_case import PROMPTER, TalkTestCase


class Sources(TalkTestCase):
    PASTED, SENT = "what was pasted", "what was sent from Obsidian"

    def setUp(self):
        super().setUp()
        self.obsidian.install()
        self.write_settings(enabledSourceTypes=["clipboard", "obsidian"])
        (self.support_folder() / "tessaline-content.md").write_text(self.SENT)
        (self.support_folder() / "clipboard-content.md").write_text(self.PASTED)
        self.copy_elsewhere(self.PASTED)
        self.start_with_settings()
        self.assert_shows("clipboard")

    def assert_shows(self, source):
        """In the text, in the strip, in the settings window and on disk."""
        self.wait_for_script(self.SENT if source == "obsidian" else self.PASTED)
        self.wait_for_text(PROMPTER, source.upper())
        self.control(TITLE, "combo box", source.capitalize())
        self.assertEqual(self.status()["source"], source)
        self.assertEqual(self.settings()["activeSourceType"], source)

    def choose_with_the_keys(self, shown, key):
        self.desktop.activate(self.window_of_settings)
        self.focus("combo box", shown)
        self.desktop.key(key)

    def assert_leads_to_the_clipboard(self, *ways):
        for number, way in enumerate(ways):
            with self.subTest(way=number):
                self.ctl("source", "obsidian")
                self.assert_shows("obsidian")
                way()
                self.assert_shows("clipboard")

    def test_are_changed_by_the_button_in_the_strip(self):
        for source in ("obsidian", "clipboard", "obsidian"):
            self.press(PROMPTER, "Toggle content source")
            self.assert_shows(source)

    def test_are_changed_in_the_settings(self):
        self.choose("Clipboard", "Obsidian")
        self.assert_shows("obsidian")
        self.choose("Obsidian", "Clipboard")
        self.assert_shows("clipboard")
        self.choose_with_the_keys("Clipboard", "Up")
        self.assert_shows("obsidian")
        self.choose_with_the_keys("Obsidian", "Down")
        self.assert_shows("clipboard")

    def test_give_way_to_the_clipboard_when_something_is_pasted(self):
        self.assert_leads_to_the_clipboard(
            self.paste,
            lambda: self.paste("super+v"),
            lambda: self.ctl("paste"),
            lambda: self.ctl("source", "clipboard"),
        )

    def test_give_way_to_the_clipboard_when_something_is_opened(self):
        path = self.write_script(self.PASTED)
        self.assert_leads_to_the_clipboard(
            lambda: self.assertEqual(self.call(path)[0], 0),
            lambda: self.assertEqual(self.call("--follow", path)[0], 0),
            lambda: self.assertEqual(self.call("-", stdin=self.PASTED)[0], 0),
        )

    def test_give_way_to_the_clipboard_when_obsidian_is_switched_off(self):
        self.assert_leads_to_the_clipboard(
            lambda: self.click_on(self.control(TITLE, "check box", "Obsidian"))
        )


if __name__ == "__main__":
    unittest.main()
