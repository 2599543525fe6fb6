"""What is recorded of notifications that real programs send to a real server, by whatever way they go."""

import contextlib
import os
import pathlib
import plistlib
import sqlite3
import stat
import subprocess
import tempfile

import harness
from harness import DATA, DESKTOP
from windows import SECONDS

NOTIFIER = pathlib.Path(__file__).with_name("notifier.py")
PORTAL = "org.freedesktop.portal.Desktop"
PORTAL_PARTS = {"org.freedesktop.impl.portal.PermissionStore": "xdg-permission-store",
                "org.freedesktop.impl.portal.desktop.gtk": "xdg-desktop-portal-gtk",
                PORTAL: "xdg-desktop-portal"}
BUS = (DESKTOP.parent / "desktop-settings/bus.conf").read_text()


class Notifications(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        self.serve("org.freedesktop.Notifications", "dunst")

    def serve(self, name, *command):
        server = subprocess.Popen(command, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (server.kill(), server.wait()))
        subprocess.run(["gdbus", "wait", "--session", "--timeout", str(int(SECONDS)), name], check=True)

    def start_recording(self):
        subprocess.run([DESKTOP, "entry", "org.test.Notifier", "--exec", NOTIFIER], check=True)
        self.fendrel = self.start_with_modes()
        self.fendrel.do("mode", "add-app", "social", "org.test.Notifier")
        self.fendrel.expect("a log of notifications", lambda state: not state["messages"]["problem"])

    def notify(self, *arguments):
        return subprocess.run(["notify-send", "--print-id", *arguments], check=True, text=True,
                              stdout=subprocess.PIPE).stdout.strip()

    def held_are(self, count):
        self.fendrel.expect(f"{count} held", lambda state: state["messages"]["held"] == {"social": count})

    def title_is_held(self, title):
        self.fendrel.expect(f"{title} held", lambda state: any(
            held["title"] == title for held in self.fendrel.do("held", "social")))

    def records(self):
        with contextlib.closing(sqlite3.connect(f"file:{DATA}/Notifications.db?mode=ro", uri=True)) as database:
            rows = database.execute("SELECT identifier, data FROM record JOIN app USING (app_id) ORDER BY rec_id")
            return [(identifier, plistlib.loads(data)) for identifier, data in rows]

    def test_each_way(self):
        for name, program in PORTAL_PARTS.items():
            self.serve(name, f"/usr/libexec/{program}")
        self.start_recording()
        entry = f"string:desktop-entry:{self.chat.id}"
        self.notify("--app-name", "chat", "By name", "<i>a</i> &amp; b")
        self.notify("--hint", entry, "--transient", "Transient")
        self.notify("--hint", entry, "--hint", "int:value:30", "Progress")
        number = self.notify("--hint", entry, "First")
        self.held_are(2)
        self.notify("--hint", entry, "--replace-id", number, "Second")
        for title, portal in (("GTK", "0"), ("Portal", "1")):
            program = subprocess.Popen([NOTIFIER, "gtk", self.chat.id, title],
                                       env=os.environ | {"GTK_USE_PORTAL": portal})
            self.title_is_held(title)
            program.kill()
            program.wait()
        self.notify("--urgency", "critical", "--hint", "string:desktop-entry:org.kde.powerdevil", "Battery")
        self.notify("--urgency", "critical", "--hint", entry, "Last")
        self.title_is_held("Last")
        self.assertEqual([(app, record["req"]["titl"], record["req"]["body"], record.get("crit"))
                          for app, record in self.records()],
                         [(self.chat.id, "By name", "a & b", None),
                          (self.chat.id, "Second", "", None),
                          (self.chat.id, "GTK", "1 < 2 & 3", None),
                          ("org.test.Notifier", "Portal", "1 < 2 & 3", None),
                          ("org.kde.powerdevil", "Battery", "", True),
                          (self.chat.id, "Last", "", None)])
        for file in DATA.glob("Notifications.db*"):
            self.assertEqual(stat.S_IMODE(file.stat().st_mode), 0o600, file)

    def test_none_of_a_burst_is_lost(self):
        self.start_recording()
        subprocess.run([NOTIFIER, "burst", self.chat.id, "500"], check=True)
        self.held_are(500)
        self.assertEqual([record["req"]["titl"] for _, record in self.records()],
                         [str(number) for number in range(500)])

    def test_a_bus_that_refuses_or_ends(self):
        for policy, words in (('<deny send_interface="org.freedesktop.DBus.Monitoring"/>', "doesn't let"),
                              ("", "was lost")):
            with self.subTest(words), tempfile.NamedTemporaryFile("w") as configuration:
                self.setUp()
                configuration.write(BUS.replace("</policy>", f"{policy}</policy>"))
                configuration.flush()
                bus = subprocess.Popen(["dbus-daemon", "--nofork", f"--config-file={configuration.name}",
                                        "--print-address", "--address=unix:tmpdir=/tmp"],
                                       stdout=subprocess.PIPE, text=True)
                fendrel = self.start(DBUS_SESSION_BUS_ADDRESS=bus.stdout.readline().strip())
                if not policy:
                    fendrel.expect("a log", lambda state: not state["messages"]["problem"])
                    bus.kill()
                fendrel.expect(words, lambda state: words in (state["messages"]["problem"] or ""))
                bus.kill()
                bus.communicate()
                fendrel.end(lambda: fendrel.do("quit"))


if __name__ == "__main__":
    harness.main()
