#!/usr/bin/python3 -B
"""The module tells what horavexctl tells: to the last bit where it has a number."""

import unittest
from datetime import date, datetime, timedelta, timezone

import horavex
from horavex import By, Calendar, Method, Nights, Place, Prayer, Sun, Year
from horavexctl import ask

NO_EVENT = 10000000.0  # horavexctl's hours of what does not come
BY = {"sun": By.SUN, "rule": By.RULE, "interval": By.INTERVAL}
CITIES = ["Cairo", "London", "Jakarta", "Mecca", "Tromso"]
POINTS = [  # latitude, longitude, what horavexctl takes, what the module takes
    (30.05, 31.25, ["--zone", 2], {"utc_offset": 2.0}),
    (-33.87, 151.21, ["--time-zone", "Australia/Sydney"], {"zone": "Australia/Sydney"}),
    (-43.53, 172.64, ["--zone", 12, "--dst-start", 270, "--dst-end", 95],
     {"utc_offset": 12.0, "daylight_saving": (270, 95)}),
    (40.71, -74.01, ["--time-zone", "America/New_York"], {"zone": "America/New_York"}),
    (-0.32, -78.5, ["--zone", -4.5], {"utc_offset": -4.5}),
]


def method_of(told, **changes):
    """The method that horavexctl has taken for a city."""
    keys = {name: key for key, name in horavex.methods().items()}
    return Method.named(keys[told["method"]], nights=Nights[told["highLatitudeRule"].upper()],
                        **changes)


def city(name, year):
    """What horavexctl tells of a city's year, and its place."""
    told = ask("year", "--city", name, "--year", year)
    return told, Place(told["latitude"], told["longitude"], zone=told["timeZone"]["name"])


class Years(unittest.TestCase):
    def check(self, told, year):
        self.assertEqual(len(year), len(told["times"]))
        for day, hours, moments in zip(year, told["times"], told["moments"]):
            for prayer in Prayer:
                self.check_moment(day, prayer, hours[prayer], moments[prayer])

    def check_moment(self, day, prayer, hours, told):
        moment = day.moments[prayer]
        if told["local"] is None:
            self.assertIsNone(moment, day.date)
            self.assertGreaterEqual(hours, NO_EVENT)
            return
        self.assertEqual(moment.hours, hours, day.date)
        self.assertEqual(moment.time.isoformat(), told["local"])
        self.assertEqual(moment.by, BY[told["by"]])

    def test_of_cities_are_the_same(self):
        for name in CITIES:
            with self.subTest(name):
                told, place = city(name, 2026)
                self.check(told, Year(2026, place, method_of(told)))

    def test_of_points_are_the_same(self):
        for latitude, longitude, words, clock in POINTS:
            for number in (1999, 2024):  # the sun is another one in the second
                with self.subTest(f"{latitude} {number}"):
                    told = ask("year", "--year", number, "--latitude", latitude, "--longitude",
                               longitude, "--fajr", 18, "--isha", 17.5, "--asr", 2, *words)
                    method = Method(isha_angle=17.5, asr_shadow=2, sun=Sun.OF_THE_TABLE,
                                    hijri=Calendar.ARITHMETIC)
                    self.check(told, Year(number, Place(latitude, longitude, **clock), method))

    def test_under_each_rule_of_the_nights_are_the_same(self):
        for nights in list(Nights)[1:]:
            with self.subTest(nights.name):
                rules = ["--high-latitude", nights.name.lower(), "--maghrib-angle", 2,
                         "--offset", "fajr=2,isha=-3"]
                told = ask("year", "--city", "Oslo", "--year", 2027, *rules)
                _, place = city("Oslo", 2027)
                method = method_of(told, maghrib_angle=2.0, minutes=(2, 0, 0, 0, 0, -3))
                self.check(told, Year(2027, place, method))

    def test_without_twilight_fail_on_the_same_day(self):
        told = ask("year", "--year", 2026, "--latitude", 69.65, "--longitude", 18.96, "--zone", 1,
                   "--fajr", 18, "--isha", 17, "--asr", 1)
        with self.assertRaises(horavex.NoTwilight) as refusal:
            Year(2026, Place(69.65, 18.96, utc_offset=1.0), Method(sun=Sun.OF_THE_TABLE))
        self.assertEqual(refusal.exception.day_of_year, told["failure"]["row"] + 1)


class Days(unittest.TestCase):
    def test_are_the_same_at_any_hour(self):
        for name in CITIES:
            _, place = city(name, 2026)
            for hour in range(0, 24, 5):
                with self.subTest(f"{name} {hour}"):
                    self.check_day(name, place, f"2026-07-0{hour // 5 + 1}T{hour:02}:30:15")

    def check_day(self, name, place, at):
        told = ask("today", "--city", name, "--at", at, "--hijri", "umm-al-qura")
        year = Year(2026, place, method_of(told))
        day = year.day(date.fromisoformat(told["date"]))
        self.assertEqual([moment and moment.time.isoformat() for moment in day.moments.values()],
                         [moment["local"] for moment in told["moments"]])
        self.assertEqual(tuple(day.hijri), tuple(told["hijri"][key]
                                                 for key in ("year", "month", "day")))
        zone = timezone(timedelta(hours=told["timeZone"]["offset"]))
        now = datetime.fromisoformat(at).replace(tzinfo=zone)
        following = year.next(now)
        self.assertEqual(following.prayer, told["next"]["index"])
        self.assertEqual(following.time - now,
                         timedelta(seconds=told["next"]["remainingSeconds"]))
        self.assertEqual(horavex.qibla(place.latitude, place.longitude), told["qibla"]["degrees"])


