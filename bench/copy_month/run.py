#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long does the copy of a month take, as a part of what the sqlite3 command line needs for the same statement?

usage: run.py [--build DIR] [--work DIR] [--payees N] [--rounds R]

Makes a sample store of N payees and one month in the work folder (kept there for the next run). Then the two programs
copy the month into the next year in turn, R rounds, each on a fresh copy of the file, until the rows are on the disk.
Prints the medians' ratio, of the wall clock and of the processor: of the copies, which is what each program takes
beyond its start and one small question, and of the programs from their start to their end. Quote the ratios only. A
part of a sample's payees leave before the target month, so 120000 of them make some 100000 rows.
"""
import argparse
import os
import re
import shutil
import sqlite3
import statistics
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
from timed import run  # noqa: E402

SOURCE, TARGET = ("1389", "01"), ("1390", "01")
# With a million rows the page cache is what counts.
GOAL, GOAL_LARGE, LARGE = 1.05, 0.85, 500_000


def query(store, sql):
    with sqlite3.connect(store) as connection:
        return connection.execute(sql).fetchone()[0]


def statement(store):
    """The statement as its source has it, with the two months' values; SQLite can read it as it stands."""
    source = (ROOT / "lists/month_copy.cpp").read_text(encoding="utf-8")
    body = re.search(r"QString copyStatement.*?return (.*?);\n}", source, re.S).group(1)
    where = re.search(r"QString ofTheMonth.*?return (.*?);\n}", source, re.S).group(1)
    ended = re.search(r"QString notEndedBefore.*?return (.*?);\n}", source, re.S).group(1)
    values = {"program.PayerTFN": query(store, "SELECT TFN FROM ZRVtbKarfarma"), "source.year": SOURCE[0],
              "source.month": SOURCE[1], "target.year": TARGET[0], "target.month": TARGET[1],
              'QString(target.year + target.month + u"01"_s)': TARGET[0] + TARGET[1] + "01"}
    code = body.replace("ofTheMonth(program, source)", where).replace("notEndedBefore(target)", ended)
    for name, value in values.items():
        code = code.replace(f"quoted({name})", f"u\"'{value}'\"_s")
    return "".join(re.findall(r'u"([^"]*)"', code)) + ";\n"


def copied(store):
    """Number and sum of the rows that a copy made."""
    where = f"WHERE TaxYear='{TARGET[0]}' AND TaxMonth='{TARGET[1]}'"
    return query(store, f"SELECT count(*) || ' ' || total(FinalTax) FROM ZRVtbHogog {where}")


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--payees", type=int, default=120_000)
    ap.add_argument("--rounds", type=int, default=7)
    a = ap.parse_args()
    work = (a.work or a.build / "copy_month") / str(a.payees)
    whole = work / "whole" / "DBZorvan.mdb"
    if not whole.exists():
        subprocess.run([a.build / "bin/zrvstore", "sample", whole.parent, "--payees", str(a.payees), "--months", "1",
                        "--year", SOURCE[0]], check=True)
    each = work / "each" / "DBZorvan.mdb"
    each.parent.mkdir(exist_ok=True)
    sql = work / "copy.sql"
    sql.write_text(statement(whole), encoding="utf-8")

    bench = a.build / "bin/bench_copy_month"
    idle = (["sqlite3", each, ".output /dev/null", "SELECT TFN FROM ZRVtbKarfarma"], [bench, "--idle", each.parent])
    copying = (["sqlite3", each, f".read {sql}"], [bench, each.parent, *SOURCE, *TARGET])
    starts, rounds = [], []
    for number in range(a.rounds):
        results = set()
        measured = {}
        # Each is first as often as second.
        for who in ((0, 1), (1, 0))[number % 2]:
            shutil.copyfile(whole, each)
            os.sync()
            start = run(idle[who])
            measured[who] = start, run(copying[who])
            results.add(copied(each))
        if len(results) != 1:
            sys.exit(f"the two copies differ: {results}")
        starts.append([measured[who][0] for who in (0, 1)])
        rounds.append([measured[who][1] for who in (0, 1)])
    each.unlink()

    def median(kind, who, part):
        return statistics.median(measured[who][part] for measured in kind)

    def ratios(part):
        whole_run = [median(rounds, who, part) for who in (0, 1)]
        copy = [whole_run[who] - median(starts, who, part) for who in (0, 1)]
        return f"{copy[1] / copy[0]:.2f}", f"{whole_run[1] / whole_run[0]:.2f}"

    rows = int(results.pop().split()[0])
    goal = GOAL_LARGE if rows >= LARGE else GOAL
    print(f"{rows} rows, {a.rounds} rounds, medians")
    for name, part in (("wall", 0), ("processor", 1)):
        copy, whole_run = ratios(part)
        print(f"CopyMonth / sqlite3, {name}: {copy}{f' (goal {goal})' if part == 0 else ''}, with the starts {whole_run}")


main()
