#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long does the payee screen take on very many payees, as a multiple of the bare queries that yield their order?

usage: run.py [--build DIR] [--work DIR] [--payees N] [--rounds R]

Makes a sample store of N payees in the work folder (kept there for the next run), then lets bench_payees open the
screen in a real window, search on it in every way and scroll through it, each beside the bare query of the same rows;
prints its medians and ratios, and the memory beyond the idle program's, which is the main form alone. The windows need
no display unless QT_QPA_PLATFORM names another platform than offscreen. Quote ratios; times differ from machine to
machine.
"""
import argparse
import os
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def run(command):
    """What a command prints; it must succeed."""
    offscreen = f"offscreen:configfile={ROOT}/tests/qt/display_1024.json"
    environment = {"QT_QPA_PLATFORM": offscreen, **os.environ}
    done = subprocess.run(command, capture_output=True, text=True, env=environment)
    if done.returncode != 0:
        sys.exit(f"{command[0]} failed with {done.returncode}: {done.stderr}")
    return done.stdout


def peak(told):
    """Peak memory in MB, and what was told before it."""
    found = re.search(r"^VmHWM:\s*(\d+) kB\n", told, re.M)
    return int(found.group(1)) / 1024, told[:found.start()]


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--payees", type=int, default=100_000)
    ap.add_argument("--rounds", type=int, default=7)
    a = ap.parse_args()
    work = (a.work or a.build / "payees") / str(a.payees)
    if not (work / "DBZorvan.mdb").exists():
        run([a.build / "bin/zrvstore", "sample", work, "--payees", str(a.payees), "--months", "1"])
    program = a.build / "bin/bench_payees"
    idle, _ = peak(run([program, "--idle", work]))
    used, told = peak(run([program, work, str(a.rounds)]))
    print(told, end="")
    print("goals: ratio 1.5, page 16.7 ms")
    print(f"memory beyond the idle program: {used - idle:.1f} MB (goal 64.0)")


main()
