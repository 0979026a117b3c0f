"""acctl as scripts use it: on many projectors, with output for programs."""

import itertools
import json
import os
import re
import shutil
import time

import jsonschema

from script_support import PROGRAMS, ROOMS, SOURCES, Building, free_port

ALL = "@building-3"
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


class Choosing(Building):
    def test_projectors_are_selected_by_name_pattern_tag_and_model(self):
        everybody = ["Lecture hall", "Seminar 1", "Seminar 2", "Office"]
        for words, names in (([], everybody), (["Seminar*"], everybody[1:3]), (["@building-3"], everybody[:3]),
                             (["@build*"], everybody), (["@hall,Office"], ["Lecture hall", "Office"]),
                             (["Office", "@hall"], ["Office", "Lecture hall"]), (["model=Model 5-*"], everybody[:2]),
                             (["@building-3,!Lecture*"], everybody[1:3]), (["!@building-3"], everybody[3:])):
            self.check(["list", "--brief", *words], 0, "^" + "\n".join(names) + "\n$")
        self.check(["list", "@nowhere"], 2, errors="there is no projector '@nowhere'")

    def test_conditions_are_about_the_present_state(self):
        self.assertEqual(self.acctl("set", "Seminar 2", "power=standby", "--wait", "60s").returncode, 0)
        for conditions, names in (("power=on", ["Lecture hall", "Seminar 1", "Office"]), ("power=standby", ["Seminar 2"]),
                                  ("lamp-hours>=0 power!=on", ["Seminar 2"]), ("lamp-hours>100000", []),
                                  ('active-iris="Off"', ["Lecture hall", "Seminar 1"]), ("brightness<=-1", []),
                                  ("input=rgb1 power=on", ["Lecture hall", "Seminar 1", "Office"])):
            with self.subTest(conditions=conditions):
                found = self.json("get", "*", "power", "--where", conditions)["projectors"]
                self.assertEqual([projector["name"] for projector in found], names)
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


