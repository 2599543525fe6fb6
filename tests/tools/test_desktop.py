"""The virtual desktop: what runs in it is private to it, and nothing of it is left behind."""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import unittest

DESKTOP = str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "desktop")
SECONDS = 60


def desktop(*options, script):
    return subprocess.run([DESKTOP, "run", "--size", "800x600", *options, "--", "bash", "-c", script],
                          capture_output=True, text=True, timeout=SECONDS)


def is_alive(pid):
    try:
        return pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0] != "Z"
    except OSError:
        return False


class Runs(unittest.TestCase):
    def test_exit_status_is_the_program_s(self):
        for script, status in (("exit 0", 0), ("exit 7", 7), ("kill -KILL $$", 128 + signal.SIGKILL)):
            with self.subTest(script):
                self.assertEqual(desktop("--no-compositor", script=script).returncode, status)

    def test_bad_requests_are_refused_with_a_reason(self):
        for arguments, reason in ((["run", "--", "/nonexistent"], "cannot start"),
                                  (["run", "--wallpaper", "nothing", "--", "true"], "wallpaper"),
                                  (["run", "--size", "wide", "--", "true"], "not a size"),
                                  (["screenshot", "/tmp/never.png"], "inside")):
            with self.subTest(arguments):
                environment = {name: value for name, value in os.environ.items() if name != "FENDREL_DESKTOP"}
                done = subprocess.run([DESKTOP, *arguments], capture_output=True, text=True, timeout=SECONDS, env=environment)
                self.assertNotEqual(done.returncode, 0)
                self.assertIn(reason, done.stderr)

    def test_everything_is_ready_when_the_program_starts(self):
        for options, name in ((["--window-manager", "openbox"], "Name: Openbox"), (["--no-window-manager"], "Cannot get")):
            with self.subTest(name):
                done = desktop(*options, script="wmctrl -m 2>&1; xprop -root _XROOTPMAP_ID")
                self.assertIn(name, done.stdout)
                self.assertIn("pixmap", done.stdout)

    def test_the_home_is_private_and_kept_only_on_request(self):
        with tempfile.TemporaryDirectory() as home:
            for options, is_kept in (([], False), (["--keep-home", home], True)):
                done = desktop(*options, script="touch $HOME/mark; stat -c %a $HOME $XDG_RUNTIME_DIR; echo $HOME;"
                                                " env | grep -c -E '^(WAYLAND_DISPLAY|XDG_(DATA|CONFIG|STATE|CACHE)_HOME)='")
                *modes, folder, foreign = done.stdout.split()
                self.assertEqual(modes, ["700", "700"])
                self.assertEqual(foreign, "0")
                self.assertEqual(pathlib.Path(folder, "mark").exists(), is_kept)

    def test_the_bus_starts_nothing_by_itself(self):
        names = desktop("--no-compositor", script="dbus-send --print-reply --dest=org.freedesktop.DBus / "
                                                  "org.freedesktop.DBus.ListActivatableNames").stdout
        self.assertEqual(names.count("string"), 1, names)  # the bus itself

    def test_the_look_can_be_changed(self):
        show = "grep ^Net/ThemeName $HOME/.config/xsettingsd/xsettingsd.conf"
        done = desktop("--dark", script=f"{show}; {DESKTOP} look light; {show}")
        self.assertEqual(done.stdout.splitlines(), ['Net/ThemeName "Adwaita-dark"', 'Net/ThemeName "Adwaita"'])

    def test_several_run_side_by_side(self):
        running = [subprocess.Popen([DESKTOP, "run", "--no-compositor", "--", "bash", "-c", "echo $DISPLAY; read"],
                                    stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) for _ in range(3)]
        displays = [one.stdout.readline() for one in running]
        for one in running:
            one.communicate("\n", timeout=SECONDS)
        self.assertEqual(len(set(displays)), 3)


class Ends(unittest.TestCase):
    # Each names what it left running by its process id.
    LEFT = {
        "of another session": "setsid sleep 1000 & echo $!",
        "without a parent": "(setsid sleep 1000 & echo $!)",
        "deaf to SIGTERM": "(trap '' TERM; exec sleep 1000) & echo $!",
        "stopped": "sleep 1000 & echo $!; kill -STOP $!",
        "a window": "xterm & echo $!",
    }

    def test_nothing_is_left_running(self):
        script = "; ".join(f"exec 3>&1; {{ {left.replace('echo', 'echo >&3')}; }} > /dev/null 2>&1" for left in self.LEFT.values())
        done = desktop("--no-compositor", script=script)
        pids = done.stdout.split()
        self.assertEqual(len(pids), len(self.LEFT), done.stderr)
        for (name, _), pid in zip(self.LEFT.items(), pids):
            with self.subTest(name):
                self.assertFalse(is_alive(pid))

    def test_a_signal_ends_it_all(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                running = subprocess.Popen([DESKTOP, "run", "--", "bash", "-c", "echo $FENDREL_DESKTOP $$; exec sleep 1000"],
                                           stdout=subprocess.PIPE, text=True)
                folder, pid = running.stdout.readline().split()
                running.send_signal(number)
                running.stdout.close()
                self.assertEqual(running.wait(SECONDS), 128 + number)
                self.assertFalse(is_alive(pid))
                self.assertFalse(pathlib.Path(folder).exists())

    def test_a_program_s_end_is_seen_by_those_who_wait(self):
        # An orphan that nobody collects stays in the process table, and `tail` would wait for ever.
        done = desktop("--no-compositor", script="pid=$( (setsid bash -c 'echo $$; exec >&-; exec true' &) );"
                                                 " tail --pid=$pid -f /dev/null; echo gone")
        self.assertEqual(done.stdout, "gone\n")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], "-v"])
