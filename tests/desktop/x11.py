"""A private X server, and the little of X that tests of windows need: keys, the mouse, the close
button, the list of windows, screenshots. Speaks to libX11 and libXtst directly: no helper program has
to start, and a window that vanishes while it is looked at ends nobody."""
import collections
import ctypes
import ctypes.util
import os
import shutil
import subprocess
import time

import numpy

SLOW = 90  # seconds that anything may take on a busy machine

# Xlib calls that return or take more than an int: (result, arguments).
LONG, POINTER = ctypes.c_ulong, ctypes.c_void_p
PROTOTYPES = {
    "XOpenDisplay": (POINTER, [ctypes.c_char_p]), "XCloseDisplay": (ctypes.c_int, [POINTER]),
    "XDefaultRootWindow": (LONG, [POINTER]), "XSync": (ctypes.c_int, [POINTER, ctypes.c_int]),
    "XInternAtom": (LONG, [POINTER, ctypes.c_char_p, ctypes.c_int]),
    "XStringToKeysym": (LONG, [ctypes.c_char_p]),
    "XKeysymToKeycode": (ctypes.c_ubyte, [POINTER, LONG]),
    "XSetInputFocus": (ctypes.c_int, [POINTER, LONG, ctypes.c_int, LONG]),
    "XGetInputFocus": (ctypes.c_int, [POINTER, POINTER, POINTER]),
    "XResizeWindow": (ctypes.c_int, [POINTER, LONG, ctypes.c_uint, ctypes.c_uint]),
    "XSendEvent": (ctypes.c_int, [POINTER, LONG, ctypes.c_int, ctypes.c_long, POINTER]),
    "XQueryTree": (ctypes.c_int, [POINTER, LONG, POINTER, POINTER, POINTER, POINTER]),
    "XGetWindowAttributes": (ctypes.c_int, [POINTER, LONG, POINTER]),
    "XGetWMName": (ctypes.c_int, [POINTER, LONG, POINTER]), "XFree": (ctypes.c_int, [POINTER]),
    "XGetImage": (POINTER, [POINTER, LONG, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                            ctypes.c_uint, LONG, ctypes.c_int]),
    "XDestroyImage": (ctypes.c_int, [POINTER]), "XSetErrorHandler": (POINTER, [POINTER]),
}
XTEST_PROTOTYPES = {
    "XTestFakeKeyEvent": (ctypes.c_int, [POINTER, ctypes.c_uint, ctypes.c_int, LONG]),
    "XTestFakeButtonEvent": (ctypes.c_int, [POINTER, ctypes.c_uint, ctypes.c_int, LONG]),
    "XTestFakeMotionEvent": (ctypes.c_int, [POINTER, ctypes.c_int, ctypes.c_int, ctypes.c_int,
                                            LONG]),
}
ON_ERROR = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
errors = collections.Counter()  # by display: requests that the server refused


class FatalSetup(Exception):
    """The machine lacks something the tests need."""


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
    _fields_ = [("value", ctypes.c_void_p), ("encoding", ctypes.c_ulong),
                ("format", ctypes.c_int), ("items", ctypes.c_ulong)]


class Image(ctypes.Structure):
    """XImage as far as it is read."""
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int),
                ("bitmap_unit", ctypes.c_int), ("bitmap_bit_order", ctypes.c_int),
                ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int), ("bits_per_pixel", ctypes.c_int)]


@ON_ERROR
def note_error(display, _event):
    """Windows vanish while they are asked about; that is no reason to end."""
    errors[display] += 1
    return 0


def library(name, prototypes):
    """A library of the X client with the prototypes of its calls."""
    found = ctypes.util.find_library(name)
    if not found:
        raise FatalSetup(f"lib{name} is not installed")
    loaded = ctypes.CDLL(found)
    for call, (result, arguments) in prototypes.items():
        getattr(loaded, call).restype = result
        getattr(loaded, call).argtypes = arguments
    return loaded


def start_server(size):
    """An X server of its own: (process, name of its display)."""
    if not shutil.which("Xvfb"):
        raise FatalSetup("Xvfb is not installed")
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp", "-noreset"],
        pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write)
    with os.fdopen(read) as pipe:
        number = pipe.readline().strip()
    if not number:
        raise FatalSetup("Xvfb did not start")
    return server, ":" + number


