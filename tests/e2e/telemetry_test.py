"""Usage signals of the whole program: what leaves when it stops. The service is on the loopback
interface."""

import signal
import time
import unittest

from harness import TessalineTestCase
from harness.telemetry_server import TelemetryServer

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
        return seconds

    def test_the_whole_session_arrives_once_when_it_stops(self):
        self.start_sending_to(self.start_server())
        self.assert_stops_in_time()
        names = self.server.names()
        self.assertEqual(names[0], "app_launch")
        self.assertEqual(names[-1], "app_terminate")
        self.assertEqual(names, self.event_names(), "each event once, in order")
        sessions = {sent["sessionID"] for batch in self.server.batches for sent in batch}
        self.assertEqual(len(sessions), 1)

    def test_what_was_sent_before_is_not_sent_again(self):
        self.start_sending_to(self.start_server())
        self.wait_for_batch()
        self.assert_stops_in_time()
        self.assertEqual(len(self.server.batches), 2)
        self.assertEqual(self.server.names(), self.event_names())

    def wait_for_batch(self):
        deadline = time.monotonic() + 20
        while not self.server.batches:
            self.assertLess(time.monotonic(), deadline, "a batch within its ten seconds")
            time.sleep(0.1)

    def test_a_server_that_never_answers_holds_it_up_for_a_second_at_most(self):
        self.start_sending_to(self.start_server(status=None))
        seconds = self.assert_stops_in_time()
        self.assertGreater(seconds, GRACE_SECONDS * 0.8, "it did wait for the answer")
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

    def test_its_windows_go_at_once(self):
        self.start_sending_to(self.start_server(status=None))
        self.prompter.send(signal.SIGTERM)
        begin = time.monotonic()
        self.wait_for_prompter(shown=False)
        self.assertTrue(self.prompter.running, "it still waits for the answer")
        self.assertLess(time.monotonic() - begin, GRACE_SECONDS)
        self.assertEqual(self.prompter.wait(10), 0)

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

    def test_the_last_events_leave_although_an_earlier_batch_has_no_answer(self):
        self.start_sending_to(self.start_server(status=None))
        self.wait_for_batch()
        self.assert_stops_in_time()
        self.assertEqual(self.server.names(), self.event_names())

    def test_nothing_leaves_with_do_not_track(self):
        self.start_sending_to(self.start_server(), DO_NOT_TRACK="1")
        self.assert_stops_in_time()
        self.assertEqual(self.server.batches, [])
        self.assertEqual(self.event_names()[-1], "app_terminate")


if __name__ == "__main__":
    unittest.main()
