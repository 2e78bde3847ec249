"""The programs as a user meets them on Linux: windows, boxes, keys, signals, sound, the recorder.
Pictures are compared pixel for pixel with those of larkfen-capture."""
import hashlib
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import traceback

import numpy
from PIL import Image

from programs import (ROOT, SLOW, TITLE, Count, Program, answer, box_is_drawn, check, is_box,
                      is_main, press, words)
import desktop
import wayland
import x11

def seconds_to_vanish(folder, screen):
    """How long the window stands after Escape."""
    larkfen = Program(folder, screen, "-w", "-ns")
    window, _ = screen.wait_for_window(is_main(640, 480))
    time.sleep(0.4)
    screen.focus(window)
    time.sleep(0.1)
    screen.keys("Escape")
    taken = screen.wait_for_none()
    larkfen.end()
    return SLOW if taken is None else taken


def window_tests(folder, screen):
    larkfen = Program(folder, screen, "-w", "-ns")
    window, facts = screen.wait_for_window(is_main(640, 480))
    check("the window has its title, its size and the middle of the screen",
          facts == (TITLE, 320, 272, 640, 480), facts)
    time.sleep(0.5)
    check("it plays on", larkfen.process.poll() is None)
    press(screen, window, "Escape")
    check("Escape ends it with 0", larkfen.end()[0] == 0)

    # (On a busy machine most of the time is waiting for the processor: the best of some counts.)
    best = SLOW
    for _ in range(20):
        best = min(best, seconds_to_vanish(folder, screen))
        if best < 0.1:
            break
    check("Escape takes the window away within 100 ms", best < 0.1, f"{best * 1000:.0f} ms")

    larkfen = Program(folder, screen, "-w", "-ns")
    screen.wait_for_window(is_main(640, 480))
    time.sleep(0.4)
    screen.focus(None)
    screen.key("Escape", True)
    ended = larkfen.end()[0]
    screen.key("Escape", False)
    check("Escape held without the focus ends it", ended == 0, ended)

    larkfen = Program(folder, screen, "-w", "-ns", "-resolution=800x600", "-resolution=320x240")
    window, facts = screen.wait_for_window(is_main(800, 600))
    check("the lower resolution of the table wins", facts is not None, facts)
    screen.press_close_button(window)
    check("the close button ends it with 0", larkfen.end()[0] == 0)

    larkfen = Program(folder, screen, "-ns", "-w")
    window, _ = screen.wait_for_window(is_main(640, 480))
    press(screen, window, "Alt_L", "F4")
    check("Alt-F4 ends it with 0", larkfen.end()[0] == 0)

    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        larkfen = Program(folder, screen, "-w", "-ns")
        screen.wait_for_window(is_main(640, 480))
        time.sleep(0.4)
        larkfen.process.send_signal(number)
        check(f"{number.name} ends it in the orderly way", larkfen.end()[0] == 0)
    for number in (signal.SIGSEGV, signal.SIGABRT):
        larkfen = Program(folder, screen, "-w", "-ns")
        screen.wait_for_window(is_main(640, 480))
        time.sleep(0.4)
        larkfen.process.send_signal(number)
        check(f"{number.name} still counts as a crash", larkfen.end()[0] == -number)
        check("and leaves no window", screen.wait_for_none() is not None)


def box_tests(folder, screen):
    larkfen = Program(folder, screen, "-ns")
    check("the question is asked", answer(screen, "Escape") is not None)
    window, facts = screen.wait_for_window(is_main(640, 480))
    check("a closed question means a window", facts is not None, facts)
    press(screen, window, "Escape")
    larkfen.end()

    larkfen = Program(folder, screen, "-w", "-?", "-resolution=800x600")
    check("the help is a box", answer(screen, "Return") is not None)
    code, out, _ = larkfen.end()
    check("after it the program writes its word and returns 0", (code, out) == (0, "\nTEST\n"),
          (code, out))


