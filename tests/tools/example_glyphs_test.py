#!/usr/bin/env python3
"""The examples, which ./run and the README's pictures show, need no font but those that ./run installs."""

import pathlib
import re
import subprocess
import unicodedata
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = sorted((ROOT / "docs/examples").glob("*.md"))
FONTS = [
    "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
    "/usr/share/fonts/truetype/noto/NotoColorEmoji.ttf",
]


def characters_of(font):
    """The code points that a font has glyphs for."""
    answer = subprocess.run(
        ["fc-query", "--format=%{charset}", font], check=True, capture_output=True, text=True
    ).stdout
    ranges = [bounds.split("-") for bounds in answer.split()]
    return {code for bounds in ranges for code in range(int(bounds[0], 16), int(bounds[-1], 16) + 1)}


class ExampleGlyphs(unittest.TestCase):
    def test_are_all_in_the_fonts_that_run_installs(self):
        packages = (ROOT / "tools/install-dependencies").read_text()
        self.assertTrue(re.search(r"echo fonts-dejavu-core fonts-noto-color-emoji$", packages, re.M))
        known = set().union(*map(characters_of, FONTS))
        self.assertTrue(EXAMPLES)
        for example in EXAMPLES:
            with self.subTest(example.name):
                shown = {c for c in example.read_text() if unicodedata.category(c) not in ("Cc", "Mn")}
                self.assertEqual({c for c in shown if ord(c) not in known}, set())


if __name__ == "__main__":
    unittest.main()
