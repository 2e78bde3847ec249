"""Pictures: periodic noise, ordered dither to the 5-6-5 frame, and the BMP writer.

A picture is a float array (rows, columns, 3) of sRGB values 0..255, row 0 on top.
"""
import struct

import numpy as np


def bayer8():
    m = np.array([[0]])
    for _ in range(3):
        m = np.block([[4 * m, 4 * m + 2], [4 * m + 3, 4 * m + 1]])
    return (m + 0.5) / 64


def dither565(picture, amplitude=0.8):
    """Rounds to values that 5-6-5 holds exactly, dithered by an 8 x 8 pattern.  0 and 255 stay."""
    h, w, _ = picture.shape
    pattern = np.tile(bayer8(), (h // 8 + 1, w // 8 + 1))[:h, :w]
    out = np.zeros(picture.shape, np.uint8)
    for c, top in ((0, 31), (1, 63), (2, 31)):
        v = np.clip(picture[..., c], 0, 255) / 255 * top
        q = np.floor(v + 0.5 + (pattern - 0.5) * amplitude)
        q = np.where(v >= top - 1e-6, top, np.where(v <= 1e-6, 0, q))
        q = np.clip(q, 0, top).astype(np.int64)
        out[..., c] = (q << 3) | (q >> 2) if top == 31 else (q << 2) | (q >> 4)
    return out


def write_bmp(path, rgb):
    """24 bits, uncompressed, rows bottom-up, the image size field filled in, pixels last."""
    h, w, _ = rgb.shape
    assert w % 4 == 0, "rows must need no padding"
    pixels = np.ascontiguousarray(rgb[::-1, :, ::-1]).astype(np.uint8).tobytes()
    head = struct.pack("<2sIHHI", b"BM", 54 + len(pixels), 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, w, h, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    path.write_bytes(head + info + pixels)


def fft_noise(size, seed, power=1.6, stretch=(1.0, 1.0), low=1.0, high=1e9):
    """Noise that repeats at its edges; mean 0, deviation 1."""
    rng = np.random.RandomState(seed)
    h, w = (size, size) if isinstance(size, int) else size
    white = np.fft.fft2(rng.standard_normal((h, w)))
    fy = np.fft.fftfreq(h)[:, None] * h * stretch[1]
    fx = np.fft.fftfreq(w)[None, :] * w * stretch[0]
    f = np.sqrt(fx * fx + fy * fy)
    amp = np.where((f >= low) & (f <= high), np.maximum(f, 1e-6) ** -power, 0)
    n = np.real(np.fft.ifft2(white * amp))
    return (n - n.mean()) / (n.std() + 1e-12)


def ramp(t, stops):
    """Colour ramp: stops are (position, (r, g, b))."""
    t = np.asarray(t, float)
    xs = [s[0] for s in stops]
    return np.stack([np.interp(t, xs, [s[1][c] for s in stops]) for c in range(3)], axis=-1)


def lerp(a, b, t):
    t = np.asarray(t, float)[..., None]
    return np.asarray(a, float) * (1 - t) + np.asarray(b, float) * t


def smooth(a, b, x):
    t = np.clip((np.asarray(x, float) - a) / (b - a), 0, 1)
    return t * t * (3 - 2 * t)


def double(field):
    """Twice the size, interpolated."""
    h, w = field.shape[:2]

    def axis(n):
        p = np.clip((np.arange(2 * n) + 0.5) / 2 - 0.5, 0, n - 1)
        i = np.minimum(p.astype(int), n - 2)
        return i, p - i

    (y, fy), (x, fx) = axis(h), axis(w)
    rows = field[y] * (1 - fy)[:, None, None] + field[y + 1] * fy[:, None, None]
    return rows[:, x] * (1 - fx)[None, :, None] + rows[:, x + 1] * fx[None, :, None]
