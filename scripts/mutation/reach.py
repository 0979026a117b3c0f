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
        files = sorted(file for file in (self.build / "bin").iterdir() if file.is_file() and not file.is_symlink())
        # What tests start or load. A test program has the objects of the libraries in it.
        self.others = [file for file in files if os.access(file, os.X_OK) and not file.name.endswith(("_tests", ".dll"))
                       and file.read_bytes()[:4] == b"\x7fELF"]

    def lines(self, program, folder):
        """The lines counted in the profiles in `folder`: {file: lines reached}, {file: lines with code}."""
        merged = folder / "all.profdata"
        subprocess.run(["llvm-profdata", "merge", "-sparse", "-o", merged, *folder.glob("*.profraw")], check=True)
        told = subprocess.run(["llvm-cov", "export", "-format=lcov", "-skip-functions", f"-instr-profile={merged}", program,
                               *(f"-object={other}" for other in self.others)],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=True).stdout
        reached, code, path = {}, {}, ""
        for line in told.splitlines():
            if line.startswith("SF:"):
                path = os.path.relpath(line[3:], self.root)
            elif line.startswith("DA:") and path.startswith(("src/", "app/")):
                number, count = line[3:].split(",")
                code.setdefault(path, set()).add(int(number))
                if count != "0":
                    reached.setdefault(path, set()).add(int(number))
        return reached, code

    def record(self, program, test):
        folder = self.scratch / hashlib.sha256(test.encode()).hexdigest()[:16]
        folder.mkdir()
        environment = test_environment(folder) | {"LLVM_PROFILE_FILE": str(folder / "%2m.profraw")}
        started = time.monotonic()
        failed = subprocess.run([program, f"--gtest_filter={test}"], capture_output=True, text=True,
                                env=environment, cwd=folder, timeout=1800).returncode
        seconds = time.monotonic() - started
        result = None if failed else (seconds, *self.lines(program, folder))
        shutil.rmtree(folder)
        return result

    def all(self, jobs, data, keep):
        """Completes `data`, and keeps it after each suite."""
        programs = [program for program in sorted((self.build / "bin").glob("*_tests"))
                    if program.name not in LEFT_OUT and program.name not in data["suites"]]
        for program in programs:
            tests = list_tests(program, test_environment(self.scratch))
            print(f"reach: {len(tests)} tests of {program.name}", flush=True)
            with ThreadPoolExecutor(jobs) as pool:
                runs = {test: pool.submit(self.record, program, test) for test in tests}
            for test, run in runs.items():
                if run.result() is None:
                    print(f"reach: {test} fails without a mutant and is left out", flush=True)
                    continue
                seconds, reached, present = run.result()
                data["tests"][f"{program.name}:{test}"] = {
                    "seconds": round(seconds, 3),
                    "lines": {file: sorted(lines) for file, lines in reached.items()}}
                for file, lines in present.items():
                    data["code"][file] = sorted(lines.union(data["code"].get(file, ())))
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
