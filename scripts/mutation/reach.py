"""Which tests reach which lines: every test of every suite is run by itself on the build of the preset `coverage`."""

import hashlib
import json
import os
import shutil
import subprocess
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

# Tables are read by the compiler and not by a line that could be counted. Where no function of a table's file runs
# either, these are the suites that use what is in it.
TABLE_SUITES = (
    ("src/settings/", ("settings_tests", "snapshot_tests", "page_tests", "sweep_tests", "acctl_tests")),
    ("src/resources/", ("toolkit_tests", "page_tests", "host_tests", "sweep_tests")),
    ("src/device/", ("device_tests", "settings_tests", "page_tests", "snapshot_tests")),
    ("src/simulator/", ("device_tests", "settings_tests", "snapshot_tests")),
    ("src/", ("page_tests", "host_tests")),
    ("app/", ("app_tests", "acctl_tests")),
)

# Random walks reach nearly everything and take minutes, so no mutant is worth them.
LEFT_OUT = ("soak_tests", "walk_tests")


def list_tests(program, environment):
    listed = subprocess.run([program, "--gtest_list_tests"], capture_output=True, text=True,
                            env=environment, check=True).stdout
    suite, tests = "", []
    for line in listed.splitlines():
        name = line.split("#")[0].rstrip()
        if line.startswith("  "):
            tests.append(suite + name.strip())
        elif name.endswith("."):
            suite = name
    return tests


def test_environment(home):
    """Offscreen, and with nothing of the user's."""
    return os.environ | {"QT_QPA_PLATFORM": "offscreen", "XDG_CACHE_HOME": str(home)}


class Recorder:
    def __init__(self, root, work):
        self.root = root
        self.build = root / "build/coverage"
        self.scratch = Path(tempfile.mkdtemp(prefix="reach-", dir=work))
        self.idle = {}  # what a program counts that runs no test: {.gcda file: its content}

    def lines(self, folder):
        """The lines counted in the .gcda files below `folder`: {file: lines reached}, {file: lines with code}. What is
        only reached before any test is left out, and most of the time of gcov with it."""
        counted = [file for file in sorted(folder.rglob("*.gcda"))
                   if self.idle.get(file.relative_to(folder)) != file.read_bytes()]
        for file in counted:
            notes = "/" / file.relative_to(folder).with_suffix(".gcno")
            file.with_suffix(".gcno").symlink_to(notes)
        reached, code = {}, {}
        for first in range(0, len(counted), 40):
            told = subprocess.run(["gcov", "--json-format", "--stdout", *counted[first:first + 40]],
                                  capture_output=True, text=True, check=True, cwd=self.build).stdout
            for document in filter(None, told.splitlines()):
                for file in json.loads(document)["files"]:
                    path = os.path.relpath(os.path.join(self.build, file["file"]), self.root)
                    if not path.startswith(("src/", "app/")):
                        continue
                    for line in file["lines"]:
                        code.setdefault(path, set()).add(line["line_number"])
                        if line["count"] > 0:
                            reached.setdefault(path, set()).add(line["line_number"])
        return reached, code

    def run(self, program, test, folder):
        environment = test_environment(folder) | {"GCOV_PREFIX": str(folder)}
        return subprocess.run([program, f"--gtest_filter={test}"], capture_output=True, text=True,
                              env=environment, cwd=folder, timeout=1800).returncode

    def run_idle(self, program):
        """{file: lines with code}"""
        folder = self.scratch / "idle"
        folder.mkdir()
        self.idle = {}
        self.run(program, "-*", folder)
        _, code = self.lines(folder)
        self.idle = {file.relative_to(folder): file.read_bytes() for file in folder.rglob("*.gcda")}
        shutil.rmtree(folder)
        return code

    def record(self, program, test):
        folder = self.scratch / hashlib.sha256(test.encode()).hexdigest()[:16]
        folder.mkdir()
        started = time.monotonic()
        failed = self.run(program, test, folder)
        seconds = time.monotonic() - started
        result = None if failed else (seconds, self.lines(folder)[0])
        shutil.rmtree(folder)
        return result

    def all(self, jobs, data, keep):
        """Completes `data`, and keeps it after each suite."""
        programs = [program for program in sorted((self.build / "bin").glob("*_tests"))
                    if program.name not in LEFT_OUT and program.name not in data["suites"]]
        for program in programs:
            tests = list_tests(program, test_environment(self.scratch))
            print(f"reach: {len(tests)} tests of {program.name}", flush=True)
            for file, lines in self.run_idle(program).items():
                data["code"][file] = sorted(lines.union(data["code"].get(file, ())))
            with ThreadPoolExecutor(jobs) as pool:
                runs = {test: pool.submit(self.record, program, test) for test in tests}
            for test, run in runs.items():
                if run.result() is None:
                    print(f"reach: {test} fails without a mutant and is left out", flush=True)
                    continue
                seconds, reached = run.result()
                data["tests"][f"{program.name}:{test}"] = {
                    "seconds": round(seconds, 3),
                    "lines": {file: sorted(lines) for file, lines in reached.items()}}
            data["suites"].append(program.name)
            keep(data)
        shutil.rmtree(self.scratch)


def state_of(root):
    """A digest of everything that the tests are built from."""
    digest = hashlib.sha256()
    for file in sorted(file for folder in ("src", "app", "tests") for file in (root / folder).rglob("*")):
        if file.is_file():
            digest.update(str(file.relative_to(root)).encode() + file.read_bytes())
    return digest.hexdigest()


class Reach:
    def __init__(self, root, work, jobs, keep):
        kept, state = work / "reach.json", state_of(root)
        self.data = json.loads(kept.read_text()) if kept.exists() else {"state": ""}
        if self.data["state"] != state and not (keep and kept.exists()):
            self.data = {"state": state, "suites": [], "tests": {}, "code": {}}
        if not (keep and kept.exists()):
            print("Building (build/coverage), to record what each test reaches", flush=True)
            subprocess.run(["cmake", "--preset", "coverage"], cwd=root, check=True,
                           stdout=subprocess.DEVNULL)
            subprocess.run(["cmake", "--build", "--preset", "coverage"], cwd=root, check=True)
            Recorder(root, work).all(jobs, self.data, lambda data: kept.write_text(json.dumps(data)))
        self.tests = self.data["tests"]

    def seconds(self, test):
        return self.tests[test]["seconds"]

    def of(self, mutant):
        """The tests that reach the mutant."""
        code = [line for line in self.data["code"].get(mutant.file, ())
                if mutant.function and mutant.function <= line <= mutant.line]
        if code:
            line = max(code)
            return [test for test, told in self.tests.items()
                    if line in told["lines"].get(mutant.file, ())]
        users = [test for test, told in self.tests.items() if mutant.file in told["lines"]]
        if users and mutant.file.endswith(".cpp"):
            return users
        suites = next(suites for folder, suites in TABLE_SUITES if mutant.file.startswith(folder))
        return [test for test in self.tests if test.split(":")[0] in suites]


class Suites:
    """Test programs that are run on every mutant, whatever they reach; all their tests, or SUITE:PATTERN."""

    def __init__(self, suites):
        self.tests = [suite if ":" in suite else f"{suite}:*" for suite in suites]

    def seconds(self, test):
        return 60.0 + self.tests.index(test)  # allows for a slow one; in the order of the command line

    def of(self, _):
        return self.tests
