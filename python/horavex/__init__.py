"""Prayer times of a year, qibla, Hijri dates and the moon, as Horavex works them out.

    >>> import datetime, horavex
    >>> cairo = horavex.Place(30.05, 31.25, zone="Africa/Cairo")
    >>> year = horavex.Year(2026, cairo, horavex.Method.named("egypt"))
    >>> print(year.day(datetime.date(2026, 6, 21))[horavex.Prayer.MAGHRIB].time)
    2026-06-21 19:59:17+03:00

Degrees are north and east positive. Times are aware datetimes. Values never change, nothing is kept
between calls, and any thread may call anything.
"""

from ._errors import BadArgument, HoravexError, NoAnswer, NoTwilight, UnknownName
from ._hijri import Calendar, HijriDate, from_hijri, to_hijri
from ._library import VERSION as __version__
from ._method import Method, Nights, Sun, methods
from ._moon import Moon, MoonDay, Phase, PhaseKind, moon_at, moon_phases, moon_rise_set
from ._place import Place, qibla
from ._year import By, Day, Moment, Next, Prayer, Year

__all__ = [
    "BadArgument", "By", "Calendar", "Day", "HijriDate", "HoravexError", "Method", "Moment",
    "Moon", "MoonDay", "Next", "Nights", "NoAnswer", "NoTwilight", "Phase", "PhaseKind", "Place",
    "Prayer", "Sun", "UnknownName", "Year", "__version__", "from_hijri", "methods", "moon_at",
    "moon_phases", "moon_rise_set", "qibla", "to_hijri",
]
