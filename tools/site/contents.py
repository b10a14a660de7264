"""What the site has, in the order of its contents. A document that no line names comes last."""

import os

# The parts of the contents, each with its documents. A title is that of the document.
PARTS = (
    ("Horavex", ("README.md", "docs/settings.md", "docs/exactness.md", "CHANGELOG.md")),
    ("Command line and programs", ("docs/command-line.md", "docs/scale.md", "docs/terminal.md",
                                   "docs/service.md", "docs/status-bars.md", "docs/bus.md",
                                   "docs/library.md")),
    ("Figures", ("docs/accuracy.md", "docs/methods.md", "docs/crescent.md",
                 "docs/performance.md")),
    ("Languages", ("docs/languages.md", "data/lang/README.md", "data/texts/README.md")),
    ("Data", ("data/README.md", "docs/data-formats.md", "data/gazetteer/README.md",
              "data/gazetteer/LICENSE.md", "data/athan/README.md", "data/art/README.md",
              "tests/data/published/README.md")),
    ("Development", ("CONTRIBUTING.md", "docs/architecture.md", "docs/glossary.md",
                     "docs/platform.md", "docs/look.md", "docs/security.md", "docs/reliability.md",
                     "docs/mutation.md", "docs/packages.md", "docs/releases.md")),
)


def parts_of(root):
    """The parts with the documents that there are."""
    parts = [(title, [path for path in paths if os.path.isfile(os.path.join(root, path))])
             for title, paths in PARTS]
    named = {path for _, paths in PARTS for path in paths}
    others = sorted(f"docs/{name}" for name in os.listdir(os.path.join(root, "docs"))
                    if name.endswith(".md") and f"docs/{name}" not in named)
    return parts + ([("More", others)] if others else [])
