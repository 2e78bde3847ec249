#!/usr/bin/env python3
"""Reads data/ as the program will and checks it against what the renderer can bear.

Usage: check_world.py [DATA_FOLDER] [--flights] [--frames CAPTURE]    status 1: something is wrong
Prints one line an object: faces, vertices, materials, radius, texture; with --flights also speed,
turn rate, height and clearance along both tracks, and how large texels get; with --frames the
pictures too (check_pictures.py): CAPTURE is the recorder, larkfen-capture, and the run takes a
minute.
"""
import math
import pathlib
import re
import struct
import sys

import numpy as np

import check_pictures

FIXED = {                         # file: (scale x y z, origin x y z)
    "sky-sphere-04.cob": ((1000, 1000, 1000), (0, 2000, 0)),
    "sky-sphere-04-alpha0.cob": ((1000, 1000, 1000), (0, 2000, 0)),
    "sky-sphere-04-alpha-s2.cob": ((1000, 1000, 1000), (0, 2000, 0)),
    "stay-01.cob": ((1100, 1100, 1100), (0, -560, 0)),
    "ground-lowpoly-03.cob": ((80, 125, 125), (0, 0, 0)),
    "ground-lowpoly-03-alpha.cob": ((80, 125, 125), (0, 0, 0)),
    "light_debug.cob": ((100, 100, 100), (0, 0, 0)),
}
# A sky's shell: no face of it is smaller than this or nearer than that (thousands of units).
SHELL_EDGE, SHELL_RADIUS = 0.7, 8.9
LIGHT_BELOW = -60.0
POINTS_FROM = 1801                # call of scene two that first draws points
DIVE = 60                         # calls before it in which the eye goes down to the sea
# Texels: a smeared one is wider than so many pixels, one that sparkles narrower; and how much of a
# picture, in percent, may be covered with such.
SMEARED, MOST_SMEARED = 9.0, 22.0
SPARKLES, MOST_SPARKLING = 0.22, 12.0
MOST_TURN = {"scene one": 0.65, "scene two": 0.65}     # degrees a frame
problems = []


def wrong(text):
    problems.append(text)
    print("WRONG", text)


def read_cob(path):
    """The parts of an object file: vertices, uv, faces, materials in file order."""
    lines = [s for s in path.read_text("ascii").splitlines() if s and not s.startswith("#")]
    if max(map(len, lines)) > 1023:
        wrong("%s: a line is too long" % path.name)
    at = {s.rsplit(" ", 1)[0]: i for i, s in enumerate(lines)
          if s.startswith(("World Vertices", "Texture Vertices", "Faces "))}
    n = int(lines[at["World Vertices"]].split()[2])
    verts = np.array([s.split() for s in lines[at["World Vertices"] + 1:][:n]], float)
    t = int(lines[at["Texture Vertices"]].split()[2])
    uvs = np.array([s.split() for s in lines[at["Texture Vertices"] + 1:][:t]], float)
    f = int(lines[at["Faces"]].split()[1])
    body = lines[at["Faces"] + 1:]
    mats = [int(s.split()[6]) for s in body[0:2 * f:2]]
    if any(s.split()[2] != "3" for s in body[0:2 * f:2]):
        wrong("%s: a face is no triangle" % path.name)
    corners = np.array([[int(v) for v in re.findall(r"-?\d+", s)] for s in body[1:2 * f:2]])
    blocks, cur = [], None
    for s in body[2 * f:]:
        if s.startswith("mat#"):
            cur = {"number": int(s.split()[1]), "texture": None, "filter": None}
            blocks.append(cur)
        elif s.startswith("file name: string "):
            cur["texture"] = s[18:].strip('"')
            if not re.search(r"[\\/]", cur["texture"]):
                wrong("%s: texture name without a slash" % path.name)
        elif s.startswith("colour:"):
            cur["filter"] = max(map(int, re.findall(r"\d+", s)))
        elif s.startswith("Shader name:"):
            cur["class"] = s.split('"')[1]            # the last one is the reflectance
    return verts, uvs, corners, mats, blocks


