"""The whole site, from the sources into a folder."""

import os
import posixpath
import shutil

from contents import parts_of
from documents import document_page
from gallery import copy_sheets, gallery_page
from help_pages import help_pages
from layout import FOLDER, Layout, index_path, index_script
from links import local_targets
from packs import word
from page import Page, Section

ENGLISH = {"search": "Search", "contents_name": "Contents", "skip": "To the text"}


class SiteFault(Exception):
    """Something that the site needs is not there; the text names it."""


def build(root, site, sheets=None):
    """Makes the site. Returns the number of its pages."""
    parts = _document_parts(root)
    languages = help_pages(root)
    gallery = gallery_page(root, sheets)
    overview = _help_overview(languages)
    parts.insert(1, ("See and read", [gallery, overview]))
    _clear(site)
    layout = Layout()
    documents = [page for _, pages in parts for page in pages]
    for page in documents:
        _write(site, page.path, layout.html(page, parts, ENGLISH))
    for language, pages in languages.items():
        words = {"search": word(root, language, "lblSearch"), "skip": pages[0].title,
                 "contents_name": word(root, language, "mnuHelp")}
        beside = [(words["contents_name"], pages), ("Horavex", [overview])]
        for page in pages:
            _write(site, page.path, layout.html(page, beside, words))
    everything = documents + [page for pages in languages.values() for page in pages]
    _write_indexes(site, everything)
    for name in ("site.css", "search.js"):
        shutil.copy(os.path.join(FOLDER, name), site)
    if sheets:
        copy_sheets(sheets, site)
    _bring_targets(root, site, everything)
    return len(everything)


def _document_parts(root):
    parts = parts_of(root)
    documents = {path for _, paths in parts for path in paths}
    return [(title, [document_page(path, _read(root, path), documents) for path in paths])
            for title, paths in parts]


def _help_overview(languages):
    """The page that leads to the help of each language, in that language's words."""
    rows = "\n".join(
        f'<li lang="{pages[0].language}"><a href="{language}/index.html"><bdi>{pages[0].title}'
        f"</bdi></a> – {language}</li>" for language, pages in languages.items())
    body = f"<h1>The program's help</h1>\n<p>As F1 shows it, in each language.</p>\n<ul>{rows}</ul>"
    return Page("help/index.html", "", "The program's help", body,
                [Section("", "The program's help", 1, " ".join(languages))])


def _write_indexes(site, pages):
    for path in {index_path(page) for page in pages}:
        _write(site, path, index_script([page for page in pages if index_path(page) == path]))


def _bring_targets(root, site, pages):
    """Copies the files among the sources that pages show or lead to."""
    for page in pages:
        for target in local_targets(_read(site, page.path), page.path):
            place = os.path.join(site, target)
            source = os.path.join(root, target)
            if os.path.exists(place):
                continue
            if not os.path.isfile(source):
                raise SiteFault(f"{page.source or page.path} leads to {target}, which is no file")
            os.makedirs(os.path.dirname(place), exist_ok=True)
            shutil.copy(source, place)


def _clear(site):
    """Removes a site that was made before; any other folder that has something is kept."""
    if os.path.isdir(site) and os.listdir(site):
        if not os.path.isfile(os.path.join(site, "search.js")):
            raise SiteFault(f"{site} is no site and not empty")
        shutil.rmtree(site)
    os.makedirs(site, exist_ok=True)


def _read(folder, path):
    with open(os.path.join(folder, path), encoding="utf-8") as file:
        return file.read()


def _write(site, path, text):
    os.makedirs(os.path.join(site, posixpath.dirname(path)), exist_ok=True)
    with open(os.path.join(site, path), "w", encoding="utf-8") as file:
        file.write(text)
