#!/usr/bin/python3
"""How much the tests notice: makes small changes to the code, one at a time, and runs the tests that reach each.

  scripts/mutate.py --sample 60 --files 'src/settings/**' 'src/i18n/*'
  scripts/mutate.py --changed main        what the lines changed since main are worth
  scripts/mutate.py --only ID             one mutant again
  scripts/mutate.py --sample 20 --files 'src/i18n/*' --suites i18n_tests     at once, without a record of the reach

A mutant is killed when a test fails or does not end. One that lives shows a fault that no test would notice, code that
nothing needs, or a change that makes no difference. Results are kept in build/mutation/results.jsonl: a run that was
interrupted goes on where it was, and a mutant is tried anew when its file has changed, or with --again if it lived.
Needs llvm and python3-clang; ccache and mold are used where they are. MUTATE_CMAKE holds further options for cmake."""

import argparse
import fnmatch
import hashlib
import json
import os
import queue
import random
import re
import subprocess
import sys
import threading
import time
from collections import Counter, defaultdict
from concurrent.futures import ProcessPoolExecutor
from functools import partial
from pathlib import Path

from mutation.equivalent import Equivalents
from mutation.mutants import find_mutants
from mutation.reach import Reach, Suites
from mutation.workplace import Workplace

ROOT = Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutation"


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--files", nargs="+", metavar="PATTERN",
                        help="files to mutate (default: src/**.cpp; headers cost long builds)")
    parser.add_argument("--changed", metavar="REVISION", help="only lines changed since the revision")
    parser.add_argument("--kinds", nargs="+", help="comparison boundary logic arithmetic negation dropped cell")
    parser.add_argument("--sample", type=int, metavar="N", help="N of the mutants, the same each time")
    parser.add_argument("--seed", type=int, default=1, help="another seed, another sample")
    parser.add_argument("--only", nargs="+", metavar="ID", help="these mutants, whatever was found before")
    parser.add_argument("--again", action="store_true", help="try those anew that lived")
    parser.add_argument("--list", action="store_true", help="list the mutants, and test nothing")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--budget", type=float, default=300, metavar="SECONDS",
                        help="of tests for one mutant, the quickest first (default: 300)")
    parser.add_argument("--suites", nargs="+", metavar="SUITE",
                        help="run these test programs, or SUITE:PATTERN, on each mutant, and record no reach")
    parser.add_argument("--least", type=float, default=100, metavar="PERCENT",
                        help="fail only if fewer are killed (default: 100)")
    parser.add_argument("--keep-reach", action="store_true",
                        help="take the recorded reach of the tests, though the sources have changed since")
    return parser.parse_args()


def changed_lines(revision):
    """{file: lines} added or changed since the revision."""
    changes = subprocess.run(["git", "diff", "--unified=0", revision, "--", "src", "app"], cwd=ROOT,
                             capture_output=True, text=True, check=True).stdout
    lines, file = defaultdict(set), ""
    for line in changes.splitlines():
        if line.startswith("+++ "):
            file = line[6:]
        elif hunk := re.match(r"@@ \S+ \+(\d+)(?:,(\d+))?", line):
            first, count = int(hunk[1]), int(hunk[2] or 1)
            lines[file].update(range(first, first + count))
    return lines


