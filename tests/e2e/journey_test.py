"""A week's use in fast motion: random things that a reader does, and after each of them what has to
hold always. TESSALINE_JOURNEY_SEED and TESSALINE_JOURNEY_ACTIONS choose which, and how many."""

import json
import math
import os
import random
import pathlib
import re
import shutil
import socket
import sys
import time
import unittest

import journey_reader
from harness import wait_until
from harness.accessible_case import AccessibleTestCase
from harness.clipboard import Clipboard
from harness.control_client import ControlClient
from harness.memory import resident
from harness.obsidian import PLUGIN, PLUGIN_FILES, Obsidian
from journey_reader import MONITORS, Reader

SEED = int(os.environ.get("TESSALINE_JOURNEY_SEED", "1"))
ACTIONS = int(os.environ.get("TESSALINE_JOURNEY_ACTIONS", "150"))
LOOK_EVERY = 5  # actions, at what takes longer to see
MOST_MEMORY_KIB = 200 * 1024
SANITIZER_MEMORY = 8  # times as much, for what the sanitizers keep
POINTS_PER_SECOND = {"slow": 4.8, "medium": 6.4, "fast": 9.6}
READING_SCALE = 1.6
EXPECTED_OUTPUT = re.compile(
    r"^$|This desktop shows no tray now|X11 cannot keep a window out of screen captures"
    r"|qt\.qpa\.xcb: Unhandled client message:  \"_KDE_WM_CHANGE_STATE\""
)


def reading_time(status):
    """As the label tells it, for what is below the first screenful."""
    speed = POINTS_PER_SECOND[status["rate"]] * READING_SCALE
    seconds = max(math.floor(status["maximumScrollPosition"] / speed / 5 + 0.5) * 5, 5)
    minutes, rest = divmod(seconds, 60)
    return f"{rest}s" if not minutes else f"{minutes}m" if not rest else f"{minutes}m{rest}s"


