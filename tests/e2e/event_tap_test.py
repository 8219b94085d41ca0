"""Control with the wheel and the buttons, and the shortcut, from any application: what the prompter
gets, and what other applications get."""

import signal
import time
import unittest

from event_tap_case import (
    CONTROL,
    OVER_XEV,
    SHIFT,
    SUPER,
    TOGGLE,
    WHEEL_DOWN,
    WHEEL_UP,
    Application,
    CoreGrab,
    EventTapCase,
    Xev,
    click,
)
from harness import wait_until
from harness.waiting import holds_for


class AnotherApplication(EventTapCase):
    def setUp(self):
        super().setUp()
        self.tap = self.start_tap()
        self.xev = Xev(self.desktop)

    def assert_swallows_everything(self):
        """Everything that is ours with Control, and nothing that is not."""
        scrolls, toggles = self.tap.scrolled(), self.tap.toggles()
        buttons = self.xev.buttons()
        self.click(WHEEL_UP, WHEEL_DOWN, WHEEL_DOWN, 2, 3, 8)
        self.wait_for_scrolls(self.tap, scrolls + [80, -80, -80])
        self.wait_for_toggles(self.tap, toggles + 3)
        self.click(WHEEL_UP, keys=())
        # In order of arrival: whatever came through would be before it.
        self.wait_for_buttons(self.xev, buttons + click(WHEEL_UP))

    def test_does_not_get_what_is_ours(self):
        self.assert_swallows_everything()

    def test_gets_every_button_without_control(self):
        self.click(1, 2, 3, 4, 5, 6, 7, 8, 9, keys=())
        self.wait_for_buttons(self.xev, click(1, 2, 3, 4, 5, 6, 7, 8, 9))
        self.assertEqual((self.tap.scrolled(), self.tap.toggles()), ([], 0))

    def test_gets_every_button_with_other_modifiers(self):
        self.click(2, 3, 4, 5, 8, keys=("shift", "super"))
        self.wait_for_buttons(self.xev, click(2, 3, 4, 5, 8))
        self.assertEqual((self.tap.scrolled(), self.tap.toggles()), ([], 0))

    def test_gets_first_and_fifth_button_and_sideways_wheel_with_control(self):
        self.click(1, 6, 7, 9)
        self.wait_for_buttons(self.xev, click(1, 6, 7, 9))
        self.assertEqual((self.tap.scrolled(), self.tap.toggles()), ([], 0))

    def test_does_not_get_what_is_ours_with_further_modifiers(self):
        for keys in (("ctrl", "shift"), ("ctrl", "alt"), ("ctrl", "super"),
                     ("ctrl", "shift", "alt", "super")):
            with self.subTest(keys=keys):
                before = self.tap.scrolled()
                self.click(WHEEL_UP, keys=keys)
                self.wait_for_scrolls(self.tap, before + [80])
        self.assertEqual(self.xev.buttons(), [])

    def test_does_not_get_what_is_ours_with_lock_keys_on(self):
        for lock in ("Num_Lock", "Caps_Lock", "Num_Lock"):  # Num, both, Caps
            self.desktop.key(lock)
            with self.subTest(pressed=lock):
                self.assert_swallows_everything()

    def test_does_not_get_what_is_ours_on_another_layout(self):
        self.desktop.set_layout("us,ru")
        self.assert_swallows_everything()
        self.keyboard.switch_to_layout(1)
        self.assert_swallows_everything()

    def test_does_not_get_the_release_when_control_goes_up_first(self):
        self.desktop.hands("keydown", "ctrl", "mousedown", "2", "keyup", "ctrl")
        self.desktop.hands("mouseup", "2")
        self.wait_for_toggles(self.tap, 1)
        self.click(1, 2, keys=())
        self.wait_for_buttons(self.xev, click(1, 2))

    def test_gets_the_release_when_control_goes_down_last(self):
        self.desktop.hands("mousedown", "2", "keydown", "ctrl")
        self.desktop.hands("mouseup", "2", "keyup", "ctrl")
        self.wait_for_buttons(self.xev, click(2))
        self.assertEqual(self.tap.toggles(), 0)

    def test_gets_a_wheel_while_its_own_button_is_held(self):
        # A drag with Control belongs to it, the wheel included.
        self.desktop.hands("keydown", "ctrl", "mousedown", "1")
        self.desktop.hands("click", WHEEL_UP)
        self.desktop.hands("mouseup", "1")
        self.wait_for_buttons(self.xev, [("Press", 1), *click(WHEEL_UP), ("Release", 1)])
        # Afterwards the wheel is ours again.
        self.desktop.hands("click", WHEEL_UP, "keyup", "ctrl")
        self.wait_for_scrolls(self.tap, [80])
        self.assert_gets_no_more(self.xev)

    def test_gets_many_clicks_with_control_one_for_one(self):
        self.desktop.hands("keydown", "ctrl")
        self.desktop.hands("click", "--repeat", 50, "--delay", 5, 1)
        self.desktop.hands("keyup", "ctrl")
        self.wait_for_buttons(self.xev, click(1) * 50)

    def test_gets_its_wheel_back_when_we_are_killed(self):
        self.click(WHEEL_UP)
        self.wait_for_scrolls(self.tap, [80])
        self.tap.process.send(signal.SIGKILL)
        self.tap.process.wait()
        self.click(WHEEL_UP, 2, 3, 8)
        self.wait_for_buttons(self.xev, click(WHEEL_UP, 2, 3, 8))

    def test_gets_its_wheel_back_when_we_are_killed_while_control_is_held(self):
        self.desktop.hands("keydown", "ctrl", "click", WHEEL_UP)
        self.wait_for_scrolls(self.tap, [80])
        self.tap.process.send(signal.SIGKILL)
        self.tap.process.wait()
        self.desktop.hands("click", WHEEL_UP, "click", "1", "keyup", "ctrl")
        self.wait_for_buttons(self.xev, click(WHEEL_UP, 1))


