"""Builds all mutants of the chosen files at once: the environment variable MUTANT chooses one while a program runs.

Uses the objects and the command lines of a build that exists. Only the files with mutants are compiled anew, and the
test programs and libraries that have them are linked anew, in a folder of their own."""

import hashlib
import json
import os
import re
import shlex
import subprocess
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent
ERROR = re.compile(r"^(.+?):(\d+):(\d+):\s+(error|note|required from here|required from)\b", re.MULTILINE)


class Unit:
    """What the compiler is started for: a source file, or several that are combined."""

    def __init__(self, root, entry):
        words = shlex.split(entry["command"])
        self.folder = entry["directory"]
        at = words.index("-o")
        self.object = words[at + 1]
        self.command = [word for word in words[:at] if word != "-Werror"]
        self.main = Path(entry["file"])
        combined = re.findall(r'^#include "(.*\.cpp)"', self.main.read_text(), re.MULTILINE) \
            if self.main.suffix == ".cxx" and self.main.exists() else []
        self.members = [os.path.relpath(file, root) for file in combined or [self.main]]
        self.flags = [word for word in " ".join(words).replace("-isystem ", "-isystem").split()
                      if word.startswith(("-I", "-D", "-std", "-isystem"))]


def read_units(root, build):
    return [Unit(root, entry) for entry in json.loads((build / "compile_commands.json").read_text())]


class Links:
    """How a build links its test programs and its libraries."""

    def __init__(self, build):
        def command(name):
            told = subprocess.run(["ninja", "-C", build, "-t", "commands", "-s", name], capture_output=True, text=True,
                                  check=True).stdout
            return shlex.split(told if name.endswith(".a") else told.split(" && ")[1])

        targets = subprocess.run(["ninja", "-C", build, "-t", "targets", "all"], capture_output=True, text=True,
                                 check=True).stdout
        names = [name for name in re.findall(r"^(\S+): CXX_\w+_LINKER__", targets, re.MULTILINE)
                 if (build / name).exists()]
        self.archives = {name: command(name) for name in names if name.endswith(".a")}
        self.commands = {name: command(name) for name in names if re.search(r"_tests$|/lib\w+\.so", name)}

    def objects(self, name):
        """The objects that a program or library is made of, also those in archives."""
        words = self.commands[name]
        archived = [self.archives[word] for word in words if word in self.archives]
        return {word for part in [words, *archived] for word in part if word.endswith(".o")}

    def all_objects(self):
        return {word for name in self.commands for word in self.objects(name)}


class Rendering:
    """A file with its mutants, numbered from `first`; without those that are `out` and with `fixed` tables as they are."""

    def __init__(self, source, text, first, out, fixed):
        self.text = text
        self.output = bytearray()
        self.changed = {}  # number: extent of the mutated code in the output
        self.around = {}  # number: extent of all that is made of the mutant
        self.declared = {}  # table: extent in the output
        self.tables = [tuple(table) for table in source.tables if tuple(table) not in fixed]
        self.mutants = [(number, mutant) for number, mutant in enumerate(source.mutants, first)
                        if number not in out]
        edits = [(start, end, 1, self.table, (start, end)) for start, end in self.tables]
        if self.tables:
            edits += [(start, end, 0, self.nothing, None) for start, end in source.assertions]
        regions = {}
        for number, mutant in self.mutants:
            regions.setdefault((mutant.start, mutant.end, 2 + (mutant.kind != "dropped")), []).append((number, mutant))
        edits += [(start, end, rank, self.choice, found) for (start, end, rank), found in regions.items()]
        edits.sort(key=lambda edit: (edit[0], -edit[1], edit[2]))
        self.edits = edits
        self.at = 0
        self.crossing = set()  # those that cross the border of another
        self.copy(0, len(text))

    def copy(self, start, end):
        """Writes the text with the edits in it."""
        while self.at < len(self.edits) and self.edits[self.at][0] < end:
            first, last, _, write, what = self.edits[self.at]
            self.at += 1
            if first < start or last > end:
                if write == self.choice:
                    self.crossing.update(number for number, _ in what)
                continue
            self.output += self.text[start:first]
            write(first, last, what)
            start = last
        self.output += self.text[start:end]

    def nothing(self, _, end, __):
        self.output += b"static_assert(true)"
        while self.at < len(self.edits) and self.edits[self.at][0] < end:
            self.at += 1

    def table(self, start, end, table):
        begin = len(self.output)
        brace = min((at for at in (self.text.find(b"{", start, end), self.text.find(b"=", start, end)) if at >= 0),
                    default=end)
        head = self.text[start:brace]
        constant = b"" if re.search(rb"\bconst\b", head) else b"const"
        self.output += re.sub(rb"\bconstinit\b", b"", re.sub(rb"\bconstexpr\b", constant, head))
        self.copy(brace, end)
        self.declared[table] = (begin, len(self.output))

    def choice(self, start, end, mutants):
        begin = len(self.output)
        inTable = any(first <= start < last for first, last in self.tables)
        test = b"IsMutantActive(%d)" if inTable else b"IsMutant(%d)"
        closing = b""
        for number, mutant in mutants:
            asked = test % number
            at = len(self.output)
            if mutant.kind == "dropped":
                self.output += b"if (" + asked + b") {} else "
            elif mutant.kind == "negation":
                self.output += b"(" + asked + b" != static_cast<bool>("
                closing += b"))"
            else:
                mutated = (self.text[start:mutant.offset] + mutant.after.encode()
                           + self.text[mutant.offset + mutant.length:end])
                self.output += b"(" + asked + b" ? (" + mutated + b") : ("
                closing += b"))"
            self.changed[number] = (at, len(self.output))
        self.copy(start, end)
        self.output += closing
        for number, _ in mutants:
            self.around[number] = (begin, len(self.output))


