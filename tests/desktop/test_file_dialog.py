"""Files chosen in the desktop's dialog, through its real portal, and what happens where there is none."""

import json
import pathlib
import subprocess
import tempfile
import time

from gi.repository import Gio, GLib

import harness
from harness import HOME, SETTINGS
from windows import SECONDS, Failed, Lines, is_readable, press, wait_active

DIALOG = pathlib.Path(__file__).with_name("file_dialog.py")
STANDIN, PORTAL = "org.freedesktop.impl.portal.desktop.standin", "org.freedesktop.portal.Desktop"
DOCUMENTS = HOME / "Documents"


def wait_file(folder, pattern, act):
    """The file that is there once `act` has had its effect."""
    folder.mkdir(exist_ok=True)
    monitor = Gio.File.new_for_path(str(folder)).monitor_directory(Gio.FileMonitorFlags.NONE)
    act()
    late = GLib.timeout_source_new_seconds(int(SECONDS))
    late.attach()
    while not (found := list(folder.glob(pattern))):
        if late.is_destroyed():
            raise Failed(f"expected: {pattern} in {folder}")
        GLib.MainContext.default().iteration(True)
    late.destroy()
    monitor.cancel()
    return found[0]


class FileDialog(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        self.portals = tempfile.TemporaryDirectory()
        self.addCleanup(self.portals.cleanup)
        pathlib.Path(self.portals.name, "standin.portal").write_text(
            f"[portal]\nDBusName={STANDIN}\nInterfaces=org.freedesktop.impl.portal.FileChooser\nUseIn=any\n")
        self.dialog = Lines(DIALOG)
        self.addCleanup(self.dialog.end)
        self.wait_for(STANDIN)
        self.start_portal()
        self.fendrel = self.start_with_modes()
        self.show_settings()

    def start_portal(self):
        self.portal = subprocess.Popen(["env", f"XDG_DESKTOP_PORTAL_DIR={self.portals.name}",
                                        "/usr/libexec/xdg-desktop-portal"], stderr=subprocess.DEVNULL)
        self.addCleanup(self.end_portal)
        self.wait_for(PORTAL)

    def end_portal(self):
        self.portal.kill()
        self.portal.wait()

    def wait_for(self, name):
        subprocess.run(["gdbus", "wait", "--session", "--timeout", str(int(SECONDS)), name], check=True)

    def show_settings(self):
        """At the button that exports; the one that imports comes next, and the last resets."""
        self.fendrel.do("settings", "open", "general")
        self.window = wait_active(SETTINGS)
        press("shift+Tab", "shift+Tab", "shift+Tab")

    def question(self):
        return json.loads(self.dialog.expect("a line"))

    def test_what_is_exported_can_be_imported(self):
        press("space")
        self.question()
        self.dialog.say("cancel")
        while not is_readable(self.dialog.process.stdout, time.monotonic() + 0.2):
            press("space", "Return")  # until the button has heard of it
        asked = self.question()
        self.assertEqual((asked["method"], asked["window"]), ("SaveFile", f"x11:{self.window:x}"))
        self.assertRegex(asked["current_name"], r"^Fendrel Backup \d{4}-\d\d-\d\d \d\d\.\d\d\.json$")
        self.assertEqual(asked["current_folder"], f"{DOCUMENTS}\0")
        self.assertEqual(asked["filters"][0][1], [[0, "*.json"]])
        folder = HOME / "Größe 100%25 #1?"
        backup = wait_file(folder, "*.json", lambda: self.dialog.say((folder / "ä b%.json").as_uri()))
        self.assertEqual(backup.name, "ä b%.json")

        self.fendrel.do("mode", "add-site", "building", "later.example")
        press("Tab", "space")
        asked = self.question()  # the further presses brought no further question
        self.assertEqual((asked["method"], asked["window"]), ("OpenFile", f"x11:{self.window:x}"))
        self.assertEqual([globs for _, globs in asked["filters"]], [[[0, "*.json"]], [[0, "*"]]])
        self.dialog.say(backup.as_uri())
        wait_active("Import this backup?")
        press("Tab", "Return")
        wait_active(SETTINGS)
        self.assertNotIn("later.example", str(self.fendrel.do("modes")))

    def test_a_dialog_ends_without_a_file(self):
        press("space")
        self.question()
        subprocess.run(["wmctrl", "-F", "-c", SETTINGS], check=True)
        self.assertEqual(self.question(), "closed")

        self.show_settings()
        press("space")
        self.question()
        wait_file(DOCUMENTS, "Fendrel Backup *.json", self.end_portal).unlink()
        wait_file(DOCUMENTS, "Fendrel Backup *.json", lambda: press("space"))


if __name__ == "__main__":
    harness.main()
