"""The prompter in a Wayland session through its X server, as where there are no layers."""

from harness import wait_until
from harness.wayland import WaylandTestCase, main

TEXT = (440, 60, 400, 150)


class ThroughAnXServer(WaylandTestCase):
    desktop_options = {"xwayland": True, "panel": True}

    def start(self, *arguments):
        super().start(*arguments, TESSALINE_PLATFORM="x11")

    def test_hangs_above_panel_and_windows_and_scrolls_by_the_wheel(self):
        other = self.start_other("fullscreen")
        other.wait_for_keyboard()
        self.start(self.write_script("A line of a talk\n\n" * 100))
        wait_until(lambda: self.desktop.region(*TEXT) != [bytes(3 * 400)] * 150, "a text is shown")
        before = self.desktop.region(*TEXT)
        self.desktop.move_mouse(640, 150)
        self.desktop.hands("click", 5)
        wait_until(lambda: self.desktop.region(*TEXT) != before, "the text has moved")
        self.desktop.type("Hello, you!")
        wait_until(lambda: other.keys() == "Hello, you!", "the keys went where they went before")


if __name__ == "__main__":
    main()
