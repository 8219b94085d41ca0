"""Keys for other windows, from the desktop's portal."""

from harness import wait_until
from harness.accessible_case import AccessibleTestCase
from harness.waiting import repeat_until
from harness.wayland import WaylandTestCase, main
from harness.wayland.shortcuts_portal import FRONT_END, ShortcutsPortal

SETTINGS = "Settings"
GRANT = "Grant Access for Accessibility"
CHORD = "CTRL+SHIFT+LOGO+t"
OFFERED = "faster", "slower", "next-heading", "previous-heading", "show-hide"


class PortalTestCase(WaylandTestCase, AccessibleTestCase):
    desktop_options = {"outputs": ("mode 1280x1100",), "xwayland": True}
    platform = "wayland"

    def setUp(self):
        super().setUp()
        self.write_settings(scrollSpeed=1)

    def start_with_settings(self):
        self.start(self.write_script("# One\n\nA line\n\n" * 100), TESSALINE_PLATFORM=self.platform)
        self.assertEqual(self.status()["platform"], self.reported_platform())
        self.call("ctl", "settings")

    def reported_platform(self):
        return "wayland" if self.platform == "wayland" else "xwayland"

    def wait_for_note(self, text):
        wait_until(
            lambda: any(text in label for label in self.open_window(SETTINGS).texts()),
            f"the settings say {text!r}",
        )

    def moves(self):
        return self.status()["autoScroll"]

    def toggle_by(self, portal, moving):
        """Presses the key. At a start the program looks every other second whether it has it."""
        repeat_until(
            lambda: portal.press("toggle"), lambda: self.moves() == moving, f"the text moves: {moving}"
        )

    def grant(self, portal):
        """Presses the button. An X server hears late that the pointer is over a window of its own."""
        before = portal.questions()
        repeat_until(
            lambda: self.press(SETTINGS, GRANT), lambda: portal.questions() > before, "it asks"
        )


class Portal(PortalTestCase):
    def test_gives_keys_that_the_user_agrees_to_and_changes(self):
        portal = ShortcutsPortal(self.desktop, "no")
        self.start_with_settings()
        self.wait_for_note("can give Tessaline keys")
        self.assertEqual(portal.questions(), 0, "nobody asked for keys")

        self.grant(portal)
        self.wait_for_note("The desktop gave no key")
        self.assertEqual(portal.last_question(), {"toggle": CHORD, **dict.fromkeys(OFFERED, "")})
        portal.user_says("yes")
        self.grant(portal)
        self.wait_for_note(f"{CHORD} starts and stops the text")
        self.assertEqual(self.open_window(SETTINGS).find_all("push button", GRANT), [])

        self.toggle_by(portal, True)
        self.toggle_by(portal, False)
        portal.press("faster")
        wait_until(lambda: self.status()["speed"] == 1.25, "the speed is a step higher")
        portal.press("next-heading")
        wait_until(lambda: self.status()["scrollPosition"] > 0, "the next heading is there")
        portal.press("show-hide")
        self.wait_for_prompter(False)
        portal.press("show-hide")
        self.wait_for_prompter()

        portal.set_key("toggle", "Hyper+Q")
        self.wait_for_note("Hyper+Q starts and stops the text")
        portal.forget()
        self.wait_for_note("can give Tessaline keys")

    def test_is_asked_again_when_it_or_the_program_starts_anew(self):
        portal = ShortcutsPortal(self.desktop)
        self.start_with_settings()
        self.grant(portal)
        self.wait_for_note("starts and stops the text")
        portal.end_front_end()
        self.wait_for_note("This desktop gives programs no keys")
        portal.start_front_end()
        self.wait_for_note("starts and stops the text")
        self.toggle_by(portal, True)

        self.call("ctl", "quit")
        self.prompter.wait()
        self.start_with_settings()
        self.wait_for_note("starts and stops the text")
        self.toggle_by(portal, False)
        self.assertEqual(portal.questions(), 1, "what the user agreed to needs no other question")


class PortalThroughXWayland(PortalTestCase):
    platform = "x11"

    def test_says_over_which_windows_gestures_work(self):
        portal = ShortcutsPortal(self.desktop)
        self.start_with_settings()
        self.wait_for_note("Works over X11 windows:")
        self.wait_for_note("can give Tessaline keys")
        self.grant(portal)
        self.wait_for_note(f"{CHORD} starts and stops the text")


if __name__ == "__main__":
    main(str(FRONT_END))
