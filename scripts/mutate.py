#!/usr/bin/python3
"""How much the tests notice: makes small changes to the code, and runs the tests that reach each.

  scripts/mutate.py --sample 60 --files 'src/settings/**' 'src/i18n/*'
  scripts/mutate.py --changed main        what the lines changed since main are worth
  scripts/mutate.py --only ID             one mutant again

A mutant is killed when a test fails or does not end. One that lives shows a fault that no test would notice, code that
nothing needs, or a change that makes no difference. All mutants of the chosen files are built at once, from the objects
of a build that exists. What the compiler must know beforehand is built and tested by itself.
Results are kept in build/mutation/results.jsonl: a run that was interrupted goes on where it was, and a mutant is tried
anew when its file has changed, or with --again if it lived."""

import argparse
import fcntl
import fnmatch
import hashlib
import json
import math
import os
import queue
import random
import re
import shutil
import subprocess
import sys
import threading
import time
from collections import Counter, defaultdict
from concurrent.futures import ProcessPoolExecutor, ThreadPoolExecutor
from dataclasses import replace
from functools import partial
from pathlib import Path

from mutation.build import Builder, Links, read_units
from mutation.equivalent import Equivalents
from mutation.mutants import read_source
from mutation.trial import UNREACHED, Reach, Trial

ROOT = Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutation"


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--files", nargs="+", metavar="PATTERN",
                        help="files to mutate (default: src/**.cpp)")
    parser.add_argument("--changed", metavar="REVISION", help="only lines changed since the revision")
    parser.add_argument("--kinds", nargs="+", help="comparison boundary logic arithmetic negation dropped cell")
    parser.add_argument("--sample", type=int, metavar="N", help="N of the mutants, the same each time")
    parser.add_argument("--seed", type=int, default=1, help="another seed, another sample")
    parser.add_argument("--only", nargs="+", metavar="ID", help="these mutants, whatever was found before")
    parser.add_argument("--again", action="store_true", help="try those anew that lived")
    parser.add_argument("--list", action="store_true", help="list the mutants, and test nothing")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--budget", type=float, metavar="SECONDS",
                        help="of tests for one mutant, the quickest first (default: 60, or 2 with --quick)")
    parser.add_argument("--quick", action="store_true",
                        help="a first pass over many, without a look whether a mutant that lives is equivalent; without "
                             "--quick, the same command then tries those that lived in full")
    parser.add_argument("--suites", nargs="+", metavar="SUITE", help="use only these test programs")
    parser.add_argument("--build", default="build/dev", help="the build to take objects from (default: build/dev)")
    parser.add_argument("--seconds", type=float, metavar="SECONDS",
                        help="end after about so long: a third for building, a third for finding out what the quickest "
                             "suites reach; does not look whether a mutant that lives is equivalent")
    parser.add_argument("--least", type=float, default=100, metavar="PERCENT",
                        help="fail only if fewer are killed (default: 100); of a sample, so many fewer that a better share "
                             "would show it in less than one of a hundred samples")
    return parser.parse_args()


def shield_devices():
    """As root, a mutant of what writes files could put a file in the place of a device. So this program and the tests get
    a /dev of their own, which cannot be changed."""
    if os.geteuid() != 0 or "MUTATE_SHIELDED" in os.environ:
        return
    script = 'mount --rbind /dev /dev && mount -o remount,bind,ro /dev && exec "$0" "$@"'
    shielded = ["unshare", "--mount", "sh", "-c", script]
    if subprocess.run([*shielded, "true"], stderr=subprocess.DEVNULL).returncode == 0:
        os.environ["MUTATE_SHIELDED"] = "1"
        os.execvp(shielded[0], [*shielded, sys.executable, *sys.argv])
    print("/dev cannot be shielded here: a mutant may put a file in the place of a device", flush=True)


def changed_lines(revision):
    """{file: lines} added or changed since the revision; None if the clone does not have it."""
    if subprocess.run(["git", "cat-file", "-e", revision], cwd=ROOT, stderr=subprocess.DEVNULL).returncode != 0:
        return None
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


def of_few_units(mutants, units, least):
    """Those of the units with the most mutants, at least so many: fewer units are built sooner."""
    unit_of = {member: number for number, unit in enumerate(units) for member in unit.members}
    by_unit = defaultdict(list)
    for mutant in mutants:
        by_unit[unit_of[mutant.file]].append(mutant)
    found = []
    for most in sorted(by_unit.values(), key=len, reverse=True):
        if len(found) < least:
            found += most
    return found


