#!/usr/bin/python3
"""Shows larkfen-inspect every defect it knows, once each, and compares its lines and exit code with
what is expected, letter by letter. Usage: run.py BUILD_FOLDER [WORDS OF A CASE]"""
import pathlib
import random
import resource
import shutil
import struct
import subprocess
import sys
import tempfile

import files

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CLEAN, WARNINGS, BROKEN, USAGE = 0, 1, 2, 64
FAILS = "the load fails and the object is not drawn"
PASSED, FAILED = [], []


def check(name, good, what=""):
    (PASSED if good else FAILED).append(name)
    if not good:
        print("FAILED %s\n%s" % (name, what))


class Folder:
    """A data folder of its own, clean until a case spoils it."""

    def __init__(self, inspector, root):
        self.inspector, self.root = inspector, root
        for name in ("3d", "texture", "2d", "cam", "sfx"):
            (root / name).mkdir()
        self.write("texture/wall.bmp", files.bmp())
        self.write("3d/thing.cob", files.OBJECT)

    def write(self, name, content):
        path = self.root / name
        if isinstance(content, str):
            content = content.encode("latin-1")
        path.write_bytes(content)
        return name

    def run(self, *arguments):
        done = subprocess.run([str(self.inspector), *arguments], cwd=self.root, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
        return done.returncode, done.stdout.decode("latin-1")

    def hole(self, name, size, head=b""):
        """A file of a size that takes no room on the disk."""
        with open(self.root / name, "wb") as file:
            file.write(head)
            file.truncate(size)
        return name

    def run_in(self, memory, *arguments):
        """With so many bytes of memory at most."""
        done = subprocess.run([str(self.inspector), *arguments], cwd=self.root, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60,
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS,
                                                                    (memory, memory)))
        return done.returncode, done.stdout.decode("latin-1")

    def finds(self, name, content, lines, code):
        """One case: a file, the lines expected of it ("PLACE: TEXT"), and the exit code."""
        path = self.write(name, content)
        got, text = self.run(path)
        found = [s[len(path) + 1:] for s in text.splitlines() if s.startswith(path + ":")
                 and s[len(path) + 1:len(path) + 2].isdigit()]
        return found == lines and got == code, "expected %s\n         %s\ngot      %s\n         %s\n%s" % (
            code, "\n         ".join(lines), got, "\n         ".join(found), text)


def changed(line, text, base=files.OBJECT):
    """The object with one line (from 1) replaced, or, for None, left out."""
    lines = base.splitlines()
    lines[line - 1:line] = [] if text is None else text.split("\n")
    return "\n".join(lines) + "\n"


