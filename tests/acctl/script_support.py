"""A small building of simulated projectors, and acctl to work on them."""

import json
import os
import re
import shutil
import signal
import socket
import socketserver
import struct
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path

import jsonschema

PROGRAMS = Path(os.environ["PROGRAMS"])
SOURCES = Path(__file__).resolve().parents[2]
sys.path.append(str(SOURCES / "scripts"))
from rig import free_port  # noqa: E402,F401

ROOMS = {"Lecture hall": ("Projector 5-30", ["building-3", "hall"]), "Seminar 1": ("Projector 5-31", ["building-3"]),
         "Seminar 2": ("Projector 4-24", ["building-3"]), "Office": ("Projector 2-6", ["building-1"])}

RGB1, RGB2 = 0, 4  # inputs

SCHEMA = json.loads((SOURCES / "app/acctl/acctl.schema.json").read_text())


def strict(schema):
    """The schema without room for members that it does not name."""
    if isinstance(schema, list):
        return [strict(part) for part in schema]
    if not isinstance(schema, dict):
        return schema
    closed = {name: strict(part) for name, part in schema.items()}
    if "properties" in schema and "allOf" not in schema and schema.get("title") is None:
        closed["additionalProperties"] = False
    return closed


VALIDATOR = jsonschema.Draft202012Validator(
    {**strict(SCHEMA), "$defs": {name: part if name in ("description", "line") else strict(part)
                                 for name, part in SCHEMA["$defs"].items()}})


def check_sum(content):
    rest = 0xFFFF
    for byte in content:
        rest ^= byte
        for _ in range(8):
            rest = rest >> 1 ^ (0x8408 if rest & 1 else 0)
    return rest ^ 0xFFFF


def write_rooms(path, rooms=ROOMS):
    profiles = json.loads((PROGRAMS / "projectors.json").read_text())
    known = {profile["name"]: profile for profile in profiles["projectors"]}
    profiles["projectors"] = [{**known[model], "name": name, "tags": tags, "identity": "id:" + name,
                               "connection": {"network": {"address": "192.0.2.1", "port": 4352}}}
                              for name, (model, tags) in rooms.items()]
    path.write_text(json.dumps(profiles))


class PjLinkProjector(socketserver.ThreadingTCPServer):
    """A projector in standby. Notes at each new connection how many are open."""

    daemon_threads = True

    class Connection(socketserver.StreamRequestHandler):
        def handle(self):
            self.server.connections.append(self.connection)
            self.server.open.append(sum(map(self.server.is_open, self.server.connections)))
            self.wfile.write(b"PJLINK 0\r")
            while request := self.rfile.read(len("%1POWR ?\r")):
                time.sleep(0.02)  # meanwhile, others could connect
                self.wfile.write(request[:6] + b"=0\r")

    def __init__(self):
        super().__init__(("127.0.0.1", 0), self.Connection)
        self.port, self.connections, self.open = self.server_address[1], [], []

    @staticmethod
    def is_open(connection):
        try:
            return connection.recv(1, socket.MSG_PEEK | socket.MSG_DONTWAIT) != b""
        except BlockingIOError:
            return True
        except OSError:
            return False


class WireProjector(socketserver.ThreadingTCPServer):
    """A projector of model 5-30 over the wire, with a brightness for each input. It refuses the next `refusals` changes of its input,
    and leaves the commands with the numbers in `lost` without an answer."""

    daemon_threads = True

    class Connection(socketserver.StreamRequestHandler):
        def handle(self):
            while head := self.rfile.read(6):
                body = self.rfile.read(head[3] + 2)[:-2]
                answer = b"\1" if head[2] == 1 else self.server.answer(*struct.unpack(">HHhh", body))
                if answer:
                    frame = bytes([head[2] + 1, len(answer)]) + head[4:] + answer
                    self.wfile.write(b"\xa5\x5a" + frame + struct.pack(">H", check_sum(frame)))

    def __init__(self):
        super().__init__(("127.0.0.1", 0), self.Connection)
        self.port, self.address = self.server_address[1], f"tcp://127.0.0.1:{self.server_address[1]}"
        self.input, self.refusals, self.lost, self.commands = RGB1, 0, (), 0
        self.brightness, self.others = {RGB1: 128, RGB2: 140}, {0x2004: 128, 0x6000: 1}  # contrast, power

    def answer(self, operation, code, first, _):
        self.commands += 1
        if self.commands in self.lost:
            return None
        code = {121: 0x2003, 99: 0x2004}.get(operation, code)
        result, value = 1, 0
        if operation == 66 or (operation, code) == (211, 0x2000):
            value = self.input
        elif operation == 211:
            value = self.brightness[self.input] if code == 0x2003 else self.others.get(code, 0)
        elif code == 0x2000 and self.refusals:
            self.refusals, result = self.refusals - 1, 0
        elif code == 0x2000:
            self.input = first
        elif code == 0x2003:
            self.brightness[self.input] = first
        else:
            self.others[code] = first
        return struct.pack(">Bih", 0, result, value)