def rotation(ax, ay, az):
    """Row-vector matrix of a turn about X, then Y, then Z; positive ay turns north to east."""
    a, b, c = (math.radians(v) for v in (ax, ay, az))
    x = np.array(((1, 0, 0), (0, math.cos(a), math.sin(a)), (0, -math.sin(a), math.cos(a))))
    y = np.array(((math.cos(b), 0, -math.sin(b)), (0, 1, 0), (math.sin(b), 0, math.cos(b))))
    z = np.array(((math.cos(c), math.sin(c), 0), (-math.sin(c), math.cos(c), 0), (0, 0, 1)))
    return x @ y @ z


def fixed_world(verts, scale):
    v = verts[:, [2, 1, 0]] * np.array(scale, float)
    return v @ rotation(0, 0, 90)


def bmp_size(path):
    raw = path.read_bytes()
    w, h, _, bits = struct.unpack_from("<iiHH", raw, 18)
    compression, size = struct.unpack_from("<II", raw, 30)
    if raw[:2] != b"BM" or bits not in (16, 24) or h <= 0 or w % 4:
        wrong("%s: kind of picture (%d x %d, %d bits)" % (path.name, w, h, bits))
    if size != w * h * bits // 8 or struct.unpack_from("<I", raw, 10)[0] + size != len(raw):
        wrong("%s: pixel bytes must be stated and stand last" % path.name)
    if compression != 0:
        wrong("%s: compressed" % path.name)
    return w, h


def check_object(path, tex):
    verts, uvs, corners, mats, blocks = read_cob(path)
    name = path.name
    n, f = len(verts), len(corners)
    used = []
    for m in mats:
        if m not in used:
            used.append(m)
    numbers = [b["number"] for b in blocks]
    if numbers != list(range(len(numbers))) or sorted(used) != numbers:
        wrong("%s: materials %s, used %s" % (name, numbers, sorted(used)))
    if f > 16384 or f > 3 * n or n > 8192 or len(uvs) > 9 * n:
        wrong("%s: counts %d faces %d vertices %d uv" % (name, f, n, len(uvs)))
    v, t = corners[:, 0::2], corners[:, 1::2]
    if v.min() < 0 or v.max() >= n or t.min() < 0 or t.max() >= len(uvs):
        wrong("%s: an index is outside" % name)
        v = np.clip(v, 0, n - 1)
    if uvs.min() < 0 or uvs.max() > 1:
        wrong("%s: uv outside 0..1" % name)
    p = verts[v]
    area = np.linalg.norm(np.cross(p[:, 1] - p[:, 0], p[:, 2] - p[:, 0]), axis=1)
    if (area <= 0).any():
        wrong("%s: %d faces without area" % (name, (area <= 0).sum()))
    textures = {b["texture"] for b in blocks if b["texture"]}
    if len(textures) > 1:
        wrong("%s: more than one texture" % name)
    for b in blocks:
        if b["class"] == "phong":
            wrong("%s: phong is not drawn" % name)
        if b["filter"] is not None and not 19 <= b["filter"] <= 255:
            wrong("%s: filter %d draws nothing" % (name, b["filter"]))
    size = "-"
    for s in textures:
        base = re.split(r"[\\/]", s)[-1]
        file = tex / base
        if " " in base or not file.exists():
            wrong("%s: texture %s is missing" % (name, base))
            continue
        w, h = bmp_size(file)
        if w != h or w & (w - 1) or w > 1024:
            wrong("%s: texture %s is %d x %d" % (name, base, w, h))
        size = "%s %d" % (base, w)
    return verts, v, len(blocks), size


def check_winding(name, verts, v, inward):
    """Signed volume of a closed thing in the file: its sign says which side is seen."""
    p = verts[v]
    volume = np.einsum("ij,ij->i", p[:, 0], np.cross(p[:, 1], p[:, 2])).sum() / 6
    if (volume < 0) != inward:
        wrong("%s: faces look the wrong way (volume %.3g)" % (name, volume))


