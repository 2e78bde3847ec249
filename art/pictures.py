#!/usr/bin/python3
"""Makes the pictures of the production that the README and the release show, from one run of the
recorder: single frames, a sheet of sixteen, and a poster, each pixel a square of 4 x 4.

Usage: pictures.py CAPTURE [FOLDER]     CAPTURE is larkfen-capture; into docs/pictures without FOLDER
"""
import pathlib
import sys
import tempfile

from PIL import Image

import check_pictures

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Frames of the production; multiples of check_pictures.EVERY.
SINGLE = {"globe": 2040, "scene-one": 800, "scene-two": 3420, "points": 3900}
POSTER = 2040
SHEET = (100, 320, 640, 800, 1280, 1640, 1880, 2040,
         2140, 2940, 3420, 3820, 3900, 4320, 5000, 5860)
COLUMNS, CELL, GAP = 4, (320, 240), 4


def sheet(pages):
    rows = -(-len(pages) // COLUMNS)
    wide, high = (n + GAP for n in CELL)
    out = Image.new("RGB", (COLUMNS * wide, rows * high))
    for k, page in enumerate(pages):
        out.paste(page.resize(CELL, Image.LANCZOS),
                  (k % COLUMNS * wide + GAP // 2, k // COLUMNS * high + GAP // 2))
    return out


def main():
    if len(sys.argv) not in (2, 3):
        raise SystemExit(__doc__)
    out = pathlib.Path(sys.argv[2]) if len(sys.argv) == 3 else ROOT / "docs/pictures"
    with tempfile.TemporaryDirectory() as folder:
        files = check_pictures.record(sys.argv[1], ROOT / "data", folder)

        def page(frame):
            return Image.open(files[frame]).convert("RGB")

        for name, frame in SINGLE.items():
            page(frame).save(out / (name + ".png"), optimize=True)
        poster = page(POSTER)
        poster.resize((4 * poster.width, 4 * poster.height), Image.NEAREST).save(
            out / "poster.png", optimize=True)
        sheet([page(f) for f in SHEET]).save(out / "sheet.jpg", quality=90)


if __name__ == "__main__":
    main()
