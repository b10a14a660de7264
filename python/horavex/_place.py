"""Places, and the direction of Mecca from them."""

import ctypes
from dataclasses import dataclass
from typing import Optional, Tuple

from . import _library


@dataclass(frozen=True)
class Place:
    """A point of the Earth and its clock.

    The clock is that of a zone of the system's zone database; without one it is utc_offset, which
    is an hour more on the days of daylight saving, from the first to the last day of the year that
    are named (1 to 366; a southern summer goes over the turn of the year).
    """

    latitude: float  # degrees, -90 to 90
    longitude: float  # degrees, -180 to 180
    zone: Optional[str] = None  # such as "Africa/Cairo"
    utc_offset: float = 0.0  # hours, -12 to 12
    daylight_saving: Optional[Tuple[int, int]] = None

    def _struct(self) -> _library.Place:
        first, last = self.daylight_saving or (0, 0)
        return _library.Place(
            latitude=self.latitude, longitude=self.longitude,
            zone=None if self.zone is None else self.zone.encode(), utc_offset=self.utc_offset,
            dst_first_day=first, dst_last_day=last)


def qibla(latitude: float, longitude: float) -> float:
    """The direction of Mecca: degrees from north, east positive, -180 to 180."""
    degrees = ctypes.c_double()
    _library.call("horavex_qibla", latitude, longitude, ctypes.byref(degrees))
    return degrees.value
