"""A desktop's portal for shortcuts: the real front end, and behind it a desktop that the test plays."""

import pathlib

from ..accessibility import PYTHON
from ..waiting import wait_until

FRONT_END = pathlib.Path("/usr/libexec/xdg-desktop-portal")
BACKEND = pathlib.Path(__file__).parents[1] / "shortcuts_backend.py"
DESCRIPTION = """\
[portal]
DBusName=org.freedesktop.impl.portal.desktop.shortcuts
Interfaces=org.freedesktop.impl.portal.GlobalShortcuts
UseIn=played
"""


class ShortcutsPortal:
    """Starts both on construction. The user says "yes" or "no" when they are asked for keys."""

    def __init__(self, desktop, user_says="yes"):
        self.desktop = desktop
        self.backend = desktop.start("desktop", [PYTHON, BACKEND, user_says], answers=True)
        self.questions()  # it is there once it answers
        self.folder = desktop.folder / "portals"
        self.folder.mkdir()
        (self.folder / "played.portal").write_text(DESCRIPTION)
        self.start_front_end()

    def start_front_end(self):
        self.front_end = self.desktop.start(
            *("portal", [FRONT_END]),
            XDG_CURRENT_DESKTOP="played",
            XDG_DESKTOP_PORTAL_DIR=str(self.folder),
        )
        wait_until(self._is_on_the_bus, "the portal is there")

    def _is_on_the_bus(self):
        reply = self.desktop.run(
            *("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus"),
            *("--object-path", "/org/freedesktop/DBus"),
            *("--method", "org.freedesktop.DBus.NameHasOwner", "org.freedesktop.portal.Desktop"),
        )
        return "true" in reply

    def end_front_end(self):
        self.front_end.end()

    def user_says(self, word):
        self.backend.ask(word)

    def questions(self):
        """How often the user was asked."""
        return int(self.backend.ask("count").split()[0])

    def last_question(self):
        """{shortcut: key} that the user was asked for last."""
        words = self.backend.ask("count").decode().split()[1:]
        return dict(word.split("=") for word in words)

    def press(self, shortcut):
        self.backend.ask(f"press {shortcut}")

    def set_key(self, shortcut, key):
        """As the user does in the desktop's settings."""
        self.backend.ask(f"set {shortcut} {key}")

    def forget(self):
        """Takes all keys away, as the user does there."""
        self.backend.ask("forget")
