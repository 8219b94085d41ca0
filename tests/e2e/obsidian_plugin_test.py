"""The companion plug-in and the prompter together: what the one sends, the other shows."""

import pathlib
import re
import unittest

from harness import session, wait_until
from harness.obsidian import PLUGIN_FILES
from prompter_test import PrompterTestCase

ROOT = pathlib.Path(__file__).resolve().parents[2]
SEND_NOTE = ROOT / "tests/obsidian_plugin/send_note.js"
NOTE = "# Whose noon?\n\nIt is **noon** here, żółć and all."
CHANGED_NOTE = "# Whose noon?\n\nIt is *midnight* there."
SHOWN_SECONDS = 3


def literal_after(path, expression):
    """The string that a source file adds to an expression."""
    found = re.findall(re.escape(expression) + r' \+ "([^"]+)"', (ROOT / path).read_text())
    assert len(found) == 1, f"{path} has {expression} {len(found)} times"
    return found[0]


class ObsidianPlugin(PrompterTestCase):
    def setUp(self):
        super().setUp()
        session.require("node")
        self.desktop.env["TESSALINE_OBSIDIAN_PLUGIN"] = str(PLUGIN_FILES)

    def send(self, *texts):
        """Sends the note talk.md by the plug-in's command; returns what the user is told."""
        return self.desktop.run("node", SEND_NOTE, "talk.md", *texts)

    def appearance(self, text):
        """The pixels of a text that is shown as a file."""
        self.start(self.write_script(text))
        self.wait_for_text()
        pixels = self.text_pixels()
        self.prompter.end()
        return pixels

    def start_with_obsidian(self):
        self.write_settings(
            activeSourceType="obsidian",
            enabledSourceTypes=["clipboard", "obsidian"],
            hasCompletedOnboarding=True,
        )
        self.start()
        self.wait_for_text()

    def wait_for_appearance(self, pixels, what):
        wait_until(lambda: self.text_pixels() == pixels, f"{what} is shown", SHOWN_SECONDS)

    def test_shows_the_note_that_is_sent(self):
        note = self.appearance(NOTE)
        self.start_with_obsidian()
        self.assertNotEqual(self.text_pixels(), note)
        self.assertEqual(self.send(NOTE), "Sent “talk” to Tessaline.")
        self.wait_for_appearance(note, "the note")

    def test_shows_what_is_typed_while_the_note_is_followed(self):
        changed = self.appearance(CHANGED_NOTE)
        self.start_with_obsidian()
        self.send(NOTE, CHANGED_NOTE)
        self.wait_for_appearance(changed, "the changed note")

    def test_both_mean_the_same_file(self):
        folder = literal_after("src/settings/SupportFolder.cpp", "homeFolderPath()")
        name = literal_after("src/sources/ObsidianSource.cpp", "supportFolderPath()")
        self.send(NOTE)
        content = pathlib.Path(f"{self.desktop.home}{folder}{name}")
        self.assertEqual(content.read_bytes(), NOTE.encode())


if __name__ == "__main__":
    unittest.main()
