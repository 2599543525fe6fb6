"""What is in front, and the gate by every path that leads to it and every answer that leads away."""

import subprocess

import harness
from harness import GATE, SETTINGS
from windows import EAR, geometry, numbers, press, prop, wait_active, xdotool


class Front(harness.DesktopTest):
    def test_it_follows_windows_and_titles(self):
        fendrel = self.start_with_modes()
        fendrel.front_is(self.open(self.editor))
        fendrel.front_is(self.open(self.chat))
        self.chat.tell("title Grüße – 世界")
        fendrel.front_is(self.chat, "Grüße – 世界")
        self.editor.raise_window()
        fendrel.front_is(self.editor)
        self.editor.tell("window")
        fendrel.front_is(self.editor, "another")
        self.editor.tell("close")
        fendrel.front_is(self.editor)
        xdotool("windowminimize", str(wait_active("Editor")))
        fendrel.front_is(self.chat, "Grüße – 世界")
        self.chat.end()
        self.editor.end()
        fendrel.expect("nothing in front", lambda state: not state["front"] and not state["judgement"])

    def test_own_windows_are_not_judged(self):
        fendrel = self.start()
        wait_active("Welcome to Fendrel")
        self.open(self.editor)
        wait_active("Editor")
        self.assertIsNone(fendrel.do("status")["front"])  # nothing is judged before the first run is over
        fendrel.do("onboarding", "finish", "writing", "social")
        fendrel.front_is(self.editor)
        fendrel.do("focus", "start")
        fendrel.do("settings", "open", "general")
        wait_active(SETTINGS)
        fendrel.do("mode", "add-app", "social", self.editor.id)
        fendrel.do("focus", "start")  # judges again
        fendrel.expect("what was in front before", lambda state: state["front"]["bundleID"] == self.editor.id)
        self.assertIsNone(fendrel.do("status")["gate"])
        self.editor.raise_window()
        fendrel.gate_is_on(self.editor)