def object_cases():
    """(name, text, lines, exit code)"""
    yield "clean object", files.OBJECT, [], CLEAN
    yield "lines with carriage returns are clean", files.OBJECT.replace("\n", "\r\n"), [], CLEAN
    yield "empty object", "", ["1: no line 'Name NAME' follows; %s; add the line" % FAILS], BROKEN
    for line, label in ((3, "center X Y Z"), (7, "Transform"), (12, "World Vertices N"),
                        (22, "Faces N"), (18, "Texture Vertices N")):
        extra = []
        after = {3: 2, 7: 6, 12: 7 + 3, 18: 17, 22: 21}[line]
        yield ("no " + label, changed(line, None), extra +
               ["%d: no line '%s' follows; %s; add the line" % (after, label, FAILS)], BROKEN)
    yield ("letter case", changed(12, "world vertices 5"),
           ["10: no line 'World Vertices N' follows; %s; line 12 has it in other letters" % FAILS],
           BROKEN)
    yield ("axis line", changed(5, "y axis 0 one 0"),
           ["5: here 'y axis X Y Z' must stand; the line is used up and the numbers before it are "
            "taken again; write the line",
            "24: a face without area; it is never seen; remove it (and 1 more like this)"], WARNINGS)
    yield ("transform line", changed(9, "0 1"),
           ["9: here 'X Y Z of the transform' must stand; the line is used up and the numbers before "
            "it are taken again; write the line"], WARNINGS)
    yield ("negative vertices", changed(12, "World Vertices -5"),
           ["12: -5 vertices; %s; write how many follow" % FAILS], BROKEN)
    yield ("too many vertices", changed(12, "World Vertices 8193"),
           ["12: 8193 vertices, 8192 are allowed: the limit of an object; %s; split the object" %
            FAILS], BROKEN)
    yield ("vertices beyond the file", changed(12, "World Vertices 8000"),
           ["12: 8000 vertices do not fit in the %d bytes that follow; %s; correct the count or add "
            "what is missing" % (len("".join(files.OBJECT.splitlines(True)[12:])), FAILS)], BROKEN)
    yield ("too few vertices", changed(12, "World Vertices 6"),
           ["12: 6 vertices are counted, 5 follow; %s; correct the count or add what is missing" %
            FAILS], BROKEN)
    yield ("more vertices than counted", changed(17, "0 0 1.5\n0 0 2\n0 0 3"),
           ["18: more vertices than line 12 counts; the line is passed over; correct the count (and 1 "
            "more like this)"], WARNINGS)
    yield ("a line that is no vertex", changed(15, "0 1 0\nand so on"),
           ["16: among the vertices here 'X Y Z' must stand: \"and so on\"; the line is passed over "
            "and a later one taken; write the line"], WARNINGS)
    yield ("a comment among vertices", changed(15, "# 0 1 0"),
           ["15: words before the numbers: \"# 0 1 0\"; there are no comments: the numbers are taken; "
            "leave only the numbers"], WARNINGS)
    yield ("numbers in front", changed(15, "0 x 0 1 0"),
           ["15: the line begins with a piece that fits only in part; the numbers and words of that "
            "piece are taken for the line's own; leave only what belongs on the line",
            "28: a face without area; it is never seen; remove it (and 1 more like this)"],
           WARNINGS)
    yield ("a number without digits", changed(13, "- 0 0"),
           ["13: \"-\" has no digits; it counts as 0; write the number"], WARNINGS)
    yield ("an exponent after d", changed(17, "0 0 2d3"),
           ["17: \"2d3\" has an exponent after a d; the number ends at the d and is 2; write e"],
           WARNINGS)
    yield ("an infinite number", changed(17, "0 0 1e99"),
           ["14: this corner is 1 from the origin and the bounding radius only 1; the object vanishes at "
            "the side of the picture while some of it is in sight; add a vertex that no face uses, 1.415 "
            "from the origin",
            "17: \"1e99\" is beyond the range of singles; it is infinite and what depends on it is not "
            "drawn; write a smaller number"], WARNINGS)
    yield ("a long number", changed(17, "0 0 1.5" + "0" * 80),
           ["17: a number of 83 characters; 79 of them count; shorten it"], WARNINGS)
    yield ("texture vertices beyond 9 each", changed(18, "Texture Vertices 46"),
           ["18: 46 texture vertices, 45 are allowed: 9 for each vertex; %s; split the object" %
            FAILS], BROKEN)
    yield ("too few texture vertices", changed(18, "Texture Vertices 4"),
           ["18: 4 texture vertices are counted, 3 follow; %s; correct the count or add what is "
            "missing" % FAILS], BROKEN)
    yield ("more texture vertices than counted", changed(18, "Texture Vertices 2"),
           ["21: more texture vertices than line 18 counts; the line is passed over; correct the "
            "count",
            "24: texture vertex 2 of 2, counted from 0; it counts as the texture's corner (0, 0); "
            "correct the corner (and 1 more like this)"], WARNINGS)
    yield ("faces beyond 3 each", changed(22, "Faces 16"),
           ["22: 16 faces, 15 are allowed: 3 for each vertex; %s; split the object" % FAILS], BROKEN)
    yield ("negative faces", changed(22, "Faces -1"),
           ["22: -1 faces; %s; write how many follow" % FAILS], BROKEN)
    yield ("too few faces", changed(22, "Faces 5"),
           ["22: 5 faces are counted, 4 follow; %s; correct the count or add what is missing" % FAILS],
           BROKEN)
    yield ("more faces than counted", changed(22, "Faces 3"),
           ["29: more faces than line 22 counts; the line is passed over; correct the count"], WARNINGS)
    many = "\n".join("0 %d 1" % i for i in range(5500))
    yield ("too many faces",
           changed(12, "World Vertices 5505", changed(17, "0 0 1.5\n" + many, changed(
               22, "Faces 16385"))),
           ["5522: 16385 faces, 16384 are allowed: the limit of an object; %s; split the object" %
            FAILS], BROKEN)
    yield ("a face of four corners", changed(23, "Face verts 4 flags 0 mat 0"),
           ["23: a face of 4 corners; %s; cut it into triangles" % FAILS], BROKEN)
    yield ("no corner line", changed(24, "corners"),
           ["24: here '<V,T> <V,T> <V,T>' must stand; the line is used up and the numbers before it "
            "are taken again; write the line",
            "24: a face without area; it is never seen; remove it"], WARNINGS)
    yield ("a vertex outside", changed(24, "<0,0> <1,1> <5,2>"),
           ["24: vertex 5 of 5, counted from 0; %s; correct the corner" % FAILS], BROKEN)
    yield ("a negative vertex", changed(24, "<0,0> <-1,1> <2,2>"),
           ["24: vertex -1 of 5, counted from 0; %s; correct the corner" % FAILS], BROKEN)
    yield ("a texture vertex outside", changed(24, "<0,0> <1,45> <2,2>"),
           ["24: texture vertex 45 of 3, counted from 0; %s; correct the corner" % FAILS], BROKEN)
    yield ("a texture vertex that is missing", changed(24, "<0,0> <1,44> <2,2>"),
           ["24: texture vertex 44 of 3, counted from 0; it counts as the texture's corner (0, 0); "
            "correct the corner"], WARNINGS)
    yield ("a material number outside", changed(23, "Face verts 3 flags 0 mat 256"),
           ["23: material number 256; %s; write 0, 1, 2 and so on" % FAILS], BROKEN)
    yield ("a negative material number", changed(23, "Face verts 3 flags 0 mat -1"),
           ["23: material number -1; %s; write 0, 1, 2 and so on" % FAILS], BROKEN)
    yield ("the table full", changed(23, "Face verts 3 flags 0 mat 255"),
           ["23: material number 255, and the table has room for 255 more; %s; use fewer materials, "
            "numbered from 0" % FAILS], BROKEN)
    unknown = files.OBJECT.replace("mat 0", "mat 256").replace("mat 1", "mat 300")
    yield ("nothing but material numbers outside", unknown,
           ["23: material number 256; %s; write 0, 1, 2 and so on (and 3 more like this)" % FAILS],
           BROKEN)
    yield ("one material number outside", files.OBJECT.replace("mat 1", "mat 300"),
           ["27: material number 300; %s; write 0, 1, 2 and so on (and 1 more like this)" % FAILS],
           BROKEN)
    blocks = "".join(files.OBJECT.splitlines(True)[30:40])
    many = "".join("mat# %d\nrgb 2,0,0\n" % (i % 250) + blocks[blocks.index("alpha"):].replace(
        "texture map", "plain color").replace("plastic", "matte") for i in range(250))
    used = "".join("Face verts 3 flags 0 mat %d\n<0,0> <1,1> <2,2>\n" % i for i in range(250))
    helpers = "0 0 1.5\n" * 100
    text = files.OBJECT.replace("World Vertices 5", "World Vertices 105").replace(
        "0 0 1.5\n", "0 0 1.5\n" + helpers)
    text = text[:text.index("Faces 4")] + "Faces 250\n" + used + many
    first = text[:text.index("rgb")].count("\n") + 1
    yield ("more than a hundred warnings of one kind", text,
           ["%d: colour 2 lies outside 0..1; it is cut to its low 8 bits: 254 of 255; write a number "
            "from 0 to 1%s" % (first + 10 * i, " (and 150 more like this)" if i == 99 else "")
            for i in range(100)], WARNINGS)
    yield ("a block is missing", "".join(files.OBJECT.splitlines(True)[:40]),
           ["40: no line 'mat# M' follows; %s; add the line" % FAILS], BROKEN)
    yield ("a line of a block is missing", changed(33, None),
           ["32: the material block has no line 'alpha A ka A ks S exp E'; line 42 of a later block is "
            "taken; add the line",
            "49: no line 'mat# M' follows; %s; add the line" % FAILS], BROKEN)
    yield ("colours outside", changed(42, "rgb 0.5,1.5,-0.25"),
           ["42: colour 1.5 lies outside 0..1; it is cut to its low 8 bits: 127 of 255; write a number "
            "from 0 to 1",
            "42: colour -0.25 lies outside 0..1; it is cut to its low 8 bits: 193 of 255; write a "
            "number from 0 to 1"], WARNINGS)
    yield ("another colour shader", changed(45, "Shader name: \"wood\"\nShader name: \"plain color\""),
           ["45: a colour shader that is neither \"plain color\" nor \"texture map\"; it is passed over "
            "until one of the two comes; write one of the two"], WARNINGS)
    yield ("two blanks before the texture's name", changed(36, "file name:  string \"./wall.bmp\""),
           ["36: the texture's name does not begin in column 19; it is taken as \"wall.bmp\"; write "
            "'file name: string \"./NAME\"' with one blank after each word"], WARNINGS)
    yield ("a texture's name without a slash", changed(36, "file name: string \"wall.bmp\""),
           ["36: the texture's name has no slash; it keeps the blank before it and is not found; write "
            "\"./wall.bmp\"",
            "36: texture \" wall.bmp\" is not in the folder texture; its faces are white, or black once "
            "any other texture was read; put it there or correct the name"], WARNINGS)
    yield ("a texture without a name", changed(36, "file name: string \"\""),
           ["36: the texture has no name; none is found: its faces are white or black; write 'file "
            "name: string \"./NAME\"'"], WARNINGS)
    yield ("a long texture name", changed(36, "file name: string \"./" + "w" * 300 + "\""),
           ["36: a texture name of 304 characters; it is cut to \"%s...\"; shorten it" % ("w" * 40),
            "36: texture \"%s...\" is not in the folder texture; its faces are white, or black once any "
            "other texture was read; put it there or correct the name" % ("w" * 40)], WARNINGS)
    yield ("a texture name beyond ASCII", changed(36, "file name: string \"./m\xFCwall.bmp\""),
           ["36: the texture's name has letters beyond ASCII; it is taken from after the last of them: "
            "\"wall.bmp\"; rename the file with plain letters"], WARNINGS)
    yield ("a texture that is missing", changed(36, "file name: string \"./absent.bmp\""),
           ["36: texture \"absent.bmp\" is not in the folder texture; its faces are white, or black once "
            "any other texture was read; put it there or correct the name"], WARNINGS)
    yield ("a texture that cannot be read", changed(36, "file name: string \"./cut.bmp\""),
           ["36: texture \"cut.bmp\" cannot be read; its faces are white, or black once any other "
            "texture was read; inspect the image"], WARNINGS)
    yield ("a second texture",
           changed(45, "Shader name: \"texture map\"\nfile name: string \"./roof.bmp\""),
           ["46: a second texture, \"roof.bmp\"; an object has one: \"wall.bmp\" is drawn instead; put "
            "both into one image or split the object"], WARNINGS)
    yield ("another transparency", changed(38, "Shader name: \"glass\""),
           ["38: transparency \"glass\" is neither \"none\" nor \"filter\"; it changes nothing: opaque; "
            "write one of the two"], WARNINGS)
    yield ("a filter that draws nothing", changed(48, "colour: color (18, 9, 0)"),
           ["48: filter level 0, the brightest of the colour is 18; its faces cannot be seen and still "
            "hide what is drawn behind them later; write 19 or more, 128 for half"], WARNINGS)
    yield ("a filter that is opaque", changed(48, "colour: color (9, 237, 0)"),
           ["48: filter level 7, the brightest of the colour is 237; a bright filter is opaque; write 128 "
            "for half, or \"none\" as transparency"], WARNINGS)
    yield ("a filter colour outside", changed(48, "colour: color (300, 0, 0)"),
           ["48: filter colour (300, 0, 0) lies outside 0..255; it counts as level 7 of 7; write numbers "
            "from 0 to 255"], WARNINGS)
    yield ("another reflectance", changed(50, "Shader name: \"metal\""),
           ["50: reflectance \"metal\" is no class; it counts as matte; write constant, matte or "
            "plastic"], WARNINGS)
    yield ("phong", changed(50, "Shader name: \"phong\""),
           ["50: class phong; its faces are not drawn; write plastic"], WARNINGS)
    yield ("phong with a texture", changed(40, "Shader name: \"phong\""),
           ["40: class phong; its textured faces are lit by chance; write plastic"], WARNINGS)
    swapped = changed(41, "mat# 0", changed(31, "mat# 1"))
    yield ("plastic out of its place", swapped,
           ["40: class plastic in block 0 of the file, which is material 1; material 0 becomes plastic "
            "instead; write the blocks in the order of their numbers, from 0 on"], WARNINGS)
    yield ("two blocks of one material", changed(41, "mat# 0"),
           ["27: no block of material 1 is read; its faces are black and matte; add the block, one for "
            "each number",
            "41: a second block of material 0; it is laid over the first, and takes the place of a later "
            "block; give each material one block"], WARNINGS)
    yield ("a block that no face uses", changed(41, "mat# 7"),
           ["27: no block of material 1 is read; its faces are black and matte; add the block, one for "
            "each number",
            "41: no face uses material 7; its block takes the place of a later one that is used; remove "
            "the block and number the others 0, 1, 2 and so on"], WARNINGS)
    yield ("a block after the last", files.OBJECT + "mat# 2\n",
           ["52: a material block after the last that is read; as many are read as numbers are used: 2; "
            "remove it, or the blocks before it that are not needed"], WARNINGS)
    gap = files.OBJECT.replace("mat 1", "mat 3").replace("mat# 1", "mat# 3")
    yield ("gaps in the numbers", gap,
           ["27: material 3, with 2 in use: the numbers have gaps; the next object's materials are laid "
            "over it; number them 0, 1, 2 and so on"], WARNINGS)
    yield ("a long line", changed(1, "x" * 1024),
           ["1: a line of 1024 characters; it is read in pieces of 1023; break it"], WARNINGS)
    yield ("a zero byte", changed(1, "x\0y"),
           ["1: a zero byte in a text; the line ends there; save it as plain text"], WARNINGS)
    yield ("carriage returns alone", files.OBJECT.replace("\n", "\r"),
           ["1: the lines end with carriage returns alone; they are one line for the loader; end them "
            "with line feeds",
            "1: no line 'center X Y Z' follows; %s; add the line" % FAILS], BROKEN)
    yield ("no helper vertex", changed(17, "0 0 1.2"),
           ["14: this corner is 1 from the origin and the bounding radius only 1.2; the object vanishes "
            "at the side of the picture while some of it is in sight; add a vertex that no face uses, "
            "1.415 from the origin"], WARNINGS)
    yield ("a face without area", changed(24, "<0,0> <1,1> <1,2>"),
           ["24: a face without area; it is never seen; remove it"], WARNINGS)
    inward = files.OBJECT
    for a, b in (("<1,1> <2,2>", "<2,2> <1,1>"), ("<3,1> <1,2>", "<1,2> <3,1>"),
                 ("<2,1> <3,2>", "<3,2> <2,1>"), ("<3,1> <2,2>", "<2,2> <3,1>")):
        inward = inward.replace(a, b)
    yield ("inside out", inward,
           ["24: the object is closed and its faces look inward; its far side alone is drawn; turn the "
            "order of the corners round in every face"], WARNINGS)
    yield ("u outside", changed(20, "1.25 0"),
           ["20: texture place (1.25, 0) lies outside 0..1; it is cut to the texture's edge; cut the "
            "face where the texture ends (and 1 more like this)"], WARNINGS)
    far = files.OBJECT.replace("1 0 0\n0 1 0\n0 0 1\n0 0 1.5", "3e6 0 0\n0 1 0\n0 0 1\n0 0 5e6")
    yield ("beyond the lights", far,
           ["14: a coordinate of 3e+06 in the world; the lights reckon with at most 2097151: its faces "
            "are lit wrongly; make the object smaller"], WARNINGS)
    yield ("beyond everything", far.replace("e6", "e10"),
           ["14: a coordinate of 1e9 or more in the world; its faces are not drawn; make the object "
            "smaller"], WARNINGS)


