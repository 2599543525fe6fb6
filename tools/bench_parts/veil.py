"""Measures, in the page, how long after its tab came to the front the veil is over it. Prints JSON: milliseconds."""

import json
import os
import pathlib
import sys
import time

from bench_parts.program import Bench
from demo_parts.site import Site

PROGRAMS = sys.argv[1]
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests/desktop"))
os.environ["FENDREL_PROGRAMS"] = PROGRAMS
from browsers import Chromium  # noqa: E402

WORK, SOCIAL = "work.example", "social.example"
ROUNDS = 30
SECONDS = 20.0
PAGE = """<!doctype html><title>A page</title><script>
  var shown = 0, framed = 0, veiled = 0;
  document.addEventListener("visibilitychange", () => {
    if (document.visibilityState !== "visible")
      return;
    shown = performance.now();
    framed = veiled = 0;
    requestAnimationFrame(function look() {
      framed ||= performance.now();
      if (document.elementFromPoint(9, 9)?.localName === "fendrel-veil")
        veiled = performance.now();
      else
        requestAnimationFrame(look);
    });
  });
</script>"""


def until(look):
    deadline = time.monotonic() + SECONDS
    while not (found := look()):
        if time.monotonic() > deadline:
            sys.exit("bench: the browser does not do what it should")
        time.sleep(0.05)
    return found


def measure(bench, browser, pages):
    def is_in_front(site):
        browsers = json.loads(bench.control("status", "--json"))["browsers"]
        return browsers and (browsers[0]["tab"] or {}).get("site") == site
    results = {"veiled": [], "framed": []}
    until(lambda: json.loads(bench.control("status", "--json"))["browsers"])
    social, work = (browser.open(pages.address(host)) for host in (SOCIAL, WORK))
    for _ in range(ROUNDS):
        browser.show(work)
        until(lambda: is_in_front(WORK))
        bench.control("focus", "start")
        browser.show(social)
        until(lambda: browser.look(social, "veiled"))
        shown, framed, veiled = browser.evaluate(social, "[shown, framed, veiled]")
        results["veiled"].append(veiled - shown)
        results["framed"].append(framed - shown)
        bench.control("focus", "stop")
        until(lambda: browser.look(social, "!document.querySelector('fendrel-veil')"))
    return results


def main():
    bench = Bench(PROGRAMS)
    bench.finish_first_run()
    Chromium.data.mkdir(parents=True, exist_ok=True)
    with bench.fendrel():
        bench.control("mode", "add-site", "social", SOCIAL)
        bench.control("mode", "add-site", "building", WORK)
        browser = Chromium((WORK, SOCIAL))
        try:
            print(json.dumps(measure(bench, browser, Site({"/": PAGE}))))
        finally:
            browser.end()


if __name__ == "__main__":
    main()
