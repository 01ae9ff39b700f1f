# SPDX-License-Identifier: GPL-3.0-or-later
"""A virtual display with a window manager, and what a campaign needs of it to use the real program as a person does."""
import ctypes
import os
import subprocess
import sys
import time
from ctypes import POINTER, byref, c_char_p, c_int, c_long, c_uint, c_ulong, c_void_p

WIDTH, HEIGHT = 1280, 860
ANSWER_SECONDS = 60  # a busy machine may take long for one save, but not that long

NAMES_OF_MARKS = {".": "period", ",": "comma", "-": "minus"}
MODIFIERS = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L"}


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int), ("display", c_void_p), ("window", c_ulong),
                ("message_type", c_ulong), ("format", c_int), ("data", c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("type", c_int), ("client", ClientMessage), ("pad", c_long * 24)]


class Display:
    """The part of Xlib and of its test extension that is needed here."""
    CLIENT_MESSAGE = 33
    STRUCTURE_NOTIFY = 1 << 17 | 1 << 19  # of the root window and of those in it: where answers to a ping are sent

    def __init__(self, name):
        self.x, self.test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        x = self.x
        x.XOpenDisplay.restype, x.XOpenDisplay.argtypes = c_void_p, [c_char_p]
        x.XDefaultRootWindow.restype, x.XDefaultRootWindow.argtypes = c_ulong, [c_void_p]
        x.XInternAtom.restype, x.XInternAtom.argtypes = c_ulong, [c_void_p, c_char_p, c_int]
        x.XStringToKeysym.restype, x.XStringToKeysym.argtypes = c_ulong, [c_char_p]
        x.XKeysymToKeycode.argtypes = [c_void_p, c_ulong]
        x.XSync.argtypes = [c_void_p, c_int]
        x.XPending.argtypes = [c_void_p]
        x.XNextEvent.argtypes = [c_void_p, POINTER(Event)]
        x.XSelectInput.argtypes = [c_void_p, c_ulong, c_long]
        x.XSendEvent.argtypes = [c_void_p, c_ulong, c_int, c_long, POINTER(Event)]
        x.XSetSelectionOwner.argtypes = [c_void_p, c_ulong, c_ulong, c_ulong]
        x.XGetWindowProperty.argtypes = [c_void_p, c_ulong, c_ulong, c_long, c_long, c_int, c_ulong, POINTER(c_ulong), POINTER(c_int),
                                         POINTER(c_ulong), POINTER(c_ulong), POINTER(c_void_p)]
        x.XFree.argtypes = [c_void_p]
        self.ignore_errors = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)(lambda *_: 0)  # windows vanish at any moment
        x.XSetErrorHandler(self.ignore_errors)
        self.test.XTestFakeKeyEvent.argtypes = [c_void_p, c_uint, c_int, c_ulong]
        self.test.XTestFakeButtonEvent.argtypes = [c_void_p, c_uint, c_int, c_ulong]
        self.test.XTestFakeMotionEvent.argtypes = [c_void_p, c_int, c_int, c_int, c_ulong]
        self.display = x.XOpenDisplay(name.encode())
        if not self.display:
            sys.exit("cannot open the display " + name)
        self.root = x.XDefaultRootWindow(self.display)
        x.XSelectInput(self.display, self.root, self.STRUCTURE_NOTIFY)
        self.last_ping = 0

    def atom(self, name):
        return self.x.XInternAtom(self.display, name.encode(), 0)

    def sync(self):
        self.x.XSync(self.display, 0)

    def key(self, name, down):
        keysym = self.x.XStringToKeysym(NAMES_OF_MARKS.get(name, name).encode())
        self.test.XTestFakeKeyEvent(self.display, self.x.XKeysymToKeycode(self.display, keysym), down, 0)
        self.sync()

    def chord(self, shortcut):
        *modifiers, key = shortcut.split("+")
        for modifier in modifiers:
            self.key(MODIFIERS[modifier], 1)
        self.key(key, 1)
        self.key(key, 0)
        for modifier in reversed(modifiers):
            self.key(MODIFIERS[modifier], 0)

    def button(self, number, down):
        self.test.XTestFakeButtonEvent(self.display, number, down, 0)
        self.sync()

    def move(self, x, y):
        self.test.XTestFakeMotionEvent(self.display, -1, x, y, 0)
        self.sync()

    def empty_clipboard(self):
        for selection in ("CLIPBOARD", "PRIMARY"):
            self.x.XSetSelectionOwner(self.display, self.atom(selection), 0, 0)
        self.sync()

    def windows(self):
        """The windows that the window manager manages."""
        kind, form, count, rest, data = c_ulong(), c_int(), c_ulong(), c_ulong(), c_void_p()
        self.x.XGetWindowProperty(self.display, self.root, self.atom("_NET_CLIENT_LIST"), 0, 1000, 0, 0, byref(kind), byref(form),
                                  byref(count), byref(rest), byref(data))
        if not data:
            return []
        found = list(ctypes.cast(data, POINTER(c_ulong))[:count.value])
        self.x.XFree(data)
        return found

    def answers(self, program):
        """Pings a window of the program and waits for the answer, which its main thread gives."""
        end = time.monotonic() + ANSWER_SECONDS
        event = Event()
        while time.monotonic() < end and program.poll() is None:
            for window in self.windows()[:1]:
                self.last_ping += 1
                ping = Event()
                ping.client.type, ping.client.window, ping.client.format = self.CLIENT_MESSAGE, window, 32
                ping.client.message_type = self.atom("WM_PROTOCOLS")
                ping.client.data[0], ping.client.data[1], ping.client.data[2] = self.atom("_NET_WM_PING"), self.last_ping, window
                self.x.XSendEvent(self.display, window, 0, 0, byref(ping))
                self.sync()
            again = time.monotonic() + 5
            while time.monotonic() < min(again, end) and program.poll() is None:
                while self.x.XPending(self.display):
                    self.x.XNextEvent(self.display, byref(event))
                    if event.type == self.CLIENT_MESSAGE and event.client.data[0] == self.atom("_NET_WM_PING"):
                        return True
                time.sleep(0.005)
        return program.poll() is not None  # one that has ended is looked at by the caller


# No menus and keys of its own: they could end the window manager or close the program behind its back.
WINDOW_MANAGER = """<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
<focus><focusNew>yes</focusNew><focusLast>yes</focusLast></focus>
<placement><policy>Smart</policy></placement>
<keyboard></keyboard>
<mouse>
<context name="Client"><mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind></context>
<context name="Titlebar"><mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind></context>
<context name="Close"><mousebind button="Left" action="Click"><action name="Close"/></mousebind></context>
<context name="Maximize"><mousebind button="Left" action="Click"><action name="ToggleMaximize"/></mousebind></context>
</mouse>
</openbox_config>
"""


def open_display(ended, home):
    """Starts a virtual display with a window manager; returns its name."""
    reading, writing = os.pipe()
    ended.append(subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "%dx%dx24" % (WIDTH, HEIGHT), "-nolisten", "tcp"],
                                  pass_fds=[writing], stderr=subprocess.DEVNULL))
    os.close(writing)
    name = ":" + os.fdopen(reading).readline().strip()
    os.environ["DISPLAY"] = name
    (home / "openbox.xml").write_text(WINDOW_MANAGER)
    ended.append(subprocess.Popen(["openbox", "--config-file", str(home / "openbox.xml")], stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL))
    time.sleep(1)
    return name
