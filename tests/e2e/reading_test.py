"""The reading options: their window by mouse, keys and screen reader, their commands, their file."""

import json
import unittest

from harness import wait_until
from settings_case import SettingsTestCase

TITLE = "Reading"
WINDOW = "^Reading$"
PROMPTER = "Tessaline"
TALK = "# A talk\n\n" + "A line of the talk.\n\n" * 40


class ReadingTestCase(SettingsTestCase):
    title = TITLE

    def options(self):
        """What the file of reading options says; nothing while there is none."""
        path = self.support_folder() / "reading.json"
        return json.loads(path.read_text()) if path.exists() else {}

    def wait_for_option(self, name, value):
        wait_until(lambda: self.options().get(name) == value, f"{name} is {value}")

    def ctl(self, *words):
        """What the running prompter answers to a command."""
        status, output, error = self.call("ctl", *words)
        self.assertEqual((status, error), (0, ""), words)
        return output.rstrip("\n")

    def window_is_there(self):
        self.window_of_settings = self.desktop.wait_for_window(WINDOW, self.prompter.pid)
        self.desktop.wait_for_keyboard(self.window_of_settings)

    def open_by_menu(self):
        """Chooses the last entry of the menu of the prompter's text."""
        script = self.control(PROMPTER, "text", "Script")
        before = self.desktop.region(*script.area)
        self.desktop.click(*script.center, button=3)
        wait_until(lambda: self.desktop.region(*script.area) != before, "the menu is seen")
        self.desktop.key("Up", "Return")
        self.window_is_there()

    def go_to_the_prompter(self):
        self.click_on(self.control(PROMPTER, "text", "Script"))
        wait_until(lambda: self.desktop.focused_window() == self.window, "it has the keyboard")

    def is_beside_the_prompter(self):
        left, _, width, _ = self.prompter_area()
        return self.open_window(TITLE).area[0] >= left + width

    def reading_is_open(self):
        return bool(self.desktop.windows(WINDOW, self.prompter.pid))


