#!/usr/bin/python3
"""Writes the score of the soundtrack: 120 beats a minute, a bar of 2 s, B minor and D major.

The form follows the picture (bars from 0): dawn 0, arrival 8, climb 16, white 22, groove 26,
hook 28, break 36, second theme 40, dots 48, second half of the dots 60, thinning 72, end 74 on.
Usage: compose.py OUT.sco [--cues]
"""
import sys

BEAT = 0.5
STEP = 0.125
BAR = 2.0

events = []


def at(bar, beat=0.0):
    return bar * BAR + beat * BEAT


def play(instrument, start, length, *fields):
    text = " ".join(f"{f:.4f}".rstrip("0").rstrip(".") for f in fields)
    events.append((start, f'i "{instrument}" {start:.4f} {length:.4f} {text}'.rstrip()))


class Noise:
    """A small fixed random sequence: human touch that is the same on every run."""

    def __init__(self, seed):
        self.state = seed

    def next(self):
        self.state = (self.state * 1103515245 + 12345) % 2 ** 31
        return self.state / 2 ** 31

    def between(self, low, high):
        return low + (high - low) * self.next()


noise = Noise(2026)

# Chords as MIDI notes, low to high, and the root that the bass plays.
CHORDS = {
    "D5": ([50, 57, 62, 64, 69], 38), "G/D": ([50, 59, 62, 67, 71], 38),
    "Asus/D": ([50, 57, 62, 64, 71], 38), "Bm9": ([59, 62, 66, 69, 73], 35),
    "Gmaj9": ([55, 59, 62, 66, 69], 31), "D/F#": ([54, 57, 62, 66, 69], 30),
    "A": ([57, 61, 64, 69, 73], 33), "A6": ([57, 61, 64, 66, 69], 33),
    "Em9": ([52, 59, 62, 66, 67], 28), "F#m7": ([54, 57, 61, 64, 69], 30),
    "A13sus": ([57, 62, 66, 67, 71], 33), "Dmaj9": ([50, 57, 61, 64, 66], 38),
    "Glyd": ([55, 59, 61, 66, 69], 31), "F#7sus": ([54, 59, 61, 64, 66], 30),
    "F#7": ([54, 58, 61, 64, 66], 30), "Dadd9": ([50, 57, 62, 64, 66], 38),
    "Bm7": ([47, 59, 62, 66, 69], 35),
}

HOOK = [  # (note, beats); eight bars
    [(78, 1.5), (76, 0.5), (74, 1), (73, 1)], [(71, 1.5), (73, 0.5), (74, 2)],
    [(81, 1.5), (78, 0.5), (76, 1), (74, 1)], [(76, 1.5), (78, 0.5), (76, 1), (73, 1)],
    [(78, 1.5), (76, 0.5), (74, 1), (78, 1)], [(83, 1.5), (81, 0.5), (78, 2)],
    [(79, 1.5), (78, 0.5), (76, 1), (74, 1)], [(73, 1.5), (71, 0.5), (70, 2)]]
HOOK_CHORDS = ["Bm9", "Gmaj9", "D/F#", "A6", "Bm9", "Gmaj9", "Em9", "F#7sus"]

THEME = [  # the second melody: long, rising, one peak in its seventh bar
    [(71, 2), (74, 1), (78, 1)], [(81, 2.5), (78, 0.5), (76, 1)],
    [(79, 2), (78, 1), (76, 1)], [(78, 3), (74, 1)],
    [(71, 1.5), (74, 0.5), (79, 2)], [(81, 1.5), (83, 0.5), (85, 2)],
    [(86, 2), (81, 1), (78, 1)], [(83, 2), (82, 2)]]
THEME_CHORDS = ["Gmaj9", "D/F#", "Em9", "Bm9", "Gmaj9", "A6", "Dadd9", "F#7sus"]

ROYAL = ["Gmaj9", "A6", "F#m7", "Bm9"]

