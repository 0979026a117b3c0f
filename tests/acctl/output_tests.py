"""What acctl prints: for people, for programs, and in each language."""

import json
import re

import jsonschema

from script_support import SCHEMA, VALIDATOR, Building

ALL = "@building-3"


class Output(Building):
    def test_json_follows_the_schema(self):
        self.acctl("save", ALL, "-o", "saved")
        commands = [["list"], ["list", "--where", "power=on"], ["models"], ["explain", "brightness", "active-iris"], ["settings", "*"], ["get", "*"],
                    ["status"], ["set", "*", "brightness=3"], ["set", "*", "active-iris=on", "--dry-run"],
                    ["set", "*", "brightness+=1", "active-iris=theater"], ["reset", "Office", "brightness"],
                    ["diff", ALL, "saved"], ["apply", "saved", "--dry-run"], ["apply", "saved"], ["undo", "--list"],
                    ["undo"], ["save", "Office", "office.json"], ["get", "Nobody"], ["--fast"], ["find", "127.0.0.1", "--port", "1"],
                    ["import", "served.json", "--profiles", "new.json"], ["version"],
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

    def test_keys_are_printed_once_for_scripts(self):
        run = self.check(["settings", "*", "--brief"], 0, "^main.contrast$")
        keys = run.stdout.splitlines()
        self.assertEqual(len(set(keys)), len(keys))
        self.assertLess({"picture.contrast", "main.contrast", "status.power"}, set(keys))
        self.assertFalse([key for key in keys if " " in key])
        self.check(["settings", "Office", "contrast", "--brief"], 0, "^main.contrast\n$")

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
        self.assertEqual([entry["errors"][0]["code"] for entry in wrong], ["no-such-setting"] * 4)

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
        run = self.acctl("get", "Office", "contrast", "-o", "value", **rooms)
        self.assertEqual((run.stdout, run.stderr), ("0\n", "acctl: Office (simulated)\n"))
        self.acctl("reset", "Office", "contrast", **rooms)
        self.assertEqual(self.json("undo", "--list")["runs"], [], "what lasts no longer than its run")

    def test_simulated_projectors_keep_their_state_while_a_simulator_serves_them(self):
        rooms = {"ACCTL_PROFILES": "rooms.json", "XDG_RUNTIME_DIR": str(self.folder)}
        simulator = self.start_simulator("--projector", "Office", XDG_RUNTIME_DIR=str(self.folder))
        run = self.acctl("set", "Off*,Seminar 1", "contrast=3", **rooms)
        self.assertIn("Office (simulated) ", run.stdout)
        self.assertEqual(run.stderr, "acctl: Seminar 1 (simulated): simulated by acctl itself, nothing lasting was changed\n")
        self.assertEqual(self.acctl("get", "Office,Seminar 1", "contrast", "-o", "value", **rooms).stdout, "3\n0\n")
        simulator.kill()
        simulator.wait()
        run = self.acctl("get", "Office", "contrast", "-o", "value", **rooms)
        self.assertEqual(run.stdout, "0\n", "what a dead simulator has left is no use")
        self.start_simulator("--projector", "Office", XDG_RUNTIME_DIR=str(self.folder))
        self.assertEqual(self.acctl("set", "Office", "contrast=3", **rooms).stderr, "")
        self.stop(self.start_simulator("--projector", "Office", XDG_RUNTIME_DIR=str(self.folder)))
        run = self.acctl("get", "Office", "contrast", "-o", "value", **rooms)
        self.assertEqual(run.stdout, "3\n", "another one does not take the first one's place")
        self.start_simulator("--projector", "Office", XDG_RUNTIME_DIR="/dev/null")  # serves all the same
