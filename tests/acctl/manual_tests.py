"""What explains acctl and what is built on it: help, completion, the manual's commands, and integrations/."""

import importlib.util
import json
import re
import shutil
import subprocess
from pathlib import Path

from script_support import PROGRAMS, SOURCES, Building


class LookingUp(Building):
    def test_settings_models_and_help_are_explained(self):
        for words, output in (
                (["explain", "active-iris"], "values +Off \\(off\\), Theater \\(theater\\), "),
                (["explain", "volume"], "short name: volume\n(.*\n)+.*kept +for each input source"),
                (["explain", "power"], "values +Standby \\(standby\\), On \\(on\\)\n.*commands +get, set"),
                (["models", "Model 5-*"], "^Model 5-30 +5 +30 +1 projector +\\d+ settings$"),
                (["help", "set"], "Use: acctl set P KEY=VALUE(.*\n)+Examples\n  acctl set"),
                (["help", "save"], "^  --format FORMAT(.*\n)+  -o, --folder DIR"),
                (["set", "--help"], "  --wait TIME"), (["--help"], "^  explain  ")):
            self.check(words, 0, output)
        self.check(["explain", "smell"], 2, errors="no model has such a setting")

    def test_manual_pages_are_sound(self):
        commands = re.findall(r"^  (\w+) {2,}", self.acctl("--help").stdout.split("Options")[0], re.MULTILINE)
        self.assertGreater(len(commands), 15)
        for command in ["", *commands]:
            page = self.acctl("man", *command.split()).stdout
            warnings = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z"], input=page, text=True,
                                      capture_output=True, check=True).stderr
            self.assertEqual(warnings, "", command)
        built = re.search(r"set\(commands ([^)]*)", (SOURCES / "app/acctl/CMakeLists.txt").read_text())[1].split()
        self.assertEqual(built, [command for command in commands if command != "help"])

    COMPLETED = (("acctl exp", ["explain", "export"]), ("acctl get @buil", ["@building-1", "@building-3"]),
                 ("acctl set Office contr", ["contrast"]), ("acctl list --for", ["--format"]),
                 ("acctl get Office power -o js", ["json", "jsonl"]), ("acctl save Office -o sav", ["saved"]),
                 ("acctl undo last Off", ["Office"]), ("acctl set Office power=st", ["standby"]),
                 ("acctl set Office input s", ["s-video"]),
                 ("acctl reset Office status.", ["status.filter-time", "status.lamp-time"]))

    QUOTED = (("acctl get 'Sem", ["Seminar 1", "Seminar 2"]), ('acctl get "Lec', ["Lecture hall"]), ('acctl apply "sav', ["saved"]),
              ("acctl apply 'nowhere", []), ('acctl save Office -o "sav', ["saved"]))

    def completed(self, shell, line):
        completion = SOURCES / f"app/acctl/completion.{shell}"
        if shell == "fish":
            return self.run_program("fish", "-c", f"source {completion}; complete -C $argv[1]", line)
        if shell == "zsh":
            stubs = "compadd() { shift; print -l -- $@ }; _files() { print -l -- $PREFIX*(N) }"
            return self.run_program("zsh", "-fc", f"{stubs}; words=(${{(z)1}}); CURRENT=$#words; PREFIX=$words[-1]; "
                                    f"source {completion}", "zsh", line)
        return self.run_program("bash", "-c", f"source {completion}; COMP_WORDS=($1); "
                                "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _acctl; printf '%s\\n' \"${COMPREPLY[@]}\"",
                                "bash", line)

    def test_shells_complete_the_same(self):
        (self.folder / "saved").mkdir()
        for shell in ("bash", "zsh", "fish"):
            for line, words in self.COMPLETED + (self.QUOTED if shell != "zsh" else ()):
                with self.subTest(shell=shell, line=line):
                    run = self.completed(shell, line)
                    # Bash replaces only what follows the equals sign.
                    found = [word.split("\t")[0].rstrip("/").split("=")[-1] for word in run.stdout.split("\n") if word]
                    self.assertEqual(sorted(found), words, run.stderr)


