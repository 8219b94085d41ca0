"""What a reader does in a week, one thing at a time."""

import json
import signal

from event_tap_case import TOGGLE, WHEEL_DOWN, WHEEL_UP
from harness.tessaline import SETTINGS
from harness.waiting import wait_until
from journey_scripts import any_script
from journey_settings import SettingsHands

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
HURRIED = (
    "toggle faster slower up down next-heading previous-heading top hide show minimize expand"
).split()
ELSEWHERE = (150, 850)


class Reader(SettingsHands):
    """Every method without underscore is something that a reader does, and returns how."""

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
        self.desktop.hands("mousemove", *button.center, "click", 1)
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
        self.desktop.hands("mousemove", *ELSEWHERE)
        return self._control_and_wheel("elsewhere")

    def turns_the_wheel_with_control_over_the_text(self):
        return self._over_text() or self._control_and_wheel("over the text")

    def _control_and_wheel(self, where):
        button, delta = self.random.choice(((WHEEL_UP, -80), (WHEEL_DOWN, 80)))

        def turn():
            self.desktop.hands("keydown", "ctrl", "click", button, "keyup", "ctrl")
            return f"{button} {where}"

        return self._moves(delta, turn)

    def clicks_with_control(self):
        before = self._status()["autoScroll"]
        self.desktop.hands("mousemove", *ELSEWHERE, "keydown", "ctrl", "click", 2, "keyup", "ctrl")
        wait_until(lambda: self._status()["autoScroll"] != before, "it toggled", 3)
        return f"from {before}"

    def presses_the_chord(self):
        before = self._status()["autoScroll"]
        self.desktop.hands("key", TOGGLE)
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
        self.desktop.hands("mousemove", x + offset, y + STRIP_MIDDLE, "click", 1)
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

    def hurries(self):
        """Many things at once, none of them waited for."""
        chosen = self.random.choices(HURRIED, k=15)
        for word in chosen:
            self.case.control_client.send(word)
        return " ".join(chosen)

    def starts_it_again(self):
        self.case.assertEqual(self.case.call()[0], 0)
        wait_until(lambda: self._status()["visible"], "the prompter is shown")

    def opens_the_menu_and_closes_it(self):
        missing = self._over_text("click", 3)
        if missing:
            return missing
        pid = self.case.prompter.pid
        before = len(self.desktop.windows(pid=pid))
        self.desktop.hands("key", "Escape")
        wait_until(lambda: len(self.desktop.windows(pid=pid)) <= before, "the menu is closed")
        return None

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
    Reader.hurries: 3,
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
