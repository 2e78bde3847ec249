"""Places that lights are tied to, in map coordinates (X east, Y north, Z up)."""
import math

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