class Manual(Building):
    def test_every_example_of_the_help_works(self):
        (self.folder / "rooms.csv").write_text("name,address\nA,192.0.2.7\n")
        commands = re.findall(r"^  (\w+) {2,}", self.acctl("--help").stdout.split("Options")[0], re.MULTILINE)
        # What waits for a state comes before what ends it.
        for command in ["watch", *(command for command in commands if command not in ("watch", "find"))]:
            for line in self.acctl("help", command).stdout.split("\nExamples\n")[1].splitlines():
                line += " --wait 0.1" if "power -o json" in line else ""
                with self.subTest(line=line):
                    run = self.run_program("bash", "-c", line, ACCTL_INTERVAL="0.1")
                    self.assertEqual(run.returncode, 0, run.stderr + run.stdout)

    def test_every_command_of_the_manual_works(self):
        for page in sorted((SOURCES / "docs/acctl").glob("*.md")):
            blocks = re.findall(r"^```sh\n(.*?)^```", page.read_text(), re.DOTALL | re.MULTILINE)
            self.assertTrue(blocks)
            for block in blocks:
                block = re.sub("(?m)^acctl watch (?!.*--until).*$", r"\g<0> --wait 0.1", block)  # else it never ends
                with self.subTest(page=page.name, block=block):
                    run = self.run_program("bash", "-euo", "pipefail", "-c", block, ACCTL_INTERVAL="0.1")
                    self.assertEqual((run.returncode, "no such" in run.stderr), (0, False), run.stderr + run.stdout)

    def test_every_command_of_the_first_page_works(self):
        shutil.copy(PROGRAMS / "projectors.json", self.folder / "rooms.json")
        self.start_simulator()
        lines = re.findall("^    (acctl .*)$", (SOURCES / "README.md").read_text(), re.MULTILINE)
        self.assertGreater(len(lines), 5)
        for line in lines:
            with self.subTest(line=line):
                run = self.run_program("bash", "-c", line)
                self.assertEqual((run.returncode, run.stdout == ""), (0, False), run.stderr)


