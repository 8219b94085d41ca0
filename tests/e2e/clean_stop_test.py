"""Every usual way to end the program ends it well."""

import signal
import unittest

from harness import TessalineTestCase


class CleanStop(TessalineTestCase):
    def socket_files(self):
        return list((self.desktop.folder / "runtime/tessaline").glob("*.socket"))

    def assert_ended_well(self, seconds=5):
        self.assertEqual(self.prompter.wait(seconds), 0)
        names = self.event_names()
        self.assertEqual(names[-1], "app_terminate", names)
        self.assertIn("app_launch", names)
        self.assertEqual(self.socket_files(), [])

    def end_display(self, number=signal.SIGKILL):
        # Once the program has answered: the toolkit does not survive to lose a server whose first news
        # of its screens it is about to handle.
        self.status()
        self.desktop.process("xvfb").send(number)

    def test_signals_end_it(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                self.start()
                self.prompter.send(number)
                self.assert_ended_well()

    def test_lives_on_without_its_terminal_if_that_was_asked_for(self):
        self.prompter = self.desktop.start("tessaline", ["nohup", self.binary()])
        self.wait_for_prompter()
        self.prompter.send(signal.SIGHUP)
        # What it is asked at first may be at hand earlier than the signal, what it is asked then is not.
        for _ in range(2):
            self.assertTrue(self.status()["visible"])
        self.prompter.send(signal.SIGTERM)
        self.assert_ended_well()

    def test_its_own_key_ends_it(self):
        self.start()
        self.desktop.click(640, 150)
        self.desktop.key("ctrl+q")
        self.assert_ended_well()

    def test_a_signal_ends_it_during_the_first_start(self):
        self.write_settings(hasCompletedOnboarding=False)
        self.prompter = self.start_tessaline()
        self.desktop.wait_for_window("Welcome", self.prompter.pid)
        self.prompter.send(signal.SIGTERM)
        self.assert_ended_well()
        self.assertNotIn("content_loaded", self.event_names(), "the normal start never came")
        self.assertFalse(self.settings()["hasCompletedOnboarding"])

    def test_a_signal_ends_it_while_it_scrolls(self):
        self.write_settings(autoScrollEnabled=True, scrollSpeed=5.0)
        self.start(self.write_script("Some text\n\n" * 2000))
        self.prompter.send(signal.SIGTERM)
        self.assert_ended_well()

    def test_the_settings_stay_as_they_were_saved(self):
        self.start()
        before = self.settings()
        self.prompter.send(signal.SIGTERM)
        self.assert_ended_well()
        self.assertEqual(self.settings(), before)

    def test_the_end_of_its_display_ends_it_with_its_history_saved(self):
        for number in (signal.SIGTERM, signal.SIGKILL):
            with self.subTest(number):
                self.desktop = self.start_desktop(**self.desktop_options)
                self.write_settings()
                self.start()
                before = self.settings()
                self.end_display(number)
                self.assertEqual(self.prompter.wait(3), 1)
                names = self.event_names()
                self.assertEqual(names.count("app_launch"), 1, names)
                self.assertEqual(names.count("app_terminate"), 1, names)
                self.assertEqual(names[-1], "app_terminate", names)
                self.assertEqual(self.settings(), before)

    def test_the_end_of_its_display_is_no_obstacle_to_the_next_start(self):
        self.start()
        self.end_display()
        self.prompter.wait(3)
        home = self.desktop.home
        self.desktop = self.start_desktop(**self.desktop_options)
        self.desktop.env["HOME"] = str(home)
        self.start()
        self.prompter.send(signal.SIGTERM)
        self.assert_ended_well()
        self.assertEqual(self.event_names().count("app_terminate"), 2)

    def test_the_end_of_its_display_ends_it_during_the_first_start(self):
        self.write_settings(hasCompletedOnboarding=False)
        self.prompter = self.start_tessaline()
        self.desktop.wait_for_window("Welcome", self.prompter.pid)
        self.end_display()
        self.assertEqual(self.prompter.wait(3), 1)
        self.assertEqual(self.event_names()[-1], "app_terminate")
        self.assertFalse(self.settings()["hasCompletedOnboarding"])

    def test_two_signals_at_once_end_it_no_worse_than_one(self):
        self.start()
        self.prompter.send(signal.SIGSTOP)
        self.prompter.send(signal.SIGTERM)
        self.prompter.send(signal.SIGINT)
        self.prompter.send(signal.SIGCONT)
        self.assert_ended_well()


if __name__ == "__main__":
    unittest.main()
