#!/usr/bin/python3 -B
"""The commands of the habits, tools/check and tools/pre_commit, on small trees with a fault.

Usage: habits_test.py, with the folders of sources and build in HORAVEX_TEST_SOURCE_DIR and
HORAVEX_TEST_BINARY_DIR
"""

import json
import os
import shutil
import subprocess
import tempfile
import unittest

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]
WRONG = "leng" + "th"[::-1]  # a word that this file does not misspell itself
RULES = ("layers", "header_names", "colours", "state", "wording", "text_entries")


class Habits(unittest.TestCase):
    """A tree with the tools, rules that nothing breaks, and a source without fault."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = os.path.join(folder.name, "tree")
        shutil.copytree(os.path.join(SOURCE, "tools", "checks"), self.path("tools/checks"))
        for name in ("tools/check", "tools/pre_commit", ".clang-format", ".clang-tidy"):
            shutil.copy(os.path.join(SOURCE, name), self.path(name))
        for rule in RULES:
            self.write_rule(rule, "exit 0")
        self.write("src/a.h", "#pragma once\n\nconstexpr int kSize = 1;\n")
        self.write("src/a.cpp", '#include "a.h"\n\nint Size() {\n    return kSize;\n}\n')
        self.write("build/release/compile_commands.json", json.dumps(
            [{"directory": self.tree, "file": self.path("src/a.cpp"),
              "command": f"c++ -std=c++20 -I{self.path('src')} -c {self.path('src/a.cpp')}"}]))

    def path(self, name):
        return os.path.join(self.tree, name)

    def write(self, name, text):
        os.makedirs(os.path.dirname(self.path(name)), exist_ok=True)
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text)

    def write_rule(self, rule, line):
        self.write(f"tests/checks/{rule}.sh", f"#!/bin/sh\n{line}\n")
        os.chmod(self.path(f"tests/checks/{rule}.sh"), 0o755)

    def run_in_tree(self, *words):
        return subprocess.run(words, cwd=self.tree, capture_output=True, text=True, check=False)

    def check(self, *words):
        return self.run_in_tree("tools/check", *words)

    def expect_fault(self, part, *words):
        done = self.check(*words)
        self.assertEqual(done.returncode, 1)
        self.assertIn(part, done.stdout + done.stderr)

    def expect_none(self, *words):
        done = self.check(*words)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_format_of_all_files_and_of_some(self):
        self.expect_none("format")
        self.write("src/b.cpp", "int  Size();\n")
        self.expect_fault("src/b.cpp:1", "format")
        self.expect_none("format", "src/a.cpp")

    def test_spelling_of_english(self):
        self.expect_none("spelling")
        self.write("docs/a.md", f"It has the {WRONG} of prefered things.\n")
        self.expect_fault(f"{WRONG} ==>", "spelling")
        self.write("docs/a.md", "It has prefered things.\n")
        self.expect_none("spelling")

    def test_spelling_of_other_languages_is_theirs(self):
        self.write("data/help/German/a.html", f"{WRONG}\n")
        self.expect_none("spelling")

    def test_each_rule_is_asked(self):
        self.expect_none("rules")
        for rule in RULES:
            self.write_rule(rule, f"echo {rule} is broken; exit 1")
            self.expect_fault(f"{rule} is broken", "rules")
            self.write_rule(rule, "exit 0")

    def test_header_has_to_compile_by_itself(self):
        self.expect_none("includes", "src/a.h")
        self.write("src/b.h", "#pragma once\n\nstd::string Name();\n")
        self.expect_fault("src/b.h:3", "includes", "src/b.h")

    def test_tidy_reads_the_command_of_a_source(self):
        self.expect_none("tidy", "src/a.cpp")
        self.write("src/a.cpp", '#include "a.h"\n\nint* Place() {\n    return 0;\n}\n')
        self.expect_fault("modernize-use-nullptr", "tidy", "src/a.cpp")

    def test_cppcheck_follows_an_index_behind_the_end(self):
        self.expect_none("cppcheck")
        self.write("src/a.cpp", "int Size() {\n    int sizes[2] = {1, 2};\n    return sizes[2];\n}\n")
        self.expect_fault("arrayIndexOutOfBounds", "cppcheck")
        self.expect_fault("arrayIndexOutOfBounds", "cppcheck")  # what it has found is kept

    def test_cppcheck_looks_again_at_what_includes_a_change(self):
        self.write("src/b.h", "#pragma once\n\nconstexpr int kPlace = 1;\n")
        self.write("src/a.cpp", '#include "b.h"\n\nint Size() {\n    int sizes[2] = {1, 2};\n'
                                "    return sizes[kPlace];\n}\n")
        self.expect_none("cppcheck")
        self.write("src/b.h", "#pragma once\n\nconstexpr int kPlace = 2;\n")
        self.expect_fault("arrayIndexOutOfBounds", "cppcheck")

    def test_unknown_name_shows_what_there_is(self):
        self.assertIn("tools/check NAME", self.check("all").stderr)

    def test_commit_is_refused_for_what_is_staged(self):
        self.run_in_tree("git", "init", "--quiet")
        self.run_in_tree("git", "add", "--all")
        self.assertEqual(self.run_in_tree("tools/pre_commit").returncode, 0)
        self.write("src/a.cpp", "int  Size();\n")
        self.assertEqual(self.run_in_tree("tools/pre_commit").returncode, 0)  # not staged yet
        self.run_in_tree("git", "add", "--all")
        refused = self.run_in_tree("tools/pre_commit")
        self.assertEqual(refused.returncode, 1)
        self.assertIn("src/a.cpp:1", refused.stderr)


if __name__ == "__main__":
    unittest.main()
