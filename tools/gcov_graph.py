"""Reads what GCC 12 writes for coverage: the graph of each function (.gcno), and how often its arcs were taken (.gcda)."""

import struct
from collections import defaultdict
from dataclasses import dataclass, field

FUNCTION, BLOCKS, ARCS, LINES, COUNTS = 0x01000000, 0x01410000, 0x01430000, 0x01450000, 0x01A10000
# What GCC says of an arc: it is not counted itself, it stands for a call that does not return, it is no jump.
ON_TREE, FAKE, FALL_THROUGH = 1, 2, 4


@dataclass
class Arc:
    """A way from one block of a function to another."""
    source: int
    target: int
    flags: int
    count: int | None = None


@dataclass
class Function:
    """The blocks of a function are numbered; it is entered at 0 and left at 1."""
    place: tuple  # file, line and column, which all that is compiled of one template have in common
    arcs: list = field(default_factory=list)
    lines: dict = field(default_factory=dict)  # (file, number) of the last line of each block that has one

    def decisions(self):
        """Of each block in which the program itself takes one of several ways: its line, and how often each was taken.

        Not those that only an exception leads to, nor calls, which are left in a second way by an exception only.
        """
        ways = defaultdict(list)
        for arc in self.arcs:
            ways[arc.source].append(arc)
        plain = {block: without_exceptions(arcs) for block, arcs in ways.items()}
        reached, left = {0}, [0]
        while left:
            for arc in plain.get(left.pop(), []):
                if arc.target not in reached:
                    reached.add(arc.target)
                    left.append(arc.target)
        for block in sorted(reached):
            if len(plain.get(block, [])) > 1 and block in self.lines:
                yield self.lines[block], [arc.count for arc in plain[block]]

    def set_counts(self, counted):
        """Takes the counts of the arcs that are counted; those of the others follow, as what comes in goes out."""
        free = [arc for arc in self.arcs if not arc.flags & ON_TREE]
        for arc, count in zip(free, counted or [0] * len(free), strict=True):
            arc.count = count
        ends = defaultdict(lambda: ([], []))
        for arc in self.arcs:
            ends[arc.source][1].append(arc)
            ends[arc.target][0].append(arc)
        ends[1][1].append(exit_to_entry := Arc(1, 0, ON_TREE))
        ends[0][0].append(exit_to_entry)
        left = list(ends)
        while left:
            inward, outward = ends[left.pop()]
            unknown = [arc for arc in inward + outward if arc.count is None]
            if len(unknown) == 1:
                difference = sum(arc.count or 0 for arc in inward) - sum(arc.count or 0 for arc in outward)
                unknown[0].count = abs(difference)
                left += [unknown[0].source, unknown[0].target]


def without_exceptions(ways):
    """Of the ways out of a block those that no exception takes."""
    calls = any(arc.flags & FAKE for arc in ways)
    return [arc for arc in ways if not arc.flags & FAKE and (arc.flags & FALL_THROUGH or not calls)]


class Words:
    """A file of little-endian words of 32 bits, and of texts with their lengths ahead."""

    def __init__(self, content, start):
        self.content = content
        self.at = start

    def word(self):
        self.at += 4
        return struct.unpack_from("<I", self.content, self.at - 4)[0]

    def text(self):
        length = self.word()
        self.at += length
        return self.content[self.at - length:self.at].rstrip(b"\0").decode()

    def records(self):
        """Tag and end of one record after the other."""
        while self.at + 8 <= len(self.content):
            tag, length = self.word(), self.word()
            # A negative length says how many zeros are left out.
            end = self.at + (length if length < 1 << 31 else 0)
            yield tag, end
            self.at = end


def opened(path, magic):
    content = path.read_bytes()
    if content[:4] != magic or content[4:8] != b"*22B":
        raise SystemExit(f"{path}: was not written by GCC 12")
    return content


def read_graphs(path):
    """The functions in a .gcno file by their identifiers."""
    words = Words(opened(path, b"oncg"), 16)
    words.text()
    words.word()
    functions = {}
    function = None
    for tag, end in words.records():
        if tag == FUNCTION:
            identifier = words.word()
            words.at += 8  # checksums
            words.text()
            words.word()
            functions[identifier] = function = Function((words.text(), words.word(), words.word()))
        elif tag == ARCS:
            source = words.word()
            while words.at < end:
                function.arcs.append(Arc(source, words.word(), words.word()))
        elif tag == LINES:
            block, file = words.word(), None
            while words.at < end:
                if number := words.word():
                    function.lines[block] = (file, number)
                elif not (file := words.text() or None):
                    break
    return functions


def read_functions(path):
    """The functions of a compiled unit with their counts, of the .gcda file that lies beside its .gcno file."""
    functions = read_graphs(path.with_suffix(".gcno"))
    words = Words(opened(path, b"adcg"), 16)
    counts = {}
    identifier = None
    for tag, end in words.records():
        if tag == FUNCTION:
            identifier = words.word() if end > words.at else None
        elif tag == COUNTS and identifier is not None:
            counts[identifier] = [words.word() | words.word() << 32 for _ in range((end - words.at) // 8)]
    for identifier, function in functions.items():
        function.set_counts(counts.get(identifier))
    return list(functions.values())
