"""What the prompter gets of keyboard, fingers and screens through the X server of a Wayland session."""

from harness import wait_until
from harness.accessible_case import AccessibleTestCase
from harness.waiting import repeat_until
from harness.wayland import WaylandTestCase, main

PROMPTER = (640, 150)
ELSEWHERE = (200, 600)
FINGERS = 35  # points
OUTPUTS = {"HEADLESS-1", "HEADLESS-2"}


class XWaylandInput(WaylandTestCase, AccessibleTestCase):
    desktop_options = {"xwayland": True, "outputs": ("mode 1280x1100", "mode 1024x768")}

    def start(self, *arguments):
        super().start(*arguments, TESSALINE_PLATFORM="x11")

    def position(self):
        return self.status()["scrollPosition"]

    def assert_keys_still_go_to(self, other, text):
        before = other.keys()
        self.desktop.type(text)
        wait_until(lambda: other.keys() == before + text, f"{text} is typed where it was before")

    def test_leaves_the_keyboard_to_the_window_that_has_it(self):
        other = self.start_other()
        # Who was given the keyboard just now loses the first keys.
        wait_until(lambda: self.desktop.type("x") or other.keys(), "keys go to the other window")
        self.start(self.write_script("A line of a talk\n\n" * 100))
        self.assert_keys_still_go_to(other, "started")
        self.desktop.click(*PROMPTER)
        wait_until(
            lambda: any("leaves the keyboard" in text for text in self.open_window("Tessaline").texts()),
            "it says how it is driven",
        )
        self.assert_keys_still_go_to(other, "clicked")
        self.call("ctl", "hide")
        self.wait_for_prompter(False)
        self.assert_keys_still_go_to(other, "hidden")
        self.call("ctl", "show")
        self.wait_for_prompter()
        self.assert_keys_still_go_to(other, "shown")
        self.desktop.move_mouse(*ELSEWHERE)
        self.assert_keys_still_go_to(other, "left")

    def test_moves_by_what_fingers_moved(self):
        self.start(self.write_script("A line of a talk\n\n" * 100))
        self.desktop.move_mouse(*PROMPTER)
        wait_until(lambda: self.desktop.hands("slide", 0, 1) or self.position() > 0, "the text moves")
        before = self.position()
        for _ in range(10):
            self.desktop.hands("slide", 0, FINGERS / 10)
        wait_until(lambda: self.position() >= before + FINGERS - 2, "the text has moved")
        self.assertLessEqual(self.position(), before + FINGERS + 2)

    def test_calls_screens_as_the_compositor_does(self):
        self.start(self.write_script("A line of a talk"))
        self.call("ctl", "settings")
        def offered():
            windows = self.desktop.accessibility.windows(self.prompter.pid)
            return {node.name for window in windows for node in window.find_all("list item")}

        repeat_until(
            lambda: self.click_on(self.control("Settings", "combo box", "Auto")),
            lambda: OUTPUTS <= offered(),
            "both outputs are offered by their names",
        )


if __name__ == "__main__":
    main()
