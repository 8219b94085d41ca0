"""What a reader of the random journey does in the settings window."""

from event_tap_case import WHEEL_DOWN, WHEEL_UP
from harness.tessaline import SETTINGS
from harness.waiting import wait_until
from journey_hands import Hands

MOST_TURNS = 20
SLIDERS = ("Width", "Height", "Font Size", "Position")


class SettingsHands(Hands):
    """Every method without underscore is something that a reader does, and returns how."""

    def opens_the_settings(self):
        how = self._ctl("settings")
        self.desktop.wait_for_window(SETTINGS, self.case.prompter.pid)
        return how

    def closes_the_settings(self):
        windows = self.desktop.windows(SETTINGS, self.case.prompter.pid)
        if not windows:
            return "not open"
        self.desktop.activate(windows[0])
        self.desktop.hands("key", "alt+F4")
        wait_until(
            lambda: not self.desktop.windows(SETTINGS, self.case.prompter.pid), "they are closed"
        )
        return "closed"

    def _settings_control(self, role, name):
        """A control of the settings window, opened and scrolled if need be; None where no mouse gets
        to it."""
        self.opens_the_settings()
        for _ in range(MOST_TURNS):
            control = self.case.find("Settings", role, name)
            if not control:
                return None
            window = self.case.open_window("Settings").area
            if control.lies_in(window):
                monitors = self.desktop.monitors().values()
                return control if any(map(control.lies_in, monitors)) else None
            self._turn_the_wheel_beside_the_controls(window, control.area[1] < window[1])
        return None

    def _turn_the_wheel_beside_the_controls(self, window, up):
        x, y, _, height = window
        button = WHEEL_UP if up else WHEEL_DOWN
        self.desktop.hands("mousemove", x + 5, y + height // 2, "click", button)

    def moves_a_slider(self):
        name = self.random.choice(SLIDERS)
        control = self._settings_control("slider", name)
        if not control:
            return f"{name} is out of reach"
        x, y, width, _ = control.area
        target = x + self.random.randint(4, width - 4)
        middle = control.center[1]
        if self.random.random() < 0.5:
            self.desktop.hands("mousemove", target, middle, "click", 1)
            keys = self.random.choices(("Left", "Right", "Next", "Prior", "Home", "End"), k=3)
            self.desktop.hands("key", *keys)
            return f"{name} to {target - x} of {width}, then {keys}"
        self.desktop.hands(
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
        pid = self.case.prompter.pid
        before = len(self.desktop.windows(pid=pid))
        self.desktop.hands("mousemove", *control.center, "click", 1)
        wait_until(lambda: len(self.desktop.windows(pid=pid)) > before, "the choices are shown")
        keys = [self.random.choice(("Up", "Down")), "Return"]
        self.desktop.hands("key", *keys)
        wait_until(lambda: len(self.desktop.windows(pid=pid)) <= before, "one is chosen")
        return f"{shown}, then {keys}"

    def switches_obsidian_on_or_off(self):
        switch = self._settings_control("check box", "Obsidian")
        if not switch:
            return "out of reach"
        self.desktop.hands("mousemove", *switch.center, "click", 1)
        self.obsidian_is_enabled = not self.obsidian_is_enabled
        if self.obsidian_is_enabled:
            return "on"
        self.case.wait_for_source("clipboard")
        self._choose_clipboard()
        return "off"
