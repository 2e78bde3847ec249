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
from geometry import Mesh, box, lathe, surface, tube
from layout import GATES
from models import IN_JOINTS

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


SECTORS = 6
SIXTH = 2 * math.pi / SECTORS
# Bearings of the canals of a sector; a tentacle hangs at the end of each.
CANALS = [SIXTH * ((k + 0.5) / 4 - 0.5) for k in range(4)]


def around(sector):
    """A sector, six times around the pole."""
    m = Mesh()
    for k in range(SECTORS):
        m.join(sector, turn=-360.0 * k / SECTORS)
    return m


def tentacles():
    """They hang from the rim of the bell."""
    m = Mesh()
    rnd = np.random.RandomState(5)
    tints = ((TEAL, AQUA, BLUE, VIOLET), (GOLD, PINK, PINK, VIOLET),
             (AQUA, BLUE, BLUE, VIOLET), (VIOLET, VIOLET, PINK, GOLD))
    for k, a in enumerate(CANALS):
        length = (1650, 1050, 1850, 1350)[k]
        phase, sway = rnd.uniform(0, 2 * math.pi, 2)

        def tentacle(t):
            r = RIM * (1 - 0.12 * t) + 230 * t * math.sin(4.6 * t + phase)
            b = a + 0.16 * t * math.sin(4.0 * t + sway)
            return polar(b, r, dome(RIM) - length * t)

        pts, at = walk(tentacle, lambda t: 22 + 20 * t)
        threes(m, pts, [tints[k][min(3, int(t * 4))] for t in at])
        for t in (0.33, 0.66, 1.0):
            pearl(m, tentacle(t), 9, GOLD if k != 1 else TEAL)
    return around(m)


def bell_below():
    """The underside of the medusa's bell."""
    m = Mesh()
    for k, a in enumerate(CANALS):
        # a canal from the middle to the rim
        pts, _ = walk(lambda t: polar(a, 300 + (RIM - 300) * t, dome(300 + (RIM - 300) * t)), 42)
        threes(m, pts, BLUE if k % 2 else AQUA)
        # between two canals a vein, from half way on
        v = a + SIXTH / 8
        pts, _ = walk(lambda t: polar(v, 1000 + (RIM - 1000) * t, dome(1000 + (RIM - 1000) * t)),
                      64)
        threes(m, pts, VIOLET)
    # rings of scallops between the canals
    for radius, mat, hang in ((440, AQUA, -50), (640, PINK, 70), (820, TEAL, -60), (1000, VIOLET, 90),
                              (1200, TEAL, -70), (1380, PINK, 110), (RIM, GOLD, 120)):
        for k in range(4):
            a0 = SIXTH * (k / 4 - 0.5)

            def scallop(t):
                r = radius - hang * math.sin(math.pi * t)
                return polar(a0 + SIXTH / 4 * (t + 0.5), r, dome(r))

            pts, _ = walk(scallop, 31)
            threes(m, pts, mat)
    # the margin, and its lappets
    pts, _ = walk(lambda t: polar(SIXTH * (t - 0.5), RIM + 14, dome(RIM) - 12), 24)
    threes(m, pts, TEAL)
    pts, _ = walk(lambda t: polar(SIXTH * (t - 0.5), RIM + 20 + 20 * abs(math.sin(12 * math.pi * t)),
                                  dome(RIM) - 30 - 80 * abs(math.sin(12 * math.pi * t))), 25)
    threes(m, pts, AQUA)
    return around(m)


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

        pts, _ = walk(lambda t: polar(*middle(t)), 36)
        threes(m, pts, VIOLET)
        for side, waves in ((-1, 7), (1, 7.5)):
            pts, at = walk(edge(side, waves), lambda t: 27 + 11 * t, fine=900)
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
    for i in range(19):
        for row in range(3):
            t = (i + 0.5 * (row % 2)) / 19
            b = math.radians(bearing) - long * t
            r = radius + 120 * math.sin(5 * t) + 80 * (row - 1) * math.sin(math.pi * (
                0.12 + 0.85 * t)) + 14 * rnd.normal()
            h = z + 90 * math.sin(7 * t + 1) + 44 * (row - 1) + 12 * rnd.normal()
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
    for k in range(170):
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
        for k in range(8):
            x, y, z = point(g / 16, 0.24 + 0.105 * k, True)
            bulb(m, (0.998 * x, 0.998 * y, z - 40), 12, (GOLD, AQUA, VIOLET, GOLD, PINK)[(g + k) % 5])
    return m