class AStoppedPrompter(EventTapCase):
    def test_takes_no_button_from_anybody(self):
        tap, xev = self.start_tap(), Xev(self.desktop)
        self.desktop.hands("keydown", "ctrl", "click", WHEEL_UP)
        self.wait_for_scrolls(tap, [80])
        tap.process.send(signal.SIGSTOP)
        self.desktop.hands("click", 1, "keyup", "ctrl", "click", 1, "click", WHEEL_UP)
        self.wait_for_buttons(xev, click(1, 1, WHEEL_UP))
        tap.process.send(signal.SIGCONT)
        self.click(WHEEL_UP)
        self.wait_for_scrolls(tap, [80, 80])


class TheShortcut(EventTapCase):
    def setUp(self):
        super().setUp()
        self.tap = self.start_tap()
        self.xev = Xev(self.desktop)

    def press(self):
        self.desktop.key(TOGGLE)

    def test_toggles_once_for_a_press_in_another_application(self):
        for number in (1, 2):
            self.press()
            self.wait_for_toggles(self.tap, number)
        self.assert_toggles_no_more(self.tap)
        self.assertNotIn("T", self.xev.keys())

    def test_toggles_with_lock_keys_on(self):
        for number, lock in enumerate(("Num_Lock", "Caps_Lock", "Num_Lock"), 1):
            self.desktop.key(lock)
            self.press()
            self.wait_for_toggles(self.tap, number)
        self.assert_toggles_no_more(self.tap)

    def press_key_number(self, code):
        self.keyboard.press(CONTROL, SHIFT, SUPER, code)

    def wait_for_shortcut(self, code):
        """Until a key toggles with the modifiers: programs hear of another layout in their own time."""
        before = self.tap.toggles()

        def toggles():
            self.press_key_number(code)
            return not holds_for(lambda: self.tap.toggles() == before, 0.1)

        wait_until(toggles, f"key {code} toggles")
        self.assert_toggles_no_more(self.tap)

    def assert_is_no_shortcut(self, code):
        self.press_key_number(code)
        self.assert_toggles_no_more(self.tap)

    def test_is_where_the_layout_has_the_letter(self):
        qwerty_t, dvorak_t = 28, 45
        self.press_key_number(qwerty_t)
        self.wait_for_toggles(self.tap, 1)
        self.desktop.set_layout("dvorak")
        self.wait_for_shortcut(dvorak_t)
        self.assert_is_no_shortcut(qwerty_t)

    def test_follows_a_layout_that_is_switched_to(self):
        qwerty_t, dvorak_t = 28, 45
        self.desktop.set_layout("us,us,ru", "-variant", ",dvorak,")
        self.wait_for_shortcut(qwerty_t)
        self.assert_is_no_shortcut(dvorak_t)
        self.keyboard.switch_to_layout(1)
        self.wait_for_shortcut(dvorak_t)
        self.assert_is_no_shortcut(qwerty_t)
        self.keyboard.switch_to_layout(2)  # without Latin letters: as on the first
        self.wait_for_shortcut(qwerty_t)

    def test_toggles_once_however_long_it_is_held(self):
        self.desktop.use_up()
        self.desktop.run("xset", "r", "rate", "100", "50")
        self.desktop.hands("keydown", "ctrl", "keydown", "shift", "keydown", "super",
                         "keydown", "t")
        self.wait_for_toggles(self.tap, 1)
        # Some repetitions, which nobody else hears of.
        self.assertTrue(holds_for(lambda: self.tap.toggles() == 1, 0.3))
        self.desktop.hands("keyup", "t", "keyup", "super", "keyup", "shift", "keyup",
                         "ctrl")

    def test_is_not_taken_with_alt_or_without_shift(self):
        self.desktop.key("ctrl+shift+super+alt+t", "ctrl+super+t", "t")
        wait_until(lambda: self.xev.keys()[-1:] == ["t"], "xev gets the last key")
        self.assertEqual([key for key in self.xev.keys() if key in "tT"], ["T", "t", "t"])
        self.assertEqual(self.tap.toggles(), 0)


