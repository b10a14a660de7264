#!/usr/bin/python3 -B
"""Looks up the tests that the tables of a document name, and prints what is wrong; status 1 then.

A table whose last column is headed "Test" names one or more in each row, in backticks: "room.Suite.Test",
or "room.name" of a list for CMake.

Usage: named_tests.py DOCUMENT SOURCE_FOLDER
"""

import re
import sys

from cover import is_test


def main(document, source):
    with open(document, encoding="utf-8") as file:
        faults = faults_of(file.read(), source)
    print(*faults, sep="\n", end="\n" if faults else "")
    return 1 if faults else 0


def faults_of(text, source):
    """What is wrong, a line each with the number of its row."""
    faults = []
    rows = list(rows_of(text))
    for line, cell in rows:
        names = re.findall(r"`([^`]*)`", cell)
        if not names:
            faults.append(f"{line}: no test")
        faults += [f"{line}: no such test: {name}" for name in names if not is_test(source, name)]
    return faults if rows else ["no table of tests"]


def rows_of(text):
    """The last cells of such tables, with their lines from 1 on."""
    is_inside = False
    for line, row in enumerate(text.splitlines(), 1):
        cells = [cell.strip() for cell in row.strip().strip("|").split("|")]
        if not row.startswith("|"):
            is_inside = False
        elif cells[-1] == "Test":
            is_inside = True
        elif is_inside and set(cells[-1]) != {"-"}:
            yield line, cells[-1]


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