COUNTER = [  # under the returning hook: mostly held notes, moving where the hook stands
    [(66, 3), (64, 1)], [(62, 2), (66, 1), (69, 1)], [(69, 3), (66, 1)], [(64, 2), (69, 2)],
    [(66, 3), (69, 1)], [(71, 2), (69, 1), (66, 1)], [(67, 2), (71, 2)], [(66, 2), (64, 2)]]


def chord_at(names, bar):
    """The chord of a bar; the dominant's fourth falls to its third in mid-bar (see halves)."""
    return CHORDS[names[bar % len(names)]]


def pad(bar, length, name, level, cut, attack=0.06, release=0.35):
    for note in CHORDS[name][0]:
        play("Pad", at(bar), length * BAR, note, level, cut[0], cut[1], attack, release)


def pads(first, names, level, cuts, attack=0.06):
    """A pad a bar; the filter goes from cuts[0] to cuts[1] over the whole stretch."""
    count = len(names)
    for i, name in enumerate(names):
        low = cuts[0] * (cuts[1] / cuts[0]) ** (i / count)
        high = cuts[0] * (cuts[1] / cuts[0]) ** ((i + 1) / count)
        if name == "F#7sus":
            play_half = [("F#7sus", 0), ("F#7", 2)]
            for half, beat in play_half:
                for note in CHORDS[half][0]:
                    play("Pad", at(first + i, beat), 1.0, note, level, low, high, attack, 0.35)
        else:
            pad(first + i, 1, name, level, (low, high), attack)


def drums(bar, kicks=(0, 4, 8, 12), snares=(4, 12), hats=0.10, opens=(2, 6, 10, 14), duck=0.36,
          kick=0.80, snare=0.46):
    for step in kicks:
        play("Kick", at(bar) + step * STEP, 0.4, kick if step % 4 == 0 else kick * 0.75)
        play("Duck", at(bar) + step * STEP, 0.345, duck)
    for step in snares:
        play("Snare", at(bar) + step * STEP, 0.4, snare)
    if hats:
        for step in range(16):
            if step in opens:
                play("Hat", at(bar) + step * STEP, 0.22, hats * 1.05, 0.15, 0.58)
            else:
                accent = 0.75 if step % 4 == 0 else (0.55 if step % 2 else 0.65)
                play("Hat", at(bar) + step * STEP, 0.08, hats * accent * noise.between(0.85, 1.1),
                     0.035, 0.42)


def bass(bar, root, bright=0.6, level=0.40, steps=((0, 0), (3, 0), (6, 12), (7, 0), (8, 0),
                                                     (11, 0), (14, 12), (15, 0))):
    for i, (step, up) in enumerate(steps):
        following = steps[i + 1][0] if i + 1 < len(steps) else 16
        length = min(following - step, 2) * STEP * 0.92
        play("Bass", at(bar) + step * STEP, length, root + up, level, bright)


def arp(bar, name, level, octave=12, cut=3800, swap=False):
    tones = CHORDS[name][0]
    order = [0, 2, 1, 3, 2, 4, 1, 3]
    for step in range(16):
        note = tones[order[step % 8]] + octave + (12 if step in (5, 13) else 0)
        pan = 0.28 if (step % 2 == 0) != swap else 0.72
        accent = 1.0 if step % 4 == 0 else 0.78
        play("Arp", at(bar) + step * STEP, STEP * 0.9, note, level * accent, pan, cut)


def line(instrument, bar, melody, level, up=0, *tail):
    """Plays one bar of a melody; the lead glides from its last note."""
    beat = 0.0
    for note, beats in melody:
        length = beats * BEAT * 0.96
        if instrument == "Lead":
            previous = line.last or note + up
            play("Lead", at(bar, beat), length, note + up, level, previous)
            line.last = note + up
        else:
            play(instrument, at(bar, beat), length, note + up, level, *tail)
        beat += beats


line.last = 0


