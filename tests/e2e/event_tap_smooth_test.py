"""Control and the scroll axes of touchpads and today's wheels: applications read them from motion,
which a grab of buttons does not keep from them."""

import pathlib
import signal
import sys
import time
import unittest
from unittest import mock

from event_tap_case import Application
from event_tap_device import device_of, start_server, what_is_missing
from harness import DesktopTestCase, session, wait_until
from harness.waiting import holds_for

A_MOMENT = 0.3  # in which what the application must not get would have come
A_REST = 0.4  # more than the pointer has to stand still
LONGEST_HOLD = 2.0  # seconds without the program's own progress


def children_of(pid):
    """Of all its threads."""
    tasks = pathlib.Path(f"/proc/{pid}/task").iterdir()
    return [int(child) for task in tasks for child in (task / "children").read_text().split()]


def name_of(pid):
    """None once it has ended, whether somebody has noticed or not."""
    status = pathlib.Path(f"/proc/{pid}/status")
    if not status.exists():
        return None
    lines = dict(line.split(":\t") for line in status.read_text().splitlines() if ":\t" in line)
    return None if lines["State"].startswith("Z") else lines["Name"]


@unittest.skipIf(what_is_missing(), what_is_missing())
class SmoothScrolling(DesktopTestCase):
    """Over a window of an application that understands scroll axes."""

    desktop_options = {"panel": False}

    def setUp(self):
        with mock.patch.object(session, "start_x_server", start_server):
            super().setUp()
        self.device = device_of(self.desktop)
        self.other = Application(self.desktop, "watch", "--window", "0,0,1200,700")
        self.tap = Application(self.desktop, "tap")
        self.desktop.move_mouse(600, 400)
        # An application's first look at an axis is where it stands.
        self.scroll_until(lambda: self.other.wheel(), 1)

    def scroll_until(self, condition, lines):
        def scrolls():
            self.device.scroll(lines)
            time.sleep(0.05)
            return condition()

        wait_until(scrolls, "scrolling has its effect")

    def hold_control(self):
        self.desktop.hands("keydown", "ctrl")
        self.addCleanup(self.release_control)
        time.sleep(0.1)

    def release_control(self):
        self.desktop.hands("keyup", "ctrl")

    def scroll(self, *lines):
        for line in lines:
            self.device.scroll(line)
            time.sleep(0.02)

    def wait_for_scrolls(self, deltas):
        wait_until(lambda: self.tap.scrolled() == deltas, f"the prompter scrolls by {deltas}")

    def assert_other_gets(self, action, wheel):
        """Exactly these turns of the wheel."""
        before = self.other.wheel()
        action()
        wait_until(lambda: len(self.other.wheel()) >= len(before) + len(wheel), "the wheel arrives")
        self.assertTrue(
            holds_for(lambda: self.other.wheel() == before + wheel, A_MOMENT), self.other.wheel()
        )

    def test_without_control_is_the_applications(self):
        self.assert_other_gets(lambda: self.scroll(0.1, -1, 2), [(0, -12), (0, 120), (0, -240)])
        self.assertEqual(self.tap.scrolled(), [])

    def test_by_whole_lines_with_control_is_ours(self):
        self.hold_control()
        self.assert_other_gets(lambda: self.scroll(1, -2), [])
        self.wait_for_scrolls([-80, 160])
        self.release_control()
        self.assert_other_gets(lambda: self.scroll(1), [(0, -120)])
        self.wait_for_scrolls([-80, 160])

    def test_by_parts_of_lines_with_control_is_ours_in_points(self):
        self.hold_control()
        self.assert_other_gets(lambda: self.scroll(0.1, 0.1, -0.05, 1), [])
        self.wait_for_scrolls([-6, -6, 3, -60])

    def test_does_not_count_what_was_scrolled_without_control(self):
        self.hold_control()
        self.scroll(1)
        self.wait_for_scrolls([-80])
        self.release_control()
        time.sleep(A_MOMENT)
        self.assert_other_gets(lambda: self.scroll(5), [(0, -600)])
        self.hold_control()
        self.scroll(-1)
        self.wait_for_scrolls([-80, 80])

    def test_with_an_unsteady_hand_is_ours(self):
        self.hold_control()

        def scroll_and_shake():
            for _ in range(20):
                self.scroll(0.5)
                self.device.move(x=1, y=1)

        self.assert_other_gets(scroll_and_shake, [])
        self.assertEqual(self.tap.scrolled(), [-30] * 20)

    def test_is_ours_again_after_the_pointer_travelled(self):
        self.hold_control()
        moves = len(self.other.events("move"))
        for _ in range(30):
            self.device.move(x=5)
            time.sleep(0.01)
        wait_until(lambda: len(self.other.events("move")) > moves, "the application sees the travel")
        time.sleep(A_REST)
        self.assert_other_gets(lambda: self.scroll(1), [])
        self.wait_for_scrolls([-80])

    def test_is_ours_again_after_a_click_for_the_application(self):
        self.hold_control()
        self.desktop.hands("click", 1)
        wait_until(lambda: self.other.events("release"), "the click is over")
        time.sleep(A_REST)
        self.assert_other_gets(lambda: self.scroll(1), [])
        self.wait_for_scrolls([-80])

    def test_leaves_a_drag_with_control_to_the_application(self):
        self.hold_control()
        self.desktop.hands("mousedown", 1)
        wait_until(lambda: self.other.events("press"), "the drag begins")
        time.sleep(A_REST)
        self.device.move(x=30)
        wait_until(lambda: any(move["buttons"] == 1 for move in self.other.events("move")),
                   "the application sees the drag")
        self.desktop.hands("mouseup", 1)
        wait_until(lambda: self.other.events("release"), "the drag ends")

    def test_is_the_applications_while_control_is_part_of_a_chord(self):
        self.hold_control()
        self.desktop.hands("key", "c")
        time.sleep(0.1)
        before = len(self.other.events("move"))
        self.device.move(x=2)
        wait_until(lambda: len(self.other.events("move")) > before, "nothing holds the pointer")

    def test_is_the_applications_again_when_the_program_is_stopped(self):
        self.hold_control()
        self.scroll(1)
        self.wait_for_scrolls([-80])
        moves = len(self.other.events("move"))
        self.tap.process.send(signal.SIGSTOP)
        stopped = time.monotonic()

        def is_seen_by_the_application():
            self.device.move(x=1)
            return len(self.other.events("move")) > moves

        wait_until(is_seen_by_the_application, "the pointer is free")
        print(f"free {time.monotonic() - stopped:.2f} s after the stop", file=sys.stderr)
        self.assertLess(time.monotonic() - stopped, LONGEST_HOLD)
        self.scroll_until(lambda: self.other.wheel()[-1:] == [(0, -120)], 1)
        self.release_control()

        self.tap.process.send(signal.SIGCONT)
        before = len(self.tap.scrolled())

        def is_ours_again():
            self.hold_control()
            self.scroll(1)
            self.release_control()
            return len(self.tap.scrolled()) > before

        wait_until(is_ours_again, "the program is back")

    def test_leaves_no_process_behind(self):
        self.hold_control()
        self.scroll(1)
        self.wait_for_scrolls([-80])
        guards = children_of(self.tap.process.pid)
        self.assertEqual([name_of(guard) for guard in guards], ["pointer-guard"])
        self.tap.process.send(signal.SIGKILL)
        self.tap.process.wait()
        wait_until(lambda: name_of(guards[0]) is None, "its guard is gone")
        self.release_control()

    def test_sideways_is_the_applications(self):
        self.device.scroll_sideways(1)
        wait_until(lambda: any(x for x, _ in self.other.wheel()), "sideways it arrives")
        self.hold_control()
        before = len(self.other.wheel())
        # Its first line tells what it is going to be.
        for _ in range(3):
            self.device.scroll_sideways(1)
            time.sleep(0.02)
        wait_until(lambda: len(self.other.wheel()) >= before + 2, "and with Control")
        self.assertEqual(self.tap.scrolled(), [])


if __name__ == "__main__":
    unittest.main()
