"""When the system around the program fails: nothing is lost, nothing hangs, the end is clean.
TESSALINE_KILLS tells how often the program is killed."""

import json
import os
import random
import re
import shutil
import signal
import socket
import subprocess
import threading
import time
import unittest

from harness import TessalineTestCase, wait_until
from harness.ordinary_user import as_ordinary_user, can_run
from harness.small_disk import SmallDisk
from harness.tessaline import PROMPTER, WELCOME
from harness.waiting import holds_for

KILLS = int(os.environ.get("TESSALINE_KILLS", "60"))
QUIT_SECONDS = 3
ANSWER_SECONDS = 2
SAVE_FAILED = "❌ Failed to save config: "
FLUSH_FAILED = "Failed to flush analytics: "


def needs_ordinary_user(test):
    program = os.environ.get("TESSALINE_BINARY", "")
    return unittest.skipUnless(can_run(program), "others may not run the program where it is")(test)


class FaultsTestCase(TessalineTestCase):
    def ctl(self, *words, prefix=(), **env):
        """Has the running program carry out a command, at once; returns the answer."""
        began = time.monotonic()
        result = subprocess.run(
            [*prefix, self.binary(), "ctl", *words],
            env={**self.desktop.env, **env},
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            timeout=20,
            check=False,
        )
        self.assertEqual((result.returncode, result.stderr), (0, ""), words)
        self.assertLess(time.monotonic() - began, ANSWER_SECONDS, words)
        return result.stdout

    def ordinary_user_environment(self):
        """Lets the ordinary user into this desktop; the environment that it needs there."""
        self.desktop.folder.chmod(0o755)
        temporary = self.desktop.folder / "tmp"
        temporary.mkdir()
        temporary.chmod(0o777)
        return {"TMPDIR": str(temporary)}

    def assert_goes_on(self, **how):
        self.ctl("speed", "1.5", **how)
        self.assertEqual(json.loads(self.ctl("status", **how))["speed"], 1.5)

    def assert_quits(self, program=None):
        program = program or self.prompter
        program.send(signal.SIGTERM)
        self.assertEqual(program.wait(QUIT_SECONDS), 0, program.stderr())


class WithoutFiles(FaultsTestCase):
    """Nothing can be kept, so that every start is a first one."""

    first_run = True

    def start_first(self, command, **env):
        self.prompter = self.desktop.start("tessaline", command, **env)
        welcome = self.desktop.wait_for_window(WELCOME, self.prompter.pid)
        self.desktop.close_by_keys(welcome)
        self.desktop.wait_for_window(PROMPTER, self.prompter.pid)

    def assert_goes_on_and_tells(self, reason, prefix=(), **env):
        self.assert_goes_on(prefix=prefix, **env)
        self.assert_quits()
        self.assertIn(SAVE_FAILED + reason, self.prompter.stdout())
        self.assertIn(FLUSH_FAILED + reason, self.prompter.stderr())

    def test_goes_on_with_a_file_in_the_support_folders_place(self):
        folder = self.support_folder()
        shutil.rmtree(folder)
        folder.write_text("the user's")
        self.start_first([self.binary()])
        self.assert_goes_on_and_tells("Not a directory")
        self.assertEqual(folder.read_text(), "the user's")

    def test_goes_on_with_a_home_that_is_a_file(self):
        home = self.desktop.folder / "no-home"
        home.write_text("a file")
        self.start_first(["env", f"HOME={home}", self.binary()])
        self.assert_goes_on_and_tells("Not a directory", prefix=["env", f"HOME={home}"])

    @needs_ordinary_user
    def test_goes_on_without_a_home(self):
        env = self.ordinary_user_environment()
        homeless = as_ordinary_user("env", "--unset=HOME")
        self.start_first([*homeless, self.binary()], **env)
        self.assert_goes_on_and_tells("No such file or directory", prefix=homeless, **env)


