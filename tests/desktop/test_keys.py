"""Hot keys, pressed for real: whatever is in front and whatever lock keys are on."""

import json
import subprocess

import harness
from windows import wait_active


def press(keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", keys], check=True)


class Keys(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        self.fendrel = self.start_with_modes()
        self.open(self.editor)
        wait_active("Editor")

    def focus_is(self, on):
        self.fendrel.expect(f"focus {'on' if on else 'off'}", lambda state: state["focus"]["on"] == on)

    def test_they_work_under_every_lock(self):
        for lock in (None, "Caps_Lock", "Num_Lock"):  # each stays on
            with self.subTest(lock=lock):
                if lock:
                    subprocess.run(["xdotool", "key", lock], check=True)
                press("alt+2")
                self.fendrel.mode_is("building")
                press("alt+1")
                self.fendrel.mode_is("writing")
                press("alt+f")
                self.focus_is(True)
                press("alt+f")
                self.focus_is(False)
        subprocess.run(["xdotool", "key", "Caps_Lock", "key", "Num_Lock"], check=True)

    def test_they_follow_the_settings(self):
        self.open(self.chat)
        wait_active("Chat")
        self.fendrel.do("settings", "set", "appModifiers", "control+shift")
        press("ctrl+shift+1")  # the mode's own stands first in the dock
        self.fendrel.front_is(self.editor)
        press("ctrl+shift+2")
        self.fendrel.front_is(self.chat)

        shortcut = {"keyCode": 38, "modifiers": 4096, "key": "J"}
        self.fendrel.do("settings", "set", "focusShortcut", json.dumps(shortcut))
        press("alt+f")  # is the other programs' again
        press("ctrl+j")
        self.focus_is(True)
        self.fendrel.do("settings", "set", "modeModifiers", "control+option")
        press("alt+2")
        press("ctrl+alt+3")  # takes its time
        self.fendrel.expect("a switch under way", lambda state: state["pending"] and state["pending"]["id"] == "social")
        self.fendrel.do("settings", "set", "focusShortcut", "none")
        press("ctrl+j")
        self.fendrel.do("status")
        self.focus_is(True)

    def test_one_leads_to_the_dock(self):
        held = ["xdotool", "keydown", "ctrl", "keydown", "F3", "sleep", "0.1", "keyup", "F3", "keyup", "ctrl"]
        subprocess.run(held, check=True)
        press("Right")
        press("Return")
        self.fendrel.mode_is("building")


if __name__ == "__main__":
    harness.main()
