"""The base of the scenarios in a Wayland session."""

import itertools
import os
import pathlib
import shutil
import sys
import unittest

from ..ordinary_user import NOBODY, become_ordinary_user, can_run
from ..tessaline import TessalineTestCase
from ..waiting import wait_until
from .other_application import OtherApplication
from .sway import EMPTY_COLOR, PANEL_COLOR, PROGRAMS, Sway

BLUE, RED = (0, 0, 255), (255, 0, 0)
BACKGROUNDS = {BLUE, RED, PANEL_COLOR, EMPTY_COLOR}
ROW_OF_BLACK = 2  # above the controls
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

    def start_other(self, kind="normal", color="#0000ff", *arguments):
        """Starts another application that takes the keys: a window, or one that is "fullscreen"."""
        return OtherApplication(self.desktop, kind, color, *arguments)

    def prompter_area(self, output=None):
        """(x, y, width, height) on an output, in its pixels, of what hangs from its top centre; None
        while nothing does."""
        picture = self.desktop.picture(output or next(iter(self.desktop.outputs())))
        centre = picture.width // 2
        height = run(picture.pixel(centre, y) for y in range(picture.height))
        if height == 0:
            return None
        left = centre - run(picture.pixel(x, ROW_OF_BLACK) for x in range(centre, -1, -1)) + 1
        return left, 0, run(picture.pixel(x, ROW_OF_BLACK) for x in range(left, picture.width)), height

    def wait_for_area(self, *area, output=None):
        wait_until(
            lambda: self.prompter_area(output) == area, f"the prompter is at {area} of {output}"
        )

    def prompter_is_shown(self):
        """Whether the top centre of an output is black."""
        return any(self._is_black(*place) for place in self.desktop.outputs().values())

    def _is_black(self, x, y, width, _height):
        picture = self.desktop.picture()
        return all(
            picture.pixel(x + width // 2 + step, y + 1) == (0, 0, 0) for step in range(-20, 20)
        )


def run(pixels):
    """How many pixels there are before the first one that is not the prompter's."""
    return sum(1 for _ in itertools.takewhile(lambda pixel: pixel not in BACKGROUNDS, pixels))


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
