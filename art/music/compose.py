#!/usr/bin/python3
"""Writes the score of the soundtrack: 120 beats a minute, a bar of 2 s, B minor and D major, from bar
64 on C sharp minor and E major.

The form follows the picture (bars from 0): dawn 0, arrival 8, climb 16, white 22, groove 26, hook 28,
break 36, second theme 40, points 48, half time 60, hook again 64, thinning 72, end and coda 74 on.
Three events stand off the bar, because the picture does: the white sky at 45.25 s (bar 22, beat 2.5),
the dive below the sea at 96.25 s (bar 48, beat 0.5), the last words at 147.875 s (a sixteenth early).
Usage: compose.py OUT.sco [--cues] [--only INSTRUMENT,...]     --only: those alone, to judge a balance
"""
import sys

BEAT = 0.5
STEP = 0.125
BAR = 2.0
SWING = 0.06 * STEP    # the odd sixteenths of hats and arpeggios come at 53 % of an eighth
WHITE = 45.25
GLOBE = 49.25
DIVE = 96.25
LAST = 147.875

events = []


def at(bar, beat=0.0):
    return bar * BAR + beat * BEAT


def play(instrument, start, length, *fields):
    text = " ".join(f"{f:.4f}".rstrip("0").rstrip(".") for f in fields)
    events.append((start, instrument, f'i "{instrument}" {start:.4f} {length:.4f} {text}'.rstrip()))


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


def human():
    """Up to 3 ms early or late."""
    return noise.between(-0.003, 0.003)


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
}


def chord(name, up=0):
    """Notes and root; "name+2" is two semitones higher."""
    if name.endswith("+2"):
        name, up = name[:-2], up + 2
    notes, root = CHORDS[name]
    return [n + up for n in notes], root + up


# Melodies: (beat from the start of the phrase, note, beats). The hook: a pickup of an eighth, a rest in
# the second and the last bar, and notes tied over the bar lines into bars 3, 5 and 7.
HOOK = [
    (-0.5, 76, 0.5),
    (0, 78, 1.5), (1.5, 76, 0.5), (2, 74, 1), (3, 73, 1),
    (4, 71, 1), (5.5, 73, 0.5), (6, 74, 1), (7.5, 81, 2),
    (9.5, 78, 0.5), (10, 76, 1), (11, 74, 1),
    (12, 76, 1.5), (13.5, 78, 0.5), (14, 76, 0.75), (14.75, 73, 0.75), (15.5, 78, 2),
    (17.5, 76, 0.5), (18, 74, 1), (19, 78, 1),
    (20, 83, 1.5), (21.5, 81, 0.5), (22, 78, 1), (23.5, 79, 2),
    (25.5, 78, 0.5), (26, 76, 0.75), (26.75, 74, 0.75), (27.5, 71, 0.5),
    (28, 73, 1), (29.5, 71, 0.5), (30, 70, 1.5)]
HOOK_CHORDS = ["Bm9", "Gmaj9", "D/F#", "A6", "Bm9", "Gmaj9", "Em9", "F#7sus"]

HOOK_BELOW = [  # the second voice of its bars 5 to 8
    (17.5, 73, 0.5), (18, 71, 1), (19, 74, 1), (20, 78, 1.5), (21.5, 78, 0.5), (22, 74, 1),
    (23.5, 76, 2), (25.5, 74, 0.5), (26, 73, 0.75), (26.75, 71, 0.75), (27.5, 67, 0.5),
    (28, 66, 1), (29.5, 66, 0.5), (30, 66, 1.5)]

COUNTER = [  # under the hook when it returns: moves where the hook stands
    (0, 66, 3), (3, 64, 1), (4, 62, 1), (5, 66, 1.5), (6.5, 69, 1.5), (8, 69, 3), (11, 66, 1),
    (12, 64, 2), (14, 69, 2), (16, 66, 3), (19, 69, 1), (20, 71, 2), (22, 69, 1), (23, 66, 1),
    (24, 67, 2), (26, 71, 2), (28, 66, 2), (30, 64, 2)]

THEME = [  # the second melody: long, rising, one peak in its seventh bar, leading home at its end
    (0, 71, 2), (2, 74, 1), (3, 78, 1), (4, 81, 2.5), (6.5, 78, 0.5), (7, 76, 1),
    (8, 79, 2), (10, 78, 1), (11, 76, 1), (12, 78, 2.5), (15, 74, 1),
    (16, 71, 1.5), (17.5, 74, 0.5), (18, 79, 2), (20, 81, 1.5), (21.5, 83, 0.5), (22, 85, 2),
    (24, 86, 2), (26, 81, 1), (27, 78, 1), (28, 83, 2), (30, 82, 1.9)]
THEME_CHORDS = ["Gmaj9", "D/F#", "Em9", "Bm9", "Gmaj9", "A6", "Dadd9", "F#7sus"]

DEEP = [  # the tune below the sea: the first three notes of the hook, set afloat
    (0.5, 78, 1), (1.5, 76, 0.5), (2, 74, 2), (4.5, 76, 1), (5.5, 78, 0.5), (6, 81, 1.5),
    (7.5, 85, 2), (9.5, 83, 0.5), (10, 81, 1), (11, 78, 1), (12, 83, 1.5), (13.5, 81, 0.5), (14, 78, 2),
    (16.5, 79, 1), (17.5, 78, 0.5), (18, 74, 2), (20.5, 76, 1), (21.5, 78, 0.5), (22, 85, 1.5),
    (23.5, 81, 2), (25.5, 78, 0.5), (26, 76, 1), (27, 73, 1), (28, 74, 1.5), (29.5, 76, 0.5), (30, 78, 2),
    (32.5, 79, 1), (33.5, 78, 0.5), (34, 76, 1.5), (35.5, 74, 2), (37.5, 76, 0.5), (38, 78, 1), (39, 81, 1)]
