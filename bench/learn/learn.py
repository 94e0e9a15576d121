#!/usr/bin/env python3
"""Learns the costs of misspellings anew and writes engine/suggest/learned_costs.inc.

    bench/learn/learn.py

Wants the preset "native" configured with -DWORDHAWK_BENCHMARKS=ON, its targets learn_costs and dictionary-1033
built, and the package codespell.
"""

import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
import pairs

BUILD = ROOT / "build" / "native"
WORK = ROOT / "build" / "learn"


def main():
    shutil.rmtree(WORK, ignore_errors=True)
    dictionary = WORK / "data" / "Dictionarys" / "1033"
    shutil.copytree(BUILD / "bin" / "dictionaries" / "1033", dictionary)
    for name, part in pairs.split(pairs.known_words(dictionary)).items():
        lines = "".join(f"{wrong}\t{right}\n" for wrong, right in part)
        (WORK / f"{name}.txt").write_text(lines, encoding="utf-8")
    subprocess.run([BUILD / "bin" / "learn_costs", WORK / "data", WORK / "learn.txt", WORK / "tune.txt",
                    ROOT / "engine" / "suggest" / "learned_costs.inc"], check=True)


if __name__ == "__main__":
    main()
