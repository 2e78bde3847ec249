"""larkfen-player in a window: starting it, pressing its keys, and what it says of itself. The key S is
the witness: it saves the exact pixels under the number of the frame and the name of the look."""
import gzip
import pathlib
import re
import sys
import time

import numpy
from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests/desktop"))

# pylint: disable=wrong-import-position,unused-import
from started import Count, Started, check
from x11 import SLOW

TITLE = "Ombrel player"
SAVED = re.compile(r"ombrel-(\d{6})(?:-([a-z-]+))?\.png")


def stored_hashes():
    """The hash of every frame's picture."""
    with gzip.open(ROOT / "tests/scenario/frames.txt.gz", "rt") as file:
        return [line.rsplit(" ", 1)[1].strip() for line in file]


def chapters():
    """{name: first frame}, in order."""
    text = (ROOT / "src/player/chapters.h").read_text(encoding="ascii")
    return {name: int(frame) for name, frame in re.findall(r'\{"(\w+)",\s*(\d+)\}', text)}


def hash_of(pixels):
    """64-bit FNV-1a of the 5-6-5 pixels, as the stored frames have it."""
    r, g, b = (pixels[:, :, i].astype(numpy.uint16) for i in range(3))
    value = 0xcbf29ce484222325
    for byte in ((r >> 3 << 11) | (g >> 2 << 5) | b >> 3).astype("<u2").tobytes():
        value = (value ^ byte) * 0x100000001b3 & 0xFFFFFFFFFFFFFFFF
    return f"{value:016x}"


class Saved:
    """A picture that S has saved."""

    def __init__(self, path):
        found = SAVED.fullmatch(path.name)
        self.frame, self.look = int(found[1]), found[2] or "none"
        self.pixels = numpy.array(Image.open(path).convert("RGB"))


class Player(Started):
    """A program that runs in a folder of its own."""

    def __init__(self, build, work, screen, *arguments, **environment):
        self.work, self.screen, self.window = work, screen, None
        for old in work.glob("ombrel-*.png"):
            old.unlink()
        super().__init__([build / "larkfen-player", *arguments], work, screen, **environment)

    def opened(self):
        """Waits for the window and gives it the keys; its facts."""
        self.window, facts = self.screen.wait_for_window(lambda title, *_: title == TITLE)
        self.focus()
        return facts

    def focus(self):
        self.screen.focus_on(lambda title, *_: title == TITLE)

    def press(self, *names):
        """Presses keys together, in the window."""
        self.focus()
        self.screen.keys(*names)

    def save(self):
        """Presses S and waits for what it saves; None when nothing comes."""
        for old in self.work.glob("ombrel-*.png"):
            old.unlink()
        end = time.monotonic() + SLOW
        while time.monotonic() < end and self.process.poll() is None:
            self.press("s")
            again = time.monotonic() + 2.0
            while time.monotonic() < again:
                # (It stands under this name only when it is whole.)
                for path in self.work.glob("ombrel-*.png"):
                    try:
                        return Saved(path)
                    except (OSError, SyntaxError):
                        pass
                time.sleep(0.02)
        return None

    def becomes(self, wanted, seconds=SLOW):
        """Saves until wanted(saved) holds; the last one saved."""
        end = time.monotonic() + seconds
        saved = self.save()
        while saved and not wanted(saved) and time.monotonic() < end:
            time.sleep(0.1)
            saved = self.save()
        return saved

    def shows(self, wanted, seconds=SLOW):
        """Looks at the screen until wanted(picture) holds; the last picture, None when it never
        did."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            picture = self.screen.picture()
            if wanted(picture):
                return picture
            time.sleep(0.05)
        return None
