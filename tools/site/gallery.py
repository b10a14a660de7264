"""The page of pictures: those of the documents, and those that the tests compare windows with."""

from html import escape
import os
import shutil

from page import Page, Section

KEPT = "tests/desktop/pictures"
THEMES = {"light": "light", "dark": "dark", "contrast": "high contrast"}


def gallery_page(root, sheets=None):
    """The page. Without a folder of sheets it has the kept pictures alone."""
    folders = sorted(os.listdir(os.path.join(root, KEPT)), key=_order)
    sections = [Section("", "Pictures", 1)]
    body = ["<h1>Pictures</h1>",
            "<p>The windows as the tests draw them, over a clock, a place and files in memory: a "
            "build whose windows look otherwise fails.</p>"]
    for folder in folders:
        language, _, theme = folder.partition("-")
        title = f"{language}, {THEMES[theme]}"
        sections.append(Section(folder, title, 2))
        body += [f'<h2 id="{folder}">{escape(title)}</h2>', '<div class="gallery">']
        body += [_figure(f"{KEPT}/{folder}/{name}", f"{_words(name)}, {title}")
                 for name in sorted(os.listdir(os.path.join(root, KEPT, folder)))]
        body.append("</div>")
    if sheets:
        sections.append(Section("sheets", "All windows", 2))
        body.append('<h2 id="sheets">All windows</h2>')
        body += [f'<p><a href="sheets/{name}">{escape(_words(name))}</a></p>'
                 for name in _pictures(sheets)]
    return Page("pictures.html", "", "Pictures", "\n".join(body), sections)


def _order(folder):
    """English first, and of a language the themes as they stand above."""
    language, _, theme = folder.partition("-")
    return language != "English", language, list(THEMES).index(theme)


def copy_sheets(sheets, site):
    os.makedirs(os.path.join(site, "sheets"))
    for name in _pictures(sheets):
        shutil.copy(os.path.join(sheets, name), os.path.join(site, "sheets", name))


def _pictures(folder):
    return sorted(name for name in os.listdir(folder) if name.endswith(".png"))


def _words(name):
    return name.removesuffix(".png").replace("-", " ").capitalize()


def _figure(path, caption):
    return (f'<figure><a href="{path}"><img src="{path}" loading="lazy" alt="{escape(caption)}"></a>'
            f"<figcaption>{escape(caption)}</figcaption></figure>")
