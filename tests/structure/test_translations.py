"""Every text of the program is translated: in the sources as they are now, not as they were at the last update."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

SOURCES = pathlib.Path(__file__).resolve().parents[2] / "src"
LUPDATE = sys.argv.pop(1)


class Translations(unittest.TestCase):
    def update(self, name, *options):
        """The translations as an update would leave them."""
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / name
            shutil.copy(SOURCES / "UI/translations" / name, file)
            done = subprocess.run([LUPDATE, "-silent", "-locations", "none", "-I", SOURCES, *options, SOURCES, "-ts", file],
                                  capture_output=True, text=True, check=True)
            # A text whose class it cannot find gets a context under which the program never asks.
            self.assertNotIn("Qualifying with unknown", done.stdout + done.stderr)
            return [(context.findtext("name"), message) for context in xml.parse(file).getroot().iter("context")
                    for message in context.iter("message")]

    def test_all_are_finished(self):
        german = self.update("fendrel_de.ts")
        english = self.update("fendrel_en.ts", "-pluralonly")
        self.assertGreater(len(german), 150)
        for context, message in german + english:
            translation = message.find("translation")
            with self.subTest(context=context, text=message.findtext("source")):
                self.assertIsNone(translation.get("type"), "run: cmake --build build/dev --target translations")

    def test_places_are_kept(self):
        """Where a text has a place for a name or a number, its translation has it too."""
        for context, message in self.update("fendrel_de.ts"):
            for form in message.findall("translation/numerusform") or message.findall("translation"):
                with self.subTest(context=context, text=message.findtext("source")):
                    for place in ("%1", "%2", "%n"):
                        if place == "%n" and message.find("translation/numerusform") is form:
                            continue  # "one" may be a word
                        self.assertEqual(place in message.findtext("source"), place in (form.text or ""))


if __name__ == "__main__":
    unittest.main()
