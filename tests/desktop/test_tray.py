"""The status icon and its menu, in a status area that is there before the program or comes later."""

import re
import subprocess

import harness
from harness import PROGRAMS
from windows import SECONDS, Lines

MENU = "/MenuBar"


class Tray(harness.DesktopTest):
    def test_the_menu_does_what_it_says(self):
        for is_early in (True, False):
            with self.subTest(is_early=is_early):
                self.setUp()
                if is_early:
                    area = self.area()
                fendrel = self.start_with_modes()
                if not is_early:
                    area = self.area()
                self.item = area.expect("an icon", lambda line: line.startswith("item ")).split()[1]
                menu = self.ask("/StatusNotifierItem", "org.freedesktop.DBus.Properties.Get",
                                "string:org.kde.StatusNotifierItem", "string:Menu")
                self.assertIn(f'object path "{MENU}"', menu)
                self.choose("Building")
                fendrel.mode_is("building")
                self.choose("Focus for 25 Minutes")
                fendrel.expect("a session with an end", lambda state: state["focus"]["on"] and state["focus"]["endsAt"])
                self.choose("End Focus")
                fendrel.expect("no session", lambda state: not state["focus"]["on"])
                self.choose("Until ")
                fendrel.expect("a session until then", lambda state: state["focus"]["endsAt"])
                icon = self.icon()
                self.choose("Social    ⌥3")
                fendrel.expect("a switch under way", lambda state: state["pending"])
                self.choose("Stay in Building")
                fendrel.expect("no switch", lambda state: not state["pending"])
                self.choose("End Focus")
                fendrel.expect("no session", lambda state: not state["focus"]["on"])
                self.assertNotEqual(icon, self.icon())
                fendrel.end(lambda: self.choose("Quit Fendrel"))
                area.end()

    def area(self):
        area = Lines(PROGRAMS / "status_area")
        self.addCleanup(area.end)
        area.expect("the status area", lambda line: line == "ready")
        return area

    def icon(self):
        return self.ask("/StatusNotifierItem", "org.freedesktop.DBus.Properties.Get",
                        "string:org.kde.StatusNotifierItem", "string:IconPixmap").split("variant", 1)[1]

    def ask(self, path, method, *arguments):
        return subprocess.run(["dbus-send", "--print-reply", f"--dest={self.item}", path, method, *arguments],
                              capture_output=True, text=True, timeout=SECONDS, check=True).stdout

    def choose(self, label):
        layout = self.ask(MENU, "com.canonical.dbusmenu.GetLayout", "int32:0", "int32:-1", "array:string:")
        entries = (re.search(rf'int32 (\d+)\s.*"label"\s+variant\s+string "{label}', entry, re.DOTALL)
                   for entry in layout.split("struct {"))
        found = [entry[1] for entry in entries if entry]
        self.assertTrue(found, f"{label} in {layout}")
        self.ask(MENU, "com.canonical.dbusmenu.Event", f"int32:{found[0]}", "string:clicked", "variant:int32:0",
                 "uint32:0")


if __name__ == "__main__":
    harness.main()
