#!/usr/bin/python3 -B
"""What the module adds to the library: types, errors, instants, and its packages."""

import doctest
import gc
import inspect
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor
from datetime import date, datetime, timedelta, timezone

import horavex
from horavex import Calendar, Method, Nights, Place, Prayer, Year, _library

SOURCES = os.environ["HORAVEX_TEST_SOURCE_DIR"]
CAIRO = Place(30.05, 31.25, zone="Africa/Cairo")


def run(words, **environment):
    """Runs a program with more in its environment."""
    return subprocess.run(words, env={**os.environ, **environment}, text=True, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)


class Values(unittest.TestCase):
    def test_year_has_its_days_in_order(self):
        year = Year(2028, CAIRO)
        days = [day.date for day in year]
        self.assertEqual(len(year), 366)
        self.assertEqual(days, [date(2028, 1, 1) + timedelta(days=i) for i in range(366)])

    def test_day_of_another_year_is_refused(self):
        with self.assertRaises(horavex.BadArgument):
            Year(2026, CAIRO).day(date(2025, 12, 31))

    def test_times_have_the_offset_of_the_clock(self):
        year = Year(2026, CAIRO)
        for day, hours in ((date(2026, 1, 1), 2), (date(2026, 7, 1), 3)):
            self.assertEqual(year.day(day)[Prayer.ZUHR].time.utcoffset(), timedelta(hours=hours))

    def test_moment_that_does_not_come_is_none(self):
        pole = Year(2026, Place(90.0, 0.0), Method(nights=Nights.MIDDLE))
        missing = [day for day in pole if day.moments[Prayer.MAGHRIB] is None]
        self.assertTrue(missing)
        with self.assertRaises(KeyError):
            missing[0][Prayer.MAGHRIB]

    def test_next_is_told_in_the_zone_of_the_question(self):
        now = datetime(2026, 7, 1, 12, tzinfo=timezone(timedelta(hours=5)))
        found = Year(2026, CAIRO).next(now)
        self.assertGreater(found.time, now)
        self.assertEqual(found.time.utcoffset(), timedelta(hours=5))

    def test_instants_without_a_zone_are_refused(self):
        naive = datetime(2026, 7, 1)
        with self.assertRaises(ValueError):
            Year(2026, CAIRO).next(naive)
        with self.assertRaises(ValueError):
            horavex.moon_at(0.0, 0.0, naive)

    def test_phases_are_all_told(self):
        begin = datetime(1900, 1, 1, tzinfo=timezone.utc)
        found = horavex.moon_phases(begin, datetime(1920, 1, 1, tzinfo=timezone.utc))
        self.assertEqual(len(found), 990)
        self.assertEqual(horavex.moon_phases(begin, begin), [])

    def test_values_do_not_change(self):
        with self.assertRaises(AttributeError):
            CAIRO.latitude = 0.0
        with self.assertRaises(AttributeError):
            Method().fajr_angle = 0.0

    def test_named_method_takes_changes(self):
        method = Method.named("egypt", asr_shadow=2, nights=Nights.ANGLE)
        self.assertEqual((method.fajr_angle, method.asr_shadow, method.nights),
                         (19.5, 2, Nights.ANGLE))


class Errors(unittest.TestCase):
    def test_are_of_their_kind(self):
        with self.assertRaisesRegex(horavex.UnknownName, "Atlantis"):
            Year(2026, Place(0.0, 0.0, zone="Africa/Atlantis"))
        with self.assertRaisesRegex(horavex.UnknownName, "nowhere"):
            Method.named("nowhere")
        with self.assertRaisesRegex(horavex.BadArgument, "latitude"):
            Year(2026, Place(91.0, 0.0))
        with self.assertRaises(horavex.BadArgument):
            horavex.from_hijri(1447, 10, 30, Calendar.UMM_AL_QURA)
        with self.assertRaises(ValueError):
            Year(2026, CAIRO, Method(minutes=(1, 2)))
        with self.assertRaises(TypeError):
            Year("2026", CAIRO)
        for kind in (horavex.BadArgument, horavex.UnknownName, horavex.NoTwilight):
            self.assertTrue(issubclass(kind, horavex.HoravexError))

    def test_tell_the_day_without_twilight(self):
        with self.assertRaises(horavex.NoTwilight) as refusal:
            Year(2026, Place(69.65, 18.96, zone="Europe/Oslo"))
        self.assertGreater(refusal.exception.day_of_year, 1)

    def test_want_of_the_library_is_told(self):
        done = run([sys.executable, "-B", "-c", "import horavex"], HORAVEX_LIBRARY="/nowhere.so")
        self.assertIn("install libhoravex, or name it in HORAVEX_LIBRARY", done.stdout)


