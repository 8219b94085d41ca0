"""Prints the accessible windows of a process as JSON: accessibility_tree.py PID. Needs the
distribution's own Python, which the bindings are installed for."""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


def describe(accessible):
    extents = accessible.get_extents(Atspi.CoordType.SCREEN)
    node = {
        "role": accessible.get_role_name(),
        "name": accessible.get_name(),
        "description": accessible.get_description(),
        "states": [state.value_nick for state in accessible.get_state_set().get_states()],
        "area": [extents.x, extents.y, extents.width, extents.height],
        "children": [describe(child) for child in children(accessible)],
    }
    for relation in accessible.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            count = relation.get_n_targets()
            node["labels"] = [relation.get_target(i).get_name() for i in range(count)]
    value = accessible.get_value_iface()
    if value:
        node["value"] = value.get_current_value()
        node["range"] = [value.get_minimum_value(), value.get_maximum_value()]
    text = accessible.get_text_iface()
    if text:
        node["text"] = text.get_text(0, -1)
    return node


def children(accessible):
    found = [accessible.get_child_at_index(i) for i in range(accessible.get_child_count())]
    return [child for child in found if child]


def main():
    pid = int(sys.argv[1])
    windows = []
    for application in children(Atspi.get_desktop(0)):
        if application.get_process_id() == pid:
            windows += [describe(window) for window in children(application)]
    json.dump(windows, sys.stdout)


try:
    main()
except GLib.Error as error:
    # Windows come and go while they are read.
    sys.exit(f"cannot be read now: {error.message}")
