"""What is told of each measurement: its figures, their goals, and what they are compared with."""

import dataclasses
import statistics


@dataclasses.dataclass
class Row:
    what: str
    value: float
    unit: str
    goal: float | None = None   # at most this
    other: float | None = None  # what the floor or peer takes
    other_name: str = ""
    more: str = ""

    def is_missed(self):
        return self.goal is not None and self.value > self.goal

    def cells(self):
        compared = f"{self.other_name} {number(self.other)} {self.unit}" if self.other is not None else ""
        ratio = self.value / self.other if self.other else 0
        goal = f"{number(self.goal)} {self.unit}".strip() if self.goal is not None else ""
        verdict = "" if self.goal is None else "MISSED" if self.is_missed() else "met"
        measured = f"{number(self.value)} {self.unit}".strip()
        return [self.what, measured, self.more, goal, verdict, compared.strip(),
                "" if not ratio else f"{ratio:.2g}" if ratio > 0.1 else f"1/{1 / ratio:.0f}"]


def table(rows):
    lines = [["Figure", "Measured", "Spread", "Goal", "Result", "Compared with", "Ratio"]] + [row.cells() for row in rows]
    widths = [max(len(line[column]) for line in lines) for column in range(len(lines[0]))]
    texts = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |" for line in lines]
    return "\n".join([texts[0], "| " + " | ".join("-" * max(3, width) for width in widths) + " |", *texts[1:]])


def number(value):
    return f"{value:.0f}" if value >= 100 or value == int(value) else f"{value:.3g}"


