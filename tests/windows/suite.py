#!/usr/bin/python3
"""The Windows tests: the programs of a cross build under Wine, with keys, boxes and screenshots.
One line a case; the last line is `N passed, N failed`. Screenshots stay in windows-tests/screens."""
import argparse
import pathlib
import queue
import re
import shutil
import subprocess
import sys
import threading
import time

import pe_file
from pictures import by_hash, crop, find_frame, read_frames, stored_frames
from wine_desk import HEIGHT, SLOW, WIDTH, Desk, Failure, Stage, expect, windows_path

HERE = pathlib.Path(__file__).resolve().parent
TITLE = "Ombrel - a fast prod from Quellant"
SIZES = ["320x240", "400x300", "512x384", "640x480", "800x600", "1024x768", "1280x800"]
KNOWN_FRAMES = 240  # of the other sizes; a screenshot falls into the first six seconds
HELP = ("Help. You can use args:\\n -w  Run in window\\n -ns  No Sound\\n -resolution=?x?  Resolution "
        "(320x240, 400x300, 512x384, 640x480, 800x600, 1024x768, 1280x800)\\n\\nexamlpe:\\tlarkfen.exe "
        "-w -resolution=800x600")
RECORDED = r" recorded\s*$"  # the last line of larkfen-hashes
cases = []


def case(quick=False):
    """Adds a function to the list of cases; its first line of text is its name."""
    def add(function):
        cases.append((function.__doc__.strip().splitlines()[0], function, quick))
        return function
    return add


class Tables:
    """The frames that each size may show, for all desks; each size is recorded once."""

    def __init__(self):
        self.frames = {"640x480": by_hash(stored_frames())}
        self.locks = {size: threading.Lock() for size in SIZES}


class Suite:
    """What the cases of one desk share."""

    def __init__(self, desk, reference, tables):
        self.desk = desk
        self.reference = reference
        self.tables = tables
        self.program = windows_path(desk.build / "larkfen.exe")

    def frames(self, size="640x480"):
        """{hash: number} of the frames at a size: the stored ones, or the recorder's first ones."""
        with self.tables.locks[size]:
            if size not in self.tables.frames:
                out = self.desk.work / f"frames-{size}.txt"
                self.record(out, ["-w", "-ns", f"-resolution={size}", "--frames",
                                  f"0:{KNOWN_FRAMES}"])
                self.tables.frames[size] = by_hash(read_frames(out.read_text().splitlines()))
        return self.tables.frames[size]

    def record(self, out, switches):
        """Hash lines by the native recorder where there is one, else by the one under Wine."""
        if self.reference:
            subprocess.run([str(self.reference), *switches, "--data", str(self.desk.build / "data"),
                            "--hashes", str(out)], check=True, stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL, timeout=1200)
        else:
            code, output = self.desk.wine([self.desk.build / "larkfen-hashes.exe", *switches,
                                           "--hashes", windows_path(out)], limit=1200,
                                          last=RECORDED)
            expect(code == 0, output)

    def shows(self, name, place, size="640x480", scale=1):
        """The screen shows a frame of the production at place (left, top)."""
        width, height = map(int, size.split("x"))
        return find_frame(self.desk, name, self.frames(size), (*place, width, height), scale)

    def probe(self, *arguments, limit=300):
        """Runs the watched production on the real back end; its output."""
        code, output = self.desk.wine([self.desk.tests / "probe.exe", *arguments],
                                      self.desk.build, limit, last=r"result 0\s*$")
        expect(code == 0, f"exit code {code}: {output[-200:]}")
        return output

    def sound_folder(self, kind):
        """A folder with the program, the data and a double of the sound library."""
        folder = self.desk.work / f"bass-{kind}"
        folder.mkdir()
        (folder / "data").symlink_to((self.desk.build / "data").resolve())
        shutil.copy(self.desk.build / "larkfen.exe", folder)
        if kind != "none":
            shutil.copy(self.desk.tests / f"bass-{kind}" / "BASS.dll", folder)
        return folder


def no_box(stage):
    """No message box has been seen."""
    boxes = [line for line in stage.lines() if line.startswith("seen box")]
    expect(not boxes, str(boxes))


# --- the program files

@case(quick=True)
def program_file(suite):
    """the program: graphical, static, system DLLs only, icon, version and manifest"""
    pe_file.check_program(suite.desk.build / "larkfen.exe")


