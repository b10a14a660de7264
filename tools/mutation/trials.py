"""The tests of a mutant: first those nearest to its source, until one fails."""

import json
import os
import re
import resource
import shutil
import signal
import subprocess
from dataclasses import dataclass

_SLOW = 1.0               # seconds of a test that waits until all others have passed
_MOST_MEMORY = 3 << 30    # bytes
_MOST_WRITTEN = 64 << 20  # bytes a file


@dataclass(frozen=True)
class Test:
    name: str
    source: str     # of the test, from the root of the tree
    seconds: float  # that it took before anything was broken


class Rooms:
    """The rooms' tests, and which of them know a source."""

    def __init__(self, scratch):
        self._scratch = scratch
        self._tests = {}
        self._environments = {}
        self._includes = {path: set(re.findall(r'#include "(\w+/\w+)\.h"', scratch.text(path)))
                          for path in _sources(scratch.tree)}

    def tests(self, room):
        """Those that pass before anything is broken."""
        if room not in self._tests:
            self._scratch.build_tests(room)
            self._environments[room] = self._scratch.environment(room)
            self._tests[room] = self._measured(room)
        return self._tests[room]

    def rounds(self, path):
        """(room, tests), in the order in which they are run for a source."""
        own = path.split("/")[1]
        names = self._names_of(path)
        if own in self._rooms():
            tests = self.tests(own)
            near = [test for test in tests if self._knows(test.source, names)]
            far = [test for test in tests if test not in near]
            slow = [test for test in near + far if test.seconds > _SLOW]
            for some in (near, far):
                yield own, [test for test in some if test not in slow]
            yield own, slow
        for room in self._rooms():
            if room != own and any(self._knows(path, names) for path in self._includes
                                   if path.startswith(f"tests/{room}/")):
                yield room, [test for test in self.tests(room) if self._knows(test.source, names)]

    def first_failure(self, room, program, tests):
        """The name of a test that the program fails, "time limit", or None where all pass."""
        limit = int(3 + 4 * sum(test.seconds for test in tests))
        words = [program, "--gtest_fail_fast", "--gtest_filter=" + ":".join(t.name for t in tests)]
        try:
            done = self._run(room, words, limit)
        except subprocess.TimeoutExpired:
            return "time limit"
        if done.returncode == 0:
            return None
        if done.returncode in (-signal.SIGXCPU, -signal.SIGKILL):
            return "time limit"
        out = done.stdout.decode(errors="replace")
        failed = re.search(r"^\[  FAILED  \] ([^\s,]+)", out, re.M)
        begun = re.findall(r"^\[ RUN      \] (\S+)", out, re.M)
        return failed[1] if failed else begun[-1] if begun else "start"

    def _rooms(self):
        """The core's rooms that have tests."""
        tree = self._scratch.tree
        return sorted(room for room in os.listdir(os.path.join(tree, "src"))
                      if os.path.isdir(os.path.join(tree, "tests", room)))

    def _names_of(self, path):
        """The headers that declare what a source defines: its own, or those that it has of its room."""
        name = re.sub(r"^src/|\.cpp$", "", path)
        if f"src/{name}.h" in self._includes:
            return {name}
        room = os.path.dirname(name) + "/"
        return {name} | {each for each in self._includes[path] if each.startswith(room)}

    def _knows(self, test, names):
        """A test knows what it includes, and what the source that it is named after includes."""
        stem = re.sub(r"^tests/|_test\.cpp$", "", test)
        known = {stem} | self._includes.get(test, set())
        for end in (".cpp", ".h"):
            known |= self._includes.get(f"src/{stem}{end}", set())
        return bool(known & names)

    def _measured(self, room):
        report = os.path.join(self._scratch.own, f"{room}.json")
        program = os.path.join(self._scratch.build, "bin", f"{room}_tests")
        if not os.path.exists(report) or os.path.getmtime(report) < os.path.getmtime(program):
            self._run(room, [program, "--gtest_output=json:" + report], 600)
        with open(report, encoding="utf-8") as file:
            suites = json.load(file)["testsuites"]
        found = [(test, Test(f"{suite['name']}.{test['name']}", self._path(test["file"]),
                             float(test["time"].rstrip("s"))))
                 for suite in suites for test in suite["testsuite"]]
        failed = [test.name for each, test in found if "failures" in each]
        if failed:
            print(f"mutate: without {', '.join(failed)}: not passed as it is", flush=True)
        return [test for each, test in found if "failures" not in each and each["result"] != "SKIPPED"]

    def _path(self, file):
        """From the root of the tree: the compiler was told of it from the folder of the build."""
        return os.path.relpath(os.path.join(self._scratch.build, file), self._scratch.tree)

    def _run(self, room, words, seconds):
        """In a home of its own, which is new for each run."""
        home = os.path.join(self._scratch.own, "home")
        shutil.rmtree(home, ignore_errors=True)
        os.makedirs(home)
        environment = os.environ | {"HOME": home, "TMPDIR": home} | self._environments[room]
        environment |= {f"XDG_{each}_HOME": os.path.join(home, each) for each in ("CONFIG", "DATA")}

        def limits():
            for kind, most in ((resource.RLIMIT_CPU, seconds), (resource.RLIMIT_AS, _MOST_MEMORY),
                               (resource.RLIMIT_FSIZE, _MOST_WRITTEN), (resource.RLIMIT_CORE, 0)):
                resource.setrlimit(kind, (most, most))

        return subprocess.run(words, cwd=home, env=environment, preexec_fn=limits, check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, timeout=300 + 20 * seconds)


def _sources(tree):
    """All sources of the core and of its tests, from the root of the tree."""
    for top in ("src", "tests"):
        for folder, _, names in os.walk(os.path.join(tree, top)):
            for name in names:
                if name.endswith((".cpp", ".h")):
                    yield os.path.relpath(os.path.join(folder, name), tree)
