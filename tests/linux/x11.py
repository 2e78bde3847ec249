"""A private X server, and the little of X that the tests need: keys, the mouse, the close button,
the list of windows, screenshots. Speaks to libX11 and libXtst directly, so that times are not those
of helper programs starting."""
import ctypes
import ctypes.util
import os
import shutil
import subprocess
import time

import numpy
from PIL import Image


class FatalSetup(Exception):
    """The machine lacks something the tests need."""


def library(name):
    found = ctypes.util.find_library(name)
    if not found:
        raise FatalSetup(f"lib{name} is not installed")
    return ctypes.CDLL(found)


class ClientMessage(ctypes.Structure):
    """XClientMessageEvent, padded to the size of XEvent."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("pad", ctypes.c_long * 24)]


class Attributes(ctypes.Structure):
    """XWindowAttributes as far as it is read; the rest is padding."""
    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int),
                ("height", ctypes.c_int), ("border", ctypes.c_int), ("depth", ctypes.c_int),
                ("visual", ctypes.c_void_p), ("root", ctypes.c_ulong), ("kind", ctypes.c_int),
                ("bit_gravity", ctypes.c_int), ("win_gravity", ctypes.c_int),
                ("backing_store", ctypes.c_int), ("backing_planes", ctypes.c_ulong),
                ("backing_pixel", ctypes.c_ulong), ("save_under", ctypes.c_int),
                ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int),
                ("map_state", ctypes.c_int), ("pad", ctypes.c_long * 16)]


class TextProperty(ctypes.Structure):
    """XTextProperty."""
    _fields_ = [("value", ctypes.c_char_p), ("encoding", ctypes.c_ulong),
                ("format", ctypes.c_int), ("items", ctypes.c_ulong)]


def start_server(size):
    """An X server of its own: (process, name of its display)."""
    if not shutil.which("Xvfb"):
        raise FatalSetup("Xvfb is not installed")
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp"],
        pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write)
    number = b""
    while not number.endswith(b"\n"):
        part = os.read(read, 16)
        if not part:
            raise FatalSetup("Xvfb did not start")
        number += part
    os.close(read)
    return server, ":" + number.decode().strip()


class Screen:
    """One X server of its own with a connection to it."""

    def __init__(self, size, folder):
        self.server, self.name = start_server(size)
        self.shot_file = os.path.join(folder, "shot.xwd")
        self.folder = folder
        self.x = library("X11")
        self.xtst = library("Xtst")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XInternAtom.restype = ctypes.c_ulong
        self.x.XKeysymToKeycode.restype = ctypes.c_ubyte
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(self.name.encode()))
        # Windows vanish while they are asked about; that is no reason to end.
        self.on_error = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(
            lambda display, event: 0)
        self.x.XSetErrorHandler(self.on_error)
        self.root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))

    def close(self):
        self.x.XCloseDisplay(self.display)
        self.server.terminate()
        self.server.wait()

    def keys(self, *symbols):
        """Presses the keys together and lets them go in the opposite order."""
        codes = [self.x.XKeysymToKeycode(self.display, ctypes.c_ulong(s)) for s in symbols]
        for code in codes:
            self.xtst.XTestFakeKeyEvent(self.display, code, 1, 0)
        for code in reversed(codes):
            self.xtst.XTestFakeKeyEvent(self.display, code, 0, 0)
        self.x.XSync(self.display, 0)

    def focus(self, window):
        """What a window manager does: gives a window the keys. None: no window gets them."""
        self.x.XSetInputFocus(self.display, ctypes.c_ulong(window or 0), 1, ctypes.c_ulong(0))
        self.x.XSync(self.display, 0)

    def press_close_button(self, window):
        """What a window manager sends."""
        event = ClientMessage(33, 0, 1, None, window, self.atom("WM_PROTOCOLS"), 32)
        event.data[0] = self.atom("WM_DELETE_WINDOW")
        self.x.XSendEvent(self.display, ctypes.c_ulong(window), 0, 0, ctypes.byref(event))
        self.x.XSync(self.display, 0)

    def atom(self, name):
        return self.x.XInternAtom(self.display, name.encode(), 0)

    def windows(self):
        """Visible windows: {id: (title, x, y, width, height)}."""
        root, parent, children, count = (ctypes.c_ulong(), ctypes.c_ulong(),
                                         ctypes.POINTER(ctypes.c_ulong)(), ctypes.c_uint())
        self.x.XQueryTree(self.display, self.root, ctypes.byref(root), ctypes.byref(parent),
                          ctypes.byref(children), ctypes.byref(count))
        found = {}
        for i in range(count.value):
            window = children[i]
            attributes = Attributes()
            if not self.x.XGetWindowAttributes(self.display, ctypes.c_ulong(window),
                                               ctypes.byref(attributes)):
                continue
            if attributes.map_state != 2:
                continue
            title = TextProperty()
            self.x.XGetWMName(self.display, ctypes.c_ulong(window), ctypes.byref(title))
            found[window] = ((title.value or b"").decode(), attributes.x, attributes.y,
                             attributes.width, attributes.height)
        return found

    def wait_for_window(self, wanted, seconds=30):
        """The first window for which wanted(title, x, y, width, height) holds; None: none came."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            for window, facts in self.windows().items():
                if wanted(*facts):
                    return window, facts
            time.sleep(0.02)
        return None, None

    def picture(self):
        """The whole screen as an array of rows of red, green, blue."""
        file = os.path.join(self.folder, "shot.png")
        subprocess.run(["import", "-display", self.name, "-window", "root", "-depth", "8",
                        "PNG24:" + file], check=True, timeout=30)
        return numpy.array(Image.open(file).convert("RGB"))
