#!/usr/bin/python3
"""Finds circles of #include lines through more than one class in src/ and app/.

Files of one class count as one: its header, its source file of the same name, and a header in the same folder that
defines a nested class of it, such as its private parts. In a circle through two classes, neither can be understood,
tested or moved without the other.

  scripts/circles.py            prints the files of every circle, and fails if there is one"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
NESTED = re.compile(r"^(?:class|struct) (\w+)::\w+[^;(]*\{", re.MULTILINE)
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


def unit_of(file, text):
    """The file of the class that this file belongs to, without a suffix."""
    nested = NESTED.search(text)
    if nested and file.with_name(nested[1] + ".h").exists():
        return file.with_name(nested[1])
    return file.with_suffix("")


def read_includes(root):
    """What each unit includes, without itself and without files that the build makes."""
    files = [file for folder in ("src", "app") for file in (root / folder).rglob("*")
             if file.suffix in (".h", ".cpp", ".def")]
    texts = {file: file.read_text() for file in files}
    units = {file: unit_of(file, text) for file, text in texts.items()}
    includes = {unit: set() for unit in units.values()}
    for file, text in texts.items():
        for name in INCLUDE.findall(text):
            candidates = (file.parent / name, root / "src" / name, root / name)
            includes[units[file]] |= {units[other] for other in candidates if other in units} - {units[file]}
    return includes


def find_path(includes, start, end):
    """The shortest way from one unit to another along the includes, or nothing."""
    before, reached = {start: None}, [start]
    for unit in reached:
        for other in sorted(includes[unit]):
            if other == end:
                path = [unit]
                while before[path[-1]] is not None:
                    path.append(before[path[-1]])
                return path[::-1]
            if other not in before:
                before[other] = unit
                reached.append(other)
    return []


def find_circles(includes):
    """The shortest circles, none of which has a file of another: mending these leaves few of the longer ones."""
    paths = sorted(filter(None, (find_path(includes, unit, unit) for unit in sorted(includes))), key=len)
    circles, shown = [], set()
    for path in paths:
        if shown.isdisjoint(path):
            circles.append(path)
            shown.update(path)
    return circles


def main():
    circles = find_circles(read_includes(ROOT))
    for circle in circles:
        print("A circle of files: " + " -> ".join(str(unit.relative_to(ROOT)) for unit in [*circle, circle[0]]))
    return 1 if circles else 0


if __name__ == "__main__":
    sys.exit(main())