def bells(bar, notes, level, delay=0.35):
    """notes: (beat, note); they wander from side to side."""
    for i, (beat, note) in enumerate(notes):
        pan = 0.3 + 0.4 * ((i * 5) % 7) / 6
        play("Bell", at(bar, beat), 5, note, level * noise.between(0.85, 1.0), pan, delay)


def fill(bar, step=12):
    """A short run into the next bar."""
    for i, s in enumerate(range(step, 16)):
        play("Snare", at(bar) + s * STEP, 0.3, 0.22 + 0.07 * i)
    play("Tom", at(bar) + 14 * STEP, 0.5, 45, 0.34, 0.65)
    play("Tom", at(bar) + 15 * STEP, 0.5, 40, 0.36, 0.4)


def dawn():
    play("Drone", 0, 33, 38, 0.115, 6, 4)
    play("Drone", 8, 24, 45, 0.06, 6, 4)
    play("Wind", 0, 34, 0.10, 0.075, 0.02)
    for i, name in enumerate(["D5", "D5", "G/D", "Asus/D"]):
        start = 1.5 + i * 4 - (1.5 if i else 0)
        for note in CHORDS[name][0]:
            play("Pad", start, 4.2, note, 0.024 + 0.005 * i, 300 + 130 * i, 480 + 170 * i, 2.2, 2)
    bells(1, [(2, 81), (3.5, 76)], 0.05)
    bells(3, [(0, 86), (2.5, 81)], 0.055)
    bells(4, [(3, 78)], 0.055)
    bells(5, [(1, 83), (2.5, 78)], 0.06)
    bells(6, [(2, 85), (3, 81)], 0.065)
    bells(7, [(0, 76), (1, 81), (2, 83), (3, 85)], 0.065)


def arrival():
    names = ["Bm9", "Gmaj9", "D/F#", "A"]
    for i, name in enumerate(names):
        pad(8 + 2 * i, 2, name, 0.052 + 0.003 * i, (900 + 260 * i, 1300 + 380 * i), 0.7, 1.2)
        root = CHORDS[name][1]
        for half in (0, 1):
            bar = 8 + 2 * i + half
            play("Sub", at(bar), 1.6, root, 0.17, root)
            if i >= 1:
                play("Sub", at(bar, 3), 0.45, root + 7, 0.15, root)
            for step in ((0, 6, 12) if i < 2 else (0, 3, 6, 10, 12)):
                play("Tick", at(bar) + step * STEP, 0.1, 0.10 + 0.02 * i, 0.3 + 0.4 * (step % 2))
            for step in range(2, 16, 4 if i < 2 else 2):
                play("Hat", at(bar) + step * STEP, 0.08, 0.035 + 0.011 * i, 0.05, 0.6)
    # The hook at half speed, one bar of it over two.
    for i in range(4):
        beat = 0.0
        for note, beats in HOOK[i]:
            bells(8 + 2 * i, [(beat * 2, note)], 0.115)
            beat += beats


def climb():
    names = ["Em9", "F#m7", "Gmaj9", "A", "Gmaj9", "A13sus"]
    pads(16, names, 0.062, (1500, 4200), 0.12)
    for i, name in enumerate(names):
        bar = 16 + i
        arp(bar, name, 0.050 + 0.010 * i, 12, 900 + 560 * i)
        drums(bar, kicks=(0, 10) if i < 4 else (0, 6, 10, 14), snares=(8,) if i < 5 else (),
              hats=0.05 + 0.011 * i, opens=(6, 14), duck=0.55, kick=0.66, snare=0.42)
        bass(bar, CHORDS[name][1], 0.25 + 0.11 * i, 0.31,
             ((0, 0), (3, 0), (6, 0), (8, 0), (11, 0), (14, 7)))
    line("Reed", 18, [(74, 2), (78, 2)], 0.09, 0, 0.45)
    line("Reed", 19, [(76, 2), (81, 2)], 0.095, 0, 0.55)
    line("Reed", 20, [(83, 3), (81, 1)], 0.10, 0, 0.45)
    line("Reed", 21, [(81, 2), (86, 2)], 0.105, 0, 0.55)
    play("Riser", at(18), 4 * BAR, 0.30)
    for i in range(24):
        step = i if i < 8 else 8 + (i - 8) / 2
        play("Snare", at(21) + step * STEP, 0.2, 0.07 + 0.012 * i)


