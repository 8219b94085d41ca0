"""Programs that a scenario starts and, whatever happens, ends again."""

import ctypes
import select
import signal
import subprocess

from .waiting import wait_until

ANSWER_SECONDS = 20
END_SECONDS = 5
PR_SET_PDEATHSIG = 1
libc = ctypes.CDLL(None)


def die_with_parent():
    """Ends a program also when the scenario itself is killed, by a test time-out for instance."""
    libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


class Process:
    """A running program whose output goes into files of the scenario's folder. One that answers is
    asked instead, line by line."""

    def __init__(self, name, command, env, folder, pass_fds=(), answers=False):
        self.name = name
        self.stdout_path = folder / f"{name}.out"
        self.stderr_path = folder / f"{name}.err"
        with open(self.stdout_path, "wb") as out, open(self.stderr_path, "wb") as err:
            self.popen = subprocess.Popen(
                [str(part) for part in command],
                env=env,
                cwd=env["HOME"],
                stdin=subprocess.PIPE if answers else subprocess.DEVNULL,
                stdout=subprocess.PIPE if answers else out,
                stderr=err,
                pass_fds=pass_fds,
                start_new_session=True,
                preexec_fn=die_with_parent,
            )

    @property
    def pid(self):
        return self.popen.pid

    @property
    def running(self):
        return self.popen.poll() is None

    def stdout(self):
        return self.stdout_path.read_text(errors="replace")

    def stderr(self):
        return self.stderr_path.read_text(errors="replace")

    def wait(self, seconds=END_SECONDS):
        """The exit status once the program has ended by itself; negative: ended by that signal."""
        return self.popen.wait(seconds)

    def send(self, number):
        self.popen.send_signal(number)

    def ask(self, line):
        """The line that answers."""
        self.popen.stdin.write(line.encode() + b"\n")
        self.popen.stdin.flush()
        ready, _, _ = select.select([self.popen.stdout], [], [], ANSWER_SECONDS)
        answer = self.popen.stdout.readline() if ready else b""
        assert answer, f"{self.name} does not answer:\n{self.stderr()}"
        return answer

    def wait_for_output(self, text, seconds=20):
        def found():
            if text in self.stdout() or text in self.stderr():
                return True
            assert self.running, f"{self.name} ended early:\n{self.stderr()}"
            return False

        return wait_until(found, f"{self.name} prints {text!r}", seconds)

    def end(self):
        """Asks the program to end, then makes it. Safe to call again."""
        if self.running:
            self.popen.terminate()
            try:
                self.popen.wait(END_SECONDS)
            except subprocess.TimeoutExpired:
                self.send(signal.SIGKILL)
                self.popen.wait()
        for pipe in self.popen.stdin, self.popen.stdout:
            if pipe:
                pipe.close()
        return self.popen.returncode
