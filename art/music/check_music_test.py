#!/usr/bin/python3
"""Shows that the checks of check_music.py find what they are for.

Usage: check_music_test.py      each case breaks one thing in a copy; prints "N passed, N failed"
"""
import contextlib
import copy
import io
import sys

import numpy as np

import check_music as music
import listen

counts = [0, 0]


def expect(name, part, check, *arguments):
    """The check must speak of the part; of nothing where the part is empty."""
    music.problems.clear()
    with contextlib.redirect_stdout(io.StringIO()):
        check(*arguments)
    said = "; ".join(music.problems)
    good = part in said if part else not said
    counts[0 if good else 1] += 1
    if not good:
        print("FAILED %s: %r was said, %r expected" % (name, said, part))


def near(name, value, wanted, slack):
    good = abs(value - wanted) <= slack
    counts[0 if good else 1] += 1
    if not good:
        print("FAILED %s: %.3f, %.3f expected" % (name, value, wanted))


def between(song, start, end, change):
    """A copy with one stretch changed."""
    other = song.copy()
    part = listen.cut(other, start, end)    # a view
    part[:] = change(part)
    return other


def later(seconds):
    return lambda part: np.roll(part, round(seconds * listen.RATE), axis=0)


def louder(decibels):
    return lambda part: part * 10 ** (decibels / 20)


def tone(hertz, level):
    def add(part):
        t = np.arange(len(part)) / listen.RATE
        return part + level * np.sin(2 * np.pi * hertz * t)[:, None]
    return add


def measures():
    """The measures themselves, on sounds whose values are known."""
    t = np.arange(20 * listen.RATE) / listen.RATE
    sine = np.sin(2 * np.pi * 997 * t)
    power = listen.k_power(np.stack([sine, 0 * sine], axis=1))
    near("a full sine on one side", listen.integrated(power), -3.01, 0.02)
    quiet = np.concatenate([sine[:10 * listen.RATE], 0.1 * sine[:10 * listen.RATE]])
    near("range of two levels 20 dB apart",
         listen.loudness_range(listen.k_power(np.stack([quiet, quiet], axis=1))), 20, 0.1)
    off = np.sin(2 * np.pi * listen.RATE / 4 * t + np.pi / 4)    # peaks between the samples
    off *= 0.5 * np.minimum(1, np.minimum(t, t[::-1]))
    near("true peak", listen.true_peak(np.stack([off, off], axis=1)), -6.02, 0.05)
    near("crest of a sine", listen.crest(sine), 3.01, 0.01)
    both = np.stack([sine + 0.1 * np.sin(2 * np.pi * 100 * t), sine], axis=1)
    near("share of a tenth", listen.shares(both, [50, 150])[0], 10 * np.log10(0.01 / 2.01), 0.05)
    near("sides over middle", listen.side_over_mid(np.stack([sine, 0.5 * sine], axis=1), 500, 2000),
         20 * np.log10(0.5 / 1.5), 0.01)
    click = np.zeros((4 * listen.RATE, 2))
    click[2 * listen.RATE:] = np.random.default_rng(1).normal(0, 0.1, (2 * listen.RATE, 2))
    near("onset", listen.onset(click, 2.1)[0], 2.0, 0.003)