def white():
    play("Impact", at(22), 4, 0.62)
    play("Crash", at(22), 5, 0.26, 3.2)
    for bar, length, name in ((22, 2, "Dmaj9"), (24, 1, "Glyd"), (25, 1, "A13sus")):
        for note in CHORDS[name][0]:
            play("Pad", at(bar), length * BAR, note + 12, 0.031, 7000, 9000, 0.05, 0.9)
        for note in CHORDS[name][0][1:4]:
            play("Choir", at(bar), length * BAR, note + 12, 0.22, 0.35, 1.2)
        play("Drone", at(bar), length * BAR, CHORDS[name][1], 0.22, 0.1, 0.8)
    high = [(0, 90), (0.75, 85), (1.5, 88), (2.25, 81), (3, 93), (3.5, 90)]
    bells(22, high, 0.085, 0.5)
    bells(23, [(b, n - (5 if i % 2 else 0)) for i, (b, n) in enumerate(high)], 0.085, 0.5)
    bells(24, [(0, 90), (0.75, 86), (1.5, 85), (2.25, 83), (3, 91), (3.5, 88)], 0.085, 0.5)
    bells(25, [(0, 88), (0.75, 83), (1.5, 86), (2, 81)], 0.08, 0.4)
    # The pickup into the night.
    for i, step in enumerate((10, 11, 12, 13, 14, 15)):
        play("Tom", at(25) + step * STEP, 0.5, 52 - 2 * i, 0.20 + 0.05 * i, 0.25 + 0.1 * i)
    play("Riser", at(24), 2 * BAR, 0.16)


def groove():
    for bar in (26, 27):
        name = "Bm9"
        drums(bar, snares=() if bar == 26 else (4, 12), hats=0.07 if bar == 26 else 0.10)
        bass(bar, CHORDS[name][1], 0.75 if bar == 26 else 0.85, 0.42)
        arp(bar, name, 0.040, 12, 1500 if bar == 26 else 2800)
    pad(26, 2, "Bm9", 0.050, (700, 4200), 0.4)
    play("Crash", at(26), 4, 0.20, 2.5)
    play("Riser", at(27), BAR, 0.16)
    fill(27, 13)


def full(first, names, melody, lead_level, bright):
    """Eight bars of full groove under a melody."""
    line.last = 0
    pads(first, names, 0.062, (3300, 4800))
    for i in range(8):
        bar = first + i
        name = names[i]
        drums(bar, kicks=(0, 4, 8, 12) if i != 7 else (0, 4, 8), hats=0.115)
        root = CHORDS[name][1]
        bass(bar, root, bright, 0.41)
        arp(bar, name, 0.046, 12, 3400)
        line("Lead", bar, melody[i], lead_level)
    play("Crash", at(first), 4, 0.24, 2.6)
    play("Crash", at(first + 4), 3, 0.15, 2.0)
    fill(first + 7)


def hook():
    full(28, HOOK_CHORDS, HOOK, 0.135, 0.85)
    # From its fifth bar a second voice a third below.
    for i in range(4, 8):
        line("Reed", 28 + i, [(n - (4 if (n - 4) % 12 in (1, 2, 4, 6, 7, 9, 11) else 3), b)
                              for n, b in HOOK[i][:3]], 0.06, 0, 0.7)


