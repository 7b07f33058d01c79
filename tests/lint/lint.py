#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Rules of this tree that no compiler guards.

usage: lint.py RULE ROOT     prints "file:line: what is wrong" for each finding; exit 0 none, 1 some
       lint.py --rules       names the rules

Each rule is one short function from a tree to its findings. Exceptions stand in allowed.txt beside this file, each
with its reason; one that is no longer needed is a finding itself, so that the list can only shrink.
"""
import os
import re
import sys
from pathlib import Path

# What a folder may include, itself aside. Knowledge points inward: the windows know the screens, never the reverse.
CORE_ROOMS = ("core/basic", "core/public", "core/store", "core/forms", "core/platform", "core/report")
CORE = ("core", *CORE_ROOMS)
SCREENS = ("parties", "lists", "files", "upkeep")
MAY_INCLUDE = {
    "core/basic": (),
    "core/public": ("core/basic",),
    "core/store": ("core/basic",),
    "core/forms": ("core/basic",),
    "core/platform": ("core/basic", "core/forms"),
    "core/report": ("core/basic",),
    "core": CORE_ROOMS,
    "parties": CORE,
    "lists": (*CORE, "parties"),
    "files": (*CORE, "lists"),
    "upkeep": (*CORE, "parties"),
    "app": (*CORE, *SCREENS),
    "qt": (*CORE, *SCREENS, "app"),
    "tools": (*CORE, *SCREENS),
    "bench": (*CORE, *SCREENS, "app", "qt", "tests"),
}
# Modules that keep their place in core/ for their names' sake and are built into a room's library.
ROOM_OF_MODULE = {"core/mdlPublic": "core/public", "core/mdlEncriptDecript": "core/public"}
# The folders that may know Qt's windows. tests/lint only compiles the headers of the others.
WINDOW_FOLDERS = ("qt", "tests/qt", "tests/player", "tests/lint", "bench")
WINDOWLESS_MODULES = ("Core", "Test")

MAX_LINES = {".h": 300, ".cpp": 500}
MAX_FUNCTION = {"tests": 100, "": 60}

LOCALE = re.compile(
    r"\b(QLocale|QCollator|localeAwareCompare|toLocal8Bit|fromLocal8Bit|setlocale|std::locale|std::to_string"
    r"|std::sto[ild]+|ato[fil]|strto[dl]+|is(?:alpha|digit|space|upper|lower)|to(?:upper|lower))\b"
    r"|(?:\.|\bQChar::)(?:isDigit|isNumber|isLetterOrNumber|digitValue)(?=\()")
LOCALE_ARGUMENT = re.compile(r"%L\d")
STRING_CONNECT = re.compile(r"\b(SIGNAL|SLOT)\s*\(")
# A reader can follow neither a path of somebody's machine nor a chapter of a paper that isn't in this repository.
# The brackets around single letters keep this line from finding itself.
BEYOND_REACH = re.compile(
    r"(?<![\w.:/~*}])/(work|root|tmp)/|\b[Pp]art \d+\.\d|\bspecific[a]tion\b|\bspec\.m[d]\b"
    r"|\b[Ii]ssue #?\d|\bTOD[O]\b|\bFIXM[E]\b")
INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<(\w+(?:/[\w.]+)*)>)')


def comments_and_texts_blanked(text):
    """The code with comments and literals blanked out, lines kept."""
    token = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:[^"\\\n]|\\.)*"|\'(?:[^\'\\\n]|\\.)+\'', re.S)
    return token.sub(lambda m: re.sub(r"[^\n]", " ", m.group()), text)


class Tree:
    """The files under a root that belong to the repository; build folders and hidden ones don't."""

    def __init__(self, root):
        self.root = Path(root)
        self.paths = sorted(p for p in self._walk(self.root) if p.is_file())

    def _walk(self, folder):
        for path in folder.iterdir():
            skipped = path.name.startswith(".") and path.name not in (".ci", ".clang-tidy", ".clang-format")
            if skipped or (folder == self.root and path.name.startswith("build")) or path.name == "__pycache__":
                continue
            if path.is_dir() and not path.is_symlink():
                yield from self._walk(path)
            else:
                yield path

    def files(self, *suffixes):
        for path in self.paths:
            if not suffixes or path.suffix in suffixes:
                yield path.relative_to(self.root).as_posix(), path.read_text(encoding="utf-8", errors="replace")

    def exists(self, name):
        return (self.root / name).exists()


def room(name):
    """The folder of MAY_INCLUDE that a file lies in: core/basic, core, parties…; tests/X for its tests. A folder that
    the table lacks is its own room and may include nothing else."""
    if name.rsplit(".", 1)[0] in ROOM_OF_MODULE:
        return ROOM_OF_MODULE[name.rsplit(".", 1)[0]]
    parts = name.split("/")[:-1]
    prefix = ""
    if parts and parts[0] == "tests":
        prefix, parts = "tests/", parts[1:]
    for length in (2, 1):
        folder = "/".join(parts[:length])
        if folder in MAY_INCLUDE:
            return prefix + folder
    return (prefix + (parts or [""])[0]).rstrip("/")


def may_include(here, there):
    if here == there or here.startswith("tests") and there.startswith("tests"):
        return True
    if here.startswith("tests/") and here[6:] in MAY_INCLUDE:
        return there == here[6:] or there in MAY_INCLUDE[here[6:]]
    if here.startswith("tests"):
        return True
    allowed = MAY_INCLUDE.get(here, ())
    return there in allowed or there.startswith("tests/") and "tests" in allowed


