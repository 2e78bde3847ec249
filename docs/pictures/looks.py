#!/usr/bin/python3
"""Draws the pictures of inside-a-frame.md again: one frame of the production, and each look into it.
Usage: docs/pictures/looks.py [RECORDER]     (build/release/larkfen-capture)
Writes docs/pictures/looks/*.png, and looks.png with three of them side by side."""
import pathlib
import subprocess
import sys
import tempfile

from PIL import Image

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
OUT = pathlib.Path(__file__).resolve().parent / "looks"
FRAME = 2120  # by night: blurred, lit by lamps, with text over it
LOOKS = ["no-blur", "wires", "dots", "lights-off", "lights", "back-faces", "depth", "overdraw",
         "fillers", "objects", "density"]
THREE = ["wires", "none", "depth"]  # side by side in the README
SIZE = (400, 300)
GAP = 6


def draw(recorder, look, work):
    """The frame with a look into it."""
    more = [] if look == "none" else ["--look", look]
    subprocess.run([recorder, "--data", ROOT / "data", "--frames", f"{FRAME}:{FRAME + 1}", "--png",
                    work / look, *more], check=True, stderr=subprocess.DEVNULL)
    return Image.open(work / look / f"frame-{FRAME:06d}.png").convert("RGB")


def save(picture, path):
    """Small: 128 colours are enough for a document."""
    few = picture.quantize(128, Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    few.save(path, optimize=True)


def main():
    recorder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else
                            ROOT / "build/release/larkfen-capture").resolve()
    OUT.mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory() as name:
        work = pathlib.Path(name)
        small = {look: draw(recorder, look, work).resize(SIZE, Image.Resampling.BOX)
                 for look in ["none"] + LOOKS}
    for look, picture in small.items():
        save(picture, OUT / f"{look}.png")
    row = Image.new("RGB", (len(THREE) * SIZE[0] + (len(THREE) - 1) * GAP, SIZE[1]), "white")
    for i, look in enumerate(THREE):
        row.paste(small[look], (i * (SIZE[0] + GAP), 0))
    save(row, OUT.parent / "looks.png")


if __name__ == "__main__":
    main()
