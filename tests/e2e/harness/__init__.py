"""Drives the real program on a desktop of its own: X server, window manager, panel and D-Bus session
that exist for one scenario only. Standard library only."""

from .case import DesktopTestCase
from .desktop import Desktop
from .picture import Picture
from .process import Process
from .tessaline import TessalineTestCase
from .waiting import wait_until

__all__ = ["Desktop", "DesktopTestCase", "Picture", "Process", "TessalineTestCase", "wait_until"]
