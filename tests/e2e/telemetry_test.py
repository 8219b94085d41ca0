"""Usage signals of the whole program: what leaves when it stops. The service is on the loopback
interface."""

import json
import pathlib
import shutil
import signal
import time
import unittest

from harness import TessalineTestCase, session, wait_until
from harness.bad_server import BEHAVIOURS, BadServer
from harness.control_client import ControlClient
from harness.telemetry_server import TelemetryServer
from harness.tessaline import PROMPTER

GRACE_SECONDS = 1.0  # for what is still on its way out
PATIENCE = 1.0  # with a busy machine


class Telemetry(TessalineTestCase):
    desktop_options = {"panel": False}

    def start_server(self, status=204):
        self.server = TelemetryServer(status)
        self.addCleanup(self.server.close)
        return self.server.url

    def start_sending_to(self, url, **env):
        self.start(**{"DO_NOT_TRACK": "", "TESSALINE_TELEMETRY_URL": url, **env})

    def stop(self):
        """Asks the program to end; its exit status and how many seconds it took."""
        begin = time.monotonic()
        self.prompter.send(signal.SIGTERM)
        return self.prompter.wait(10), time.monotonic() - begin

    def assert_stops_in_time(self):
        status, seconds = self.stop()
        self.assertEqual(status, 0)
        self.assertLess(seconds, GRACE_SECONDS + PATIENCE)

    def test_the_whole_session_arrives_once_when_it_stops(self):
        self.start_sending_to(self.start_server())
        self.assert_stops_in_time()
        names = self.server.names()
        self.assertEqual(names[0], "app_launch")
        self.assertEqual(names[-1], "app_terminate")
        self.assertEqual(names, self.event_names(), "each event once, in order")
        sessions = {sent["sessionID"] for batch in self.server.batches for sent in batch}
        self.assertEqual(len(sessions), 1)

    def test_a_server_that_never_answers_holds_it_up_for_a_second_and_its_windows_not_at_all(self):
        self.start_sending_to(self.start_server(status=None))
        begin = time.monotonic()
        self.prompter.send(signal.SIGTERM)
        self.wait_for_prompter(shown=False)
        self.assertTrue(self.prompter.running, "it still waits for the answer")
        self.assertLess(time.monotonic() - begin, GRACE_SECONDS)
        self.assertEqual(self.prompter.wait(10), 0)
        seconds = time.monotonic() - begin
        self.assertGreater(seconds, GRACE_SECONDS * 0.8, "it did wait for the answer")
        self.assertLess(seconds, GRACE_SECONDS + PATIENCE)
        self.assertEqual(self.server.names().count("app_terminate"), 1)
        self.assertEqual(self.event_names()[-1], "app_terminate")

    def test_a_server_that_refuses_everything_is_asked_once(self):
        self.start_sending_to(self.start_server(status=500))
        self.assert_stops_in_time()
        self.assertEqual(len(self.server.batches), 1)
        self.assertIn("[TelemetryDeck] Server returned 500", self.prompter.stderr())

    def test_nobody_listening_costs_nothing(self):
        url = self.start_server()
        self.server.close()
        self.start_sending_to(url)
        self.assert_stops_in_time()
        self.assertIn("[TelemetryDeck] Send failed: ", self.prompter.stderr())

    def test_a_start_during_the_stop_becomes_the_next_program(self):
        self.start_sending_to(self.start_server(status=None))
        first = self.prompter
        first.send(signal.SIGTERM)
        self.wait_for_prompter(shown=False)
        self.assertTrue(first.running, "it still waits for the answer")
        self.prompter = self.desktop.start("next", [self.binary()])
        self.wait_for_prompter()
        self.assertEqual(first.wait(), 0)
        self.assertTrue(self.prompter.running)

    def test_nothing_leaves_with_do_not_track(self):
        self.start_sending_to(self.start_server(), DO_NOT_TRACK="1")
        self.assert_stops_in_time()
        self.assertEqual(self.server.batches, [])
        self.assertEqual(self.event_names()[-1], "app_terminate")


class User:
    """One of several on a desktop, each with a home and a program of their own."""

    def __init__(self, case, name, server):
        case.addCleanup(server.close)
        self.server = server
        folder = case.desktop.folder / name
        folder.mkdir()
        env = session.home_environment(folder)
        shutil.copytree(case.desktop.home, env["HOME"], dirs_exist_ok=True)
        self.home, self.runtime = pathlib.Path(env["HOME"]), pathlib.Path(env["XDG_RUNTIME_DIR"])
        self.program = case.desktop.start(
            name, [case.binary()], **env, DO_NOT_TRACK="", TESSALINE_TELEMETRY_URL=server.url
        )

    def ask(self, *words):
        """Has the program carry out a command, at once."""
        (socket,) = (self.runtime / "tessaline").glob("*.socket")
        return ControlClient(socket).send(*words)

    def stop(self):
        """How long it takes to end well."""
        begin = time.monotonic()
        self.program.send(signal.SIGTERM)
        assert self.program.wait(10) == 0, self.program.stderr()
        return time.monotonic() - begin

    def event_names(self):
        path = self.home / "Library/Application Support/Tessaline/analytics.json"
        return [event["name"] for event in json.loads(path.read_text())]


class FirstBatch(TessalineTestCase):
    """What follows the first batch, which leaves ten seconds after the start: for all servers at
    once."""

    desktop_options = {"panel": False}
    stop_seconds = 3

    def test_harms_nobody_and_is_not_sent_again(self):
        answering = User(self, "answering", TelemetryServer())
        silent = User(self, "silent", TelemetryServer(status=None))
        bad = {how.__name__: User(self, how.__name__, BadServer(how)) for how in BEHAVIOURS}
        refusing = User(self, "refusing", BadServer())
        for user in answering, silent, refusing, *bad.values():
            self.desktop.wait_for_window(PROMPTER, user.program.pid)

        for user in answering, silent:
            wait_until(lambda: user.server.batches, "a batch within its ten seconds")
        for name, user in bad.items():
            wait_until(lambda: user.server.requests > 0, f"signals are sent to one that {name}")
        refusing.program.wait_for_output("[TelemetryDeck] Send failed")
        self.assert_unharmed({**bad, "refusing": refusing})
        self.assertIn("Server returned 500", bad["answers_500"].program.stderr())
        self.assert_sent_once(answering)
        self.assertEqual(len(answering.server.batches), 2)
        self.assert_sent_once(silent)

    def assert_unharmed(self, users):
        for name, user in users.items():
            with self.subTest(name):
                for _ in range(10):
                    self.assertEqual(user.ask("speed", "1.5")["speed"], 1.5)
                    self.assertEqual(user.ask("status")["speed"], 1.5)
        for user in users.values():
            user.program.send(signal.SIGTERM)
        for name, user in users.items():
            with self.subTest(name):
                self.assertEqual(user.program.wait(self.stop_seconds), 0, user.program.stderr())
                names = user.event_names()
                self.assertEqual((names[0], names[-1]), ("app_launch", "app_terminate"))

    def assert_sent_once(self, user):
        self.assertLess(user.stop(), GRACE_SECONDS + PATIENCE)
        self.assertEqual(user.server.names(), user.event_names())


if __name__ == "__main__":
    unittest.main()
