"""The prompter as its user meets it: scripts, sources, scrolling, the strip of controls."""

import os
import signal
import unittest

from harness import TessalineTestCase, wait_until
from harness.session import PANEL_COLOR, PANEL_HEIGHT
from harness.waiting import holds_for

SCREEN = (1280, 800)
WIDTH, HEIGHT = 450, 256
LEFT = (SCREEN[0] - WIDTH) // 2
STRIP_MIDDLE = PANEL_HEIGHT // 2
TEXT = (LEFT + 25, 54, WIDTH - 50, HEIGHT - 64)  # x, y, width, height of what is read
CLOSE = (LEFT + 16, STRIP_MIDDLE)
MINIMIZE = (LEFT + 36, STRIP_MIDDLE)
ELSEWHERE = (200, 600)
BLACK = (0, 0, 0)
A_READ = 1.2  # seconds, in which a file that is read every second is read


class PrompterTestCase(TessalineTestCase):
    def start(self, *arguments):
        super().start(*arguments)
        wait_until(lambda: self.desktop.pixel(LEFT + 5, 100) == BLACK, "the prompter is black")

    def text_pixels(self):
        """The colours of what is read, row by row."""
        return self.desktop.region(*TEXT)

    def ink_rows(self):
        """The rows of the text, from its top, that something is drawn on."""
        return [
            number
            for number, row in enumerate(self.text_pixels())
            if max(row) > 90
        ]

    def wait_for_text(self):
        return wait_until(self.ink_rows, "a text is shown")

    def wait_for_other_text(self, before):
        wait_until(lambda: self.text_pixels() != before, "the text has changed", 3)


class Start(PrompterTestCase):
    def test_hangs_from_the_top_centre_above_the_panel(self):
        self.start(self.write_script("# Hello\n\nThis is a talk."))
        self.assertEqual(self.desktop.geometry(self.window), (LEFT, 0, WIDTH, HEIGHT))
        self.wait_for_text()
        picture = self.desktop.picture()
        self.assertEqual(picture.pixel(LEFT + 225, 2), BLACK)
        self.assertEqual(picture.pixel(100, 10), PANEL_COLOR)
        self.assertNotIn(self.window, self.desktop.managed_windows())

    def test_keeps_the_opened_text_as_if_it_had_been_pasted(self):
        text = "# Hello\r\n\r\nThis is *a talk*.\n"
        path = self.write_script("")
        path.write_bytes(text.encode())
        self.start(path)
        self.wait_for_text()
        kept = self.support_folder() / "clipboard-content.md"
        self.assertEqual(kept.read_bytes(), text.encode())
        self.assertEqual(self.settings()["activeSourceType"], "clipboard")

    def test_makes_the_clipboard_the_active_source_when_a_file_is_opened(self):
        self.write_settings(activeSourceType="obsidian", enabledSourceTypes=["obsidian"])
        self.start(self.write_script("# Hello"))
        self.wait_for_text()
        self.assertEqual(self.settings()["activeSourceType"], "clipboard")

    def test_changes_no_text_when_the_opened_file_is_empty(self):
        self.start(self.write_script("# Hello"))
        self.wait_for_text()
        before = self.text_pixels()
        self.prompter.end()
        self.start(self.write_script(""))
        wait_until(lambda: self.text_pixels() == before, "the same text is shown")

    def test_shows_the_last_text_again_at_the_next_start(self):
        self.start(self.write_script("# Hello"))
        self.wait_for_text()
        before = self.text_pixels()
        self.prompter.end()
        self.start()
        wait_until(lambda: self.text_pixels() == before, "the same text is shown")

    def test_shows_a_hint_without_any_text(self):
        self.start()
        rows = self.wait_for_text()
        self.assertGreater(rows[0], 40)
        self.assertLess(rows[-1], 150)

    def test_changes_nothing_when_the_file_cannot_be_read(self):
        for name, make in (("missing.md", lambda path: None), ("folder", lambda path: path.mkdir())):
            make(self.desktop.home / name)
            program = self.start_tessaline(name)
            self.assertEqual(program.wait(), 2)
            self.assertEqual(len(program.stderr().strip().splitlines()), 1, program.stderr())
            self.assertTrue(program.stderr().startswith("tessaline: "))
        files = [path.name for path in self.support_folder().iterdir()]
        self.assertEqual(files, ["config.json"])
        self.assertEqual(self.settings(), {"hasCompletedOnboarding": True})

    def test_says_so_without_a_display(self):
        program = self.start_tessaline(DISPLAY="", QT_QPA_PLATFORM="")
        self.assertEqual(program.wait(), 1)
        self.assertIn("tessaline: there is no display", program.stderr())
        program = self.start_tessaline(DISPLAY=":4711", QT_QPA_PLATFORM="")
        self.assertEqual(program.wait(), 1)
        self.assertIn("tessaline: the display :4711 does not answer", program.stderr())


