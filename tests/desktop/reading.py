"""What the program's windows say to a screen reader: where things are, what they are called, and how they stand."""

import json
import pathlib
import subprocess
import time

from windows import SECONDS, Failed, Lines, press, xdotool

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


class Reader:
    def __init__(self, test):
        launcher = subprocess.Popen([LAUNCHER, "--launch-immediately"], stdout=subprocess.DEVNULL,
                                    stderr=subprocess.DEVNULL)
        test.addCleanup(launcher.wait)
        test.addCleanup(launcher.terminate)
        self.lines = Lines("/usr/bin/python3", pathlib.Path(__file__).with_name("screen_reader.py"))
        test.addCleanup(self.lines.end)
        self.hear("ready")
        self.test = test

    def start(self):
        """A program that is read from now on."""
        fendrel = self.test.start(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.process = fendrel.process
        return fendrel

    def hear(self, member, holds=bool):
        """What it says of this kind, of what was not heard yet."""
        def is_it(line):
            said = json.loads(line)
            return member in said and holds(said[member])
        return json.loads(self.lines.expect(member, is_it))[member]

    def read(self, window, name=None):
        """What is shown there; no focus from before is heard any more."""
        self.lines.say(json.dumps({"process": self.process.pid, "window": window, "name": name}))
        return self.hear("things", lambda things: True)

    def find(self, window, name, **more):
        """The thing of this name, once it is there and stands like this."""
        deadline = time.monotonic() + SECONDS
        while True:
            for each in self.read(window, name):
                if more.items() <= each.items():
                    return each
            if time.monotonic() > deadline:
                shown = "\n".join(f"{each['role']} {each['name']!r} {each['value']}" for each in self.read(window))
                raise Failed(f"expected in {window!r}: {name!r} {more}; there are\n{shown}")

    def click(self, window, name, **more):
        space = None
        while space != (space := self.find(window, name, **more)["space"]):
            pass  # what stands above it may still come or go
        x, y, width, height = space
        xdotool("mousemove", str(x + width // 2), str(y + height // 2), "click", "1")

    def focused(self, label):
        """What has the keyboard, once that is this or in this."""
        return self.hear("focus", lambda thing: label in (thing["name"], *thing["above"]))

    def tab_to(self, window, label):
        self.read(window, label)
        if label != (last := self.round("Tab", until=label)[-1]["name"]):
            raise Failed(f"Tab leads not to {label!r}, but round to {last!r}")

    def round(self, key, until=None):
        """All to which a key leads, until it comes back to where it led before, or to what is wanted."""
        places = {}
        while not places or place["name"] != until:
            press(key)
            place = self.hear("focus")
            known = (place["role"], place["name"], place["help"], *place["above"])
            if known in places:
                if known != next(iter(places)):
                    raise Failed(f"{key} leads back to {known} from {list(places)}")
                break
            places[known] = place
        return list(places.values())