class Journey(AccessibleTestCase):
    desktop_options = {"size": (2464, 1000), "panel": False, "monitors": MONITORS[0]}

    def setUp(self):
        super().setUp()
        self.install_obsidian()
        self.write_settings(enabledSourceTypes=["clipboard", "obsidian"])
        is_sanitized = b"__asan_init" in pathlib.Path(self.binary()).read_bytes()
        self.memory_limit = MOST_MEMORY_KIB * (SANITIZER_MEMORY if is_sanitized else 1)
        self.clipboard = Clipboard(self.desktop)
        self.counts = {}  # words, by text
        self.most_memory = 0
        self.start()
        self.control_client = ControlClient(self.socket_path())
        self.done = []

    def install_obsidian(self):
        """With our plug-in, so that switching Obsidian on asks nothing."""
        obsidian = Obsidian(self.desktop.home)
        obsidian.install()
        obsidian.add_vault(plugins=[PLUGIN])
        folder = obsidian.vault / ".obsidian/plugins" / PLUGIN
        shutil.copytree(PLUGIN_FILES, folder)

    def start(self, *arguments):
        super().start(*arguments)
        self.frame_at_folding, self.was_placed_folded = None, False

    def wait_for_source(self, source):
        self.settle(lambda now: now["source"] == source, f"the source is {source}")

    def answers(self):
        try:
            return bool(self.status())
        except (OSError, socket.timeout):
            return False

    def find(self, window, role, name):
        """The control; None when the window does not show it."""
        for found in self.open_windows(window):
            controls = found.find_all(role, name)
            if controls:
                return controls[0]
        return None

    def words_of(self, text):
        if text not in self.counts:
            path = self.desktop.folder / "counted.md"
            path.write_bytes(text.encode())
            output = self.desktop.run(self.binary(), "render", "--format", "json", path)
            self.counts[text] = json.loads(output)["wordCount"]
        return self.counts[text]

    # What has to hold

    def check(self, reader):
        self.assertTrue(self.prompter.running, "it runs")
        words = self.words_of(reader.shown)
        status = self.settle(lambda now: now["words"] == words, f"{words} words are shown")
        self.check_folding(status)
        if not status["collapsed"]:
            self.settle(lambda now: now["time"] == reading_time(now), "the time is right")
        status = self.status()
        self.assertGreaterEqual(status["scrollPosition"], 0)
        self.assertLessEqual(status["scrollPosition"], status["maximumScrollPosition"])
        self.check_settings(status)
        self.check_place(status)
        self.check_memory()
        self.check_output()

    def settle(self, holds, what):
        """The status, once something that takes its time holds."""
        last = {}

        def settled():
            last.update(self.status())
            return holds(last)

        try:
            wait_until(settled, what)
        except AssertionError as failure:
            raise AssertionError(f"{failure}: {last}") from None
        return last

    def check_settings(self, status):
        settings = self.settings()
        kept = ("activeSourceType", "scrollRate", "scrollSpeed", "autoScrollEnabled")
        told = ("source", "rate", "speed", "autoScroll")
        self.assertEqual([settings[name] for name in kept], [status[name] for name in told])
        self.assertTrue(settings["hasCompletedOnboarding"])
        enabled = ["clipboard"] + ["obsidian"] * self.reader.obsidian_is_enabled
        self.assertEqual(sorted(settings["enabledSourceTypes"]), enabled)
        self.assertTrue(0 <= settings["scrollSpeed"] <= 5, settings)
        self.assertTrue(0 < settings["lastNonZeroScrollSpeed"] <= 5, settings)

    def wanted_frame(self):
        settings, monitors = self.settings(), self.desktop.monitors()
        chosen = self.reader.screen_numbers.get(settings.get("preferredDisplayID"))
        name = next(n for n in (chosen, "eDP-1", next(iter(monitors))) if n in monitors)
        left, top, screen, _ = monitors[name]
        width = settings["width"]
        x = left + (screen - width) / 2 + settings["xOffset"]
        return (max(left, min(x, left + screen - width)), top, width, settings["height"])

    def check_folding(self, status):
        """Settings that change while the prompter is folded take effect on its height, and on the
        time that the script takes, with the next change after it is unfolded."""
        wanted = self.wanted_frame()
        if status["collapsed"]:
            self.frame_at_folding = self.frame_at_folding or self.last_frame
            self.was_placed_folded |= wanted != self.frame_at_folding
            return
        self.last_frame = wanted
        if self.frame_at_folding:
            if not self.was_placed_folded:
                self.check_place(status)
            self.frame_at_folding, self.was_placed_folded = None, False
            self.control_client.send("rate", status["rate"])

    def check_place(self, status):
        """The prompter hangs where the settings and the screens say."""
        if not status["visible"]:
            return
        wanted = self.wanted_frame()
        if status["collapsed"]:
            wanted = wanted[:3]  # any height

        def is_there():
            place = self.desktop.geometry(self.window)
            return all(abs(a - b) <= 1 for a, b in zip(place, wanted))

        try:
            wait_until(is_there, f"the prompter hangs at {wanted}")
        except AssertionError as failure:
            raise AssertionError(f"{failure}: {self.desktop.geometry(self.window)}") from None

    def check_memory(self):
        now = resident(self.prompter.pid)
        self.most_memory = max(self.most_memory, now)
        self.assertLess(now, self.memory_limit)

    def check_output(self):
        lines = (self.prompter.stderr() + self.prompter.stdout()).splitlines()
        unexpected = [line for line in lines if not EXPECTED_OUTPUT.search(line)]
        self.assertEqual(unexpected, [])

    def look(self):
        """What takes longer to see."""
        history = self.support_folder() / "analytics.json"
        if history.exists():
            self.assertIsInstance(json.loads(history.read_text()), list)
        status = self.status()
        self.assertEqual(status["visible"], self.prompter_is_shown())
        if not status["visible"]:
            return
        wait_until(self.label_is_right, "the label tells the words and the time")

    def label_is_right(self):
        status = self.status()
        label = f"{status['words']} words • ~{status['time']}"
        return self.find("Tessaline", "label", label)

    # The way

    def test_nothing_that_a_reader_does_breaks_anything(self):
        print(f"seed {SEED}, {ACTIONS} actions", file=sys.stderr)
        self.reader = Reader(self, random.Random(SEED))
        self.last_frame = self.wanted_frame()
        acts = self.reader.random.choices(
            list(journey_reader.WEIGHTS), journey_reader.WEIGHTS.values(), k=ACTIONS
        )
        began = time.monotonic()
        try:
            for number, act in enumerate(acts, 1):
                self.done.append([act.__name__, None])
                self.done[-1][1] = act(self.reader)
                self.check(self.reader)
                if number % LOOK_EVERY == 0:
                    self.look()
        except BaseException:
            self.report()
            raise
        seconds = time.monotonic() - began
        print(
            f"{len(acts)} actions in {seconds:.0f} s, at most {self.most_memory} KiB of memory",
            file=sys.stderr,
        )

    def report(self):
        print(f"seed {SEED}; what was done:", file=sys.stderr)
        for number, (name, how) in enumerate(self.done, 1):
            print(f"{number:5} {name}: {how}", file=sys.stderr)
        print(f"the reader expects {self.reader.describe()}", file=sys.stderr)
        try:
            print(f"status: {self.status()}\nsettings: {self.settings()}", file=sys.stderr)
            print(f"window: {self.desktop.geometry(self.window)}", file=sys.stderr)
        except Exception as failure:  # the report must not hide what broke
            print(f"no state: {failure!r}", file=sys.stderr)


if __name__ == "__main__":
    unittest.main()
