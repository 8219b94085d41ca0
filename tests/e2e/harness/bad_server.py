"""A server on this machine that behaves badly."""

import socket
import struct
import threading

RESPONSE_500 = b"HTTP/1.1 500 Oops\r\nContent-Length: 0\r\n\r\n"
HALF_ANSWER = b"HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nhalf"
ENDLESS = b"HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\n\r\n"
RESET_AT_CLOSE = struct.pack("ii", 1, 0)


def hangs(_connection, stopped):
    stopped.wait()


def answers_500(connection, _stopped):
    connection.sendall(RESPONSE_500)


def cuts_off(connection, _stopped):
    connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, RESET_AT_CLOSE)


def stops_halfway(connection, _stopped):
    connection.sendall(HALF_ANSWER)


def talks_nonsense(connection, _stopped):
    connection.sendall(bytes(range(256)) * 100)


def never_ends(connection, stopped):
    connection.sendall(ENDLESS)
    while not stopped.is_set():
        connection.sendall(bytes(65536))


def drips(connection, stopped):
    for byte in HALF_ANSWER * 1000:
        connection.sendall(bytes([byte]))
        if stopped.wait(0.2):
            return


BEHAVIOURS = (hangs, answers_500, cuts_off, stops_halfway, talks_nonsense, never_ends, drips)


class BadServer:
    """Listens from construction to close(). Does to each client what `behaviour` does once the
    client has said something; without a behaviour, nobody listens at its address."""

    def __init__(self, behaviour=None):
        self.behaviour = behaviour
        self.requests = 0
        self.stopped = threading.Event()
        self.listener = socket.socket()
        self.listener.bind(("127.0.0.1", 0))
        self.url = f"http://127.0.0.1:{self.listener.getsockname()[1]}/v2/"
        if behaviour:
            self.listener.listen()
            self._in_background(self._accept)

    def close(self):
        self.stopped.set()
        self.listener.close()

    def _in_background(self, function, *arguments):
        threading.Thread(target=function, args=arguments, daemon=True).start()

    def _accept(self):
        while not self.stopped.is_set():
            try:
                connection, _ = self.listener.accept()
            except OSError:
                return
            self._in_background(self._serve, connection)

    def _serve(self, connection):
        with connection:
            try:
                if connection.recv(65536):
                    self.requests += 1
                    self.behaviour(connection, self.stopped)
            except OSError:
                pass  # the client has gone
