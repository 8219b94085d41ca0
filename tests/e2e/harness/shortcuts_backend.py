"""Stands in for the part of a desktop that gives programs keys: the desktop's side of the portal for
global shortcuts, as the portal asks it. The first argument is what the user says when they are asked:
"yes" or "no". Each line that comes in is carried out and answered with one: "press ID", "set ID KEY"
(no KEY: the shortcut has none any more) and "forget", as a user does in the desktop's settings; "yes"
and "no", for later questions; anything else does nothing. The answer is how often the user was asked
and, the last time, for which shortcuts with which keys. Needs the distribution's own Python, which the bindings are installed
for."""

import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.impl.portal.desktop.shortcuts"
PATH = "/org/freedesktop/portal/desktop"
SHORTCUTS = "org.freedesktop.impl.portal.GlobalShortcuts"
INTERFACES = """
<node>
  <interface name="org.freedesktop.impl.portal.GlobalShortcuts">
    <method name="CreateSession">
      <arg name="handle" type="o" direction="in"/>
      <arg name="session" type="o" direction="in"/>
      <arg name="program" type="s" direction="in"/>
      <arg name="options" type="a{sv}" direction="in"/>
      <arg name="response" type="u" direction="out"/>
      <arg name="results" type="a{sv}" direction="out"/>
    </method>
    <method name="BindShortcuts">
      <arg name="handle" type="o" direction="in"/>
      <arg name="session" type="o" direction="in"/>
      <arg name="shortcuts" type="a(sa{sv})" direction="in"/>
      <arg name="window" type="s" direction="in"/>
      <arg name="options" type="a{sv}" direction="in"/>
      <arg name="response" type="u" direction="out"/>
      <arg name="results" type="a{sv}" direction="out"/>
    </method>
    <method name="ListShortcuts">
      <arg name="handle" type="o" direction="in"/>
      <arg name="session" type="o" direction="in"/>
      <arg name="response" type="u" direction="out"/>
      <arg name="results" type="a{sv}" direction="out"/>
    </method>
    <signal name="Activated">
      <arg type="o"/><arg type="s"/><arg type="t"/><arg type="a{sv}"/>
    </signal>
    <signal name="ShortcutsChanged"><arg type="o"/><arg type="a(sa{sv})"/></signal>
    <property name="version" type="u" access="read"/>
  </interface>
  <interface name="org.freedesktop.impl.portal.Session">
    <method name="Close"/>
    <signal name="Closed"/>
    <property name="version" type="u" access="read"/>
  </interface>
</node>
"""
OURS, SESSION = Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces


class Backend:
    def __init__(self, bus, user_says):
        self.bus = bus
        self.user_says = user_says
        self.session = None
        self.keys = {}  # what the user agreed to, with its key or none
        self.descriptions = {}
        self.questions = 0
        self.last_question = ""
        bus.register_object(PATH, OURS, self.call, self.read, None)

    def read(self, *_):
        return GLib.Variant("u", 1)

    def listed(self):
        entries = [
            (
                name,
                {
                    "description": GLib.Variant("s", self.descriptions.get(name, "")),
                    "trigger_description": GLib.Variant("s", key),
                },
            )
            for name, key in self.keys.items()
        ]
        return GLib.Variant("a(sa{sv})", entries)

    def call(self, connection, sender, path, interface, method, parameters, invocation):
        values = parameters.unpack()
        results, response = {}, 0
        if method == "CreateSession":
            self.session = values[1]
            self.bus.register_object(self.session, SESSION, self.end, self.read, None)
        elif method == "BindShortcuts":
            response = self.ask(values[2])
        if method != "CreateSession" and response == 0:
            results = {"shortcuts": self.listed()}
        invocation.return_value(GLib.Variant("(ua{sv})", (response, results)))

    def ask(self, shortcuts):
        wanted = {name: about.get("preferred_trigger", "") for name, about in shortcuts}
        if set(wanted) <= set(self.keys):
            return 0
        self.questions += 1
        self.last_question = " ".join(f"{name}={key}" for name, key in wanted.items())
        if self.user_says == "no":
            return 1
        self.descriptions = {name: about["description"] for name, about in shortcuts}
        self.keys = {**wanted, **self.keys}
        return 0

    def end(self, *call):
        call[-1].return_value(None)

    def signal(self, name, value):
        self.bus.emit_signal(None, PATH, SHORTCUTS, name, value)

    def carry_out(self, line):
        word, *rest = line.split(maxsplit=2)
        if word == "press":
            self.signal("Activated", GLib.Variant("(osta{sv})", (self.session, rest[0], 1, {})))
        elif word in ("set", "forget"):
            if word == "set":
                self.keys[rest[0]] = "".join(rest[1:])
            else:
                self.keys = {}
            listed = GLib.Variant.new_tuple(GLib.Variant("o", self.session), self.listed())
            self.signal("ShortcutsChanged", listed)
        elif word in ("yes", "no"):
            self.user_says = word
        print(self.questions, self.last_question, flush=True)


def main():
    backend = Backend(Gio.bus_get_sync(Gio.BusType.SESSION), sys.argv[1])
    flags = Gio.BusNameOwnerFlags.NONE
    Gio.bus_own_name_on_connection(backend.bus, NAME, flags, None, None)
    loop = GLib.MainLoop()

    def read(channel, _condition):
        line = channel.readline()
        backend.carry_out(line.strip()) if line else loop.quit()
        return bool(line)

    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, read)
    loop.run()


main()
