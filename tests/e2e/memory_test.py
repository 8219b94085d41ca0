"""What a very long script costs."""

import unittest

from harness import TessalineTestCase
from harness.memory import resident
from harness.waiting import holds_for, wait_until

MEBIBYTE = 1 << 20
CONTENT_SIZE = 50 * MEBIBYTE
MOST_KIB = 400 * 1024
LINE = "- A line of the talk, **loud** and clear, with a [link](page.md) in it\n"


class Memory(TessalineTestCase):
    desktop_options = {"panel": False}

    def peak(self):
        return resident(self.prompter.pid, "VmHWM")

    def write(self, *lines):
        content = self.support_folder() / "tessaline-content.md"
        new = content.with_suffix(".new")
        new.write_text("".join(lines))
        new.rename(content)

    def expect_little(self):
        """Looks a little longer: the file is read again every second."""
        self.assertTrue(holds_for(lambda: self.peak() < MOST_KIB, 2.2), f"{self.peak()} KiB")

    def test_a_content_file_of_fifty_megabytes_takes_four_hundred_at_most(self):
        lines = CONTENT_SIZE // len(LINE)
        self.write(LINE * lines)
        self.write_settings(
            activeSourceType="obsidian", enabledSourceTypes=["obsidian", "clipboard"]
        )
        self.start()
        wait_until(
            lambda: self.status()["maximumScrollPosition"] > lines, "the script is there", 60
        )
        self.expect_little()

        words = self.status()["words"]
        self.write(LINE * (lines // 2), "Two more\n", LINE * (lines - lines // 2))
        wait_until(lambda: self.status()["words"] == words + 2, "the changed one is there", 60)
        self.expect_little()


if __name__ == "__main__":
    unittest.main()