def check_sky(name, verts, v):
    """Closed, seen from inside, and of a size that neither the sphere test nor zFar cuts.  Moon
    and stars, smaller than any face of the shell, float inside it."""
    p = verts[v]
    size = np.linalg.norm(p - p[:, [1, 2, 0]], axis=2).max(axis=1)
    v = v[(size > SHELL_EDGE) | (np.linalg.norm(p, axis=2).min(axis=1) > SHELL_RADIUS)]
    check_winding(name, verts, v, False)
    r = np.linalg.norm(verts[np.unique(v)], axis=1)
    if r.max() * 1000 > 9620 or r.max() * 1000 < 7601:
        wrong("%s: radius %.0f" % (name, r.max() * 1000))
    edges = {}
    rounded = {}
    for f in v:
        ids = [rounded.setdefault(tuple(np.round(verts[k], 3)), len(rounded)) for k in f]
        for a, b in zip(ids, ids[1:] + ids[:1]):
            edges[(a, b)] = edges.get((a, b), 0) + 1
    # Each edge is walked as often in one direction as in the other.
    open_edges = [e for e in edges if edges[e] != edges.get(e[::-1], 0)]
    if open_edges:
        wrong("%s: %d open edges" % (name, len(open_edges)))


def check_tracks(one, two):
    if len(one) != 35 or one[33, 10] != 1.0:
        wrong("scene1.trk: 35 keys, the step of key 33 must be 1")
    if not 3 <= len(two) <= 35:
        wrong("scene2.trk: %d keys" % len(two))


def read_track(path):
    keys = []
    pattern = re.compile(r"^([^,]+), ([^,]+), ([^;]+);\t([^,]+), ([^,]+), ([^;]+);\t"
                         r"([^,]+), ([^,]+), ([^;]+);\t([^;]+);\t([^;]+);$")
    for s in path.read_text("ascii").splitlines():
        m = pattern.match(s)
        if not m:
            wrong("%s: no key: %s" % (path.name, s))
            continue
        keys.append([float(g) for g in m.groups()])
    return np.array(keys)


def fly(keys, limit):
    """Every sample of a track, by the renderer's rule; columns x y z ax ay az."""
    out = []
    for s in range(len(keys) - 2):
        b, k, tension = keys[s + 1, 0:3]
        p0, p1, p2 = keys[s, 3:9], keys[s + 1, 3:9], keys[s + 2, 3:9]
        d0 = (p1 - p0) * (1 + b)
        d1 = (p2 - p1) * (1 - b) - d0
        m0 = ((1 + k) * d1 * 0.5 + d0) * (1 - tension)
        m1 = ((1 - k) * d1 * 0.5 + d0) * (1 - tension)
        u, step = 0.0, keys[s + 1, 10] if keys[s + 1, 10] > 0 else 0.02
        while u < 1.0 and len(out) < limit:
            out.append((u ** 3 - 2 * u * u + u) * m0 + (u ** 3 - u * u) * m1
                       + (2 * u ** 3 - 3 * u * u + 1) * p1 + (3 - 2 * u) * u * u * p2)
            u += step
    return np.array(out)


def thicken(points, faces, gap=60.0):
    """Points spread over the faces, so that clearance is measured to surfaces, not corners."""
    out = [points[np.unique(faces)]]
    p = points[faces]
    longest = max(1.0, np.linalg.norm(p - p[:, [1, 2, 0]], axis=2).max())
    n = int(min(12, math.ceil(longest / gap)))
    for i in range(n + 1):
        for j in range(n + 1 - i):
            a, b = i / n, j / n
            out.append(p[:, 0] * a + p[:, 1] * b + p[:, 2] * (1 - a - b))
    return np.unique(np.round(np.concatenate(out)), axis=0)


