"""The desktop's own banners, kept away while messages are held and given back on every way out."""

import ctypes
import json
import os
import signal
import subprocess
import time

import harness
from harness import CONFIG
from windows import SECONDS, Failed, Lines, is_readable

SERVER = "org.freedesktop.Notifications"
MOVED_TO = 0x80


class Banners(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        self.told = Lines("gdbus", "monitor", "--session", "--dest", SERVER)
        self.addCleanup(self.told.end)
        self.told.expect("it listens", lambda line: "Monitoring" in line)
        self.serve()

    def serve(self):
        server = subprocess.Popen(["dunst"], stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (server.kill(), server.wait()))
        self.told.expect("a server", lambda line: "is owned by" in line)
        return server

    def becomes(self, paused):
        self.told.expect(f"paused: {paused}", lambda line: f"'paused': <{str(paused).lower()}>" in line)

    def test_they_come_back(self):
        fendrel = self.start_with_modes()
        quiet = ["settings", "set", "quietBanners"]
        with self.subTest("by the setting"):
            fendrel.do(*quiet, "true")
            self.becomes(True)
            fendrel.do(*quiet, "false")
            self.becomes(False)
        with self.subTest("at the end"):
            fendrel.do(*quiet, "true")
            self.becomes(True)
            fendrel.end(fendrel.process.terminate)
            self.becomes(False)
        with self.subTest("at the next start"):
            fendrel = self.start()
            self.becomes(True)
            settings = written("savedBanners")
            fendrel.end(fendrel.process.kill, status=-signal.SIGKILL)
            self.assertTrue(self.is_paused())
            settings.pop("quietBanners")
            (CONFIG / "Settings.json").write_text(json.dumps(settings))
            fendrel = self.start()
            self.becomes(False)
        with self.subTest("not where the user paused"):
            subprocess.run(["dunstctl", "set-paused", "true"], check=True)
            fendrel.do(*quiet, "true")
            fendrel.end(fendrel.process.terminate)
            self.assertTrue(self.is_paused())

    def is_paused(self):
        return subprocess.run(["dunstctl", "is-paused"], capture_output=True, check=True).stdout.strip() == b"true"


def written(key):
    """The settings on the disk, as soon as they hold a key."""
    libc = ctypes.CDLL(None)
    with open(libc.inotify_init(), "rb", buffering=0) as changes:
        libc.inotify_add_watch(changes.fileno(), bytes(CONFIG), MOVED_TO)
        deadline = time.monotonic() + SECONDS
        while key not in (settings := json.loads((CONFIG / "Settings.json").read_text())):
            if not is_readable(changes, deadline):
                raise Failed(f"expected {key} in the settings")
            os.read(changes.fileno(), 4096)
        return settings


if __name__ == "__main__":
    harness.main()
