"""What the tests of the Linux programs share: counting, starting larkfen, finding its windows,
pressing keys."""
import os
import pathlib
import signal
import subprocess
import sys
import time

import numpy

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests/desktop"))

# pylint: disable=wrong-import-position
from x11 import SLOW

TITLE = "Ombrel - a fast prod from Quellant"

CHOSEN = (0xE7, 0x48, 0x3C)  # the colour of the button that Return presses


class Count:
    """How many checks went well, and how many did not."""
    passed = 0
    failed = 0


def check(name, good, told=""):
    Count.passed += bool(good)
    Count.failed += not good
    print(f"{'ok    ' if good else 'FAILED'} {name}{': ' + str(told) if told != '' else ''}",
          flush=True)


class Program:
    """larkfen started in a folder of its own, beside the data it shall find."""

    def __init__(self, folder, screen, *arguments, **environment):
        env = {**os.environ, "SDL_AUDIODRIVER": "dummy"}
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "SDL_VIDEODRIVER"):
            env.pop(name, None)
        env.update(environment)
        if screen:
            env["DISPLAY"] = screen.name
        self.process = subprocess.Popen([folder / "larkfen", *arguments], env=env, cwd="/",
                                        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, text=True,
                                        start_new_session=True)

    def end(self, seconds=SLOW):
        """Its exit code and what it wrote; kills it, and whatever it started, when it does not end
        by itself."""
        try:
            out, err = self.process.communicate(timeout=seconds)
        except subprocess.TimeoutExpired:
            os.killpg(self.process.pid, signal.SIGKILL)
            out, err = self.process.communicate()
            return "did not end", out, err
        return self.process.returncode, out, err


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
