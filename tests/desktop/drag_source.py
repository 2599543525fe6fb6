"""A window of another program, of which everything can be dragged: the addresses given, or else a text. It says what
became of the drag."""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402

ADDRESSES = sys.argv[1:]
failures = []


def fill(_source, _context, data, _kind, _time):
    data.set_uris(ADDRESSES) if ADDRESSES else data.set_text("a text", -1)


def failed(_source, _context, result):
    failures.append(result)
    return True  # without the picture that flies back


def ended(_source, _context):
    print("refused" if failures else "taken", flush=True)
    failures.clear()


window = Gtk.Window(title="Source", default_width=200, default_height=200)
source = Gtk.EventBox()
source.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY | Gdk.DragAction.MOVE)
(source.drag_source_add_uri_targets if ADDRESSES else source.drag_source_add_text_targets)()
source.connect("drag-data-get", fill)
source.connect("drag-failed", failed)
source.connect("drag-end", ended)
window.add(source)
window.connect("map-event", lambda *_: print("ready", flush=True))
window.show_all()
Gtk.main()
