"""Mouse, keys, menus and clipboard of the prompter as a surface over the desktop."""

import subprocess

from harness import wait_until
from harness.wayland import main
from harness.wayland.case import BLUE, WIDTH
from layer_case import ELSEWHERE, LEFT, MIDDLE, PLACE, LayerTestCase

LOW = (640, 230)
SELECT_ALL, COPY = 32, 11  # below the corner of the menu
BELOW = (720, 270, 60, 20)  # what the menu covers below the prompter
GEAR = (LEFT + 58, 12)
FIRST_LINE = (LEFT + 30, 63)


class Input(LayerTestCase):
    def setUp(self):
        super().setUp()
        self.start()

    def wait_for_position(self, accepts, what):
        wait_until(lambda: accepts(self.position()), what)

    def take_keyboard(self):
        self.desktop.click(*MIDDLE)
        self.other.wait_for_keyboard(False)

    def copied(self):
        """The text that another program would paste."""
        command = ["wl-paste", "--no-newline"]
        result = subprocess.run(
            command, env=self.desktop.env, capture_output=True, timeout=20, check=False
        )
        return result.stdout.decode()

    def test_has_the_keyboard_from_a_click_until_the_pointer_leaves_or_escape(self):
        self.desktop.type("before")
        wait_until(lambda: self.other.keys() == "before", "the start left the keyboard where it was")
        self.take_keyboard()
        self.desktop.key("End")
        self.wait_for_position(lambda place: place > 1000, "the prompter got the key")
        self.desktop.move_mouse(*ELSEWHERE)
        self.other.wait_for_keyboard()
        self.take_keyboard()
        self.desktop.key("Home")
        self.wait_for_position(lambda place: place == 0, "the prompter got the key again")
        self.desktop.key("Escape")
        self.other.wait_for_keyboard()
        self.desktop.type("after")
        wait_until(lambda: self.other.keys() == "beforeafter", "the other application has the keys")

    def test_scrolls_by_wheel_and_fingers(self):
        self.desktop.move_mouse(*MIDDLE)
        self.desktop.hands("click", 5)
        self.wait_for_position(lambda place: place > 0, "the wheel moves the text")
        notch = self.position()
        self.desktop.hands("click", 4)
        self.wait_for_position(lambda place: place == 0, "the text is back")
        self.desktop.hands("keydown ctrl click 5 keyup ctrl")
        self.wait_for_position(lambda place: place == notch, "it moves with Control as without")
        self.desktop.hands("click", 4)
        self.wait_for_position(lambda place: place == 0, "the text is back again")
        self.desktop.hands("slide", 0, 40)
        self.desktop.hands("lift")
        self.wait_for_position(lambda place: place == 40, "the text moves with the fingers")

    def test_copies_what_is_dragged_over_and_pastes_what_others_copied(self):
        self.desktop.move_mouse(*FIRST_LINE)
        self.desktop.press_button()
        self.desktop.move_mouse(FIRST_LINE[0] + 300, FIRST_LINE[1])
        self.desktop.release_button()
        self.other.wait_for_keyboard(False)
        self.desktop.key("ctrl+c")
        wait_until(lambda: "line of a talk" in self.copied(), "the line is copied")
        self.desktop.start("wl-copy", ["wl-copy", "--foreground", "Three new words"])
        wait_until(lambda: self.copied() == "Three new words", "another text is offered")
        self.desktop.key("ctrl+v")
        wait_until(lambda: self.status()["words"] == 3, "it is pasted")

    def test_takes_a_file_that_is_dropped(self):
        path = self.desktop.home / "other.md"
        path.write_text("One two three four")
        source = self.start_other("normal", "#ff0000", "--drag", path.as_uri())
        x, y, width, height = self.desktop.geometry(source.window)
        grip = x + width // 2, y + height - 20
        wait_until(lambda: self.desktop.pixel(*grip) == (255, 0, 0), "it is seen where it is to be")
        self.desktop.move_mouse(*grip)
        self.desktop.press_button()
        wait_until(lambda: source.reports("drag"), "the file is dragged")
        for step in range(4):
            self.desktop.move_mouse(MIDDLE[0] + step, MIDDLE[1])
        wait_until(
            lambda: {"event": "action", "action": "copy"} in source.reports("action"),
            "the prompter would take it",
        )
        self.desktop.release_button()
        wait_until(lambda: self.status()["words"] == 4, "the file is shown")

    def test_has_a_menu_that_a_click_elsewhere_closes(self):
        self.desktop.click(*LOW, button=3)
        wait_until(self.menu_is_open, "the menu reaches beyond the prompter")
        self.desktop.click(LOW[0] + 40, LOW[1] + SELECT_ALL)
        wait_until(lambda: not self.menu_is_open(), "something was chosen from it")
        self.desktop.click(*LOW, button=3)
        wait_until(self.menu_is_open, "the menu is open again")
        self.desktop.click(LOW[0] + 40, LOW[1] + COPY)
        wait_until(lambda: self.copied().count("line of a talk") == 100, "all of the text is copied")
        self.desktop.click(*LOW, button=3)
        wait_until(self.menu_is_open, "the menu is open once more")
        self.desktop.click(*ELSEWHERE)
        wait_until(lambda: not self.menu_is_open(), "the menu is closed")

    def menu_is_open(self):
        return any(set(row) != set(bytes(BLUE)) for row in self.desktop.region(*BELOW))

    def test_has_a_tool_tip_and_settings_beside_it(self):
        below_the_gear = (LEFT + 60, 30, 60, 18)
        self.desktop.move_mouse(*GEAR)
        wait_until(
            lambda: any(map(any, self.desktop.region(*below_the_gear))), "the gear says what it does"
        )
        self.desktop.hands("click", 1)
        beside = (LEFT + WIDTH, 0, 200, 400)
        wait_until(
            lambda: bytes(BLUE) not in b"".join(self.desktop.region(*beside)), "the settings are beside it"
        )
        self.assertEqual(self.prompter_area()[:2], PLACE[:2])
        self.desktop.click(beside[0] + 302, 15)
        self.wait_for_area(*PLACE)


if __name__ == "__main__":
    main("wl-copy")
