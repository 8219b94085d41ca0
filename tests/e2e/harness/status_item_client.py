"""Does with a status item what a desktop does: status_item_client.py BUS-NAME show prints the item
and its menu as JSON, "activate" is a click on the item, "choose ID" one on an entry of its menu.
Needs the distribution's own Python, which the bindings are installed for."""

import json
import sys

from gi.repository import Gio, GLib

ITEM_PATH = "/StatusNotifierItem"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
WAIT = 5000

bus = Gio.bus_get_sync(Gio.BusType.SESSION)
name, what = sys.argv[1:3]


def call(path, interface, method, parameters=None):
    reply = bus.call_sync(
        name, path, interface, method, parameters, None, Gio.DBusCallFlags.NONE, WAIT
    )
    return reply.unpack() if reply else None


def properties():
    return call(
        ITEM_PATH, "org.freedesktop.DBus.Properties", "GetAll", GLib.Variant("(s)", (ITEM,))
    )[0]


def entries(menu):
    _, root = call(menu, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))
    return [{"id": number, **values} for number, values, _ in root[2]]


if what == "show":
    item = properties()
    item["IconPixmap"] = [
        {"size": [width, height], "isDrawn": any(pixels)}
        for width, height, pixels in item["IconPixmap"]
    ]
    item["entries"] = entries(item["Menu"])
    json.dump(item, sys.stdout)
elif what == "activate":
    call(ITEM_PATH, ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))
else:
    click = GLib.Variant("(isvu)", (int(sys.argv[3]), "clicked", GLib.Variant("s", ""), 0))
    call(properties()["Menu"], MENU, "Event", click)
