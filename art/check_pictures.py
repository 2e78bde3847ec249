"""Pictures of the production, measured: the points below the sea, and what lies behind texts.

Used by check_world.py --frames.  Every picture comes from one run of the recorder, from the first
frame on, since the blur feeds on the picture before.
"""
import pathlib
import subprocess
import tempfile

import numpy as np
from PIL import Image

HAND_OVER = 2049                     # frame of the production that is call 0 of scene two
EVERY = 20
FIRST, LAST = 1801, 3906             # calls of scene two that draw points

PALE, MOST_PALE = 140, 12.0          # every channel above; percent of the picture
STRONG, SHARE = 60, 4.0              # largest less smallest channel above; percent of the picture
HUES = (("gold", 30, 70), ("green", 70, 150), ("teal", 150, 190), ("blue", 190, 250),
        ("violet", 250, 290), ("pink", 290, 360))
GROUPS, FRAMES_OF_TEN = 3, 9
APART, LEAST_CHANGE = 200, 12.0      # calls; mean difference of all channels, of 255

# Where texts rest: first and last call of scene two (scene one: below zero), x, y, characters,
# advance.
TEXTS = (("title", -2049, -1407, 210, 200, 8, 20), ("subtitle", -2049, -1407, 100, 240, 34, 12),
         ("well", 110, 260, 38, 24, 32, 12), ("greetings", 212, 260, 38, 72, 39, 12),
         ("holiday", 1120, 1720, 151, 21, 33, 12), ("slogan", 1230, 1720, 199, 64, 27, 12),
         ("page 1, 5", 1340, 1720, 223, 108, 10, 12), ("page 1, 8", 1510, 1720, 223, 172, 11, 12),
         ("page 2, 2", 1940, 2440, 7, 43, 48, 12), ("page 2, 3", 2000, 2440, 7, 64, 32, 12),
         ("page 2, 4", 2050, 2440, 7, 86, 39, 12), ("page 2, 10", 2390, 2440, 7, 216, 44, 12),
         ("page 3, 4", 2770, 3150, 151, 86, 23, 12), ("page 3, 8", 2990, 3150, 7, 172, 50, 12),
         ("page 3, 9", 3050, 3150, 7, 194, 45, 12), ("page 3, 10", 3100, 3150, 7, 216, 49, 12),
         ("credit 1", 3540, 3860, 7, 108, 41, 12), ("credit 2", 3650, 3860, 7, 151, 19, 12),
         ("credit 3", 3760, 3860, 7, 194, 27, 12), ("see ya", 3870, 3900, 163, 259, 10, 12))
# Of the rows just above and below a text, so much may be pale: white letters would sink in it.
MOST_PALE_BEHIND = 35.0


def pale_share(page):
    return 100.0 * (page.min(axis=-1) > PALE).mean()


def hue_shares(page):
    """Percent of the picture that each group of hues holds, in the order of HUES."""
    page = page.astype(int)
    r, g, b = page[..., 0], page[..., 1], page[..., 2]
    high, low = page.max(axis=-1), page.min(axis=-1)
    chroma = np.maximum(high - low, 1)
    hue = np.where(high == r, 60 * (g - b) / chroma % 360,
                   np.where(high == g, 120 + 60 * (b - r) / chroma, 240 + 60 * (r - g) / chroma))
    strong = high - low > STRONG
    return [100.0 * (strong & (hue >= lo) & (hue < hi)).mean() for _, lo, hi in HUES]


def check_points(pages):
    """Faults of the points; pages maps calls of scene two to pictures (rows, columns, 3)."""
    said, many = [], 0
    for call, page in sorted(pages.items()):
        pale = pale_share(page)
        if pale > MOST_PALE:
            said.append("call %d: %.1f %% of the picture are pale" % (call, pale))
        many += sum(s >= SHARE for s in hue_shares(page)) >= GROUPS
        later = pages.get(call + APART)
        if later is not None:
            change = np.abs(page.astype(int) - later.astype(int)).mean()
            if change < LEAST_CHANGE:
                said.append("calls %d and %d: the same picture (%.1f)" % (call, call + APART,
                                                                         change))
    if 10 * many < FRAMES_OF_TEN * len(pages):
        said.append("only %d of %d pictures have %d groups of hues" % (many, len(pages), GROUPS))
    return said


def behind_text(page, x, y, characters, advance):
    """Percent of pale pixels in the rows just above and just below a text of one line."""
    right = min(632, x + characters * advance)
    tall = 16 if advance == 12 else 40
    rows = [r for r in list(range(y - 5, y)) + list(range(y + tall + 1, y + tall + 6)) if r >= 8]
    return pale_share(page[rows, max(8, x):right])


def resting(frame):
    """Whether each text rests in a frame of the production."""
    return [first <= frame - HAND_OVER <= last for _, first, last, *_ in TEXTS]


def check_texts(pages):
    """Faults of what lies behind resting texts; pages maps frames of the production to pictures."""
    said = []
    for k, (name, _, _, *place) in enumerate(TEXTS):
        seen = [(behind_text(pages[f], *place), f) for f in pages if resting(f)[k]]
        if not seen:
            said.append("%s: no picture was looked at" % name)
        elif max(seen)[0] > MOST_PALE_BEHIND:
            said.append("%s: %.0f %% pale behind it in frame %d" % ((name,) + max(seen)))
    return said


def record(capture, data, folder):
    """Pictures of the whole production, one in EVERY, by frame number."""
    subprocess.run([str(capture), "-w", "-ns", "--data", str(data), "--every", str(EVERY), "--png",
                    str(folder)], check=True, stdout=subprocess.DEVNULL)
    return {int(p.stem.split("-")[1]): p for p in pathlib.Path(folder).glob("frame-*.png")}


def look(capture, data):
    """Faults of the pictures that the recorder draws from a data folder."""
    with tempfile.TemporaryDirectory() as folder:
        files = record(capture, data, folder)

        def page(f):
            return np.asarray(Image.open(files[f]).convert("RGB"))

        points = {f - HAND_OVER: page(f) for f in files if FIRST <= f - HAND_OVER <= LAST}
        texts = {f: page(f) for f in files if any(resting(f))}
        pale = [pale_share(p) for p in points.values()]
        groups = [sum(s >= SHARE for s in hue_shares(p)) for p in points.values()]
        print("%d pictures of the points: at most %.1f %% pale, %d groups of hues or more in %.1f %%"
              % (len(points), max(pale), GROUPS, 100.0 * np.mean([g >= GROUPS for g in groups])))
        return check_points(points) + check_texts(texts)
