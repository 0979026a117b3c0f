#!/usr/bin/python3
"""Dialog and main window as an assistive technology meets them, over a real accessibility bus.

Usage, inside a session bus of its own: bus_tests.py BUS_HOST ADVANCED_CONTROL
"""

import ctypes
import json
import os
import select
import subprocess
import sys
import tempfile
import time
import unittest

reader, writer = os.pipe()
DISPLAY = subprocess.Popen(
    ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1600x1200x24", "-noreset"],
    pass_fds=[writer], stderr=subprocess.DEVNULL)
os.environ.update(DISPLAY=":" + os.fdopen(reader).readline().strip(), QT_QPA_PLATFORM="xcb",
                  QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="en_US.UTF-8")

import gi  # noqa: E402 (the bus is found by the display)
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

SECONDS = 20  # for what must come; nothing waits that long
HOST = sys.argv.pop(1)
PROGRAM = sys.argv.pop(1)


def until(what, condition):
    deadline = time.monotonic() + SECONDS
    while not (found := condition()):
        if time.monotonic() > deadline:
            raise AssertionError("there never was " + what)
        time.sleep(0.005)
    return found


def children(node):
    return [node.get_child_at_index(i) for i in range(node.get_child_count())]


def shown_in(node):
    for child in children(node):
        if has(child, Atspi.StateType.SHOWING):
            yield child
            yield from shown_in(child)


def text(node):
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))


def has(node, state):
    return node.get_state_set().contains(state)


def labels(node):
    return [relation.get_target(0).get_name() for relation in node.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]


def press(node):
    Atspi.Action.do_action(node, 0)


def program_of(process):
    """The program on the bus that a process is."""
    desktop = Atspi.get_desktop(0)
    program = until("a program on the bus", lambda: next(
        (child for child in children(desktop)
         if child is not None and child.get_process_id() == process.pid), None))
    program.set_cache_mask(Atspi.Cache.NONE)
    return program


class Keyboard:
    """Presses keys as a person does. There is no window manager, so that the test chooses the
    window that has the keyboard."""

    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.test = ctypes.CDLL("libXtst.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XStringToKeysym.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))

    def press(self, keys):
        """For example "Control_L a"."""
        codes = [self.x.XKeysymToKeycode(self.display, ctypes.c_ulong(
            self.x.XStringToKeysym(key.encode()))) for key in keys.split()]
        for code in codes:
            self.test.XTestFakeKeyEvent(self.display, code, 1, ctypes.c_ulong(0))
        for code in reversed(codes):
            self.test.XTestFakeKeyEvent(self.display, code, 0, ctypes.c_ulong(0))
        self.x.XFlush(self.display)


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
                    self.assertEqual(node.get_description(), "Range: %d to %d" % ends)
                    self.assertEqual(labels(node), [node.get_name()])

    def presented(self, node):
        role, name, description = node.get_role_name(), node.get_name(), node.get_description()
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
        self.process = subprocess.Popen([PROGRAM, "--profiles", file],
                                        env=dict(os.environ, HOME=folder, XDG_CONFIG_HOME=folder))
        self.program = program_of(self.process)
        self.keyboard = Keyboard()
        self.window = until("a window", lambda: next(iter(children(self.program)), None))
        self.table = until("a list", lambda: self.find(self.window, "Projectors"))
        self.groups = self.find(self.window, "Groups")
        self.focus(self.window)

    def close(self):
        self.focus(self.window)
        self.keyboard.press("Control_L q")
        return self.process.wait(SECONDS)

    def find(self, window, name, roles=()):
        return next((node for node in shown_in(window) if node.get_name() == name
                     and (not roles or node.get_role_name() in roles)), None)

    def focus(self, node):
        Atspi.Component.grab_focus(node)

    def rows(self):
        """A list of texts for each row: name, state, power and so on."""
        table = self.table.get_table_iface()
        return [[table.get_accessible_at(row, column).get_name()
                 for column in range(table.get_n_columns())] for row in range(table.get_n_rows())]

    def names(self):
        return [row[0] for row in self.rows()]

    def dialog(self, title):
        return until(title, lambda: next((window for window in children(self.program)
                                          if window is not None and window.get_name() == title), None))


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
            window.focus(window.groups)
            window.keyboard.press("End")
            until("the halls alone", lambda: window.names() == ["Hall 1", "Hall 2"])
            window.focus(window.table)
            window.keyboard.press("Control_L a")
            until("two selected", lambda: window.find(window.window, "2 projectors selected"))
            press(window.find(window.window, "Switch Off", ["push button", "button"]))
            asked = window.dialog("Switch Off")
            until("the question", lambda: window.find(asked, "Switch off 2 projectors?"))
            window.focus(asked)
            window.keyboard.press("Return")
            until("the result", lambda: window.find(asked, "2 of 2 done"))
            done = [node.get_name() for node in shown_in(asked)]
            self.assertEqual(done.count("done"), 2)
            press(window.find(asked, "Close"))
            until("their state", lambda: all(row[2] in ("Cooling down", "Standby")
                                             for row in window.rows()))
            window.focus(window.groups)
            window.keyboard.press("Home")
            until("all of them", lambda: window.names() == Window.NAMES)
            self.assertEqual(window.rows()[0][2], "On")
            self.assertEqual(window.close(), 0)


if __name__ == "__main__":
    try:
        unittest.main()
    finally:
        DISPLAY.terminate()
        DISPLAY.wait()
