"""A Wayland session with its user: the compositor sway, which has layers above all windows."""

import os
import re
import shutil
import subprocess
import sys

from .. import session
from ..accessibility import Accessibility
from ..picture import Picture
from ..user_session import UserSession
from ..waiting import wait_until
from .sway_connection import SwayConnection

PROGRAMS = ("sway", "grim")
PICTURE_SECONDS = 20
EMPTY_COLOR = (63, 63, 63)  # where nothing is shown
PANEL_COLOR = (0, 255, 0)
PANEL_HEIGHT = 30

CONFIGURATION = """\
xwayland {xwayland}
default_border none
default_floating_border none
exec sh -c 'echo "$WAYLAND_DISPLAY $SWAYSOCK $DISPLAY" > {names}.new && mv {names}.new {names}'
"""
PANEL = """\
bar {
    position top
    height %d
    workspace_buttons no
    binding_mode_indicator no
    colors {
        background #00ff00
    }
}
"""


class Sway(UserSession):
    """Starts everything on construction; close() ends it. Use it as a context manager. `outputs` says
    what there is on each output in sway's own words, such as "mode 1280x800 scale 1.5"; they are called
    HEADLESS-1 and so on. `xwayland`: whether X11 programs find a server. `nested_in`: another
    session, of which each output is a window."""

    def __init__(
        self, outputs=("mode 1280x800",), xwayland=False, panel=False, accessible=False, nested_in=None
    ):
        session.require(*PROGRAMS)
        super().__init__()
        self.connection = None
        try:
            self.env = session.clean_environment(self.folder)
            # Programs find out for themselves where they are.
            del self.env["QT_QPA_PLATFORM"]
            # The portals of this machine belong to another desktop.
            session.start_bus(self.start, self.env, has_services=False)
            self.accessibility = Accessibility(self) if accessible else None
            self._start_compositor(outputs, xwayland, panel, nested_in)
            probe = os.environ["TESSALINE_WAYLAND_HANDS"]
            self.hands_process = self.start("hands", [probe], answers=True)
            if panel:
                self.wait_for_pixel(0, 0, PANEL_COLOR)
        except BaseException:
            print(self.logs(), file=sys.stderr)
            self.close()
            raise

    def _start_compositor(self, outputs, xwayland, panel, nested_in):
        kind = "WL" if nested_in else "HEADLESS"
        names, configuration = self.folder / "names", self.folder / "sway.conf"
        lines = [CONFIGURATION.format(xwayland="force" if xwayland else "disable", names=names)]
        lines += [f"output {kind}-{n} {words}\n" for n, words in enumerate(outputs, 1)]
        configuration.write_text("".join(lines) + (PANEL % PANEL_HEIGHT if panel else ""))
        env = {"WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"}
        if nested_in:
            outer = nested_in.env
            env["WLR_BACKENDS"], env["WLR_WL_OUTPUTS"] = "wayland", str(len(outputs))
            env["WAYLAND_DISPLAY"] = f"{outer['XDG_RUNTIME_DIR']}/{outer['WAYLAND_DISPLAY']}"
        else:
            env["WLR_BACKENDS"], env["WLR_HEADLESS_OUTPUTS"] = "headless", str(len(outputs))
        self.compositor = self.start("sway", ["sway", "-c", configuration], **env)
        wait_until(names.exists, "sway runs")
        wayland, control, *x11 = names.read_text().split()
        self.env["WAYLAND_DISPLAY"] = wayland
        if xwayland:
            self.env["DISPLAY"] = x11[0]
        self.connection = SwayConnection(control)
        wait_until(lambda: len(self.outputs()) == len(outputs), "all outputs are there")

    def close(self):
        if self.connection:
            self.connection.close()
            self.connection = None
        self.end_programs()
        shutil.rmtree(self.folder, ignore_errors=True)

    def hand_on(self):
        """To start a session takes less than to put one back in order."""
        return False

    def use_up(self):
        """Nobody else gets it anyway."""

    # Windows, named by sway's numbers. What is on a layer, as the prompter, is not among them.

    def command(self, text):
        """Does what this line would do in sway's configuration."""
        self.connection.command(text)

    def windows(self, title=None, pid=None):
        """The windows with a title (a regular expression) or of a process that are on show."""
        return [window["id"] for window in self._windows(title, pid)]

    def geometry(self, window):
        """(x, y, width, height) among all outputs."""
        (found,) = (node for node in self.connection.windows() if node["id"] == window)
        return area(found)

    def focused_window(self):
        """The window that sway gives the keys to, unless a layer has them; 0 for none."""
        found = [node["id"] for node in self.connection.windows() if node["focused"]]
        return (found or [0])[0]

    def wait_for_keyboard(self, window):
        wait_until(lambda: self.focused_window() == window, f"window {window} has the keyboard")

    def activate(self, window):
        self.command(f"[con_id={window}] focus")
        self.wait_for_keyboard(window)

    def _windows(self, title, pid):
        return [
            node
            for node in self.connection.windows()
            if node["visible"]
            and pid in (None, node["pid"])
            and (title is None or re.search(title, node["name"] or ""))
        ]

    def switch_to_workspace(self, name):
        self.command(f"workspace {name}")

    # Outputs

    def outputs(self):
        """{name: (x, y, width, height)} of those in use, in points."""
        return {
            output["name"]: area(output) for output in self.connection.outputs() if output["active"]
        }

    def wait_for_outputs(self, *names):
        wait_until(lambda: sorted(self.outputs()) == sorted(names), f"the outputs are {names}")

    def extent(self):
        """How large all outputs are together, in points."""
        areas = self.outputs().values()
        return max(x + width for x, _, width, _ in areas), max(y + height for _, y, _, height in areas)

    # What is seen

    def picture(self, output=None):
        """All outputs, or one of them in its own pixels. The pointer is on it."""
        command = ["grim", "-t", "ppm"] + (["-o", output] if output else []) + ["-"]
        result = subprocess.run(
            command, env=self.env, capture_output=True, timeout=PICTURE_SECONDS, check=False
        )
        if result.returncode != 0:
            raise AssertionError(f"no picture: {result.stderr.decode()}")
        return Picture.of_file(result.stdout)

    # Mouse and keys

    def hands(self, *words):
        """Does what xdotool does by these words, and waits until sway has it. Besides, `slide RIGHT
        DOWN` moves two fingers on a touch pad, and `lift` takes them away."""
        answer = self.hands_process.ask(" ".join(map(str, words)))
        assert answer == b"done\n", f"{words}: {answer}"

    def move_mouse(self, x, y):
        self.hands("mousemove", x, y, *self.extent())

    def click(self, x, y, button=1):
        self.move_mouse(x, y)
        self.hands("click", button)

    def press_button(self, button=1):
        self.hands("mousedown", button)

    def release_button(self, button=1):
        self.hands("mouseup", button)

    def key(self, *chords):
        """Presses keys such as "a", "Escape" or "ctrl+c", one after another."""
        for chord in chords:
            self.hands("key", chord)

    def type(self, text):
        self.hands("type", text)


def area(node):
    rect = node["rect"]
    return rect["x"], rect["y"], rect["width"], rect["height"]
