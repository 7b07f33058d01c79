#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""tidy.py looks again at what changed and at nothing else, played with a made-up clang-tidy and ninja."""
import json
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

# Notes each source it is asked for; finds a fault where the source or a header beside it says so.
CLANG_TIDY = """#!/bin/bash
[ "$1" = --version ] && { echo 14; exit; }
file="${@: -1}"
echo "$(basename "$file")" >>"$(dirname "$0")/asked"
! grep -q FAULT "$file" "$(dirname "$file")"/*.h
"""
NINJA = """#!/bin/bash
for name in one two; do
    printf '%s.o: #deps 2, deps mtime 1 (VALID)\\n    ../core/%s.cpp\\n    ../core/%s.h\\n\\n' $name $name $name
done
"""


class TidyTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.root = Path(self.folder.name).resolve() / "a tree"
        (self.root / "tests/lint").mkdir(parents=True)
        (self.root / "core").mkdir()
        (self.root / "out").mkdir()
        shutil.copy(Path(__file__).with_name("tidy.py"), self.root / "tests/lint")
        (self.root / ".clang-tidy").write_text("Checks: '*'\n")
        for name, text in (("clang-tidy", CLANG_TIDY), ("ninja", NINJA)):
            (self.root / name).write_text(text)
            (self.root / name).chmod(0o755)
        for name in ("one", "two"):
            (self.root / f"core/{name}.h").write_text("int x;\n")
            (self.root / f"core/{name}.cpp").write_text("int y;\n")
        self.write_commands("")

    def write_commands(self, flags):
        (self.root / "out/compile_commands.json").write_text(json.dumps([
            {"file": str(self.root / f"core/{name}.cpp"), "command": f"c++ {flags} -o {name}.o -c {name}.cpp"}
            for name in ("one", "two")]))

    def tidy(self):
        """The exit status and the sources that clang-tidy was asked for."""
        asked = self.root / "asked"
        asked.write_text("")
        done = subprocess.run([sys.executable, "-B", self.root / "tests/lint/tidy.py", "--tidy", self.root / "clang-tidy",
                               "--ninja", self.root / "ninja", self.root / "out", "core"],
                              capture_output=True, text=True, check=False)
        return done.returncode, asked.read_text().split()

    def test_a_clean_tree_is_looked_at_once(self):
        self.assertEqual(self.tidy(), (0, ["one.cpp", "two.cpp"]))
        self.assertEqual(self.tidy(), (0, []))

    def test_a_changed_source_is_looked_at_again_alone(self):
        self.tidy()
        (self.root / "core/two.cpp").write_text("int z;\n")
        self.assertEqual(self.tidy(), (0, ["two.cpp"]))

    def test_a_changed_header_brings_back_those_that_include_it(self):
        self.tidy()
        (self.root / "core/one.h").write_text("int FAULT;\n")
        self.assertEqual(self.tidy(), (1, ["one.cpp"]))

    def test_a_finding_is_reported_until_it_is_mended(self):
        (self.root / "core/one.cpp").write_text("int FAULT;\n")
        self.assertEqual(self.tidy()[0], 1)
        self.assertEqual(self.tidy(), (1, ["one.cpp"]))
        (self.root / "core/one.cpp").write_text("int y;\n")
        self.assertEqual(self.tidy(), (0, ["one.cpp"]))

    def test_new_checks_and_new_flags_bring_back_all(self):
        self.tidy()
        (self.root / ".clang-tidy").write_text("Checks: 'bugprone-*'\n")
        self.assertEqual(self.tidy(), (0, ["one.cpp", "two.cpp"]))
        self.write_commands("-O2")
        self.assertEqual(self.tidy(), (0, ["one.cpp", "two.cpp"]))

    def test_a_source_whose_headers_are_unknown_is_always_looked_at(self):
        (self.root / "ninja").write_text("#!/bin/bash\n")
        self.tidy()
        self.assertEqual(self.tidy(), (0, ["one.cpp", "two.cpp"]))


if __name__ == "__main__":
    unittest.main()
