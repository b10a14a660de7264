#!/usr/bin/python3 -B
"""Tries every block of code of a document and prints what fails; status 1 then.

A block says its language. These are run, in a copy of the sources with an empty home:

    sh        as a script that ends at its first failure
    console   each line behind "$ "; what it prints is what stands below it
    python    as a program, with the module over the library
    c         as a program with the library

A comment in front of a block says something else about it:

    <!-- covered by NAME -->   it is tried by that test ("room.Suite.Test") or program of the sources
    <!-- until ended -->       each line begins to print, and would go on for ever
    <!-- drawing -->           a picture of letters (text alone)

Any other block is a failure: nobody knows whether it is true.

Usage: try_blocks.py DOCUMENT SOURCE_FOLDER BUILD_FOLDER
"""

import os
import sys

from blocks import blocks_of
from cover import is_command, is_test
from sandbox import Sandbox

RUN = {"sh": ["/bin/bash", "-euo", "pipefail"],
       "python": ["tests/docs/with_library.sh", "/usr/bin/python3"],
       "c": ["tests/docs/with_library.sh", "tests/docs/run_c.sh"]}


def main(document, source, build):
    with open(document, encoding="utf-8") as file:
        blocks = blocks_of(file.read())
    with Sandbox(source, build) as sandbox:
        faults = [(block.line, fault) for block in blocks
                  if (fault := fault_of(block, source, sandbox))]
    for line, fault in faults:
        print(f"{os.path.relpath(document, source)}:{line}: {fault}")
    return 1 if faults else 0


def fault_of(block, source, sandbox):
    """What is wrong with a block; nothing where it is right."""
    if block.indented:
        return "fence this block, and say its language"
    if block.mark.startswith("covered by "):
        return fault_of_cover(block.mark.removeprefix("covered by "), source)
    if block.mark == "drawing" and block.language == "text":
        return None
    if block.mark == "until ended" and block.language == "sh":
        silent = [line for line in block.text.splitlines() if not sandbox.first_line(line).strip()]
        return f"prints nothing: {silent[0]}" if silent else None
    if block.language == "console":
        return fault_of_console(block.text, sandbox)
    if block.language in RUN:
        return fault_of_run(RUN[block.language], block.text, sandbox)
    return 'nothing tries this block: mark it as "covered by" a test'


def fault_of_cover(names, source):
    unknown = [name for name in names.split(", ")
               if not is_test(source, name) and not is_command(source, name)]
    return f"neither a test nor a program: {unknown[0]}" if unknown else None


def fault_of_run(words, text, sandbox):
    status, told = sandbox.run(words, text)
    return f"status {status}: {told.strip()}" if status != 0 else None


def fault_of_console(text, sandbox):
    for command, expected in calls_of(text):
        _, told = sandbox.run(["/bin/bash", "-c", command])
        if told.rstrip("\n") != expected.rstrip("\n"):
            return f"{command}\nprints:\n{told.rstrip()}"
    return None


def calls_of(text):
    """The commands of a console, each with what stands below it."""
    calls = []
    for line in text.splitlines():
        if line.startswith("$ "):
            calls.append([line[2:], ""])
        elif calls:
            calls[-1][1] += line + "\n"
    return calls


if __name__ == "__main__":
    sys.exit(main(*(os.path.realpath(path) for path in sys.argv[1:])))
