"""Pages of the program's help, in all its languages."""

from html.parser import HTMLParser
import os
import re

from page import Page, Section, anchor_of


def help_pages(root):
    """The pages of each language, in the order in which its first page names them."""
    languages = {}
    folder = os.path.join(root, "data", "help")
    for language in sorted(os.listdir(folder)):
        pages = {name: _page(root, f"data/help/{language}/{name}")
                 for name in os.listdir(os.path.join(folder, language))}
        order = ["index.html"] + re.findall(r'href="([^"#]*)"', pages["index.html"].body)
        languages[language] = [pages[name] for name in dict.fromkeys(order + sorted(pages))]
    return languages


def _page(root, source):
    with open(os.path.join(root, source), encoding="utf-8") as file:
        text = file.read()
    reader = _Reader()
    reader.feed(text)
    body = re.search(r"<body>(.*)</body>", text, re.DOTALL).group(1)
    anchors = iter([section.anchor for section in reader.sections])
    body = re.sub(r"<(h[1-6])>", lambda tag: f'<{tag[1]} id="{next(anchors)}">', body)
    body = re.sub(r"<table( dir=\"\w+\")?[^>]*>", r'<div class="wide"><table\1>', body)
    body = body.replace("</table>", "</table></div>")
    return Page(source.removeprefix("data/"), source, reader.sections[0].title, body,
                reader.sections, reader.language, reader.direction)


class _Reader(HTMLParser):
    """Takes language, direction and sections from a page."""

    def __init__(self):
        super().__init__()
        self.language = "en"
        self.direction = "ltr"
        self.sections = []
        self._taken = set()
        self._in_heading = False
        self._title = ""

    def handle_starttag(self, tag, attrs):
        if tag == "html":
            self.language = dict(attrs)["lang"]
            self.direction = dict(attrs)["dir"]
        if re.fullmatch("h[1-6]", tag):
            self._in_heading, self._title = True, ""

    def handle_endtag(self, tag):
        if re.fullmatch("h[1-6]", tag):
            self._in_heading = False
            title = " ".join(self._title.split())
            self.sections.append(Section(anchor_of(title, self._taken), title, int(tag[1])))

    def handle_data(self, data):
        if self._in_heading:
            self._title += data
        elif self.sections:
            self.sections[-1].text += data
