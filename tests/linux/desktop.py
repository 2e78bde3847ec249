"""larkfen on a desktop: the question, the size of the window, full screen and back, short taps of
Escape, the words on standard error, the sound sample by sample, and that waiting costs nothing."""
import ctypes
import os
import pathlib
import re
import shutil
import signal
import subprocess
import time

import numpy
from PIL import Image

from programs import (CHOSEN, ROOT, SLOW, Program, box_is_drawn, check, is_box, is_main,
                      press, words)
import x11

WAIT = 0.3  # seconds between steps of a hand


def keep_picture(keep, name, shot):
    if keep and shot is not None:
        Image.fromarray(shot).save(keep / f"{name}.png")


def children(pid):
    """Processes that a process has started and that still run."""
    found = []
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        found += (task / "children").read_text().split()
    return found


# --- the question

def question_tests(folder, screen, keep):
    larkfen = Program(folder, screen, "-ns")
    window, facts = screen.wait_for_window(is_box)
    shot = box_is_drawn(screen)
    keep_picture(keep, "question", shot)
    check("the question stands in the middle of the screen", shot is not None and facts is not None
          and abs(facts[1] * 2 + facts[3] - screen.width) < 3, facts)
    check("nobody else shows it", not children(larkfen.process.pid))
    press(screen, window, "Escape")
    screen.wait_for_window(is_main(640, 480))
    larkfen.process.terminate()
    larkfen.end()

    whole = is_main(screen.width, screen.height)
    for keys, wanted, what in ((["Return"], whole, "full screen"), (["y"], whole, "full screen"),
                               (["KP_Enter"], whole, "full screen"),
                               (["n"], is_main(640, 480), "a window"),
                               (["Right", "Return"], is_main(640, 480), "a window"),
                               (["Tab", "space"], is_main(640, 480), "a window"),
                               (["Right", "Left", "Return"], whole, "full screen")):
        larkfen = Program(folder, screen, "-ns")
        window, _ = screen.wait_for_window(is_box)
        box_is_drawn(screen)
        for key in keys:
            press(screen, window, key)
        check(f"{' '.join(keys)} means {what}", screen.wait_for_window(wanted)[0] is not None)
        larkfen.process.terminate()
        larkfen.end()

    for button, wanted in (("Yes", whole), ("No", is_main(640, 480))):
        larkfen = Program(folder, screen, "-ns")
        _, facts = screen.wait_for_window(is_box)
        shot = box_is_drawn(screen)
        rows, columns = (shot == numpy.array(CHOSEN, numpy.uint8)).all(2).nonzero()
        x, y = int(columns.mean()), int(rows.mean())  # of Yes
        screen.click(x if button == "Yes" else 2 * facts[1] + facts[3] - x, y)
        check(f"a click on {button}", screen.wait_for_window(wanted)[0] is not None, (x, y))
        larkfen.process.terminate()
        larkfen.end()


def question_end_tests(folder, screen):
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        larkfen = Program(folder, screen, "-ns")
        screen.wait_for_window(is_box)
        box_is_drawn(screen)
        larkfen.process.send_signal(number)
        code, out, _ = larkfen.end()
        check(f"{number.name} at the question ends the program", (code, out) == (0, ""), code)
        check("and leaves no window", screen.wait_for_none() is not None)
    larkfen = Program(folder, screen, "-ns")
    window, _ = screen.wait_for_window(is_box)
    box_is_drawn(screen)
    screen.press_close_button(window)
    check("closing the question means a window",
          screen.wait_for_window(is_main(640, 480))[0] is not None)
    larkfen.process.terminate()
    larkfen.end()


# --- the window

def placed(shot, factor, frames, digest):
    """Number of the frame that is shown at a factor in the middle of black; None: it is not so."""
    height, width = shot.shape[:2]
    left, top = (width - 640 * factor) // 2, (height - 480 * factor) // 2
    inner = shot[top:top + 480 * factor, left:left + 640 * factor]
    outer = shot.copy()
    outer[top:top + 480 * factor, left:left + 640 * factor] = 0
    small = inner[::factor, ::factor]
    sharp = (numpy.repeat(numpy.repeat(small, factor, 0), factor, 1) == inner).all()
    return frames.get(digest(small)) if sharp and small.any() and not outer.any() else None