def image_cases():
    lost = "its faces are white, or black once any other texture was read"
    yield "clean texture", files.bmp(), [], CLEAN
    yield ("no BM", files.bmp(magic=b"GM"),
           ["0: the file does not begin with BM; %s; save it as BMP" % lost], BROKEN)
    yield ("cut in the headers", files.bmp()[:50],
           ["50: the file ends within its 54 bytes of headers; %s; save it again" % lost], BROKEN)
    yield ("32 bits", files.bmp(stored_bits=32),
           ["28: 32 bits a pixel; %s; save it with 24 bits" % lost], BROKEN)
    yield ("no width", files.bmp(width=0),
           ["18: a width of 0; %s; save it again" % lost], BROKEN)
    yield ("top row first", files.bmp(stored_height=-8),
           ["22: a height of -8: the top row comes first; %s; save it with the bottom row first" % lost],
           BROKEN)
    yield ("no image size", files.bmp(size=0),
           ["34: the image size is not filled in; %s; write the number of its pixel bytes, 192" % lost],
           BROKEN)
    yield ("a small image size", files.bmp(size=191),
           ["34: an image size of 191 bytes for 8 x 8 pixels of 24 bits; %s; write the number of its "
            "pixel bytes, 192" % lost], BROKEN)
    yield ("an image size beyond the file", files.bmp(size=1000),
           ["34: an image size of 1000 bytes in a file of 246; %s; the file is cut short: save it again"
            % lost], BROKEN)
    yield ("an absurd image size", files.bmp(size=0x80000000),
           ["34: an image size of 2147483648 bytes, 33554432 are allowed; %s; make the image smaller" %
            lost], BROKEN)
    yield ("too large for a texture", files.bmp(2048, 4),
           ["18: 2048 x 4 pixels, 1024 are allowed; %s; make it smaller" % lost], BROKEN)
    yield ("compressed", files.bmp(8, 8, 8, compression=1),
           ["28: 8 bits a pixel; two of its bytes are taken for one 16-bit pixel; save it with 24 bits",
            "30: compression 1; the bytes are taken for pixels as they are; save it uncompressed"],
           WARNINGS)
    yield ("16 bits without masks", files.bmp(8, 8, 16),
           ["30: 16-bit pixels without masks, which are 5-5-5; they are taken for 5-6-5: the colours are "
            "wrong; save it with 24 bits"], WARNINGS)
    masks = struct.pack("<III", 0xF800, 0x07E0, 0x001F)
    yield ("16 bits with the right masks",
           files.bmp(8, 8, 16, compression=3, before=masks), [], CLEAN)
    yield ("16 bits with other masks",
           files.bmp(8, 8, 16, compression=3, before=struct.pack("<III", 0x7C00, 0x03E0, 0x001F)),
           ["54: 16-bit pixels whose masks are not those of 5-6-5; they are taken for 5-6-5: the colours "
            "are wrong; save it with 24 bits"], WARNINGS)
    yield ("padded rows", files.bmp(2, 2, pixels=b"\x40" * 16),
           ["18: rows of 6 bytes, which the format pads to a multiple of 4; the padding is taken for "
            "pixels: each row is shifted against the last; make it 4 pixels wide"], WARNINGS)
    yield ("bytes after the pixels", files.bmp(after=b"more"),
           ["10: the pixels begin at byte 54, but 192 bytes before the end is byte 58; the last bytes of "
            "the file are taken: the picture is shifted; let nothing follow the pixels and let the image "
            "size be theirs"], WARNINGS)
    yield ("no power of two", files.bmp(12, 12),
           ["18: 12 pixels wide, no power of two; rows are taken as 8 apart: the picture is torn; make "
            "it 32, 64, 128, 256, 512 or 1024 pixels wide"], WARNINGS)
    yield ("not square", files.bmp(8, 4),
           ["22: 8 x 4 pixels, not square; v reaches beyond the last row and is cut to it; make it "
            "square"], WARNINGS)
    yield ("higher than wide", files.bmp(8, 16),
           ["22: 8 x 16 pixels, not square; the lower part is never shown; make it square"], WARNINGS)


