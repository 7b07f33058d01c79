#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long does a month of 10,000 salaries take to open, as a multiple of the bare queries of what it shows?

usage: run.py [--build DIR] [--work DIR] [--payees N] [--rounds R]

Makes a sample store of N payees and two months in the work folder (kept there for the next run) and lets
bench_open_month do both in turn, R rounds. Quote the ratio only. An eighth of a sample's payees have left before the
month, so 11450 of them make some 10000 rows.
"""
import argparse
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--payees", type=int, default=11_450)
    ap.add_argument("--rounds", type=int, default=15)
    a = ap.parse_args()
    work = (a.work or a.build / "open_month") / str(a.payees)
    if not (work / "DBZorvan.mdb").exists():
        subprocess.run([a.build / "bin/zrvstore", "sample", work, "--payees", str(a.payees), "--months", "2",
                        "--year", "1389"], check=True, stdout=subprocess.DEVNULL)
    subprocess.run([a.build / "bin/bench_open_month", work, str(a.rounds)], check=True)


main()
