"""Running programs without the superuser's powers: permissions do not bind those."""

import os
import subprocess
import sys

NOBODY = 65534


def as_ordinary_user(*command):
    """The command, to be run by an ordinary user whoever runs the scenario."""
    if os.geteuid() != 0:
        return list(command)
    return ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]


def can_run(program):
    """Whether that user may run the program where it is."""
    test = as_ordinary_user("test", "-x", str(program))
    return subprocess.run(test, check=False).returncode == 0


def become_ordinary_user():
    """Starts the running script anew as that user if it is the superuser's."""
    if os.geteuid() == 0:
        # The superuser may have a Python of their own.
        python = sys.executable if can_run(sys.executable) else "/usr/bin/python3"
        command = as_ordinary_user(python, *sys.argv)
        os.execvp(command[0], command)