@case()
def program_file_i686(suite):
    """the i686 program: the same, and only functions that Windows XP has"""
    program = suite.desk.build.parent / "win32/larkfen.exe"
    expect(program.exists(), f"{program} is not there: cmake --workflow --preset win32")
    pe_file.check_program(program)
    pe_file.check_imports_listed(program, HERE / "xp_imports.txt")


@case(quick=True)
def failing_calls(suite):
    """calls that fail, lie and take notes"""
    code, output = suite.desk.wine([suite.desk.tests / "failures.exe"], limit=300,
                                   last=r"\d+ passed, 0 failed\s*$")
    bad = [line for line in output.splitlines() if line.startswith("FAILED")]
    count = re.search(r"^(\d+) passed, 0 failed", output, re.M)
    expect(code == 0 and not bad and count and int(count[1]) > 90, "; ".join(bad) or output[-200:])


# --- boxes

@case(quick=True)
def help_box(suite):
    """-?: the help box and nothing else"""
    stage = Stage(suite.desk, "help", [suite.program, "-w", "-?", "-ns"])
    line = stage.wait("seen box")
    expect(line == f'seen box "{TITLE}" "{HELP}" [OK] icon 0', line)
    suite.desk.screenshot("help")
    stage.answer("Return")
    lines = stage.end()
    expect(not any(line.startswith("seen window") for line in lines), "a window was made")
    expect(sum(line.startswith("seen mode") for line in lines) == 1, "the display was touched")


def ask(suite, name, *options):
    """Starts without switches for the window; waits for the question."""
    stage = Stage(suite.desk, name, [suite.program, "-ns"], options)
    line = stage.wait("seen box")
    expect(line == f'seen box "{TITLE}" "Full screen?" [&Yes &No] icon 0', line)
    return stage


@case()
def question_yes(suite):
    """Full screen? Yes"""
    stage = ask(suite, "yes")
    suite.desk.screenshot("question")
    stage.answer("y")
    stage.wait("seen mode 640x480 ")
    suite.shows("yes", (0, 0))
    stage.end("Escape")


@case()
def question_no(suite):
    """Full screen? No: as -w"""
    stage = ask(suite, "no")
    stage.answer("n")
    _, client = stage.window()
    suite.shows("no", client[:2])
    stage.end("Escape")


@case()
def question_closed(suite):
    """Full screen? closed without an answer: as -w"""
    stage = ask(suite, "closed", "--close-box")
    stage.wait("did close-box")
    _, client = stage.window()
    suite.shows("closed", client[:2])
    stage.end("Escape")


# --- window

@case(quick=True)
def window(suite):
    """-w: in the middle, exact, no question"""
    stage = Stage(suite.desk, "window", [suite.program, "-w", "-ns"])
    outer, client = stage.window()
    left, top, right, bottom = outer
    expect((left, top) == ((WIDTH - right + left) >> 1, (HEIGHT - bottom + top) >> 1),
           f"not in the middle: {outer}")
    expect((client[2] - client[0], client[3] - client[1]) == (640, 480), f"client area {client}")
    suite.shows("window", client[:2])
    no_box(stage)
    shown = [line for line in stage.lines() if line.startswith("seen window")]
    expect(f'style 0x14c80000 visible 1 "{TITLE}"' in shown[-1], shown[-1])
    stage.end("Escape")


@case()
def window_moved(suite):
    """a window moved between frames: the next frame at the new place"""
    stage = Stage(suite.desk, "moved", [suite.program, "-w", "-ns"], ["--move", "33", "101"])
    stage.wait("seen window 33 101 ")
    _, client = stage.window()
    suite.shows("moved", client[:2])
    stage.end("Escape")


@case()
def largest_window(suite):
    """-w at 1280x800, and the lowest switch of the table wins"""
    suite.frames("1280x800")
    stage = Stage(suite.desk, "large",
                  [suite.program, "-resolution=1280x800", "-w", "-resolution=320x240", "-nsX"])
    _, client = stage.window()
    expect((client[2] - client[0], client[3] - client[1]) == (1280, 800), f"client area {client}")
    expect(client[0] == 0, f"not in the middle: {client}")
    suite.shows("large", client[:2], "1280x800")
    stage.end("Escape")


# --- the ways to end

@case()
def escape_elsewhere(suite):
    """Escape while another window has the focus"""
    stage = Stage(suite.desk, "focus", [suite.program, "-w", "-ns"], ["--focus"])
    stage.wait("did focus")
    suite.desk.screenshot("focus")
    stage.end("Escape")


