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
    ("slow approach", -664, 218, -3280, -1, 16),
    ("the parasol fills the first gate", -628, 222, -3160, -9, 17),
    ("through the first gate", -576, 226, -3000, -14, 18),
    ("between the gates, the boat on the right", -512, 230, -2820, -17, 20),
    ("the title under the parasol", -440, 226, -2630, -18, 20),
    ("through the second gate", -352, 224, -2400, -18, 18),
    ("the tower shows in the third gate", -270, 236, -2170, -20, 16),
    ("through the third gate", -190, 256, -1930, -28, 13),
    ("the dial opens, title done", -120, 290, -1690, -29, 9),
    ("over the hour stones' circle", -30, 310, -1430, -24, 5),
    ("under the canopy's edge", 100, 310, -1180, -19, 2),
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
    ("the globe whole", -3560, 3980, -6480, 21, 387.8),
    ("rest", -4560, 3400, -7680, 15.2, 390.4),
    ("shapes the last tangent", -4900, 3180, -8080, 13.8, 391.1),
]


def ring(bearing, radius, height, down, look_off=0.0):
    """An eye on a circle around the parasol that looks to the middle."""
    a = math.radians(bearing)
    x, z = radius * math.sin(a), radius * math.cos(a)
    return (x, height, z, down, bearing + 180.0 + look_off)


def scene_two():
    # The night of lights: beside the way, over paper boats; in under the parasol to its lanterns;
    # out to sea, until the whole island is in sight.
    keys = [
        ("shapes the first tangent", -1480, 172, -3300, -1, 32),
        ("on the water, paper boats before the gates", -1330, 160, -2980, -1, 33),
        ("along the gates", -1180, 150, -2640, -2, 35),
        ("boats close by", -1030, 180, -2330, -3, 36),
        ("towards the shore", -880, 250, -2030, -6, 33),
        ("the dial opens", -760, 330, -1660, -9, 28),
        ("over the stones' circle", -640, 400, -1260, -11, 30),
        ("under the canopy, lanterns turn", -610, 470, -830, -17, 38),
        ("round the pole, out to the lighthouse", -420, 520, -560, -13, 44),
        ("the parasol's other side", 150, 560, -640, -8, 20),
        ("out of the parasol, over the tables", 736, 870, -1140, 14, -19),
        ("out to sea, the whole island", 2330, 960, -2030, 12, -37),
        ("along the shore, higher", 2760, 1400, -1580, 19, -57),
        ("back over the dial", 1407, 1400, -1025, 17, -57),
        ("down to the water", 1640, 640, -2200, 17, -43),
    ]

    def at(name, b, r, h, down, ay):
        a = math.radians(b)
        keys.append((name, r * math.sin(a), h, r * math.cos(a), down, ay))

    at("skims the water", 146, 3384, 45, 4, 326)
    at("down through the sea, the bell above", 160, 2900, -430, -8, 341)
    at("among the tentacles", 178, 2500, -820, -12, 361)
    at("along them, down", 199, 2200, -1220, -15, 386)
    at("the skirt sweeps past", 224, 1800, -1650, -21, 414)
    at("inside the skirt", 252, 1300, -1980, -33, 446)
    at("towards the spine", 283, 700, -2180, -55, 482)
    at("under the spine", 315, 200, -2230, -80, 524)
    at("straight up", 0, 0, -1950, -90, 549)
    at("up into the spine", 0, 0, -1560, -90, 572)
    at("the bell fills the sky", 0, 0, -1240, -90, 600)
    at("back down", 225, 130, -1420, -81, 648)
    at("away, down and out", 225, 1100, -2050, -50, 702)
    at("away, through the skirt", 225, 2450, -1900, -26, 742)
    at("the medusa whole", 224, 3330, -1400, -10, 752)
    at("credits", 222, 3560, -1330, -8, 753)
    at("credits", 219, 3620, -1290, -7.2, 751)
    at("rest", 217.5, 3640, -1280, -7, 749.5)
    at("rest", 217.5, 3640, -1280, -7, 749.5)
    at("rest", 217.5, 3640, -1280, -7, 749.5)
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
