"""larkfen under Wayland: weston runs in a window of a private X server, so that keys can be pressed
and pictures taken."""
import os
import subprocess
import time

from desktop import keep_picture
from programs import SLOW, Program, box_is_drawn, check
import x11


class Weston:
    """A Wayland desktop of 1280 x 900 in the top left corner of a screen."""

    def __init__(self, screen, work):
        self.folder = work / "wayland"
        self.folder.mkdir(mode=0o700, exist_ok=True)
        env = {**os.environ, "DISPLAY": screen.name, "XDG_RUNTIME_DIR": str(self.folder)}
        self.process = subprocess.Popen(
            ["weston", "--backend=x11-backend.so", "--width=1280", "--height=900", "--use-pixman",
             "--socket=larkfen-test", "--idle-time=0", "--no-config"],
            env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.environment = {"XDG_RUNTIME_DIR": str(self.folder), "SDL_VIDEODRIVER": "wayland",
                            "WAYLAND_DISPLAY": "larkfen-test"}
        end = time.monotonic() + SLOW
        while not (self.folder / "larkfen-test").exists() and time.monotonic() < end:
            time.sleep(0.05)
        screen.focus_on(lambda title, x, y, w, h: (w, h) == (1280, 900))
        time.sleep(1)

    def close(self):
        self.process.terminate()
        self.process.wait()


def empty_desktop(screen, seconds=SLOW):
    """The picture of the desktop once it has faded in and stands still."""
    end = time.monotonic() + seconds
    before = screen.picture()
    while time.monotonic() < end:
        time.sleep(1)
        now = screen.picture()
        if now[100:800, :1280].mean() > 60 and (now[100:] == before[100:]).all():
            return now
        before = now
    return before


def window_picture(shot, empty):
    """What covers a rectangle of the empty desktop; None where there is no such thing."""
    differs = (shot != empty).any(2)
    rows = (differs.sum(1) > 400).nonzero()[0]
    columns = (differs.sum(0) > 300).nonzero()[0]
    if not len(rows) or not len(columns):
        return None
    return shot[rows[0]:rows[-1] + 1, columns[0]:columns[-1] + 1]


def wait_for_frame(screen, part_of, frames, digest):
    """Waits until a part of the screen is a frame of the recorder; (its number, the screen)."""
    end = time.monotonic() + SLOW
    number = shot = None
    while not number and time.monotonic() < end:
        shot = screen.picture()
        part = part_of(shot)
        if part is not None and part.shape == (480, 640, 3) and part.any():
            number = frames.get(digest(part))
    return number, shot


def full_screen(shot):
    """The picture in the middle of a desktop that is black else."""
    desktop = shot[:900, :1280].copy()
    part = desktop[210:690, 320:960].copy()
    desktop[210:690, 320:960] = 0
    return None if desktop.any() else part


def play_tests(full, screen, weston, frames, digest, keep):
    empty = empty_desktop(screen)
    larkfen = Program(full, None, "-ns", **weston.environment)
    shot = box_is_drawn(screen)
    keep_picture(keep, "wayland-question", shot)
    check("Wayland: the question is asked", shot is not None)
    screen.keys("Escape", seconds=0.05)
    number, shot = wait_for_frame(screen, lambda s: window_picture(s, empty), frames, digest)
    keep_picture(keep, "wayland-window", shot)
    check("Wayland: Escape means a window, and its picture is exact", number, number)
    for turn in ("full screen", "a window again"):
        screen.keys("Alt_L", "Return", seconds=0.05)
        part_of = full_screen if turn == "full screen" else lambda s: window_picture(s, empty)
        number, shot = wait_for_frame(screen, part_of, frames, digest)
        keep_picture(keep, f"wayland-{turn.replace(' ', '-')}", shot)
        check(f"Wayland: Alt-Enter makes it {turn}", number, number)
    screen.keys("Escape")
    code, _, err = larkfen.end()
    check("Wayland: Escape ends it with 0, and nothing was said", (code, err) == (0, ""),
          (code, err))

    larkfen = Program(full, None, "-ns", **weston.environment)
    box_is_drawn(screen)
    screen.keys("Return", seconds=0.05)
    number, _ = wait_for_frame(screen, full_screen, frames, digest)
    check("Wayland: Return means full screen", number, number)
    larkfen.process.terminate()
    check("Wayland: SIGTERM ends it with 0", larkfen.end()[0] == 0)

    larkfen = Program(full, None, "-ns", **weston.environment)
    box_is_drawn(screen)
    larkfen.process.terminate()
    check("Wayland: SIGTERM at the question ends it with 0", larkfen.end()[0] == 0)


def run_all(full, frames, digest, work, keep):
    """Everything of this file."""
    screen = x11.Screen("1400x1000x24")
    weston = None
    try:
        weston = Weston(screen, work)
        play_tests(full, screen, weston, frames, digest, keep)
    finally:
        if weston:
            weston.close()
        screen.close()
