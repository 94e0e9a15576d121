#!/usr/bin/env python3
"""Feeds every reader of foreign bytes with random inputs under the sanitizers, and prints how many each
one took: dictionaries, settings and language files, rich text, documents, the pipe, arguments,
suggestions. ./test runs short rounds of the same tests.

    bench/fuzz.sh MINUTES       all tests share the minutes
    bench/fuzz.sh --inputs N    each test takes N inputs

--filter chooses tests, as GoogleTest's filters do.

"A second" is of processor time. A failure prints the command that repeats it, and ends the run with
status 1.
"""

import argparse
import os
import random
import resource
import subprocess
import sys
import time

BATCH = 50_000


def names_of_tests(program, chosen):
    listed = subprocess.run([program, "--gtest_list_tests", f"--gtest_filter={chosen}"],
                            capture_output=True, text=True, check=True).stdout
    names, suite = [], ""
    for line in listed.splitlines():
        if line.startswith(" "):
            names.append(suite + line.strip())
        else:
            suite = line.split()[0] if line.endswith(".") else ""
    return names


def processor_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def feed(program, test, wanted, seconds):
    """Runs `test` until it took `wanted` inputs, or for `seconds` when that is 0; the inputs taken."""
    begun = time.monotonic()
    seed = random.SystemRandom().randrange(2**31)
    taken = 0
    while taken < wanted or (not wanted and (not taken or time.monotonic() - begun < seconds)):
        rounds = min(BATCH, wanted - taken) if wanted else BATCH
        asked = {"WORDHAWK_FUZZ_ROUNDS": str(rounds), "WORDHAWK_FUZZ_SEED": str(seed + taken)}
        # Short call stacks make allocations cheap; the command that is printed gives whole ones.
        done = subprocess.run([program, f"--gtest_filter={test}"], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, errors="replace",
                              env=os.environ | asked | {"ASAN_OPTIONS": "malloc_context_size=1"})
        if done.returncode != 0:
            print(done.stdout[-8000:])
            words = [f"{name}={value}" for name, value in asked.items()]
            sys.exit(f"FAILED: {' '.join(words)} {program} --gtest_filter={test}")
        taken += rounds
    return taken


def main():
    parser = argparse.ArgumentParser(prog="bench/fuzz.sh", description=__doc__.split("\n\n")[0])
    parser.add_argument("program", help=argparse.SUPPRESS)
    parser.add_argument("minutes", metavar="MINUTES", type=float, nargs="?", default=0)
    parser.add_argument("--filter", default="*", help="the tests, as GoogleTest has it")
    parser.add_argument("--inputs", metavar="N", type=int, default=0)
    asked = parser.parse_args()
    if (asked.minutes > 0) == (asked.inputs > 0):
        parser.error("give MINUTES or --inputs N")
    tests = names_of_tests(asked.program, asked.filter)
    if not tests:
        parser.error("no such test")
    for test in tests:
        before = processor_seconds()
        taken = feed(asked.program, test, asked.inputs, asked.minutes * 60 / len(tests))
        speed = taken / max(processor_seconds() - before, 0.01)
        print(f"{test:75s} {taken:11d} inputs {speed:8.0f} a second", flush=True)


if __name__ == "__main__":
    main()
