#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long does the check of a WH file take, as a part of what iconv needs to turn the file into UTF-8?

usage: run.py [--build DIR] [--work DIR] [--lines N] [--rounds R]

Makes a good file of N lines (1000000: 440 MB) and one in which every payee has an error in the work folder, kept there
for the next run, and lets the programs work in turn, R rounds: iconv to nowhere; bench_check with each kind of
instructions; zrvcheck on the bad file, its lines to a file. Prints the ratios of the medians of the wall clock and the
peak memory. Quote the ratios only.
"""
import argparse
import os
import statistics
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
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


def run(command, output=subprocess.PIPE, statuses=(0,)):
    """Wall seconds, and the peak memory in MB as the system tells it."""
    begin = time.perf_counter()
    child = subprocess.Popen(command, stdout=output)
    if output == subprocess.PIPE:
        child.stdout.read()
    _, status, usage = os.wait4(child.pid, 0)
    wall = time.perf_counter() - begin
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode not in statuses:
        sys.exit(f"{command} ended with {child.returncode}")
    return wall, usage.ru_maxrss / 1024


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("--build", default=ROOT / "build/bench", type=Path)
    ap.add_argument("--work", type=Path)
    ap.add_argument("--lines", type=int, default=1_000_000)
    ap.add_argument("--rounds", type=int, default=7)
    a = ap.parse_args()
    work = (a.work or a.build / "check") / str(a.lines)
    (work / "bad").mkdir(parents=True, exist_ok=True)
    good, bad = work / "WH138902.TXT", work / "bad/WH138902.TXT"
    make_file(good, a.lines, "12")
    make_file(bad, a.lines, "1x")

    bench, zrvcheck = a.build / "bin/bench_check", a.build / "bin/zrvcheck"
    with (work / "errors").open("wb") as errors, open(os.devnull, "wb") as nowhere:
        ways = {"iconv": lambda: run(["iconv", "-f", "UTF-16", "-t", "UTF-8", good], nowhere)}
        for name in ("avx2", "sse2", "plain", "none"):
            if subprocess.run([bench, name, good], stdout=nowhere).returncode == 0:
                ways[name] = lambda name=name: run([bench, name, good])
        ways["zrvcheck, good"] = lambda: run([zrvcheck, "--summary", good])
        ways["zrvcheck, every line bad"] = lambda: (errors.seek(0), run([zrvcheck, bad], errors, (1,)))[1]
        measured = {name: [] for name in ways}
        for _ in range(a.rounds):
            for name, way in ways.items():
                measured[name].append(way())
    reference = statistics.median(wall for wall, _ in measured["iconv"])
    for name, rounds in measured.items():
        wall = statistics.median(wall for wall, _ in rounds)
        print(f"{name:26} wall / iconv {wall / reference:6.2f}   peak {max(peak for _, peak in rounds):7.1f} MB")


if __name__ == "__main__":
    main()
