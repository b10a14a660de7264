#!/usr/bin/python3 -B
"""What quoted_lines.py says about entries of all kinds.

Usage: quoted_lines_test.py, with the folder of the sources in HORAVEX_TEST_SOURCE_DIR
"""

import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from quoted_lines import faults_of  # noqa: E402

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]


class QuotedLines(unittest.TestCase):
    def expect(self, faults, document):
        self.assertEqual(faults_of(document, SOURCE), faults)

    def test_a_line_that_stands_is_found_without_its_indentation(self):
        self.expect([], "- `tests/docs/quoted_lines_test.py`: `import sys`: the module\n"
                        "- `tests/docs/quoted_lines_test.py`: `unittest.main()`\n")

    def test_a_line_that_is_gone_is_told(self):
        self.expect(["2: README.md has no line: return 0;"], "\n- `README.md`: `return 0;` → `;`: why\n")

    def test_a_file_that_is_gone_is_told(self):
        self.expect(["1: src/gone.cpp has no line: return 0;"], "- `src/gone.cpp`: `return 0;`\n")

    def test_other_entries_are_passed_over(self):
        self.expect([], "- `README.md` has `no such line`\n`README.md`: `return 0;`\n")


if __name__ == "__main__":
    unittest.main()
