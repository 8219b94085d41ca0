"""What somebody sees of a step of ./run and ./test, in a log and at a terminal."""

import os
import pty
import subprocess
import unittest

STEP = os.path.join(os.environ["TESSALINE_TOOLS"], "step")


def in_a_log(*arguments):
    return subprocess.run([STEP, *arguments], capture_output=True, text=True, check=False)


def at_a_terminal(*arguments):
    """What appears there, and the exit status."""
    process, terminal = pty.fork()
    if process == 0:
        os.execv(STEP, [STEP, *arguments])
    shown = b""
    try:
        while piece := os.read(terminal, 4096):
            shown += piece
    except OSError:  # the other end is closed
        pass
    os.close(terminal)
    _, status = os.waitpid(process, 0)
    return shown.decode().replace("\r\n", "\n"), os.waitstatus_to_exitcode(status)


class InALog(unittest.TestCase):
    def test_a_step_is_one_line(self):
        step = in_a_log("--live", "Building", "sh", "-c", "echo one; echo two >&2")
        self.assertEqual((step.stdout, step.stderr, step.returncode), ("", "== Building\n", 0))

    def test_a_step_that_fails_shows_what_it_said_and_has_its_status(self):
        step = in_a_log("Configuring", "sh", "-c", "echo one; echo two >&2; exit 7")
        self.assertEqual((step.stderr, step.returncode), ("== Configuring\none\ntwo\n", 7))

    def test_a_step_reads_nothing_of_what_comes_after_it(self):
        step = subprocess.run(
            [STEP, "Reading", "cat"], input="mine", capture_output=True, text=True, check=False
        )
        self.assertEqual((step.stdout, step.stderr), ("", "== Reading\n"))


class AtATerminal(unittest.TestCase):
    def test_a_live_step_shows_its_own_progress(self):
        shown, status = at_a_terminal("--live", "Building", "sh", "-c", "test -t 1 && echo 1 of 2; exit 3")
        self.assertEqual((shown, status), ("== Building\n1 of 2\n", 3))

    def test_ninja_says_how_far_it_is(self):
        shown, _ = at_a_terminal("--live", "Building", "sh", "-c", 'echo "$NINJA_STATUS"')
        self.assertEqual(shown, "== Building\n[%f of %t, %es] \n")

    def test_other_steps_are_one_line_there_too(self):
        shown, status = at_a_terminal("Configuring", "echo", "checking for a compiler")
        self.assertEqual((shown, status), ("== Configuring\n", 0))


if __name__ == "__main__":
    unittest.main()
