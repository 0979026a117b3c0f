"""Runs the tests: once to record which mutants each reaches, then on each mutant those that reach it."""

import math
import os
import re
import resource
import shutil
import signal
import subprocess
import tempfile
import threading
import time
from collections import Counter, defaultdict
from pathlib import Path

from mutation.build import newer

# Random walks reach nearly everything and take minutes, so no mutant is worth them.
LEFT_OUT = ("soak_tests", "walk_tests")
UNREACHED = "no test reaches it"


def run(program, arguments, folder, libraries, variables, limit, processor=None):
    """Runs a program in a new folder: what it printed, or None if it did not end; and its result."""
    home = Path(tempfile.mkdtemp(dir=folder))
    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "XDG_CACHE_HOME": str(home), "TMPDIR": str(home),
                                "LD_LIBRARY_PATH": str(libraries)} | variables

    def bound():  # what a mutant may take before it counts as noticed
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        resource.setrlimit(resource.RLIMIT_DATA, (1 << 32, 1 << 32))
        if processor:
            resource.setrlimit(resource.RLIMIT_CPU, (processor, processor + 1))

    with (home / "printed").open("w+", errors="replace") as printed:
        running = subprocess.Popen([program, *arguments], stdout=printed, stderr=subprocess.STDOUT, cwd=home,
                                   env=environment, start_new_session=True, preexec_fn=bound)
        try:
            running.wait(limit)
        except subprocess.TimeoutExpired:
            pass
        ended = running.returncode is not None
        try:  # what the tests have started goes with them
            os.killpg(running.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        running.wait()
        printed.seek(0)
        told = printed.read(1 << 22)
    shutil.rmtree(home, ignore_errors=True)
    return (told if ended else None), running.returncode


def ctest_costs(build):
    """{suite: seconds that ctest saw it take}; 0 where it did not run."""
    costs, file = defaultdict(float), build / "Testing/Temporary/CTestCostData.txt"
    for line in file.read_text().splitlines() if file.exists() else []:
        if found := re.match(r"(.*_tests)(?:_\d+)? \d+ ([\d.]+)$", line):
            costs[found[1]] += float(found[2])
    return costs


class Reach:
    """Which tests reach a mutant; without the suites that are not begun at `end`, the slowest."""

    def __init__(self, suites, work, builder, pool, end):
        self.seconds = {}
        self.tests = defaultdict(list)  # number: (suite, test)
        self.folder = work / "reach"
        self.folder.mkdir(parents=True, exist_ok=True)
        self.size = builder.size
        costs = ctest_costs(builder.build)
        suites = sorted((suite for suite in suites if suite.name not in LEFT_OUT), key=lambda suite: costs[suite.name])
        libraries = list((work / "bin").glob("*.so.?"))
        for suite, record in zip(suites, pool.map(lambda suite: self.record(suite, libraries, end), suites)):
            for line in record.read_text().splitlines() if record else []:
                name, seconds, passed, *numbers = line.split()
                if name == "start":
                    started = numbers
                elif passed == "1":
                    test = (suite, name)
                    self.seconds[test] = float(seconds)
                    for number in set(numbers).union(started):
                        self.tests[int(number)].append(test)
                else:
                    print(f"{suite.name}: {name} fails without a mutant and is left out", flush=True)

    def record(self, suite, libraries, end):
        """The file with what the suite's tests reach; None if it did not end in time."""
        record, reached = self.folder / suite.name, self.folder / f"{suite.name}.bytes"
        if newer(record, [suite, *libraries]):
            return record
        left = end - time.monotonic()
        if left <= 0:
            return None
        print(f"recording what {suite.name} reaches", flush=True)
        part = self.folder / f"{suite.name}.part"  # until it is whole
        part.unlink(missing_ok=True)
        reached.write_bytes(bytes(self.size))
        told, result = run(suite, [], self.folder, suite.parent,
                           {"MUTANTS_REACHED": str(reached), "MUTANTS_RECORD": str(part)}, min(left, 1800))
        if told is None and left < 1800:
            return None
        if told is None or result < 0 or not part.exists():
            raise SystemExit(f"{suite} does not run without a mutant: {result}\n{(told or '')[-2000:]}")
        return part.rename(record)


class Trial:
    """Runs tests on mutants: first those that killed others of the same file or folder in the least time, then those of
    suites that are named after a folder of the file, then all others, the quickest first."""

    def __init__(self, reach, work, budget):
        self.reach, self.budget = reach, budget
        self.folder = Path(tempfile.mkdtemp(dir=work))
        self.kills = defaultdict(Counter)
        self.lock = threading.Lock()

    @staticmethod
    def places(mutant):
        return str(Path(mutant.file).parent), mutant.file

    def batches(self, mutant, tests):
        """Tests of one suite each, in the order in which to run them; and how many are left out."""
        with self.lock:
            kills = dict(count for place in self.places(mutant) for count in self.kills[place].most_common(6))
        best = sorted((test for test in kills if test in tests), key=lambda test: self.reach.seconds[test] / kills[test])
        folders = Path(mutant.file).parts[:2]

        def rank(test):
            suite, _ = test
            isOfOthers = not any(folder.startswith(suite.name.split("_")[0]) for folder in folders)
            return isOfOthers, self.reach.seconds[test]

        order = best + sorted((test for test in tests if test not in best), key=rank)
        batches, spent, quick = [], 0.0, {}
        for count, test in enumerate(order):
            seconds = self.reach.seconds[test]
            spent += seconds + 0.02
            if spent > self.budget and batches:
                return batches, len(order) - count
            if test in best or seconds > 0.3:
                batches.append([test])
            elif test[0] in quick and len(quick[test[0]]) < 40:
                quick[test[0]].append(test)
            else:
                quick[test[0]] = [test]
                batches.append(quick[test[0]])
        return batches, 0

    def test(self, mutant, tests, programs, variables):
        """How the mutant ends: outcome and detail."""
        if not tests:
            return "alive", UNREACHED
        batches, skipped = self.batches(mutant, set(tests))
        for batch in batches:
            suite = batch[0][0]
            seconds = sum(self.reach.seconds[test] for test in batch)
            program = programs / suite.name if (programs / suite.name).exists() else suite
            told, result = run(program, ["--gtest_fail_fast", "--gtest_filter=" + ":".join(test for _, test in batch)],
                               self.folder, f"{programs}:{suite.parent}", variables, 20 + 6 * seconds, math.ceil(3 + 4 * seconds))
            if told is not None and result == 0:
                continue
            failed = [line.split("]", 1)[1].split("(")[0].split(",")[0].strip()
                      for line in (told or "").splitlines() if line.startswith("[  FAILED  ]")]
            started = [line.split("]", 1)[1].strip() for line in (told or "").splitlines() if line.startswith("[ RUN")]
            killer = (failed or started or [batch[0][1]])[-1 if not failed else 0]
            with self.lock:
                for place in self.places(mutant):
                    self.kills[place][(suite, killer)] += 1
            how = "" if failed else ", no end" if told is None else f", ended with {result}"
            return "killed", f"{suite.name}: {killer}{how}"
        return "alive", f"{skipped} slow tests not run" if skipped else ""
