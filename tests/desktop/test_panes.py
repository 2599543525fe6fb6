"""The settings as a person uses them: each pane is changed with keys or the pointer, and is as it was left after the
next start, in what it shows and in what it does."""

import os
import select
import subprocess

import harness
from harness import CONFIG, DOCK, HOME, MODES, SETTINGS
from reading import Reader
from windows import EAR, SECONDS, geometry, press, wait_active, wait_window, xdotool

PANES = ("General", "Dock", "Appearance", "Widgets", "Modes", "Accounts", "Permissions", "About")
AUTOSTART = HOME / ".config/autostart/org.fendrel.Fendrel.desktop"
FOCUS = "Start or stop focus"
CONTROL_SHIFT, CAPS_LOCK, NUM_LOCK, ANY_MODIFIER, ASYNCHRONOUS = 5, 2, 16, 1 << 15, 1  # of X.h


class Panes(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        self.reader = Reader(self)

    def begin(self):
        self.fendrel = self.reader.start()
        if not self.fendrel.do("status")["onboarding"]["done"]:
            self.fendrel.do("onboarding", "finish", "writing", "building", "social")
        self.fendrel.do("settings", "open", "general")
        wait_active(SETTINGS)

    def begin_again(self):
        self.fendrel.end(lambda: self.fendrel.do("quit"))
        self.begin()

    def lead_to(self, pane):
        """With the keyboard, from the field that searches to the names below it."""
        self.reader.read(SETTINGS, "")
        press("ctrl+f", "Tab", *["Down"] * PANES.index(pane))
        self.reader.focused(pane)  # what it hears later is of what is pressed later
        press("Return")
        self.sees(pane, role="heading")

    def search(self, label):
        """The setting that it finds gets the keyboard."""
        self.reader.read(SETTINGS, "")
        press("ctrl+f")
        xdotool("type", label)
        press("Return")
        self.reader.focused(label)

    def click(self, name, **more):
        self.reader.click(SETTINGS, name, **more)

    def sees(self, name, **more):
        return self.reader.find(SETTINGS, name, **more)

    def has(self, **settings):
        for name, value in settings.items():
            self.assertEqual(self.fendrel.do("settings", "get", name), value)


class Changes(Panes):
    def setUp(self):
        super().setUp()
        keyring = subprocess.Popen(["gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"],
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.addCleanup(keyring.communicate)
        self.addCleanup(keyring.terminate)
        keyring.stdin.write(b"password")
        keyring.stdin.close()
        keyring.stdin = None
        keyring.stdout.readline()  # it is there

    def test_they_stay(self):
        self.begin()
        for pane in PANES:
            self.lead_to(pane)
            getattr(self, f"change_{pane.lower()}")()
            getattr(self, f"see_{pane.lower()}")()
        self.begin_again()
        for pane in PANES:
            with self.subTest(pane):
                self.lead_to(pane)
                getattr(self, f"see_{pane.lower()}")()

    def change_general(self):
        self.click("Strict")
        self.search("Start at log-in")
        press("space")
        self.search("Always let through")
        press("ctrl+a")
        xdotool("type", "fire, flood")
        press("Tab")

    def see_general(self):
        self.search("Strictness")
        self.sees("Strict", on=True)
        self.search("Start at log-in")
        self.sees("Start at log-in", role="check box", on=True)
        self.search("Always let through")
        self.sees("Always let through", role="text", value="fire, flood")
        self.has(strictness="strict", breakThrough="fire, flood")
        self.assertTrue(AUTOSTART.exists())

    def change_dock(self):
        self.search("Position")
        press("Right")
        self.search("Size")
        press("Right")
        self.search("Magnify icons")
        press("space")

    def see_dock(self):
        self.sees("Left", on=True)
        self.sees("Large", on=True)
        self.sees("Magnify icons", role="check box", on=False)
        self.has(magnify=False)
        x, y, width, height = geometry(wait_window(DOCK))
        self.assertEqual((x, y, height), (0, 0, 800))

    def change_appearance(self):
        self.click("Midnight")
        self.search("Icon size")
        press("Right", "Right")

    def see_appearance(self):
        self.sees("Custom", on=True)
        self.search("Icon size")
        self.sees("Icon size", role="slider", help="102 %")
        look = self.fendrel.do("settings", "get", "appearance")
        self.assertEqual((look["background"], look["iconScale"]), ("#1c1d22", 1.02))

    def change_widgets(self):
        self.click("Focus Garden in Writing")

    def see_widgets(self):
        self.sees("Focus Garden in Writing", on=True)

    def change_modes(self):
        self.click("Edit Building")
        wait_active(MODES)
        self.reader.click(MODES, "Green")
        self.reader.find(MODES, "Green", on=True)
        press("Escape")
        wait_active(SETTINGS)

    def see_modes(self):
        self.assertEqual(self.fendrel.do("modes")[1]["tint"], "#2ea055")

    def change_accounts(self):
        self.click("Connect…", help="Stripe")
        self.sees("Key of Stripe", focused=True)
        xdotool("type", "not-a-real-key")
        press("Return")

    def see_accounts(self):
        self.sees("Change Key…", help="Stripe")
        self.sees("Stripe", help="Connected")
        self.assertEqual(self.fendrel.do("account", "list")["stripe"], "connected")

    def change_permissions(self):
        self.click("Open Settings, Language model")
        self.sees("Model server", focused=True)
        xdotool("type", "127.0.0.1:9")
        press("Return")
        self.lead_to("Permissions")

    def see_permissions(self):
        self.sees("Keyring: Works")
        self.has(modelServer="127.0.0.1:9")

    def change_about(self):
        self.folders = self.program_for("folders", "inode/directory")

    def see_about(self):
        self.click("Open Settings")
        self.assertTrue(select.select([self.folders], [], [], SECONDS)[0], "no folder is opened")
        self.assertIn(str(CONFIG), os.read(self.folders, 65536).decode())


class HotKeys(Panes):
    """They are recorded and pressed while every lock key is on."""

    def setUp(self):
        super().setUp()
        locks = ["xdotool", "key", "Caps_Lock", "key", "Num_Lock"]
        subprocess.run(locks, check=True)
        self.addCleanup(subprocess.run, locks, check=True)
        self.begin()

    def test_they_do_what_they_were_recorded_for(self):
        self.search(FOCUS)
        press("Return", "Escape")
        self.sees(f"{FOCUS}: Alt + F", focused=True)
        press("Return", "ctrl+shift+j")
        self.sees(f"{FOCUS}: Control + Shift + J")
        self.begin_again()
        self.sees(f"{FOCUS}: Control + Shift + J")
        for is_on in (True, False):
            press("ctrl+shift+j")
            self.fendrel.expect("the other state", lambda state: state["focus"]["on"] == is_on)
        self.search(FOCUS)
        press("Return", "BackSpace")
        self.sees(f"{FOCUS}: None")
        self.has(focusShortcut=None)

    def test_another_program_has_one(self):
        self.hold("j")
        self.search(FOCUS)
        press("Return")
        xdotool("keydown", "ctrl", "keydown", "shift", "key", "j", "keyup", "shift", "keyup", "ctrl")
        self.sees(f"{FOCUS}: Another program may have these keys")
        press("ctrl+shift+k")
        self.sees(f"{FOCUS}: Control + Shift + K")
        self.fendrel.end(lambda: self.fendrel.do("quit"))
        self.hold("k")
        self.begin()
        self.sees(FOCUS, help="Taken by another program, or not on this keyboard: ⌃⇧K.")
        self.lead_to("Permissions")
        self.reader.tab_to(SETTINGS, "Open Settings, Hot keys")
        self.sees("Hot keys: Some don't work")
        self.let_go("k")
        press("Return")
        self.sees(FOCUS, help="Works in every application.")
        press("ctrl+shift+k")
        self.fendrel.expect("a session", lambda state: state["focus"]["on"])

    def hold(self, key):
        """This program is the other."""
        self.addCleanup(self.let_go, key)
        for locks in (0, CAPS_LOCK, NUM_LOCK, CAPS_LOCK | NUM_LOCK):
            grab(EAR.x11.XGrabKey, key, CONTROL_SHIFT | locks, 0, ASYNCHRONOUS, ASYNCHRONOUS)

    def let_go(self, key):
        grab(EAR.x11.XUngrabKey, key, ANY_MODIFIER)


def grab(function, key, modifiers, *more):
    code = EAR.x11.XKeysymToKeycode(EAR.display, ord(key))
    function(EAR.display, code, modifiers, EAR.x11.XDefaultRootWindow(EAR.display), *more)
    EAR.x11.XSync(EAR.display, 0)


if __name__ == "__main__":
    harness.main()
