"""An X server with a pointing device whose every movement is ours, down to parts of a line, as
touchpads and wheels tell it today; Xvfb's only device knows buttons alone."""

import os
import socket
import struct

from harness import wait_until

CONFIGURATION = """\
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "DontVTSwitch" "true"
EndSection
Section "Device"
    Identifier "card"
    Driver "dummy"
    VideoRam 32768
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 5.0-1000.0
    VertRefresh 5.0-200.0
EndSection
Section "Screen"
    Identifier "screen"
    Device "card"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Modes "{width}x{height}"
    EndSubSection
EndSection
Section "InputDevice"
    Identifier "touchpad"
    Driver "inputtest"
    Option "SocketPath" "{folder}/touchpad"
    Option "DeviceType" "Pointer"
EndSection
Section "InputDevice"
    Identifier "keyboard"
    Driver "inputtest"
    Option "SocketPath" "{folder}/keyboard"
    Option "DeviceType" "Keyboard"
EndSection
Section "ServerLayout"
    Identifier "layout"
    Screen "screen"
    InputDevice "touchpad" "CorePointer"
    InputDevice "keyboard" "CoreKeyboard"
EndSection
"""

# Linux has it apart from the wrapper that lets users at a console start it as root.
SERVERS = ("/usr/lib/xorg/Xorg", "/usr/bin/Xorg")
INPUT_MODULE = "/usr/lib/xorg/modules/input/inputtest_drv.so"
SCREEN_MODULE = "/usr/lib/xorg/modules/drivers/dummy_drv.so"

INCREMENT = 120.0  # what the device counts for a line
VALUATORS = 64
MOTION_EVENT = 2
HEADER = "<Ii"  # length, type


def what_is_missing():
    """None where such a server can be had."""
    if not any(os.path.exists(path) for path in SERVERS):
        return "there is no Xorg"
    for module in (INPUT_MODULE, SCREEN_MODULE):
        if not os.path.exists(module):
            return f"there is no {module}"
    return None


def start_server(start, env, size):
    """Like session.start_x_server, with a device: see device_of."""
    folder = env["XDG_RUNTIME_DIR"]
    configuration = os.path.join(folder, "xorg.conf")
    with open(configuration, "w", encoding="utf-8") as file:
        file.write(CONFIGURATION.format(width=size[0], height=size[1], folder=folder))
    server = next(path for path in SERVERS if os.path.exists(path))
    reading, writing = os.pipe()
    command = [server, "-displayfd", writing, "-config", configuration, "-novtswitch", "-sharevts"]
    command += ["-logfile", os.path.join(folder, "xorg.log"), "-noreset", "-nolisten", "tcp"]
    try:
        process = start("xorg", command, pass_fds=(writing,))
    finally:
        os.close(writing)
    with os.fdopen(reading) as pipe:
        number = pipe.readline().strip()
    if not number:
        raise RuntimeError("Xorg did not start:\n" + process.stderr())
    env["DISPLAY"] = ":" + number


devices = {}


def device_of(desktop):
    """The pointing device of a desktop's server, which answers the first that talks to it."""
    if desktop not in devices:
        devices[desktop] = Device(desktop.session_env)
    return devices[desktop]


class Device:
    def __init__(self, env):
        path = os.path.join(env["XDG_RUNTIME_DIR"], "touchpad")
        wait_until(lambda: os.path.exists(path), "the device is there")
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(10)
        self.socket.connect(path)
        protocol = struct.pack("<HH", 1, 0)
        self._send(0, protocol)
        if not self.socket.recv(64):
            raise RuntimeError("the device does not answer")

    def move(self, x=0.0, y=0.0):
        self._motion({0: x, 1: y})

    def scroll(self, lines):
        """Positive is down, as devices count."""
        self._motion({3: lines * INCREMENT})

    def scroll_sideways(self, lines):
        self._motion({2: lines * INCREMENT})

    def _motion(self, changes):
        values = [changes.get(axis, 0.0) for axis in range(VALUATORS)]
        mask = sum(1 << axis for axis, change in changes.items() if change)
        relative, accelerated, padding = 0, 0, 0
        body = struct.pack("<IIIQI", relative, padding, accelerated, mask, padding)
        body += struct.pack(f"<{VALUATORS}d", *values) + bytes(8 * VALUATORS)
        self._send(MOTION_EVENT, body)

    def _send(self, kind, body):
        header_size = struct.calcsize(HEADER)
        self.socket.sendall(struct.pack(HEADER, header_size + len(body), kind) + body)
