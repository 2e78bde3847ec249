#!/usr/bin/python3
"""Builds what the tests need and runs them: one line a step, a log a step in build/test-logs/.
  ./test --quick   checks of the sources and the unit tests of the release build
  ./test           what ships: builds it, plays it, holds every frame to the stored one
  ./test --all     everything: other compilers, sanitizers, every path, every case, the archives
The last line counts the tests: "N passed, N failed"; after it ", N skipped" where some were.
Exit code 0 only when none failed."""
import argparse
import dataclasses
import os
import pathlib
import queue
import re
import signal
import subprocess
import sys
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
LOGS = ROOT / "build/test-logs"
PROCESSORS = os.cpu_count() or 1

# --- the words of the table ---------------------------------------------------------------------

# The sizes of a run that a step belongs to.
EVERY, DEFAULT, ALL = ("quick", "default", "all"), ("default", "all"), ("all",)
SHORT = ("default",)  # the short form of a step that is whole with --all

# How many processors a step keeps busy. Steps that wait for real time run beside all others.
ONE, WHOLE, WAITS = "one", "whole", "waits"

# What a step prints of its tests: their counts, or nothing (then it is one test). A build is none.
COUNTS, IS_ONE, IS_BUILD = "counts", "is one", "is a build"


@dataclasses.dataclass(frozen=True, eq=False)
class Step:
    """One row. The command stands as in a shell at the root of the sources. It waits for the steps
    that it needs, and fails when one of them has; it is ended after so many seconds."""
    name: str
    sizes: tuple
    command: str
    needs: tuple = ()
    tests: str = COUNTS
    limit: int = 600
    load: str = ONE
    env: dict = dataclasses.field(default_factory=dict)


def build(preset, sizes, targets="all", options="", first="", folder=""):
    """The step that configures a preset and builds targets of it, after a first command."""
    first = f"{first} && " if first else ""
    return Step(f"build {preset}", sizes, f"{first}cmake --preset {preset} {options} && "
                f"nice -n 5 cmake --build build/{folder or preset} --target {targets}", tests=IS_BUILD,
                limit=2400, load=WHOLE)


def frames(name, program, sizes, needs, first=None, like=None, **env):
    """The step that holds the frames which a build draws to the stored ones, or to those that
    another program draws."""
    some = (f"--first {first} " if first else "") + (f"--like {like} " if like else "")
    return Step(f"frames: {name}", sizes, f"tools/check_frames.py {some}{program}", needs,
                tests=IS_ONE, env=env)


def programs(names, sizes, build_name, suffix="", options="", emulator="", **env):
    """A step for each test program of a build."""
    return [Step(f"{name}{suffix}", sizes,
                 f"{emulator} build/{build_name}/{name} {options}".strip(),
                 (f"build {build_name}",), env=env) for name in names]


UNITS = [f"unit_{folder.name}" for folder in sorted((ROOT / "tests/unit").iterdir())
         if folder.is_dir()]
CAPTURE = "larkfen-capture"
WEB, IN_NODE = ("build web",), "node --no-warnings tests/web/core"
RELEASE, WIN64, WIN32 = ("build release",), ("build win64",), ("build win32",)
PAGE = ("build web", "what drives the browsers")
FOR_SANITIZERS = {"ASAN_OPTIONS": "detect_leaks=1:strict_string_checks=1",
                  "UBSAN_OPTIONS": "print_stacktrace=1", "OMBREL_RANDOM_SHARE": "0.05"}
# The stored frames and the whole decision table are held to the release build; with sanitizers 200
# frames and the smaller test of the table are enough.
NOT_SANITIZED = "--gtest_filter=-Frames.*:Seeks.*:Faults.*:Dispatch.AllCombinations*"

# On an emulated processor every test runs but the whole decision table, and a few random cases.
ARM64 = ("build arm64",)
NOT_EMULATED = "'--gtest_filter=-Dispatch.AllCombinations*'"
ON_ARM64 = "qemu-aarch64-static -L build/sysroot-arm64"
ARM64_UNITS = [f"unit_{name}" for name in ("base", "math", "assets", "scene", "raster", "demo")]

