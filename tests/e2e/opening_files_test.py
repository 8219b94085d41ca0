"""Scripts in files: dropped from another program, picked in the panel, from the list of the latest, and
gone on with where they were left; and what cannot be opened."""

import json
import os
import shutil
import unittest
import zipfile

from harness import wait_until
from harness.accessible_case import AccessibleTestCase

PROMPTER = "Tessaline"
PANEL = "Open a Script"
TALK = "# First Part\n\n" + "A line of it.\n\n" * 40 + "# Second Part\n\n" + "Another.\n\n" * 40
FILM_SIZE = 2 << 30
BOMB_MEGABYTES = 400
PANDOC = "#!/bin/sh\necho '# From a document'\n"


class OpeningTestCase(AccessibleTestCase):
    def setUp(self):
        super().setUp()
        self.tools = self.desktop.folder / "tools"
        self.tools.mkdir()
        self.pandoc = self.tools / "pandoc"

    def write(self, name, content):
        path = self.desktop.home / name
        if isinstance(content, bytes):
            path.write_bytes(content)
        else:
            path.write_text(content)
        return path

    def start_with(self, *arguments):
        """Starts the program where there is no pandoc but the scenario's own."""
        self.start(*arguments, PATH=str(self.tools))

    def latest(self):
        """What is kept of the latest scripts."""
        path = self.support_folder() / "latest.json"
        return json.loads(path.read_text())["scripts"] if path.exists() else []

    def ctl(self, *words):
        status, output, error = self.call("ctl", *words)
        self.assertEqual((status, error), (0, ""), words)
        return output.rstrip("\n")

    def refusal(self, *words):
        status, output, error = self.call(*words)
        self.assertEqual((output, error.count("\n")), ("", 1), words)
        self.assertNotEqual(status, 0)
        return error

    def wait_for_file(self, path):
        wait_until(lambda: self.status()["file"] == str(path), f"{path} is shown")

    def wait_for_notice(self, text):
        self.wait_for_text(PROMPTER, text)

    def script(self):
        return self.control(PROMPTER, "text", "Script")


