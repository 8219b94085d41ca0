"""Scripts of every kind, opened by the first start and by later ones; and what first and later starts
do where they cannot meet as usual."""

import os
import subprocess
import unittest

from harness import TessalineTestCase, wait_until
from harness.small_disk import SmallDisk

LARGE = "A line of a large script, żółć and all.\n" * 100_000


class Opening(TessalineTestCase):
    def kept_script(self):
        path = self.support_folder() / "clipboard-content.md"
        return path.read_text() if path.exists() else None

    def wait_for_script(self, text):
        wait_until(lambda: self.kept_script() == text, "the script is kept")

    def shell(self, command):
        """Calls the program, which is "$0", by a command of the shell's."""
        result = subprocess.run(
            ["bash", "-c", command, self.binary()],
            env=self.desktop.env,
            cwd=self.desktop.home,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=20,
            check=False,
        )
        return result.returncode, result.stdout, result.stderr

    def test_later_starts_read_what_is_theirs_alone(self):
        self.start()
        (self.desktop.home / "file.md").write_text("# From a file")
        for command, text in (
            ('printf "# Piped" | "$0" /dev/stdin', "# Piped"),
            ('"$0" /dev/stdin < file.md', "# From a file"),
            ('"$0" <(printf "# From a process")', "# From a process"),
            ('exec 3< file.md; "$0" /proc/self/fd/3', "# From a file"),
            ('ln -s /dev/stdin link; printf "# Through a link" | "$0" link', "# Through a link"),
            ('printf "# Dash" | "$0" -', "# Dash"),
        ):
            self.assertEqual(self.shell(command), (0, "", ""), command)
            self.wait_for_script(text)
        self.assertEqual(self.call("/proc/self/status"), (0, "", ""))
        wait_until(lambda: "tessaline" in self.kept_script(), "the later start's own state is kept")
        self.assertNotIn(f"\nPid:\t{self.prompter.pid}\n", self.kept_script())

    def test_later_starts_hand_over_large_texts(self):
        self.start()
        self.assertEqual(self.call("-", stdin=LARGE), (0, "", ""))
        self.wait_for_script(LARGE)
        left = [path.name for path in self.socket_path().parent.iterdir()]
        self.assertEqual([name for name in left if name.startswith("script")], [])

    def test_later_starts_hand_over_texts_where_there_is_no_room_for_them(self):
        runtime, temporary = self.desktop.folder / "full", self.desktop.folder / "tmp"
        runtime.mkdir()
        temporary.mkdir()
        disk = SmallDisk(runtime)
        if not disk.exists:
            self.skipTest(disk.problem)
        self.addCleanup(disk.remove)
        runtime.chmod(0o700)
        self.desktop.env.update(XDG_RUNTIME_DIR=str(runtime), TMPDIR=str(temporary))
        self.start()
        disk.fill()
        self.assertEqual(self.call("-", stdin=LARGE), (0, "", ""))
        self.wait_for_script(LARGE)
        self.assertEqual(list(temporary.iterdir()), [])

    def test_nobody_follows_what_does_not_last(self):
        for command in ('"$0" --follow <(printf "text")', '"$0" --follow /dev/stdin < /etc/passwd'):
            status, output, error = self.shell(command)
            self.assertEqual((status, output), (2, ""), command)
            self.assertIn("Not a lasting file", error)

    def test_a_name_need_not_be_text(self):
        folder = self.desktop.home / os.fsdecode(b"caf\xe9")
        folder.mkdir()
        script = folder / os.fsdecode(b"talk-\xff.md")
        script.write_text("# First")
        self.start(script)
        self.wait_for_script("# First")
        script.write_text("# Second")
        self.assertEqual(self.call(script.relative_to(self.desktop.home)), (0, "", ""))
        self.wait_for_script("# Second")
        script.write_text("# Third")
        self.assertEqual(
            self.shell("cd caf*; exec \"$0\" --follow $'talk-\\xff.md'"), (0, "", "")
        )
        self.wait_for_script("# Third")
        script.write_text("# Fourth")
        self.wait_for_script("# Fourth")
        self.prompter.end()
        self.start("--follow", script)
        script.write_text("# Fifth")
        self.wait_for_script("# Fifth")
        status, output, _ = self.call("render", script)
        self.assertEqual(status, 0)
        self.assertIn('"Fifth"', output)


class Meeting(TessalineTestCase):
    """Where one start meets another."""

    def assert_meets(self):
        status, _, error = self.call("ctl", "status")
        self.assertEqual((status, error), (0, ""))
        self.assertEqual(self.call(), (0, "", ""))
        self.assertTrue(self.prompter.running)
        self.prompter.end()

    def assert_runs_unheard(self, reason):
        self.start()
        self.assertIn(
            f"tessaline: later starts will not find this one: cannot lock {self.lock()}: {reason}\n",
            self.prompter.stderr(),
        )
        self.assertEqual(
            self.call("ctl", "status"),
            (1, "", f"tessaline: no prompter can be reached: cannot lock {self.lock()}: {reason}\n"),
        )
        self.prompter.end()

    def lock(self):
        return self.socket_path().with_suffix(".lock")

    def test_is_the_same_for_every_start(self):
        for name in (b"missing", b"foreign-\xe9", b"missing/as/well"):
            self.desktop.env["XDG_RUNTIME_DIR"] = os.fsdecode(
                os.fsencode(self.desktop.folder) + b"/" + name
            )
            self.start()
            self.assert_meets()

    def test_may_be_impossible(self):
        self.lock().mkdir(parents=True)
        self.lock().parent.chmod(0o700)
        self.assert_runs_unheard("Is a directory")
        self.lock().rmdir()
        self.lock().symlink_to("nowhere")
        self.assert_runs_unheard("Too many levels of symbolic links")


if __name__ == "__main__":
    unittest.main()