DEEP_CHORDS = ["Gmaj9", "A6", "F#m7", "Bm9", "Gmaj9", "A6", "F#m7", "Bm9", "Em9", "A13sus"]

TURN = [  # the choir at half time; its last note leads into the new key
    (0, 71, 2), (2, 74, 2), (4, 73, 2), (6, 76, 2), (8, 78, 2), (10, 76, 1), (11, 73, 1), (12, 76, 2),
    (14, 75, 1.9)]
TURN_CHORDS = ["Gmaj9", "A6", "F#m7", "A13sus+2"]
B7 = ([59, 63, 66, 69, 73], 35)

# Drums of a bar: steps of the kick, of the snare, of soft snares between, of open hats.
BEATS = {
    "four": ((0, 4, 8, 12), (4, 12), (7, 9), (2, 6, 10, 14)),
    "lean": ((0, 4, 8, 12), (4, 12), (9,), (2, 6, 10, 14)),
    "push": ((0, 4, 7, 10, 12, 15), (4, 12), (7, 9), (2, 6, 10, 14)),
    "skip": ((0, 4, 8, 11, 14), (4, 12), (1, 7, 9), (2, 6, 10)),
    "start": ((0, 4, 8, 12), (), (), (6, 14)),
    "theme": ((0, 10), (8,), (7, 13), (14,)),
    "theme2": ((0, 3, 10), (8,), (5, 7, 11), (6, 14)),
    "float": ((0, 8), (), (), ()),
    "swim": ((0, 6, 8), (4, 12), (9,), (6, 14)),
    "swim2": ((0, 6, 8, 14), (4, 12), (7, 9), (2, 6, 10, 14)),
    "half": ((0, 7, 10), (8,), (3, 5, 11, 13), (14,)),
    "half2": ((0, 6, 7, 10), (8,), (3, 5, 13, 15), (6, 14)),
}

# Bass of a bar: (step, semitones above the root, sixteenths held).
LINES = {
    "run": ((0, 0, 2), (3, 0, 2), (6, 12, 1), (7, 0, 1), (8, 0, 2), (11, 0, 2), (14, 12, 1), (15, 0, 1)),
    "run2": ((0, 0, 2), (3, 0, 2), (6, 12, 1), (8, 0, 2), (10, 12, 1), (11, 7, 2), (14, 0, 1), (15, 12, 1)),
    "walk": ((0, 0, 2), (3, 0, 2), (6, 12, 1), (7, 0, 1), (8, 0, 2), (10, 7, 2), (12, 12, 2), (14, 7, 2)),
    "drive": ((0, 0, 1), (2, 12, 1), (3, 0, 1), (4, 0, 1), (6, 12, 1), (7, 0, 1), (8, 0, 1), (10, 12, 1),
              (11, 0, 1), (12, 0, 1), (14, 12, 1), (15, 7, 1)),
    "climb": ((0, 0, 2), (3, 0, 2), (6, 0, 2), (8, 0, 2), (11, 0, 2), (14, 7, 2)),
    "halves": ((0, 0, 7), (8, 0, 5), (14, 7, 2)),
    "float": ((0, 0, 6), (8, 7, 4), (12, 12, 3)),
    "swim": ((0, 0, 2), (2, 0, 2), (6, 0, 2), (8, 0, 2), (10, 12, 2), (14, 0, 2)),
}


def pad(bar, length, name, level, cut, attack=0.06, release=0.35, up=0):
    for note in chord(name)[0]:
        play("Pad", at(bar), length * BAR, note + up, level, cut[0], cut[1], attack, release)


def pads(first, names, level, cuts, attack=0.06):
    """A pad a bar; the filter goes from cuts[0] to cuts[1] over the whole stretch. The fourth of a
    dominant falls to its third in the middle of the bar."""
    count = len(names)
    for i, name in enumerate(names):
        low = cuts[0] * (cuts[1] / cuts[0]) ** (i / count)
        high = cuts[0] * (cuts[1] / cuts[0]) ** ((i + 1) / count)
        if not name.startswith("F#7sus"):
            pad(first + i, 1, name, level, (low, high), attack)
            continue
        for half, beat in ((name, 0), (name.replace("F#7sus", "F#7"), 2)):
            for note in chord(half)[0]:
                play("Pad", at(first + i, beat), 1.0, note, level, low, high, attack, 0.35)


def kick(time, level, duck):
    play("Kick", time, 0.4, level)
    play("Duck", time, 0.345, duck)


def hats(bar, level, opens=(), first=0, last=16, pan=0.42):
    for step in range(first, last):
        time = at(bar) + step * STEP + (SWING if step % 2 else 0) + human()
        if step in opens:
            play("Hat", time, 0.24, level * 1.05, noise.between(0.13, 0.19), 1 - pan)
        else:
            accent = 0.8 if step % 4 == 0 else (0.5 if step % 2 else 0.65)
            play("Hat", time, 0.10, level * accent * noise.between(0.8, 1.15),
                 noise.between(0.026, 0.045), pan)


