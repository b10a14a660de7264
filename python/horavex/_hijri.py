"""Hijri dates."""

import ctypes
from datetime import date
from enum import IntEnum
from typing import NamedTuple, Tuple

from . import _library


class Calendar(IntEnum):
    """Where Hijri dates come from."""

    UMM_AL_QURA = 0  # as published for 1356 to 1500, arithmetically before and after
    ARITHMETIC = 1


class HijriDate(NamedTuple):
    year: int
    month: int  # 1 Muharram to 12 Dhu al-Hijja
    day: int


def to_hijri(day: date, calendar: Calendar = Calendar.UMM_AL_QURA,
             adjustment: int = 0) -> HijriDate:
    """The Hijri date of a day. adjustment: days added to it, -2 to 2."""
    found = _convert("horavex_hijri_of", (day.year, day.month, day.day), calendar, adjustment)
    return HijriDate(*found)


def from_hijri(year: int, month: int, day: int, calendar: Calendar = Calendar.UMM_AL_QURA,
               adjustment: int = 0) -> date:
    """The day that has a Hijri date. Raises BadArgument for a date that the calendar lacks."""
    return date(*_convert("horavex_date_of", (year, month, day), calendar, adjustment))


def _convert(name: str, numbers: Tuple[int, int, int], calendar: Calendar,
             adjustment: int) -> Tuple[int, int, int]:
    found = _library.Date()
    _library.call(name, calendar, adjustment, ctypes.byref(_library.Date(*numbers)),
                  ctypes.byref(found))
    return found.year, found.month, found.day
