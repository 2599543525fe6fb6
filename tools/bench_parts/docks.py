"""Measures the dock beside others, one at a time on the desktop that this runs in. Prints JSON: milliseconds, MB."""

import contextlib
import json
import os
import pathlib
import subprocess
import sys
import time

from bench_parts.display import Display
from bench_parts.program import Bench, threads, usage
from Xlib import X
from Xlib.ext import damage, shape, xtest

STARTS = 10
LAUNCHERS, MAGNIFIED = 10, 20
SETTLE_SECONDS, IDLE_SECONDS = 5.0, 60.0
SWEEPS, SWEEP_SECONDS = 5, 2.0  # to and fro over the icons
MOTION = 1 / 125  # as often as an ordinary mouse tells
SAME_FRAME = 4  # milliseconds in which the pieces of one frame reach the screen
HELPERS = pathlib.Path("/usr/libexec"), *pathlib.Path("/usr/lib").glob("*-linux-gnu")
ICONS = ("firefox", "thunderbird", "gimp", "inkscape", "vlc", "blender", "krita", "audacity", "libreoffice-writer",
         "libreoffice-calc", "utilities-terminal", "accessories-calculator", "system-file-manager", "steam", "evolution",
         "hexchat", "transmission", "telegram", "calibre", "darktable")


def entry(number):
    return pathlib.Path.home() / f".local/share/applications/org.bench.App{number}.desktop"


def helper(path):
    return next(str(folder / path) for folder in HELPERS if (folder / path).exists())


def install_applications():
    for number, icon in enumerate(ICONS):
        entry(number).parent.mkdir(parents=True, exist_ok=True)
        entry(number).write_text(f"[Desktop Entry]\nType=Application\nName=App {number}\nExec=true\nIcon={icon}\n")


class Fendrel:
    name, helper = "Fendrel", None

    def __init__(self, bench):
        self.bench, self.command, self.has = bench, [bench.programs / "fendrel"], 0

    def furnish(self, launchers):
        if not self.has:
            self.bench.finish_first_run()
        with self.bench.fendrel():
            self.bench.control("settings", "set", "magnify", "true")
            for number in range(self.has, launchers):
                self.bench.control("mode", "add-app", "building", entry(number).stem)
        self.has = launchers


class Plank:
    name, command = "Plank", ["plank"]

    def __init__(self, _bench):
        # It answers before the dock starts, as in a session that has run for a while.
        self.helper = subprocess.Popen([helper("bamf/bamfdaemon")], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        subprocess.run(["gdbus", "wait", "--session", "--timeout", "20", "org.ayatana.bamf"], check=True)

    def furnish(self, launchers):
        folder = pathlib.Path.home() / ".config/plank/dock1/launchers"
        folder.mkdir(parents=True, exist_ok=True)
        for number in range(launchers):
            (folder / f"{number}.dockitem").write_text(f"[PlankDockItemPreferences]\nLauncher=file://{entry(number)}\n")
        items = str([f"{number}.dockitem" for number in range(launchers)])
        for key, value in (("dock-items", items), ("hide-mode", "none"), ("zoom-enabled", "true")):
            schema = "net.launchpad.plank.dock.settings:/net/launchpad/plank/docks/dock1/"
            subprocess.run(["gsettings", "set", schema, key, value], check=True)


class XfcePanel:
    name, command, helper = "xfce4-panel", ["xfce4-panel", "--disable-wm-check"], None

    def __init__(self, _bench):
        self.settings = None

    def furnish(self, launchers):
        ids = "".join(f'<value type="int" value="{number + 1}"/>' for number in range(launchers))
        plugins = "".join(f'<property name="plugin-{number + 1}" type="string" value="launcher"><property name="items"'
                          f' type="array"><value type="string" value="{entry(number)}"/></property></property>'
                          for number in range(launchers))
        folder = pathlib.Path.home() / ".config/xfce4/xfconf/xfce-perchannel-xml"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "xfce4-panel.xml").write_text(
            '<?xml version="1.0"?><channel name="xfce4-panel" version="1.0"><property name="configver" type="int"'
            ' value="2"/><property name="panels" type="array"><value type="int" value="1"/><property name="panel-1"'
            ' type="empty"><property name="position" type="string" value="p=10;x=0;y=0"/><property name="size"'
            ' type="uint" value="56"/><property name="length" type="uint" value="1"/><property name="plugin-ids"'
            f' type="array">{ids}</property></property></property><property name="plugins" type="empty">{plugins}'
            '</property></channel>')
        self.settings = subprocess.Popen([helper("xfce4/xfconf/xfconfd")], stdout=subprocess.DEVNULL)
        subprocess.run(["gdbus", "wait", "--session", "--timeout", "20", "org.xfce.Xfconf"], check=True)


