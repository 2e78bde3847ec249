#!/usr/bin/python3
"""Measures the soundtrack: the recording, and the score and the orchestra that it is made from.

Usage: check_music.py [SONG.mp3]      (default: data/sfx/soundtrack.mp3; needs ffmpeg and numpy)
Prints each measure with its bounds; those that are missed begin with WRONG, and the exit code is 1.
"""
import hashlib
import pathlib
import re
import subprocess
import sys
import tempfile

import numpy as np

import listen

HERE = pathlib.Path(__file__).resolve().parent
SONG = HERE / "../../data/sfx/soundtrack.mp3"
FRAME = 0.025
BAR = 2.0
STEP = 0.125
WHITE = 1811 * FRAME     # the first frame of the white sky
DIVE = 3850 * FRAME      # the first frame of points
WORDS = 5915 * FRAME     # the last words are there
OVER = 150.4             # the last picture

problems = []


def measure(what, value, low, high, unit=""):
    """Prints a measure; one outside its bounds is a problem."""
    good = low <= value <= high
    line = "%-52s %8.2f %-4s (%s to %s)" % (what, value, unit, shown(low), shown(high))
    print(("      " if good else "WRONG ") + line)
    if not good:
        problems.append(line)


def shown(bound):
    return "any" if abs(bound) == np.inf else "%g" % bound


ANY = np.inf


# The recording.

# Seconds of each section and the loudness that it should have, in LUFS.
SECTIONS = [
    ("dawn", 0, 16, -25, -23), ("arrival", 16, 32, -20, -18), ("climb, first half", 32, 38, -18, -16),
    ("climb, second half", 38, 45, -15.5, -13.5), ("globe", 49.3, 51.2, -13, -11.5),
    ("groove", 52, 56, -16, -14), ("hook", 56, 72, -14.3, -12.7), ("break", 72, 80, -19, -17),
    ("second theme", 80, 96, -14.3, -12.7), ("points, the dive", 96.3, 100, -15.5, -12.5),
    ("points, 100 to 110 s", 100, 110, -15.5, -12.5), ("points, 110 to 120 s", 110, 120, -15.5, -12.5),
    ("half time", 120, 128, -18, -16), ("last hook", 128, 144, -12.3, -10.7)]

# The hook's power by band, dB of the whole: from, to, wanted within 2 dB.
HOOK_BANDS = [(20, 60, -6.8), (60, 120, -6.1), (120, 250, -8.0), (250, 500, -8.4), (500, 2000, -6.9),
              (2000, 6000, -16.8), (6000, 12000, -21.7), (12000, 20000, -20.7)]


def check_master(song, power):
    measure("length", len(song) / listen.RATE, 192, 196, "s")
    measure("loudness of the whole", listen.integrated(power), -14.5, -13.5, "LUFS")
    heard = power[:round(OVER * 10)]
    measure("loudness range of what is heard", listen.loudness_range(heard), 7, 15, "LU")
    measure("true peak", listen.true_peak(song), -3, -1.0, "dB")
    measure("direct current", np.abs(song.mean(axis=0, dtype=np.float64)).max() * 1e4, 0, 1.0, "e-4")


def check_curve(power):
    for name, start, end, low, high in SECTIONS:
        measure("loudness, " + name, listen.loudness(power, start, end), low, high, "LUFS")
    bars = [listen.loudness(power, b * BAR, (b + 1) * BAR) for b in range(75)]
    measure("loudest bar", int(np.argmax(bars)), 64, 70)
    short = listen.windows(power, 30)
    measure("loudest 3 s, their end", (np.argmax(short[:1474]) + 30) / 10, 129, 144, "s")


def check_hook(song):
    part = listen.cut(song, 56, 72)
    edges = [low for low, _, _ in HOOK_BANDS] + [20000]
    for share, (low, high, wanted) in zip(listen.shares(part, edges), HOOK_BANDS):
        measure("hook, %d to %d Hz" % (low, high), share, wanted - 2, wanted + 2, "dB")
    below = 10 ** (listen.shares(part, [20, 250])[0] / 10)
    measure("hook, share below 250 Hz", below * 100, 0, 55, "%")
    measure("hook, crest", listen.crest(part), 13, 20, "dB")


