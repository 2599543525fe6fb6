"""What Fendrel tells on its `watch` stream: kept as one state, and told line by line as it happens."""

import json
import select
import subprocess
import time


class Failed(Exception):
    """The story does not go as it should."""


class Watch:
    def __init__(self, control, say):
        self.control = control
        self.say = say
        self.state = {}
        self.waiting = b""
        self.stream = None

    def open(self, program, seconds):
        """Connects as soon as the program answers."""
        deadline = time.monotonic() + seconds
        while True:
            self.stream = subprocess.Popen([self.control, "watch"], bufsize=0, stdout=subprocess.PIPE,
                                           stderr=subprocess.PIPE)
            if select.select([self.stream.stdout], [], [], max(0, deadline - time.monotonic()))[0] and self.read():
                return
            trouble = self.stream.stderr.read().decode().strip()
            if self.stream.wait() != NOT_RUNNING or program.poll() is not None or time.monotonic() > deadline:
                raise Failed(f"fendrel does not answer: {trouble}")
            time.sleep(0.05)

    def read(self):
        """Takes what has arrived; false at the stream's end."""
        chunk = self.stream.stdout.read(65536)
        *lines, self.waiting = (self.waiting + chunk).split(b"\n")
        for line in lines:
            self.take(json.loads(line))
        return bool(chunk)

    def take(self, change):
        before = dict(self.state)
        self.state |= change
        for member, tell in TELLERS.items():
            if member in change and (text := tell(change[member], before.get(member))):
                self.say(text)

    def expect(self, what, holds, seconds=10.0):
        """Waits until the state is as the story wants it. What the stream told before the call counts too."""
        deadline = time.monotonic() + seconds
        while not holds(self.state):
            left = deadline - time.monotonic()
            if left <= 0 or not select.select([self.stream.stdout], [], [], left)[0]:
                raise Failed(f"expected within {seconds:.0f} s: {what}\nthe state is {json.dumps(self.state, indent=1)}")
            if not self.read():
                raise Failed(f"fendrel went away; expected: {what}")

    def do(self, *command):
        """Runs a command of fendrelctl; returns what it answers."""
        done = subprocess.run([self.control, "--json", *command], capture_output=True, text=True, timeout=10)
        if done.returncode:
            raise Failed(f"fendrelctl {' '.join(command)}: {done.stderr.strip()}")
        return json.loads(done.stdout) if done.stdout.strip() else None


NOT_RUNNING = 3


def tell_mode(mode, before):
    return f"mode: {mode['name']}"


def tell_pending(pending, before):
    if pending:
        return f"switching to {pending['id']} in {pending['secondsLeft']:.0f} s"
    return "no switch is waited for any more" if before else ""


def tell_focus(focus, before):
    if not focus["on"]:
        return "focus session ended" if before and before["on"] else ""
    return f"focus session until {focus['endsAt'][11:16]} UTC" if focus["endsAt"] else "focus session, open-ended"


def tell_front(front, before):
    if not front:
        return ""
    return f"in front: {front['appName']} - {front['title'] or 'no title'}"


def tell_judgement(judgement, before):
    if not judgement or not judgement["verdict"]:
        return ""
    subject, verdict = judgement["subject"], judgement["verdict"]
    name = subject.get("name") or subject.get("host")
    return f"judged: {name} belongs to {verdict['modeID'] or 'no mode'} ({verdict['certainty']}, by {verdict['source']})"


def tell_gate(gate, before):
    if gate:
        return f"GATE: {gate['name']} belongs to {gate['owner'] or 'no mode'}"
    return "the gate is closed" if before else ""


def tell_browsers(browsers, before):
    return "a browser is connected" if browsers and not before else ""


def tell_veils(veils, before):
    if veils and not before:
        return "VEIL: " + ", ".join(f"{veil['site']} belongs to {veil['owner']}" for veil in veils)
    return "no page is veiled any more" if before and not veils else ""


def tell_onboarding(onboarding, before):
    return "the first run is over" if onboarding["done"] else "first run: nothing is judged yet"


TELLERS = {
    "onboarding": tell_onboarding,
    "mode": tell_mode,
    "pending": tell_pending,
    "focus": tell_focus,
    "front": tell_front,
    "judgement": tell_judgement,
    "browsers": tell_browsers,
    "veils": tell_veils,
    "gate": tell_gate,
}
