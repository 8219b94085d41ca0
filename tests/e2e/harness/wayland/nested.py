"""Wayland sessions in a window on an X11 desktop, whose mouse and keys are the session's."""

import re
import shutil
import sys

from .. import session
from ..user_session import UserSession
from ..waiting import wait_until

SIZE = (1280, 800)
SOCKET = "tessaline-wayland"


class Nested(UserSession):
    """What all of them have in common. Starts everything on construction; close() ends it."""

    x11_display = None  # how the compositor's log tells what X11 programs connect to
    program = None

    def __init__(self, outer):
        super().__init__()
        self.outer = outer
        try:
            self.env = session.clean_environment(self.folder)
            del self.env["QT_QPA_PLATFORM"]
            session.start_bus(self.start, self.env, has_services=False)
            env = {"DISPLAY": outer.env["DISPLAY"], "LIBGL_ALWAYS_SOFTWARE": "1"}
            self.compositor = self.start(self.program, self.command(), **env, **self.settings())
            (self.window,) = wait_until(outer.managed_windows, f"{self.program} has its window")
            self.env["WAYLAND_DISPLAY"] = SOCKET
            socket = self.folder / "runtime" / SOCKET
            wait_until(socket.exists, f"{self.program} listens")
            self.env["DISPLAY"] = wait_until(self._find_x11_display, "X11 programs find a server")
            for key in (self.folder / "runtime").glob(".mutter-Xwaylandauth.*"):
                self.env["XAUTHORITY"] = str(key)
        except BaseException:
            print(self.logs(), file=sys.stderr)
            self.close()
            raise

    def settings(self):
        """What is added to the compositor's environment."""
        return {}

    def _find_x11_display(self):
        found = re.search(self.x11_display, self.compositor.stdout() + self.compositor.stderr())
        return found and found.group(1)

    def close(self):
        self.end_programs()
        shutil.rmtree(self.folder, ignore_errors=True)

    def wait_for_window(self, title=None, pid=None):
        """Nothing: there is nobody to ask. Pictures show what is there."""

    # Places are those inside of the window.

    def picture(self):
        return self.outer.picture(self.window)

    def move_mouse(self, x, y):
        left, top = self.outer.geometry(self.window)[:2]
        self.outer.move_mouse(left + x, top + y)

    def enter_mouse(self, x, y):
        self.move_mouse(x, y)

    def hands(self, *words):
        self.outer.hands(*words)

    def click(self, x, y, button=1):
        self.move_mouse(x, y)
        self.hands("click", button)

    def key(self, *chords):
        self.outer.key(*chords)


class KWin(Nested):
    program = "kwin_wayland"
    x11_display = "the X server is (:[0-9]+)"

    def command(self):
        # A copy without the capability that the installed one has, and that is not to be had everywhere.
        copy = self.folder / "kwin_wayland"
        shutil.copyfile(shutil.which(self.program), copy)
        copy.chmod(0o755)
        size = ["--width", SIZE[0], "--height", SIZE[1]]
        tell = "sh -c 'echo the X server is $DISPLAY'"
        return [copy, "--x11-display", self.outer.env["DISPLAY"], *size, "--socket", SOCKET,
                "--xwayland", "--no-lockscreen", tell]  # fmt: skip

    def settings(self):
        return {"KWIN_COMPOSE": "Q"}


class Mutter(Nested):
    program = "mutter"
    x11_display = r"Using public X11 display (:[0-9]+)"

    def command(self):
        return [self.program, "--wayland", "--nested", "--wayland-display", SOCKET]

    def settings(self):
        return {"MUTTER_DEBUG_DUMMY_MODE_SPECS": f"{SIZE[0]}x{SIZE[1]}"}


class Weston(Nested):
    program = "weston"
    x11_display = r"xserver listening on display (:[0-9]+)"

    def command(self):
        size = [f"--width={SIZE[0]}", f"--height={SIZE[1]}"]
        return [self.program, "--backend=x11-backend.so", "--use-pixman", *size, "--xwayland",
                "--no-config", f"--socket={SOCKET}"]  # fmt: skip

    def enter_mouse(self, x, y):
        """From outside: who has not seen the mouse come in counts its moves from elsewhere."""
        self.outer.move_mouse(1, 1)
        self.move_mouse(x, y)
