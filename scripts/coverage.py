#!/usr/bin/python3
"""Holds what tests reached against scripts/coverage.txt: scripts/coverage.py BUILD [EXPRESSION].

BUILD is one of the preset `asan` in which tests have run, as ./test.sh does. With an expression, lists the
branches that no test took in the files whose path it matches."""

import json
import re
import subprocess
import sys
from collections import defaultdict
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
MARK = re.compile(r"// unreachable: \S")
# The compiler warns of a switch that leaves out an enumerator, so that nothing goes past all of its cases; those
# over numbers count.
SWITCH = re.compile(r"switch \(.*\n\s*case (\w+::)+\w+:")
FOREVER = re.compile(r"while \(true\)")


def programs(build):
    for file in sorted((build / "bin").iterdir()):
        with file.open("rb") if file.is_file() and not file.is_symlink() else open("/dev/null", "rb") as content:
            if content.read(4) == b"\x7fELF":
                yield file


def merge(build):
    """What was reached: {file: llvm's record}."""
    merged = build / "all.profdata"
    subprocess.run(["llvm-profdata", "merge", "-sparse", "-o", merged, *sorted((build / "profiles").glob("*"))],
                   check=True)
    first, *others = programs(build)
    told = subprocess.run(["llvm-cov", "export", "-skip-functions", "-skip-expansions", f"-instr-profile={merged}",
                           first, *(f"-object={other}" for other in others)],
                          check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    folders = (f"{ROOT}/src/", f"{ROOT}/app/")
    return {file["filename"][len(str(ROOT)) + 1:]: file for file in json.loads(told)["data"][0]["files"]
            if file["filename"].startswith(folders) and not file["filename"].endswith(".def")}


def branches(name, record):
    """{(line, column, outcome): times}, without those that are marked, and those in functions that the compiler writes;
    instances of a template count together."""
    lines = (ROOT / name).read_text().splitlines()
    taken = defaultdict(int)
    for line, column, _, _, true, false, *_ in record["branches"]:
        above = line - 2
        while above > 0 and lines[above].lstrip().startswith("//") and not MARK.search(lines[above]):
            above -= 1
        comments = lines[line - 1] + (lines[above] if lines[above].lstrip().startswith("//") else "")
        if not MARK.search(comments) and not lines[line - 1].endswith("= default;"):
            if FOREVER.search(lines[line - 1]):
                continue
            if not SWITCH.search("\n".join(lines[line - 1:line + 1])):
                taken[line, column, True] += true
            taken[line, column, False] += false
    return taken


def missed(name, record):
    lines = (ROOT / name).read_text().splitlines()
    for (line, column, outcome), times in sorted(branches(name, record).items()):
        if times == 0:
            yield f"{name}:{line}:{column}: never {'true' if outcome else 'false'}: {lines[line - 1].strip()}"


def check(records):
    """A line for each group, and whether each reaches its limits. A file counts where its path first matches, and in
    every sum that it matches."""
    groups = [line.split() for line in (ROOT / "scripts/coverage.txt").read_text().splitlines()
              if line and not line.startswith("#")]
    total = defaultdict(lambda: [0, 0, 0, 0])  # lines and branches, each that there are and that were reached
    for name, record in records.items():
        group = next((group for group in groups if group[0][0] != "+" and re.search(group[0], name)), None)
        if group is None:
            sys.exit(f"{name} is in no group of scripts/coverage.txt")
        sums = [group for group in groups if group[0][0] == "+" and re.search(group[0][1:], name)]
        taken, lines = branches(name, record), record["summary"]["lines"]
        counted = (lines["count"], lines["covered"], len(taken), sum(times > 0 for times in taken.values()))
        for each in [group, *sums]:
            total[each[0]] = [sum(pair) for pair in zip(total[each[0]], counted)]
    fits = True
    print(f"{'files':40} {'lines':>7} {'branches':>9} {'missed':>7} {'aim':>6}")
    for expression, *limits, aim in groups:
        count = total[expression]
        shares = [100 * count[kind + 1] / count[kind] if count[kind] else 100 for kind in (0, 2)]
        print(f"{expression:40} {shares[0]:5.1f} % {shares[1]:7.1f} % {count[2] - count[3]:7} {aim:>4} %")
        files = expression.lstrip("+")
        for what, share, limit in zip(("lines", "branches"), shares, limits):
            if share < float(limit):
                print(f"{expression}: {what} are below {limit} %: scripts/coverage.py {sys.argv[1]} '{files}'")
                fits = False
    return fits


def main():
    records = merge(Path(sys.argv[1]).resolve())
    if len(sys.argv) == 2:
        return 0 if check(records) else 1
    for name, record in sorted(records.items()):
        if re.search(sys.argv[2], name):
            print("\n".join(missed(name, record)))
    return 0


if __name__ == "__main__":
    sys.exit(main())
