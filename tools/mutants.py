#!/usr/bin/python3
"""Proves that the tests test: makes one small mistake at a time in a copy of the sources, builds the
test program that claims the line, and runs it. The mistake must be noticed. By hand; it takes hours.
  tools/mutants.py                    all of tests/mutants.txt
  tools/mutants.py --only 'R3|clip'   those whose file, text or note holds this pattern
  tools/mutants.py --check            only whether every text is found exactly once
Copies and builds stand in build/mutants/. The last line counts: "N killed, N survived, N explained".
"""
import argparse
import concurrent.futures
import dataclasses
import os
import pathlib
import queue
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIST = ROOT / "tests/mutants.txt"
WORK = ROOT / "build/mutants"
LIMIT = 300  # seconds of a test program; one that hangs has noticed as well
# Fewer random triangles and no second look once a test has failed; the rest as in every run.
ENVIRONMENT = {**os.environ, "OMBREL_RANDOM_SHARE": "0.1", "GTEST_FAIL_FAST": "1",
               "GTEST_BRIEF": "1"}


@dataclasses.dataclass
class Mutant:
    """One mistake. A reason explains why no test can notice it."""
    line: int
    path: str
    tests: str
    note: str
    old: str = ""
    new: str = ""
    reason: str = ""


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


class Copy:
    """A copy of the sources with a build of its own."""

    def __init__(self, number):
        self.tree = WORK / str(number)
        files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others",
                                "--exclude-standard"], cwd=ROOT, check=True,
                               stdout=subprocess.PIPE).stdout.decode().split("\0")
        wanted = [name for name in files if name and (ROOT / name).is_file()]
        for name in wanted:
            source, target = ROOT / name, self.tree / name
            if not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
        self.run(["cmake", "--preset", "release", "-DOMBREL_TESTS=ON",
                  "-DCMAKE_CXX_FLAGS_RELEASE=-O1"], check=True)

    def run(self, command, check=False, limit=1800):
        return subprocess.run(command, cwd=self.tree, env=ENVIRONMENT, check=check, timeout=limit,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT)

    def build(self, program):
        return self.run(["cmake", "--build", "build/release", "--target", program, "-j1"])

    def notices(self, mutant):
        """(whether the tests notice, what was seen)."""
        program, *options = mutant.tests.split()
        file = self.tree / mutant.path
        text = file.read_text()
        try:
            file.write_text(text.replace(mutant.old, mutant.new))
            built = self.build(program)
            if built.returncode != 0:
                return None, built.stdout.decode(errors="replace")[-1500:]
            try:
                tested = self.run([f"build/release/{program}",
                                   *(f"--gtest_filter={option}" for option in options)],
                                  limit=LIMIT)
            except subprocess.TimeoutExpired:
                return True, "hangs"
            said = re.findall(r"\[  FAILED  \] ([^\s(,]+)", tested.stdout.decode(errors="replace"))
            return tested.returncode != 0, said[0] if said else f"exit code {tested.returncode}"
        finally:
            file.write_text(text)


def try_all(mutants, jobs):
    """Tries every mutant in one of the copies; yields (mutant, notices, what was seen)."""
    copies = queue.SimpleQueue()

    def one(mutant):
        copy = copies.get()
        try:
            return mutant, *copy.notices(mutant)
        finally:
            copies.put(copy)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for copy in pool.map(Copy, range(jobs)):
            copies.put(copy)
        for done in concurrent.futures.as_completed([pool.submit(one, m) for m in mutants]):
            yield done.result()


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--only", default="", metavar="PATTERN")
    parser.add_argument("--check", action="store_true", help="only read the list")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1)
    options = parser.parse_args()
    mutants = read_list(LIST.read_text())
    wrong = list(faults(mutants))
    print("\n".join(wrong + [f"{len(mutants)} mutants, {len(wrong)} not found once"]))
    if wrong or options.check:
        return 1 if wrong else 0
    chosen = [m for m in mutants if re.search(options.only, " ".join(
        (m.path, m.note, m.old, m.new)))]
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
