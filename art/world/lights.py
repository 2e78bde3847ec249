"""Lights: garlands and lamps of the night, and the world below the sea that only the points show.

From below the ground turns its back and is gone, so a medusa hangs under the island: its skirt from
the island's rim, arms and a spine below the pole, and what swims around it.  Lights are untextured,
never lit, and cost one triangle (wound both ways) for three of them: a triangle's corners are three
neighbours on a string.  Lengths in world units, Z up, the sea at Z 0.
"""
import math

import numpy as np

import island
import places
from geometry import Mesh, lathe, tube
from layout import SECTORS, SKIRT

# Names of lights; a glow keeps its hue only where green does not outlast the other channels.
TEAL = "plain:constant:40,230,200"
AQUA = "plain:constant:30,160,255"
BLUE = "plain:constant:50,90,255"
VIOLET = "plain:constant:150,60,255"
PINK = "plain:constant:255,50,150"
GOLD = "plain:constant:255,170,40"
AMBER = "plain:constant:255,110,20"

RIM = 1780.0


def threes(mesh, points, mats):
    """Lights at the points, three to a triangle; mats is one name or one a point."""
    points = np.asarray(points, float)
    for k in range(0, len(points) - 2, 3):
        p, q, r = points[k:k + 3]
        along = r - p
        side = np.cross(along, (0.31, 0.52, 0.79))
        size = np.linalg.norm(side)
        side = side / size if size > 1e-6 else np.array((0.0, 0.0, 1.0))
        # Corners on one line would leave a face without area.
        bulge = np.linalg.norm(np.cross(q - p, along))
        if bulge < 40:
            q = q + 3.0 * side
        mat = mats if isinstance(mats, str) else mats[k + 1]
        mesh.add([p, q, r], [(0, 1, 2), (0, 2, 1)], (255, 255, 255), mat)


def walk(curve, step, start=0.0, stop=1.0, fine=400):
    """Points of a curve (a function of 0..1) that stand step apart; step may be a function of
    the parameter.  Returns points and parameters."""
    ts = np.linspace(start, stop, fine)
    ps = np.array([curve(t) for t in ts])
    run = np.concatenate([[0], np.cumsum(np.linalg.norm(np.diff(ps, axis=0), axis=1))])
    out, at, s = [], [], 0.0
    while s < run[-1]:
        t = float(np.interp(s, run, ts))
        out.append(curve(t))
        at.append(t)
        s += step(t) if callable(step) else step
    return np.array(out), at


def pearl(mesh, place, size, mat):
    """Six lights around a place."""
    x, y, z = place
    s = size
    threes(mesh, [(x + s, y, z - s), (x - s, y + s, z), (x, y - s, z + s),
                  (x - s, y, z + s), (x + s, y - s, z), (x, y + s, z - s)], mat)


def polar(bearing, radius, z):
    return np.array((radius * math.sin(bearing), radius * math.cos(bearing), z))


def dome(radius):
    """Height of the underside of the bell."""
    return -70.0 - 760.0 * (radius / RIM) ** 2.3


def skirt():
    """A sixth of the bell's underside and of its tentacles, around its own middle."""
    m = Mesh()
    sixth = 2 * math.pi / SECTORS
    rnd = np.random.RandomState(5)
    tints = ((TEAL, AQUA, BLUE, VIOLET), (GOLD, PINK, PINK, VIOLET),
             (AQUA, BLUE, BLUE, VIOLET), (VIOLET, VIOLET, PINK, GOLD))
    for k in range(4):
        a = sixth * ((k + 0.5) / 4 - 0.5)
        # a canal from the middle to the rim
        pts, _ = walk(lambda t: polar(a, 300 + (RIM - 300) * t, dome(300 + (RIM - 300) * t)), 28)
        threes(m, pts, BLUE if k % 2 else AQUA)
        # between two canals a vein, from half way on
        v = a + sixth / 8
        pts, _ = walk(lambda t: polar(v, 1000 + (RIM - 1000) * t, dome(1000 + (RIM - 1000) * t)),
                      34)
        threes(m, pts, VIOLET)
        length = (1650, 1050, 1850, 1350)[k]
        phase, sway = rnd.uniform(0, 2 * math.pi, 2)

        def tentacle(t):
            r = RIM * (1 - 0.12 * t) + 230 * t * math.sin(4.6 * t + phase)
            b = a + 0.16 * t * math.sin(4.0 * t + sway)
            return polar(b, r, dome(RIM) - length * t)

        pts, at = walk(tentacle, lambda t: 13 + 17 * t)
        threes(m, pts, [tints[k][min(3, int(t * 4))] for t in at])
        for t in (0.33, 0.66, 1.0):
            pearl(m, tentacle(t), 9, GOLD if k != 1 else TEAL)
    # rings of scallops between the canals
    for radius, mat, hang in ((440, AQUA, -50), (640, PINK, 70), (820, TEAL, -60), (1000, VIOLET, 90),
                              (1200, TEAL, -70), (1380, PINK, 110), (RIM, GOLD, 120)):
        for k in range(4):
            a0 = sixth * (k / 4 - 0.5)

            def scallop(t):
                r = radius - hang * math.sin(math.pi * t)
                return polar(a0 + sixth / 4 * (t + 0.5), r, dome(r))

            pts, _ = walk(scallop, 17)
            threes(m, pts, mat)
    # the margin, and its lappets
    pts, _ = walk(lambda t: polar(sixth * (t - 0.5), RIM + 14, dome(RIM) - 12), 16)
    threes(m, pts, TEAL)
    pts, _ = walk(lambda t: polar(sixth * (t - 0.5), RIM + 20 + 20 * abs(math.sin(12 * math.pi * t)),
                                  dome(RIM) - 30 - 80 * abs(math.sin(12 * math.pi * t))), 16)
    threes(m, pts, AQUA)
    r, z = SKIRT
    return m.bend(lambda x, y, h: (x, y - r, h - z))


