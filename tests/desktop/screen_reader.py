#!/usr/bin/python3
"""Reads the windows of programs as a screen reader does, and hears where the keyboard goes. It says both in lines of
JSON: what has the keyboard whenever that changes, and what is shown in a window each time that it is asked, which is a
line of JSON with the number of a process, the title of its window, and perhaps the only name that is of interest.
"""

import contextlib
import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

State = Atspi.StateType
USABLE = (State.FOCUSABLE, State.CHECKABLE, State.EDITABLE)


def children(node):
    return (child for index in range(node.get_child_count()) if (child := node.get_child_at_index(index)))


def value(node, states):
    if states.contains(State.EDITABLE):
        return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))
    return Atspi.Value.get_current_value(node) if node.get_role() == Atspi.Role.SLIDER else None


def thing(node, states, above):
    space = node.get_extents(Atspi.CoordType.SCREEN)
    return {"name": node.get_name(), "role": node.get_role_name(), "help": node.get_description(), "above": above,
            "value": value(node, states), "usable": any(map(states.contains, USABLE)),
            "focused": states.contains(State.FOCUSED),
            "on": states.contains(State.CHECKED) or states.contains(State.SELECTED),
            "space": [space.x, space.y, space.width, space.height]}


def walk(node, wanted, above):
    for child in children(node):
        states = child.get_state_set()
        if states.contains(State.SHOWING):
            name = child.get_name()
            if wanted in (None, name):
                yield thing(child, states, above)
            yield from walk(child, wanted, [*above, name])


def read(process, window, name):
    for program in children(Atspi.get_desktop(0)):
        if program.get_process_id() == process:
            program.set_cache_mask(Atspi.Cache.NONE)  # what is said is what is there now
            for each in children(program):
                if each.get_name() == window:
                    return list(walk(each, name, []))
    return []


def say(**what):
    print(json.dumps(what), flush=True)


def take(channel, condition):
    line = sys.stdin.readline()
    if line:
        things = []
        with contextlib.suppress(GLib.Error):  # something has gone while it was read
            things = read(**json.loads(line))
        say(things=things)
    return bool(line)


def hear(event):
    if event.detail1:
        node, above = event.source, []
        with contextlib.suppress(GLib.Error):
            while (node := node.get_parent()) and node.get_role() != Atspi.Role.APPLICATION:
                above.insert(0, node.get_name())
            say(focus=thing(event.source, event.source.get_state_set(), above))


def main():
    GLib.io_add_watch(sys.stdin, GLib.IO_IN, take)
    listener = Atspi.EventListener.new(hear)
    listener.register("object:state-changed:focused")
    say(ready=True)
    Atspi.event_main()


main()
