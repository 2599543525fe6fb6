"""A display without a window manager, and then with one."""

import subprocess

import harness
from harness import DOCK
from windows import EAR, geometry, numbers, press, xdotool


class LateManager(harness.DesktopTest):
    def test_it_works_as_far_as_it_can_and_then_wholly(self):
        fendrel = self.start_with_modes()
        dock = xdotool("search", "--sync", "--onlyvisible", "--name", f"^{DOCK}$")
        x, y, width, height = geometry(dock)
        self.assertEqual((x, width, y + height), (0, 1280, 800))
        fendrel.do("dock", "focus")
        press("Right", "Return")
        fendrel.mode_is("building")
        press("Escape")
        fendrel.do("focus", "start")

        manager = subprocess.Popen(["openbox", "--sm-disable"])
        self.addCleanup(manager.wait)
        self.addCleanup(manager.kill)
        EAR.expect("a window manager", lambda: numbers("_NET_SUPPORTING_WM_CHECK"))
        self.open(self.chat)
        fendrel.gate_is_on(self.chat)


if __name__ == "__main__":
    harness.main()