class Qiblas(unittest.TestCase):
    def test_are_the_same(self):
        for latitude, longitude in ((0.0, 0.0), (90.0, 0.0), (-33.87, 151.21), (21.42, 39.82),
                                    (-21.42, -140.18), (64.15, -21.94), (-90.0, 180.0)):
            told = ask("qibla", f"--latitude={latitude}", f"--longitude={longitude}")
            self.assertEqual(horavex.qibla(latitude, longitude), told["degrees"])


class HijriDates(unittest.TestCase):
    def test_are_the_same_both_ways(self):
        for day in (date(622, 7, 19), date(1900, 1, 1), date(1937, 3, 14), date(1999, 12, 31),
                    date(2026, 2, 18), date(2026, 11, 23), date(2077, 11, 17), date(9000, 6, 1)):
            with self.subTest(day):
                told = ask("hijri", "--date", day.isoformat())
                hijri = horavex.to_hijri(day)
                self.assertEqual(tuple(hijri), (told["year"], told["month"], told["day"]))
                back = ask("gregorian", "--date", "{:04}-{:02}-{:02}".format(*hijri))
                self.assertEqual(horavex.from_hijri(*hijri),
                                 date(back["year"], back["month"], back["day"]))


class Moons(unittest.TestCase):
    KINDS = {"newMoon": 0, "firstQuarter": 1, "fullMoon": 2, "lastQuarter": 3}

    def test_phases_are_the_same(self):
        for year in (1901, 2026, 2099):
            told = ask("phases", "--latitude", 51.5, "--longitude", 0, "--zone", 0, "--year", year)
            found = horavex.moon_phases(datetime(year, 1, 1, tzinfo=timezone.utc),
                                        datetime(year + 1, 1, 1, tzinfo=timezone.utc))
            self.assertEqual([phase.kind for phase in found],
                             [self.KINDS[phase["phase"]] for phase in told["phases"]])
            for phase, expected in zip(found, told["phases"]):
                self.assert_same_second(phase.time, expected["local"])

    def test_rise_set_and_place_are_the_same(self):
        for latitude, longitude, hours in ((30.05, 31.25, 2), (69.65, 18.96, 1), (-33.87, 151.21, 10)):
            for day in range(1, 29, 9):
                at = datetime(2026, 6, day, 15, tzinfo=timezone(timedelta(hours=hours)))
                with self.subTest(f"{latitude} {day}"):
                    told = ask("sky", f"--latitude={latitude}", "--longitude", longitude, "--zone",
                               hours, "--at", at.replace(tzinfo=None).isoformat())["moon"]
                    self.check_moon(told, latitude, longitude, at)

    def check_moon(self, told, latitude, longitude, at):
        moon = horavex.moon_at(latitude, longitude, at)
        for name, key in (("lit_part", "litPart"), ("ahead", "ahead"), ("distance", "distance"),
                          ("altitude", "altitude"), ("bearing", "bearing")):
            self.assertAlmostEqual(getattr(moon, name), told[key], delta=1e-5 * abs(told[key]))
        midnight = at.replace(hour=0)
        day = horavex.moon_rise_set(latitude, longitude, midnight, midnight + timedelta(days=1))
        self.assertEqual(day.up_at_begin, told["upAtMidnight"])
        for time, key in ((day.rise, "rise"), (day.transit, "transit"), (day.set, "set")):
            self.assertEqual(time is None, told[key] is None)
            if time:
                self.assert_same_second(time, told[key])

    def assert_same_second(self, time, told):
        """Both round, and a half may go to either side."""
        self.assertLessEqual(abs(time - datetime.fromisoformat(told)), timedelta(seconds=1))


class Methods(unittest.TestCase):
    def test_are_the_same(self):
        for told in ask("methods"):
            method = Method.named(told["key"])
            self.assertEqual(horavex.methods()[told["key"]], told["name"])
            self.assertEqual(method.fajr_angle, told["fajrAngle"])
            self.assertEqual(method.isha_angle, told["ishaAngle"] or Method().isha_angle)
            self.assertEqual(method.isha_interval, told["ishaInterval"])
            self.assertEqual(method.isha_interval_ramadan, told["ishaIntervalRamadan"])
            self.assertEqual(method.maghrib_angle, told["maghribAngle"])
            self.assertEqual(method.minutes, tuple(told["offsets"].values()))
        self.assertEqual(len(horavex.methods()), len(ask("methods")))


if __name__ == "__main__":
    unittest.main()
