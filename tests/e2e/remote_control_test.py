"""The running prompter, driven by commands from other programs."""

import json
import signal
import socket
import unittest
import unittest.mock

from harness import TessalineTestCase, wait_until
from harness.clipboard import Clipboard
from harness.waiting import holds_for
from prompter_test import PrompterTestCase

TALK = "# One\n\n" + "A line to read.\n\n" * 60 + "## Two\n\n" + "More to read.\n\n" * 60
SILENT_CLIENTS = 1000


class RemoteControl(PrompterTestCase):
    def setUp(self):
        super().setUp()
        self.start(self.write_script(TALK))
        self.wait_for_text()

    def ctl(self, *words):
        """Has a command carried out; returns its answer."""
        status, output, error = self.call("ctl", *words)
        self.assertEqual((status, error), (0, ""), words)
        self.assertEqual(output.count("\n"), 1, words)
        return output.rstrip("\n")

    def refusal(self, *words):
        status, output, error = self.call("ctl", *words)
        self.assertEqual((status, output), (1, ""), words)
        return error

    def status(self):
        return json.loads(self.ctl("status"))

    def events(self):
        """Ends the program; returns the names of what it recorded."""
        self.prompter.end()
        return self.event_names()

    def test_tells_its_state(self):
        status = self.status()
        self.assertEqual(
            list(status),
            ["version", "visible", "collapsed", "source", "words", "time", "scrollPosition"]
            + ["maximumScrollPosition", "speed", "rate", "autoScroll", "frameRate"]
            + ["pace", "wordsPerMinute", "wordsRead", "secondsLeft", "secondsElapsed"]
            + ["wantedWordsPerMinute", "finish", "finishTomorrow", "eyeLine", "guide"]
            + ["guideLines", "countdown", "atEnd", "glide"]
            + ["mirror", "opacity", "opacityShown", "clickThrough", "clickedThrough"]
            + ["font", "fontShown", "lineSpacing", "distance", "fontSize", "suggestion"]
            + ["mediaKeys", "remote", "remoteAddress", "remoteProblem", "remotePages"]
            + ["black", "keys", "file", "continueAt", "latest", "platform"],
        )
        self.assertEqual(status["version"], self.call("--version")[1].split()[1])
        self.assertTrue(status["visible"])
        self.assertFalse(status["collapsed"])
        self.assertEqual(status["source"], "clipboard")
        self.assertEqual(status["words"], 2 + 60 * 4 + 60 * 3)
        self.assertEqual(status["scrollPosition"], 0)
        self.assertGreater(status["maximumScrollPosition"], 1000)
        self.assertEqual((status["speed"], status["rate"]), (0, "medium"))
        self.assertFalse(status["autoScroll"])

    def test_plays_and_pauses(self):
        self.ctl("play")
        self.assertTrue(self.status()["autoScroll"])
        wait_until(lambda: self.status()["scrollPosition"] > 0, "the text moves")
        wait_until(lambda: self.status()["frameRate"] > 0, "frames are counted")
        self.ctl("play")
        self.assertTrue(self.settings()["autoScrollEnabled"])
        self.ctl("pause")
        position = self.status()["scrollPosition"]
        self.assertTrue(holds_for(lambda: self.status()["scrollPosition"] == position, 0.5))
        self.ctl("toggle")
        self.assertTrue(self.settings()["autoScrollEnabled"])
        self.assertEqual(self.events().count("auto_scroll_toggled"), 3)

    def test_changes_the_speed_in_steps_within_its_limits(self):
        self.assertEqual(self.ctl("speed", "4.9"), "speed 4.9")
        self.assertEqual(self.ctl("faster"), "speed 5")
        self.assertEqual(self.ctl("slower"), "speed 4.75")
        self.assertEqual(self.settings()["scrollSpeed"], 4.75)
        self.ctl("speed", "0.1")
        self.assertEqual(self.ctl("slower"), "speed 0")
        self.assertEqual(self.settings()["lastNonZeroScrollSpeed"], 0.1)

    def test_changes_the_rate(self):
        before = self.status()["time"]
        self.assertEqual(self.ctl("rate", "fast"), "rate fast")
        self.assertEqual(self.settings()["scrollRate"], "fast")
        self.assertNotEqual(self.status()["time"], before)
        self.assertIn("setting_changed", self.events())

    def test_scrolls(self):
        self.ctl("down")
        self.ctl("down")
        self.assertEqual(self.status()["scrollPosition"], 80)
        self.ctl("up")
        self.assertEqual(self.status()["scrollPosition"], 40)
        self.ctl("next-heading")
        second = self.status()["scrollPosition"]
        self.assertGreater(second, 500)
        self.ctl("previous-heading")
        self.assertEqual(self.status()["scrollPosition"], 0)
        self.ctl("next-heading")
        self.assertEqual(self.status()["scrollPosition"], second)
        self.ctl("top")
        self.assertEqual(self.status()["scrollPosition"], 0)

    def test_shows_hides_and_minimises_the_prompter(self):
        self.ctl("hide")
        self.wait_for_prompter(shown=False)
        self.assertFalse(self.status()["visible"])
        self.ctl("show")
        self.wait_for_prompter()
        self.ctl("minimize")
        self.ctl("minimize")
        self.assertTrue(self.status()["collapsed"])
        self.ctl("expand")
        self.assertFalse(self.status()["collapsed"])
        events = self.events()
        for name in ("window_hidden", "window_minimized", "window_expanded"):
            self.assertEqual(events.count(name), 1, name)

    def test_shows_the_settings(self):
        self.ctl("settings")
        self.desktop.wait_for_window("^Settings$", self.prompter.pid)

    def test_changes_the_source(self):
        self.assertIn("'obsidian' is not enabled", self.refusal("source", "obsidian"))
        self.prompter.end()
        self.write_settings(enabledSourceTypes=["clipboard", "obsidian"])
        self.start()
        self.assertEqual(self.ctl("source", "obsidian"), "source obsidian")
        self.assertEqual(self.status()["source"], "obsidian")
        self.assertEqual(self.settings()["activeSourceType"], "obsidian")
        self.assertEqual(self.ctl("source", "clipboard"), "source clipboard")
        self.assertEqual(self.events().count("source_changed"), 2)

    def test_pastes(self):
        self.assertEqual(self.refusal("paste"), "tessaline: the clipboard holds no text\n")
        clipboard = Clipboard(self.desktop)
        self.addCleanup(clipboard.clear)
        clipboard.offer("Zwei Wörter".encode(), "text/plain;charset=utf-8")
        self.assertEqual(self.ctl("paste"), "pasted")
        self.assertEqual(self.status()["words"], 2)
        clipboard.owner.send(signal.SIGSTOP)
        self.assertIn("does not answer", self.refusal("paste"))
        clipboard.clear()
        self.assertIn("content_pasted", self.events())

    def test_ends_the_program(self):
        self.assertEqual(self.ctl("quit"), "ending")
        self.assertEqual(self.prompter.wait(), 0)
        self.assertEqual(self.refusal("status"), "tessaline: no prompter is running\n")

    def test_says_what_is_wrong_with_a_command(self):
        for words in (["dance"], ["speed"], ["speed", "6"], ["rate", "warp"], []):
            status, output, error = self.call("ctl", *words)
            self.assertEqual((status, output, error.count("\n")), (2, "", 1), words)

    def test_refuses_words_that_the_command_line_would_not_send(self):
        client = socket.socket(socket.AF_UNIX)
        self.addCleanup(client.close)
        client.connect(str(self.socket_path()))
        client.sendall(b'{"command": "control", "words": ["speed", "nan"]}\n')
        answer = json.loads(client.makefile().readline())
        self.assertFalse(answer["ok"])
        self.assertEqual(self.settings()["scrollSpeed"], 0)

    def test_answers_among_a_thousand_clients_that_say_nothing(self):
        clients = []
        for _ in range(SILENT_CLIENTS):
            client = socket.socket(socket.AF_UNIX)
            client.connect(str(self.socket_path()))
            clients.append(client)
        self.assertTrue(self.status()["visible"])
        for client in clients:
            client.close()
        self.assertTrue(self.status()["visible"])