# --- the table ----------------------------------------------------------------------------------
# Steps start in this order as soon as what they need is there and a processor is free: what others
# wait for stands first, then what takes longest.

STEPS = [
    build("release", EVERY, options="-DOMBREL_TESTS=ON -DOMBREL_BENCH=ON"),
    build("win64", DEFAULT),
    build("web", DEFAULT, options="-DOMBREL_TESTS=ON", folder="web-objects"),
    build("sanitize", ALL),
    build("clang", ALL, CAPTURE),
    build("o0", ALL, CAPTURE),
    build("win32", ALL),
    build("arm64", ALL, f"larkfen larkfen-hashes {CAPTURE} {' '.join(ARM64_UNITS)}", "-DOMBREL_TESTS=ON",
          "tools/arm64_sysroot.sh"),

    Step("build the benchmarks", ALL, "cmake --build build/release --target larkfen-bench",
         RELEASE, tests=IS_BUILD, limit=1200, load=WHOLE),

    # What is seen: in real time, beside everything else.
    Step("Windows programs, quick", SHORT, "tests/windows/run.sh build/win64 --quick", WIN64,
         load=WAITS),
    # (The whole production on the real back end would take minutes more.)
    Step("Windows programs", ALL,
         "tests/windows/run.sh build/win64 --desks 2 --but 'whole production'",
         RELEASE + WIN64 + WIN32, limit=1800, load=WAITS),
    Step("player's window, quick", SHORT, "tests/player/run.sh build/release --quick", RELEASE,
         load=WAITS),
    Step("player's window", ALL, "tests/player/run.sh build/release", RELEASE, limit=1200,
         load=WAITS),
    Step("Linux window", DEFAULT, "tests/linux/run.sh build/release", RELEASE, load=WAITS),

    # The page, in real browsers.
    Step("what drives the browsers", DEFAULT, "tests/web/install.sh", tests=IS_BUILD),
    Step("page: without a browser", EVERY, "node tests/web/modules.mjs"),
    Step("page in browsers, quick", SHORT,
         "node tests/web/run.mjs build/web --quick --keep build/web-tests", PAGE),
    Step("page in browsers", ALL, "node tests/web/run.mjs build/web --keep build/web-tests", PAGE,
         limit=1800),
    Step("page in browsers: every frame", ALL, "node tests/web/run.mjs build/web --whole", PAGE,
         limit=2400),

    # The whole production, and what takes long beside it.
    Step("scenario: every frame", DEFAULT, "build/release/scenario --gtest_filter='Frames.*'",
         RELEASE),
    Step("scenario: 300 seeks, and cold ones", ALL, "build/release/scenario --gtest_filter='Seeks.*'", RELEASE,
         limit=1200),
    Step("scenario", DEFAULT, "build/release/scenario --gtest_filter='-Frames.*:Seeks.*'", RELEASE),
    *programs(["faults", "golden"], DEFAULT, "release"),
    Step("clang-tidy and cppcheck", ALL, "tools/check_static.py build/release", RELEASE,
         tests=IS_ONE, limit=1200, load=WHOLE),
    *programs(["unit_raster"], DEFAULT, "release"),
    *programs(["unit_raster"], ("quick",), "release", ", fewer random triangles",
              OMBREL_RANDOM_SHARE="0.1"),
    *programs([name for name in UNITS if name != "unit_raster"], EVERY, "release"),
    Step("six productions in one process", DEFAULT,
         "build/release/soak --fast --size 320x240 6", RELEASE, tests=IS_ONE),
    Step("pictures of the world", DEFAULT,
         "/usr/bin/python3 art/check_world.py data --frames build/release/larkfen-capture", RELEASE, tests=IS_ONE),
    Step("inspector", DEFAULT, "tests/inspect/run.sh build/release", RELEASE),

    # The sources and the programs as files.
    Step("habits", EVERY, "tools/check_sources.py", tests=IS_ONE),
    Step("format", EVERY, "find src tools tests bench fuzz -name '*.h' -o -name '*.cpp' | "
         "xargs clang-format-14 --dry-run --Werror", tests=IS_ONE),
    Step("the driver of the tests", EVERY, "tests/driver/run.py"),
    Step("the world", DEFAULT, "art/test.sh"),
    Step("objects for newer processors", DEFAULT, "tools/check_weak_symbols.py build/release",
         RELEASE, tests=IS_ONE),
    Step("moves of wide vectors", DEFAULT, "tools/check_moves.py build/win64/larkfen.exe", WIN64),

    # The same pictures from every path and compiler.
    frames("plain path", f"build/release/{CAPTURE}", ALL, RELEASE, RASTER_USE="scalar"),
    frames("SSE4.1 path", f"build/release/{CAPTURE}", ALL, RELEASE, RASTER_USE="sse"),
    frames("AVX-512 path", f"build/release/{CAPTURE}", ALL, RELEASE, RASTER_USE="avx512"),
    frames("clang", f"build/clang/{CAPTURE}", ALL, ("build clang",)),
    frames("g++ -O0", f"build/o0/{CAPTURE}", ALL, ("build o0",), first=400),

    # WebAssembly, in node.
    Step("WebAssembly: first frames", SHORT,
         f"{IN_NODE}/frames.mjs --hold --frames 0:200 && {IN_NODE}/frames.mjs --hold --path scalar "
         "--frames 0:40", WEB, tests=IS_ONE),
    Step("WebAssembly: every frame", ALL, f"{IN_NODE}/frames.mjs --hold --path wasm", WEB,
         tests=IS_ONE, limit=1800),
    Step("WebAssembly: every frame, plain path", ALL, f"{IN_NODE}/frames.mjs --hold --path scalar",
         WEB, tests=IS_ONE, limit=1800),
    Step("WebAssembly: arithmetic", DEFAULT,
         f"{IN_NODE}/operations.mjs build/release/operations build/web-objects/operations.wasm",
         RELEASE + WEB),
    Step("WebAssembly: inputs of the fuzz targets", DEFAULT, f"{IN_NODE}/fuzz.mjs build/web-objects", WEB),

    # 64-bit ARM, on an emulated processor.
    *programs(ARM64_UNITS, ALL, "arm64", " arm64", NOT_EMULATED, ON_ARM64,
              OMBREL_RANDOM_SHARE="0.05"),
    *[frames(f"arm64 {path}, scene {scene}", f"{ON_ARM64} build/arm64/{CAPTURE}{switch}", ALL,
             RELEASE + ARM64, first=300, like=like, RASTER_USE=path)
      for path in ("scalar", "neon")
      for scene, switch, like in (("one", "", None),
                                  ("two", " --switch sceneIndex=1", f"build/release/{CAPTURE}"))],

    # Sanitizers and fuzzing.
    Step("scenario: faults sanitized", ALL, "build/sanitize/scenario --gtest_filter='Faults.*'",
         ("build sanitize",), limit=1200, env=FOR_SANITIZERS),
    frames("sanitized", f"build/sanitize/{CAPTURE}", ALL, ("build sanitize",), first=200,
           **FOR_SANITIZERS),
    *programs(["scenario", "golden", "faults", *UNITS], ALL, "sanitize", " sanitized",
              f"'{NOT_SANITIZED}'", **FOR_SANITIZERS),
    Step("fuzzing: the seeds, and 5 seconds each", ALL, "tools/fuzz.py", ("build sanitize",),
         load=WHOLE),

    # What is installed, packed and recorded.
    Step("what is installed, and the Debian package", DEFAULT, "tests/release/run.sh build/release",
         RELEASE),
    Step("videos of the recorder", ALL, "tests/capture/run.sh build/release", RELEASE, limit=1200),
    Step("make the archives", ALL, "tools/package.py", RELEASE + WIN64 + WIN32 + ARM64 + ("build web",),
         tests=IS_BUILD),
    Step("archives, unpacked", ALL, "tests/packages/run.sh build", ("make the archives",),
         load=WAITS),
]

