#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long does a user wait for the whole report of a WH file's check, up to its last page on the display, as a part
of what zrvcheck needs for the same file?

usage: run.py [--build DIR] [--work DIR] [--lines N] [--rounds R]

Makes a good file of N payees (1000000: 440 MB) in the work folder, kept there for the next run, and lets both work in
turn, R rounds. zrvcheck is timed from its start to its end, with all cores and with one; bench_check_screen times itself
from the click to the last page's paint, in a window that nobody sees. Prints the ratios of the medians to those of
zrvcheck, by the wall clock and by the processor, and the peak memory. Quote the ratios only.
"""
import argparse
import os
import re
import statistics
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench/check"))
from run import make_file, run, timed_run  # noqa: E402


def show(bench, path):
    """What the program took from the click to the last page, as it tells itself."""
    cost = timed_run([bench, path], env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    wall, processor = (float(told) / 1000 for told in
                       re.match(r"([\d.]+) ms, of the processor ([\d.]+)", cost.told).groups())
    return cost._replace(wall=wall, processor=processor)


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--lines", type=int, default=1_000_000)
    ap.add_argument("--rounds", type=int, default=7)
    a = ap.parse_args()
    work = (a.work or a.build / "check") / str(a.lines)
    work.mkdir(parents=True, exist_ok=True)
    good = work / "WH138902.TXT"
    make_file(good, a.lines, "12")

    bench, zrvcheck = a.build / "bin/bench_check_screen", a.build / "bin/zrvcheck"
    ways = {
        "zrvcheck": lambda: run([zrvcheck, "--summary", good]),
        "zrvcheck, one core": lambda: run(["taskset", "-c", "0", zrvcheck, "--summary", good]),
        "report shown to its end": lambda: show(bench, good),
    }
    measured = {name: [] for name in ways}
    for _ in range(a.rounds):
        for name, way in ways.items():
            measured[name].append(way())
    wall, processor = ([statistics.median(told[kind] for told in rounds) for rounds in measured.values()]
                       for kind in (0, 1))
    for place, (name, rounds) in enumerate(measured.items()):
        print(f"{name:26} wall {wall[place] / wall[0]:6.2f}   processor {processor[place] / processor[0]:6.2f}   "
              f"peak {max(cost.peak for cost in rounds):7.1f} MB")


if __name__ == "__main__":
    main()
