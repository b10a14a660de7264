#!/usr/bin/env python3
"""What holds the ratios of docs/performance.md refuses one that has worsened, and no other."""
import json
import os
import re
import subprocess
import tempfile
import unittest

ROOT = os.path.join(os.path.dirname(__file__), "..", "..")
TOOL = os.path.join(ROOT, "tools", "performance")
NAMES = {"the year's table": "Year", "the moon's four tables": "MoonTables",
         "both lists of eclipses": "EclipseLists", "the text of a year's export": "TextOfAYear"}


def told_ratios():
    with open(os.path.join(ROOT, "docs", "performance.md"), encoding="utf-8") as file:
        rows = re.findall(r"^\| (.*?) \| [\d.]+ \| [\d.]+ \| ([\d.]+) \|", file.read(), re.M)
    return {name: float(ratio) for name, ratio in rows}


def run(name, time):
    return {"run_type": "iteration", "run_name": name, "cpu_time": time, "time_unit": "us"}


def runs_of(name, ratio):
    key = re.fullmatch('a key of the city search: "(.*)"', name)
    own = f"SearchKey/{key[1]}" if key else NAMES[name]
    floor = f"SearchKeyFloor/{key[1]}" if key else own + "Floor"
    return [run(own, 1000 * ratio), run(floor, 1000)]


def check(ratios):
    """What the tool answers to a program that tells these ratios."""
    report = {"benchmarks": [each for name, ratio in ratios.items() for each in runs_of(name, ratio)]}
    with tempfile.TemporaryDirectory() as build:
        os.mkdir(f"{build}/bin")
        program = f"{build}/bin/horavex_bench"
        with open(program, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\ncat <<'end'\n{json.dumps(report)}\nend\n")
        os.chmod(program, 0o755)
        return subprocess.run([TOOL, build, "--check"], capture_output=True, text=True)


class Ratios(unittest.TestCase):
    def test_told_ones_pass(self):
        self.assertEqual(check(told_ratios()).returncode, 0)

    def test_a_third_more_passes_and_beyond_that_none(self):
        for name, ratio in told_ratios().items():
            self.assertEqual(check({**told_ratios(), name: 1.32 * ratio}).returncode, 0, name)
            answer = check({**told_ratios(), name: 1.35 * ratio})
            self.assertEqual(answer.returncode, 1)
            self.assertTrue(answer.stderr.endswith(f"tells: {name}\n"), answer.stderr)


if __name__ == "__main__":
    unittest.main()
