"""acctl filling profile files, alone and while other programs change them."""

import fcntl
import json
import os
import re
import signal
import socket
import subprocess
import time
from contextlib import contextmanager
from pathlib import Path

from script_support import PROGRAMS, Building, PjLinkProjector


class ProfileFiles(Building):
    @contextmanager
    def changing(self):
        """As somebody else who is changing a file of the folder."""
        folder = os.open(self.folder, os.O_RDONLY)
        fcntl.flock(folder, fcntl.LOCK_EX)
        try:
            yield
        finally:
            os.close(folder)

    def wait_for_lock(self, program):
        """Until the program waits for the folder."""
        end = time.monotonic() + 20
        while not self.has_opened_folder(program.pid):
            self.assertTrue(program.poll() is None and time.monotonic() < end, "it does not wait")
            time.sleep(0.01)

    def has_opened_folder(self, process):
        try:
            return self.folder.resolve() in [file.readlink() for file in Path(f"/proc/{process}/fd").iterdir()]
        except FileNotFoundError:  # one was closed meanwhile
            return False

    def test_profiles_come_and_go_as_tables(self):
        csv = self.acctl("export", "@hall").stdout
        self.assertIn("Lecture hall", csv)
        (self.folder / "new.csv").write_text("name,address,tags,IP,Bought\nA,192.0.2.7,x,h\nB,nonsense:nonsense:1,y\n")
        self.check(["--profiles", "new.json", "import", "new.csv"], 1, "^1 added, 0 known, 1 wrong",
                   "new.csv:3: .*\nacctl: new.csv: columns not used: IP, Bought\n")
        faults = self.json("--profiles", "new.json", "import", "new.csv", code=1)["errors"]
        self.assertEqual([(fault["code"], fault["text"][:9]) for fault in faults], [("wrong-file", "new.csv:3")])
        self.check(["--profiles", "new.json", "list", "@x", "--brief"], 0, "^A\n$")
        # Each of them is kept when several change the file at once.
        table = "(sleep 0.5; printf 'name,address\\nR%s,192.0.2.%s\\n' $i $i)"
        self.run_program("bash", "-c", f"for i in {{1..9}}; do {table} | acctl --profiles new.json import - & done; wait")
        self.check(["--profiles", "new.json", "list", "--brief"], 0, "^A\n(R\\d\n){9}$")
        run = self.acctl("import", "new.csv", ACCTL_PROFILES="")
        self.assertEqual((run.returncode, run.stderr), (2, "acctl: name the profile file with --profiles\n"))
        port = str(self.pjlink[0]["connection"]["network"]["port"])
        self.check(["find", "127.0.0.1", "--port", port, "--add", "found.json"], 0, "1 added, 0 moved, 0 known")
        self.check(["find", "127.0.0.1", "--port", port, "--add", "found.json"], 0, "0 added, 0 moved, 1 known")
        # It is switched though nothing is known of its model.
        bare = ["--profiles", "found.json"]
        self.check([*bare, "save", "*", "bare.json"], 0, " 4 settings saved ")
        self.check([*bare, "set", "*", "power=on", "input=rgb2", "blank=on", "mute=on", "freeze=on"], 0, "RGB1 +->  RGB2$")
        self.check([*bare, "diff", "*", "bare.json"], 0, " 4 different$")
        self.check([*bare, "undo"], 0, " 4 changed$")
        self.check([*bare, "diff", "*", "bare.json"], 0, " 4 already so$")
        self.check([*bare, "set", "*", "contrast=1"], 2, errors="contrast: this model has no such setting$")
        for shown in (["settings", "*", "--for", "set"], ["explain", "input"], ["complete", "set", "*", "input="]):
            self.check([*bare, *shown], 0, "RGB2|rgb2")
        # It has the same address with a host's name.
        found = (self.folder / "found.json").read_text()
        (self.folder / "found.json").write_text(re.sub('"identity": "[^"]*", ', "", found).replace("127.0.0.1", "localhost"))
        self.check(["find", "127.0.0.1", "--port", port, "--add", "found.json"], 0, "0 added, 0 moved, 1 known")
        for text in ("{nonsense", "[]"):
            (self.folder / "wrong.json").write_text(text)
            for words in (["list"], ["import", "new.csv"], ["find", "127.0.0.1", "--add", "wrong.json"]):
                self.check(["--profiles", "wrong.json", *words], 2, errors="^acctl: wrong.json:1")

    def test_a_file_that_another_program_changes_is_left_alone(self):
        port = str(self.pjlink[0]["connection"]["network"]["port"])
        (self.folder / "new.csv").write_text("name,address\nA,192.0.2.7\n")
        words = (["find", "127.0.0.1", "--port", port, "--add", "late.json"], ["--profiles", "late.json", "import", "new.csv"])
        with self.changing():
            for interruption, output in zip(words, ("^127.0.0.1 .*\n$", "^$")):
                program = self.start(*interruption)
                self.wait_for_lock(program)
                program.send_signal(signal.SIGINT)
                self.assertRegex(program.communicate(timeout=20)[0], output)
                self.assertIn(program.returncode, (128 + signal.SIGINT, -signal.SIGINT))
            waiting = [self.start(*patient) for patient in words]
            for program in waiting:
                self.assertEqual(program.stderr.readline(), "acctl: waiting for another program that is changing late.json\n")
            self.assertFalse((self.folder / "late.json").exists())
        self.assertEqual([program.wait(20) for program in waiting], [0, 0])
        self.check(["--profiles", "late.json", "list", "--brief", "A"], 0, "^A\n$")
        self.assertEqual(len(json.loads((self.folder / "late.json").read_text())["projectors"]), 2)

    def test_the_simulator_replaces_nothing_that_somebody_adds_meanwhile(self):
        file = self.folder / "real.json"
        words = [PROGRAMS / "advanced-control-simulator", "--profiles", self.folder / "rooms.json", "--write-profiles", file]
        written = file.read_text()
        for text, error in ((json.dumps({"projectors": []}), "real.json exists, and this program has not written it\n$"),
                            (None, "another program is changing .*real.json; try again\n$")):
            with self.changing():
                simulator = subprocess.Popen(words, text=True, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
                self.addCleanup(simulator.kill)
                self.addCleanup(simulator.stderr.close)
                self.wait_for_lock(simulator)
                if text:
                    file.write_text(text)
                else:
                    simulator.wait(20)
            self.assertRegex(simulator.communicate(timeout=20)[1], error)
            self.assertEqual((simulator.returncode, file.read_text()), (2, text or written))
            file.write_text(written)

    def test_what_was_found_is_printed_if_it_cannot_be_added(self):
        served = self.start_projector(PjLinkProjector)
        find = f"find 127.0.0.1 --port {served.port} --add"
        self.check([*find.split(), "none/new.json"], 1, errors="^acctl: cannot write none/new.json: No such file or directory$")
        self.assertEqual(served.connections, [], "nothing was searched")
        full = self.run_program(
            "bash", "-c", f"trap '' XFSZ; ulimit -f 0; LLVM_PROFILE_FILE=/dev/null acctl {find} new.json")
        self.assertEqual((full.returncode, full.stderr), (1, "acctl: cannot write new.json: File too large\n"))
        self.assertRegex(full.stdout, "^127.0.0.1 [^\n]*\n$")
        with socket.create_server(("127.0.0.2", served.port)) as silent:
            find = self.start(*find.split(), "new.json", "127.0.0.2", "--timeout", "2", "--json")
            with silent.accept()[0]:
                (self.folder / "new.json").write_text("[]")
                result = json.load(find.stdout)
        self.assertEqual((find.wait(20), len(result["found"]), result["errors"][0]["code"]), (2, 1, "wrong-use"))
