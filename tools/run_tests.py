#!/usr/bin/python3
"""Builds everything and runs every test, one line a step, a log a step in build/test-logs/.
The last line counts the tests: "N passed, N failed". Exit code 0 only when none failed."""
import argparse
import concurrent.futures
import gzip
import os
import pathlib
import re
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
LOGS = ROOT / "build" / "test-logs"
UNITS = ["base", "math", "assets", "scene", "raster", "platform", "demo", "app"]
CAPTURE = "larkfen-capture"
STORED_FRAMES = ROOT / "tests/scenario/frames.txt.gz"
VECTOR_PATHS = ["scalar", "sse"]

passed = 0
failed = 0
lock = threading.Lock()


def count_tests(output, code):
    """(passed, failed) as the output of one step tells them; a step that counts nothing is one."""
    good = sum(int(n) for n in re.findall(r"\[  PASSED  \] (\d+) test", output))
    bad = sum(int(n) for n in re.findall(r"\[  FAILED  \] (\d+) test", output))
    lines = re.findall(r"^(?:\S+: )?(\d+) passed, (\d+) failed", output, re.M)
    good += sum(int(a) for a, _ in lines)
    bad += sum(int(b) for _, b in lines)
    if good + bad == 0:
        return (1, 0) if code == 0 else (0, 1)
    if code != 0 and bad == 0:
        bad = 1  # it broke off: a crash or a sanitizer's report
    return good, bad


def step(name, command, env=None, counts=True, limit=900):
    """Runs one command; tells how it went; returns whether it went well."""
    global passed, failed
    start = time.monotonic()
    log = LOGS / (re.sub(r"[^a-z0-9]+", "-", name.lower()) + ".log")
    try:
        result = subprocess.run([str(part) for part in command], cwd=ROOT, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, env={**os.environ, **(env or {})},
                                stdin=subprocess.DEVNULL, timeout=limit, check=False)
        output, code = result.stdout.decode(errors="replace"), result.returncode
    except subprocess.TimeoutExpired as error:
        output = (error.stdout or b"").decode(errors="replace") + f"\ntook more than {limit} s\n"
        code = 124
    except OSError as error:
        output, code = f"{command[0]}: {error.strerror}\n", 127
    log.write_text(output)
    good, bad = count_tests(output, code)
    seconds = time.monotonic() - start
    said = f"{good} tests" if counts else "done"
    with lock:
        if counts or bad:
            passed += good
            failed += bad
        print(f"  {name:<34} {'ok    ' if bad == 0 else 'FAILED'} {said:>12} {seconds:7.1f} s",
              flush=True)
        if bad:
            shown = output.splitlines()
            marks = [i for i, line in enumerate(shown)
                     if re.search(r"FAILED|error|ERROR|fault", line)]
            first = max(0, min(marks[0] - 3 if marks else len(shown), len(shown) - 40))
            print("\n".join("      | " + line for line in shown[first:first + 40]))
            print(f"      whole log: {log.relative_to(ROOT)}", flush=True)
    return bad == 0


def side_by_side(steps):
    """Runs steps, as (name, command, keywords), as many at a time as there are processors."""
    with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count() or 1) as pool:
        for done in [pool.submit(step, name, command, **more) for name, command, more in steps]:
            done.result()


def build(preset, targets, *options):
    """Configures and builds targets of one preset."""
    return step(f"configure {preset}", ["cmake", "--preset", preset, *options], counts=False) and \
        step(f"build {preset}", ["cmake", "--build", f"build/{preset}", "--target", *targets],
             counts=False, limit=1800)


def test_programs(folder):
    """The unit test programs that this build folder has sources for."""
    names = [f"unit_{unit}" for unit in UNITS if list((ROOT / "tests/unit" / unit).glob("*.cpp"))]
    return [(name, folder / name) for name in names]


def whole_runs(folder):
    """The test programs that draw pictures or play the production, where they have sources."""
    return [(name, folder / name) for name in ("scenario", "golden", "faults")
            if list((ROOT / "tests" / name).glob("*.cpp"))]


def capture_hashes(name, program, out, frames, extra=(), env=None):
    """The step that writes the hash lines of the first frames with one build of the tool."""
    return (f"hashes {name}", [*program, "-w", "-ns", "--data", ROOT / "data", "--frames",
                                   f"0:{frames}", "--hashes", out, *extra],
            {"counts": False, "env": env})


def picture_hashes(lines, field):
    """(frame number, picture hash) of lines that open with "frame N" and hold the hash in a field."""
    return [(words[1], words[field]) for words in (line.split() for line in lines) if words]