def wait_for_picture(screen, facts, factor, frames, digest):
    """Waits until the window shows a frame of the recorder in that way; (frame, its picture)."""
    _, x, y, w, h = facts
    end = time.monotonic() + SLOW
    number = shot = None
    while not number and time.monotonic() < end:
        shot = screen.picture()[y:y + h, x:x + w]
        number = placed(shot, factor, frames, digest)
    return number, shot


def size_tests(full, frames, digest, keep):
    screen = x11.Screen("1920x1080x24")
    try:
        larkfen = Program(full, screen, "-w", "-ns")
        window, facts = screen.wait_for_window(is_main(1280, 960))
        check("the window opens at the factor that the desktop has room for",
              facts is not None and facts[1:] == (320, 60, 1280, 960), facts)
        number, shot = wait_for_picture(screen, facts, 2, frames, digest)
        keep_picture(keep, "window-1280x960", shot)
        check("its picture is one of the recorder's, twice as large", number, number)
        tell = subprocess.run(["xprop", "-id", str(window), "WM_CLASS", "WM_NORMAL_HINTS",
                               "_NET_WM_ICON"], env={**os.environ, "DISPLAY": screen.name},
                              stdout=subprocess.PIPE, check=True).stdout.decode()
        check("it has the application's name and an icon",
              'WM_CLASS(STRING) = "larkfen", "larkfen"' in tell and "Icon (64 x 64)" in tell)
        check("it may have any size", "maximum size" not in tell, tell[:200])
        for width, height, factor in ((1500, 1000, 2), (700, 1000, 1), (1279, 959, 1)):
            screen.x.XResizeWindow(ctypes.c_void_p(screen.display), ctypes.c_ulong(window),
                                   width, height)
            _, facts = screen.wait_for_window(is_main(width, height))
            number, shot = wait_for_picture(screen, facts, factor, frames, digest)
            keep_picture(keep, f"window-{width}x{height}", shot)
            check(f"at {width} by {height} the picture has the factor {factor}, black around it",
                  number, number)
        press(screen, window, "Escape")
        check("and Escape ends it", larkfen.end()[0] == 0)
    finally:
        screen.close()


def toggle_tests(full, frames, digest, keep, manager):
    """Alt-Enter, under a window manager or without one."""
    screen = x11.Screen("1920x1080x24")
    running = None
    name = manager or "no window manager"
    try:
        if manager:
            running = subprocess.Popen([manager], env={**os.environ, "DISPLAY": screen.name},
                                       stderr=subprocess.DEVNULL)
            time.sleep(1)
        larkfen = Program(full, screen, "-ns")
        box_is_drawn(screen)
        screen.focus_on(is_box) if not manager else None
        screen.keys("Return")
        for turn, factor in enumerate((2, 2, 2, 2)):
            number = None
            end = time.monotonic() + SLOW
            while not number and time.monotonic() < end:
                shot = screen.picture()
                window = shot[60:60 + 960, 320:320 + 1280]
                if turn % 2 == 0:
                    number = placed(shot, factor, frames, digest)
                elif not manager:
                    number = placed(window, factor, frames, digest)
                else:  # a title bar stands above it
                    number = framed(shot, frames, digest)
            keep_picture(keep, f"toggle-{manager or 'bare'}-{turn}", shot)
            check(f"{name}: {'window' if turn % 2 else 'full screen'}, turn {turn}", number, number)
            if not manager:
                screen.focus_on(lambda title, x, y, w, h: w >= 1280)
            screen.keys("Alt_L", "Return", seconds=0.05)
        larkfen.process.terminate()
        check(f"{name}: it ends", larkfen.end()[0] == 0)
    finally:
        if running:
            running.terminate()
            running.wait()
        screen.close()


def framed(shot, frames, digest):
    """Number of the frame that stands at the factor 2 somewhere near the middle of the screen."""
    for top in range(50, 110):
        for left in range(316, 325):
            small = shot[top:top + 960:2, left:left + 1280:2]
            if small.any() and digest(small) in frames:
                return frames[digest(small)]
    return None


# --- Escape