class Integrations(Building):
    def test_the_monitoring_plugin_has_the_usual_exit_codes(self):
        for words, code, output in (
                (["*"], 0, "^PROJECTOR OK - .* \\| 'Lecture hall'=\\d+;;;0 .*projectors=4 faulty=0\n$"),
                (["-w", "1", "Office"], 1, "^PROJECTOR WARNING - Office: lamp has \\d+ h \\|"),
                (["-w", "1", "-c", "2", "*"], 2, "CRITICAL"), (["--nonsense", "Office"], 3, "^$"),
                (["Nobody"], 3, "^PROJECTOR UNKNOWN - acctl: there is no projector")):
            run = self.run_program("check_projector", *words)
            with self.subTest(words=words):
                self.assertEqual(run.returncode, code, run.stdout)
                self.assertRegex(run.stdout, output)
        simulated = self.run_program("check_projector", "Office", ACCTL_PROFILES="rooms.json")
        self.assertRegex(simulated.stdout, "OK - Office \\(simulated\\): On \\| 'Office \\(simulated\\)'=")
        self.stop(self.simulator)
        run = self.run_program("check_projector", "Office")
        self.assertEqual(run.returncode, 2)
        self.assertRegex(run.stdout, "^PROJECTOR CRITICAL - Office: no answer")

    def test_units_are_sound_and_do_what_they_say(self):
        units = SOURCES / "integrations/systemd"
        for unit in sorted(units.glob("*.timer")):
            self.assertIn("Persistent=true", unit.read_text())
            calendar = re.search("^OnCalendar=(.*)$", unit.read_text(), re.MULTILINE)[1]
            self.assertEqual(self.run_program("systemd-analyze", "calendar", calendar).returncode, 0)
            self.assertIn(int(calendar[-5:-3]), range(8, 22), "in standby there is nothing to turn off or to save")
            service = unit.with_suffix(".service").read_text()
            self.assertRegex(service, "\nLoadCredential=(.*):/etc/(.*\n)*Environment=ACCTL_PROFILES=%d/\\1\n")
            line = re.search("^ExecStart=(.*)$", service, re.MULTILINE)[1].replace("%S", str(self.folder))
            run = self.run_program("bash", "-c", line.replace("${PROJECTORS}", "'*'"), ACCTL_INTERVAL="0.1")
            self.assertEqual(run.returncode, 0, run.stderr)
        self.assertTrue((self.folder / "projectors/saved/Office.json").exists())

    def module(self, *modes, **arguments):
        values = {"projectors": "*", "executable": str(PROGRAMS / "acctl"), "settings": {"contrast": "-3"}, **arguments}
        modes = {f"_ansible_{mode}": True for mode in modes}
        run = self.run_program("/usr/bin/python3", SOURCES / "integrations/ansible/plugins/modules/settings.py",
                               text=json.dumps({"ANSIBLE_MODULE_ARGS": {**values, **modes}}))
        return json.loads(run.stdout)

    def test_the_ansible_module_changes_once(self):
        checked = self.module("check_mode", "diff")
        self.assertTrue(checked["changed"])
        self.assertIn("Office: main.contrast=-3\n", checked["diff"]["after"])
        self.assertTrue(self.module()["changed"])
        self.assertFalse(self.module()["changed"])
        self.assertFalse(self.module("check_mode")["changed"])
        self.assertFalse(self.module(settings={"contrast": 5}, where="power=standby")["changed"])
        simulated = self.module("diff", projectors="Office", profiles="rooms.json")
        self.assertEqual(simulated["warnings"], ["only simulated: Office"])
        self.assertIn("Office (simulated): main.contrast=-3", simulated["diff"]["after"])
        lacked = {"settings": {"active-iris": "theater"}}
        runs = [self.module("check_mode", **lacked), self.module(**lacked), self.module(**lacked)]
        self.assertEqual([(run["failed"], run["changed"]) for run in runs], [(True, True), (True, True), (True, False)])
        self.assertIn("Office: active-iris: this model has no such setting", runs[1]["msg"])
        failed = self.module(settings={"contrast": 99})
        self.assertTrue(failed["failed"])
        self.assertIn("'99' is not one of", failed["msg"])

    def test_the_ansible_module_waits_for_a_projector_that_somebody_else_has_turned_on(self):
        self.start_simulator("--fleet", "1", "--link", "pjlink", "--warm-up", "2", "--cool-down", "0")
        self.environment.update(ACCTL_PROFILES="real.json", ACCTL_INTERVAL="0.1")
        self.acctl("set", "*", "power=standby", "--wait", "60s")
        self.acctl("set", "*", "power=on")
        self.assertIn("not possible", self.module(settings={"power": "on"}, wait="nonsense").get("msg", ""))
        run = self.module(settings={"power": "on", "input": "rgb2"}, wait="60s")
        self.assertEqual([change["after"]["code"] for change in run["projectors"][0]["changes"]], ["on", "rgb2-32"])
        self.acctl("set", "*", "power=standby", "--wait", "60s")
        self.acctl("set", "*", "power=on")
        self.assertFalse(self.module(settings={"power": "on"}, wait="60s")["changed"])
        self.check(["get", "*", "power", "-o", "value"], 0, "^On$")

    def test_the_module_has_only_the_fault_that_is_ignored(self):
        # ansible-test would download what it needs for this into an environment of its own.
        tools = Path(importlib.util.find_spec("ansible_test").origin).parent
        validator = tools / "_util/controller/sanity/validate-modules"
        collection = self.folder / "ansible_collections/advancedcontrol/projectors"
        shutil.copytree(SOURCES / "integrations/ansible", collection)
        module, fault = (collection / "tests/sanity/ignore-2.14.txt").read_text().split()
        run = subprocess.run(
            ["/usr/bin/python3", validator / "validate.py", "--arg-spec", "--collection-version", "1.0.0",
             "--collection", collection.relative_to(self.folder), module], cwd=collection, text=True,
            capture_output=True, check=False,
            env={**self.environment, "LC_ALL": "C.UTF-8", "PYTHONPATH": str(validator),
                 "ANSIBLE_COLLECTIONS_PATH": str(self.folder)})
        self.assertRegex(run.stdout, f"^{module}:0:0: E{fault.split(':')[1]} .*\n$", run.stderr)
        self.assertEqual(run.stderr, "")

    def test_a_playbook_changes_nothing_the_second_time(self):
        collection = SOURCES / "integrations/ansible"
        shutil.copytree(collection, self.folder / "ansible_collections/advancedcontrol/projectors")
        (self.folder / "play.yml").write_text(re.search("```yaml\n(.*?)```", (collection / "README.md").read_text(),
                                                        re.DOTALL)[1])
        for changed in (1, 0):
            run = self.run_program("ansible-playbook", "-i", "localhost,", "-c", "local", "play.yml",
                                   LC_ALL="C.UTF-8", ANSIBLE_COLLECTIONS_PATH=str(self.folder))
            self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
            self.assertRegex(run.stdout, f"ok=1 +changed={changed} ")
