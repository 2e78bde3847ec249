#!/usr/bin/python3
"""Makes the folder of the page: the files of web/, the program ombrel.wasm, and all data as one packed
file, ombrel.pack, whose layout web/pack.js tells. The world comes first in it, then the first minute of
the music, then the rest: the show starts while that still comes. Prints what each file takes. The same
inputs give the same bytes."""
import argparse
import gzip
import hashlib
import json
import os
import pathlib
import re
import struct
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
MOST_BYTES = 12_000_000  # of what a visitor fetches
FIRST_SECONDS = 60  # of the music, in the first part
OVERLAP_FRAMES = 20  # MP3 frames that both parts hold, so that they can be joined
TAIL_SECONDS = 2  # of the music, behind the last picture
FRAMES_A_SECOND = 40  # of the show

SOUND = "sfx/soundtrack.mp3"
HASHES = "hashes"  # of all pictures, 8 bytes each: a file of the pack beside the data
STORED = ROOT / "tests/scenario/frames.txt.gz"
# Made into a file of the page | from
COPIES = [
    ("still.png", "docs/pictures/scene-one.png"),
    ("icon.png",  "art/icon/larkfen-64.png"),
]
LICENCES = ["LICENSE", "tools/package/licences/fonts.txt", "tools/package/licences/web.txt"]


class Fault(Exception):
    """Why no folder can be made; names the file."""


def read(path):
    """The bytes of a file."""
    try:
        return path.read_bytes()
    except OSError as fault:
        raise Fault(f"{path}: {fault.strerror.lower()}") from fault


# --- the music ----------------------------------------------------------------------------------

BIT_RATES = [0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320]  # kbit/s, layer III
SAMPLE_RATE = 44100
FRAME_SAMPLES = 1152
XING_AT = 36  # of a stereo frame: where the one that holds no sound says so


def mp3_frames(content, name):
    """Where each MP3 frame begins, and behind the last one where the sound ends."""
    at = 0
    if content[:3] == b"ID3":
        size = content[6:10]
        at = 10 + (size[0] << 21 | size[1] << 14 | size[2] << 7 | size[3])
    starts = []
    while at + 4 <= len(content) and content[at:at + 3] != b"TAG":
        head = struct.unpack(">I", content[at:at + 4])[0]
        bit_rate, rate = head >> 12 & 15, head >> 10 & 3
        if head >> 17 != 0x7ffd or bit_rate in (0, 15) or rate != 0:
            raise Fault(f"{name}: no MPEG-1 layer III frame of {SAMPLE_RATE} Hz at byte {at}")
        starts.append(at)
        at += 144000 * BIT_RATES[bit_rate] // SAMPLE_RATE + (head >> 9 & 1)
    if not starts or at > len(content):
        raise Fault(f"{name}: cut off in its last frame" if starts else f"{name}: holds no sound")
    return starts + [at]


def music_parts(content, name, seconds):
    """The first part of the music, the second, and the seconds that both hold. Nothing behind so
    many seconds."""
    starts = mp3_frames(content, name)
    # A first frame without sound counts all frames; that would be wrong in each part.
    if content[starts[0] + XING_AT:starts[0] + XING_AT + 4] in (b"Xing", b"Info"):
        starts = starts[1:]

    def frame(second):
        return min(int(second * SAMPLE_RATE / FRAME_SAMPLES), len(starts) - 1)

    split, end = frame(FIRST_SECONDS), frame(seconds)
    if end < split + 2 * OVERLAP_FRAMES:
        raise Fault(f"{name}: shorter than {FIRST_SECONDS} s")
    return (content[starts[0]:starts[split]], content[starts[split - OVERLAP_FRAMES]:starts[end]],
            OVERLAP_FRAMES * FRAME_SAMPLES / SAMPLE_RATE)


# --- the packed file ----------------------------------------------------------------------------

def listed_files(manifest, data):
    """The names of data/ that ship, as the manifest lists them; all must be there."""
    lines = read(manifest).decode("utf-8").splitlines()
    names = sorted(line.split(" | ")[0] for line in lines if line and not line.startswith("#"))
    for name in names:
        if not (data / name).is_file():
            raise Fault(f"{data / name}: listed in {manifest} and not there")
    return names


def stored_hashes(stored):
    """The hash of every picture of the show."""
    try:
        lines = gzip.decompress(read(stored)).decode("ascii").splitlines()
        return [int(line.split()[-1], 16) for line in lines]
    except (OSError, EOFError, ValueError, IndexError) as fault:
        raise Fault(f"{stored}: {fault}") from fault


