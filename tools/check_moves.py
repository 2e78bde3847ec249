#!/usr/bin/python3
"""Checks a 64-bit Windows program: no move of a 32- or 64-byte vector from or to memory may be one
that wants an aligned address. The stack is aligned to 16 bytes there, and compilers believe more; a
program that keeps such a vector on it stops on some starts and not on others. So the files with wide
vectors are assembled with -muse-unaligned-vector-move (cmake/raster_paths.cmake).

Loads of constants (relative to the instruction) are let pass: the linker aligns their section. First
the check is tried on such a move that is planted, assembled without the option and with it.
Usage: check_moves.py PROGRAM. The last line counts."""
import pathlib
import re
import subprocess
import sys
import tempfile

TOOLS = "x86_64-w64-mingw32-"
OPTION = "-muse-unaligned-vector-move"
# With an operand in memory, which no constant of the program is.
ALIGNED = re.compile(r"\sv(movaps|movapd|movdqa(32|64)?|movntps|movntpd|movntdqa?)\s(?=.*%[yz]mm)(?=.*\()"
                     r"(?!-?0x[0-9a-f]+\(%rip\),)")
PLANTED = "planted:\n\tvmovaps %ymm0, (%rsp)\n\tvmovdqa64 %zmm1, 64(%rsp)\n\tret\n"


def aligned_moves(path):
    """The lines of the disassembly with such a move, and how many lines use wide vectors."""
    text = subprocess.run([TOOLS + "objdump", "-d", "--no-show-raw-insn", path], check=True,
                          capture_output=True, text=True).stdout
    wide = [line for line in text.splitlines() if "%ymm" in line or "%zmm" in line]
    return [line for line in wide if ALIGNED.search(line)], len(wide)


def planted(options):
    """How many of the two planted moves are found when assembled with the options."""
    with tempfile.TemporaryDirectory(prefix="moves-") as folder:
        source = pathlib.Path(folder) / "planted.s"
        source.write_text(PLANTED)
        subprocess.run([TOOLS + "as", *options, "-o", source.with_suffix(".o"), source], check=True)
        return len(aligned_moves(source.with_suffix(".o"))[0])


def main():
    results = [("planted moves are found", planted([]) == 2),
               (f"{OPTION} makes them unaligned", planted([OPTION]) == 0)]
    found, wide = aligned_moves(sys.argv[1])
    print("\n".join(found[:40]))
    results.append((f"{wide} lines use wide vectors", wide > 1000))
    results.append((f"{len(found)} moves want an aligned address", not found))
    for name, good in results:
        print(f"{'ok    ' if good else 'FAILED'} {name}")
    passed = sum(good for _, good in results)
    print(f"{passed} passed, {len(results) - passed} failed")
    return 1 if passed < len(results) else 0


if __name__ == "__main__":
    sys.exit(main())
