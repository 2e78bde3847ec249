"""The island: one height function, nine patches of terrain, the dial in its middle."""
import math

import numpy as np

from bitmap import fft_noise
from geometry import Mesh, drop_degenerate, surface

PATCH, CELLS = 1728.0, 18          # one patch and its cells; three patches a side
HALF = PATCH * 1.5
PLAZA_TOP, DIAL_REACH = 30.0, 1510.0

# Places that are made level: x, y, radius, height
LEVEL = ((1500, 1300, 330, 58), (-1650, 560, 300, 46), (-950, 1680, 260, 62),
         (-1480, -820, 340, 34), (1780, -420, 330, 34), (-130, -1560, 260, 22))

# Dunes: x, y, radius along and across, height, bearing of the crest
DUNES = ((-1150, -1420, 520, 300, 120, 60), (820, -1560, 560, 320, 135, 110),
         (1640, 560, 420, 260, 120, 20), (420, 1820, 620, 330, 150, 95),
         (-1760, -60, 380, 240, 95, 170), (-1500, 1240, 430, 280, 120, 50),
         (2040, 1750, 420, 330, 70, 45), (1560, -1040, 430, 260, 110, 140))

_noise = None


def coast(bearing):
    """Distance of the water line from the middle."""
    b = np.asarray(bearing, float)
    r = 1960 + 95 * np.sin(3 * b + 0.6) + 60 * np.sin(5 * b + 2.0) + 34 * np.sin(11 * b)

    def lobe(at, width, size):
        d = (b - math.radians(at) + math.pi) % (2 * math.pi) - math.pi
        return size * np.exp(-(d / math.radians(width)) ** 2)

    return r + lobe(49, 15, 470) + lobe(-71, 14, 160) + lobe(-30, 14, 200) - lobe(187, 9, 250)


def height(x, y):
    global _noise
    if _noise is None:
        _noise = fft_noise(256, 11, 1.5, low=2)
    x, y = np.asarray(x, float), np.asarray(y, float)
    r = np.hypot(x, y)
    d = coast(np.arctan2(x, y)) - r
    h = np.interp(d, [-260, -120, 0, 110, 320, 700], [-90, -46, -3, 14, 34, 40])
    inner = np.clip((d - 60) / 200, 0, 1) * np.clip((r - 1470) / 160, 0, 1)
    ix = ((x + HALF) / (2 * HALF) * 255) % 256
    iy = ((y + HALF) / (2 * HALF) * 255) % 256
    x0, y0 = np.floor(ix).astype(int), np.floor(iy).astype(int)
    fx, fy = ix - x0, iy - y0
    n = (_noise[y0 % 256, x0 % 256] * (1 - fx) * (1 - fy)
         + _noise[y0 % 256, (x0 + 1) % 256] * fx * (1 - fy)
         + _noise[(y0 + 1) % 256, x0 % 256] * (1 - fx) * fy
         + _noise[(y0 + 1) % 256, (x0 + 1) % 256] * fx * fy)
    h = h + inner * 9 * n
    for px, py, along, across, top, bearing in DUNES:
        b = math.radians(bearing)
        a = (x - px) * math.sin(b) + (y - py) * math.cos(b)
        c = (x - px) * math.cos(b) - (y - py) * math.sin(b) + 60 * np.sin(a / 170.0)
        # gentle to windward, steep to leeward
        c = np.where(c > 0, c / (across * 0.62), c / across)
        k = np.clip(1 - (a / along) ** 2, 0, 1) ** 1.2 * np.clip(1 - np.abs(c), 0, 1)
        h = h + top * k * k * (3 - 2 * k) ** 1 * np.clip((d - 30) / 160, 0, 1) * np.clip(
            (r - 1480) / 150, 0, 1)
    for px, py, radius, level in LEVEL:
        t = np.clip((np.hypot(x - px, y - py) - radius * 0.72) / (radius * 0.6), 0, 1)
        t = t * t * (3 - 2 * t)
        h = level * (1 - t) + h * t
    # under the dial the sand lies low and level
    t = np.clip((r - 1400) / 120, 0, 1)
    return (PLAZA_TOP - 22) * (1 - t) + h * t


def patch(i, j):
    """One patch with explicit uv; cells below the water and under the dial are left out."""
    x0, y0 = -HALF + i * PATCH, -HALF + j * PATCH
    g = PATCH / CELLS
    xs = x0 + g * np.arange(CELLS + 1)
    ys = y0 + g * np.arange(CELLS + 1)
    gx, gy = np.meshgrid(xs, ys, indexing="ij")
    h = height(gx, gy)
    r = np.hypot(gx, gy)
    used, faces = {}, []

    def vertex(a, b):
        return used.setdefault((a, b), len(used))

    for a in range(CELLS):
        for b in range(CELLS):
            q = [(a, b), (a + 1, b), (a + 1, b + 1), (a, b + 1)]
            if max(h[k] for k in q) < -12 or max(r[k] for k in q) < 1430:
                continue
            k = [vertex(*p) for p in q]
            # split along the flatter diagonal
            if abs(h[q[0]] - h[q[2]]) < abs(h[q[1]] - h[q[3]]):
                faces += [(k[0], k[1], k[2]), (k[0], k[2], k[3])]
            else:
                faces += [(k[0], k[1], k[3]), (k[1], k[2], k[3])]
    m = Mesh()
    if not faces:
        return m
    keys = list(used)
    # Positions are relative to the patch's middle, so that the sphere test is tight.
    cx, cy = x0 + PATCH / 2, y0 + PATCH / 2
    verts = [(xs[a] - cx, ys[b] - cy, h[a, b]) for a, b in keys]
    uv = [(a / CELLS, b / CELLS) for a, b in keys]
    m.add(verts, faces, (206, 174, 148), "plastic", [tuple(uv[k] for k in f) for f in faces])
    return m


def texture_size(i, j):
    """Pictures of the far corners are small."""
    return 256 if (i, j) in ((0, 0), (0, 1), (0, 2), (1, 2), (2, 0)) else 512


def patch_middle(i, j):
    return (-HALF + (i + 0.5) * PATCH, -HALF + (j + 0.5) * PATCH)


def dial():
    """The paved disc, radius 1500, with a low kerb; planar uv."""
    m = Mesh()
    inner = [0.01, 126, 252, 378, 504, 630, 756]
    outer = [756, 905, 1054, 1203, 1352, 1500]

    def put(rows):
        uv = [[(0.5 + 0.5 * x / DIAL_REACH, 0.5 + 0.5 * y / DIAL_REACH) for x, y, _ in row]
              for row in rows]
        surface(m, rows, (206, 190, 165), "plastic", wrap_i=True, uv=uv)

    def circle(k, n, radii, z=PLAZA_TOP):
        a = 2 * math.pi * k / n
        return [(r * math.cos(a), r * math.sin(a), z) for r in radii[::-1]]

    put([circle(k, 36, inner) for k in range(36)])
    rows = []
    for k in range(48):
        row = circle(k, 48, outer)
        # The ring reaches a little under the disc, so that no slit opens between their edges.
        row[-1] = (row[-1][0] * 0.985, row[-1][1] * 0.985, PLAZA_TOP - 6)
        rows.append(row)
    put(rows)
    kerb = []
    for k in range(48):
        c, s = math.cos(2 * math.pi * k / 48), math.sin(2 * math.pi * k / 48)
        kerb.append([(1508 * c, 1508 * s, -8), (1500 * c, 1500 * s, PLAZA_TOP)])
    put(kerb)
    drop_degenerate(m)
    return m