# --- counting -----------------------------------------------------------------------------------


@dataclasses.dataclass
class Result:
    """How a step went. What it printed stands in its log."""
    passed: int = 0
    failed: int = 0
    skipped: int = 0
    seconds: float = 0.0
    processor: float = 0.0  # seconds of it, of all that the step started and waited for
    output: str = ""


def count_tests(tests, output, code):
    """(passed, failed, skipped) of a step's output and exit code. Understands the last lines of
    test programs and lines `N passed, N failed[, N skipped]`."""
    if tests == IS_BUILD:
        return 0, int(code != 0), 0
    if tests == IS_ONE:
        return int(code == 0), int(code != 0), 0
    totals = [0, 0, 0]
    for place, word in enumerate(("PASSED", "FAILED", "SKIPPED")):
        totals[place] += sum(map(int, re.findall(rf"^\[  {word} *\] (\d+) tests?\b", output, re.M)))
    for line in re.findall(r"^(?:\S+: )?(\d+) passed, (\d+) failed(?:, (\d+) skipped)?", output,
                           re.M):
        totals = [total + int(number or 0) for total, number in zip(totals, line)]
    passed, failed, skipped = totals
    # Broken off (a crash, a sanitizer's report, the limit), or nothing counted at all.
    if failed == 0 and (code != 0 or passed + skipped == 0):
        failed = 1
    return passed, failed, skipped


