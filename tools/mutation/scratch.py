"""A copy of the tree with a release build of its own, in which mutants are compiled and linked."""

import json
import os
import shlex
import shutil
import subprocess

_LEFT_OUT = ("build", ".git")


class Scratch:
    """The folder has the copy in "tree" with its build inside it, and what a mutant needs in "mutant".
    The build lies where others have theirs, or ccache would know none of its objects."""

    def __init__(self, source, folder):
        self.tree = os.path.join(folder, "tree")
        self.build = os.path.join(self.tree, "build", "release")
        self.own = os.path.join(folder, "mutant")
        for path in (self.tree, self.own):
            os.makedirs(path, exist_ok=True)
        _mirror(source, self.tree)
        _run("cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja",
             "-DCMAKE_BUILD_TYPE=Release", "-DHORAVEX_DESKTOP=OFF", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
             "--no-warn-unused-cli")
        with open(os.path.join(self.build, "compile_commands.json"), encoding="utf-8") as file:
            commands = {entry["file"]: entry for entry in json.load(file)}
        self._commands = {os.path.relpath(path, self.tree): entry for path, entry in commands.items()}
        self._headers = {}

    def text(self, path):
        with open(os.path.join(self.tree, path), encoding="utf-8") as file:
            return file.read()

    def build_tests(self, room):
        _run("cmake", "--build", self.build, "--target", f"{room}_tests")

    def environment(self, room):
        """That of the room's tests in the scratch build, which are built."""
        shown = _run("ctest", "--test-dir", self.build, "--show-only=json-v1", "-R", rf"^{room}\.")
        properties = {each["name"]: each["value"] for test in json.loads(shown)["tests"]
                      for each in test.get("properties", [])}
        return dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))

    def compile(self, path, text):
        """The mutant's object, or None. Without optimisation, which costs more than it saves."""
        source, target = (os.path.join(self.own, "mutant" + end) for end in (".cpp", ".o"))
        with open(source, "w", encoding="utf-8") as file:
            file.write(text)
        words = self._words(path)
        if "-include" in words:
            at = words.index("-include") + 1
            words[at] = self._precompiled(words[at], words[:at - 1] + words[at + 1:])
        return target if _succeeds([*words, "-o", target, "-c", source], self.build) else None

    def link(self, room, mutant):
        """The room's test program with the object in place of that of its source, or None."""
        target = os.path.join(self.own, f"{room}_tests")
        words = self._link_words(room)
        at = words.index("-o")
        words[at + 1] = target
        # What stands in front of a library is taken, and the one inside it is not.
        words[at:at] = [mutant]
        return target if _succeeds(words, self.build) else None

    def _words(self, path):
        """The command without what it writes, its launcher, its optimisation and its warnings."""
        words = shlex.split(self._commands[path]["command"])
        words = words[_compiler_at(words):words.index("-o")]
        kept = [word for word in words if not word.startswith(("-O", "-W", "-D_FORTIFY_SOURCE"))]
        return [*kept, "-O0", "-w"]

    def _precompiled(self, header, words):
        """A copy of the header, compiled with the flags of mutants."""
        if header not in self._headers:
            copy = os.path.join(self.own, f"{len(self._headers)}.hxx")
            shutil.copy(header, copy)
            _run(*words, "-x", "c++-header", "-o", copy + ".gch", "-c", copy, folder=self.build)
            self._headers[header] = copy
        return self._headers[header]

    def _link_words(self, room):
        lines = _run("ninja", "-C", self.build, "-t", "commands", f"{room}_tests").splitlines()
        command = next(part for part in lines[-1].split(" && ") if f" -o bin/{room}_tests" in part)
        words = shlex.split(command)
        words = words[_compiler_at(words):]
        return words + (["-fuse-ld=lld"] if shutil.which("ld.lld") else [])


def _compiler_at(words):
    return next(at for at, word in enumerate(words) if word.endswith("c++"))


def _mirror(source, target):
    """What differs is copied, what is gone is deleted, all else keeps its time for the build."""
    names = set(os.listdir(source)).difference(_LEFT_OUT)
    for name in set(os.listdir(target)).difference(names, _LEFT_OUT):
        path = os.path.join(target, name)
        shutil.rmtree(path) if os.path.isdir(path) and not os.path.islink(path) else os.remove(path)
    for name in names:
        here, there = os.path.join(source, name), os.path.join(target, name)
        if os.path.isdir(here) and not os.path.islink(here):
            os.makedirs(there, exist_ok=True)
            _mirror(here, there)
        elif not os.path.lexists(there) or _stamp(here) != _stamp(there):
            shutil.copy2(here, there, follow_symlinks=False)


def _stamp(path):
    state = os.lstat(path)
    return state.st_size, state.st_mtime_ns


def _run(*words, folder=None):
    done = subprocess.run(words, cwd=folder, capture_output=True, text=True, check=False)
    if done.returncode:
        raise SystemExit(f"mutate: {shlex.join(words)}\n{done.stdout}{done.stderr}")
    return done.stdout


def _succeeds(words, folder):
    return subprocess.run(words, cwd=folder, capture_output=True, check=False).returncode == 0
