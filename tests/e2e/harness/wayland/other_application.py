"""Another application of the Wayland session, which tells what it gets."""

import json
import os

from ..waiting import wait_until


class OtherApplication:
    """One window that fills its part of the screen with a colour. Started on construction, and on show
    then."""

    def __init__(self, desktop, kind, color, *arguments):
        self.desktop = desktop
        self.process = desktop.start(
            f"other-{color.lstrip('#')}",
            [os.environ["TESSALINE_PROBE"], kind, color, *arguments],
            QT_QPA_PLATFORM="wayland",
        )
        self.window = desktop.wait_for_window(pid=self.process.pid)

    def reports(self, event):
        found = map(json.loads, self.process.stdout().splitlines())
        return [report for report in found if report["event"] == event]

    def keys(self):
        """The texts of the keys that it got."""
        return "".join(report["text"] for report in self.reports("key"))

    def has_keyboard(self):
        """Whether keys go to it, as it was told itself."""
        return ([False] + [report["active"] for report in self.reports("active")])[-1]

    def wait_for_keyboard(self, has=True):
        wait_until(lambda: self.has_keyboard() == has, f"{self.process.name} has the keyboard: {has}")

    def end(self):
        self.process.end()
