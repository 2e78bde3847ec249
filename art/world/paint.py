"""Painted pictures: sky by day and night, sea, glass, stand, sand, and the stones of the dial."""
import math

import numpy as np

from bitmap import fft_noise, lerp, ramp, smooth

SUN_BEARING, SUN_UP = 65.0, 11.0
MOON = (11.0, 15.0)                 # bearing, elevation


def sky_day():
    """1024 x 1024, folded: bearings 0-180 above, 180-360 below; latitudes 90 to -45."""
    w, h = 2048, 508
    bearing = (np.arange(w) + 0.5) / w * 360.0
    lat = np.radians(90.0 - (np.arange(h)) / (h - 1) * 135.0)
    b, la = np.meshgrid(np.radians(bearing), lat)
    # elevation seen from (0, 220, 0)
    e = np.degrees(np.arctan2(1780 + 9000 * np.sin(la), 9000 * np.cos(la)))
    er = np.radians(e)
    sb, se = math.radians(SUN_BEARING), math.radians(SUN_UP)
    dx = np.cos(er) * np.sin(b)
    dy = np.cos(er) * np.cos(b)
    dz = np.sin(er)
    sun = (math.cos(se) * math.sin(sb), math.cos(se) * math.cos(sb), math.sin(se))
    angle = np.degrees(np.arccos(np.clip(dx * sun[0] + dy * sun[1] + dz * sun[2], -1, 1)))
    side = np.degrees(np.abs((b - sb + math.pi) % (2 * math.pi) - math.pi))
    warm = np.exp(-(side / 70.0) ** 2)

    warm_sky = ramp(e, [(0, (255, 214, 158)), (4, (255, 219, 165)), (12, (240, 206, 168)),
                        (26, (196, 186, 180)), (48, (112, 148, 178)), (80, (74, 113, 150))])
    cool_sky = ramp(e, [(0, (206, 180, 198)), (5, (208, 184, 200)), (13, (186, 178, 204)),
                        (28, (140, 156, 194)), (50, (94, 132, 172)), (80, (74, 113, 150))])
    sky = lerp(cool_sky, warm_sky, warm)

    # clouds on a plane: noise sampled by direction, stretched along the wind
    noise = fft_noise(1024, 5, 1.75, stretch=(1.0, 1.9), low=2)
    detail = fft_noise(1024, 6, 1.2, stretch=(1.0, 1.6), low=10)
    z = np.maximum(dz, 0.02) + 0.08
    px, py = dx / z, dy / z

    def look(field, ox=0.0, oy=0.0, size=0.105):
        u = ((px + ox) * size % 1.0) * 1024
        v = ((py + oy) * size % 1.0) * 1024
        x0, y0 = np.floor(u).astype(int), np.floor(v).astype(int)
        fx, fy = u - x0, v - y0
        x1, y1 = (x0 + 1) % 1024, (y0 + 1) % 1024
        x0, y0 = x0 % 1024, y0 % 1024
        return (field[y0, x0] * (1 - fx) * (1 - fy) + field[y0, x1] * fx * (1 - fy)
                + field[y1, x0] * (1 - fx) * fy + field[y1, x1] * fx * fy)

    fade = smooth(5, 20, e) * (1 - smooth(60, 80, e) * 0.85)
    dense = look(noise) + 0.33 * look(detail)
    lit = look(noise, 0.30 * sun[0], 0.30 * sun[1]) + 0.33 * look(detail, 0.2, 0.1)
    cover = smooth(0.35, 1.7, dense) * fade * 0.85
    light = np.clip(0.55 + 0.40 * (dense - lit), 0, 1)
    near_sun = np.exp(-(angle / 48.0) ** 2)
    shadow_tone = lerp(np.full(sky.shape, (158, 150, 182)), np.full(sky.shape, (214, 158, 140)),
                       near_sun)
    light_tone = lerp(np.full(sky.shape, (238, 220, 220)), np.full(sky.shape, (255, 232, 190)),
                      near_sun)
    sky = lerp(sky, lerp(shadow_tone, light_tone, light), cover)
    # long thin bars of cloud low over the horizon
    bars = fft_noise((64, 2048), 9, 1.6, stretch=(6.0, 1.0), low=3)
    row = np.clip((e - 1.0) / 17.0, 0, 1) * 62
    r0 = np.floor(row).astype(int)
    cols = np.broadcast_to(np.arange(w), e.shape)
    bar = bars[r0, cols] * (1 - (row - r0)) + bars[np.minimum(r0 + 1, 63), cols] * (row - r0)
    amount = smooth(0.5, 1.9, bar) * smooth(1.5, 5, e) * (1 - smooth(11, 18, e)) * 0.7
    tone = lerp(np.full(sky.shape, (164, 142, 176)), np.full(sky.shape, (224, 148, 118)),
                np.exp(-(side / 55.0) ** 2))
    sky = lerp(sky, tone, amount)

    # glow and disc
    glow = 0.75 * np.exp(-(angle / 13.0) ** 1.2)
    sky = lerp(sky, np.full(sky.shape, (255, 235, 189)), glow)
    disc = smooth(2.35, 1.95, angle)
    sky = lerp(sky, np.full(sky.shape, (255, 250, 232)), disc)
    # air over the horizon
    sky = lerp(sky, lerp(np.full(sky.shape, (210, 186, 200)), np.full(sky.shape, (255, 219, 165)),
                         warm), 0.75 * np.exp(-(np.maximum(e, 0) / 2.2)) * (e >= 0))

    # the sea below the horizon, hazy far off, with a glitter below the sun
    sea = ramp(-e, [(0, (180, 166, 172)), (2.0, (144, 150, 161)), (5, (123, 142, 155)),
                    (12, (116, 139, 153)), (24, (116, 138, 152))])
    # from high above, where only the deep part shows, it carries the grain of the near water
    sea += (3.6 * smooth(-14, -26, e) * fft_noise((h, w), 14, 0.7, low=40))[..., None]
    sea = lerp(sea, np.full(sky.shape, (236, 196, 158)), 0.75 * warm * np.exp(-np.maximum(
        -e, 0) / 3.5))
    spark = fft_noise((h, w), 13, 0.5, stretch=(0.25, 1.0))
    path = np.exp(-(side / (5.0 + 1.2 * np.maximum(-e, 0))) ** 2) * np.exp(np.minimum(e, 0) / 8)
    sea = lerp(sea, np.full(sky.shape, (255, 232, 186)), np.clip(path * (0.75 + 0.25 * spark), 0,
                                                                 0.95))
    out = np.where((e < 0)[..., None], sea, sky)

    page = np.zeros((1024, 1024, 3))
    for half in (0, 1):
        part = out[:, half * 1024:(half + 1) * 1024]
        top = half * 512
        page[top + 2:top + 510] = part
        page[top:top + 2] = part[0]
        page[top + 510:top + 512] = part[-1]
    return page


