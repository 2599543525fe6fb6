"""Takes a picture of every page of the first run, every pane of the settings, the window of the modes, and what opens in
them, in every look, from the running program on the desktop that this runs in."""

import argparse
import contextlib
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import xml.etree.ElementTree as tree

from demo_parts import reader
from demo_parts.screen import DESKTOP, Screen
from demo_parts.watch import Failed, Watch

TRANSLATION = pathlib.Path(__file__).resolve().parents[2] / "src/UI/translations/fendrel_de.ts"
GERMAN = {"LANGUAGE": "de", "LC_ALL": "de_DE.UTF-8"}
# What the desktop is told, the program's arguments, and its environment.
LOOKS = {
    "light": (("look", "light"), (), {}),
    "dark": (("look", "dark"), (), {}),
    "contrast": (("look", "contrast"), (), {}),
    "large": (("look", "light", "text-scale", "2"), (), {}),
    "mirrored": (("look", "light"), ("-reverse",), {}),
    "german": (("look", "light"), (), GERMAN),
    "hidpi": (("look", "light"), (), {"QT_SCALE_FACTOR": "2"}),
}
PAGES = 4  # of the first run


class Words(str):
    """Typed as the settings call it in the user's language."""


class Typed(str):
    """Typed as it is."""


class At(str):
    """Waits until the keyboard is at what is called so in English."""


class Popup(str):
    """Waits for a window of this English title that only the screen tells of."""


def found(label):
    """Leads the keyboard to a setting's control."""
    return ("ctrl+f", Words(label), "Return", At(label))


ANSWERS = (*found("Learned answers"), "Return")
GENERAL, DOCK, LOOK, WIDGETS, ACCOUNTS = (("settings", "open", pane)
                                          for pane in ("general", "dock", "appearance", "widgets", "accounts"))
WRITING = ("modes", "open", "writing")
END = object()  # what is not in sight at first
# By name: what opens the window, what is pressed and typed in it, what leads back beyond closing it, and what the picture
# is to show, in English.
VIEWS = {
    "general": (GENERAL, (), (), "Strictness"),
    "general-end": (GENERAL, (END,), (), "Learned answers"),
    "dock": (DOCK, (), (), "Position"),
    "appearance": (LOOK, (), (), "Look of the dock"),
    "appearance-end": (LOOK, (END,), (), "Border"),
    "color-picker": (LOOK, (*found("Color"), *["Down"] * 10), (), "Hue"),
    "widgets": (WIDGETS, (), (), "Search widgets"),
    "widgets-end": (WIDGETS, (END,), (), "Batteries"),
    "widgets-none": (WIDGETS, ("Tab",) * 10 + (Typed("xyzzy"),), (),
                     "No widget is called that. Perhaps in other words?"),
    "modes": (("settings", "open", "modes"), (), (), "Edit Modes…"),
    "accounts": (ACCOUNTS, (), (),
                 "Some widgets show what a service knows about you, and need a key for it. "
                 "Keys are kept in your keyring and nowhere else."),
    "permissions": (("settings", "open", "permissions"), (), (),
                    "What Fendrel makes use of on this computer. It works without any one of these, only with less."),
    "permissions-end": (("settings", "open", "permissions"), (END,), (), "Calendar"),
    "about": (("settings", "open", "about"), (), (), "Your data stays here"),
    "about-end": (("settings", "open", "about"), (END,), (), "License of %1"),
    "search": (GENERAL, ("ctrl+f", Words("Dock")), ("Escape",), "Go to the dock"),
    "search-none": (GENERAL, ("ctrl+f", Typed("xyzzy")), ("Escape",),
                    "Nothing here is called “%1”. Perhaps in other words?"),
    "search-led": (GENERAL, found("Opacity"), (), "Opacity"),
    "hot-key": (GENERAL, (*found("Start or stop focus"), "Return"), ("Escape",), "Press the keys…"),
    "hot-key-refused": (GENERAL, (*found("Start or stop focus"), "Return", "a"), ("Escape",),
                        "Hold Control, Alt or Super with it"),
    "hot-key-taken": (GENERAL, (*found("Start or stop focus"), "Return", "alt+1"), (),
                      "This combination switches to mode %1."),
    "import": (GENERAL, (*found("Import"), "Return"), ("Escape",), "File to import"),
    "import-failed": (GENERAL, (*found("Import"), "Return", "ctrl+a", Typed("nowhere.json"), "Return"), (),
                      "“%1” could not be opened."),
    "import-asked": (GENERAL, (*found("Import"), "Return", "ctrl+a", Typed("~/backup.json"), "Return"), ("Escape",),
                     "Import this backup?"),
    "reset": (DOCK, ("shift+Tab", "Return"), ("Escape",), "Reset the settings of “%1”?"),
    "answers": (GENERAL, ANSWERS, ("Escape",), "Forget All…"),
    "answers-found": (GENERAL, (*ANSWERS, Typed("chat")), ("Escape",), "%1 of %2"),
    "answers-none": (GENERAL, (*ANSWERS, Typed("xyzzy")), ("Escape",), "No answer fits."),
    "answers-menu": (GENERAL, (*ANSWERS, "Down", "Down", "Return", At("Mode of %1")), ("Escape", "Escape"), "No mode"),
    "answers-forget": (GENERAL, (*ANSWERS, "shift+Tab", "shift+Tab", "Return"), ("Escape", "Escape"),
                       "Forget all learned answers?"),
    "modes-window": (WRITING, (), (), "What the dock and the menus call this mode."),
    "modes-window-end": (WRITING, (END,), (), "Delete this mode"),
    "mode-templates": (WRITING, ("ctrl+n",), ("Escape",), "New mode from"),
    "mode-symbols": (WRITING, ("Tab",) * 4 + ("Return",), ("Escape",), "Symbols"),
    "mode-symbols-none": (WRITING, ("Tab",) * 4 + ("Return", Typed("xyzzy")), ("Escape",), "No symbol is found"),
    "mode-apps": (WRITING, ("Tab",) * 5 + ("Return",), ("Escape",), "Installed applications"),
    "mode-deleted": (WRITING, ("Delete",), ("ctrl+z",), "Deleted %1."),
    "menu": (("dock", "focus"), ("End", "Menu", Popup("Fendrel menu")), ("Escape",), "Start a focus session"),
}
# The settings that views leave changed, by their names.
CHANGED = {"color-picker": "appearance", "hot-key-taken": "focusShortcut"}