class Drops(OpeningTestCase):
    source = None

    def drop(self, *addresses, onto=None, text=""):
        """Drags things from another program's window, and drops them once the prompter wants them."""
        words = [word for address in addresses for word in ("--drag", address)]
        if text:
            words += ["--drag-text", text]
        if self.source:
            self.source.end()  # not before: what was dropped is fetched from it
        self.source = source = self.desktop.start(
            "source", [self.probe(), "normal", "#203040", *words]
        )
        window = self.desktop.wait_for_window("^normal$", source.pid)
        x, y, width, height = self.desktop.geometry(window)
        to_x, to_y = onto or self.script().center
        self.desktop.move_mouse(x + width // 2, y + height // 2)
        self.desktop.press_button()
        source.wait_for_output('"event":"drag"')
        for step in (0, 3, 6):
            self.desktop.move_mouse(to_x + step, to_y)
        source.wait_for_output('"action":"copy"')
        self.desktop.release_button()
        source.wait_for_output('"event":"dropped"')
        self.assertIn('{"action":"copy","event":"dropped"}', source.stdout())

    def strip(self):
        x, y, width, _ = self.desktop.geometry(self.window)
        return x + width // 2 + 30, y + 12

    def test_open_what_another_program_lets_fall(self):
        self.start_with()
        talk = self.write("My Talk.md", TALK)
        self.drop(talk.as_uri())
        self.wait_for_file(talk)
        self.assertEqual(self.status()["scrollPosition"], 0)

        many = [self.write(f"{i}.md", f"# Script {i}") for i in range(10)]
        self.drop(*(path.as_uri() for path in many), onto=self.strip())
        self.wait_for_file(many[0])
        self.wait_for_notice("Opened 0.md, the first of 10 files")

        self.drop(text="# Dropped words")
        wait_until(lambda: self.script().text == "Dropped words", "the dropped text is shown")
        self.assertEqual(self.status()["file"], "")

    def test_say_in_a_line_what_cannot_be_opened_and_lose_nothing(self):
        talk = self.write("talk.md", TALK)
        self.start_with(talk)
        film = self.write("film.md", b"")
        os.truncate(film, FILM_SIZE)
        data = self.write("photo.jpg", bytes(range(256)) * 10)
        folder = self.desktop.home / "Scripts"
        folder.mkdir()
        fifo = self.desktop.home / "pipe.md"
        os.mkfifo(fifo)
        for address, line in (
            (folder.as_uri(), "Cannot open Scripts: it is a folder"),
            (film.as_uri(), "Cannot open film.md: it is larger than 64 MiB"),
            (data.as_uri(), "Cannot open photo.jpg: it is not text"),
            (fifo.as_uri(), "Cannot open pipe.md: Not a regular file"),
            (talk.as_uri() + "x", "Cannot open talk.mdx: No such file or directory"),
            ("https://example.org/talk.md", "Only files on this computer can be opened"),
        ):
            self.drop(address)
            self.wait_for_notice(line)
        self.assertEqual(self.status()["file"], str(talk))
        self.assertEqual([script["path"] for script in self.latest()], [str(talk)])


class ByHand(OpeningTestCase):
    def choose(self, *keys):
        """Opens the menu of the text and goes there with the keys."""
        self.desktop.click(*self.script().center, button=3)
        wait_until(lambda: self.open_windows(PROMPTER) and self.menu_is_open(), "the menu is open")
        self.desktop.key(*keys)

    def menu_is_open(self):
        return len(self.desktop.windows(None, self.prompter.pid)) > 1

    def test_files_are_picked_listed_and_gone_on_with(self):
        first, second = self.write("first.md", TALK), self.write("second.txt", "# Zwei\n\nÄ")
        second.write_bytes("# Zwei\n\nGr\u00fc\u00dfe".encode("latin-1"))
        self.start_with(first)
        self.assertEqual(self.open_window(PROMPTER).find_all("alert"), [])
        self.ctl("heading", "2")
        place = self.status()["scrollPosition"]
        self.assertGreater(place, 500)

        self.click_on(self.script())
        wait_until(lambda: self.desktop.focused_window() == self.window, "it has the keyboard")
        self.desktop.key("ctrl+o")
        panel = self.desktop.wait_for_window(f"^{PANEL}$", self.prompter.pid)
        self.desktop.activate(panel)
        self.desktop.wait_for_keyboard(panel)
        self.desktop.type("second.txt")
        self.desktop.key("Return")
        self.wait_for_file(second)
        self.assertEqual(self.script().text, "Zwei\n\nGr\u00fc\u00dfe")
        self.assertEqual(self.status()["scrollPosition"], 0)
        self.assertEqual(self.ctl("latest"), f"1 {second}\n2 {first}")
        wait_until(lambda: len(self.latest()) == 2, "both are kept")
        self.assertEqual((self.support_folder() / "latest.json").stat().st_mode & 0o077, 0)

        # From the list in the menu, which opens at its first entry.
        self.choose("Up", "Up", "Right", "Down", "Return")
        self.wait_for_file(first)
        self.assertEqual(self.status()["scrollPosition"], 0)
        self.wait_for_notice("Opened first.md")
        self.control(PROMPTER, "alert", "Opened first.md")
        self.press(PROMPTER, "Continue at \u201cSecond Part\u201d")
        wait_until(lambda: abs(self.status()["scrollPosition"] - place) < 2, "it goes on there")
        wait_until(lambda: not self.open_window(PROMPTER).find_all("alert"), "the notice is gone")
        self.assertIn("no place further on", self.refusal("ctl", "continue"))

        # It is there at the next start as well.
        self.assertEqual(self.prompter.end(), 0)
        self.start_with()
        wait_until(lambda: self.status()["continueAt"], "the offer is there")
        self.assertEqual(self.status()["scrollPosition"], 0)
        self.assertIn("continued", self.ctl("continue"))
        self.assertLess(abs(self.status()["scrollPosition"] - place), 2)
        self.assertEqual(self.ctl("latest", "clear"), "list cleared")
        self.assertEqual(self.ctl("latest"), "no latest scripts")
        words = json.dumps(self.history())
        self.assertNotIn("first.md", words)
        self.assertNotIn("Second Part", words)

    def test_documents_are_read_by_another_program(self):
        talk = self.write("talk.docx", b"PK\x03\x04 and more")
        self.start_with()
        line = "install pandoc, the program that reads .docx and .odt for Tessaline"
        self.assertIn(line, self.refusal(talk))
        self.wait_for_notice(f"Cannot open talk.docx: {line}")
        self.pandoc.write_text(PANDOC)
        self.pandoc.chmod(0o755)
        self.assertEqual(self.call(talk), (0, "", ""))
        wait_until(lambda: self.script().text == "From a document", "the document is shown")
        self.assertEqual(self.prompter.end(), 0)
        self.start_with(talk)
        self.wait_for_file(talk)

    def test_a_document_that_swells_is_refused_and_the_text_goes_on(self):
        pandoc = shutil.which("pandoc")
        if not pandoc:
            self.skipTest("not installed: pandoc")
        talk, bomb = self.write_script(TALK), self.desktop.home / "bomb.odt"
        with zipfile.ZipFile(bomb, "w", zipfile.ZIP_DEFLATED, compresslevel=1) as file:
            with file.open("content.xml", "w") as content:
                for _ in range(BOMB_MEGABYTES):
                    content.write(b"<a>" * 350_000)
        self.start_with(talk)
        self.pandoc.symlink_to(pandoc)
        self.ctl("speed", "5")
        self.ctl("play")
        before = self.status()["scrollPosition"]
        self.assertIn("pandoc cannot read it", self.refusal(bomb))
        status = self.status()
        self.assertEqual(status["file"], str(talk))
        self.assertGreater(status["scrollPosition"], before)

    def test_what_lies_elsewhere_is_not_touched_until_it_is_chosen(self):
        away = {"path": "/mnt/stick/talk.md", "hash": 1, "length": 100, "place": 50}
        kept = self.support_folder() / "latest.json"
        kept.write_text(json.dumps({"scripts": [away]}))
        self.start_with(self.write_script(TALK))
        self.assertIn("No such file", self.refusal("ctl", "latest", "2"))
        self.wait_for_notice("Cannot open talk.md: No such file or directory")
        self.assertEqual(self.status()["latest"][1], away["path"])
        self.desktop.click(*self.script().center)
        wait_until(lambda: self.desktop.focused_window() == self.window, "it has the keyboard")
        self.desktop.key("Escape")
        wait_until(lambda: not self.open_window(PROMPTER).find_all("alert"), "Escape ends it")


class SmallScreen(OpeningTestCase):
    desktop_options = {"size": (640, 480)}

    def test_has_the_panel_above_the_prompter(self):
        self.start_with(self.write("talk.md", TALK))
        # It takes the keyboard when it appears, and must not take it from the panel afterwards.
        wait_until(lambda: self.desktop.focused_window() == self.window, "it has the keyboard")
        self.assertEqual(self.ctl("open"), "asking for a file")
        panel = self.desktop.wait_for_window(f"^{PANEL}$", self.prompter.pid)
        self.desktop.activate(panel)  # as the user does who works with it
        self.desktop.wait_for_keyboard(panel)
        x, y, width, height = self.desktop.geometry(panel)
        self.assertTrue(x >= 0 and y >= 0 and x + width <= 640 and y + height <= 480)
        left, top, _, _ = self.desktop.geometry(self.window)
        over = (left + 40, top + 100)
        wait_until(lambda: self.desktop.pixel(*over) != (0, 0, 0), "the prompter is cut out there")
        self.desktop.key("Escape")
        wait_until(lambda: not self.desktop.windows(f"^{PANEL}$"), "the panel is gone")


if __name__ == "__main__":
    unittest.main()