class Library(unittest.TestCase):
    def test_structs_are_those_of_the_header(self):
        with open(os.path.join(SOURCES, "lib", "horavex.h"), encoding="utf-8") as file:
            header = re.sub(r"/\*.*?\*/", "", file.read(), flags=re.DOTALL)
        structs = {name: re.findall(r"\*?(\w+)(?:\[\w+\])?;", body) for body, name in
                   re.findall(r"typedef struct \w+ \{(.*?)\} (\w+);", header, re.DOTALL)}
        known = {kind for _, kind in inspect.getmembers(_library, inspect.isclass)
                 if hasattr(kind, "_fields_")}
        names = {re.sub("(?<!^)([A-Z])", r"_\1", kind.__name__).lower(): kind for kind in known}
        self.assertEqual({f"horavex_{name}": [field for field, _ in kind._fields_]
                          for name, kind in names.items()}, structs)

    def test_functions_are_those_of_the_header(self):
        with open(os.path.join(SOURCES, "lib", "symbols.map"), encoding="utf-8") as file:
            listed = set(re.findall(r"horavex_\w+", file.read()))
        self.assertEqual({*_library._CALLS, *_library._PLAIN}, listed)

    def test_years_are_freed(self):
        freed = []
        free = _library.LIBRARY.horavex_year_free
        _library.LIBRARY.horavex_year_free = lambda handle: (freed.append(handle), free(handle))
        try:
            Year(2026, CAIRO)
            gc.collect()
        finally:
            _library.LIBRARY.horavex_year_free = free
        self.assertEqual(len(freed), 1)

    def test_years_of_eight_threads_are_those_of_one(self):
        def times(year):
            return [day.moments for day in Year(year, CAIRO)]
        with ThreadPoolExecutor(8) as pool:
            found = list(pool.map(times, range(2020, 2028)))
        self.assertEqual(found, [times(year) for year in range(2020, 2028)])


class Packages(unittest.TestCase):
    def test_documentation_of_the_module_is_true(self):
        outcome = doctest.testmod(horavex)
        self.assertEqual((outcome.failed, outcome.attempted > 2), (0, True))

    def test_everything_public_is_documented_and_typed(self):
        for name in horavex.__all__:
            value = getattr(horavex, name)
            if inspect.isfunction(value):
                self.assertTrue(value.__doc__, name)
                self.assertNotIn(inspect.Signature.empty,
                                 (inspect.signature(value).return_annotation,
                                  *(parameter.annotation for parameter in
                                    inspect.signature(value).parameters.values())), name)

    def test_types_are_sound(self):
        using = "import horavex\nname: str = horavex.qibla(30.05, 31.25)\n"
        with tempfile.TemporaryDirectory() as folder:
            shutil.copytree(os.path.join(SOURCES, "python"), folder, dirs_exist_ok=True)
            with open(os.path.join(folder, "using.py"), "w", encoding="utf-8") as file:
                file.write(using)
            done = run(["/bin/sh", "-c", "cd $1 && mypy --strict --cache-dir=cache horavex; "
                        "mypy --strict --cache-dir=cache using.py", "sh", folder],
                       PYTHONPATH="", LD_PRELOAD="")
        self.assertRegex(done.stdout, "^Success.*\n.*using.py:2: error: .*float.*str")

    def test_pip_installs_it_with_its_types(self):
        with tempfile.TemporaryDirectory() as folder:
            tree, target = os.path.join(folder, "tree"), os.path.join(folder, "target")
            shutil.copytree(os.path.join(SOURCES, "python"), tree)
            done = run(["/usr/bin/python3", "-m", "pip", "install", "--no-index",
                        "--no-build-isolation", "--target", target, tree], HOME=folder,
                       PYTHONPATH="", LD_PRELOAD="")
            self.assertEqual(done.returncode, 0, done.stdout)
            self.assertTrue(os.path.exists(os.path.join(target, "horavex", "py.typed")))
            told = run([sys.executable, "-B", "-c",
                        "import horavex, importlib.metadata as m; print(horavex.__file__, "
                        "m.version('horavex') == horavex.__version__)"],
                       PYTHONPATH=target)
            self.assertEqual(told.stdout.split(),
                             [os.path.join(target, "horavex", "__init__.py"), "True"])


if __name__ == "__main__":
    unittest.main()
