#!/usr/bin/python3
"""The dialog as an assistive technology meets it, over a real accessibility bus.

Usage, inside a session bus of its own: bus_tests.py BUS_HOST
"""

import os
import select
import subprocess
import sys
import time
import unittest

SECONDS = 20  # for what must come; nothing waits that long

HOST = sys.argv.pop(1)

reader, writer = os.pipe()
DISPLAY = subprocess.Popen(
    ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1600x1200x24"],
    pass_fds=[writer], stderr=subprocess.DEVNULL)
number = b""
while not number.endswith(b"\n"):
    number += os.read(reader, 16)
os.environ.update(DISPLAY=":" + number.decode().strip(), QT_QPA_PLATFORM="xcb",
                  QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="en_US.UTF-8")

import gi  # noqa: E402 (the bus is found by the display)
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def until(what, condition):
    deadline = time.monotonic() + SECONDS
    while not (found := condition()):
        if time.monotonic() > deadline:
            raise AssertionError("there never was " + what)
        time.sleep(0.005)
    return found


def children(node):
    return [node.get_child_at_index(i) for i in range(node.get_child_count())]


def text(node):
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))


def has(node, state):
    return node.get_state_set().contains(state)


def labels(node):
    return [relation.get_target(0).get_name() for relation in node.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]


def act(node, action):
    names = [Atspi.Action.get_action_name(node, i) for i in range(Atspi.Action.get_n_actions(node))]
    Atspi.Action.do_action(node, names.index(action))


