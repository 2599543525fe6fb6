"""Takes a picture of every page of the first run, every pane of the settings and the window of the modes, in every look,
from the running program on the desktop that this runs in."""

import argparse
import contextlib
import os
import pathlib
import subprocess
import sys

from demo_parts.screen import DESKTOP, Screen
from demo_parts.watch import Failed, Watch

PANES = ("general", "dock", "appearance", "widgets", "modes", "accounts", "permissions", "about")
LONG = ("general", "appearance", "widgets", "about")  # their end is not in sight
FIRST_RUN, SETTINGS, MODES = "Welcome to Fendrel", "Fendrel Settings", "Modes"
PAGES = 4
# What the desktop is told, and the program.
LOOKS = {
    "light": (("look", "light"), ()),
    "dark": (("look", "dark"), ()),
    "contrast": (("look", "contrast"), ()),
    "large": (("look", "light", "text-scale", "2"), ()),
    "mirrored": (("look", "light"), ("-reverse",)),
    "german": (("look", "light"), ()),
}


class WindowsGallery:
    def __init__(self, programs, screen):
        self.programs, self.screen = programs, screen
        self.log = open(screen.folder / "fendrel.log", "w+")
        self.home = pathlib.Path.home()

    def play(self, looks):
        for look in looks:
            settings, arguments = LOOKS[look]
            for name, value in zip(settings[::2], settings[1::2]):
                subprocess.run([DESKTOP, name, value], check=True)
            self.forget()
            environment = {"LANGUAGE": "de", "LC_ALL": "de_DE.UTF-8"} if look == "german" else {}
            with self.running(arguments, environment) as watch:
                self.first_run(look, watch)
                self.settings(look, watch)
                self.modes(look, watch)
            if "text-scale" in settings:
                subprocess.run([DESKTOP, "text-scale", "1"], check=True)

    def forget(self):
        for folder in (".local/share", ".config", ".local/state"):
            subprocess.run(["rm", "-rf", self.home / folder / "Fendrel"], check=True)

    @contextlib.contextmanager
    def running(self, arguments, environment):
        process = subprocess.Popen([self.programs / "fendrel", *arguments], env=os.environ | environment,
                                   stdout=self.log, stderr=self.log)
        watch = Watch(str(self.programs / "fendrelctl"), lambda text: None)
        watch.open(process, seconds=20)
        yield watch
        watch.do("quit")
        if process.wait(timeout=10):
            raise Failed(f"fendrel ended with status {process.returncode}")

    def picture(self, look, name):
        print(f"gallery: {self.screen.picture(f'{look}-{name}').name}", flush=True)

    def end(self, look, name):
        self.screen.scroll_down()
        self.picture(look, f"{name}-end")

    def first_run(self, look, watch):
        for page in range(1, PAGES + 1):
            self.picture(look, f"first-run-{page}")
            self.screen.press("Return")
        watch.expect("the first run over", lambda state: state["onboarding"]["done"])

    def settings(self, look, watch):
        for pane in PANES:
            watch.do("settings", "open", pane)
            self.picture(look, pane)
            if pane in LONG:
                self.end(look, pane)
        self.learned_answers(look)
        self.screen.press("Escape")

    def learned_answers(self, look):
        self.screen.press("ctrl+f")
        self.screen.type("gelernte antworten\n" if look == "german" else "learned answers\n")
        self.screen.settle()  # its button has the keyboard then
        self.screen.press("Return")
        self.picture(look, "answers")
        self.screen.press("Escape")

    def modes(self, look, watch):
        watch.do("modes", "open", "writing")
        self.picture(look, "modes-window")
        self.end(look, "modes-window")
        self.screen.press("Escape")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("programs", type=pathlib.Path, help="the folder that fendrel and fendrelctl are in")
    parser.add_argument("pictures", type=pathlib.Path, help="the folder for the pictures and the log")
    parser.add_argument("looks", nargs="*", choices=[[], *LOOKS], help="default: all of them")
    options = parser.parse_args()
    if "FENDREL_DESKTOP" not in os.environ:
        sys.exit("gallery: this types and clicks; it runs only inside `tools/desktop run`")
    options.pictures.mkdir(parents=True, exist_ok=True)
    for old in options.pictures.glob("*.png"):
        old.unlink()
    gallery = WindowsGallery(options.programs.resolve(), Screen(options.pictures))
    try:
        gallery.play(options.looks or LOOKS)
    except (Failed, subprocess.SubprocessError, OSError) as trouble:
        gallery.screen.picture("failure")
        sys.exit(f"gallery: FAILED: {trouble}; see {gallery.log.name}")
    print(f"gallery: {gallery.screen.pictures} pictures are in {options.pictures}")


if __name__ == "__main__":
    main()