def font_cases():
    yield "clean font", files.font(), [], CLEAN
    yield ("font of 8 bits", files.font(bits=8),
           ["28: 8 bits a pixel; no text is drawn with this font; save it with 24 bits"], BROKEN)
    yield ("a small sheet", files.font(height=680),
           ["22: 788 x 680 pixels, the grid of 256 cells has 785 x 689; the cells that it does not reach "
            "stay empty; make it 788 x 689"], WARNINGS)
    yield ("a missing letter", files.font(empty=(ord("a"), 0xAB)),
           ["%d: 2 letters of the texts are empty cells: 0x61 0xAB; they are blanks on the screen; draw "
            "them" % (54 + ((688 - (6 * 43 + 1)) * 788 + 49 + 1) * 3)], WARNINGS)


def track_cases():
    good = files.track()
    lines = good.splitlines()

    def with_line(i, text):
        return "\n".join(lines[:i - 1] + [text] + lines[i:]) + "\n"
    yield "fly.trk", "clean track", good, [], CLEAN
    yield ("fly.trk", "a short key", with_line(3, "0, -1, 0;\t20, 200, x;\t0, 0, 0;\t90;\t0.5;"),
           ["3: key 2 has 5 of 11 numbers: here z must follow, not \"x;?0, 0, 0;?90;?0.5;\"; the others "
            "are those of the key before, and the next key begins here; write 'b, c, t;<tab>x, y, "
            "z;<tab>ax, ay, az;<tab>fov;<tab>step;'",
            "3: here a key must begin, not \"x;?0, 0, 0;?90;?0.5;\"; reading ends after 3 keys; leave "
            "nothing but keys in the file"], WARNINGS)
    yield ("fly.trk", "a key without its step", with_line(3, "0, -1, 0;\t20, 200, 2;\t0, 0, 0;\t90;"),
           ["3: key 2 takes numbers from the next line; the keys are shifted from here on; write eleven "
            "numbers on each line",
            "4: here a key must begin, not \", -1, 0;?30, 200, 3;?0, 0, 0;?90;?0.5;\"; reading ends after "
            "3 keys; leave nothing but keys in the file"], WARNINGS)
    yield ("fly.trk", "a comment", "# way\n" + good,
           ["1: here a key must begin, not \"# way\"; reading ends after 0 keys; leave nothing but keys "
            "in the file",
            "1: 0 keys, a track needs 3; the camera stays where it is; add keys"], BROKEN)
    yield ("fly.trk", "two keys", "\n".join(lines[:2]) + "\n",
           ["1: 2 keys, a track needs 3; the camera stays where it is; add keys"], BROKEN)
    yield ("fly.trk", "too many keys", files.track(1025),
           ["1025: more than 1024 keys; the rest is not read; remove them"], WARNINGS)
    yield ("fly.trk", "a zero byte in a track", good + "\0" + good,
           ["41: a zero byte in a text; reading ends there; save it as plain text"], WARNINGS)
    yield ("fly.trk", "field of view", with_line(5, lines[4].replace("90;", "180;")),
           ["5: key 4 has a field of view of 180 degrees; the picture turns inside out or vanishes; write "
            "a number between 0 and 180; 90 is usual, more magnifies"], WARNINGS)
    yield ("fly.trk", "the long way round",
           with_line(5, lines[4].replace("0, 0, 0;\t90", "0, 350, 0;\t90")),
           ["5: from key 3 to key 4 an angle changes by 350 degrees; angles are interpolated as numbers: "
            "the camera turns the long way round; write 350, 370 and not 350, 10 (and 1 more like this)"],
           WARNINGS)
    yield ("fly.trk", "an endless segment", with_line(5, lines[4].replace("0.5;", "1e-20;")),
           ["5: key 4 has a step of 1e-20; its segment does not end; write 0.015625 for 64 frames"],
           WARNINGS)
    yield ("fly.trk", "an infinite place", with_line(5, lines[4].replace("200", "1e99")),
           ["5: key 4 has a number beyond the range of singles; nothing is drawn near it; write a smaller "
            "number"], WARNINGS)
    yield "scene1.trk", "clean first track", files.first_track(), [], CLEAN
    yield ("scene1.trk", "34 keys", files.first_track(34),
           ["34: 34 keys, the first scene needs 35; the track starts again and again: the second scene "
            "never comes; add keys"], BROKEN)
    yield ("scene1.trk", "36 keys", files.first_track(36),
           ["36: 36 keys, 35 are used; the scene is over before this one; remove it"], WARNINGS)
    yield ("scene1.trk", "key 33", files.track(35),
           ["34: key 33 has a step of 0.5; the second scene begins that far on its own track, and with 35 "
            "keys there skips 32 segments; write 1.0"], WARNINGS)
    yield "scene2.trk", "clean second track", files.second_track(), [], CLEAN
    yield ("scene2.trk", "36 keys in the second", files.second_track(36),
           ["36: 36 keys in the second scene, 35 may be; it begins at segment 33 and not at 0; remove "
            "keys"], WARNINGS)
    yield ("scene2.trk", "a short second track", files.second_track(20),
           ["20: the track lasts 2304 frames, the second scene 3967; it starts again with a jump; add "
            "keys or make steps smaller"], WARNINGS)