def interlude():
    names = ["Gmaj9", "D/F#", "Em9", "A13sus"]
    for i, name in enumerate(names):
        bar = 36 + i
        pad(bar, 1, name, 0.056, (2400 - 300 * i, 1900 + 500 * i), 0.25, 0.8)
        play("Sub", at(bar), 1.8, CHORDS[name][1], 0.30, CHORDS[names[i - 1]][1])
        for step in range(0, 16, 2):
            play("Hat", at(bar) + step * STEP, 0.08, 0.04 + 0.008 * i, 0.035, 0.4 + 0.2 * (step % 4 == 0))
        for note in CHORDS[name][0][2:5]:
            play("Choir", at(bar), BAR, note, 0.16, 0.3, 0.8)
    bells(36, [(0, 78), (1.5, 74), (3, 81)], 0.10)
    bells(37, [(0, 76), (1.5, 74), (3, 69)], 0.10)
    bells(38, [(0, 79), (1.5, 78), (3, 74)], 0.10)
    bells(39, [(0, 76), (1, 78), (2, 81), (3, 86)], 0.10)
    play("Riser", at(38), 2 * BAR, 0.24)
    for i in range(8):
        play("Snare", at(39) + (8 + i) * STEP, 0.2, 0.08 + 0.035 * i)


def theme():
    full(40, THEME_CHORDS, THEME, 0.120, 0.7)
    for i in range(8):
        for note in CHORDS[THEME_CHORDS[i]][0][2:5]:
            play("Choir", at(40 + i), BAR, note, 0.13, 0.3, 0.5)


def dots():
    """Points of light: bells and a high arpeggio over a lighter beat."""
    for i in range(12):
        bar = 48 + i
        name = ROYAL[i % 4]
        root = CHORDS[name][1]
        pad(bar, 1, name, 0.044, (1400 + 150 * i, 1600 + 180 * i), 0.1, 0.4)
        arp(bar, name, 0.058, 24 if i % 2 else 12, 3000 + 120 * i, swap=i % 4 >= 2)
        drums(bar, snares=() if i < 4 else (4, 12), hats=0.06 if i < 2 else 0.095,
              opens=(2, 6, 10, 14) if i >= 4 else (), duck=0.42,
              kick=0.72, snare=0.36)
        bass(bar, root, 0.35 + 0.04 * i, 0.38, ((0, 0), (2, 0), (6, 0), (8, 0), (10, 12), (14, 0)))
        tones = CHORDS[name][0]
        for k in range(3):
            step = int(noise.next() * 14)
            note = tones[int(noise.next() * 5)] + (24 if k else 36)
            bells(bar, [(step / 4, note)], 0.060, 0.6)
    play("Impact", at(48), 4, 0.34)
    for i, melody in enumerate(([(83, 3), (81, 1)], [(81, 4)], [(76, 3), (78, 1)], [(74, 2), (73, 2)])):
        line("Reed", 52 + i, melody, 0.085, 0, 0.4)
        line("Reed", 56 + i, [(n + (0 if i < 2 else 5 if n != 73 else 5), b) for n, b in melody],
             0.09, 0, 0.6)
    fill(59, 10)


def dots_again():
    """Half time and deep glides, then the hook comes back with a voice against it."""
    for i in range(4):
        bar = 60 + i
        name = ROYAL[i]
        pad(bar, 1, name, 0.052, (1100, 1700), 0.3, 0.7)
        play("Sub", at(bar), 1.35, CHORDS[name][1], 0.30, CHORDS[ROYAL[i - 1]][1])
        play("Sub", at(bar, 3), 0.45, CHORDS[name][1] + 12, 0.30, CHORDS[name][1])
        drums(bar, kicks=(0, 7, 10), snares=(8,), hats=0.08, opens=(14,), duck=0.5, snare=0.5)
        for step in (3, 5, 11, 13):
            play("Snare", at(bar) + step * STEP, 0.2, 0.06)
        for note in CHORDS[name][0][1:4]:
            play("Choir", at(bar), BAR, note + 12, 0.13, 0.3, 0.7)
        bells(bar, [(0.5, CHORDS[name][0][4] + 12), (1.25, CHORDS[name][0][3] + 12),
                    (2.5, CHORDS[name][0][2] + 24)], 0.085, 0.5)
    play("Impact", at(60), 4, 0.42)
    play("Riser", at(62), 2 * BAR, 0.22)
    fill(63, 8)
    full(64, HOOK_CHORDS, HOOK, 0.125, 0.95)
    for i in range(8):
        line("Reed", 64 + i, COUNTER[i], 0.085, 0, 0.3)
        bells(64 + i, [(0, CHORDS[HOOK_CHORDS[i]][0][4] + 12), (2.5, CHORDS[HOOK_CHORDS[i]][0][2] + 24)],
              0.05, 0.5)


