#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What does it take to take over an older version's database, as a part of what sqlite3 needs to import its rows?

usage: run.py [--build DIR] [--work DIR] [--payees N] [--rounds R]

Has zrvjet write the database of N payees and two months into the work folder (kept there for the next run), then lets
the two programs work in turn, R rounds: zrvstore reads the database, checks every row and makes a store of them;
`sqlite3` imports the same rows from text files into tables of the same shape. Prints the medians' ratio, of the wall
clock and of the processor, and the processor's seconds for whoever waits at the program's first start. An eighth of a
sample's payees have left before the months, so 22900 of them make some 40000 salary rows.
"""
import argparse
import os
import re
import shutil
import statistics
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
from timed import run  # noqa: E402

TABLES = ("ZRVtbKarfarma", "ZRVtbKarkonan", "ZRVtbHogog", "ZRVtbKholList", "ZRVtbCoding", "User_Defination")
GOAL = 2.0


def make_old(zrvjet, folder, payees):
    if not (folder / "DBZorvan.mdb").exists():
        folder.mkdir(parents=True, exist_ok=True)
        subprocess.run([zrvjet, folder, f"oldest={payees}"], check=True)
    return folder / "DBZorvan.mdb"


def write_texts(store, folder):
    """The rows of a store as text files, and the statements that import them into tables of its shape."""
    folder.mkdir(exist_ok=True)
    schema = subprocess.run(["sqlite3", store, ".schema"], capture_output=True, text=True, check=True).stdout
    script = folder / "import.sql"
    for table in TABLES:
        subprocess.run(["sqlite3", "-ascii", store, f".output {folder / table}", f"SELECT * FROM {table}"], check=True)
    imports = "".join(f".import {folder / table} {table}\n" for table in TABLES)
    script.write_text(f"{schema}.mode ascii\n{imports}", encoding="utf-8")
    return script


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--payees", type=int, default=22_900)
    ap.add_argument("--rounds", type=int, default=7)
    a = ap.parse_args()
    work = (a.work or a.build / "takeover") / str(a.payees)
    old = make_old(a.build / "bin/zrvjet", work / "old", a.payees)
    new, imported = work / "new", work / "imported.db"

    def take_over():
        shutil.rmtree(new, ignore_errors=True)
        return run([a.build / "bin/zrvstore", "takeover", old, new])

    told = take_over().told
    script = write_texts(new / "DBZorvan.mdb", work / "texts")

    def import_texts():
        imported.unlink(missing_ok=True)
        return run(["sqlite3", imported, f".read {script}"])

    import_texts()
    rounds = [(import_texts(), take_over()) for _ in range(a.rounds)]
    counts = {table: int(re.search(rf"^{table}: (\d+) rows", told, re.M).group(1)) for table in TABLES}
    for table, count in counts.items():
        if run(["sqlite3", imported, f"SELECT count(*) FROM {table}"]).told.strip() != str(count):
            sys.exit(f"{table} has other rows in the import")

    median = [[statistics.median(measured[who][part] for measured in rounds) for part in (0, 1)] for who in (0, 1)]
    print(f"{counts['ZRVtbKarkonan']} payees, {counts['ZRVtbHogog']} salary rows, {old.stat().st_size / 1e6:.0f} MB,"
          f" {a.rounds} rounds, medians")
    print(f"zrvstore takeover / sqlite3 .import: wall {median[1][0] / median[0][0]:.2f},"
          f" processor {median[1][1] / median[0][1]:.2f}")
    print(f"processor: {median[1][1]:.2f} s (goal {GOAL})")


main()
