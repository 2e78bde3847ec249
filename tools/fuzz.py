#!/usr/bin/python3
"""Replays the seeds of every fuzz target and fuzzes it for a while. Needs the preset `sanitize` built.
What breaks a target stays in BUILD/found/TARGET/, what teaches it something in BUILD/learnt/TARGET/.
The last line counts: two tests a target, its seeds and its search. Examples:
  tools/fuzz.py                              5 seconds each, as many at a time as processors
  tools/fuzz.py --seconds 1800 --only draw   half an hour for one
"""
import argparse
import concurrent.futures
import math
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
# A target itself ends on an input that takes more than 100 ms of processor time or 64 MiB; these
# are for one that never comes back.
LIMITS = ["-timeout=20", "-rss_limit_mb=1024", "-malloc_limit_mb=64"]
ENVIRONMENT = {"ASAN_OPTIONS": "detect_leaks=1:allocator_may_return_null=1",
               "UBSAN_OPTIONS": "print_stacktrace=1"}


def run(command):
    """Output, exit code and processor seconds of one program."""
    with tempfile.TemporaryFile() as output:
        program = subprocess.Popen([str(part) for part in command], cwd=ROOT, stdout=output,
                                   stderr=subprocess.STDOUT, env={**os.environ, **ENVIRONMENT})
        _, status, used = os.wait4(program.pid, 0)
        program.returncode = os.waitstatus_to_exitcode(status)
        output.seek(0)
        return (output.read().decode(errors="replace"), program.returncode,
                used.ru_utime + used.ru_stime)


def fuzz(name, build, seconds):
    """One target: (lines to print, tests passed, tests failed)."""
    program = build / f"fuzz_{name}"
    if not program.exists():
        return [f"{name}: {program} is not built"], 0, 1
    seeds = ROOT / "fuzz" / "corpus" / name
    found = build / "found" / name
    learnt = build / "learnt" / name
    for folder in (found, learnt):
        folder.mkdir(parents=True, exist_ok=True)
    # Long inputs are only replayed: what is made from them would be slow for its length alone.
    files = sorted(path for folder in (seeds, ROOT / "fuzz" / "long" / name)
                   if folder.is_dir() for path in folder.iterdir() if path.is_file())
    common = [program, f"-artifact_prefix={found}/", *LIMITS]
    replay, code, _ = run([*common, *files])
    lines = []
    good = bad = 0
    if code == 0 and files:
        good += 1
    else:
        bad += 1
        lines.append(f"{name}: a seed breaks it, or there is none\n{replay[-4000:]}")
    runs = 0
    cpu = 0.0
    code = 0
    # The library counts time on the wall; on a busy machine that is not all spent here.
    while code == 0 and cpu < 0.99 * seconds:
        output, code, used = run([*common, "-print_final_stats=1",
                                  f"-max_total_time={min(300, math.ceil(seconds - cpu))}",
                                  f"-dict={ROOT}/fuzz/{name}.dict", learnt, seeds])
        executed = re.search(r"number_of_executed_units:\s*(\d+)", output)
        runs += int(executed.group(1)) if executed else 0
        cpu += used
    if code == 0 and runs > len(files):
        good += 1
    else:
        bad += 1
        lines.append(f"{name}: FAILED\n{output[-6000:]}")
    lines.append(f"{name}: {len(files)} seeds, {runs} executions in {cpu:.0f} s of processor time")
    return lines, good, bad


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "sanitize")
    parser.add_argument("--seconds", type=int, default=5, help="of processor time, for each target")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1)
    parser.add_argument("--only", action="append", help="a target's name; may be repeated")
    options = parser.parse_args()
    names = sorted(path.stem.removeprefix("fuzz_") for path in (ROOT / "fuzz").glob("fuzz_*.cpp"))
    names = [name for name in names if not options.only or name in options.only]
    good = bad = 0
    with concurrent.futures.ThreadPoolExecutor(max_workers=options.jobs) as pool:
        waiting = [pool.submit(fuzz, name, options.build.resolve(), options.seconds)
                   for name in names]
        for done in concurrent.futures.as_completed(waiting):
            lines, passed, failed = done.result()
            print("\n".join(lines), flush=True)
            good += passed
            bad += failed
    print(f"{good} passed, {bad} failed")
    return 1 if bad or not good else 0


if __name__ == "__main__":
    sys.exit(main())
