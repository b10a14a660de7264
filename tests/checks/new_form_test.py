#!/usr/bin/python3 -B
"""A window that tools/new_form makes in a copy of the sources: it compiles, its tests pass, its
section stands in every pack, and its layout has the widgets of its controls.

Usage: new_form_test.py LIBRARY..., with the folders of sources and build in
HORAVEX_TEST_SOURCE_DIR and HORAVEX_TEST_BINARY_DIR
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = os.environ["HORAVEX_TEST_SOURCE_DIR"]
BUILD = os.environ["HORAVEX_TEST_BINARY_DIR"]
LIBRARIES = sys.argv[1:]
SOURCES = ("src/windows/frm_prayer_log.cpp", "src/moon/prayer_log_window.cpp",
           "src/moon/moon_room.cpp", "src/lang/pack_keys.cpp",
           "tests/moon/prayer_log_window_test.cpp")


class NewForm(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = folder.name
        cls.tree = os.path.join(folder.name, "tree")
        shutil.copytree(SOURCE, cls.tree, symlinks=True, ignore=shutil.ignore_patterns(
            "build", ".git", "node_modules", "pictures", "gazetteer"))
        made = cls.new_form("moon", "PrayerLog")
        assert made.returncode == 0, made.stderr

    @classmethod
    def new_form(cls, *words):
        return subprocess.run([os.path.join(cls.tree, "tools", "new_form"), *words],
                              capture_output=True, text=True, check=False)

    def read(self, path):
        with open(os.path.join(self.tree, path), encoding="utf-8") as file:
            return file.read()

    def expect_success(self, words, **more):
        done = subprocess.run(words, cwd=self.tree, capture_output=True, text=True, check=False,
                              **more)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout

    def test_its_tests_pass(self):
        program = os.path.join(self.folder, "tests")
        self.expect_success(
            ["c++", "-std=c++20", "-O0", "-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Werror",
             "-D_GLIBCXX_ASSERTIONS", "-Isrc", "-Itests", "-I.",
             "-Wl,--allow-multiple-definition",  # the first ones, which are the new, count
             *SOURCES, *LIBRARIES,
             "-o", program])
        build = os.path.join(self.folder, "build")
        shutil.copytree(os.path.join(BUILD, "share", "horavex"), f"{build}/share/horavex")
        shutil.copytree(os.path.join(self.tree, "data", "lang"), f"{build}/share/horavex/lang",
                        dirs_exist_ok=True)
        told = self.expect_success([program],
                                   env=os.environ | {"HORAVEX_TEST_BINARY_DIR": build})
        self.assertIn("[  PASSED  ] 2 tests", told)

    def test_every_pack_has_its_section(self):
        for name in os.listdir(os.path.join(SOURCE, "data", "lang")):
            if name.endswith(".ini"):
                pack = self.read(f"data/lang/{name}")
                self.assertRegex(pack, r"\n\n\[frmPrayerLog\]\nfrmPrayerLog=Prayer Log\n"
                                       r"lblText=Prayer Log\ncmdClose=.+\n$")

    def test_layout_has_the_widgets_of_its_controls(self):
        header = self.read("src/windows/frm_prayer_log.h")
        layout = self.read("desktop/forms/frmPrayerLog.ui")
        self.assertEqual(set(re.findall(r'\*this, "(\w+)"', header)) | {"frmPrayerLog"},
                         set(re.findall(r'<widget class="\w+" name="(\w+)"', layout)))

    def test_lists_of_all_windows_name_it(self):
        self.assertIn('{"frmPrayerLog", Fill<Ui::frmPrayerLog>}',
                      self.read("desktop/form_window/layouts.cpp"))
        self.assertIn("return &*frmPrayerLog;", self.read("tests/desktop/layouts_test.cpp"))
        self.assertEqual(self.read("tests/lang/pack_keys_test.cpp").count('"frmPrayerLog"'), 2)
        self.assertIn("`frmPrayerLog`", self.read("data/lang/README.md"))

    def test_rules_and_format_hold(self):
        self.expect_success(["tests/checks/layers.sh", "src"])
        self.expect_success(["tests/checks/header_names.sh", "."])
        self.expect_success(["tools/check", "format", *SOURCES, "src/windows/frm_prayer_log.h",
                             "src/moon/prayer_log_window.h", "tests/desktop/layouts_test.cpp",
                             "desktop/form_window/layouts.cpp", "tests/lang/pack_keys_test.cpp"])

    def test_wrong_words_change_nothing(self):
        before = self.read("src/moon/moon_room.cpp")
        for words, said in ((("moon", "PrayerLog"), "is there already"),
                            (("moon", "tides"), "is no name"),
                            (("engine", "Tides"), "is no room with windows")):
            done = self.new_form(*words)
            self.assertEqual(done.returncode, 1)
            self.assertIn(said, done.stderr)
        self.assertEqual(self.read("src/moon/moon_room.cpp"), before)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
