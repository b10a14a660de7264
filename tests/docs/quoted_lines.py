#!/usr/bin/python3 -B
"""Looks up the lines of sources that a document quotes, and prints those that are gone; status 1 then.

A line is quoted in an entry of a list that begins with its file: "- `src/base/a.cpp`: `return 1;`".

Usage: quoted_lines.py DOCUMENT SOURCE_FOLDER
"""

import os
import re
import sys


def main(document, source):
    with open(document, encoding="utf-8") as file:
        faults = faults_of(file.read(), source)
    print(*faults, sep="\n", end="\n" if faults else "")
    return 1 if faults else 0


def faults_of(text, source):
    """What is wrong, a line each with the number of its entry."""
    return [f"{number}: {path} has no line: {line}"
            for number, entry in enumerate(text.splitlines(), 1)
            for path, line in re.findall(r"^- `([^`]+)`: `([^`]+)`", entry)
            if line not in lines_of(os.path.join(source, path))]


def lines_of(path):
    if not os.path.exists(path):
        return ()
    with open(path, encoding="utf-8") as file:
        return {line.strip() for line in file}


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
