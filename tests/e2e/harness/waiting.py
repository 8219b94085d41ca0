"""Waiting for a state instead of for a time."""

import time

DEADLINE = 20.0
PAUSE = 0.01


def wait_until(condition, what, seconds=DEADLINE):
    """The first true value of condition(). Fails, naming `what`, when none comes in time."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {seconds:g} seconds in vain: {what}")
        time.sleep(PAUSE)


def holds_for(condition, seconds):
    """Whether condition() stays true all the time. For what must not happen."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        if not condition():
            return False
        time.sleep(PAUSE)
    return True