def compare_hashes(name, path, whole):
    """Counts as one test: the hash lines that a build wrote are the stored ones, of the whole
    production or of its first frames; names the first frame that differs."""
    global passed, failed
    with gzip.open(STORED_FRAMES, "rt") as stored:
        wanted = picture_hashes(stored, 9)
    seen = picture_hashes(path.read_text().splitlines(), 7) if path.exists() else []
    bad = next((f"first difference: frame {a[0]}" for a, b in zip(wanted, seen) if a != b), None)
    if bad is None and (not seen or len(seen) > len(wanted) or (whole and len(seen) != len(wanted))):
        bad = f"{len(seen)} frames, stored are {len(wanted)}"
    if bad is None:
        passed += 1
        print(f"  frames of {name:<24} ok     {len(seen)} as stored")
    else:
        failed += 1
        print(f"  frames of {name:<24} FAILED {bad}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--quick", action="store_true",
                        help="only the source checks and the unit tests of the release build")
    quick = parser.parse_args().quick
    LOGS.mkdir(parents=True, exist_ok=True)
    start = time.monotonic()
    release = ROOT / "build" / "release"
    sanitize = ROOT / "build" / "sanitize"

    print("Sources")
    step("habits", [ROOT / "tools/check_sources.py"])
    step("the world", [ROOT / "art/test.sh"])
    sources = sorted(str(p) for d in ("src", "tools", "tests", "bench", "fuzz")
                     for p in (ROOT / d).rglob("*") if p.suffix in (".h", ".cpp"))
    step("format", ["clang-format-14", "--dry-run", "--Werror", *sources])

    print("Release build")
    if build("release", ["all"], "-DOMBREL_TESTS=ON", "-DOMBREL_BENCH=ON"):
        step("objects of the twins", [ROOT / "tools/check_twins.py", release])
        step("clang-tidy and cppcheck", [ROOT / "tools/check_static.py", release])
        # The whole production takes longest: it has one processor, everything else the other.
        whole = [] if quick else [("scenario: frames", [release / "scenario",
                                                        "--gtest_filter=Frames.*"], {})]
        others = [] if quick else whole_runs(release)
        programs = whole + [
            (name, [program] + (["--gtest_filter=-Frames.*"] if name == "scenario" else []), {})
            for name, program in others + test_programs(release)]
        if not quick:
            programs.append(("six productions in one process",
                             [release / "soak", "--fast", "--size", "320x240", "6"], {}))
        side_by_side(programs)

        step("inspector", [ROOT / "tests/inspect/run.sh", release])

    if not quick:
        print("Sanitizer build (ASan, UBSan)")
        if build("sanitize", ["all"]):
            options = {"ASAN_OPTIONS": "detect_leaks=1:strict_string_checks=1",
                       "UBSAN_OPTIONS": "print_stacktrace=1", "OMBREL_RANDOM_SHARE": "0.05"}
            # The stored frames and the whole decision table are held to the release build; here
            # 200 frames and the smaller test of the table are enough.
            left_out = "--gtest_filter=-Frames.*:Faults.*:DecisionTable.AllCombinations*"
            # The files of the production in every bad way take longest: they go first.
            programs = [("scenario: faults sanitized",
                         [sanitize / "scenario", "--gtest_filter=Faults.*"], {"env": options}),
                        ("200 frames sanitized",
                         [sanitize / CAPTURE, "-w", "-ns", "--frames", "0:200", "--hashes",
                          LOGS / "frames-sanitize.txt"], {"env": options})]
            programs += [(f"{name} sanitized", [program, left_out], {"env": options})
                         for name, program in whole_runs(sanitize) + test_programs(sanitize)]
            side_by_side(programs)

        print("Fuzz targets: their seeds, and 5 seconds each")
        if build("fuzz", ["fuzz_targets"]):
            step("fuzzing", [ROOT / "tools/fuzz.py"])

        print("The same pictures from every compiler")
        captures = []
        for preset, count in (("release", 100000), ("clang", 100000), ("o0", 400)):
            (LOGS / f"frames-{preset}.txt").unlink(missing_ok=True)
            if preset == "release" or build(preset, [CAPTURE]):
                captures.append(capture_hashes(preset, [ROOT / "build" / preset / CAPTURE],
                                               LOGS / f"frames-{preset}.txt", count))
        # The release build takes the best path of this processor; the plain one and that of older
        # processors must show the same.
        for path in VECTOR_PATHS:
            (LOGS / f"frames-{path}.txt").unlink(missing_ok=True)
            captures.append(capture_hashes(f"{path} path", [release / CAPTURE],
                                           LOGS / f"frames-{path}.txt", 300,
                                           env={"RASTER_USE": path}))
        side_by_side(captures)
        for build_name, whole in [("release", True), ("clang", True), ("o0", False)] + \
                [(f"{path} path", False) for path in VECTOR_PATHS]:
            compare_hashes(build_name, LOGS / f"frames-{build_name.split()[0]}.txt", whole)

        print("Windows builds, under Wine")
        built = [build(preset, ["all"]) for preset in ("win64", "win32")]
        if all(built) and (ROOT / "tests/windows/run.sh").exists():
            # The whole production would take minutes more.
            step("Windows programs", [ROOT / "tests/windows/run.sh", ROOT / "build/win64",
                                      "--desks", "2", "--but", "whole production"], limit=1800)

        print("The archives of the release, and the Linux program under Xvfb")
        played = []
        if step("make the archives", ["cmake", "--build", "--preset", "package"], counts=False):
            played.append(("archives, unpacked",
                           [ROOT / "tests/packages/run.sh", ROOT / "build"], {}))
        if (ROOT / "tests/linux/run.sh").exists():
            played.append(("Linux window", [ROOT / "tests/linux/run.sh", release], {}))
        side_by_side(played)

    print(f"\n{time.monotonic() - start:.0f} s")
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