def choose(arguments):
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "src", "app"],
                            cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
    sources = [file for file in listed if file.endswith((".cpp", ".h")) and (ROOT / file).exists()]
    lines = changed_lines(arguments.changed) if arguments.changed else None
    patterns = arguments.files or (["*"] if lines else ["src/*.cpp"])
    if arguments.only:
        patterns = [mutant.split(":")[0] for mutant in arguments.only]
    files = [file for file in sources if any(fnmatch.fnmatch(file, pattern) for pattern in patterns)
             and (lines is None or file in lines)]
    commands = WORK / "commands"  # which name every file; other builds combine them
    subprocess.run(["cmake", "--preset", "dev", "-B", commands], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    find = partial(find_mutants, ROOT, commands, WORK / "mutants")
    with ProcessPoolExecutor(arguments.jobs) as pool:
        found = list(pool.map(find, files))
    mutants = [mutant for ofFile in found for mutant in ofFile
               if (lines is None or mutant.line in lines[file])
               and (not arguments.kinds or mutant.kind in arguments.kinds)
               and (not arguments.only or mutant.id in arguments.only)]
    if arguments.sample and arguments.sample < len(mutants):
        mutants = random.Random(arguments.seed).sample(mutants, arguments.sample)
    return mutants


def digest(file):
    return hashlib.sha256((ROOT / file).read_bytes()).hexdigest()


class Results:
    def __init__(self):
        self.path = WORK / "results.jsonl"
        self.lock = threading.Lock()
        self.known = {}
        if self.path.exists():
            for line in self.path.read_text().splitlines():
                result = json.loads(line)
                self.known[result["id"]] = result

    def find(self, mutant):
        result = self.known.get(mutant.id)
        return result if result and result["digest"] == digest(mutant.file) else None

    def add(self, mutant, outcome, detail, seconds):
        result = {"id": mutant.id, "digest": digest(mutant.file), "outcome": outcome, "detail": detail,
                  "seconds": round(seconds, 1)}
        with self.lock:
            self.known[mutant.id] = result
            with self.path.open("a") as file:
                file.write(json.dumps(result) + "\n")


def one_line(text):
    text = " ".join(text.split())
    return text if len(text) <= 60 else text[:57] + "..."


def run(mutants, reach, results, arguments):
    waiting = queue.SimpleQueue()
    for mutant in mutants:
        waiting.put(mutant)
    needed = {test for mutant in mutants for test in reach.of(mutant)}
    suites = sorted({test.split(":")[0] for test in needed})
    tried = {suite: [test.split(":", 1)[1] for test in needed if test.startswith(f"{suite}:")]
             for suite in (suites if arguments.suites else ())}
    failures = []

    def work(number):
        workplace = Workplace(ROOT, WORK / str(number), suites, tried)
        try:
            while not failures:
                mutant = waiting.get_nowait()
                started = time.monotonic()
                outcome, detail = workplace.test(mutant, reach, arguments.budget)
                results.add(mutant, outcome, detail, time.monotonic() - started)
                print(f"{outcome:10} {mutant.id}  {detail}", flush=True)
        except queue.Empty:
            pass
        except BaseException as error:  # told in the main thread
            failures.append(error)

    workers = [threading.Thread(target=work, args=(number,), daemon=True)
               for number in range(1, arguments.jobs + 1)]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    if failures:
        raise failures[0]


def report(mutants, results, equivalents):
    """Prints what is known of the mutants. Returns how many percent are killed."""
    scores, alive = defaultdict(Counter), []
    for mutant in mutants:
        result = results.find(mutant)
        folder = "/".join(mutant.file.split("/")[:2])
        if equivalents.has(mutant):
            scores[folder]["equivalent"] += 1
            continue
        if result is None:
            continue
        scores[folder][result["outcome"]] += 1
        if result["outcome"] == "alive":
            alive.append((mutant, result["detail"]))
    if alive:
        print("\nAlive:")
    for mutant, detail in alive:
        print(f"  {mutant.file}:{mutant.line}: {one_line(mutant.before)}  ->  {one_line(mutant.after) or 'nothing'}"
              f"{'  (' + detail + ')' if detail else ''}\n    scripts/mutate.py --only {mutant.id}")
    print("\nfolder              killed  alive  score   equivalent  invalid")
    for folder, score in sorted(scores.items()):
        tried = score["killed"] + score["alive"]
        share = f"{100 * score['killed'] / tried:4.0f} %" if tried else "     -"
        print(f"{folder:18} {score['killed']:7} {score['alive']:6} {share} {score['equivalent']:12} {score['invalid']:8}")
    killed = sum(score["killed"] for score in scores.values())
    return 100 * killed / (killed + len(alive)) if killed + len(alive) else 100


def main():
    arguments = parse_arguments()
    WORK.mkdir(parents=True, exist_ok=True)
    mutants = choose(arguments)
    if arguments.list:
        for mutant in mutants:
            print(f"{mutant.id}  {one_line(mutant.before)}  ->  {one_line(mutant.after) or 'nothing'}")
        print(f"{len(mutants)} mutants")
        return 0
    results = Results()

    def is_open(mutant):
        result = results.find(mutant)
        return (result is None or bool(arguments.only)
                or (arguments.again and result["outcome"] == "alive"))

    equivalents = Equivalents(ROOT)
    wanted = [mutant for mutant in mutants if is_open(mutant) and not equivalents.has(mutant)]
    if wanted:
        reach = (Suites(arguments.suites) if arguments.suites
                 else Reach(ROOT, WORK, arguments.jobs, arguments.keep_reach))
        run(wanted, reach, results, arguments)
    return 0 if report(mutants, results, equivalents) >= arguments.least else 1


if __name__ == "__main__":
    sys.exit(main())
