#!/usr/bin/python3
"""Dialog and main window as an assistive technology meets them, over a real accessibility bus.

Usage, inside a session bus of its own: bus_tests.py BUS_HOST ADVANCED_CONTROL
"""

import os
import re
import select
import subprocess
import sys
import unittest

from bus import (SECONDS, DISPLAY, Announcements, Atspi, Keyboard, children, has, labels, press, program_of, shown_in, text,
                 until)
import window_tests
from window_tests import WindowTest  # noqa: F401 (unittest looks for it here)

HOST = sys.argv.pop(1)
window_tests.PROGRAM = sys.argv.pop(1)


class Dialog:
    """The dialog of one model in a process of its own."""

    def __init__(self, dialog_type, code):
        self.process = subprocess.Popen([HOST, str(dialog_type), str(code)], bufsize=0,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        program = program_of(self.process)
        self.window = until("a dialog", lambda: next(iter(children(program)), None))
        self.tabs = [node for node in shown_in(self.window)
                     if node.get_role() == Atspi.Role.PAGE_TAB]
        self.lines = b""
        # Tab, key, kind, caption, value and description of each setting.
        self.settings = [line.split("\t") for line in self.commands() if "\t" in line]

    def close(self):
        self.process.stdin.close()
        return self.process.wait(SECONDS)

    def commands(self, count=0):
        """The next commands: at least `count`, and all that have come when nothing goes on."""
        self.read(lambda: self.lines.count(b"\n") >= count)
        self.process.stdin.write(b"\n")
        self.read(lambda: self.lines.endswith(b"-\n"))
        lines = self.lines.decode().splitlines()[:-1]
        self.lines = b""
        return lines

    def refuse_reset(self, refuse):
        self.process.stdin.write(b"!" if refuse else b".")
        self.read(lambda: self.lines.endswith(b"-\n"))
        self.lines = b""

    def read(self, enough):
        while not enough():
            if not select.select([self.process.stdout], [], [], SECONDS)[0]:
                raise AssertionError("only %s came" % self.lines)
            self.lines += os.read(self.process.stdout.fileno(), 4096)

    def settings_of(self, tab):
        """Those of the page itself; its pop-ups' keys have other beginnings."""
        rows = [row for row in self.settings if row[0] == tab]
        return [row for row in rows if row[1].split(".")[0] == rows[0][1].split(".")[0]]

    def page(self):
        """The one panel that shows and bears a name."""
        return next(node for node in shown_in(self.window) if node.get_name()
                    and node.get_role() in (Atspi.Role.PANEL, Atspi.Role.FILLER))

    def show(self, tab):
        if not has(tab, Atspi.StateType.SELECTED):
            press(tab)
        until("its page", lambda: self.page().get_name() == tab.get_name())
        self.commands()
        return self.page()


# Actions on a page and the commands that must follow: a number sets a slider, a text chooses an
# entry, no value presses the control.
OPERATIONS = [
    (5, 30, "Picture", "Brightness +", None, ["Inc 0x2003", "Get 0x2003"]),
    (5, 30, "Picture", "Contrast", -7, ["SetContrast(121)"]),
    (5, 30, "Picture", "Active Iris", "Theater", ["Set 0x3304 (0x10)"]),
    (5, 30, "Other", "Input Source", "Video", ["Set 0x2000 (0x01)"] + [
        "Get 0x" + code for code in "6000 2000 3020 2002 3002 2400 2401 30BA 3500".split()]),
    (4, 9, "Setup", "Electric Zoom", 90, ["Set 0x300A (0x5A)"]),
    (4, 9, "Setup", "IR Remote Top", None, ["SetIRTop(0)"]),
    (3, 10, "Setup", "Contrast", -7, ["Set 0x2004 (0x79)"]),
    (3, 10, "Option", "IR Remote Front", None, ["SetIRFront(0)"]),
    (2, 14, "Main", "Keystone", 5, ["Set 0x2007 (0x85)"]),
    (1, 1, "Main", "Contrast +", None, ["Inc 0x2004", "Get 0x2004"]),
    (1, 1, "Option", "Menu Color", "Green", ["SetMenuColor(3)", "Get 0x3005"]),
]

def without_unit(description):
    return re.sub("\xa0min$|\xa0?%$", "", description)


# Roles of numbers, choices and states; actions are buttons.
ROLES = [["text"], ["combo box", "check box"], ["label", "combo box"]]
ACTION = "3"


class BusTest(unittest.TestCase):
    def check_page(self, page, settings):
        """Every setting is presented once, and nothing else but its controls and captions."""
        nodes = [node for node in children(page) if has(node, Atspi.StateType.SHOWING)]
        for tab, key, kind, caption, value, description in settings:
            names = [caption, caption + " V", caption + " H", "IR Remote " + caption]
            with self.subTest(key=key):
                if kind == ACTION:
                    self.assertIn(caption + " Execute", [node.get_name() for node in nodes])
                    continue
                row = next(node for node in nodes if node.get_role_name() in ROLES[int(kind)]
                           and self.presented(node) in [(name, value, description) for name in names])
                nodes.remove(row)
                if row.get_role_name() == "combo box":
                    self.assertEqual(labels(row), [row.get_name()])
                    (entries,) = children(row)
                    self.assertEqual([value], [entry.get_name() for entry in children(entries)
                                               if has(entry, Atspi.StateType.SELECTED)])
        for node in nodes:
            with self.subTest(page=page.get_name(), name=node.get_name()):
                self.assertIn(node.get_role_name(), ["label", "push button", "slider", "combo box"])
                self.assertRegex(node.get_name(), "[^:]$")
                if node.get_role_name() == "combo box":
                    self.assertIn(node.get_name(), ["Reset", "My Memory"])
                elif node.get_role_name() == "slider":
                    ends = Atspi.Value.get_minimum_value(node), Atspi.Value.get_maximum_value(node)
                    self.assertEqual(without_unit(node.get_description()), "Range: %d to %d" % ends)
                    self.assertEqual(labels(node), [node.get_name()])

    def presented(self, node):
        role, name, description = node.get_role_name(), node.get_name(), without_unit(node.get_description())
        if role == "label":  # of a state: its text is its name, described by the caption
            return description, name, ""
        if role == "check box":
            return name, "On" if has(node, Atspi.StateType.CHECKED) else "Off", description
        return name, text(node), description

    def operate(self, dialog, page, name, action, commands):
        node = next(node for node in children(page) if node.get_name() == name
                    and node.get_role_name() not in ("label", "text"))
        if isinstance(action, int):
            Atspi.Value.set_current_value(node, action)
        elif action:
            (entries,) = children(node)
            press(next(e for e in children(entries) if e.get_name() == action))
        else:
            press(node)
        self.assertEqual(dialog.commands(len(commands)), commands)
        if action is not None:
            shown = next(child for child in children(page) if child.get_name() == name
                         and child.get_role_name() in ("combo box", "text"))
            self.assertEqual(text(shown), str(action))

    def test_every_row_is_told_and_can_be_operated(self):
        for model in dict.fromkeys(operation[:2] for operation in OPERATIONS):
            with self.subTest(model=model):
                dialog = Dialog(*model)
                self.assertEqual(dialog.window.get_role_name(), "dialog")
                for tab in dialog.tabs:
                    page = dialog.show(tab)
                    self.check_page(page, dialog.settings_of(tab.get_name()))
                    for operation in OPERATIONS:
                        if operation[:3] == (*model, tab.get_name()):
                            with self.subTest(operation=operation):
                                self.operate(dialog, page, *operation[3:])
                self.assertEqual(dialog.close(), 0)

    def test_a_pop_up_is_told_and_can_be_left(self):
        dialog = Dialog(5, 44)
        page = dialog.show(next(tab for tab in dialog.tabs if tab.get_name() == "Option"))
        program = dialog.window.get_parent()
        press(next(n for n in children(page) if n.get_name() == "Service Service..."))
        popup = until("a pop-up", lambda: next(
            (window for window in children(program) if window != dialog.window), None))
        dialog.commands(1)
        self.check_page(popup, [row for row in dialog.settings if row[1].startswith("service.")])
        self.operate(dialog, popup, "IR Remote Front", None, ["SetIRFront(0)"])
        press(next(node for node in children(popup) if node.get_name() == "Close"))
        until("an end of the pop-up", lambda: len(children(program)) == 1)
        self.assertEqual(dialog.close(), 0)

    def test_the_projector_a_refusal_and_the_reset_of_a_row_are_told(self):
        announced = Announcements()
        dialog = Dialog(5, 30)
        page = dialog.show(next(tab for tab in dialog.tabs if tab.get_name() == "Picture"))
        strip = [node.get_name() for node in shown_in(dialog.window)]
        self.assertIn("Model — COM1 — answers", strip)
        self.assertIn("Read again (F5)", strip)

        # The button of a row appears when the keyboard reaches the row.
        named = lambda name: next((n for n in shown_in(page) if n.get_name() == name), None)
        self.assertIsNone(named("Reset: Brightness"))
        Keyboard().give_to(dialog.window)
        Atspi.Component.grab_focus(next(node for node in children(page)
                                        if node.get_name() == "Brightness"
                                        and node.get_role() == Atspi.Role.SLIDER))
        reset = until("the button of the row", lambda: named("Reset: Brightness"))
        press(reset)
        self.assertEqual(dialog.commands(1)[:2], ["ExecBrightnessReset()", "Get 0x2003"])
        self.assertEqual(announced.next(), ["Brightness reset"])

        dialog.refuse_reset(True)
        refusal = "Not accepted: Reset Brightness."
        for _ in range(2):
            press(reset)
            dialog.commands(1)
            self.assertEqual(announced.next(), [refusal])
        self.assertIn(refusal, [node.get_name() for node in shown_in(dialog.window)])
        told = lambda: named("Reset Execute").get_description()
        self.assertEqual(told(), refusal)
        dialog.refuse_reset(False)
        press(reset)
        dialog.commands(1)
        self.assertEqual(told(), "")
        self.assertEqual(dialog.close(), 0)


if __name__ == "__main__":
    try:
        unittest.main()
    finally:
        DISPLAY.terminate()
        DISPLAY.wait()
