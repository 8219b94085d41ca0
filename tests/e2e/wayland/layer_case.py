"""What the scenarios of the prompter as a surface over the desktop have in common."""

from harness.wayland import WaylandTestCase
from harness.wayland.case import HEIGHT, WIDTH

SCREEN = (1280, 800)
LEFT = (SCREEN[0] - WIDTH) // 2
PLACE = (LEFT, 0, WIDTH, HEIGHT)
MIDDLE = (640, 150)
ELSEWHERE = (100, 700)
TALK = "A line of a talk\n\n" * 100


class LayerTestCase(WaylandTestCase):
    """Another application fills the screen and has the keyboard."""

    def setUp(self):
        super().setUp()
        self.other = self.start_other()
        self.other.wait_for_keyboard()
        self.desktop.move_mouse(*ELSEWHERE)

    def start(self, *arguments):
        super().start(*(arguments or [self.write_script(TALK)]))
        self.assertEqual(self.status()["platform"], "wayland")

    def ctl(self, *words):
        self.assertEqual(self.call("ctl", *words)[::2], (0, ""), words)

    def position(self):
        return self.status()["scrollPosition"]
