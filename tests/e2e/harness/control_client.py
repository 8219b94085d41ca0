"""Drives the running program over its socket: without the cost of a process for each command."""

import json
import socket


class ControlClient:
    def __init__(self, path):
        self.path = str(path)

    def send(self, *words, seconds=2.0):
        """Has a command carried out; returns the prompter's status then. Raises OSError when none comes in time,
        ValueError when the command is refused."""
        message = json.dumps({"command": "control", "words": [str(word) for word in words]})
        with socket.socket(socket.AF_UNIX) as client:
            client.settimeout(seconds)
            client.connect(self.path)
            client.sendall(message.encode() + b"\n")
            with client.makefile() as stream:
                line = stream.readline()
        if not line:
            raise OSError(f"the connection was closed instead of answering {words}")
        answer = json.loads(line)
        if not answer["ok"]:
            raise ValueError(answer["error"])
        return answer["status"]

    def status(self, seconds=2.0):
        return self.send("status", seconds=seconds)
