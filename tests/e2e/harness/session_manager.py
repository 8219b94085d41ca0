"""Stands in for the session manager of a desktop: prints the address that programs find it at, then
what they say to it: "joined", "restart COMMAND", "saved", "left". SIGUSR1 ends the session: all have
to save, and then to end. Uses the X libraries that the toolkit itself needs."""

import ctypes
import json
import select
import signal
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

SAVE_LOCAL, SAVE_BOTH = 1, 2
INTERACT_NONE = 0
ALL_CALLBACKS = 0x3FF
ERROR_SIZE = 256

libc = ctypes.CDLL(None)
ice = ctypes.CDLL("libICE.so.6")
sm = ctypes.CDLL("libSM.so.6")
ice.IceComposeNetworkIdList.restype = c_char_p
ice.IceAcceptConnection.restype = c_void_p
ice.IceGetListenConnectionNumber.argtypes = [c_void_p]
for function in ("IceConnectionNumber", "IceConnectionStatus", "IceCloseConnection"):
    getattr(ice, function).argtypes = [c_void_p]
ice.IceProcessMessages.argtypes = [c_void_p, c_void_p, c_void_p]
ice.IceSetShutdownNegotiation.argtypes = [c_void_p, c_int]
sm.SmsGenerateClientID.restype = c_void_p
sm.SmsGenerateClientID.argtypes = [c_void_p]
sm.SmsRegisterClientReply.argtypes = [c_void_p, c_void_p]
sm.SmsSaveYourself.argtypes = [c_void_p, c_int, c_int, c_int, c_int]
for function in ("SmsSaveComplete", "SmsDie", "SmsCleanUp", "SmsSaveYourselfPhase2"):
    getattr(sm, function).argtypes = [c_void_p]


class Value(ctypes.Structure):
    _fields_ = [("length", c_int), ("value", c_void_p)]


class Property(ctypes.Structure):
    _fields_ = [
        ("name", c_char_p), ("type", c_char_p), ("count", c_int), ("values", POINTER(Value)),
    ]


class Callbacks(ctypes.Structure):
    _fields_ = [("pairs", c_void_p * 20)]


clients = set()
session_ends = False


def say(*words):
    print(*words, flush=True)


@CFUNCTYPE(c_int, c_void_p, c_void_p, c_char_p)
def register_client(client, _, previous):
    if previous:
        return 0
    sm.SmsRegisterClientReply(client, sm.SmsGenerateClientID(client))
    clients.add(client)
    say("joined")
    sm.SmsSaveYourself(client, SAVE_LOCAL, False, INTERACT_NONE, False)
    return 1


@CFUNCTYPE(None, c_void_p, c_void_p, c_int, POINTER(POINTER(Property)))
def set_properties(_, __, count, properties):
    for i in range(count):
        given = properties[i].contents
        if given.name == b"RestartCommand":
            words = [
                ctypes.string_at(given.values[j].value, given.values[j].length).decode()
                for j in range(given.count)
            ]
            say("restart", json.dumps(words))


@CFUNCTYPE(None, c_void_p, c_void_p)
def save_phase2_request(client, _):
    sm.SmsSaveYourselfPhase2(client)


@CFUNCTYPE(None, c_void_p, c_void_p, c_int)
def save_done(client, _, succeeded):
    say("saved" if succeeded else "not saved")
    if session_ends:
        sm.SmsDie(client)
    else:
        sm.SmsSaveComplete(client)


@CFUNCTYPE(None, c_void_p, c_void_p, c_int, c_void_p)
def close_connection(client, _, __, ___):
    clients.discard(client)
    say("left")


@CFUNCTYPE(None, c_void_p, c_void_p)
def ignore(*_):
    pass


@CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(Callbacks), POINTER(c_char_p))
def new_client(_, __, mask, callbacks, ___):
    answers = [
        register_client, ignore, ignore, ignore, save_phase2_request, save_done,
        close_connection, set_properties, ignore, ignore,
    ]
    mask[0] = ALL_CALLBACKS
    for i, answer in enumerate(answers):
        callbacks.contents.pairs[2 * i] = ctypes.cast(answer, c_void_p).value
        callbacks.contents.pairs[2 * i + 1] = None
    return 1


@CFUNCTYPE(c_int, c_char_p)
def accept_everybody(_):
    return 1


@CFUNCTYPE(None, c_void_p)
def stay_alive(_):
    """In place of ending the program when a connection breaks."""


def end_session(*_):
    global session_ends
    session_ends = True
    for client in clients:
        sm.SmsSaveYourself(client, SAVE_BOTH, True, INTERACT_NONE, True)


def main():
    error = ctypes.create_string_buffer(ERROR_SIZE)
    ice.IceSetIOErrorHandler(stay_alive)
    if not sm.SmsInitialize(b"test", b"1", new_client, None, accept_everybody, ERROR_SIZE, error):
        raise SystemExit(error.value.decode())
    ice._IceTransNoListen(b"tcp")  # nobody from outside
    count, listeners = c_int(), POINTER(c_void_p)()
    if not ice.IceListenForConnections(byref(count), byref(listeners), ERROR_SIZE, error):
        raise SystemExit(error.value.decode())
    for i in range(count.value):
        ice.IceSetHostBasedAuthProc(c_void_p(listeners[i]), accept_everybody)
    signal.signal(signal.SIGUSR1, end_session)
    say("address", ice.IceComposeNetworkIdList(count, listeners).decode())

    doors = {
        ice.IceGetListenConnectionNumber(listeners[i]): listeners[i] for i in range(count.value)
    }
    connections = {}
    while True:
        ready, _, _ = select.select([*doors, *connections], [], [], 0.05)
        for descriptor in ready:
            if descriptor in doors:
                status = c_int()
                made = ice.IceAcceptConnection(c_void_p(doors[descriptor]), byref(status))
                if made:
                    connections[ice.IceConnectionNumber(made)] = made
            elif ice.IceProcessMessages(connections[descriptor], None, None) != 0:
                connection = connections.pop(descriptor)
                ice.IceSetShutdownNegotiation(connection, False)
                ice.IceCloseConnection(connection)


main()
