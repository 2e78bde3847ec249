#!/usr/bin/env python3
"""Compares two data folders: what the sources give and what is committed.

Usage: compare.py MADE COMMITTED [--unbaked]
Files that scripts make alone must agree byte for byte.  Baked pictures may differ by a rounding of
the ray tracer on another machine: their mean difference must stay below 2 of 255, and the objects
with uv from the baker must have the same vertices and faces.  --unbaked leaves those out (MADE was
built without Blender).  The soundtrack is compared by its own tools.
"""
import pathlib
import sys

import numpy as np

sys.path.insert(0, str(pathlib.Path(__file__).parent / "world"))
from manifest import BAKED  # noqa: E402


def pixels(path):
    return np.frombuffer(path.read_bytes()[54:], np.uint8).astype(int)


def form(path):
    text = path.read_text().splitlines()
    first = text.index("Transform")
    last = next(i for i, s in enumerate(text) if s.startswith("Texture Vertices"))
    return text[first:last], sum(s.startswith("Face verts") for s in text)


def main():
    made, kept = (pathlib.Path(a) for a in sys.argv[1:3])
    unbaked = "--unbaked" in sys.argv
    good, bad = 0, 0
    names = sorted(p.relative_to(kept) for p in kept.rglob("*") if p.is_file())
    for extra in sorted(p.relative_to(made) for p in made.rglob("*") if p.is_file()):
        if extra not in names:
            print("not committed:", extra)
            bad += 1
    for name in names:
        if name.parts[0] == "sfx" or name.parts[0].startswith("."):
            continue
        lit = name.suffix == ".bmp" and name.stem.startswith(("isle", "dial"))
        baked = name.stem in BAKED and name.suffix in (".bmp", ".cob")
        if unbaked and (lit or baked) and name.suffix == ".bmp":
            continue
        a, b = made / name, kept / name
        if not a.exists():
            why = "is not made by the sources"
        elif a.read_bytes() == b.read_bytes():
            why = None
        elif baked and name.suffix == ".cob":
            why = None if form(a) == form(b) else "has another form"
        elif baked or lit:
            p, q = pixels(a), pixels(b)
            why = ("has another size" if p.shape != q.shape else None
                   if np.abs(p - q).mean() < 2 else "looks different")
        else:
            why = "differs"
        if why:
            print("%s %s" % (name, why))
            bad += 1
        else:
            good += 1
    print("%d passed, %d failed" % (good, bad))
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
