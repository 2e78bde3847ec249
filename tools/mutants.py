#!/usr/bin/python3
"""Proves that the tests test: makes one small mistake at a time in a copy of the sources and runs the
test program that claims the line. The mistake must be noticed. By hand; it takes long.
  tools/mutants.py                    all of tests/mutants.txt
  tools/mutants.py --only 'R3|clip'   those whose file, text or note holds this pattern
  tools/mutants.py --check            only whether every text is found exactly once
Most mistakes are built together, each behind a number that a run is given; what cannot be chosen while
a program runs (constants, tables) is built alone, and so is again what survived.
Copies and builds stand in build/mutants/. The last line counts: "N killed, N survived, N explained".
"""
import argparse
import concurrent.futures
import dataclasses
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIST = ROOT / "tests/mutants.txt"
TREE = ROOT / "build/mutants/tree"
BUILD = TREE / "build/release"
NUMBERED = TREE / "build/numbered"  # the programs that make mistakes by number
LIMIT = 300  # seconds of a processor for a test program; one that loops for ever has noticed as well
WAITS = 1800  # seconds on the clock; no verdict comes of them, for the machine may be busy
# Fewer random triangles and no second look once a test has failed; the rest as in every run.
ENVIRONMENT = {**os.environ, "OMBREL_RANDOM_SHARE": "0.1", "GTEST_FAIL_FAST": "1",
               "GTEST_BRIEF": "1"}
# Templates that are compiled once for each set of lanes: where a mistake is built alone, these are tried
# one after the other until it is noticed. (What begins first counts. The careful fillers are plain.)
LANES = {"src/lanes/pixels_plain.h": ["plain"], "src/lanes/": ["sse41"],
         "src/raster/": ["sse41", "plain"]}
# The number of the mistake that a run makes; none without one.
NUMBER_HEADER = """#pragma once
#include <cstdlib>
inline const int mutantNumber =
    std::getenv("OMBREL_MUTANT") != nullptr ? std::atoi(std::getenv("OMBREL_MUTANT")) : 0;
"""


@dataclasses.dataclass(eq=False)
class Mutant:
    """One mistake. A reason explains why no test can notice it."""
    line: int
    path: str
    tests: str
    note: str
    old: str = ""
    new: str = ""
    reason: str = ""

    @property
    def number(self):
        """Of the run that makes this mistake; the same while the mistake is, wherever it is listed."""
        return zlib.crc32(f"{self.path} {self.old} {self.new}".encode()) >> 1

    @property
    def made(self):
        """The expression that is true in that run."""
        return f"(mutantNumber == {self.number})"


def read_list(text):
    """The mutants of a list. A line `# note` says what rule the next ones break, `FILE: PROGRAM
    [FILTER]` where they stand and who notices; then `- text`, `+ text that takes its place`, and
    `= reason` where none can notice."""
    mutants, path, tests, note = [], "", "", ""
    for number, line in enumerate(text.splitlines(), 1):
        mark, rest = line[:2], line[2:].strip()
        if mark == "- ":
            mutants.append(Mutant(number, path, tests, note, old=rest))
        elif mark.strip() == "+":
            mutants[-1].new = rest
        elif mark == "= ":
            mutants[-1].reason = rest
        elif mark == "# ":
            note = rest
        elif line.strip():
            path, tests = (part.strip() for part in line.split(":", 1))
    return mutants


def faults(mutants):
    """What is wrong with the list: texts that are not there, or more than once."""
    for mutant in mutants:
        file = ROOT / mutant.path
        count = file.read_text().count(mutant.old) if file.is_file() else 0
        if count != 1 or mutant.old == mutant.new or not mutant.tests:
            yield f"{LIST.relative_to(ROOT)}:{mutant.line}: {count} times in {mutant.path}: {mutant.old}"


# --- mistakes that one program can make by number -----------------------------------------------

# Before and behind what differs: conditions, the middle of a loop's head, results, and values.
FORMS = [re.compile(form) for form in (
    r"((?:\} else )?(?:if|while) \()(.*)(\) \{)",
    r"(for \([^;]*; )([^;]*)(; [^;]*\) \{)",
    r"(return )([^{].*)(;)",
    r"((?!static |constexpr |inline )[\w:<>*&.\[\] \->]+ [-+*/|&]?= )([^{].*)(;)",
)]


