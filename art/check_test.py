#!/usr/bin/python3
"""Shows that the checks of check_world.py, check_pictures.py and compare.py find what they are for.

Usage: check_test.py        each case breaks one thing in a copy; prints "N passed, N failed"
"""
import contextlib
import io
import pathlib
import shutil
import sys
import tempfile

import numpy as np

import check_pictures as pictures_of
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
        expect("a face less", said(verts, v[:-1]), "3 open edges")
        expect("a face in the middle less", said(verts, np.delete(v, -300, 0)), "open edges")
        expect("seen from outside", said(verts, v[:, ::-1]), "the wrong way")
        expect("too wide", said(verts * 1.1, v), "radius")
        inner = np.concatenate([verts, 0.95 * verts[v[-9]]])
        star = np.arange(len(verts), len(verts) + 3)
        expect("a hole patched inside",
               said(inner, np.concatenate([np.delete(v, -9, 0), [star]])), "open edges")
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
            least = world.report_flight("scene one", way, cloud, np.array([0]), ["stone"])
        counts[0 if (least < 100) == (name == "near") else 1] += 1
    # The sea counts until the dive, other things behind it too.
    for dive, owner, near in ((700, 0, False), (900, 0, True), (700, 1, True)):
        cloud = np.concatenate([way[800:801, 0:3] + (0, 50.0, 0), way[800:801, 0:3] + (0, 900.0, 0),
                                way[800:801, 0:3] + (0, 900.0, 0)])
        with contextlib.redirect_stdout(io.StringIO()):
            least = world.report_flight("scene one", way, cloud, np.array([owner, 1, 0]),
                                        ["sea", "stone"], "sea", dive)
        counts[0 if (least < 100) == near else 1] += 1
    cloud = np.array([(0.0, -9000.0, 0.0)])

    def flown(path):
        return complaints(lambda: world.report_flight("scene one", path, cloud, np.array([0]),
                                                      ["stone"]))

    expect("the flight as it is", flown(way), "")
    for column, name in ((4, "turned"), (3, "tilted")):
        fast = way.copy()
        fast[500:, column] += 1.5
        expect(name, flown(fast), "degrees a frame")


def densities():
    """A wall of one face, 320 units before the eye: a unit is a pixel."""
    way = np.zeros((2, 6))
    wall = np.array([[(-900.0, -600, 320), (0, 1200, 320), (900, -600, 320)]])
    for unit, name in ((1.0, ""), (4.0, ""), (20.0, "smeared"), (0.1, "sparkle")):
        expect("a texel of %g units" % unit,
               complaints(lambda: world.check_texels("scene one", way, wall, np.array([unit]),
                                                     np.array([0]), ["wall"])), name)
    expect("seen from behind", complaints(lambda: world.check_texels(
        "scene one", way, wall[:, ::-1], np.array([20.0]), np.array([0]), ["wall"])), "")


def frames():
    """Measures of pictures, on pictures made for them."""
    columns = np.zeros((48, 64, 3), np.uint8)
    columns[:, 0:20] = (30, 90, 250)
    columns[:, 20:40] = (240, 40, 130)
    columns[:, 40:60] = (250, 170, 30)
    moved = np.roll(columns, 15, axis=1)
    good = {call: columns if call // 200 % 2 else moved for call in range(1811, 3900, 10)}
    said = lambda pages: "; ".join(pictures_of.check_points(pages))
    expect("good points", said(good), "")
    white = moved.copy()
    white[:6] = 150
    expect("pale", said({**good, 2001: white}), "12.5 % of the picture are pale")
    white[:6] = (150, 150, 140)
    expect("not pale", said({**good, 2001: white}), "")
    two = columns.copy()
    two[:, 40:] = two[:, 0:1]
    tenth = {call: two for call in list(good)[::11]}
    expect("two groups in one picture of eleven", said({**good, **tenth}), "")
    expect("two groups in one picture of six",
           said({**good, **{call: two for call in list(good)[::6]}}), "groups of hues")
    expect("grey counts for no group", str(pictures_of.hue_shares(columns // 8)), "[0.0, 0.0, 0.0")
    expect("nothing moves", said({call: columns for call in good}), "the same picture")
    dark = np.zeros((480, 640, 3), np.uint8)
    all_frames = {f: dark for f in range(0, 6010, 10)}
    read = lambda pages: "; ".join(pictures_of.check_texts(pages))
    expect("texts on black", read(all_frames), "")
    bright = dark.copy()
    bright[60:110] = 200
    expect("a text on white", read({**all_frames, 4100: bright}), "page 2, 4: 100 % pale behind it")
    bright = dark.copy()
    bright[230:262] = 200
    expect("a title on white", read({**all_frames, 600: bright}), "subtitle: 100 % pale behind it")
    expect("the title is gone", read({**all_frames, 650: bright}), "")
    expect("texts that no picture shows", read({f: dark for f in all_frames if f < 5900}),
           "see ya: no picture")


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
densities()
frames()
comparison()
print("%d passed, %d failed" % tuple(counts))
sys.exit(1 if counts[1] else 0)