def list_cases():
    good = files.LIST
    lines = good.splitlines()

    def with_line(i, text):
        return "\n".join(lines[:i - 1] + [text] + lines[i:]) + "\n"
    yield "clean list", good, [], CLEAN
    yield "a comment glued to its path", with_line(2, "#" + lines[1]), [], CLEAN
    # The point of "./data" counts as the beginning of a number and is lost.
    yield ("a comment with a blank", with_line(2, "# " + lines[1]),
           ["2: a comment that is no entry; only its first word is one: what follows is read as the next "
            "entry, \"/data/3d/thing.cob ? 10, 10, 10; ? 100, ...\"; glue # to the path of a whole entry, "
            "or remove the line"], WARNINGS)
    yield ("a comment with a blank that is loaded",
           with_line(2, "# " + lines[1].replace("./data/", "texture/../")),
           ["2: a comment that is no entry; only its first word is one: what follows is read as the next "
            "entry, \"texture/../3d/thing.cob ? 10, 10, 10; ? ...\"; glue # to the path of a whole entry, "
            "or remove the line",
            "2: \"texture/../3d/thing.cob\" stands behind a # with a blank; it is loaded all the same; "
            "glue # to the path"], WARNINGS)
    lost = ("3: \"/data/3d/thing.cob\" is not there; the entry is skipped; correct the path; it begins "
            "with ./data/ and has no blanks")
    yield ("a comment of words", with_line(2, "#the second object\n" + lines[1]),
           ["2: a comment that is no entry; only its first word is one: what follows is read as the next "
            "entry, \"second object\"; glue # to the path of a whole entry, or remove the line", lost],
           WARNINGS)
    yield ("a missing object", with_line(2, lines[1].replace("thing", "absent")),
           ["2: \"./data/3d/absent.cob\" is not there; the entry is skipped; correct the path; it begins "
            "with ./data/ and has no blanks"], WARNINGS)
    yield ("too few numbers", with_line(2, "./data/3d/thing.cob 10, 10, 10; 100, 0;"),
           ["2: 5 of 9 numbers of \"./data/3d/thing.cob\" fit: here stands \";\"; the others are those of "
            "the entry before, and the next read goes on here; write 'PATH sx, sy, sz; px, py, pz; ax, "
            "ay, az;'",
            "2: \";\" is not there; the entry is skipped; correct the path; it begins with ./data/ and "
            "has no blanks", lost], WARNINGS)
    yield ("a scale of 0", with_line(2, lines[1].replace("10, 10, 10", "10, 0, 10")),
           ["2: a scale of 0; the object is flat and not seen; write 10 for the file's own size"],
           WARNINGS)
    yield ("a negative scale", with_line(2, lines[1].replace("10, 10, 10", "10, -10, 10")),
           ["2: a negative scale; the object is mirrored: its faces look the other way; mirror the object "
            "in its file"], WARNINGS)
    yield ("a number beyond singles", with_line(2, lines[1].replace("100, 0", "1e99, 0")),
           ["2: a number beyond the range of singles; the object is not drawn; write a smaller number"],
           WARNINGS)
    yield ("an object that fails", with_line(2, lines[1].replace("thing", "broken")),
           ["2: \"./data/3d/broken.cob\" fails to load; nothing is drawn in its place; inspect it; 8 of "
            "255 materials are used"], WARNINGS)
    yield ("materials used up", lines[0] + "\n" + "\n".join([lines[1]] * 128) + "\n",
           ["128: \"./data/3d/thing.cob\" fails to load; nothing is drawn in its place; inspect it; 254 "
            "of 255 materials are used (and 1 more like this)"], WARNINGS)
    yield ("three objects", "\n".join(lines[:3]) + "\n",
           ["3: 3 objects; the empty entry before them takes part in the turning; have at least 4"],
           WARNINGS)
    yield ("nothing in the list", "", ["1: no object; the world is empty but for sky and ground; add "
                                       "entries"], WARNINGS)
    yield ("a last object that is not small", good + lines[0].replace("thing", "ball") + "\n",
           ["6: the last object has 20 faces; it is never drawn; put a small dummy after it"], WARNINGS)
    yield ("too many objects", (lines[0].replace("thing", "plain") + "\n") * 501,
           ["501: more than 500 objects; the rest is not read; remove them"], WARNINGS)
    yield ("too many faces", (lines[0].replace("thing", "many") + "\n") * 30 + good,
           ["35: 69976 faces with the ground and the sky; a frame holds 65536: what is drawn last is "
            "missing; use simpler or fewer objects"], WARNINGS)


