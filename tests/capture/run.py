"""Videos of larkfen-capture: at rates that are not the production's, in pieces that outlive a break, and
as moving pictures. Usage: run.py BUILD_FOLDER"""
import hashlib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

import numpy
from PIL import Image

PASSED, FAILED = [], []
SIZE = (320, 240)
SMALL = "-resolution=320x240"
FIRST, END = 1500, 1540  # where every frame differs from the one before


def check(name, good, what=""):
    """One test."""
    (PASSED if good else FAILED).append(name)
    print(f"ok     {name}" if good else f"FAILED {name}\n{what}", flush=True)


class Recorder:
    """The program and a folder for what it writes."""

    def __init__(self, build, work):
        self.program, self.work = build / "larkfen-capture", work

    def __call__(self, *arguments):
        done = subprocess.run([self.program, SMALL, *map(str, arguments)], cwd=self.work, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=600,
                              stdin=subprocess.DEVNULL, check=False)
        return done.returncode, done.stdout

    def until(self, condition, number, *arguments):
        """Starts it, sends a signal to it and the encoder once a condition holds; what it said."""
        with subprocess.Popen([self.program, SMALL, *map(str, arguments)], cwd=self.work, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              start_new_session=True) as running:
            for _ in range(6000):
                if condition() or running.poll() is not None:
                    break
                time.sleep(0.05)
            ended = running.poll() is not None
            if not ended:
                os.killpg(running.pid, number)
            said, _ = running.communicate(timeout=120)
            return running.returncode, said, not ended


def probe(path, stream, fields, section="stream"):
    """Lines of ffprobe."""
    return subprocess.run(["ffprobe", "-v", "error", "-select_streams", stream, "-show_entries",
                           f"{section}={fields}", "-of", "csv=p=0", path], check=True, text=True,
                          stdout=subprocess.PIPE, timeout=120).stdout.split()


def pictures(path, size=SIZE):
    """Every picture of a file, made as small as the production's."""
    raw = subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-vf",
                          f"scale={size[0]}:{size[1]}:flags=neighbor:in_color_matrix=bt709", "-f",
                          "rawvideo", "-pix_fmt", "rgb24", "-fps_mode", "passthrough", "-"],
                         check=True, stdout=subprocess.PIPE, timeout=120).stdout
    return numpy.frombuffer(raw, numpy.uint8).reshape(-1, size[1], size[0], 3).astype(int)


def sound(path):
    """The samples of a file."""
    raw = subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-vn", "-f", "s16le", "-ac", "2", "-"],
                         check=True, stdout=subprocess.PIPE, timeout=120).stdout
    return numpy.frombuffer(raw, numpy.int16)


def nearest(picture, frames):
    """Which of the frames a picture shows, and how far it is from that."""
    away = [numpy.abs(picture - frame).mean() for frame in frames]
    best = int(numpy.argmin(away))
    return best, away[best]


def frames_of(record, work):
    """The stretch as exact pictures."""
    code, said = record("--frames", f"{FIRST}:{END}", "--png", "exact")
    check("exact pictures", code == 0, said)
    return [numpy.array(Image.open(path)).astype(int)
            for path in sorted((work / "exact").glob("*.png"))]


