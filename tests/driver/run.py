#!/usr/bin/python3
"""Tests of tools/run_tests.py: what its loop runs, counts and says. The last line counts."""
import contextlib
import io
import pathlib
import sys
import tempfile
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent.parent / "tools"))
import run_tests  # pylint: disable=wrong-import-position
from run_tests import COUNTS, IS_BUILD, IS_ONE, ONE, WAITS, WHOLE, Step  # pylint: disable=wrong-import-position


def step(name, command, needs=(), **more):
    return Step(name, run_tests.EVERY, command, needs, **more)


def played(*steps):
    """(exit code, what was printed) of a run of these steps."""
    told = io.StringIO()
    with contextlib.redirect_stdout(told):
        code = run_tests.run_and_tell(steps)
    return code, told.getvalue()


class Counting(unittest.TestCase):
    def test_sums_of_test_programs_and_plain_lines(self):
        output = ("[  PASSED  ] 12 tests.\n[  SKIPPED ] 2 tests, listed below:\n"
                  "[  SKIPPED ] Some.Name\n[  FAILED  ] 1 test, listed below:\n[  FAILED  ] Other\n"
                  "part: 3 passed, 4 failed\n5 passed, 0 failed, 6 skipped\n")
        self.assertEqual(run_tests.count_tests(COUNTS, output, 1), (20, 5, 8))

    def test_what_breaks_off_or_counts_nothing_has_failed(self):
        self.assertEqual(run_tests.count_tests(COUNTS, "[  PASSED  ] 3 tests.\n", 1), (3, 1, 0))
        self.assertEqual(run_tests.count_tests(COUNTS, "all is well\n", 0), (0, 1, 0))
        self.assertEqual(run_tests.count_tests(COUNTS, "0 passed, 0 failed, 2 skipped\n", 0),
                         (0, 0, 2))

    def test_steps_that_print_no_counts(self):
        self.assertEqual(run_tests.count_tests(IS_ONE, "9 passed, 9 failed", 0), (1, 0, 0))
        self.assertEqual(run_tests.count_tests(IS_ONE, "", 1), (0, 1, 0))
        self.assertEqual(run_tests.count_tests(IS_BUILD, "", 0), (0, 0, 0))
        self.assertEqual(run_tests.count_tests(IS_BUILD, "", 2), (0, 1, 0))


