"""Checks that compile. Each prints what is wrong and returns whether nothing is."""

import json
import os
import shlex
import shutil
import subprocess
import tempfile

from files import changed_files, matching


def tidy_of(files):
    sources = matching(files or changed_files(), "*.cpp")
    with tempfile.TemporaryDirectory() as folder:
        commands = [_with_own_prefix(entry, folder) for entry in _commands()]
        with open(os.path.join(folder, "compile_commands.json"), "w", encoding="utf-8") as file:
            json.dump(commands, file)
        built = {entry["file"] for entry in commands}
        sources = [path for path in sources if os.path.realpath(path) in built]
        return not sources or _run("clang-tidy", "-p", folder, "--quiet", *sources)


def includes_of(files):
    headers = matching(files or changed_files(), "*.h")
    commands = _commands()
    return all([_run(*_alone(header, commands)) for header in headers])


def _commands():
    build = os.environ.get("HORAVEX_BUILD_DIR", os.path.join("build", "release"))
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        return json.load(file)


def _alone(header, commands):
    """The command that compiles a header as the source nearest to it is compiled."""
    def nearness(entry):
        path = os.path.relpath(entry["file"])
        return len(os.path.commonpath([os.path.dirname(header), os.path.dirname(path)]))

    words = shlex.split(max(commands, key=nearness)["command"])
    flags = [word for word in words if word.startswith(("-I", "-D", "-std", "-f", "-O"))]
    systems = [word for at, word in enumerate(words) if at and words[at - 1] == "-isystem"]
    paths = [word for path in systems for word in ("-isystem", path)]
    return ["c++", *flags, *paths, "-fsyntax-only", "-include", header, "-x", "c++", os.devnull]


def _with_own_prefix(entry, folder):
    """The entry with a copy of its precompiled header, beside which nothing of g++ lies."""
    words = shlex.split(entry["command"])
    for at, word in enumerate(words):
        if word.endswith("cmake_pch.hxx"):
            words[at] = os.path.join(folder, word.strip("/").replace("/", "-"))
            shutil.copy(word, words[at])
    words = [word for word in words if word not in ("-Winvalid-pch", "-fpch-preprocess")]
    compiler = next(at for at, word in enumerate(words) if word.endswith("c++"))
    return entry | {"command": shlex.join(words[compiler:])}


def _run(*words):
    return subprocess.run(words, check=False).returncode == 0