class OurOwnWindow(EventTapCase):
    def start_with_window(self, *arguments):
        tap = self.start_tap("--window", "100,100,400,300", *arguments)
        window = self.desktop.wait_for_window(pid=tap.process.pid)
        wait_until(lambda: self.desktop.focused_window() == window, "it has the keyboard")
        self.desktop.move_mouse(*OVER_XEV)
        return tap

    def test_scrolls_once_for_control_and_the_wheel(self):
        tap = self.start_with_window()
        self.click(WHEEL_UP)
        self.wait_for_scrolls(tap, [80])
        self.click(WHEEL_UP, keys=())
        wait_until(lambda: len(tap.events("wheel")) == 1, "the window gets a plain wheel")
        self.assertEqual(tap.scrolled(), [80])

    def test_toggles_once_for_the_shortcut(self):
        tap = self.start_with_window()
        for number in (1, 2):
            self.desktop.key(TOGGLE)
            self.wait_for_toggles(tap, number)
        self.desktop.key("a")
        wait_until(lambda: tap.events("key"), "the window gets the next key")
        self.assert_toggles_no_more(tap)

    def test_toggles_by_itself_when_another_program_holds_the_shortcut(self):
        holder = Application(self.desktop, "tap", name="holder")
        tap = self.start_with_window()
        self.desktop.key(TOGGLE)
        self.wait_for_toggles(holder, 1)
        self.assertEqual(tap.toggles(), 0)
        holder.process.end()
        self.desktop.key(TOGGLE)
        self.wait_for_toggles(tap, 1)

    def test_pastes_and_scrolls_by_keys(self):
        tap = self.start_with_window()
        self.desktop.key("ctrl+v", "super+v", "ctrl+shift+v", "ctrl+Up", "ctrl+shift+Down", "a")
        wait_until(lambda: ord("A") in [key["code"] for key in tap.events("key")], "a key arrives")
        self.assertEqual(len(tap.events("paste")), 2)
        self.assertEqual(tap.scrolled(), [40, -40])
        self.assertEqual([key["code"] for key in tap.events("key") if key["code"] < 0x1000000],
                         [ord("V"), ord("A")])

    def test_leaves_pasting_with_control_to_a_text_field(self):
        tap = self.start_with_window("--field")
        self.desktop.type("word")
        self.desktop.key("ctrl+a", "ctrl+c", "End", "ctrl+v")
        wait_until(lambda: tap.events("field")[-1:] == [{"event": "field", "text": "wordword"}],
                   "the text is pasted into the field")
        self.assertEqual(tap.events("paste"), [])
        self.desktop.key("super+v")
        wait_until(lambda: tap.events("paste"), "Super + V pastes all the same")