class Loop(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(setattr, run_tests, "LOGS", run_tests.LOGS)
        self.addCleanup(setattr, run_tests, "ROOT", run_tests.ROOT)
        run_tests.ROOT = pathlib.Path(folder.name)
        run_tests.LOGS = run_tests.ROOT / "logs"

    def test_last_line_counts_and_nothing_else_stands_on_it(self):
        code, told = played(step("a", "echo 2 passed, 0 failed"), step("b", "true", tests=IS_ONE))
        self.assertEqual((code, told.splitlines()[-1]), (0, "3 passed, 0 failed"))
        _, told = played(step("a", "echo 2 passed, 0 failed, 1 skipped"))
        self.assertEqual(told.splitlines()[-1], "2 passed, 0 failed, 1 skipped")

    def test_failure_shows_its_output_and_names_its_log(self):
        code, told = played(step("good", "true", tests=IS_ONE),
                            step("the bad one", "echo error: no luck; false", tests=IS_ONE))
        self.assertEqual((code, told.splitlines()[-1]), (1, "1 passed, 1 failed"))
        for wanted in ("      | error: no luck", "whole log: logs/the-bad-one.log",
                       "failed: the bad one"):
            self.assertIn(wanted, told)
        self.assertNotIn("FAILED   good", told)

    def test_long_output_is_cut_to_its_first_fault_and_its_end(self):
        _, told = played(step("long", "seq 1000 1400; echo 1 FAILED; seq 2000 2400; false"))
        shown = [line[8:] for line in told.splitlines() if line.startswith("      | ")]
        self.assertLess(len(shown), 60)
        for wanted in ("1 FAILED", "2400"):
            self.assertIn(wanted, shown)
        self.assertNotIn("1000", shown)

    def test_build_that_fails_fails_what_needs_it(self):
        code, told = played(step("build", "echo no compiler; false", tests=IS_BUILD),
                            step("first", "echo 5 passed, 0 failed", ("build",)),
                            step("second", "echo 5 passed, 0 failed", ("first",)),
                            step("other", "echo 5 passed, 0 failed"))
        self.assertEqual((code, told.splitlines()[-1]), (1, "5 passed, 3 failed"))
        self.assertIn("not run: 'build' failed", told)
        self.assertIn("not run: 'first' failed", told)

    def test_step_waits_for_what_it_needs(self):
        code, told = played(step("build", "sleep 0.3; touch made", tests=IS_BUILD, load=WHOLE),
                            step("test", "test -e made", ("build",), tests=IS_ONE))
        self.assertEqual(code, 0, told)

    def test_limit_ends_a_step_and_all_that_it_started(self):
        start = time.monotonic()
        code, told = played(step("hangs", "sleep 50 & echo child $!; sleep 60", limit=1))
        self.assertLess(time.monotonic() - start, 30)
        self.assertEqual((code, told.splitlines()[-1]), (1, "0 passed, 1 failed"))
        self.assertIn("ended after 1 s, its limit", told)
        child = (run_tests.LOGS / "hangs.log").read_text().split()[1]
        state = pathlib.Path(f"/proc/{child}/stat")
        alive = state.exists() and state.read_text().split()[2] != "Z"
        self.assertFalse(alive, "its child still runs")

    def test_steps_get_their_environment(self):
        code, _ = played(step("a", 'test "$WHAT" = this', tests=IS_ONE, env={"WHAT": "this"}))
        self.assertEqual(code, 0)

    def test_nothing_run_is_no_success(self):
        self.assertEqual(played()[0], 1)


class Scheduling(unittest.TestCase):
    def test_builds_take_all_processors_and_what_waits_runs_beside(self):
        runner = run_tests.Runner()
        whole, one, waits = (step(load, "true", load=load) for load in (WHOLE, ONE, WAITS))
        self.assertTrue(all(runner.fits(each) for each in (whole, one, waits)))
        runner.running[whole] = None
        self.assertEqual([runner.fits(each) for each in (whole, one, waits)], [False, False, True])
        runner.running = {step(f"one {n}", "true"): None for n in range(run_tests.PROCESSORS)}
        self.assertEqual([runner.fits(each) for each in (whole, one, waits)], [False, False, True])
        runner.running = {step(f"w {n}", "true", load=WAITS): None
                          for n in range(run_tests.PROCESSORS)}
        self.assertEqual([runner.fits(each) for each in (whole, one, waits)], [True, True, False])


class Table(unittest.TestCase):
    def test_names_are_unique_and_every_size_is_whole(self):
        names = [row.name for row in run_tests.STEPS]
        self.assertEqual(len(names), len(set(names)))
        sizes = [run_tests.chosen(run_tests.STEPS, size) for size in ("quick", "default", "all")]
        self.assertTrue(0 < len(sizes[0]) < len(sizes[1]) < len(sizes[2]))

    def test_what_is_needed_comes_along_and_first(self):
        steps = run_tests.chosen(run_tests.STEPS, "all", "^archives, unpacked$")
        names = [row.name for row in steps]
        self.assertEqual(names[-1], "archives, unpacked")
        self.assertIn("make the archives", names)
        self.assertIn("build win32", names)
        for size in ("quick", "default", "all"):
            seen = set()
            for row in run_tests.chosen(run_tests.STEPS, size):
                self.assertTrue(seen.issuperset(row.needs), f"{row.name} stands before what it needs")
                seen.add(row.name)


def main():
    suite = unittest.defaultTestLoader.loadTestsFromModule(sys.modules[__name__])
    result = unittest.TextTestRunner(stream=sys.stdout).run(suite)
    bad = len(result.failures) + len(result.errors)
    print(f"{result.testsRun - bad} passed, {bad} failed")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
