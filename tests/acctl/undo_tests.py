"""acctl undoing what it has done, as scripts use it."""

import json
import os
import time

from script_support import RGB1, RGB2, VALIDATOR, Building, WireProjector


class Undoing(Building):
    def test_undoing_an_undo_goes_to_the_same_address(self):
        projector = self.start_projector(WireProjector)
        self.check(["set", "Lecture hall", "brightness=5", "--connect", projector.address], 0, "0  ->  5")
        for brightness in (128, 133):
            self.check(["undo", self.json("undo", "--list")["runs"][-1]["run"]], 0, "1 changed")
            self.assertEqual(projector.brightness[RGB1], brightness)
        self.assertEqual(self.value("Lecture hall", "brightness"), ["0"])

    def test_a_projector_of_the_same_name_at_another_address_is_left_alone(self):
        first, second = (self.start_projector(WireProjector) for _ in range(2))
        room = json.loads((self.folder / "served.json").read_text())["projectors"][0]
        del room["identity"]
        profiles = json.loads((self.folder / "served.json").read_text())
        known = {"identity": "id:it"}
        for site, host, projector, more in (
                ("a", "localhost", first, {}), ("A", "LOCALHOST", first, {}), ("b", "localhost", second, {}),
                ("known-a", "localhost", first, known), ("known-b", "localhost", second, known),
                ("other", "localhost", first, {"name": "Hall"})):
            place = {"network": {"address": host, "port": projector.port}}
            profiles["projectors"] = [{**room, "connection": place, **more}]
            (self.folder / f"{site}.json").write_text(json.dumps(profiles))
        self.check(["--profiles", "a.json", "set", "Lecture hall", "brightness=3"], 0, "0  ->  3$")
        moved = f"Lecture hall \\(localhost:{first.port}\\); --force applies it to Lecture hall \\(localhost:{second.port}\\)$"
        for words in ([], ["last", "Lecture hall"], ["--dry-run"]):
            self.check(["--profiles", "b.json", "undo", *words], 1, errors=moved)
        self.check(["--profiles", "rooms.json", "undo"], 1, errors="; --force applies it to Lecture hall \\(simulated\\)$")
        self.check(["--profiles", "other.json", "undo"], 1, errors="Lecture hall: is no longer in the profile file$")
        self.assertEqual((second.brightness[RGB1], self.json("undo", "--list")["runs"][0]["isUndone"]), (128, False))
        self.check(["--profiles", "A.json", "undo"], 0, "3  ->  0$")
        # It has got an identity since.
        self.check(["--profiles", "a.json", "set", "Lecture hall", "brightness=4"], 0, "0  ->  4$")
        self.check(["--profiles", "known-b.json", "undo"], 1, errors=moved)
        self.check(["--profiles", "known-a.json", "undo"], 0, "4  ->  0$")
        run = self.json("undo", "--list")["runs"][0]["run"]
        for brightness, words in ((5, ["--force"]), (6, ["--connect", second.address])):
            second.brightness[RGB1] = 128 + brightness
            self.check(["--profiles", "b.json", "undo", run, *words], 0, f"{brightness}  ->  0$")
        # Undo files of older versions do not say where the projector was.
        self.acctl("--profiles", "a.json", "set", "Lecture hall", "brightness=7")
        file = max((self.folder / "state/advanced-control/undo").iterdir())
        file.write_text(file.read_text().replace('"place"', '"was"'))
        second.brightness[RGB1] = 135
        self.check(["--profiles", "b.json", "undo"], 0, "7  ->  0$")

    def test_a_run_with_a_large_model_code_is_undone(self):
        rooms = json.loads((self.folder / "rooms.json").read_text())
        rooms["projectors"][0]["modelCode"] = 70000
        (self.folder / "rooms.json").write_text(json.dumps(rooms))
        self.start_simulator()
        self.check(["set", "@building-3", "brightness=5"], 0, "0  ->  5")
        self.check(["undo", "last", "Seminar 1"], 0, "5  ->  0")
        self.check(["undo"], 0, "^Lecture hall .* 5  ->  0$")

    def test_a_part_of_a_run_is_undone_by_name_or_state(self):
        self.acctl("set", "Seminar 2", "power=standby", "--wait", "60s")
        self.acctl("set", "*", "brightness=5")
        self.check(["undo", "--where", "power=standby"], 0, "^Seminar 2 .*changed")
        self.check(["undo", "last", "Off*"], 0, "^Office .*changed")
        self.assertEqual(self.value("*", "brightness"), ["5", "5", "0", "0"])
        self.check(["undo"], 0, "^Lecture hall .*changed")
        self.assertEqual(self.value("*", "brightness"), ["0"] * 4)
        self.acctl("set", "Office", "brightness=5")
        self.check(["undo", "last", "Seminar*"], 2, errors="the run has changed none of these projectors")

    def test_a_reset_is_undone_except_for_hours(self):
        self.acctl("set", "Lecture hall", "tint=7")
        self.check(["reset", "Lecture hall", "tint", "status.lamp-time"], 0, " 0 h\n.* 0$",
                   "status.lamp-time: this cannot be undone")
        self.assertEqual(self.value("Lecture hall", "tint"), ["0"])
        self.check(["undo"], 0, "tint .* 0  ->  7$")

    def test_a_last_run_that_cannot_be_undone_is_not_passed_over(self):
        for words in (["reset", "Office", "status.lamp-time"], ["set", "Office", "power=standby", "--wait", "60s"]):
            self.acctl("set", "Office", "contrast+=1")
            self.assertEqual(self.acctl(*words).returncode, 0)
            runs = self.json("undo", "--list")["runs"]
            self.assertEqual([run["projectors"] for run in runs[-2:]], [1, 0])
            self.check(["undo"], 2, errors=runs[-1]["run"] + ".*there is nothing to undo; name an earlier run")

    def test_old_undo_files_are_removed(self):
        undo = self.folder / "state/advanced-control/undo"
        undo.mkdir(parents=True)
        (undo / "notes.txt").write_text("not ours")
        (undo / ".advanced-control-0123456789abcdef").write_text("of a run that was killed")
        for days, left in ((30, 1), (2, 2), (0, 3), (1, 1)):  # 0 keeps all
            self.acctl("set", "Office", "brightness+=1", ACCTL_UNDO_DAYS=str(days))
            self.assertEqual(len(self.json("undo", "--list")["runs"]), left, days)
            for file in undo.iterdir():
                os.utime(file, (time.time() - 1.5 * 86400,) * 2)
        self.assertEqual(len(list(undo.iterdir())), 2, "notes.txt and the last run")
        self.assertTrue((undo / "notes.txt").exists())

    def test_a_run_stays_while_it_is_undone_however_old_it_is(self):
        projector = self.start_projector(WireProjector)
        served = json.loads((self.folder / "served.json").read_text())
        served["projectors"][0]["connection"]["network"]["port"] = projector.port
        (self.folder / "served.json").write_text(json.dumps(served))
        for words in (["Office", "contrast=5"], ["Lecture hall,Seminar 1", "brightness=5"]):
            self.acctl("set", *words)
        earlier, run = sorted((self.folder / "state/advanced-control/undo").iterdir())
        old = time.time() - 40 * 86400
        for file in (earlier, run):
            os.utime(file, (old, old))
        self.check(["undo", "--dry-run"], 0, "5  ->  0")
        self.assertLess(run.stat().st_mtime, old + 1)
        projector.lost = range(projector.commands + 1, 9999)
        self.check(["undo", "--timeout", "0.2"], 3, "^Seminar 1 .*1 changed", "Lecture hall: no answer")
        self.assertEqual((earlier.exists(), run.exists()), (True, True))
        self.acctl("set", "Office", "contrast=4")  # as another one may do meanwhile
        self.assertEqual((earlier.exists(), run.exists()), (False, True))
        projector.lost = ()
        self.check(["undo", run.stem], 0, "^Lecture hall .*1 changed")
        self.assertTrue(self.json("undo", "--list")["runs"][0]["isUndone"])

    def test_a_run_that_cannot_be_read_is_never_passed_over(self):
        for brightness in ("5", "6"):
            self.acctl("set", "Office", "brightness=" + brightness)
        undo = self.folder / "state/advanced-control/undo"
        earlier, last = sorted(undo.iterdir())
        whole = last.read_text()
        header, line = whole.splitlines()
        for damaged, error in (("", "illegal value"), (whole[:-9] + "\n", ":2: not a line"),
                               (whole.replace(":1}", ":2}"), ":1: not a line"), (whole.replace(line, "[" * 9999), ":2: not"),
                               (whole.replace('"id"', '"no"'), ":2: not"), (whole.replace("snapshot", "shot"), ":2: not")):
            last.write_text(damaged)
            self.check(["undo"], 2, errors=f"{last.name}.*{error}.*; name an earlier run")
            self.check(["undo", last.stem], 2, errors=error)
            self.check(["undo", "--list"], 1, earlier.stem + ".*set Office brightness=5\n$", errors=error)
        VALIDATOR.validate(self.json("undo", "--list", code=1))
        # A run that was killed while it wrote a line is undone, and stays in the list.
        last.write_text(whole + line[:40])
        self.check(["undo"], 0, "6  ->  5")
        self.assertTrue(self.json("undo", "--list")["runs"][1]["isUndone"])
        self.check(["undo"], 0, "5  ->  0")
        self.check(["undo"], 2, errors="there is no run to undo")

    def test_an_undo_of_the_host_application_is_not_written_to(self):
        self.acctl("set", "Office", "brightness=5", "contrast=2")
        run = next((self.folder / "state/advanced-control/undo").iterdir())
        not_compared = r"main.contrast .* \?  ->  0\n.* \?  ->  0\nOffice  2 not compared$"
        self.check(["undo", "--dry-run"], 0, not_compared)
        (self.folder / "undo.json").write_text(json.dumps(json.loads(run.read_text().splitlines()[-1])["snapshot"]))
        self.check(["diff", "Office", "undo.json", "--exit-code"], 2, not_compared)
        job = self.folder / "job.undo"
        job.write_text(json.dumps({"undoOfJob": [json.loads(run.read_text().splitlines()[-1])]}, indent=1))
        before = job.read_text()
        self.check(["undo", "job.undo"], 0, "2 changed")
        self.assertEqual(job.read_text(), before)
        for file in (job, run):
            self.check(["apply", str(file), "Office"], 2, errors=f"{file.name}:.*; use: acctl undo .*{file.name}$")
        job.write_text(' {"undoOfJob": [{"id": "a\\nb", "snapshot": {}}]}')
        self.assertEqual(self.acctl("undo", "job.undo").stderr.count("\n"), 1)
        # What is undone and cannot be recorded is reported with an exit code of its own.
        pipe = self.acctl("undo", "/dev/stdin", "-o", "json", text=run.read_text())
        self.assertEqual((pipe.returncode, json.loads(pipe.stdout)["errors"][0]["code"]), (1, "file"))
        self.assertIn("cannot record in /dev/stdin that it is undone", pipe.stderr)

    def test_what_was_set_for_a_new_input_is_undone_for_it(self):
        before = self.acctl("get", "Lecture hall", "-o", "tsv").stdout
        self.check(["set", "Lecture hall", "input=rgb2", "volume=7", "brightness=4", "input=rgb1", "volume=9"], 0, "->")
        self.check(["undo"], 0, "changed")
        self.assertEqual(self.acctl("get", "Lecture hall", "-o", "tsv").stdout, before)
        self.acctl("set", "Lecture hall", "input=rgb2")
        self.assertEqual(self.value("Lecture hall", "volume"),
                         [line.split("\t")[4] for line in before.splitlines() if "\taudio.volume\t" in line])

    def test_what_follows_a_change_of_input_is_undone_for_the_input_that_it_was_made_for(self):
        for refusals, words, code, output, errors in (
                (1, ["input=rgb2", "brightness=7"], 1, "0 +->  7$", "input-source: refused, it is RGB1$"),
                (9, ["input=rgb2", "brightness=7"], 1, "0 +->  7$", "refused"),  # still when it is undone
                (0, ["contrast=1", "input=rgb2", "brightness+=3", "contrast+=1"], 0, "12 +->  15\n.* 1 +->  2$", ""),
                (0, ["input=rgb2", "brightness=0"], 0, "12 +->  0$", ""),
                (0, ["input=rgb2", "brightness+=31"], 1, "->  RGB2$", "brightness: '\+31' from 12 is not one of"),
                (0, ["brightness=1", "input=rgb2", "input-=1", "brightness-=1"], 0, " 1 +->  0$", "")):
            with self.subTest(refusals=refusals, words=words):
                projector = self.start_projector(WireProjector)
                projector.refusals = refusals
                self.check(["set", "Lecture hall", *words, "--connect", projector.address], code, output, errors)
                self.check(["undo"], 0, "^Lecture hall .*[0-9] changed$")
                self.assertEqual((projector.input, projector.brightness, projector.others[0x2004]),
                                 (RGB1, {RGB1: 128, RGB2: 140}, 128))
        projector.commands, projector.lost = 0, range(5, 99)  # from the value that brightness has then
        self.check(["set", "Lecture hall", "input=rgb2", "brightness+=3", "--connect", projector.address, "--timeout", "0.2"],
                   3, "->  RGB2$", "brightness: no answer$")
