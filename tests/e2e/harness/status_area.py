"""A desktop's area for status items, as those see it that are announced over D-Bus."""

import json
import pathlib

from . import session
from .accessibility import PYTHON
from .waiting import wait_until

FOLDER = pathlib.Path(__file__).parent
WATCHER = FOLDER / "status_watcher.py"
CLIENT = FOLDER / "status_item_client.py"


class StatusArea:
    """Begins to show items on construction."""

    def __init__(self, desktop):
        session.require(PYTHON)
        self.desktop = desktop
        self.watcher = desktop.start("status-watcher", [PYTHON, WATCHER])

    def wait_until_ready(self):
        wait_until(self._is_on_the_bus, "the area for status items is there")

    def items(self):
        """The bus names of the programs that announced an item, once for each time they did."""
        return self.watcher.stdout().split()

    def wait_for_item(self):
        return Item(self.desktop, wait_until(self.items, "a status item is announced")[-1])

    def end(self):
        self.watcher.end()

    def _is_on_the_bus(self):
        reply = self.desktop.run(
            "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
            "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner",
            "string:org.kde.StatusNotifierWatcher",
        )
        return "boolean true" in reply


class Item:
    """A program's item."""

    def __init__(self, desktop, bus_name):
        self.desktop = desktop
        self.bus_name = bus_name

    def show(self):
        """Its properties, with the "entries" of its menu."""
        return json.loads(self._do("show"))

    def activate(self):
        self._do("activate")

    def choose(self, title):
        entry = next(
            entry for entry in self.show()["entries"] if plain(entry.get("label", "")) == title
        )
        self._do("choose", entry["id"])

    def _do(self, *what):
        return self.desktop.run(PYTHON, CLIENT, self.bus_name, *what)


def plain(label):
    """A label without the mark of its key."""
    return label.replace("_", "")
