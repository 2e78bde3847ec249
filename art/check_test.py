#!/usr/bin/python3
"""Shows that the checks of check_world.py and compare.py find what they are for.

Usage: check_test.py        each case breaks one thing in a copy; prints "N passed, N failed"
"""
import contextlib
import io
import pathlib
import shutil
import sys
import tempfile

import numpy as np

import check_world as world
import compare

DATA = pathlib.Path(__file__).parent / "../data"
TEX = DATA / "texture"
counts = [0, 0]


def expect(name, said, part):
    good = part in said if part else not said
    counts[0 if good else 1] += 1
    if not good:
        print("FAILED %s: %r was said, %r expected" % (name, said, part))


def complaints(check):
    """What a check calls wrong, its other words dropped."""
    world.problems.clear()
    with contextlib.redirect_stdout(io.StringIO()):
        check()
    return "; ".join(world.problems)


def object_said(text, tex=TEX):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "broken.cob"
        path.write_text(text, "ascii")
        return complaints(lambda: world.check_object(path, tex))


def line_after(text, start, number, change):
    """The text with one line changed: the number-th behind the one that starts so."""
    lines = text.split("\n")
    at = next(i for i, s in enumerate(lines) if s.startswith(start)) + number
    lines[at] = change(lines[at])
    return "\n".join(lines)


def objects():
    lamp = (DATA / "3d/lamp.cob").read_text("ascii")
    expect("lamp as it is", object_said(lamp), "")
    first = lambda value: lambda s: " ".join([value] + s.split()[1:])
    expect("u above 1", object_said(line_after(lamp, "Texture Vertices", 1, first("1.01"))),
           "uv outside")
    expect("u below 0", object_said(line_after(lamp, "Texture Vertices", 1, first("-0.01"))),
           "uv outside")
    expect("index", object_said(line_after(lamp, "Faces ", 2,
                                           lambda s: s.replace("<", "<99", 1))), "index is outside")
    expect("four corners", object_said(line_after(lamp, "Faces ", 1,
                                                  lambda s: s.replace(" 3 ", " 4 ", 1))),
           "no triangle")
    expect("material left out", object_said(lamp.replace("mat# 1", "mat# 7")), "materials")
    expect("no slash", object_said(lamp.replace(".\\lamp.bmp", "lamp.bmp")
                                   .replace("./lamp.bmp", "lamp.bmp")), "without a slash")
    expect("no such texture", object_said(lamp.replace("lamp.bmp", "lump.bmp")), "is missing")
    expect("long line", object_said(lamp + "\nx" + 1100 * "y" + "\n"), "too long")


def pictures():
    whole = bytearray((TEX / "lamp.bmp").read_bytes())

    def said(at, value):
        raw = bytearray(whole)
        raw[at] = value
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "lamp.bmp"
            path.write_bytes(raw)
            return complaints(lambda: world.bmp_size(path))

    expect("picture as it is", said(0, whole[0]), "")
    expect("8 bits", said(28, 8), "kind of picture")
    expect("compressed", said(30, 1), "compressed")
    expect("pixel bytes", said(34, whole[34] ^ 4), "pixel bytes")
    with tempfile.TemporaryDirectory() as folder:
        tex = pathlib.Path(folder)
        shutil.copy(DATA / "2d/font-48.bmp", tex / "lamp.bmp")
        expect("not square", object_said((DATA / "3d/lamp.cob").read_text("ascii"), tex),
               "788 x 689")


def skies():
    for name in ("sky-sphere-04.cob", "sky-sphere-04-alpha-s2.cob"):
        verts, _, corners, _, _ = world.read_cob(DATA / "3d" / name)
        v = corners[:, 0::2]
        said = lambda p, f: complaints(lambda: world.check_sky(name, p, f))
        expect(name, said(verts, v), "")
        expect("a face less", said(verts, v[1:]), "3 open edges")
        expect("a face in the middle less", said(verts, np.delete(v, len(v) // 2, 0)), "open edges")
        expect("seen from outside", said(verts, v[:, ::-1]), "the wrong way")
        expect("too wide", said(verts * 1.1, v), "radius")
        expect("too narrow", said(verts * 0.8, v), "radius")


def flights():
    one = world.read_track(DATA / "cam/scene1.trk")
    two = world.read_track(DATA / "cam/scene2.trk")
    expect("tracks", complaints(lambda: world.check_tracks(one, two)), "")
    expect("34 keys", complaints(lambda: world.check_tracks(one[:-1], two)), "35 keys")
    slow = one.copy()
    slow[33, 10] = 0.5
    expect("step of key 33", complaints(lambda: world.check_tracks(slow, two)), "step of key 33")
    expect("36 keys", complaints(lambda: world.check_tracks(one, np.concatenate([two, two[:1]]))),
           "36 keys")
    way = world.fly(one, 1 << 20)[:-1]
    for offset, name in ((300.0, "far"), (50.0, "near")):
        cloud = way[800:801, 0:3] + (0, offset, 0)
        with contextlib.redirect_stdout(io.StringIO()):
            least = world.report_flight("x", way, cloud, np.array([0]), ["stone"])
        counts[0 if (least < 100) == (name == "near") else 1] += 1


def comparison():
    with tempfile.TemporaryDirectory() as folder:
        made, kept = pathlib.Path(folder) / "made", pathlib.Path(folder) / "kept"
        for side in (made, kept):
            (side / "cam").mkdir(parents=True)
            (side / "texture").mkdir()
            shutil.copy(DATA / "cam/scene1.trk", side / "cam")
            shutil.copy(TEX / "lamp.bmp", side / "texture")

        def said():
            out = io.StringIO()
            old, sys.argv = sys.argv, ["compare.py", str(made), str(kept)]
            with contextlib.redirect_stdout(out):
                code = compare.main()
            sys.argv = old
            return "" if code == 0 else out.getvalue()

        expect("the same", said(), "")
        baked = bytearray((made / "texture/lamp.bmp").read_bytes())
        baked[2000] ^= 1
        (made / "texture/lamp.bmp").write_bytes(baked)
        expect("a rounding of the baker", said(), "")
        (made / "texture/lamp.bmp").write_bytes(baked[:54] + bytes(255 - b for b in baked[54:]))
        expect("another bake", said(), "looks different")
        shutil.copy(TEX / "lamp.bmp", made / "texture")
        track = made / "cam/scene1.trk"
        track.write_bytes(track.read_bytes().replace(b"90.0", b"91.0", 1))
        expect("a key", said(), "scene1.trk differs")
        track.unlink()
        expect("a file less", said(), "is not made by the sources")


objects()
pictures()
skies()
flights()
comparison()
print("%d passed, %d failed" % tuple(counts))
sys.exit(1 if counts[1] else 0)
