"""The running program and small applications for it to judge, for tests of the whole."""

import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

from windows import SECONDS, Failed, Lines, wait_active, wait_window
from demo_parts.watch import Watch

PROGRAMS = pathlib.Path(os.environ["FENDREL_PROGRAMS"])
DESKTOP = pathlib.Path(__file__).resolve().parents[2] / "tools/desktop"
HOME = pathlib.Path.home()
DATA, CONFIG, STATE = (HOME / folder / "Fendrel" for folder in (".local/share", ".config", ".local/state"))
GATE, DOCK, SETTINGS, MODES = "Stay focused, or switch?", "Fendrel dock", "Fendrel Settings", "Modes"
OWN = "org.fendrel.Fendrel"
# What sanitizers and QML say of a fault in the program.
FAULTS = re.compile(r"Sanitizer|runtime error:|^qrc:.*(Error|Warning|loop)|Cannot (assign|read)|ASSERT", re.MULTILINE)
IS_SANITIZED = re.search(rb"__[at]san_init", (PROGRAMS / "fendrel").read_bytes()) is not None


class Application:
    """A small application of its own, known to the desktop by an entry. Its windows do what they are told."""

    def __init__(self, name):
        self.name, self.id = name, f"org.test.{name}"
        self.program = HOME / f"bin/test-{name.lower()}"
        if not self.program.exists():
            self.program.parent.mkdir(exist_ok=True)
            shutil.copy(PROGRAMS / "window_program", self.program)
            subprocess.run([DESKTOP, "entry", self.id, "--name", name, "--exec", self.program], check=True)

    def open(self):
        self.lines = Lines(self.program, self.name)
        self.lines.expect("its first window")

    def tell(self, command):
        self.lines.say(command)
        self.lines.expect(command)

    def raise_window(self):
        """As a task bar does."""
        subprocess.run(["wmctrl", "-i", "-a", hex(wait_window(self.name))], check=True)

    def stop(self):
        """It hangs from now on."""
        self.lines.process.send_signal(signal.SIGSTOP)

    def end(self):
        self.lines.end()


class Fendrel(Watch):
    """The running program and all that it tells."""

    def __init__(self, *arguments, **environment):
        super().__init__(str(PROGRAMS / "fendrelctl"), say=lambda text: None)
        self.fronts = []
        self.log = tempfile.TemporaryFile("w+")
        self.process = subprocess.Popen([PROGRAMS / "fendrel", *arguments], env=os.environ | environment,
                                        stderr=self.log)
        self.open(self.process, SECONDS)

    def take(self, change):
        super().take(change)
        if front := change.get("front"):
            self.fronts.append(front["bundleID"])

    def expect(self, what, holds, seconds=SECONDS):
        super().expect(what, holds, seconds)

    def front_is(self, app, title=None):
        self.expect(f"{app.id} with {title or app.name!r} in front", lambda state: state["front"]
                    and (state["front"]["bundleID"], state["front"]["title"]) == (app.id, title or app.name))

    def mode_is(self, mode):
        self.expect(f"the mode {mode}", lambda state: state["mode"]["id"] == mode)

    def gate_is_on(self, app):
        self.expect(f"the gate on {app.id}", lambda state: state["gate"] and state["gate"]["bundleID"] == app.id)
        wait_active(GATE)

    def gate_is_closed(self):
        self.expect("no gate", lambda state: not state["gate"])

    def end(self, ask, status=0):
        """Ends it well. Whatever the test did, its own windows were never in front to it."""
        try:
            ask()
            self.process.wait(SECONDS)
        finally:
            self.process.kill()
            self.stream.kill()
            self.stream.communicate()
        with self.log:
            self.log.seek(0)
            log = self.log.read()
        if self.process.wait() != status or FAULTS.search(log) or OWN in self.fronts:
            raise Failed(f"fendrel ended with {self.process.returncode}, fronts {self.fronts}, and wrote:\n{log}")


class DesktopTest(unittest.TestCase):
    """Each test has a Fendrel without a past, which has to end well."""

    def setUp(self):
        for folder in (DATA, CONFIG, STATE):
            shutil.rmtree(folder, ignore_errors=True)
        self.editor, self.chat = Application("Editor"), Application("Chat")

    def start(self, *arguments, **environment):
        fendrel = Fendrel(*arguments, **environment)
        self.addCleanup(lambda: fendrel.process.returncode is None and fendrel.end(lambda: fendrel.do("quit")))
        return fendrel

    def start_with_modes(self):
        """Started, with an editor that is for writing and a chat that is social. The mode is writing."""
        fendrel = self.start()
        fendrel.do("onboarding", "finish", "writing", "building", "social")
        # Whatever else this machine has is in the modes already, and makes docks of its own size.
        for mode in fendrel.do("modes"):
            for app in mode["apps"]:
                fendrel.do("mode", "remove-app", mode["id"], app)
        fendrel.do("mode", "add-app", "writing", self.editor.id)
        fendrel.do("mode", "add-app", "social", self.chat.id)
        return fendrel

    def program_for(self, name, kind):
        """The desktop's program for what is of this kind. What it is started with comes out of the pipe."""
        pipe, program = HOME / f"{name}.pipe", HOME / f"bin/{name}"
        os.mkfifo(pipe)
        program.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" > {pipe}\n')
        program.chmod(0o755)
        entry = HOME / f".local/share/applications/{name}.desktop"
        entry.write_text(f"[Desktop Entry]\nType=Application\nName={name}\nExec={program} %u\nMimeType={kind};\n")
        (HOME / ".config/mimeapps.list").write_text(f"[Default Applications]\n{kind}={entry.name}\n")
        reader = os.open(pipe, os.O_RDWR | os.O_NONBLOCK)
        self.addCleanup(os.close, reader)
        return reader

    def open(self, app):
        app.open()
        self.addCleanup(app.end)
        return app


def main():
    if "FENDREL_DESKTOP" not in os.environ:
        sys.exit("this types and clicks; it runs only inside `tools/desktop run`")
    unittest.main(module="__main__", argv=[sys.argv[0], "-v", *sys.argv[1:]], warnings="ignore")
