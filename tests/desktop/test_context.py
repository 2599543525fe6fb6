"""What is proposed while real programs run: another mode, after a while in its application, and the way back into a
mode, with its applications, pages and documents, but never what was private."""

import subprocess

import harness
import pages
from browsers import Chromium, Firefox
from pages import OTHER, WORK
from windows import EAR, wait_window

NOTEPAD, BROWSER, TERMINAL = "org.xfce.mousepad", "org.chromium.Chromium", "debian-xterm"
KEPT, GONE = "Launch post.txt", "Old notes.txt"


def windows():
    return subprocess.run(["wmctrl", "-lx"], capture_output=True, text=True).stdout


class Context(harness.DesktopTest):
    def test_another_mode_is_suggested(self):
        fendrel = self.start_with_modes()
        self.open(self.editor)
        fendrel.front_is(self.editor)
        fendrel.do("debug", "skip", "20s")
        self.assertIsNone(fendrel.do("status")["suggestion"])
        self.open(self.chat)
        fendrel.front_is(self.chat)
        fendrel.do("debug", "skip", "20s")
        fendrel.expect("a suggestion", lambda state: (suggestion := state["suggestion"])
                       and (suggestion["mode"], suggestion["because"]) == ("social", "You opened Chat."))
        fendrel.do("suggestion", "accept")
        fendrel.mode_is("social")
        fendrel.expect("no suggestion", lambda state: not state["suggestion"])

    def test_the_way_back(self):
        fendrel, site = self.start_for(Chromium)
        for app in (NOTEPAD, BROWSER, TERMINAL):
            fendrel.do("mode", "add-app", "writing", app)
        terminal = self.run_program("xterm")
        files = {name: harness.HOME / "Documents" / name for name in (KEPT, GONE)}
        for file in files.values():
            file.parent.mkdir(exist_ok=True)
            file.write_text("Dear reader,\n")
        notepad = self.run_program("mousepad", "--opening-mode=window", *files.values())
        for name in files:
            wait_window(f"{name} - Mousepad")
        browser = Chromium(pages.HOSTS)
        self.addCleanup(browser.end)
        address = site.address(WORK)
        page = browser.open(address)
        self.shows(fendrel, address)

        for _ in range(2):  # nobody tells again of the page that stays in front
            fendrel.do("debug", "skip", "2m")
            fendrel.do("switch", "social")
            fendrel.mode_is("social")
            fendrel.do("switch", "writing")
            fendrel.expect("an offer of all that was open", lambda state: (offer := state["offer"])
                           and set(offer["apps"]) == {TERMINAL, NOTEPAD, BROWSER}
                           and [each["url"] for each in offer["pages"]] == [address]
                           and ({each["url"] for each in offer["documents"]}
                                == {file.as_uri() for file in files.values()}))

        for program in (terminal, notepad):
            program.terminate()
            program.wait()
        browser.close(page)
        files[GONE].unlink()
        fendrel.expect("the browser alone", lambda state: not state["front"] or state["front"]["bundleID"] == BROWSER)
        fendrel.do("context", "restore")
        fendrel.expect("what could not be brought back", lambda state: state["missing"] == [GONE])
        self.shows(fendrel, address)
        EAR.expect("the terminal", lambda: "xterm.XTerm" in windows())
        wait_window(f"{KEPT} - Mousepad")
        self.assertNotIn(GONE, windows())
        for name in ("xterm.XTerm", "mousepad.Mousepad"):
            subprocess.run(["wmctrl", "-x", "-c", name], check=True)

    def test_private_pages_are_not_remembered(self):
        fendrel, site = self.start_for(Firefox)
        browser = Firefox(pages.HOSTS, in_private=True)
        self.addCleanup(browser.end)
        browser.open(site.address(WORK))
        self.shows(fendrel, site.address(WORK))
        browser.open(site.address(OTHER), in_private=True)
        self.shows(fendrel, site.address(OTHER))
        fendrel.do("debug", "skip", "2m")
        fendrel.do("switch", "social")
        [context] = fendrel.do("context", "list")
        self.assertEqual([each["url"] for each in context["pages"]], [site.address(WORK)])
        fendrel.end(lambda: fendrel.do("quit"))
        file = harness.DATA / "Contexts.json"
        self.assertNotIn(OTHER, file.read_text())
        self.assertEqual(file.stat().st_mode & 0o777, 0o600)

    def start_for(self, kind):
        site = pages.serve()
        self.addCleanup(site.server_close)
        self.addCleanup(site.shutdown)
        kind.data.mkdir(parents=True, exist_ok=True)  # without it, no browser is there to tell of the relay
        return self.start_with_modes(), site

    def shows(self, fendrel, address):
        fendrel.expect(f"the page {address}", lambda state: state["browsers"] and (tab := state["browsers"][0]["tab"])
                       and tab["url"] == address)

    def run_program(self, *command):
        program = subprocess.Popen(command, stderr=subprocess.DEVNULL)
        self.addCleanup(program.wait)
        self.addCleanup(program.terminate)
        return program


if __name__ == "__main__":
    harness.main()
