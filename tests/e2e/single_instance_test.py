"""One prompter for a user on a display, whatever is started."""

import os
import signal
import socket
import stat
import unittest

from harness import TessalineTestCase, wait_until


class SingleInstance(TessalineTestCase):
    def runtime_folder(self):
        return self.desktop.folder / "runtime/tessaline"

    def kept_script(self):
        path = self.support_folder() / "clipboard-content.md"
        return path.read_text() if path.exists() else None

    def connect(self):
        client = socket.socket(socket.AF_UNIX)
        client.connect(str(self.socket_path()))
        client.settimeout(10)
        self.addCleanup(client.close)
        return client

    def exchange(self, message):
        client = self.connect()
        client.sendall(message)
        return client.makefile().readline()

    def test_a_second_start_shows_the_hidden_prompter(self):
        self.start()
        self.desktop.click(640 - 225 + 16, 15)
        self.wait_for_prompter(shown=False)
        self.assertEqual(self.call(), (0, "", ""))
        self.wait_for_prompter()
        self.assertEqual(len(self.desktop.windows("^Tessaline$")), 1)

    def test_a_second_start_shows_its_script(self):
        self.start(self.write_script("# First"))
        second = self.desktop.home / "second talk.md"
        second.write_text("# Second")
        self.assertEqual(self.call("second talk.md"), (0, "", ""))
        wait_until(lambda: self.kept_script() == "# Second", "the second script is kept")

    def test_a_second_start_shows_what_it_reads_from_standard_input(self):
        self.start()
        self.assertEqual(self.call("-", stdin="# Piped\n\nżółć"), (0, "", ""))
        wait_until(lambda: self.kept_script() == "# Piped\n\nżółć", "the piped script is kept")
        left = [path.name for path in self.runtime_folder().iterdir()]
        self.assertEqual([name for name in left if name.startswith("script")], [])

    def test_a_second_start_with_an_unreadable_file_changes_nothing(self):
        self.start(self.write_script("# First"))
        status, output, error = self.call("missing.md")
        self.assertEqual((status, output), (2, ""))
        self.assertEqual(error, "tessaline: cannot read missing.md: No such file or directory\n")
        wait_until(lambda: self.kept_script() == "# First", "the first script is kept")

    def test_starts_again_after_it_was_killed(self):
        self.start()
        wait_until(self.socket_path().exists, "it listens")
        self.prompter.send(signal.SIGKILL)
        self.prompter.wait()
        self.assertTrue(self.socket_path().exists(), "the dead one left its socket")
        self.start()
        self.assertEqual(self.call(), (0, "", ""))

    def test_many_starts_at_once_make_one_prompter(self):
        programs = [self.desktop.start(f"start{n}", [self.binary()]) for n in range(8)]
        wait_until(lambda: sum(program.running for program in programs) == 1, "one is left")
        (self.prompter,) = [program for program in programs if program.running]
        self.wait_for_prompter()
        ended = [program.wait() for program in programs if program is not self.prompter]
        self.assertEqual(ended, [0] * 7)
        self.assertTrue(self.status()["visible"])

    def test_nobody_else_can_reach_it(self):
        self.start()
        wait_until(self.socket_path().exists, "it listens")
        self.assertEqual(stat.S_IMODE(self.runtime_folder().stat().st_mode), 0o700)
        self.assertEqual(stat.S_IMODE(self.socket_path().stat().st_mode) & 0o077, 0)

    def test_trusts_no_folder_that_others_can_enter(self):
        self.runtime_folder().mkdir(mode=0o755)
        os.chmod(self.runtime_folder(), 0o755)
        temporary = self.desktop.folder / "tmp"
        temporary.mkdir()
        self.desktop.env["TMPDIR"] = str(temporary)
        self.start()
        folder = temporary / f"tessaline-{os.getuid()}"
        wait_until(lambda: list(folder.glob("*.socket")), "it listens elsewhere")
        self.assertEqual(list(self.runtime_folder().iterdir()), [])
        self.assertEqual(self.call(), (0, "", ""))

    def test_survives_whatever_is_said_to_it(self):
        self.start()
        wait_until(self.socket_path().exists, "it listens")
        for garbage in (b"\n", b"\x00\xff\xfe\n", b"[1, 2]\n", b"{" * 5000 + b"\n", b"[" * 70000):
            self.assertIn('"ok":false', self.exchange(garbage))
        self.assertIn("there is no command", self.exchange(b'{"command":"dance"}\n'))
        self.connect().sendall(b'{"command":"sh')  # and vanishes
        os.mkfifo(self.desktop.home / "fifo")
        path = str(self.desktop.home / "fifo").encode()
        answer = self.exchange(b'{"command":"open","path":"' + path + b'"}\n')
        self.assertIn("Not a regular file", answer)
        self.assertEqual(self.call(), (0, "", ""))

    def test_answers_among_a_thousand_connections_that_say_nothing(self):
        self.start()
        wait_until(self.socket_path().exists, "it listens")
        for _ in range(1000):
            self.connect()
        self.assertEqual(self.call(), (0, "", ""))
        self.assertTrue(self.prompter.running)

    def test_says_so_when_the_running_one_hangs(self):
        self.start()
        wait_until(self.socket_path().exists, "it listens")
        self.prompter.send(signal.SIGSTOP)
        try:
            status, output, error = self.call()
        finally:
            self.prompter.send(signal.SIGCONT)
        self.assertEqual((status, output), (1, ""))
        self.assertIn("does not answer", error)

    def test_each_display_has_its_own(self):
        self.start()
        first = self.prompter
        elsewhere = self.start_desktop()
        elsewhere.env["XDG_RUNTIME_DIR"] = self.desktop.env["XDG_RUNTIME_DIR"]
        elsewhere.env["HOME"] = self.desktop.env["HOME"]
        other = elsewhere.start("tessaline", [self.binary()])
        elsewhere.wait_for_window("^Tessaline$", other.pid)
        self.assertTrue(first.running and other.running)


if __name__ == "__main__":
    unittest.main()
