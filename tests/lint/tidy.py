#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs clang-tidy over the sources of a build, those that changed since they were last found clean.

usage: tidy.py --tidy CLANG_TIDY --ninja NINJA [--jobs N] BUILD_FOLDER [FOLDER...]

FOLDERs are below the source root (default: all of it). A source counts as unchanged while its own bytes, those of the
headers it includes from this tree, its compile command, .clang-tidy and clang-tidy's version are what they were; the
build must be up to date, for ninja knows the headers. Exit 0 clean, 1 findings.
"""
import argparse
import concurrent.futures
import functools
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


@functools.lru_cache(maxsize=None)
def digest_of_file(path):
    return hashlib.sha256(Path(path).read_bytes()).hexdigest()


def included_files(ninja, build, root):
    """{object: [files of this tree that it was compiled from]}, as ninja recorded them."""
    included, files = {}, []
    for line in output_of(ninja, "-C", str(build), "-t", "deps").splitlines():
        if line.startswith("    "):
            path = os.path.normpath(os.path.join(build, line.strip()))
            if path.startswith(f"{root}/") and os.path.exists(path):
                files.append(path)
        elif ": #deps" in line:
            files = included.setdefault(line.split(": #deps")[0], [])
    return included


def commands_for_clang(build, stamps):
    """The build's commands without precompiled headers, which clang can't read; kept among the stamps."""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    for entry in commands:
        entry["command"] = re.sub(r" (-Winvalid-pch|-include \S+/cmake_pch\.hxx)(?= )", "", entry["command"])
    (stamps / "compile_commands.json").write_text(json.dumps(commands), encoding="utf-8")
    return commands


def checked_sources(commands, root, folders):
    for entry in commands:
        path = os.path.relpath(entry["file"], root)
        inside = not path.startswith(("..", "build" + os.sep)) and not path.endswith("cmake_pch.hxx.cxx")
        if inside and (not folders or any(path.startswith(folder.rstrip("/") + "/") for folder in folders)):
            yield path, entry


def stamp_of(entry, included, configuration):
    """What the verdict on a source depends on; None where ninja doesn't know its headers."""
    arguments = shlex.split(entry["command"])
    files = included.get(arguments[arguments.index("-o") + 1])
    if not files:
        return None
    whole = hashlib.sha256(configuration.encode())
    whole.update(entry["command"].encode())
    for path in sorted({entry["file"], *files}):
        whole.update(digest_of_file(path).encode())
    return whole.hexdigest()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--tidy", required=True)
    parser.add_argument("--ninja", required=True)
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("build", type=Path)
    parser.add_argument("folders", nargs="*")
    arguments = parser.parse_args()
    root = Path(__file__).resolve().parents[2]
    build = arguments.build.resolve()
    stamps = build / "tidy"
    stamps.mkdir(exist_ok=True)
    configuration = (root / ".clang-tidy").read_text(encoding="utf-8") + output_of(arguments.tidy, "--version")
    included = included_files(arguments.ninja, build, root)

    def check(source):
        path, entry = source
        stamp = stamps / re.sub(r"\W", "_", path)
        wanted = stamp_of(entry, included, configuration)
        if wanted and stamp.exists() and stamp.read_text() == wanted:
            return path, None
        done = subprocess.run([arguments.tidy, "-p", str(stamps), "--quiet", f"--header-filter=^{re.escape(str(root))}/",
                               entry["file"]], capture_output=True, text=True, check=False)
        if done.returncode == 0:
            if wanted:
                stamp.write_text(wanted)
            return path, None
        return path, done.stdout or done.stderr or f"clang-tidy ended with {done.returncode}"

    sources = list(checked_sources(commands_for_clang(build, stamps), root, arguments.folders))
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        for path, words in pool.map(check, sources):
            if words:
                failed += 1
                print(f"--- {path}\n{words}", flush=True)
    print(f"tidy: {len(sources)} sources, {failed} with findings")
    return 1 if failed or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
