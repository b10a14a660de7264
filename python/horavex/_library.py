"""The shared library: where it is found, its structs and functions, and its errors as exceptions.

The library is the system's own, not a copy inside the package: it stands on other libraries of the
system, which a package of Python could not bring up to date. HORAVEX_LIBRARY names another one.
"""

import ctypes
import os
from typing import Any, Dict, List, Tuple, Type

from ._errors import BadArgument, HoravexError, NoAnswer, NoTwilight, UnknownName

NAME = "libhoravex.so.0"
PRAYERS = 6


def _load() -> ctypes.CDLL:
    path = os.environ.get("HORAVEX_LIBRARY") or NAME
    try:
        return ctypes.CDLL(path)
    except OSError as error:
        raise ImportError(f"{error}; install libhoravex, or name it in HORAVEX_LIBRARY") from error


class Sized(ctypes.Structure):
    """A struct that tells its size; so the library knows how much of it there is."""

    def __init__(self, **fields: Any) -> None:
        super().__init__(size=ctypes.sizeof(self), **fields)


class Error(Sized):
    _fields_ = [("size", ctypes.c_size_t), ("status", ctypes.c_int32),
                ("day_of_year", ctypes.c_int32), ("text", ctypes.c_char * 240)]


class Place(Sized):
    _fields_ = [("size", ctypes.c_size_t), ("latitude", ctypes.c_double),
                ("longitude", ctypes.c_double), ("zone", ctypes.c_char_p),
                ("utc_offset", ctypes.c_double), ("dst_first_day", ctypes.c_int32),
                ("dst_last_day", ctypes.c_int32)]


class Method(Sized):
    _fields_ = [("size", ctypes.c_size_t), ("fajr_angle", ctypes.c_double),
                ("isha_angle", ctypes.c_double), ("maghrib_angle", ctypes.c_double),
                ("asr_shadow", ctypes.c_int32), ("isha_interval", ctypes.c_int32),
                ("isha_interval_ramadan", ctypes.c_int32), ("minutes", ctypes.c_int32 * PRAYERS),
                ("nights", ctypes.c_int32), ("sun", ctypes.c_int32), ("hijri", ctypes.c_int32),
                ("hijri_adjustment", ctypes.c_int32), ("reserved", ctypes.c_int32)]


class Date(ctypes.Structure):
    _fields_ = [("year", ctypes.c_int32), ("month", ctypes.c_int32), ("day", ctypes.c_int32)]


class Moment(ctypes.Structure):
    _fields_ = [("hours", ctypes.c_double), ("unix_time", ctypes.c_int64),
                ("utc_offset", ctypes.c_int32), ("by", ctypes.c_int32)]


class Day(Sized):
    _fields_ = [("size", ctypes.c_size_t), ("day_of_year", ctypes.c_int32), ("date", Date),
                ("hijri", Date), ("reserved", ctypes.c_int32), ("moments", Moment * PRAYERS)]


class Next(Sized):
    _fields_ = [("size", ctypes.c_size_t), ("prayer", ctypes.c_int32), ("day", ctypes.c_int32),
                ("unix_time", ctypes.c_int64)]


class Phase(ctypes.Structure):
    _fields_ = [("unix_time", ctypes.c_int64), ("phase", ctypes.c_int32),
                ("reserved", ctypes.c_int32)]


class Moon(Sized):
    _fields_ = [("size", ctypes.c_size_t), ("lit_part", ctypes.c_double),
                ("ahead", ctypes.c_double), ("age", ctypes.c_double),
                ("distance", ctypes.c_double), ("altitude", ctypes.c_double),
                ("bearing", ctypes.c_double)]


class MoonDay(Sized):
    _fields_ = [("size", ctypes.c_size_t), ("rise", ctypes.c_int64), ("transit", ctypes.c_int64),
                ("set", ctypes.c_int64), ("rises", ctypes.c_int32), ("transits", ctypes.c_int32),
                ("sets", ctypes.c_int32), ("up_at_begin", ctypes.c_int32)]


_Degrees = ctypes.c_double
_Seconds = ctypes.c_int64
_Year = ctypes.c_void_p
_to = ctypes.POINTER

# What functions take in front of an Error; they give a status.
_CALLS: Dict[str, List[Any]] = {
    "horavex_method_take": [_to(Method), ctypes.c_char_p],
    "horavex_year_make": [_to(Place), _to(Method), ctypes.c_int32, _to(_Year)],
    "horavex_year_day": [_Year, ctypes.c_int32, _to(Day)],
    "horavex_year_next": [_Year, _Seconds, _to(Next)],
    "horavex_qibla": [_Degrees, _Degrees, _to(_Degrees)],
    "horavex_hijri_of": [ctypes.c_int32, ctypes.c_int32, _to(Date), _to(Date)],
    "horavex_date_of": [ctypes.c_int32, ctypes.c_int32, _to(Date), _to(Date)],
    "horavex_moon_phases": [_Seconds, _Seconds, _to(Phase), ctypes.c_size_t,
                            _to(ctypes.c_size_t)],
    "horavex_moon_at": [_Degrees, _Degrees, _Seconds, _to(Moon)],
    "horavex_moon_rise_set": [_Degrees, _Degrees, _Seconds, _Seconds, _to(MoonDay)],
}

# What the others take and give.
_PLAIN: Dict[str, Tuple[List[Any], Any]] = {
    "horavex_version": ([], ctypes.c_char_p),
    "horavex_method_key": ([ctypes.c_size_t], ctypes.c_char_p),
    "horavex_method_name": ([ctypes.c_size_t], ctypes.c_char_p),
    "horavex_year_days": ([_Year], ctypes.c_int32),
    "horavex_year_free": ([_Year], None),
}


def _declare(library: ctypes.CDLL) -> ctypes.CDLL:
    for name, taken in _CALLS.items():
        function = getattr(library, name)
        function.argtypes = [*taken, _to(Error)]
        function.restype = ctypes.c_int
    for name, (taken, given) in _PLAIN.items():
        function = getattr(library, name)
        function.argtypes = taken
        function.restype = given
    return library


LIBRARY = _declare(_load())
VERSION: str = LIBRARY.horavex_version().decode()

_BAD_ARGUMENT, _UNKNOWN_NAME, _NO_TWILIGHT, _NO_MEMORY = 1, 2, 3, 5


def call(name: str, *arguments: Any) -> None:
    """Calls a function that takes an Error last; raises what it tells."""
    error = Error()
    try:
        status = getattr(LIBRARY, name)(*arguments, ctypes.byref(error))
    except ctypes.ArgumentError as wrong:
        raise TypeError(str(wrong)) from wrong
    if status != 0:
        raise _exception(status, error)


def _exception(status: int, error: Error) -> Exception:
    text = error.text.decode(errors="replace")
    if status == _NO_TWILIGHT:
        return NoTwilight(text, error.day_of_year)
    if status == _NO_MEMORY:
        return MemoryError(text)
    kinds: Dict[int, Type[HoravexError]] = {_BAD_ARGUMENT: BadArgument,
                                            _UNKNOWN_NAME: UnknownName}
    return kinds.get(status, NoAnswer)(text)
