#!/usr/bin/python3 -B
"""What tools/coverage takes from its file of explained lines and from a report.

Usage: coverage_test.py, with the folder of sources in HORAVEX_TEST_SOURCE_DIR
"""

import contextlib
import importlib.machinery
import importlib.util
import io
import json
import os
import tempfile
import unittest
from unittest import mock

LOADER = importlib.machinery.SourceFileLoader(
    "coverage", os.path.join(os.environ["HORAVEX_TEST_SOURCE_DIR"], "tools", "coverage"))
coverage = importlib.util.module_from_spec(importlib.util.spec_from_loader("coverage", LOADER))
LOADER.exec_module(coverage)

SOURCE = """int Sign(int a) {
    if (a < 0) {
        return -1;
    }
    return 1;
}
"""
REASON = "# Nobody asks for it.\n"


def lcov(root, *rows):
    """Rows of lines, as "2,5" for the second line run five times."""
    return "\n".join([f"SF:{root}/build/../src/sign.cpp", *(f"DA:{row}" for row in rows), "end_of_record"])


def branches(root, *counts):
    """(true, false) of the one condition of the source, for each place where it is used."""
    return json.dumps({"data": [{"files": [{
        "filename": f"{root}/build/../src/sign.cpp",
        "branches": [[2, 9, 2, 14, *each, 0, 0, 4] for each in counts]}]}]})


class Coverage(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        os.makedirs(os.path.join(folder.name, "src"))
        os.makedirs(os.path.join(folder.name, os.path.dirname(coverage.EXPLAINED)))
        self.root = folder.name
        self.write("src/sign.cpp", SOURCE)
        self.addCleanup(os.chdir, os.getcwd())

    def write(self, path, text):
        with open(os.path.join(self.root, path), "w", encoding="utf-8") as file:
            file.write(text)

    def told(self, explained, *arguments, lines=(), counts=()):
        """(status, what is printed) with these explained lines, where the tests run such lines."""
        self.write(coverage.EXPLAINED, explained)
        reports = {"lcov": lcov(self.root, *lines), "text": branches(self.root, *counts)}
        out = io.StringIO()
        with (mock.patch.object(coverage, "ROOT", self.root), mock.patch.object(coverage, "run_tests"),
              mock.patch.object(coverage, "merge_profiles"),
              mock.patch.object(coverage, "exported", lambda form, *_: reports[form]),
              contextlib.redirect_stdout(out)):
            status = coverage.main(list(arguments))
        return status, out.getvalue()

    def test_all_that_is_run_is_silent(self):
        self.assertEqual(self.told("", lines=["2,5", "3,1", "5,4"], counts=[(1, 4)]), (0, ""))

    def test_lines_and_branches_that_are_not_run_are_told(self):
        self.assertEqual(self.told("", lines=["2,5", "3,0"], counts=[(0, 5)]),
                         (1, "src/sign.cpp:2: branch: if (a < 0) {\nsrc/sign.cpp:3: line: return -1;\n"))

    def test_condition_is_run_wherever_it_is_used(self):
        self.assertEqual(self.told("", counts=[(0, 5), (1, 0)]), (0, ""))

    def test_condition_that_is_never_asked_is_told_by_its_line_alone(self):
        self.assertEqual(self.told("", lines=["2,0"], counts=[(0, 0)]),
                         (1, "src/sign.cpp:2: line: if (a < 0) {\n"))

    def test_explained_ones_are_not(self):
        explained = REASON + "src/sign.cpp branch: if (a < 0) {\nsrc/sign.cpp line: return -1;\n"
        self.assertEqual(self.told(explained, lines=["2,5", "3,0"], counts=[(0, 5)]), (0, ""))

    def test_explained_ones_that_are_run_are_told(self):
        explained = REASON + "src/sign.cpp line: return -1;\n"
        self.assertEqual(self.told(explained, lines=["3,1"]),
                         (1, "src/sign.cpp: line is run: return -1;\n"))

    def test_explained_ones_that_are_gone_are_told_without_a_run(self):
        explained = REASON + "src/sign.cpp line: return -2;\nsrc/gone.cpp line: return;\n"
        self.assertEqual(self.told(explained, "--check"),
                         (1, "src/gone.cpp has no line: return;\nsrc/sign.cpp has no line: return -2;\n"))

    def test_each_wants_a_reason_in_front(self):
        explained = REASON + "src/sign.cpp line: return -1;\n\nsrc/sign.cpp line: return 1;\nsrc/sign.cpp\n"
        status, told = self.told(explained, "--check")
        self.assertEqual(status, 1)
        self.assertIn(":4: no reason\n", told)
        self.assertIn(":5: no entry\n", told)


unittest.main()
