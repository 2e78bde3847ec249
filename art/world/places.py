"""Places that lights are tied to, in map coordinates (X east, Y north, Z up)."""
import math
import random

import island
from layout import GATES


def _at(bearing, radius, z):
    b = math.radians(bearing)
    return (radius * math.sin(b), radius * math.cos(b), z)


# Masts on the shore: bearing, distance from the pole, height above the ground.
MASTS = ((0, 1720, 430), (29, 1800, 430), (75, 1800, 430), (100, 1740, 430), (125, 1740, 430),
         (157, 1680, 430), (222, 1660, 430), (252, 1740, 430), (312, 1790, 430))
# What else a garland runs to from the hoop: bearing at the hoop, place.
TIED = ((49, (1352, 1172, 1036)),                                  # gallery of the lighthouse
        (186, (GATES[2][0], GATES[2][1], 840)),                    # keystone of the last gate
        (289, (-1650 + 180, 560 - 60, 46 + 400)),                  # eaves of the pavilion
        (334, (-950 + 60, 1680 - 160, 62 + 960)))                  # the armillary's ring


def _stones():
    """From stone to stone of the dial, but not across the way."""
    out = []
    for k in range(12):
        a, b = 15 + 30 * k, 45 + 30 * k
        if a % 360 in (135, 165, 195) or b % 360 in (165, 195):
            continue
        out.append((_at(a, 1340, island.PLAZA_TOP + 362), _at(b, 1340, island.PLAZA_TOP + 362)))
    return out


def _way():
    """Along the way, from gate to gate, on both sides."""
    out = []
    for one, two in zip(GATES, GATES[1:]):
        for side in (-1, 1):
            ends = []
            for x, y, turn, _ in (one, two):
                b = math.radians(turn + 90)
                ends.append((x + side * 335 * math.sin(b), y + side * 335 * math.cos(b), 640))
            out.append(tuple(ends))
    return out


SPANS = _stones() + _way()
# Where the eye passes on its way through the glass.
OUTWARD = ((1700, -1480, 2920), (560, -2300, 3360), (-30, -2760, 3700), (-620, -3200, 3960),
           (-1300, -4000, 4250))
# x, y, turn
PAPER_BOATS = ((-1010, -2870, 20), (-1130, -2690, 70), (-900, -2590, 140), (-1020, -2420, 10),
               (-770, -2420, 100), (-840, -2230, 50), (-1190, -3060, 120), (-960, -3130, 160),
               (-640, -2120, 30), (-20, -2760, 80), (160, -2480, 20), (80, -2260, 130),
               (290, -2080, 60), (-150, -3060, 150), (-1420, -2870, 40))
# On the dial: x, y, turn, whether it lies on its back.
CHAIRS = ((1010, -560, 30, False), (1075, -690, 110, True), (330, -470, 70, True))
HATS = ((395, -395, island.PLAZA_TOP + 1), (1130, -700, island.PLAZA_TOP + 80))
CUPS = ((1152, -690, island.PLAZA_TOP + 80), (1220, -330, island.PLAZA_TOP + 80),
        (-820, -860, island.PLAZA_TOP + 80))


LAMP_ROOM = (1500, 1300, 1116)
OUTSIDE = 238                   # frames of scene one that draw the stand
DIVE = 1795                     # call of scene two in which the eye goes below the sea
ROCKS_IN_WATER = ((-2650, -1250), (2500, -2150), (-700, 2950), (3150, -900), (2650, -1450), (2350, 420))


def _beside(eye, bearing, offsets, call):
    """Places ahead of an eye and to its right, for a call of scene two."""
    b = math.radians(bearing)
    return [(eye[0] + ahead * math.sin(b) + right * math.cos(b),
             eye[1] + ahead * math.cos(b) - right * math.sin(b), call) for ahead, right in offsets]


def water_lanterns():
    """Where lanterns float, x, y, and the call of scene two at which they are there: beside the way
    as the night begins, along the shore, and where the eye goes down."""
    out = _beside((-1154, -2583), 34, (
        (-90, -230), (-40, 110), (90, -420), (230, -200), (330, 150), (470, -380), (560, 40),
        (690, -560), (740, -160), (800, 210), (330, -680), (620, -920), (900, -820)), 150)
    out += _beside((1850, -2810), -34, (
        (62, -66), (105, 84), (45, 175), (165, -215), (185, 10), (265, 190), (330, -120), (430, 360),
        (470, 40), (560, -330), (660, 210), (790, -90), (860, 520), (980, -330), (1080, 60),
        (700, -800)), DIVE)
    rnd = random.Random(4)
    while len(out) < 46:
        b, r = math.radians(85 + 100 * rnd.random()), 2080 + 800 * rnd.random()
        x, y = r * math.sin(b), r * math.cos(b)
        if all(math.dist((x, y), p) > 430 for p in ROCKS_IN_WATER) and all(
                math.dist((x, y), p[:2]) > 230 for p in out[29:]):
            out.append((x, y, 1330))
    return out
