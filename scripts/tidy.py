#!/usr/bin/env python3
"""clang-tidy over src/ and app/: scripts/tidy.py [--since COMMIT | --deep | FILE...].

With --since, over the files of src/, app/ and tests/ that were changed since the commit, or whose header was, and of many
only over those changed last. The few that were changed last are also looked at with the checks of the analyzer, which
take up to half a minute for a file. The compiler also reads each changed file by itself, which shows whether it includes
what it uses: the builds of the other checks combine files. With --deep, over all tests too, and everything with the
checks of the analyzer.

Most of the time goes into the headers that the files share. So a few files of a folder are looked at as if they were
one. Where that finds anything, also that they do not go together, each of them is looked at alone, and only that
counts."""

import itertools
import json
import os
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/tidy"
TOGETHER = 6
MOST_CHANGED = 24
MOST_ANALYZED = 6
# Every table of rows and templates defines its own `kRows`, so these files cannot be combined. They
# include little.
ALONE = ("src/resources", "src/settings/")
FOLDERS = ("src/", "app/")
TESTS = ("tests/",)
# The analyzer takes a Qt object that its parent owns for a leak.
ANALYZER = "clang-analyzer-*,-clang-analyzer-cplusplus.NewDeleteLeaks"


def read_commands():
    """The compiler and its arguments for each source file, without the file and what is written."""
    subprocess.run(["cmake", "--preset", "dev", "-B", BUILD, "-DCMAKE_CXX_COMPILER_LAUNCHER="], cwd=ROOT, check=True,
                   stdout=subprocess.DEVNULL)
    commands = {}
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        arguments = shlex.split(entry["command"].replace("-isystem ", "-isystem"))
        file = Path(entry["file"])
        for flag, words in (("-o", 2), ("-c", 1), (entry["file"], 1)):
            if flag in arguments:
                at = arguments.index(flag)
                del arguments[at:at + words]
        if file.is_relative_to(ROOT) and file.suffix == ".cpp":
            commands[str(file.relative_to(ROOT))] = arguments
    return commands


def batches(files):
    folders = {}
    for file in files:
        folder = os.path.dirname(file)
        folders.setdefault(file if folder.startswith(ALONE) else folder, []).append(file)
    for together in folders.values():
        for start in range(0, len(together), TOGETHER):
            yield together[start:start + TOGETHER]


def tidy(file, arguments, checks, *options):
    # src/Namespace.h alone says whether the namespace is inline.
    quiet = ["--extra-arg=-Wno-inline-namespace-reopened-noninline", "--extra-arg=-Wno-unknown-warning-option"]
    return subprocess.run(["clang-tidy", "--quiet", *quiet, f"--checks={checks}", file, *options, "--", *arguments], cwd=ROOT,
                          capture_output=True, text=True)


def read_alone(file, command):
    """What the compiler finds in the file."""
    found = subprocess.run([*command, "-fsyntax-only", file], cwd=ROOT, capture_output=True, text=True)
    return found.stderr or (f"{file}: the compiler ended with {found.returncode}\n" if found.returncode else "")


def tidy_together(number, files, commands, checks):
    """The findings."""
    if len(files) > 1:
        file = BUILD / "together" / f"{number}.cpp"
        file.write_text("".join(f'#include "{ROOT / name}"\n' for name in files))
        arguments = dict.fromkeys(word for name in files for word in commands[name][1:])
        if tidy(str(file), arguments, f"{checks},-bugprone-suspicious-include",
                "--config-file=.clang-tidy").returncode == 0:
            return ""
    alone = {name: tidy(name, commands[name][1:], checks) for name in files}
    return "".join(found.stdout or found.stderr or f"{name}: clang-tidy ended with {found.returncode}\n"
                   for name, found in alone.items() if found.returncode != 0)


def changed_since(commit, files):
    """Those of the files that were changed since the commit, the latest first; all of src/ and app/ if the clone does not
    reach back so far. No more than a check for every change has time for."""
    log = subprocess.run(["git", "log", "--format=", "--name-only", f"{commit}..", "--", *FOLDERS, *TESTS], cwd=ROOT,
                         capture_output=True, text=True)
    if log.returncode != 0:
        return [name for name in files if name.startswith(FOLDERS)]
    stems = {os.path.splitext(name)[0]: name for name in files}
    changed = dict.fromkeys(stem for stem in (os.path.splitext(name)[0] for name in log.stdout.split()) if stem in stems)
    if len(changed) > MOST_CHANGED:
        print(f"{len(changed) - MOST_CHANGED} more files were changed: scripts/tidy.py looks at all")
    return [stems[stem] for stem in list(changed)[:MOST_CHANGED]]


def main():
    commands = read_commands()
    (BUILD / "together").mkdir(exist_ok=True)
    deep = sys.argv[1:] == ["--deep"]
    since = sys.argv[1:2] == ["--since"]
    files = sorted(name for name in commands if name.startswith(FOLDERS + TESTS if deep or since else FOLDERS))
    analyzed = files if deep else []
    if since:
        files = changed_since(sys.argv[2], files)
        analyzed = files[:MOST_ANALYZED]
    elif sys.argv[1:] and not deep:
        files = sys.argv[1:]
    jobs = [(batch, ANALYZER) for batch in batches(sorted(analyzed))]
    jobs += [(batch, "") for batch in batches(sorted(set(files) - set(analyzed)))]
    has_found = False
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        tidied = pool.map(lambda job: tidy_together(job[0], job[1][0], commands, job[1][1]), enumerate(jobs))
        read = pool.map(lambda file: read_alone(file, commands[file]), files if since else [])
        for found in itertools.chain(tidied, read):
            has_found = has_found or bool(found)
            print(found, end="", flush=True)  # all of it may take an hour
    return has_found


if __name__ == "__main__":
    sys.exit(main())
