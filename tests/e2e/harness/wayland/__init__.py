"""Drives the real program in a Wayland session that exists for one test only: a compositor without a
screen, with a mouse and a keyboard that the test works."""

from .case import WaylandTestCase, main
from .sway import Sway

__all__ = ["Sway", "WaylandTestCase", "main"]