def arms():
    """Six frilled arms, the spine, and a whale: they turn with the ring of lanterns."""
    m = Mesh()
    for k in range(6):
        a = 2 * math.pi * k / 6

        def middle(t):
            return (a + 2.1 * t, 320 + 260 * math.sin(math.pi * min(1, 0.7 * t)) ** 1.2,
                    -150 - 1950 * t)

        def edge(side, waves):
            def at(t):
                b, r, z = middle(t)
                w = (1 - 0.75 * t) * (64 + 40 * math.sin(2 * math.pi * waves * t))
                return polar(b + side * w / r, r + 26 * math.cos(2 * math.pi * waves * t), z)
            return at

        pts, _ = walk(lambda t: polar(*middle(t)), 26)
        threes(m, pts, VIOLET)
        for side, waves in ((-1, 7), (1, 7.5)):
            pts, at = walk(edge(side, waves), lambda t: 20 + 9 * t, fine=900)
            threes(m, pts, [PINK if t < 0.6 else VIOLET if t < 0.9 else GOLD for t in at])
    # The spine is wide enough to rise through.
    for k in range(3):
        pts, at = walk(lambda t: polar(2 * math.pi * (k / 3 + 2.6 * t), 172 + 60 * t * t,
                                       -80 - 1420 * t), lambda t: 14 + 7 * t, fine=900)
        threes(m, pts, [GOLD, AMBER, GOLD][k])
    whale(m, math.radians(359), 2310, -1880, 760)
    return m


def whale(m, bearing, radius, z, length):
    """Rings and lines of lights in the shape of a whale that swims to smaller bearings."""
    def place(s, across, up):
        """s from the nose 0 to the tail 1."""
        return polar(bearing + length * (s - 0.5) / radius, radius + across,
                     z + up + 0.05 * length * math.sin(3.0 * s))

    def girth(s):
        return 0.155 * length * (math.sin(math.pi * min(1, 0.06 + 1.02 * s) ** 0.62) ** 0.8) + 4

    def skin(s, a):
        g = girth(s)
        return place(s, 0.82 * g * math.cos(a), g * math.sin(a))

    for k in range(15):
        s = 0.04 + 0.06 * k
        pts, at = walk(lambda t: skin(s, 2 * math.pi * t), 24, fine=80)
        threes(m, pts, [AQUA if t < 0.5 else TEAL for t in at])
    for a in (0.5, 1.57, 2.64, 3.6, 4.2, 4.71, 5.2, 5.82):
        pts, _ = walk(lambda s: skin(s, a), 22)
        threes(m, pts, BLUE if a < 3 else TEAL)
    for side in (-1, 1):
        pts, _ = walk(lambda t: place(0.94 + 0.09 * t - 0.10 * t * t * (t > 0.5),
                                      side * 0.24 * length * t, 10 * t), 16)
        threes(m, pts, AQUA)
        pts, _ = walk(lambda t: place(1.04 - 0.10 * (1 - t) ** 2 * 0.6 + 0.0 * t,
                                      side * 0.24 * length * t, 10 * t), 16)
        threes(m, pts, AQUA)
        pts, _ = walk(lambda t: place(0.30 + 0.20 * t, side * (0.10 + 0.16 * t) * length,
                                      -0.06 * length - 0.10 * length * t), 16)
        threes(m, pts, TEAL)
        pts, _ = walk(lambda t: place(0.37 + 0.13 * t, side * (0.11 + 0.15 * t) * length,
                                      -0.06 * length - 0.10 * length * t), 16)
        threes(m, pts, TEAL)
        pearl(m, place(0.17, side * 0.115 * length, -0.02 * length), 10, GOLD)


