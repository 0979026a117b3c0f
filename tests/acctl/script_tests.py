"""acctl on many projectors, as scripts use it: selecting, saving and undoing."""

import itertools
import json
import os
import re
import shutil
import signal
import socket
import time

from script_support import PROGRAMS, RGB1, RGB2, VALIDATOR, Building, WireProjector, free_port, write_rooms

ALL = "@building-3"


class Choosing(Building):
    def test_projectors_are_selected_by_name_pattern_tag_and_model(self):
        everybody = ["Lecture hall", "Seminar 1", "Seminar 2", "Office"]
        for words, names in (([], everybody), (["Seminar*"], everybody[1:3]), (["@building-3"], everybody[:3]),
                             (["@build*"], everybody), (["@hall,Office"], ["Lecture hall", "Office"]),
                             (["Office", "@hall"], ["Office", "Lecture hall"]), (["model=Model 5-*"], everybody[:2]),
                             (["@building-3,!Lecture*,!Office"], everybody[1:3]), (["!@building-3"], everybody[3:])):
            self.check(["list", "--brief", *words], 0, "^" + "\n".join(names) + "\n$")
        self.check(["--profiles", "real.json", "list", "Office*", "--brief"], 0, "^Office\nOffice \\(PJLink\\)\n$")

    def test_conditions_are_about_the_present_state(self):
        self.assertEqual(self.acctl("set", "Seminar 2", "power=standby", "--wait", "60s").returncode, 0)
        for conditions, names in (("power=on", ["Lecture hall", "Seminar 1", "Office"]), ("power=standby", ["Seminar 2"]),
                                  ("lamp-hours>=0 power!=on", ["Seminar 2"]), ("lamp-hours>100000", []),
                                  ('active-iris="Off"', ["Lecture hall", "Seminar 1"]), ("brightness<=-1", []),
                                  ("input=rgb1 power=on", ["Lecture hall", "Seminar 1", "Office"])):
            with self.subTest(conditions=conditions):
                found = self.json("get", "*", "power", "--where", conditions)["projectors"]
                self.assertEqual([projector["name"] for projector in found], names)
        for words, output in ((["list", "--brief"], "^Seminar 2\n$"), (["export"], "^Seminar 2,.*\n$"),
                              (["settings", "*", "status.error"], "^Seminar 2 .*\n$"),
                              (["watch", "*", "power", "--wait", "0.2"], "^Seminar 2 .* Standby\n$")):
            run = self.check([*words, "--where", "power=standby"], 0, output)
            self.assertNotRegex(run.stdout, "Office|Lecture")
        for wrong, error in (("power", "one of = != < "), ("power=", "a value is missing"), ("smell=1", "no model has"),
                             ("lamp-hours>many", "only numbers")):
            self.check(["get", "*", "power", "--where", wrong], 2, errors=error)
        self.check(["get", "*", "power", "--where", "input!=hdim"], 0, "On$", "--where input: 'hdim' is not one of: RGB")

    def test_short_names_stand_for_the_key_of_each_model(self):
        run = self.check(["get", "*", "brightness", "-o", "tsv"], 0, "^Office\tmain.brightness\t")
        self.assertIn("Lecture hall\tpicture.brightness\t", run.stdout)
        self.check(["reset", "*", "lamp-hours"], 2, errors="lamp-hours: this cannot be reset")
        profiles = {**json.loads((self.folder / "served.json").read_text()), "projectors": self.pjlink}
        (self.folder / "pjlink.json").write_text(json.dumps(profiles))
        explained = self.acctl("explain", "input", ACCTL_PROFILES="pjlink.json").stdout
        self.assertRegex(explained, "(?m)^  values +those that the projector reports$")
        # What a condition compares is asked for though the command does not need it.
        where = self.acctl("get", "*", "power", "--where", "input=rgb1", ACCTL_PROFILES="pjlink.json")
        self.assertEqual(where.stdout.count(" On\n"), len(self.pjlink))

    def test_keys_with_one_meaning_have_one_short_name_on_all_models(self):
        models = {}
        for projector in self.json("settings", "*", ACCTL_PROFILES=str(PROGRAMS / "projectors.json"))["projectors"]:
            for setting in projector["settings"]:
                direction = re.search("-[hv]$|$", setting["key"])[0]  # some captions do not say it
                meaning = models.setdefault((setting["caption"], direction, setting["kind"] == "action"), {})
                meaning.setdefault((setting["key"], setting.get("alias")), set()).add(projector["name"])
        for (caption, _, is_action), keys in models.items():
            for (first, second) in itertools.combinations(keys, 2):
                if not is_action and keys[first].isdisjoint(keys[second]):
                    self.assertTrue(first[1] and first[1] == second[1], (caption, first, second))

    def test_a_key_that_one_lacks_stops_only_this_one(self):
        lacks = "Office: active-iris: this model has no such setting"
        self.check(["get", "*", "active-iris", "-o", "value"], 1, "^Off\nOff\n$", "Seminar 2.*\n.*" + lacks)
        self.check(["set", "Lecture hall,Office", "active-iris=theater", "brightness=2", "-o", "value"], 1,
                   "^Theater\n2\n2\n$", lacks)
        self.check(["get", "Seminar 2,Office", "active-iris"], 2, errors="no such setting")
        self.check(["set", "*", "brightness=999"], 2, errors="'999' is not one of")


