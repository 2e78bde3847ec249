#!/usr/bin/python3
"""Runs larkfen-bench with the plain fillers and with the best vector path of this processor, in
turns, and writes the medians as the table between the bench marks of the README."""
import argparse
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
README = ROOT / "README.md"
BEGIN, END = "<!-- bench: written by tools/bench_table.py -->", "<!-- bench ends -->"


def measure(program, path, seconds):
    """{name: counters and real_time in its time_unit} of one run on one path."""
    result = subprocess.run(
        [program, "--benchmark_format=json", "--benchmark_filter=^(Fill|Scene|Frame)/",
         f"--benchmark_min_time={seconds}"],
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False,
        env={**os.environ, "RASTER_USE": path})
    if result.returncode != 0:
        sys.exit(f"{program}: exit code {result.returncode}\n{result.stderr.decode()}")
    rows = json.loads(result.stdout.decode())["benchmarks"]
    return {re.sub(r"/(manual_time|iterations:\d+).*", "", row["name"]): row for row in rows}


def median(runs, name, key):
    """The median of one number over the runs; None where a run has no such row."""
    values = [run[name][key] for run in runs if name in run and key in run[name]]
    return statistics.median(values) if values else None


def cell(value, scale, digits):
    return "" if value is None else f"{value / scale:.{digits}f}"


def table(plain, fast, path):
    """The lines of the README."""
    names = list(plain[0])
    lines = [f"| filler | Mpixel/s, plain | {path} | million 25-pixel triangles/s, plain | {path} |",
             "|---|--:|--:|--:|--:|"]
    for name in names:
        if name.startswith("Fill/") and name.endswith("/large"):
            small = name.replace("/large", "/25")
            lines.append("| `{}` | {} | {} | {} | {} |".format(
                name.split("/")[1], cell(median(plain, name, "pixels"), 1e6, 0),
                cell(median(fast, name, "pixels"), 1e6, 0),
                cell(median(plain, small, "triangles"), 1e6, 2),
                cell(median(fast, small, "triangles"), 1e6, 2)))
    lines += ["", f"| step | plain, µs | {path}, µs |", "|---|--:|--:|"]
    unit = {"ns": 1000.0, "us": 1.0, "ms": 0.001}
    for name in names:
        if not name.startswith("Fill/"):
            scale = unit[plain[0][name]["time_unit"]]
            # The steps of the pipeline are plain code on every path: docs/front-end.md.
            other = None if name.startswith("Scene/") else median(fast, name, "real_time")
            lines.append("| {} | {} | {} |".format(
                name, cell(median(plain, name, "real_time"), scale, 0), cell(other, scale, 0)))
    return lines


def processor():
    """What the processor calls itself."""
    found = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    return found.group(1) if found else "an unknown processor"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program", nargs="?", default=ROOT / "build/release/larkfen-bench")
    parser.add_argument("--path", default="avx2", help="the vector path: sse, avx2 or avx512")
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--seconds", type=float, default=0.1, help="at least, for one row of a round")
    arguments = parser.parse_args()

    plain, fast = [], []
    for i in range(arguments.rounds):
        print(f"round {i + 1} of {arguments.rounds}", file=sys.stderr, flush=True)
        plain.append(measure(arguments.program, "scalar", arguments.seconds))
        fast.append(measure(arguments.program, arguments.path, arguments.seconds))
    said = [BEGIN, "", f"One core of {processor()}, 640 x 480, medians of {arguments.rounds} rounds:",
            "", *table(plain, fast, arguments.path.upper()), "", END]
    text = README.read_text()
    first, last = text.find(BEGIN), text.find(END)
    if first < 0 or last < first:
        sys.exit(f"{README}: the marks of the table are missing")
    README.write_text(text[:first] + "\n".join(said) + text[last + len(END):])


if __name__ == "__main__":
    main()
