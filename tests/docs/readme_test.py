#!/usr/bin/python3 -B
"""The figures of the README are those of the program.

Usage: readme_test.py, with the folders of sources and build in HORAVEX_TEST_SOURCE_DIR and
HORAVEX_TEST_BINARY_DIR
"""

import json
import os
import re
import subprocess
import unittest

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]
BUILD = os.environ["HORAVEX_TEST_BINARY_DIR"]
NUMBERS = {4: "four", 9: "nine", 10: "ten"}


def read(path):
    with open(os.path.join(SOURCE, path), encoding="utf-8") as file:
        return file.read()


def ctl(*words):
    return subprocess.run([os.path.join(BUILD, "bin", "horavexctl"), *words], check=True,
                          capture_output=True, text=True).stdout


class Figures(unittest.TestCase):
    def expect(self, sentence):
        self.assertIn(sentence, " ".join(read("README.md").split()))

    def test_cities(self):
        count = len(ctl("cities", "--limit", "65535").splitlines())
        self.expect(f"It comes with {count:,} cities of the whole world")

    def test_languages(self):
        packs = [name for name in os.listdir(os.path.join(SOURCE, "data", "lang"))
                 if name.endswith(".ini")]
        self.expect(f"speaks {NUMBERS[len(packs)]} languages")
        self.expect(f"| {NUMBERS[len(packs)].capitalize()} languages |")

    def test_authorities(self):
        count = len(json.loads(ctl("methods", "--json")))
        self.expect(f"The methods of {count} authorities")

    def test_rules_for_nights_without_twilight(self):
        rules = re.search(r"--high-latitude TEXT:\{none,(.*)\}", ctl("today", "--help")).group(1)
        self.expect(f"{NUMBERS[len(rules.split(','))]} rules to choose from")

    def test_authorities_whose_published_times_are_compared(self):
        table = read("docs/methods.md").partition("| Authority |")[2].partition("\n\n")[0]
        self.expect(f"[{NUMBERS[len(table.splitlines()) - 2]} authorities publish]")


if __name__ == "__main__":
    unittest.main()
