"""What the windows of a program tell a screen reader, so that a picture is known to show what it is of."""

import contextlib
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

from demo_parts.watch import Failed

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}  # of the program
State = Atspi.StateType


class Reader:
    def __init__(self):
        subprocess.Popen([LAUNCHER, "--launch-immediately"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        subprocess.run(["gdbus", "wait", "--session", "--timeout", "20", "org.a11y.Bus"], check=True)

    def expect_shown(self, process, pattern):
        """Waits until something is in sight whose name or description has this."""
        self.expect(f"{pattern.pattern!r} in sight", process,
                    lambda node, above: pattern.search(f"{node.get_name()}\n{node.get_description()}") and in_sight(node))

    def expect_keyboard(self, process, pattern):
        """Waits until what has the keyboard has such a name, or is in what has it."""
        self.expect(f"the keyboard at {pattern.pattern!r}", process,
                    lambda node, above: node.get_state_set().contains(State.FOCUSED)
                    and any(map(pattern.fullmatch, (*above, node.get_name()))))

    def expect(self, what, process, holds, seconds=10.0):
        deadline = time.monotonic() + seconds
        while True:
            with contextlib.suppress(GLib.Error):  # something has gone while it was read
                if any(holds(node, above) for node, above in things(process)):
                    return
            if time.monotonic() > deadline:
                shown = [node.get_name() for node, above in things(process) if in_sight(node)]
                raise Failed(f"expected within {seconds:.0f} s: {what}; there are {shown}")
            time.sleep(0.05)


def things(process):
    for program in children(Atspi.get_desktop(0)):
        if program.get_process_id() == process:
            program.set_cache_mask(Atspi.Cache.NONE)  # what is said is what is there now
            yield from walk(program, [])


def walk(node, above):
    for child in children(node):
        if child.get_state_set().contains(State.SHOWING):
            yield child, above
            yield from walk(child, [*above, child.get_name()])


def children(node):
    return (child for index in range(node.get_child_count()) if (child := node.get_child_at_index(index)))


def in_sight(node):
    """Its middle lies within its window: what is scrolled away is none of the picture."""
    window = node
    while (parent := window.get_parent()) and parent.get_role() != Atspi.Role.APPLICATION:
        window = parent
    inner, outer = (each.get_extents(Atspi.CoordType.SCREEN) for each in (node, window))
    x, y = inner.x + inner.width / 2, inner.y + inner.height / 2
    return outer.x <= x <= outer.x + outer.width and outer.y <= y <= outer.y + outer.height
