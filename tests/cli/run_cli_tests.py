#!/usr/bin/env python3
"""Runs the scenarios of the command line against a built wordhawk-cli.

run_cli_tests.py --program PATH [--emulator PATH] [--reference PATH]... [NAME...]

--emulator runs a Windows program here; --reference is a build for this system whose output must be the
same (the first that exists counts); NAMEs choose tests, such as Check or Pipe.test_answers.
"""

import argparse
import os
import pathlib
import sys
import tempfile
import time
import unittest

import broken_test
import check_test
import commands_test
import compare_test
import pipe_test
import scale_test
import words_in_use_test
from cli_support import CliTest, Program


class CountingResult(unittest.TestResult):
    """Prints one line a test, in the manner of the other test programs."""

    def startTest(self, test):
        super().startTest(test)
        self.begin = time.monotonic()

    def line(self, mark, test, note=""):
        name = test.id().split(".", 1)[1]
        print(f"[ {mark:>8} ] {name} ({(time.monotonic() - self.begin) * 1000:.0f} ms){note}", flush=True)

    def addSuccess(self, test):
        super().addSuccess(test)
        self.line("OK", test)

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self.line("SKIPPED", test, ": " + reason)

    def addError(self, test, err):
        super().addError(test, err)
        print(self.errors[-1][1])
        self.line("FAILED", test)

    def addFailure(self, test, err):
        super().addFailure(test, err)
        print(self.failures[-1][1])
        self.line("FAILED", test)

    def addSubTest(self, test, subtest, err):
        super().addSubTest(test, subtest, err)
        if err is not None:
            print(subtest, (self.failures or self.errors)[-1][1])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--emulator")
    parser.add_argument("--reference", action="append", default=[])
    parser.add_argument("names", nargs="*")
    options = parser.parse_args()

    CliTest.program = Program(os.path.abspath(options.program), options.emulator)
    references = [path for path in options.reference if os.path.exists(path)]
    if references:
        CliTest.reference = Program(os.path.abspath(references[0]))

    suite = unittest.TestSuite()
    loader = unittest.defaultTestLoader
    for module in [broken_test, check_test, commands_test, pipe_test, scale_test, words_in_use_test, compare_test]:
        if options.names:
            for name in options.names:
                if hasattr(module, name.split(".")[0]):
                    suite.addTests(loader.loadTestsFromName(name, module))
        else:
            suite.addTests(loader.loadTestsFromModule(module))
    if suite.countTestCases() == 0:
        sys.exit("no such test")

    with tempfile.TemporaryDirectory(prefix="wordhawk-cli-") as folder:
        CliTest.make_template(folder)
        result = CountingResult()
        suite.run(result)
    failed = {test.id().split(" ")[0] for test, _ in result.failures + result.errors}
    passed = result.testsRun - len(failed) - len(result.skipped)
    print(f"[==========] {result.testsRun} tests ran.\n[  PASSED  ] {passed} tests.")
    if result.skipped:
        print(f"[  SKIPPED ] {len(result.skipped)} tests.")
    if failed:
        print(f"[  FAILED  ] {len(failed)} tests.")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
    main()
