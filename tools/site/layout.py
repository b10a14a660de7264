"""The frame around each page: contents, search, and what it is made of."""

from html import escape
import json
import os
import posixpath

FOLDER = os.path.dirname(os.path.realpath(__file__))


class Layout:
    """Puts pages into the frame of template.html."""

    def __init__(self):
        with open(os.path.join(FOLDER, "template.html"), encoding="utf-8") as file:
            self._template = file.read()

    def html(self, page, parts, words):
        """The whole page. Parts are titles with pages; words those of the frame by name."""
        home = posixpath.relpath(".", posixpath.dirname(page.path) or ".")
        title = page.title if page.title == "Horavex" else f"{page.title} – Horavex"
        values = {"LANGUAGE": page.language, "DIRECTION": page.direction, "TITLE": escape(title),
                  "HOME": home, "CONTENTS": _contents(page, parts), "BODY": page.body,
                  "INDEX": index_path(page)}
        values |= {name.upper(): escape(text) for name, text in words.items()}
        html = self._template
        for name in sorted(values, key=lambda name: name == "BODY"):  # what pages say stays theirs
            html = html.replace("{" + name + "}", values[name])
        return html


def index_path(page):
    """The index that a page's search looks into: of all pages in its language."""
    return f"search/{page.language}.js"


def index_script(pages):
    """A script with the sections of pages: address, title of the page, heading, text."""
    rows = [[page.path + (f"#{section.anchor}" if section.anchor else ""), page.title,
             section.title, " ".join(section.text.split())]
            for page in pages for section in page.sections]
    return "window.searchIndex = " + json.dumps(rows, ensure_ascii=False) + ";\n"


def _contents(page, parts):
    lines = []
    for title, pages in parts:
        lines += [f"<h2>{escape(title)}</h2>", "<ul>"]
        lines += [_entry(page, other) for other in pages]
        lines.append("</ul>")
    return "\n".join(lines)


def _entry(page, other):
    address = posixpath.relpath(other.path, posixpath.dirname(page.path) or ".")
    language = f' lang="{other.language}" dir="{other.direction}"'
    language = language if other.language != page.language else ""
    here = ' aria-current="page"' if other is page else ""
    entry = f'<li><a href="{address}"{here}{language}>{escape(other.title)}</a>'
    below = [section for section in page.sections if section.level == 2] if other is page else []
    if below:
        entry += "<ul>" + "".join(f'<li><a href="#{section.anchor}">{escape(section.title)}</a></li>'
                                  for section in below) + "</ul>"
    return entry + "</li>"