def sound_cases():
    yield "clean sound", files.mp3(), [], CLEAN
    yield "sound with tags", b"ID3\3\0\0\0\0\0\4tags" + files.mp3() + b"TAG" + bytes(125), [], CLEAN
    yield ("no sound", b"RIFF" + bytes(100),
           ["0: no frame of MPEG audio, layer III, begins here; the production is silent; encode it as "
            "MP3"], BROKEN)
    yield ("a last frame cut short", files.mp3()[:-10],
           ["3753: the last frame is cut short; the sound breaks off there; encode it again"], WARNINGS)
    yield ("something after the sound", files.mp3() + b"nothing to hear",
           ["4170: 15 bytes that are no sound; they are skipped or end the sound, as the library likes; "
            "encode it again"], WARNINGS)


def fixed_cases():
    """Objects that start-up loads by name: (file, name, text, lines, code)"""
    yield ("ground-lowpoly-03.cob", "vertex 0 of the ground", files.OBJECT.replace(
        "0 0 1.5", "0 0 2.5"),
           ["24: a face of the ground uses vertex 0; start-up moves that vertex by 50 and the tile tears; "
            "let no face use the first vertex (and 2 more like this)"], WARNINGS)
    sky = files.OBJECT.replace("1 0 0\n0 1 0\n0 0 1\n0 0 1.5", "9 0 0\n0 9 0\n0 0 9\n0 0 9.1")
    yield ("sky-sphere-04.cob", "a sky that looks outward", sky,
           ["24: the sky is closed and its faces look outward; from inside nothing of it is drawn; turn "
            "the order of the corners round in every face"], WARNINGS)
    yield ("sky-sphere-04.cob", "a small sky", sky.replace("9.1", "5").replace("9", "5"),
           ["14: the sky's radius is 5000 in the world; it vanishes when the eye is near the side of the "
            "box; make it 7601 to 9620",
            "24: the sky is closed and its faces look outward; from inside nothing of it is drawn; turn "
            "the order of the corners round in every face"], WARNINGS)
    yield ("sky-sphere-04.cob", "a large sky", sky.replace("9.1", "9.7"),
           ["14: the sky's radius is 9700 in the world; parts of it lie beyond the far limit and are cut "
            "away; make it 7601 to 9620",
            "24: the sky is closed and its faces look outward; from inside nothing of it is drawn; turn "
            "the order of the corners round in every face"], WARNINGS)


