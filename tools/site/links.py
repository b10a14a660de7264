"""What a page of HTML leads to."""

from html.parser import HTMLParser
import posixpath
from urllib.parse import unquote, urlsplit


class Links(HTMLParser):
    """The addresses of a page: of links, and of what it is shown with; and its own anchors."""

    def __init__(self, html):
        super().__init__()
        self.links = []  # where a reader may go
        self.loads = []  # what the page needs to be shown
        self.anchors = {""}
        self.feed(html)

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if "id" in values:
            self.anchors.add(values["id"])
        if "src" in values:
            self.loads.append(values["src"])
        if "href" in values:
            (self.links if tag == "a" else self.loads).append(values["href"])


def local_targets(html, path):
    """The files of the site that a page in this place leads to or shows."""
    page = Links(html)
    return [target for address in page.links + page.loads
            if (target := split_address(address, path)[0]) is not None]


def split_address(address, path):
    """File and anchor that an address means on a page in this place; no file where it is outside."""
    parts = urlsplit(address)
    if parts.scheme or parts.netloc:
        return None, ""
    target = posixpath.normpath(posixpath.join(posixpath.dirname(path), unquote(parts.path)))
    return (target if parts.path else path), unquote(parts.fragment)
