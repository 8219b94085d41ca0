"""Waiting for a state instead of for a time."""

import time

DEADLINE = 20.0
PAUSE = 0.01
A_MOMENT = 0.7


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


def repeat_until(act, condition, what):
    """Acts until condition() is true, each time only after a moment without an effect. For what comes
    to nothing where it is too early."""

    def works():
        act()
        return not holds_for(lambda: not condition(), A_MOMENT)

    wait_until(works, what)
