"""Sites in real browsers: the veil, the gate over it, every answer, and what must outlive the end of a program."""

import datetime
import os
import pathlib
import select
import signal
import subprocess
import time

import harness
import pages
from browsers import Chromium, Firefox, HeadlessChromium
from harness import GATE, IS_SANITIZED
from pages import IS_COVERED, IS_OPEN, OTHER, SOCIAL, WORK
from windows import EAR, SECONDS, Failed, numbers, press, wait_active

ASK_DELAY = 1.5  # seconds from the veil to the gate
RECOVERY, AT_ONCE = (SECONDS, SECONDS) if IS_SANITIZED else (3.0, 1.0)


class Sites:
    """Each test begins with a page for writing in front, in that mode, in a session; two sites are social. The browser
    outlives the Fendrel of a test: to the next one, it was there first."""

    @classmethod
    def setUpClass(cls):
        cls.browser, cls.pages = None, pages.serve()
        cls.kind.data.mkdir(parents=True, exist_ok=True)  # without it, no browser is there to tell of the relay

    @classmethod
    def tearDownClass(cls):
        if cls.browser:
            cls.browser.end()
        cls.pages.shutdown()
        cls.pages.server_close()

    def setUp(self):
        super().setUp()
        self.fendrel = self.start_with_modes()
        for mode, host in (("writing", WORK), ("social", SOCIAL), ("social", OTHER)):
            self.fendrel.do("mode", "add-site", mode, host)
        if not self.browser:
            type(self).browser = self.kind(pages.HOSTS)
        self.connected()
        self.begin()

    def begin(self):
        self.browser.tidy()
        self.work = self.visit(WORK)
        self.fendrel.do("switch", "writing")
        self.fendrel.do("focus", "start")

    # What is done

    def visit(self, host, path="/", in_window=False):
        tab = self.browser.open(self.pages.address(host, path), in_window)
        self.reports(host, path)
        return tab

    def go(self, tab, host, path="/"):
        self.browser.go(tab, self.pages.address(host, path))
        self.reports(host, path)

    def drift(self):
        """A new tab that came from a page which is let be, with the veil and the gate."""
        tab = self.visit(WORK)
        self.uncovered(tab, WORK)
        self.go(tab, SOCIAL)
        self.covered(tab)
        self.gate_is_on_site()
        return tab

    # What is told, and what is seen

    def connected(self, seconds=SECONDS):
        self.fendrel.expect("the browser", lambda state: len(state["browsers"]) == 1, seconds)

    def reports(self, host, path="/"):
        address = self.pages.address(host, path)
        self.fendrel.expect(f"a report of {address}", lambda state: state["browsers"] and state["browsers"][0]["tab"]
                            and state["browsers"][0]["tab"]["url"] == address)

    def veils(self, *sites):
        self.fendrel.expect(f"veils over {sites}",
                            lambda state: sorted(veil["site"] for veil in state["veils"]) == sorted(sites))

    def covered(self, tab):
        self.browser.expect(tab, "the veil", IS_COVERED)

    def uncovered(self, tab, host=SOCIAL):
        self.browser.expect(tab, "the page without a veil", f"location.hostname === '{host}' && {IS_OPEN}")

    def gate_is_on_site(self, host=SOCIAL):
        self.fendrel.expect(f"the gate on {host}", lambda state: state["gate"] and state["gate"].get("host") == host)
        wait_active(GATE)

    def test_programs_may_end_at_any_moment(self):
        tab = self.drift()
        with self.subTest("the relay"):
            begun = time.monotonic()
            os.kill(self.relay(), signal.SIGKILL)
            self.uncovered(tab)
            self.covered(tab)
            self.connected()
            self.veils(SOCIAL)
            self.assertLess(time.monotonic() - begun, RECOVERY)
        with self.subTest("Fendrel"):
            begun = time.monotonic()
            self.fendrel.end(lambda: self.fendrel.process.send_signal(signal.SIGKILL), status=-signal.SIGKILL)
            self.uncovered(tab)
            self.assertLess(time.monotonic() - begun, RECOVERY)
            self.fendrel = self.start()
            self.connected(RECOVERY)
            self.covered(tab)
            self.gate_is_on_site()
        with self.subTest("the browser"):
            self.browser.end(self.quit)
            type(self).browser = None
            self.fendrel.expect("no browser", lambda state: not (state["browsers"] or state["veils"] or state["gate"]))

    def quit(self):
        self.browser.quit()

    def relay(self):
        for children in pathlib.Path(f"/proc/{self.browser.pid}/task").glob("*/children"):
            for pid in map(int, children.read_text().split()):
                if pathlib.Path(f"/proc/{pid}/comm").read_text().strip() == "fendrel-bridge":
                    return pid
        raise Failed("the browser runs no relay")


