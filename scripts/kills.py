#!/usr/bin/python3
"""Kills acctl and the simulator at random moments: scripts/kills.py FOLDER SECONDS [SEED].

FOLDER has the programs. Held after each kill: a file of settings is whole, undoing a change that was cut off
takes back all of it, and without an undo file nothing was changed; a program whose projector dies says so and ends, and
the next one works on the projector that came back. Prints the number of kills; what was found is left in the folder
that is named, and ends the run with 1."""

import json
import os
import random
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROJECTOR = "Projector 5-30"
CHANGES = ["picture.brightness", "+3", "picture.contrast", "-2", "setup.mirror", "+1", "picture.gamma", "+1",
           "picture.tint", "+2", "setup.keystone-v", "+4"]
LONGEST = 120  # seconds until a program counts as hanging


class Found(Exception):
    pass


def free_port():
    with socket.socket() as taken:
        taken.bind(("127.0.0.1", 0))
        return taken.getsockname()[1]


class Kills:
    def __init__(self, programs, seed):
        self.programs = programs
        self.random = random.Random(seed)
        self.folder = Path(tempfile.mkdtemp(prefix="kills-"))
        self.profiles = self.folder / "profiles.json"
        self.environment = {**os.environ, "XDG_STATE_HOME": str(self.folder / "state")}
        self.port = free_port()
        self.kills = 0
        self.simulator = None
        self.start_simulator()
        self.finish(self.acctl("save", PROJECTOR, "good.json"))
        self.finish(self.acctl("set", PROJECTOR, *CHANGES))
        started = time.monotonic()
        self.finish(self.acctl("save", PROJECTOR, "changed.json"))
        self.usual = time.monotonic() - started  # how long a run takes
        self.finish(self.acctl("apply", "good.json", PROJECTOR))
        self.forget_undo()
        self.count = len(self.settings("good.json"))

    def start_simulator(self):
        self.profiles.unlink(missing_ok=True)
        self.simulator = subprocess.Popen(
            [self.programs / "advanced-control-simulator", "--projector", PROJECTOR, "--port", str(self.port),
             "--write-profiles", self.profiles], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        while (line := self.simulator.stdout.readline().strip()) != "ready":
            if not line:
                raise Found("the simulator does not start")

    def kill(self, program):
        program.send_signal(signal.SIGKILL)
        program.wait()
        self.kills += 1

    def acctl(self, *arguments):
        return subprocess.Popen([self.programs / "acctl", "--profiles", self.profiles, "--json", *arguments],
                                cwd=self.folder, env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def finish(self, program, codes=(0,)):
        try:
            output, errors = program.communicate(timeout=LONGEST)
        except subprocess.TimeoutExpired:
            raise Found(f"{program.args} hangs") from None
        if program.returncode not in codes:
            raise Found(f"{program.args} ends with {program.returncode}: {errors}")
        return output

    def wait_at_random(self):
        time.sleep(self.random.uniform(0, 1.2 * self.usual))

    def settings(self, file):
        try:
            return json.loads((self.folder / file).read_text())["settings"]
        except (ValueError, KeyError) as error:
            raise Found(f"{file} is not whole: {error}") from None

    def undo_files(self):
        return sorted(self.folder.glob("state/advanced-control/undo/*"))

    def forget_undo(self):
        for file in self.undo_files():
            file.unlink()

    def expect_good(self, why):
        entry = json.loads(self.finish(self.acctl("diff", PROJECTOR, "good.json"), (0, 1)))["projectors"][0]
        if entry.get("different"):
            raise Found(f"{why}: {entry['different']}")

    def save_cut_off(self):
        shutil.copy(self.folder / "good.json", self.folder / "saved.json")
        program = self.acctl("save", PROJECTOR, "saved.json")
        self.wait_at_random()
        self.kill(program)
        if len(self.settings("saved.json")) != self.count:
            raise Found("saved.json has lost settings")

    def change_cut_off(self):
        program = self.acctl("apply", "changed.json", PROJECTOR)
        self.wait_at_random()
        self.kill(program)
        undo = self.undo_files()
        for file in undo:
            self.finish(self.acctl("undo", str(file)))
        self.expect_good("not undone" if undo else "changed without an undo file")
        self.forget_undo()

    def projector_dies(self):
        command = self.random.choice([("get", PROJECTOR, "picture.*"), ("save", PROJECTOR, "other.json"),
                                      ("apply", "changed.json", PROJECTOR)])
        program = self.acctl(*command)
        self.wait_at_random()
        self.kill(self.simulator)
        self.finish(program, (0, 1, 3))
        self.forget_undo()
        self.start_simulator()
        self.expect_good("a fresh projector differs")

    def run(self, seconds):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            self.random.choice([self.save_cut_off, self.change_cut_off, self.projector_dies])()


def main():
    programs, seconds = Path(sys.argv[1]).resolve(), float(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(10**6)
    kills = Kills(programs, seed)
    try:
        kills.run(seconds)
    except Found as found:
        print(f"{found}\nseed {seed}, files in {kills.folder}", file=sys.stderr)
        return 1
    finally:
        kills.simulator.kill()
        kills.simulator.wait()
        print(kills.kills)
    shutil.rmtree(kills.folder)
    return 0


if __name__ == "__main__":
    sys.exit(main())
