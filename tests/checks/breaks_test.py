#!/usr/bin/python3 -B
"""What tools/mutate finds to break in a source.

Usage: breaks_test.py, with the folder of sources in HORAVEX_TEST_SOURCE_DIR
"""

import os
import sys
import unittest

sys.path.insert(0, os.path.join(os.environ["HORAVEX_TEST_SOURCE_DIR"], "tools", "mutation"))

from breaks import breaks_in, broken, drawn  # noqa: E402


def afters(text):
    return [each.after for line in breaks_in("src/a.cpp", text) for each in line]


class Breaks(unittest.TestCase):
    def test_arithmetic_and_comparisons(self):
        self.assertEqual(afters("return a + b;"), ["return a - b;"])
        self.assertEqual(afters("return a % b;"), ["return a * b;"])
        self.assertEqual(afters("return a < b;"), ["return a <= b;", "return a >= b;"])
        self.assertEqual(afters("return a == b &&"), ["return a != b &&", "return a == b ||"])
        self.assertEqual(afters("return !Is(-a);"), ["return Is(-a);", "return !Is(a);"])

    def test_constants(self):
        self.assertEqual(sorted(afters("return 24;")), ["return 23;", "return 25;"])
        self.assertEqual(afters("return 0;"), ["return 1;"])
        self.assertEqual(afters("return 0.0195;"), ["return 0.0295;"])
        self.assertEqual(afters("return 0.0;"), ["return 1.0;"])
        self.assertEqual(afters("return true;"), ["return false;"])
        self.assertEqual(afters("return name2 ? 0x10 : kSize1;"), ["return name2 ? kSize1 : 0x10;"])

    def test_conditions_are_turned_round(self):
        self.assertEqual(afters("if (Is(a)) {"), ["if (!(Is(a))) {"])
        self.assertEqual(afters("} else if (Is(a)) {"), ["} else if (!(Is(a))) {"])
        self.assertEqual(afters("if (const auto a = B()) {"), [])
        self.assertEqual(afters("if constexpr (kIs) {"), [])

    def test_arguments_are_swapped(self):
        self.assertEqual(afters("return F(a, b);"), ["return F(b, a);"])
        self.assertEqual(afters("return F(a, a);"), [])

    def test_statements_of_one_line_are_dropped(self):
        for line in ("a.B(c);", "a = b;", "a[b] = c;", "break;", "return;", "A::B();"):
            self.assertIn(";", afters("{\n    " + line))
        for line in ("int a = b;", "A a(b);", "return B(a);", "a.B(c,", "B(a));"):
            self.assertNotIn(";", afters("{\n    " + line))
        self.assertNotIn(";", afters("const int a =\n    B(c);"))

    def test_comments_texts_types_and_streams_are_left_alone(self):
        for line in ("// a + 1", 'return "a + 1";', 'return R"(a + 1)";', "/* 1\n 2 */", "return '1';",
                     "#include <a>", "namespace a1 {", "std::vector<int> a;", "int* B(const A& a);",
                     "out << a;", "case 3:", "static_assert(a == 1);"):
            self.assertEqual(afters(line), [], line)

    def test_one_place_is_broken(self):
        text = "int A() {\n    return a + a + a;\n}\n"
        [line] = breaks_in("src/a.cpp", text)
        self.assertEqual([broken(text, each) for each in line],
                         ["int A() {\n    return a - a + a;\n}\n",
                          "int A() {\n    return a + a - a;\n}\n"])

    def test_equal_lines_are_told_apart(self):
        lines = breaks_in("src/a.cpp", "return a + b;\nreturn a + b;\n")
        self.assertEqual([(each.number, each.nth) for line in lines for each in line],
                         [(1, 0), (2, 1)])

    def test_each_line_is_drawn_once_in_the_order_of_the_seed(self):
        text = "".join(f"return {number};\n" for number in range(50))
        orders = [[each.before for each in drawn(breaks_in("src/a.cpp", text), seed)]
                  for seed in (1, 1, 2)]
        self.assertEqual(len(set(orders[0])), 50)
        self.assertEqual(orders[0], orders[1])
        self.assertNotEqual(orders[0], orders[2])

    def test_order_stays_where_a_line_comes(self):
        text = "".join(f"return {number};\n" for number in range(50))
        before = [each.key() for each in drawn(breaks_in("src/a.cpp", text), 1)]
        after = [each.key() for each in drawn(breaks_in("src/a.cpp", "return a + b;\n" + text), 1)]
        self.assertEqual([key for key in after if key in before], before)


if __name__ == "__main__":
    unittest.main()
