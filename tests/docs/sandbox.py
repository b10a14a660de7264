"""A copy of the sources, with a home of its own, in which commands of documents may do anything."""

import os
import shutil
import subprocess
import tempfile

SECONDS = 900  # that a block may take; the slowest takes a quarter of a minute, sanitized ten times that


class Sandbox:
    """Programs are those of a build; "./run" finds nothing to install and nothing to build.

    The copy is made when something runs in it for the first time.
    """

    def __init__(self, source, build):
        self._sources = source, build
        self._folder = tempfile.TemporaryDirectory()
        self.tree = os.path.join(self._folder.name, "tree")
        self.environment = None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._folder.cleanup()

    def _fill_once(self):
        if self.environment is not None:
            return
        source, build = self._sources
        home = os.path.join(self._folder.name, "home")
        stubs = os.path.join(self._folder.name, "stubs")
        shutil.copytree(source, self.tree, symlinks=True,
                        ignore=shutil.ignore_patterns("build", ".git", "node_modules"))
        os.makedirs(os.path.join(self.tree, "build"))
        os.symlink(build, os.path.join(self.tree, "build", "release"))
        runtime = os.path.join(home, "runtime")
        os.makedirs(runtime, mode=0o700)
        os.makedirs(stubs)
        for program in (os.path.join(stubs, "cmake"),
                        os.path.join(self.tree, "packaging", "install-packages")):
            _write_program(program, "#!/bin/sh\n")
        self.environment = {
            "HOME": home, "XDG_RUNTIME_DIR": runtime, "LC_ALL": "C.UTF-8", "TZ": "UTC",
            "LSAN_OPTIONS": f"suppressions={source}/tests/leaks.supp:print_suppressions=0",
            "TERM": "dumb", "PATH": f"{stubs}:{build}/bin:/usr/bin:/bin:/usr/sbin:/sbin"}

    def run(self, words, text=""):
        """Runs a program over a text. Returns its status and what it has printed."""
        self._fill_once()
        try:
            done = subprocess.run(words, input=text, cwd=self.tree, env=self.environment,
                                  capture_output=True, text=True, timeout=SECONDS, check=False)
        except subprocess.TimeoutExpired:
            return 1, f"not done after {SECONDS} seconds\n"
        return done.returncode, done.stdout + done.stderr

    def first_line(self, command):
        """Starts a command that does not end by itself, and ends it after its first line."""
        self._fill_once()
        words = ["timeout", "--kill-after=5", str(SECONDS), "/bin/bash", "-c", f"exec {command}"]
        with subprocess.Popen(words, cwd=self.tree, env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT) as process:
            line = process.stdout.readline()
            process.terminate()
        return line


def _write_program(path, text):
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)
    os.chmod(path, 0o755)
