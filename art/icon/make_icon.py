#!/usr/bin/python3
"""Draws the icon: a parasol against an evening sky. Writes a Windows icon file with uncompressed
pictures of 16, 24, 32, 48 and 64 pixels, which every Windows reads, or, for the menus of other
desktops, a PNG file of each size up to 256 pixels.

    art/icon/make_icon.py [src/platform/win32/larkfen.ico] [--preview FILE.png]
    art/icon/make_icon.py --png art/icon
"""
import math
import struct
import sys

from PIL import Image, ImageDraw

SIZES = (16, 24, 32, 48, 64)
PNG_SIZES = (16, 32, 48, 64, 128, 256)
BIG = 1024  # drawn at this size, then made smaller
SKY_TOP, SKY_LOW = (28, 24, 66), (226, 112, 74)
SEGMENTS = ((255, 236, 196), (231, 72, 60), (255, 236, 196), (231, 72, 60), (255, 236, 196))


def draw():
    """The picture at its big size, with an alpha channel."""
    sky = Image.new("RGBA", (BIG, BIG))
    pen = ImageDraw.Draw(sky)
    for y in range(BIG):
        t = (y / BIG) ** 1.4
        pen.line([(0, y), (BIG, y)],
                 fill=tuple(round(a + (b - a) * t) for a, b in zip(SKY_TOP, SKY_LOW)) + (255,))
    # The shaft with its crook.
    shaft = (252, 244, 228, 255)
    pen.line([(512, 170), (512, 800)], fill=shaft, width=46)
    pen.arc([(512 - 23, 720), (512 + 183, 906)], 0, 180, fill=shaft, width=46)
    # The canopy: segments between half ellipses that share the tip.
    tip, rim, half, top = 512, 560, 420, 170
    for i, colour in enumerate(SEGMENTS):
        edge = []
        for side in (i, i + 1):
            reach = -1 + 2 * side / len(SEGMENTS)
            arc = [(tip + half * reach * math.sin(a), rim - (rim - top) * math.cos(a))
                   for a in (math.pi / 2 * k / 60 for k in range(61))]
            edge.append(arc)
        pen.polygon(edge[0] + edge[1][::-1], fill=colour + (255,))
        left, right = edge[0][-1][0], edge[1][-1][0]
        pen.pieslice([(left, rim - 40), (right, rim + 40)], 0, 180, fill=colour + (255,))
    pen.line([(512, 90), (512, 190)], fill=shaft, width=46)
    mask = Image.new("L", (BIG, BIG), 0)
    ImageDraw.Draw(mask).rounded_rectangle([(16, 16), (BIG - 17, BIG - 17)], 200, fill=255)
    sky.putalpha(mask)
    return sky


def icon_image(picture):
    """One picture of an icon file: a header, BGRA rows from below, and the mask of one bit a pixel."""
    size = picture.width
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    rows, mask = b"", b""
    for y in reversed(range(size)):
        bits = 0
        for x in range(size):
            r, g, b, a = picture.getpixel((x, y))
            rows += bytes((b, g, r, a))
            bits = bits << 1 | (a < 128)
        stride = (size + 31) // 32 * 32
        mask += (bits << (stride - size)).to_bytes(stride // 8, "big")
    return header + rows + mask


def main():
    arguments = sys.argv[1:]
    if arguments[:1] == ["--png"]:
        for size in PNG_SIZES:
            draw().resize((size, size), Image.LANCZOS).save(f"{arguments[1]}/larkfen-{size}.png",
                                                            optimize=True)
        return
    preview = None
    if "--preview" in arguments:
        at = arguments.index("--preview")
        preview = arguments[at + 1]
        del arguments[at:at + 2]
    path = arguments[0] if arguments else "src/platform/win32/larkfen.ico"
    big = draw()
    pictures = [big.resize((size, size), Image.LANCZOS) for size in SIZES]
    images = [icon_image(picture) for picture in pictures]
    offset = 6 + 16 * len(images)
    table = struct.pack("<HHH", 0, 1, len(images))
    for size, image in zip(SIZES, images):
        table += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    with open(path, "wb") as file:
        file.write(table + b"".join(images))
    if preview:
        sheet = Image.new("RGBA", (sum(SIZES) * 4 + 40, 64 * 4), (200, 200, 200, 255))
        x = 0
        for picture in pictures:
            large = picture.resize((picture.width * 4, picture.height * 4), Image.NEAREST)
            sheet.paste(large, (x, 0), large)
            x += large.width + 8
        sheet.save(preview)


if __name__ == "__main__":
    main()
