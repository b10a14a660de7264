"""How times follow from the sun."""

import ctypes
from dataclasses import dataclass
from enum import IntEnum
from typing import Any, Dict, Tuple

from . import _library
from ._hijri import Calendar


class Nights(IntEnum):
    """What becomes of Fajr and Isha in nights in which the sun does not sink to the angle."""

    NONE = 0  # a year that has such a night raises NoTwilight
    MIDDLE = 1  # half of the night, at the most
    SEVENTH = 2  # a seventh
    ANGLE = 3  # a sixtieth for each degree of the angle
    NEAREST = 4  # the hour of the last day that had it


class Sun(IntEnum):
    """The sun of a year."""

    OF_THE_DAY = 0
    OF_THE_TABLE = 1  # in some years that of the next day, as the program has it by default


@dataclass(frozen=True)
class Method:
    """Angles are degrees of depression, intervals minutes from Maghrib to Isha."""

    fajr_angle: float = 18.0
    isha_angle: float = 17.0
    maghrib_angle: float = 0.0  # 0 to 10; 0 for sunset
    asr_shadow: int = 1  # 1, or 2 as the Hanafi school has it
    isha_interval: int = 0  # 0 to 180; 0 for the angle
    isha_interval_ramadan: int = 0  # the same in Ramadan; 0 for no difference
    minutes: Tuple[int, int, int, int, int, int] = (0, 0, 0, 0, 0, 0)  # added to the six times
    nights: Nights = Nights.NONE
    sun: Sun = Sun.OF_THE_DAY
    hijri: Calendar = Calendar.UMM_AL_QURA
    hijri_adjustment: int = 0  # days added to the Hijri date, -2 to 2

    @classmethod
    def named(cls, key: str, **changes: Any) -> "Method":
        """That of an authority, by its key in methods(); changes stand in the place of its own."""
        struct = cls()._struct()
        _library.call("horavex_method_take", ctypes.byref(struct), key.encode())
        told = {"fajr_angle": struct.fajr_angle, "isha_angle": struct.isha_angle,
                "maghrib_angle": struct.maghrib_angle, "asr_shadow": struct.asr_shadow,
                "isha_interval": struct.isha_interval,
                "isha_interval_ramadan": struct.isha_interval_ramadan,
                "minutes": tuple(struct.minutes)}
        return cls(**{**told, **changes})

    def _struct(self) -> _library.Method:
        fields = {name: getattr(self, name) for name in self.__dataclass_fields__}
        if len(self.minutes) != _library.PRAYERS:
            raise ValueError("minutes are those of six times")
        fields["minutes"] = (ctypes.c_int32 * _library.PRAYERS)(*self.minutes)
        return _library.Method(**fields)


def methods() -> Dict[str, str]:
    """The names of the authorities by their keys."""
    found: Dict[str, str] = {}
    while key := _library.LIBRARY.horavex_method_key(len(found)):
        found[key.decode()] = _library.LIBRARY.horavex_method_name(len(found)).decode()
    return found
