"""A page of the site, whatever it is made from."""

from dataclasses import dataclass, field


@dataclass
class Section:
    """A part of a page that a search can find: a heading with what stands below it."""
    anchor: str
    title: str
    level: int  # 1 is the page's own title
    text: str = ""


@dataclass
class Page:
    path: str  # in the site, "docs/bus.html"
    source: str  # among the sources, "docs/bus.md"; empty where there is no one file
    title: str
    body: str  # HTML
    sections: list = field(default_factory=list)
    language: str = "en"  # as in the lang of HTML
    direction: str = "ltr"


def anchor_of(title, taken):
    """A name for a heading that no other one of the page has."""
    words = "".join(c if c.isalnum() else " " for c in title.lower()).split()
    stem = "-".join(words) or "section"
    anchor, number = stem, 1
    while anchor in taken:
        number += 1
        anchor = f"{stem}-{number}"
    taken.add(anchor)
    return anchor