@case()
def close_box(suite):
    """the close box of the caption"""
    stage = Stage(suite.desk, "closebox", [suite.program, "-w", "-ns"])
    outer, client = stage.window()
    suite.shows("closebox", client[:2])
    suite.desk.screen.click(client[2] - 9, (outer[1] + client[1]) // 2 + 1)
    stage.end()


@case()
def close_command(suite):
    """the close command of the window"""
    stage = Stage(suite.desk, "closing", [suite.program, "-w", "-ns"], ["--close-window"])
    stage.wait("did close-window")
    stage.end()


@case()
def alt_f4(suite):
    """Alt-F4, in a window"""
    stage = Stage(suite.desk, "altf4", [suite.program, "-w", "-ns"])
    _, client = stage.window()
    suite.shows("altf4", client[:2])
    suite.desk.key("Alt_L", "F4")
    stage.end()


@case()
def alt_f4_full(suite):
    """Alt-F4, full screen"""
    stage = ask(suite, "altf4full")
    stage.answer("y")
    stage.wait("seen mode 640x480 ")
    suite.shows("altf4full", (0, 0))
    suite.desk.key("Alt_L", "F4")
    stage.end()


# --- full screen

def add_full_screen(size):
    """One case a size."""
    def full_screen(suite):
        suite.frames(size)
        name = f"full-{size}"
        stage = Stage(suite.desk, name, [suite.program, "-ns", f"-resolution={size}"])
        stage.wait("seen box")
        stage.answer("y")
        stage.wait(f"seen mode {size} ")
        suite.shows(name, (0, 0), size)
        stage.end("Escape")
    full_screen.__doc__ = f"full screen at {size}"
    case()(full_screen)


for wanted in SIZES:
    add_full_screen(wanted)


# --- screens that cannot be put at 16 bits

def fallback(suite, name, wrong, path):
    """A window on a desktop that stays at 32 bits."""
    output = suite.desk.work / f"{name}.out"
    with output.open("wb") as file:
        process = subprocess.Popen(
            ["wine", "explorer", f"/desktop=t{name},{WIDTH}x{HEIGHT}",
             str(suite.desk.tests / "probe.exe"), "--wrong", wrong, "--frames", "240", "--", "-w",
             "-ns"], env=suite.desk.env, cwd=suite.desk.build, stdout=file, stderr=file,
            stdin=subprocess.DEVNULL)
    suite.desk.running.append(process)
    suite.shows(name, (320, 281))
    # It ends by itself after so many frames, however slow they are here.
    end = time.monotonic() + SLOW
    while "result" not in output.read_text(errors="replace") and time.monotonic() < end + 4 * SLOW:
        time.sleep(0.5)
    said = output.read_text(errors="replace")
    expect(f"own-format 1 path {path} result 0" in said, f"the probe said '{said[-200:]}'")


@case(quick=True)
def fallback_blit(suite):
    """a 32-bit screen, window: blits that convert; right colours, right place"""
    fallback(suite, "blit32", "depth", 0)


@case()
def fallback_bitmap(suite):
    """a 32-bit screen, window: bitmaps where blits do not convert"""
    fallback(suite, "bitmap32", "gdi", 1)


@case()
def fallback_full(suite):
    """a 32-bit screen without the mode: over the monitor, sharp, twice as large"""
    suite.frames("640x480")
    stage = Stage(suite.desk, "cover", [suite.program, "-ns"], virtual=False)
    stage.wait("seen box")
    suite.desk.focus(TITLE)
    stage.answer("y")
    stage.window()
    suite.shows("cover", (0, 32), "640x480", 2)
    _, client = stage.window()
    expect(client == [0, 0, WIDTH, HEIGHT], f"client area {client}")
    suite.desk.focus(TITLE)
    stage.end("Escape")


@case()
def fallback_full_odd(suite):
    """the same at 400x300: three times as large, black around"""
    suite.frames("400x300")
    stage = Stage(suite.desk, "cover400", [suite.program, "-ns", "-resolution=400x300"],
                  virtual=False)
    stage.wait("seen box")
    suite.desk.focus(TITLE)
    stage.answer("y")
    stage.window()
    suite.shows("cover400", (40, 62), "400x300", 3)
    screen = suite.desk.screenshot("cover400")
    for x, y in ((0, 0), (39, 500), (1240, 500), (640, 61), (640, 962)):
        at = (y * WIDTH + x) * 3
        expect(screen[at:at + 3] == b"\0\0\0", f"not black at {x}, {y}")
    suite.desk.focus(TITLE)
    stage.end("Escape")


@case()
def test_card(suite):
    """the test card: every colour of a bar, fills, keyed and clipped glyphs"""
    process = suite.desk.start(["explorer", f"/desktop=tcard,{WIDTH}x{HEIGHT}",
                                suite.desk.tests / "card.exe", "640", "480", "window", "12"])
    end = time.monotonic() + SLOW
    while True:
        screen = suite.desk.screenshot("card")
        if crop(screen, 320, 281, 1, 1) == b"\x00\xf8" or time.monotonic() >= end:
            break
        time.sleep(0.3)
    # (x, y): pixel. Bars, corners, ramp, fill, the glyph's rim and hole, glyphs at both edges.
    wanted = {(40, 30): 0xFFFF, (120, 30): 0xFFE0, (200, 30): 0x07FF, (280, 30): 0x07E0,
              (360, 30): 0xF81F, (440, 30): 0xF800, (520, 30): 0x001F, (600, 30): 0x0000,
              (0, 0): 0xF800, (639, 0): 0x07E0, (0, 479): 0x001F, (639, 479): 0xFFFF,
              (320, 400): 0x0400, (639, 400): 0x07E0, (99, 99): 0xFFE0, (100, 100): 0x07FF,
              (139, 139): 0x07FF, (140, 140): 0xFFE0, (200, 60): 0xFFFF, (247, 101): 0xFFFF,
              (224, 80): 0x07FF, (245, 70): 0xFFFF, (248, 80): 0x07E0, (23, 80): 0xFFFF,
              (616, 80): 0xFFFF, (630, 80): 0x0000, (639, 60): 0xFFFF}
    for (x, y), pixel in wanted.items():
        got = int.from_bytes(crop(screen, 320 + x, 281 + y, 1, 1), "little")
        expect(got == pixel, f"{got:04x} at {x}, {y}, not {pixel:04x}")
    output = process.communicate(timeout=SLOW)[0].decode(errors="replace")
    expect("open 1" in output and "presented 1" in output, output)


# --- calls in their order

def collapse(lines):
    """Runs of more than two equal blocks of one or two lines become one line."""
    out, i = [], 0
    while i < len(lines):
        for size in (1, 2):
            block, count = lines[i:i + size], 1
            while len(block) == size and lines[i + count * size:i + (count + 1) * size] == block:
                count += 1
            if count > 2:
                out.append(f"{count} times: " + " | ".join(block))
                i += count * size
                break
        else:
            out.append(lines[i])
            i += 1
    return out


def compare_log(path, expected):
    """The log of a run against the expected one."""
    lines = path.read_text(errors="replace").splitlines()
    lines = [re.sub(r"^blt back \[.*\] object \[0 0 48 42\] 0x1008000 null$", "glyphs", line)
             for line in lines]
    lines = [re.sub(r'^loadLibrary ".*\\(BASS\.dll)"$', r"loadLibrary \1", line) for line in lines]
    first = next((i for i, line in enumerate(lines) if line.startswith("blt primary [")), None)
    last = next((i for i, line in enumerate(lines) if line.startswith("release")), None)
    expect(first is not None and last is not None, f"only {len(lines)} calls: {lines[-3:]}")
    got = collapse(lines[:first + 1]) + ["..."] + collapse(lines[last:])
    got = ["glyphs" if line.endswith("times: glyphs") else line for line in got]
    wanted = [line for line in expected.read_text().splitlines() if not line.startswith("#")]
    for number, (a, b) in enumerate(zip(got, wanted)):
        expect(a == b, f"call {number}: {a}; expected: {b}")
    expect(len(got) == len(wanted), f"{len(got)} calls, expected {len(wanted)}")


def logged(suite, name, switches, keys):
    """Runs the probe with a log in a desktop of its own, pressing a key for each box."""
    log = suite.desk.work / f"{name}.log"
    stage = Stage(suite.desk, name, [windows_path(suite.desk.tests / "probe.exe"), "--log",
                                     windows_path(log), "--frames", "5", "--", *switches])
    for text, key in keys:
        stage.wait(f'seen box "{TITLE}" "{text}"')
        stage.answer(key)
    stage.end()
    return log


@case(quick=True)
def calls_window(suite):
    """every call of a windowed run, in its order"""
    log = logged(suite, "log-window", ["-w", "-ns"], [])
    compare_log(log, HERE / "expected_window.txt")


@case()
def calls_full(suite):
    """every call of a full-screen run, in its order; one box without a sound device"""
    log = logged(suite, "log-full", ["-resolution=800x600"],
                 [("Full screen?", "y"), ("Couldn't initialize sound device...", "Return")])
    compare_log(log, HERE / "expected_full.txt")


# --- sound

PLAY = ['BASS_StreamCreateFile 0 "./data/sfx/soundtrack.mp3" 0 0 0', "BASS_ChannelPlay 51 0"]
STOP = ["BASS_ChannelStop 51", "BASS_SampleFree 51", "BASS_Free"]
OPEN = f'BASS_Init -1 44100 0 "{TITLE}" null'
SILENT = f'BASS_Init 0 44100 0 "{TITLE}" null'


def play(suite, kind, box, expected, switches=("-w",)):
    """The shipped program beside a double of the library; box is (text, icon) or None."""
    folder = suite.sound_folder(kind)
    stage = Stage(suite.desk, f"bass-{kind}{len(switches)}",
                  [windows_path(folder / "larkfen.exe"), *switches])
    if box:
        line = stage.wait("seen box")
        expect(line == f'seen box "{TITLE}" "{box[0]}" [OK] icon {box[1]}', line)
        suite.desk.screenshot(f"bass-{kind}")
        stage.answer("Return")
    _, client = stage.window()
    suite.shows(stage.name, client[:2])
    lines = stage.end("Escape")
    boxes = [line for line in lines if line.startswith("seen box")]
    expect(len(boxes) == (1 if box else 0), str(boxes))
    calls = folder / "bass-calls.txt"
    got = calls.read_text().splitlines() if calls.exists() else []
    expect(got == expected, f"{got}, expected {expected}")
    shutil.rmtree(folder)


@case()
def bass_right(suite):
    """the right library: exact calls in their order, no box"""
    play(suite, "right", None, ["BASS_GetVersion", OPEN, *PLAY, *STOP])


@case()
def bass_wrong(suite):
    """a library of a wrong version: one box with its sign, and it plays all the same"""
    play(suite, "wrong", ("An incorrect version of BASS.DLL was loaded", 1),
         ["BASS_GetVersion", OPEN, *PLAY, *STOP])


@case()
def bass_failing(suite):
    """a device that cannot be opened: one box, then the silent device"""
    play(suite, "failing", ("Couldn't initialize sound device...", 0),
         ["BASS_GetVersion", OPEN, SILENT, *PLAY, *STOP])


@case()
def bass_unused(suite):
    """-ns: no call of the library at all"""
    play(suite, "right", None, [], ("-w", "-ns"))


@case()
def no_library(suite):
    """neither library nor device: one box, then silence"""
    play(suite, "none", ("Couldn't initialize sound device...", 0), [])


# --- frames

def compare_frames(suite, name, count, *wrong):
    """Plays so many frames on the real back end: they are the stored ones."""
    out = suite.desk.work / f"{name}.txt"
    suite.probe("--hashes", windows_path(out), "--frames", str(count - 1), *wrong, "--", "-w",
                "-ns", limit=1200)
    got, wanted = read_frames(out.read_text().splitlines()), stored_frames()
    for one, other in zip(got, wanted):
        expect(one == other, f"frame {one}, stored {other}")
    expect(len(got) == min(count, len(wanted)), f"{len(got)} frames")


@case(quick=True)
def same_frames(suite):
    """the frames of the real back end are those of the recorder"""
    compare_frames(suite, "real", 61)


@case()
def wide_pitch(suite):
    """rows further apart than twice the width: the same frames"""
    compare_frames(suite, "pitch", 61, "--wrong", "pitch")


@case()
def lost_frames(suite):
    """surfaces lost for five frames: the production goes on, the same frames after"""
    compare_frames(suite, "losing", 31, "--wrong", "lost")


@case()
def other_format(suite):
    """a 32-bit screen: the same frames, texts included"""
    compare_frames(suite, "own", 31, "--wrong", "depth")
    compare_frames(suite, "own-gdi", 31, "--wrong", "gdi")


@case()
def failing_locks(suite):
    """every third lock fails: no crash, and it ends as always"""
    output = suite.probe("--wrong", "locks", "--frames", "30", "--", "-w", "-ns")
    expect("shown 31" in output, output)


@case()
def no_data(suite):
    """no data at all: it starts, shows nothing, and ends on Escape"""
    folder = suite.desk.work / "empty"
    folder.mkdir()
    shutil.copy(suite.desk.build / "larkfen.exe", folder)
    stage = Stage(suite.desk, "nodata", [windows_path(folder / "larkfen.exe"), "-w", "-ns"])
    stage.window()
    time.sleep(2)
    stage.end("Escape")


@case()
def vector_paths(suite):
    """the first frames are the stored ones on every vector path, and on a path that is not there"""
    stored = sorted((number, picture) for picture, number in suite.frames().items())
    env = suite.desk.env
    try:
        for path in ("scalar", "sse", "avx2", "none"):
            out = suite.desk.work / f"frames-{path}.txt"
            suite.desk.env = dict(env, RASTER_USE=path)
            code, output = suite.desk.wine([suite.desk.build / "larkfen-hashes.exe", "-w", "-ns",
                                            "--frames", "0:60", "--hashes", windows_path(out)],
                                           last=RECORDED)
            expect(code == 0, output)
            seen = read_frames(out.read_text().splitlines())
            expect(len(seen) == 60 and all(frame in stored for frame in seen), f"path {path}")
    finally:
        suite.desk.env = env


@case()
def whole_production(suite):
    """the whole production on the real back end ends by itself, frame for frame the stored one"""
    compare_frames(suite, "whole-real", 1000000)


def run_cases(suite, waiting, results, lock):
    """Runs cases until none waits; reports each, and adds whether it passed to the results."""
    while True:
        try:
            name, function = waiting.get_nowait()
        except queue.Empty:
            return
        start = time.monotonic()
        try:
            function(suite)
            fault = None
        except (Failure, OSError, subprocess.SubprocessError, AssertionError) as error:
            fault = str(error) or type(error).__name__
            suite.desk.end_programs()
        with lock:
            results.append(fault is None)
            seconds = f"({time.monotonic() - start:.0f} s)"
            print(f"FAILED {name}: {fault} {seconds}" if fault else f"ok     {name} {seconds}",
                  flush=True)


def run_desk(number, options, shared):
    """One desk from its beginning to its end; what goes wrong with it counts as a failed case."""
    waiting, results, lock, tables = shared
    try:
        desk = Desk(options.build, number)
        try:
            desk.prepare()
            run_cases(Suite(desk, options.reference, tables), waiting, results, lock)
        finally:
            desk.close()
    except (Failure, OSError, ValueError, subprocess.SubprocessError) as error:
        with lock:
            results.append(False)
            print(f"FAILED desk {number}: {error}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("build", help="the build folder of the 64-bit programs; the 32-bit program "
                        "stands in ../win32 of it")
    parser.add_argument("--quick", action="store_true", help="a few cases only")
    parser.add_argument("--only", default="", help="only cases whose name this pattern is found in")
    parser.add_argument("--but", default="$^", help="no cases whose name this pattern is found in")
    parser.add_argument("--desks", type=int, default=1, help="so many cases side by side")
    parser.add_argument("--list", action="store_true", help="name the cases and end")
    parser.add_argument("--reference", help="a native larkfen-capture to compare with "
                        "(default: ../release/larkfen-capture of the build folder, if there)")
    options = parser.parse_args()
    chosen = [(name, function) for name, function, quick in cases
              if (quick or not options.quick) and re.search(options.only, name)
              and not re.search(options.but, name)]
    if options.list:
        print("\n".join(name for name, _ in chosen))
        return 0
    near = pathlib.Path(options.build).resolve().parent / "release/larkfen-capture"
    options.reference = options.reference or (str(near) if near.exists() else None)
    print(f"other sizes than 640x480 compared with {options.reference or 'larkfen-hashes.exe'}",
          flush=True)
    waiting, results, lock = queue.SimpleQueue(), [], threading.Lock()
    for one in chosen:
        waiting.put(one)
    shared = (waiting, results, lock, Tables())
    desks = [threading.Thread(target=run_desk, args=(number, options, shared))
             for number in range(min(options.desks, len(chosen)))]
    for desk in desks:
        desk.start()
    for desk in desks:
        desk.join()
    left = waiting.qsize()
    failed = results.count(False) + left
    print(f"{results.count(True)} passed, {failed} failed")
    return 1 if failed or not any(results) else 0


if __name__ == "__main__":
    sys.exit(main())
