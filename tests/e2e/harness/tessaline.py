"""The base of the scenarios that run the whole program."""

import json
import os
import subprocess

from .case import DesktopTestCase
from .control_client import ControlClient
from .waiting import wait_until

PROMPTER = "^Tessaline$"
SETTINGS = "^Settings$"
WELCOME = "^Welcome to Tessaline$"


class TessalineTestCase(DesktopTestCase):
    """A scenario for a user who has been through the first-run window, unless first_run is set."""

    first_run = False

    def setUp(self):
        super().setUp()
        if not self.first_run:
            self.write_settings()

    def binary(self):
        return os.environ["TESSALINE_BINARY"]

    def probe(self):
        return os.environ["TESSALINE_PROBE"]

    def support_folder(self):
        folder = self.desktop.home / "Library/Application Support/Tessaline"
        folder.mkdir(parents=True, exist_ok=True)
        return folder

    def settings(self):
        return json.loads((self.support_folder() / "config.json").read_text())

    def write_settings(self, **values):
        """Writes the settings that differ from the defaults."""
        values = {"hasCompletedOnboarding": not self.first_run, **values}
        (self.support_folder() / "config.json").write_text(json.dumps(values))

    def history(self):
        """The usage events on disk, the latest last; none while there is no file."""
        path = self.support_folder() / "analytics.json"
        return json.loads(path.read_text()) if path.exists() else []

    def event_names(self):
        return [event["name"] for event in self.history()]

    def end_and_read_history(self, name):
        """Ends the program; the properties of all events of this name."""
        self.assertEqual(self.prompter.end(), 0)
        return [event["properties"] for event in self.history() if event["name"] == name]

    def write_script(self, text):
        path = self.desktop.home / "talk.md"
        path.write_text(text)
        return path

    def start(self, *arguments, **env):
        """Starts the program and waits for its prompter."""
        self.prompter = self.start_tessaline(*arguments, **env)
        self.window = self.desktop.wait_for_window(PROMPTER, self.prompter.pid)

    def start_first(self, *arguments):
        """Starts the program and waits for its first-run window."""
        self.prompter = self.start_tessaline(*arguments)
        self.welcome = self.desktop.wait_for_window(WELCOME, self.prompter.pid)

    def call(self, *arguments, stdin=None):
        """Calls the program once more; its exit status, standard output and standard error."""
        result = subprocess.run(
            [self.binary(), *map(str, arguments)],
            env=self.desktop.env,
            cwd=self.desktop.home,
            input=stdin,
            stdin=subprocess.DEVNULL if stdin is None else None,
            capture_output=True,
            text=True,
            timeout=20,
            check=False,
        )
        return result.returncode, result.stdout, result.stderr

    def socket_path(self):
        """Where the running program hears other calls."""
        env = self.desktop.env
        session = env.get("DISPLAY") or env["WAYLAND_DISPLAY"]
        return self.desktop.folder / "runtime/tessaline" / (session + ".socket")

    def status(self):
        """What the running program tells of itself, once it hears other calls."""
        wait_until(self.socket_path().exists, "the program hears other calls")
        return ControlClient(self.socket_path()).status()

    def prompter_is_shown(self):
        return bool(self.desktop.windows(PROMPTER, self.prompter.pid))

    def wait_for_prompter(self, shown=True):
        wait_until(lambda: self.prompter_is_shown() == shown, f"the prompter is shown: {shown}")
