#!/usr/bin/env python3
"""Counts the results that ./test leaves in a folder; the last line reads "N passed, M failed".

The folder has NAME.failed for each step that failed, XML files of source checks, and one folder per
build with ctest.xml and, for each GoogleTest program, PROGRAM.xml. Each test case counts. A program
that ended badly without a failed case of its own (a crash, a time limit, no XML at all) counts as
one failure more.
"""

import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path


MOST_LINES = 15  # of what a failed test said


class Count:
    def __init__(self):
        self.passed = 0
        self.skipped = 0
        self.failures = []  # pairs of a name and what the test said

    def add(self, other):
        self.passed += other.passed
        self.skipped += other.skipped
        self.failures += other.failures


def count_cases(path):
    """Counts the test cases of one XML file, GoogleTest's or plain JUnit."""
    count = Count()
    for case in ElementTree.parse(path).getroot().iter("testcase"):
        name = f"{case.get('classname')}.{case.get('name')}"
        if case.get("status") in ("notrun", "disabled"):
            continue
        failure = case.find("failure")
        if failure is not None or case.get("status") == "fail":
            count.failures.append((name, "" if failure is None else failure.text or failure.get("message", "")))
        elif case.find("skipped") is not None or case.get("result") == "skipped":
            count.skipped += 1
        else:
            count.passed += 1
    return count


def without_successes(said):
    """What a test program said, but for its tests that passed."""
    return "\n".join(line for line in said.splitlines() if "[       OK ]" not in line and "SKIPPED" not in line)


def count_program(test, folder):
    """Counts one entry of ctest.xml: the cases of its program, or the entry itself."""
    name = test.get("name")
    ended_well = test.get("status") == "run"
    count = Count()
    files = sorted(folder.glob(f"{name}_tests.xml")) + sorted(folder.glob(f"{name}_tests_[0-9]*.xml"))
    for file in files:
        try:
            count.add(count_cases(file))
        except ElementTree.ParseError:
            count.failures.append((f"{name}: unreadable results", ""))
    if not files and ended_well:
        # A script, or a program that GoogleTest has no part in.
        if test.find("skipped") is not None:
            count.skipped += 1
        else:
            count.passed += 1
    if not ended_well and not count.failures:
        if test.get("status") in ("notrun", "disabled") and test.find("skipped") is not None:
            count.skipped += 1
        else:
            said = test.findtext("system-out") or ""
            count.failures.append((f"{name} (ended badly: {test.get('status')})", without_successes(said)))
    return count


def count_build(folder):
    count = Count()
    try:
        tests = list(ElementTree.parse(folder / "ctest.xml").getroot().iter("testcase"))
    except (OSError, ElementTree.ParseError) as error:
        count.failures.append((f"no test results: {error}", ""))
        return count
    for test in tests:
        count.add(count_program(test, folder))
    if not tests:
        count.failures.append(("no tests found", ""))
    return count


def main():
    results = Path(sys.argv[1])
    total = Count()
    for failed in sorted(results.glob("*.failed")):
        total.failures.append((f"step {failed.stem}", ""))
    for file in sorted(results.glob("*.xml")):
        count = count_cases(file)
        print(f"{file.stem}: {count.passed} passed, {len(count.failures)} failed")
        total.add(count)
    for folder in sorted(path for path in results.iterdir() if path.is_dir()):
        count = count_build(folder)
        note = f", {count.skipped} skipped" if count.skipped else ""
        print(f"{folder.name}: {count.passed} passed, {len(count.failures)} failed{note}")
        count.failures = [(f"{folder.name}: {name}", said) for name, said in count.failures]
        total.add(count)
    for name, said in total.failures:
        print(f"FAILED {name}")
        for line in said.strip().splitlines()[:MOST_LINES]:
            print("    " + line[:300])
    print(f"{total.passed} passed, {len(total.failures)} failed")
    return 1 if total.failures or not total.passed else 0


if __name__ == "__main__":
    sys.exit(main())
