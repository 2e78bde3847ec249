"""Where everything stands: rows of (model, x, y, z or None = on the island, turn, size).

Turn is a bearing in degrees (the model's +Y looks there).  The last rows matter: the renderer
turns the last line but two by +0.2 degrees a frame, the one before it by -0.2, and never draws the
last line.
"""
import math

import island

GATES = ((-545, -2900, 19, 1.0), (-345, -2380, 22, 1.0), (-165, -1830, 14, 1.0))

LAMPS = (1, 3, 6, 8)           # pieces of the way with a pair of lamps


def causeway_points():
    """Pieces of the raised way, from the open sea to the dial: x, y, bearing."""
    way = [(-860, -3880), (-750, -3560), (-650, -3220), (-545, -2900), (-440, -2640),
           (-345, -2380), (-250, -2100), (-165, -1830), (-110, -1560)]
    # walk along the polyline in steps of one piece
    dense = []
    for (ax, ay), (bx, by) in zip(way, way[1:]):
        for k in range(40):
            dense.append((ax + (bx - ax) * k / 40, ay + (by - ay) * k / 40))
    dense.append(way[-1])
    out, last, run = [], dense[0], 0.0
    for k in range(1, len(dense)):
        run += math.dist(dense[k], last)
        last = dense[k]
        if run >= 266:
            run -= 266
            a, b = dense[max(0, k - 12)], dense[min(len(dense) - 1, k + 12)]
            out.append((last[0], last[1], math.degrees(math.atan2(b[0] - a[0], b[1] - a[1]))))
    return out


def rows():
    ground = island.height
    r = [("sea", 0, 0, -45, 0, 1)]
    for i in range(3):
        for j in range(3):
            if (i, j) == (1, 1):
                continue          # under the dial
            x, y = island.patch_middle(i, j)
            r.append(("isle-%d%d" % (i, j), x, y, 0, 0, 1))
    r.append(("dial", 0, 0, 0, 0, 1))
    for k, (x, y, b) in enumerate(causeway_points()):
        r.append(("causeway-lit" if k in LAMPS else "causeway", x, y, 0, b, 1))
    for x, y, b, s in GATES:
        r.append(("gate", x, y, 6, b, s))
    r.append(("parasol-pole", 0, 0, island.PLAZA_TOP, 0, 1))
    r.append(("tower", 1500, 1300, None, 0, 1))
    r.append(("viaduct", 1790, 1500, 0, -35, 1))
    r.append(("pavilion", -1650, 560, None, 0, 1))
    r.append(("armillary", -950, 1680, None, 30, 1))
    r += [("basin", -1480, -820, None, 0, 1), ("basin", 1780, -420, None, 40, 1)]
    # hour stones: every 30 degrees, off the axes; the two beside the way are lamps instead
    for k in range(12):
        b = 15 + 30 * k
        a = math.radians(b)
        if b in (165, 195):
            continue
        r.append(("hour-stone", 1340 * math.sin(a), 1340 * math.cos(a), island.PLAZA_TOP, b, 1))
    # lamps: in pairs on the way, then around the dial
    way = causeway_points()
    for k in LAMPS:
        x, y, b = way[min(k, len(way) - 1)]
        for side in (-1, 1):
            a = math.radians(b + 90)
            r.append(("lamp", x + side * 119 * math.sin(a), y + side * 119 * math.cos(a), 30, b,
                      0.75))
    for b in (166, 194, 90, 270):
        a = math.radians(b)
        r.append(("lamp", 1390 * math.sin(a), 1390 * math.cos(a), island.PLAZA_TOP, 0, 1))
    for x, y, b in ((-820, -860, 0), (-1060, -520, 20), (-1130, -80, 50), (1130, -700, 10),
                    (1220, -330, 35), (-620, 1000, 70)):
        r.append(("stand", x, y, island.PLAZA_TOP, b, 1))
    for x, y, b, s in ((-1330, -1290, 0, 1.0), (-1560, -1180, 130, 0.8), (1150, -1500, 40, 1.05),
                       (1380, -1360, 200, 0.8), (1830, 300, 90, 1.0), (-1880, 940, 10, 1.1),
                       (-1770, 1120, 160, 0.85), (200, 1880, 250, 1.0), (-40, 1980, 70, 0.8)):
        r.append(("pine", x, y, None, b, s))
    for x, y, b, s in ((-2650, -1250, 20, 1.0), (2500, -2150, 100, 1.1), (-700, 2950, 70, 1.0)):
        r.append(("islet", x, y, 0, b, s))
        a = math.radians(b)
        r.append(("pine", x + 60 * math.sin(a), y + 60 * math.cos(a), 92 * s, b + 40, 1.0))
    for x, y, b, s in ((3150, -900, 20, 1.0), (-3250, 500, 130, 1.1), (-2500, 2250, 250, 1.0),
                       (2850, 1150, 330, 0.9), (-2350, -2450, 80, 0.9), (1300, 3150, 200, 1.0)):
        r.append(("reef", x, y, -20, b, s))
    for x, y, b, s in ((-3100, 1450, 0, 1.15), (2650, -1450, 140, 1.0), (-2950, -350, 60, 0.75),
                       (2300, 2850, 200, 1.1)):
        r.append(("spire", x, y, -30, b, s))
    r += [("boat", 430, -2680, -14, 60, 1.0), ("boat", -1560, -2250, -14, 300, 1.0),
          ("boat", 2350, 420, -14, 20, 1.1), ("boat", -2050, 1750, 0, 130, 0.9)]
    r += [("garlands", 0, 0, 0, 0, 1), ("paper-boats", 0, 0, 0, 0, 1), ("signs", 0, 0, 0, 0, 1),
          ("traces", 0, 0, 0, 0, 1)]
    # the turning pair, the beam over all that is drawn before it, and the line that is never drawn
    r += [("lantern-ring", 0, 0, island.PLAZA_TOP, 0, 1), ("canopy", 0, 0, island.PLAZA_TOP, 0, 1),
          ("beam", 0, 0, 0, 0, 1), ("dummy", 0, 0, 40, 0, 1)]
    out = []
    for name, x, y, z, turn, size in r:
        if z is None:
            z = float(ground(x, y)) - 4
        out.append((name, x, y, z, turn, size))
    return out


def scene_list(path):
    lines = []
    for name, x, y, z, turn, size in rows():
        s = 1000 * size
        lines.append("./data/3d/%s.cob \t%g, %g, %g; \t%.1f, %.1f, %.1f; \t%g, %.2f, %g;" % (
            name, s, s, s, x * 10, z * 10, y * 10, 0, turn, 0))
    path.write_bytes(("\n".join(lines) + "\n").encode("ascii"))
    return lines