def recording(song, power, score):
    """Each case changes one stretch; loudness is worked out anew where it counts."""
    def again(other, check, *arguments):
        return check, other, listen.k_power(other), *arguments

    expect("master as it is", "", music.check_master, song, power)
    expect("direct current", "direct current", music.check_master, song + 0.0004, power)
    expect("2 dB louder", "true peak", music.check_master, song * 1.26, power)
    expect("2 dB louder", "loudness of the whole", music.check_master, song, power * 1.58)
    expect("cut short", "length", music.check_master, song[:-4 * listen.RATE], power)
    expect("all alike", "loudness range", music.check_master, song, np.full(len(power), power.mean()))

    expect("curve as it is", "", music.check_curve, power)
    for name, start, end, _, _ in music.SECTIONS:
        for factor in (0.5, 2):
            other = power.copy()
            other[round(start * 10):round(end * 10)] *= factor
            expect("%s times %g" % (name, factor), "loudness, " + name, music.check_curve, other)
    other = power.copy()
    other[1260:1280] *= 6
    expect("a fill that is loudest", "loudest bar", music.check_curve, other)

    expect("hook as it is", "", music.check_hook, song)
    expect("hook with bass", "share below 250", music.check_hook, between(song, 56, 72, tone(52, 0.2)))
    expect("hook with hiss", "12000 to 20000", music.check_hook, between(song, 56, 72, tone(15000, 0.1)))
    expect("hook pressed", "crest", music.check_hook, between(song, 56, 72, lambda p: np.tanh(p * 3) / 3))

    expect("cuts as they are", "", music.check_cuts, song, power)
    for name, time in (("white sky", music.WHITE), ("dive", music.DIVE), ("last words", music.WORDS)):
        expect(name + " 50 ms late", name + ": stroke after", music.check_cuts,
               between(song, time - 0.1, time + 1, later(0.05)), power)
        expect(name + " 75 ms early", name + ": stroke after", music.check_cuts,
               between(song, time - 0.5, time + 0.5, later(-0.075)), power)
    hold = between(song, 45.0, 45.23, tone(220, 0.1))
    expect("no silence", "silence before the white", music.check_cuts, hold, power)
    expect("no swell", "swell into", music.check_cuts, between(song, 95.5, 96.2, louder(-6)), power)
    other = power.copy()
    other[420:450] *= 3
    expect("climb over globe", "loudest 3 s of scene one", music.check_cuts, song, other)

    expect("water as it is", "", music.check_water, song)
    expect("clear water", "the water clears", music.check_water, between(song, 100, 102, tone(4000, 0.1)))
    mono = between(song, 96, 120, lambda p: p.mean(axis=1, keepdims=True) + np.zeros((1, 2)))
    expect("one side", "correlation of the sides", music.check_water, mono)
    narrow = between(song, 96, 120, lambda p: p * 0.75 + p[:, ::-1] * 0.25)
    expect("narrow", "sides over middle", music.check_water, narrow)

    expect("end as it is", "", music.check_end, song, power)
    expect("chord that stays", "when the picture ends",
           *again(between(song, 148, 151, tone(330, 0.05)), music.check_end))
    fade = lambda p: p * np.linspace(1, 2, len(p))[:, None]
    expect("coda that stays", "fall in 4 s", *again(between(song, 152, 188, fade), music.check_end))
    expect("coda that is gone", "loudness at 188",
           *again(between(song, 183, 189, louder(-20)), music.check_end))
    expect("a drone", "share of the drone", music.check_end,
           between(song, 152, 188, tone(82, 0.02)), power)

    expect("noise as it is", "", music.check_noise, song, score)
    mono = between(song, 45.2, 46, lambda p: p.mean(axis=1, keepdims=True) + np.zeros((1, 2)))
    expect("crash in the middle", "crash, correlation", music.check_noise, mono, score)
    same = song.copy()
    hats = [n.start for n in score if n.name == "Hat" and 16 < n.start < 28]
    hit = listen.cut(song, hats[0] - 0.01, hats[0] + 0.05).copy()
    for time in hats:
        start = round((time - 0.01) * listen.RATE)
        same[start:start + len(hit)] = hit
    expect("one hat for all", "likeness", music.check_noise, same, score)
    expect("pitch as it is", "", music.check_pitch, song, score)
    expect("another song", "heard in the recording", music.check_pitch,
           np.roll(song, 3 * listen.RATE, axis=0), score)


def changed(score, chosen, change):
    """A copy of the score with some notes changed; those that become None are left out."""
    notes = []
    for note in score:
        note = copy.deepcopy(note)
        notes.append(change(note) if chosen(note) else note)
    return [n for n in notes if n]


def bars(name, first, last):
    return lambda n: n.name == name and first * music.BAR - 0.1 <= n.start < last * music.BAR - 0.1


def moved(**by):
    """A change of start, length, or of a field by its number (f0, f1 ...)."""
    def change(note):
        for what, value in by.items():
            if what[0] == "f":
                note.fields[int(what[1:])] += value
            else:
                setattr(note, what, getattr(note, what) + value)
        return note
    return change


def gone(_):
    return None


def straight(note):
    """On its sixteenth, to the microsecond."""
    note.start = round(note.start / music.STEP) * music.STEP
    return note


