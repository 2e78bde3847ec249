"""Screenshots against frames of the production: a part of the screen is turned back into 5-6-5
pixels and its hash looked up among the hash lines of the recorder."""
import gzip
import pathlib
import time

import numpy

from wine_desk import SLOW, WIDTH, expect

MASK = (1 << 64) - 1
STORED = pathlib.Path(__file__).resolve().parent.parent / "scenario/frames.txt.gz"


def crop(screen, left, top, width, height, step=1):
    """Bytes of 5-6-5 pixels, little-endian; every step-th pixel and row."""
    rows = numpy.frombuffer(screen, numpy.uint8).reshape(-1, WIDTH, 3)
    part = rows[top:top + height * step:step, left:left + width * step:step].astype("<u2")
    return (part[..., 0] >> 3 << 11 | part[..., 1] >> 2 << 5 | part[..., 2] >> 3).tobytes()


def fnv(data):
    """The 64-bit FNV-1a hash, as 16 digits."""
    value = 0xcbf29ce484222325
    for byte in data:
        value = (value ^ byte) * 0x100000001b3 & MASK
    return f"{value:016x}"


def stored_frames():
    """[(frame number, hash of the picture)] of the whole production at 640x480, as stored."""
    with gzip.open(STORED, "rt") as file:
        return read_frames(file)


def read_frames(lines):
    """[(frame number, hash of the picture)] of lines of the recorder or of the stored ones;
    in both the hash is the last word."""
    words = [line.split() for line in lines]
    return [(int(word[1]), word[-1]) for word in words]


def by_hash(frames):
    """{hash: first frame number}."""
    return {picture: number for number, picture in reversed(frames)}


def find_frame(desk, name, known, place, scale=1):
    """Screenshots until the pixels at place (left, top, width, height) are a frame; its number.
    While the production loads they are black, and a screenshot can fall between the parts of a
    frame; so it looks again until its time is up."""
    left, top, width, height = place
    end = time.monotonic() + SLOW
    while True:
        screen = desk.screenshot(name)
        data = crop(screen, left, top, width, height, scale)
        frame = known.get(fnv(data)) if any(data) else None
        if frame is not None:
            break
        expect(time.monotonic() < end, f"no frame of the production at {left}, {top}"
                                       f"{'' if any(data) else ' but black'}")
        time.sleep(0.3)
    if scale > 1:
        expect_sharp(screen, place, scale)
    return frame


def expect_sharp(screen, place, scale):
    """Every pixel of the frame is a square of scale x scale equal pixels."""
    left, top, width, height = place
    for y in range(top, top + height * scale, scale):
        first = screen[(y * WIDTH + left) * 3:(y * WIDTH + left + width * scale) * 3]
        for k in range(1, scale):
            row = screen[((y + k) * WIDTH + left) * 3:][:len(first)]
            expect(row == first, f"row {y + k} is not row {y}")
        for channel in range(3):
            values = first[channel::3]
            for k in range(1, scale):
                expect(values[0::scale] == values[k::scale], f"row {y} is not sharp")
