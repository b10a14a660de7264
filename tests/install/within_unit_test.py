#!/usr/bin/python3 -B
"""The service does all that it is for with the system calls that its unit leaves it: it speaks on the
bus, plays an athan, ends in order, and writes nothing but its lock and into the folder that it may.

Usage: within_unit_test.py PREFIX
"""

import os
import re
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from system_calls import UnitFilter  # noqa: E402

PREFIX = sys.argv.pop()
SECONDS = 60
UNIT = os.path.join(PREFIX, "lib/systemd/user/horavex.service")
UNIT_FILTER = UnitFilter(UNIT)


def wait_for(what, look):
    end = time.monotonic() + SECONDS
    while time.monotonic() < end:
        if look():
            return
        time.sleep(0.05)
    raise AssertionError(f"waited in vain: {what}")


class WithinUnit(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home, self.runtime = (os.path.join(folder.name, name) for name in ("home", "run"))
        os.makedirs(self.runtime, mode=0o700)
        settings = os.path.join(self.home, ".config/horavex/registry.ini")
        os.makedirs(os.path.dirname(settings))
        with open(settings, "w", encoding="utf-8") as file:
            file.write("[Software\\\\Horavex\\\\Settings]\nIsha Dep Angle=18\n")
        bus, sound = (os.path.join(self.runtime, name) for name in ("bus", "sound"))
        self.environment = {
            "HOME": self.home, "XDG_RUNTIME_DIR": self.runtime, "PATH": os.environ["PATH"], "TZ": "UTC",
            "LC_ALL": "C.UTF-8", "DBUS_SESSION_BUS_ADDRESS": f"unix:path={bus}",
            "PULSE_SERVER": f"unix:{sound}", "PULSE_COOKIE": os.path.join(self.runtime, "cookie")}
        self.start(["dbus-daemon", "--session", "--nofork", f"--address=unix:path={bus}"])
        self.start(["pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                    "--disable-shm=yes",
                    f"--load=module-native-protocol-unix socket={sound} auth-anonymous=1",
                    "--load=module-null-sink sink_name=nul rate=44100 norewinds=1"],
                   HOME=folder.name)
        wait_for("bus and sound", lambda: os.path.exists(bus) and os.path.exists(sound))

    def start(self, words, preexec_fn=None, **variables):
        process = subprocess.Popen(words, env=self.environment | variables, preexec_fn=preexec_fn,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def told(self, *words):
        return subprocess.run(words, env=self.environment, capture_output=True, text=True,
                              check=False).stdout

    def ctl(self, *words):
        return self.told(os.path.join(PREFIX, "bin/horavexctl"), *words)

    def writable(self):
        """The folder of the home that the unit lets it write to."""
        with open(UNIT, encoding="utf-8") as file:
            path = re.search(r"^ReadWritePaths=.* -%h/(\S+)$", file.read(), re.MULTILINE).group(1)
        return os.path.join(self.home, path)

    def files(self):
        """Those of the home that lie elsewhere."""
        return [os.path.join(place, name) for place, _, names in os.walk(self.home) for name in names
                if not place.startswith(self.writable())]

    def test_service_does_what_it_is_for(self):
        before = self.files()
        service = self.start([os.path.join(PREFIX, "bin/horavex-terminal"), "--no-face"],
                             UNIT_FILTER.load)
        wait_for("the service", lambda: "Mecca" in self.ctl("status"))
        self.ctl("athan", "now")
        wait_for("the athan", lambda: '"Horavex"' in self.told("pactl", "list", "sink-inputs"))
        self.ctl("athan", "stop")
        wait_for("silence", lambda: "Horavex" not in self.told("pactl", "list", "sink-inputs"))
        service.terminate()
        self.assertEqual(service.wait(SECONDS), 0)
        self.assertEqual(self.files(), before)

    def expect_refused(self, line):
        refused = subprocess.run([sys.executable, "-c", line], preexec_fn=UNIT_FILTER.load,
                                 capture_output=True, text=True, check=False)
        self.assertIn("Operation not permitted", refused.stderr)

    def test_other_calls_are_refused(self):
        self.expect_refused(f"import os; os.chown({self.runtime!r}, 1, 1)")
        self.expect_refused("import socket; socket.socket(socket.AF_NETLINK, socket.SOCK_RAW)")
        self.expect_refused("import mmap; mmap.mmap(-1, 1, prot=mmap.PROT_WRITE | mmap.PROT_EXEC)")


if __name__ == "__main__":
    unittest.main()
