"""tools/setup against a made-up system: what it installs, and what it says when it cannot."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SETUP = pathlib.Path(__file__).resolve().parents[2] / "tools" / "setup"
LIST = """
[build]
g++        # the compiler
cmake

[test]
xvfb
cmake
"""


class Setup(unittest.TestCase):
    def run_setup(self, *sections, installed, user="0", apt="exit 0", commands=("sudo",)):
        """Returns what it did: exit status, what it said, and the apt-get commands that it ran."""
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "packages").write_text(LIST)
            shutil.copy(SETUP, folder / "setup")
            fakes = folder / "bin"
            fakes.mkdir()
            lines = "\n".join(f"installed {package}" for package in installed) + "\nconfig-files xvfb"
            for command, script in {"dpkg-query": f"echo '{lines}'", "id": f"echo {user}",
                                    "apt-get": f'echo "$*" >> {folder}/apt; {apt}', "sudo": 'exec "$@"'}.items():
                if command != "sudo" or command in commands:
                    (fakes / command).write_text(f"#!/bin/bash\n{script}\n")
                    (fakes / command).chmod(0o755)
            for command in ("bash", "cat", "dirname", "env", "grep", "mktemp", "rm", "sed", "sort"):
                (fakes / command).symlink_to(shutil.which(command))
            done = subprocess.run([folder / "setup", *sections], capture_output=True, text=True, timeout=30,
                                  env={"PATH": str(fakes), "TMPDIR": name}, cwd=os.sep)
            runs = (folder / "apt").read_text().splitlines() if (folder / "apt").exists() else []
            return done.returncode, done.stdout + done.stderr, runs

    def test_installs_what_is_missing_and_no_more(self):
        for sections, installed, wanted in ((["build"], ["g++", "cmake"], None),
                                            (["build"], ["cmake"], "g++"),
                                            (["build", "test"], ["g++"], "cmake xvfb"),
                                            ([], ["cmake"], "g++ xvfb")):
            with self.subTest(sections=sections, installed=installed):
                status, said, runs = self.run_setup(*sections, installed=installed)
                self.assertEqual(status, 0, said)
                self.assertEqual([run.split("--no-install-recommends ")[1] for run in runs], [wanted] if wanted else [])
                if not wanted:
                    self.assertEqual(said.count("\n"), 1)

    def test_fetches_the_lists_only_when_it_has_to(self):
        first_fails = 'case "$*" in update*) : > $TMPDIR/updated ;; *) [[ -e $TMPDIR/updated ]] ;; esac'
        status, _, runs = self.run_setup("build", installed=[], apt=first_fails)
        self.assertEqual(status, 0)
        self.assertEqual([run.split()[0] for run in runs], ["install", "update", "install"])

    def test_says_why_it_cannot(self):
        for case, arguments, expected in (("no root, no sudo", {"user": "1000", "commands": ()}, "only root can install"),
                                          ("apt-get fails", {"apt": "echo no space left; exit 100"}, "no space left")):
            with self.subTest(case):
                status, said, _ = self.run_setup("build", installed=["g++"], **arguments)
                self.assertEqual(status, 1)
                self.assertIn(expected, said)
        self.assertEqual(self.run_setup("nonsense", installed=[])[0], 2)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], "-v"])