class Output(Building):
    def test_json_follows_the_schema(self):
        self.acctl("save", ALL, "-o", "saved")
        commands = [["list"], ["models"], ["explain", "brightness", "active-iris"], ["settings", "*"], ["get", "*"],
                    ["status"], ["set", "*", "brightness=3"], ["set", "*", "active-iris=on", "--dry-run"],
                    ["set", "*", "brightness+=1", "active-iris=theater"], ["reset", "Office", "brightness"],
                    ["diff", ALL, "saved"], ["apply", "saved", "--dry-run"], ["apply", "saved"], ["undo", "--list"],
                    ["undo"], ["save", "Office", "office.json"], ["get", "Nobody"], ["--fast"], ["find", "127.0.0.1", "--port", "1"],
                    ["get", "Office", "nonsense"], ["--connect", "tcp://127.0.0.1:1", "status", "Office"]]
        for command in commands:
            with self.subTest(command=command):
                run = self.acctl("--json", *command)
                VALIDATOR.validate(json.loads(run.stdout))
        lines = jsonschema.Draft202012Validator({"$ref": "#/$defs/line", "$defs": SCHEMA["$defs"]})
        for command in (["get", "*", "active-iris"], ["diff", ALL, "saved"], ["watch", ALL, "power", "--wait", "0.1"],
                        ["undo", "--list"], ["models"], ["explain", "power"]):
            for line in self.acctl("-o", "jsonl", *command).stdout.splitlines():
                lines.validate(json.loads(line))

    def test_the_form_does_not_depend_on_the_number_of_projectors(self):
        for words, output in (
                (["get", "Office", "contrast"], "^Office  main.contrast  Contrast  0\n$"),
                (["get", "Seminar 1,Office", "contrast"],
                 "^Seminar 1  picture.contrast  Contrast  0\nOffice     main.contrast  Contrast  0\n$"),
                (["get", "Office", "contrast", "-o", "value"], "^0\n$"),
                (["get", "Office", "power", "-o", "tsv"],
                 "^projector\tkey\tvalue\tcode\ttext\tsimulated\nOffice\tother.power\t1\ton\tOn\tfalse\n$"),
                (["set", "Office", "contrast=-3"], "^Office  main.contrast  Contrast  0  ->  -3\n$"),
                (["set", "Office", "contrast+=2"], "^Office  main.contrast  Contrast  -3  ->  -1\n$"),
                (["set", "Office", "contrast-=2", "--dry-run"], "^Office  main.contrast  Contrast  -1  ->  -3\n$"),
                (["set", "Office", "power=off", "--dry-run"], "^Office  other.power  Power  On  ->  Standby\n$")):
            self.check(words, 0, output)
        value = json.loads(self.acctl("-o", "jsonl", "get", "Office", "contrast").stdout)
        self.assertEqual({name: value[name] for name in ("name", "alias", "shown", "code")},
                         {"name": "Office", "alias": "contrast", "shown": -1, "code": "-1"})

    def test_texts_are_in_the_users_language_and_those_for_programs_are_english(self):
        wrong = ["get", "Lecture hall", "smell"]
        chinese = {"LC_ALL": "zh_CN.UTF-8"}
        self.assertIn("smell: this model has no such setting", self.acctl(*wrong).stderr)
        for words, environment in ((wrong, chinese), ([*wrong, "--language=zh_SG"], {}),
                                   (wrong, {"ACCTL_LANGUAGE": "zh-CN"}), (["--help"], chinese),
                                   (["help", "set", "--language", "2052"], {}), (["lost"], chinese)):
            run = self.acctl(*words, **environment)
            self.assertRegex(run.stdout + run.stderr, "[\u4e00-\u9fff]{3}", words)
        for words in ([*wrong, "-o", "json"], [*wrong, "--json"], ["lost", "-o", "jsonl"], ["man", "set"]):
            runs = [self.acctl(*words), self.acctl(*words, **chinese)]
            self.assertEqual(runs[0].stdout, runs[1].stdout)
            self.assertEqual(runs[0].stderr, runs[1].stderr)
        self.assertIn("1 projector ", self.acctl("models", "Model 5-30").stdout)

    def test_codes_are_the_same_in_every_language_and_can_be_set(self):
        for language, text in (("1033", "Theater"), ("2052", "影院")):
            run = self.json("set", "Lecture hall", "active-iris=theater", "--language", language)
            value = run["projectors"][0]["settings"][0]
            self.assertEqual((value["code"], value["text"]), ("theater", text))
        settings = self.json("settings", "*")["projectors"]
        for projector in settings:
            for setting in projector["settings"]:
                codes = [entry["code"] for entry in setting.get("entries", [])]
                self.assertEqual(len(set(codes)), len(codes), setting["key"])
                self.assertFalse([code for code in codes if not re.fullmatch("[a-z0-9-]*[a-z-][a-z0-9-]*", code)])
        gamma = next(setting for setting in settings[0]["settings"] if setting["key"] == "picture.gamma")
        for entry in gamma["entries"]:
            run = self.json("set", "Lecture hall", "gamma=" + entry["code"])
            self.assertEqual(run["projectors"][0]["changes"][0]["after"]["value"], entry["value"])

    def test_errors_have_codes(self):
        for words, code, problem in (
                (["status", "Office", "--connect", "tcp://127.0.0.1:1"], 3, "no-answer"),
                (["set", "Lecture hall,Office", "active-iris=off"], 1, "no-such-setting")):
            entries = self.json(*words, code=code)["projectors"]
            self.assertEqual(entries[-1]["errors"][0]["code"], problem)
        self.assertEqual(self.json("set", "*", "contrast=99", code=2)["projectors"][0]["errors"][0]["code"],
                         "out-of-range")
        self.assertEqual(self.json("get", "Nobody", code=2)["errors"][0]["code"], "wrong-use")
        self.acctl("set", "Seminar 1", "power=standby", "--wait", "60s")
        port = self.pjlink[1]["connection"]["network"]["port"]
        entry = self.json("set", "Seminar 1", "mute=on", "--connect", f"pjlink://127.0.0.1:{port}",
                          code=1)["projectors"][0]
        self.assertEqual(entry["changes"][0]["outcome"], "busy")
        self.assertEqual(entry["errors"][0], {"code": "standby", "key": "other.mute",
                                              "text": "refused, the projector is in standby"})

    def test_errors_have_the_form_that_was_asked_for(self):
        self.acctl("save", "Office", "office.json")
        saved = json.loads((self.folder / "office.json").read_text())
        for setting in saved["settings"][:2]:
            setting["value"] = 999
        (self.folder / "office.json").write_text(json.dumps(saved))
        self.acctl("save", "Seminar 1", "-o", "saved")
        for words, environment, code, problem in (
                (["--jobs", "0", "get", "Office", "-o", "json"], {}, 2, "wrong-use"),
                (["--fast", "list", "--json"], {}, 2, "wrong-use"),
                (["list", "--jobs", "0"], {"ACCTL_FORMAT": "json"}, 2, "wrong-use"),
                (["list", "--format=json"], {"ACCTL_TIMEOUT": "x"}, 2, "wrong-use"),
                (["export", "-o", "json"], {}, 2, "wrong-use"),
                (["watch", "Office", "power", "--until", "x", "-o", "json"], {}, 2, "wrong-use"),
                (["diff", "Office", "office.json", "-o", "json"], {}, 2, "wrong-file"),
                (["diff", "Office,Seminar 1", "saved", "-o", "json"], {}, 1, "file")):
            with self.subTest(words=words):
                run = self.acctl(*words, **environment)
                output = json.loads(run.stdout)
                VALIDATOR.validate(output)
                self.assertEqual((run.returncode, output["errors"][0]["code"]), (code, problem))
        run = self.acctl("list", "--jobs", "0", "-o", "jsonl")
        self.assertEqual(json.loads(run.stdout)["error"]["code"], "wrong-use")
        wrong = self.json("watch", "*", "active-iris", "smell", code=2)["projectors"]
        self.assertEqual(wrong[0]["errors"][0]["code"], "no-such-setting")

    def test_a_value_before_that_cannot_be_read_is_noted(self):
        self.stop(self.simulator)
        self.start_simulator("--fault", "fail-read")
        run = self.check(["set", "Office", "contrast=3"], 1,
                         errors="main.contrast: the value before could not be read, and cannot be restored")
        self.assertIn("accepted, but not confirmed: cannot be read now", run.stderr)
        entry = self.json("set", "Office", "contrast=3", code=1)["projectors"][0]
        self.assertEqual([(note["code"], note["key"]) for note in entry["notes"]], [("not-readable", "main.contrast")])

    def test_simulated_projectors_are_marked(self):
        rooms = {"ACCTL_PROFILES": "rooms.json"}
        run = self.acctl("set", "Office", "contrast=3", **rooms)
        self.assertEqual((run.stdout, run.returncode), ("Office (simulated)  main.contrast  Contrast  0  ->  3\n", 0))
        self.assertIn("nothing lasting was changed", run.stderr)
        self.assertTrue(self.json("get", "Office", "contrast", **rooms)["projectors"][0]["simulated"])
        self.assertTrue(self.acctl("get", "Office", "contrast", "-o", "tsv", **rooms).stdout.endswith("\ttrue\n"))

    def test_simulated_projectors_keep_their_state_while_a_simulator_serves_them(self):
        rooms = {"ACCTL_PROFILES": "rooms.json", "XDG_RUNTIME_DIR": str(self.folder)}
        simulator = self.start_simulator("--projector", "Office", XDG_RUNTIME_DIR=str(self.folder))
        run = self.acctl("set", "Off*,Seminar 1", "contrast=3", **rooms)
        self.assertIn("Office (simulated) ", run.stdout)
        self.assertEqual(run.stderr, "acctl: Seminar 1: simulated by acctl itself, nothing lasting was changed\n")
        self.assertEqual(self.acctl("get", "Office,Seminar 1", "contrast", "-o", "value", **rooms).stdout, "3\n0\n")
        simulator.kill()
        simulator.wait()
        run = self.acctl("get", "Office", "contrast", "-o", "value", **rooms)
        self.assertEqual((run.stdout, run.stderr), ("0\n", ""), "what a dead simulator has left is no use")
        self.start_simulator("--projector", "Office", XDG_RUNTIME_DIR=str(self.folder))
        self.assertEqual(self.acctl("set", "Office", "contrast=3", **rooms).stderr, "")


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

    def test_old_undo_files_are_removed(self):
        undo = self.folder / "state/advanced-control/undo"
        undo.mkdir(parents=True)
        (undo / "notes.txt").write_text("not ours")
        for days, left in ((30, 1), (2, 2), (0, 3), (1, 1)):  # 0 keeps all
            self.acctl("set", "Office", "brightness+=1", ACCTL_UNDO_DAYS=str(days))
            self.assertEqual(len(self.json("undo", "--list")["runs"]), left, days)
            for file in undo.iterdir():
                os.utime(file, (time.time() - 1.5 * 86400,) * 2)
        self.assertTrue((undo / "notes.txt").exists())

    def test_a_run_that_cannot_be_read_is_never_passed_over(self):
        for brightness in ("5", "6"):
            self.acctl("set", "Office", "brightness=" + brightness)
        undo = self.folder / "state/advanced-control/undo"
        earlier, last = sorted(undo.iterdir())
        whole = last.read_text()
        header, line = whole.splitlines()
        for damaged, error in (("", "illegal value"), (header + "\n", "nothing to undo"), (whole[:-9] + "\n", ":2: not a line"),
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
        self.check(["undo", "--dry-run"], 0, r"main.contrast .* \?  ->  0\n.* \?  ->  0\nOffice  2 not compared$")
        job = self.folder / "job.undo"
        job.write_text(json.dumps({"undoOfJob": [json.loads(run.read_text().splitlines()[-1])]}, indent=1))
        before = job.read_text()
        self.check(["undo", "job.undo"], 0, "2 changed")
        self.assertEqual(job.read_text(), before)
        job.write_text(' {"undoOfJob": [{"id": "a\\nb", "snapshot": {}}]}')
        self.assertEqual(self.acctl("undo", "job.undo").stderr.count("\n"), 1)
        # What is undone and cannot be recorded is reported with an exit code of its own.
        pipe = self.acctl("undo", "/dev/stdin", text=run.read_text())
        self.assertEqual(pipe.returncode, 1)
        self.assertIn("cannot record in /dev/stdin that it is undone", pipe.stderr)

    def test_what_was_set_for_a_new_input_is_undone_for_it(self):
        before = self.acctl("get", "Lecture hall", "-o", "tsv").stdout
        self.check(["set", "Lecture hall", "input=rgb2", "volume=7", "brightness=4", "input=rgb1", "volume=9"], 0, "->")
        self.check(["undo"], 0, "changed")
        self.assertEqual(self.acctl("get", "Lecture hall", "-o", "tsv").stdout, before)
        self.acctl("set", "Lecture hall", "input=rgb2")
        self.assertEqual(self.value("Lecture hall", "volume"),
                         [line.split("\t")[4] for line in before.splitlines() if "\taudio.volume\t" in line])

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
        self.check(["get", "*", "power", "--jobs", "1", "--fail-fast"], 3,
                   errors="Lecture hall: .*\n(.*not begun, as another projector failed\n){3}")
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
        self.check(["watch", "Office", "power", "--until", "contrast=9", "--wait", "0.2"], 1, "On", "not so in time")
        for wrong in ("input=hdim", "power=offf"):
            self.check(["watch", "Office", "power", "--until", wrong], 2, errors="'.*' is not one of")
        self.check(["watch", "Office", "power", "--until", "power=warming-up", "--wait", "0.2"], 1, "On", "not so in time")
