#!/usr/bin/python3
"""Writes the list of frame hashes that every archive carries, from the stored frames of the tests.
Usage: frame_hashes.py STORED.txt.gz VERSION OUT"""
import gzip
import pathlib
import re
import sys

LINE = re.compile(r"frame (\d+) .* picture ([0-9a-f]{16})")


def hash_list(stored, version):
    """The text of the list; the lines of the stored frames hold more than it needs."""
    with gzip.open(stored, "rt") as file:
        frames = [LINE.fullmatch(line.rstrip("\n")).groups() for line in file]
    if [int(number) for number, _ in frames] != list(range(len(frames))):
        raise ValueError(f"{stored}: the frames are not those from 0 on, in order")
    head = (f"# Ombrel {version}: the hash of every frame, 640 x 480, 64-bit FNV-1a of its 16-bit pixels.\n"
            "# larkfen-capture --verify plays the production and compares.\n")
    return head + "".join(f"frame {number} hash {value}\n" for number, value in frames)


def main():
    stored, version, out = sys.argv[1:]
    pathlib.Path(out).write_text(hash_list(stored, version), encoding="ascii")


if __name__ == "__main__":
    main()