# Garlands: bulbs and pennants on strings, from a hoop around the parasol to masts on the shore and
# to what stands there, from stone to stone, from gate to gate.
STRING = "plain:matte:78,66,70"
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

    segs = max(4, int(np.linalg.norm(end - start) / 160))
    ribbon(m, [at(k / segs) for k in range(segs + 1)], 3.2, STRING)
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
    ribbon(m, [polar(2 * math.pi * k / 24, radius, high) for k in range(25)], 10,
           "plain:matte:150,100,50")
    for k in range(48):
        bulb(m, polar(2 * math.pi * (k + 0.5) / 48, radius + 3, high - 14), 13, (GOLD, AQUA)[k % 2])
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
        lathe(b, [(0.01, 12), (14, 28), (0.01, 50)], 5, (255, 220, 150), "glow")
        m.join(b, (x, y, 2), turn)
    return m


def in_the_pine():
    """Small lanterns below the crowns of a pine."""
    m = Mesh()
    for x, y, z in ((150, 40, 425), (-60, -130, 430), (-190, 130, 395), (60, 150, 428),
                    (200, -150, 400)):
        bulb(m, (x, y, z), 15, GOLD)
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


def sky_lanterns():
    """Paper lanterns that rise over the island and fill the globe; they drift with the stand, so
    that the day has none before it is seen from outside."""
    m = Mesh()
    rnd = np.random.RandomState(29)
    placed = []
    while len(placed) < 60:
        r, b = 350 + 2900 * rnd.rand() ** 0.75, 2 * math.pi * rnd.rand()
        x, y, z = polar(b, r, 1150 + 3000 * rnd.rand() ** 1.25)
        size = 0.8 + 0.5 * rnd.rand()
        # inside the glass, clear of parasol and lighthouse, of each other and of the flights
        if (math.hypot(r, z - 2000) > 4150 or (r < 1500 and z < 2150)
                or any(math.dist(p, (x, y, z)) < 330 for p in placed)
                or any(math.dist(p, (x, y, z)) < 900 for p in places.OUTWARD)):
            continue
        placed.append((x, y, z))
        one = Mesh()
        lathe(one, [(0.01, 4), (22, 0), (36, 52)], 4, (255, 170, 60), "plain:constant:255,176,66")
        lathe(one, [(36, 52), (0.01, 92)], 4, (255, 120, 50), "plain:constant:246,126,52")
        m.join(one, (x, y, z), 90 * rnd.rand(), size)
    return m


GLOW_ON_WATER = "veil:constant:255,140,40:1"


def water_lanterns():
    """Paper lanterns that float on the sea, each in its own pool of light; they drift with the stand,
    so that the day has none before it is seen from outside."""
    m = Mesh()
    for k, (x, y, call) in enumerate(places.water_lanterns()):
        # The stand has turned back by so much when the eye comes by.
        b = math.atan2(x, y) + math.radians(0.02 * (places.OUTSIDE + call))
        size = 1.05 + 0.1 * (k * 5 % 4)
        one = Mesh()
        # three discs, each smaller and above the last: the glow gathers at the lantern
        for radius, up in ((118, 4), (74, 9), (38, 14)):
            wide = radius * (0.66 if call == places.DIVE else 1.0)
            lathe(one, [(wide, up), (0.01, up + 1)], 8, (255, 140, 40), GLOW_ON_WATER)
        lathe(one, [(13, 8), (14.4, 17)], 4, (255, 120, 50), "plain:constant:246,126,52")
        lathe(one, [(14.4, 17), (17, 34)], 4, (255, 170, 60), "plain:constant:255,176,66")
        lathe(one, [(17, 34), (0.01, 43)], 4, (255, 120, 50), "plain:constant:246,126,52")
        m.join(one, polar(b, math.hypot(x, y), 0.0), 37.0 * k, size)
    return m