def layers(tree):
    for name, text in tree.files(".h", ".cpp"):
        for number, line in enumerate(text.splitlines(), 1):
            included = (INCLUDE.match(line) or [None, None])[1]
            if not included:
                continue
            if not tree.exists(included):
                if "/" not in included and not included.endswith(".moc"):
                    yield name, number, f"write the include from the root: {included}"
            elif not may_include(room(name), room(included)):
                yield name, number, f"{room(name)} may not know {room(included)}"


def toolkit(tree):
    for name, text in tree.files(".h", ".cpp", ".txt"):
        if name.startswith(tuple(folder + "/" for folder in WINDOW_FOLDERS)):
            continue
        pattern = r"^\s*#\s*include\s+<Qt(\w+)/" if not name.endswith(".txt") else r"\bQt6::(\w+)"
        for number, line in enumerate(text.splitlines(), 1):
            for module in re.findall(pattern, line):
                if module not in WINDOWLESS_MODULES:
                    yield name, number, f"Qt {module} below the window side"


def locale(tree):
    for name, text in tree.files(".h", ".cpp"):
        if name.startswith(("core/", *(folder + "/" for folder in SCREENS))):
            code = comments_and_texts_blanked(text).splitlines()
            for number, (line, bare) in enumerate(zip(text.splitlines(), code), 1):
                for match in (*LOCALE.finditer(bare), *LOCALE_ARGUMENT.finditer(line)):
                    yield name, number, f"{match.group().strip('.')} follows a locale or Unicode's idea of a digit"


def connects(tree):
    for name, text in tree.files(".h", ".cpp"):
        for number, line in enumerate(comments_and_texts_blanked(text).splitlines(), 1):
            if STRING_CONNECT.search(line):
                yield name, number, "connect by pointer, so that the compiler sees both ends"


def words(tree):
    for name, text in tree.files():
        if name == "LICENSE" or Path(name).suffix in (".png", ".mdb", ".gz"):
            continue
        for number, line in enumerate(text.splitlines(), 1):
            match = BEYOND_REACH.search(line)
            if match:
                yield name, number, f"'{match.group()}' leads out of the repository, or is a note to oneself"


def sizes(tree):
    for name, text in tree.files(".h", ".cpp"):
        lines = text.splitlines()
        limit = MAX_LINES[Path(name).suffix]
        if len(lines) > limit:
            yield name, len(lines), f"{len(lines)} lines, at most {limit}: is it one idea?"
        limit = MAX_FUNCTION["tests" if name.startswith(("tests/", "bench/")) else ""]
        start = None
        for number, line in enumerate(lines, 1):
            if line == "{":
                start = number
            elif line.startswith("}") and start:
                if number - start - 1 > limit:
                    yield name, start, f"a function of {number - start - 1} lines, at most {limit}"
                start = None


def heads(tree):
    spdx = "SPDX-License-Identifier: GPL-3.0-or-later"
    for name, text in tree.files(".h", ".cpp", ".py", ".sh"):
        if spdx not in "\n".join(text.splitlines()[:2]):
            yield name, 1, "begins with its licence line"
        if name.endswith(".h") and not re.search(r"^#pragma once$", text, re.M):
            yield name, 1, "lacks #pragma once"


def unbuilt(tree):
    """A source that no list names, or a list that no other leads to, is dead, or a test that never runs."""
    lists = {Path(name).parent: text for name, text in tree.files(".txt") if name.endswith("CMakeLists.txt")}
    reached, waiting = set(), [Path(".")]
    while waiting:
        folder = waiting.pop()
        reached.add(folder)
        waiting += [folder / below for below in re.findall(r"^\s*add_subdirectory\(([\w./-]+)", lists.get(folder, ""), re.M)]
    for folder in sorted(lists.keys() - reached):
        yield f"{folder}/CMakeLists.txt", 1, "no add_subdirectory leads here"
    for name, _ in tree.files(".cpp"):
        if not any(re.search(rf"(?<![\w./-]){re.escape(os.path.relpath(name, folder))}(?![\w.])", text)
                   for folder, text in lists.items()):
            yield name, 1, "no CMakeLists.txt names it"


RULES = {rule.__name__: rule for rule in (layers, toolkit, locale, connects, words, sizes, heads, unbuilt)}


def read_allowed(path):
    """Lines "RULE FILE reason…": {(rule, file): reason}."""
    allowed = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            rule, name, reason = line.split(None, 2)
            allowed[rule, name] = reason
    return allowed


def check(rule, root, allowed):
    used = set()
    for name, number, finding in RULES[rule](Tree(root)):
        if (rule, name) in allowed:
            used.add((rule, name))
        else:
            yield f"{name}:{number}: {finding}"
    for key in allowed:
        if key[0] == rule and key not in used:
            yield f"tests/lint/allowed.txt:1: {key[1]} no longer needs its exception from {rule}"


def main(arguments):
    if arguments == ["--rules"]:
        print("\n".join(RULES))
        return 0
    if len(arguments) != 2 or arguments[0] not in RULES:
        print(__doc__, file=sys.stderr)
        return 2
    findings = list(check(*arguments, read_allowed(Path(__file__).with_name("allowed.txt"))))
    print("\n".join(findings) if findings else f"{arguments[0]}: nothing found")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
