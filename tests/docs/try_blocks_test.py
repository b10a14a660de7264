#!/usr/bin/python3 -B
"""What try_blocks.py says about blocks of all kinds.

Usage: try_blocks_test.py, with the folders of sources and build in HORAVEX_TEST_SOURCE_DIR and
HORAVEX_TEST_BINARY_DIR
"""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from blocks import blocks_of  # noqa: E402
from sandbox import Sandbox  # noqa: E402
from try_blocks import fault_of  # noqa: E402

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]
BUILD = os.environ["HORAVEX_TEST_BINARY_DIR"]


class TryBlocks(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.sandbox = Sandbox(SOURCE, BUILD)
        cls.addClassCleanup(cls.sandbox.__exit__)

    def faults(self, document):
        return [fault_of(block, SOURCE, self.sandbox) for block in blocks_of(document)]

    def expect_fault(self, document, fault):
        self.assertIn(fault, self.faults(document)[0] or "no fault")

    def expect_none(self, document):
        self.assertEqual(self.faults(document), [None])

    def test_a_script_that_works_is_right(self):
        self.expect_none("```sh\nhoravexctl today --city Cairo\n```\n")

    def test_a_script_ends_at_its_first_failure(self):
        self.expect_fault("```sh\nfalse\ntrue\n```\n", "status 1")

    def test_a_script_of_an_unknown_option_is_a_fault(self):
        self.expect_fault("```sh\nhoravexctl today --town Cairo\n```\n", "status 2")

    def test_run_starts_the_built_program(self):
        self.expect_none("```sh\n./run --city Cairo | grep '^Cairo, '\n```\n")

    def test_a_console_prints_what_stands_below(self):
        self.expect_none("```console\n$ echo a; echo b\na\nb\n$ true\n```\n")

    def test_a_console_that_prints_something_else_is_a_fault(self):
        self.expect_fault("```console\n$ echo a\na\n$ echo c\nb\n```\n", "echo c\nprints:\nc")

    def test_python_is_run(self):
        self.expect_none("```python\nprint(1)\n```\n")
        self.expect_fault("```python\nraise ValueError\n```\n", "ValueError")

    def test_python_has_the_module(self):
        self.expect_none("```python\nimport horavex\nhoravex.qibla(30.05, 31.25)\n```\n")

    def test_c_is_built_strictly_and_run(self):
        main = "#include <horavex.h>\nint main(void) { %s }"
        self.expect_none("```c\n" + main % "return horavex_version()[0] != '0';" + "\n```\n")
        self.expect_fault("```c\n" + main % "return 3;" + "\n```\n", "status 3")
        self.expect_fault("```c\n" + main % "int unused; return 0;" + "\n```\n", "unused")

    def test_a_line_without_an_end_has_to_print_something(self):
        self.expect_none("<!-- until ended -->\n```sh\nyes\n```\n")
        self.expect_fault("<!-- until ended -->\n```sh\ntrue\n```\n", "prints nothing: true")

    def test_an_indented_block_is_a_fault(self):
        self.expect_fault("Text\n\n    true\n", "fence this block")

    def test_a_block_in_a_list_is_tried_too(self):
        self.expect_fault("1. Text\n\n   ```sh\n   false\n   ```\n", "status 1")

    def test_a_block_that_nothing_tries_is_a_fault(self):
        self.expect_fault("```\ntrue\n```\n", "nothing tries this block")
        self.expect_fault("```json\n{}\n```\n", "nothing tries this block")

    def test_a_drawing_is_text_alone(self):
        self.expect_none("<!-- drawing -->\n```text\n|\n```\n")
        self.expect_fault("<!-- drawing -->\n```json\n{}\n```\n", "nothing tries this block")

    def test_a_cover_is_a_test_of_a_suite(self):
        self.expect_none("<!-- covered by e2e.BusProgramTest.CommandsOfTheDocumentWork -->\n"
                         "```sh\nfalse\n```\n")
        self.expect_fault("<!-- covered by e2e.BusProgramTest.Nothing -->\n```sh\nfalse\n```\n",
                          "neither a test nor a program: e2e.BusProgramTest.Nothing")

    def test_a_cover_is_a_test_of_a_list(self):
        self.expect_none("<!-- covered by install.metainfo_is_true -->\n```sh\nfalse\n```\n")
        self.expect_fault("<!-- covered by install.metainfo -->\n```sh\nfalse\n```\n", "neither")

    def test_a_cover_is_a_program(self):
        self.expect_none("<!-- covered by .ci/run -->\n```sh\nfalse\n```\n")
        self.expect_fault("<!-- covered by README.md -->\n```sh\nfalse\n```\n", "neither")

    def test_each_of_several_covers_has_to_be_there(self):
        self.expect_fault("<!-- covered by .ci/run, .ci/fly -->\n```sh\nfalse\n```\n", ".ci/fly")

    def test_a_mark_belongs_to_the_block_behind_it_alone(self):
        self.expect_fault("<!-- covered by .ci/run -->\n\nText\n\n```sh\nfalse\n```\n", "status 1")


if __name__ == "__main__":
    unittest.main()
