"""What a watcher of the display sees: windows that come, are mapped and drawn on, and which of them is active."""

import select
import time

from Xlib import X, display, error
from Xlib.ext import damage
from Xlib.protocol import event


class Display:
    def __init__(self):
        self.display = display.Display()
        self.root = self.display.screen().root
        self.name, self.active, self.clients, self.type, self.dock = map(self.display.intern_atom, (
            "_NET_WM_NAME", "_NET_ACTIVE_WINDOW", "_NET_CLIENT_LIST", "_NET_WM_WINDOW_TYPE",
            "_NET_WM_WINDOW_TYPE_DOCK"))
        self.display.damage_query_version()
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask | X.PropertyChangeMask)
        self.display.sync()

    def events(self, seconds=20.0):
        """Each with the moment of its arrival. Fails when nothing comes for so long."""
        while True:
            while not self.display.pending_events():
                if not select.select([self.display], [], [], seconds)[0]:
                    raise TimeoutError("nothing happens on the display any more")
            yield self.display.next_event(), time.monotonic()

    def forget(self):
        """What happened so far is not news any more."""
        self.display.sync()
        while self.display.pending_events():
            self.display.next_event()

    def title(self, window):
        try:
            text = window.get_full_property(self.name, X.AnyPropertyType)
        except error.BadWindow:
            return ""
        return text.value.decode(errors="replace") if text else ""

    def hidden_window(self, title):
        """A window that was made, but not shown yet."""
        return next(each for each in self.root.query_tree().children if self.title(each) == title)

    def windows(self):
        """By title, those that the window manager knows."""
        ids = self.root.get_full_property(self.clients, X.AnyPropertyType).value
        found = (self.display.create_resource_object("window", each) for each in ids)
        return {self.title(window): window for window in found}

    def active_window(self):
        value = self.root.get_full_property(self.active, X.AnyPropertyType)
        return value.value[0] if value else 0

    def activate(self, window):
        """Asks the window manager as a task bar does."""
        message = event.ClientMessage(window=window, client_type=self.active, data=(32, [2, 0, 0, 0, 0]))
        self.root.send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self.display.flush()

    def wait_until(self, holds):
        """The moment of the event that made it hold."""
        moment = time.monotonic()
        while not holds():
            _, moment = next(self.events())
        return moment

    def wait_active(self, window):
        return self.wait_until(lambda: self.active_window() == window.id)

    def wait_mapped(self, window):
        return self.wait_until(lambda: window.get_attributes().map_state != X.IsUnmapped)

    def wait_hidden(self, window):
        self.wait_until(lambda: window.get_attributes().map_state == X.IsUnmapped)

    def wait_shown(self, title):
        """The moments at which a window that is yet to come was mapped, and drawn."""
        return self.wait_new(lambda window: self.title(window) == title)[1:]

    def wait_dock(self):
        """The dock that is yet to come, and the moments at which it was mapped, and drawn."""
        def is_dock(window):
            try:
                types = window.get_full_property(self.type, X.AnyPropertyType)
            except error.BadWindow:
                return False
            return types and self.dock in types.value
        return self.wait_new(is_dock)

    def wait_new(self, is_meant):
        for happened, moment in self.events():
            if happened.type == X.CreateNotify and happened.parent == self.root:
                happened.window.change_attributes(event_mask=X.StructureNotifyMask)
                if not self.is_mapped(happened.window):
                    continue
                moment = time.monotonic()  # it was quicker than we were
            elif happened.type != X.MapNotify:
                continue
            if is_meant(happened.window):
                return happened.window, moment, self.wait_drawn(happened.window)

    def is_mapped(self, window):
        try:
            return window.get_attributes().map_state != X.IsUnmapped
        except error.BadWindow:
            return False

    def wait_drawn(self, window):
        """Until its middle is more than plain. The desktop must be plain there."""
        window.damage_create(damage.DamageReportNonEmpty)  # ends with the window
        if self.is_drawn(window):
            return time.monotonic()
        for happened, moment in self.events():
            if happened.type == self.display.extension_event.DamageNotify:
                self.display.damage_subtract(happened.damage)
                if happened.drawable == window and self.is_drawn(window):
                    return moment

    def is_drawn(self, window):
        shape = window.get_geometry()
        try:
            picture = window.get_image(shape.width // 3, 0, shape.width // 3, shape.height, X.ZPixmap, 0xFFFFFF)
        except error.BadMatch:
            return False  # not on the screen yet
        return len(set(memoryview(picture.data).cast("I"))) > 4