class Builder:
    def __init__(self, root, build, work, units, links, sources):
        self.root, self.build, self.work = root, build, work
        self.units, self.links = units, links
        self.sources = {source.name: source for source in sources}
        # A file has the same numbers whatever others are chosen.
        members = sorted({member for unit in self.units for member in unit.members})
        self.first = {name: 1 + 1024 * members.index(name) for name in self.sources}
        self.numbers = {mutant.id: number for name, source in self.sources.items()
                        for number, mutant in enumerate(source.mutants, self.first[name])}
        self.size = 1 + 1024 * len(members)
        assert all(len(source.mutants) <= 1024 for source in sources)
        self.single = set()  # numbers of mutants that are only built alone
        self.invalid = set()  # and of those that do not compile
        self.left = set()  # files for which there was no time

    def mutated_units(self):
        return [unit for unit in self.units if any(member in self.sources for member in unit.members)]

    def compile(self, unit, output, files, options=()):
        """Compiles the unit with other files in place of its own: {name: file}. Returns the messages, or None."""
        if [self.root / member for member in unit.members] == [unit.main]:
            main = files[unit.members[0]]
        else:
            main = output.with_suffix(".cxx")
            main.parent.mkdir(parents=True, exist_ok=True)
            main.write_text("".join(f'#include "{files.get(member, self.root / member)}"\n' for member in unit.members))
        output.parent.mkdir(parents=True, exist_ok=True)
        beside = [f"-iquote{(self.root / member).parent}" for member in unit.members]
        done = subprocess.run([*unit.command, *beside, "-w", "-Wno-narrowing", "-D_GLIBCXX_ASSERTIONS", "-fdiagnostics-column-unit=byte",
                               "-fno-diagnostics-show-caret", *options, "-o", str(output), "-c", str(main)],
                              cwd=unit.folder, capture_output=True, text=True, errors="replace",
                              env=os.environ | {"LC_ALL": "C"})
        return None if done.returncode == 0 else done.stderr

    def compile_mutants(self, unit):
        """Compiles the unit with all its mutants; leaves out those that the compiler does not take."""
        output = self.work / "objects" / unit.object
        state = output.with_suffix(".json")
        names = [member for member in unit.members if member in self.sources]
        digest = hashlib.sha256(repr([unit.command, [(name, self.first[name]) for name in names]]).encode())
        for file in [*(self.root / member for member in unit.members), HERE / "build.py", HERE / "mutants.py", HERE / "Mutant.h"]:
            digest.update(file.read_bytes())
        if state.exists() and output.exists() and (kept := json.loads(state.read_text()))["digest"] == digest.hexdigest() \
                and newer(output, [self.build / unit.object]):
            return output, set(kept["single"]), set(kept["invalid"])
        single, invalid, fixed = set(), set(), set()
        for _ in range(12):
            rendered = {}
            for name in names:
                text = (self.root / name).read_bytes()
                made = Rendering(self.sources[name], text, self.first[name], single | invalid, fixed)
                single |= made.crossing
                file = output.parent / (name.replace("/", "+"))
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_bytes(made.output)
                rendered[name] = (file, made)
            messages = self.compile(unit, output, {name: file for name, (file, _) in rendered.items()},
                                    ["-include", str(HERE / "Mutant.h"), "-O0", "-U_FORTIFY_SOURCE"])
            if messages is None:
                state.write_text(json.dumps({"digest": digest.hexdigest(), "single": sorted(single),
                                             "invalid": sorted(invalid)}))
                return output, single, invalid
            if not self.leave_out(messages, rendered, single, invalid, fixed):
                break
        raise SystemExit(f"{output} cannot be built with its mutants:\n{messages[:3000]}")

    def leave_out(self, messages, rendered, single, invalid, fixed):
        """Takes out what the messages are about. Returns whether there is anything."""
        before = (len(single), len(invalid), len(fixed))
        lines = {str(file): [0, *(found.end() for found in re.finditer(b"\n", bytes(made.output)))]
                 for file, made in rendered.values()}
        for path, line, column, kind in ERROR.findall(messages):
            for name, (file, made) in rendered.items():
                if str(file) != path:
                    continue
                at = lines[path][int(line) - 1] + int(column) - 1

                def inside(extents):
                    return min((key for key, (start, end) in extents.items() if start <= at < end), default=None,
                               key=lambda key: extents[key][1] - extents[key][0])

                if (number := inside(made.changed)) is not None:
                    invalid.add(number)
                elif (number := inside(made.around)) is not None:
                    single.add(number)
                elif (table := inside(made.declared)) is not None:
                    fixed.add(table)
                elif kind == "error":  # an error beside the mutants comes from one of them on the line
                    end = lines[path][int(line)] if int(line) < len(lines[path]) else len(made.output)
                    single.update(number for number, (start, last) in made.around.items()
                                  if start < end and last > lines[path][int(line) - 1])
        for name, (_, made) in rendered.items():
            single.update(number for number, mutant in made.mutants if number not in invalid
                          and any(start <= mutant.offset < end for start, end in fixed) and mutant.kind == "cell")
        return before != (len(single), len(invalid), len(fixed))

    def compile_one(self, unit, output, mutant, options=()):
        """Compiles the unit with one mutant, or without any; returns the messages, or None."""
        name = mutant.file
        text = (self.root / name).read_bytes()
        if mutant.after is not None:
            text = text[:mutant.offset] + mutant.after.encode() + text[mutant.offset + mutant.length:]
        file = output.parent / name.replace("/", "+")
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(text)
        return self.compile(unit, output, {name: file}, options)

    def link(self, objects, folder, wanted=None, extra=()):
        """Links what has any of the objects, {original: replacement}, into `folder`. The rest is linked to."""
        folder.mkdir(parents=True, exist_ok=True)
        made = []
        for name, words in self.links.commands.items():
            program = Path(name).name
            isSuite = program.endswith("_tests")
            used = self.links.objects(name) & objects.keys()
            inArchives = [objects[old] for old in sorted(used.difference(words))]
            if not used or isSuite and wanted is not None and program not in wanted:
                continue
            at = words.index("-o")
            soname = next((word.split(",")[-1] for word in words if word.startswith("-Wl,-soname,")), program)
            output = folder / soname
            command = [*words[:at], *map(str, inArchives), *words[at:]]
            command = [str(objects.get(word, word)) for word in command]
            command[command.index("-o") + 1] = str(output)
            command += [str(file) for file in extra if isSuite or file.name != "Recorder.o"]
            command += ["-lgtest"] if isSuite else []
            inputs = [self.build / word for word in command if word.endswith((".o", ".a", ".so"))]
            told = folder / f"{output.name}.command"  # other files may have had the mutants before
            isSame = told.exists() and told.read_text() == repr(command)
            if not isSame or not newer(output, [file for file in inputs if file.exists()]):
                output.unlink(missing_ok=True)
                done = subprocess.run(command, cwd=self.build, capture_output=True, text=True)
                if done.returncode != 0:
                    raise SystemExit(f"{output} cannot be linked:\n{done.stderr[-3000:]}")
                told.write_text(repr(command))
            if isSuite:
                made.append(output)
        for file in (self.build / "bin").iterdir():  # programs find catalogs and each other beside them
            if not (folder / file.name).exists():
                (folder / file.name).symlink_to(file)
        return made

    def build_all(self, pool, suites, end):
        """The test programs with the mutants; without those of files that are not begun at `end`."""
        extra = []
        for name in ("Mutant", "Recorder"):
            output = self.work / f"{name}.o"
            if not newer(output, [HERE / f"{name}.cpp", HERE / "Mutant.h"]):
                subprocess.run(["c++", "-std=c++20", "-O1", "-fPIC", "-fvisibility=hidden", "-c", HERE / f"{name}.cpp", "-o", output],
                               check=True)
            extra.append(output)
        objects = {}
        units = self.mutated_units()

        def compile_in_time(unit):  # the first in any case, so that something is tried
            return self.compile_mutants(unit) if unit is units[0] or time.monotonic() < end else None

        for unit, made in zip(units, pool.map(compile_in_time, units)):
            if made is None:
                self.left.update(unit.members)
                continue
            output, single, invalid = made
            objects[unit.object] = output
            self.single |= single
            self.invalid |= invalid
        self.single -= self.invalid
        return self.link(objects, self.work / "bin", suites, extra)


def newer(output, inputs):
    return output.exists() and all(file.stat().st_mtime <= output.stat().st_mtime for file in inputs)
