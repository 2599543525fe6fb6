#!/usr/bin/python3
"""Notifies as programs do: `gtk ID TITLE` as a GTK application, `burst ENTRY COUNT` as many at once as there are."""

import sys

from gi.repository import Gio, GLib


def gtk(identifier, title):
    application = Gio.Application(application_id=identifier)

    def notify(_):
        notification = Gio.Notification.new(title)
        notification.set_body("1 < 2 & 3")
        application.send_notification("news", notification)
        application.hold()

    application.connect("activate", notify)
    application.run()


def burst(entry, count):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    hints = {"desktop-entry": GLib.Variant("s", entry)}
    for number in range(int(count)):
        bus.call("org.freedesktop.Notifications", "/org/freedesktop/Notifications", "org.freedesktop.Notifications",
                 "Notify", GLib.Variant("(susssasa{sv}i)", ("", 0, "", f"{number}", "<b>text</b>", [], hints, 1)),
                 None, Gio.DBusCallFlags.NONE, -1)
    bus.flush_sync()


{"gtk": gtk, "burst": burst}[sys.argv[1]](*sys.argv[2:])
