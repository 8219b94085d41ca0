"""Reads what is on show of a program for as long as it is asked to. Each line on standard input is
{"pid": ...} or, for the windows with one title alone, {"pid": ..., "title": ...}; the line that answers
is a list of windows, or null while they cannot be read. Needs the distribution's own Python, which the
bindings are installed for."""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
TEXT = "org.a11y.atspi.Text"
VALUE = "org.a11y.atspi.Value"
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
BUS = ("org.freedesktop.DBus", "/org/freedesktop/DBus")
CALL_MILLISECONDS = 5000


def method(interface, name, signature="()", *arguments):
    return interface, name, GLib.Variant(signature, arguments)


def get(interface, name):
    return method("org.freedesktop.DBus.Properties", "Get", "(ss)", interface, name)


CHILDREN = method(ACCESSIBLE, "GetChildren")
NAME = get(ACCESSIBLE, "Name")
DETAILS = (
    method(ACCESSIBLE, "GetState"),
    method(ACCESSIBLE, "GetRole"),
    NAME,
    get(ACCESSIBLE, "Description"),
    method(COMPONENT, "GetExtents", "(u)", Atspi.CoordType.SCREEN),
    method(ACCESSIBLE, "GetRelationSet"),
    method(ACCESSIBLE, "GetInterfaces"),
    CHILDREN,
)
VALUES = ("CurrentValue", "MinimumValue", "MaximumValue")


def names_of_states(words):
    bits = words[0] | words[1] << 32
    return [Atspi.StateType(i).value_nick for i in range(Atspi.StateType.LAST_DEFINED) if bits >> i & 1]


class Reader:
    """Asks for much at once: nearly all of the time goes by with waiting for answers."""

    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        question = method("org.a11y.Bus", "GetAddress")
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", *question, None, 0, -1)
        flags = Gio.DBusConnectionFlags
        self.bus = Gio.DBusConnection.new_for_address_sync(
            address.unpack()[0], flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION
        )
        self.applications = {}  # by the number of the process

    def ask(self, questions):
        """The answers to questions ((bus name, path), (interface, method, arguments)), in order."""
        answers = {}

        def answered(bus, result, index):
            try:
                answers[index] = bus.call_finish(result).unpack()[0]
            except GLib.Error as error:
                answers[index] = error

        for index, (thing, question) in enumerate(questions):
            self.bus.call(*thing, *question, None, 0, CALL_MILLISECONDS, None, answered, index)
        while len(answers) < len(questions):
            GLib.MainContext.default().iteration(True)
        for answer in answers.values():
            if isinstance(answer, GLib.Error):
                raise answer
        return [answers[index] for index in range(len(questions))]

    def process_of(self, bus_name):
        """None for one that has just ended."""
        question = method(BUS[0], "GetConnectionUnixProcessID", "(s)", bus_name)
        try:
            return self.ask([(BUS, question)])[0]
        except GLib.Error:
            return None

    def application_of(self, pid):
        """None while there is none."""
        if pid not in self.applications:
            for application in self.ask([(REGISTRY, CHILDREN)])[0]:
                self.applications[self.process_of(application[0])] = application
        return self.applications.get(pid)

    def windows(self, pid, title=None):
        application = self.application_of(pid)
        found = self.ask([(application, CHILDREN)])[0] if application else []
        if title is not None:
            names = self.ask([(window, NAME) for window in found])
            found = [window for window, name in zip(found, names) if name == title]
        windows, more = [], []
        level = [(window, windows) for window in found]
        while level or more:
            level, more = self.describe(level, more)
        return windows

    def describe(self, level, more):
        """Adds each thing, if it is on show, to the list that comes with it, and the answers to `more`
        to their nodes. Returns what is below, each with its list, and what else there is to ask."""
        things = [thing for thing, _ in level]
        questions = [(thing, question) for thing in things for question in DETAILS]
        answers = iter(self.ask(questions + [(thing, question) for _, _, thing, question in more]))
        below, further = [], []
        for thing, siblings in level:
            details = [next(answers) for _ in DETAILS]
            states, role, name, description, area, relations, interfaces, children = details
            states = names_of_states(states)
            if "showing" not in states:
                continue
            node = {
                "role": Atspi.role_get_name(role),
                "name": name,
                "description": description,
                "states": states,
                "area": area,
                "children": [],
            }
            further += [(node, *question) for question in self.further(thing, relations, interfaces)]
            siblings.append(node)
            below += [(child, node["children"]) for child in children]
        for node, key, _, _ in more:
            node.setdefault(key, []).append(next(answers))
        return below, further

    def further(self, thing, relations, interfaces):
        """What else there is to ask, each as (key, thing, question)."""
        if VALUE in interfaces:
            yield from (("value", thing, get(VALUE, name)) for name in VALUES)
        if TEXT in interfaces:
            yield "text", thing, method(TEXT, "GetText", "(ii)", 0, -1)
        for kind, targets in relations:
            if kind == Atspi.RelationType.LABELLED_BY:
                yield from (("labels", target, NAME) for target in targets)


def main():
    reader = Reader()
    for line in sys.stdin:
        try:
            answer = reader.windows(**json.loads(line))
        except GLib.Error:
            answer = None  # Windows come and go while they are read, and so do programs.
            reader.applications.clear()
        print(json.dumps(answer), flush=True)


main()