class ByMouse(ReadingTestCase):
    def test_everything_can_be_chosen(self):
        self.start(self.write_script(TALK))
        config = self.settings()
        self.assertEqual(self.options(), {})
        self.open_by_menu()
        wait_until(self.is_beside_the_prompter, "the window, which is high, is beside the prompter")

        self.choose("Speed", "Words a Minute")
        self.wait_for_option("pace", "words")
        self.drag("Words a Minute", 200)
        wait_until(lambda: abs(self.options()["wordsPerMinute"] - 200) <= 5, "about 200 words")
        self.desktop.release_button()
        self.assertEqual(self.options()["wordsPerMinute"] % 5, 0)
        self.choose("Second Line", "Share of Height")
        self.wait_for_option("eyeLine", 0.33)
        self.choose("None", "Band of Two Lines")
        self.wait_for_option("guide", "band")
        self.choose("Stand", "Go Round")
        self.wait_for_option("atEnd", "round")
        self.click_on(self.control(TITLE, "check box", "Ease Jumps"))
        self.wait_for_option("glide", True)
        self.choose("Words a Minute", "Finish in Minutes")
        self.wait_for_option("pace", "finish")
        x, y, width, height = self.control(TITLE, "spin button", "Minutes").area
        self.desktop.click(x + width - 10, y + height // 4)
        self.wait_for_option("finishMinutes", 12.5)

        status = self.status()
        self.assertEqual(
            [status[name] for name in ("pace", "finish", "eyeLine", "guide", "guideLines")],
            ["finish", "12.5m", "33", "band", 2],
        )
        self.assertEqual((status["atEnd"], status["glide"]), ("round", True))
        self.desktop.close_by_keys(self.window_of_settings)
        wait_until(lambda: not self.reading_is_open(), "it is closed")
        self.assertEqual(self.settings(), config)
        changed = {
            event["setting_name"] for event in self.end_and_read_history("setting_changed")
        }
        self.assertLessEqual(
            {"pace", "wordsPerMinute", "eyeLine", "guide", "guideLines", "atEnd", "glide"}, changed
        )


class ByKeys(ReadingTestCase):
    def test_everything_can_be_reached_and_changed(self):
        self.start(self.write_script(TALK))
        self.assertEqual(self.ctl("reading"), "reading options shown")
        self.window_is_there()
        self.focus("combo box", "Speed")
        self.desktop.key("Down")
        self.wait_for_option("pace", "words")
        self.focus("slider", "Words a Minute")
        self.desktop.key("Right", "Right", "Left")
        self.wait_for_option("wordsPerMinute", 155)
        self.focus("combo box", "Second Line")
        self.desktop.key("Down")
        self.focus("slider", "Below the Top")
        self.desktop.key("Right")
        self.wait_for_option("eyeLine", 0.34)
        self.focus("combo box", "None")
        self.desktop.key("Down")
        self.wait_for_option("guide", "marker")
        self.focus("slider", "Countdown")
        self.desktop.key("Right", "Right")
        self.wait_for_option("countdownSeconds", 2)
        self.focus("combo box", "Stand")
        self.desktop.key("Down")
        self.wait_for_option("atEnd", "stop")
        self.focus("check box", "Ease Jumps")
        self.desktop.key("space")
        self.wait_for_option("glide", True)

        self.focus("combo box", "Words a Minute")
        self.desktop.key("Down")
        self.focus("spin button", "Minutes")
        self.desktop.key("ctrl+a")
        self.desktop.type("45")
        self.desktop.key("Return")
        self.wait_for_option("finishMinutes", 45)
        self.desktop.key("Up")
        self.wait_for_option("finishMinutes", 45.5)

        # The keys of the prompter step what the pace goes by.
        self.desktop.close_by_keys(self.window_of_settings)
        self.go_to_the_prompter()
        self.desktop.key("plus")
        self.wait_for_option("finishMinutes", 45)
        self.desktop.key("minus", "minus")
        self.wait_for_option("finishMinutes", 46)
        self.ctl("pace", "speed")
        before = self.options()
        self.desktop.key("plus", "Down")
        wait_until(lambda: self.status()["scrollPosition"] > 0, "the keys have arrived")
        self.assertEqual(self.options(), before)


class Commands(ReadingTestCase):
    def test_change_the_options_and_the_window_shows_it(self):
        path = self.support_folder() / "reading.json"
        path.write_text('{"wordsPerMinute": 999, "voice": {"language": "de"}}')
        self.start(self.write_script(TALK))
        lines = [line for line in self.prompter.stdout().splitlines() if "out of range" in line]
        self.assertEqual(len(lines), 1, self.prompter.stdout())
        self.assertIn("wordsPerMinute", lines[0])
        self.assertEqual(self.status()["wantedWordsPerMinute"], 300)

        self.ctl("reading")
        self.window_is_there()
        self.assertEqual(self.ctl("pace", "words", "160"), "160 words a minute")
        self.assertEqual(self.slider("Words a Minute").value, 160)
        self.assertEqual(self.ctl("faster"), "165 words a minute")
        self.assertEqual(self.ctl("slower"), "160 words a minute")
        self.assertEqual(self.options()["voice"], {"language": "de"})
        self.assertEqual(self.ctl("pace", "finish", "12.5m"), "finish in 12.5 min")
        self.assertEqual(self.control(TITLE, "spin button", "Minutes").value, 12.5)
        self.assertEqual(
            self.ctl("pace", "finish", "0:00"),
            "finish at 00:00 tomorrow: that time has passed today",
        )
        self.wait_for_text(TITLE, "This time has passed today: it means tomorrow.")
        self.ctl("eyeline", "40")
        self.assertEqual(self.slider("Below the Top").value, 40)
        self.ctl("guide", "band", "2")
        self.control(TITLE, "combo box", "Band of Two Lines")
        self.ctl("countdown", "3")
        self.wait_for_text(TITLE, "3 s")
        self.ctl("at-end", "stop")
        self.control(TITLE, "combo box", "Stop")
        self.ctl("glide", "on")
        self.wait_for_state("checked", TITLE, "check box", "Ease Jumps")
        for words in (
            ("pace", "warp"),
            ("pace", "words", "20"),
            ("pace", "finish", "soon"),
            ("guide", "band", "3"),
            ("eyeline", "60"),
            ("countdown", "1.5"),
            ("at-end",),
            ("glide", "yes"),
        ):
            status, output, error = self.call("ctl", *words)
            self.assertEqual((status, output, error.count("\n")), (2, "", 1), words)

        options = self.options()
        self.assertEqual(self.prompter.end(), 0)
        self.start()
        self.assertEqual(self.options(), options)
        status = self.status()
        self.assertEqual((status["pace"], status["finish"]), ("finish", "00:00"))


class SmallScreen(ReadingTestCase):
    desktop_options = {"size": (640, 480)}

    def test_has_all_of_the_window_within_reach(self):
        self.start(self.write_script(TALK))
        # It takes the keyboard when it appears, and must not take it from the window afterwards.
        wait_until(lambda: self.desktop.focused_window() == self.window, "it has the keyboard")
        for words in (("pace", "words"), ("eyeline", "33"), ("reading",)):
            self.ctl(*words)
        # As the user does who works with it: a busy desktop may leave the keyboard where it was.
        self.desktop.activate(self.desktop.wait_for_window(WINDOW, self.prompter.pid))
        self.window_is_there()
        screen = (0, 0, *self.desktop.size)
        self.assertTrue(self.open_window(TITLE).lies_in(screen))
        for role, name in (
            ("slider", "Words a Minute"),
            ("slider", "Below the Top"),
            ("slider", "Countdown"),
            ("check box", "Ease Jumps"),
        ):
            self.focus(role, name)
            area = self.open_window(TITLE).area
            wait_until(
                lambda role=role, name=name, area=area: self.control(TITLE, role, name).lies_in(area),
                f"the {name} is in sight",
            )
        self.desktop.key("space")
        self.wait_for_option("glide", True)


if __name__ == "__main__":
    unittest.main()
