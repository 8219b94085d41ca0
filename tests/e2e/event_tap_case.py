"""What the scenarios of the prompter's wheel, buttons and shortcut have in common: applications that
tell what they receive, and a keyboard."""

import contextlib
import ctypes
import json
import os
import re

from harness import DesktopTestCase, wait_until

XEV_AREA = "400x300+100+100"
OVER_XEV = (300, 250)
WHEEL_UP, WHEEL_DOWN = 4, 5
TOGGLE = "ctrl+shift+super+t"
CONTROL, SHIFT, SUPER = 37, 50, 133  # keys by their numbers
CORE_KEYBOARD = 0x100


class Keyboard:
    """Layouts and keys by their numbers. xdotool goes back to the first layout for every key."""

    def __init__(self, display):
        self.x11, self.xtest = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))

    def close(self):
        self.x11.XCloseDisplay(self.display)

    def switch_to_layout(self, number):
        self.x11.XkbLockGroup(self.display, CORE_KEYBOARD, number)
        self.x11.XSync(self.display, 0)

    def press(self, *keys):
        """All of them together."""
        with contextlib.ExitStack() as held:
            for key in keys:
                held.enter_context(self.hold(key))

    @contextlib.contextmanager
    def hold(self, key):
        self._send(key, True)
        try:
            yield
        finally:
            self._send(key, False)

    def _send(self, key, down):
        self.xtest.XTestFakeKeyEvent(self.display, key, down, 0)
        self.x11.XSync(self.display, 0)


class CoreGrab:
    """A program that holds a key with modifiers as most do, with the common lock keys on and off."""

    CAPS_LOCK, NUM_LOCK = 2, 16
    ASYNC, KEY_PRESS, EVENT_LONGS = 1, 2, 24

    def __init__(self, display, key, modifiers):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))
        for locks in (0, self.CAPS_LOCK, self.NUM_LOCK, self.CAPS_LOCK | self.NUM_LOCK):
            self.x11.XGrabKey(self.display, key, modifiers | locks, root, 0, self.ASYNC, self.ASYNC)
        self.x11.XSync(self.display, 0)

    def close(self):
        if self.display:
            self.x11.XCloseDisplay(self.display)
        self.display = None

    def presses(self):
        """How often the key was pressed since the last question."""
        event = (ctypes.c_long * self.EVENT_LONGS)()
        count = 0
        while self.x11.XPending(self.display):
            self.x11.XNextEvent(self.display, event)
            count += (event[0] & 0xFF) == self.KEY_PRESS
        return count


class Application:
    """A probe, whose output tells what it received."""

    def __init__(self, desktop, *arguments, name=None):
        name = name or arguments[0]
        self.process = desktop.start(name, [os.environ["TESSALINE_INPUT_PROBE"], *arguments])
        self.process.wait_for_output('"event":"ready"')

    def events(self, *names):
        lines = self.process.stdout().splitlines()
        events = [json.loads(line) for line in lines if line.startswith("{")]
        return [event for event in events if event["event"] in names]

    def scrolled(self):
        return [event["delta"] for event in self.events("scroll")]

    def toggles(self):
        return len(self.events("toggle"))

    def wheel(self):
        """As Qt tells it: 120 for a line, positive is up or left."""
        return [(event["x"], event["y"]) for event in self.events("wheel")]


class Xev:
    """Another application, by the oldest means that there are."""

    def __init__(self, desktop):
        command = ["xev", "-geometry", XEV_AREA, "-event", "button", "-event", "keyboard"]
        self.process = desktop.start("xev", command)
        window = desktop.wait_for_window("Event Tester", None)
        wait_until(lambda: desktop.focused_window() == window, "xev has the keyboard")
        desktop.move_mouse(*OVER_XEV)

    def buttons(self):
        """("Press" or "Release", button) in the order of their arrival."""
        pattern = r"^Button(Press|Release) event.*?button (\d+)"
        found = re.findall(pattern, self.process.stdout(), re.MULTILINE | re.DOTALL)
        return [(kind, int(button)) for kind, button in found]

    def keys(self):
        return re.findall(r"^KeyPress event.*?keysym 0x\w+, (\w+)", self.process.stdout(),
                          re.MULTILINE | re.DOTALL)


def click(*buttons):
    """What a window gets of these clicks."""
    return [(kind, button) for button in buttons for kind in ("Press", "Release")]


class EventTapCase(DesktopTestCase):
    desktop_options = {"panel": False}

    def setUp(self):
        super().setUp()
        self.keyboard = Keyboard(self.desktop.env["DISPLAY"])
        self.addCleanup(self.keyboard.close)

    def start_tap(self, *arguments):
        return Application(self.desktop, "tap", *arguments)

    def click(self, *buttons, keys=("ctrl",)):
        down = [word for key in keys for word in ("keydown", key)]
        clicks = [word for button in buttons for word in ("click", button)]
        up = [word for key in reversed(keys) for word in ("keyup", key)]
        self.desktop.hands(*down, *clicks, *up)


    def wait_for_scrolls(self, tap, deltas):
        wait_until(lambda: tap.scrolled() == deltas, f"the prompter scrolls by {deltas}")

    def wait_for_toggles(self, tap, number):
        wait_until(lambda: tap.toggles() == number, f"the prompter toggles {number} times")

    def wait_for_buttons(self, xev, buttons):
        wait_until(lambda: xev.buttons() == buttons, f"xev gets {buttons}")

    def assert_toggles_no_more(self, tap):
        """A turn of the wheel that comes after all else is the next that the prompter hears of."""
        toggles, scrolls = tap.toggles(), tap.scrolled()
        with self.keyboard.hold(CONTROL):
            self.desktop.hands("click", WHEEL_UP)
        self.wait_for_scrolls(tap, scrolls + [80])
        self.assertEqual(tap.toggles(), toggles)

    def assert_gets_no_more(self, xev):
        """A click that comes after all else is the next that xev gets."""
        buttons = xev.buttons()
        self.click(1, keys=())
        self.wait_for_buttons(xev, buttons + click(1))