def check_cuts(song, power):
    """What falls on exact frames: the white sky, the globe, the dive, the last words."""
    for name, time in (("white sky", WHITE), ("dive", DIVE), ("last words", WORDS)):
        when, rise = listen.onset(song, time)
        measure(name + ": stroke after its frame", when - time, -FRAME, FRAME, "s")
        measure(name + ": rise of the stroke", rise, 10, ANY, "dB")
    level = lambda start, end: listen.db((listen.cut(song, start, end) ** 2).mean())
    measure("silence before the white sky", level(45.02, 45.23) - level(45.25, 45.46), -ANY, -30, "dB")
    measure("silence before the dive", level(96.16, 96.23) - level(96.26, 96.46), -ANY, -20, "dB")
    measure("swell into the dive", level(95.7, 96.1) - level(92.5, 94.5), 0, 6, "dB")
    short = listen.windows(power, 30)[:round(51.2 * 10) - 30]
    measure("loudest 3 s of scene one, their middle", np.argmax(short) / 10 + 1.5, 49, 51, "s")


def check_water(song):
    high = lambda start, end: listen.shares(listen.cut(song, start, end), [2000, 20000])[0]
    clears = high(114, 118) - high(100, 102)
    measure("the water clears: above 2 kHz, 116 s against 101 s", clears, 6, ANY, "dB")
    part = listen.cut(song, 96.3, 120)
    measure("points, correlation of the sides", listen.correlation(part), 0, 0.8)
    width = listen.side_over_mid(part, 200, 2000)
    measure("points, sides over middle, 200 to 2000 Hz", width, -6, 3, "dB")


def check_end(song, power):
    momentary = listen.lufs(listen.windows(power, 4))
    measure("loudness when the picture ends", momentary[round(OVER * 10) - 4], -50, -28, "LUFS")
    seconds = listen.lufs(listen.windows(power, 30))[1520:1850]
    slope = np.polyfit(np.arange(len(seconds)) / 10, seconds, 1)[0]
    measure("coda, fall in 4 s", -slope * 4, 0.7, 1.4, "dB")
    measure("coda, loudness at 188 s", listen.lufs(listen.windows(power, 30))[1850], -45, -30, "LUFS")
    low = 10 ** (listen.shares(listen.cut(song, 152, 188), [20, 120])[0] / 10)
    measure("coda, share of the drone (below 120 Hz)", low * 100, 0, 33, "%")


def check_noise(song, score):
    """No two hits are the same noise, and a crash is another on each side."""
    crash = listen.cut(song, 45.3, 45.6)
    spectrum = np.fft.rfft(crash, axis=0)
    spectrum[np.fft.rfftfreq(len(crash), 1 / listen.RATE) < 9000] = 0
    crash = np.fft.irfft(spectrum, axis=0)
    measure("crash, correlation of the sides", listen.correlation(crash), -0.3, 0.3)
    hits = []
    for note in score:
        if note.name == "Hat" and 16 < note.start < 28:
            part = listen.cut(song, note.start - 0.005, note.start + 0.035).mean(axis=1)
            spectrum = np.fft.rfft(part)
            spectrum[np.fft.rfftfreq(len(part), 1 / listen.RATE) < 8000] = 0
            part = np.fft.irfft(spectrum, len(part))
            hits.append(part / np.sqrt((part ** 2).sum()))
    alike = [np.correlate(a, b[200:-200], "valid").max() for a, b in zip(hits, hits[1:])]
    measure("hats, likeness of one to the next", np.median(alike), -1, 0.5)


def check_pitch(song, score):
    """The recording plays this score: the lead's notes stand out from their neighbours."""
    found = []
    for note in melody(score, "Lead", 28, 36) + melody(score, "Lead", 64, 72):
        if note.length < 0.35:
            continue
        part = listen.cut(song, note.start + 0.06, note.start + note.length - 0.02).sum(axis=1)
        part = part * np.hanning(len(part))
        t = np.arange(len(part)) / listen.RATE
        level = lambda key: abs((part * np.exp(-2j * np.pi * hertz(key) * t)).sum())
        key = note.fields[0]
        found.append(level(key) > 1.5 * max(level(key - 1), level(key + 1)))
    measure("lead notes heard in the recording", 100 * np.mean(found), 85, 100, "%")


