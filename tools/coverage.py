#!/usr/bin/python3
"""Runs the tests of a build with --coverage and prints the share of lines they reached, a folder a
line and then the lines that were missed. Exit code 1 when a folder is below its share. Needs gcov.
  cmake --workflow --preset coverage"""
import gzip
import json
import os
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PROGRAMS = ["unit_base", "unit_math", "unit_assets", "unit_scene", "unit_raster", "unit_platform",
            "unit_demo", "unit_app", "scenario", "faults"]
NEEDED = {"assets": 95.0, "scene": 95.0, "raster": 95.0, "demo": 95.0}
# The decision table and the family of fillers: every line.
WHOLE = ["raster/dispatch.cpp", "raster/fillers.cpp", "raster/fillers.h", "raster/rules.h",
         "raster/walker.h", "raster/blend_tables.cpp"]


def lines_of(build):
    """{file below src/: {line: times reached}} of all that was built from there."""
    lines = {}
    notes = [path for path in build.rglob("*.gcda") if "/src/" in str(path)]
    with tempfile.TemporaryDirectory() as place:
        for i, note in enumerate(sorted(notes)):
            folder = pathlib.Path(place) / str(i)
            folder.mkdir()
            subprocess.run(["gcov", "--json-format", str(note)], cwd=folder, check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            for result in folder.glob("*.gz"):
                for entry in json.loads(gzip.decompress(result.read_bytes()))["files"]:
                    path = pathlib.Path(entry["file"])
                    path = path if path.is_absolute() and path.exists() else ROOT / entry["file"].lstrip("/")
                    if not path.is_relative_to(ROOT / "src"):
                        continue
                    counts = lines.setdefault(str(path.relative_to(ROOT / "src")), {})
                    for line in entry["lines"]:
                        number = line["line_number"]
                        counts[number] = counts.get(number, 0) + line["count"]
    return lines


def ranges(numbers):
    """1, 2, 3, 7 as "1-3 7"."""
    out = []
    for n in numbers:
        if out and out[-1][1] == n - 1:
            out[-1][1] = n
        else:
            out.append([n, n])
    return " ".join(f"{a}-{b}" if a != b else str(a) for a, b in out)


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build" / "coverage").resolve()
    for path in build.rglob("*.gcda"):
        path.unlink()
    # The random comparisons reach every line long before their end.
    environment = {**os.environ, "OMBREL_RANDOM_SHARE": "0.01"}
    bad = 0
    for name in PROGRAMS:
        result = subprocess.run([build / name, "--gtest_filter=-Frames.*", "--gtest_brief=1"],
                                cwd=ROOT, env=environment, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, check=False)
        if result.returncode != 0:
            print(f"{name} failed:\n{result.stdout.decode(errors='replace')[-3000:]}")
            bad += 1
    lines = lines_of(build)
    folders = {}
    for name, counts in sorted(lines.items()):
        folder = name.split("/")[0]
        reached, all_lines = folders.get(folder, (0, 0))
        folders[folder] = (reached + sum(1 for n in counts.values() if n), all_lines + len(counts))
    for folder, (reached, all_lines) in sorted(folders.items()):
        share = 100.0 * reached / all_lines
        needed = NEEDED.get(folder, 0.0)
        bad += share < needed
        print(f"{folder:10} {reached:5} of {all_lines:5} lines  {share:5.1f} %"
              f"{'  BELOW ' + str(needed) if share < needed else ''}")
    for name in WHOLE:
        counts = lines.get(name, {})
        missed = sorted(n for n, count in counts.items() if not count)
        bad += bool(missed) or not counts
        print(f"{name:24} {len(counts) - len(missed):5} of {len(counts):5} lines"
              f"{'  MISSED' if missed else ''}")
    print("missed:")
    for name, counts in sorted(lines.items()):
        missed = sorted(n for n, count in counts.items() if not count)
        if missed and name.split("/")[0] in NEEDED:
            print(f"  {name}: {ranges(missed)}")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
