#!/usr/bin/python3
"""Makes one call fail in each run of a program: scripts/faults.py BUILD SECONDS [SEED | POINT...].

BUILD is an optimised build that has the targets failing_calls and host_files: the sanitizers bring an allocator of their own, and in
a debug build Qt asserts before it touches memory that it did not get. The calls are an allocation, or a system call
that ends with an error, is cut short or is interrupted (scripts/faults/FailingCalls.cpp). All points of all commands are
tried in an order that the seed tells, until the time is over. A point such as "apply:error:117" tries this one alone.

Held after each run: no crash but an end that says "out of memory"; success is told only of what was done, and in the
language of the run; a file is the old or the new one; an undo file takes back all that was changed. Prints the number
of points that were tried and that there are, and what was found, with its point; what was found ends the run with 1."""

import itertools
import json
import os
import random
import shutil
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from rig import LONGEST, PROJECTOR, Found, Rig, free_port, is_ready

HOWS = ("allocation", "error", "cut", "interrupt")
CODES = (0, 1, 2, 3)
BROKER = "/usr/sbin/mosquitto"


class Faults(Rig):
    def __init__(self, build):
        super().__init__(build / "bin", "faults-")
        self.library = next((build / "bin").glob("*failing_calls.so"))
        self.clean = {}  # what a run without a fault prints
        self.commands = {"save": self.save, "set": self.set, "apply": self.apply, "undo": self.undo,
                         "serve": self.serve, "edit": self.edit, "log": self.log, "bridge": self.bridge}
        self.runs = 0
        self.broker_port = free_port()
        configuration = self.folder / "broker.conf"
        configuration.write_text(f"listener {self.broker_port} 127.0.0.1\nallow_anonymous true\n")
        self.broker = subprocess.Popen([BROKER, "-c", configuration], stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL)
        self.finish(self.acctl("apply", "changed.json", PROJECTOR))
        shutil.move(self.undo_files()[0], self.folder / "undo.json")
        self.finish(self.acctl("undo", "undo.json"))
        self.forget_undo()

    def stop(self):
        super().stop()
        self.broker.kill()
        self.broker.wait()

    def environment(self, how, number):
        environment = dict(self.own, LC_ALL="zh_CN.UTF-8", LD_PRELOAD=str(self.library),
                           FAIL_COUNTS=str(self.folder / "counts"))
        if number:
            environment["FAIL_ALLOCATION" if how == "allocation" else "FAIL_CALL"] = str(number)
            environment["FAIL_HOW"] = how
        return environment

    def counts(self, command):
        """How many allocations and system calls the command makes."""
        self.commands[command](self.environment("", 0))
        return [int(word) for word in (self.folder / "counts").read_text().split()]

    def end(self, program):
        """Whether the program tells success, and what it prints."""
        try:
            output, errors = program.communicate(timeout=LONGEST)
        except subprocess.TimeoutExpired:
            program.kill()
            raise Found("it hangs") from None
        if program.returncode not in CODES:
            raise Found(f"it ends with {program.returncode}: {errors}")
        if program.returncode != 0 and not errors:
            raise Found(f"it ends with {program.returncode} and says nothing")
        return program.returncode == 0, output, errors

    def run(self, environment, *arguments):
        # Text for people, which is in the language of the run; a lost answer is not waited for for long.
        program = subprocess.Popen(
            [self.programs / "acctl", "--profiles", self.profiles, "--timeout", "1", *arguments], cwd=self.folder,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, errors="replace", env=environment)
        return self.end(program)

    def save(self, environment):
        shutil.copy(self.folder / "changed.json", self.folder / "saved.json")
        done, _, _ = self.run(environment, "save", PROJECTOR, "saved.json")
        values = [setting["value"] for setting in self.settings("saved.json")]
        old, new = ([setting["value"] for setting in self.settings(file)] for file in ("changed.json", "good.json"))
        if values != new and (done or values != old):
            raise Found("saved.json is neither the old file nor the new one")

    def set(self, environment):
        done, output, errors = self.run(environment, "set", PROJECTOR, "picture.tint", "7")
        if done and not errors and output != self.clean.setdefault("set", output):
            raise Found(f"it prints {output}")
        got = json.loads(self.finish(self.acctl("get", PROJECTOR, "picture.tint")))
        if done and got["projectors"][0]["settings"][0]["shown"] != 7:
            raise Found("nothing was set")
        self.finish(self.acctl("apply", "good.json", PROJECTOR))
        self.forget_undo()

    def apply(self, environment):
        if self.run(environment, "apply", "changed.json", PROJECTOR)[0]:
            self.expect_like("changed.json", "success is told")
        self.expect_undone()

    def undo(self, environment):
        self.finish(self.acctl("apply", "changed.json", PROJECTOR))
        if self.run(environment, "undo", "undo.json")[0]:
            self.expect_like("good.json", "success is told")
        self.finish(self.acctl("undo", "undo.json"))
        self.expect_like("good.json", "not undone later")
        self.forget_undo()

    def serve(self, environment):
        """The simulator, which also writes a file of profiles."""
        file = self.folder / "served.json"
        file.write_text(self.profiles.read_text())
        port = free_port()
        simulator = subprocess.Popen(
            [self.programs / "advanced-control-simulator", "--projector", PROJECTOR, "--port", str(port),
             "--write-profiles", file], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, errors="replace",
            env=environment)
        if is_ready(simulator):
            arguments = ["--connect", f"tcp://127.0.0.1:{port}", "--timeout", "1", "status", PROJECTOR]
            served = 0  # of three clients, one of which the fault may hit
            for _ in range(3):
                client = self.acctl(*arguments)
                self.finish(client, CODES)
                served += client.returncode == 0
            if simulator.poll() is None and served < 2:
                raise Found(f"it has served {served} of three")
            simulator.terminate()
        self.end(simulator)
        try:
            json.loads(file.read_text())["projectors"]
        except (ValueError, KeyError) as error:
            raise Found(f"served.json is not whole: {error}") from None


    def write(self, environment, command, file, before):
        """The host application writes a file. Returns whether success is told, and what is in the file."""
        path = self.folder / file
        path.write_text(before)
        program = subprocess.Popen([self.programs / "host_files", command, path], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True, errors="replace",
                                   env=environment | {"FAIL_LATER": "1", "QT_QPA_PLATFORM": "offscreen"})
        done, _, _ = self.end(program)
        after = path.read_text()
        if after != self.clean.setdefault(command, after) and (done or after != before):
            raise Found(f"{file} is neither the old file nor the new one")

    def edit(self, environment):
        self.write(environment, "edit", "edited.json", self.profiles.read_text())

    def log(self, environment):
        self.write(environment, "log", "log.txt", "an older log\n")

    def bridge(self, environment):
        """A bridge, until it has published a state and written its file of metrics."""
        self.runs += 1
        topic, metrics = f"run{self.runs}", self.folder / "metrics.prom"
        metrics.unlink(missing_ok=True)
        bridge = subprocess.Popen(
            [self.programs / "advanced-control-bridge", "--profiles", self.profiles, "--listen", "none", "--text-file",
             metrics, "--broker", f"127.0.0.1:{self.broker_port}", "--topic", topic, "--interval", "5"],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, errors="replace", env=environment)
        heard = subprocess.Popen(
            ["mosquitto_sub", "-h", "127.0.0.1", "-p", str(self.broker_port), "-t", f"{topic}/+/state", "-C", "1"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        end = time.monotonic() + LONGEST
        while bridge.poll() is None and time.monotonic() < end:
            if heard.poll() is not None and metrics.exists():
                break
            time.sleep(0.02)
        state = heard.stdout.read() if heard.poll() is not None else ""
        heard.kill()
        heard.wait()
        missing = bridge.poll() is None and (not state or not metrics.exists())
        bridge.terminate()
        self.end(bridge)
        if missing:
            raise Found("it tells nothing of its projector")
        if state:
            json.loads(state)
        if metrics.exists() and "\nprocess_cpu_seconds_total " not in metrics.read_text():
            raise Found("metrics.prom is not whole")


def points_of(rig, names, seed):
    """In turn from each command and kind of fault, since most points are allocations."""
    groups = []
    for name in names:
        allocations, calls = rig.counts(name)
        for how in HOWS:
            numbers = list(range(1, (allocations if how == "allocation" else calls) + 1))
            random.Random(seed).shuffle(numbers)
            groups.append([f"{name}:{how}:{number}" for number in numbers])
    return [point for turn in itertools.zip_longest(*groups) for point in turn if point]


def try_points(rig, points, end, found):
    """How many were tried. Each process has its own projector."""
    tried = 0
    for point in points:
        if time.monotonic() > end:
            break
        name, how, number = point.split(":")
        try:
            rig.commands[name](rig.environment(how, int(number)))
        except Exception as what:  # a state that cannot be read is found too
            found.append(f"{point}: {what if isinstance(what, Found) else repr(what)}")
            Rig.stop(rig)  # the simulator alone
            rig.start_simulator()  # nobody knows what it had
            rig.forget_undo()
        tried += 1
    return tried


def main():
    build, seconds, *rest = sys.argv[1:]
    rigs = [Faults(Path(build).resolve()) for _ in range(os.cpu_count())]
    wanted = [word for word in rest if ":" in word]
    seed = int(rest[0]) if rest and not wanted else 0
    for rig in rigs:
        for command in ("set", "edit", "log"):
            rig.counts(command)  # which leaves what there is without a fault
    points = wanted or points_of(rigs[0], rigs[0].commands, seed)
    end = time.monotonic() + float(seconds)
    found = []
    left = iter(points)
    lock = threading.Lock()

    def take():
        while True:
            with lock:
                point = next(left, None)
            if point is None:
                return
            yield point

    try:
        with ThreadPoolExecutor(len(rigs)) as pool:
            tried = sum(pool.map(lambda rig: try_points(rig, take(), end, found), rigs))
    finally:
        for line in found:
            print(line, file=sys.stderr)
        for rig in rigs:
            rig.stop()
            rig.remove()
    print(f"{tried} of {len(points)} points")
    if found:
        print(f"again: scripts/faults.py {build} 60 {found[0].split(': ')[0]}", file=sys.stderr)
    return bool(found)


if __name__ == "__main__":
    sys.exit(main())
