"""acctl watching projectors, as scripts use it."""

import json
import re
import time

from script_support import ROOMS, Building, free_port


class Watching(Building):
    def test_changes_of_many_are_lines_and_silence_is_survived(self):
        watch = self.start("watch", "Seminar*", "contrast", "-o", "jsonl", "--interval", "0.05", "--timeout", "1")
        first = {json.loads(watch.stdout.readline())["name"] for _ in range(2)}
        self.assertEqual(first, {"Seminar 1", "Seminar 2"})
        self.acctl("set", "Seminar 1", "contrast=5")
        change = json.loads(watch.stdout.readline())
        self.assertEqual((change["name"], change["old"]["code"], change["new"]["code"]), ("Seminar 1", "0", "5"))
        self.stop(self.simulator)
        silent = [json.loads(watch.stdout.readline()) for _ in range(2)]
        self.assertEqual([line["error"]["code"] for line in silent], ["no-answer"] * 2)
        watch.stdout.close()
        self.assertEqual(watch.wait(60), 1)

    def test_it_goes_on_when_projectors_come_back(self):
        self.stop(self.simulator)
        port = str(free_port(2 * len(ROOMS)))
        simulator = self.start_simulator("--port", port)
        watch = self.start("watch", "Seminar*", "contrast", "-o", "jsonl", "--interval", "0.05", "--timeout", "1")
        lines = lambda count: [json.loads(watch.stdout.readline()) for _ in range(count)]
        lines(2)
        simulator.kill()
        simulator.wait()
        silent = lines(2)
        self.start_simulator("--port", port)
        again = lines(2)
        self.acctl("set", "Seminar 2", "contrast=5")
        change = lines(1)[0]
        watch.terminate()
        self.assertEqual((watch.wait(60), watch.stdout.read()), (0, ""), "each is told once")
        for told, kind, code in ((silent, "error", "no-answer"), (again, "note", "answers")):
            self.assertEqual([line[kind]["code"] for line in told], [code] * 2)
            self.assertEqual({line["name"] for line in told}, {"Seminar 1", "Seminar 2"})
        self.assertEqual((change["name"], change["old"]["code"], change["new"]["code"]), ("Seminar 2", "0", "5"))

    def test_entries_with_one_address_have_one_connection(self):
        projector = self.start_projector()
        rooms = json.loads((self.folder / "served.json").read_text())
        rooms["projectors"] = [{**self.pjlink[0], "name": host, "identity": "id:" + host,
                                "connection": {"network": {"address": host, "port": projector.port}}}
                               for host in ("localhost", "LOCALHOST")]
        (self.folder / "served.json").write_text(json.dumps(rooms))
        self.environment["XDG_CACHE_HOME"] = "/dev/null"  # no locks
        self.check(["get", "*", "power", "--where", "power=standby"], 0, "^localhost .*\n(.*\n)*LOCALHOST .*Standby$")
        watch = self.start("watch", "*", "power", "--interval", "0.05")
        lines = sorted(watch.stdout.readline().split()[0] for _ in range(2))
        self.assertEqual((lines, max(projector.open)), (["LOCALHOST", "localhost"], 1))
        begun = len(projector.open)
        while len(projector.open) < begun + 4:  # they go on in turns
            time.sleep(0.01)
        watch.terminate()
        self.assertEqual((watch.wait(60), max(projector.open)), (0, 1))

    def test_who_lacks_a_key_is_told_and_not_waited_for(self):
        lacks = "Office: active-iris: this model has no such setting"
        self.check(["watch", "*", "active-iris", "contrast", "--wait", "0.3"], 1, "^Office .* Contrast", lacks)
        self.check(["watch", "*", "contrast", "--until", "active-iris=off"], 1, "Active Iris  Off$", lacks)
        self.check(["watch", "Office", "contrast", "--until", "active-iris=off"], 2, errors=lacks)

    def test_it_ends_when_a_value_is_reached(self):
        watch = self.start("watch", "*", "contrast", "--until", "contrast=4", "--interval", "0.05")
        watch.stdout.readline()
        self.acctl("set", "*", "contrast=4")
        self.assertEqual(watch.wait(60), 0)
        watch = self.start("watch", "*", "contrast", "--until", "contrast=9")
        watch.stdout.readline()
        watch.terminate()
        self.assertEqual((watch.wait(60), len(re.findall(": interrupted\n", watch.stderr.read()))), (143, 4))
        self.check(["watch", "Office", "power", "--until", "contrast=9", "--wait", "0.2"], 1, "On", "not so in time")
        for wrong in ("input=hdim", "power=offf"):
            self.check(["watch", "Office", "power", "--until", wrong], 2, errors="'.*' is not one of")
        self.check(["watch", "Office", "power", "--until", "power=warming-up", "--wait", "0.2"], 1, "On", "not so in time")
