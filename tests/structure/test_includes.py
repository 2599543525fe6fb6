"""Who may include whom, and what only some rooms may use. The rules are those of ARCHITECTURE.md."""

import pathlib
import re
import unittest

SOURCE = pathlib.Path(__file__).resolve().parents[2] / "src"

# What the services build on; the rest of App owns the services.
FOUNDATION = {"DockAppearance", "PreferenceTypes", "Preferences", "Workspace"}

BELOW_SERVICES = {"Base", "Ports", "foundation", "Modes"}
SERVICES = {"Focus", "Messages", "Dock", "Widgets"}
BELOW_VIEWS = BELOW_SERVICES | SERVICES | {"App"}

MAY_INCLUDE = {
    "Base": {"Base"},
    "Ports": {"Base", "Ports"},
    "Platform": {"Base", "Ports", "Platform"},
    "foundation": {"Base", "Ports", "foundation"},
    "Modes": BELOW_SERVICES,
    **{service: BELOW_SERVICES | {service} for service in SERVICES},
    "App": BELOW_VIEWS,
    "UI": BELOW_VIEWS | {"UI"},
    "Control": BELOW_VIEWS | {"Control"},
    "fendrelctl": {"Base", "Control", "fendrelctl"},
    "Relay": {"Base", "Relay"},
    "main": BELOW_VIEWS | {"Platform", "UI", "Control"},
}

# A pattern, the rooms that may use it, and why the others may not.
RESERVED = [
    (r'#include <(QQml|QQuick|QtQml)', {"UI"}, "only views know QML"),
    (r'\b(Q_OS_\w+|__linux__|__APPLE__)\b', set(), "only src/Platform/CMakeLists.txt asks which system it is"),
    (r'\bQTimer\b|currentDateTime|QElapsedTimer|(system|steady)_clock::now', {"Platform", "Relay"},
     "time comes from the Clock"),
    (r'#include <Q', set(MAY_INCLUDE) - {"Relay"}, "the relay is there before Qt would be loaded"),
    (r'\bxcb_|#include <(xcb|X11)/', {"Platform"}, "the window system is behind its ports"),
]


def room(path: pathlib.PurePath) -> str:
    """The room of a file, by its path below src/."""
    if len(path.parts) == 1:
        return "main"
    if path.parts[0] == "App" and path.stem in FOUNDATION:
        return "foundation"
    if path.parts[:2] == ("Control", "fendrelctl"):
        return "fendrelctl"
    return path.parts[0]


def sources():
    for path in sorted(SOURCE.rglob("*")):
        if path.suffix in {".h", ".cpp", ".mm"}:
            yield path.relative_to(SOURCE), path.read_text()


class IncludeRules(unittest.TestCase):
    def test_every_include_is_allowed(self):
        wrong = []
        for path, text in sources():
            for included in re.findall(r'^#include "([^"]+)"', text, re.MULTILINE):
                target = pathlib.PurePath(included)
                if not (SOURCE / target).exists():
                    wrong.append(f"{path} includes {included}, which is not written from src/")
                elif room(target) not in MAY_INCLUDE[room(path)]:
                    wrong.append(f"{path} ({room(path)}) may not include {included} ({room(target)})")
        self.assertEqual(wrong, [])

    def test_reserved_things_stay_in_their_rooms(self):
        wrong = []
        for path, text in sources():
            code = re.sub(r"//.*", "", text)
            for pattern, rooms, reason in RESERVED:
                if room(path) not in rooms and re.search(pattern, code):
                    wrong.append(f"{path}: {reason}")
        self.assertEqual(wrong, [])


if __name__ == "__main__":
    unittest.main()