class Runs(Building):
    def value(self, *words):
        return self.acctl("get", *words, "-o", "value").stdout.split()

    def test_a_whole_run_is_saved_applied_and_undone(self):
        self.assertEqual(self.acctl("save", ALL, "-o", "saved").returncode, 0)
        self.assertEqual(sorted(file.name for file in (self.folder / "saved").iterdir()),
                         ["Lecture_hall.json", "Seminar_1.json", "Seminar_2.json"])
        self.check(["set", ALL, "brightness=5", "contrast=2"], 0, "0  ->  5")
        self.check(["diff", ALL, "saved"], 0, "^Seminar 2 .* 5  ->  0$")
        self.check(["diff", ALL, "saved", "--exit-code"], 1, "2 different")
        self.check(["apply", "saved"], 0, "2 changed")
        self.check(["diff", ALL, "saved", "--exit-code"], 0, "already so")
        runs = self.json("undo", "--list")["runs"]
        self.assertEqual([(run["projectors"], run["isUndone"]) for run in runs], [(3, False), (3, False)])
        self.check(["undo", "--dry-run"], 0, "0  ->  5")
        self.check(["undo"], 0, "2 changed")
        self.assertEqual(self.value(ALL, "brightness"), ["5"] * 3)
        self.check(["undo"], 0, "2 changed")
        self.assertEqual(self.value(ALL, "brightness"), ["0"] * 3)
        self.check(["undo"], 2, errors="there is no run to undo")
        undo = self.json("undo", "--list")["runs"][-1]
        self.check(["undo", undo["run"]], 0, "2 changed")
        self.assertEqual(self.value(ALL, "contrast"), ["2"] * 3)

    def test_a_run_with_a_large_model_code_is_undone(self):
        rooms = json.loads((self.folder / "rooms.json").read_text())
        rooms["projectors"][0]["modelCode"] = 70000
        (self.folder / "rooms.json").write_text(json.dumps(rooms))
        self.start_simulator()
        self.check(["set", ALL, "brightness=5"], 0, "0  ->  5")
        self.check(["undo", "last", "Seminar 1"], 0, "5  ->  0")
        self.check(["undo"], 0, "^Lecture hall .* 5  ->  0$")

    def test_a_list_of_numbers_is_set_and_stepped_like_a_number(self):
        write_rooms(self.folder / "rooms.json", {"Foyer": ("Projector 1-1", [])})
        self.start_simulator()
        gain = "picture.custom-user-r"
        self.check(["set", "Foyer", f"{gain}=-3", f"{gain}-=2", gain, "+1"], 0, "0 +->  -3\n.*  -> +-5\n.*  -> +-4$")
        self.check(["list", "--brief", "--where", f"{gain}=-4"], 0, "^Foyer$")
        self.check(["set", "Foyer", gain, "=-40"], 2, errors="'=-40' is not one of")

    def test_undoing_an_undo_goes_to_the_same_address(self):
        projector = self.start_projector(WireProjector)
        self.check(["set", "Lecture hall", "brightness=5", "--connect", projector.address], 0, "0  ->  5")
        for brightness in (128, 133):
            self.check(["undo", self.json("undo", "--list")["runs"][-1]["run"]], 0, "1 changed")
            self.assertEqual(projector.brightness[RGB1], brightness)
        self.assertEqual(self.value("Lecture hall", "brightness"), ["0"])

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

    def test_what_follows_a_power_on_waits_for_it(self):
        self.start_simulator("--fleet", "1", "--link", "pjlink", "--warm-up", "3", "--cool-down", "0")
        self.environment.update(ACCTL_PROFILES="real.json", ACCTL_INTERVAL="0.1", ACCTL_TIMEOUT="1")
        standby, on = ["set", "*", "power=standby", "--wait", "60s"], ["set", "*", "power=on", "input=rgb2", "--wait", "60s"]
        self.check(standby, 0, "->  Standby$")
        self.check(on, 0, "Video .*  ->  RGB2 ")
        self.check(["undo", "--dry-run"], 0, "RGB2 .*  ->  Video ")
        self.acctl(*standby)
        run = self.run_program("timeout", "--preserve-status", "-s", "INT", "1", "acctl", *on)
        self.assertEqual((run.returncode, "RGB2" in run.stdout, ": interrupted\n" in run.stderr), (130, False, True))
        # The time is for all of it.
        self.acctl("set", "*", "power=on", "--wait", "60s")
        self.check(["set", "*", "power=standby", "power=on", "power=standby", "power=on", "--wait", "4"], 1, "Up$",
                   "^[^\n]*: other.power: not so in time, it is Warming Up$")

    def test_what_is_interrupted_is_not_an_empty_list(self):
        served = json.loads((self.folder / "served.json").read_text())
        served["projectors"][1]["connection"]["network"]["port"] = 1
        (self.folder / "served.json").write_text(json.dumps(served))
        get = self.start("get", "*", "power", "--jobs", "1", "--retries", "1000", "-o", "jsonl")
        get.stdout.readline()
        get.send_signal(signal.SIGINT)
        self.assertEqual(get.wait(60), 130)
        lines = [json.loads(line) for line in get.stdout]
        self.assertIn(lines.pop(0)["error"]["code"], ("no-answer", "stopped"))
        self.assertEqual([(line["name"], line["error"]["code"]) for line in lines],
                         [("Seminar 2", "stopped"), ("Office", "stopped")])
        port = self.pjlink[0]["connection"]["network"]["port"]
        with socket.create_server(("127.0.0.2", port)) as silent:
            find = self.start("find", "127.0.0.1-2", "--port", str(port), "--timeout", "60", "--add", "new.json", "--json")
            with silent.accept()[0]:
                time.sleep(0.5)  # the other one is found
                find.send_signal(signal.SIGINT)
                self.assertEqual(json.load(find.stdout)["errors"][0]["code"], "stopped")
        self.assertEqual((find.wait(60), (self.folder / "new.json").exists()), (130, False))

    def test_nothing_has_begun_while_input_is_read(self):
        os.mkfifo(self.folder / "endless")
        ended = 'timeout --preserve-status -k 9 0.5 acctl "$@" <> endless'
        for words in (["apply", "-", "Office"], ["set", "Office", "--from", "-"], ["import", "-"]):
            self.assertEqual(self.run_program("bash", "-c", ended, "", *words).returncode, 128 + signal.SIGTERM, words)

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

    def test_folders_know_their_projectors(self):
        self.acctl("save", "Seminar*", "-o", "saved")
        self.check(["apply", "saved", "Office", "Seminar 1"], 1, "^Seminar 1 .*already so",
                   "Office: there is no file of it in saved")
        (self.folder / "saved/Seminar_2.json").rename(self.folder / "saved/other.json")
        self.check(["apply", "saved"], 0, "^Seminar 2 .*already so")
        shutil.copy(self.folder / "saved/other.json", self.folder / "saved/twice.json")
        self.check(["apply", "saved"], 2, errors="is also of Seminar 2")
        self.check(["apply", "sav"], 2, errors="sav: there is no such file or folder")

    def test_presets_are_found_by_name(self):
        presets = self.folder / "data/advanced-control/presets"
        presets.mkdir(parents=True)
        self.acctl("save", "Office", presets / "Lecture, dark.json", "--only", "main.contrast")
        self.acctl("set", "Office", "contrast=-5")
        self.check(["diff", "Office", "Lecture, dark"], 0, "^Office .*contrast")
        self.check(["apply", "Lecture, dark", "Office"], 0, "changed")
        self.acctl("save", "Office", "Lecture, dark", "--only", "main.brightness")
        self.check(["diff", "Office", "Lecture, dark"], 0, "already so|same|nothing")  # the file counts

    def test_save_replaces_only_files_of_settings(self):
        notes = self.folder / "notes.txt"
        notes.write_text("precious")
        self.check(["save", "Office", "notes.txt"], 2, errors="is not a file of settings; --force replaces it")
        self.assertEqual(notes.read_text(), "precious")
        self.check(["save", "Office", "notes.txt", "--force"], 0, "saved in notes.txt")
        self.check(["save", "Office", "notes.txt", "--only", "main.contrast"], 0, " 1 setting saved in notes.txt")
        self.check(["save", "Seminar*", "notes.txt"], 2, errors="-o names a folder")

    def test_set_takes_a_file_and_waits(self):
        (self.folder / "evening").write_text("# dark\nbrightness=-4\n\ncontrast=1\n")
        self.check(["set", ALL, "--from", "evening"], 0, "->  -4")
        self.check(["set", ALL, "--from", "-"], 2, errors="-: has no KEY=VALUE")
        run = self.acctl("set", "Office", "--from", "-", text="contrast=2\n")
        self.assertEqual((run.returncode, run.stdout), (0, "Office  main.contrast  Contrast  0  ->  2\n"))
        self.check(["set", "Office", "power=standby", "--wait", "60s", "-o", "value"], 0, "^Standby\n$")

    def test_a_silent_projector_is_retried_and_stops_others_only_if_asked(self):
        nobody = ["--connect", "tcp://127.0.0.1:1", "--timeout", "0.1"]
        self.check(["status", "Office", "--retries", "1", *nobody], 3, errors="not reachable")
        self.stop(self.simulator)
        for words in (["get", "*", "power"], ["list", "--where", "power=on"]):
            self.check([*words, "--jobs", "1", "--fail-fast"], 3,
                       errors="Lecture hall: .*\n(.*not begun, as another projector failed\n){3}")
        for lost, code, output, error in ((range(2, 6), 0, "0  ->  3$", ""),  # a read
                                          (range(3, 5), 3, "", "brightness: no answer, it may have been changed$")):
            projector = self.start_projector(WireProjector)
            projector.lost = lost
            self.check(["set", "Lecture hall", "brightness=3", "contrast=3", "--retries", "9", "--timeout", "0.2",
                        "--connect", projector.address], code, output, error)
        port = free_port(2)
        get = self.start("--profiles", "rooms.json", "get", "Office", "contrast", "-o", "value", "--retries", "60",
                         "--connect", f"tcp://127.0.0.1:{port}")
        self.start_simulator("--projector", "Office", "--port", str(port))
        self.assertEqual((get.wait(90), get.stdout.read()), (0, "0\n"))

    def test_defaults_come_from_file_and_environment(self):
        config = self.folder / "config/advanced-control"
        config.mkdir(parents=True)
        (config / "acctl.conf").write_text("# mine\nformat = value\njobs = 2\n")
        self.check(["get", "Office", "contrast"], 0, "^0\n$")
        self.check(["list", "Office"], 0, "^Office ")
        self.assertIn("\tmain.contrast\t", self.acctl("get", "Office", "contrast", ACCTL_FORMAT="tsv").stdout)
        self.check(["get", "Office", "contrast", "-o", "json"], 0, '"version": 1')
        (config / "acctl.conf").write_text("jobs = many\n")
        self.check(["list"], 2, errors="acctl.conf:1: jobs: 'many' is not possible")
        (config / "acctl.conf").unlink()
        (config / "acctl.conf").mkdir()
        self.check(["list"], 2, errors="cannot read .*acctl.conf: Is a directory")
        (config / "acctl.conf").rmdir()
        self.assertIn("ACCTL_TIMEOUT: 'x'", self.acctl("list", ACCTL_TIMEOUT="x").stderr)
