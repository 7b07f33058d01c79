#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long does the check of a WH file take, as a part of what iconv needs to turn the file into UTF-8?

usage: run.py [--build DIR] [--work DIR] [--lines N] [--rounds R]

Makes in the work folder, kept there for the next run, a good file of N lines (1000000: 440 MB), one in which every payee
has an error, and a good one of a fiftieth of N lines, whose report is told in full. Then the programs work in turn, R
rounds: iconv and cat to nowhere; bench_check with each kind of instructions on one core, and with the best on two;
zrvcheck as it is started by hand; its errors of the bad file to a file; its report of the short file to a file, and cp of
that report. Prints the medians as ratios to iconv, to cat, and to cp for the report, by the wall clock and by the
processor, and the peak memory. On a machine that others use look at the processor's. Quote the ratios only.
"""
import argparse
import statistics
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
from timed import run as timed_run  # noqa: E402

PAYER = ("123456789012,01,1389,02,1,,علي,رضايي,مرکزي,1234567891,1234567890,02188776655,تهران,,حسن,کريمي,مدير,,,,,"
         "KCDk087lIDEuMS4zOCAtIDg5LzAzLzAzICk=")
NAMES = ["مريم", "زهرا", "محمد", "علي رضا", "حسين", "فاطمه"]
FAMILIES = ["احمدي", "کريمي", "موسوي نژاد", "رضايي", "حسيني"]


def national_code(number):
    nine = f"{number:09}"
    rest = sum(int(digit) * weight for digit, weight in zip(nine, range(10, 1, -1))) % 11
    return nine + str(rest if rest < 2 else 11 - rest)


def payee(i, sabege="12"):
    amounts = [str(1_000_000 + i * 7919 % 98_000_000) for _ in range(18)]
    return ",".join([national_code(100_000_000 + i * 37), NAMES[i % 6], FAMILIES[i % 5], NAMES[i % 4], "1",
                     str(1_000_000_000 + i), "کارشناس", sabege, "4", "3", "1", "1", "", "1", "", str(10_000_000 + i)] + amounts)


def make_file(path, lines, sabege):
    if path.exists():
        return
    share = "".join(payee(i, sabege) + "\r\n" for i in range(1000)).encode("utf-16-le")
    with path.open("wb") as out:
        out.write(b"\xff\xfe" + (PAYER + "\r\n").encode("utf-16-le"))
        for _ in range(lines // 1000):
            out.write(share)


def run(command, output=subprocess.DEVNULL, statuses=(0,)):
    return timed_run(command, output, statuses)


def ways(build, work, lines):
    """What is measured: name, what it is held against, what it does."""
    good, bad, short = work / "WH138902.TXT", work / "bad/WH138902.TXT", work / "short/WH138902.TXT"
    for path, count, sabege in ((good, lines, "12"), (bad, lines, "1x"), (short, lines // 50, "12")):
        path.parent.mkdir(parents=True, exist_ok=True)
        make_file(path, count, sabege)
    bench, zrvcheck, report = build / "bin/bench_check", build / "bin/zrvcheck", work / "report"

    def errors():
        with (work / "errors").open("wb") as out:
            return run([zrvcheck, bad], out, (1,))

    yield "iconv", "iconv", lambda: run(["iconv", "-f", "UTF-16", "-t", "UTF-8", good])
    yield "cat", "iconv", lambda: run(["cat", good])
    for name in ("avx2", "sse2", "plain", "none"):
        if subprocess.run([bench, name, "1", short], stdout=subprocess.DEVNULL).returncode == 0:
            yield f"{name}, one core", "iconv", lambda name=name: run([bench, name, "1", good])
    yield "best, two cores", "iconv", lambda: run([bench, "best", "2", good])
    yield "the same", "cat", lambda: run([bench, "best", "2", good])
    yield "zrvcheck", "iconv", lambda: run([zrvcheck, "--summary", good])
    yield "zrvcheck, every line bad", "iconv", errors
    yield "cp of a report", "cp of a report", lambda: run(["cp", report, work / "copy"])
    yield "zrvcheck --report", "cp of a report", lambda: run([zrvcheck, "--report", report, short])
    run([zrvcheck, "--report", report, short])


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--lines", type=int, default=1_000_000)
    ap.add_argument("--rounds", type=int, default=7)
    a = ap.parse_args()
    work = (a.work or a.build / "check") / str(a.lines)
    measured = list(ways(a.build, work, a.lines))
    rounds = {name: [] for name, _, _ in measured}
    for _ in range(a.rounds):
        for name, _, way in measured:
            rounds[name].append(way())
    middle = {name: [statistics.median(column) for column in zip(*taken)] for name, taken in rounds.items()}
    print(f"{'':26} {'wall':>6} {'cpu':>6}  {'peak MB':>8}")
    for name, against, _ in measured:
        wall, cpu = (middle[name][i] / middle[against][i] for i in range(2))
        peak = max(one[2] for one in rounds[name])
        print(f"{name:26} {wall:6.2f} {cpu:6.2f}  {peak:8.1f}  of {against}")


if __name__ == "__main__":
    main()
