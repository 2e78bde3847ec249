"""The objects that start-up places itself: skies, ground, stand, light mark; and the sea disc.

Map coordinates relative to each object's own origin (skies: 2000 above the sea; stand: 560 below).
"""
import math

import numpy as np

import lights
from geometry import Mesh, drop_degenerate, lathe, surface
from paint import MOON

SKY_SCALE, STAND_SCALE, GROUND_SCALE = (1000, 1000), (1100, 1100), (125, 80)
GLOBE = 4600.0
# Rows of the stand's picture (v from the bottom).
BAND_BRONZE, BAND_BOWL, BAND_NECK = (0.02, 0.30), (0.34, 0.66), (0.70, 0.98)
# From the middle of the globe towards the last camera of scene one.
AXIS = np.array((-0.50, -0.83, 0.26)) / np.linalg.norm((-0.50, -0.83, 0.26))


def sky_uv(bearing, lat):
    """The folded map: bearings 0-180 in the upper half of the picture, 180-360 in the lower."""
    b = bearing % 360.0
    half = 0 if b < 180.0 else 1
    row = min(1.0, max(0.0, (90.0 - lat) / 135.0))
    v_top = (half + (2.0 + row * 507.0) / 512.0) / 2.0
    return (b - 180.0 * half) / 180.0, 1.0 - v_top


def sky_shell(mesh, radius, segs, rings, mat):
    step = 360.0 / segs
    for i in range(segs):
        for j in range(rings):
            la, lb = 90 - 180.0 * j / rings, 90 - 180.0 * (j + 1) / rings
            quad, uv = [], []
            half = 0 if (i + 0.5) * step < 180 else 1
            for b, lat in ((i * step, la), (i * step, lb), ((i + 1) * step, lb),
                           ((i + 1) * step, la)):
                rb, rl = math.radians(b), math.radians(lat)
                quad.append((radius * math.cos(rl) * math.sin(rb),
                             radius * math.cos(rl) * math.cos(rb), radius * math.sin(rl)))
                u, v = sky_uv(b, lat)
                # keep both edges of a segment in the same half of the map
                if half == 0 and b >= 180:
                    u, v = 1.0, sky_uv(0, lat)[1]
                if half == 1 and b >= 360:
                    u, v = 1.0, sky_uv(180, lat)[1]
                uv.append((u, v))
            faces = [(0, 1, 2), (0, 2, 3)]
            mesh.add(quad, faces, (200, 200, 200), mat, [tuple(uv[k] for k in f) for f in faces])
    drop_degenerate(mesh)


def weld(mesh):
    """Merges equal vertices."""
    seen, remap, verts = {}, [], []
    for v in mesh.verts:
        key = tuple(round(c, 3) for c in v)
        if key not in seen:
            seen[key] = len(verts)
            verts.append(v)
        remap.append(seen[key])
    mesh.verts = verts
    mesh.faces = [tuple(remap[k] for k in f) for f in mesh.faces]
    return mesh


def sky():
    m = Mesh()
    sky_shell(m, 9000, 48, 24, "constant")
    # Behind the first, where a pixel of the last column may stay open; in the colour of haze.
    sky_shell(m, 9300, 34, 17, "plain:constant:214,198,190")
    return weld(m)


def sky_night():
    m = Mesh()
    moon_and_stars(m)
    # The day does not draw this sky, so what only the points show hangs on it and costs the day nothing.
    m.join(lights.bell_below(), (0, 0, -2000.0))
    sky_shell(m, 9000, 32, 16, "tex:constant:5")
    return weld(m)


