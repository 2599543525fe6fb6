"""What a screen reader is told: whatever can be used has a name and says what it is."""

import json
import pathlib
import subprocess
import time

import harness
from harness import DOCK, SETTINGS
from windows import SECONDS, wait_window

READER = pathlib.Path(__file__).with_name("screen_reader.py")
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
SAYS_NOTHING = {"unknown", "invalid", "filler", "panel", "frame", "extended"}
PANES = ("general", "dock", "appearance", "widgets", "modes", "accounts", "permissions", "about")


class ScreenReader(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        launcher = subprocess.Popen([LAUNCHER, "--launch-immediately"], stdout=subprocess.DEVNULL,
                                    stderr=subprocess.DEVNULL)
        self.addCleanup(launcher.wait)
        self.addCleanup(launcher.terminate)

    def test_everything_has_a_name_and_a_role(self):
        fendrel = self.fendrel = self.start(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.reads("Welcome to Fendrel", at_least=3)
        fendrel.do("onboarding", "finish", "writing", "building", "social")
        fendrel.mode_is("writing")
        self.reads(DOCK, at_least=4)
        for pane in PANES:
            fendrel.do("settings", "open", pane)
            wait_window(SETTINGS)
            self.reads(SETTINGS, at_least=len(PANES) + 1)
        fendrel.do("modes", "open", "writing")
        self.reads("Modes", at_least=12)

    def reads(self, window, at_least):
        """The window may still be filling itself."""
        deadline = time.monotonic() + SECONDS
        while True:
            told = subprocess.run(["/usr/bin/python3", READER, str(self.fendrel.process.pid), window],
                                  capture_output=True, text=True, check=True).stdout
            things = [json.loads(line) for line in told.splitlines()]
            if len(things) >= at_least or time.monotonic() > deadline:
                break
        with self.subTest(window=window):
            self.assertGreaterEqual(len(things), at_least, told)
            silent = [thing["where"] for thing in things if not thing["name"].strip() or thing["role"] in SAYS_NOTHING]
            self.assertEqual(silent, [])


if __name__ == "__main__":
    harness.main()
