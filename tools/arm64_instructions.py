#!/usr/bin/python3
"""Counts the instructions that the ARM build of larkfen-capture spends on fillers, blur and front end
in the first frames of a scene, plain and NEON: the emulator writes down every block of code that it
runs, and how long the block is. Counts, not times; the same ones every time.
  tools/arm64_instructions.py [--frames N] [--scene 0|1]"""
import argparse
import collections
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PROGRAM = ROOT / "build/arm64/larkfen-capture"
EMULATOR = ["qemu-aarch64-static", "-L", str(ROOT / "build/sysroot-arm64")]
PATHS = ("scalar", "neon")
LOADED_AT = 0x5500000000  # where the emulator puts a program that may stand anywhere

# Part              | demangled names of its functions
PARTS = [
    ("fillers",       r"\bFill(Carefully)?<"),
    ("blur",          r"\bBlurRow<"),
    ("placing faces", r"\bPlaceVertices<|MeshTranslate|CullBackFaces|TransformPolygonsToCamera|"
                      r"ProjectPolygons|MapPolygonsToScreen"),
    ("light",         r"\bLightPoints<|\bLightFaces|\bLightOf<"),
]


def blocks_run(lines):
    """{mangled name: instructions} of a log of the emulator."""
    length, current = {}, None  # of the blocks, by their address; the block that is told of
    counts = collections.Counter()
    for line in lines:
        if line.startswith("Trace"):
            place, _, name = line.rpartition("]")
            counts[name.strip()] += length[int(place.split("/")[1], 16)]
        elif line.startswith("IN:"):
            current = None
        elif line.startswith("0x"):
            address = int(line[:line.index(":")], 16)
            current = address if current is None else current
            length[current] = (address - current) // 4 + 1
    return counts


def functions():
    """[(mangled name, first address, size, part)] of the functions that are counted."""
    listed = [subprocess.run(["aarch64-linux-gnu-nm", "-S", "-p", "--defined-only", *more,
                              str(PROGRAM)], check=True, stdout=subprocess.PIPE,
                             text=True).stdout.splitlines() for more in ([], ["-C"])]
    found = []
    for mangled, plain in zip(*listed):
        match = re.match(r"([0-9a-f]{16}) ([0-9a-f]{16}) [tTwW] (.*)", plain)
        part = match and next((name for name, names in PARTS if re.search(names, match[3])), None)
        if part:
            found.append((mangled.split()[-1], int(match[1], 16), int(match[2], 16), part))
    return found


def ranges(counted):
    """The places of functions as the emulator wants them told: a few, since it looks through all of
    them for every block."""
    joined = []
    for start, size in sorted((start, size) for _, start, size, _ in counted):
        if joined and start - joined[-1][1] < 4096:
            joined[-1][1] = max(joined[-1][1], start + size)
        else:
            joined.append([start, start + size])
    return ",".join(f"{LOADED_AT + start:#x}+{end - start:#x}" for start, end in joined)


def instructions(path, counted, options):
    """{part: instructions} of one run."""
    read, write = os.pipe()
    command = [*EMULATOR, "-d", "in_asm,exec,nochain", "-dfilter", ranges(counted), "-D",
               f"/dev/fd/{write}", str(PROGRAM), "-w", "-ns", "--data", str(ROOT / "data"),
               "--frames", f"0:{options.frames}", "--switch", f"sceneIndex={options.scene}",
               "--hashes", "/dev/null"]
    with subprocess.Popen(command, env={**os.environ, "RASTER_USE": path}, pass_fds=[write],
                          stdout=subprocess.DEVNULL) as process:
        os.close(write)
        with open(read, encoding="ascii", errors="replace") as log:
            counts = blocks_run(log)
    if process.returncode != 0:
        sys.exit(f"error: exit code {process.returncode}: {' '.join(command)}")
    parts = collections.Counter()
    for name, part in {name: part for name, *_, part in counted}.items():
        parts[part] += counts[name]
    return parts


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--frames", type=int, default=1, metavar="N",
                        help="so many, each takes a minute or more (default: 1)")
    parser.add_argument("--scene", type=int, choices=(0, 1), default=0, help="which one (default: 0)")
    options = parser.parse_args()
    counted = functions()
    found = {path: instructions(path, counted, options) for path in PATHS}
    print(f"{'million instructions':<24}{'plain':>10}{'NEON':>10}")
    for part, _ in PARTS:
        plain, neon = (found[path][part] / 1e6 for path in PATHS)
        print(f"{part:<24}{plain:>10.2f}{neon:>10.2f}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
