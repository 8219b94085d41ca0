"""A desktop with its user: what runs on it, what is seen, and what mouse and keys do."""

import re
import shutil
import sys

from . import session
from .accessibility import Accessibility
from .picture import Picture
from .user_session import UserSession, new_folder
from .waiting import holds_for, wait_until
from .x_connection import XConnection

OUTPUT = "screen"  # as Xvfb calls its only one
TRIES = 5
A_MOMENT = 2


class Desktop(UserSession):
    """Starts everything on construction; close() ends it. Use it as a context manager. The panel has
    a tray if this is the colour to paint it with, such as "#202020". Programs on an accessible desktop
    can be read as screen readers do.

    One user after another can have it: hand_on() ends what the last one started, and welcome() gives
    the next one a home."""

    def __init__(
        self,
        size=(1280, 800),
        panel=True,
        compositor=False,
        monitors=None,
        tray=None,
        window_manager="openbox",
        accessible=False,
    ):
        session.require("stdbuf", "xdotool", "xprop", "xrandr")
        super().__init__()
        self.session_folder = self.folder
        self.size = size
        self.first_monitors = monitors
        self.x_connection = None
        self.is_used_up = False
        try:
            self.env = session.clean_environment(self.folder)
            session.start_x_server(self.start, self.env, size)
            self._take_hands()
            if monitors:
                self.set_monitors(monitors)
            session.start_bus(self.start, self.env)
            session.start_window_manager(self.start, self.env, window_manager)
            if compositor:
                self.start_compositor()
            if panel:
                self.start_panel(tray)
            self.accessibility = Accessibility(self) if accessible else None
            self.session_env = dict(self.env)
            self.session = list(self.processes)
            self.session_owners = self.x.owners(self.x.all_windows())
            self.welcome()
        except BaseException:
            print(self.logs(), file=sys.stderr)
            self.close()
            raise

    def close(self):
        if self.x_connection:
            self.x_connection.close()
        self.end_programs()
        for folder in self.folder, self.session_folder:
            shutil.rmtree(folder, ignore_errors=True)

    def welcome(self):
        """Gives a user who has never been here a home."""
        self.folder = new_folder()
        self.env = {**self.session_env, **session.home_environment(self.folder)}

    def hand_on(self):
        """Ends what the user started, and puts back what everybody leaves in disorder. Whether the
        desktop is as it was when it was new."""
        for process in reversed(self.processes):
            if process not in self.session:
                process.end()
        self.processes = list(self.session)
        if self.is_used_up or not all(process.running for process in self.session):
            return False
        wait_until(self._is_left, "the windows are gone")
        if self.x.is_anything_pressed():
            return False
        # Openbox goes on to name a window that is gone, whose number the next one may get.
        self.x.delete_property(self.x.root, "_NET_ACTIVE_WINDOW")
        if self.x.numbers(self.x.root, "_NET_CURRENT_DESKTOP") not in ([], [0]):
            self.switch_to_desktop(0)
        if self.first_monitors and self.monitors() != self.first_monitors:
            self.set_monitors(self.first_monitors)
        self.move_mouse(*(length // 2 for length in self.size))
        shutil.rmtree(self.folder, ignore_errors=True)
        return True

    def use_up(self):
        """Nobody else gets this desktop: for what is not put back."""
        self.is_used_up = True

    def _is_left(self):
        """Whether all windows are the session's own, those included that are about to go."""
        windows = self.windows() + self.managed_windows()
        return self.x.owners(windows) <= self.session_owners

    def start_panel(self, tray=None, **options):
        session.start_panel(self.start, self.env, self.size[1], tray, **options)

    def start_compositor(self):
        session.start_compositor(self.start, self.env)

    @property
    def x(self):
        """What the X server says."""
        if not self.x_connection:
            self.x_connection = XConnection(self.env["DISPLAY"])
        return self.x_connection

    # Windows, named by their X identifiers

    def windows(self, title=None, pid=None):
        """The visible windows with a title (a regular expression) or of a process."""
        return self.x.windows(title, pid)

    def geometry(self, window):
        """(x, y, width, height) on the screen, without the window manager's frame."""
        return self.x.geometry(window)

    def property(self, window, name):
        """A window's property as xprop shows it; empty when it has none."""
        return session.property_value(self.run("xprop", "-id", window, name))

    def managed_windows(self):
        """What taskbars and pagers know, lowest first."""
        return self.x.numbers(self.x.root, "_NET_CLIENT_LIST_STACKING")

    def active_window(self):
        """The window that the window manager takes for the active one; 0 for none."""
        return (self.x.numbers(self.x.root, "_NET_ACTIVE_WINDOW") or [0])[0]

    def focused_window(self):
        """The window that gets the keys, by the X server itself; 0 for none."""
        return self.x.focused_window()

    def wait_for_keyboard(self, window):
        """Until both the X server and the window manager say that a window has the keys."""
        wait_until(
            lambda: self.focused_window() == window == self.active_window(),
            f"window {window} has the keyboard",
        )

    def activate(self, window):
        self.hands("windowactivate", "--sync", window)

    def close_by_keys(self, window):
        """Closes a window as its user does, who tries again if the window manager was busy."""
        self.activate(window)
        self.wait_for_keyboard(window)
        for _ in range(TRIES):
            self.key("alt+F4")
            if not holds_for(lambda: window in self.managed_windows(), A_MOMENT):
                return
        raise AssertionError(f"window {window} cannot be closed by keys")

    def switch_to_desktop(self, number):
        self.hands("set_desktop", number)
        wait_until(
            lambda: self.x.numbers(self.x.root, "_NET_CURRENT_DESKTOP") == [number],
            f"desktop {number} is shown",
        )

    # Monitors

    def set_monitors(self, monitors):
        """Divides the screen into monitors: {name: (x, y, width, height)}. Monitors with other names
        are unplugged; the first one becomes the primary one. Programs see the steps in between."""
        monitors_now = self.monitors()
        owner = next(iter(monitors_now))
        first = next(iter(monitors))
        for name in monitors_now:
            if name != owner and (name == first or monitors_now[name] != monitors.get(name)):
                self.run("xrandr", "--delmonitor", name)
        # The server has one output, which goes to the first monitor: without a monitor, an output is
        # one by itself. A monitor that loses its output to another one is gone.
        if owner != first or monitors_now[owner] != monitors[first]:
            if owner == first:
                self.run("xrandr", "--delmonitor", owner)
            self._add_monitor("*" + first, monitors[first], OUTPUT)
        for name, area in monitors.items():
            if name not in self.monitors():
                self._add_monitor(name, area, "none")

    def monitors(self):
        """The monitors now, {name: (x, y, width, height)}, the primary one first."""
        found = {}
        for line in self.run("xrandr", "--listmonitors").splitlines()[1:]:
            _, name, area = line.split()[:3]
            width, height, x, y = re.match(r"(\d+)/\d+x(\d+)/\d+\+(\d+)\+(\d+)", area).groups()
            found[name.strip("+*")] = (int(x), int(y), int(width), int(height))
        return found

    def _add_monitor(self, name, area, output):
        x, y, width, height = area
        size = f"{width}/{width // 4}x{height}/{height // 4}+{x}+{y}"
        self.run("xrandr", "--setmonitor", name, size, output)

    # What is seen

    def picture(self, window=None):
        """All of the screen, or the part of it where a window is."""
        window = self.x.root if window is None else window
        size = self.geometry(window)[2:]
        return Picture(*size, self.x.image(window, 0, 0, *size))

    def region(self, x, y, width, height):
        """The rows of pixels of a part of the screen, as bytes that can be compared."""
        image = self.x.image(self.x.root, x, y, width, height)
        return Picture(width, height, image).region(0, 0, width, height)

    # Mouse and keys

    def _take_hands(self):
        # One that stays: to start it takes longer than what it does. Of most commands it says nothing;
        # the number of the desktop, which it asks the server for, tells that it has come so far.
        command = ["stdbuf", "-oL", "xdotool", "-"]
        self.xdotool = self.start("xdotool", command, answers=True)

    def hands(self, *words):
        """Does what xdotool does by these words, and waits until the X server has it."""
        # Else each click is followed by a rest of 100 ms.
        line = " ".join(map(str, words)).replace("click ", "click --delay 0 ")
        self.xdotool.ask(line + "\nget_desktop")

    def move_mouse(self, x, y):
        # Not --sync, which waits for a change that never comes where the pointer is there already.
        self.hands("mousemove", x, y)

    def click(self, x, y, button=1):
        self.hands("mousemove", x, y, "click", button)

    def press_button(self, button=1):
        self.hands("mousedown", button)

    def release_button(self, button=1):
        self.hands("mouseup", button)

    def key(self, *chords):
        """Presses keys such as "a", "Escape" or "ctrl+c", one after another."""
        self.hands("key", *chords)

    def type(self, text):
        self.run("xdotool", "type", "--", text)

    def set_layout(self, *words):
        """Gives the keyboard a layout, by words for setxkbmap. Nobody else gets this desktop then."""
        self.use_up()
        self.run("setxkbmap", *words)