def percentile(samples, percent):
    return sorted(samples)[min(len(samples) - 1, len(samples) * percent // 100)]


def latency(what, samples, unit, goal=None, floor=None, floor_name="floor"):
    """The 95th percentile against the goal."""
    return Row(what + ", p95", percentile(samples, 95), unit, goal,
               percentile(floor, 95) if floor else None, floor_name,
               f"p50 {number(statistics.median(samples))}, max {number(max(samples))}, of {len(samples)}")


def rules(cases):
    def took(name):
        return cases[name]["ns"]
    return [
        Row("Rule for a site, 10,000 listed", took("site/10000"), "ns", 150, took("siteFloor/10000"), "hash look-up"),
        Row("  100,000 listed against 100", took("site/100000") / took("site/100"), "times", 4,
            took("siteFloor/100000") / took("siteFloor/100"), "hash look-up"),
        Row("  10,000 listed against a walk", took("site/10000"), "ns", None, took("siteLoop/10000"), "walk"),
        Row("Rule for an application, 10,000 listed", took("application/10000"), "ns"),
        Row("  100,000 listed against 100", took("application/100000") / took("application/100"), "times"),
    ]


def dock_tick(cases):
    tick = cases["tick"]
    return [
        Row("Idle dock tick", tick["ns"], "ns", None, cases["clockFloor"]["ns"], "asking the clock"),
        Row("  allocations", tick["allocations"], "", 0),
        Row("  questions to the window system", tick["questions"], "", 0),
    ]


def verdict_cache(cases):
    def milliseconds(name):
        return cases[name]["ns"] / 1e6
    return [
        Row("Saving 10,000 verdicts", milliseconds("save"), "ms", 5, milliseconds("write"), "writing the same bytes"),
        Row("  making the file's text", milliseconds("encode"), "ms", None, milliseconds("encodeAsObject"),
            "a Qt JSON object"),
        Row("  the main thread's part", milliseconds("answerAndSave") * 1e3, "us"),
        Row("Reading 10,000 verdicts", milliseconds("decode"), "ms"),
    ]


def held(cases):
    def microseconds(name):
        return cases[name]["ns"] / 1e3
    rows = []
    for count in (500, 5_000, 50_000):
        floor = microseconds(f"bareScan/{count}")
        rows += [
            Row(f"Look at a log of {count:,} messages, unchanged", microseconds(f"unchanged/{count}"), "us", 10),
            Row("  with five new ones", microseconds(f"fiveNew/{count}"), "us", 1.3 * floor, floor, "bare scan"),
        ]
    return rows + [
        Row("Message against 20 words", microseconds("twentyWords"), "us", None, microseconds("twentySearches"),
            "searches without borders"),
        Row("Decoding a record", microseconds("decode"), "us", None, microseconds("decodeByLibrary"), "libplist"),
    ]


PAGES = {
    "stripe": "100 Stripe transactions", "lemonSqueezy": "100 Lemon Squeezy orders", "paddle": "30 Paddle transactions",
    "dodo": "100 Dodo payments", "dodoRefunds": "100 Dodo refunds", "github": "20 GitHub pull requests",
    "linear": "50 Linear issues", "vercel": "10 Vercel deployments", "sentry": "5 Sentry issues",
    "forecast": "48 hours of Open-Meteo", "chart": "96 points of a quote chart",
}


def widgets(cases):
    def microseconds(name):
        return cases[name]["ns"] / 1e3
    rows = []
    for name, page in PAGES.items():
        parse = microseconds(f"parse/{name}")
        rows.append(Row(f"Reading {page}", microseconds(f"read/{name}"), "us", 3 * parse, parse, "a Qt JSON document",
                        f"{cases[f'read/{name}']['bytes'] / 1024:.1f} KiB"))
    return rows + [Row("A day of 10,000 sales", microseconds("fold"), "us", None, microseconds("sum"), "their sum alone")]


def usage(answer):
    """Goals are those of cat and of the peer, where it could be had."""
    days, month = answer["days"], answer["month"]
    ours, cat, peer = days["fendrel"], days["cat"], days.get("peer")
    rows = [Row(f"Logs of two days, {answer['bytes'] / 1e6:.0f} MB", ours["processor"], "ms", 3.5 * cat["processor"],
                cat["processor"], "cat to nowhere")]
    if peer:
        rows += [Row("  the same", ours["processor"], "ms", 0.22 * peer["processor"], peer["processor"], "ccusage"),
                 Row("  most memory", ours["memory"], "MB", 0.2 * peer["memory"], peer["memory"], "ccusage")]
    rows.append(Row("Logs of a month, of which two days count", month["fendrel"]["processor"], "ms",
                    0.03 * month["peer"]["processor"] if peer else None,
                    month["peer"]["processor"] if peer else None, "ccusage"))
    for name, what, goal in (("unchanged", "Look at 500 logs, unchanged", 4), ("appended", "  with a line more", 10)):
        took = answer[name]
        rows.append(Row(what + ", median", statistics.median(took), "ms", goal,
                        more=f"max {number(max(took))}, of {len(took)}"))
    search = answer["search"]
    return rows + [Row("  searching a KB of one", search["ours"], "ns", 100, search["library"], "QByteArrayMatcher")]


def calendar(cases):
    def microseconds(name):
        return cases[name]["ns"] / 1e3
    plain = microseconds("plain")
    return [
        Row("A day of 2,000 events that come again, once more", microseconds("again"), "us", 0.04 * plain, plain,
            "the library's expansion"),
        Row("  for the first time", microseconds("first"), "us", 1.5 * plain, plain, "the library's expansion"),
        Row("  reading their text", microseconds("read"), "us"),
    ]


def front(answer):
    def both(what, name, goal):
        ours, floor = answer[name], answer[f"{name}Floor"]
        return [
            latency(what, [each / 1e3 for each in ours["latencies"]], "ms", goal,
                    [each / 1e3 for each in floor["latencies"]], "bare client"),
            Row("  processor time", ours["processor"], "us", None, floor["processor"], "bare client"),
        ]
    still = answer["stillness"]
    return [*both("Title change to front", "title", 5), *both("Activation to front", "activation", 10),
            Row(f"Wake-ups in {still['seconds']:.0f} s without a change", still["wakeUps"], "", 0)]


def bridge(answer):
    ours, floor, burst = answer["bridge"], answer["floor"], answer["burst"]
    ping, bare = statistics.median(ours), statistics.median(floor)
    return [
        Row("Report to the bridge's answer, median", ping, "us", 1.8 * bare, bare, "bare poll and parse",
            f"p95 {number(percentile(ours, 95))}, of {len(ours)}"),
        Row("Burst of 100,000 reports: lost", burst["lost"], "", 0),
        Row("  longest wait without an interface", burst["longest"], "ms"),
    ]


def burst(answer):
    waits = answer["waits"]
    return [Row("Burst of 100,000 reports: longest wait of the interface", max(waits), "ms", 16,
                more=f"p50 {number(statistics.median(waits))}, p95 {number(percentile(waits, 95))}, of {len(waits)}")]


def relay(answer):
    """Against the peer in the goals; times in us, memory in KiB."""
    ours, floor, peer = (answer[name] for name in ("relay", "forwarder", "peer"))

    def row(what, read, unit, share_of_peer, scale):
        mine, theirs, least = (read(each) / scale for each in (ours, peer, floor))
        return [Row(what, mine, unit, share_of_peer * theirs, theirs, "keepassxc-proxy"),
                Row("  the same", mine, unit, None, least, "bare forwarder")]

    def trip(each):
        return statistics.median(each["trips"])
    return [
        *row("Relay: start to connected, median", lambda each: statistics.median(each["starts"]), "ms", 0.15, 1e3),
        *row("Relay: most memory", lambda each: each["memory"], "MB", 0.1, 1024),
        Row("Relay: a message and its answer, median", trip(ours), "us", 1.25 * trip(floor), trip(floor), "bare forwarder",
            f"p95 {number(percentile(ours['trips'], 95))}, of {len(ours['trips'])}"),
        Row("  the same", trip(ours), "us", None, trip(peer), "keepassxc-proxy"),
    ]


def gate(answer):
    return [latency("Front change to gate mapped", answer["mapped"], "ms", 100, answer["active"], "window active"),
            latency("  to gate drawn", answer["drawn"], "ms")]


def veil(answer):
    return [latency("Tab change to veil in the page", answer["veiled"], "ms", 200, answer["framed"], "next frame")]


def start(answer):
    ours, peer = answer["fendrel"], answer["empty"]
    return [
        Row("Start to first dock frame, median", statistics.median(ours["wall"]), "ms", None,
            statistics.median(peer["wall"]), "empty window",
            f"max {number(max(ours['wall']))}, of {len(ours['wall'])}"),
        Row("  processor time", statistics.median(ours["processor"]), "ms", None,
            statistics.median(peer["processor"]), "empty window"),
    ]


def idle(answer):
    rows = []
    for state, what in (("idle", "Idle"), ("focus", "Focus session of an hour, idle")):
        ours, peer = answer[state]["fendrel"], answer[state]["empty"]
        rows += [
            Row(f"{what}: processor time in {answer['seconds']:.0f} s", ours["processor"], "ms", None,
                peer["processor"], "empty window"),
            Row("  wake-ups of all threads", ours["wakeUps"], "", None, peer["wakeUps"], "empty window"),
            Row("  memory (proportional)", ours["memory"], "MB", None, peer["memory"], "empty window"),
        ]
    return rows


def docks(answer):
    """Goals are those of the dock, beside Plank with its helper; the panel does not magnify."""
    ours, plank, panel = answer["Fendrel"], answer["Plank"], answer["xfce4-panel"]

    def beside(what, unit, value, goal=None, more=""):
        return [Row(what, value(ours), unit, goal, value(plank), "Plank", more),
                Row("  the same", value(ours), unit, None, value(panel), "xfce4-panel")]

    def middle(name):
        return lambda dock: statistics.median(dock[name])

    def of_core(sweep):
        return sweep["processor"] / sweep["seconds"] / 10

    def frames(dock):
        return len(dock["sweep"]["frames"]) / dock["sweep"]["seconds"]
    seconds = ours["idle"]["seconds"]
    rows = [
        *beside("Start to dock mapped, median", "ms", middle("mapped"), middle("mapped")(plank),
                f"max {number(max(ours['mapped']))}, of {len(ours['mapped'])}"),
        *beside("Start to dock drawn, median", "ms", middle("drawn")),
        *beside("  its processor time", "ms", middle("processor")),
        *beside(f"Dock idle for {seconds:.0f} s: wake-ups", "", lambda dock: dock["idle"]["wakeUps"], seconds),
        *beside("  processor time", "ms", lambda dock: dock["idle"]["processor"], 0.2 * seconds),
        *beside("  memory (proportional)", "MB", lambda dock: dock["memory"][0]),
        *beside("  memory (resident)", "MB", lambda dock: dock["memory"][1], plank["memory"][1] * 4 / 3),
    ]
    gaps = [later - earlier for earlier, later in zip(ours["sweep"]["frames"], ours["sweep"]["frames"][1:])]
    return rows + [
        Row("Magnifying 20 applications: between frames, mean", 1000 / frames(ours), "ms", 17,
            1000 / frames(plank), "Plank", f"p95 {number(percentile(gaps, 95))}"),
        Row("  of one processor", of_core(ours["sweep"]), "%", 20, of_core(plank["sweep"]), "Plank"),
    ]
