"""What a call raises that has no answer."""


class HoravexError(Exception):
    """Any answer but a good one; its text tells why."""


class BadArgument(HoravexError, ValueError):
    """A value outside its range, or a date that its calendar does not have."""


class UnknownName(HoravexError, LookupError):
    """There is no such zone or method."""


class NoTwilight(HoravexError):
    """Without a rule for the nights a day of the year has no Fajr or Isha."""

    day_of_year: int  # 1 for the first of January

    def __init__(self, text: str, day_of_year: int) -> None:
        super().__init__(text)
        self.day_of_year = day_of_year


class NoAnswer(HoravexError):
    """The calculation has none for these values."""
