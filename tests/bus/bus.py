"""A display and an accessibility bus, and how tests meet programs on them."""

import ctypes
import os
import subprocess
import time

reader, writer = os.pipe()
DISPLAY = subprocess.Popen(
    ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1600x1200x24", "-noreset"],
    pass_fds=[writer], stderr=subprocess.DEVNULL)
os.environ.update(DISPLAY=":" + os.fdopen(reader).readline().strip(), QT_QPA_PLATFORM="xcb",
                  QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="en_US.UTF-8")

import gi  # noqa: E402 (the bus is found by the display)
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

SECONDS = 60  # for what must come; nothing waits that long


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


class Announcements:
    """Texts that have appeared as notifications, which is what screen readers read at once."""

    def __init__(self):
        self.texts = []
        self.listener = Atspi.EventListener.new(self.take)
        self.listener.register("object:state-changed:showing")

    def take(self, event, *_):
        if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
            self.texts.append(event.source.get_name())

    def next(self):
        """All since the last call, at least one."""
        until("an announcement", lambda: GLib.MainContext.default().iteration(False)
              or self.texts)
        texts, self.texts = self.texts, []
        return texts


class Keyboard:
    """Presses keys as a person does."""

    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.test = ctypes.CDLL("libXtst.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XStringToKeysym.restype = ctypes.c_ulong
        # A window that has just been closed cannot have the keyboard. By default that ends the test.
        self.ignore = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)
        self.x.XSetErrorHandler(self.ignore)
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))

    def give_to(self, window):
        """There is no window manager that would give it to a window."""
        place = Atspi.Component.get_extents(window, Atspi.CoordType.SCREEN)
        root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))
        self.x.XWarpPointer(self.display, ctypes.c_ulong(0), root, 0, 0, 0, 0,
                            place.x + place.width // 2, place.y + place.height // 2)
        found, unused = ctypes.c_ulong(), [ctypes.byref(ctypes.c_ulong()) for _ in range(6)]

        def is_active():
            self.x.XQueryPointer(self.display, root, unused[0], ctypes.byref(found), *unused[1:])
            self.x.XSetInputFocus(self.display, found, 2, ctypes.c_ulong(0))
            self.x.XSync(self.display, 0)
            return has(window, Atspi.StateType.ACTIVE)

        until("an active window", is_active)

    def press(self, keys):
        """For example "Control_L a"."""
        codes = [self.x.XKeysymToKeycode(self.display, ctypes.c_ulong(
            self.x.XStringToKeysym(key.encode()))) for key in keys.split()]
        for code in codes:
            self.test.XTestFakeKeyEvent(self.display, code, 1, ctypes.c_ulong(0))
        for code in reversed(codes):
            self.test.XTestFakeKeyEvent(self.display, code, 0, ctypes.c_ulong(0))
        self.x.XFlush(self.display)
