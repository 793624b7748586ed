#!/usr/bin/env python3
"""Prints which branches tests took, file by file and room by room, in a build with coverage by GCC 12.

A branch is one of the ways that the program itself takes from a place where there are several. What only an exception
takes does not count, nor what lies on its way: the compiler asks there what has been built already and has to be
destroyed. gcov counts that, and for each call that may throw the way back from it, which is why this reads the graphs
itself (gcov_graph.py). Nor do branches of lines that hold nothing but brackets count, which the compiler made for
itself. What is compiled several times, as templates and inline functions are, counts once: a branch is taken if it is
in any of them.

Usage: tools/branches.py BUILD LEAST FOLDER [--without FOLDER]
The exit code is 1 if fewer than LEAST percent of the branches below FOLDER are taken.
"""

import argparse
import pathlib
import re
import sys
from collections import defaultdict

from gcov_graph import read_functions

TOP = pathlib.Path(__file__).resolve().parent.parent
OF_THE_COMPILER = re.compile(r"[\s{}();]*")
WIDTH = 44


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("least", type=float)
    parser.add_argument("folder")
    parser.add_argument("--without", metavar="FOLDER")
    return parser.parse_args()


class Names:
    """Names of files below the top, of what they are called in a build; none for files that do not count."""

    def __init__(self, asked):
        self.asked = asked
        self.known = {}

    def __call__(self, written):
        if written not in self.known:
            self.known[written] = self.below_top((self.asked.build / written).resolve())
        return self.known[written]

    def below_top(self, path):
        name = str(path.relative_to(TOP)) if path.is_relative_to(TOP) else ""
        without = self.asked.without
        counts = name.startswith(self.asked.folder + "/") and not (without and name.startswith(without + "/"))
        return name if counts else None


def branches(asked):
    """How often each branch of each function on each line of each file was taken."""
    name_of = Names(asked)
    files = defaultdict(lambda: defaultdict(lambda: defaultdict(list)))
    for counts in sorted(asked.build.rglob("*.gcda")):
        for function in read_functions(counts):
            of_lines = defaultdict(list)
            for (file, line), taken in function.decisions():
                if name := name_of(file):
                    of_lines[name, line] += taken
            for (name, line), taken in of_lines.items():
                known = files[name][line][function.place]
                known += [0] * (len(taken) - len(known))
                for i, count in enumerate(taken):
                    known[i] += count
    return files


def percent(taken, count):
    return 100 * taken / count if count else 100


def row(name, count, taken, missing=""):
    # Rounded down: what is printed as 90 percent are 90.
    print(f"{name:{WIDTH}} {count:8} {taken:8} {int(percent(taken, count)):5}%  {missing}".rstrip())


def heading(of_what, last=""):
    print(f"{of_what:{WIDTH}} {'branches':>8} {'taken':>8} {'':6}  {last}".rstrip())


def main():
    asked = arguments()
    rooms = defaultdict(lambda: [0, 0])
    heading("file", "lines with a branch that no test takes")
    for name, lines in sorted(branches(asked).items()):
        source = (TOP / name).read_text().splitlines()
        own = {number: sum(functions.values(), []) for number, functions in sorted(lines.items())
               if not OF_THE_COMPILER.fullmatch(source[number - 1])}
        count = sum(len(counts) for counts in own.values())
        taken = sum(1 for counts in own.values() for each in counts if each > 0)
        if count:
            row(name, count, taken, ",".join(str(number) for number, counts in own.items() if 0 in counts))
        for room in (str(pathlib.Path(name).parent), "all"):
            rooms[room][0] += count
            rooms[room][1] += taken
    print()
    heading("room")
    for room in sorted(rooms, key=lambda room: (room == "all", room)):
        row(room, *rooms[room])
    return 1 if percent(rooms["all"][1], rooms["all"][0]) < asked.least else 0


if __name__ == "__main__":
    sys.exit(main())
