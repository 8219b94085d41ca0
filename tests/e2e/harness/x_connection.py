"""What an X server says of its windows, over a connection of our own: tools that are started for each
question take most of a scenario's time. What mouse and keys do is xdotool's."""

import re
import socket
import struct

ERROR, REPLY = 0, 1
REPLY_BYTES = 32
GET_ATTRIBUTES, GET_GEOMETRY, QUERY_TREE, INTERN_ATOM = 3, 14, 15, 16
DELETE_PROPERTY, GET_PROPERTY, QUERY_POINTER, TRANSLATE_COORDINATES = 19, 20, 38, 40
GET_FOCUS, QUERY_KEYMAP, GET_IMAGE = 43, 44, 73
VIEWABLE = 2
Z_PIXMAP = 2
ALL_PLANES = 0xFFFFFFFF
LONGEST_PROPERTY = 1 << 16  # in units of four bytes
ANSWER_SECONDS = 20


class XError(Exception):
    """The server refuses, mostly because a window is gone."""


class XConnection:
    def __init__(self, display):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(ANSWER_SECONDS)
        self.socket.connect("/tmp/.X11-unix/X" + display.lstrip(":"))
        self.stream = self.socket.makefile("rb")
        self.socket.sendall(struct.pack("<BxHHHHxx", ord("l"), 11, 0, 0, 0))
        accepted, words = struct.unpack("<BxxxxxH", self._read(8))
        setup = self._read(4 * words)
        if accepted != 1:
            raise XError(f"no connection: {setup!r}")
        (self.client_bits,) = struct.unpack_from("<I", setup, 8)
        vendor_bytes, formats = struct.unpack_from("<HxxxB", setup, 16)
        (self.root,) = struct.unpack_from("<I", setup, 32 + padded(vendor_bytes) + 8 * formats)
        self.atoms = {}

    def close(self):
        self.stream.close()
        self.socket.close()

    def windows(self, title=None, pid=None):
        """The windows on show with a title (a regular expression) or of a process, those that hang
        directly from the root first, the lowest of them first."""
        level, found = self._children([self.root]), []
        while level:
            level = self._on_show(level)
            found += level
            level = self._children(level)
        if pid is not None:
            owners = self._properties(found, "_NET_WM_PID")
            found = [window for window, owner in zip(found, owners) if numbers(owner) == [pid]]
        if title is not None:
            # Qt names the icon in the tray like a window by the newer property, and not by this one.
            titles = (name.decode(errors="replace") for name in self._properties(found, "WM_NAME"))
            found = [window for window, name in zip(found, titles) if re.search(title, name)]
        return found

    def all_windows(self):
        """Those included that are not on show."""
        level, found = [self.root], []
        while level:
            found += level
            level = self._children(level)
        return found

    def owners(self, windows):
        """The programs that made windows, as the server counts them: itself is 0."""
        return {window & ~self.client_bits for window in windows}

    def numbers(self, window, name):
        """A property of numbers or windows; empty when there is none."""
        return numbers(value(self._ask(self._property(window, name))[0]))

    def delete_property(self, window, name):
        self.socket.sendall(request(DELETE_PROPERTY, "<II", window, self._atom(name)))

    def geometry(self, window):
        """(x, y, width, height) on the screen, without the window manager's frame."""
        place, size = self._ask(
            request(TRANSLATE_COORDINATES, "<IIhh", window, self.root, 0, 0),
            request(GET_GEOMETRY, "<I", window),
        )
        return struct.unpack_from("<hh", place, 12) + struct.unpack_from("<HH", size, 16)

    def focused_window(self):
        """The window that gets the keys; 0 for none, 1 for the one below the pointer."""
        return struct.unpack_from("<I", self._ask(request(GET_FOCUS))[0], 8)[0]

    def is_anything_pressed(self):
        """Whether a key or a button is down, or a lock on."""
        pointer, keys = self._ask(request(QUERY_POINTER, "<I", self.root), request(QUERY_KEYMAP))
        return any(keys[8:40]) or struct.unpack_from("<H", pointer, 24) != (0,)

    def image(self, window, x, y, width, height):
        """The pixels on show in a part of a window, four bytes each: blue, green, red and padding."""
        area = request(GET_IMAGE, "<IhhHHI", window, x, y, width, height, ALL_PLANES, detail=Z_PIXMAP)
        return self._ask(area)[0][REPLY_BYTES:]

    def _on_show(self, windows):
        replies = self._try([request(GET_ATTRIBUTES, "<I", window) for window in windows])
        return [window for window, reply in zip(windows, replies) if reply and reply[26] == VIEWABLE]

    def _children(self, windows):
        replies = self._try([request(QUERY_TREE, "<I", window) for window in windows])
        return [child for reply in replies if reply for child in numbers(reply[REPLY_BYTES:])]

    def _properties(self, windows, name):
        """The bytes of a property of each; empty when it has none or is gone."""
        replies = self._try([self._property(window, name) for window in windows])
        return [value(reply) if reply else b"" for reply in replies]

    def _property(self, window, name):
        return request(GET_PROPERTY, "<IIIII", window, self._atom(name), 0, 0, LONGEST_PROPERTY)

    def _atom(self, name):
        if name not in self.atoms:
            encoded = name.encode()
            (reply,) = self._ask(
                request(INTERN_ATOM, f"<Hxx{padded(len(encoded))}s", len(encoded), encoded)
            )
            (self.atoms[name],) = struct.unpack_from("<I", reply, 8)
        return self.atoms[name]

    def _ask(self, *requests):
        """The replies. Raises XError when there is none to one of them."""
        replies = self._try(requests)
        if None in replies:
            raise XError("the window is gone")
        return replies

    def _try(self, requests):
        """The replies to all requests, None for those that are refused."""
        self.socket.sendall(b"".join(requests))
        return [self._reply() for _ in requests]

    def _reply(self):
        while True:
            head = self._read(REPLY_BYTES)
            if head[0] == ERROR:
                return None
            if head[0] == REPLY:
                return head + self._read(4 * struct.unpack_from("<I", head, 4)[0])

    def _read(self, count):
        data = self.stream.read(count)
        if len(data) < count:
            raise ConnectionError("the X server is gone")
        return data


def padded(count):
    return (count + 3) // 4 * 4


def request(opcode, layout="<", *values, detail=0):
    body = struct.pack(layout, *values)
    return struct.pack("<BBH", opcode, detail, 1 + len(body) // 4) + body


def value(reply):
    """The bytes of a property."""
    size, items = reply[1] // 8, struct.unpack_from("<I", reply, 16)[0]
    return reply[REPLY_BYTES : REPLY_BYTES + size * items]


def numbers(data):
    return list(struct.unpack(f"<{len(data) // 4}I", data[: len(data) // 4 * 4]))