def moon_and_stars(m):
    """Flat and crisp, just inside the shell and drawn before it: the blur alone softens them."""
    def patch(bearing, up, degrees, corners, mat, radius, turn=0.0, squash=1.0):
        b, e = math.radians(bearing), math.radians(up)
        # seen from near the ground, not from the shell's middle
        ahead = np.array((math.cos(e) * math.sin(b), math.cos(e) * math.cos(b), math.sin(e)))
        eye = np.array((0.0, 0.0, -1780.0))
        t = -eye @ ahead + math.sqrt((eye @ ahead) ** 2 + radius ** 2 - eye @ eye)
        mid = eye + t * ahead
        right = np.array((math.cos(b), -math.sin(b), 0.0))
        top = np.cross(right, ahead)
        size = t * math.tan(math.radians(degrees))
        ring = [tuple(mid + size * (math.cos(turn + 2 * math.pi * k / corners) * right
                                    + squash * math.sin(turn + 2 * math.pi * k / corners) * top))
                for k in range(corners)]
        m.add([tuple(mid)] + ring, [(0, 1 + k, 1 + (k + 1) % corners) for k in range(corners)]
              if corners > 4 else [(1, 2, 3), (1, 3, 4)], (255, 255, 255), mat)

    bearing, up = MOON
    patch(bearing, up, 3.4, 22, "plain:constant:255,243,214", 8700)
    for side, high, size in ((-0.9, 0.8, 0.95), (0.5, 1.2, 0.6), (0.9, -0.7, 0.75), (-0.4, -1.2, 0.5),
                             (-1.7, -0.4, 0.45)):
        patch(bearing + side, up + high, size, 9, "plain:constant:222,206,182", 8600)
    rng = np.random.RandomState(3)
    for k in range(110):
        b, e = 360 * rng.rand(), 12 + 62 * rng.rand() ** 1.4
        if math.hypot((b - bearing + 180) % 360 - 180, e - up) < 10:
            continue
        size = 0.30 + 0.22 * rng.rand() ** 3
        patch(b, e, size, 4, ("plain:constant:255,244,220", "plain:constant:190,210,255",
                              "plain:constant:255,214,170")[k % 3], 8700)


def glass():
    """The near cap of the globe: three rings of growing opacity, two highlights."""
    m = Mesh()
    zax = AXIS
    xax = np.cross((0, 0, 1.0), zax)
    xax /= np.linalg.norm(xax)
    yax = np.cross(zax, xax)
    floor = -2060.0

    def point(d, a, r=GLOBE):
        d, a = math.radians(d), math.radians(a)
        p = r * (math.cos(d) * zax + math.sin(d) * (math.cos(a) * xax + math.sin(a) * yax))
        return (p[0], p[1], max(p[2], floor))

    def uv(d, a):
        a = math.radians(a)
        return 0.5 + 0.49 * d / 90 * math.cos(a), 0.5 + 0.49 * d / 90 * math.sin(a)

    # The far wall first: what is drawn nearer hides what comes after it.
    far_wall(m, uv)
    bands = [(0.01, 10), (10, 20), (20, 30), (30, 39), (39, 45), (45, 51), (51, 55), (55, 59),
             (59, 63), (63, 67), (67, 73), (73, 80)]
    segs = 48
    for lo, hi in bands:
        mat = "tex:constant:1" if hi <= 39 else "tex:constant:2" if hi <= 51 else "tex:constant:3"
        for i in range(segs):
            a0, a1 = 360.0 * i / segs, 360.0 * (i + 1) / segs
            q = [point(lo, a0), point(hi, a0), point(hi, a1), point(lo, a1)]
            if max(p[2] for p in q) <= floor + 1:
                continue
            t = [uv(lo, a0), uv(hi, a0), uv(hi, a1), uv(lo, a1)]
            f = [(0, 1, 2), (0, 2, 3)]
            m.add(q, f, (231, 243, 247), mat, [tuple(t[k] for k in g) for g in f])
    for a0, a1, lo, hi in ((22, 58, 30, 44), (64, 74, 31, 43)):
        n = 6
        pts = [[point(lo + (hi - lo) * j / 3, a0 + (a1 - a0) * i / n, GLOBE + 40)
                for j in range(4)] for i in range(n + 1)]
        tex = [[(0.985, 0.985)] * 4 for _ in range(n + 1)]
        surface(m, pts, (255, 255, 255), "tex:constant:4", flip=True, uv=tex)
    drop_degenerate(m)
    return weld(m)


def far_wall(m, uv):
    """What of the globe lies behind the world, seen from inside and through the near side: a veil
    that gathers at the foot."""
    def at(bearing, up, r=GLOBE - 60):
        b, e = math.radians(bearing), math.radians(up)
        return (r * math.cos(e) * math.sin(b), r * math.cos(e) * math.cos(b), r * math.sin(e))

    # Level by level and without a step: the picture is laid out by the level that draws it.
    segs = 36
    for lo, hi, level, d0, d1 in ((-24, -16, 3, 62, 57), (-16, -8, 3, 57, 51.5), (-8, 4, 2, 50.5, 45),
                                  (4, 16, 2, 45, 39.5), (16, 34, 1, 38.5, 30)):
        for k in range(segs):
            a0, a1 = 360.0 * k / segs, 360.0 * (k + 1) / segs
            q = [at(a0, lo), at(a1, lo), at(a1, hi), at(a0, hi)]
            t = [uv(d0, a0), uv(d0, a1), uv(d1, a1), uv(d1, a0)]
            m.add(q, [(0, 1, 2), (0, 2, 3)], (231, 243, 247), "tex:constant:%d" % level,
                  [(t[0], t[1], t[2]), (t[0], t[2], t[3])])


