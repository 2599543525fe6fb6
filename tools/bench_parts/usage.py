"""Measures reading a coding agent's logs, beside cat and another program that reads the same ones. Prints JSON:
milliseconds of processor time, MB, the least of several rounds."""

import contextlib
import json
import os
import pathlib
import shutil
import subprocess
import sys

PROGRAMS = pathlib.Path(sys.argv[1])
BUILD = PROGRAMS.parents[1]
LOGS = BUILD / "bench-usage"
PEER = "ccusage@20.0.24"
ROUNDS = 7


def main():
    peer = fetch_peer()
    answer = {}
    for name, days in (("days", 2), ("month", 30)):
        with logs(days):
            answer[name] = measure(programs(peer))
            if name == "days":
                answer["bytes"] = sum(each.stat().st_size for each in LOGS.glob("projects/*/*.jsonl"))
                answer |= json.loads(subprocess.check_output([PROGRAMS / "bench_usage", "passes", LOGS]))
    print(json.dumps(answer))


def fetch_peer():
    """Its native program; nothing where npm or the registry cannot be had."""
    folder = BUILD / "peers"
    fetch = ["npm", "install", "--prefix", folder, "--no-save", "--no-audit", "--no-fund", "--ignore-scripts", PEER]
    with contextlib.suppress(OSError, subprocess.SubprocessError):
        subprocess.run(fetch, check=True, stdout=sys.stderr, timeout=120)
    found = next(folder.glob("node_modules/@ccusage/*/bin/ccusage"), None)
    if found:
        found.chmod(0o755)
    else:
        print(f"bench: {PEER} cannot be had: nothing is compared with it", file=sys.stderr)
    return found


@contextlib.contextmanager
def logs(days):
    """About 940 MB, which nobody needs afterwards."""
    try:
        subprocess.run([PROGRAMS / "generate_usage", LOGS, str(days)], check=True)
        yield
    finally:
        shutil.rmtree(LOGS, ignore_errors=True)


def programs(peer):
    commands = {"cat": ["sh", "-c", "cat projects/*/*.jsonl > /dev/null"],
                "fendrel": [PROGRAMS / "bench_usage", "scan", LOGS]}
    if peer:
        # Of its commands the quickest one, without a request to the network.
        commands["peer"] = [peer, "claude", "blocks", "--json", "--offline", "--single-thread"]
    return commands


def measure(commands):
    """They take turns: what else the machine does meets them all."""
    rounds = [{who: run(command) for who, command in commands.items()} for _ in range(ROUNDS)]
    return {who: {figure: min(each[who][figure] for each in rounds) for figure in ("processor", "memory")}
            for who in commands}


def run(command):
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, cwd=LOGS,
                               env={**os.environ, "CLAUDE_CONFIG_DIR": str(LOGS), "HOME": str(LOGS)})
    _, status, used = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise subprocess.CalledProcessError(process.returncode, command)
    return {"processor": 1e3 * (used.ru_utime + used.ru_stime), "memory": used.ru_maxrss / 1024}


if __name__ == "__main__":
    main()
