"""What a unit of systemd leaves a program of system calls, for a process that is to start so."""

import ctypes
import re
import socket
import subprocess

ALLOW = 0x7FFF0000
REFUSE = 0x00050000 | 1  # with EPERM
EQUAL = 4
MASKED_EQUAL = 7
WRITE, EXECUTE = 2, 4


class Argument(ctypes.Structure):
    _fields_ = [("index", ctypes.c_uint), ("compare", ctypes.c_int), ("first", ctypes.c_uint64),
                ("second", ctypes.c_uint64)]


class UnitFilter:
    """Of the lines SystemCallFilter, RestrictAddressFamilies and MemoryDenyWriteExecute."""

    def __init__(self, unit):
        with open(unit, encoding="utf-8") as file:
            text = file.read()
        names = set()
        for words in re.findall(r"^SystemCallFilter=(.*)", text, re.MULTILINE):
            called = calls_of(words.lstrip("~").split())
            names = names - called if words.startswith("~") else names | called
        families = re.search(r"^RestrictAddressFamilies=(.*)", text, re.MULTILINE).group(1).split()
        self._library = ctypes.CDLL("libseccomp.so.2")
        self._library.seccomp_init.restype = ctypes.c_void_p
        self._filter = ctypes.c_void_p(self._library.seccomp_init(ctypes.c_uint32(REFUSE)))
        for name in sorted(names - {"socket", "mmap", "mprotect", "pkey_mprotect"}):
            self._allow(name)
        for family in families:
            self._allow("socket", Argument(0, EQUAL, getattr(socket, family), 0))
        assert "MemoryDenyWriteExecute=yes" in text
        for protection in (0, WRITE, EXECUTE):
            self._allow("mmap", Argument(2, MASKED_EQUAL, WRITE | EXECUTE, protection))
        self._allow("mprotect", Argument(2, MASKED_EQUAL, EXECUTE, 0))

    def load(self):
        """Takes effect for this process, for good."""
        if self._library.seccomp_load(self._filter) != 0:
            raise OSError("the filter cannot be loaded")

    def _allow(self, name, *arguments):
        number = self._library.seccomp_syscall_resolve_name(name.encode())
        if number != -1:
            compared = (Argument * max(1, len(arguments)))(*arguments)
            self._library.seccomp_rule_add_array(self._filter, ctypes.c_uint32(ALLOW), number,
                                                 len(arguments), compared)


def calls_of(words):
    """The names that sets and names stand for."""
    names = set()
    for word in words:
        names |= calls_of(members_of(word)) if word.startswith("@") else {word}
    return names


def members_of(name):
    listed = subprocess.run(["systemd-analyze", "syscall-filter", "--no-pager", name], check=True,
                            capture_output=True, text=True).stdout
    return [line.strip() for line in listed.splitlines()[1:]
            if line.startswith(" ") and not line.strip().startswith("#")]
