#!/usr/bin/python3
"""Kills acctl and the simulator at random moments: scripts/kills.py FOLDER SECONDS [SEED].

FOLDER has the programs. Held after each kill: a file of settings is whole, the undo file of a change that was cut off
takes back all of it, and without an undo file nothing was changed; a program whose projector dies says so and ends, and
the next one works on the projector that came back. Prints the number of kills; what was found is left in the folder
that is named, and ends the run with 1."""

import random
import shutil
import signal
import sys
import time
from pathlib import Path

from rig import PROJECTOR, Found, Rig


class Kills(Rig):
    def __init__(self, programs, seed):
        super().__init__(programs, "kills-")
        self.random = random.Random(seed)
        self.kills = 0
        started = time.monotonic()
        self.finish(self.acctl("save", PROJECTOR, "saved.json"))
        self.usual = time.monotonic() - started  # how long a run takes
        self.count = len(self.settings("good.json"))

    def kill(self, program):
        program.send_signal(signal.SIGKILL)
        program.wait()
        if program.returncode not in (0, -signal.SIGKILL):
            raise Found(f"{program.args} ends with {program.returncode}")
        self.kills += 1

    def wait_at_random(self):
        time.sleep(self.random.uniform(0, 1.2 * self.usual))

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
        self.expect_undone()

    def projector_dies(self):
        command = self.random.choice([("get", PROJECTOR, "picture.*"), ("save", PROJECTOR, "other.json"),
                                      ("apply", "changed.json", PROJECTOR)])
        program = self.acctl(*command)
        self.wait_at_random()
        self.kill(self.simulator)
        self.finish(program, (0, 1, 3))
        self.forget_undo()
        self.start_simulator()
        self.expect_like("good.json", "a fresh projector differs")

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
        kills.stop()
        print(kills.kills)
    kills.remove()
    return 0


if __name__ == "__main__":
    sys.exit(main())
