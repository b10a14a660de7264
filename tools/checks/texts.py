"""Checks that read files as text. Each prints what is wrong and returns whether nothing is."""

import os
import subprocess
import tempfile

from files import all_files, matching

# What is written in English; gazetteers and the other languages are not.
ENGLISH = ("*.md", "*.h", "*.cpp", "*.c", "*.py", "*.sh", "*.cmake", "*CMakeLists.txt", "*.1", "*.xml",
           "run", "test", "tools/*", "packaging/*", "data/lang/English.ini", "data/help/English/*")
NOT_ENGLISH = ("*.json", "*.png", "tools/refresh_gazetteer/*", "data/gazetteer/*.tsv",
               "tools/checks/words.txt")
# The sources of the programs and the library.
SOURCES = ("src/*.cpp", "linux/*.cpp", "desktop/*.cpp", "terminal/*.cpp", "ctl/*.cpp", "lib/*.cpp",
           "tools/*.cpp")
RULES = ("header_names", "colours", "state", "wording", "text_entries")


def format_of(files):
    files = matching(files or all_files(), "*.h", "*.cpp")
    return not files or _run("clang-format", "--dry-run", "--Werror", *files)


def spelling_of(files):
    files = files or all_files()
    skipped = set(matching(files, *NOT_ENGLISH))
    files = [path for path in matching(files, *ENGLISH) if path not in skipped]
    with tempfile.NamedTemporaryFile("w", encoding="utf-8") as words:
        words.write("\n".join(_meant_words()) + "\n")
        words.flush()
        return not files or _run("codespell", "--ignore-words", words.name, *files)


def rules_of(_):
    """Reads the whole tree whatever is named: these rules are about files beside each other."""
    rules = [_run(f"tests/checks/{name}.sh", ".") for name in RULES]
    return all([_run("tests/checks/layers.sh", "src"), *rules])


def cppcheck_of(files):
    """What it has found in a file counts until the file, or what it includes, changes."""
    files = matching(files or all_files(), *SOURCES)
    wrong = os.path.join(os.path.dirname(__file__), "cppcheck.txt")
    found = os.path.join("build", "cppcheck")
    os.makedirs(found, exist_ok=True)
    return not files or _run("cppcheck", "--std=c++20", "--language=c++", "--quiet", "-I", "src",
                             "-I", ".", "--enable=warning,performance,portability",
                             f"--cppcheck-build-dir={found}", f"-j{os.cpu_count()}",
                             f"--suppressions-list={wrong}",
                             "--error-exitcode=1", *files)


def _meant_words():
    with open(os.path.join(os.path.dirname(__file__), "words.txt"), encoding="utf-8") as file:
        words = [line.partition("#")[0].strip() for line in file]
    return [word.lower() for word in words if word]


def _run(*words):
    return subprocess.run(words, check=False).returncode == 0
