"""The web of the story: a handbook that belongs to the work, and a chat that does not."""

import os
import pathlib

from demo_parts.chat import ROOM, TALK
from demo_parts.site import Site

HANDBOOK, FRIENDS = "handbook.example", "friends.example"

PAGE = """<!doctype html><html lang="en"><meta charset="utf-8"><title>{title}</title>
<style>
  body {{ margin: 0; font: 17px/1.6 Inter, sans-serif; color: #2b2f36; background: #fff; display: flex; height: 100vh }}
  nav {{ width: 190px; padding: 28px 24px; background: {colour}; color: #fff }}
  nav p {{ margin: 6px 0; opacity: .75 }} nav b {{ font-size: 21px }}
  main {{ flex: 1; padding: 28px 44px; max-width: 640px }} h1 {{ font-size: 27px; margin: 0 0 16px }}
  pre {{ background: #f2f4f1; padding: 14px 18px; border-radius: 8px; font: 15px/1.5 "JetBrains Mono", monospace }}
  .said {{ display: flex; gap: 14px; margin: 20px 0 }} .said div {{ line-height: 1.4 }}
  .said i {{ width: 42px; height: 42px; border-radius: 21px; color: #fff; font: 600 19px/42px Inter; text-align: center }}
  footer {{ margin-top: 34px; padding: 12px 18px; border: 1px solid #d4d8de; border-radius: 10px; color: #8a919c }}
</style>
<nav><b>{name}</b>{rooms}</nav><main><h1>{heading}</h1>{content}</main></html>"""

COLOURS = ("#c2410c", "#0f766e", "#7c3aed", "#b45309")
EXTENSION = pathlib.Path(__file__).resolve().parents[2] / "extension"


class Web(Site):
    def __init__(self):
        super().__init__({HANDBOOK: handbook(), FRIENDS: friends()})
        self.data = pathlib.Path.home() / ".config/chromium"

    def furnish(self):
        """The browser has been used before, so that Fendrel knows of it."""
        self.data.mkdir(parents=True, exist_ok=True)

    def browser(self, host):
        """What starts a browser, with the extension, on a page of ours. It is quiet about how it is started."""
        # The browser refuses to start as root with its sandbox.
        as_root = ["--no-sandbox"] if os.geteuid() == 0 else []
        return ["chromium", *as_root, f"--user-data-dir={self.data}", f"--load-extension={EXTENSION}", "--no-first-run", "--test-type",
                "--password-store=basic", "--disable-background-networking", "--disable-component-update", "--disable-sync",
                "--window-position=420,130", "--window-size=1180,740",
                f"--host-resolver-rules=MAP *.example 127.0.0.1:{self.server_address[1]}", f"http://{host}/"]


def handbook():
    return PAGE.format(
        title="Garden handbook", name="Garden", heading="Watering", colour="#3f6b4a",
        rooms=lines("p", ("Beds", "Seeds", "Watering", "Frost")),
        content="<p>A bed asks for water when the soil is dry two fingers deep. Ask it before you open the valve:</p>"
                "<pre>if (bed.moisture() &lt; 0.3)\n    valve.open(std::chrono::minutes(10));</pre>"
                f"<p>Questions? <a href='http://{FRIENDS}/'>Ask the friends of the garden</a>, who are never far.</p>")


def friends():
    said = "".join(f"<div class='said'><i style='background:{colour}'>{who[0].upper()}</i>"
                   f"<div><b>{who}</b><br>{text}</div></div>" for (who, text), colour in zip(TALK, COLOURS))
    return PAGE.format(title=f"{ROOM} – Friends", name="Friends", heading=ROOM, colour="#3b4a7a",
                       rooms=lines("p", (ROOM, "#garden", "#photos", "#music")),
                       content=f"{said}<footer>Write to {ROOM}</footer>")


def lines(tag, texts):
    return "".join(f"<{tag}>{text}</{tag}>" for text in texts)
