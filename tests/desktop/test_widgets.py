"""The cards of widgets in the dock, on a machine without a network and without accounts."""

import pathlib

import harness
from harness import DOCK, SETTINGS
from reading import Reader
from test_dock_dragging import drag, drop, eventually
from test_dock_extras import MENU, wait_gone, wait_shown
from windows import press, wait_active, wait_window, xdotool

ADD = "End", "Up", "Right"  # the last entry but one
REMOVE = "End", "Up", "Up"


class Widgets(harness.DesktopTest):
    def setUp(self):
        super().setUp()
        self.reader = Reader(self)
        self.fendrel = self.reader.start()
        self.fendrel.do("onboarding", "finish", "building", "social")
        for app in next(mode["apps"] for mode in self.fendrel.do("modes") if mode["id"] == "building"):
            self.fendrel.do("mode", "remove-app", "building", app)
        self.fendrel.do("switch", "building")
        xdotool("mousemove", "10", "10")

    def cards(self):
        """Of each its name, what a press does, and its place, in their order; once they stand still."""
        def look():
            return [each for each in self.reader.read(DOCK) if "Widgets" in each["above"] and each["usable"]
                    and each["role"] != "check box"]
        def at_rest():
            seen = look()
            return seen if seen == look() else None
        return sorted(eventually("cards at rest", at_rest), key=lambda card: card["space"][0])

    def titles_are(self, *titles):
        def titled_so():
            seen = [card["name"].split(",")[0] for card in self.cards()]
            return seen == list(titles)
        eventually(f"the cards {titles}, not {[card['name'] for card in self.cards()]}", titled_so)

    def card(self, title):
        return next(card for card in self.cards() if card["name"].startswith(title))

    def middle(self, title):
        x, y, width, height = self.card(title)["space"]
        return x + width // 2, y + height // 2

    def choose(self, title, *keys):
        """In the menu of a card, by the keyboard alone."""
        self.fendrel.do("dock", "focus")
        self.reader.focused(DOCK)
        self.reader.round("Right", until=self.card(title)["name"])
        press("Menu")
        wait_shown(MENU)
        press(*keys)
        wait_gone(MENU)

    def test_from_one_to_three_and_back(self):
        self.titles_are("GitHub", "AI Usage")  # what has no card leaves no gap
        self.choose("AI Usage", *REMOVE, "Return")
        self.titles_are("GitHub")
        github = self.card("GitHub")
        self.assertEqual((github["role"], github["help"]), ("push button", "Opens the accounts in the settings"))
        xdotool("mousemove", *map(str, self.middle("GitHub")), "click", "1")
        wait_active(SETTINGS)
        self.reader.find(SETTINGS, "Accounts", on=True)
        press("Escape")
        xdotool("mousemove", "10", "10")

        self.choose("GitHub", *ADD, "Down", "Return", "Return")  # the only one of the second category
        self.titles_are("GitHub", "Weather")
        self.choose("GitHub", *ADD, "End", "Return", "End", "Return")
        self.titles_are("GitHub", "Weather", "Ticker")

        before = self.card("Weather")["space"][2]
        self.choose("Weather", "End", *["Up"] * 5, "Right", "End", "Return")
        eventually("a larger card", lambda: self.card("Weather")["space"][2] > 2 * before)

        start, first = self.middle("Ticker"), self.middle("GitHub")
        drag(start, first, (first[0] - 40, first[1]))
        drop()
        self.titles_are("Ticker", "GitHub", "Weather")
        drag(self.middle("GitHub"), (first[0], first[1] - 300))
        self.titles_are("Ticker", "Weather")
        press("Escape")
        drop()
        self.titles_are("Ticker", "GitHub", "Weather")
        xdotool("mousemove", "10", "10")
        self.choose("GitHub", "End", *["Up"] * 3, "Return")
        self.titles_are("Ticker", "Weather", "GitHub")

        drag(self.middle("Weather"), (first[0], first[1] - 300))
        drop()
        self.titles_are("Ticker", "GitHub")
        self.fendrel.do("undo")
        self.titles_are("Ticker", "Weather", "GitHub")
        self.assertGreater(self.card("Weather")["space"][2], 2 * before)

        self.fendrel.end(lambda: self.fendrel.do("quit"))
        self.fendrel = self.reader.start()
        wait_window(DOCK)
        self.titles_are("Ticker", "Weather", "GitHub")
        self.assertGreater(self.card("Weather")["space"][2], 2 * before)

    def test_a_reminder_of_a_folder(self):
        folder = pathlib.Path.home() / ".calendars"  # where it is looked for
        folder.mkdir()
        self.fendrel.end(lambda: self.fendrel.do("quit"))
        self.fendrel = self.reader.start()
        wait_window(DOCK)
        self.choose("GitHub", *ADD, "Return", "End", "Return")  # the last one of the first category
        eventually("nothing to be done", lambda: "All done for today" in self.card("Reminders")["name"])
        xdotool("mousemove", *map(str, self.middle("Reminders")), "click", "1")
        wait_shown("Fendrel reminder")
        xdotool("key", "dead_acute", "e", "type", "tude")
        press("Return")
        wait_gone("Fendrel reminder")

        def kept(text):
            return any(text in file.read_text() for file in folder.rglob("*.ics"))
        eventually("the reminder in the folder", lambda: kept("SUMMARY:\N{LATIN SMALL LETTER E WITH ACUTE}tude"))
        self.choose("Reminders", "End", *["Up"] * 4, "Right", "Down", "Return")  # a circle has room in a larger card
        self.reader.find(DOCK, "Add a reminder", role="push button")
        self.reader.click(DOCK, "\N{LATIN SMALL LETTER E WITH ACUTE}tude", role="check box")
        eventually("a reminder that is done", lambda: kept("STATUS:COMPLETED"))
        eventually("nothing left", lambda: "All done for today" in self.card("Reminders")["name"])


if __name__ == "__main__":
    harness.main()