def sound_tests(folder, screen, work):
    larkfen = Program(folder, screen, "-w", SDL_AUDIODRIVER="alsa")
    window, _ = screen.wait_for_window(is_main(640, 480))
    check("a missing sound device is told in a box", box_is_drawn(screen) is not None)
    press(screen, window, "Escape")
    time.sleep(1)
    check("and the show goes on", window and larkfen.process.poll() is None)
    press(screen, window, "Escape")
    code, _, err = larkfen.end()
    check("to its usual end", code == 0, code)
    told = [line for line in err.splitlines() if "is missing or cannot be read" not in line]
    check("and in one line", len(told) == 1 and "sound device" in told[0], told)

    # One second of a loud tone; then nothing, and no second time.
    sound = folder / "data" / "sfx" / "soundtrack.mp3"
    sound.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i",
                    "sine=frequency=440:sample_rate=44100:duration=1", "-ac", "2",
                    "-filter:a", "volume=8", str(sound)], check=True, timeout=60)
    heard = play_to_file(folder, screen, work, 4)
    rate = 44100 * 2
    loud = numpy.abs(heard.astype(numpy.int32)) > 1000
    first, last = (loud.nonzero()[0][[0, -1]] / rate) if loud.any() else (0.0, 0.0)
    check("the soundtrack is heard", loud.sum() > rate // 4, f"{loud.sum()} samples")
    check("and not repeated", 0.9 < last - first < 1.1 and len(heard) / rate > last + 1.5,
          f"loud from {first:.2f} to {last:.2f} s of {len(heard) / rate:.1f} s")

    for name, content in (("broken", b"no music at all" * 1000), ("empty", b"")):
        sound.write_bytes(content)
        heard = play_to_file(folder, screen, work, 2)
        check(f"a {name} soundtrack is silent", len(heard) and not heard.any(), len(heard))
    sound.unlink()
    heard = play_to_file(folder, screen, work, 2)
    check("a missing soundtrack is silent", len(heard) and not heard.any(), len(heard))
    heard = play_to_file(folder, screen, work, 2, "-ns")
    check("-ns opens no device", len(heard) == 0, len(heard))


def play_to_file(folder, screen, work, seconds, *more):
    """Plays until the sound in a file lasts so long (SLOW at most), or, with more switches, for so
    long; its samples. Fails when a box comes up."""
    raw = work / "sound.raw"
    raw.unlink(missing_ok=True)
    larkfen = Program(folder, screen, "-w", *more, SDL_AUDIODRIVER="disk",
                      SDL_DISKAUDIOFILE=str(raw))
    window, _ = screen.wait_for_window(is_main(640, 480))
    end = time.monotonic() + (seconds if more else SLOW)
    while time.monotonic() < end:
        if raw.exists() and raw.stat().st_size >= seconds * 44100 * 4:
            break
        time.sleep(0.1)
    boxes = [f for f in screen.windows().values() if is_box(*f)]
    press(screen, window, "Escape")
    code, _, _ = larkfen.end()
    if code != 0 or boxes:
        check("playing to a file", False, (code, boxes))
    if not raw.exists():
        return numpy.zeros(0, numpy.int16)
    data = raw.read_bytes()
    return numpy.frombuffer(data[:len(data) // 2 * 2], numpy.int16)


def picture_tests(folder, capture, work, size, keep):
    """Full screen: the picture scaled by a whole factor in the middle, every pixel exact."""
    width, height = size
    screen = x11.Screen(f"{width}x{height}x24")
    try:
        factor = min(width // 640, height // 480)
        left, top = (width - 640 * factor) // 2, (height - 480 * factor) // 2
        frames = capture_frames(capture, folder, work / "frames", 400)
        larkfen = Program(folder, screen, "-ns")
        answer(screen, "Return")  # the button that Return presses is Yes
        window, facts = screen.wait_for_window(is_main(width, height))
        check(f"full screen covers {width} by {height}", facts == (TITLE, 0, 0, width, height),
              facts)
        found = bars = sharp = None
        end = time.monotonic() + SLOW
        while not found and time.monotonic() < end:
            shot = screen.picture()
            inner = shot[top:top + 480 * factor, left:left + 640 * factor]
            outer = shot.copy()
            outer[top:top + 480 * factor, left:left + 640 * factor] = 0
            small = inner[::factor, ::factor]
            bars = not outer.any()
            sharp = bool((numpy.repeat(numpy.repeat(small, factor, 0), factor, 1) == inner).all())
            found = frames.get(digest565(small)) if small.any() else None
        if keep:
            Image.fromarray(shot).save(keep / f"full-screen-{width}x{height}.png")
        check("the bars are black", bars)
        check(f"every pixel is a block of {factor} by {factor}", sharp)
        check("the picture is, pixel for pixel, one of the recorder's",
              found is not None and small.any(), f"frame {found}")
        press(screen, window, "Escape")
        check("Escape ends the full screen with 0", larkfen.end()[0] == 0)
    finally:
        screen.close()


def digest565(pixels):
    """Of the 5-6-5 values: systems expand them to 8 bits in their own ways, one apart at most."""
    return hashlib.sha256((pixels >> numpy.array([3, 2, 3], numpy.uint8)).tobytes()).digest()


def capture_frames(capture, folder, out, count):
    """{hash of the pixels: number} of the first frames, from the recorder's PNG files."""
    if not out.exists():
        subprocess.run([capture, "-ns", "--data", folder / "data", "--frames", f":{count}", "--png",
                        out], check=True, stderr=subprocess.DEVNULL, timeout=300)
    found = {}
    for file in sorted(out.glob("*.png")):
        pixels = numpy.array(Image.open(file).convert("RGB"))
        found.setdefault(digest565(pixels), int(file.stem[6:]))
    return found


def no_display_test(folder):
    code, out, err = Program(folder, None, "-ns").end()
    check("without a display it says so in one line and returns 0",
          code == 0 and len(err.splitlines()) == 1 and words(err) and not out, (code, err))


# What the X library says before it ends the program: one line where writing failed first, a message
# of two where reading did.
CONNECTION_LOST = re.compile(r"X connection to \S+ broken .*\n|"
                             r"XIO: +fatal IO error .* on X server .*\n +after .*\n")


def lost_display_test(folder):
    """The server is killed, as when it crashes."""
    screen = x11.Screen("1280x1024x24")
    larkfen = Program(folder, screen, "-w", "-ns")
    shown = screen.wait_for_window(is_main(640, 480))[0] is not None
    time.sleep(0.5)
    plays = larkfen.process.poll() is None
    screen.disconnect()
    screen.server.kill()
    screen.close()
    code, out, err = larkfen.end()
    own = set(words(err))
    others = "".join(line for line in err.splitlines(True) if line.rstrip("\r\n") not in own)
    check("a display that goes away ends it with 1, and the X library says so once",
          shown and plays and code == 1 and not out
          and CONNECTION_LOST.fullmatch(others.replace("\r", "")), (shown, plays, code, err))


# --- the recorder

def record(capture, data, *arguments, **more):
    return subprocess.run([capture, "-ns", "--data", data, *arguments], stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, text=True, timeout=300, **more)


def digest(path):
    return hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()


def argument_tests(capture, data, work):
    wrong = {
        "--frames 5": "--frames", "--frames 9:3": "--frames", "--frames :": "--frames",
        "--frames a:b": "--frames", "--every 0": "--every", "--every x": "--every",
        "--scale 0": "--scale", "--scale 99": "--scale", "--switch blur": "--switch",
        "--switch nothing=1": "nothing", "--sprite 3": "--sprite", "--png": "--png",
        "-window": "-window", "-resolution=1600x1200": "-resolution=1600x1200", "": "record",
    }
    for text, named in wrong.items():
        result = record(capture, data, *text.split())
        check(f"wrong argument '{text}' is named", result.returncode == 2
              and named in result.stderr and result.stderr.count("\n") == 1, result.stderr.strip())
    result = record(capture, data, "--help")
    check("--help lists every option", result.returncode == 0 and all(
        word in result.stdout for word in ("--data", "--frames", "--every", "--png", "--video",
                                           "--scale", "--hashes", "--switch")))
    result = record(capture, data, "-?")
    check("-? shows the production's help", result.returncode == 0 and "examlpe" in result.stdout)

    empty = work / "empty"
    empty.mkdir()
    result = record(capture, empty, "--hashes", "-")
    check("a production without an end wants --frames", result.returncode == 2
          and "--frames" in result.stderr, result.stderr.strip())
    result = record(capture, empty, "--frames", ":40", "--hashes", "-")
    check("with --frames it plays on no data at all", result.returncode == 0
          and result.stdout.count("\n") == 40, result.stderr.strip())
    target = work / "no" / "such"
    for option in ("--hashes", "--video"):
        result = record(capture, data, "--frames", ":3", option, target / "file")
        check(f"{option} into a missing folder fails with 1", result.returncode == 1
              and str(target) in result.stderr, result.stderr.strip())
    result = record(capture, data, "--frames", ":3", "--png", "/dev/null/x")
    check("--png where no folder can be fails with 1", result.returncode == 1
          and "/dev/null/x" in result.stderr, result.stderr.strip())
    result = record(capture, data, "--frames", ":400", "--hashes", "/dev/full")
    check("hashes on a full disk fail with 1", result.returncode == 1
          and "/dev/full" in result.stderr, result.stderr.strip())
    result = subprocess.run(["/bin/sh", "-c", 'ulimit -f 8; trap "" XFSZ; exec "$@"', "sh", capture,
                             "-ns", "--data", data, "--frames", "300:302", "--png", work / "small"],
                            stderr=subprocess.PIPE, text=True, timeout=300)
    check("pictures on a full disk fail with 1 and leave nothing half", result.returncode == 1
          and not list((work / "small").glob("*")), result.stderr.strip())
    result = subprocess.run(["/bin/sh", "-c", 'ulimit -f 64; trap "" XFSZ; exec "$@"', "sh",
                             capture, "-ns", "--data", data, "--frames", "200:400", "--video",
                             work / "small.mp4"], stderr=subprocess.PIPE, text=True, timeout=300)
    check("a video on a full disk fails with 1 and leaves nothing", result.returncode == 1
          and not list(work.glob("small.mp4*")), result.stderr.strip()[-200:])


def recording_tests(capture, data, work):
    line = re.compile(r"frame (\d+) scene (\d) faces (\d+) hash [0-9a-f]{16}")
    runs = [record(capture, data, "--frames", "0:120", "--hashes", "-").stdout for _ in range(2)]
    lines = [line.fullmatch(text) for text in runs[0].splitlines()]
    check("a hash line a frame, from 0", len(lines) == 120 and all(lines)
          and [int(m[1]) for m in lines] == list(range(120)))
    check("two runs are the same", runs[0] == runs[1])
    some = record(capture, data, "--frames", "40:60", "--every", "7", "--hashes", "-").stdout
    wanted = [text for i, text in enumerate(runs[0].splitlines()) if i in (40, 47, 54)]
    check("--frames and --every pick among the same lines", some.splitlines() == wanted)
    moved = subprocess.run([capture, "-w", "-ns", "--hashes=-", "--frames=:120", "--data", data],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, cwd="/",
                           timeout=300).stdout
    check("the working directory and -w change nothing", moved == runs[0])

    out = work / "pictures"
    record(capture, data, "--frames", "100:102", "--png", out, "--scale", "2")
    names = sorted(p.name for p in out.iterdir())
    check("pictures have their names", names == ["frame-000100.png", "frame-000101.png"], names)
    big = numpy.array(Image.open(out / names[0]))
    record(capture, data, "--frames", "100:101", "--png", out)
    one = numpy.array(Image.open(out / names[0]))
    check("--scale repeats pixels", big.shape == (960, 1280, 3)
          and (numpy.repeat(numpy.repeat(one, 2, 0), 2, 1) == big).all())
    five = {(v << 3) | (v >> 2) for v in range(32)}
    six = {(v << 2) | (v >> 4) for v in range(64)}
    check("channels are expanded exactly", set(numpy.unique(one[..., 0])) <= five
          and set(numpy.unique(one[..., 1])) <= six and set(numpy.unique(one[..., 2])) <= five
          and one.any())

    plain = record(capture, data, "--frames", "5:6", "--hashes", "-").stdout
    for setting, differs in (("renderMode1=0", True), ("crosshair=1", True), ("sceneIndex=3", True),
                             ("frameCap=0", False)):
        other = record(capture, data, "--frames", "5:6", "--hashes", "-", "--switch",
                       setting).stdout
        check(f"--switch {setting} {'changes' if differs else 'keeps'} the picture",
              (other.split()[-1] != plain.split()[-1]) == differs, other.strip())


def probe(file, stream, fields):
    result = subprocess.run(["ffprobe", "-v", "error", "-select_streams", stream, "-count_frames",
                             "-show_entries", "stream=" + fields, "-of", "csv=p=0", file],
                            stdout=subprocess.PIPE, text=True, check=True, timeout=120)
    return result.stdout.strip()


def video_tests(capture, data, work):
    sound = data / "sfx" / "soundtrack.mp3"
    sound.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["ffmpeg", "-v", "error", "-y", "-f", "lavfi", "-i",
                    "sine=frequency=440:sample_rate=44100:duration=1", str(sound)], check=True,
                   timeout=60)

    def with_sound(file, *arguments):
        return subprocess.run([capture, "--data", data, "-resolution=320x240", "--video", file,
                               *arguments], stderr=subprocess.PIPE, text=True, timeout=300)

    for name in ("one.mp4", "two.mp4"):
        result = with_sound(work / name, "--frames", "0:100", "--scale", "2")
        check(f"a video is made ({name})", result.returncode == 0, result.stderr.strip())
    check("two videos are the same file", digest(work / "one.mp4") == digest(work / "two.mp4"))
    video = probe(work / "one.mp4", "v", "codec_name,width,height,pix_fmt,r_frame_rate,"
                                         "nb_read_frames,duration")
    check("it has 100 frames of 640 by 480, 40 a second, 2.5 s",
          video == "h264,640,480,yuv420p,40/1,2.500000,100", video)
    audio = probe(work / "one.mp4", "a", "codec_name,duration")
    length = float(audio.split(",")[1]) if "," in audio else 0.0
    check("and sound of its length, though the soundtrack is shorter",
          audio.startswith("aac,") and abs(length - 2.5) < 0.06, audio)
    check("nothing else is left", not list(work.glob("*.part")))

    decoded = subprocess.run(["ffmpeg", "-v", "error", "-i", work / "one.mp4", "-vf",
                              "scale=320:240:flags=neighbor", "-f", "rawvideo", "-pix_fmt", "rgb24",
                              "-"], stdout=subprocess.PIPE, check=True, timeout=60).stdout
    frames = numpy.frombuffer(decoded, numpy.uint8).reshape(-1, 240, 320, 3)
    shots = work / "video-frames"
    record(capture, data, "-resolution=320x240", "--frames", "99:100", "--png", shots)
    exact = numpy.array(Image.open(shots / "frame-000099.png")).astype(int)
    error = numpy.abs(frames[99].astype(int) - exact).mean()
    check("its last frame looks like the picture", error < 6 and exact.any(), f"{error:.2f} off")

    sound.write_bytes(b"no music")
    result = with_sound(work / "mute.mp4", "--frames", "0:4")
    check("a broken soundtrack makes a silent video", result.returncode == 0
          and probe(work / "mute.mp4", "a", "codec_name") == "" and "silent" in result.stderr,
          result.stderr.strip())
    sound.unlink()
    result = with_sound(work / "odd 'name'.mp4", "--frames", "0:4")
    check("names may hold blanks and quotes", result.returncode == 0
          and (work / "odd 'name'.mp4").exists(), result.stderr.strip())

    bare = subprocess.run([capture, "--data", data, "-ns", "--frames", "0:4", "--video",
                           work / "none.mp4"], stderr=subprocess.PIPE, text=True, timeout=60,
                          env={"PATH": "/nowhere"})
    check("a missing ffmpeg is told", bare.returncode == 1 and "ffmpeg" in bare.stderr,
          bare.stderr.strip())
    run = subprocess.Popen([capture, "--data", data, "-ns", "--video", work / "cut.mp4"],
                           stderr=subprocess.PIPE, text=True)
    end = time.monotonic() + SLOW
    while not list(work.glob("cut.mp4*")) and time.monotonic() < end:
        time.sleep(0.1)
    begun = bool(list(work.glob("cut.mp4*")))
    run.send_signal(signal.SIGINT)
    try:
        _, err = run.communicate(timeout=SLOW)
    finally:
        run.kill()
    check("an interrupted video leaves no file", begun and run.returncode == 1
          and not list(work.glob("cut.mp4*")), err.strip())


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    keep = pathlib.Path(sys.argv[2]).resolve() if len(sys.argv) > 2 else None
    if keep:
        keep.mkdir(parents=True, exist_ok=True)
    for tool in ("ffmpeg", "ffprobe"):
        if not shutil.which(tool):
            print(f"{tool} is not installed")
            print("0 passed, 1 failed")
            return 1
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # what was started is ended
    # What a shell runs in the background ignores SIGINT, and so would the programs started here.
    signal.signal(signal.SIGINT, signal.default_int_handler)
    with tempfile.TemporaryDirectory(prefix="larkfen-") as name:
        work = pathlib.Path(name)
        # One copy of the program without data, for speed; one beside the whole.
        bare, full = work / "bare", work / "full"
        for folder in (bare, full):
            folder.mkdir()
            shutil.copy(build / "larkfen", folder / "larkfen")
        (bare / "data").mkdir()
        shutil.copytree(ROOT / "data", full / "data", ignore=lambda d, names: ["sfx"])
        capture = build / "larkfen-capture"
        try:
            screen = x11.Screen("1280x1024x24")
            try:
                window_tests(bare, screen)
                box_tests(bare, screen)
                sound_tests(bare, screen, work)
            finally:
                screen.close()
            picture_tests(full, capture, work, (1920, 1080), keep)
            frames = capture_frames(capture, full, work / "frames", 400)
            desktop.run_all(build, bare, full, frames, digest565, play_to_file, work, keep)
            wayland.run_all(full, frames, digest565, work, keep)
            no_display_test(bare)
            lost_display_test(bare)
            argument_tests(capture, full / "data", work)
            recording_tests(capture, full / "data", work)
            video_tests(capture, full / "data", work)
        except Exception:  # pylint: disable=broad-except
            traceback.print_exc()
            check("the tests themselves", False)
    print(f"{Count.passed} passed, {Count.failed} failed")
    return 1 if Count.failed else 0


if __name__ == "__main__":
    sys.exit(main())
