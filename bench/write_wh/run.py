#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long does a month's WH file take, as a part of what the sqlite3 command line needs to export the same rows?

usage: run.py [--build DIR] [--work DIR] [--payees N] [--rounds R]

Makes a sample store of N payees and two months in the work folder (kept there for the next run), then lets the two
programs work in turn, R rounds: `sqlite3 -csv` with the writer's own statement to a file, and bench_write_wh, which
plays the whole run of the screen: both counts, the WK file, the WH file, and the wait for the disk. Prints the medians'
ratio, of the wall clock and of the processor, and the memory beyond the idle program's. Quote the ratios only.
An eighth of a sample's payees have left before the month, so 114300 of them make some 100000 lines.
"""
import argparse
import re
import statistics
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
from timed import run  # noqa: E402

YEAR, MONTH = "1389", "02"
GOALS = {"wall": 0.8, "memory": 32.0}


def statement(store):
    """The writer's statement as its source has it, with the month's values; SQLite can read it as it stands."""
    source = (ROOT / "files/frmCreatTextFiles.cpp").read_text(encoding="utf-8")
    body = re.search(r"QString statement =\s*(.*?)_s \+ whereMonth", source, re.S).group(1)
    tfn = subprocess.run(["sqlite3", store, "SELECT TFN FROM ZRVtbKarfarma"], capture_output=True, text=True, check=True)
    where = (f" WHERE  ZRVtbHogog.TFN = '{tfn.stdout.strip()}' AND ZRVtbHogog.TaxYear = '{YEAR}'"
             f" AND ZRVtbHogog.TaxMonth = '{MONTH}' AND ZRVtbHogog.MelliCode = ZRVtbKarkonan.MelliCode")
    joins = re.findall(r'\{u"(ZRVtbKarkonan\.\w+)", u"(\w+)", u"(\d+)"\}', source)
    # In the order of entry, which is the writer's; it also keeps SQLite from joining the lists with each other first.
    return ("".join(re.findall(r'"([^"]*)"', body)) + where
            + "".join(f" AND {column} = {alias}.SCode AND {alias}.MCode = '{code}'" for column, alias, code in joins)
            + " ORDER BY ZRVtbHogog.rowid;\n")


def peak(cost):
    """MB, as the writer tells them: the system counts this script's memory in, which it began in."""
    return int(re.search(r"^VmHWM:\s*(\d+) kB", cost.told, re.M).group(1)) / 1024


def make_store(zrvstore, folder, payees):
    if not (folder / "DBZorvan.mdb").exists():
        subprocess.run([zrvstore, "sample", folder, "--payees", str(payees), "--months", "2", "--year", YEAR], check=True)
    return folder / "DBZorvan.mdb"


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--payees", type=int, default=114_300)
    ap.add_argument("--rounds", type=int, default=7)
    a = ap.parse_args()
    work = (a.work or a.build / "write_wh") / str(a.payees)
    store = make_store(a.build / "bin/zrvstore", work, a.payees)
    export, csv = work / "export.sql", work / "export.csv"
    export.write_text(statement(store), encoding="utf-8")

    writer = [a.build / "bin/bench_write_wh", work, YEAR, MONTH]
    reference = ["sqlite3", "-csv", store, f".output {csv}", f".read {export}"]
    run(reference)  # both begin with the store in the page cache
    run(writer)
    rounds = [(run(reference), run(writer)) for _ in range(a.rounds)]
    idle = statistics.median(peak(run([writer[0], "--idle", *writer[1:]])) for _ in range(3))

    whole = work / "ERSAL" / (YEAR + MONTH) / f"WH{YEAR}{MONTH}.TXT"
    lines = whole.read_bytes().decode("utf-16").count("\r\n")
    rows = sum(1 for _ in csv.open("rb"))
    if lines != rows + 1:
        sys.exit(f"{lines} lines in the WH file, {rows} rows exported")

    def ratio(part):
        medians = [statistics.median(measured[who][part] for measured in rounds) for who in (0, 1)]
        return medians[1] / medians[0]

    memory = max(peak(writer_run) for _, writer_run in rounds) - idle
    print(f"{rows} payees, {whole.stat().st_size / 1e6:.0f} MB, {a.rounds} rounds, medians")
    print(f"writer / sqlite3 -csv: wall {ratio(0):.2f} (goal {GOALS['wall']}), processor {ratio(1):.2f}")
    print(f"memory beyond the idle program: {memory:.1f} MB (goal {GOALS['memory']})")


main()
