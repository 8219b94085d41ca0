"""What the compositor sway says of itself and does when it is told, over a connection of our own."""

import json
import socket
import struct

MAGIC = b"i3-ipc"
COMMAND, WORKSPACES, OUTPUTS, TREE = 0, 1, 3, 4
ANSWER_SECONDS = 20


class SwayConnection:
    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(ANSWER_SECONDS)
        self.socket.connect(path)
        self.stream = self.socket.makefile("rb")

    def close(self):
        self.stream.close()
        self.socket.close()

    def command(self, text):
        """Does what this line would do in the compositor's configuration."""
        for answer in self._ask(COMMAND, text):
            if not answer["success"]:
                raise AssertionError(f"sway refuses {text!r}: {answer}")

    def outputs(self):
        return self._ask(OUTPUTS)

    def workspaces(self):
        return self._ask(WORKSPACES)

    def windows(self):
        """The windows that have a place on a workspace; not what belongs to the desktop."""
        level, found = [self._ask(TREE)], []
        while level:
            node = level.pop()
            level += node["nodes"] + node["floating_nodes"]
            if node.get("pid"):
                found.append(node)
        return sorted(found, key=lambda window: window["id"])

    def _ask(self, kind, text=""):
        payload = text.encode()
        self.socket.sendall(MAGIC + struct.pack("=II", len(payload), kind) + payload)
        size, _ = struct.unpack("=II", self._read(len(MAGIC) + 8)[len(MAGIC) :])
        return json.loads(self._read(size))

    def _read(self, count):
        data = self.stream.read(count)
        if len(data) < count:
            raise ConnectionError("sway is gone")
        return data