def report_flight(name, way, cloud, owner, names, through=None, dive=None):
    """Prints the flight; returns the least clearance.  From frame dive on the object named through
    does not count: the eye goes through it."""
    pos, ang = way[:, 0:3], way[:, 3:6]
    speed = np.linalg.norm(np.diff(pos, axis=0), axis=1)
    turn = np.abs(np.diff(ang[:, 1]))
    tilt = np.abs(np.diff(ang[:, 0]))
    jump = np.abs(np.diff(speed))
    near, who = [], []
    index = list(range(0, len(pos), 4))
    solid = cloud if through is None else cloud[owner != names.index(through)]
    solid_owner = owner if through is None else owner[owner != names.index(through)]
    for k in index:
        if through is not None and k == dive - dive % 4:
            cloud, owner = solid, solid_owner
        d = cloud - pos[k]
        d2 = np.einsum("ij,ij->i", d, d)
        i = int(d2.argmin())
        near.append(math.sqrt(d2[i]))
        who.append(names[owner[i]])
    near = np.array(near)
    print("\n%s: %d frames; speed %.1f to %.1f units a frame, step of speed at most %.2f; turn at "
          "most %.2f, tilt %.2f degrees a frame" % (name, len(way), speed.min(), speed.max(),
                                                  jump.max(), turn.max(), tilt.max()))
    print(" frame       x       y       z   down bearing  speed  turn  clear  nearest")
    for k in range(0, len(way) - 1, max(1, len(way) // 33)):
        i = min(k // 4, len(near) - 1)
        print("%6d %7.0f %7.0f %7.0f %6.1f %7.1f %6.2f %5.2f %6.0f  %s" % (
            k, pos[k, 0], pos[k, 1], pos[k, 2], ang[k, 0], ang[k, 1], speed[k], turn[k], near[i],
            who[i]))
    worst = int(near.argmin())
    print("least clearance %.0f at frame %d (%s)" % (near[worst], index[worst], who[worst]))
    if turn.max() > MOST_TURN[name] or tilt.max() > MOST_TURN[name]:
        wrong("%s: turns %.2f, tilts %.2f degrees a frame" % (name, turn.max(), tilt.max()))
    return near.min()


def texel_sizes(path, tex):
    """Textured faces of an object file: corners, and the units of the file that a texel covers."""
    verts, uvs, corners, mats, blocks = read_cob(path)
    names = {b["texture"] for b in blocks if b["texture"]}
    if not names:
        return np.zeros((0, 3), int), np.zeros(0)
    wide, _ = bmp_size(tex / re.split(r"[\\/]", names.pop())[-1])
    textured = np.isin(mats, [b["number"] for b in blocks if b["texture"]])
    v, t = corners[textured, 0::2], corners[textured, 1::2]
    p, q = verts[v], uvs[t] * (wide - 1)
    area = np.linalg.norm(np.cross(p[:, 1] - p[:, 0], p[:, 2] - p[:, 0]), axis=1)
    a, b = q[:, 1] - q[:, 0], q[:, 2] - q[:, 0]
    return v, np.sqrt(area / np.maximum(np.abs(a[:, 0] * b[:, 1] - a[:, 1] * b[:, 0]), 1e-3))


def seen_faces(sample, faces):
    """Faces that look at the eye of a sample of a flight: which, their depths and areas in pixels."""
    ax, ay = math.radians(sample[3]), math.radians(sample[4])
    ahead = np.array((math.cos(ax) * math.sin(ay), -math.sin(ax), math.cos(ax) * math.cos(ay)))
    right = np.array((math.cos(ay), 0, -math.sin(ay)))
    q = (faces - sample[0:3]) @ np.stack([right, np.cross(ahead, right), ahead], axis=1)
    z = np.maximum(q[..., 2], 1.0)
    x, y = 320 * q[..., 0] / z, 320 * q[..., 1] / z
    n = np.cross(faces[:, 1] - faces[:, 0], faces[:, 2] - faces[:, 0])
    facing = np.einsum("ij,ij->i", n, faces[:, 0] - sample[0:3]) < 0
    mid = (np.abs(x.mean(axis=1)) < 320) & (np.abs(y.mean(axis=1)) < 240)
    k = np.nonzero(facing & mid & (q[..., 2] > 20).all(axis=1))[0]
    x, y = x[k], y[k]
    area = 0.5 * np.abs((x[:, 1] - x[:, 0]) * (y[:, 2] - y[:, 0])
                        - (x[:, 2] - x[:, 0]) * (y[:, 1] - y[:, 0]))
    return k, z[k].mean(axis=1), area


def check_texels(name, way, faces, units, owner, names):
    """How large texels get along a flight; what hides what is not asked."""
    for limit, most, wrong_way in ((SMEARED, MOST_SMEARED, "smeared"),
                                   (SPARKLES, MOST_SPARKLING, "sparkle")):
        worst = (0.0, 0, "")
        for f in range(0, len(way), 32):
            k, depth, area = seen_faces(way[f], faces)
            pixels = 320 * units[k] / depth
            bad = pixels > limit if wrong_way == "smeared" else pixels < limit
            share = np.bincount(owner[k][bad], area[bad], len(names)) / 3072.0
            if share.sum() > worst[0]:
                worst = (share.sum(), f, names[int(share.argmax())])
        print("%s: texels %s %g pixels on %.1f %% of frame %d at most (%s)" % (
            name, "wider than" if wrong_way == "smeared" else "below", limit, *worst))
        if worst[0] > most:
            wrong("%s: texels %s on %.1f %% of frame %d (%s)" % (name, wrong_way, *worst))


def main():
    args, capture = list(sys.argv[1:]), None
    if "--frames" in args:
        at = args.index("--frames")
        if at + 1 == len(args):
            raise SystemExit("--frames needs the recorder (larkfen-capture)")
        capture = args[at + 1]
        del args[at:at + 2]
    flights = "--flights" in args
    args = [a for a in args if not a.startswith("--")]
    data = pathlib.Path(args[0] if args else pathlib.Path(__file__).parent / "../data")
    d3, tex = data / "3d", data / "texture"
    objects, materials = {}, 0
    print("%-30s %6s %6s %4s %7s  %s" % ("object", "faces", "verts", "mats", "radius", "texture"))
    for path in sorted(d3.glob("*.cob")):
        verts, v, count, size = check_object(path, tex)
        objects[path.name] = (verts, v, count)
        if path.name in FIXED:
            materials += count
        print("%-30s %6d %6d %4d %7.2f  %s" % (path.name, len(v), len(verts), count,
                                               np.linalg.norm(verts, axis=1).max(), size))
    for name in FIXED:
        if name not in objects:
            wrong("%s is missing" % name)
    # Skies are seen from inside, everything closed from outside.
    for name in ("sky-sphere-04.cob", "sky-sphere-04-alpha-s2.cob"):
        check_sky(name, *objects[name][:2])
    for name in ("light_debug.cob", "lamp.cob", "reef.cob", "tower.cob", "boat.cob"):
        if name in objects:
            check_winding(name, *objects[name][:2], True)
    for name in ("ground-lowpoly-03.cob", "ground-lowpoly-03-alpha.cob"):
        verts, v, _ = objects[name]
        if 0 in v:
            wrong("%s: vertex 0 must be used by no face" % name)
        if np.linalg.norm(verts[0]) * 125 < 1000:
            wrong("%s: the helper vertex gives too small a radius" % name)
        p = verts[v]
        n = np.cross(p[:, 1] - p[:, 0], p[:, 2] - p[:, 0])
        if (n[:, 2] >= 0).any():
            wrong("%s: faces must be seen from above" % name)
        u = verts[np.unique(v)]
        for axis in (0, 1):
            low = {tuple(q) for q in np.delete(u[np.isclose(u[:, axis], -4)], axis, 1).round(4)}
            high = {tuple(q) for q in np.delete(u[np.isclose(u[:, axis], 4)], axis, 1).round(4)}
            if low != high or not low:
                wrong("%s: opposite edges differ" % name)
        if np.abs(u[:, :2]).max() > 4.0001:
            wrong("%s: reaches beyond its tile" % name)
    # The scene list.
    entries, clouds, owner, names = [], [], [], []
    painted, units, painter = [], [], []
    texels = {name: texel_sizes(d3 / name, tex) for name in objects} if flights else {}
    for line in (data / "scene1.po").read_text("ascii").splitlines():
        path = line.split()[0]
        if "#" in path:
            continue
        nums = [float(s) for s in re.findall(r"-?\d+\.?\d*", line[len(path):])]
        if len(nums) != 9 or not (data / path[len("./data/"):]).exists():
            wrong("scene1.po: %s" % line)
            continue
        entries.append((path.rsplit("/", 1)[1], nums))
    total = 0
    for k, (name, nums) in enumerate(entries):
        verts, v, count = objects[name]
        materials += count
        total += len(v) if k < len(entries) - 1 else 0
        world = verts[:, [0, 2, 1]] * (np.array(nums[0:3]) * 0.1)
        world = world @ rotation(*nums[6:9]) + np.array(nums[3:6]) * 0.1
        used = np.unique(v)
        reach = np.linalg.norm(world[used][:, [0, 2]], axis=1).max()
        if reach > 4200:
            wrong("scene1.po: %s reaches %.0f from the middle" % (name, reach))
        own = np.linalg.norm(verts, axis=1).max()
        true = np.linalg.norm(verts[used], axis=1).max()
        if own < 1.41 * true:
            wrong("%s: no spare vertex for the sphere test (%.2f of %.2f)" % (name, own, true))
        if name != "dummy.cob":
            pts = thicken(world, v)
            # What hangs below the sea is light: the eye may pass through it.
            pts = pts[pts[:, 1] > LIGHT_BELOW]
            clouds.append(pts)
            owner += [len(names)] * len(pts)
            if flights and name != "sea.cob":      # the water tiles cover it
                faces, unit = texels[name]
                painted.append(world[faces])
                units.append(unit * 0.1 * nums[0])
                painter += [len(names)] * len(faces)
            names.append(name[:-4])
    kinds = {name for name, _ in entries[:-1]}
    tile = len(objects["ground-lowpoly-03.cob"][1])
    sky = len(objects["sky-sphere-04.cob"][1])
    print("\n%d lines in the list, %d kinds; %d faces; with 60 tiles and the sky %d; materials of "
          "all files %d" % (len(entries), len(kinds), total, total + 60 * tile + sky, materials))
    if total + 60 * tile + sky > 60000:
        wrong("too many faces")
    if materials > 255:
        wrong("%d materials" % materials)
    if len(kinds) < 12:
        wrong("fewer than 12 kinds of objects")
    for f in ("font-48.bmp", "font-48-16px.bmp"):
        w, h = bmp_size(data / "2d" / f)
        if w < 785 or h < 689:
            wrong("%s: %d x %d" % (f, w, h))
    size = sum(p.stat().st_size for p in data.rglob("*") if p.is_file())
    print("data: %.2f MiB" % (size / 2 ** 20))
    if size >= 24 * 2 ** 20:
        wrong("data is too big")
    manifest = pathlib.Path(__file__).parent / "MANIFEST"
    listed = {s.split(" | ")[0] for s in manifest.read_text().splitlines()[1:]} if \
        manifest.exists() else set()
    there = {p.relative_to(data).as_posix() for p in data.rglob("*") if p.is_file()
             and not any(q.startswith(".") for q in p.relative_to(data).parts)}
    for name in sorted(there ^ listed):
        wrong("MANIFEST and data differ: %s" % name)
    # Tracks.
    one, two = read_track(data / "cam/scene1.trk"), read_track(data / "cam/scene2.trk")
    check_tracks(one, two)
    way1, way2 = fly(one, 1 << 20)[:-1], fly(two, 3967)
    if len(way2) < 3967:
        wrong("scene2.trk lasts %d frames, 3967 are needed" % len(way2))
    if flights:
        cloud = np.concatenate(clouds)
        owner = np.array(owner)
        for name, way in (("scene one", way1), ("scene two", way2)):
            crossing = ("sea", POINTS_FROM - DIVE) if name == "scene two" else (None, None)
            if report_flight(name, way, cloud, owner, names, *crossing) < 100:
                wrong("%s: flies too near to something" % name)
            check_texels(name, way[:POINTS_FROM] if name == "scene two" else way, np.concatenate(painted),
                         np.concatenate(units), np.array(painter), names)
    if capture is not None:
        for text in check_pictures.look(capture, data):
            wrong(text)
    print("%d problem%s" % (len(problems), "" if len(problems) == 1 else "s"))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
