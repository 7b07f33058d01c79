#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Each rule of lint.py finds the fault it is there for, and lets the like of it pass that is none."""
import tempfile
import unittest
from pathlib import Path

import lint

LICENCE = "// SPDX-License-Identifier: GPL-3.0-or-later\n"


class LintTest(unittest.TestCase):
    def findings(self, rule, files, allowed=None):
        with tempfile.TemporaryDirectory() as root:
            for name, text in files.items():
                path = Path(root, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return list(lint.check(rule, root, allowed or {}))

    def assert_one(self, rule, files, start):
        found = self.findings(rule, files)
        self.assertEqual(len(found), 1, found)
        self.assertTrue(found[0].startswith(start), found)

    def includes(self, here, there):
        return {here: f'#include "{there}"\n', there: "#pragma once\n"}

    def test_a_screen_may_not_include_the_window_side(self):
        self.assert_one("layers", self.includes("parties/a.cpp", "qt/b.h"), "parties/a.cpp:1: parties may not know qt")

    def test_basic_knows_no_other_room_of_the_core(self):
        self.assert_one("layers", self.includes("core/basic/a.h", "core/store/b.h"), "core/basic/a.h:1:")
        self.assert_one("layers", self.includes("core/store/a.h", "core/forms/b.h"), "core/store/a.h:1:")
        self.assert_one("layers", self.includes("core/forms/a.h", "core/platform/b.h"), "core/forms/a.h:1:")
        self.assert_one("layers", self.includes("core/platform/a.h", "core/b.h"), "core/platform/a.h:1:")

    def test_subsystems_know_each_other_in_three_directions_only(self):
        allowed = {("lists", "parties"), ("files", "lists"), ("upkeep", "parties")}
        for here in lint.SCREENS:
            for there in lint.SCREENS:
                found = self.findings("layers", self.includes(f"{here}/a.cpp", f"{there}/b.h"))
                self.assertEqual(not found, here == there or (here, there) in allowed, (here, there))

    def test_every_room_may_know_the_core_and_the_windows_know_all(self):
        for there in (*lint.CORE, *lint.SCREENS):
            self.assertEqual(self.findings("layers", self.includes("qt/layouts/a.cpp", f"{there}/b.h")), [])
        self.assertEqual(self.findings("layers", self.includes("files/a.cpp", "core/store/b.h")), [])

    def test_a_test_knows_what_its_folder_knows(self):
        self.assertEqual(self.findings("layers", self.includes("tests/lists/a.cpp", "parties/b.h")), [])
        self.assertEqual(self.findings("layers", self.includes("tests/lists/a.cpp", "tests/support/b.h")), [])
        self.assertEqual(self.findings("layers", self.includes("tests/player/a.cpp", "qt/b.h")), [])
        self.assert_one("layers", self.includes("tests/lists/a.cpp", "files/b.h"), "tests/lists/a.cpp:1:")

    def test_the_program_knows_no_test(self):
        self.assert_one("layers", self.includes("tools/a.cpp", "tests/support/b.h"), "tools/a.cpp:1:")

    def test_an_include_is_written_from_the_root(self):
        self.assert_one("layers", {"lists/a.cpp": '#include "b.h"\n', "lists/b.h": ""}, "lists/a.cpp:1:")

    def test_no_window_header_below_the_window_side(self):
        self.assert_one("toolkit", {"core/a.h": "#include <QtWidgets/QWidget>\n"}, "core/a.h:1:")
        self.assert_one("toolkit", {"files/CMakeLists.txt": "zrv_library(x\n LINKS Qt6::Gui)\n"}, "files/CMakeLists.txt:2:")
        self.assertEqual(self.findings("toolkit", {"qt/a.h": "#include <QtWidgets/QWidget>\n",
                                                   "core/a.h": "#include <QtCore/qglobal.h>\n"}), [])

    def test_nothing_at_the_core_follows_a_locale(self):
        for code in ("QLocale().toString(1)", "c.isDigit()", "std::stoi(s)", 'u"%L1"_s.arg(n)', "isdigit(c)"):
            self.assert_one("locale", {"lists/a.cpp": f"x = {code};\n"}, "lists/a.cpp:1:")
        self.assertEqual(self.findings("locale", {"lists/a.cpp": "// QLocale would group digits.\nx = toUpper(isDigit(c));\n",
                                                  "qt/a.cpp": "QLocale l;\n"}), [])

    def test_connects_are_by_pointer(self):
        self.assert_one("connects", {"qt/a.cpp": "connect(a, SIGNAL(x()), b, f);\n"}, "qt/a.cpp:1:")
        self.assertEqual(self.findings("connects", {"qt/a.cpp": "// no SIGNAL(x())\nconnect(a, &A::x, b, f);\n"}), [])

    def test_words_that_lead_out_of_the_repository_are_found(self):
        for word in ("/ro" + "ot/x", "Part" + " 1.3", "TO" + "DO later", "spec" + "ification", "iss" + "ue 7"):
            self.assert_one("words", {"core/a.h": f"// see {word}\n"}, "core/a.h:1:")
        self.assertEqual(self.findings("words", {"README.md": "build/dev/bin, part of it, special, /usr/share\n"}), [])

    def test_long_files_headers_and_functions_are_found(self):
        self.assert_one("sizes", {"core/a.cpp": "x;\n" * 501}, "core/a.cpp:501:")
        self.assert_one("sizes", {"core/a.h": "x;\n" * 301}, "core/a.h:301:")
        self.assert_one("sizes", {"core/a.cpp": "void f()\n{\n" + "    x;\n" * 61 + "}\n"}, "core/a.cpp:2:")
        self.assertEqual(self.findings("sizes", {"core/a.cpp": "void f()\n{\n" + "    x;\n" * 60 + "}\n",
                                                 "core/b.cpp": "x;\n" * 500}), [])

    def test_a_file_begins_with_its_licence_and_a_header_guards_itself(self):
        self.assert_one("heads", {"core/a.cpp": "int x;\n"}, "core/a.cpp:1:")
        self.assert_one("heads", {"core/a.h": LICENCE}, "core/a.h:1: lacks")
        self.assertEqual(self.findings("heads", {"core/a.h": LICENCE + "#pragma once\n"}), [])

    def test_a_source_that_no_list_names_is_found(self):
        lists = {"CMakeLists.txt": "add_subdirectory(core)\n",
                 "core/CMakeLists.txt": "add_subdirectory(x)\nzrv_library(x SOURCES a.cpp sub/c.cpp)\n",
                 "core/x/CMakeLists.txt": "zrv_library(y SOURCES ../d.cpp)\n"}
        self.assertEqual(self.findings("unbuilt", {**lists, "core/a.cpp": "", "core/sub/c.cpp": "", "core/d.cpp": ""}), [])
        self.assert_one("unbuilt", {**lists, "core/b.cpp": ""}, "core/b.cpp:1:")
        self.assert_one("unbuilt", {"CMakeLists.txt": "x(aa.cpp)\n", "a.cpp": ""}, "a.cpp:1:")

    def test_a_list_that_no_other_leads_to_is_found(self):
        lists = {"CMakeLists.txt": "add_subdirectory(core/x)\n# add_subdirectory(tests)\n", "core/x/CMakeLists.txt": ""}
        self.assertEqual(self.findings("unbuilt", lists), [])
        self.assert_one("unbuilt", {**lists, "tests/CMakeLists.txt": ""}, "tests/CMakeLists.txt:1:")

    def test_an_exception_holds_while_it_is_needed_and_is_found_after(self):
        allowed = {("sizes", "core/a.cpp"): "a table"}
        self.assertEqual(self.findings("sizes", {"core/a.cpp": "x;\n" * 501}, allowed), [])
        found = self.findings("sizes", {"core/a.cpp": "x;\n"}, allowed)
        self.assertEqual(len(found), 1, found)
        self.assertIn("no longer needs", found[0])

    def test_build_folders_and_hidden_ones_are_not_looked_at(self):
        self.assertEqual(self.findings("words", {"build/x.h": "TO" + "DO\n", ".git/x": "TO" + "DO\n"}), [])


if __name__ == "__main__":
    unittest.main()
