"""The main window of the program, operated by keyboard and by the names of its parts."""

import json
import os
import subprocess
import tempfile
import unittest

from bus import (SECONDS, Atspi, Keyboard, children, has, press, program_of, shown_in, until)
from gi.repository import GLib

PROGRAM = ""  # its path


def start(folder, *arguments):
    return subprocess.Popen([PROGRAM, *arguments],
                            env=dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder))


def window_of(program, title):
    return until(title, lambda: next((window for window in children(program)
                                      if window is not None and window.get_name() == title), None))


class Window:
    """The main window with three simulated projectors, in a process of its own."""

    NAMES = ["Aula", "Hall 1", "Hall 2"]

    def __init__(self, folder):
        profiles = {"projectors": [
            {"name": name, "model": "QD-M7450", "dialogType": 5, "modelCode": 30,
             "tags": [name.split()[0]], "connection": {"serial": {"port": number + 1}}}
            for number, name in enumerate(self.NAMES)]}
        file = os.path.join(folder, "p.json")
        with open(file, "w", encoding="utf-8") as text:
            json.dump(profiles, text)
        self.process = start(folder, "--profiles", file)
        self.program = program_of(self.process)
        self.keyboard = Keyboard()
        self.window = until("a window", lambda: next(iter(children(self.program)), None))
        self.table = until("a list", lambda: self.find(self.window, "Projectors"))
        self.groups = self.find(self.window, "Groups")
        self.keyboard.give_to(self.window)

    def close(self):
        self.keyboard.give_to(self.window)
        self.keyboard.press("Control_L q")
        return self.process.wait(SECONDS)

    def find(self, window, name, roles=()):
        return next((node for node in shown_in(window) if node.get_name() == name
                     and (not roles or node.get_role_name() in roles)), None)

    def focused(self):
        return [node.get_name() for node in shown_in(self.window)
                if has(node, Atspi.StateType.FOCUSED)]

    def go_to(self, node):
        """With the Tab key."""
        while not has(node, Atspi.StateType.FOCUSED):
            before = self.focused()
            self.keyboard.press("Tab")
            until("another focus", lambda: self.focused() not in (before, []))

    def rows(self):
        """A list of texts for each row: name, state, power and so on."""
        table = self.table.get_table_iface()
        return [[self.text_at(table, row, column)
                 for column in range(table.get_n_columns())] for row in range(table.get_n_rows())]

    @staticmethod
    def text_at(table, row, column):
        """Empty for a row that has just gone."""
        try:
            cell = table.get_accessible_at(row, column)
            return cell.get_name() if cell else ""
        except GLib.Error:
            return ""

    def names(self):
        return [row[0] for row in self.rows()]

    def dialog(self, title):
        return window_of(self.program, title)


class WindowTest(unittest.TestCase):
    def test_list_groups_and_work_on_many_by_keyboard_and_by_name(self):
        with tempfile.TemporaryDirectory() as folder:
            window = Window(folder)
            until("three that answer", lambda: all(
                row[1:3] == ["OK", "On"] for row in window.rows()))
            self.assertEqual(window.names(), Window.NAMES)
            self.assertEqual(until("the numbers of the groups", lambda: [
                node.get_name() for node in children(window.groups)]),
                ["All (3)", "Problems (0)", "Off (0)", "Not reachable (0)", "Aula (1)", "Hall (2)"])

            # The keyboard chooses the last group, and the first one again.
            window.go_to(window.groups)
            window.keyboard.press("End")
            until("the halls alone", lambda: window.names() == ["Hall 1", "Hall 2"])
            window.go_to(window.table)
            window.keyboard.press("Control_L a")
            until("two selected", lambda: window.find(window.window, "2 projectors selected"))
            press(window.find(window.window, "Switch Off", ["push button", "button"]))
            asked = window.dialog("Switch Off")
            until("the question", lambda: window.find(asked, "Switch off 2 projectors?"))
            window.keyboard.give_to(asked)
            window.keyboard.press("Return")
            until("the result", lambda: window.find(asked, "2 of 2 done"))
            done = [node.get_name() for node in shown_in(asked)]
            self.assertEqual(done.count("done"), 2)
            press(window.find(asked, "Close"))
            until("an end of the dialog", lambda: len(children(window.program)) == 1)
            window.keyboard.give_to(window.window)
            until("their state", lambda: all(row[2] in ("Cooling down", "Standby")
                                             for row in window.rows()))
            window.go_to(window.groups)
            window.keyboard.press("Home")
            until("all of them", lambda: window.names() == Window.NAMES)
            self.assertEqual(window.rows()[0][2], "On")
            self.assertEqual(window.close(), 0)

    def test_the_last_file_that_cannot_be_read_any_more_is_told(self):
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "mine.json")
            with open(file, "w", encoding="utf-8") as text:
                text.write('{"projectors":\n}')
            os.mkdir(os.path.join(folder, "advanced-control"))
            with open(os.path.join(folder, "advanced-control", "advanced-control.conf"), "w",
                      encoding="utf-8") as text:
                text.write(f"[window]\nprofiles={file}\n")
            process = start(folder)
            program = program_of(process)
            told = window_of(program, "Open Profiles")
            until("the line of the fault", lambda: any(
                node.get_name().startswith(f"{file}:2:") for node in shown_in(told)))
            press(next(node for node in shown_in(told) if node.get_name() == "OK"))
            window = until("the window alone", lambda: len(children(program)) == 1
                           and children(program)[0])
            keyboard = Keyboard()
            keyboard.give_to(window)
            keyboard.press("Control_L q")
            self.assertEqual(process.wait(SECONDS), 0)
