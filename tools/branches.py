#!/usr/bin/env python3
"""Prints which branches tests took, as gcov counted them in a build with coverage.

Branches that only an exception takes do not count, wherever they are: gcov marks them in its JSON, in its text only
where the line ran. Nor do branches of lines that hold nothing but brackets, which the compiler made for itself, and of
allocations, which are those of their exceptions. What is compiled several times, as templates and inline functions are,
counts once: a branch is taken if it is in any of them.

Usage: tools/branches.py BUILD LEAST FOLDER [--without FOLDER]
The exit code is 1 if fewer than LEAST percent of the branches below FOLDER are taken.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys
from collections import defaultdict

TOP = pathlib.Path(__file__).resolve().parent.parent
OF_THE_COMPILER = re.compile(r"[\s{}();]*|.*\bnew [A-Z].*")
WIDTH = 44


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("least", type=float)
    parser.add_argument("folder")
    parser.add_argument("--without", metavar="FOLDER")
    return parser.parse_args()


def units(build):
    """What gcov says of each compiled unit that ran."""
    for counts in sorted(build.rglob("*.gcda")):
        said = subprocess.run(["gcov", "--json-format", "--stdout", "--branch-probabilities", counts.resolve()], cwd=build,
                              capture_output=True, text=True, check=True).stdout
        for line in said.splitlines():
            yield json.loads(line)


def is_counted(name, folder, without):
    return name.startswith(folder + "/") and not (without and name.startswith(without + "/"))


def branches(build, folder, without):
    """How often each branch of each line of each file was taken."""
    files = defaultdict(lambda: defaultdict(list))
    for unit in units(build):
        for file in unit["files"]:
            name = (build / file["file"]).resolve()
            if not name.is_relative_to(TOP) or not is_counted(str(name.relative_to(TOP)), folder, without):
                continue
            for line in file["lines"]:
                known = files[str(name.relative_to(TOP))][line["line_number"]]
                taken = [branch["count"] for branch in line["branches"] if not branch["throw"]]
                known += [0] * (len(taken) - len(known))
                for i, count in enumerate(taken):
                    known[i] += count
    return files


def percent(taken, count):
    return 100 * taken / count if count else 100


def row(name, count, taken, missing=""):
    print(f"{name:{WIDTH}} {count:8} {taken:8} {int(percent(taken, count)):5}%  {missing}".rstrip())


def main():
    asked = arguments()
    count = taken = 0
    print(f"{'file':{WIDTH}} {'branches':>8} {'taken':>8} {'':6}  lines with a branch that no test takes")
    for name, lines in sorted(branches(asked.build, asked.folder, asked.without).items()):
        source = (TOP / name).read_text().splitlines()
        own = {number: counts for number, counts in sorted(lines.items())
               if not OF_THE_COMPILER.fullmatch(source[number - 1])}
        of_file = sum(len(counts) for counts in own.values())
        taken_of_file = sum(1 for counts in own.values() for each in counts if each > 0)
        if of_file:
            row(name, of_file, taken_of_file, ",".join(str(number) for number, counts in own.items() if 0 in counts))
        count += of_file
        taken += taken_of_file
    row("all", count, taken)
    return 1 if percent(taken, count) < asked.least else 0


if __name__ == "__main__":
    sys.exit(main())
