#!/usr/bin/python3 -B
"""tools/mutate on a small tree with lines that a test holds, and one that none holds.

Usage: mutate_test.py, with the folder of sources in HORAVEX_TEST_SOURCE_DIR
"""

import json
import os
import shutil
import subprocess
import tempfile
import unittest

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]
BUILD = """cmake_minimum_required(VERSION 3.25)
project(Small CXX)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
enable_testing()
include(GoogleTest)
add_library(small STATIC src/sums/sums.cpp)
target_include_directories(small PUBLIC src)
foreach(room bills sums)
    add_executable(${room}_tests tests/${room}/${room}_test.cpp)
    target_link_libraries(${room}_tests small gtest_main gtest)
    gtest_discover_tests(${room}_tests TEST_PREFIX ${room}. PROPERTIES ENVIRONMENT SMALL=yes)
endforeach()
"""
# Each line can be broken in one way alone.
SUMS = """#include <string>
#include "sums/sums.h"
int Held(int a, int b) {
    return a + b;
}
int HeldElsewhere(int a, int b) {
    return a - b;
}
int HeldByNone(int a, int b) {
    return a * b;
}
int Down(int a, int by) {
    while (a) {
        a = a >> by;
    }
    return a;
}
std::string Twice(std::string a) {
    return a + a;
}
"""
NAMES = "int Held(int, int);\nint HeldElsewhere(int, int);\nint HeldByNone(int, int);\nint Down(int, int);\n"


def test_file(suite, *lines):
    body = "".join(f"    {line}\n" for line in lines)
    return f'#include <gtest/gtest.h>\n#include "sums/sums.h"\nTEST({suite}, Is) {{\n{body}}}\n'


class Small(unittest.TestCase):
    """The tree, all of whose lines were tried."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.tree = os.path.join(folder.name, "tree")
        shutil.copytree(os.path.join(SOURCE, "tools", "mutation"), cls.path("tools/mutation"))
        shutil.copy(os.path.join(SOURCE, "tools", "mutate"), cls.path("tools/mutate"))
        cls.write("CMakeLists.txt", BUILD)
        cls.write("src/sums/sums.cpp", SUMS)
        cls.write("src/sums/sums.h", NAMES)
        cls.write("src/bills/bills.h", "")
        cls.write("tests/sums/sums_test.cpp",
                  test_file("Sums", "EXPECT_EQ(Held(1, 2), 3);", "EXPECT_EQ(Down(2, 1), 0);",
                            'EXPECT_STREQ(std::getenv("SMALL"), "yes");'))
        cls.write("tests/bills/bills_test.cpp",
                  test_file("Bills", "EXPECT_EQ(HeldElsewhere(2, 1), 1);"))
        cls.first = cls.mutate("--count", "1")
        cls.begun = cls.results()
        cls.told = cls.mutate()

    @classmethod
    def path(cls, name):
        return os.path.join(cls.tree, name)

    @classmethod
    def write(cls, name, text):
        os.makedirs(os.path.dirname(cls.path(name)), exist_ok=True)
        with open(cls.path(name), "w", encoding="utf-8") as file:
            file.write(text)

    @classmethod
    def mutate(cls, *words):
        done = subprocess.run([cls.path("tools/mutate"), *words], capture_output=True, text=True,
                              check=False)
        if done.returncode:
            raise AssertionError(done.stdout + done.stderr)
        return done.stdout

    @classmethod
    def results(cls):
        with open(cls.path("build/mutation/results.jsonl"), encoding="utf-8") as file:
            return [json.loads(line) for line in file]

    def last(self, before):
        return [(each["verdict"], each["by"]) for each in self.results()
                if each["before"] == before][-1]


class Mutate(Small):
    def test_line_of_a_test_is_held_by_it(self):
        self.assertEqual(self.last("return a + b;"), ("killed", "Sums.Is"))

    def test_tests_of_a_room_that_uses_the_source_are_asked_too(self):
        self.assertEqual(self.last("return a - b;"), ("killed", "Bills.Is"))

    def test_endless_loop_is_ended(self):
        self.assertEqual(self.last("a = a >> by;"), ("killed", "time limit"))

    def test_what_does_not_compile_does_not_count(self):
        self.assertEqual(self.last("return a + a;"), ("uncompiled", ""))
        self.assertIn("| sums | 5 |", self.told)

    def test_count_ends_a_run_and_the_next_goes_on(self):
        counted = [each for each in self.begun if each["verdict"] != "uncompiled"]
        self.assertEqual(len(counted), 1)
        self.assertIn("| all | 1 |", self.first)
        self.assertEqual(len(self.results()), len({each["before"] for each in self.results()}))

    def test_tree_is_as_it_was(self):
        with open(self.path("src/sums/sums.cpp"), encoding="utf-8") as file:
            self.assertEqual(file.read(), SUMS)
        self.assertEqual(sorted(os.listdir(self.tree)), ["CMakeLists.txt", "build", "src", "tests",
                                                         "tools"])

    def test_survivor_is_shown(self):
        self.assertIn("src/sums/sums.cpp:10\n-return a * b;\n+return a / b;\n", self.told)
        self.assertIn("| sums | 5 | 4 | 0 | 1 | 80.0 |", self.told)

    def test_survivor_that_the_document_explains_is_not_left(self):
        self.write("docs/mutation.md",
                   "- `src/sums/sums.cpp`: `return a * b;` → `return a / b;`: all is one.\n")
        self.addCleanup(shutil.rmtree, self.path("docs"))
        told = self.mutate("--report")
        self.assertNotIn("-return a * b;", told)
        self.assertIn("| sums | 5 | 4 | 1 | 0 | 80.0 |", told)


class Again(Small):
    def test_new_test_kills_the_survivor(self):
        self.write("tests/sums/sums_test.cpp", test_file("Sums", "EXPECT_EQ(HeldByNone(2, 3), 6);"))
        told = self.mutate("--again")
        self.assertEqual(self.last("return a * b;"), ("killed", "Sums.Is"))
        self.assertIn("| sums | 5 | 5 | 0 | 0 | 100.0 |", told)


if __name__ == "__main__":
    unittest.main()
