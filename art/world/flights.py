"""The two flights: named waypoints, each with its reason; writes the tracks and prints figures."""
import math

import numpy as np

import island
import layout

# name: x y z, ax (down +), ay (bearing).  Steps are powers of two, so that frame counts are exact.
SCENE_ONE = [
    ("shapes the first tangent", -758, 215, -3548, 60, 15),
    ("black water, lamps below", -733, 215, -3491, 54, 15),
    ("the way lifts the eyes", -715, 215, -3440, 32, 15),
    ("three gates stand against the sky", -692, 216, -3370, 10, 15),
    ("slow approach", -664, 218, -3280, 0, 16),
    ("the parasol fills the first gate", -628, 222, -3160, -5, 17),
    ("through the first gate", -576, 226, -3000, -6, 18),
    ("between the gates, the boat on the right", -512, 230, -2820, -6, 20),
    ("low, the dunes grow", -440, 226, -2630, -7, 20),
    ("through the second gate", -352, 224, -2400, -8, 18),
    ("the tower shows in the third gate", -270, 236, -2170, -8, 16),
    ("through the third gate", -190, 256, -1930, -10, 13),
    ("the dial opens, title done", -120, 290, -1690, -12, 9),
    ("over the hour stones' circle", -30, 310, -1430, -13, 5),
    ("under the canopy's edge", 100, 310, -1180, -17, 2),
    ("round the pole, looking up to the lanterns", 290, 320, -930, -17, 3),
    ("out of the shade towards the tower", 530, 340, -640, -12, 16),
    ("the sun beside the tower", 770, 350, -330, -9, 30),
    ("between the hour stones", 920, 365, 10, -9, 37),
    ("the stair in view", 880, 410, 330, -12, 39),
    ("circling begins, westward", 680, 500, 690, -10, 54),
    ("level with the windows", 515, 640, 1230, -6, 86),
    ("behind, the viaduct walks to sea", 625, 820, 1830, 0, 121),
    ("level with the lamp room", 1090, 1010, 2300, 5, 159),
    ("tower before parasol", 1760, 1230, 2430, 9, 198),
    ("the climb begins", 2440, 1540, 1760, 15, 232),
    ("the whole island turns", 2720, 1960, 640, 23, 257),
    ("over the eastern rocks", 2440, 2420, -480, 32, 281),
    ("the parasol below the middle", 1700, 2920, -1480, 40, 311),
    ("the ring of the stand enters", 560, 3360, -2300, 45, 345),
    ("through the glass", -620, 3960, -3200, 43, 369.5),
    ("away", -2050, 4430, -4900, 34, 382.2),
    ("the globe whole", -3560, 4330, -6560, 24.2, 387.8),
    ("rest", -4620, 4020, -7780, 18, 390.4),
    ("shapes the last tangent", -5000, 3880, -8200, 16.4, 391.1),
]


def ring(bearing, radius, height, down, look_off=0.0):
    """An eye on a circle around the parasol that looks to the middle."""
    a = math.radians(bearing)
    x, z = radius * math.sin(a), radius * math.cos(a)
    return (x, height, z, down, bearing + 180.0 + look_off)


