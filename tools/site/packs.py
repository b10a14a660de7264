"""Words of the site's frame in the languages of the help, from the program's packs."""

import os


def word(root, language, key):
    """The text of a key, without the mark of its access key."""
    with open(os.path.join(root, "data", "lang", language + ".ini"), encoding="utf-8") as pack:
        for line in pack:
            if line.startswith(key + "="):
                return line.partition("=")[2].strip().replace("&", "")
    raise KeyError(f"{key} of {language}")