BEAM = "veil:constant:255,228,184:1"


def beam():
    """The lighthouse's two beams.  A blend before the night's sky, which is drawn last, stays: nothing
    clears the picture, and what it covers grows to its full colour.  So a beam is a sheaf of narrow
    rays: the blur mixes them with the sky between, the less the farther they part.  By day they are a
    seventh of a colour that is nearly the sky's."""
    m = Mesh()
    x, y, z = places.LAMP_ROOM
    rays = 9
    for bearing in (285, 105):
        for k in range(rays):
            # spread over a disc, as evenly as seeds in a sunflower
            off, turn = 5.5 * math.sqrt((k + 0.5) / rays), 2.39996 * k
            b = math.radians(bearing + off * math.cos(turn))
            up = math.radians(13 + off * math.sin(turn))
            ahead = np.array((math.sin(b) * math.cos(up), math.cos(b) * math.cos(up), math.sin(up)))
            path = [np.array((x, y, z)) + far * ahead for far in (40, 2400)]
            half = [np.array((0, 0, w)) for w in (6, 9)]
            v = [path[0] - half[0], path[1] - half[1], path[1] + half[1], path[0] + half[0]]
            both_sides(m, v, [(0, 1, 2), (0, 2, 3)], BEAM)
    return m


BRASS, CREAM = "plain:plastic:206,154,74", "plain:matte:239,227,206"
INK, WOOD, CORAL = "plain:matte:44,36,46", "plain:matte:123,93,82", "plain:matte:214,97,74"


def both_sides(m, points, faces, mat):
    m.add(points, list(faces) + [(a, c, b) for a, b, c in faces], (200, 180, 150), mat)


def bell():
    """Hangs under the crown of a gate; sizes in the gate's own frame."""
    m = Mesh()
    lathe(m, [(74, 520), (66, 536), (50, 570), (43, 606), (30, 628), (0.01, 636)], 12,
          (206, 154, 74), BRASS)
    lathe(m, [(0.01, 630), (28, 624), (40, 600), (46, 568), (74, 520)], 12, (150, 110, 60), INK)
    lathe(m, [(0.01, 500), (13, 508), (13, 522), (0.01, 530)], 6, (90, 76, 80), BRASS)
    tube(m, [(0, 0, 630), (0, 0, 690)], [8, 8], 5, (90, 76, 80), INK)
    return m


def clock():
    """A dial on both faces of a keystone, the hands at five past seven."""
    m = Mesh()
    for y, side in ((-94, 1), (94, -1)):
        def rim(r, k, n=16):
            a = 2 * math.pi * k / n
            return (side * r * math.sin(a), y, 752 + r * math.cos(a))

        ring = [(0, y - side * 2, 752)] + [rim(88, k) for k in range(16)]
        faces = [(0, 1 + (k + 1) % 16, 1 + k) for k in range(16)]
        m.add(ring, faces, (239, 227, 206), CREAM)
        outer = [rim(88, k) for k in range(16)] + [rim(104, k) for k in range(16)]
        faces = []
        for k in range(16):
            n = (k + 1) % 16
            faces += [(k, n, 16 + n), (k, 16 + n, 16 + k)]
        m.add(outer, faces, (206, 154, 74), BRASS)
        for k in range(12):
            a = 2 * math.pi * k / 12
            mid = np.array((side * 74 * math.sin(a), y - side * 5, 752 + 74 * math.cos(a)))
            v = [mid + (0, 0, 9), mid + (-8 * side, 0, -5), mid + (8 * side, 0, -5)]
            m.add(v, [(0, 1, 2)], (44, 36, 46), INK)
        for bearing, long, wide in ((212, 50, 11), (30, 72, 8)):
            a = math.radians(bearing)
            d = np.array((side * math.sin(a), 0, math.cos(a)))
            n = np.array((side * math.cos(a), 0, -math.sin(a)))
            mid = np.array((0, y - side * 7, 752))
            v = [mid - 12 * d - wide / 2 * n, mid + long * d, mid - 12 * d + wide / 2 * n]
            m.add(v, [(0, 1, 2)], (44, 36, 46), INK)
    return m


