"""Small files in which the inspector finds nothing, to be spoilt one place at a time."""
import struct

OBJECT = """Made by a test
Name thing
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 5
0 0 0
1 0 0
0 1 0
0 0 1
0 0 1.5
Texture Vertices 3
0 0
1 0
0 1
Faces 4
Face verts 3 flags 0 mat 0
<0,0> <1,1> <2,2>
Face verts 3 flags 0 mat 0
<0,0> <3,1> <1,2>
Face verts 3 flags 0 mat 1
<0,0> <2,1> <3,2>
Face verts 3 flags 0 mat 1
<1,0> <3,1> <2,2>
mat# 0
rgb 1,1,1
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "texture map"
file name: string "./wall.bmp"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "plastic"
mat# 1
rgb 0.5,0.25,0.125
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "filter"
colour: color (128, 128, 128)
Shader class: reflectance
Shader name: "constant"
END
"""


def bmp(width=8, height=8, bits=24, **fields):
    """An image of one colour; fields change what the headers say, before and after add bytes."""
    row = width * bits // 8
    pixels = fields.get("pixels", b"\x40" * (row * height))
    before, after = fields.get("before", b""), fields.get("after", b"")
    head = struct.pack("<2sIHHI", fields.get("magic", b"BM"), 54 + len(pixels), 0, 0,
                       fields.get("offset", 54 + len(before)))
    head += struct.pack("<IiiHHIIiiII", 40, width, fields.get("stored_height", height), 1,
                        fields.get("stored_bits", bits), fields.get("compression", 0),
                        fields.get("size", len(pixels)), 0, 0, 0, 0)
    return head + before + pixels + after


def font(width=788, height=689, bits=24, empty=()):
    """A sheet with a dot in every cell but those of the empty codes."""
    step = bits // 8
    pixels = bytearray(width * height * step)
    for code in set(range(33, 256)) - set(empty):
        x, y = code % 16 * 49 + 4, code // 16 * 43 + 8
        if x < width and y < height:
            at = ((height - 1 - y) * width + x) * step
            pixels[at:at + step] = b"\xFF" * step
    return bmp(width, height, bits, pixels=bytes(pixels))


def key(i, step="1.0", z=None):
    return "0, -1, 0;\t%d, 200, %s;\t0, 0, 0;\t90;\t%s;" % (i * 10, z or i, step)


def track(count=40, step="0.5"):
    return "\n".join(key(i, step) for i in range(count)) + "\n"


def first_track(count=35):
    return "\n".join(key(i, "1.0" if i == 33 else "0.5") for i in range(count)) + "\n"


def second_track(count=35, step="0.0078125"):
    return "\n".join(key(i, step) for i in range(count)) + "\n"


LIST = "".join("./data/3d/thing.cob \t 10, 10, 10; \t %d, 0, 0; \t 0, 0, 0;\n" % (i * 100)
               for i in range(5))


def mp3(frames=10):
    """Silent frames of 128 kbit/s at 44100 Hz, 417 bytes each."""
    return (b"\xFF\xFB\x90\x00" + bytes(413)) * frames
