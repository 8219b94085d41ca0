"""What a reader does in a week, one thing at a time, and what is to be on show then."""

import json
import signal
import time

from event_tap_test import TOGGLE, WHEEL_DOWN, WHEEL_UP
from harness.tessaline import SETTINGS
from harness.waiting import wait_until
from journey_scripts import any_script

NOTEBOOK = {"eDP-1": (0, 0, 1440, 1000)}
PROJECTOR = {"HDMI-1": (1440, 0, 1024, 768)}
MONITORS = (
    {**NOTEBOOK, **PROJECTOR},
    NOTEBOOK,
    PROJECTOR,
    {**PROJECTOR, **NOTEBOOK},
)
CLOSE, MINIMIZE, GEAR, AUTO_SCROLL = 16, 36, 58, 82  # buttons, from the prompter's left edge
STRIP_MIDDLE = 12
WAITING = "Waiting for content from Obsidian...\n\nUse 'Send to Tessaline' command in Obsidian."
PLACEHOLDER = "PLACEHOLDER"
SLIDERS = ("Width", "Height", "Font Size", "Position")
ELSEWHERE = (150, 850)


class Reader:
    """Every method without underscore is something that a reader does. Returns how, for the report.
    `shown` is the text that the prompter is to show afterwards."""

    def __init__(self, case, random):
        self.case = case
        self.desktop = case.desktop
        self.random = random
        self.shown = PLACEHOLDER
        self.kept = None  # the clipboard source's text
        self.followed = None
        self.note = None  # the Obsidian source's text
        self.screen_numbers = {}  # by number: the names of those that were chosen
        self.obsidian_is_enabled = True
        self.number = 0

    # Helpers

    def _status(self):
        return self.case.status()

    def _ctl(self, *words):
        status, output, error = self.case.call("ctl", *words)
        self.case.assertEqual((status, error), (0, ""), words)
        return f"{' '.join(map(str, words))}: {output.strip()}"

    def _xdotool(self, *words):
        self.desktop.run("xdotool", *words)

    def _prompter_area(self):
        """None while there is nothing of the text to be seen."""
        status = self._status()
        if not status["visible"] or status["collapsed"]:
            return None
        return self.desktop.geometry(self.case.window)

    def _over_text(self, *then):
        area = self._prompter_area()
        if not area:
            return "nothing to be seen"
        self._xdotool("mousemove", area[0] + area[2] // 2, area[1] + 70, *then)
        return None

    def _keys(self, *keys):
        missing = self._over_text("click", 1)
        if missing:
            return missing
        wait_until(
            lambda: self.desktop.focused_window() == self.case.window, "the prompter has the keys"
        )
        self._xdotool("key", *keys)
        return " ".join(keys)

    def _script(self):
        """A file with a new text."""
        kind, text = any_script(self.random)
        self.number += 1
        path = self.desktop.home / f"talk-{self.number % 5}.md"
        return path, kind, text

    def _take(self, text):
        """The program took a text in as if it had been pasted."""
        if text:
            self.shown = self.kept = text

    def _choose_clipboard(self):
        self.shown = self.kept or PLACEHOLDER

    def _choose_obsidian(self):
        self.followed = None
        self.shown = WAITING if self.note is None else self.note

    def _moves(self, delta, act):
        """Does something that scrolls by so many points, and sees whether it did."""
        before = self._status()
        what = act()
        if before["autoScroll"] or len(self.shown) > 10000 or what == "nothing to be seen":
            return what

        def moved():
            after = self._status()
            maximum = after["maximumScrollPosition"]
            if maximum != before["maximumScrollPosition"]:
                return True
            expected = min(max(before["scrollPosition"] + delta, 0), maximum)
            return abs(after["scrollPosition"] - expected) < 0.01

        wait_until(moved, f"{what} scrolls by {delta} from {before}", 3)
        return what

    # Texts

    def copies_elsewhere(self):
        kind, text = any_script(self.random)
        self.case.clipboard.offer(text.encode())
        return kind

    def pastes(self):
        data = self.case.clipboard.read()
        self.followed = None
        how = self._ctl("paste") if self.random.random() < 0.5 else self._keys("ctrl+v")
        if how == "nothing to be seen":
            return how
        if data:
            self._take(data.decode())
        return f"{how}, {len(data or b'')} bytes"

    def opens_a_file(self):
        path, kind, text = self._script()
        path.write_bytes(text.encode())
        self.followed = None
        self.case.assertEqual(self.case.call(path)[0], 0)
        self._take(text)
        return f"{path.name}: {kind}"

    def follows_a_file(self):
        path, kind, text = self._script()
        path.write_bytes(text.encode())
        self.case.assertEqual(self.case.call("--follow", path)[0], 0)
        self._take(text)
        self.followed = path
        return f"{path.name}: {kind}"

    def edits_the_followed_file(self):
        if not self.followed:
            return self.follows_a_file()
        kind, text = any_script(self.random)
        if self.random.random() < 0.5:
            text = self.followed.read_bytes().decode() + "\n\nOne more line."
        self.followed.write_bytes(text.encode())
        self._take(text)
        return f"{kind}, {len(text)} characters"

    def sends_a_note(self):
        kind, text = any_script(self.random)
        beside = self.case.support_folder() / "beside.md"
        beside.write_bytes(text.encode())
        beside.replace(self.case.support_folder() / "tessaline-content.md")
        self.note = text
        if self._status()["source"] == "obsidian":
            self.shown = text
        return kind

    def spoils_the_note(self):
        """Puts something in the note's place that is no text: what is shown stays."""
        file = self.case.support_folder() / "tessaline-content.md"
        file.unlink(missing_ok=True)
        if self.random.random() < 0.5:
            file.write_bytes(b"\xff\xfe no text \x80")
        self.note = None

    def switches_obsidian_on_or_off(self):
        switch = self._settings_control("check box", "Obsidian")
        if not switch:
            return "out of reach"
        self._xdotool("mousemove", *switch.center, "click", 1)
        self.obsidian_is_enabled = not self.obsidian_is_enabled
        if self.obsidian_is_enabled:
            return "on"
        self.case.wait_for_source("clipboard")
        self._choose_clipboard()
        return "off"

    def chooses_a_source(self):
        source = self.random.choice(("clipboard", "obsidian"))
        if source == "obsidian" and not self.obsidian_is_enabled:
            self.case.assertEqual(self.case.call("ctl", "source", source)[0], 1)
            return "obsidian is refused"
        how = self._ctl("source", source)
        self._choose_clipboard() if source == "clipboard" else self._choose_obsidian()
        return how

    def cycles_the_sources(self):
        area = self._prompter_area()
        button = self.case.find("Tessaline", "push button", "Toggle content source")
        if not area or not button:
            return "nothing to be seen"
        before = self._status()["source"]
        self._xdotool("mousemove", *button.center, "click", 1)
        if not self.obsidian_is_enabled:
            return "there is one only"
        wait_until(lambda: self._status()["source"] != before, "another source is active")
        self._choose_clipboard() if before == "obsidian" else self._choose_obsidian()
        return f"away from {before}"

    def selects_and_copies(self):
        return self._keys("ctrl+a", "ctrl+c")

    # Scrolling

    def tells_the_text_to_move(self):
        return self._ctl(self.random.choice(("toggle", "play", "pause")))

    def stops_the_text(self):
        return self._ctl("pause")

    def changes_the_speed(self):
        return self._ctl(
            *self.random.choice(
                [("faster",), ("slower",), ("speed", round(self.random.uniform(0, 5), 2))]
                + [("rate", rate) for rate in ("slow", "medium", "fast")]
            )
        )

    def steps(self):
        word, delta = self.random.choice((("up", -40), ("down", 40)))
        return self._moves(delta, lambda: self._ctl(word))

    def jumps(self):
        return self._ctl(self.random.choice(("top", "next-heading", "previous-heading")))

    def turns_the_wheel(self):
        button = self.random.choice((WHEEL_UP, WHEEL_DOWN))
        count = self.random.randint(1, 10)
        clicks = ["click", "--repeat", count, "--delay", 5, button]
        return self._over_text(*clicks) or f"{button} {count} times"

    def turns_the_wheel_with_control(self):
        self._xdotool("mousemove", *ELSEWHERE)
        return self._control_and_wheel("elsewhere")

    def turns_the_wheel_with_control_over_the_text(self):
        return self._over_text() or self._control_and_wheel("over the text")

    def _control_and_wheel(self, where):
        button, delta = self.random.choice(((WHEEL_UP, -80), (WHEEL_DOWN, 80)))

        def turn():
            self._xdotool("keydown", "ctrl", "click", button, "keyup", "ctrl")
            return f"{button} {where}"

        return self._moves(delta, turn)

    def clicks_with_control(self):
        before = self._status()["autoScroll"]
        self._xdotool("mousemove", *ELSEWHERE, "keydown", "ctrl", "click", 2, "keyup", "ctrl")
        wait_until(lambda: self._status()["autoScroll"] != before, "it toggled", 3)
        return f"from {before}"

    def presses_the_chord(self):
        before = self._status()["autoScroll"]
        self._xdotool("key", TOGGLE)
        wait_until(lambda: self._status()["autoScroll"] != before, "it toggled", 3)
        return f"from {before}"

    def presses_control_and_an_arrow(self):
        key, delta = self.random.choice((("ctrl+Up", -40), ("ctrl+Down", 40)))
        return self._moves(delta, lambda: self._keys(key))

    def presses_keys(self):
        keys = ("Next", "Prior", "Home", "End", "Up", "Down", "ctrl+Home", "ctrl+End", "shift+Down")
        return self._keys(*self.random.choices(keys, k=self.random.randint(1, 6)))

    def watches_the_text_move(self):
        status = self._status()
        room = status["maximumScrollPosition"] - status["scrollPosition"]
        if not status["autoScroll"] or status["speed"] == 0 or room < 10:
            return "it does not move"
        start = status["scrollPosition"]
        wait_until(lambda: self._status()["scrollPosition"] != start, "the text moves", 3)
        return f"from {start}"

    # Windows

    def presses_a_button_of_the_strip(self):
        status = self._status()
        if not status["visible"]:
            return "nothing to be seen"
        x, y, _, _ = self.desktop.geometry(self.case.window)
        name, offset = self.random.choice(
            (("close", CLOSE), ("minimize", MINIMIZE), ("gear", GEAR), ("auto-scroll", AUTO_SCROLL))
        )
        self._xdotool("mousemove", x + offset, y + STRIP_MIDDLE, "click", 1)
        key = {"close": "visible", "minimize": "collapsed", "auto-scroll": "autoScroll"}.get(name)
        if key:
            wait_until(lambda: self._status()[key] != status[key], f"{name} does its work", 3)
        else:
            self.desktop.wait_for_window(SETTINGS, self.case.prompter.pid)
        return name

    def folds(self):
        return self._ctl(self.random.choice(("minimize", "expand", "expand")))

    def hides(self):
        return self._ctl(self.random.choice(("hide", "show", "show")))

    def starts_it_again(self):
        self.case.assertEqual(self.case.call()[0], 0)
        wait_until(lambda: self._status()["visible"], "the prompter is shown")

    def opens_the_menu_and_closes_it(self):
        missing = self._over_text("click", 3)
        if missing:
            return missing
        pid = self.case.prompter.pid
        before = len(self.desktop.windows(pid=pid))
        self._xdotool("key", "Escape")
        wait_until(lambda: len(self.desktop.windows(pid=pid)) <= before, "the menu is closed")
        return None

    def opens_the_settings(self):
        how = self._ctl("settings")
        self.desktop.wait_for_window(SETTINGS, self.case.prompter.pid)
        return how

    def closes_the_settings(self):
        windows = self.desktop.windows(SETTINGS, self.case.prompter.pid)
        if not windows:
            return "not open"
        self.desktop.activate(windows[0])
        self._xdotool("key", "alt+F4")
        wait_until(
            lambda: not self.desktop.windows(SETTINGS, self.case.prompter.pid), "they are closed"
        )
        return "closed"

    def _settings_control(self, role, name):
        """A control of the settings window, opened if need be; None where no mouse gets to it."""
        self.opens_the_settings()
        control = self.case.find("Settings", role, name)
        if not control:
            return None
        x, y, width, height = control.area
        self._over_text()  # where the pointer hovers is above
        reachable = any(
            left <= x and x + width <= left + w and top <= y and y + height <= top + h
            for left, top, w, h in self.desktop.monitors().values()
        )
        return control if reachable else None

    def moves_a_slider(self):
        name = self.random.choice(SLIDERS)
        control = self._settings_control("slider", name)
        if not control:
            return f"{name} is out of reach"
        x, y, width, _ = control.area
        target = x + self.random.randint(4, width - 4)
        middle = control.center[1]
        if self.random.random() < 0.5:
            self._xdotool("mousemove", target, middle, "click", 1)
            keys = self.random.choices(("Left", "Right", "Next", "Prior", "Home", "End"), k=3)
            self._xdotool("key", *keys)
            return f"{name} to {target - x} of {width}, then {keys}"
        self._xdotool(
            "mousemove", target, middle, "mousedown", 1, "mousemove", x + width // 3, middle,
            "mousemove", x + width // 2, middle, "mouseup", 1,
        )
        return f"{name} dragged from {target - x} of {width}"

    def chooses_the_rate_in_the_settings(self):
        return self._choose_in_popup({"slow": "Slow", "medium": "Medium", "fast": "Fast"}[
            self._status()["rate"]
        ])

    def chooses_the_screen_in_the_settings(self):
        numbers = self.screen_numbers
        name = numbers.get(self.case.settings().get("preferredDisplayID"), "Auto")
        # A screen that is away is shown as "Auto".
        shown = name if name in self.desktop.monitors() else "Auto"
        how = self._choose_in_popup(shown)
        number = self.case.settings().get("preferredDisplayID")
        if number is not None and number not in numbers:
            popups = [
                node.name
                for node in self.case.open_window("Settings").find_all("combo box")
                if node.name in ("eDP-1", "HDMI-1")
            ]
            self.case.assertEqual(len(popups), 1, popups)
            numbers[number] = popups[0]
        return how

    def chooses_the_source_in_the_settings(self):
        before = self._status()["source"]
        how = self._choose_in_popup(before.capitalize())
        after = self._status()["source"]
        if after == before:
            return how + ": the same"
        self._choose_clipboard() if after == "clipboard" else self._choose_obsidian()
        return how

    def _choose_in_popup(self, shown):
        control = self._settings_control("combo box", shown)
        if not control:
            return f"{shown} is out of reach"
        self.desktop.activate(self.desktop.windows(SETTINGS, self.case.prompter.pid)[0])
        self._xdotool("mousemove", *control.center, "click", 1)
        time.sleep(0.2)
        keys = [self.random.choice(("Up", "Down")), "Return"]
        self._xdotool("key", *keys)
        time.sleep(0.2)
        return f"{shown}, then {keys}"

    def plugs_monitors(self):
        monitors = self.random.choice(MONITORS)
        self.desktop.set_monitors(monitors)
        return ", ".join(monitors)

    # Ends

    def _starts(self, *arguments):
        self.case.check_output()
        self.case.start(*arguments)
        wait_until(self.case.answers, "the program answers")
        self.followed = None
        if self._status()["source"] == "obsidian":
            self._choose_obsidian()
        else:
            self._choose_clipboard()

    def kills_it(self):
        self.case.prompter.send(signal.SIGKILL)
        self.case.prompter.wait()
        self._starts()

    def quits(self):
        if self.random.random() < 0.5:
            how = self._ctl("quit")
        else:
            self.case.prompter.send(signal.SIGTERM)
            how = "SIGTERM"
        self.case.assertEqual(self.case.prompter.wait(), 0)
        path, kind, text = self._script()
        if self.random.random() < 0.5:
            self._starts()
            return how
        path.write_bytes(text.encode())
        self._starts(path)
        self._take(text)
        if text:
            self.case.wait_for_source("clipboard")
        return f"{how}, then opens {kind}"

    def describe(self):
        return json.dumps(
            {
                "shown": self.shown[:200],
                "length": len(self.shown),
                "followed": str(self.followed),
                "note": None if self.note is None else len(self.note),
            }
        )


WEIGHTS = {
    Reader.copies_elsewhere: 6,
    Reader.pastes: 8,
    Reader.opens_a_file: 6,
    Reader.follows_a_file: 4,
    Reader.edits_the_followed_file: 6,
    Reader.sends_a_note: 6,
    Reader.spoils_the_note: 2,
    Reader.switches_obsidian_on_or_off: 2,
    Reader.chooses_a_source: 6,
    Reader.cycles_the_sources: 4,
    Reader.selects_and_copies: 2,
    Reader.tells_the_text_to_move: 6,
    Reader.stops_the_text: 4,
    Reader.changes_the_speed: 8,
    Reader.steps: 6,
    Reader.jumps: 6,
    Reader.turns_the_wheel: 6,
    Reader.turns_the_wheel_with_control: 5,
    Reader.turns_the_wheel_with_control_over_the_text: 5,
    Reader.clicks_with_control: 3,
    Reader.presses_the_chord: 3,
    Reader.presses_control_and_an_arrow: 4,
    Reader.presses_keys: 6,
    Reader.watches_the_text_move: 4,
    Reader.presses_a_button_of_the_strip: 8,
    Reader.folds: 5,
    Reader.hides: 6,
    Reader.starts_it_again: 4,
    Reader.opens_the_menu_and_closes_it: 2,
    Reader.opens_the_settings: 3,
    Reader.closes_the_settings: 4,
    Reader.moves_a_slider: 8,
    Reader.chooses_the_rate_in_the_settings: 2,
    Reader.chooses_the_screen_in_the_settings: 3,
    Reader.chooses_the_source_in_the_settings: 3,
    Reader.plugs_monitors: 4,
    Reader.kills_it: 2,
    Reader.quits: 3,
}
