"""A floating window among a panel, other windows, full-screen windows and desktops."""

import json
import os
import re
import signal
import unittest

from harness import DesktopTestCase, wait_until
from harness.session import PANEL_COLOR
from harness.waiting import holds_for

RED, BLUE = (255, 0, 0), (0, 0, 255)
IN_THE_PANEL = (450, 10)
BELOW_THE_PANEL = (450, 100)
ELSEWHERE = (900, 600)


class Probe:
    """A window of the probe program, and what it reports."""

    def __init__(self, desktop, kind, color):
        self.process = desktop.start(kind, [os.environ["TESSALINE_PROBE"], kind, color])
        self.window = desktop.wait_for_window(pid=self.process.pid)

    def events(self, name):
        lines = self.process.stdout().splitlines()
        return [event for event in map(json.loads, lines) if event["event"] == name]

    def typed(self):
        return "".join(event["text"] for event in self.events("key"))


class FloatingWindow(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.floating = Probe(self.desktop, "floating", "#ff0000")
        self.desktop.wait_for_pixel(*BELOW_THE_PANEL, RED)

    def start_normal(self):
        probe = Probe(self.desktop, "normal", "#0000ff")
        self.wait_for_focus(probe)
        return probe

    def start_fullscreen(self):
        probe = Probe(self.desktop, "fullscreen", "#0000ff")
        self.desktop.wait_for_pixel(*ELSEWHERE, BLUE)
        self.wait_for_focus(probe)
        return probe

    def wait_for_focus(self, probe):
        wait_until(
            lambda: self.desktop.focused_window() == probe.window,
            f"{probe.process.name} has the keyboard",
        )

    def top_level_windows(self):
        """From the top to the bottom."""
        tree = self.desktop.run("xwininfo", "-root", "-children")
        return [int(word, 16) for word in re.findall(r"^ +(0x[0-9a-f]+)", tree, re.MULTILINE)]

    def is_above(self, other):
        windows = self.top_level_windows()
        return windows.index(self.floating.window) < windows.index(other)

    def assert_on_top(self):
        picture = self.desktop.picture()
        self.assertEqual(picture.pixel(*IN_THE_PANEL), RED)
        self.assertEqual(picture.pixel(*BELOW_THE_PANEL), RED)


class Stacking(FloatingWindow):
    def test_hangs_from_the_top_edge_above_the_panel(self):
        self.assertEqual(self.desktop.pixel(300, 10), PANEL_COLOR)
        self.assertEqual(self.desktop.geometry(self.floating.window), (400, 0, 300, 120))
        self.assert_on_top()

    def test_stays_above_a_full_screen_window_with_the_keyboard(self):
        self.start_fullscreen()
        self.assert_on_top()

    def test_stays_above_a_full_screen_window_that_is_clicked(self):
        fullscreen = self.start_fullscreen()
        self.start_normal()
        self.desktop.activate(fullscreen.window)
        self.desktop.click(*ELSEWHERE)
        self.desktop.wait_for_pixel(*ELSEWHERE, BLUE)
        self.assert_on_top()

    def test_comes_back_to_the_top_when_a_managed_window_gets_above_it(self):
        # Openbox lets none get there, others do. A killed one leaves its windows on top and its list
        # of them behind, and nobody stops a window from raising itself any more.
        fullscreen = self.start_fullscreen()
        self.desktop.process("openbox").send(signal.SIGKILL)
        wait_until(lambda: fullscreen.window in self.top_level_windows(), "the frames are gone")
        wait_until(lambda: self.is_above(fullscreen.window), "it is above the other again")
        self.desktop.hands("windowraise", fullscreen.window)
        wait_until(lambda: self.is_above(fullscreen.window), "it is above the other again")
        self.desktop.wait_for_pixel(*BELOW_THE_PANEL, RED)

    def test_is_on_every_desktop(self):
        self.start_fullscreen()
        self.desktop.switch_to_desktop(1)
        self.desktop.wait_for_pixel(300, 10, PANEL_COLOR)
        self.assert_on_top()
        self.desktop.switch_to_desktop(0)
        self.desktop.wait_for_pixel(*ELSEWHERE, BLUE)
        self.assert_on_top()

    def test_is_in_no_taskbar_or_pager(self):
        normal = self.start_normal()
        self.assertIn(normal.window, self.desktop.managed_windows())
        self.assertNotIn(self.floating.window, self.desktop.managed_windows())

    def test_stays_where_it_is_when_the_panel_goes(self):
        self.desktop.process("tint2").end()
        wait_until(lambda: self.desktop.pixel(300, 10) != PANEL_COLOR, "the panel is gone")
        self.assertEqual(self.desktop.geometry(self.floating.window), (400, 0, 300, 120))


class Capture(FloatingWindow):
    def test_cannot_be_excluded_which_is_logged_once(self):
        self.assertEqual([e["excluded"] for e in self.floating.events("capture")], [False])
        log = self.floating.process.stderr()
        self.assertEqual(log.count("tessaline.window: X11 cannot keep a window out"), 1, log)


class Keyboard(FloatingWindow):
    def setUp(self):
        super().setUp()
        self.desktop.move_mouse(*ELSEWHERE)
        self.other = self.start_normal()

    def assert_typing_reaches(self, probe, text):
        before = probe.typed()
        self.desktop.type(text)
        wait_until(lambda: probe.typed() == before + text, f"{probe.process.name} gets {text!r}")

    def test_stays_with_the_other_window_without_a_click(self):
        self.desktop.move_mouse(*BELOW_THE_PANEL)
        self.assert_typing_reaches(self.other, "abc")
        self.assertEqual(self.floating.typed(), "")

    def test_comes_with_a_click_and_goes_back_when_the_pointer_leaves(self):
        self.desktop.click(*BELOW_THE_PANEL)
        self.wait_for_focus(self.floating)
        self.assert_typing_reaches(self.floating, "abc")
        self.assertEqual(self.other.typed(), "")
        self.desktop.move_mouse(*ELSEWHERE)
        self.wait_for_focus(self.other)
        self.assert_typing_reaches(self.other, "xyz")
        wait_until(
            lambda: self.desktop.active_window() == self.other.window,
            "the window manager takes the other window for active again",
        )

    def test_goes_back_on_escape(self):
        self.desktop.click(*BELOW_THE_PANEL)
        self.wait_for_focus(self.floating)
        self.desktop.key("Escape")
        self.wait_for_focus(self.other)
        self.assert_typing_reaches(self.other, "xyz")

    def test_stays_while_a_drag_leaves_the_window(self):
        self.desktop.move_mouse(*BELOW_THE_PANEL)
        self.desktop.press_button()
        self.wait_for_focus(self.floating)
        self.desktop.move_mouse(*ELSEWHERE)
        self.assertTrue(
            holds_for(lambda: self.desktop.focused_window() == self.floating.window, 0.5)
        )
        self.desktop.release_button()
        self.wait_for_focus(self.other)

    def test_goes_to_another_window_that_is_clicked(self):
        fullscreen = self.start_fullscreen()
        self.desktop.activate(self.other.window)
        self.wait_for_focus(self.other)
        self.desktop.click(*BELOW_THE_PANEL)
        self.wait_for_focus(self.floating)
        self.desktop.move_mouse(*ELSEWHERE)
        self.wait_for_focus(self.other)
        self.desktop.click(*ELSEWHERE)
        self.wait_for_focus(fullscreen)
        self.assert_typing_reaches(fullscreen, "xyz")

    def test_goes_back_to_nobody_in_particular_when_the_other_window_is_gone(self):
        self.desktop.click(*BELOW_THE_PANEL)
        self.wait_for_focus(self.floating)
        self.other.process.end()
        self.desktop.key("Escape")
        wait_until(
            lambda: self.desktop.focused_window() != self.floating.window,
            "the floating window has given up the keyboard",
        )
        self.assertTrue(self.floating.process.running)
        self.assertNotIn("XCB error", self.floating.process.stderr())


class KeyboardWithCompositor(Keyboard):
    desktop_options = {"compositor": True}


class StackingWithCompositor(Stacking):
    desktop_options = {"compositor": True}


if __name__ == "__main__":
    unittest.main()