def drums(bar, name, level=1.0, hat=0.20, duck=0.42, snare=0.86, until=16, loud=0.585):
    """A bar of drums up to a step; soft snares 14 dB below the others."""
    kicks, snares, soft, opens = BEATS[name]
    for step in kicks:
        if step < until:
            kick(at(bar) + step * STEP, level * loud * (1 if step % 4 == 0 else 0.78), duck)
    for step in snares:
        if step < until:
            play("Snare", at(bar) + step * STEP, 0.4, level * snare * noise.between(0.84, 1.19))
    for step in soft:
        if step < until:
            play("Snare", at(bar) + step * STEP + human(), 0.3,
                 level * snare * 0.2 * noise.between(0.84, 1.19))
    if hat:
        hats(bar, level * hat, opens, 0, until)


def shakers(bar, level):
    for step in range(16):
        accent = 1 if step % 4 == 2 else (0.75 if step % 4 == 0 else 0.5)
        play("Shaker", at(bar) + step * STEP + (SWING if step % 2 else 0) - 0.02 + human(), 0.1,
             level * accent * noise.between(0.85, 1.15), 0.25)


def claps(bar, level, steps=(4, 12)):
    for step in steps:
        play("Clap", at(bar) + step * STEP, 0.4, level * noise.between(0.9, 1.1))


def fill(bar, kind):
    """The end of a bar; four kinds. All stay below the beat they lead to."""
    start = at(bar)
    if kind == "run":
        for i, step in enumerate((12, 13, 14, 15)):
            play("Snare", start + step * STEP, 0.3, 0.20 + 0.07 * i)
        play("Tom", start + 14 * STEP, 0.5, 45, 0.24, 0.65)
        play("Tom", start + 15 * STEP, 0.5, 40, 0.26, 0.4)
    elif kind == "toms":
        for i, step in enumerate((10, 11, 12, 14, 15)):
            play("Tom", start + step * STEP + human(), 0.5, 52 - 3 * i, 0.20 + 0.02 * i, 0.25 + 0.13 * i)
        play("Snare", start + 12 * STEP, 0.3, 0.4)
    elif kind == "flam":
        for step, level in ((8, 0.3), (11, 0.36), (13.8, 0.16), (14, 0.45)):
            play("Snare", start + step * STEP, 0.3, level)
        kick(start + 10 * STEP, 0.5, 0.5)
        play("Tom", start + 12 * STEP, 0.5, 43, 0.26, 0.3)
    elif kind == "triplet":
        for i in range(6):
            play("Snare" if i % 3 else "Tom", start + (8 + i * 4 / 3) * STEP, 0.4,
                 *((0.16 + 0.05 * i,) if i % 3 else (48 - 2 * i, 0.28, 0.4)))


def bass(bar, root, name, bright=0.6, level=0.220, until=16):
    for step, up, held in LINES[name]:
        if step < until:
            play("Bass", at(bar) + step * STEP, held * STEP * 0.92, root + up,
                 level * (1 if step % 4 == 0 else 0.88), bright)


def tones(name, step=0):
    """The notes of a chord at a step of its bar: the fourth of a dominant falls to its third half-way."""
    return chord(name.replace("F#7sus", "F#7") if step >= 8 else name)[0]


ORDERS = ((0, 2, 1, 3, 2, 4, 1, 3), (4, 2, 3, 1, 2, 0, 3, 1), (0, 1, 2, 3, 4, 3, 2, 1))


def arp(bar, name, level, octave=12, cut=3800, order=0, wide=0.28, until=16):
    """Sixteenths, from side to side; every third is accented, across the beat."""
    for step in range(until):
        note = tones(name, step)[ORDERS[order][step % 8]] + octave + (12 if step in (5, 13) else 0)
        pan = wide if step % 2 == 0 else 1 - wide
        accent = 1.0 if step in (0, 3, 6, 8, 11, 14) else 0.72
        play("Arp", at(bar) + step * STEP + (SWING if step % 2 else 0) + human(), STEP * 0.9, note,
             level * accent, pan, cut * noise.between(0.9, 1.1))


def tune(instrument, bar, notes, level, up=0, *tail):
    """Plays a melody: high notes and long ones are stronger, as sung. The lead glides from the note
    before where the two touch."""
    end, last = None, 0
    middle = sum(note for _, note, _ in notes) / len(notes)
    for beat, note, beats in notes:
        length = beats * BEAT * 0.96
        fields = tail
        if instrument == "Lead":
            fields = (last if end == beat else note + up,) + tail
        end, last = beat + beats, note + up
        strength = (1 + 0.018 * (note - middle)) * (0.88 if beats < 0.8 else 1.03) * noise.between(0.95, 1.05)
        play(instrument, at(bar, beat), length, note + up, level * strength, *fields)


def since(notes, first):
    """The notes of a melody from a beat on."""
    return [(beat - first, note, beats) for beat, note, beats in notes if beat >= first]


def bells(bar, notes, level, delay=0.35, pan=(0.3, 0.7)):
    """notes: (beat, note); they wander from side to side."""
    for i, (beat, note) in enumerate(notes):
        place = pan[0] + (pan[1] - pan[0]) * ((i * 5) % 7) / 6
        play("Bell", at(bar, beat), 5, note, level * noise.between(0.88, 1.0), place, delay)


def sweep(bar, notes, level, pan, delay=0.45):
    """Bells that cross from one side to the other."""
    for i, (beat, note) in enumerate(notes):
        place = pan[0] + (pan[1] - pan[0]) * i / max(len(notes) - 1, 1)
        play("Bell", at(bar, beat), 5, note, level * (1 - 0.08 * i), place, delay)


def choirs(start, length, notes, level, attack=0.3, release=0.8):
    for note in notes:
        play("Choir", start, length, note, level, attack, release, 0)


