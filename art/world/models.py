"""The objects of the world, one function each.  Sizes in world units, Z up, foot at Z 0.

A tidal garden that tells the time by shade: a causeway through striped gates, an island with a
dial under a great parasol, a lighthouse with a spiral stair, an armillary, pines shaped like the
parasol, boats, and rocks in a calm sea.
"""
import math

import numpy as np

from geometry import (Mesh, box, drop_degenerate, hexa, icosphere, keep_faces, lathe, mix,
                      noise3, shade, surface, tube)

SAND = (206, 174, 148)
STONE = (214, 199, 173)
STONE2 = (189, 166, 140)
ROCK = (173, 142, 132)
WOOD = (123, 93, 82)
DARK = (90, 76, 80)
CORAL = (214, 97, 74)
CREAM = (239, 227, 206)
TEAL = (57, 130, 132)
BRASS = (206, 154, 74)
MORTAR = (190, 172, 152)
# Not baked: light from the sky does not reach into joints, and far away they would show as black crumbs.
# The foam around the gates shares it: each gate counts its materials again.
IN_JOINTS = "plain:matte:192,182,168"
LEAF = (82, 125, 99)
LEAF2 = (107, 142, 99)
COPPER = (90, 158, 148)


def wobble(seed):
    """A stream of small repeatable numbers in -1..1."""
    rng = np.random.RandomState(seed)
    return lambda: float(rng.uniform(-1, 1))


def ring_wall(mesh, inner, outer, z0, z1, segs, color, mat="matte", start=0.0):
    """A ring with outer wall, top and inner wall, hard edges."""
    lathe(mesh, [(outer, z0), (outer, z1), (inner, z1), (inner, z0)], segs, color, mat, start,
          hard=True)


GORES = 16


def canopy_point(a, t, inside):
    """A place of the great parasol's cloth: a is a part of the circle, t goes from 0 (top) to 1
    (rim); it sags between the ribs, more towards the rim."""
    radius, top, rim = 1100.0, 1560.0, 1120.0
    g = (a * GORES) % 1.0
    sag = 4 * g * (1 - g)
    r = radius * math.sin(t * 1.32) / math.sin(1.32) * (1 - 0.035 * sag * t * t)
    z = rim + (top - rim) * (math.cos(t * 1.32) - math.cos(1.32)) / (1 - math.cos(1.32))
    z += -26 * sag * t * t * t - (9 if inside else 0)
    return (r * math.cos(2 * math.pi * a), r * math.sin(2 * math.pi * a), z)


def canopy():
    """The great parasol: 16 gores in coral and cream, outside and inside, valance, ribs."""
    m = Mesh()
    gores, sub, rings = GORES, 3, 9
    point = canopy_point

    # Gores of one colour share one column of the picture (paint.canopy): four columns, outside
    # coral and cream, inside coral and cream; the valance has a strip of its own.
    for inside in (False, True):
        for g in range(gores):
            col = g % 2 + (2 if inside else 0)
            pts, uv = [], []
            for i in range(sub + 1):
                a = (g + i / sub) / gores - (1e-9 if i == sub else 0)
                ts = [0.03 + 0.97 * (1 - j / rings) for j in range(rings + 1)]
                pts.append([point(a, t, inside) for t in ts])
                uv.append([(0.25 * col + 0.01 + 0.23 * i / sub, 0.98 - 0.66 * t) for t in ts])
            surface(m, pts, CORAL if g % 2 == 0 else CREAM, "plastic", flip=inside, uv=uv)
        for g in range(gores):
            col = (g + 1) % 2 + (2 if inside else 0)
            pts, uv = [], []
            for i in range(sub + 1):
                a = (g + i / sub) / gores - (1e-9 if i == sub else 0)
                x, y, z = point(a, 1.0, inside)
                drop = 46 + 30 * math.sin(math.pi * i / sub)
                pts.append([(x * 0.992, y * 0.992, z - drop), (x, y, z)])
                u = 0.25 * col + 0.01 + 0.23 * i / sub
                uv.append([(u, 0.20), (u, 0.28)])
            surface(m, pts, CREAM if g % 2 == 0 else CORAL, "matte", flip=inside, uv=uv)
    # ribs below the cloth
    for g in range(gores):
        path = []
        for j in range(7):
            x, y, z = point(g / gores, 0.08 + 0.93 * j / 6, True)
            path.append((x * 0.999, y * 0.999, z - 16))
        tube(m, path, [11] * 7, 4, WOOD, "matte")
    # boss and finial on top
    lathe(m, [(74, 1546), (82, 1572), (52, 1602), (22, 1640), (34, 1664), (30, 1684), (9, 1706),
              (5, 1790), (0.01, 1830)], 10, BRASS, "plastic")
    for k, (uv, col) in enumerate(zip(m.uvs, m.colors)):
        if uv is None:
            v = 0.14 if col == WOOD else 0.04
            m.uvs[k] = tuple((0.06 + 0.8 * (0.37 * k % 1.0) + 0.02 * c, v) for c in range(3))
    return m