def excerpt(output):
    """What of a failed step's output is shown: from the first line that names a fault, and the end."""
    lines = output.splitlines()
    first = next((number for number, line in enumerate(lines)
                  if re.search(r"FAILED|error|ERROR|fault|Traceback", line)), len(lines))
    first = max(0, min(first - 3, len(lines) - 40))
    shown = lines[first:first + 40]
    if first + 40 < len(lines):
        shown += ["..."] + lines[max(first + 40, len(lines) - 10):]
    return "\n".join("      | " + line for line in shown)


# --- the loop -----------------------------------------------------------------------------------

class Runner:
    """Starts steps as they become ready and takes their results."""

    def __init__(self):
        self.running = {}  # step: (process, when it was started)
        self.finished = queue.SimpleQueue()

    def fits(self, step):
        """A processor is free for it. (A build may begin beside one last test: all the better.)"""
        if step.load == WAITS:
            return sum(other.load == WAITS for other in self.running) < PROCESSORS
        busy = sum({ONE: 1, WHOLE: PROCESSORS, WAITS: 0}[other.load] for other in self.running)
        return busy < PROCESSORS

    def start(self, step):
        """Starts a step in a process group of its own, with its log as output."""
        log = log_of(step)
        with log.open("wb") as file:
            process = subprocess.Popen(["/bin/bash", "-c", step.command], cwd=ROOT, stdout=file,
                                       stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL,
                                       env={**os.environ, **step.env}, start_new_session=True)
        self.running[step] = (process, time.monotonic())
        threading.Thread(target=self.watch, args=(step, process, time.monotonic()),
                         daemon=True).start()

    def watch(self, step, process, start):
        """Waits for the end of a step, or ends it when its time is up."""
        end, late, processor = start + step.limit, "", 0.0
        while process.returncode is None:
            pid, status, used = os.wait4(process.pid, os.WNOHANG)
            if pid:
                process.returncode = os.waitstatus_to_exitcode(status)
                processor = used.ru_utime + used.ru_stime
            elif time.monotonic() > end:
                end_group(process)
                late = f"\nended after {step.limit} s, its limit\n"
            else:
                time.sleep(0.02)
        output = log_of(step).read_text(errors="replace") + late
        counts = count_tests(step.tests, output, process.returncode)
        self.finished.put((step, Result(*counts, time.monotonic() - start, processor, output)))

    def next_result(self):
        """The next step that ends. Says once a minute what runs, that nobody thinks it hangs."""
        while True:
            try:
                step, result = self.finished.get(timeout=60)
                del self.running[step]
                return step, result
            except queue.Empty:
                now = time.monotonic()
                print("  ...", ", ".join(f"{step.name} ({now - start:.0f} s)" for step, (_, start)
                                         in self.running.items()), flush=True)

    def end_all(self):
        """Ends everything that runs."""
        for process, _ in self.running.values():
            end_group(process)


def end_group(process):
    """Asks a step and all that it started to end; ends what has not within 10 s."""
    for sign, patience in ((signal.SIGTERM, 10), (signal.SIGKILL, 2)):
        end = time.monotonic() + patience
        try:
            os.killpg(process.pid, sign)
            while time.monotonic() < end:
                process.poll()
                os.killpg(process.pid, 0)
                time.sleep(0.02)
        except ProcessLookupError:
            break
    process.wait()