def packed_file(data, manifest, stored):
    """The bytes of ombrel.pack."""
    hashes = stored_hashes(stored)
    frames = len(hashes)
    names = listed_files(manifest, data)
    world = [(f"data/{name}", read(data / name)) for name in names if not name.startswith("sfx/")]
    world.append((HASHES, struct.pack(f"<{frames}Q", *hashes)))
    first, second, overlap = music_parts(read(data / SOUND), data / SOUND,
                                         frames / FRAMES_A_SECOND + TAIL_SECONDS)
    joined = b"".join(content for _, content in world)
    parts, contents = [], []
    for name, content, more in (
            ("world", joined, {"gzip": True, "files": [[name, len(c)] for name, c in world]}),
            ("music", first, {"gzip": False, "files": [["music", len(first)]]}),
            ("more", second, {"gzip": False, "files": [["more", len(second)]],
                              "overlap": overlap})):
        packed = gzip.compress(content, 9, mtime=0) if more["gzip"] else content
        parts.append({"name": name, "size": len(content), "packed": len(packed), **more})
        contents.append(packed)
    index = json.dumps({"frames": frames, "parts": parts}, separators=(",", ":")).encode("ascii")
    return b"OMBREL1\n" + struct.pack("<I", len(index)) + index + b"".join(contents)


# --- the folder ---------------------------------------------------------------------------------

def page_files(wasm, data=ROOT / "data", manifest=ROOT / "art/MANIFEST", stored=STORED):
    """{name: bytes} of the whole folder, from a program, data and their list, and stored frames."""
    files = {path.name: read(path) for path in sorted((ROOT / "web").iterdir())
             if path.name != "package.json"}
    files.update({name: read(ROOT / source) for name, source in COPIES})
    files["licences.txt"] = b"\n\n=====\n\n".join(read(ROOT / name) for name in LICENCES)
    files["ombrel.wasm"] = read(wasm)
    if files["ombrel.wasm"][:4] != b"\0asm":
        raise Fault(f"{wasm}: no program of WebAssembly")
    files["ombrel.pack"] = packed_file(data, manifest, stored)
    digest = hashlib.sha256()
    for name in sorted(files):
        digest.update(name.encode() + struct.pack("<Q", len(files[name])) + files[name])
    # What is fetched when it is needed stays out of the first list.
    late = ("ombrel.wasm", "ombrel.pack", "sw.js")
    listed = ["./"] + sorted(name for name in files if name not in late)
    for name in ("sw.js", "load.js"):
        text = files[name].decode("utf-8").replace("@build@", digest.hexdigest()[:16])
        text = text.replace("/*@files@*/", ", ".join(json.dumps(name) for name in listed))
        files[name] = text.encode("utf-8")
    return files


def write_folder(folder, files):
    """Writes what has changed, each file whole or not at all."""
    folder.mkdir(parents=True, exist_ok=True)
    for name, content in files.items():
        path = folder / name
        if path.exists() and path.read_bytes() == content:
            continue
        part = path.with_name(path.name + ".part")
        part.write_bytes(content)
        os.replace(part, path)


def report(files):
    """Prints the size of each file, as it is and as a server that compresses sends it."""
    fetched = 0
    print(f"{'file':<20}{'bytes':>12}{'compressed':>12}")
    for name in sorted(files, key=lambda name: -len(files[name])):
        packed = len(gzip.compress(files[name], 6)) if not re.search(r"\.(png|pack)$", name) else len(files[name])
        fetched += len(files[name])
        print(f"{name:<20}{len(files[name]):>12}{packed:>12}")
    print(f"{'all':<20}{fetched:>12}")
    return fetched


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--wasm", type=pathlib.Path, required=True, help="the program, ombrel.wasm")
    parser.add_argument("--out", type=pathlib.Path, required=True, help="the folder to make")
    parser.add_argument("--data", type=pathlib.Path, default=ROOT / "data", help="the data (data/)")
    parser.add_argument("--manifest", type=pathlib.Path, default=ROOT / "art/MANIFEST",
                        help="the list of what ships of it (art/MANIFEST)")
    parser.add_argument("--frames", type=pathlib.Path,
                        default=STORED,
                        help="the stored frames, a line each, with their hashes")
    options = parser.parse_args()
    try:
        files = page_files(options.wasm, options.data, options.manifest, options.frames)
        write_folder(options.out, files)
    except (Fault, OSError) as fault:
        print(f"error: {fault}", file=sys.stderr)
        return 1
    if report(files) > MOST_BYTES:
        print(f"error: the page is larger than {MOST_BYTES} bytes", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
