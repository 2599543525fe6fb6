"""The docks and panels that people have: hidden and given back exactly, also when the program that hid them is killed."""

import configparser
import os
import pathlib
import random
import signal
import subprocess
import tempfile
import time

import harness
from windows import EAR, SECONDS, Lines, numbers, titled, wait_window

LEFT, BOTTOM = 2, 8  # Qt::Edge
SECONDS_BEFORE_KILL = 0.06
FILE = pathlib.Path.home() / ".config/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml"
PLANK = "/net/launchpad/plank/docks/dock1/"
os.environ["GSETTINGS_BACKEND"] = "dconf"


def told(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class DockTest(harness.DesktopTest):
    def serve(self, name, *command):
        """Starts the program of a name on the bus, which nothing on this one does."""
        if not command:
            service = configparser.ConfigParser(interpolation=None)
            service.read(f"/usr/share/dbus-1/services/{name}.service")
            command = [service["D-BUS Service"]["Exec"]]
        server = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (server.kill(), server.wait()))
        subprocess.run(["gdbus", "wait", "--session", "--timeout", "60", name], check=True)
        return server

    def setUp(self):
        super().setUp()
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.settings = pathlib.Path(folder.name) / "Settings.json"

    def switch(self):
        program = Lines(harness.PROGRAMS / "dock_switch", self.settings)
        self.addCleanup(program.end)
        program.expect("the dock runs", self.running.__eq__)
        return program

    def stop(self, program):
        program.say("stop")
        program.expect("it is given back", "stopped".__eq__)

    def kill(self, kills, ways):
        """Kills what switches the dock all the time, and looks what the next start makes of that. Everything is tried
        on each of the ways in which people have their dock."""
        seed = random.randrange(1 << 30)
        moments = random.Random(seed)
        hidden = 0
        for turn in range(kills):
            if turn % (kills // len(ways)) == 0:
                self.settings.unlink(missing_ok=True)  # else this would be the user's change of a hidden dock
                self.begin(ways[turn // (kills // len(ways))])
                before = self.now()
            program = self.switch()
            if moments.random() < 0.5:
                program.say("settle")
            self.give_back(program, before)
            self.assertEqual(self.now(), before, f"seed {seed}, turn {turn}")
            program.say(f"flip {moments.randrange(1 << 30)}")
            time.sleep(moments.uniform(0, SECONDS_BEFORE_KILL))
            if moments.random() < 0.3:
                self.hold()
            program.end()
            hidden += self.now() != before
        self.assertGreater(hidden, kills / 20, f"seed {seed}: it was hardly ever hidden when it was killed")

    def end(self, program):
        self.stop(program)
        program.say("quit")
        program.process.wait(SECONDS)
        self.assertNotIn("savedDockSettings", self.settings.read_text())


class Plank(DockTest):
    def setUp(self):
        super().setUp()
        self.keeper = self.serve("ca.desrt.dconf")
        self.serve("org.ayatana.bamf")
        told("dconf", "reset", "-f", PLANK)
        self.serve("net.launchpad.plank", "plank")
        self.running = f"plank {BOTTOM}"

    def now(self):
        lines = told("dconf", "dump", PLANK).splitlines()
        return {line for line in lines if "=" in line and not line.startswith("dock-items")}  # those are its own

    def set(self, **values):
        for key, value in values.items():
            told("dconf", "write", PLANK + key.replace("_", "-"), value)

    def test_hidden_and_given_back(self):
        window = wait_window("plank")
        self.set(hide_mode="'none'", unhide_delay="250")
        EAR.expect("it holds space", lambda: any(numbers("_NET_WM_STRUT_PARTIAL", window)), window)
        before = self.now()
        program = self.switch()
        program.say("on")
        EAR.expect("it is gone", lambda: not any(numbers("_NET_WM_STRUT_PARTIAL", window)), window)
        program.say("off")
        EAR.expect("it is back", lambda: any(numbers("_NET_WM_STRUT_PARTIAL", window)), window)
        self.end(program)
        self.assertEqual(self.now(), before)

    def test_changes_of_the_user(self):
        program = self.switch()
        program.say("on")
        EAR.expect("it is hidden", lambda: "unhide-delay=1000000" in self.now(), wait_window("plank"))
        self.set(hide_mode="'window-dodge'")
        self.set(position="'left'")
        program.expect("its edge", f"plank {LEFT}".__eq__)
        self.set(position="'top'")
        program.expect("a menu bar is no dock", "none".__eq__)
        self.end(program)
        self.assertEqual(self.now(), {"hide-mode='window-dodge'", "position='top'"})

    def test_killed_at_any_moment(self):
        self.kill(120, [{}, {"hide_mode": "'none'"}, {"hide_mode": "'auto'", "pressure_reveal": "true"},
                        {"hide_mode": "'auto'", "unhide_delay": "0"}])

    def begin(self, values):
        self.keeper.send_signal(signal.SIGCONT)
        told("dconf", "reset", "-f", PLANK)
        self.set(**values)

    def hold(self):
        """What is on its way to the disk arrives after the next start."""
        self.keeper.send_signal(signal.SIGSTOP)

    def give_back(self, program, before):
        program.say("stop")
        self.keeper.send_signal(signal.SIGCONT)
        program.expect("it is given back", "stopped".__eq__)

    def test_the_whole_program_killed(self):
        window = wait_window("plank")
        before = self.now()
        killed = self.start_with_modes()
        killed.do("dock", "replace", "on")
        EAR.expect("it is hidden", lambda: "unhide-delay=1000000" in self.now(), window)
        killed.process.kill()
        killed.process.wait()
        fendrel = self.start()
        fendrel.do("dock", "replace", "off")
        EAR.expect("it is back", lambda: self.now() == before, window)
        fendrel.end(lambda: fendrel.do("quit"))
        self.assertEqual(self.now(), before)
        self.assertNotIn("savedDockSettings", (harness.CONFIG / "Settings.json").read_text())

    def test_the_display_gone(self):
        before = self.now()
        changes = Lines("dconf", "watch", PLANK)
        self.addCleanup(changes.end)
        display = Lines("Xvfb", "-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp", "-noreset")
        self.addCleanup(display.end)
        fendrel = self.start(DISPLAY=":" + display.expect("its number", str.isdigit))
        fendrel.do("dock", "replace", "on")
        changes.expect("it is hidden", lambda line: "unhide-delay=1000000" in self.now())
        fendrel.end(display.process.terminate, status=1)
        changes.expect("it is back", lambda line: self.now() == before)
        subprocess.run([harness.PROGRAMS / "fendrel", "--restore-dock"], check=True)  # once the other one has ended
        self.assertNotIn("savedDockSettings", (harness.CONFIG / "Settings.json").read_text())


class XfcePanel(DockTest):
    def setUp(self):
        super().setUp()
        FILE.unlink(missing_ok=True)
        self.keeper = self.serve("org.xfce.Xfconf")
        self.serve("org.xfce.Panel", "xfce4-panel")
        wait_window("xfce4-panel")  # it has made its settings by then
        self.set("autohide-behavior", "--reset")
        self.running = f"xfce4-panel {BOTTOM}"

    def now(self):
        return told("xfconf-query", "--channel", "xfce4-panel", "--property", "/panels", "--list", "--verbose")

    def set(self, key, *value):
        told("xfconf-query", "--channel", "xfce4-panel", "--property", f"/panels/panel-2/{key}", *value)

    def watch(self, folder):
        changes = Lines("gio", "monitor", "-d", folder)
        self.addCleanup(changes.end)
        return changes

    def lower(self):
        """The panel that holds space below."""
        return next((window for window in numbers("_NET_CLIENT_LIST") if titled([window], "xfce4-panel")
                     and (space := numbers("_NET_WM_STRUT_PARTIAL", window)) and space[3]), None)

    def test_hidden_and_given_back(self):
        window = EAR.expect("it holds space", self.lower)
        before = self.now()
        program = self.switch()
        program.say("on")
        EAR.expect("it is gone", lambda: window not in numbers("_NET_CLIENT_LIST"))
        program.say("off")
        EAR.expect("it is back", lambda: self.lower() == window, window)
        self.stop(program)
        self.assertEqual(self.now(), before)

        program.say("on")
        EAR.expect("it is gone", lambda: window not in numbers("_NET_CLIENT_LIST"))
        self.set("output-name", "--type", "string", "--set", "Primary")
        self.set("position", "--set", "p=7;x=0;y=0")
        program.expect("its edge", f"xfce4-panel {LEFT}".__eq__)
        self.set("position", "--set", "p=9;x=0;y=0")
        program.expect("a menu bar is no dock", "none".__eq__)
        folder = self.watch(self.settings.parent)
        program.say("off")
        folder.expect("the record goes", lambda line: "savedDockSettings" not in self.settings.read_text())
        self.assertNotIn("autohide-behavior", FILE.read_text())
        self.assertNotIn("autohide-behavior", self.now())
        self.assertRegex(self.now(), "output-name +Primary")

    def test_power_cut_after_it_was_given_back(self):
        folder = self.watch(FILE.parent)
        before = self.now()
        program = self.switch()
        program.say("on")
        folder.expect("it is hidden on the disk",
                      lambda line: FILE.exists() and "hidden-by-fendrel" in FILE.read_text())
        self.stop(program)
        program.say("quit")
        program.process.wait(SECONDS)
        self.keeper.kill()
        self.keeper.wait()
        self.keeper = self.serve("org.xfce.Xfconf")
        self.stop(self.switch())
        self.assertEqual(self.now(), before)

    def test_killed_at_any_moment(self):
        self.kill(80, [{}, {"autohide-behavior": ("uint", "0")}, {"autohide-behavior": ("uint", "1")},
                       {"autohide-behavior": ("uint", "2"), "output-name": ("string", "Primary")}])

    def begin(self, values):
        for key in ("output-name", "autohide-behavior"):
            self.set(key, "--reset")
        for key, (kind, value) in values.items():
            self.set(key, "--create", "--type", kind, "--set", value)

    def hold(self):
        """The service takes everything at once."""

    def give_back(self, program, before):
        """Without waiting for the disk, which takes seconds."""
        changes = Lines("xfconf-query", "--channel", "xfce4-panel", "--monitor")
        changes.expect("it listens")
        program.say("stop")
        if self.now() != before:
            changes.expect("it is given back", lambda line: self.now() == before)
        changes.end()


if __name__ == "__main__":
    harness.main()