def ending():
    for i, name in enumerate(("Gmaj9", "A13sus")):
        bar = 72 + i
        pad(bar, 1, name, 0.056, (3600 - 1100 * i, 2500 - 700 * i), 0.06, 0.6)
        arp(bar, name, 0.044 - 0.012 * i, 12, 2800 - 1000 * i)
        drums(bar, kicks=(0, 4, 8, 12) if i == 0 else (0, 8), snares=(4, 12) if i == 0 else (),
              hats=0.075 - 0.03 * i, kick=0.72)
        bass(bar, CHORDS[name][1], 0.5 - 0.2 * i, 0.36)
    bells(73, [(0, 83), (1, 81), (2, 78), (3, 76)], 0.085, 0.5)
    # The last chord falls while the last words fade.
    play("Impact", at(74), 4, 0.40)
    play("Crash", at(74), 5, 0.16, 3.5)
    for note in CHORDS["Dmaj9"][0]:
        play("Pad", at(74), 5.0, note, 0.060, 4200, 700, 0.03, 5)
        play("Pad", at(74), 3.0, note + 12, 0.030, 5200, 800, 0.03, 4)
    play("Drone", at(74), 44, 38, 0.15, 0.05, 8)
    bells(74, [(0, 86), (0.5, 81), (1, 78), (1.5, 76), (2.25, 73), (3, 74)], 0.10, 0.6)
    # Coda: the dawn again, thinner each time, for machines that are slower than the picture.
    play("Wind", at(76), 44, 0.015, 0.07, 0.0)
    names = ["D5", "G/D", "Asus/D", "D5", "G/D"]
    for i, name in enumerate(names):
        for note in CHORDS[name][0]:
            play("Pad", at(77.5 + 3 * i), 6.0, note, 0.029 - 0.0045 * i, 900 - 110 * i, 620 - 80 * i,
                 2.4, 3)
    phrases = [(77, [(0, 78), (3, 76)]), (79, [(0, 74), (2, 73)]), (81, [(0, 71), (3, 73)]),
               (83, [(0, 74)]), (85, [(0, 81), (3, 78)]), (87, [(0, 76), (2, 74)]), (90, [(0, 74)]),
               (92, [(0, 81)])]
    for i, (bar, notes) in enumerate(phrases):
        bells(bar, notes, 0.070 - 0.005 * i, 0.6)


CUES = [(0, "dawn"), (8, "arrival"), (16, "climb"), (22, "white"), (26, "groove"), (28, "hook"),
        (36, "break"), (40, "second theme"), (48, "dots"), (60, "dots, half time"),
        (64, "hook returns"), (72, "thinning"), (74, "end and coda"), (97, "silence")]


def main():
    if len(sys.argv) < 2 or sys.argv[1] in ("-h", "--help"):
        print(__doc__)
        return 0 if len(sys.argv) > 1 else 2
    if "--cues" in sys.argv:
        for bar, name in CUES:
            print(f"{bar:3d}  {bar * BAR:7.3f} s  {name}")
    for section in (dawn, arrival, climb, white, groove, hook, interlude, theme, dots, dots_again,
                    ending):
        section()
    total = at(97) + 2
    events.append((0.0, f'i "Mix" 0 {total:.1f}'))
    events.sort()
    with open(sys.argv[1], "w", encoding="ascii") as out:
        out.write("; Written by compose.py\n")
        out.write("\n".join(text for _, text in events))
        out.write("\ne\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
