"""Instants: aware datetimes outside, whole seconds since 1970 in the library."""

from datetime import datetime, timedelta, timezone

_EPOCH = datetime(1970, 1, 1, tzinfo=timezone.utc)


def unix_of(instant: datetime) -> int:
    """The second that an aware datetime lies in."""
    if instant.tzinfo is None or instant.utcoffset() is None:
        raise ValueError("a datetime without a zone is no instant; give it a tzinfo")
    return (instant - _EPOCH) // timedelta(seconds=1)


def instant_of(seconds: int, utc_offset: int = 0) -> datetime:
    """The same of a clock that is so many seconds ahead of Greenwich."""
    zone = timezone(timedelta(seconds=utc_offset)) if utc_offset else timezone.utc
    return (_EPOCH + timedelta(seconds=seconds)).astimezone(zone)
