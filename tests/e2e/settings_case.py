"""What the scenarios of the settings window have in common."""

from harness import wait_until
from harness.accessible_case import AccessibleTestCase
from harness.obsidian import Obsidian
from harness.tessaline import SETTINGS

TITLE = "Settings"
WIDTH, HEIGHT = 450, 256
KNOB = 15
CONTROLS = [
    ("check box", "Obsidian"),
    ("combo box", "Clipboard"),
    ("combo box", "Auto"),
    ("slider", "Width"),
    ("slider", "Height"),
    ("slider", "Font Size"),
    ("slider", "Position"),
    ("combo box", "Medium"),
]


class SettingsTestCase(AccessibleTestCase):
    desktop_options = {"size": (1280, 1024)}
    title = TITLE

    def setUp(self):
        super().setUp()
        self.screen_width, self.screen_height = self.desktop.size
        self.left = (self.screen_width - WIDTH) // 2
        self.obsidian = Obsidian(self.desktop.home)

    def open_settings(self):
        """Presses the gear in the prompter's strip."""
        self.press("Tessaline", "Settings")
        self.window_of_settings = self.desktop.wait_for_window(SETTINGS, self.prompter.pid)
        self.desktop.wait_for_keyboard(self.window_of_settings)

    def start_with_settings(self, *arguments):
        self.start(*arguments)
        self.open_settings()

    def settings_are_open(self):
        return bool(self.desktop.windows(SETTINGS, self.prompter.pid))

    def last_row(self):
        return self.control(self.title, "label", "Shortcuts in Any Application")

    def prompter_area(self):
        return self.desktop.geometry(self.window)

    def wait_for_prompter_area(self, *area):
        wait_until(lambda: self.prompter_area() == area, f"the prompter is at {area}")

    def slider(self, name):
        return self.control(self.title, "slider", name)

    def place_of(self, slider, value):
        """Where on the screen the knob's middle is for a value."""
        x, y, width, height = slider.area
        low, high = slider.range
        reach = (width - KNOB) * (value - low) / (high - low)
        return round(x + KNOB / 2 + reach), y + height // 2

    def grab(self, name):
        """Presses the mouse on a slider's knob; it stays down."""
        slider = self.slider(name)
        self.desktop.move_mouse(*self.place_of(slider, slider.value))
        self.desktop.press_button()
        return slider

    def drag(self, name, value):
        """Drags a slider's knob to a value; the mouse stays down."""
        self.desktop.move_mouse(*self.place_of(self.grab(name), value))

    def choose(self, shown, wanted):
        """Chooses another entry of a popup with the mouse."""
        self.click_on(self.control(self.title, "combo box", shown))
        self.click_on(self.control(self.title, "list item", wanted))
        self.control(self.title, "combo box", wanted)

    def frame(self):
        """The upper and the lower edge of the window manager's frame around the window."""
        _, top, _, height = self.open_window(self.title).area
        extents = self.desktop.property(self.window_of_settings, "_NET_FRAME_EXTENTS")
        _, _, above, below = map(int, extents.split(","))
        return top - above, top + height + below

    def wait_for_top(self, top):
        wait_until(lambda: self.frame()[0] == top, f"the top of the window is at {top}")

    def focused(self):
        """(role, name) of what has the keyboard in the window; None if nothing has."""
        for node in self.open_window(self.title).shown():
            if "focused" in node.states:
                return node.role, node.name
        return None

    def wait_for_focus(self, role, name):
        wait_until(lambda: self.focused() == (role, name), f"the {role} {name} has the keyboard")

    def focus(self, role, name):
        """Goes to a control with the Tab key."""
        here = self.focused()
        for _ in range(len(CONTROLS) + 3):
            if here == (role, name):
                return
            self.desktop.key("Tab")
            here = wait_until(lambda left=here: self.next_focus(left), "the next one has the keys")
        self.fail(f"Tab does not come to the {role} {name}")

    def next_focus(self, left):
        """What has the keyboard, once it is not what had it."""
        here = self.focused()
        return here if here != left else None