def dawn():
    play("Drone", 0, 33, 38, 0.06, 6, 4)
    play("Drone", 8, 24, 45, 0.03, 6, 4)
    play("Wind", 0, 34, 0.13, 0.10, 0.02)
    for i, name in enumerate(["D5", "D5", "G/D", "Asus/D"]):
        start = 1.5 + i * 4 - (1.5 if i else 0)
        for note in chord(name)[0]:
            play("Pad", start, 4.2, note, 0.024 + 0.006 * i, 300 + 160 * i, 480 + 240 * i, 2.2, 2)
    # The hook is remembered note by note.
    bells(1, [(2, 81)], 0.072)
    bells(2, [(2, 78), (3.5, 76)], 0.072)
    bells(4, [(0, 86), (2, 78), (3.5, 76)], 0.080)
    bells(5, [(2, 83)], 0.080)
    bells(6, [(0, 78), (1.5, 76), (2, 74)], 0.094)
    bells(7, [(0, 76), (1, 81), (2, 83), (3, 85)], 0.087)


def arrival():
    names = ["Bm9", "Gmaj9", "D/F#", "A"]
    for i, name in enumerate(names):
        pad(8 + 2 * i, 2, name, 0.060 + 0.005 * i, (1000 + 300 * i, 1500 + 480 * i), 0.7, 1.2)
        root = chord(name)[1]
        for half in (0, 1):
            bar = 8 + 2 * i + half
            play("Sub", at(bar), 1.6, root, 0.08, root)
            if i >= 1:
                play("Sub", at(bar, 3), 0.45, root + 7, 0.075, root)
            for step in ((0, 6, 12) if i < 2 else (0, 3, 6, 10, 12)):
                play("Tick", at(bar) + step * STEP + human(), 0.1, 0.10 + 0.02 * i,
                     0.3 + 0.4 * (step % 2))
            for step in range(2, 16, 4 if i < 2 else 2):
                play("Hat", at(bar) + step * STEP + human(), 0.08,
                     (0.10 + 0.03 * i) * noise.between(0.8, 1.1), noise.between(0.04, 0.06), 0.6)
            if i >= 2:
                arp(bar, name, 0.05 + 0.02 * (i - 2) + 0.01 * half, 12, 700 + 200 * (i - 2) + 120 * half)
    # The first half of the hook at half speed; the reed answers where it rests.
    for beat, note, _ in HOOK[1:17]:
        bells(8, [(beat * 2, note)], 0.17)
    tune("Reed", 11, [(0, 66, 1.5), (1.5, 69, 1.5)], 0.05, 0, 0.6)
    tune("Reed", 13, [(1, 69, 1), (2, 74, 2)], 0.06, 0, 0.4)
    play("Crash", at(8), 4, 0.05, 3)
    play("Riser", at(14), 2 * BAR, 0.06)


def climb():
    names = ["Em9", "F#m7", "Gmaj9", "A", "Gmaj9", "A13sus", "A13sus"]
    pads(16, names[:6], 0.080, (1500, 4600), 0.12)
    for note in chord("A13sus")[0]:
        play("Pad", at(22), 1.0, note, 0.085, 4600, 6000, 0.05, 0.05)
    for i, name in enumerate(names):
        bar = 16 + i
        until = 16 if i < 6 else 8
        arp(bar, name, 0.10 + 0.028 * i, 12, 1000 + 600 * i, i % 3, 0.22, until)
        for step in ((0, 10) if i < 4 else (0, 6, 10, 14)):
            if step < until:
                kick(at(bar) + step * STEP, 0.46 + 0.02 * i, 0.6)
        if i < 5:
            play("Snare", at(bar) + 8 * STEP, 0.4, 0.40 + 0.03 * i)
        if i >= 2:
            for step in (7, 13):
                if step < until:
                    play("Snare", at(bar) + step * STEP + human(), 0.3, 0.07 + 0.01 * i)
        hats(bar, 0.10 + 0.022 * i, (6, 14), 0, until)
        bass(bar, chord(name)[1], "climb", 0.25 + 0.11 * i, 0.20, until)
    tune("Reed", 18, [(0, 74, 2), (2, 78, 2), (4, 76, 2), (6, 81, 2), (8, 83, 3), (11, 81, 1),
                      (12, 81, 2), (14, 86, 2), (16, 88, 1.9)], 0.17, 0, 0.5)
    tune("Reed", 20, [(0, 71, 3), (3, 74, 1), (4, 74, 2), (6, 78, 2), (8, 79, 1.9)], 0.10, 0, 0.3)
    play("Riser", at(18), WHITE - 0.25 - at(18), 0.26)
    for i in range(32):
        step = i / 2 if i >= 8 else i * 0.5
        play("Snare", at(21) + step * STEP, 0.2, 0.05 + 0.006 * i)
    for i in range(8):
        play("Snare", at(22) + i * STEP, 0.2, 0.22 + 0.022 * i)
    play("Mute", WHITE - 0.25, 0.248)


def glass(time, count, level):
    """The sphere breaks: splinters that thin out over a second and a half."""
    scale = (1, 2, 4, 6, 9, 11)
    for _ in range(count):
        late = 1.5 * noise.next() ** 2.5
        note = 96 + 12 * int(noise.next() * 2) + scale[int(noise.next() * 6)]
        play("Shard", time + late, 0.8, note, level * noise.between(0.3, 1.0) * (1 - 0.5 * late),
             noise.between(0.1, 0.9), noise.between(0.12, 0.7))


