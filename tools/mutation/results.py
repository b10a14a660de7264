"""What became of mutants: a file of JSON lines, and the survivors that a document explains."""

import json
import os
import re
from collections import Counter

_EXPLAINED = re.compile(r"^- `(src/[^`]+)`: `([^`]+)` → `([^`]+)`", re.M)


class Results:
    """The last line of a mutant counts."""

    def __init__(self, path, explained):
        self._path = path
        self._explained = explained  # of (path, before, after)
        self._of = {}
        if os.path.exists(path):
            with open(path, encoding="utf-8") as file:
                for line in file:
                    self._keep(json.loads(line))

    def verdict(self, each):
        """"killed", "survived", "uncompiled", or None where it was not tried."""
        return self._of.get(each.key(), {}).get("verdict")

    def add(self, each, verdict, by, seconds):
        entry = {"path": each.path, "line": each.number, "nth": each.nth, "before": each.before,
                 "after": each.after, "verdict": verdict, "by": by, "seconds": round(seconds, 2)}
        self._keep(entry)
        os.makedirs(os.path.dirname(os.path.abspath(self._path)), exist_ok=True)
        with open(self._path, "a", encoding="utf-8") as file:
            file.write(json.dumps(entry, ensure_ascii=False) + "\n")

    def is_explained(self, each):
        return (each.path, each.before, each.after) in self._explained

    def table(self, breaks):
        """Of these, a row for each room: mutants, killed, explained, left, and what is not left."""
        counts = Counter()
        for each in breaks:
            verdict = self.verdict(each)
            if verdict == "survived" and self.is_explained(each):
                verdict = "explained"
            if verdict in ("killed", "survived", "explained"):
                counts[each.path.split("/")[1], verdict] += 1
        rooms = sorted({room for room, _ in counts})
        rows = [(room, *(counts[room, kind] for kind in ("killed", "explained", "survived")))
                for room in rooms]
        rows.append(("all", *(sum(row[at] for row in rows) for at in (1, 2, 3))))
        text = "| Room | Mutants | Killed | Explained | Left | Killed, % |\n|---|---:|---:|---:|---:|---:|\n"
        for room, killed, explained, left in rows:
            total = killed + explained + left
            share = f"{100 * killed / total:.1f}" if total else "–"
            text += f"| {room} | {total} | {killed} | {explained} | {left} | {share} |\n"
        return text

    def _keep(self, entry):
        self._of[entry["path"], entry["before"], entry["nth"], entry["after"]] = entry


def explained_in(text):
    """The survivors of which a document says why: (path, before, after)."""
    return set(_EXPLAINED.findall(text))