def tunes(score):
    expect("melody as it is", "", music.check_melody, score)
    expect("no pickup", "before its first bar", music.check_melody,
           changed(score, lambda n: n.name == "Lead" and 55.5 < n.start < 55.9, gone))
    def tie_broken(note):
        note.length = min(note.length, 0.2)
        return note
    expect("no ties", "tied into bar 3", music.check_melody,
           changed(score, bars("Lead", 28, 36), tie_broken))
    def legato(note):
        note.length += 0.5
        return note
    expect("no rest", "longest rest", music.check_melody, changed(score, bars("Lead", 28, 36), legato))
    def even(note):
        note.start = 56 + 0.5 * round((note.start - 56) / 0.5)
        return note
    expect("even notes", "hook, rhythms", music.check_melody, changed(score, bars("Lead", 28, 36), even))
    expect("same key", "two semitones higher", music.check_melody,
           changed(score, bars("Lead", 63, 72), moved(f0=-2)))
    expect("no way home", "falls home", music.check_melody,
           changed(score, bars("Pad", 48, 49), moved(f0=1)))
    expect("no leading note", "falls home", music.check_melody,
           changed(score, lambda n: bars("Pad", 47, 48)(n) and n.fields[0] % 12 == 10, moved(f0=1)))
    expect("coda in F", "over E", music.check_melody, changed(score, bars("Pad", 75, 97), moved(f0=1)))
    expect("silent points", "bars 50 to 59", music.check_melody,
           changed(score, bars("Reed", 53, 54), gone))
    expect("silent half time", "bars 60 to 63", music.check_melody,
           changed(score, bars("Choir", 61, 62), gone))
    expect("chords as they are", "", music.check_dissonance, score)
    for name, first in (("Lead", 30), ("Reed", 52), ("Choir", 43)):
        expect("wrong notes", "foreign to their chord", music.check_dissonance,
               changed(score, bars(name, first, first + 2), moved(f0=1)))


def arrangement(score):
    expect("theme as it is", "", music.check_theme, score)
    for name, part, bar, change in (
            ("Kick", "kick of bar 42", 42, moved(start=0.5)),
            ("Snare", "snare of bar 43", 43, moved(start=-0.5)),
            ("Bass", "long bass in bar 41", 41, moved(length=-0.5)),
            ("Reed", "in octaves", 44, moved(f0=-12))):
        expect(name + " moved", part, music.check_theme,
               changed(score, bars(name, bar, bar + 1), change))
    expect("arpeggio", "dotted eighths", music.check_theme,
           changed(score, lambda n: bars("Arp", 40, 47)(n) and n.fields[2] > 0.5, moved(start=0.125)))

    expect("drums as they are", "", music.check_drums, score)
    inside = lambda n: n.name in ("Kick", "Snare") and 52 <= n.start < 144
    four = [music.Note("Kick", b * 2 + k / 2, 0.4, [0.6]) for b in range(26, 72) for k in range(4)]
    expect("four and four", "patterns in", music.check_drums, changed(score, inside, gone) + four)
    expect("four and four", "kick of bar 31", music.check_drums, changed(score, inside, gone) + four)
    expect("no fills", "kinds of fills", music.check_drums,
           changed(score, lambda n: n.name in ("Tom", "Snare") and n.start % 2 > 0.9, gone))
    expect("one bass", "bass, rhythms", music.check_drums,
           changed(score, lambda n: n.name == "Bass" and n.start % 2 > 0.1, gone))
    def even(note):
        note.fields[0] = 0.8 if note.fields[0] > 0.4 else note.fields[0]
        return note
    expect("even snares", "spread of", music.check_drums, changed(score, bars("Snare", 28, 35), even))
    expect("no soft snares", "soft snares", music.check_drums,
           changed(score, lambda n: n.name == "Snare" and n.fields[0] < 0.4, gone))
    for name in ("Hat", "Arp"):
        still = changed(score, bars(name, 27, 37), straight)
        expect("no swing", "odd sixteenths of " + name, music.check_drums, still)
        expect("no jitter", "jitter of " + name, music.check_drums, still)

    expect("bells as they are", "", music.check_bells, score)
    def middle(note):
        note.fields[2] = 0.5
        return note
    still = changed(score, bars("Bell", 48, 60), middle)
    expect("bells in the middle", "three notes of", music.check_bells, still)
    expect("bells in the middle", "leftmost", music.check_bells, still)


def orchestra():
    text = (music.HERE / "soundtrack.orc").read_text("ascii")
    expect("orchestra as it is", "", music.check_orchestra, text)
    idle = text.replace("kpw + kwide", "0.35 + kwide").replace("0.74 - kpw - kwide", "0.4 - kwide")
    expect("pulse width idle", "without a use", music.check_orchestra, idle)
    idle = text.replace("kf3, 320", "2750, 320").replace("kf3 * 1.02, 320", "2750, 320")
    expect("formant idle", "without a use", music.check_orchestra, idle)


def main():
    measures()
    song = listen.decode(music.SONG)
    text = music.compose()
    score = music.read_score(text)
    encoded = music.SONG.read_bytes()
    expect("sources as they are", "", music.check_sources, encoded, text)
    expect("a note changed since", "made from these", music.check_sources, encoded, text + "\n")
    recording(song, listen.k_power(song), score)
    tunes(score)
    arrangement(score)
    orchestra()
    print("%d passed, %d failed" % tuple(counts))
    return 1 if counts[1] else 0


if __name__ == "__main__":
    sys.exit(main())
