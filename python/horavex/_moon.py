"""The moon as it stands in the sky, from 1900 to 2100."""

import ctypes
from dataclasses import dataclass
from datetime import datetime
from enum import IntEnum
from typing import List, Optional

from . import _library
from ._instants import instant_of, unix_of


class PhaseKind(IntEnum):
    NEW_MOON = 0
    FIRST_QUARTER = 1
    FULL_MOON = 2
    LAST_QUARTER = 3


@dataclass(frozen=True)
class Phase:
    time: datetime  # in Greenwich
    kind: PhaseKind


@dataclass(frozen=True)
class Moon:
    """The moon over a place at an instant."""

    lit_part: float  # of the disc, 0 to 1
    ahead: float  # degrees before the sun along the ecliptic, 0 up to 360: 0 for a new moon
    age: float  # days since the new moon
    distance: float  # kilometres between the centres of Earth and moon
    altitude: float  # degrees of its centre above the horizon, without refraction
    bearing: float  # degrees from north by east, 0 up to 360


@dataclass(frozen=True)
class MoonDay:
    """What the moon does in a span: the first of each, None where it does not."""

    rise: Optional[datetime]
    transit: Optional[datetime]
    set: Optional[datetime]
    up_at_begin: bool  # and for the whole span where it neither rises nor sets


def moon_phases(begin: datetime, end: datetime) -> List[Phase]:
    """All phases from one aware datetime up to, not including, another, in their order."""
    span = unix_of(begin), unix_of(end)
    count = ctypes.c_size_t()
    room = max(span[1] - span[0], 0) // (5 * 86400) + 1  # they are more than five days apart
    phases = (_library.Phase * min(room, 20000))()
    _library.call("horavex_moon_phases", *span, phases, len(phases), ctypes.byref(count))
    return [Phase(instant_of(phase.unix_time), PhaseKind(phase.phase))
            for phase in phases[:count.value]]


def moon_at(latitude: float, longitude: float, instant: datetime) -> Moon:
    """The moon over a place at an aware datetime."""
    found = _library.Moon()
    _library.call("horavex_moon_at", latitude, longitude, unix_of(instant), ctypes.byref(found))
    return Moon(found.lit_part, found.ahead, found.age, found.distance, found.altitude,
                found.bearing)


def moon_rise_set(latitude: float, longitude: float, begin: datetime, end: datetime) -> MoonDay:
    """What the moon does over a place from one aware datetime up to another, at most two days
    later. Times are in the zone of the first.
    """
    found = _library.MoonDay()
    _library.call("horavex_moon_rise_set", latitude, longitude, unix_of(begin), unix_of(end),
                  ctypes.byref(found))

    def told(happens: int, seconds: int) -> Optional[datetime]:
        return instant_of(seconds).astimezone(begin.tzinfo) if happens else None

    return MoonDay(told(found.rises, found.rise), told(found.transits, found.transit),
                   told(found.sets, found.set), bool(found.up_at_begin))