class Windows(Sites):
    """What only a browser with windows shows."""

    def test_the_veil_comes_at_once_and_the_gate_later(self):
        tab = self.visit(WORK)
        self.shows_page(True)
        self.browser.go(tab, self.pages.address(SOCIAL))
        self.veils(SOCIAL)
        begun = self.told_at()
        self.covered(tab)
        self.shows_page(False)
        self.browser.click(tab, 200, 200)
        press("x")
        self.gate_is_on_site()
        waited = self.told_at() - begun
        self.assertGreater(waited, ASK_DELAY - 0.1)
        self.assertLess(waited, ASK_DELAY + RECOVERY)
        gate = self.fendrel.do("status")["gate"]
        self.assertEqual([gate[name] for name in ("kind", "name", "owner")], ["site", SOCIAL, "social"])
        self.assertEqual(self.browser.evaluate(tab, "[clicks, main.querySelector('input').value, video.paused]"),
                         [0, "", True])
        self.fendrel.do("focus", "stop")
        self.uncovered(tab)
        self.browser.expect(tab, "a playing video", "!video.paused")

    def shows_page(self, expected):
        deadline = time.monotonic() + (SECONDS if expected else AT_ONCE)
        while (bytes(pages.COLOUR) * 100 in self.screen()) != expected:
            self.assertLess(time.monotonic(), deadline)

    def screen(self):
        command = ["import", "-window", "root", "-depth", "8", "rgb:-"]
        return subprocess.run(command, capture_output=True, check=True).stdout

    def told_at(self):
        """When the last change was told, in seconds."""
        return datetime.datetime.fromisoformat(self.fendrel.state["time"]).timestamp()

    # The answers

    def switch(self):
        self.fendrel.do("gate", "switch")
        self.fendrel.expect("a switch that is waited for", lambda state: state["pending"])
        self.assertEqual([veil["site"] for veil in self.fendrel.do("status")["veils"]], [SOCIAL])
        for _ in range(5):  # 3 seconds each, of 15
            self.fendrel.do("switch", "social")

    def stays(self, tab):
        self.uncovered(tab, WORK)

    def switches(self, tab):
        self.uncovered(tab)
        self.fendrel.mode_is("social")

    def is_open_for_the_session(self, tab):
        self.go(tab, SOCIAL, "/again")
        self.come_back_to(tab)
        self.uncovered(tab)
        self.assertEqual(self.fendrel.do("status")["veils"], [])
        self.fendrel.do("focus", "stop")
        self.fendrel.do("focus", "start")
        self.covered(tab)
        self.gate_is_on_site()

    def is_open_for_good(self, tab):
        self.fendrel.do("focus", "stop")
        self.fendrel.do("focus", "start")
        self.come_back_to(tab)
        self.uncovered(tab)
        self.fendrel.do("mode", "remove-site", "writing", SOCIAL)

    def come_back_to(self, tab):
        self.browser.show(self.work)
        self.reports(WORK)
        self.browser.show(tab)
        self.fendrel.expect("the page", lambda state: state["browsers"][0]["tab"]["site"] == SOCIAL)

    def is_gone(self, tab):
        self.assertNotIn(tab, self.browser.tabs())

    def test_answers(self):
        def do(*command):
            return lambda _: self.fendrel.do(*command)
        for name, answer, holds in (
                ("stay", do("gate", "stay"), self.stays), ("Escape", lambda _: press("Escape"), self.stays),
                ("switch", lambda _: self.switch(), self.switches),
                ("allow once", do("gate", "allow-once"), self.is_open_for_the_session),
                ("add", do("gate", "add"), self.is_open_for_good),
                ("the session's end", do("focus", "stop"), self.uncovered),
                ("the tab's end", self.browser.close, self.is_gone),
                ("a correction", do("correct", "writing"), self.uncovered)):
            with self.subTest(name):
                tab = self.drift()
                answer(tab)
                self.fendrel.gate_is_closed()
                self.veils()
                holds(tab)
                self.fendrel.do("focus", "stop")
                self.begin()

    def test_staying_where_nothing_was_before(self):
        tab = self.visit(SOCIAL)
        self.gate_is_on_site()
        self.fendrel.do("gate", "stay")
        self.fendrel.gate_is_closed()
        self.veils()
        self.fendrel.expect("another page", lambda state: state["browsers"][0]["tab"]["site"] != SOCIAL)
        self.assertIn(tab, self.browser.tabs())

    def test_the_veil_stays_as_long_as_the_site(self):
        tab = self.drift()
        asked = time.monotonic()

        def go(*place):
            return lambda: self.go(tab, *place)

        def run(script):
            return lambda: self.browser.evaluate(tab, script)
        for name, move, where in (
                ("a page of it", go(SOCIAL, "/second"), "location.pathname === '/second'"),
                ("www", go(f"www.{SOCIAL}", "/www"), "location.pathname === '/www'"),
                ("back", lambda: self.browser.back(tab), "location.pathname === '/second'"),
                ("reload", lambda: self.browser.reload(tab), "!window.isOld"),
                ("pushState", run("history.pushState(0, '', '/third')"), "location.pathname === '/third'"),
                ("fragment", run("location.hash = 'below'"), "location.hash === '#below'"),
                ("a strict page", go(SOCIAL, "/strict"), "location.pathname === '/strict'"),
                ("a hostile page", go(SOCIAL, "/hostile"), "location.pathname === '/hostile'"),
                ("document.write", run(pages.REWRITE), "main.isWritten")):
            with self.subTest(name):
                self.browser.evaluate(tab, "window.isOld = true")
                move()
                self.browser.expect(tab, "the veil", f"{where} && {IS_COVERED}")
        waited = self.fendrel.do("status")["gate"]["secondsWaited"]
        self.assertGreater(waited, time.monotonic() - asked - AT_ONCE)

        for site in (OTHER, SOCIAL, OTHER, SOCIAL, OTHER):
            self.go(tab, site)
            self.veils(site)
            self.covered(tab)
        self.gate_is_on_site(OTHER)
        self.go(tab, WORK)
        self.uncovered(tab, WORK)
        self.fendrel.gate_is_closed()
        self.veils()

    def test_only_the_page_in_front_is_asked_about(self):
        self.open(self.editor)
        self.raise_browser()
        tab = self.visit(SOCIAL)
        self.browser.show(self.work)
        self.reports(WORK)
        self.no_gate_comes()
        self.browser.show(tab)
        self.gate_is_on_site()
        self.editor.raise_window()  # while it asks
        self.fendrel.gate_is_closed()
        self.raise_browser()
        self.veils(SOCIAL)
        self.editor.raise_window()  # before it asks
        self.fendrel.front_is(self.editor)
        self.no_gate_comes()
        self.covered(tab)
        self.raise_browser()
        self.gate_is_on_site()

    def raise_browser(self):
        def find():
            return next((window for window in numbers("_NET_CLIENT_LIST")
                         if numbers("_NET_WM_PID", window) == [self.browser.pid]), None)
        subprocess.run(["wmctrl", "-i", "-a", hex(EAR.expect("the browser's window", find))], check=True)
        self.fendrel.expect("the browser in front",
                            lambda state: state["front"] and state["front"]["pid"] == self.browser.pid)

    def no_gate_comes(self):
        deadline = time.monotonic() + ASK_DELAY + 0.3
        while not self.fendrel.state["gate"] and (left := deadline - time.monotonic()) > 0:
            if select.select([self.fendrel.stream.stdout], [], [], left)[0]:
                self.fendrel.read()
        self.assertIsNone(self.fendrel.state["gate"])

    def test_several_windows(self):
        first, second = self.visit(SOCIAL), self.visit(OTHER, in_window=True)
        self.veils(SOCIAL, OTHER)
        self.gate_is_on_site(OTHER)
        self.browser.close(first)  # it is in the back
        self.veils(OTHER)
        third = self.visit(SOCIAL)
        self.gate_is_on_site(SOCIAL)
        self.fendrel.do("focus", "stop")
        self.uncovered(second, OTHER)
        self.uncovered(third)
        self.veils()


class InChromium(Windows, harness.DesktopTest):
    kind = Chromium


class InFirefox(Windows, harness.DesktopTest):
    kind = Firefox


class InHeadlessChromium(Sites, harness.DesktopTest):
    kind = HeadlessChromium

    def quit(self):
        self.browser.process.kill()


if __name__ == "__main__":
    harness.main()