def tap_tests(folder, full, screen):
    """Taps that are over before anybody can ask for the key, while another window has the focus."""
    lost = 0
    for _ in range(12):
        larkfen = Program(folder, screen, "-w", "-ns")
        screen.wait_for_window(is_main(640, 480))
        screen.focus(None)
        time.sleep(WAIT)
        screen.keys("Escape")
        lost += larkfen.end(10)[0] != 0
    check("of 12 short taps without the focus none is lost", lost == 0, f"{lost} lost")
    lost = 0
    for _ in range(4):
        larkfen = Program(full, screen, "-w", "-ns")
        screen.wait_for_window(is_main(640, 480))
        screen.keys("Escape")  # it loads for a while yet
        lost += larkfen.end(20)[0] != 0
    check("of 4 short taps while it loads none is lost", lost == 0, f"{lost} lost")


# --- words

def stub_library(folder, names):
    """An SDL2 that has these functions, and all of them fail."""
    lines = ["char words[] = \"broken\", driver[] = \"x11\";"]
    for name in names:
        text = {"GetError": "return words;", "GetCurrentVideoDriver": "return driver;"}
        kind = "const char *" if name in text else "long "
        lines.append(f"{kind}SDL_{name}(void) {{ {text.get(name, 'return 0;')} }}")
    source = folder / "stub.c"
    source.write_text("\n".join(lines) + "\n")
    subprocess.run(["gcc", "-shared", "-fPIC", "-w", "-o", folder / "libSDL2-2.0.so.0", source],
                   check=True)


def word_tests(build, folder, full, screen, work):
    for argument, said in (("--version", r"larkfen \d+\.\d+\.\d+\n"),
                           ("--help", r"Usage: larkfen (.|\n)*Exit code: (.|\n)*")):
        code, out, err = Program(folder, None, "-w", argument).end()
        check(f"{argument} answers", code == 0 and not err and re.fullmatch(said, out), out[:80])

    larkfen = Program(full, screen, "-w", "-ns")
    screen.wait_for_window(is_main(640, 480))
    time.sleep(1)
    larkfen.process.terminate()
    code, _, err = larkfen.end()
    check("where all is well nothing is said", (code, err) == (0, ""), err)

    shutil.copytree(full, work / "lacking", symlinks=True)
    for name in ("3d/isle-00.cob", "texture/gate.bmp"):
        (work / "lacking/data" / name).unlink()
    larkfen = Program(work / "lacking", screen, "-w", "-ns")
    screen.wait_for_window(is_main(640, 480))
    time.sleep(2)
    larkfen.process.terminate()
    _, _, err = larkfen.end()
    lacking = {"3d/isle-00.cob", "texture/gate.bmp"}
    check("files that are missing are named, and no others", err and all(
        f"lacking/data/{name} is missing or cannot be read" in err for name in lacking)
        and {line.split("/data/")[1].split(" ")[0] for line in words(err)} == lacking, err)

    lone = work / "lone"
    lone.mkdir()
    shutil.copy(build / "larkfen", lone)
    larkfen = Program(lone, screen, "-w", "-ns")
    screen.wait_for_window(is_main(640, 480))
    larkfen.process.terminate()
    _, _, err = larkfen.end()
    check("a missing data folder is told in one line",
          len(err.splitlines()) == 1 and f"the data folder {lone}/data is missing" in err, err)

    calls = (ROOT / "src/platform/sdl2/sdl2_calls.h").read_text()
    names = re.findall(r"CALL\((\w+)\)", calls.split("struct SdlCalls")[0].split("(CALL)")[1])
    stub = work / "stub"
    stub.mkdir()
    stub_library(stub, names)
    code, _, err = Program(folder, screen, "-ns", LD_LIBRARY_PATH=str(stub)).end()
    check("a question that cannot be shown is told", code == 0 and
          'the question "Full screen?" can not be shown (broken); the answer is No' in err, err)
    stub_library(stub, names[:-1])
    code, _, err = Program(folder, screen, "-ns", LD_LIBRARY_PATH=str(stub)).end()
    check("an SDL2 that is too old is told in one line", code == 1
          and len(err.splitlines()) == 1 and f"it has no SDL_{names[-1]}" in err, err)


# --- sound and rest