class Docks:
    def __init__(self, programs):
        self.display = Display()
        self.docks = [kind(Bench(programs)) for kind in (Fendrel, Plank, XfcePanel)]

    @contextlib.contextmanager
    def running(self, dock):
        """Its processes, its window, and how long until that was mapped and drawn."""
        self.display.forget()
        begun = time.monotonic()
        process = subprocess.Popen(dock.command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            window, *moments = self.display.wait_dock()
            yield ([process.pid, *([dock.helper.pid] if dock.helper else [])], window,
                   [(moment - begun) * 1e3 for moment in moments])
        finally:
            process.terminate()
            process.wait()

    def measure(self):
        results = {dock.name: {"mapped": [], "drawn": [], "processor": []} for dock in self.docks}
        install_applications()
        for dock in self.docks:
            dock.furnish(LAUNCHERS)
        for _ in range(STARTS):
            for dock in self.docks:
                with self.running(dock) as (processes, _window, (mapped, drawn)):
                    processor = usage(processes[0])["processor"]
                    for name, value in (("mapped", mapped), ("drawn", drawn), ("processor", processor)):
                        results[dock.name][name].append(value)
        for dock in self.docks:
            with self.running(dock) as (processes, _window, _moments):
                time.sleep(SETTLE_SECONDS)
                results[dock.name]["idle"] = self.spent(processes, lambda: time.sleep(IDLE_SECONDS))
                results[dock.name]["memory"] = [sum(sizes) for sizes in zip(*map(memory, processes))]
        for dock in self.docks[:2]:
            dock.furnish(MAGNIFIED)
            with self.running(dock) as (processes, window, _moments):
                time.sleep(SETTLE_SECONDS)
                results[dock.name]["sweep"] = self.spent(processes, lambda: self.sweep(window))
        return results

    def spent(self, processes, act):
        before = {process: threads(process) for process in processes}
        begun = time.monotonic()
        more = act()
        seconds = time.monotonic() - begun
        used = [usage(process, before[process]) for process in processes]
        return {"seconds": seconds, **{name: sum(each[name] for each in used) for name in used[0]}, **(more or {})}

    def sweep(self, window):
        """Leads the pointer over the middle of the icons; every frame that the window drew meanwhile."""
        connection = self.display.display
        place = window.translate_coords(self.display.root, 0, 0)
        areas = window.shape_get_rectangles(shape.SK.Input).rectangles
        area = max(areas, key=lambda each: each.width * each.height)
        left, width = area.x - place.x + area.width // 4, area.width // 2
        y = area.y - place.y + area.height // 2
        window.damage_create(damage.DamageReportRawRectangles)
        self.display.forget()
        begun, frames, told = time.monotonic(), [], 0
        while (now := time.monotonic() - begun) < SWEEPS * SWEEP_SECONDS:
            if now >= told * MOTION:
                way = now % SWEEP_SECONDS / SWEEP_SECONDS * 2
                xtest.fake_input(connection, X.MotionNotify, x=int(left + width * min(way, 2 - way)), y=y)
                told = int(now / MOTION) + 1
            while connection.pending_events():
                event = connection.next_event()
                if event.type == connection.extension_event.DamageNotify and event.drawable == window:
                    if not frames or event.timestamp - frames[-1][1] > SAME_FRAME:
                        frames.append([event.timestamp, event.timestamp])
                    frames[-1][1] = event.timestamp
            time.sleep(max(0, told * MOTION - (time.monotonic() - begun)))
        xtest.fake_input(connection, X.MotionNotify, x=0, y=0)
        connection.flush()
        return {"frames": [first for first, _ in frames]}


def memory(process):
    """Proportional and resident."""
    lines = (line.split() for line in pathlib.Path(f"/proc/{process}/smaps_rollup").read_text().splitlines()[1:])
    sizes = {line[0]: int(line[1]) / 1024 for line in lines}
    return sizes["Pss:"], sizes["Rss:"]


if __name__ == "__main__":
    if "FENDREL_DESKTOP" not in os.environ:
        sys.exit("this moves the pointer; it runs only inside `tools/desktop run`")
    print(json.dumps(Docks(sys.argv[1]).measure()))
