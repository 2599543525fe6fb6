#!/usr/bin/python3
"""A desktop's part of the portal that chooses files, for tests: says what it is asked, a line of JSON each, and answers
with the lines that it is given: "cancel", or the address of a file."""

import json
import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.impl.portal.desktop.standin"
QUESTION = "".join(f'<arg type="{kind}" direction="in"/>' for kind in ("o", "s", "s", "s", "a{sv}"))
ANSWER = '<arg type="u" direction="out"/><arg type="a{sv}" direction="out"/>'
DIALOG, REQUEST = (Gio.DBusNodeInfo.new_for_xml(f"<node>{text}</node>").interfaces[0] for text in (
    f"""<interface name="org.freedesktop.impl.portal.FileChooser">
        <method name="OpenFile">{QUESTION}{ANSWER}</method><method name="SaveFile">{QUESTION}{ANSWER}</method>
        <property name="version" type="u" access="read"/></interface>""",
    '<interface name="org.freedesktop.impl.portal.Request"><method name="Close"/></interface>'))


class Dialog:
    def __init__(self):
        self.invocation = None
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.bus.register_object("/org/freedesktop/portal/desktop", DIALOG, self.asked, lambda *_: GLib.Variant("u", 4),
                                 None)
        GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN, self.told)
        Gio.bus_own_name_on_connection(self.bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)

    def asked(self, _bus, _sender, _path, _interface, method, parameters, invocation):
        handle, _application, window, title, options = parameters.unpack()
        self.invocation = invocation
        self.request = self.bus.register_object(handle, REQUEST, self.closed, None, None)
        for name in ("current_folder", "current_file"):
            if name in options:
                options[name] = bytes(options[name]).decode()
        say({"method": method, "window": window, "title": title} | options)

    def closed(self, *call):
        call[-1].return_value(None)
        self.answer(2, {})
        say("closed")

    def told(self, source, _condition):
        line = source.readline().strip()
        if line == "cancel":
            self.answer(1, {})
        else:
            self.answer(0, {"uris": GLib.Variant("as", [line])})
        return True

    def answer(self, code, results):
        self.bus.unregister_object(self.request)
        self.invocation.return_value(GLib.Variant("(ua{sv})", (code, results)))


def say(what):
    print(json.dumps(what), flush=True)


dialog = Dialog()
GLib.MainLoop().run()
