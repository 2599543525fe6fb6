#!/usr/bin/python3
"""Reads the windows of a program as a screen reader does: a line of JSON for each thing that can be used.

    screen_reader.py PROCESS-ID WINDOW-TITLE
"""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi

USABLE = (Atspi.StateType.FOCUSABLE, Atspi.StateType.CHECKABLE, Atspi.StateType.EDITABLE)


def children(node):
    return (child for index in range(node.get_child_count()) if (child := node.get_child_at_index(index)))


def is_usable(node):
    states = node.get_state_set()
    return states.contains(Atspi.StateType.SHOWING) and any(map(states.contains, USABLE))


def walk(node, above):
    here = [*above, f"{node.get_role_name()} {node.get_name()!r}"]
    if above and is_usable(node):
        print(json.dumps({"name": node.get_name(), "role": node.get_role_name(), "where": " > ".join(here[-3:])}))
    for child in children(node):
        walk(child, here)


def main():
    process, title = int(sys.argv[1]), sys.argv[2]
    for program in children(Atspi.get_desktop(0)):
        if program.get_process_id() == process:
            for window in children(program):
                if window.get_name() == title:
                    walk(window, [])


main()