class ObsidianContent(PrompterTestCase):
    def setUp(self):
        super().setUp()
        self.write_settings(
            activeSourceType="obsidian", enabledSourceTypes=["clipboard", "obsidian"]
        )
        self.content = self.support_folder() / "tessaline-content.md"

    def test_follows_the_file_within_about_a_second(self):
        self.start()
        self.wait_for_text()
        for text in ("# First", "# Second\n\nand more", "# Third"):
            before = self.text_pixels()
            self.content.write_text(text)
            self.wait_for_other_text(before)

    def test_keeps_the_text_when_the_file_goes(self):
        self.content.write_text("# First")
        self.start()
        self.wait_for_text()
        before = self.text_pixels()
        self.content.unlink()
        self.assertTrue(holds_for(lambda: self.text_pixels() == before, A_READ))

    def test_survives_anything_in_the_files_place(self):
        self.content.write_text("# First")
        self.start()
        self.wait_for_text()
        self.content.write_bytes(b"\xff\xfe not utf-8 \x80")
        self.assertTrue(holds_for(lambda: self.prompter.running, A_READ))
        self.content.unlink()
        self.content.mkdir()
        self.assertTrue(holds_for(lambda: self.prompter.running, A_READ))
        self.content.rmdir()
        self.content.symlink_to("nowhere")
        self.assertTrue(holds_for(lambda: self.prompter.running, A_READ))
        self.content.unlink()
        os.mkfifo(self.content)
        self.assertTrue(holds_for(lambda: self.prompter.running, A_READ))
        self.content.unlink()
        before = self.text_pixels()
        self.content.write_text("# Second")
        self.wait_for_other_text(before)

    def test_answers_while_it_takes_a_very_long_text_in(self):
        self.content.write_text("# First")
        self.start()
        self.wait_for_text()
        before = self.text_pixels()
        self.content.write_text("A line of a very long text indeed.\n\n" * 1_400_000)  # 50 MB
        wait_until(lambda: self.text_pixels() != before, "the long text is shown", 30)
        before = self.text_pixels()
        self.desktop.move_mouse(LEFT + 200, 150)
        self.desktop.hands("click", 5)
        self.wait_for_other_text(before)


class Use(PrompterTestCase):
    def setUp(self):
        super().setUp()
        self.start(self.write_script("".join(f"Line number {n} of the talk\n" for n in range(200))))
        self.wait_for_text()

    def test_scrolls_with_the_wheel(self):
        before = self.text_pixels()
        self.desktop.move_mouse(LEFT + 200, 150)
        self.desktop.hands("click", 5)
        wait_until(lambda: self.text_pixels() != before, "the text has moved")
        self.desktop.hands("click", 4)
        wait_until(lambda: self.text_pixels() == before, "the text is back")
        self.assert_wheel_moves_the_same_at(LEFT + WIDTH - 14)

    def assert_wheel_moves_the_same_at(self, x):
        """As over the middle of the text, with Control and without, and back."""
        for click in (("click", "5"), ("keydown", "ctrl", "click", "5", "keyup", "ctrl")):
            back = [word.replace("5", "4") for word in click]
            moved = []
            for column in (LEFT + 200, x):
                before = self.ink_rows()
                self.desktop.move_mouse(column, 150)
                self.desktop.hands(*click)
                wait_until(lambda: self.ink_rows() != before, "the text has moved")
                moved.append(self.ink_rows())
                self.desktop.hands(*back)
                wait_until(lambda: self.ink_rows() == before, "the text is back")
            self.assertEqual(moved[0], moved[1])

    def test_scrolls_with_the_keys_once_it_is_clicked(self):
        before = self.text_pixels()
        self.desktop.click(LEFT + 200, 150)
        self.desktop.key("End")
        self.wait_for_other_text(before)
        self.desktop.key("Home")
        wait_until(lambda: self.text_pixels() == before, "the text is back")

    def test_scrolls_by_itself_when_it_is_switched_on(self):
        button = (LEFT + 82, STRIP_MIDDLE)
        self.desktop.click(*button)
        wait_until(lambda: self.settings()["autoScrollEnabled"], "auto-scroll is saved")
        before = self.text_pixels()
        self.wait_for_other_text(before)
        self.desktop.click(*button)
        wait_until(lambda: not self.settings()["autoScrollEnabled"], "auto-scroll is off")
        before = self.text_pixels()
        self.assertTrue(holds_for(lambda: self.text_pixels() == before, 0.5))

    def test_collapses_into_the_panels_strip_and_comes_back(self):
        self.desktop.click(*MINIMIZE)
        collapsed = (LEFT, 0, WIDTH, PANEL_HEIGHT)
        wait_until(lambda: self.desktop.geometry(self.window) == collapsed, "it is collapsed")
        self.desktop.click(*MINIMIZE)
        expanded = (LEFT, 0, WIDTH, HEIGHT)
        wait_until(lambda: self.desktop.geometry(self.window) == expanded, "it is expanded")
        self.wait_for_text()

    def test_pastes_what_was_copied(self):
        before = self.text_pixels()
        self.desktop.click(LEFT + 200, 150)
        # Copies the first line out of the prompter itself, and pastes it in place of the rest.
        self.desktop.key("ctrl+Home", "Home")
        self.desktop.hands("mousemove", LEFT + 60, 60)
        self.desktop.hands("click", "--repeat", 3, "--delay", 60, 1)
        self.desktop.key("ctrl+c", "ctrl+v")
        self.wait_for_other_text(before)
        kept = self.support_folder() / "clipboard-content.md"
        wait_until(lambda: kept.read_text() == "Line number 0 of the talk", "the line is kept")

    def test_opens_its_menu_and_keeps_it_open(self):
        self.desktop.click(LEFT + 200, 150, button=3)
        wait_until(lambda: len(self.desktop.windows(pid=self.prompter.pid)) == 2, "a menu is open")
        self.desktop.key("Escape")
        wait_until(lambda: len(self.desktop.windows(pid=self.prompter.pid)) == 1, "it is closed")

    def test_gives_the_keyboard_back_to_who_had_it(self):
        probe = self.desktop.start("normal", [os.environ["TESSALINE_PROBE"], "normal", "#0000ff"])
        other = self.desktop.wait_for_window(pid=probe.pid)
        self.desktop.activate(other)
        self.desktop.click(LEFT + 200, 150)
        wait_until(lambda: self.desktop.focused_window() == self.window, "the prompter has the keys")
        self.desktop.move_mouse(*ELSEWHERE)
        wait_until(lambda: self.desktop.focused_window() == other, "the other window has them again")