class Screen:
    """One X server of its own with a connection to it. Each is for one thread."""

    def __init__(self, size):
        self.x = library("X11", PROTOTYPES)
        self.xtst = library("Xtst", XTEST_PROTOTYPES)
        self.x.XInitThreads()
        self.x.XSetErrorHandler(note_error)
        self.server, self.name = start_server(size)
        self.width, self.height = map(int, size.split("x")[:2])
        self.display = self.x.XOpenDisplay(self.name.encode())
        self.root = self.x.XDefaultRootWindow(self.display)

    def disconnect(self):
        """Without a connection of ours the server can be ended and the tests go on."""
        if self.display:
            self.x.XCloseDisplay(self.display)
            self.display = None

    def close(self):
        """Ends the server."""
        self.disconnect()
        self.server.terminate()
        self.server.wait()

    # --- keys and the mouse

    def key(self, name, down):
        """Presses a key or lets it go: its name as in keysymdef.h (Escape, Alt_L, y)."""
        code = self.x.XKeysymToKeycode(self.display, self.x.XStringToKeysym(name.encode()))
        self.xtst.XTestFakeKeyEvent(self.display, code, int(down), 0)
        self.x.XSync(self.display, 0)

    def keys(self, *names, seconds=0.0):
        """Holds keys down together for a moment and lets them go in the opposite order."""
        for name in names:
            self.key(name, True)
        time.sleep(seconds)
        for name in reversed(names):
            self.key(name, False)

    def move(self, x, y):
        """Moves the mouse."""
        self.xtst.XTestFakeMotionEvent(self.display, -1, x, y, 0)
        self.x.XSync(self.display, 0)

    def drag(self, x, y, to_x, to_y):
        """Presses the left button at a place and lets it go at another, with a stop between."""
        self.move(x, y)
        self.xtst.XTestFakeButtonEvent(self.display, 1, 1, 0)
        for part in (1, 2):
            self.move(x + (to_x - x) * part // 2, y + (to_y - y) * part // 2)
            time.sleep(0.1)
        self.xtst.XTestFakeButtonEvent(self.display, 1, 0, 0)
        self.x.XSync(self.display, 0)

    def resize(self, window, width, height):
        """What a window manager does when a border is dragged."""
        self.x.XResizeWindow(self.display, window, width, height)
        self.x.XSync(self.display, 0)

    def click(self, x, y):
        """Clicks the left button."""
        self.move(x, y)
        time.sleep(0.3)
        for down in (1, 0):
            self.xtst.XTestFakeButtonEvent(self.display, 1, down, 0)
            self.x.XSync(self.display, 0)

    def focus(self, window):
        """What a window manager does: gives a window the keys (None: nobody gets them); whether it
        has them."""
        wanted, now, revert = window or 0, ctypes.c_ulong(), ctypes.c_int()
        self.x.XSetInputFocus(self.display, wanted, 1, 0)
        self.x.XGetInputFocus(self.display, ctypes.byref(now), ctypes.byref(revert))
        return now.value == wanted

    def focus_on(self, wanted, seconds=SLOW):
        """Gives the keys to the topmost window for which wanted(title, x, y, width, height) holds;
        looks again while there is none, or while it vanishes. Whether one has them."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            found = [window for window, facts in self.windows().items() if wanted(*facts)]
            if found and self.focus(found[-1]):
                return True
            time.sleep(0.05)
        return False

    def press_close_button(self, window):
        """What a window manager sends."""
        event = ClientMessage(33, 0, 1, None, window, self.atom("WM_PROTOCOLS"), 32)
        event.data[0] = self.atom("WM_DELETE_WINDOW")
        self.x.XSendEvent(self.display, window, 0, 0, ctypes.byref(event))
        self.x.XSync(self.display, 0)

    def atom(self, name):
        return self.x.XInternAtom(self.display, name.encode(), 0)

    # --- what is to be seen

    def windows(self):
        """Visible windows, the topmost last: {id: (title, x, y, width, height)}."""
        root, parent, count = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_uint()
        children = ctypes.POINTER(ctypes.c_ulong)()
        if not self.x.XQueryTree(self.display, self.root, ctypes.byref(root), ctypes.byref(parent),
                                 ctypes.byref(children), ctypes.byref(count)):
            return {}
        ids = children[:count.value]
        self.x.XFree(children)
        seen = {window: self.facts(window) for window in ids}
        return {window: facts for window, facts in seen.items() if facts}

    def facts(self, window):
        """(title, x, y, width, height) of a window; None when it cannot be seen or has vanished."""
        before, attributes, title = errors[self.display], Attributes(), TextProperty()
        self.x.XGetWindowAttributes(self.display, window, ctypes.byref(attributes))
        if errors[self.display] != before or attributes.map_state != 2:
            return None
        named = self.x.XGetWMName(self.display, window, ctypes.byref(title)) and title.value
        text = ctypes.string_at(title.value).decode(errors="replace") if named else ""
        if named:
            self.x.XFree(title.value)
        if errors[self.display] != before:
            return None
        return text, attributes.x, attributes.y, attributes.width, attributes.height

    def wait_for_window(self, wanted, seconds=SLOW):
        """(window, facts) of the first window for which wanted(title, x, y, width, height) holds;
        (None, None): none came."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            for window, facts in self.windows().items():
                if wanted(*facts):
                    return window, facts
            time.sleep(0.02)
        return None, None

    def wait_for_none(self, seconds=SLOW):
        """Waits until no window can be seen; the seconds that it took, None when some stay."""
        start = time.monotonic()
        while time.monotonic() < start + seconds:
            if not self.windows():
                return time.monotonic() - start
            time.sleep(0.001)
        return None

    def picture(self):
        """The whole screen as an array of rows of red, green, blue."""
        taken = self.x.XGetImage(self.display, self.root, 0, 0, self.width, self.height,
                                 0xffffffff, 2)
        if not taken:
            raise FatalSetup("the X server gives no picture")
        image = Image.from_address(taken)
        raw = ctypes.string_at(image.data, image.bytes_per_line * image.height)
        self.x.XDestroyImage(taken)
        rows = numpy.frombuffer(raw, numpy.uint8).reshape(self.height, -1, 4)
        return numpy.ascontiguousarray(rows[:, :self.width, 2::-1])
