"""The prompter's row of controls beside another program that has the keyboard."""

import unittest

from harness import wait_until
from harness.session import PANEL_HEIGHT
from harness.waiting import holds_for
from settings_case import SettingsTestCase

PROMPTER = "Tessaline"
TOOL_TIPS = {
    ("push button", "Quit"): "Quit Tessaline",
    ("push button", "Minimize"): "Minimize/Expand window",
    ("push button", "Settings"): "Open Settings",
    ("push button", "Toggle Auto-Scroll"): "Toggle auto-scroll",
    ("label", "OBSIDIAN"): "Content source",
    ("push button", "Toggle content source"): "Cycle content source (current: Obsidian)",
    ("label", "1 words • ~5s"): "Reading statistics",
}
ELSEWHERE = (200, 900)
ROUNDING = 16  # of the prompter's lower corners, which pass through the row on the way


class Strip(SettingsTestCase):
    def setUp(self):
        super().setUp()
        self.obsidian.install()
        self.write_settings(
            activeSourceType="obsidian", enabledSourceTypes=["clipboard", "obsidian"]
        )
        (self.support_folder() / "tessaline-content.md").write_text("## sent")
        (self.support_folder() / "clipboard-content.md").write_text("pasted")
        self.start()
        self.wait_for_text(PROMPTER, "1 words • ~5s")

    def assert_says_that_the_script_begins_with_a_heading(self):
        heading = self.control(PROMPTER, "heading", "sent")
        self.assertEqual(heading.description, "Level 2")
        self.assertTrue(heading.lies_in(self.control(PROMPTER, "text", "Script").area))

    def start_another_program(self):
        probe = self.desktop.start("other", [self.probe(), "normal", "#0000ff"])
        window = self.desktop.wait_for_window(pid=probe.pid)
        self.desktop.activate(window)
        wait_until(lambda: self.desktop.focused_window() == window, "it has the keyboard")
        # Tool tips go with the keyboard, and toolkits take their time to believe that it is gone.
        wait_until(lambda: "active" not in self.open_window(PROMPTER).states, "it has let go")
        return window

    def tool_tips(self):
        return [
            node.name
            for window in self.desktop.accessibility.windows(self.prompter.pid)
            for node in window.find_all("tool tip")
        ]

    def test_explains_itself_while_another_program_has_the_keyboard(self):
        self.assert_says_that_the_script_begins_with_a_heading()
        other = self.start_another_program()
        for (role, name), tool_tip in TOOL_TIPS.items():
            with self.subTest(name):
                control = self.control(PROMPTER, role, name)
                # A pointer that jumps in and rests moves no further.
                x, y = control.center
                self.desktop.move_mouse(x - 2, y)
                self.desktop.move_mouse(x, y)
                wait_until(lambda: tool_tip in self.tool_tips(), f"it says {tool_tip!r}", 5)
                self.assertEqual(len(self.desktop.windows(pid=self.prompter.pid)), 2)
        self.assertEqual(self.desktop.focused_window(), other)

    def assert_every_click_in_one_place_switches_the_source(self):
        # By the button's edge, from where a step aside would take it.
        x, y, _, height = self.control(PROMPTER, "push button", "Toggle content source").area
        self.desktop.move_mouse(x + 2, y + height // 2)
        for source in ("clipboard", "obsidian", "clipboard", "obsidian"):
            self.desktop.hands("click", 1)
            wait_until(lambda: self.status()["source"] == source, f"{source} is shown", 5)
            self.wait_for_text(PROMPTER, source.upper())

    def row_behind_the_minimize_button(self):
        x, y, width, _ = self.prompter_area()
        left, _, room, _ = self.minimize_button.area
        start = left + room - x
        return self.desktop.region(x + start, y, width - start - ROUNDING, PANEL_HEIGHT)

    def still_row_behind_the_minimize_button(self):
        """Once what the mouse lit up there is dark again."""

        def still():
            row = self.row_behind_the_minimize_button()
            return holds_for(lambda: self.row_behind_the_minimize_button() == row, 0.3) and row

        return wait_until(still, "nothing changes any more")

    def assert_folding_moves_nothing(self):
        self.minimize_button = self.control(PROMPTER, "push button", "Minimize")
        self.desktop.move_mouse(*ELSEWHERE)
        before = self.still_row_behind_the_minimize_button()
        for folded in (True, False):
            self.click_on(self.minimize_button)
            self.desktop.move_mouse(*ELSEWHERE)
            wait_until(lambda: self.status()["collapsed"] == folded, f"it is folded: {folded}")
            # Pictures of the way and of its end.
            for _ in range(3):
                self.assertTrue(self.row_behind_the_minimize_button() == before, folded)

    def test_keeps_its_place_whatever_is_pressed(self):
        self.assert_every_click_in_one_place_switches_the_source()
        self.assert_folding_moves_nothing()


if __name__ == "__main__":
    unittest.main()
