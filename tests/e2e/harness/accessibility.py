"""What a screen reader sees of a program, and where it is on the screen."""

import json
import pathlib

from . import session
from .waiting import wait_until

# Others in PATH lack the bindings, which the distribution installs.
PYTHON = "/usr/bin/python3"
LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
READER = pathlib.Path(__file__).with_name("accessibility_reader.py")


class Node:
    """One object of the accessible tree at the moment of reading."""

    def __init__(self, values):
        self.role = values["role"]
        self.name = values["name"]
        self.description = values["description"]
        self.states = frozenset(values["states"])
        self.area = tuple(values["area"])  # x, y, width, height on the screen
        self.value, *self.range = values.get("value", [None])
        self.text = "".join(values["text"]) if "text" in values else None
        self.labels = values.get("labels", [])  # the texts of what it is labelled by
        self.children = [Node(child) for child in values["children"]]

    def __repr__(self):
        return f"<{self.role} {self.name!r} {self.area} {sorted(self.states)}>"

    @property
    def center(self):
        x, y, width, height = self.area
        return x + width // 2, y + height // 2

    def lies_in(self, area):
        """Whether all of it is inside of (x, y, width, height)."""
        left, top, room, depth = area
        x, y, width, height = self.area
        return left <= x and x + width <= left + room and top <= y and y + height <= top + depth

    def shown(self):
        """This object and all below it that are on show, in the order of the tree."""
        if "showing" in self.states:
            yield self
            for child in self.children:
                yield from child.shown()

    def find_all(self, role=None, name=None):
        """What is on show here with this role and this name."""
        return [
            node
            for node in self.shown()
            if role in (None, node.role) and name in (None, node.name)
        ]

    def texts(self):
        """What the labels say, from top to bottom."""
        return [node.name for node in self.find_all("label")]


class Accessibility:
    """Makes the programs that a desktop starts from now on accessible, and reads them."""

    def __init__(self, desktop):
        self.desktop = desktop
        desktop.env.pop("NO_AT_BRIDGE", None)
        desktop.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        launcher = next((path for path in LAUNCHERS if pathlib.Path(path).exists()), None)
        if not launcher:
            raise RuntimeError("not installed: at-spi2-core")
        session.require("dbus-send", PYTHON)
        desktop.start("at-spi", [launcher, "--launch-immediately"])
        wait_until(self._is_on_the_bus, "the accessibility bus is there")
        self.reader = desktop.start("reader", [PYTHON, READER], answers=True)

    def _is_on_the_bus(self):
        reply = self.desktop.run(
            "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
            "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner", "string:org.a11y.Bus",
        )
        return "boolean true" in reply

    def windows(self, pid, title=None):
        """The windows of a process that are on show, those with this title if there is one; none while
        they cannot be read."""
        return [Node(window) for window in self._ask(pid=pid, title=title) or []]

    def _ask(self, **question):
        return json.loads(self.reader.ask(json.dumps(question)))