class Gate(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        self.fendrel = self.start_with_modes()
        self.fendrel.front_is(self.open(self.editor))

    # The paths. Each begins with the editor in front, in the mode writing, without a session.

    def by_starting_it(self):
        self.fendrel.do("focus", "start")
        self.open(self.chat)

    def by_raising_it(self):
        self.in_background()
        self.fendrel.do("focus", "start")
        self.chat.raise_window()

    def by_a_new_window_of_it(self):
        self.in_background()
        self.fendrel.do("focus", "start")
        self.chat.tell("window")

    def by_starting_a_session(self):
        self.fendrel.front_is(self.open(self.chat))
        self.fendrel.do("focus", "start")

    def by_changing_the_mode(self):
        self.fendrel.do("switch", "social")
        self.fendrel.front_is(self.open(self.chat))
        self.fendrel.do("focus", "start")
        self.assertIsNone(self.fendrel.do("status")["gate"])
        self.fendrel.do("switch", "writing")

    def by_a_correction(self):
        self.fendrel.front_is(self.open(self.chat))
        self.fendrel.do("correct", "social")
        self.fendrel.do("mode", "remove-app", "social", self.chat.id)  # only what the user said is left
        self.fendrel.do("focus", "start")

    def in_background(self):
        self.fendrel.front_is(self.open(self.chat))
        self.editor.raise_window()
        self.fendrel.front_is(self.editor)

    def test_paths(self):
        for path in (self.by_starting_it, self.by_raising_it, self.by_a_new_window_of_it, self.by_starting_a_session,
                     self.by_changing_the_mode, self.by_a_correction):
            with self.subTest(path.__name__):
                path()
                self.fendrel.gate_is_on(self.chat)
                self.fendrel.do("gate", "stay")
                self.fendrel.gate_is_closed()
                self.fendrel.front_is(self.editor)
                self.fendrel.do("focus", "stop")
                self.chat.end()

    # The answers. Each begins with the gate on the chat, in the mode writing.

    def stays(self):
        self.fendrel.front_is(self.editor)

    def switches(self):
        self.fendrel.mode_is("social")
        self.fendrel.front_is(self.chat)
        self.fendrel.do("switch", "writing")  # the session goes on, and so does the gate
        self.fendrel.gate_is_on(self.chat)

    def lets_through_once(self):
        wait_active("Chat")
        self.editor.raise_window()
        self.fendrel.front_is(self.editor)
        self.chat.raise_window()
        self.fendrel.front_is(self.chat)
        self.assertIsNone(self.fendrel.do("status")["gate"])
        self.assertIn("You allowed it for this session", " ".join(self.fendrel.do("explain")["because"]))
        self.fendrel.do("focus", "stop")
        self.fendrel.do("focus", "start")
        self.fendrel.gate_is_on(self.chat)

    def adds(self):
        self.fendrel.front_is(self.chat)
        writing = next(mode for mode in self.fendrel.do("modes") if mode["id"] == "writing")
        self.assertIn(self.chat.id, writing["apps"])
        self.fendrel.do("mode", "remove-app", "writing", self.chat.id)

    def switch_by_command(self):
        self.fendrel.do("gate", "switch")
        self.wait_is_on()
        for _ in range(5):  # 3 seconds each, of 15
            self.fendrel.do("switch", "social")

    def switch_by_keyboard(self):
        press("Return")
        self.wait_is_on()
        press("Return", "Return", "Return", "Return")  # what is left passes by itself

    def wait_is_on(self):
        self.fendrel.expect("a switch that is waited for",
                            lambda state: state["pending"] and state["pending"]["id"] == "social")

    def test_answers(self):
        def do(*command):
            return lambda: self.fendrel.do(*command)

        def keys(*names):
            return lambda: press(*names)
        for name, answer, holds in (
                ("stay", do("gate", "stay"), self.stays), ("Escape", keys("Escape"), self.stays),
                ("stay button", keys("Tab", "space"), self.stays),
                ("switch", self.switch_by_command, self.switches), ("Return", self.switch_by_keyboard, self.switches),
                ("allow once", do("gate", "allow-once"), self.lets_through_once),
                ("allow button", keys("Tab", "Tab", "Tab", "space"), self.lets_through_once),
                ("add", do("gate", "add"), self.adds),
                ("add button", keys("Tab", "Tab", "Tab", "Tab", "space"), self.adds),
                ("the session's end", do("focus", "stop"), lambda: self.fendrel.front_is(self.chat)),
                ("the application's end", self.chat.end, self.stays),
                ("a correction", do("correct", "writing"), self.lets_through_once)):
            with self.subTest(name):
                self.by_starting_it()
                self.fendrel.gate_is_on(self.chat)
                answer()
                self.fendrel.gate_is_closed()
                holds()
                self.chat.end()
                self.fendrel.do("focus", "stop")
                self.fendrel.do("switch", "writing")
                self.fendrel.front_is(self.editor)

    def test_a_hung_application_is_covered_all_the_same(self):
        self.fendrel.front_is(self.open(self.chat))
        self.chat.stop()
        self.fendrel.do("focus", "start")
        for come_back in (lambda: None, self.chat.raise_window):
            come_back()
            self.fendrel.gate_is_on(self.chat)
            self.assertEqual(self.fendrel.do("status")["gate"]["owner"], "social")
            press("Escape")
            self.fendrel.gate_is_closed()
            self.fendrel.front_is(self.editor)

    def test_it_covers_the_display_of_a_full_screen_window(self):
        self.fendrel.do("settings", "set", "dockDisplay", "all")
        for name, left, output in (("left", 0, "screen"), ("right", 640, "none")):
            subprocess.run(["xrandr", "--setmonitor", name, f"640/169x800/211+{left}+0", output], check=True)
            self.addCleanup(subprocess.run, ["xrandr", "--delmonitor", name])
        self.fendrel.expect("two displays", lambda state: len(state["dock"]["displays"]) == 2)
        self.fendrel.do("settings", "set", "dockDisplay", "main")
        self.fendrel.expect("one dock", lambda state: len(state["dock"]["displays"]) == 1)
        for left in (0, 640):
            with self.subTest(left=left):
                self.fendrel.front_is(self.open(self.chat))
                covered = wait_active("Chat")
                subprocess.run(["wmctrl", "-r", "Chat", "-e", f"0,{left + 100},100,-1,-1"], check=True)
                subprocess.run(["wmctrl", "-r", "Chat", "-b", "add,fullscreen"], check=True)
                EAR.expect("full screen", lambda: "FULLSCREEN" in prop("_NET_WM_STATE", covered), covered)
                self.fendrel.do("focus", "start")
                self.fendrel.gate_is_on(self.chat)
                panel = wait_active(GATE)
                EAR.expect("the gate above it", lambda: [window for window in numbers("_NET_CLIENT_LIST_STACKING")
                                                         if window in (covered, panel)] == [covered, panel])
                *place, height = geometry(panel)
                self.assertEqual(place, [left, 0, 640])
                self.assertGreaterEqual(height, 800)
                self.fendrel.do("focus", "stop")
                self.chat.end()


if __name__ == "__main__":
    harness.main()
