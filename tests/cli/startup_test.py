"""What the command line leaves alone where it needs no display."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

BINARY = os.environ["TESSALINE_BINARY"]


class StartUp(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessaline-startup-"))
        self.addCleanup(shutil.rmtree, self.folder)
        (self.folder / "talk.md").write_text("# Noon\n\nSome *words*.\n")
        kept = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        self.env = kept | {
            "HOME": str(self.folder),
            "XDG_RUNTIME_DIR": str(self.folder),
            "PATH": os.environ["PATH"],
            "LC_ALL": "C.UTF-8",
            "DO_NOT_TRACK": "1",
        }

    def run_once(self, arguments, status, **variables):
        result = subprocess.run(
            [BINARY, *arguments],
            cwd=self.folder,
            env=self.env | variables,
            capture_output=True,
            timeout=60,
            check=False,
        )
        self.assertEqual(result.returncode, status, result.stderr)
        return result

    def test_starts_no_graphical_interface(self):
        for arguments, status in (
            (["ctl", "status"], 1),
            (["render", "talk.md", "--format", "json"], 0),
        ):
            with self.subTest(arguments):
                # A plug-in for the display is what every graphical interface loads first.
                result = self.run_once(arguments, status, LD_DEBUG="libs", DISPLAY=":987")
                self.assertIn(b"libQt6Core", result.stderr)
                self.assertNotIn(b"/plugins/platforms/", result.stderr)
                self.assertNotIn(b"could not connect to display", result.stderr)

    def test_a_picture_does_load_it(self):
        result = self.run_once(["render", "talk.md", "--format", "png"], 0, LD_DEBUG="libs")
        self.assertIn(b"/plugins/platforms/", result.stderr)


if __name__ == "__main__":
    unittest.main()