def scene_two():
    first = ring(216, 3000, 405, 2)
    start = ring(210, 3100, 415, 2)
    keys = [("shapes the first tangent",) + first, ("behind the gates, low",) + start]
    # one slow turn of the night garden; bearings fall, so that ay falls
    plan = [(203, 3210, 440, 3, 0), (196, 3330, 480, 4, 0), (189, 3380, 520, 5, 0),
            (181, 3320, 570, 7, 2), (172, 3150, 640, 10, 3), (162, 2930, 720, 12, 2),
            (151, 2740, 800, 14, 0), (140, 2600, 870, 15, -1), (128, 2520, 930, 16, -2),
            (115, 2500, 980, 17, -2), (102, 2460, 1010, 17, -1), (89, 2380, 1000, 15, 1),
            (77, 2250, 950, 13, 3)]
    names = ["towards the way", "beside the way", "three gates in line, lamps below",
             "past the way", "the boat passes", "towards the shore", "pools of light cross",
             "over the pines",
             "east shore", "the basin in colour", "the tower to the right",
             "the tower before the dial", "down towards the shore"]
    for n, (b, r, h, d, off) in zip(names, plan):
        x, y, z, ax, ay = ring(b, r, h, d, off)
        keys.append((n, x, y, z, ax, ay))
    # The points: from low, looking up, so that all far ground folds into one bright line and what
    # stands above it is drawn on black; in under the canopy, out again with the gates, to rest.
    dots = [(69, 2010, 850, 9, 3), (62, 1740, 700, 4, 1), (54, 1560, 570, -1, 0),
            (45, 1500, 490, -6, 0), (37, 1440, 430, -10, 0), (30, 1330, 390, -14, 0),
            (23, 1230, 360, -18, 0), (15, 1180, 345, -21, 0), (6, 1170, 340, -22, 0),
            (-3, 1165, 345, -21, 3), (-12, 1170, 355, -19, 7), (-20, 1220, 372, -16.5, 11),
            (-26, 1330, 395, -14, 14), (-31, 1430, 414, -12.3, 16), (-37.5, 1510, 430, -11, 17.5),
            (-44, 1580, 445, -10, 18.5), (-47.5, 1650, 462, -9, 19), (-49.5, 1710, 478, -8.2, 19),
            (-50, 1740, 486, -7.8, 19), (-50.2, 1750, 488, -7.7, 19)]
    for k, (b, r, h, d, off) in enumerate(dots):
        x, y, z, ax, ay = ring(b, r, h, d, off)
        keys.append(("points %d" % (k + 1), x, y, z, ax, ay))
    return keys


def unwrap(keys):
    """Bearings as numbers without jumps."""
    out, last = [], None
    for name, x, y, z, ax, ay in keys:
        if last is not None:
            while ay - last > 180:
                ay -= 360
            while ay - last < -180:
                ay += 360
        last = ay
        out.append((name, x, y, z, ax, ay))
    return out


def write(path, keys, step, rest_key=None):
    lines = []
    for k, (_, x, y, z, ax, ay) in enumerate(keys):
        s = 1.0 if k == rest_key else step
        lines.append("%.1f, %.1f, %.1f;\t%.2f, %.2f, %.2f;\t%.3f, %.3f, %.3f;\t%.1f;\t%.7f;" % (
            0, -1, 0, x, y, z, ax, ay, 0, 90, s))
    path.write_bytes(("\n".join(lines) + "\n").encode("ascii"))


def sample(keys, step, frames):
    """The renderer's own curve for continuity -1: m0 = d0, m1 = d1."""
    p = np.array([k[1:] for k in keys], float)
    n = int(round(1 / step))
    out = []
    for s in range(len(p) - 2):
        d0, d1 = p[s + 1] - p[s], p[s + 2] - p[s + 1]
        for f in range(n):
            u = f / n
            out.append((u ** 3 - 2 * u * u + u) * d0 + (u ** 3 - u * u) * d1
                       + (2 * u ** 3 - 3 * u * u + 1) * p[s + 1] + (3 - 2 * u) * u * u * p[s + 2])
            if len(out) >= frames:
                return np.array(out)
    return np.array(out)


def tracks(folder):
    folder.mkdir(parents=True, exist_ok=True)
    two = unwrap(scene_two())
    assert len(SCENE_ONE) == 35 and len(two) == 35, (len(SCENE_ONE), len(two))
    write(folder / "scene1.trk", unwrap(SCENE_ONE), 1 / 64, rest_key=33)
    write(folder / "scene2.trk", two, 1 / 128)
    return {"scene1": (unwrap(SCENE_ONE), 1 / 64, 2049), "scene2": (two, 1 / 128, 3967)}