def shoal(m, rnd, bearing, radius, z, long, mats):
    """A ribbon of fish, rows side by side, that swims to greater bearings."""
    for i in range(20):
        for row in range(4):
            t = (i + 0.5 * (row % 2)) / 20
            b = math.radians(bearing) - long * t
            r = radius + 120 * math.sin(5 * t) + 62 * (row - 1.5) * math.sin(math.pi * (
                0.12 + 0.85 * t)) + 14 * rnd.normal()
            h = z + 90 * math.sin(7 * t + 1) + 34 * (row - 1.5) + 12 * rnd.normal()
            size = 20
            threes(m, [polar(b + size / r, r, h), polar(b - size / r, r, h + 11),
                       polar(b - size / r, r, h - 11)], mats[0] if t < 0.5 else mats[1])


def ray(m, bearing, radius, z, span):
    """A ray of lights that swims to greater bearings."""
    bearing = math.radians(bearing)

    def wing(u, v):
        """u along the wing -1..1, v from the nose 0 to the tail 1."""
        back = 0.75 * abs(u) ** 1.4
        chord = 0.9 * (1 - abs(u)) ** 0.7
        along = span * (0.5 - back - chord * v)
        return polar(bearing + along / radius, radius + span * u,
                     z + span * (0.28 * u * u - 0.05 * v))

    for v, mat in ((0, TEAL), (0.33, AQUA), (0.66, BLUE), (1, TEAL)):
        pts, _ = walk(lambda t: wing(2 * t - 1, v), 15)
        threes(m, pts, mat)
    for u in (-0.7, -0.45, -0.22, 0, 0.22, 0.45, 0.7):
        pts, _ = walk(lambda t: wing(u, t), 18)
        threes(m, pts, AQUA)
    pts, _ = walk(lambda t: polar(bearing - (0.4 + 0.9 * t) * span / radius, radius,
                                  z + 24 * math.sin(5 * t)), 16)
    threes(m, pts, GOLD)


def swimmers():
    """What swims the other way round, with the canopy: shoals and rays."""
    m = Mesh()
    rnd = np.random.RandomState(8)
    shoal(m, rnd, 60, 1350, -620, 0.7, (GOLD, AMBER))
    shoal(m, rnd, 190, 2500, -1050, 0.5, (TEAL, AQUA))
    shoal(m, rnd, 300, 2350, -420, 0.5, (PINK, VIOLET))
    shoal(m, rnd, 340, 1150, -1700, 0.8, (GOLD, PINK))
    ray(m, 78, 1680, -900, 330)
    ray(m, 105, 1950, -1150, 260)
    ray(m, 285, 2500, -800, 330)
    return m


def plankton():
    """Motes that drift with the stand."""
    m = Mesh()
    rnd = np.random.RandomState(11)
    for k in range(220):
        r = 600 + 3100 * rnd.rand() ** 0.7
        p = polar(2 * math.pi * rnd.rand(), r, -150 - 2200 * rnd.rand() * (1 - 0.3 * r / 4000))
        q = p + rnd.normal(size=3) * 7
        threes(m, [p, q, p + rnd.normal(size=3) * 7], (TEAL, BLUE, VIOLET, AQUA, GOLD)[k % 5])
    return m


def bulb(m, place, size, mat):
    """A lamp of four faces, seen from outside."""
    p = np.array(place, float)
    v = [p + size * np.array(q) for q in ((0, 0, 1.2), (0.94, 0, -0.33), (-0.47, 0.82, -0.33),
                                         (-0.47, -0.82, -0.33))]
    m.add(v, [(0, 1, 2), (0, 2, 3), (0, 3, 1), (1, 3, 2)], (255, 220, 150), mat)


def on_the_ribs(point):
    """Lamps along the ribs and the rim of the canopy; point gives places of its cloth."""
    m = Mesh()
    for g in range(16):
        for k in range(7):
            x, y, z = point(g / 16, 0.22 + 0.125 * k, True)
            bulb(m, (0.998 * x, 0.998 * y, z - 40), 12, (GOLD, AQUA, VIOLET, GOLD, PINK)[(g + k) % 5])
    return m


# Garlands: bulbs and pennants on strings, from a hoop around the parasol to masts on the shore and
# to what stands there, from stone to stone, from gate to gate.
STRING = "plain:matte:44,36,46"
PENNANTS = ("plain:matte:214,97,74", "plain:matte:57,130,132", "plain:matte:222,168,74")
HOOP = (1168.0, 1176.0)         # radius, height
BULBS = (GOLD, AQUA, GOLD, TEAL, GOLD, VIOLET)


