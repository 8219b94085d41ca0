"""The parts of a desktop session, each started by a function that returns once it is usable. They
start programs through `start(name, command)`, so that these are ended whatever goes wrong here."""

import contextlib
import os
import pathlib
import re
import shutil
import subprocess

from .waiting import wait_until
from .x_connection import XConnection

FONTS = pathlib.Path(__file__).resolve().parents[2] / "support/fonts.conf"
PANEL_HEIGHT = 30
PANEL_COLOR = (0, 255, 0)

# How each is started, and a property that it sets near the end of its start, when it takes windows
# already.
WINDOW_MANAGERS = {
    "openbox": (["openbox", "--sm-disable"], "_NET_SHOWING_DESKTOP"),
    "mutter": (["mutter", "--x11", "--sm-disable"], "_NET_WORKAREA"),
}

BUS_WITHOUT_SERVICES = """\
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

PANEL_CONFIG = """\
panel_monitor = {monitor}
panel_position = top center horizontal
panel_size = 100% {height}
panel_items = {items}
panel_layer = top
strut_policy = follow_size
taskbar_mode = multi_desktop
rounded = 0
border_width = 0
background_color = {color} 100
panel_background_id = 1
systray_padding = 4 4 4
systray_icon_size = 22
"""


def require(*programs):
    missing = [program for program in programs if not shutil.which(program)]
    if missing:
        raise RuntimeError("not installed: " + ", ".join(missing))


def home_environment(folder):
    """Makes the folders that are a user's own; the environment that tells where they are."""
    home, runtime = folder / "home", folder / "runtime"
    home.mkdir()
    runtime.mkdir(mode=0o700)
    return {"HOME": str(home), "XDG_RUNTIME_DIR": str(runtime)}


def clean_environment(folder):
    """The environment of a fresh user: nothing of the developer's own session gets in."""
    kept = ("PATH", "LANG", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS")
    env = {name: os.environ[name] for name in kept if name in os.environ}
    env.update(
        home_environment(folder),
        LC_ALL="C.UTF-8",
        DO_NOT_TRACK="1",
        FONTCONFIG_FILE=str(FONTS),
        QT_QPA_PLATFORM="xcb",
        NO_AT_BRIDGE="1",
    )
    return env


def start_x_server(start, env, size):
    """A virtual X server of our own on a free display; its number goes into env."""
    require("Xvfb")
    reading, writing = os.pipe()
    command = ["Xvfb", "-displayfd", writing, "-screen", "0", f"{size[0]}x{size[1]}x24"]
    command += ["-nolisten", "tcp", "-noreset", "+extension", "RANDR", "+extension", "Composite"]
    try:
        server = start("xvfb", command, pass_fds=(writing,))
    finally:
        os.close(writing)
    with os.fdopen(reading) as pipe:
        number = pipe.readline().strip()
    if not number:
        raise RuntimeError("Xvfb did not start:\n" + server.stderr())
    env["DISPLAY"] = ":" + number


def start_bus(start, env, has_services=True):
    """A D-Bus session of our own; its address goes into env. It starts this machine's services when
    somebody asks for them, or nothing."""
    require("dbus-daemon")
    address = f"unix:path={env['XDG_RUNTIME_DIR']}/bus"
    configuration = "--session"
    if not has_services:
        path = pathlib.Path(env["XDG_RUNTIME_DIR"]) / "bus.conf"
        path.write_text(BUS_WITHOUT_SERVICES)
        configuration = f"--config-file={path}"
    command = ["dbus-daemon", configuration, "--nofork", "--nopidfile", "--address=" + address]
    start("dbus", command)
    env["DBUS_SESSION_BUS_ADDRESS"] = address
    socket = pathlib.Path(env["XDG_RUNTIME_DIR"]) / "bus"
    wait_until(socket.exists, "the D-Bus session listens")


def property_value(shown):
    """The value in what xprop printed for one property; empty when there is none."""
    match = re.match(r"\w+\([\w/]+\)(?: = |: window id # |:\s*)(.*)", shown, re.DOTALL)
    return match.group(1).strip() if match else ""


def start_window_manager(start, env, name):
    command, last_property = WINDOW_MANAGERS[name]
    require(name)
    start(name, command)
    with contextlib.closing(XConnection(env["DISPLAY"])) as x:
        wait_until(lambda: x.numbers(x.root, last_property), f"{name} manages the screen")


def start_panel(start, env, screen_height, tray=None, height=PANEL_HEIGHT, monitor="all"):
    """A panel with a taskbar or, painted in the colour `tray`, with a taskbar and a tray. Monitors
    count from 1."""
    require("tint2")
    config = pathlib.Path(env["HOME"]) / "tint2rc"
    config.write_text(
        PANEL_CONFIG.format(
            items="TS" if tray else "T", color=tray or "#00ff00", height=height, monitor=monitor
        )
    )
    start("tint2", ["tint2", "-c", config])
    with contextlib.closing(XConnection(env["DISPLAY"])) as x:

        def has_room():
            heights = x.numbers(x.root, "_NET_WORKAREA")[3:4]
            return heights and heights[0] < screen_height

        wait_until(has_room, "the panel has its strip of the screen")


def start_compositor(start, env):
    require("picom")
    command = ["picom", "--backend", "xrender", "--config", "/dev/null"]
    start("picom", command)
    # The window by which a compositor tells others that it is there.
    registered = ["xdotool", "search", "--name", "^picom$"]

    def is_registered():
        return subprocess.run(registered, env=env, capture_output=True, check=False).stdout

    wait_until(is_registered, "the compositor runs")
