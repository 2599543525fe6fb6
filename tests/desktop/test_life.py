"""How the program starts, ends, crashes and comes back."""

import os
import resource
import select
import signal
import subprocess
import unittest

import harness
from harness import DATA, IS_SANITIZED, MODES, PROGRAMS, SETTINGS, STATE
from windows import SECONDS, press, wait_active, xdotool


def run(*arguments, without=(), **environment):
    """Runs the program where it is expected to end by itself."""
    whole = {name: value for name, value in os.environ.items() if name not in without} | environment
    return subprocess.run([PROGRAMS / "fendrel", *arguments], env=whole, capture_output=True, text=True,
                          timeout=SECONDS)


class Ends(harness.DesktopTest):
    def test_nothing_is_lost(self):
        fendrel = self.start_with_modes()
        fendrel.do("switch", "building")
        fendrel.do("focus", "start", "--for", "90m")
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGKILL):
            with self.subTest(number.name):
                is_killed = number == signal.SIGKILL
                if not is_killed:  # what is on its way to the disk, a kill may take
                    fendrel.do("settings", "set", "breakThrough", number.name)
                    fendrel.do("mode", "add-site", "building", f"{number.name}.example")
                before = self.lasting(fendrel)
                fendrel.end(lambda: fendrel.process.send_signal(number), status=-number if is_killed else 0)
                self.assertEqual((DATA / "control.sock").exists(), is_killed)
                fendrel = self.start()
                self.assertEqual(self.lasting(fendrel), before)
        self.assertEqual((before[0]["breakThrough"], before[2]["id"]), ("SIGHUP", "building"))
        self.assertTrue(before[3]["on"] and before[3]["endsAt"])

    def lasting(self, fendrel):
        status = fendrel.do("status")
        return fendrel.do("settings", "list"), fendrel.do("modes"), status["mode"], status["focus"]


class Starts(harness.DesktopTest):
    def test_again(self):
        fendrel = self.start()
        wait_active("Welcome to Fendrel")
        self.open(self.editor)
        self.editor.raise_window()
        wait_active("Editor")
        self.assertEqual(run().returncode, 0)
        wait_active("Welcome to Fendrel")
        fendrel.do("onboarding", "finish")
        for arguments in ([], ["--settings-page", "dock"], ["--settings-page", "nonsense"]):
            with self.subTest(arguments):
                wait_active("Editor")
                second = run(*arguments)
                self.assertEqual((second.returncode, second.stdout), (0, ""), second.stderr)
                wait_active(SETTINGS)
                subprocess.run(["wmctrl", "-F", "-c", SETTINGS], check=True)

    def test_where_it_cannot(self):
        for name, reason, more in (("no display", "DISPLAY is not set", {"without": ["DISPLAY"]}),
                                   ("no server", "no X server answers", {"DISPLAY": ":nothing"}),
                                   ("another session", "a Wayland session",
                                    {"without": ["DISPLAY"], "WAYLAND_DISPLAY": "wayland-0"})):
            with self.subTest(name):
                done = run(**more)
                self.assertEqual((done.returncode, done.stdout), (1, ""))
                self.assertRegex(done.stderr, rf"\Afendrel: .*{reason}.*\n\Z")

    def test_the_server_counts_and_not_what_the_session_says(self):
        fendrel = self.start("--settings-page", "about", XDG_SESSION_TYPE="wayland", WAYLAND_DISPLAY="wayland-0")
        wait_active(SETTINGS)
        self.assertTrue(fendrel.do("modes"))


class Settings(harness.DesktopTest):
    def test_a_mode_is_edited_with_the_keyboard(self):
        fendrel = self.start_with_modes()
        mode = fendrel.do("modes")[0]
        fendrel.do("modes", "open", mode["id"])
        wait_active(MODES)
        press("Tab", "Tab")  # from the list of modes to "Add Mode", and the name
        # Color, symbol and "Add…", each application's button, and then the field for sites.
        to_sites = 3 + len(mode["apps"]) + 1
        press(*["Tab"] * to_sites)
        xdotool("type", "nonsense")
        press("Return", "ctrl+a")
        xdotool("type", "https://WWW.Wanted.example/a?b")
        press("Return")
        press(*["shift+Tab"] * to_sites, "ctrl+a")
        xdotool("type", "Prose")
        subprocess.run(["wmctrl", "-F", "-c", MODES], check=True)  # what was typed counts
        fendrel.expect("the new name", lambda state: state["mode"]["name"] == "Prose")
        self.assertEqual(fendrel.do("modes")[0]["sites"], [*mode["sites"], "wanted.example"])


@unittest.skipIf(IS_SANITIZED, "the sanitizer reports crashes itself")
class Crashes(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    def test_a_report_is_left_and_offered(self):
        fendrel = self.start_with_modes()
        fendrel.do("settings", "set", "crashReports", "true")
        fendrel.end(lambda: fendrel.do("quit"))
        fendrel = self.start()
        self.open(self.editor).tell("title A secret plan")
        fendrel.front_is(self.editor, "A secret plan")
        fendrel.end(lambda: fendrel.process.send_signal(signal.SIGSEGV), status=-signal.SIGSEGV)

        [report] = (STATE / "DiagnosticReports").iterdir()
        text = report.read_text()
        self.assertRegex(text, r"\AFendrel \d+\.\d+\.\d+\nSystem: .+\nTime: .+\nSignal: SIGSEGV")
        self.assertRegex(text, r"(?m)^ +0 0x[0-9a-f]{16} .*\n +1 0x")
        self.assertNotRegex(text, "secret|Editor|writing")

        mails = self.program_for("thunderbird", "x-scheme-handler/mailto")
        fendrel = self.start()
        wait_active("Fendrel quit unexpectedly last time")
        press("Return")
        self.assertTrue(select.select([mails], [], [], SECONDS)[0], "the mail program did not start")
        mail = os.read(mails, 65536).decode()
        self.assertIn(str(report), mail)
        self.assertIn("subject=Fendrel%20crash%20report", mail)


if __name__ == "__main__":
    harness.main()
