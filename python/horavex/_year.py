"""Years, their days and the moments of these."""

import ctypes
import weakref
from dataclasses import dataclass
from datetime import date, datetime
from enum import IntEnum
from typing import Dict, Iterator, Optional

from . import _library
from ._errors import BadArgument
from ._hijri import HijriDate
from ._instants import instant_of, unix_of
from ._method import Method
from ._place import Place


class Prayer(IntEnum):
    """The six times of a day; Shurooq is sunrise, at which nobody prays."""

    FAJR = 0
    SHUROOQ = 1
    ZUHR = 2
    ASR = 3
    MAGHRIB = 4
    ISHA = 5


class By(IntEnum):
    """What a moment was worked out by."""

    SUN = 1  # the sun stands where the method wants it
    RULE = 2  # a rule for nights without twilight
    INTERVAL = 3  # so long after another moment


@dataclass(frozen=True)
class Moment:
    hours: float  # of the local clock from the midnight that begins the day, not rounded
    time: datetime  # the same to the second, with the offset of the clock
    by: By


@dataclass(frozen=True)
class Day:
    date: date
    hijri: HijriDate
    moments: Dict[Prayer, Optional[Moment]]  # None where the sun does not get there

    def __getitem__(self, prayer: Prayer) -> Moment:
        """A moment; raises KeyError where it does not come."""
        moment = self.moments[prayer]
        if moment is None:
            raise KeyError(prayer)
        return moment


@dataclass(frozen=True)
class Next:
    prayer: Prayer
    day: int  # whose it is: 0 today's, 1 tomorrow's, -1 yesterday's, behind midnight
    time: datetime


class Year:
    """The times of a Gregorian year, 1 to 9999, worked out once."""

    def __init__(self, year: int, place: Place, method: Method = Method()) -> None:
        handle = ctypes.c_void_p()
        _library.call("horavex_year_make", ctypes.byref(place._struct()),
                      ctypes.byref(method._struct()), year, ctypes.byref(handle))
        self.year = year
        self.place = place
        self.method = method
        self._handle = handle
        weakref.finalize(self, _library.LIBRARY.horavex_year_free, handle)

    def __len__(self) -> int:
        return int(_library.LIBRARY.horavex_year_days(self._handle))

    def __iter__(self) -> Iterator[Day]:
        return (self._day(number) for number in range(1, len(self) + 1))

    def day(self, day: date) -> Day:
        """One of its days."""
        if day.year != self.year:
            raise BadArgument(f"{day} is not in the year {self.year}")
        return self._day(day.timetuple().tm_yday)

    def next(self, instant: datetime) -> Next:
        """The prayer that comes after an aware datetime, whose day by the place's clock is in the
        year. Its time is in the same zone. The first and the last day of the year stand for those
        beside it.
        """
        found = _library.Next()
        _library.call("horavex_year_next", self._handle, unix_of(instant), ctypes.byref(found))
        return Next(Prayer(found.prayer), found.day,
                    instant_of(found.unix_time).astimezone(instant.tzinfo))

    def _day(self, number: int) -> Day:
        found = _library.Day()
        _library.call("horavex_year_day", self._handle, number, ctypes.byref(found))
        told = found.date
        hijri = found.hijri
        return Day(date(told.year, told.month, told.day),
                   HijriDate(hijri.year, hijri.month, hijri.day),
                   {prayer: _moment(found.moments[prayer]) for prayer in Prayer})


def _moment(found: _library.Moment) -> Optional[Moment]:
    if found.by == 0:
        return None
    return Moment(found.hours, instant_of(found.unix_time, found.utc_offset), By(found.by))
