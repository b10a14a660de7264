#!/usr/bin/python3 -B
"""The site of the documentation: it is whole, leads nowhere wrong, and needs nothing from outside.

Usage: site_test.py, with the folder of the sources in HORAVEX_TEST_SOURCE_DIR
"""

import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]
sys.path.insert(0, os.path.join(SOURCE, "tools", "site"))

from documents import document_page, site_path  # noqa: E402
from links import Links, split_address  # noqa: E402


def build(*words):
    return subprocess.run([os.path.join(SOURCE, "tools", "build_site"), *words],
                          capture_output=True, text=True, check=False)


def read(folder, path):
    with open(os.path.join(folder, path), encoding="utf-8") as file:
        return file.read()


class Site(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.site = folder.name
        built = build(cls.site)
        assert built.returncode == 0, built.stderr
        cls.pages = {}
        for place, _, names in os.walk(cls.site):
            for name in names:
                path = os.path.relpath(os.path.join(place, name), cls.site)
                if name.endswith(".html"):
                    cls.pages[path] = Links(read(cls.site, path))

    def expect_target(self, page, address):
        path, anchor = split_address(address, page)
        if path is None:
            return
        self.assertTrue(os.path.isfile(os.path.join(self.site, path)), f"{page}: {address}")
        if path in self.pages:
            self.assertIn(anchor, self.pages[path].anchors, f"{page}: {address}")

    def test_every_link_leads_to_a_file_and_an_anchor_of_it(self):
        for page, links in self.pages.items():
            for address in links.links + links.loads:
                self.expect_target(page, address)

    def test_nothing_is_loaded_from_outside(self):
        for page, links in self.pages.items():
            for address in links.loads:
                self.assertIsNotNone(split_address(address, page)[0], f"{page}: {address}")
        for name in ("site.css", "search.js"):
            self.assertIsNone(re.search(r"\b(https?:)?//\w|@import|url\(|fetch\(", read(self.site, name)))

    def test_every_document_has_a_page(self):
        folders = [SOURCE, os.path.join(SOURCE, "docs")]
        documents = {os.path.relpath(os.path.join(folder, name), SOURCE)
                     for folder in folders for name in os.listdir(folder) if name.endswith(".md")}
        self.assertEqual(documents - {path for path in documents if site_path(path) in self.pages},
                         set())

    def test_every_page_is_reached_from_the_first(self):
        reached, ahead = set(), ["index.html"]
        while ahead:
            page = ahead.pop()
            if page in self.pages and page not in reached:
                reached.add(page)
                ahead += [split_address(address, page)[0] for address in self.pages[page].links]
        self.assertEqual(reached, set(self.pages))

    def test_help_runs_in_the_direction_of_its_language(self):
        for folder in os.listdir(os.path.join(SOURCE, "data", "help")):
            for name in os.listdir(os.path.join(SOURCE, "data", "help", folder)):
                head = re.search("<html [^>]*>", read(SOURCE, f"data/help/{folder}/{name}")).group()
                self.assertIn(head, read(self.site, f"help/{folder}/{name}"))

    def test_search_knows_the_sections_of_a_language(self):
        for language, address, word in (("en", "docs/bus.html#by-hand", "gdbus introspect"),
                                        ("ar", "help/Arabic/timetable.html#", "رابطة")):
            script = read(self.site, f"search/{language}.js")
            rows = json.loads(script.removeprefix("window.searchIndex = ").removesuffix(";\n"))
            self.assertTrue([row for row in rows
                             if row[0].startswith(address) and word in " ".join(row)])

    def test_each_page_loads_the_index_of_its_language(self):
        self.assertIn("../../search/ur.js", self.pages["help/Urdu/moon.html"].loads)
        self.assertIn("./search/en.js", self.pages["index.html"].loads)

    def test_bus_interface_lies_beside_its_page(self):
        self.assertEqual(read(self.site, "docs/org.horavex.PrayerTimes.xml"),
                         read(SOURCE, "docs/org.horavex.PrayerTimes.xml"))

    def test_figures_and_formats_are_in_the_contents(self):
        links = self.pages["index.html"].links
        for page in ("accuracy", "methods", "data-formats", "bus"):
            self.assertIn(f"docs/{page}.html", links)

    def test_a_site_takes_the_place_of_the_one_before(self):
        stale = os.path.join(self.site, "stale.html")
        open(stale, "w", encoding="utf-8").close()
        self.assertEqual(build(self.site).returncode, 0)
        self.assertFalse(os.path.exists(stale))

    def test_a_folder_that_is_no_site_is_kept(self):
        with tempfile.TemporaryDirectory() as folder:
            open(os.path.join(folder, "letter"), "w", encoding="utf-8").close()
            self.assertIn("is no site", build(folder).stderr)
            self.assertEqual(os.listdir(folder), ["letter"])

    def test_sheets_are_taken_along(self):
        with tempfile.TemporaryDirectory() as folder:
            sheets = os.path.join(folder, "sheets")
            os.mkdir(sheets)
            open(os.path.join(sheets, "English-light.png"), "w", encoding="utf-8").close()
            self.assertEqual(build(os.path.join(folder, "site"), sheets).returncode, 0)
            page = Links(read(folder, "site/pictures.html"))
            self.assertIn("sheets/English-light.png", page.links)
            self.assertTrue(os.path.isfile(os.path.join(folder, "site/sheets/English-light.png")))


class DocumentPage(unittest.TestCase):
    DOCUMENTS = {"README.md", "docs/bus.md", "docs/look.md"}

    def body(self, text, source="docs/look.md"):
        return document_page(source, text, self.DOCUMENTS).body

    def test_link_to_a_document_leads_to_its_page(self):
        self.assertIn('<a href="bus.html#by-hand">', self.body("[bus](bus.md#by-hand)"))
        self.assertIn('<a href="../index.html">', self.body("[all](../README.md)"))

    def test_name_of_a_document_leads_to_its_page(self):
        self.assertIn('<a href="bus.html"><code>docs/bus.md</code></a>', self.body("`docs/bus.md`"))

    def test_name_in_a_link_is_no_second_link(self):
        self.assertEqual(self.body("[`docs/bus.md`](x.html)").count("<a "), 1)

    def test_address_outside_stays(self):
        self.assertIn('href="https://a.example/b.md"', self.body("[b](https://a.example/b.md)"))

    def test_headings_of_one_name_have_different_anchors(self):
        page = document_page("docs/look.md", "# A\n\n## B\n\none\n\n## B\n\ntwo", self.DOCUMENTS)
        self.assertEqual([(s.anchor, s.text.strip()) for s in page.sections],
                         [("a", ""), ("b", "one"), ("b-2", "two")])


if __name__ == "__main__":
    unittest.main()
