"""The base of the scenarios that use the program's windows as a screen reader shows them."""

from .tessaline import TessalineTestCase
from .waiting import wait_until


class AccessibleTestCase(TessalineTestCase):
    """Finds controls by window, role and name, and works them with the real mouse and keys."""

    accessible = True

    def open_windows(self, title):
        """The accessible windows on show with this title."""
        return self.desktop.accessibility.windows(self.prompter.pid, title)

    def open_window(self, title):
        """The accessible window with this title, read anew."""
        return wait_until(lambda: self.open_windows(title), f"the window {title} is on show")[0]

    def wait_until_closed(self, title):
        wait_until(lambda: not self.open_windows(title), f"the window {title} is closed")

    def dismiss(self, title, key="Escape"):
        """Closes a window with a key, once it has the keyboard."""
        wait_until(lambda: "active" in self.open_window(title).states, f"{title} has the keyboard")
        self.desktop.key(key)
        self.wait_until_closed(title)

    def control(self, window, role, name):
        """What is on show in a window with this role and name, read anew."""

        def found():
            return self.open_window(window).find_all(role, name)

        controls = wait_until(found, f"{window} shows the {role} {name}")
        self.assertEqual(len(controls), 1, controls)
        return controls[0]

    def wait_for_state(self, state, window, role, name, present=True):
        """Waits until a control has, or no longer has, a state such as "checked"."""
        wait_until(
            lambda: (state in self.control(window, role, name).states) == present,
            f"the {role} {name} of {window} is {'' if present else 'not '}{state}",
        )

    def wait_for_text(self, window, text):
        wait_until(lambda: text in self.open_window(window).texts(), f"{window} says {text}")

    def click_on(self, node):
        self.desktop.click(*node.center)

    def press(self, window, name):
        self.click_on(self.control(window, "push button", name))
