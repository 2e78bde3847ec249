#!/usr/bin/python3
"""Holds the frames that a larkfen-capture draws to the stored ones of the whole production; names
the first that differs.   tools/check_frames.py [--first N] PROGRAM [ARGUMENTS]"""
import argparse
import gzip
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
STORED = ROOT / "tests/scenario/frames.txt.gz"


def picture_hashes(lines):
    """(frame number, hash of the picture) of lines `frame N ... HASH`."""
    return [(words[1], words[-1]) for words in (line.split() for line in lines)]


def difference(wanted, seen):
    """What is wrong with the frames seen; None when they are those wanted."""
    for one, other in zip(wanted, seen):
        if one != other:
            return f"first difference: frame {one[0]}"
    return None if len(seen) == len(wanted) else f"{len(seen)} frames, not {len(wanted)}"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--first", type=int, metavar="N", help="only so many frames")
    parser.add_argument("program", nargs=argparse.REMAINDER)
    options = parser.parse_args()
    with gzip.open(STORED, "rt") as stored:
        wanted = picture_hashes(stored)[:options.first]
    drawn = subprocess.run([*options.program, "-w", "-ns", "--data", ROOT / "data", "--frames",
                            f"0:{options.first or 10 * len(wanted)}", "--hashes", "-"],
                           stdout=subprocess.PIPE, text=True, check=False)
    wrong = difference(wanted, picture_hashes(drawn.stdout.splitlines()))
    if drawn.returncode != 0:
        wrong = f"exit code {drawn.returncode}; {wrong or 'frames as stored'}"
    print(f"FAILED {wrong}" if wrong else f"{len(wanted)} frames as stored")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