def log_of(step):
    return LOGS / (re.sub(r"[^a-z0-9]+", "-", step.name.lower()).strip("-") + ".log")


def report(step, result):
    """The line of a step, and of one that failed what it said."""
    count = result.passed + result.failed
    said = "" if step.tests == IS_BUILD else f"{count} test{'s' if count != 1 else ''}"
    if result.skipped:
        said += f", {result.skipped} skipped"
    print(f"  {step.name:<42} {'FAILED' if result.failed else 'ok    '} {result.seconds:7.1f} s "
          f"{result.processor:7.1f} s  {said}".rstrip(), flush=True)
    if result.failed:
        print(excerpt(result.output))
        print(f"      whole log: {log_of(step).relative_to(ROOT)}", flush=True)


def run(steps):
    """Runs steps, each after those that it needs; {step: result}."""
    runner, results, waiting = Runner(), {}, list(steps)
    failed = set()  # names

    def take(step, result):
        results[step] = result
        if result.failed:
            failed.add(step.name)
        report(step, result)

    try:
        while waiting or runner.running:
            done = {step.name for step in results}
            for step in list(waiting):
                missing = [name for name in step.needs if name in failed]
                if missing:
                    waiting.remove(step)
                    log_of(step).write_text(f"not run: '{missing[0]}' failed\n")
                    take(step, Result(failed=1, output=log_of(step).read_text()))
                elif done.issuperset(step.needs) and runner.fits(step):
                    waiting.remove(step)
                    runner.start(step)
            if runner.running:
                take(*runner.next_result())
    finally:
        runner.end_all()
    return results


def run_and_tell(steps):
    """Runs steps and prints the closing lines; the exit code."""
    LOGS.mkdir(parents=True, exist_ok=True)
    start = time.monotonic()
    print(f"  {'step':<49} {'on the clock':>10} processor  tests")
    results = run(steps)
    bad = [step.name for step, result in results.items() if result.failed]
    passed, failed, skipped = (sum(getattr(result, what) for result in results.values())
                               for what in ("passed", "failed", "skipped"))
    processor = sum(result.processor for result in results.values())
    print(f"\n{time.monotonic() - start:.0f} s, {processor:.0f} s of a processor")
    if bad:
        print(f"failed: {', '.join(bad)}")
    print(f"{passed} passed, {failed} failed" + (f", {skipped} skipped" if skipped else ""))
    return 1 if failed or not passed else 0


# --- what is asked for --------------------------------------------------------------------------

def chosen(steps, size, pattern=""):
    """The steps of a size whose name holds the pattern, with all that they need."""
    steps = [step for step in steps if size in step.sizes]
    names = {step.name for step in steps}
    for step in steps:
        assert names.issuperset(step.needs), f"'{step.name}' needs what no {size} run has"
    wanted = {step.name for step in steps if re.search(pattern, step.name)}
    for step in reversed(steps):
        wanted.update(step.needs if step.name in wanted else ())
    return [step for step in steps if step.name in wanted]


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    size = parser.add_mutually_exclusive_group()
    for name in ("quick", "all"):
        size.add_argument(f"--{name}", action="store_const", dest="size", const=name,
                          help=f"the {name} size" if name == "quick" else "everything")
    parser.add_argument("--only", metavar="PATTERN", default="",
                        help="only steps whose name holds this pattern, and what they need")
    parser.add_argument("--list", action="store_true", help="name the steps and their sizes, and end")
    options = parser.parse_args()
    if options.list:
        for step in STEPS:
            print(f"{step.name:<42} {', '.join(step.sizes):<22} {step.command}")
        return 0
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    # Started in the background these are ignored, and would be by every program that is tested.
    signal.signal(signal.SIGINT, signal.default_int_handler)
    signal.signal(signal.SIGHUP, signal.SIG_DFL)
    try:
        return run_and_tell(chosen(STEPS, options.size or "default", options.only))
    except KeyboardInterrupt:
        print("interrupted")
        return 130


if __name__ == "__main__":
    sys.exit(main())