class CornersTestCase(PrompterTestCase):
    CUT = {BLACK, (0, 0, 255)}

    def setUp(self):
        super().setUp()
        # The root window is painted, so that what lies below the corners is seen.
        self.desktop.use_up()
        self.desktop.run("xsetroot", "-solid", "#0000ff")
        self.start(self.write_script("# Hello"))
        self.wait_for_text()

    def pixels(self):
        """Those of the lower corners."""
        picture = self.desktop.picture()
        columns = (*range(LEFT, LEFT + 16), *range(LEFT + WIDTH - 16, LEFT + WIDTH))
        return [picture.pixel(x, y) for y in range(HEIGHT - 16, HEIGHT) for x in columns]


class Corners(CornersTestCase):
    def test_are_cut_round_without_a_compositor(self):
        self.assertEqual(set(self.pixels()), self.CUT)


class SmoothCorners(CornersTestCase):
    # Without a panel, which starts anew with a compositor and has the prompter take its place again.
    desktop_options = {"compositor": True, "panel": False}

    def test_are_smooth_whenever_a_compositor_runs(self):
        wait_until(lambda: len(set(self.pixels())) > 4, "there are shades of the corners", 5)
        smooth = self.pixels()
        self.assertIn(BLACK, smooth)
        for signal_number in (signal.SIGTERM, signal.SIGKILL):
            self.desktop.process("picom").send(signal_number)
            wait_until(lambda: set(self.pixels()) == self.CUT, "the corners are cut", 5)
            self.desktop.start_compositor()
            wait_until(lambda: self.pixels() == smooth, "the corners are smooth again", 5)


class Monitors(PrompterTestCase):
    NOTEBOOK = {"eDP-1": (0, 0, 1280, 800)}
    PROJECTOR = {"HDMI-1": (1280, 0, 1024, 768)}
    desktop_options = {"size": (2304, 800), "panel": False, "monitors": {**NOTEBOOK, **PROJECTOR}}

    def wait_for_centre(self, x):
        wait_until(
            lambda: self.desktop.geometry(self.window)[:2] == (x - WIDTH // 2, 0),
            f"the prompter hangs at {x}",
        )

    def test_follows_its_screen_when_monitors_come_and_go(self):
        self.write_settings(autoScrollEnabled=True, scrollSpeed=2.0)
        self.start(self.write_script("Some text\n\n" * 200))
        self.wait_for_centre(640)
        self.desktop.set_monitors(self.PROJECTOR)
        self.wait_for_centre(1280 + 512)
        self.desktop.set_monitors({**self.NOTEBOOK, **self.PROJECTOR})
        self.wait_for_centre(640)
        self.assertTrue(self.prompter.running)


class SmallScreen(PrompterTestCase):
    desktop_options = {"size": (640, 480)}

    def test_starts_at_the_left_edge_when_it_is_wider_than_the_screen(self):
        self.write_settings(width=800)
        self.prompter = self.start_tessaline(self.write_script("# Hello"))
        window = self.desktop.wait_for_window(pid=self.prompter.pid)
        wait_until(
            lambda: self.desktop.geometry(window) == (0, 0, 800, HEIGHT), "it starts at the left edge"
        )


if __name__ == "__main__":
    unittest.main()
