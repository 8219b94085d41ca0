"""What software centres and package lists show of the program."""

import os
import struct
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

ROOT = Path(os.environ["TESSALINE_TOOLS"]).parent
ENTRY = xml.parse(os.environ["TESSALINE_METAINFO"]).getroot()


def size_of(picture):
    with open(picture, "rb") as file:
        return struct.unpack(">II", file.read(24)[16:])


class SoftwareCatalogue(unittest.TestCase):
    def test_says_in_a_short_line_what_the_program_does(self):
        summary = ENTRY.findtext("summary")
        self.assertTrue(0 < len(summary) <= 35, summary)
        self.assertFalse(summary.endswith("."))

    def test_names_who_makes_it_and_where_to_turn_to(self):
        self.assertTrue(ENTRY.find("developer").get("id"))
        self.assertTrue(ENTRY.findtext("developer/name"))
        self.assertEqual(
            {url.get("type"): url.text for url in ENTRY.findall("url")},
            {"homepage": os.environ["TESSALINE_HOMEPAGE"], "bugtracker": os.environ["TESSALINE_ISSUES"]},
        )

    def test_opens_what_the_menu_entry_says(self):
        opened = {kind.text for kind in ENTRY.findall("provides/mediatype")}
        entry = (ROOT / "resources/linux/app.tessaline.Tessaline.desktop").read_text()
        (kinds,) = [line for line in entry.splitlines() if line.startswith("MimeType=")]
        self.assertEqual(set(kinds.removeprefix("MimeType=").strip(";").split(";")), opened)
        self.assertEqual(opened, {"text/markdown", "text/plain"})
        self.assertIn("Exec=tessaline %f\n", entry)

    def test_shows_pictures_that_are_there_each_with_a_caption(self):
        pictures = ENTRY.findall("screenshots/screenshot")
        self.assertEqual([picture.get("type") for picture in pictures].count("default"), 1)
        for picture in pictures:
            self.assertTrue(picture.findtext("caption"))
            address = picture.findtext("image")
            self.assertTrue(address.startswith(os.environ["TESSALINE_HOMEPAGE"] + "/images/"), address)
            width, height = size_of(ROOT / "docs/images" / address.rpartition("/")[2])
            self.assertTrue(width >= 300 and height >= 100, address)

    def test_has_a_colour_of_its_own_for_light_and_dark_looks(self):
        looks = {colour.get("scheme_preference") for colour in ENTRY.findall("branding/color")}
        self.assertEqual(looks, {"light", "dark"})

    def test_tells_on_what_it_can_be_used(self):
        self.assertEqual([width.text for width in ENTRY.findall("requires/display_length")], ["640"])
        self.assertEqual([control.text for control in ENTRY.findall("supports/control")], ["pointing", "keyboard"])

    def test_tells_what_is_new_in_the_release_that_was_built(self):
        release = ENTRY.find("releases/release")
        self.assertEqual(release.get("version"), os.environ["TESSALINE_VERSION"])
        self.assertTrue("".join(release.find("description").itertext()).strip())


if __name__ == "__main__":
    unittest.main()