def choose(arguments, units, links):
    """The chosen mutants, the files that they are in, and of how many they are a sample."""
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "src", "app"],
                            cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
    lines = changed_lines(arguments.changed) if arguments.changed else None
    patterns = arguments.files or (["src/*"] if lines is None else ["*"])
    if arguments.only:
        patterns = [mutant.split(":")[0] for mutant in arguments.only]
    tested = links.all_objects()
    flags = {member: unit.flags for unit in units if unit.object in tested for member in unit.members}
    files = [file for file in listed if file in flags and any(fnmatch.fnmatch(file, pattern) for pattern in patterns)
             and (lines is None or file in lines)]
    with ProcessPoolExecutor(arguments.jobs) as pool:
        sources = list(pool.map(partial(read_source, ROOT, WORK / "mutants"), files, map(flags.get, files)))
    mutants = [mutant for source in sources for mutant in source.mutants
               if (lines is None or mutant.line in lines[mutant.file])
               and (not arguments.kinds or mutant.kind in arguments.kinds)
               and (not arguments.only or mutant.id in arguments.only)]
    count = len(mutants)
    if arguments.sample and arguments.seconds:
        mutants = of_few_units(mutants, units, 2 * arguments.sample)
    if arguments.sample and arguments.sample < len(mutants):
        mutants = random.Random(arguments.seed).sample(mutants, arguments.sample)
    chosen = {mutant.file for mutant in mutants}
    return mutants, [source for source in sources if source.name in chosen], count


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

    def add(self, mutant, outcome, detail, seconds, isQuick):
        result = {"id": mutant.id, "digest": digest(mutant.file), "outcome": outcome, "detail": detail,
                  "seconds": round(seconds, 1), "quick": isQuick}
        with self.lock:
            self.known[mutant.id] = result
            with self.path.open("a") as file:
                file.write(json.dumps(result) + "\n")


def one_line(text):
    text = " ".join(text.split())
    return text if len(text) <= 60 else text[:57] + "..."


class Run:
    """Tests mutants on several processors."""

    def __init__(self, units, links, sources, results, arguments):
        self.work = WORK / arguments.build.replace("/", "-")
        self.work.mkdir(parents=True, exist_ok=True)
        self.only = (self.work / "lock").open("w")  # another run of the same build waits
        fcntl.flock(self.only, fcntl.LOCK_EX)
        self.results, self.jobs = results, arguments.jobs
        self.builder = Builder(ROOT, ROOT / arguments.build, self.work, units, links, sources)
        self.isTimed = arguments.seconds is not None
        self.isQuick = arguments.quick or self.isTimed
        limit = arguments.seconds or math.inf
        now = time.monotonic()
        self.end = now + limit
        with ThreadPoolExecutor(self.jobs) as pool:
            suites = self.builder.build_all(pool, arguments.suites, now + limit / 3)
            self.reach = Reach(suites, self.work, self.builder, pool, now + 2 * limit / 3)
        self.trial = Trial(self.reach, self.work, arguments.budget or (2 if arguments.quick else 60))
        self.plain = {}  # file: its optimised object without a mutant
        self.lock = threading.Lock()

    def unit_of(self, mutant):
        return next(unit for unit in self.builder.mutated_units() if mutant.file in unit.members)

    def optimised(self, mutant, folder):
        """What the optimising compiler makes of the mutant: the object, or the messages."""
        output = folder / "optimised.o"
        messages = self.builder.compile_one(self.unit_of(mutant), output, mutant, ["-O2", "-g0"])
        return messages or output.read_bytes()

    def alone(self, mutant, folder):
        """Tests a mutant that is built by itself."""
        unit = self.unit_of(mutant)
        output = folder / "alone.o"
        shutil.rmtree(folder / "bin", ignore_errors=True)
        if messages := self.builder.compile_one(unit, output, mutant):
            held = "static assertion failed" in messages or "CheckCatalog" in messages
            return ("killed", "the build") if held else ("invalid", "does not compile")
        tests = {test for other in self.builder.sources[mutant.file].mutants
                 for test in self.reach.tests[self.builder.numbers[other.id]]}
        suites = {suite.name for suite, _ in tests}
        self.builder.link({unit.object: output}, folder / "bin", suites)
        return self.trial.test(mutant, tests, folder / "bin", {})

    def test(self, mutant, folder):
        number = self.builder.numbers[mutant.id]
        if number in self.builder.invalid:
            return "invalid", "does not compile"
        if self.isTimed and number in self.builder.single:
            return None
        tests = self.reach.tests[number]
        if number in self.builder.single or mutant.constant and not tests:
            outcome, detail = self.alone(mutant, folder)
        else:
            outcome, detail = self.trial.test(mutant, tests, self.work / "bin", {"MUTANT": str(number)})
        if outcome == "alive" and not self.isQuick:
            with self.lock:
                if mutant.file not in self.plain:
                    self.plain[mutant.file] = self.optimised(replace(mutant, after=None), folder)
            made = self.optimised(mutant, folder)
            if isinstance(made, str):
                return "killed", "the build"
            if made == self.plain[mutant.file]:
                return "equivalent", "compiles to the same"
        return outcome, detail

    def all(self, mutants):
        waiting = queue.SimpleQueue()
        for mutant in mutants:
            waiting.put(mutant)
        failures = []

        def work(place):
            try:
                while not failures and time.monotonic() < self.end:
                    mutant = waiting.get_nowait()
                    if mutant.file in self.builder.left:
                        continue
                    started = time.monotonic()
                    ended = self.test(mutant, place)
                    if ended is None:
                        continue
                    outcome, detail = ended
                    self.results.add(mutant, outcome, detail, time.monotonic() - started, self.isQuick)
                    print(f"{outcome:10} {mutant.id}  {detail}", flush=True)
            except queue.Empty:
                pass
            except BaseException as error:  # told in the main thread
                failures.append(error)

        workers = [threading.Thread(target=work, args=(self.work / f"alone-{number}",), daemon=True)
                   for number in range(self.jobs)]
        for worker in workers:
            worker.start()
        for worker in workers:
            worker.join()
        if failures:
            raise failures[0]


