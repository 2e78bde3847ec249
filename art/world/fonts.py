"""The two font sheets: 16 x 16 cells of 48 x 42, code page 1251, rows need no padding."""
import pathlib

import numpy as np
from PIL import Image, ImageDraw, ImageFilter, ImageFont

import bitmap

W, H = 788, 689
SMALL = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono-Bold.ttf"
BIG = "/usr/share/fonts/truetype/paratype/PTF76F.ttf"


def character(code):
    try:
        return bytes([code]).decode("cp1251")
    except UnicodeDecodeError:
        return ""


def sheet(draw_glyph):
    page = np.zeros((H, W, 3), np.uint8)
    for code in range(256):
        ch = character(code)
        if not ch or code < 32 or code == 127 or code == 160:
            continue
        x, y = (code % 16) * 49 + 1, (code // 16) * 43 + 1
        page[y:y + 42, x:x + 48] = draw_glyph(ch)
    return page


def place(font, ch, advance, baseline, scale):
    """The glyph as a coverage mask of the cell, oversampled; narrowed when it is too wide."""
    box = font.getbbox(ch, anchor="ls")
    room = (advance - 1) * scale
    mask = Image.new("L", (48 * scale, 42 * scale), 0)
    if box is None or box[2] <= box[0]:
        return mask
    wide, pad = box[2] - box[0], 4
    glyph = Image.new("L", (wide + 2 * pad, 42 * scale), 0)
    ImageDraw.Draw(glyph).text((pad - box[0], baseline * scale), ch, 255, font, anchor="ls")
    full = int(font.getlength(ch))
    if wide > room:
        glyph = glyph.resize((int(glyph.width * room / wide), glyph.height), Image.LANCZOS)
        left = 0
        wide = room
    else:
        left = max(0, (room - max(wide, 0)) // 2)
    mask.paste(glyph, (scale + left - pad, 0))
    return mask


def small_sheet():
    scale = 8
    font = ImageFont.truetype(SMALL, 17 * scale)

    def glyph(ch):
        m = place(font, ch, 11, 21, scale)
        cover = np.asarray(m.resize((48, 42), Image.BOX), float) / 255
        face = cover > 0.42
        out = np.zeros((42, 48, 3), np.uint8)
        edge = np.zeros_like(face)
        for dy in (-1, 0, 1, 2):
            for dx in (-1, 0, 1):
                if dy == 2 and dx == -1:
                    continue
                edge |= np.roll(np.roll(face, dy, 0), dx, 1)
        out[edge] = (33, 24, 41)
        shade_ = np.clip((cover - 0.42) / 0.4, 0, 1)
        rows = np.linspace(0, 1, 42)[:, None]
        tone = np.stack([255 - 0 * rows, 247 - 30 * np.clip((rows - 0.28) * 3, 0, 1),
                         222 - 62 * np.clip((rows - 0.28) * 3, 0, 1)], axis=-1)
        tone = np.broadcast_to(tone, (42, 48, 3))
        dim = (0.72 + 0.28 * shade_)[..., None] * tone
        out[face] = bitmap.dither565(dim, 0)[face]
        return out

    return sheet(glyph)


def big_sheet():
    scale = 8
    font = ImageFont.truetype(BIG, 30 * scale)

    def glyph(ch):
        m = place(font, ch, 19, 29, scale)
        cover = np.asarray(m.resize((48, 42), Image.BOX), float) / 255
        face = cover > 0.40
        soft = np.asarray(m.filter(ImageFilter.GaussianBlur(scale * 1.1)).resize((48, 42),
                                                                             Image.BOX), float)
        light = np.roll(soft, (1, 1), (0, 1)) - np.roll(soft, (-1, -1), (0, 1))
        light = np.clip(light / 255, -1, 1)
        edge = np.zeros_like(face)
        shadow = np.zeros_like(face)
        for dy in (-2, -1, 0, 1, 2):
            for dx in (-2, -1, 0, 1, 2):
                if dx * dx + dy * dy <= 5:
                    edge |= np.roll(np.roll(face, dy, 0), dx, 1)
        for k in (1, 2, 3):
            shadow |= np.roll(np.roll(edge, k, 0), 0, 1)
        rows = np.linspace(0, 1, 42)[:, None]
        t = np.clip((rows - 0.14) / 0.58, 0, 1)
        tone = bitmap.ramp(np.broadcast_to(t, (42, 48)), [(0, (255, 247, 222)), (0.45, (255, 219,
                           148)), (0.55, (222, 130, 82)), (1, (214, 97, 74))])
        tone = tone - 120 * light[..., None]
        out = np.zeros((42, 48, 3), np.uint8)
        out[shadow] = (66, 44, 74)
        out[edge] = (33, 24, 41)
        out[face] = bitmap.dither565(np.clip(tone, 8, 255), 0)[face]
        return out

    return sheet(glyph)


def sheets(folder):
    bitmap.write_bmp(pathlib.Path(folder) / "font-48.bmp", big_sheet())
    bitmap.write_bmp(pathlib.Path(folder) / "font-48-16px.bmp", small_sheet())