def hertz(key):
    return 440 * 2 ** ((key - 69) / 12)


# The score.

class Note:
    def __init__(self, name, start, length, fields):
        self.name, self.start, self.length, self.fields = name, start, length, fields


def read_score(text):
    notes = []
    for line in text.splitlines():
        match = re.match(r'i "(\w+)" (.*)', line)
        if match:
            numbers = [float(f) for f in match.group(2).split()]
            notes.append(Note(match.group(1), numbers[0], numbers[1], numbers[2:]))
    return notes


def compose():
    """The text of the score, as compose.py writes it now."""
    with tempfile.TemporaryDirectory() as folder:
        out = pathlib.Path(folder) / "song.sco"
        subprocess.run([sys.executable, str(HERE / "compose.py"), str(out)], check=True)
        return out.read_text("ascii")


def check_sources(encoded, score_text):
    """The field "sources" of the file stands for what it was made from (see build.sh)."""
    rest = [(HERE / name).read_bytes() for name in ("soundtrack.orc", "build.sh")]
    made = hashlib.sha256(score_text.encode("ascii") + b"".join(rest)).hexdigest()[:16]
    tag = encoded[:4096]
    found = made.encode("ascii") in tag or made.encode("utf-16-le") in tag
    measure("file made from these sources", found, 1, 1)


def named(score, name, first, last):
    """The notes of an instrument that begin in bars first to last - 1, counted from 0."""
    return [n for n in score if n.name == name and first * BAR - 0.01 <= n.start < last * BAR - 0.01]


def melody(score, name, first, last):
    notes = sorted(named(score, name, first, last), key=lambda n: n.start)
    return [n for n in notes if name != "Choir" or n.fields[4] == 1]


def steps(notes, bar):
    """Sixteenths of a bar on which notes begin, and only there."""
    return tuple(sorted({round((n.start - bar * BAR) / STEP) for n in notes}))


def harmony(score, time):
    """Pitch classes that the pads and the bass hold."""
    held = [n for n in score if n.name in ("Pad", "Sub", "Bass")
            and n.start - 0.02 <= time < n.start + n.length - 0.02]
    return {int(n.fields[0]) % 12 for n in held}


def check_melody(score):
    lead = melody(score, "Lead", 27.7, 36)
    measure("hook, notes before its first bar", sum(n.start < 56 for n in lead), 1, 2)
    gaps = [b.start - a.start - a.length for a, b in zip(lead, lead[1:])]
    measure("hook, longest rest", max(gaps) / STEP / 2, 0.9, 4, "8ths")
    for bar in (30, 32, 34):
        tied = [n for n in lead if n.start < bar * BAR - 0.2 and n.start + n.length > bar * BAR + 0.2]
        measure("hook, notes tied into bar %d" % (bar - 27), len(tied), 1, 1)
    rhythms = {steps(named(lead, "Lead", bar, bar + 1), bar) for bar in range(28, 36)}
    measure("hook, rhythms", len(rhythms), 4, 8)
    again = melody(score, "Lead", 63.7, 72)
    moved = [abs(b.start - a.start - 72) < 1e-3 and b.fields[0] - a.fields[0] == 2
             for a, b in zip(lead, again)]
    same = 100 * np.mean(moved) * (len(lead) == len(again))
    measure("hook again, notes two semitones higher", same, 100, 100, "%")
    home = {11, 2, 6} <= harmony(score, 96.5) and {6, 10, 1, 4} <= harmony(score, 95.3)
    measure("F sharp 7 falls home to B minor", home, 1, 1)
    ends = [harmony(score, time) for time in (148, 153, 160, 170, 180)]
    ends = [4 in chord and not {5, 10, 0} & chord for chord in ends]
    measure("end and coda over E", 100 * np.mean(ends), 100, 100, "%")
    for first, last in ((50, 60), (60, 64)):
        tunes = [len(melody(score, "Reed", b, b + 1)) + len(melody(score, "Choir", b, b + 1))
                 for b in range(first, last)]
        measure("points, notes of the tune in bars %d to %d" % (first, last - 1), min(tunes), 2, 12)


