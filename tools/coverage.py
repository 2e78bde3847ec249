#!/usr/bin/python3
"""Runs the tests of a build with --coverage and prints the share of lines they reached, a folder a
line, then those of the decision table and of the fillers, then the lines that were missed. Exit
code 1 when a share is below its goal. Needs gcov.
  cmake --workflow --preset coverage

A line of a template counts as reached when any of its instances reached it. Besides, every instance
of the 45 fillers must have reached each of its own lines. What this processor cannot run is left
out, and named."""
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
NEEDED = {"assets": 95.0, "scene": 95.0, "raster": 95.0, "demo": 95.0}
# The decision table and the family of fillers: every line.
WHOLE = ["raster/dispatch.cpp", "raster/triangle.h", "raster/span.h", "raster/rules.h",
         "raster/walker.h", "raster/blend_tables.cpp"]
FILLERS = "raster/path_plain.cpp"
INSTANCES = ["raster/triangle.h", "raster/span.h", "raster/rules.h", "raster/walker.h"]
# Fillers over other lane sets, for the tests alone.
NOT_OURS = ["sixteen_lanes.cpp", "made_up_rule.cpp"]
# Sources of one instruction set, and what the processor must say it has.
INSTRUCTIONS = {"sse41": ["sse4_1"], "avx2": ["avx2"],
                "avx512": ["avx512f", "avx512bw", "avx512dq", "avx512vl"]}

# Nothing here is optimized, so the random comparisons are cut to what reaches all lines, and what
# reaches no line that the others do not is left out: whole productions (scenario) take minutes. Nor
# does the recorder write its counts where the size of files is limited.
ENVIRONMENT = {"OMBREL_RANDOM_SHARE": "0.05"}
PROGRAMS = {"unit_raster": "-Arithmetic.Reciprocals*:*/sixteen*", "faults": "-CaptureFaults.*",
            "unit_demo": "*", "unit_scene": "*", "unit_assets": "*", "unit_app": "*",
            "unit_platform": "*", "unit_math": "*", "unit_base": "*"}


def run_program(build, place, name):
    """One test program, its counts in a folder of its own: (name, exit code, output, seconds)."""
    start = time.monotonic()
    environment = {**os.environ, **ENVIRONMENT, "GCOV_PREFIX": str(place / name)}
    result = subprocess.run([build / name, f"--gtest_filter={PROGRAMS[name]}", "--gtest_brief=1"],
                            cwd=ROOT, env=environment, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return name, result.returncode, result.stdout.decode(errors="replace"), time.monotonic() - start


def not_runnable():
    """Instruction sets that this processor has not."""
    words = set()
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("flags"):
            words = set(line.split(":")[1].split())
            break
    return [name for name, needed in INSTRUCTIONS.items() if not words.issuperset(needed)]


def notes_of(build, place):
    """{what the compiler wrote down of a source: its counts, one file a program}, of the sources of
    all libraries that the programs are linked with; one that none of them entered has no counts, and
    all its lines are missed. And of the tests: an inline function that both have is linked once,
    from either."""
    notes = {}
    for name in PROGRAMS:
        for data in (place / name).rglob("*.gcda"):
            note = pathlib.Path("/") / data.relative_to(place / name).with_suffix(".gcno")
            data.with_suffix(".gcno").symlink_to(note) # gcov wants them side by side
            notes.setdefault(note, []).append(data)
    folders = {note.relative_to(build).parts[:2] for note in notes}
    for note in build.rglob("*.gcno"):
        if note.relative_to(build).parts[:2] in folders:
            notes.setdefault(note, [])
    return {note: data for note, data in notes.items() if note.stem not in NOT_OURS}


def counts_of(note, data):
    """[(file below src/, function, line, times reached)] of one source."""
    counts = []
    for file in data or [note]:
        result = subprocess.run(["gcov", "--json-format", "--stdout", file], cwd=file.parent,
                                check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        for text in result.stdout.splitlines():
            for entry in json.loads(text)["files"]:
                # What stands in front of src/ differs between compilations.
                _, ours, name = entry["file"].rpartition("src/")
                if ours and (ROOT / "src" / name).is_file():
                    counts += [(name, line.get("function_name"), line["line_number"], line["count"])
                               for line in entry["lines"]]
    if any(count < 0 or count > 1 << 50 for *_, count in counts):
        raise ValueError(f"{note}: these counts cannot be")
    return counts


def ranges(numbers):
    """1, 2, 3, 7 as "1-3 7"."""
    out = []
    for n in numbers:
        if out and out[-1][1] == n - 1:
            out[-1][1] = n
        else:
            out.append([n, n])
    return " ".join(f"{a}-{b}" if a != b else str(a) for a, b in out)


def share(name, reached, all_lines, needed, unit="lines"):
    """Prints one row of the table; whether it is below its goal."""
    percent = 100.0 * reached / all_lines if all_lines else 0.0
    below = percent < needed
    print(f"{name:26} {reached:6} of {all_lines:6} {unit:5} {percent:5.1f} %"
          f"{f'  BELOW {needed} %' if below else ''}")
    return below


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ROOT / "build" / "coverage").resolve()
    bad = 0
    with tempfile.TemporaryDirectory(prefix="coverage-") as folder, \
            concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count() or 1) as pool:
        place = pathlib.Path(folder)
        for done in [pool.submit(run_program, build, place, name) for name in PROGRAMS]:
            name, code, output, seconds = done.result()
            print(f"{name:14} {'ok' if code == 0 else 'FAILED'} {seconds:6.1f} s", flush=True)
            if code != 0:
                print(output[-3000:])
                bad += 1

        notes = notes_of(build, place)
        for name in not_runnable():
            for note in [note for note in notes if note.stem.endswith(f"_{name}.cpp")]:
                print(f"not counted: {note.stem} (this processor cannot run it)")
                del notes[note]
        lines = {}      # {file: {line: times reached}}
        instances = {}  # {(function, file, line): times reached}
        fillers = set() # those of the 45 fillers
        for note, counts in zip(notes, pool.map(counts_of, notes.keys(), notes.values())):
            for name, function, line, count in counts:
                of_file = lines.setdefault(name, {})
                of_file[line] = of_file.get(line, 0) + count
                key = (function, name, line)
                instances[key] = instances.get(key, 0) + count
                if str(note).endswith(f"src/{FILLERS}.gcno") and name in INSTANCES:
                    fillers.add(key)

    folders = {}
    for name, counts in lines.items():
        reached, all_lines = folders.get(name.split("/")[0], (0, 0))
        folders[name.split("/")[0]] = (reached + sum(1 for n in counts.values() if n),
                                       all_lines + len(counts))
    for folder, (reached, all_lines) in sorted(folders.items()):
        bad += share(folder, reached, all_lines, NEEDED.get(folder, 0.0))
    for name in WHOLE:
        counts = lines.get(name, {})
        bad += share(name, sum(1 for n in counts.values() if n), len(counts), 100.0)
    bad += share("fillers, each instance", sum(1 for key in fillers if instances[key]),
                 len(fillers), 100.0)
    print("missed:")
    for name, counts in sorted(lines.items()):
        missed = sorted(n for n, count in counts.items() if not count)
        if missed and name.split("/")[0] in NEEDED:
            print(f"  {name}: {ranges(missed)}")
    for function, name, line in sorted(key for key in fillers if not instances[key]):
        print(f"  {name}:{line} in {function}")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
