"""Real browsers with the companion extension, driven through the interfaces that they are tested with themselves."""

import json
import pathlib
import socket
import subprocess
import time

from harness import HOME
from windows import SECONDS, Failed

EXTENSION = pathlib.Path(__file__).resolve().parents[2] / "extension"


class Refused(Exception):
    """The browser does not do what it is told."""


class Browser:
    """What both can. A tab is named by a string; every tab that is opened comes to the front."""

    def __init__(self, command, **more):
        self.log = open(HOME / f"{self.name}.log", "ab")
        self.process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log, **more)
        self.pid = self.process.pid
        self.connection.settimeout(SECONDS)
        self.waiting = b""

    def more(self):
        """Waits for what the browser says next."""
        if not (chunk := self.connection.recv(65536)):
            raise Failed(f"{self.name} has gone away")
        self.waiting += chunk

    def end(self, quit=None):
        """It quits well, or as it is told to."""
        try:
            (quit or self.quit)()
            self.process.wait(SECONDS)
        finally:
            self.process.kill()
            self.process.wait()
            self.connection.close()
            self.log.close()

    def tidy(self):
        """Leaves nothing but the tab that it began with."""
        for tab in self.tabs():
            if tab != self.first:
                self.close(tab)

    def expect(self, tab, what, expression):
        """Looks into the page until the expression holds there."""
        deadline = time.monotonic() + SECONDS
        while not (value := self.look(tab, expression)):
            if time.monotonic() > deadline:
                where = self.look(tab, "location.href")
                raise Failed(f"expected in {self.name}: {what}; at {where}, {expression} is {value!r}")
            time.sleep(0.02)

    def look(self, tab, expression):
        """What the expression is in the page; nothing while one page gives way to another."""
        try:
            return self.evaluate(tab, expression)
        except Refused:
            return None