class ReadOnly(FaultsTestCase):
    @needs_ordinary_user
    def test_goes_on_in_a_read_only_home_and_keeps_its_files(self):
        env = self.ordinary_user_environment()
        folder = self.support_folder()
        before = (folder / "config.json").read_bytes()
        (folder / "config.json").chmod(0o444)
        for path in (folder, folder.parent, folder.parent.parent, self.desktop.home):
            path.chmod(0o555)
            self.addCleanup(path.chmod, 0o755)
        user = as_ordinary_user()
        self.prompter = self.desktop.start("tessaline", [*user, self.binary()], **env)
        self.desktop.wait_for_window(PROMPTER, self.prompter.pid)
        self.assert_goes_on(prefix=user, **env)
        self.assert_quits()
        self.assertRegex(self.prompter.stdout(), SAVE_FAILED + ".*not writable")
        self.assertIn(FLUSH_FAILED + "Permission denied", self.prompter.stderr())
        self.assertEqual((folder / "config.json").read_bytes(), before)
        self.assertEqual([path.name for path in folder.iterdir()], ["config.json"])

    def test_goes_on_without_a_folder_for_its_socket(self):
        file = self.desktop.folder / "file"
        file.touch()
        self.start(XDG_RUNTIME_DIR=str(file), TMPDIR=str(file))
        self.assertIn("later starts will not find this one", self.prompter.stderr())
        self.assertTrue(holds_for(lambda: self.prompter.running, 0.3))
        self.assert_quits()
        self.assertIn("app_terminate", self.event_names())


class FullDisk(FaultsTestCase):
    def setUp(self):
        super().setUp()
        self.disk = SmallDisk(self.support_folder())
        self.addCleanup(self.disk.remove)
        if not self.disk.exists:
            self.skipTest("no small disk: " + self.disk.problem)
        self.write_settings()

    def files(self):
        return sorted(path.name for path in self.support_folder().iterdir())

    def test_keeps_the_files_until_there_is_room_again(self):
        self.start()
        self.ctl("speed", "1")
        self.assert_quits()
        events = self.event_names()
        self.start(self.write_script("kept"))
        for name in ("clipboard-content.md", "latest.json"):
            wait_until((self.support_folder() / name).exists, f"{name} is kept")
        self.disk.fill()

        self.assert_goes_on()
        self.assertEqual(self.call(self.write_script("new")), (0, "", ""))
        self.assertIn(SAVE_FAILED + "No space left on device", self.prompter.stdout())
        self.assertEqual(self.settings()["scrollSpeed"], 1)
        self.assertEqual((self.support_folder() / "clipboard-content.md").read_text(), "kept")
        self.disk.empty()
        self.ctl("speed", "2.5")
        self.assertEqual(self.settings()["scrollSpeed"], 2.5)

        self.disk.fill()
        self.assert_quits()
        self.assertIn(FLUSH_FAILED + "No space left on device", self.prompter.stderr())
        self.assertEqual(self.event_names(), events)
        expected = ["analytics.json", "clipboard-content.md", "config.json", "filler", "latest.json"]
        self.assertEqual(self.files(), expected)


