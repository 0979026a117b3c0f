#!/usr/bin/env python3
"""clang-tidy over the code of a build: scripts/tidy.py BUILD_FOLDER [--since COMMIT | --deep | FILE...].

With --since, only over the files that were changed since the commit, or whose header was, and of many only over those
changed last. With --deep, over the tests
too, and with the checks of the analyzer, which take a minute for a large file.

Most of its time goes into the headers that the files share. So a few files of a folder are looked
at as if they were one. Where that finds anything, also that they do not go together, each of them
is looked at alone, and only that counts."""

import json
import os
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TOGETHER = 6
MOST_CHANGED = 24
# Every table of rows and templates defines its own `kRows`, so these files cannot be combined. They
# include little.
ALONE = ("src/resources", "src/settings/")
FOLDERS = ("src/", "app/")
DEEP = ("tests/",)
ANALYZER = "clang-analyzer-*"


def read_commands(build):
    """The arguments for each source file, without it, what is written, and headers precompiled for another compiler."""
    commands = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        arguments = shlex.split(entry["command"].replace("-isystem ", "-isystem"))
        file = Path(entry["file"])
        for flag, words in (("-o", 2), ("-c", 1), (entry["file"], 1), ("-Winvalid-pch", 1), ("-include", 2)):
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


def tidy_together(number, files, commands, build, checks):
    """The findings."""
    if len(files) > 1:
        file = build / "tidy" / f"{number}.cpp"
        file.write_text("".join(f'#include "{ROOT / name}"\n' for name in files))
        arguments = dict.fromkeys(word for name in files for word in commands[name][1:])
        if tidy(str(file), arguments, f"{checks},-bugprone-suspicious-include",
                "--config-file=.clang-tidy").returncode == 0:
            return ""
    alone = [tidy(name, commands[name][1:], checks) for name in files]
    return "".join(found.stdout or found.stderr for found in alone if found.returncode != 0)


def changed_since(commit, files):
    """Those of the files that were changed since the commit, the latest first; all if the clone does not reach back so
    far. No more than a check for every change has time for."""
    log = subprocess.run(["git", "log", "--format=", "--name-only", f"{commit}..", "--", *FOLDERS], cwd=ROOT,
                         capture_output=True, text=True)
    if log.returncode != 0:
        return files
    stems = {os.path.splitext(name)[0]: name for name in files}
    changed = dict.fromkeys(stem for stem in (os.path.splitext(name)[0] for name in log.stdout.split()) if stem in stems)
    if len(changed) > MOST_CHANGED:
        print(f"{len(changed) - MOST_CHANGED} more files were changed: scripts/tidy.py BUILD_FOLDER looks at all")
    return sorted(stems[stem] for stem in list(changed)[:MOST_CHANGED])


def main():
    build = Path(sys.argv[1]).resolve()
    (build / "tidy").mkdir(exist_ok=True)
    commands = read_commands(build)
    deep = sys.argv[2:] == ["--deep"]
    files = sorted(name for name in commands if name.startswith(FOLDERS + DEEP if deep else FOLDERS))
    if sys.argv[2:3] == ["--since"]:
        files = changed_since(sys.argv[3], files)
    elif sys.argv[2:] and not deep:
        files = sys.argv[2:]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        found = "".join(pool.map(lambda job: tidy_together(*job, commands, build, ANALYZER if deep else ""),
                                 enumerate(batches(files))))
    print(found, end="")
    return bool(found)


if __name__ == "__main__":
    sys.exit(main())
