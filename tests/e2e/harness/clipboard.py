"""The clipboard, as another application fills and reads it."""

import signal
import subprocess

from . import session

READ_SECONDS = 20


class Clipboard:
    def __init__(self, desktop):
        session.require("xclip")
        self.desktop = desktop
        self.owner = None

    def offer(self, data, target=None):
        """Offers these bytes as a text, or as this target alone, until another program offers
        something else."""
        file = self.desktop.folder / "clipboard"
        file.write_bytes(data)
        before = self.owner
        command = ["xclip", "-verbose", "-selection", "clipboard", "-in", file]
        command += ["-target", target] if target else []
        self.owner = self.desktop.start("xclip", command)
        self.owner.wait_for_output("Waiting for selection request")
        # Not before: a desktop takes over what nobody owns, and may do so late.
        self._end(before)

    def clear(self):
        self._end(self.owner)
        self.owner = None

    def _end(self, owner):
        if owner:
            owner.send(signal.SIGCONT)  # one that a scenario has stopped
            owner.end()
            self.desktop.processes.remove(owner)

    def read(self):
        """The text that is on offer; None when there is none."""
        result = subprocess.run(
            ["xclip", "-selection", "clipboard", "-out", "-target", "UTF8_STRING"],
            env=self.desktop.env,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            timeout=READ_SECONDS,
            check=False,
        )
        return result.stdout if result.returncode == 0 else None