class AnotherHolder(EventTapCase):
    def test_of_one_button_leaves_us_the_others(self):
        holder = Application(self.desktop, "hold", str(WHEEL_UP))
        tap = self.start_tap()
        tap.process.wait_for_output("Another program holds Control with 1 of the pointer's buttons")
        xev = Xev(self.desktop)
        self.click(WHEEL_UP, WHEEL_DOWN, 2)
        self.wait_for_scrolls(tap, [-80])
        self.wait_for_toggles(tap, 1)
        self.assertEqual(xev.buttons(), [])

        holder.process.end()

        def scrolls_up():
            self.click(WHEEL_UP)
            return 80 in tap.scrolled()

        wait_until(scrolls_up, "the button is ours")
        self.assertEqual(tap.process.stderr().count("Another program"), 1)

    def test_of_everything_leaves_us_running_until_it_is_gone(self):
        holder = Application(self.desktop, "tap", name="holder")
        tap = self.start_tap()
        tap.process.wait_for_output("Failed to create scroll event tap")
        self.assertEqual(tap.process.stdout().count("Failed to create"), 1)
        xev = Xev(self.desktop)
        self.click(WHEEL_UP)
        self.wait_for_scrolls(holder, [80])
        self.assertEqual(tap.scrolled(), [])

        holder.process.send(signal.SIGKILL)
        holder.process.wait()

        def scrolls_up():
            self.click(WHEEL_UP)
            return tap.scrolled()

        wait_until(scrolls_up, "the wheel is ours")
        self.desktop.key(TOGGLE)
        self.wait_for_toggles(tap, 1)
        lost = xev.buttons()
        self.click(WHEEL_UP)
        self.click(1, keys=())
        self.wait_for_buttons(xev, lost + click(1))


class AnotherHolderOfTheShortcut(EventTapCase):
    QWERTY_T, DVORAK_T = 28, 45
    MODIFIERS = 0x45  # Control, Shift, Super
    REFUSED = "Another program holds the shortcut"

    def hold(self, key):
        holder = CoreGrab(self.desktop.env["DISPLAY"], key, self.MODIFIERS)
        self.addCleanup(holder.close)
        return holder

    def wait_for_our_toggle(self, tap, key):
        def toggles():
            self.keyboard.press(CONTROL, SHIFT, SUPER, key)
            return tap.toggles()

        wait_until(toggles, "the shortcut is ours")

    def test_keeps_it_whole_until_it_is_gone(self):
        holder = Application(self.desktop, "hold-chord", str(self.QWERTY_T), name="holder")
        tap = self.start_tap()
        tap.process.wait_for_output(self.REFUSED)
        self.desktop.key(TOGGLE)
        self.assert_toggles_no_more(tap)
        holder.process.end()
        self.wait_for_our_toggle(tap, self.QWERTY_T)
        self.assertEqual(tap.process.stderr().count(self.REFUSED), 1)

    def test_keeps_it_when_it_took_it_the_old_way(self):
        holder = self.hold(self.QWERTY_T)
        tap = self.start_tap()
        tap.process.wait_for_output(self.REFUSED)
        self.desktop.key(TOGGLE)
        wait_until(holder.presses, "the other program gets it")
        self.assertEqual(tap.toggles(), 0)
        holder.close()
        self.wait_for_our_toggle(tap, self.QWERTY_T)

    def test_keeps_it_on_the_layout_where_it_has_it(self):
        holder = self.hold(self.DVORAK_T)
        tap = self.start_tap()
        self.desktop.key(TOGGLE)
        self.wait_for_toggles(tap, 1)
        self.desktop.set_layout("dvorak")
        tap.process.wait_for_output("On this keyboard layout another program holds the shortcut")
        self.keyboard.press(CONTROL, SHIFT, SUPER, self.DVORAK_T)
        wait_until(holder.presses, "the other program gets it")
        self.assertEqual(tap.toggles(), 1)
        holder.close()

        def toggles_again():
            self.keyboard.press(CONTROL, SHIFT, SUPER, self.DVORAK_T)
            return tap.toggles() > 1

        wait_until(toggles_again, "the shortcut is ours on this layout too")


class ABusyMainThread(EventTapCase):
    def test_holds_nobody_up(self):
        seconds = 2
        xev = Xev(self.desktop)
        tap = self.start_tap("--busy", str(seconds))
        started = time.monotonic()
        self.click(1, WHEEL_UP, 1, 2, 1)
        self.wait_for_buttons(xev, click(1, 1, 1))
        self.assertLess(time.monotonic() - started, seconds, "it took until the thread was idle")
        self.assertEqual(tap.events("idle again"), [])
        self.wait_for_scrolls(tap, [80])
        self.wait_for_toggles(tap, 1)


if __name__ == "__main__":
    unittest.main()