def decoded(path, seconds):
    """What another decoder makes of a file, in 44100 Hz, two channels."""
    raw = subprocess.run(["ffmpeg", "-v", "error", "-t", str(seconds), "-i", path, "-f", "s16le",
                          "-ac", "2", "-ar", "44100", "-"], stdout=subprocess.PIPE, check=True)
    return numpy.frombuffer(raw.stdout, numpy.int16).reshape(-1, 2).astype(numpy.int32)


def sound_sample_tests(full, screen, work, play):
    """The soundtrack as it leaves for the device: from its first sample, none changed."""
    sound = full / "data/sfx/soundtrack.mp3"
    sound.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(ROOT / "data/sfx/soundtrack.mp3", sound)
    heard = play(full, screen, work, 6).reshape(-1, 2).astype(numpy.int32)
    wanted = decoded(sound, 4)
    loud = numpy.abs(wanted).max(1) > 8
    start = int(numpy.argmax(loud))
    first = int(numpy.argmax(numpy.abs(heard).max(1) > 8))
    # (One step of rounding may move where it begins to be heard.)
    best = min((int(numpy.abs(heard[at:at + 100000] - wanted[start:start + 100000]).max()), at)
               for at in range(max(first - 64, 0), first + 64))
    check("the soundtrack sounds as another decoder decodes it, sample by sample", best[0] <= 2,
          f"{best[0]} apart at most")
    sound.unlink()

    for rate, channels in ((22050, 1), (48000, 2)):
        subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i",
                        f"sine=frequency=440:sample_rate={rate}:duration=1", "-ac", str(channels),
                        "-filter:a", "volume=8", str(sound)], check=True)
        heard = play(full, screen, work, 3).reshape(-1, 2).astype(numpy.int32)
        at = (numpy.abs(heard).max(1) > 1000).nonzero()[0]
        tone = heard[at[0]:at[-1], 0] if len(at) else heard[:0, 0]
        turns = int(((tone[:-1] < 0) & (tone[1:] >= 0)).sum())
        check(f"{rate} Hz on {channels} channel(s) sounds at its pitch and for its time",
              0.95 < len(tone) / 44100 < 1.05 and abs(turns - 440) < 12, (len(tone), turns))
    sound.unlink()


COUNT_SLEEPS = """
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>
static int sleeps;
__attribute__((destructor)) static void tell(void) {
    FILE *file = fopen(getenv("COUNT_OF_SLEEPS"), "w");
    fprintf(file, "%d", sleeps);
    fclose(file);
}
int nanosleep(const struct timespec *wanted, struct timespec *left) {
    int (*real)(const struct timespec *, struct timespec *) = dlsym(RTLD_NEXT, "nanosleep");
    if (wanted->tv_sec == 0 && wanted->tv_nsec >= 1000000 && wanted->tv_nsec <= 23000000 && ++sleeps == 21)
        tell(); /* enough */
    return real(wanted, left);
}
"""


def nap_tests(folder, screen, work):
    """The wait for the next frame gives the processor away, for less than a frame at a time."""
    source, library, count = (work / f"sleeps.{end}" for end in ("c", "so", "txt"))
    source.write_text(COUNT_SLEEPS)
    subprocess.run(["gcc", "-shared", "-fPIC", "-o", library, source], check=True)
    larkfen = Program(folder, screen, "-w", "-ns", "-resolution=320x240", LD_PRELOAD=str(library),
                      COUNT_OF_SLEEPS=str(count))
    screen.wait_for_window(lambda title, x, y, w, h: w == h * 4 // 3 and w >= 320)
    # (On a busy machine most frames are late, and nothing is left to wait for.)
    end = time.monotonic() + SLOW
    while not count.exists() and time.monotonic() < end:
        time.sleep(0.1)
    larkfen.process.terminate()
    larkfen.end()
    check("it sleeps before the next frame", int(count.read_text()) > 20, count.read_text())


def run_all(build, bare, full, frames, digest, play, work, keep):
    """Everything of this file."""
    screen = x11.Screen("1280x1024x24")
    try:
        question_tests(bare, screen, keep)
        question_end_tests(bare, screen)
        tap_tests(bare, full, screen)
        word_tests(build, bare, full, screen, work)
        sound_sample_tests(full, screen, work, play)
        nap_tests(bare, screen, work)
    finally:
        screen.close()
    size_tests(full, frames, digest, keep)
    for manager in (None, "openbox"):
        toggle_tests(full, frames, digest, keep, manager)
