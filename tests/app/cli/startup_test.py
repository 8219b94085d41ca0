"""How long the command line takes by itself, and that it leaves the display alone."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time
import unittest

BINARY = os.environ["TESSALINE_BINARY"]
RUNS = 20
LIMIT = 0.030


class StartUp(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessaline-startup-"))
        self.addCleanup(shutil.rmtree, self.folder)
        (self.folder / "talk.md").write_text("# Noon\n\nSome *words*.\n")
        self.env = {
            "HOME": str(self.folder),
            "XDG_RUNTIME_DIR": str(self.folder),
            "PATH": os.environ["PATH"],
            "LC_ALL": "C.UTF-8",
            "DO_NOT_TRACK": "1",
        }

    def run_once(self, arguments, status, **variables):
        start = time.monotonic()
        result = subprocess.run(
            [BINARY, *arguments],
            cwd=self.folder,
            env=self.env | variables,
            capture_output=True,
            timeout=60,
            check=False,
        )
        seconds = time.monotonic() - start
        self.assertEqual(result.returncode, status, result.stderr)
        return seconds, result

    def test_takes_less_than_30_ms_when_warm(self):
        for arguments, status in (
            (["ctl", "status"], 1),
            (["ctl", "speed", "9"], 2),
            (["render", "talk.md", "--format", "json"], 0),
            (["--help"], 0),
        ):
            with self.subTest(arguments):
                # Others on the machine only add to it: the quickest run is the program's own time.
                best = min(self.run_once(arguments, status)[0] for _ in range(RUNS))
                print(f"{' '.join(arguments)}: {best * 1000:.1f} ms")
                self.assertLess(best, LIMIT)

    def test_starts_no_graphical_interface(self):
        for arguments, status in (
            (["ctl", "status"], 1),
            (["render", "talk.md", "--format", "json"], 0),
        ):
            with self.subTest(arguments):
                # A plug-in for the display is what every graphical interface loads first.
                _, result = self.run_once(arguments, status, LD_DEBUG="libs", DISPLAY=":987")
                self.assertIn(b"libQt6Core", result.stderr)
                self.assertNotIn(b"/plugins/platforms/", result.stderr)
                self.assertNotIn(b"could not connect to display", result.stderr)

    def test_a_picture_does_load_it(self):
        _, result = self.run_once(["render", "talk.md", "--format", "png"], 0, LD_DEBUG="libs")
        self.assertIn(b"/plugins/platforms/", result.stderr)


if __name__ == "__main__":
    unittest.main()
