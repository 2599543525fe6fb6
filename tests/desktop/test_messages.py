"""Messages of another mode's application held, counted, let through and told of; and what a model is asked."""

import json
import pathlib
import subprocess
import sys
import urllib.request

import harness
from windows import EAR, SECONDS, Lines, press, prop, stacking, wait_active

CARDS = "Fendrel messages"
MODEL = pathlib.Path(__file__).with_name("model_server.py")


class Messages(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        server = subprocess.Popen(["dunst"], stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (server.kill(), server.wait()))
        subprocess.run(["gdbus", "wait", "--session", "--timeout", str(int(SECONDS)), "org.freedesktop.Notifications"],
                       check=True)
        self.fendrel = self.start_with_modes()
        self.fendrel.expect("a log of notifications", lambda state: not state["messages"]["problem"])

    def with_model(self, *rules):
        """A model that answers so, known to the application."""
        model = Lines(sys.executable, "-B", MODEL)
        self.addCleanup(model.end)
        self.address = model.expect("its address")
        request = urllib.request.Request(f"http://{self.address}/stand-in/answers", json.dumps(rules).encode())
        urllib.request.urlopen(request, timeout=SECONDS).close()
        self.fendrel.do("settings", "set", "modelServer", self.address)
        self.fendrel.expect("a model", lambda state: state["model"]["available"])

    def notify(self, title, body="", app=None):
        app = app or self.chat
        subprocess.run(["notify-send", "--hint", f"string:desktop-entry:{app.id}", title, body], check=True)

    def held_are(self, **counts):
        self.fendrel.expect(f"held: {counts}", lambda state: state["messages"]["held"] == counts)

    def test_a_day(self):
        fendrel = self.fendrel
        self.open(self.chat)
        self.open(self.editor)
        self.with_model({"if": "fire", "answer": {"urgent": True, "why": "needs water now"}})
        self.notify("Anna", "Lunch at twelve?")
        self.held_are(social=1)
        self.notify("Editor", "Saved", app=self.editor)
        self.notify("Ben", "This is urgent.")
        self.held_are(social=2)
        fendrel.expect("an alert at once", lambda state: (alert := state["messages"]["alert"])
                       and (alert["why"], alert["mode"]) == ("mentions urgent", "social"))
        fendrel.do("alert", "dismiss")
        self.notify("Cleo", "The server is on fire")
        fendrel.expect("an alert after judgement", lambda state: (alert := state["messages"]["alert"])
                       and (alert["why"], alert["message"]["title"]) == ("needs water now", "Cleo"))
        self.assertEqual([(held["title"], held["urgent"]) for held in fendrel.do("held", "social")],
                         [("Cleo", "needs water now"), ("Ben", "mentions urgent"), ("Anna", None)])

        fendrel.do("focus", "start")
        fendrel.do("alert", "open")
        fendrel.expect("the way to social", lambda state: state["pending"] and state["pending"]["id"] == "social")
        while fendrel.do("status")["pending"]:
            fendrel.do("switch", "social")  # cuts the wait
        fendrel.mode_is("social")
        fendrel.expect("the digest of writing", lambda state: (digest := state["messages"]["digest"])
                       and digest["mode"] == "writing"
                       and [message["title"] for message in digest["messages"]] == ["Cleo", "Ben", "Anna"])
        self.held_are()
        fendrel.front_is(self.chat)  # the message's application

    def test_the_card_gives_way_to_the_gate(self):
        fendrel = self.fendrel
        self.open(self.editor)
        fendrel.front_is(self.editor)
        fendrel.do("focus", "start")
        self.open(self.chat)
        fendrel.gate_is_on(self.chat)
        self.notify("Ben", "This is urgent.")
        fendrel.expect("an alert", lambda state: state["messages"]["alert"])
        self.assertFalse(stacking(CARDS))
        press("Escape")
        fendrel.gate_is_closed()
        EAR.expect("the card", lambda: stacking(CARDS))
        wait_active("Editor")  # which keeps the keyboard until the card is asked for
        fendrel.front_is(self.editor)
        fendrel.do("dock", "focus")
        press("Return")
        fendrel.expect("the way to social", lambda state: state["pending"] and state["pending"]["id"] == "social")
        EAR.expect("no card", lambda: not stacking(CARDS))

    def test_the_alert_is_seen_over_a_full_screen_window(self):
        self.open(self.editor)
        window = wait_active("Editor")
        subprocess.run(["wmctrl", "-r", "Editor", "-b", "add,fullscreen"], check=True)
        EAR.expect("full screen", lambda: "FULLSCREEN" in prop("_NET_WM_STATE", window), window)
        self.notify("Ben", "This is urgent.")
        EAR.expect("the card above it", lambda: stacking(CARDS, "Editor") == [CARDS, "Editor"])
        self.open(self.chat)
        wait_active("Chat")
        EAR.expect("the card above the next one", lambda: stacking(CARDS, "Chat") == [CARDS, "Chat"])

    def test_what_is_held_is_read_and_opened_from_the_keyboard(self):
        fendrel = self.fendrel
        self.open(self.chat)
        fendrel.front_is(self.open(self.editor))
        for title in ("Anna", "Ben"):
            self.notify(title)
        self.held_are(social=2)
        fendrel.do("dock", "focus")
        press("Right", "Right", "Menu")
        fendrel.do("status")  # answered once the menu has the keyboard
        press("End", "Up", "Up", "Up", "Return")
        EAR.expect("the list", lambda: stacking(CARDS))
        fendrel.do("status")  # and now the list has it
        press("End", "Return")
        fendrel.front_is(self.chat)

    def test_what_the_model_knows(self):
        fendrel = self.fendrel
        self.with_model({"if": "App: Reels", "answer": {"what": "Video feed", "mode": "social", "certainty": "certain"}},
                        {"if": "App: Maybe", "answer": {"what": "Notes", "mode": "social", "certainty": "likely"}})
        fendrel.do("focus", "start")
        maybe = self.open(harness.Application("Maybe"))
        fendrel.expect("a likely verdict", lambda state: verdict(state, maybe) == ("Notes", "social", "likely", "model"))
        self.assertIsNone(fendrel.do("status")["gate"])
        reels = self.open(harness.Application("Reels"))
        fendrel.expect("a certain one",
                       lambda state: verdict(state, reels) == ("Video feed", "social", "certain", "model"))
        fendrel.gate_is_on(reels)
        self.assertIn("Video feed", fendrel.do("status")["gate"]["note"])


def verdict(state, app):
    judgement = state["judgement"]
    if not judgement or judgement["subject"].get("bundleID") != app.id or not judgement["verdict"]:
        return None
    return tuple(judgement["verdict"][key] for key in ("what", "modeID", "certainty", "source"))


if __name__ == "__main__":
    harness.main()