def white():
    """Two seconds each of the fourth step, the dominant, and the tonic with the hook's first bar."""
    glass(WHITE, 60, 0.045)
    play("Impact", WHITE, 4, 0.60)
    play("Crash", WHITE, 5, 0.30, 2.4)
    parts = ((WHITE, "Glyd", 0.050, 0.28), (WHITE + 2, "A13sus", 0.050, 0.28),
             (GLOBE, "Dmaj9", 0.060, 0.30))
    for time, name, level, voices in parts:
        notes, root = chord(name)
        for note in notes:
            play("Pad", time, 2.0, note + 12, level, 6000, 9000, 0.03, 0.5)
            if time == GLOBE:
                play("Pad", time, 2.0, note, level, 3000, 5000, 0.03, 0.5)
        choirs(time, 2.0, [n + 12 for n in notes[1:4]], voices, 0.12, 0.6)
        play("Drone", time, 2.0, root, 0.16, 0.03, 0.4)
    base = WHITE / BAR
    bells(base, [(0, 90), (0.75, 85), (1.5, 88), (2.25, 81), (3, 93), (3.5, 90)], 0.11, 0.5,
          (0.15, 0.85))
    bells(base + 1, [(0, 88), (0.75, 83), (1.5, 86), (2.25, 81), (3, 91), (3.5, 93)], 0.13, 0.5,
          (0.15, 0.85))
    # Into the climax: a roll, a swell, then all that there is.
    for i in range(12):
        play("Tom", GLOBE - (12 - i) * STEP / 2, 0.4, 45, 0.05 + 0.02 * i, 0.4 + 0.02 * (i % 2) * 10)
    play("Swell", GLOBE - 1.75, 1.75, 0.14, 57)
    play("Impact", GLOBE, 4, 0.55)
    play("Crash", GLOBE, 5, 0.36, 3.0)
    for beat in (0, 1.5, 2, 3):
        play("Tom", GLOBE + beat * BEAT, 0.6, 38, 0.46, 0.5)
        play("Kick", GLOBE + beat * BEAT, 0.4, 0.40)
    play("Sub", GLOBE, 1.95, 26, 0.30, 26)
    head = [(beat, note, beats) for beat, note, beats in HOOK[1:5]]
    first = GLOBE / BAR
    for up, level in ((0, 0.56), (-12, 0.54)):
        tune("Choir", first, head, level, up, 0.05, 0.3, 1)
    tune("Lead", first, head, 0.14, 0, 0.8)
    for up, level in ((0, 0.14), (12, 0.13), (24, 0.05)):
        bells(first, [(beat, note + up) for beat, note, _ in head], level, 0.4, (0.3, 0.7))
    # The pickup into the night.
    for i in range(6):
        play("Tom", at(25) + (10 + i) * STEP, 0.5, 52 - 2 * i, 0.16 + 0.04 * i, 0.25 + 0.1 * i)
    play("Sub", at(25, 2.5), 0.70, 35, 0.16, 30)
    play("Riser", at(25, 2.5), 0.75, 0.16)


def groove():
    for bar in (26, 27):
        drums(bar, "start" if bar == 26 else "lean", hat=0.15 if bar == 26 else 0.20,
              until=16 if bar == 26 else 13)
        bass(bar, chord("Bm9")[1], "run" if bar == 26 else "run2", 0.75 if bar == 26 else 0.85, 0.24)
        arp(bar, "Bm9", 0.16 if bar == 26 else 0.20, 12, 2000 if bar == 26 else 3200)
        shakers(bar, 0.05 if bar == 26 else 0.08)
    pad(26, 2, "Bm9", 0.070, (900, 5200), 0.4)
    play("Crash", at(26), 4, 0.22, 2.5)
    play("Riser", at(27), BAR, 0.14)
    fill(27, "run")


