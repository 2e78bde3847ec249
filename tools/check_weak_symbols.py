#!/usr/bin/python3
"""Checks the objects that are built for newer processors: none may define a weak symbol. Of a weak
function that two objects define the linker keeps one, and if that one was built for a newer
processor, the program stops on an older one. Usage: check_weak_symbols.py BUILD_FOLDER. The last
line counts."""
import pathlib
import subprocess
import sys

# One file an instruction set; of the fillers there must be one each.
KINDS = ["path_sse41", "path_avx2", "path_avx512"]


def main():
    folder = pathlib.Path(sys.argv[1])
    objects = sorted(p for p in folder.rglob("*.cpp.o*")
                     if p.name.split(".")[0].endswith(("_sse41", "_avx2", "_avx512")))
    names = [p.name.split(".")[0] for p in objects]
    passed = failed = 0
    for kind in KINDS:
        if kind not in names:
            print(f"no object of {kind} below {folder}")
            failed += 1
    for path in objects:
        listing = subprocess.run(["nm", "-C", "--defined-only", path], check=True,
                                 capture_output=True, text=True).stdout.splitlines()
        weak = [line for line in listing if line[17:18] in "WwVvu"]
        if weak or not listing:
            print(f"{path.name}: defines weak symbols" if weak else f"{path.name}: is empty")
            print("\n".join(weak))
            failed += 1
        else:
            passed += 1
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