def ground(cells, mat):
    m = Mesh()
    pts = [[(-500 + 1000.0 * i / cells, -500 + 1000.0 * j / cells, 0.0)
            for j in range(cells + 1)] for i in range(cells + 1)]
    uv = [[(i / cells, j / cells) for j in range(cells + 1)] for i in range(cells + 1)]
    surface(m, pts, (130, 150, 160), mat, uv=uv)
    return m


def sea_disc():
    m = Mesh()
    rings = [0.01, 700, 1400, 2000, 2500, 2900, 3200, 3450, 3650, 3850, 4000, 4128]
    pts = []
    for k in range(28):
        a = 2 * math.pi * k / 28
        pts.append([(r * math.cos(a), r * math.sin(a), 0) for r in rings[::-1]])
    uv = [[(0.5 + 0.5 * x / 4128, 0.5 + 0.5 * y / 4128) for x, y, _ in row] for row in pts]
    surface(m, pts, (130, 150, 160), "matte", wrap_i=True, uv=uv)
    drop_degenerate(m)
    return m


def stand():
    """Bronze ring, bowl, turned neck and foot, and the table with a painted shadow."""
    m = Mesh()
    up = 560.0                                   # heights below are above the sea
    segs = 40

    def turn(profile, band):
        """Bodies of revolution; uv: around (twice mirrored) by height in the band's rows."""
        lo, hi = band
        length = [0.0]
        for p, q in zip(profile, profile[1:]):
            length.append(length[-1] + math.dist(p, q))
        pts, uv = [], []
        for i in range(segs + 1):
            a = 2 * math.pi * i / segs - math.pi / 2
            u = abs(4.0 * i / segs % 2.0 - 1.0) * 0.46 + 0.01
            pts.append([(r * math.cos(a), r * math.sin(a), z + up) for r, z in profile])
            uv.append([(u, lo + (hi - lo) * t / length[-1]) for t in length])
        surface(m, pts, (206, 154, 82), "plastic", uv=uv)

    turn([(4330, -190), (4384, -130), (4384, -20), (4340, 50), (4240, 82), (4110, 66),
          (4070, -60)], BAND_BRONZE)
    turn([(1250, -2900), (2100, -2780), (2900, -2470), (3550, -1960), (4020, -1330),
          (4270, -690), (4335, -192), (4350, -150)], BAND_BOWL)
    turn([(1010, -3160), (1060, -3090), (1330, -3010), (1370, -2950), (1250, -2900)],
         BAND_BRONZE)
    turn([(2000, -4060), (1500, -3880), (1130, -3640), (985, -3400), (1010, -3160)], BAND_NECK)
    turn([(2680, -4330), (2730, -4270), (2690, -4180), (2460, -4110), (2000, -4060)],
         BAND_BRONZE)
    # table: level disc, constant, its texture ends in exact white
    pts = []
    for k in range(32):
        a = 2 * math.pi * k / 32
        pts.append([(r * math.cos(a), r * math.sin(a), -4336 + up)
                    for r in (8600, 7000, 5600, 4400, 3300, 2400, 1500)])
    uv = [[(0.75 + 0.248 * x / 8600, 0.25 + 0.248 * y / 8600) for x, y, _ in row] for row in pts]
    surface(m, pts, (255, 255, 255), "constant", wrap_i=True, uv=uv)
    for make in (lights.plankton, lights.fireflies, lights.sky_lanterns, lights.water_lanterns,
                 lights.tentacles):
        m.join(make(), (0, 0, up))
    return weld(m)


def light_mark():
    m = Mesh()
    p = [(1, 0, 0), (0, 1, 0), (-1, 0, 0), (0, -1, 0), (0, 0, 1), (0, 0, -1)]
    p = [tuple(30.0 * c for c in q) for q in p]
    m.add(p, [(0, 1, 4), (1, 2, 4), (2, 3, 4), (3, 0, 4), (1, 0, 5), (2, 1, 5), (3, 2, 5),
              (0, 3, 5)], (255, 255, 255), "plain:constant:255,211,123")
    return m