class FollowedFile(PrompterTestCase):
    def words(self):
        return json.loads(self.call("ctl", "status")[1])["words"]

    def wait_for_words(self, count):
        wait_until(lambda: self.words() == count, f"{count} words are shown")

    def test_is_shown_again_whenever_it_changes(self):
        path = self.write_script("one two")
        self.start("--follow", path)
        self.wait_for_words(2)
        path.write_text("one two three")
        self.wait_for_words(3)
        other = path.with_suffix(".tmp")
        other.write_text("one two three four")
        other.rename(path)
        self.wait_for_words(4)

    def test_keeps_the_readers_place(self):
        lines = [f"Line {number} of the talk." for number in range(200)]
        path = self.write_script("\n\n".join(lines))
        self.start("--follow", path)
        self.wait_for_text()
        for _ in range(20):
            self.call("ctl", "down")
        lines[150] = "Another line."
        path.write_text("\n\n".join(lines))
        self.wait_for_words(200 * 5 - 3)
        self.assertEqual(json.loads(self.call("ctl", "status")[1])["scrollPosition"], 800)

    def test_is_let_go_when_something_else_is_shown(self):
        path = self.write_script("one two")
        self.start("--follow", path)
        other = self.desktop.home / "other.md"
        other.write_text("one")
        self.assertEqual(self.call(other)[0], 0)
        self.wait_for_words(1)
        path.write_text("one two three")
        self.assertTrue(holds_for(lambda: self.words() == 1, 1.5))

    def test_is_followed_by_the_prompter_that_runs(self):
        self.start()
        path = self.write_script("one two")
        self.assertEqual(self.call("--follow", path)[0], 0)
        self.wait_for_words(2)
        path.write_text("one two three")
        self.wait_for_words(3)


class NothingRuns(TessalineTestCase):
    def test_commands_say_that_no_prompter_runs(self):
        self.assertEqual(
            self.call("ctl", "status"), (1, "", "tessaline: no prompter is running\n")
        )

    def test_commands_from_outside_of_the_session_say_what_they_need(self):
        with unittest.mock.patch.dict(self.desktop.env):
            for name in ("DISPLAY", "WAYLAND_DISPLAY"):
                self.desktop.env.pop(name, None)
            status, _, error = self.call("ctl", "status")
        self.assertEqual(status, 1)
        self.assertIn("neither DISPLAY nor WAYLAND_DISPLAY is set", error)
        self.assertEqual(error.count("\n"), 1)

    def test_the_first_run_window_comes_first(self):
        self.write_settings(hasCompletedOnboarding=False)
        program = self.start_tessaline()
        self.desktop.wait_for_window("^Welcome to Tessaline$", program.pid)
        status, _, error = self.call("ctl", "play")
        self.assertEqual((status, error), (1, "tessaline: the first-run window is still open\n"))
        self.assertFalse(json.loads(self.call("ctl", "status")[1])["visible"])


if __name__ == "__main__":
    unittest.main()
