"""The status item on desktops that learn of such items over D-Bus."""

import unittest

from harness import TessalineTestCase, wait_until
from harness.status_area import StatusArea, plain
from harness.tessaline import SETTINGS, WELCOME
from harness.waiting import holds_for

CLOSE = (1280 // 2 - 225 + 16, 15)


class StatusNotifier(TessalineTestCase):
    desktop_options = {"panel": False}

    def start_with_area(self):
        self.area = StatusArea(self.desktop)
        self.area.wait_until_ready()
        self.start()
        self.item = self.area.wait_for_item()

    def hide_prompter(self):
        self.desktop.click(*CLOSE)
        self.wait_for_prompter(shown=False)

    def test_announces_itself_once_with_name_and_picture(self):
        self.start_with_area()
        item = self.item.show()
        self.assertEqual(item["Title"], "Tessaline")
        self.assertEqual(item["ToolTip"][2], "Tessaline")
        self.assertEqual(item["Status"], "Active")
        self.assertEqual(item["Category"], "ApplicationStatus")
        self.assertFalse(item["ItemIsMenu"], "a click is not for the menu")
        self.assertTrue(item["IconPixmap"] or item["IconName"], item)
        self.assertTrue(all(icon["isDrawn"] for icon in item["IconPixmap"]), item["IconPixmap"])
        self.assertTrue(holds_for(lambda: len(self.area.items()) == 1, 0.3), self.area.items())
        self.assertNotIn("tray", self.prompter.stderr())

    def test_has_the_menu(self):
        self.start_with_area()
        entries = self.item.show()["entries"]
        shown = [entry.get("type") or plain(entry["label"]) for entry in entries]
        self.assertEqual(
            shown,
            ["Show Tessaline", "separator", "Settings…", "Reading…", "separator", "Quit Tessaline"],
        )
        self.assertEqual(entries[2]["shortcut"], [["Control", ","]])
        self.assertEqual(entries[5]["shortcut"], [["Control", "Q"]])
        for entry in (entries[0], entries[3]):
            self.assertNotIn("shortcut", entry)

    def test_shows_the_prompter_by_its_menu(self):
        self.start_with_area()
        self.hide_prompter()
        self.item.choose("Show Tessaline")
        self.wait_for_prompter()

    def test_shows_the_prompter_when_it_is_clicked(self):
        self.start_with_area()
        self.hide_prompter()
        self.item.activate()
        self.wait_for_prompter()

    def test_opens_the_settings_by_its_menu(self):
        self.start_with_area()
        self.item.choose("Settings…")
        self.desktop.wait_for_window(SETTINGS, self.prompter.pid)

    def test_opens_the_reading_options_by_its_menu(self):
        self.start_with_area()
        self.item.choose("Reading…")
        self.desktop.wait_for_window("^Reading$", self.prompter.pid)

    def test_quits_by_its_menu(self):
        self.start_with_area()
        self.item.choose("Quit Tessaline")
        self.assertEqual(self.prompter.wait(), 0)

    def test_is_there_during_the_first_start(self):
        self.write_settings(hasCompletedOnboarding=False)
        area = StatusArea(self.desktop)
        area.wait_until_ready()
        self.prompter = self.start_tessaline()
        self.desktop.wait_for_window(WELCOME, self.prompter.pid)
        area.wait_for_item().choose("Quit Tessaline")
        self.assertEqual(self.prompter.wait(), 0)
        self.assertFalse(self.settings()["hasCompletedOnboarding"])

    def test_appears_in_an_area_that_comes_later(self):
        self.start()
        self.assertEqual(self.prompter.stderr().count("tray"), 1, self.prompter.stderr())
        self.hide_prompter()
        StatusArea(self.desktop).wait_for_item().choose("Show Tessaline")
        self.wait_for_prompter()

    def test_comes_back_when_the_area_was_away(self):
        self.start_with_area()
        self.area.end()
        StatusArea(self.desktop).wait_for_item().choose("Settings…")
        self.desktop.wait_for_window(SETTINGS, self.prompter.pid)

    def test_goes_with_the_program(self):
        self.start_with_area()
        self.prompter.end()
        wait_until(lambda: not self.is_on_the_bus(), "the item's program has left the bus")

    def is_on_the_bus(self):
        reply = self.desktop.run(
            "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
            "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner",
            "string:" + self.item.bus_name,
        )
        return "boolean true" in reply


if __name__ == "__main__":
    unittest.main()
