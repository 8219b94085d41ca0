"""Monitors that are plugged in and out while a program runs."""

import json
import os
import unittest

from harness import DesktopTestCase, TessalineTestCase, wait_until
from harness.session import PANEL_COLOR
from harness.waiting import holds_for

NOTEBOOK = {"eDP-1": (0, 0, 1280, 800)}
PROJECTOR = {"HDMI-1": (1280, 0, 1024, 768)}
A_FOLDING = 1.0


class Screens(DesktopTestCase):
    desktop_options = {"size": (2304, 800), "panel": False, "monitors": {**NOTEBOOK, **PROJECTOR}}

    def setUp(self):
        super().setUp()
        self.probe = self.desktop.start("probe", [os.environ["TESSALINE_PROBE"], "normal", "red"])
        self.desktop.wait_for_window(pid=self.probe.pid)

    def reports(self):
        events = map(json.loads, self.probe.stdout().splitlines())
        return [event for event in events if event["event"] == "screens"]

    def wait_for_screens(self, names, count):
        """The latest report, once it is at least the count-th and has just these screens."""

        def latest():
            reports = self.reports()
            present = [screen["name"] for screen in reports[-1]["all"]]
            return reports[-1] if len(reports) >= count and sorted(present) == sorted(names) else None

        return wait_until(latest, f"screens are {names}")

    def test_are_described_from_the_bottom_left_of_the_primary_one(self):
        report = self.wait_for_screens(["eDP-1", "HDMI-1"], 1)
        by_name = {screen["name"]: screen for screen in report["all"]}
        self.assertEqual(by_name["eDP-1"]["frame"], [0, 0, 1280, 800])
        self.assertEqual(by_name["HDMI-1"]["frame"], [1280, 32, 1024, 768])
        self.assertTrue(by_name["eDP-1"]["builtIn"])
        self.assertFalse(by_name["HDMI-1"]["builtIn"])
        self.assertNotEqual(by_name["eDP-1"]["id"], by_name["HDMI-1"]["id"])
        self.assertNotIn(0, [screen["id"] for screen in report["all"]])
        self.assertEqual(report["preferred"]["name"], "eDP-1")

    def test_come_and_go_and_keep_their_numbers(self):
        before = {s["name"]: s["id"] for s in self.wait_for_screens(["eDP-1", "HDMI-1"], 1)["all"]}
        self.desktop.set_monitors(NOTEBOOK)
        self.wait_for_screens(["eDP-1"], 2)
        self.desktop.set_monitors({**NOTEBOOK, **PROJECTOR})
        after = self.wait_for_screens(["eDP-1", "HDMI-1"], 3)
        self.assertEqual({s["name"]: s["id"] for s in after["all"]}, before)

    def test_lose_what_a_panel_on_one_of_them_keeps(self):
        self.wait_for_screens(["eDP-1", "HDMI-1"], 1)
        self.desktop.start_panel(height=40, monitor=2)

        def visible_frames():
            return {s["name"]: s["visibleFrame"] for s in self.reports()[-1]["all"]}

        whole = {"eDP-1": [0, 0, 1280, 800], "HDMI-1": [1280, 32, 1024, 768]}
        with_panel = {**whole, "HDMI-1": [1280, 32, 1024, 728]}
        wait_until(lambda: visible_frames() == with_panel, "the panel's strip is known")
        self.desktop.process("tint2").end()
        wait_until(lambda: visible_frames() == whole, "the strip is free again")

    def test_leave_the_program_running_when_the_built_in_one_goes(self):
        self.wait_for_screens(["eDP-1", "HDMI-1"], 1)
        self.desktop.set_monitors(PROJECTOR)
        report = self.wait_for_screens(["HDMI-1"], 2)
        self.assertEqual(report["preferred"]["name"], "HDMI-1")
        self.assertEqual(report["preferred"]["frame"], [0, 0, 1024, 768])
        self.assertTrue(self.probe.running)


class Panels(TessalineTestCase):
    """A panel on the first of two monitors, and the prompter over it."""

    desktop_options = {"size": (2304, 800), "panel": False, "monitors": {**NOTEBOOK, **PROJECTOR}}
    height = 40  # points
    floor = 24
    centre = NOTEBOOK["eDP-1"][2] // 2

    def start_at(self, scale):
        self.scale = scale
        self.desktop.start_panel(height=self.height * scale, monitor=1)
        self.start(self.write_script("# Hello"), QT_SCALE_FACTOR=str(scale))

    def folds_to(self, pixels):
        self.call("ctl", "expand")
        self.call("ctl", "minimize")
        return not holds_for(lambda: self.desktop.geometry(self.window)[3] != pixels, A_FOLDING)

    def wait_for_strip(self, points):
        wait_until(lambda: self.folds_to(points * self.scale), f"it folds to {points} points")

    def check_panel_is_covered_and_followed(self):
        self.wait_for_strip(self.height)
        beside = self.centre - self.desktop.geometry(self.window)[2] // 2 - 10
        last_row = self.height * self.scale - 1
        self.desktop.wait_for_pixel(beside, last_row, PANEL_COLOR)
        picture = self.desktop.picture()
        self.assertEqual(picture.pixel(self.centre, last_row), (0, 0, 0))
        self.desktop.process("tint2").end()
        self.wait_for_strip(self.floor)

    def test_are_covered_by_the_folded_prompter(self):
        self.start_at(scale=1)
        self.check_panel_is_covered_and_followed()

    def test_are_covered_at_scale_two(self):
        self.start_at(scale=2)
        self.check_panel_is_covered_and_followed()


if __name__ == "__main__":
    unittest.main()