def vane():
    """A ship that turns with the wind, on the crown of a gate."""
    m = Mesh()
    tube(m, [(0, 0, 800), (0, 0, 985)], [9, 5], 5, (123, 93, 82), INK)
    lathe(m, [(0.01, 850), (20, 868), (0.01, 886)], 8, (206, 154, 74), BRASS)
    hull = [(-110, 0, 930), (120, 0, 935), (86, 0, 892), (-86, 0, 892)]
    both_sides(m, hull, [(0, 2, 1), (0, 3, 2)], BRASS)
    both_sides(m, [(8, 0, 940), (8, 0, 1080), (92, 0, 945)], [(0, 1, 2)], CORAL)
    both_sides(m, [(-4, 0, 940), (-4, 0, 1050), (-86, 0, 942)], [(0, 1, 2)], CREAM)
    for x, z in ((0, 840),):
        for a in range(4):
            c, s = math.cos(math.pi * a / 2), math.sin(math.pi * a / 2)
            tube(m, [(0, 0, z), (62 * c, 62 * s, z)], [4, 4], 3, (90, 76, 80), INK)
    return m


def medallion():
    """A medusa in relief, on the piers of a gate: what hangs below the sea."""
    m = Mesh()
    for side in (-1, 1):
        def at(u, v, out):
            """Across and up from the middle of the disc, out of the wall towards the sea."""
            return (side * 340 + u, -72.0 - out, 262 + v)

        def disc(radius, out, mat, n=18):
            rim = [at(radius * math.cos(2 * math.pi * k / n), radius * math.sin(2 * math.pi * k / n),
                      out) for k in range(n)]
            m.add([at(0, 0, out)] + rim, [(0, 1 + k, 1 + (k + 1) % n) for k in range(n)],
                  (206, 154, 74), mat)

        disc(62, 3, BRASS)
        disc(53, 7, "plain:matte:57,100,108")
        bell = [at(38 * math.cos(math.pi * k / 8), 6 + 32 * math.sin(math.pi * k / 8), 11)
                for k in range(9)]
        m.add([at(0, 6, 16)] + bell, [(0, 1 + k, 2 + k) for k in range(8)], (239, 227, 206), CREAM)
        for k in range(5):
            u = -30 + 15 * k
            path = [(u + 5 * math.sin(1.6 * j + k), 4 - 13 * j) for j in range(4 - abs(k - 2) // 2)]
            for (a, b), (c, d) in zip(path, path[1:]):
                m.add([at(a - 3, b, 11), at(c - 3, d, 11), at(c + 3, d, 11), at(a + 3, b, 11)],
                      [(0, 1, 2), (0, 2, 3)], (239, 227, 206), BRASS if k % 2 else CREAM)
    return m


def first_light():
    """The sun's first light on the far inner edge of a gate, left as the visitor walks in."""
    m = Mesh()
    mat = "plain:constant:255,196,118"
    near, far, spring = 54.0, 66.5, 400.0

    def strip(path):
        """Path: across and up, from the foot to the crown; the width wanes upward."""
        last = len(path) - 1
        pts = []
        for k, (x, z) in enumerate(path):
            wide = (far - near) * (1 - 0.75 * (k / last) ** 2)
            pts.append([(x, far - wide, z), (x, far, z)])
        surface(m, pts, (255, 196, 118), mat, flip=True)

    strip([(-264.0, 70), (-264.0, 230), (-264.0, 392)])
    strip([(-270.5 * math.cos(a), spring + 270.5 * math.sin(a))
           for a in (math.pi * (0.03 + 0.62 * k / 10) for k in range(11))])
    return m


def signs():
    """What marks the gates, each with its own: a bell, a clock, a vane, on the last also a medusa
    in relief; and the first light on their edges."""
    m = Mesh()
    for x, y, turn, size in GATES:
        m.join(first_light(), (x, y, 6), -turn, size)
    x, y, turn, size = GATES[-1]
    m.join(medallion(), (x, y, 6), -turn, size)
    for (x, y, turn, size), make in zip(GATES, (bell, clock, vane)):
        m.join(make(), (x, y, 6), -turn, size)
    return m


def traces():
    """What people left behind: a chair turned over and one that stands, a hat, a cup."""
    m = Mesh()

    def chair():
        c = Mesh()
        box(c, (0, 0, 40), (42, 42, 5), (123, 93, 82), WOOD, bottom=True)
        for x in (-18, 18):
            for y in (-18, 18):
                box(c, (x, y, 0), (5, 5, 40), (123, 93, 82), WOOD, top=False)
        box(c, (0, 19, 45), (42, 4, 46), (123, 93, 82), WOOD, bottom=True)
        return c

    for x, y, turn, over in places.CHAIRS:
        c = chair()
        if over:
            c.bend(lambda px, py, pz: (px, -pz + 46, py + 21))
        m.join(c, (x, y, island.PLAZA_TOP), turn)
    for x, y, z in places.HATS:
        hat = Mesh()
        lathe(hat, [(38, 0), (40, 3), (20, 6), (18, 22), (10, 27), (0.01, 28)], 10, (239, 227, 206),
              "plain:matte:222,190,120")
        lathe(hat, [(21, 7), (20, 13)], 10, (214, 97, 74), CORAL)
        m.join(hat, (x, y, z), 0)
    for x, y, z in places.CUPS:
        cup = Mesh()
        lathe(cup, [(16, 0), (18, 3), (6, 4)], 8, (239, 227, 206), CREAM)
        lathe(cup, [(6, 3), (10, 16), (9, 16), (0.01, 13)], 8, (239, 227, 206), CREAM)
        m.join(cup, (x, y, z), 0)
    return m


FOAM = "plain:matte:206,214,216"


def foam_of_gate():
    """A ragged line around the foot of each pier, clear of the way between them."""
    m = Mesh()
    rnd = np.random.RandomState(9)
    half_x, half_y, level = 113.0, 119.0, 9.0
    for side in (-1, 1):
        rim = [(-1, -1), (-0.4, -1), (0.3, -1), (1, -1), (1, -0.3), (1, 0.4), (1, 1), (0.3, 1), (-0.4, 1),
               (-1, 1), (-1, 0.4), (-1, -0.3)]
        pts = []
        for u, v in rim:
            out = 7 + 12 * rnd.rand()
            at = [(side * 340 + (half_x + w) * u, (half_y + w) * v, level) for w in (out, -6)]
            pts.append(at)
        surface(m, pts, (226, 224, 222), IN_JOINTS, wrap_i=True)
    return m


def foam(mesh, level, wide=15.0, bins=16):
    """A ragged line of foam where a mesh stands in the water; level is the water in its frame."""
    far = np.zeros(bins)
    v = np.array(mesh.verts)
    for f in mesh.faces:
        p = v[list(f)]
        for a, b in ((0, 1), (1, 2), (2, 0)):
            if (p[a, 2] - level) * (p[b, 2] - level) < 0:
                q = p[a] + (p[b] - p[a]) * (level - p[a, 2]) / (p[b, 2] - p[a, 2])
                k = int((math.atan2(q[1], q[0]) / (2 * math.pi) % 1.0) * bins) % bins
                far[k] = max(far[k], math.hypot(q[0], q[1]))
    known = np.nonzero(far)[0]
    m = Mesh()
    if len(known) < 6:
        return m
    far = np.interp(np.arange(bins), known, far[known], period=bins)
    rnd = np.random.RandomState(bins)
    pts = []
    for k in range(bins):
        a = 2 * math.pi * (k + 0.5) / bins
        out = far[k] + wide * (0.55 + 0.9 * rnd.rand())
        pts.append([(r * math.cos(a), r * math.sin(a), level + 7.0) for r in (out, 0.93 * far[k])])
    surface(m, pts, (226, 224, 222), FOAM, wrap_i=True)
    return m