class Building(unittest.TestCase):
    """Each test has projectors of its own, in their first state, and a folder."""

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="acctl-"))
        self.addCleanup(shutil.rmtree, self.folder)
        write_rooms(self.folder / "rooms.json")
        self.simulator = self.start_simulator()
        self.environment = {**os.environ, "LC_ALL": "C", "HOME": str(self.folder), "ACCTL_PROFILES": "served.json",
                            "PATH": f"{PROGRAMS}:{SOURCES}/integrations/monitoring:{os.environ['PATH']}",
                            **{f"XDG_{name}_HOME": str(self.folder / name.lower())
                               for name in ("CACHE", "CONFIG", "DATA", "STATE")}}
        self.environment.pop("XDG_RUNTIME_DIR", None)

    def start_simulator(self, *options, **environment):
        simulator = subprocess.Popen(
            [PROGRAMS / "advanced-control-simulator", "--profiles", self.folder / "rooms.json", "--write-profiles",
             self.folder / "real.json", *options], stdout=subprocess.PIPE, text=True, env={**os.environ, **environment})
        self.addCleanup(self.stop, simulator)
        for line in simulator.stdout:
            if line.strip() == "ready":
                break
        else:
            self.fail("the simulator does not start")
        # It serves each projector over PJLink too.
        served = json.loads((self.folder / "real.json").read_text())
        self.pjlink = [profile for profile in served["projectors"] if profile["link"] == "pjlink"]
        served["projectors"] = [profile for profile in served["projectors"] if profile["link"] == "network"]
        (self.folder / "served.json").write_text(json.dumps(served, indent=1))
        return simulator

    def start_projector(self, kind=PjLinkProjector):
        projector = kind()
        self.addCleanup(projector.server_close)
        threading.Thread(target=projector.serve_forever, args=(0.01,), daemon=True).start()
        self.addCleanup(projector.shutdown)
        return projector

    def stop(self, simulator):
        simulator.terminate()
        simulator.wait()
        simulator.stdout.close()
        self.assertIn(simulator.returncode, (0, -signal.SIGKILL), "how the simulator ends")

    def run_program(self, *command, text=None, **environment):
        return subprocess.run(command, cwd=self.folder, env={**self.environment, **environment}, text=True, input=text,
                              capture_output=True, timeout=120, check=False)

    def acctl(self, *words, text=None, **environment):
        return self.run_program(PROGRAMS / "acctl", *words, text=text, **environment)

    def value(self, *words):
        return self.acctl("get", *words, "-o", "value").stdout.split()

    def start(self, *words):
        program = subprocess.Popen([PROGRAMS / "acctl", *words], cwd=self.folder, env=self.environment, text=True,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.addCleanup(program.stdout.close)
        self.addCleanup(program.stderr.close)
        return program

    def json(self, *words, code=0, **environment):
        run = self.acctl("-o", "json", *words, **environment)
        self.assertEqual(run.returncode, code, run.stderr)
        return json.loads(run.stdout)

    def check(self, words, code, output="", errors=""):
        """Runs a command line; output and errors are expressions that must be found, or "" for nothing at all."""
        with self.subTest(words=words):
            run = self.acctl(*words)
            self.assertEqual(run.returncode, code, run.stdout + run.stderr)
            for expected, printed in ((output, run.stdout), (errors, run.stderr)):
                if expected:
                    self.assertRegex(printed, re.compile(expected, re.MULTILINE))
                else:
                    self.assertEqual(printed, "")
            return run
