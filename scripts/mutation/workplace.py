"""A copy of the tree with a build of its own, in which mutants are built and tested one after the other."""

import os
import shlex
import shutil
import signal
import subprocess
import time
from collections import defaultdict

from mutation.reach import test_environment


class Workplace:
    def __init__(self, root, folder, suites, tried):
        self.root = root
        self.suites = suites  # those that any mutant needs
        self.tried = tried  # {suite: tests that must pass without a mutant}
        self.tree = folder / "tree"
        self.build = self.tree / "build/dev"
        self.originals = folder / "objects"
        self.home = folder / "home"
        self.prepared = False

    def prepare(self):
        """Brings the copy up to date, and builds it."""
        if self.prepared:
            return
        self.home.mkdir(parents=True, exist_ok=True)
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                                cwd=self.root, capture_output=True, text=True, check=True).stdout
        files = {file for file in listed.split("\0") if file and (self.root / file).is_file()}
        for file in files:
            source, copy = self.root / file, self.tree / file
            if not copy.exists() or copy.read_bytes() != source.read_bytes():
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, copy)
        for folder in ("src", "app", "tests"):  # whatever was removed or renamed since
            for copy in (self.tree / folder).rglob("*"):
                if copy.is_file() and str(copy.relative_to(self.tree)) not in files:
                    copy.unlink()
        # The library's assertions notice what reads beyond an end.
        options = ["-DCMAKE_CXX_FLAGS_DEBUG=-D_GLIBCXX_ASSERTIONS", "-DCMAKE_COMPILE_WARNING_AS_ERROR=OFF",
                   "-DADVANCEDCONTROL_BENCHMARKS=OFF", "-DADVANCEDCONTROL_PRECOMPILE=ON"]
        if shutil.which("ccache"):
            options.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        if shutil.which("mold"):
            options += [f"-DCMAKE_{kind}_LINKER_FLAGS=-fuse-ld=mold" for kind in ("EXE", "SHARED")]
        options += shlex.split(os.environ.get("MUTATE_CMAKE", ""))
        subprocess.run(["cmake", "--preset", "dev", *options], cwd=self.tree, check=True,
                       stdout=subprocess.DEVNULL)
        built = subprocess.run(["ninja", "-C", self.build, *self.suites], capture_output=True, text=True,
                               env=self.environment(False))
        if built.returncode != 0:
            raise SystemExit(f"{self.tree} does not build:\n{built.stdout[-3000:]}")
        shutil.rmtree(self.originals, ignore_errors=True)
        for file in self.build.rglob("*.o"):
            copy = self.originals / file.relative_to(self.build)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(file, copy)
        # A test that fails without a mutant would kill all of them. Reach leaves such tests out.
        for suite, tests in self.tried.items():
            if failed := self.run(suite, tests, 600):
                raise SystemExit(f"without a mutant, {failed}")
        self.prepared = True

    def environment(self, mutated):
        settings = {"CCACHE_BASEDIR": str(self.tree), "CCACHE_NOHASHDIR": "1",
                    "CCACHE_SLOPPINESS": "pch_defines,time_macros"}
        return os.environ | settings | ({"CCACHE_DISABLE": "1"} if mutated else {})

    def restore(self, file, stamp, since):
        """Takes the mutant back, and what was built of it; what was linked with it is linked anew when needed."""
        shutil.copy(self.root / file, self.tree / file)
        os.utime(self.tree / file, ns=(stamp.st_atime_ns, stamp.st_mtime_ns))
        for built in self.build.rglob("*"):
            if built.is_symlink() or not built.is_file() or built.stat().st_mtime < since:
                continue
            original = self.originals / built.relative_to(self.build)
            if original.exists():
                built.unlink()
                shutil.copy2(original, built)
            elif built.parent.name == "bin" or built.suffix in (".a", ".so"):
                built.unlink()

    def unchanged(self, since):
        """Whether every object that was compiled since is what it was without the mutant."""
        made = [file for file in self.build.rglob("*.o") if file.stat().st_mtime >= since]
        return bool(made) and all(
            file.read_bytes() == (self.originals / file.relative_to(self.build)).read_bytes()
            for file in made)

    def run(self, suite, tests, seconds):
        """Runs the tests; returns how they killed the mutant, or an empty text."""
        command = [self.build / "bin" / suite, "--gtest_fail_fast", "--gtest_filter=" + ":".join(tests)]
        running = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                   errors="replace", cwd=self.home, env=test_environment(self.home),
                                   start_new_session=True)
        try:
            told, _ = running.communicate(timeout=60 + 3 * seconds)
        except subprocess.TimeoutExpired:
            return f"{suite}: no end"
        finally:
            try:  # what the tests have started goes with them
                os.killpg(running.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            running.wait()
        if running.returncode == 0:
            return ""
        failed = [line.split("]", 1)[1].split("(")[0].split(",")[0].strip()
                  for line in told.splitlines() if line.startswith("[  FAILED  ]")]
        return f"{suite}: {failed[0] if failed else f'ended with {running.returncode}'}"

    def test(self, mutant, reach, budget):
        """Builds and tests the mutant: outcome, and what tells more of it."""
        self.prepare()
        suites = defaultdict(list)
        skipped, spent = 0, 0.0
        for test in sorted(reach.of(mutant), key=reach.seconds):
            spent += reach.seconds(test)
            if spent > budget and suites:
                skipped += 1
                continue
            suite, name = test.split(":", 1)
            suites[suite].append((name, reach.seconds(test)))
        if not suites:
            return "alive", "no test reaches it"
        copy = self.tree / mutant.file
        stamp, since = copy.stat(), time.time() - 0.01
        source = copy.read_bytes()
        end = mutant.offset + mutant.length
        assert source[mutant.offset:end].decode() == mutant.before, f"{mutant.id} is out of date"
        copy.write_bytes(source[:mutant.offset] + mutant.after.encode() + source[end:])
        try:
            for suite in sorted(suites, key=lambda suite: sum(time for _, time in suites[suite])):
                built = subprocess.run(["ninja", "-C", self.build, "-j", "1", suite],
                                       capture_output=True, text=True, env=self.environment(True))
                if built.returncode != 0:
                    held = "static assertion failed" in built.stdout or "CheckCatalog" in built.stdout
                    return ("killed", "the build") if held else ("invalid", "does not compile")
                if self.unchanged(since):
                    return "equivalent", "compiles to the same"
                tests, seconds = zip(*suites[suite])
                killer = self.run(suite, tests, sum(seconds))
                if killer:
                    return "killed", killer
            return "alive", f"{skipped} slow tests not run" if skipped else ""
        finally:
            self.restore(mutant.file, stamp, since)
