"""What the tests of the Linux programs share: counting, starting larkfen, finding its windows,
pressing keys."""
import pathlib
import sys
import time

import numpy

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests/desktop"))

# pylint: disable=wrong-import-position,unused-import
from started import Count, Started, check
from x11 import SLOW

TITLE = "Ombrel - a fast prod from Quellant"

CHOSEN = (0xE7, 0x48, 0x3C)  # the colour of the button that Return presses


class Program(Started):
    """larkfen started in a folder of its own, beside the data it shall find."""

    def __init__(self, folder, screen, *arguments, **environment):
        super().__init__([folder / "larkfen", *arguments], "/", screen, **environment)


def is_main(width, height):
    return lambda title, x, y, w, h: title == TITLE and (w, h) == (width, height)


def is_box(title, x, y, w, h):
    return title == TITLE and h < 300 and w > 2 * h


def answer(screen, key):
    """Waits for a box and presses a key in it."""
    window, facts = screen.wait_for_window(is_box)
    if not window:
        return None
    press(screen, window, key)
    return facts


def press(screen, window, *keys):
    """Presses keys in a window, once it has had time to draw itself."""
    time.sleep(0.3)
    screen.focus(window)
    time.sleep(0.1)
    screen.keys(*keys)


def box_is_drawn(screen, seconds=SLOW):
    """Waits until a box of ours stands somewhere on the screen; the picture, None when none came."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        shot = screen.picture()
        if (shot == numpy.array(CHOSEN, numpy.uint8)).all(2).sum() > 1000:
            return shot
        time.sleep(0.05)
    return None


def words(err):
    """The lines that the program itself has written to standard error."""
    return [line for line in err.splitlines() if line.startswith("larkfen: ")]