class Dialog:
    """The dialog of one model in a process of its own."""

    def __init__(self, dialog_type, code):
        self.process = subprocess.Popen([HOST, str(dialog_type), str(code)], bufsize=0,
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        desktop = Atspi.get_desktop(0)
        program = until("a program on the bus", lambda: next(
            (child for child in children(desktop)
             if child is not None and child.get_process_id() == self.process.pid), None))
        program.set_cache_mask(Atspi.Cache.NONE)
        self.window = until("a dialog", lambda: next(iter(children(program)), None))
        self.lines = b""

    def close(self):
        self.process.stdin.close()
        return self.process.wait(SECONDS)

    def commands(self, count):
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

    def tabs(self):
        bar = next(child for child in children(self.window)
                   if child.get_role() == Atspi.Role.PAGE_TAB_LIST)
        return [child for child in children(bar) if child.get_role() == Atspi.Role.PAGE_TAB]

    def page(self, node=None):
        """The one panel that shows and bears a name."""
        for child in children(node or self.window):
            if child.get_role() in (Atspi.Role.PANEL, Atspi.Role.FILLER) and has(
                    child, Atspi.StateType.SHOWING):
                if child.get_name():
                    return child
                if found := self.page(child):
                    return found
        return None

    def show(self, tab):
        node = next(node for node in self.tabs() if node.get_name() == tab)
        if not has(node, Atspi.StateType.SELECTED):
            act(node, "Press")
        return until("the page " + tab, lambda: (page := self.page()) and page.get_name() == tab
                     and page)


# What is done on a page, and all commands that follow: a number sets a slider, a text picks an
# entry, nothing presses the control.
OPERATIONS = {
    (5, 30): [
        ("Picture", "Brightness +", None, ["Inc 0x2003", "Get 0x2003"]),
        ("Picture", "Contrast", -7, ["SetContrast(121)"]),
        ("Picture", "Active Iris", "Theater", ["Set 0x3304 (0x10)"]),
        ("Other", "Input Source", "Video", ["Set 0x2000 (0x01)", "Get 0x6000", "Get 0x2000", "Get 0x3020", "Get 0x2002",
          "Get 0x3002", "Get 0x2400", "Get 0x2401", "Get 0x30BA", "Get 0x3500"]),
    ],
    (4, 9): [
        ("Setup", "Volume +", None, ["Inc 0x2001", "Get 0x2001"]),
        ("Setup", "Electric Zoom", 90, ["Set 0x300A (0x5A)"]),
        ("Setup", "Mirror", "H Inverse", ["SetMirror(1)"]),
        ("Setup", "IR Remote Top", None, ["SetIRTop(0)"]),
    ],
    (3, 10): [], (2, 14): [], (1, 1): [],
}


class BusTest(unittest.TestCase):
    def check_page(self, page):
        captions = set()
        for node in children(page):
            if not has(node, Atspi.StateType.SHOWING):
                continue
            name, role = node.get_name(), node.get_role_name()
            with self.subTest(page=page.get_name(), role=role, name=name):
                self.assertTrue(name)
                self.assertFalse(name.endswith(":"), "a colon is read out")
                if role == "label":
                    self.assertIn(node.get_description(), {"", *captions})
                    captions.add(name)
                    continue
                self.assertIn(role, ["combo box", "slider", "push button", "check box", "text"])
                self.assertTrue(name == "Close" or
                                any(name.startswith(caption) for caption in captions))
                if role == "combo box":
                    self.check_list(node, captions)
                elif role == "slider":
                    self.assertIn(labels(node)[0], captions)
                    value = Atspi.Value.get_current_value(node)
                    self.assertLessEqual(Atspi.Value.get_minimum_value(node), value)
                    self.assertGreaterEqual(Atspi.Value.get_maximum_value(node), value)

    def check_list(self, node, captions):
        self.assertIn(labels(node)[0], captions)
        (entries,) = children(node)
        self.assertEqual(entries.get_role_name(), "list")
        chosen = [entry.get_name() for entry in children(entries)
                  if has(entry, Atspi.StateType.SELECTED)]
        self.assertEqual([text(node)] if text(node) else [], chosen)

    def operate(self, dialog, page, name, action, commands):
        node = next(node for node in children(page) if node.get_name() == name
                    and node.get_role_name() not in ("label", "text"))
        if isinstance(action, int):
            Atspi.Value.set_current_value(node, action)
        elif action:
            (entries,) = children(node)
            act(next(e for e in children(entries) if e.get_name() == action), "Press")
        else:
            act(node, "Toggle" if node.get_role_name() == "check box" else "Press")
        self.assertEqual(dialog.commands(len(commands)), commands)
        if isinstance(action, int):
            field = next(child for child in children(page) if child.get_name() == name
                         and child.get_role_name() == "text")
            self.assertEqual([Atspi.Value.get_current_value(node), text(field)],
                             [action, str(action)])
        elif action:
            self.assertEqual(text(node), action)

    def test_every_row_is_told_and_can_be_operated(self):
        for model, operations in OPERATIONS.items():
            with self.subTest(model=model):
                dialog = Dialog(*model)
                self.assertEqual(dialog.window.get_role_name(), "dialog")
                for tab in [node.get_name() for node in dialog.tabs()]:
                    page = dialog.show(tab)
                    self.check_page(page)
                    dialog.commands(0)
                    for where, name, action, commands in operations:
                        if where == tab:
                            with self.subTest(tab=tab, name=name):
                                self.operate(dialog, page, name, action, commands)
                self.assertEqual(dialog.close(), 0)


    def test_a_pop_up_is_told_and_can_be_left(self):
        dialog = Dialog(5, 44)
        page = dialog.show("Option")
        program = dialog.window.get_parent()
        act(next(n for n in children(page) if n.get_name() == "Service Service..."), "Press")
        popup = until("a pop-up", lambda: next(
            (window for window in children(program) if window != dialog.window), None))
        dialog.commands(1)
        self.check_page(popup)
        self.operate(dialog, popup, "IR Remote Front", None, ["SetIRFront(0)"])
        act(next(node for node in children(popup) if node.get_name() == "Close"), "Press")
        until("an end of the pop-up", lambda: len(children(program)) == 1)
        self.assertEqual(dialog.close(), 0)


if __name__ == "__main__":
    try:
        unittest.main()
    finally:
        DISPLAY.terminate()
        DISPLAY.wait()
