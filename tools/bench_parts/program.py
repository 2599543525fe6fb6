"""Measures the whole program on the desktop that this runs in. Prints JSON: milliseconds, MB."""

import contextlib
import json
import os
import pathlib
import socket
import subprocess
import sys
import threading
import time

from bench_parts.display import Display
from Xlib import X

FIRST_RUN, DOCK, GATE, EMPTY = "Welcome to Fendrel", "Fendrel dock", "Stay focused, or switch?", "Empty"
WORK, FOREIGN = "work", "foreign"
STARTS = 12
GATES = 40
BURST = 100_000
IDLE_SECONDS = 60.0
SETTLE_SECONDS = 5.0  # what follows a start: animations, files written at leisure


class Bench:
    def __init__(self, programs):
        self.programs = pathlib.Path(programs)
        self.display = Display()

    @contextlib.contextmanager
    def program(self, *command, **more):
        process = subprocess.Popen([self.programs / command[0], *command[1:]], **more)
        try:
            yield process
        finally:
            process.terminate()
            process.wait()

    @contextlib.contextmanager
    def fendrel(self, window=DOCK):
        """Fendrel with that window on the screen."""
        self.display.forget()
        with self.program("fendrel") as process:
            self.display.wait_shown(window)
            yield process

    @contextlib.contextmanager
    def application(self, title, window_class):
        with self.program("bench_windows", title, stdin=subprocess.PIPE, stdout=subprocess.PIPE) as process:
            process.stdout.readline()
            process.stdin.write(f"class {window_class} {window_class}\n".encode())
            process.stdin.flush()
            process.stdout.readline()
            self.display.wait_until(lambda: title in self.display.windows())
            window = self.display.windows()[title]
            self.display.wait_active(window)
            yield window

    def control(self, *words):
        return subprocess.run([self.programs / "fendrelctl", *words], check=True, capture_output=True, text=True).stdout

    def finish_first_run(self):
        with self.fendrel(FIRST_RUN):
            self.control("onboarding", "finish", "writing", "building", "social")
            # Only what is installed gets into a new mode by itself.
            self.control("mode", "add-app", "building", "com.microsoft.VSCode")
            self.control("mode", "add-app", "social", "com.hnc.Discord")
            self.control("switch", "building")

    def start(self):
        def measure(command, title):
            self.display.forget()
            begun = time.monotonic()
            with self.program(command) as process:
                drawn = self.display.wait_shown(title)[1]
                results[command]["wall"].append((drawn - begun) * 1e3)
                results[command]["processor"].append(usage(process.pid)["processor"])
        results = {name: {"wall": [], "processor": []} for name in ("fendrel", "empty_window")}
        self.finish_first_run()
        for _ in range(STARTS):
            measure("fendrel", DOCK)
            measure("empty_window", EMPTY)
        return {"fendrel": results["fendrel"], "empty": results["empty_window"]}

    def gate(self):
        results = {"active": [], "mapped": [], "drawn": []}
        self.finish_first_run()
        with (self.fendrel(), self.application(WORK, "code") as work, self.application(FOREIGN, "discord") as foreign):
            gate = self.display.hidden_window(GATE)
            gate.change_attributes(event_mask=X.StructureNotifyMask)
            self.display.activate(work)
            self.display.wait_active(work)
            self.control("focus", "start")
            for _ in range(GATES):
                self.display.forget()
                begun = time.monotonic()
                self.display.activate(foreign)
                active = self.display.wait_until(lambda: self.display.active_window() not in (0, work.id))
                mapped = self.display.wait_mapped(gate)
                drawn = self.display.wait_drawn(gate)
                for name, moment in (("active", active), ("mapped", mapped), ("drawn", drawn)):
                    results[name].append((moment - begun) * 1e3)
                self.control("gate", "stay")
                self.display.wait_hidden(gate)
                self.display.wait_active(work)
        return results

    def burst(self):
        """How long a question to the interface's thread waits while a browser reports as fast as it can."""
        waits = []
        self.finish_first_run()
        with self.fendrel(), self.application(WORK, "code"):
            for host, mode in ((WORK, "building"), (FOREIGN, "social")):
                self.control("mode", "add-site", mode, f"{host}.example")
            self.control("focus", "start")
            folder = pathlib.Path.home() / ".local/share/Fendrel"
            with socket.socket(socket.AF_UNIX) as browser, socket.socket(socket.AF_UNIX) as control:
                browser.connect(str(folder / "bridge.sock"))
                control.connect(str(folder / "control.sock"))
                reports = b"".join(report(number) for number in range(BURST))
                sender = threading.Thread(target=browser.sendall, args=[b'{"type":"hello","pids":[1]}\n' + reports])
                reader = threading.Thread(target=lambda: [None for _ in iter(lambda: browser.recv(65536), b"")], daemon=True)
                sender.start()
                reader.start()
                answers = control.makefile("rb")
                last = False
                while not last:
                    begun = time.monotonic()
                    control.sendall(b'{"command":"status"}\n')
                    tab = (json.loads(answers.readline())["result"]["browsers"] or [{}])[0].get("tab")
                    waits.append((time.monotonic() - begun) * 1e3)
                    last = tab and tab["title"] == str(BURST - 1)
                sender.join()
        return {"waits": waits}

    def idle(self):
        results = {"seconds": IDLE_SECONDS}
        self.finish_first_run()
        with (self.fendrel() as fendrel, self.program("empty_window") as empty,
              self.application(FOREIGN, "discord"), self.application(WORK, "code")):
            processes = {"fendrel": fendrel.pid, "empty": empty.pid}
            for state in ("idle", "focus"):
                if state == "focus":
                    self.control("focus", "start", "--for", "1h")
                time.sleep(SETTLE_SECONDS)
                before = {name: threads(pid) for name, pid in processes.items()}
                time.sleep(IDLE_SECONDS)
                results[state] = {name: {**usage(pid, before[name]), "memory": memory(pid)}
                                  for name, pid in processes.items()}
        return results


def report(number):
    """In turn of two tabs, one of which is to be veiled: each changes what is judged, drawn and told."""
    host = (WORK, FOREIGN)[number % 2]
    return json.dumps({"type": "tab", "tabId": number % 2, "url": f"http://{host}.example/", "title": str(number)}).encode() + b"\n"


def threads(pid):
    """Of each thread since it began: nanoseconds on a processor, and how often it slept until something woke it."""
    found = {}
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        with contextlib.suppress(OSError):  # it ended meanwhile
            status = dict(line.split(":", 1) for line in (task / "status").read_text().splitlines())
            ran = int((task / "schedstat").read_text().split()[0])
            found[task.name] = (ran, int(status["voluntary_ctxt_switches"]))
    return found


def usage(pid, before=None):
    """Of all threads: milliseconds of processor time, and wake-ups; since `before`, if what threads() said is given."""
    processor = wake_ups = 0
    for thread, (ran, slept) in threads(pid).items():
        ran_before, slept_before = (before or {}).get(thread, (0, 0))
        processor += ran - ran_before
        wake_ups += slept - slept_before
    return {"processor": processor / 1e6, "wakeUps": wake_ups}


def memory(pid):
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    return next(int(line.split()[1]) for line in lines if line.startswith("Pss:")) / 1024


if __name__ == "__main__":
    if "FENDREL_DESKTOP" not in os.environ:
        sys.exit("this moves windows; it runs only inside `tools/desktop run`")
    name, programs = sys.argv[1:]
    print(json.dumps(getattr(Bench(programs), name)()))