# Notes that a chord bears besides its own, as semitones above its root: ninth, fifth, sixth.
COLOUR = (2, 7, 9)


def check_dissonance(score):
    """A note of a tune belongs to its chord, or is its ninth, fifth or sixth, or the third of a chord
    without one, or is short and moves on by a step."""
    wrong = []
    for name in ("Lead", "Reed", "Choir"):
        notes = melody(score, name, 0, 97)
        for i, note in enumerate(notes):
            middle = note.start + min(note.length * 0.6, 0.7)
            chord = harmony(score, middle)
            key = int(note.fields[0])
            if not chord or key % 12 in chord:
                continue
            roots = [n.fields[0] for n in score if n.name in ("Bass", "Sub", "Drone")
                     and n.start - 0.02 <= middle < n.start + n.length + 0.5]
            root = int(min(roots, default=min(chord)))
            open_third = not {(root + k) % 12 for k in (3, 4, 5)} & chord
            if (key - root) % 12 in COLOUR or open_third and (key - root) % 12 == 4:
                continue
            after = [n for n in notes[i + 1:] if n.start > note.start + 0.05][:3]
            if note.length <= 0.5 and any(1 <= abs(n.fields[0] - key) <= 2 for n in after):
                continue
            wrong.append("%s %.2f s %d" % (name, note.start, key))
    measure("notes of tunes foreign to their chord", len(wrong), 0, 0)
    for text in wrong:
        print("        " + text)


def check_theme(score):
    """The second theme's own arrangement."""
    for bar in range(40, 47):
        kicks = steps(named(score, "Kick", bar, bar + 1), bar)
        if not {0, 10} <= set(kicks) or {4, 8, 12} & set(kicks):
            measure("second theme, kick of bar %d on 0 and 10" % bar, 0, 1, 1)
        loud = [n for n in named(score, "Snare", bar, bar + 1) if n.fields[0] > 0.5]
        if steps(loud, bar) != (8,):
            measure("second theme, snare of bar %d on 8" % bar, 0, 1, 1)
        bass = named(score, "Bass", bar, bar + 1)
        if len(bass) > 3 or max(n.length for n in bass) < 0.7:
            measure("second theme, long bass in bar %d" % bar, 0, 1, 1)
    choir, reed = melody(score, "Choir", 40, 48), melody(score, "Reed", 40, 48)
    octaves = [abs(a.start - b.start) < 1e-3 and b.fields[0] - a.fields[0] == 12
               for a, b in zip(choir, reed)]
    together = 100 * np.mean(octaves) * (len(choir) == len(reed))
    measure("second theme, choir and reed in octaves", together, 100, 100, "%")
    times = np.array([n.start for n in named(score, "Arp", 40, 47)])
    dotted = np.abs(np.diff(times) - 3 * STEP) < 0.02
    measure("second theme, arpeggio in dotted eighths", 100 * dotted.mean(), 95, 100, "%")


FULL = list(range(26, 36)) + list(range(40, 48)) + list(range(64, 72))


def drum_pattern(score, bar):
    snares = named(score, "Snare", bar, bar + 1)
    return (steps(named(score, "Kick", bar, bar + 1), bar),
            steps([n for n in snares if n.fields[0] > 0.3], bar),
            steps([n for n in snares if n.fields[0] <= 0.3], bar))