def sky_night(day):
    """A quarter of the size, night tint, the day's clouds, the moon's glow.  Moon and stars are
    faces (fixed.moon_and_stars)."""
    n = 4
    d = day.reshape(256, n, 256, n, 3).mean(axis=(1, 3))
    d = np.minimum(d, 226)
    grey = d.mean(axis=-1, keepdims=True)
    d = 0.55 * d + 0.45 * grey
    d = d * np.array((0.21, 0.27, 0.47)) + np.array((2.5, 4, 14))
    y, x = np.mgrid[0:256, 0:256] + 0.5
    bearing = x / 256 * 180 + np.where(y >= 128, 180, 0)
    lat = 90 - (y % 128) / 128 * 135
    up = np.degrees(np.arctan2(1780 + 9000 * np.sin(np.radians(lat)), 9000 * np.cos(
        np.radians(lat))))
    side = (bearing - MOON[0] + 180) % 360 - 180
    a = np.hypot(side * np.cos(np.radians(up)), up - MOON[1])
    glow = 0.55 * np.exp(-(a / 9.0) ** 1.1)
    d = lerp(d, np.full(d.shape, (132, 140, 176)), glow)
    return d


def sea_tile(size=512):
    """Seamless calm water; low contrast, long crests, no marks that show the grid.

    Painted at size and averaged to half of it: most of the sea is far away, where the renderer
    skips from texel to texel and finer grain only sparkles (and does not fit into the caches).
    """
    a = fft_noise(size, 21, 1.15, stretch=(0.6, 1.7), low=5, high=90)
    b = fft_noise(size, 22, 0.7, stretch=(0.7, 1.5), low=24, high=150)
    drift = fft_noise(size, 23, 2.2, low=1, high=5)
    n = 0.62 * a + 0.42 * b
    base = np.full((size, size, 3), (126, 155, 186.0))
    base = lerp(base, np.full(base.shape, (94, 135, 174)), np.clip(-0.30 * n + 0.10, 0, 0.8))
    base = lerp(base, np.full(base.shape, (188, 192, 210)), np.clip(0.26 * (n - 0.35), 0, 0.7))
    base = lerp(base, np.full(base.shape, (242, 222, 206)), np.clip(0.34 * (n - 1.55), 0, 0.5))
    return (base + 3.0 * drift[..., None]).reshape(size // 2, 2, size // 2, 2, 3).mean(axis=(1, 3))


def sea_far(mean, size=256):
    """The disc below the tiles: their mean colour and something of their grain."""
    n = fft_noise(size, 24, 0.9, low=6)
    soft = fft_noise(size, 25, 1.8, low=2)
    return np.full((size, size, 3), mean) + 5.0 * n[..., None] + 3.0 * soft[..., None]


def sea_night(day):
    """Dark water: what the moving lights paint on."""
    grey = day.mean(axis=-1, keepdims=True)
    d = 1.5 * (day - day.mean(axis=(0, 1))) + day.mean(axis=(0, 1))
    return np.clip((0.75 * d + 0.25 * grey) * np.array((0.88, 0.86, 1.06)), 0, 255)


def sand_color(x, y, h, seed=40):
    """Colour of the island at world places, from height and ripples alone."""
    fine = fft_noise(512, seed, 1.0, stretch=(0.5, 1.6), low=14, high=120)
    soft = fft_noise(512, seed + 1, 1.7, low=2)

    def look(f, period):
        u = np.floor((x / period % 1.0) * 512).astype(int) % 512
        v = np.floor((y / period % 1.0) * 512).astype(int) % 512
        return f[v, u]

    base = np.full(x.shape + (3,), (222, 194, 164.0))
    base = lerp(base, np.full(base.shape, (238, 214, 180)), np.clip(0.5 + 0.4 * look(soft, 1900),
                                                                  0, 1))
    base = lerp(base, np.full(base.shape, (208, 172, 148)), np.clip(0.22 * look(fine, 1100), 0,
                                                                  0.5))
    # growth in the hollows, wet sand and a pale foam line at the shore
    moss = np.clip(0.8 * look(soft, 830) - 0.55, 0, 0.6) * smooth(18, 40, h) * smooth(120, 60, h)
    base = lerp(base, np.full(base.shape, (158, 164, 122)), moss)
    wet = smooth(15, 3, h)
    base = lerp(base, np.full(base.shape, (150, 128, 118)), 0.8 * wet)
    wave = h + 2.2 * look(soft, 620)
    foam = np.exp(-((wave - 1.2) / 1.5) ** 2) + 0.5 * np.exp(-((wave - 6.0) / 0.9) ** 2)
    base = lerp(base, np.full(base.shape, (236, 228, 220)), np.clip(0.7 * foam, 0, 0.8))
    under = smooth(-1.0, -9.0, h)
    base = lerp(base, np.full(base.shape, (112, 142, 150)), under)
    return base


def dial(size, radius, light=None):
    """The paving of the dial seen from above: rings of slabs, hour rays, a star, inlays."""
    y, x = (np.mgrid[0:size, 0:size] + 0.5) / size * 2 - 1
    x, y = x * radius, -y * radius
    r = np.hypot(x, y)
    a = np.degrees(np.arctan2(x, y)) % 360.0
    grain = fft_noise(size, 51, 1.2, low=6)
    drift = fft_noise(size, 52, 1.9, low=2)
    out = np.full((size, size, 3), (206, 188, 162.0))
    edges = [0, 118, 250, 330, 470, 600, 690, 830, 960, 1060, 1180, 1300, 1380, 1500, 1600]
    tones = [(198, 150, 88), (214, 199, 173), (196, 170, 142), (222, 206, 180), (206, 182, 152),
             (170, 120, 100), (216, 200, 172), (204, 184, 156), (198, 172, 146), (220, 204, 178),
             (200, 178, 150), (160, 124, 108), (212, 194, 168), (212, 194, 168)]
    counts = [1, 12, 24, 24, 36, 48, 48, 60, 60, 72, 72, 84, 96, 96]
    joint = np.zeros((size, size))
    px = 2.0 * radius / size
    for k in range(len(edges) - 1):
        lo, hi = edges[k], edges[k + 1]
        on = (r >= lo) & (r < hi)
        cell = np.floor((a / 360.0 * counts[k] + 0.5 * (k & 1)))
        hash_ = (np.sin(cell * 12.9898 + k * 78.233) * 43758.5453) % 1.0
        tone = np.array(tones[k]) * (0.93 + 0.14 * hash_)[..., None]
        out = np.where(on[..., None], tone, out)
        width = max(2.2, 1.1 * px)
        f = (a / 360.0 * counts[k] + 0.5 * (k & 1)) % 1.0
        arc = np.minimum(f, 1 - f) * 2 * math.pi * np.maximum(r, 1) / counts[k]
        joint = np.where(on, np.maximum(joint, np.maximum(smooth(2 * width, 0.6 * width, arc),
                                                          smooth(2 * width, 0.6 * width,
                                                                 np.abs(r - lo)))), joint)
    # twelve brass rays, a coral wedge for each third hour
    for k in range(12):
        d = (a - 15 - 30 * k + 180) % 360 - 180
        half = np.abs(np.radians(d)) * r
        ray = smooth(9 + px, 9 - px, half) * (r > 250) * (r < 1300)
        out = lerp(out, np.full(out.shape, (190, 142, 70)), ray * 0.9)
    star = np.zeros((size, size))
    for k in range(8):
        d = np.radians((a - 45 * k + 180) % 360 - 180)
        length = 600 if k % 2 == 0 else 430
        along, across = r * np.cos(d), np.abs(r * np.sin(d))
        inside = (across < 74 * np.clip(1 - along / length, 0, 1)) & (along > 0) & (r > 118)
        dark = (np.sin(d) > 0)
        star = np.where(inside, np.where(dark, 1, 2), star)
    out = np.where((star == 1)[..., None], np.array((184, 92, 72)) + 5 * grain[..., None], out)
    out = np.where((star == 2)[..., None], np.array((226, 168, 132)) + 5 * grain[..., None], out)
    out = out + 5.0 * grain[..., None] + 6.0 * drift[..., None]
    out = lerp(out, np.full(out.shape, (128, 108, 98)), 0.5 * joint)
    sandy = np.clip(0.55 * drift - 0.25, 0, 0.6) * smooth(500, 1300, r)
    out = lerp(1.09 * out, np.full(out.shape, (228, 200, 168)), sandy)
    return np.clip(out, 0, 250)


def glass(size=256):
    """Veil of the globe by the angle from its axis; the far corner is pure white."""
    y, x = (np.mgrid[0:size, 0:size] + 0.5) / size * 2 - 1
    d = np.hypot(x, y) / 0.98 * 90
    level = np.where(d < 39, 1, np.where(d < 51, 2, 3))
    strength = np.interp(d, [0, 30, 45, 55, 61, 64, 70], [0.035, 0.04, 0.07, 0.14, 0.26, 0.375,
                                                        0.40])
    # light gathers at the foot on the side away from the sun
    strength = strength * (1.0 + 0.25 * np.clip(y, 0, 1))
    tint = np.array((1.0, 0.72, 0.5))
    out = 255 * (1 - (strength / level * 7 / 1.2)[..., None] * tint)
    out = np.clip(out, 0, 255)
    out[(x > 0.9) & (y < -0.9)] = 255
    return out


def stand(size=512):
    """Quadrants: bronze and wood by height (left), table with its shadow (lower right)."""
    y, x = (np.mgrid[0:size, 0:size] + 0.5) / size
    out = np.full((size, size, 3), 255.0)
    v = 1 - y
    grain = fft_noise(size, 61, 1.1, stretch=(0.35, 3.0), low=4)
    turned = fft_noise(size, 62, 1.0, stretch=(9.0, 0.8), low=3)

    def band(lo, hi, stops, k):
        t = np.clip((v - lo) / (hi - lo), 0, 1)
        tone = ramp(t, stops) + k * grain[..., None] + 0.8 * k * turned[..., None]
        # soft windows of a room, mirrored in the polish
        shine = 34 * np.exp(-((x - 0.17) / 0.035) ** 2) + 18 * np.exp(-((x - 0.36) / 0.05) ** 2)
        return tone + shine[..., None] * np.array((1.0, 0.86, 0.62))

    bronze = band(0.02, 0.30, [(0, (112, 74, 44)), (0.2, (190, 138, 72)), (0.55, (224, 174, 98)),
                               (0.75, (255, 222, 150)), (0.9, (206, 154, 82)),
                               (1, (120, 84, 56))], 4)
    bowl = band(0.34, 0.66, [(0, (82, 52, 44)), (0.5, (116, 76, 60)), (0.85, (136, 92, 68)),
                             (1, (92, 60, 48))], 7)
    neck = band(0.70, 0.98, [(0, (90, 58, 46)), (0.4, (128, 86, 66)), (1, (84, 54, 44))], 7)
    left = x < 0.5
    out = np.where((left & (v < 0.32))[..., None], bronze, out)
    out = np.where((left & (v >= 0.32) & (v < 0.68))[..., None], bowl, out)
    out = np.where((left & (v >= 0.68))[..., None], neck, out)
    # table: v below a half is the lower right quadrant
    tx, ty = (x - 0.75) / 0.248, (y - 0.75) / 0.248
    r = np.hypot(tx, ty)
    shadow = 0.62 * np.exp(-(np.maximum(r - 0.16, 0) / 0.26) ** 2)
    shadow = shadow * smooth(0.93, 0.55, r)
    table = 255 * (1 - shadow[..., None] * (1 - np.array((165, 154, 173)) / 255.0) / 0.62 * 0.95)
    table = np.where((r > 0.93)[..., None], 255.0, table)
    out = np.where(((x >= 0.5) & (y >= 0.5))[..., None], table, out)
    return out


def canopy(size=256):
    """Cloth of the parasol, laid out as models.canopy says: seams, folds, sun-bleached crown."""
    y, x = (np.mgrid[0:size, 0:size] + 0.5) / size
    v = 1 - y
    t = np.clip((0.98 - v) / 0.66, 0, 1)               # 0 at the crown, 1 at the rim
    column = np.clip((x * 4).astype(int), 0, 3)
    g = np.clip((x - 0.25 * column - 0.01) / 0.23, 0, 1)
    weave = fft_noise(size, 71, 0.4, low=30)
    stain = fft_noise(size, 72, 1.8, stretch=(1.0, 0.6), low=3)
    # The inside is paler: light comes through the cloth, and the renderer shades it.
    tones = np.array([(216, 98, 74), (240, 228, 208), (248, 124, 92), (255, 240, 214.0)])
    out = tones[column]
    fold = 0.94 + 0.10 * np.sin(math.pi * g) - 0.05 * np.cos(6 * math.pi * g) * t
    seam = np.exp(-(np.minimum(g, 1 - g) / 0.035) ** 2)
    hoop = sum(np.exp(-((t - p) / 0.006) ** 2) for p in (0.34, 0.66, 0.965))
    k = fold - 0.20 * seam - 0.10 * hoop
    # inside: darker towards the crown and below the ribs; outside: bleached crown
    inside = column >= 2
    k = np.where(inside, k * (0.70 + 0.30 * t) - 0.10 * seam, k * (1.03 - 0.07 * t))
    out = out * k[..., None] + 2.2 * weave[..., None] + 3.5 * stain[..., None]
    hem = v < 0.31
    out = np.where(hem[..., None], tones[column] * (0.80 + 0.22 * np.clip((0.28 - v) / 0.08, 0, 1)
                                                    )[..., None], out)
    wood = np.array((112, 80, 68)) + 7 * stain[..., None]
    brass = np.array((214, 162, 80)) + 9 * stain[..., None]
    out = np.where((v < 0.18)[..., None], wood, out)
    return np.where((v < 0.09)[..., None], brass, out)