def ribbon(m, path, width, mat):
    """A narrow upright band, seen from both sides."""
    up = np.array((0, 0, width / 2))
    for p, q in zip(path, path[1:]):
        v = [p - up, q - up, q + up, p + up]
        m.add(v, [(0, 1, 2), (0, 2, 3), (0, 2, 1), (0, 3, 2)], (44, 36, 46), mat)


def garland(m, start, end, sag, gap=48.0, size=14.0, pennants=True):
    start, end = np.array(start, float), np.array(end, float)

    def at(t):
        p = start + (end - start) * t
        return p - np.array((0, 0, 4 * sag * t * (1 - t)))

    segs = max(4, int(np.linalg.norm(end - start) / 110))
    ribbon(m, [at(k / segs) for k in range(segs + 1)], 4.5, STRING)
    places_, _ = walk(at, gap, fine=120)
    along = end - start
    level = np.array((along[0], along[1], 0)) / max(1e-6, math.hypot(along[0], along[1]))
    for k, p in enumerate(places_[1:]):
        if pennants and k % 3 == 1:
            tip = p - np.array((0, 0, 46))
            v = [p - 15 * level, p + 15 * level, tip]
            m.add(v, [(0, 1, 2), (0, 2, 1)], (214, 97, 74), PENNANTS[k // 3 % 3])
        else:
            large = 1.7 if k % 8 == 2 else 1.0
            bulb(m, p - np.array((0, 0, 14 * large)), large * size, BULBS[k % len(BULBS)])


def mast(m, x, y, foot, top):
    tube(m, [(x, y, foot - 25), (x, y, top + 12)], [9, 5], 5, (123, 93, 82), "plain:matte:123,93,82")
    bulb(m, (x, y, top + 26), 24, GOLD)


def garlands():
    m = Mesh()
    radius, high = HOOP
    ribbon(m, [polar(2 * math.pi * k / 36, radius, high) for k in range(37)], 10,
           "plain:matte:150,100,50")
    for k in range(72):
        bulb(m, polar(2 * math.pi * (k + 0.5) / 72, radius + 3, high - 14), 13, (GOLD, AQUA)[k % 2])
    for bearing, far, top in places.MASTS:
        b = math.radians(bearing)
        x, y = far * math.sin(b), far * math.cos(b)
        foot = float(island.height(x, y))
        mast(m, x, y, foot, foot + top)
        garland(m, polar(b, radius, high), (x, y, foot + top), 70)
    for bearing, place in places.TIED:
        garland(m, polar(math.radians(bearing), radius, high), place, 60)
    for one, two in places.SPANS:
        garland(m, one, two, 0.09 * math.dist(one, two), 48)
    return m


def paper_boats():
    """Folded boats with a light, on the water beside the way."""
    m = Mesh()
    for x, y, turn in places.PAPER_BOATS:
        b = Mesh()
        hull = [(-46, 0, 30), (46, 0, 30), (-26, -20, 16), (26, -20, 16), (-26, 20, 16), (26, 20, 16),
                (-20, 0, -8), (20, 0, -8), (0, 0, 46)]
        sides = [(0, 6, 2), (2, 6, 7), (2, 7, 3), (3, 7, 1), (0, 4, 6), (4, 7, 6), (4, 5, 7), (5, 1, 7)]
        paper = "plain:matte:239,227,206"
        b.add(hull, sides + [(f[0], f[2], f[1]) for f in sides], (239, 227, 206), paper)
        b.add([(-18, 0, 12), (18, 0, 12), (0, -5, 58), (0, 5, 58)], [(0, 1, 2), (1, 0, 3)],
              (239, 227, 206), paper)
        lathe(b, [(0.01, 12), (11, 18), (13, 34), (9, 46), (0.01, 48)], 5, (255, 220, 150), "glow")
        m.join(b, (x, y, 2), turn)
    return m


def in_the_pine():
    """Small lanterns below the crowns of a pine."""
    m = Mesh()
    for k, (x, y, z) in enumerate(((150, 40, 425), (-60, -130, 430), (-190, 130, 395), (60, 150, 428),
                                   (200, -150, 400))):
        bulb(m, (x, y, z), 15, (GOLD, AMBER, GOLD, PINK, TEAL)[k])
    return m


def fireflies():
    """Sparks over the pines; they drift with the stand."""
    m = Mesh()
    rnd = np.random.RandomState(17)
    for k in range(80):
        b = 2 * math.pi * rnd.rand()
        r = 1330 + 620 * rnd.rand()
        bulb(m, polar(b, r, 150 + 330 * rnd.rand() ** 1.3), 9,
             "plain:constant:220,255,90" if k % 3 else GOLD)
    return m
