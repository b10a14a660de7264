"""The tests and commands that a block of code may name as those that try it."""

import os
import re


def is_test(source, name):
    """Whether the sources have a test: "room.Suite.Test", or "room.name" of a list for CMake."""
    room, _, rest = name.partition(".")
    folder = os.path.join(source, "tests", room)
    if not rest or not os.path.isdir(folder):
        return False
    suite, _, test = rest.partition(".")
    if not test:
        declared = rf"\badd_\w+\((NAME\s+{re.escape(room)}\.)?{re.escape(rest)}\s"
        return _stands_in(os.path.join(folder, "CMakeLists.txt"), declared)
    declared = rf"\bTEST(_F|_P)?\(\s*{re.escape(suite)},\s*{re.escape(test)}\)"
    return any(_stands_in(os.path.join(folder, file), declared)
               for file in os.listdir(folder) if file.endswith("_test.cpp"))


def is_command(source, name):
    """Whether a name is that of a program among the sources."""
    path = os.path.join(source, name)
    return os.path.isfile(path) and os.access(path, os.X_OK)


def _stands_in(path, pattern):
    if not os.path.isfile(path):
        return False
    with open(path, encoding="utf-8") as file:
        return re.search(pattern, file.read()) is not None