class Chromium(Browser):
    """By the protocol of its developer tools: JSON, each message ended by a zero byte, on descriptors 3 and 4."""

    name = "chromium"
    data = HOME / ".config/chromium"
    options = ["--remote-debugging-pipe", "--enable-unsafe-extension-debugging", "--no-first-run", "--no-sandbox",
               "--test-type", "--password-store=basic", "--disable-sync", "--disable-background-networking",
               "--disable-component-update", "--window-size=1000,640", f"--user-data-dir={data}"]

    def __init__(self, hosts):
        self.connection, theirs = socket.socketpair()
        options = [*self.options, "--host-resolver-rules=" + ",".join(f"MAP {host} 127.0.0.1" for host in hosts)]
        with theirs:
            number = theirs.fileno()
            super().__init__(["bash", "-c", f'exec chromium "$@" 3<&{number} 4>&{number}', "chromium", *options],
                             pass_fds=[number])
        self.asked, self.sessions = 0, {}
        self.ask("Extensions.loadUnpacked", path=str(EXTENSION))
        [self.first] = self.tabs()

    def ask(self, method, session=None, **parameters):
        self.asked += 1
        message = {"id": self.asked, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        self.connection.sendall(json.dumps(message).encode() + b"\0")
        while (answer := self.take()).get("id") != self.asked:
            pass  # it tells of what happens in the tabs, too
        if "error" in answer:
            raise Refused(f"{method}: {answer['error']['message']}")
        return answer["result"]

    def take(self):
        while b"\0" not in self.waiting:
            self.more()
        text, _, self.waiting = self.waiting.partition(b"\0")
        return json.loads(text)

    def in_tab(self, tab, method, **parameters):
        if tab not in self.sessions:
            self.sessions[tab] = self.ask("Target.attachToTarget", targetId=tab, flatten=True)["sessionId"]
        return self.ask(method, self.sessions[tab], **parameters)

    def tabs(self):
        targets = self.ask("Target.getTargets")["targetInfos"]
        return [target["targetId"] for target in targets if target["type"] == "page"]

    def open(self, address, in_window=False):
        return self.ask("Target.createTarget", url=address, newWindow=in_window)["targetId"]

    def show(self, tab):
        self.ask("Target.activateTarget", targetId=tab)

    def close(self, tab):
        self.ask("Target.closeTarget", targetId=tab)

    def go(self, tab, address):
        self.in_tab(tab, "Page.navigate", url=address)

    def back(self, tab):
        history = self.in_tab(tab, "Page.getNavigationHistory")
        before = history["entries"][history["currentIndex"] - 1]
        self.in_tab(tab, "Page.navigateToHistoryEntry", entryId=before["id"])

    def reload(self, tab):
        self.in_tab(tab, "Page.reload")

    def evaluate(self, tab, expression):
        answer = self.in_tab(tab, "Runtime.evaluate", expression=expression, returnByValue=True)
        if "exceptionDetails" in answer:
            raise Refused(answer["exceptionDetails"]["text"])
        return answer["result"].get("value")

    def click(self, tab, x, y):
        for kind in ("mousePressed", "mouseReleased"):
            self.in_tab(tab, "Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def quit(self):
        self.ask("Browser.close")


class HeadlessChromium(Chromium):
    options = [*Chromium.options, "--headless=new"]


class Firefox(Browser):
    """By Marionette: JSON, each message with its length before it, on a port that the browser chooses."""

    name = "firefox-esr"
    data = HOME / ".config/mozilla"
    preferences = {
        "browser.aboutwelcome.enabled": False,
        "browser.shell.checkDefaultBrowser": False,
        "browser.startup.page": 0,
        "browser.tabs.warnOnClose": False,
        "datareporting.policy.dataSubmissionEnabled": False,
        "dom.security.https_first": False,
        "marionette.port": 0,
        "network.connectivity-service.enabled": False,
        "services.settings.server": "data:,none",
    }

    def __init__(self, hosts, in_private=False):
        profile = self.data / "profile"
        profile.mkdir(parents=True, exist_ok=True)
        preferences = self.preferences | {"network.dns.localDomains": ",".join(hosts)}
        (profile / "user.js").write_text("".join(f"user_pref({json.dumps(name)}, {json.dumps(value)});\n"
                                                 for name, value in preferences.items()))
        port = profile / "MarionetteActivePort"
        port.unlink(missing_ok=True)
        self.connection = socket.socket()
        super().__init__(["firefox-esr", "--profile", profile, "--marionette", "--width", "1000", "--height", "640"])
        deadline = time.monotonic() + SECONDS
        while not (port.exists() and port.read_text()):
            if time.monotonic() > deadline or self.process.poll() is not None:
                raise Failed(f"{self.name} does not start")
            time.sleep(0.02)
        self.connection.connect(("127.0.0.1", int(port.read_text())))
        self.asked = 0
        self.take()  # who it is
        self.ask("WebDriver:NewSession", pageLoadStrategy="none")
        self.ask("Addon:Install", path=str(EXTENSION), temporary=True, allowPrivateBrowsing=in_private)
        [self.first] = self.tabs()

    def take(self):
        while b":" not in self.waiting:
            self.more()
        length, _, self.waiting = self.waiting.partition(b":")
        while len(self.waiting) < int(length):
            self.more()
        text, self.waiting = self.waiting[:int(length)], self.waiting[int(length):]
        return json.loads(text)

    def ask(self, method, **parameters):
        self.asked += 1
        text = json.dumps([0, self.asked, method, parameters]).encode()
        self.connection.sendall(b"%d:%b" % (len(text), text))
        _, _, error, result = self.take()
        if error:
            raise Refused(f"{method}: {error}")
        return result

    def in_tab(self, tab, method, **parameters):
        self.ask("WebDriver:SwitchToWindow", handle=tab, focus=False)
        return self.ask(method, **parameters)

    def tabs(self):
        return self.ask("WebDriver:GetWindowHandles")

    def open(self, address, in_window=False, in_private=False):
        kind = "window" if in_window or in_private else "tab"
        tab = self.in_tab(self.tabs()[-1], "WebDriver:NewWindow", type=kind, focus=True, private=in_private)["handle"]
        self.go(tab, address)
        return tab

    def show(self, tab):
        self.ask("WebDriver:SwitchToWindow", handle=tab, focus=True)

    def close(self, tab):
        self.in_tab(tab, "WebDriver:CloseWindow")

    def go(self, tab, address):
        self.in_tab(tab, "WebDriver:Navigate", url=address)

    def back(self, tab):
        self.in_tab(tab, "WebDriver:Back")

    def reload(self, tab):
        self.in_tab(tab, "WebDriver:Refresh")

    def evaluate(self, tab, expression):
        return self.in_tab(tab, "WebDriver:ExecuteScript", script=f"return {expression}", args=[])["value"]

    def click(self, tab, x, y):
        moves = [{"type": "pointerMove", "x": x, "y": y}, {"type": "pointerDown", "button": 0},
                 {"type": "pointerUp", "button": 0}]
        self.in_tab(tab, "WebDriver:PerformActions", actions=[{"type": "pointer", "id": "hand", "actions": moves}])

    def quit(self):
        self.ask("Marionette:Quit", flags=["eForceQuit"])