def rate_tests(record, work, exact):
    """Each picture shows the frame that is due at its time; the sound is that of 40 a second."""
    for rate in (40, 60, 25):
        name = f"at{rate}.mp4"
        code, said = record("--frames", f"{FIRST}:{END}", "--scale", 2, "--fps", rate, "--video",
                            name)
        check(f"a video of {rate} pictures a second", code == 0, said)
        count = -(-len(exact) * rate // 40)
        shown = pictures(work / name)
        due = [k * 40 // rate for k in range(count)]
        got = [nearest(picture, exact) for picture in shown]
        check(f"{rate}: every picture is due", [n for n, _ in got] == due, [n for n, _ in got])
        check(f"{rate}: in the right colours", max(away for _, away in got) < 6,
              [round(away, 1) for _, away in got])
        told = probe(work / name, "v", "width,height,sample_aspect_ratio,pix_fmt,color_range,"
                                       "color_space,color_transfer,color_primaries,r_frame_rate")
        check(f"{rate}: as sites want it", told == [f"640,480,1:1,yuv420p,tv,bt709,bt709,bt709,{rate}/1"],
              told)
        times = sorted(float(t.rstrip(",")) for t in probe(work / name, "v", "pts_time", "packet"))
        check(f"{rate}: pictures are evenly spaced", len(times) == count and
              all(abs(t - k / rate) < 1e-5 for k, t in enumerate(times)), times)
        raw = (work / name).read_bytes()
        check(f"{rate}: what a player reads first stands first",
              0 < raw.find(b"moov") < raw.find(b"mdat"))
    heard = [sound(work / f"at{rate}.mp4") for rate in (40, 60)]
    length = min(map(len, heard)) - 4096
    check("the sound does not depend on the rate", length > 44100 and heard[0].any() and
          (heard[0][:length] == heard[1][:length]).all())


def resume_tests(record, work):
    """What is whole of a video outlives its end, and the next call goes on after it."""
    film = ["--frames", "0:900", "--fps", 60, "--video", "film.mp4", "--resume"]
    pieces = work / "film.mp4.pieces"

    def there(count):
        return lambda: len(list(pieces.glob("piece-*.mp4"))) >= count

    code, said, stopped = record.until(there(1), signal.SIGKILL, *film)
    check("killed after ten seconds of film", stopped and code == -signal.SIGKILL, said)
    first = next(iter(sorted(pieces.glob("piece-0000-*.mp4"))), None)
    check("a whole piece is there", first is not None, list(work.iterdir()))
    if first is None:
        return
    kept = (first.stat().st_mtime_ns, hashlib.sha256(first.read_bytes()).hexdigest())
    code, said = record(*film[:3], 30, *film[4:])
    check("other settings are refused", code == 1 and "film.mp4.pieces was begun with other settings: "
          "320x240, 60 pictures a second, from frame 0 to 899; give the same or remove it" in said, said)
    code, said, stopped = record.until(there(2), signal.SIGINT, *film)
    check("interrupted after twenty", stopped and code == 1 and "film.mp4.pieces holds 2 pieces of 400 "
          "frames; the same call goes on after them" in said, said)
    check("the first piece was not made again", first.exists() and kept ==
          (first.stat().st_mtime_ns, hashlib.sha256(first.read_bytes()).hexdigest()))
    check("nothing half is there", not (work / "film.mp4").exists() and
          not list(pieces.glob("*.part")), list(pieces.iterdir()))
    wrong = first.with_name("piece-0000-0123456789abcdef.mp4")
    first.rename(wrong)
    code, said = record(*film)
    check("a piece of other frames is found out", code == 1 and wrong.name in said and
          "shows other frames than are played now; remove it" in said, said)
    wrong.rename(first)
    code, said = record(*film)
    check("the third call finishes it", code == 0 and (work / "film.mp4").exists(), said)
    check("and leaves nothing else", not pieces.exists() and not list(work.glob("film*.part")))
    times = sorted(float(t.rstrip(",")) for t in probe(work / "film.mp4", "v", "pts_time", "packet"))
    check("no picture is lost where pieces meet", len(times) == 1350 and
          all(abs(t - k / 60) < 1e-4 for k, t in enumerate(times)), len(times))
    check("it decodes to every picture", len(pictures(work / "film.mp4")) == 1350)


def loop_tests(record, work, exact):
    """Moving pictures for a page."""
    for ending in ("gif", "webp"):
        name = f"loop.{ending}"
        code, said = record("--frames", f"{FIRST}:{END}", "--video", name)
        check(f"a .{ending} is made", code == 0 and (work / name).exists(), said)
        with Image.open(work / name) as image:
            count, size, again = image.n_frames, image.size, image.info.get("loop")
            lasts = []
            far = []
            for k in range(count):
                image.seek(k)
                far.append(nearest(numpy.array(image.convert("RGB")).astype(int), exact))
                lasts.append(image.info["duration"])
        check(f".{ending}: 20 pictures a second, again and again", count == 20 and size == SIZE and
              again == 0 and set(lasts) == {50}, (count, size, again, lasts))
        check(f".{ending}: every second frame", [n for n, _ in far] == list(range(0, 40, 2)) and
              max(away for _, away in far) < 14, far)


def usage_tests(record, work):
    """What is refused, in one line that names it."""
    for words, told in ((["--fps", "60", "--png", "x"], "--fps: give --video with it"),
                        (["--resume", "--png", "x"], "--resume: give --video with it"),
                        (["--video", "a.gif"], "--video: a .gif or .webp file shows at most 30 "
                         "seconds; give --frames A:B"),
                        (["--video", "a.webp", "--frames", "0:1201"], "at most 30 seconds"),
                        (["--video", "a.gif", "--frames", "0:9", "--fps", "30"], "--fps: a .gif"),
                        (["--video", "a.gif", "--frames", "0:9", "--resume"], "--resume: only"),
                        (["--video", "a.mp4", "--fps", "241"], "--fps"),
                        (["--video", "a.mp4", "--fps", "0"], "--fps")):
        code, said = record(*words)
        check("refused: " + " ".join(words), code == 2 and told in said and said.count("\n") == 1, said)
    check("refused calls write nothing", not list(work.glob("a.*")) and not (work / "x").exists())


def main():
    work = pathlib.Path(tempfile.mkdtemp(prefix="ombrel-videos-"))
    record = Recorder(pathlib.Path(sys.argv[1]).resolve(), work)
    try:
        usage_tests(record, work)
        exact = frames_of(record, work)
        rate_tests(record, work, exact)
        loop_tests(record, work, exact)
        resume_tests(record, work)
    finally:
        shutil.rmtree(work)
    print(f"{len(PASSED)} passed, {len(FAILED)} failed")
    return 1 if FAILED else 0


if __name__ == "__main__":
    sys.exit(main())