def test_files(folder):
    wanted = sys.argv[2:]

    def run(name, path, text, lines, code):
        if all(word in name for word in wanted):
            check(name, *folder.finds(path, text, lines, code))
    folder.write("texture/cut.bmp", files.bmp()[:100])
    folder.write("3d/broken.cob", files.OBJECT.replace("Faces 4", "Faces 400"))
    plain = files.OBJECT.splitlines(True)
    folder.write("3d/plain.cob", "".join(plain[:12] + plain[12:21]) + "Faces 0\n")
    many = [s for i in range(583) for s in plain[22:30]]
    helpers = ["0 0 1.5\n"] * 800
    folder.write("3d/many.cob", "".join(plain[:11]) + "World Vertices 805\n" + "".join(
        plain[12:17] + helpers + plain[17:21]) + "Faces 2332\n" + "".join(many + plain[30:]))
    folder.write("3d/ball.cob", "".join(plain[:11]) + "World Vertices 15\n" + "".join(
        plain[12:17] + helpers[:10] + plain[17:21]) + "Faces 20\n" + "".join(many[:40] + plain[30:]))
    for name, text, lines, code in object_cases():
        run("object: " + name, "3d/bad.cob", text, lines, code)
    for path, name, text, lines, code in fixed_cases():
        run("object: " + name, "3d/" + path, text, lines, code)
        (folder.root / "3d" / path).unlink(missing_ok=True)
    for name, text, lines, code in image_cases():
        run("image: " + name, "texture/bad.bmp", text, lines, code)
    for name, text, lines, code in font_cases():
        run("font: " + name, "2d/font-48.bmp", text, lines, code)
    for path, name, text, lines, code in track_cases():
        run("track: " + name, "cam/" + path, text, lines, code)
    for name, text, lines, code in list_cases():
        run("list: " + name, "bad.po", text, lines, code)
    for name, text, lines, code in sound_cases():
        run("sound: " + name, "sfx/bad.mp3", text, lines, code)


def test_totals(folder):
    """What is summed up in one line is counted one by one all the same."""
    texts = {name: text for name, text, _, _ in object_cases()}
    folder.write("3d/bad.cob", texts["more than a hundred warnings of one kind"])
    folder.write("3d/worse.cob", texts["more vertices than counted"])
    _, text = folder.run("3d/bad.cob", "3d/worse.cob")
    check("totals: every warning counts", text.endswith("0 broken, 252 warnings\n"), text[-300:])


def test_sizes(folder):
    """Files that no data folder holds: each is refused with its reason, whatever memory there is."""
    small = 160 << 20
    for name, size, head, words in (
            ("3d/hole.cob", 3 << 30, files.OBJECT.encode(),
             "1: 3221225472 bytes, 16777216 are allowed; the object is not drawn; "),
            ("3d/lines.cob", 16 << 20, b"\n" * (16 << 20), "1: no line 'Name NAME' follows; "),
            ("texture/hole.bmp", 200 << 20, b"BM", "0: no memory for its 209715200 bytes; "),
            ("texture/huge.bmp", 257 << 20, b"BM", "0: 269484032 bytes, 268435456 are allowed; "),
            ("sfx/hole.mp3", 1 << 30, files.mp3(), "0: no memory for its 1073741824 bytes; the "
             "production is silent; "),
            ("cam/hole.trk", 1 << 34, b"", "1: 17179869184 bytes, 16777216 are allowed; "),
            ("cam/lines.trk", 16 << 20, b"\n" * (16 << 20), "1: 0 keys, a track needs 3; "),
            ("hole.po", 1 << 21, b"", "1: 2097152 bytes, 1048576 are allowed; ")):
        folder.hole(name, size, head)
        code, text = folder.run_in(small, name)
        (folder.root / name).unlink()
        check("size: " + name, code == BROKEN and "\n%s:%s" % (name, words) in text and
              text.endswith("1 broken, 0 warnings\n"), text[-500:])


def test_missing(folder):
    """A file that is not there is a broken one, as --help says."""
    for ending, then in (("cob", "the object is not drawn; give a file that can be read"),
                         ("trk", "the camera stays where it is; give a file that can be read"),
                         ("mp3", "the production is silent; give a file that can be read"),
                         ("txt", "it is not opened; give a .cob, .bmp, .trk, .po or .mp3")):
        name = "absent." + ending
        code, text = folder.run(name)
        place = 0 if ending == "mp3" else 1
        check("missing " + name, code == BROKEN and
              "\n%s:%d: no such file; %s\n" % (name, place, then) in text, text)
    code, text = folder.run("absent.cob", "3d/thing.cob")
    check("what is after a missing file is inspected", code == BROKEN and
          "3d/thing.cob: object" in text and text.endswith("1 broken, 0 warnings\n"), text)
    code, text = folder.run("absent.cob", "--picture", "out.png")
    check("no picture of a missing file", code == BROKEN and not (folder.root / "out.png").exists(),
          text)


