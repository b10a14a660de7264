"""Which files a check looks at. Paths are relative to the folder of the sources."""

import fnmatch
import os
import subprocess

SKIPPED = ("build", ".git", "node_modules")


def all_files():
    """Every file of the sources, with or without a repository."""
    files = []
    for folder, folders, names in os.walk("."):
        folders[:] = [name for name in folders if name not in SKIPPED]
        files += [os.path.relpath(os.path.join(folder, name)) for name in names]
    return sorted(files)


def changed_files():
    """Those that differ from the branch "main", or are new."""
    base = _git("merge-base", "HEAD", "main") or ["HEAD"]
    changed = _git("diff", "--name-only", "--diff-filter=d", base[0])
    return sorted(set(changed + _git("ls-files", "--others", "--exclude-standard")))


def matching(files, *patterns):
    return [path for path in files
            if any(fnmatch.fnmatch(path, pattern) for pattern in patterns)]


def _git(*words):
    told = subprocess.run(["git", *words], capture_output=True, text=True, check=False)
    return told.stdout.splitlines() if told.returncode == 0 else []
