#!/usr/bin/env python3
"""How long a program takes from its start to a window that can be seen.

    window_start.py RUNS "COMMAND [WORD...]"...

Starts the commands in turn on the X display in DISPLAY (a bare Xvfb will do), asks the server for its
windows every fifth of a millisecond, and says for each command the shortest time and the median, in
ms. The display must have no other window. Each run is stopped once its window stands.
"""
import ctypes
import statistics
import subprocess
import sys
import time

IS_VIEWABLE = 2
SMALLEST = 100  # pixels; the toolkit has windows of its own that are never shown
STEP = 0.0002  # s
PATIENCE = 20  # s
PAUSE = 0.3  # s, so that a run doesn't meet the end of the one before

Window = ctypes.c_ulong
Display = ctypes.c_void_p


class Attributes(ctypes.Structure):
    """XWindowAttributes."""

    _fields_ = [
        *[(name, ctypes.c_int) for name in ("x", "y", "width", "height", "border", "depth")],
        ("visual", ctypes.c_void_p), ("root", Window),
        *[(name, ctypes.c_int) for name in ("kind", "bit_gravity", "win_gravity", "backing_store")],
        ("backing_planes", ctypes.c_ulong), ("backing_pixel", ctypes.c_ulong),
        ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong),
        ("map_installed", ctypes.c_int), ("map_state", ctypes.c_int),
        *[(name, ctypes.c_long) for name in ("all_events", "your_events", "no_propagate")],
        ("override_redirect", ctypes.c_int), ("screen", ctypes.c_void_p),
    ]


class Server:
    """The X server, asked by the library that every X program has."""

    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = Display
        self.x.XDefaultRootWindow.argtypes = [Display]
        self.x.XDefaultRootWindow.restype = Window
        self.x.XQueryTree.argtypes = [
            Display, Window, ctypes.POINTER(Window), ctypes.POINTER(Window),
            ctypes.POINTER(ctypes.POINTER(Window)), ctypes.POINTER(ctypes.c_uint)]
        self.x.XGetWindowAttributes.argtypes = [Display, Window, ctypes.POINTER(Attributes)]
        self.x.XFree.argtypes = [ctypes.c_void_p]
        # A window that went away between two questions is no error here.
        self.ignore = ctypes.CFUNCTYPE(ctypes.c_int, Display, ctypes.c_void_p)(lambda *_: 0)
        self.x.XSetErrorHandler(self.ignore)
        self.display = self.x.XOpenDisplay(None)
        if not self.display:
            sys.exit("window_start.py: no display")
        self.root = self.x.XDefaultRootWindow(self.display)

    def windows(self):
        root, parent, count = Window(), Window(), ctypes.c_uint()
        children = ctypes.POINTER(Window)()
        self.x.XQueryTree(self.display, self.root, ctypes.byref(root), ctypes.byref(parent),
                          ctypes.byref(children), ctypes.byref(count))
        found = [children[i] for i in range(count.value)]
        if children:
            self.x.XFree(children)
        return found

    def shows_a_window(self):
        look = Attributes()
        return any(
            self.x.XGetWindowAttributes(self.display, window, ctypes.byref(look))
            and look.map_state == IS_VIEWABLE and look.width > SMALLEST
            for window in self.windows())

    def wait(self, shown):
        end = time.perf_counter() + PATIENCE
        while self.shows_a_window() != shown:
            if time.perf_counter() > end:
                sys.exit("window_start.py: waited %d s in vain" % PATIENCE)
            time.sleep(STEP)


def start(server, command):
    server.wait(False)
    before = time.perf_counter()
    with subprocess.Popen(command, stderr=subprocess.DEVNULL) as program:
        server.wait(True)
        took = time.perf_counter() - before
        time.sleep(PAUSE)
        program.kill()
    return took * 1000


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    commands = [command.split() for command in sys.argv[2:]]
    server = Server()
    times = [[] for _ in commands]
    for run in range(int(sys.argv[1]) + 1):
        for command, taken in zip(commands, times):
            took = start(server, command)
            if run > 0:  # the first one reads files from the disk
                taken.append(took)
    for command, taken in zip(commands, times):
        print("%6.1f %6.1f  %s" % (min(taken), statistics.median(taken), " ".join(command)))


main()
