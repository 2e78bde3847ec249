#!/usr/bin/python3
"""Writes the seeds of the targets whose inputs are not text: font sheets and draw jobs. The others
are kept as files of their own. Gives the same bytes every time."""
import pathlib
import random
import struct

CORPUS = pathlib.Path(__file__).resolve().parent / "corpus"


def text(x, y, advance, words):
    """What fuzz_font.cpp reads in the last 24 bytes of a sheet: a place, and words to draw there."""
    def number(value):
        if -128 <= value < 128:
            return struct.pack(">Bb", 0, int(value))
        return struct.pack(">Bf", 255, value)
    place = number(x) + number(y) + struct.pack(">IH", advance, 0)
    return place + words.encode("cp1251").ljust(24 - len(place), b".")[:24 - len(place)]


def sheet(width, height, bits, tail=b""):
    """An uncompressed bottom-up image with a pattern; what follows belongs to its pixels."""
    size = width * height * bits // 8
    pixels = bytes((i * 37 + i // width) & 255 for i in range(size))
    header = struct.pack("<2sIHHI", b"BM", 54 + size, 0, 0, 54)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, bits, 0, size, 0, 0, 0, 0)
    return header + info + pixels[:size - len(tail)] + tail


def job(kind, path, seed):
    """Draws of every kind and path over a 40 x 30 frame, six faces of every light."""
    dice = random.Random(seed)
    out = bytearray()
    short = lambda n: out.extend(struct.pack(">H", n))
    word = lambda n: out.extend(struct.pack(">I", n & 0xFFFFFFFF))
    small = lambda n: out.extend((0, n & 255))
    for value in (39, 29, 3, 2):  # width, height, paddings
        short(value)
    out.append(seed & 1)
    for value in (1, 2, 38, 29):  # clip rectangle
        short(value)
    for shape in (16, 16 + 2):  # two textures with chains
        out.append(shape)
        short(5 if shape == 16 else 4)
        if shape & 2:
            short(24)
    word(kind | path | (0x20 if seed & 2 else 0) | 0x10 | (0x40 if seed & 4 else 0))
    out.extend((0, 0))
    out.append(0)
    short(6 + seed % 8)  # level - 2..5
    for distance in (60, 20):
        out.append(0)
        short(distance)
    out.append(seed & 3)  # kind of vectors
    for face in range(6):
        out.append(face & 1)
        out.append(1)
        word((0x20, 0x40, 0x80, 0x220, 0x240, 0x200)[face] | (0x400 if face & 1 else 0) | 2)
        for _ in range(4):
            word(dice.getrandbits(32))
        for _ in range(3):
            for low, high in ((-10, 50), (-10, 40), (1, 60), (0, 31), (0, 31)):
                small(dice.randint(low, high))
    return bytes(out)


def main():
    for name in ("font", "draw"):
        (CORPUS / name).mkdir(parents=True, exist_ok=True)
    # A width beyond 2^31 overflowed once.
    last = 2147483520.0  # the greatest float below 2^31
    for name, data in (("one-cell.bmp", sheet(50, 44, 16, text(5, 7, 20, "Ombrel \u0439"))),
                       ("far-away.bmp", sheet(50, 44, 16, text(last, last, 20, "Ombrel"))),
                       ("too-wide.bmp", sheet(50, 44, 16, text(5, 7, 0x60000000, "Ombrel"))),
                       ("24-bit.bmp", sheet(52, 50, 24)), ("8-bit.bmp", sheet(60, 45, 8)),
                       ("row.bmp", sheet(785, 3, 16)), ("tiny.bmp", sheet(1, 1, 16))):
        (CORPUS / "font" / name).write_bytes(data)
    number = 0
    for kind in (1, 2, 4, 8):
        for path in (0x100, 0x200, 0x400, 0x800):
            (CORPUS / "draw" / f"kind-{kind}-path-{path:x}").write_bytes(job(kind, path, number))
            number += 1


if __name__ == "__main__":
    main()