def report(mutants, results, equivalents, isWhole):
    """Prints what is known of the mutants; `isWhole` if all suites were used. Returns how many of them were killed, how many
    lived, and how many were not tried."""
    scores, alive = defaultdict(Counter), []
    for mutant in mutants:
        result = results.find(mutant)
        outcome = "equivalent" if equivalents.has(mutant) else result["outcome"] if result else "open"
        if not isWhole and outcome == "alive" and result["detail"] == UNREACHED:
            outcome = "unreached"  # another suite may reach it
        scores["/".join(mutant.file.split("/")[:2])][outcome] += 1
        if outcome == "alive":
            alive.append((mutant, result["detail"]))
    if alive:
        print("\nAlive:")
    for mutant, detail in alive:
        print(f"  {mutant.file}:{mutant.line}: {one_line(mutant.before)}  ->  {one_line(mutant.after) or 'nothing'}"
              f"{'  (' + detail + ')' if detail else ''}\n    scripts/mutate.py --only {mutant.id}")
    columns = ("killed", "alive", "equivalent", "invalid", "unreached", "open")
    print(f"\n{'folder':20}" + "".join(f"{column:>11}" for column in columns) + "      score")
    for folder, score in sorted(scores.items()):
        tried = score["killed"] + score["alive"]
        share = f"{100 * score['killed'] / tried:9.0f} %" if tried else ""
        print(f"{folder:20}" + "".join(f"{score[column]:11}" for column in columns) + share)
    total = sum(scores.values(), Counter())
    return total["killed"], total["alive"], total["open"] + total["unreached"]


def is_enough(killed, alive, left, percent):
    """Whether so many may be killed of all, also of those that are left. If just so many are, one of a hundred samples
    must have as few killed; if none is left, this sample is the only one."""
    tried = killed + alive
    good = math.ceil(percent * (tried + left) / 100)
    bad = tried + left - good
    samples = sum(math.comb(good, count) * math.comb(bad, tried - count) for count in range(killed + 1))
    return 100 * samples >= math.comb(tried + left, tried)


def main():
    arguments = parse_arguments()
    if not arguments.list:
        shield_devices()
    WORK.mkdir(parents=True, exist_ok=True)
    units, links = read_units(ROOT, ROOT / arguments.build), Links(ROOT / arguments.build)
    mutants, sources, count = choose(arguments, units, links)
    if arguments.list:
        for mutant in mutants:
            print(f"{mutant.id}  {one_line(mutant.before)}  ->  {one_line(mutant.after) or 'nothing'}")
        print(f"{len(mutants)} mutants")
        return 0
    results = Results()

    def is_open(mutant):
        result = results.find(mutant)
        isAlive = result is not None and result["outcome"] == "alive"
        isTriedAgain = arguments.again or result is not None and result.get("quick") and not arguments.quick
        return result is None or bool(arguments.only) or isAlive and isTriedAgain

    equivalents = Equivalents(ROOT)
    wanted = [mutant for mutant in mutants if is_open(mutant) and not equivalents.has(mutant)]
    if wanted:
        random.Random(arguments.seed).shuffle(wanted)  # an interrupted run is a sample, too
        Run(units, links, sources, results, arguments).all(wanted)
    killed, alive, left = report(mutants, results, equivalents, not arguments.suites and not arguments.seconds)
    return 0 if is_enough(killed, alive, left + count - len(mutants), arguments.least) else 1


if __name__ == "__main__":
    sys.exit(main())