class WindowsGallery:
    def __init__(self, programs, screen):
        self.programs, self.screen = programs, screen
        self.log = open(screen.folder / "fendrel.log", "w+")
        self.home = pathlib.Path.home()
        self.reader = reader.Reader()

    def play(self, looks, views):
        for look in looks:
            settings, arguments, environment = LOOKS[look]
            for name, value in zip(settings[::2], settings[1::2]):
                subprocess.run([DESKTOP, name, value], check=True)
            self.look, self.screen.pictures = look, 0
            self.texts = translated() if environment is GERMAN else {}
            self.forget()
            with self.running(arguments, environment) as watch:
                self.first_run(watch)
                self.teach(watch)
                for view in views:
                    self.view(view, watch, *VIEWS[view])
                if "accounts" in views:
                    self.accounts(watch)
            if "text-scale" in settings:
                subprocess.run([DESKTOP, "text-scale", "1"], check=True)

    def forget(self):
        for folder in (".local/share", ".config", ".local/state"):
            subprocess.run(["rm", "-rf", self.home / folder / "Fendrel"], check=True)

    @contextlib.contextmanager
    def running(self, arguments, environment):
        process = subprocess.Popen([self.programs / "fendrel", *arguments], env=os.environ | reader.ENVIRONMENT | environment,
                                   stdout=self.log, stderr=self.log)
        self.process = process.pid
        watch = Watch(str(self.programs / "fendrelctl"), lambda text: None)
        watch.open(process, seconds=20)
        yield watch
        watch.do("quit")
        if process.wait(timeout=10):
            raise Failed(f"fendrel ended with status {process.returncode}")

    def picture(self, name):
        print(f"gallery: {self.screen.picture(name, self.look).name}", flush=True)

    def first_run(self, watch):
        for page in range(1, PAGES + 1):
            self.reader.expect_shown(self.process, self.said("Page %1 of %2", page, PAGES))
            self.picture(f"first-run-{page}")
            self.screen.press("Return")
        watch.expect("the first run over", lambda state: state["onboarding"]["done"])

    def teach(self, watch):
        """Answers as the language model and the user give them."""
        file = self.home / "backup.json"
        watch.do("export", str(file))
        backup = json.loads(file.read_text())
        backup["answers"] = {
            key: {"modeID": mode, "certainty": certainty, "what": what, "source": source, "date": "2026-03-14T09:26:53.000Z"}
            for key, mode, certainty, what, source in (
                ("org.xfce.mousepad", "writing", "certain", "text editor", "you"),
                ("io.github.Hexchat", "social", "likely", "group chat", "model"),
                ("news.ycombinator.com", None, "unsure", "news about technology", "model"),
                ("a-very-long-host-name-of-a-chat.for-communities.example.org", "social", "certain", "chat", "model"),
                ("lxterminal", "building", "certain", "terminal", "you"))}
        file.write_text(json.dumps(backup))
        watch.do("import", str(file))

    def said(self, text, *values):
        """What it is in the user's language; values that are not given can be any."""
        text = self.texts.get(text, text)
        for number, value in enumerate(values, 1):
            text = text.replace(f"%{number}", str(value))
        return re.compile(re.sub("%[1-9n]", ".*", re.escape(text)))

    def view(self, name, watch, opening, steps, ways_back, shown):
        watch.do(*opening)
        self.screen.settle()
        for step in steps:
            self.take(step)
        self.reader.expect_shown(self.process, self.said(shown))
        self.picture(name)
        for key in (*ways_back, "Escape"):
            self.screen.press(key)
        self.screen.settle()
        if name in CHANGED:
            watch.do("settings", "reset", CHANGED[name])

    def take(self, step):
        if step is END:
            self.screen.scroll_down()
        elif isinstance(step, Popup):
            self.screen.wait_shown(re.sub(r"[^ -~]", ".+", self.texts.get(step, step)))  # xdotool finds no umlauts
        elif isinstance(step, At):
            self.reader.expect_keyboard(self.process, self.said(step))
        elif isinstance(step, (Words, Typed)):
            self.screen.type(self.texts.get(step, step) if isinstance(step, Words) else step)
        else:
            self.screen.press(step)
        if step == "Return":
            self.screen.settle()  # what it opens takes the keyboard

    def accounts(self, watch):
        """What stands at an account, with a keyring that works, hangs, or is locked."""
        keyring = subprocess.Popen(["gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"],
                                   stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        keyring.stdin.write(b"password")
        keyring.stdin.close()
        secrets = ["gdbus", "call", "--session", "--dest", "org.freedesktop.secrets", "--object-path",
                   "/org/freedesktop/secrets", "--method"]
        subprocess.run(["gdbus", "wait", "--session", "--timeout", "10", "org.freedesktop.secrets"], check=True)
        subprocess.run([str(self.programs / "fendrelctl"), "account", "set", "github"], input="a key", text=True, check=True)
        self.view("accounts-field", watch, ACCOUNTS, ("Tab",) * 12 + ("Return",), ("Escape",), "Key of %1")
        keyring.send_signal(signal.SIGSTOP)
        self.view("accounts-asked", watch, ACCOUNTS, ("Tab",) * 12 + ("Return", Typed("another"), "Return"), (), "Asking the keyring…")
        keyring.send_signal(signal.SIGCONT)
        subprocess.run([*secrets, "org.freedesktop.Secret.Service.Lock", "['/org/freedesktop/secrets/collection/login']"],
                       check=True, stdout=subprocess.DEVNULL)
        self.view("accounts-locked", watch, ACCOUNTS, (), (), "Keyring locked")
        keyring.terminate()
        keyring.wait()


def translated():
    return {message.findtext("source"): message.findtext("translation") for message in tree.parse(TRANSLATION).iter("message")}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("programs", type=pathlib.Path, help="the folder that fendrel and fendrelctl are in")
    parser.add_argument("pictures", type=pathlib.Path, help="the folder for the pictures and the log")
    parser.add_argument("looks", nargs="*", choices=[[], *LOOKS], help="default: all of them")
    parser.add_argument("--only", nargs="+", choices=VIEWS, default=VIEWS, help="these views, after the first run")
    options = parser.parse_args()
    if "FENDREL_DESKTOP" not in os.environ:
        sys.exit("gallery: this types and clicks; it runs only inside `tools/desktop run`")
    options.pictures.mkdir(parents=True, exist_ok=True)
    looks = options.looks or list(LOOKS)
    for look in looks:
        for old in options.pictures.glob(f"{look}-*.png"):
            old.unlink()
    gallery = WindowsGallery(options.programs.resolve(), Screen(options.pictures))
    try:
        gallery.play(looks, options.only)
    except (Failed, subprocess.SubprocessError, OSError) as trouble:
        gallery.screen.picture("failure")
        sys.exit(f"gallery: FAILED: {trouble}; see {gallery.log.name}")
    print(f"gallery: the pictures are in {options.pictures}")


if __name__ == "__main__":
    main()
