"""Measures of a recording: loudness after ITU-R BS.1770, bands, peaks, onsets.

A recording is an array of samples x 2 at 44,100 Hz; times are seconds.
"""
import subprocess

import numpy as np

RATE = 44100
HOP = RATE // 10    # loudness is kept in steps of a tenth of a second


def decode(path):
    raw = subprocess.run(["ffmpeg", "-nostdin", "-loglevel", "error", "-i", str(path), "-f", "f32le",
                          "-ac", "2", "-ar", str(RATE), "-"], stdout=subprocess.PIPE, check=True).stdout
    return np.frombuffer(raw, "<f4").reshape(-1, 2)


def cut(song, start, end):
    return song[round(start * RATE):round(end * RATE)]


def db(power):
    return 10 * np.log10(np.maximum(power, 1e-20))


def k_response(freqs):
    """The K-weighting as a power gain: the high shelf and the high-pass of the standard, in their form
    for 44,100 Hz."""
    z = np.exp(-2j * np.pi * freqs / RATE)

    def stage(b, a):
        return np.polyval(b[::-1], z) / np.polyval(a[::-1], z)

    k = np.tan(np.pi * 1681.974450955533 / RATE)
    q, vh = 0.7071752369554196, 10 ** (3.999843853973347 / 20)
    vb = vh ** 0.4996667741545416
    a0 = 1 + k / q + k * k
    shelf = stage([(vh + vb * k / q + k * k) / a0, 2 * (k * k - vh) / a0, (vh - vb * k / q + k * k) / a0],
                  [1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0])
    k, q = np.tan(np.pi * 38.13547087602444 / RATE), 0.5003270373238773
    a0 = 1 + k / q + k * k
    high = stage([1, -2, 1], [1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0])
    return np.abs(shelf * high) ** 2


def k_power(song):
    """Mean K-weighted power, summed over both channels, of each tenth of a second."""
    size = 1 << 20
    total = np.zeros(len(song) // HOP)
    length = len(total) * HOP
    keep = np.zeros(length)
    for channel in range(2):
        # Blocks that overlap by a quarter; the edges, where the filter wraps around, are dropped.
        edge = size // 8
        padded = np.concatenate([np.zeros(edge), song[:length, channel], np.zeros(size)])
        gain = np.sqrt(k_response(np.fft.rfftfreq(size, 1 / RATE)))
        for start in range(0, length, size - 2 * edge):
            block = np.fft.irfft(np.fft.rfft(padded[start:start + size]) * gain)[edge:-edge]
            end = min(start + len(block), length)
            keep[start:end] = block[:end - start]
        total += (keep.reshape(-1, HOP) ** 2).mean(axis=1)
    return total


def lufs(power):
    return -0.691 + db(power)


def windows(power, tenths):
    """Running means of so many tenths of a second; item i ends at (i + tenths) / 10 s."""
    sums = np.concatenate([[0], np.cumsum(power)])
    return (sums[tenths:] - sums[:-tenths]) / tenths


def loudness(power, start, end):
    """Mean loudness of a stretch, ungated."""
    return float(lufs(power[round(start * 10):round(end * 10)].mean()))


def integrated(power):
    blocks = windows(power, 4)
    blocks = blocks[lufs(blocks) > -70]
    blocks = blocks[lufs(blocks) > lufs(blocks.mean()) - 10]
    return float(lufs(blocks.mean()))


def loudness_range(power):
    short = windows(power, 30)
    short = short[lufs(short) > -70]
    levels = lufs(short[lufs(short) > lufs(short.mean()) - 20])
    return float(np.percentile(levels, 95) - np.percentile(levels, 10))


def true_peak(song):
    """In dB of full scale, at four times the rate; only near the largest samples."""
    size, edge = 4096, 512
    peak = 0.0
    step = size - 2 * edge
    padded = np.concatenate([np.zeros((edge, 2)), song, np.zeros((size, 2))])
    blocks = [padded[i:i + size] for i in range(0, len(song), step)]
    tops = np.array([np.abs(b).max() for b in blocks])
    for block in (b for b, top in zip(blocks, tops) if top > 0.7 * tops.max()):
        spectrum = np.fft.rfft(block, axis=0)
        fine = np.fft.irfft(spectrum, 4 * size, axis=0) * 4
        peak = max(peak, np.abs(fine[4 * edge:-4 * edge]).max())
    return float(20 * np.log10(peak))


def crest(part):
    """Highest sample over the root mean square, dB."""
    part = part.astype(np.float64)
    return float(20 * np.log10(np.abs(part).max() / np.sqrt((part ** 2).mean())))


def spectrum(part):
    """Power by frequency of left, right and of their difference and sum, of one stretch."""
    size = 8192
    window = np.hanning(size)
    rows = range(0, len(part) - size, size // 2)
    powers = {"both": 0, "mid": 0, "side": 0}
    for row in rows:
        left, right = np.fft.rfft(part[row:row + size] * window[:, None], axis=0).T
        powers["both"] += np.abs(left) ** 2 + np.abs(right) ** 2
        powers["mid"] += np.abs(left + right) ** 2
        powers["side"] += np.abs(left - right) ** 2
    return np.fft.rfftfreq(size, 1 / RATE), powers


def shares(part, edges):
    """Power in each band as dB of the whole."""
    freqs, powers = spectrum(part)
    both = powers["both"]
    return [float(db(both[(freqs >= low) & (freqs < high)].sum() / both.sum()))
            for low, high in zip(edges, edges[1:])]


def side_over_mid(part, low, high):
    freqs, powers = spectrum(part)
    band = (freqs >= low) & (freqs < high)
    return float(db(powers["side"][band].sum() / powers["mid"][band].sum()))


def correlation(part):
    left, right = part.T.astype(np.float64)
    return float((left * right).sum() / np.sqrt((left ** 2).sum() * (right ** 2).sum()))


def onset(song, time, reach=0.3):
    """The steepest rise near a time: when, and by how many dB (40 ms before, 20 ms after)."""
    hop = RATE // 500
    part = cut(song, time - reach - 0.05, time + reach + 0.05)
    part = np.diff(part.astype(np.float64), axis=0)    # weighs the highs, where a stroke begins
    power = (part[:len(part) // hop * hop] ** 2).sum(axis=1).reshape(-1, hop).mean(axis=1)
    sums = np.concatenate([[0], np.cumsum(power)])
    rises = [db((sums[i + 10] - sums[i]) / 10) - db((sums[i] - sums[i - 20]) / 20)
             for i in range(25, len(power) - 25)]
    first = 25 + int(np.argmax(rises))
    # The stroke itself: the first step of these 20 ms that has a quarter of their highest power.
    stroke = first + int(np.argmax(power[first:first + 10] > power[first:first + 10].max() / 4))
    return time - reach - 0.05 + stroke * hop / RATE, float(max(rises))