def lantern_ring():
    """Turns against the canopy: a small teal parasol whose rim carries twelve lanterns."""
    m = Mesh()
    gores, rings = 12, 4
    for inside in (False, True):
        for g in range(gores):
            pts = []
            for i in (0, 1, 2):
                a = 2 * math.pi * (g + i / 2) / gores
                row = []
                for j in range(rings + 1):
                    t = 0.12 + 0.88 * (1 - j / rings)
                    r = 470 * t
                    z = 905 + 130 * (1 - t) ** 1.5 + 34 * t * t - (10 if i == 1 else 0) * t
                    row.append((r * math.cos(a), r * math.sin(a), z - (8 if inside else 0)))
                pts.append(row)
            col = TEAL if g % 2 == 0 else CREAM
            surface(m, pts, mix(col, (255, 246, 226), 0.3) if inside else col, "plastic",
                    flip=inside)
    # rim hoop
    hoop = [(512 * math.cos(2 * math.pi * i / 24), 512 * math.sin(2 * math.pi * i / 24), 934)
            for i in range(25)]
    tube(m, hoop, [13] * 25, 4, BRASS, "plastic")
    for g in range(gores):
        a = 2 * math.pi * g / gores
        x, y = 512 * math.cos(a), 512 * math.sin(a)
        tube(m, [(x * 0.9, y * 0.9, 938), (x, y, 934)], [8, 8], 4, BRASS, "matte")
        tube(m, [(x, y, 930), (x, y, 850)], [4, 4], 4, DARK, "matte")
        lantern = Mesh()
        lathe(lantern, [(0.01, 0), (20, 10), (27, 34), (20, 62), (0.01, 66)], 6, CREAM, "glow")
        lathe(lantern, [(30, 60), (0.01, 86)], 6, BRASS, "matte")
        m.join(lantern, (x, y, 772))
    return m


def parasol_pole():
    """Plinth of three octagonal steps, benches, the pole with its collars."""
    m = Mesh()
    for r, z0, z1, col in ((330, -14, 26, STONE2), (270, 20, 58, STONE), (205, 52, 92, STONE2)):
        lathe(m, [(r, z0), (r - 4, z1)], 8, col, "matte", 22.5, hard=True)
        lathe(m, [(r - 4, z1), (0.01, z1)], 8, shade(col, 1.04), "matte", 22.5, hard=True)
    lathe(m, [(120, 88), (112, 150), (84, 168), (70, 186)], 12, STONE, "matte", hard=True)
    lathe(m, [(72, 182), (60, 300)], 12, BRASS, "plastic")
    pole = [(52, 296), (47, 440), (44, 600), (41, 780), (38, 960), (34, 1140), (30, 1330),
            (26, 1560)]
    segs = 10
    for k in range(len(pole) - 1):
        pts = []
        for i in range(segs):
            pts.append([((r + 0.0) * math.cos(2 * math.pi * i / segs + 0.35 * k),
                         r * math.sin(2 * math.pi * i / segs + 0.35 * k), z)
                        for r, z in pole[k:k + 2]])
        surface(m, pts, CREAM if k % 2 else CORAL if k == 0 else CREAM, "plastic", wrap_i=True)
    for z, r in ((610, 62), (985, 58), (1150, 66)):
        lathe(m, [(r * 0.7, z - 22), (r, z - 8), (r, z + 8), (r * 0.7, z + 22)], 12, BRASS,
              "plastic")
    for k in range(8):
        a = 45 * k
        bench = Mesh()
        box(bench, (0, -52, 0), (30, 16, 34), STONE2)
        box(bench, (0, 52, 0), (30, 16, 34), STONE2)
        box(bench, (0, 0, 32), (44, 160, 12), WOOD, bottom=True)
        c, s = math.cos(math.radians(a)), math.sin(math.radians(a))
        m.join(bench, (236 * c, 236 * s, 56), a)
    return m