class Killed(FaultsTestCase):
    KEPT = ("analytics.json", "clipboard-content.md", "config.json", "latest.json")
    LEFT_BEHIND = re.compile(f"({'|'.join(map(re.escape, KEPT))})\\.tessaline-[0-9a-f]{{8}}")
    LONGEST_SAVE_SECONDS = 600

    def connect(self):
        """A connection to the running program; none while it does not listen."""
        client = socket.socket(socket.AF_UNIX)
        client.settimeout(10)
        try:
            client.connect(str(self.socket_path()))
        except OSError:
            client.close()
            return None
        return client

    def ask(self, message):
        """Whether the running program did what the message says, for all that one can know."""
        client = self.connect()
        if not client:
            return False
        with client:
            try:
                client.sendall(json.dumps(message).encode() + b"\n")
                return '"ok":true' in client.makefile().readline()
            except OSError:
                return False

    def kill_soon(self, choose):
        """Kills the program at a random moment, of its end every other time."""
        process = self.prompter.popen

        def kill():
            if choose.random() < 0.5:
                process.terminate()
                time.sleep(choose.uniform(0, 0.02))
            process.kill()

        threading.Timer(choose.uniform(0, 0.15), kill).start()

    def left_behind(self):
        names = [path.name for path in self.support_folder().iterdir()]
        return sorted(name for name in names if name not in self.KEPT)

    def assert_removed_when_old(self, left):
        """The next save of each file removes what was left behind, but not what is still young."""
        old = time.time() - 1.1 * self.LONGEST_SAVE_SECONDS
        young = self.support_folder() / "config.json.tessaline-01234567"
        young.touch()
        for name in left:
            self.assertRegex(name, self.LEFT_BEHIND)
            os.utime(self.support_folder() / name, (old, old))
        self.start(self.write_script("the last one"))
        self.ctl("speed", "5")
        self.assert_quits()
        self.assertEqual(self.left_behind(), [young.name])

    def test_keeps_what_it_said_was_done_and_whole_files(self):
        seed = random.randrange(1 << 32)
        choose = random.Random(seed)
        kept = self.support_folder() / "clipboard-content.md"
        script = self.desktop.home / "talk.md"
        number = 0
        # What may be kept: what was said to be done last, or anything that was asked for since.
        speeds, scripts = {0.0}, {None}
        events, killed = [], 0
        while killed < KILLS:
            self.prompter = self.start_tessaline()
            wait_until(self.connect, "the program listens").close()
            self.kill_soon(choose)
            while self.prompter.running:
                number += 1
                speed = number % 5000 / 1000
                done = self.ask({"command": "control", "words": ["speed", str(speed)]})
                speeds = {speed} if done else speeds | {speed}
                text = f"talk {number}\n" * 1000
                script.write_text(text)
                done = self.ask({"command": "open", "path": str(script)})
                scripts = {text} if done else scripts | {text}
            killed += self.prompter.wait() == -signal.SIGKILL
            with self.subTest(seed=seed, number=number):
                self.assertIn(self.settings()["scrollSpeed"], speeds)
                self.assertIn(kept.read_text() if kept.exists() else None, scripts)
                self.assertEqual(self.history()[: len(events)], events)
                self.assertNotIn("Failed", self.prompter.stdout() + self.prompter.stderr())
                events = self.history()
        left = self.left_behind()
        kept = f"{len(events)} events kept, {len(left)} files left behind"
        print(f"{killed} killed, {number} changes, {kept}")
        self.assert_removed_when_old(left)
        self.assertGreater(len(self.history()), len(events))


class GoneServices(FaultsTestCase):
    def kill(self, name):
        process = self.desktop.process(name)
        process.send(signal.SIGKILL)
        process.wait()

    def test_ends_by_itself_when_the_x_server_is_gone_and_loses_nothing(self):
        self.write_settings(autoScrollEnabled=True, scrollSpeed=5.0)
        self.start(self.write_script("Some text\n\n" * 2000))
        self.ctl("settings")
        self.ctl("speed", "1.25")
        self.kill("xvfb")
        self.assertEqual(self.prompter.wait(QUIT_SECONDS), 1, self.prompter.stderr())
        self.assertEqual(self.settings()["scrollSpeed"], 1.25)
        names = self.event_names()
        self.assertIn("setting_changed", names)
        self.assertEqual(names[-1], "app_terminate")

    def test_goes_on_when_the_session_bus_is_gone(self):
        self.start()
        self.kill("dbus")
        self.assert_goes_on()
        self.assertTrue(holds_for(lambda: self.prompter.running, 0.3))
        self.assert_quits()
        self.assertEqual(self.event_names()[-1], "app_terminate")

    def test_starts_without_a_session_bus(self):
        self.kill("dbus")
        self.start()
        self.assert_goes_on()
        self.assert_quits()


if __name__ == "__main__":
    unittest.main()
