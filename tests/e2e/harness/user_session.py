"""What every kind of desktop is for its user: a home, programs, and windows that are seen."""

import pathlib
import subprocess
import tempfile

from .process import Process
from .waiting import wait_until

TOOL_SECONDS = 20


def new_folder():
    return pathlib.Path(tempfile.mkdtemp(prefix="tessaline-e2e-"))


class UserSession:
    """Has the folder of its user, the environment and the programs. Who derives from it tells what
    windows there are and what is seen (`windows`, `picture`)."""

    def __init__(self):
        self.folder = new_folder()
        self.env = {}
        self.processes = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    @property
    def home(self):
        return pathlib.Path(self.env["HOME"])

    def logs(self):
        """All that the programs printed, for the report of a failure."""
        parts = []
        for process in self.processes:
            for kind, text in (("stdout", process.stdout()), ("stderr", process.stderr())):
                if text.strip():
                    parts.append(f"--- {process.name}, {kind}\n{text.rstrip()}")
        return "\n".join(parts)

    # Programs

    def start(self, name, command, pass_fds=(), answers=False, **env):
        """Starts a program on this desktop. Other keyword arguments are added to its environment."""
        process = Process(name, command, {**self.env, **env}, self.folder, pass_fds, answers)
        self.processes.append(process)
        return process

    def end_programs(self):
        while self.processes:
            self.processes.pop().end()

    def process(self, name):
        """The program that was started last under this name."""
        return next(process for process in reversed(self.processes) if process.name == name)

    def run(self, *command, check=True):
        """Runs a tool to its end and returns what it printed."""
        result = subprocess.run(
            [str(part) for part in command],
            env=self.env,
            cwd=self.home,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=TOOL_SECONDS,
            check=False,
        )
        if check and result.returncode != 0:
            raise AssertionError(f"{command} failed: {result.stdout}{result.stderr}")
        return result.stdout.strip()

    # What is seen

    def wait_for_window(self, title=None, pid=None):
        return wait_until(
            lambda: self.windows(title, pid), f"a window with title {title} of process {pid}"
        )[0]

    def region(self, x, y, width, height):
        """The rows of pixels of a part of the screen, as bytes that can be compared."""
        return self.picture().region(x, y, width, height)

    def pixel(self, x, y):
        return tuple(self.region(x, y, 1, 1)[0])

    def wait_for_pixel(self, x, y, color):
        wait_until(lambda: self.pixel(x, y) == color, f"pixel ({x}, {y}) is {color}")
