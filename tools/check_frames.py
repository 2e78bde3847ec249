#!/usr/bin/python3
"""Holds the frames that a larkfen-capture draws to the stored ones of the whole production, or to
those that another one draws with the same arguments; names the first that differs.
  tools/check_frames.py [--first N] [--like OTHER] PROGRAM [ARGUMENTS]
What stands before the arguments of a program that runs under an emulator is part of PROGRAM."""
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


def draw(command, count):
    """The first frames that a program draws, and its exit code."""
    drawn = subprocess.run([*command, "-w", "-ns", "--data", ROOT / "data", "--frames",
                            f"0:{count}", "--hashes", "-"],
                           stdout=subprocess.PIPE, text=True, check=False)
    return picture_hashes(drawn.stdout.splitlines()), drawn.returncode


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--first", type=int, metavar="N", help="only so many frames")
    parser.add_argument("--like", metavar="OTHER", help="the larkfen-capture to compare with")
    parser.add_argument("program", nargs=argparse.REMAINDER)
    options = parser.parse_args()
    if options.like:
        at = 1 + next(i for i, word in enumerate(options.program) if word.endswith("larkfen-capture"))
        wanted, code = draw([options.like, *options.program[at:]], options.first or 100000)
        assert code == 0 and wanted, f"{options.like}: exit code {code}, {len(wanted)} frames"
    else:
        with gzip.open(STORED, "rt") as stored:
            wanted = picture_hashes(stored)[:options.first]
    seen, code = draw(options.program, options.first or 10 * len(wanted))
    wrong = difference(wanted, seen)
    if code != 0:
        wrong = f"exit code {code}; {wrong or 'all frames are right'}"
    print(f"FAILED {wrong}" if wrong else f"{len(wanted)} frames as "
          f"{options.like + ' draws them' if options.like else 'stored'}")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