def test_usage(folder):
    for arguments, words in (([], "no file to inspect"), (["--colour", "x"], "unknown argument"),
                             (["--picture"], "--picture: a value is missing"),
                             (["--picture", "a.png", "3d/thing.cob", "texture/wall.bmp"],
                              "--picture: one file is drawn, not 2"),
                             (["--data", "nowhere", "3d/thing.cob"], "there is no folder nowhere")):
        code, text = folder.run(*arguments)
        check("usage: " + " ".join(arguments), code == USAGE and words in text, text)
    code, text = folder.run("--help")
    check("help", code == CLEAN and text.startswith("Usage: larkfen-inspect") and "64" in text, text)
    folder.write("notes.txt", "nothing")
    code, text = folder.run("notes.txt")
    check("unknown kind", code == BROKEN and "notes.txt:0: no kind of file that the production reads; "
          "it is not opened; give a .cob, .bmp, .trk, .po or .mp3\n" in text, text)
    code, text = folder.run("3d/thing.cob", "texture/cut.bmp")
    check("several files", code == BROKEN and "3d/thing.cob: object" in text
          and text.endswith("1 broken, 0 warnings\n"), text)


def test_tables(folder):
    code, text = folder.run("3d/thing.cob")
    for row in ("vertices           5 of at most 8192", "texture vertices   3 of at most 45",
                "faces              4 of at most 15", "texture            wall.bmp, 8 x 8",
                "bounds             x 0 to 1, up 0 to 1, ahead 0 to 1",
                "radius             1.5, mean 0.9; faces reach 1, which is 1 : 1.500",
                "   0  255 255 255  plastic    opaque   yes          2  FillTexGouraudW",
                "   1  128  64  32  constant   4 of 7   no           2  FillFlatWBlend"):
        check("table: " + row, code == CLEAN and "  " + row + "\n" in text, text)
    folder.write("cam/scene1.trk", files.first_track())
    code, text = folder.run("cam/scene1.trk")
    for row in ("keys               35", "frames             65, by segment 32 x 2, 1",
                "F1                 65 frames of the first scene",
                "production         4033 frames, 100.825 s"):
        check("table: " + row, code == CLEAN and "  " + row + "\n" in text, text)
    code, text = folder.run(str(ROOT / "data"))
    check("all of data is clean", code == CLEAN and text.endswith("\nclean\n"), text[-3000:])


def test_folder(folder):
    code, text = folder.run(".")
    check("missing files are told", code == BROKEN and
          "./3d/sky-sphere-04.cob:1: the file is missing; the production goes on without it; put it "
          "there\n" in text, text)


def png_size(path):
    raw = path.read_bytes()
    return struct.unpack(">II", raw[16:24]) if raw[:8] == b"\x89PNG\r\n\x1a\n" else None


def test_pictures(folder):
    out = folder.root / "out.png"
    data = ROOT / "data"
    for name, size in (("3d/gate.cob", (1182, 642)), ("cam/scene1.trk", (1160, 960)),
                       ("texture/gate.bmp", (834, 630)), ("2d/font-48.bmp", (828, 894)),
                       ("scene1.po", (1160, 960)), (".", (1160, 960))):
        out.unlink(missing_ok=True)
        code, text = folder.run(str(data / name), "--picture", str(out))
        check("picture of " + name, code == CLEAN and out.exists() and png_size(out) == size, text)
    out.unlink(missing_ok=True)
    code, text = folder.run("sfx/bad.mp3", "--picture=" + str(out))
    check("no picture of sound", code == WARNINGS and not out.exists() and
          "there is no picture of such a file" in text, text)
    code, text = folder.run("3d/thing.cob", "--picture", "/no/such/folder/out.png")
    check("a picture that cannot be written", code == WARNINGS and "No such file" in text, text)


def test_agreement(folder):
    """Whatever is done to a file, the inspector and the loaders agree on it, and it ends well."""
    dice = random.Random(5)
    tries = {"3d/x%d.cob": files.OBJECT, "cam/x%d.trk": files.track(6), "x%d.po": files.LIST,
             "texture/x%d.bmp": files.bmp(4, 4).decode("latin-1")}
    pieces = ["\n", " ", "-1", "9999999999", "1e99", "#", ";", ",", "\0", "<", "mat", "\"", "0", "x"]
    for form, text in tries.items():
        names = []
        for number in range(120):
            spoilt = text
            for _ in range(dice.randint(1, 4)):
                at = dice.randrange(len(spoilt) + 1)
                what = dice.randrange(4)
                if what == 0:
                    spoilt = spoilt[:at]
                elif what == 1:
                    spoilt = spoilt[:at] + dice.choice(pieces) + spoilt[at:]
                elif what == 2:
                    spoilt = spoilt[:at] + spoilt[at + dice.randint(1, 30):]
                else:
                    spoilt = spoilt[:at] + chr(dice.randrange(256)) + spoilt[at + 1:]
            names.append(folder.write(form % number, spoilt))
        code, text = folder.run(*names)
        bad = [s for s in text.splitlines() if "tell the makers" in s]
        check("agreement: " + form, code in (CLEAN, WARNINGS, BROKEN) and not bad and
              text.splitlines()[-1].endswith(" warnings"), "\n".join(bad) or text[-2000:])


def main():
    inspector = pathlib.Path(sys.argv[1]).resolve() / "larkfen-inspect"
    root = pathlib.Path(tempfile.mkdtemp(prefix="larkfen-inspect-"))
    try:
        folder = Folder(inspector, root)
        test_files(folder)
        if not sys.argv[2:]:
            test_totals(folder)
            test_sizes(folder)
            test_missing(folder)
            test_usage(folder)
            test_tables(folder)
            test_folder(folder)
            test_pictures(folder)
            test_agreement(folder)
    finally:
        shutil.rmtree(root)
    print("%d passed, %d failed" % (len(PASSED), len(FAILED)))
    return 1 if FAILED else 0


sys.exit(main())
