#!/usr/bin/python3 -B
"""What named_tests.py says about tables of all kinds.

Usage: named_tests_test.py, with the folder of the sources in HORAVEX_TEST_SOURCE_DIR
"""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from named_tests import faults_of  # noqa: E402

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]
HEAD = "| Fault | Test |\n|---|---|\n"


class NamedTests(unittest.TestCase):
    def expect(self, faults, document):
        self.assertEqual(faults_of(document, SOURCE), faults)

    def test_tests_of_both_kinds_are_found(self):
        self.expect([], HEAD + "| a | `update.UpdateCheckTest.EmptyBodyAsksForTheConnection` |\n"
                               "| b | `checks.hardened`, `install.service_is_confined` |\n")

    def test_a_test_that_is_gone_is_told(self):
        self.expect(["4: no such test: update.UpdateCheckTest.Gone"],
                    HEAD + "| a | `checks.layers` |\n| b | `update.UpdateCheckTest.Gone` |\n")

    def test_a_row_without_a_test_is_told(self):
        self.expect(["3: no test"], HEAD + "| a | none |\n")

    def test_other_tables_are_passed_over(self):
        self.expect([], "| A | B |\n|---|---|\n| a | b |\n\n" + HEAD + "| a | `checks.layers` |\n")

    def test_a_document_without_such_a_table_is_told(self):
        self.expect(["no table of tests"], "| A | B |\n|---|---|\n| a | b |\n")


if __name__ == "__main__":
    unittest.main()