def full(first, names, kinds, lines, bright, level, hat):
    """The accompaniment of the hook: pads, drums, bass, arpeggio."""
    pads(first, names, level, (3300, 5000))
    for i, name in enumerate(names):
        bar = first + i
        drums(bar, kinds[i][0], hat=hat, until=kinds[i][1])
        bass(bar, chord(name)[1], lines[i], bright)
        arp(bar, name, 0.34, 12, 3600, i // 2 % 3)


def hook():
    kinds = [("four", 16), ("lean", 16), ("four", 16), ("push", 16), ("four", 16), ("skip", 16),
             ("four", 16), ("lean", 12)]
    lines = ["run", "run", "run", "run2", "run", "run2", "run", "walk"]
    full(28, HOOK_CHORDS, kinds, lines, 0.85, 0.106, 0.165)
    tune("Lead", 28, HOOK, 0.225, 0, 0.25)
    tune("Reed", 28, HOOK_BELOW, 0.13, 0, 0.7)
    for bar in range(32, 36):
        shakers(bar, 0.10)
    play("Crash", at(28), 4, 0.22, 2.4)
    play("Crash", at(32), 3, 0.15, 2.0)
    fill(35, "run")


def interlude():
    names = ["Gmaj9", "D/F#", "Em9", "A13sus"]
    for i, name in enumerate(names):
        bar = 36 + i
        notes, root = chord(name)
        pad(bar, 1, name, 0.075, (2400 - 300 * i, 1900 + 500 * i), 0.25, 0.8)
        play("Sub", at(bar), 1.8, root, 0.08, chord(names[i - 1])[1])
        for step in range(0, 16, 2):
            play("Hat", at(bar) + step * STEP + human(), 0.08,
                 (0.09 + 0.02 * i) * noise.between(0.8, 1.1), 0.035, 0.4 + 0.2 * (step % 4 == 0))
        choirs(at(bar), BAR, notes[2:5], 0.16)
        if i >= 2:
            arp(bar, name, 0.06 + 0.03 * (i - 2), 12, 1200 + 500 * (i - 2), i % 3)
    bells(36, [(0, 78), (1.5, 76), (2, 74), (3, 81)], 0.15, 0.4, (0.2, 0.8))
    bells(37, [(0.5, 78), (1.5, 76), (2, 74), (3, 69)], 0.15, 0.4, (0.2, 0.8))
    bells(38, [(0, 79), (1.5, 78), (3, 74)], 0.15, 0.4, (0.2, 0.8))
    bells(39, [(0, 76), (1, 78), (2, 81), (3, 86)], 0.15, 0.4, (0.2, 0.8))
    play("Riser", at(38), 2 * BAR, 0.16)
    fill(39, "triplet")


def theme():
    """Choir and reed in octaves over half the drums; nothing of the hook's accompaniment."""
    pads(40, THEME_CHORDS, 0.080, (2200, 4600), 0.15)
    play("Crash", at(40), 4, 0.26, 2.6)
    play("Crash", at(44), 4, 0.20, 2.2)
    for i, name in enumerate(THEME_CHORDS):
        bar = 40 + i
        notes, root = chord(name)
        drums(bar, "theme" if i % 4 != 3 else "theme2", hat=0 if i < 4 else 0.20,
              snare=1.0, until=16 if i < 7 else 8, loud=0.76)
        if i < 4:
            for step in range(0, 16, 2):
                play("Hat", at(bar) + step * STEP + human(), 0.1,
                     0.17 * noise.between(0.7, 1.1), 0.05, 0.58)
        shakers(bar, 0.07 + 0.05 * (i >= 4))
        bass(bar, root, "halves", 0.55, 0.25)
        choirs(at(bar), BAR, notes[1:4] if i < 7 else notes[2:4], 0.16, 0.2, 0.4)
    # Dotted eighths that run on over the bar lines.
    for k, step in enumerate(range(0, 128, 3)):
        note = tones(THEME_CHORDS[step // 16], step % 16)[(0, 2, 4, 3, 1)[k % 5]] + 24
        play("Arp", at(40) + step * STEP + (SWING if step % 2 else 0) + human(), 0.2, note,
             0.26 if step < 64 else 0.32, 0.18 if k % 2 else 0.82, 3200 + 20 * k)
    tune("Choir", 40, THEME, 0.56, -12, 0.06, 0.25, 1)
    tune("Reed", 40, THEME, 0.22, 0, 0.5)
    tune("Lead", 44, since(THEME, 16), 0.10, -12, 0)
    play("Swell", at(46), DIVE - STEP - at(46), 0.36, 59)
    fill(47, "flam")
    play("Mute", at(48), 0.248)


def bubbles(start, length, count, level):
    for _ in range(count):
        play("Bubble", start + length * noise.next(), noise.between(0.05, 0.16), noise.between(66, 90),
             level * noise.between(0.3, 1.0), noise.between(0.1, 0.9))


# The first three notes of the hook on each chord of the points: fifth, fourth, third.
MOTIF = {"Gmaj9": (74, 73, 71), "A6": (76, 74, 73), "F#m7": (73, 71, 69), "Bm9": (78, 76, 74),
         "Em9": (71, 69, 67), "A13sus": (78, 76, 74)}


def dive():
    """Below the sea: home to B minor, muffled; only the bells stay clear."""
    play("Water", at(48) + 0.02, at(50) - at(48) - 0.02, 380, 520)
    play("Impact", DIVE, 4, 0.66)
    play("Dive", DIVE, 3.2, 0.45)
    play("Deep", DIVE, 26, 0.05, 0.30, 0.05)
    play("Sub", DIVE, 3.6, 23, 0.34, 35)
    bells(48, [(0.5, 83), (0.5, 71), (0.5, 90), (0.5, 86)], 0.12, 0.6, (0.1, 0.9))
    sweep(48, [(1.5, 90), (2.25, 88), (3, 86)], 0.10, (0.1, 0.9))
    sweep(49, [(0.5, 90), (1.25, 88), (2, 86)], 0.09, (0.9, 0.1))
    sweep(49, [(2.5, 78), (3, 76), (3.5, 74)], 0.10, (0.1, 0.9))
    for note in chord("Bm9")[0]:
        play("Pad", DIVE, 3.75, note, 0.11, 3000, 5000, 0.02, 0.5)
        play("Pad", DIVE, 3.75, note + 12, 0.06, 3000, 5000, 0.3, 0.5)
    choirs(DIVE, 3.7, [62, 66, 69], 0.30, 0.5, 0.6)
    bubbles(DIVE, 3.0, 26, 0.06)
    for bar in (48, 49):
        for step in ((8,) if bar == 48 else (0, 3, 8, 11)):
            kick(at(bar) + step * STEP, 0.6, 0.55)


def dots():
    """Points of light below the sea: wide; the water clears as the way goes down."""
    play("Water", at(50), at(58) - at(50), 520, 9000)
    play("Water", at(58), at(60) - at(58), 9000, 20000)
    kinds = ["float", "float", "swim", "swim", "swim", "swim2", "swim", "swim2", "swim", "swim"]
    for i, name in enumerate(DEEP_CHORDS):
        bar = 50 + i
        notes, root = chord(name)
        pad(bar, 1, name, 0.125 - 0.005 * i, (2800 + 150 * i, 3000 + 180 * i), 0.1, 0.4)
        arp(bar, name, 0.36, 24 if i % 2 else 12, 3400 + 160 * i, i % 3, 0.06)
        if i >= 6:
            arp(bar, name, 0.10, 24, 5200, (i + 1) % 3, 0.94)
        drums(bar, kinds[i], hat=0.20 if i >= 2 else 0, duck=0.45, snare=0.70, loud=0.58,
              until=16 if i < 9 else 8)
        if i >= 4:
            shakers(bar, 0.08)
        bass(bar, root, "float" if i < 2 else "swim", 0.4 + 0.04 * i, 0.22)
        motif = MOTIF[name]
        if i % 2 == 0:
            sweep(bar, [(b, n + 12) for b, n in zip((0, 0.75, 1.5), motif)], 0.12, (0.1, 0.9), 0.6)
            sweep(bar, [(b, n) for b, n in zip((2.5, 3, 3.5), motif)], 0.08, (0.9, 0.1), 0.6)
        else:
            sweep(bar, [(b, n + 12) for b, n in zip((2, 2.75, 3.5), motif)], 0.12, (0.9, 0.1), 0.6)
    tune("Reed", 50, DEEP, 0.22, 0, 0.5)
    tune("Choir", 54, since(DEEP, 16), 0.38, -12, 0.08, 0.3, 1)
    bubbles(at(50), 14, 40, 0.035)
    play("Crash", at(54), 4, 0.14, 2.4)
    play("Crash", at(58), 4, 0.16, 2.4)
    fill(59, "toms")


def turn():
    """Half time and deep glides under a choir, and the way into the new key."""
    play("Impact", at(60), 4, 0.42)
    play("Crash", at(60), 4, 0.16, 3)
    for i, name in enumerate(TURN_CHORDS):
        bar = 60 + i
        parts = ((chord(name), 0, 4),) if i < 3 else ((chord(name), 0, 2), (B7, 2, 2))
        for (notes, root), beat, beats in parts:
            for note in notes:
                play("Pad", at(bar, beat), beats * BEAT, note, 0.080, 1500 + 500 * i, 2100 + 700 * i,
                     0.2, 0.6)
            choirs(at(bar, beat), beats * BEAT, [n + 12 for n in notes[1:3]], 0.14, 0.3, 0.5)
            play("Sub", at(bar, beat), beats * BEAT * 0.68, root, 0.17, chord(TURN_CHORDS[i - 1])[1])
        play("Sub", at(bar, 3), 0.45, chord(name)[1] + 12, 0.16, chord(name)[1])
        drums(bar, ("half", "half2")[i % 2], hat=0.13 + 0.02 * i, duck=0.55, snare=0.62,
              until=16 if i < 3 else 8)
        notes = parts[0][0][0]
        bells(bar, [(0.5, notes[4] + 12), (1.25, notes[3] + 12), (2.5, notes[2] + 24 if i < 3 else 87)],
              0.08, 0.5, (0.12, 0.88))
    tune("Choir", 60, TURN, 0.40, 0, 0.10, 0.3, 1)
    tune("Choir", 60, TURN, 0.26, -12, 0.10, 0.3, 1)
    play("Riser", at(62), 2 * BAR, 0.20)
    play("Swell", at(63), BAR - 0.01, 0.12, 59)
    fill(63, "triplet")


def hook_again():
    """Two semitones higher, with all that the piece has."""
    names = [name + "+2" for name in HOOK_CHORDS]
    kinds = [("four", 16), ("skip", 16), ("four", 16), ("push", 16), ("four", 16), ("push", 16),
             ("skip", 16), ("lean", 12)]
    full(64, names, kinds, ["drive", "drive", "run2", "walk", "drive", "drive", "run2", "walk"],
         0.95, 0.108, 0.25)
    tune("Lead", 64, HOOK, 0.26, 2, 0.6)
    tune("Reed", 64, COUNTER, 0.16, 2, 0.3)
    tune("Reed", 64, HOOK_BELOW, 0.13, 2, 0.7)
    for i, name in enumerate(names):
        bar = 64 + i
        notes = chord(name)[0]
        choirs(at(bar), BAR, notes[2:4] if i == 7 else notes[2:5], 0.18, 0.15, 0.4)
        claps(bar, 0.30, (4, 12) if i < 7 else (4,))
        shakers(bar, 0.13)
        bells(bar, [(0, notes[4] + 12), (2.5, notes[2] + 24)], 0.12, 0.5, (0.15, 0.85))
        if i >= 4:
            arp(bar, name, 0.12, 24, 5200, (i + 1) % 3, 0.9, 16 if i < 7 else 8)
    for bar, level in ((64, 0.34), (66, 0.14), (68, 0.34), (70, 0.14)):
        play("Crash", at(bar), 4, level, 2.6)
    play("Impact", at(64), 4, 0.30)
    fill(71, "run")


def thinning():
    for i, name in enumerate(("Gmaj9+2", "A13sus+2")):
        bar = 72 + i
        pad(bar, 1, name, 0.085, (3800 - 900 * i, 2900 - 700 * i), 0.06, 0.6)
        arp(bar, name, 0.24 - 0.08 * i, 12, 3000 - 800 * i, i, 0.28, 16 if i == 0 else 15)
        drums(bar, "lean" if i == 0 else "float", hat=0.17 - 0.05 * i, loud=0.52)
        bass(bar, chord(name)[1], ("run", "halves")[i], 0.5 - 0.2 * i, 0.22, 16 - 2 * i)
        choirs(at(bar), BAR, chord(name)[0][1:4], 0.16, 0.15, 0.5)
    play("Crash", at(72), 4, 0.20, 2.4)
    tune("Reed", 72, [(0, 73, 1.5), (1.5, 75, 0.5), (2, 76, 2), (4.5, 76, 1), (5.5, 78, 0.5),
                      (6, 80, 1.75)], 0.22, 0, 0.5)
    sweep(73, [(0, 83), (1, 81), (2, 78), (3, 76)], 0.08, (0.2, 0.8), 0.5)


def ending():
    """The last chord meets the last words and dies with the picture; a coda for slower machines."""
    notes = chord("Dmaj9+2")[0]
    play("Impact", LAST, 3, 0.34)
    play("Crash", LAST, 3, 0.16, 1.6)
    kick(LAST, 0.5, 0.7)
    play("Sub", LAST, 0.5, 28, 0.2, 28)
    for note in notes:
        play("Pad", LAST, 0.35, note, 0.085, 4200, 1500, 0.02, 1.8)
        play("Pad", LAST, 0.25, note + 12, 0.045, 5200, 1800, 0.02, 1.5)
    for note, level in ((88, 0.10), (83, 0.08), (80, 0.08), (76, 0.10)):
        play("Bell", LAST, 2.4, note, level, 0.2 + 0.2 * (note % 4), 0.12)
    # The lights go out.
    bells(74, [(1.75, 83), (2.5, 80), (3.25, 76)], 0.04, 0.2)
    coda()


def coda():
    """The dawn again, two semitones higher, thinner each time."""
    play("Wind", at(75.25), 42, 0.02, 0.11, 0.05)
    play("Drone", at(75.25), 39, 40, 0.026, 3, 6)
    names = ["D5+2", "G/D+2", "Asus/D+2", "G/D+2", "D5+2", "Asus/D+2", "D5+2"]
    for i, name in enumerate(names):
        for note in chord(name)[0]:
            play("Pad", at(75.25 + 3 * i), 6.0, note, 0.034 - 0.0022 * i, 1100 - 60 * i, 800 - 60 * i,
                 2.0, 2.5)
    phrases = [(76, [(0, 80), (3, 78), (4, 76)]), (78, [(2, 75), (3, 73), (6, 75), (7, 76)]),
               (81, [(0, 83), (3, 80), (4, 78), (6, 76)]), (83, [(2, 78), (4, 75), (7, 80)]),
               (85, [(2, 80), (5, 78), (6, 76)]), (87, [(2, 85), (4, 83), (6, 80)]),
               (90, [(0, 80), (3, 78), (4, 76)]), (93, [(0, 83), (2, 76)])]
    for i, (bar, notes) in enumerate(phrases):
        bells(bar, notes, 0.072 - 0.004 * i, 0.6, (0.2, 0.8))
    for i, bar in enumerate((77, 80, 84, 88, 92)):
        play("Reed", at(bar), 2.6, (68, 71, 66, 68, 64)[i], 0.045 - 0.005 * i, 0.35 + 0.1 * i)


CUES = [(0, "dawn"), (8, "arrival"), (16, "climb"), (WHITE / BAR, "white"), (GLOBE / BAR, "globe"),
        (26, "groove"), (28, "hook"), (36, "break"), (40, "second theme"), (DIVE / BAR, "points"),
        (60, "points, half time"), (64, "hook returns"), (72, "thinning"), (LAST / BAR, "end"),
        (75.25, "coda"), (97, "silence")]

# The fader of the whole mix: (seconds, dB), straight lines between.
FADER = [
    (0, 2.4), (14, 2.4), (16, 1), (31, 0.6), (33, 0), (42, 0), (43, -1), (45, -1.2), (45.2, 0), (46, 0),
    (47, 0.7), (49.24, 0.9), (49.25, -3.2), (51.25, -3.2), (51.6, 1.1), (72, 1.2), (79, 1.2), (80, -0.3),
    (96, -0.3), (96.2, 0.2), (97.5, 0.5), (98.2, 1.8), (99.8, 1.8), (100.2, 0.8), (108, 0.8),
    (116, 0.9), (119.8, 1.4), (120, -4.2), (126, -4.2), (127.9, -1.5), (128, 1.5), (144, 1.5),
    (144.2, 0.5), (150.4, 0.5), (150.5, 1.7), (188, -2.6), (200, -2.6)]


def fader():
    for (start, low), (end, high) in zip(FADER, FADER[1:]):
        play("Fader", start, end - start, low, high)


def main():
    arguments = sys.argv[1:]
    if not arguments or arguments[0] in ("-h", "--help"):
        print(__doc__)
        return 0 if arguments else 2
    if "--cues" in arguments:
        for bar, name in CUES:
            print(f"{bar:7.3f}  {bar * BAR:7.3f} s  {name}")
    only = arguments[arguments.index("--only") + 1].split(",") if "--only" in arguments else []
    for section in (dawn, arrival, climb, white, groove, hook, interlude, theme, dive, dots, turn,
                    hook_again, thinning, ending, fader):
        section()
    total = at(97) + 2
    play("Mix", 0.0, total)
    always = ("Mix", "Duck", "Fader", "Mute", "Water")
    chosen = [e for e in events if not only or e[1] in only or e[1] in always]
    chosen.sort(key=lambda e: e[0])
    with open(arguments[0], "w", encoding="ascii") as out:
        out.write("; Written by compose.py\n")
        out.write("\n".join(text for _, _, text in chosen))
        out.write("\ne\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