def by_number(old, mutants):
    """A text that is the old one, or the new one of the mutant whose number a run is given. None
    where there is no such text."""
    for form in FORMS:
        parts = [form.fullmatch(text) for text in (old, *(m.new for m in mutants))]
        if all(parts) and len({(part[1], part[3]) for part in parts}) == 1:
            chosen = f"({parts[0][2]})"
            for mutant, part in zip(mutants, parts[1:]):
                chosen = f"{mutant.made} ? ({part[2]}) : {chosen}"
            return f"{parts[0][1]}{chosen}{parts[0][3]}"
    plain = re.compile(r"(?!(const|auto|static|constexpr|inline|using|struct) )[^{]*;")
    if plain.fullmatch(old) and all(plain.fullmatch(m.new) for m in mutants):
        choices = "".join(f"if {m.made} {{ {m.new} }} else " for m in mutants)
        return f"{choices}{{ {old} }}"
    return None


def with_all(text, mutants):
    """(the text of a file that can make these mistakes by number, those that it can)."""
    possible = []
    for old in dict.fromkeys(m.old for m in mutants):
        same = [m for m in mutants if m.old == old]
        chosen = by_number(old, same)
        if chosen is not None:
            text = text.replace(old, chosen)
            possible += same
    return '#include "mutant_number.h"\n' + text, possible


# --- the copy of the sources, with a build of its own -------------------------------------------


def write(file, content):
    """Only what changed is compiled again."""
    if not file.exists() or file.read_bytes() != content:
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)


def run(command, check=False, limit=7200, **environment):
    return subprocess.run(command, cwd=TREE, env={**ENVIRONMENT, **environment}, check=check,
                          timeout=limit, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT)


def copy_sources():
    files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                           cwd=ROOT, check=True, stdout=subprocess.PIPE).stdout.decode().split("\0")
    wanted = {name for name in files if name and (ROOT / name).is_file()}
    for folder in ("src", "tests", "tools"):
        for file in (TREE / folder).rglob("*"):
            if file.is_file() and str(file.relative_to(TREE)) not in wanted:
                file.unlink()
    write(TREE / "src/mutant_number.h", NUMBER_HEADER.encode())
    for name in wanted:
        if not (TREE / name).exists() or not name.startswith("src/"):
            write(TREE / name, (ROOT / name).read_bytes())
            shutil.copymode(ROOT / name, TREE / name)
    return [name for name in wanted if name.startswith("src/")]


def build(programs, jobs):
    return run(["cmake", "--build", "build/release", "--target", *programs, "--",
                f"-j{jobs}", "-k0"])


def build_together(mutants, programs, jobs):
    """Builds what makes mistakes by number; returns those that it makes. A line that the compiler
    does not take is left out, and all is tried again."""
    sources = copy_sources()
    left_out = set()
    run(["cmake", "--preset", "release", "-DOMBREL_TESTS=ON", "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -w"],
        check=True)
    while True:
        together = []
        for path in sources:
            text = (ROOT / path).read_bytes()
            here = [m for m in mutants if m.path == path and m not in left_out]
            if here:
                changed, possible = with_all(text.decode(), here)
                text = changed.encode() if possible else text
                together += possible
            write(TREE / path, text)
        built = build(programs, jobs)
        if built.returncode == 0:
            return together
        said = built.stdout.decode(errors="replace")
        wrong = set()
        for path, number in set(re.findall(r"(src/[\w/.]+):(\d+):\d+:", said)):
            line = (TREE / path).read_text().splitlines()[int(number) - 1]
            wrong |= {m for m in together if m.path == path and m.made in line}
        if not wrong:
            sys.exit(said[-3000:] + "\nThe copy does not build.")
        left_out |= wrong


def seen_by(folder, tests, number):
    """(whether the tests notice, what they said): programs of this folder, the run with this number."""
    program, *options = tests.split()
    with tempfile.TemporaryDirectory() as own:
        try:
            tested = run(["prlimit", f"--cpu={LIMIT}:{LIMIT + 10}", folder / program,
                          *(f"--gtest_filter={option}" for option in options)],
                         limit=WAITS, OMBREL_MUTANT=str(number), TMPDIR=own, TEST_TMPDIR=own)
        except subprocess.TimeoutExpired:
            return False, f"no end after {WAITS} s"
    if tested.returncode == -signal.SIGXCPU:
        return True, f"loops: {LIMIT} s of a processor"
    said = re.findall(r"\[  FAILED  \] ([^\s(,]+)", tested.stdout.decode(errors="replace"))
    return tested.returncode != 0, said[0] if said else f"exit code {tested.returncode}"


