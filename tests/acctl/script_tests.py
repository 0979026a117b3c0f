"""acctl on many projectors, as scripts use it: selecting, changing and saving."""

import itertools
import json
import os
import re
import shutil
import signal
import socket
import time

from script_support import PROGRAMS, Building, WireProjector, free_port, write_rooms

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

    def test_a_list_of_numbers_is_set_and_stepped_like_a_number(self):
        write_rooms(self.folder / "rooms.json", {"Foyer": ("Projector 1-1", [])})
        self.start_simulator()
        gain = "picture.custom-user-r"
        self.check(["set", "Foyer", f"{gain}=-3", f"{gain}-=2", gain, "+1"], 0, "0 +->  -3\n.*  -> +-5\n.*  -> +-4$")
        self.check(["list", "--brief", "--where", f"{gain}=-4"], 0, "^Foyer$")
        self.check(["set", "Foyer", gain, "=-40"], 2, errors="'=-40' is not one of")

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

    def test_folders_know_their_projectors(self):
        self.acctl("save", "Seminar*", "-o", "saved")
        self.check(["apply", "saved", "Office", "Seminar 1"], 1, "^Seminar 1 .*already so",
                   "Office: there is no file of it in saved")
        (self.folder / "saved/Seminar_2.json").rename(self.folder / "saved/other.json")
        self.check(["apply", "saved"], 0, "^Seminar 2 .*already so")
        # The host application keeps its undo files beside them.
        undo = {"undoOfJob": [{"id": "id:Seminar 2", "snapshot": json.loads((self.folder / "saved/other.json").read_text())}]}
        for folder in ("saved", "undo"):
            (self.folder / folder).mkdir(exist_ok=True)
            (self.folder / folder / "other.undo.20261124T020000Z.json").write_text(json.dumps(undo, indent=4))
        self.check(["apply", "saved"], 0, "^Seminar 1 .*already so\nSeminar 2 .*already so\n$")
        self.check(["apply", "undo"], 2, errors="undo: the folder has no files of settings")
        for wrong in ("{}", '{"undoOfJob": []}', '{"projector": "Office"}'):
            (self.folder / "saved/wrong.json").write_text(wrong)
            self.check(["apply", "saved"], 2, errors="^acctl: saved/wrong.json:1: format: this is not a file of saved settings$")
        (self.folder / "saved/wrong.json").unlink()
        shutil.copy(self.folder / "saved/other.json", self.folder / "saved/twice.json")
        self.check(["apply", "saved"], 2, errors="is also of Seminar 2")
        self.check(["apply", "sav"], 2, errors="sav: there is no such file or folder")

    def test_a_file_of_one_is_for_all_of_its_model_whatever_inputs_they_have(self):
        served = json.loads((self.folder / "served.json").read_text())
        old, new = served["projectors"][0], next(entry for entry in self.pjlink if entry["name"].startswith("Lecture"))
        inputs = [{"name": "HDMI", "value": 31}]
        served["projectors"] = [{**new, "mySources": inputs}, {**new, "name": "Asked", "identity": "id:x", "mySources": []},
                                {**old, "name": "Fewer", "identity": "id:y", "mySources": inputs}, old]
        (self.folder / "served.json").write_text(json.dumps(served))
        self.check(["save", "Lecture hall", "old.json"], 0, " settings saved ")
        skipped = "skipped, this model does not take it: .*other.input-source"
        for name, is_by_pjlink in ((new["name"], True), ("Asked", True), ("Fewer", False)):
            run = self.check(["apply", "old.json", name, "--dry-run"], 0, "already so", skipped)
            self.assertEqual("PJLink does not have them" in run.stderr, is_by_pjlink)
        self.check(["save", "Asked", "asked.json"], 0, " settings saved ")
        self.check(["diff", "*", "asked.json"], 0, "already so", "Lecture hall: " + skipped)
        # What neither of them has is a mistake still.
        old = self.folder / "old.json"
        old.write_text(old.read_text().replace('"source": 0,', '"source": 99,'))
        for name in (new["name"], "Fewer", "Lecture hall"):
            self.check(["diff", name, "old.json"], 2, errors="audio.volume: source 99 does not exist")

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
        (config / "acctl.conf").write_text("profiles = ~/rooms.json\n")
        self.assertIn("Office (simulated)", self.acctl("list", ACCTL_PROFILES="").stdout)
        for wrong in ("mine", "~", "~me/undo", ""):
            (config / "acctl.conf").write_text(f"# undo\nundo = {wrong}\n")
            self.check(["list"], 2, errors=f"acctl.conf:2: undo: '{wrong}' must begin with / or ~/$")
        (config / "acctl.conf").unlink()
        (config / "acctl.conf").mkdir()
        self.check(["list"], 2, errors="cannot read .*acctl.conf: Is a directory")
        (config / "acctl.conf").rmdir()
        usual = ".local/state/advanced-control/undo"
        for number, (words, state, conf, undo) in enumerate((
                ([], "", "", usual), ([], "state", "", usual), ([], str(self.folder / "s"), "", "s/advanced-control/undo"),
                ([], "", "undo = ~/mine", "mine"), ([], "", f"undo = {self.folder}/its", "its"),
                (["--undo", "here"], "", "undo = ~/mine", "here"))):
            (config / "acctl.conf").write_text(conf)
            before = {*self.folder.rglob("*.acctl-undo")}
            run = self.acctl("set", "Office", f"contrast={number + 1}", *words, XDG_STATE_HOME=state)
            made = {*self.folder.rglob("*.acctl-undo")} - before
            self.assertEqual([file.parent for file in made], [self.folder / undo], run.stderr)
        (config / "acctl.conf").unlink()
        self.assertIn("ACCTL_TIMEOUT: 'x'", self.acctl("list", ACCTL_TIMEOUT="x").stderr)
