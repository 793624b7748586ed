"""The faults that can be planted in the sources of the tree, and those that are known to make no difference."""

import json
import pathlib
import re

import mutations

TOP = pathlib.Path(__file__).resolve().parent.parent
EQUIVALENT = TOP / "tools" / "mutate-equivalent.txt"


class Fault:
    """A mutation of one file, with its place and the lines before and after."""

    def __init__(self, path, text, mutation):
        self.path, self.kind = path, mutation.kind
        self.mutation = mutation
        self.text = text[:mutation.start] + mutation.new + text[mutation.end:]
        first = text.rfind("\n", 0, mutation.start) + 1
        last = text.find("\n", mutation.end)
        self.line = text.count("\n", 0, mutation.start) + 1
        self.column = mutation.start - first + 1
        self.old = [each.strip() for each in text[first:last].split("\n")]
        new = text[first:mutation.start] + mutation.new + text[mutation.end:last]
        self.new = [each.strip() for each in new.split("\n")]

    @property
    def place(self):
        return f"{self.path}:{self.line}:{self.column}"

    @property
    def key(self):
        return json.dumps([self.place, self.old, self.new])

    @property
    def change(self):
        """The change without its place, as the list of equivalent faults has it."""
        return (self.path, tuple(self.old), tuple(self.new))

    def difference(self):
        return "\n".join([f"    - {each}" for each in self.old] + [f"    + {each}" for each in self.new])


def sources(paths):
    for path in map(pathlib.Path, paths):
        found = sorted(path.rglob("*")) if path.is_dir() else [path]
        for each in found:
            if each.suffix in (".cpp", ".h"):
                yield str(each.resolve().relative_to(TOP))


def faults_in(paths):
    found = []
    for path in sources(paths):
        text = (TOP / path).read_text()
        found += [Fault(path, text, each) for each in mutations.mutations_of(text)]
    return found


def equivalent_changes():
    """Records of a file's name, its lines with `-`, what becomes of them with `+`, and `=` with the reason."""
    changes = {}
    for record in re.split(r"\n\s*\n", EQUIVALENT.read_text() if EQUIVALENT.exists() else ""):
        lines = [line for line in record.splitlines() if line and not line.startswith("#")]
        if lines:
            old, new, reason = ([line[1:].strip() for line in lines[1:] if line[0] == sign] for sign in "-+=")
            changes[(lines[0].strip(), tuple(old), tuple(new))] = " ".join(reason)
    return changes