def seen_alone(mutant):
    """The same, with a build that makes this mistake only. None for one that is not built."""
    header = mutant.path.endswith(".h")
    for lanes in next((lanes for start, lanes in LANES.items()
                       if header and mutant.path.startswith(start)), [None]):
        notices, seen = seen_in(mutant, lanes)
        if notices is not False:
            break
    return notices, seen


def seen_in(mutant, lanes):
    """The same, in all that a changed file is compiled into, or in the fillers of one set of lanes."""
    file = TREE / mutant.path
    before, times = file.read_bytes(), file.stat()

    def put(content):
        file.write_bytes(content)
        if lanes:  # nothing seems to have changed, and one object is missing
            os.utime(file, ns=(times.st_atime_ns, times.st_mtime_ns))
            for built in BUILD.rglob(f"path_{lanes}.cpp.o"):
                built.unlink()

    put((ROOT / mutant.path).read_text().replace(mutant.old, mutant.new).encode())
    try:
        built = build([mutant.tests.split()[0]], 1)
        if built.returncode != 0:
            said = built.stdout.decode(errors="replace")
            return None, "".join(re.findall(r"error: .*", said)[:1])
        return seen_by(BUILD, mutant.tests, 0)
    finally:
        put(before)


# --- all of them --------------------------------------------------------------------------------


def baseline(mutants, jobs):
    """Every claim must hold without a mistake."""
    claims = sorted({m.tests for m in mutants})
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for tests, (notices, seen) in zip(
                claims, pool.map(lambda claim: seen_by(NUMBERED, claim, 0), claims)):
            if notices:
                sys.exit(f"{tests} fails without a mistake: {seen}")


def try_all(mutants, jobs):
    """Tries every mutant, those by number beside those that are built alone; yields (mutant, notices,
    what was seen)."""
    programs = sorted({m.tests.split()[0] for m in mutants})
    together = build_together(mutants, programs, jobs)
    shutil.rmtree(NUMBERED, ignore_errors=True)
    NUMBERED.mkdir(parents=True)
    for program in programs:
        shutil.copy(BUILD / program, NUMBERED / program)
    baseline(mutants, jobs)
    numbered, alone = set(together), [m for m in mutants if m not in together]
    print(f"{len(numbered)} are made by number, {len(alone)} built alone", flush=True)
    with concurrent.futures.ThreadPoolExecutor(jobs) as runs, \
            concurrent.futures.ThreadPoolExecutor(1) as builds:
        waiting = {builds.submit(seen_alone, m): m for m in alone}
        waiting |= {runs.submit(seen_by, NUMBERED, m.tests, m.number): m for m in together}
        while waiting:
            for done in concurrent.futures.wait(
                    waiting, return_when=concurrent.futures.FIRST_COMPLETED).done:
                mutant = waiting.pop(done)
                notices, seen = done.result()
                if mutant in numbered and not notices and not mutant.reason:
                    numbered.remove(mutant)
                    waiting[builds.submit(seen_alone, mutant)] = mutant
                else:
                    yield mutant, notices, seen


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--only", default="", metavar="PATTERN")
    parser.add_argument("--check", action="store_true", help="only read the list")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1)
    options = parser.parse_args()
    mutants = read_list(LIST.read_text())
    wrong = list(faults(mutants))
    print("\n".join(wrong + [f"{len(mutants)} mutants, {len(wrong)} not found once"]), flush=True)
    if wrong or options.check:
        return 1 if wrong else 0
    chosen = [m for m in mutants if re.search(options.only, " ".join(
        (m.path, m.note, m.old, m.new)))]
    if not chosen:
        sys.exit(f"no mutant holds {options.only}")
    killed = survived = explained = 0
    for mutant, notices, seen in try_all(chosen, options.jobs):
        if notices is None:
            verdict = "DOES NOT BUILD"
            survived += 1
        elif notices:
            verdict = "killed" if not mutant.reason else "KILLED, though explained"
            killed += 1
        elif mutant.reason:
            verdict = f"explained ({mutant.reason})"
            explained += 1
        else:
            verdict = "SURVIVED"
            survived += 1
        print(f"{verdict}: {mutant.path}: {mutant.old} -> {mutant.new} [{mutant.note}] {seen}",
              flush=True)
    print(f"{killed} killed, {survived} survived, {explained} explained")
    return 1 if survived else 0


if __name__ == "__main__":
    sys.exit(main())