def gate():
    """A round gate of striped voussoirs on two piers; what marks it stands in signs()."""
    m = Mesh()
    rnd = wobble(7)
    half, depth, spring = 270.0, 130.0, 380.0
    # piers: courses of alternating stone, a solid core behind the joints
    for side in (-1, 1):
        x = side * (half + 70)
        box(m, (x, 0, -60), (230, depth + 110, 92), STONE2, taper=0.97)
        box(m, (x, 0, 32), (190, depth + 60, 34), STONE, taper=0.96)
        # mortar fills the joints: it stands back by little
        box(m, (x, 0, 60), (134, depth - 7, spring - 66), MORTAR, IN_JOINTS)
        z = 66.0
        for k in range(6):
            h = 48.5 + rnd()
            col = CORAL if k % 2 else CREAM
            col = mix(col, STONE, 0.35)
            box(m, (x + rnd(), rnd(), z), (141 + 3 * rnd(), depth + 3 * rnd(), h),
                shade(col, 1 + 0.05 * rnd()), turn=0.6 * rnd(), top=False)
            z += 52
        box(m, (x, 0, z - 2), (176, depth + 34, 28), STONE, bottom=True, taper=1.03)
    spring = z + 22
    # voussoirs
    count = 17
    for k in range(count):
        a0 = math.pi * (k + 0.022) / count
        a1 = math.pi * (k + 0.978) / count
        r0 = half + 4 + 2 * rnd()
        r1 = half + 132 + 5 * rnd() + (24 if k == count // 2 else 0)
        d = depth / 2 + 3 * rnd() + (12 if k == count // 2 else 0)
        col = mix(CORAL if k % 2 else CREAM, STONE, 0.3)
        col = shade(col, 1 + 0.05 * rnd())
        cs = []
        for y in (-d, d):
            for a, r in ((a0, r0), (a0, r1), (a1, r1), (a1, r0)):
                cs.append((r * math.cos(a), y, spring + r * math.sin(a)))
        # 0-3 front (y -d), 4-7 back
        quads = [(0, 1, 2, 3), (7, 6, 5, 4), (1, 5, 6, 2), (0, 3, 7, 4)]
        hexa(m, cs, col, "matte", quads)
    # core ring behind the joints, cut where the stones are, so that no edge of it stands out
    pts = []
    for k in range(count + 1):
        a = math.pi * k / count
        c, s = math.cos(a), math.sin(a)
        d = depth / 2 - 5
        r0, r1 = half + 8.5, half + 125.5
        pts.append([(r0 * c, d, spring + r0 * s), (r0 * c, -d, spring + r0 * s),
                    (r1 * c, -d, spring + r1 * s), (r1 * c, d, spring + r1 * s),
                    (r0 * c, d, spring + r0 * s)])
    surface(m, pts, MORTAR, IN_JOINTS, flip=True)
    return m


def tower():
    """Lighthouse: twelve-sided shaft, spiral stair, lit windows, open lamp room, copper dome
    and a gnomon fin."""
    m = Mesh()
    segs = 12

    def radius(z):
        return 214 - 74 * (z / 900.0) ** 0.8

    lathe(m, [(300, -60), (292, 34), (268, 44), (262, 84)], segs, STONE2, "matte", hard=True)
    lathe(m, [(262, 84), (205, 84)], segs, STONE, "matte", hard=True)
    zs = [84, 170, 256, 342, 428, 514, 600, 686, 772, 858, 930]
    for k in range(len(zs) - 1):
        band = mix(STONE, CREAM, 0.35) if k % 2 else mix(STONE2, STONE, 0.4)
        lathe(m, [(radius(zs[k]), zs[k]), (radius(zs[k + 1]), zs[k + 1])], segs, band, "matte")
    # spiral stair: two and a quarter turns of solid treads
    steps = 46
    for k in range(steps):
        a0 = math.radians(200 + k * 17.4)
        a1 = a0 + math.radians(17.4)
        z = 92 + k * 17.0
        r0, r1 = radius(z) - 14, radius(z) + 74
        cs = []
        for zz in (z - 30, z):
            for a, r in ((a0, r0), (a0, r1), (a1, r1), (a1, r0)):
                cs.append((r * math.cos(a), r * math.sin(a), zz))
        hexa(m, cs, WOOD if k % 2 else mix(WOOD, STONE2, 0.3), "matte",
             [(1, 2, 6, 5), (4, 5, 6, 7), (3, 2, 1, 0), (0, 1, 5, 4)])
    # arched windows, lit
    for a, z in ((20, 250), (250, 390), (110, 430), (330, 560), (60, 640), (200, 690),
                 (290, 800), (150, 300)):
        r = radius(z) * math.cos(math.pi / segs) + 7
        ca, sa = math.cos(math.radians(a // 30 * 30 + 15)), math.sin(
            math.radians(a // 30 * 30 + 15))
        shape = [(-18, 0), (18, 0), (18, 44), (10, 60), (0, 66), (-10, 60), (-18, 44)]
        pts = [(r * ca - u * sa - (v * 0.075) * ca, r * sa + u * ca - (v * 0.075) * sa, z + v)
               for u, v in shape]
        m.add(pts, [(0, k, k + 1) for k in range(1, 6)], CREAM, "window")
    # gallery, lamp room with eight columns, glowing lamp, dome
    lathe(m, [(138, 900), (150, 926), (196, 950), (204, 972), (204, 986)], 16, STONE, "matte",
          hard=True)
    lathe(m, [(204, 986), (0.01, 986)], 16, mix(STONE, CREAM, 0.5), "matte", hard=True)
    for k in range(16):
        a = 2 * math.pi * k / 16
        box(m, (190 * math.cos(a), 190 * math.sin(a), 986), (12, 12, 34), BRASS,
            turn=math.degrees(a))
    hoop = [(190 * math.cos(2 * math.pi * i / 16), 190 * math.sin(2 * math.pi * i / 16), 1022)
            for i in range(17)]
    tube(m, hoop, [7] * 17, 4, BRASS, "matte")
    for k in range(8):
        a = 2 * math.pi * k / 8
        tube(m, [(112 * math.cos(a), 112 * math.sin(a), 984),
                 (112 * math.cos(a), 112 * math.sin(a), 1146)], [15, 13], 6, CREAM, "plastic")
    lathe(m, [(0.01, 1000), (42, 1016), (58, 1060), (42, 1104), (0.01, 1122)], 8, CREAM, "glow")
    lathe(m, [(142, 1140), (150, 1152), (150, 1170), (138, 1176)], 16, STONE, "matte", hard=True)
    lathe(m, [(0.01, 1141), (142, 1140)], 16, STONE2, "matte")
    lathe(m, [(138, 1174), (132, 1226), (108, 1278), (68, 1316), (26, 1336), (12, 1366),
              (5, 1440), (0.01, 1450)], 16, COPPER, "plastic")
    # gnomon fin: a brass wedge that cuts the dome towards the north
    for x, flip in ((-7, True), (7, False)):
        pts = [(x, 60, 1176), (x, 143, 1172), (x * 0.3, 20, 1400)]
        m.add(pts, [(0, 2, 1)] if flip else [(0, 1, 2)], BRASS, "matte")
    m.add([(-7, 143, 1172), (7, 143, 1172), (2, 20, 1400), (-2, 20, 1400)],
          [(0, 2, 1), (0, 3, 2)], BRASS, "matte")
    m.add([(-7, 60, 1176), (7, 60, 1176), (7, 143, 1172), (-7, 143, 1172)],
          [(0, 2, 1), (0, 3, 2)], BRASS, "matte")
    return m


def lamp():
    """A street lamp in the shape of a small parasol."""
    m = Mesh()
    box(m, (0, 0, -20), (46, 46, 34), STONE2, taper=0.8)
    tube(m, [(0, 0, 10), (0, 0, 150)], [8, 6], 6, DARK, "matte")
    lathe(m, [(0.01, 112), (17, 120), (22, 138), (15, 158), (0.01, 166)], 8, CREAM, "glow")
    lathe(m, [(46, 158), (36, 172), (16, 182), (5, 186), (0.01, 204)], 8, TEAL, "matte")
    lathe(m, [(0.01, 174), (46, 157)], 8, shade(TEAL, 0.7), "matte")
    return m


def causeway():
    """A length of the raised way: kerbs and paving slabs, 270 long (Y), 250 wide."""
    m = Mesh()
    rnd = wobble(31)
    box(m, (0, 0, -70), (262, 274, 90), STONE2, taper=0.97)
    for side in (-1, 1):
        for k in range(3):
            box(m, (side * 118, -90 + 90 * k, 10), (28, 86, 28 + 3 * rnd()), STONE, taper=0.94)
    cells = ((-60, -90, 100, 88), (44, -90, 104, 88), (-36, 0, 146, 89), (74, 0, 72, 89),
             (-74, 90, 72, 88), (10, 90, 94, 88), (82, 90, 48, 88))
    for x, y, sx, sy in cells:
        box(m, (x, y, 17), (sx, sy, 8 + 2 * rnd()), shade(mix(STONE, SAND, 0.3),
                                                           1 + 0.07 * rnd()), taper=0.97)
    return m


def causeway_lit():
    """The same below a pair of lamps; their lights are for the bake alone."""
    m = causeway()
    for side in (-119, 119):
        light = Mesh()
        lathe(light, [(0.01, -16), (15, 0), (0.01, 16)], 6, CREAM, "glow")
        m.join(light, (side, 0, 132))
    return m


def rocks(seed, size, level=2, sharp=1.0):
    """A weathered rock with strata; only what stands above Z -40 is kept."""
    m = Mesh()
    v, f = icosphere(level)
    v = np.array(v)
    p = v * np.array(size)
    n = noise3(v + seed, seed, 0.8) * 0.34 + noise3(v + seed, seed + 5, 0.36) * 0.20 * sharp
    p = p * (1 + n)[:, None]
    # strata: heights gather at ledges
    step = size[2] * 0.24
    z = p[:, 2] + noise3(p, seed + 9, size[0] * 0.9) * 26
    ledge = np.floor(z / step) * step + step * np.clip((z / step - np.floor(z / step)) * 1.6, 0, 1)
    p[:, 2] = p[:, 2] * 0.45 + ledge * 0.55
    verts, faces = keep_faces([tuple(q) for q in p], f, lambda q: q[2] > -40)
    cols = []
    for a, b, c in faces:
        q = (np.array(verts[a]) + np.array(verts[b]) + np.array(verts[c])) / 3
        n = np.cross(np.array(verts[b]) - verts[a], np.array(verts[c]) - verts[a])
        flat = n[2] / (np.linalg.norm(n) + 1e-9)
        t = 0.5 + 0.5 * math.sin(q[2] / 21.0 + seed)
        col = mix(ROCK, (156, 122, 118), t)
        if flat > 0.72:
            col = mix(col, SAND, 0.6)
        if q[2] < 26:
            col = mix(col, (96, 98, 98), 0.6)
        cols.append(col)
    m.add(verts, faces, cols, "matte")
    return m


def reef():
    m = rocks(3, (330, 240, 170))
    m.join(rocks(8, (150, 130, 240), 2), (190, 60, -10))
    return m


def spire():
    m = rocks(21, (150, 140, 620), 2, 0.7)
    m.join(rocks(22, (120, 110, 380), 2, 0.7), (-150, 70, -20))
    m.join(rocks(23, (170, 130, 130), 1), (90, -120, -10))
    return m


def boat():
    """A small sailing boat: hull, mast, lateen sail."""
    m = Mesh()
    stations = [(-230, 8, 96), (-200, 44, 74), (-120, 78, 52), (0, 92, 44), (120, 80, 50),
                (200, 44, 70), (246, 5, 108)]

    def section(x, b, sheer, inside):
        k = 0.9 if inside else 1.0
        up = 14 if inside else 0
        keel = 0 if abs(x) < 180 else 18
        pts = []
        for t in (-1, -0.72, -0.3, 0.0, 0.3, 0.72, 1):
            w = b * k * (abs(t) ** 0.6) * (1 if t > 0 else -1)
            z = keel + up + (sheer - keel - up) * abs(t) ** 2.2
            pts.append((x * (0.97 if inside else 1), w, z))
        return pts

    for inside in (False, True):
        pts = [section(*s, inside) for s in stations]
        surface(m, pts, (lambda i, j: CORAL if j in (0, 5) else WOOD) if not inside else
                (lambda i, j: mix(WOOD, CREAM, 0.35)), "matte", flip=not inside)
    # gunwale
    for side in (0, 6):
        outer = [section(*s, False)[side] for s in stations]
        tube(m, [(x, y, z + 3) for x, y, z in outer], [7] * len(outer), 4, CREAM, "matte")
    for x in (-120, 10, 120):
        box(m, (x, 0, 46), (26, 140, 8), WOOD, bottom=True)
    tube(m, [(60, 0, 20), (52, 0, 420)], [9, 6], 6, WOOD, "matte")
    yard = [(190, 0, 150), (52, 8, 360), (-110, 0, 560)]
    tube(m, yard, [5, 7, 4], 4, WOOD, "matte")
    # sail, two shells
    for off, flip in ((3, False), (-3, True)):
        pts = []
        for i in range(6):
            t = i / 5
            top = np.array((190 - 300 * t, 0, 150 + 410 * t))
            low = np.array((170 - 340 * t, 0, 128 + 6 * t))
            row = []
            for j in range(5):
                s = j / 4
                q = low + (top - low) * s
                row.append((q[0], q[1] + off + 52 * math.sin(math.pi * s) * math.sin(
                    math.pi * min(1, 0.15 + 0.85 * t)), q[2]))
            pts.append(row)
        surface(m, pts, lambda i, j: CREAM if i % 2 else mix(CREAM, CORAL, 0.75), "plastic",
                flip=flip)
    drop_degenerate(m)
    return m


def pine(seed=1):
    """An umbrella pine: a leaning trunk, forks, flat clouds of needles."""
    m = Mesh()
    rnd = wobble(seed)
    trunk = [(0, 0, -40), (6, 4, 60), (22, 8, 170), (30, 0, 280), (20, -8, 370)]
    tube(m, trunk, [30, 22, 18, 15, 13], 7, WOOD, "plastic")
    crowns = [(30, -10, 470, 210, 66), (-140, 60, 420, 140, 46), (150, -90, 430, 130, 44)]
    for x, y, z, r, h in crowns:
        if x != 30:
            tube(m, [(26, 0, 290), (x * 0.5 + 10, y * 0.5, z - 90), (x, y, z - 20)], [11, 9, 6],
                 5, WOOD, "plastic")
        else:
            tube(m, [(20, -8, 366), (30, -10, 450)], [12, 7], 5, WOOD, "plastic")
        v, f = icosphere(1)
        v = np.array(v)
        n = noise3(v * 2.3 + x, seed + 3, 1.0) * 0.22
        p = v * (1 + n)[:, None] * np.array((r, r * 0.92, h))
        p[:, 2] = np.where(p[:, 2] < 0, p[:, 2] * 0.45, p[:, 2])
        p += np.array((x, y, z))
        cols = []
        for t in f:
            zz = np.mean([p[k][2] for k in t])
            cols.append(mix(LEAF, LEAF2, min(1, max(0, (zz - z) / h)) * 0.8 + 0.1 * rnd()))
        m.add([tuple(q) for q in p], f, cols, "plastic")
    return m


def shade_stand():
    """A market parasol with a round table."""
    m = Mesh()
    tube(m, [(0, 0, -20), (0, 0, 262)], [7, 6], 6, WOOD, "matte")
    lathe(m, [(34, -16), (30, 10), (8, 16)], 8, STONE2, "matte")
    lathe(m, [(62, 70), (62, 78), (0.01, 79)], 10, CREAM, "matte", hard=True)
    lathe(m, [(0.01, 69), (62, 70)], 10, WOOD, "matte")
    gores = 8
    for inside in (False, True):
        for g in range(gores):
            pts = []
            for i in (0, 1):
                a = 2 * math.pi * (g + i) / gores
                row = []
                for r, z in ((168, 182), (166, 212), (110, 244), (46, 262), (0.5, 268)):
                    k = 0.985 if inside else 1.0
                    row.append((r * k * math.cos(a), r * k * math.sin(a), z - (5 if inside else
                                                                              0)))
                pts.append(row)
            surface(m, pts, CORAL if g % 2 else CREAM, "matte", flip=inside)
    lathe(m, [(9, 262), (12, 276), (0.01, 292)], 6, BRASS, "matte")
    drop_degenerate(m)
    return m


def hour_stone():
    """A standing stone of the dial with a brass cap."""
    m = Mesh()
    rnd = wobble(77)
    r = [58, 54, 50, 44, 38]
    zs = [-30, 40, 130, 220, 300]
    pts = []
    for i in range(6):
        a = 2 * math.pi * i / 6 + 0.2
        pts.append([((q + 5 * rnd()) * math.cos(a) * 0.7, (q + 5 * rnd()) * math.sin(a), z)
                    for q, z in zip(r, zs)])
    surface(m, pts, lambda i, j: mix(STONE2, ROCK, 0.3 + 0.2 * ((i + j) % 2)), "matte",
            wrap_i=True)
    lathe(m, [(37, 296), (40, 312), (0.01, 366)], 6, BRASS, "matte", 11)
    return m


def viaduct():
    """Five arches that walk from the lighthouse hill into the sea, the last one broken."""
    m = Mesh()
    rnd = wobble(5)
    span, top, depth = 250.0, 330.0, 110.0
    arches = 5
    for k in range(arches + 1):
        x = k * span
        h = top if k < arches else 210
        box(m, (x, 0, -90), (92, depth + 20, 150), STONE2, taper=0.94)
        box(m, (x, 0, 52), (70, depth, h - 110 if k < arches else 120), STONE, taper=0.96)
    for k in range(arches):
        cx = k * span + span / 2
        segs = 8
        last = 5 if k == arches - 1 else segs
        for i in range(last):
            a0, a1 = math.pi - math.pi * i / segs, math.pi - math.pi * (i + 1) / segs
            r = span / 2 - 33
            z0 = 195
            x0, x1 = cx + r * math.cos(a0), cx + r * math.cos(a1)
            za, zb = z0 + r * 0.92 * math.sin(a0), z0 + r * 0.92 * math.sin(a1)
            if i == 0:
                x0 = cx - span / 2
            if i == segs - 1:
                x1 = cx + span / 2
            d = depth / 2 + 2 * rnd()
            cs = [(x0, -d, za), (x1, -d, zb), (x1, d, zb), (x0, d, za),
                  (x0, -d, top), (x1, -d, top), (x1, d, top), (x0, d, top)]
            hexa(m, cs, mix(STONE, CREAM if i % 2 else STONE2, 0.4), "matte",
                 [(0, 1, 5, 4), (2, 3, 7, 6), (3, 2, 1, 0), (1, 2, 6, 5)])
    # parapets and deck
    length = (arches - 0.4) * span
    box(m, (length / 2 - 40, 0, top - 2), (length + 80, depth + 16, 16), STONE2, bottom=True)
    for side in (-1, 1):
        box(m, (length / 2 - 60, side * 54, top + 14), (length + 20, 14, 26), STONE)
    return m


def pavilion():
    """A round temple: steps, eight columns, a copper dome with a brass ball."""
    m = Mesh()
    for r, z in ((250, 0), (220, 24), (190, 48)):
        lathe(m, [(r, z - 30), (r, z + 22)], 16, STONE2, "matte", hard=True)
        lathe(m, [(r, z + 22), (r - 34, z + 22)], 16, STONE, "matte", hard=True)
    lathe(m, [(158, 70), (0.01, 70)], 16, mix(STONE, CORAL, 0.3), "matte")
    for k in range(8):
        a = 2 * math.pi * k / 8
        x, y = 146 * math.cos(a), 146 * math.sin(a)
        box(m, (x, y, 70), (44, 44, 16), STONE, turn=45 * k)
        tube(m, [(x, y, 84), (x, y, 200), (x, y, 306)], [18, 17, 14], 7, CREAM, "plastic")
        box(m, (x, y, 304), (46, 46, 16), STONE, turn=45 * k, bottom=True)
    lathe(m, [(118, 320), (178, 320), (184, 352), (196, 362), (190, 376)], 16, STONE, "matte",
          hard=True)
    lathe(m, [(0.01, 321), (120, 320)], 16, CREAM, "matte")
    lathe(m, [(184, 372), (176, 430), (144, 488), (94, 530), (36, 552), (18, 566)], 16, COPPER,
          "plastic")
    lathe(m, [(16, 560), (30, 584), (22, 606), (5, 616), (0.01, 676)], 8, BRASS, "plastic")
    lathe(m, [(0.01, 78), (30, 84), (40, 116), (28, 150), (0.01, 158)], 8, CREAM, "glow")
    return m


def armillary():
    """Three brass rings around a gnomon, on a stone foot."""
    m = Mesh()
    lathe(m, [(190, -50), (180, 30), (140, 36), (120, 80), (60, 96)], 8, STONE2, "matte",
          hard=True)
    tube(m, [(0, 0, 90), (0, 0, 240)], [36, 26], 8, BRASS, "plastic")
    cz = 620.0

    def ring(r, width, tilt_x, tilt_y, col, segs=32):
        cx, sx = math.cos(math.radians(tilt_x)), math.sin(math.radians(tilt_x))
        cy, sy = math.cos(math.radians(tilt_y)), math.sin(math.radians(tilt_y))
        pts = []
        for i in range(segs):
            a = 2 * math.pi * i / segs
            row = []
            for dr, dz in ((-1, -1), (1, -1), (1, 1), (-1, 1), (-1, -1)):
                q = r + dr * 14
                x, y, z = q * math.cos(a), q * math.sin(a), dz * width
                y, z = y * cx - z * sx, y * sx + z * cx
                x, z = x * cy + z * sy, -x * sy + z * cy
                row.append((x, y, z + cz))
            pts.append(row)
        surface(m, pts, col, "matte", wrap_i=True)

    ring(390, 22, 90, 0, BRASS)
    ring(372, 26, 35, 12, mix(BRASS, COPPER, 0.75))
    ring(384, 16, 90, 90, mix(BRASS, CORAL, 0.25))
    a = np.array((0.0, math.cos(math.radians(40)), math.sin(math.radians(40))))
    tube(m, [tuple(-430 * a + (0, 0, cz)), tuple(430 * a + (0, 0, cz))], [9, 9], 5, BRASS,
         "matte")
    v, f = icosphere(1)
    m.add([(70 * x, 70 * y, 70 * z + cz) for x, y, z in v], f, CREAM, "sun")
    return m


def basin():
    """A round tidal pool with a rim of blocks; the water is still and pale."""
    m = Mesh()
    segs = 20
    ring_wall(m, 236, 292, -30, 44, segs, lambda i, j: STONE if i % 2 else mix(STONE2, CORAL,
                                                                            0.18))
    pts = []
    for i in range(segs):
        a = 2 * math.pi * i / segs
        pts.append([(r * math.cos(a), r * math.sin(a), 22) for r in (238, 160, 80, 0.01)])
    surface(m, pts, lambda i, j: mix((99, 158, 160), (156, 190, 189), j / 3), "plastic",
            wrap_i=True)
    drop_degenerate(m)
    lathe(m, [(34, 0), (28, 70), (44, 84), (52, 98), (0.01, 92)], 8, STONE, "matte")
    return m


def dummy():
    m = Mesh()
    m.add([(0, 0, 0), (10, 0, 0), (0, 0, 10)], [(0, 1, 2)], STONE, "plain:matte:189,166,140")
    return m


def islet():
    """A sand bank with a few stones and tufts."""
    m = Mesh()
    pts = []
    segs = 22
    for i in range(segs):
        a = 2 * math.pi * i / segs
        coast = 1 + 0.16 * math.sin(2 * a + 1) + 0.08 * math.sin(5 * a)
        row = []
        for r, z in ((620, -30), (520, -4), (430, 14), (320, 46), (200, 84), (90, 104), (0.01, 108)):
            row.append((r * coast * math.cos(a), r * coast * 0.8 * math.sin(a), z))
        pts.append(row)
    cols = [(150, 128, 118), (176, 148, 130), SAND, (214, 184, 156), (206, 178, 146), LEAF2]
    surface(m, pts, lambda i, j: cols[min(j, 5)], "plastic", wrap_i=True)
    drop_degenerate(m)
    m.join(rocks(41, (90, 70, 60), 1), (-300, 120, 10))
    m.join(rocks(42, (60, 60, 80), 1), (260, -160, 20))
    return m
