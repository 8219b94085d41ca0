"""The base of the scenarios in a Wayland session."""

import os
import pathlib
import shutil
import sys
import unittest

from ..ordinary_user import NOBODY, become_ordinary_user, can_run
from ..tessaline import TessalineTestCase
from .other_application import OtherApplication
from .sway import PROGRAMS, Sway

SKIPPED = 77  # as CTest is told
WIDTH, HEIGHT = 450, 256  # of the prompter


class WaylandTestCase(TessalineTestCase):
    """A scenario in a session of its own, for a user who has been through the first-run window. What is
    on a layer is no window that the compositor tells of, and is looked at in pictures instead."""

    desktop_class = Sway

    def start(self, *arguments, **env):
        """Starts the program and waits for its prompter."""
        self.prompter = self.start_tessaline(*arguments, **env)
        self.wait_for_prompter()

    def start_other(self, kind="normal", color="#0000ff"):
        """Starts another application that takes the keys: a window, or one that is "fullscreen"."""
        return OtherApplication(self.desktop, kind, color)

    def prompter_is_shown(self):
        """Whether all of the top centre of the first output is as black as the prompter's strip."""
        x, y, width, _ = next(iter(self.desktop.outputs().values()))
        left = x + (width - WIDTH) // 2
        rows = self.desktop.region(left + WIDTH // 2 - 10, y, 20, 5)
        return set(b"".join(rows)) == {0}


def main(*programs):
    """Runs the scenarios of a file, as an ordinary user: compositors refuse the superuser. Says so and
    ends as skipped where one of the programs is missing."""
    missing = [program for program in (*PROGRAMS, *programs) if not shutil.which(program)]
    if missing:
        skip("not installed: " + ", ".join(missing))
    if not can_run(os.environ["TESSALINE_BINARY"]):
        skip(f"an ordinary user may not run {os.environ['TESSALINE_BINARY']}")
    if os.geteuid() == 0:
        hand_artifacts_over()
    become_ordinary_user()
    unittest.main()


def skip(reason):
    print(f"SKIPPED: {reason}")
    sys.exit(SKIPPED)


def hand_artifacts_over():
    """Gives screenshots a folder that the ordinary user may write to."""
    if "TESSALINE_ARTIFACTS" not in os.environ:
        return
    folder = pathlib.Path(os.environ["TESSALINE_ARTIFACTS"]) / "wayland"
    folder.mkdir(parents=True, exist_ok=True)
    shutil.chown(folder, NOBODY)
    os.environ["TESSALINE_ARTIFACTS"] = str(folder)
