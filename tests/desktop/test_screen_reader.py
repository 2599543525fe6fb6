"""What a screen reader is told, wherever one can get: whatever can be used has a name of its own and says what it is,
and Tab leads through all of it, forward and back."""

import harness
from harness import DOCK, MODES, SETTINGS
from reading import Reader
from windows import press, wait_active

WELCOME, MENU, FORGET = "Welcome to Fendrel", "Fendrel menu", "Forget all learned answers?"
SAYS_NOTHING = {"unknown", "invalid", "filler", "panel", "frame", "extended"}
PANES = ("general", "dock", "appearance", "widgets", "modes", "accounts", "permissions", "about")


class ScreenReader(harness.DesktopTest):
    def test_everything_has_a_name_and_a_role(self):
        self.reader = Reader(self)
        fendrel = self.reader.start()
        wait_active(WELCOME)
        for page in range(1, 5):
            self.reads(WELCOME, f"Page {page} of 4", stops=2)
            if page < 4:
                self.reader.click(WELCOME, "Continue")
        fendrel.do("onboarding", "finish", "writing", "building", "social")
        self.open(self.chat)
        fendrel.do("mode", "add-app", "social", self.chat.id)
        fendrel.expect("a judgement", lambda state: state["judgement"])
        fendrel.do("correct", "social")
        fendrel.do("dock", "focus")
        self.reads(DOCK, "Writing")
        press("End", "Menu")
        self.reader.focused(MENU)
        self.are_told(self.reader.round("Down"), at_least=8)  # the toolkit lists no menus among the windows
        press("Escape", "Escape")

        for pane in PANES:
            fendrel.do("settings", "open", pane)
            wait_active(SETTINGS)
            self.reads(SETTINGS, pane.capitalize(), stops=10)
        fendrel.do("settings", "open", "appearance")
        self.reader.tab_to(SETTINGS, "Light gray")
        press("Left", *["Right"] * 12)
        self.reads(SETTINGS, "Hue", stops=22)
        fendrel.do("settings", "open", "general")
        self.reader.tab_to(SETTINGS, "Show… 1")
        press("Return")
        self.reads(SETTINGS, "Forget All…", stops=5)
        self.reader.tab_to(SETTINGS, "Show only the mode")
        press("Return")
        self.reads(SETTINGS, "All modes")
        press("Escape")
        self.reader.tab_to(SETTINGS, "Forget All…")
        press("Return")
        wait_active(FORGET)
        self.reads(FORGET, FORGET, stops=2)
        press("Escape")

        fendrel.do("modes", "open", "writing")
        wait_active(MODES)
        self.reads(MODES, "Building", stops=12)
        for button, shown in (("Change…", "Search symbols"), ("Add…", "Search applications")):
            self.reader.click(MODES, button)
            self.reads(MODES, shown, stops=14)
            press("Escape")
        self.reader.click(MODES, "Add Mode")
        self.reads(MODES, "Empty Mode")

    def reads(self, window, shown, stops=0):
        """Once it shows that. Tab stops so often at least, where it leads round."""
        self.reader.find(window, shown)
        with self.subTest(window=window, shown=shown):
            self.are_told(self.reader.read(window), at_least=1)
            if stops:
                forward, back = self.reader.round("Tab"), self.reader.round("shift+Tab")
                self.are_told(forward, at_least=stops)
                there, here = [each["name"] for each in forward], [each["name"] for each in reversed(back)]
                start = here.index(there[0])
                self.assertEqual(here[start:] + here[:start], there)

    def are_told(self, things, at_least):
        usable = [each for each in things if each["usable"]]
        self.assertGreaterEqual(len(usable), at_least)
        self.assertEqual([each for each in usable if not each["name"].strip() or each["role"] in SAYS_NOTHING], [])
        told = [(each["role"], each["name"], each["help"], *each["above"]) for each in usable]
        self.assertEqual([each for each in told if told.count(each) > 1], [])


if __name__ == "__main__":
    harness.main()