def check_drums(score):
    patterns = {drum_pattern(score, bar) for bar in FULL}
    measure("drums, patterns in %d full bars" % len(FULL), len(patterns), 5, len(FULL))
    for bar in (31, 67):
        kicks = [steps(named(score, "Kick", b, b + 1), b) for b in (bar - 3, bar)]
        measure("drums, kick of bar %d differs" % bar, kicks[0] != kicks[1], 1, 1)
    fills = {tuple((n.name, round((n.start - bar * BAR) / STEP, 1)) for n in score
                   if n.name in ("Snare", "Tom") and bar * BAR + 0.99 < n.start < bar * BAR + 1.99)
             for bar in (35, 39, 47, 59, 63, 71)}
    measure("drums, kinds of fills", len(fills), 4, 6)
    rhythms = {steps(named(score, "Bass", bar, bar + 1), bar) for bar in range(16, 74)
               if named(score, "Bass", bar, bar + 1)}
    measure("bass, rhythms", len(rhythms), 5, 20)
    snares = [n for bar in range(28, 35) for n in named(score, "Snare", bar, bar + 1)]
    loud = [n.fields[0] for n in snares if n.fields[0] > 0.4]
    soft = [n.fields[0] for n in snares if n.fields[0] <= 0.4]
    spread = 20 * np.log10(max(loud) / min(loud)) if loud else 0
    measure("drums, spread of the snares", spread, 1, 3.2, "dB")
    ghosts = 20 * np.log10(np.mean(soft) / np.mean(loud)) if soft and loud else -ANY
    measure("drums, soft snares under the others", ghosts, -16, -12, "dB")
    for name in ("Hat", "Arp"):
        late = [(n.start / STEP - round(n.start / STEP)) * STEP * 1000 for n in named(score, name, 28, 36)
                if round(n.start / STEP) % 2]
        late = late or [0]
        measure("swing, odd sixteenths of " + name, np.mean(late), 6, 9, "ms")
        measure("swing, jitter of " + name, np.max(np.abs(np.array(late) - np.mean(late))), 1, 3.5, "ms")


def check_bells(score):
    """Below the sea the bells play the hook's first three notes from side to side."""
    notes = sorted(named(score, "Bell", 48, 60), key=lambda n: n.start)
    groups = [(a, c) for a, b, c in zip(notes, notes[1:], notes[2:])
              if a.fields[0] > b.fields[0] > c.fields[0] >= a.fields[0] - 4
              and abs(c.fields[2] - a.fields[2]) > 0.75]
    measure("points, three notes of the hook in the bells", len(groups), 10, 40)
    pans = [n.fields[2] for n in notes]
    measure("points, bells' leftmost place", min(pans), 0.05, 0.15)
    measure("points, bells' rightmost place", max(pans), 0.85, 0.95)


def check_orchestra(text):
    """Every variable that an instrument works out is used."""
    idle = []
    for body in re.findall(r"^(?:instr|opcode)\s+(.*?)^(?:endin|endop)", text, re.M | re.S):
        lines = [line.split(";")[0] for line in body.splitlines()]
        for line in lines[1:]:
            match = re.match(r"\s*((?:[aik]\w*,\s*)*[aik]\w*)\s+(?!init)[=a-z]", line)
            for name in re.split(r",\s*", match.group(1)) if match else []:
                others = re.sub(r"^\s*" + name + r"\s", " ", "\n".join(lines), flags=re.M)
                if not re.search(r"\b%s\b" % name, others):
                    idle.append(lines[0].split(",")[0] + ": " + name)
    measure("orchestra, variables without a use", len(idle), 0, 0)
    for text in idle:
        print("        " + text)


def main():
    if len(sys.argv) > 1 and sys.argv[1] in ("-h", "--help"):
        print(__doc__)
        return 0
    path = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else SONG
    song = listen.decode(path)
    power = listen.k_power(song)
    text = compose()
    score = read_score(text)
    check_sources(path.read_bytes(), text)
    check_master(song, power)
    check_curve(power)
    check_hook(song)
    check_cuts(song, power)
    check_water(song)
    check_end(song, power)
    check_noise(song, score)
    check_pitch(song, score)
    check_melody(score)
    check_dissonance(score)
    check_theme(score)
    check_drums(score)
    check_bells(score)
    check_orchestra((HERE / "soundtrack.orc").read_text("ascii"))
    print("soundtrack: %d measures missed" % len(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
