"""A simulated projector and acctl beside it, in a folder of their own, for scripts that disturb them."""

import json
import os
import shutil
import signal
import socket
import subprocess
import tempfile
import threading
from pathlib import Path

PROJECTOR = "Projector 5-30"
CHANGES = ["picture.brightness", "+3", "picture.contrast", "-2", "setup.mirror", "+1", "picture.gamma", "+1",
           "picture.tint", "+2", "setup.keystone-v", "+4"]
LONGEST = 120  # seconds until a program counts as hanging
SANITIZED = {name: f"{os.environ.get(name, '')}:exitcode=99"  # which is none of acctl's own
             for name in ("ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")}


class Found(Exception):
    """Something that must not happen."""


def is_free(port):
    with socket.socket() as taken:
        return taken.connect_ex(("127.0.0.1", port)) != 0


def free_port(count=2):
    """The first of as many that follow each other; a projector has one for the wire and one for PJLink. Below the
    range of outgoing connections, which might take one while the simulator is away."""
    port = 10_000 + 4 * (os.getpid() % 5_000)
    while not all(is_free(port + i) for i in range(count)):
        port += 4
    return port


def is_ready(program):
    """Waits until it says so; False if it ends before."""
    limit = threading.Timer(LONGEST, program.kill)
    limit.start()
    try:
        if any(line.strip() == "ready" for line in program.stdout):
            return True
        if program.wait() == -signal.SIGKILL:
            raise Found("it hangs")
        return False
    finally:
        limit.cancel()


class Rig:
    """good.json has the projector's settings at first, changed.json others."""

    def __init__(self, programs, prefix):
        self.programs = programs
        self.folder = Path(tempfile.mkdtemp(prefix=prefix))
        self.profiles = self.folder / "profiles.json"
        self.own = {**os.environ, **SANITIZED, "XDG_STATE_HOME": str(self.folder / "state")}  # undo files are there
        self.port = free_port()
        self.simulator = None
        self.start_simulator()
        self.finish(self.acctl("save", PROJECTOR, "good.json"))
        self.finish(self.acctl("set", PROJECTOR, *CHANGES))
        self.finish(self.acctl("save", PROJECTOR, "changed.json"))
        self.finish(self.acctl("apply", "good.json", PROJECTOR))
        self.forget_undo()

    def start_simulator(self):
        self.profiles.unlink(missing_ok=True)
        self.simulator = subprocess.Popen(
            [self.programs / "advanced-control-simulator", "--projector", PROJECTOR, "--port", str(self.port),
             "--write-profiles", self.profiles], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        if not is_ready(self.simulator):
            raise Found("the simulator does not start")

    def stop(self):
        self.simulator.kill()
        self.simulator.wait()

    def remove(self):
        shutil.rmtree(self.folder)

    def acctl(self, *arguments, environment=None):
        return subprocess.Popen([self.programs / "acctl", "--profiles", self.profiles, "--json", *arguments],
                                cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                                env=environment or self.own)

    def finish(self, program, codes=(0,)):
        """What the program prints."""
        try:
            output, errors = program.communicate(timeout=LONGEST)
        except subprocess.TimeoutExpired:
            program.kill()
            raise Found(f"{program.args} hangs") from None
        if program.returncode not in codes:
            raise Found(f"{program.args} ends with {program.returncode}: {errors}")
        return output

    def settings(self, file):
        try:
            return json.loads((self.folder / file).read_text())["settings"]
        except (OSError, ValueError, KeyError) as error:
            raise Found(f"{file} is not whole: {error}") from None

    def undo_files(self):
        return sorted(self.folder.glob("state/advanced-control/undo/[!.]*"))

    def forget_undo(self):
        for file in self.undo_files():
            file.unlink()

    def expect_like(self, file, why):
        entry = json.loads(self.finish(self.acctl("diff", PROJECTOR, file), (0, 1)))["projectors"][0]
        if entry.get("different"):
            raise Found(f"{why}: {entry['different']}")

    def expect_undone(self):
        """After a change from good.json that ended in between: an undo file takes back all of it, and without one
        nothing was changed."""
        undo = self.undo_files()
        for file in undo:
            self.finish(self.acctl("undo", str(file)))
        self.expect_like("good.json", "not undone" if undo else "changed without an undo file")
        self.forget_undo()
