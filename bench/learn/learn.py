#!/usr/bin/env python3
"""Learns the costs of misspellings anew and writes engine/suggest/learned_costs.inc.

    cmake --preset native -DWORDHAWK_BENCHMARKS=ON
    cmake --build --preset native --target learn

Wants the package codespell.
"""

import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
import pairs



def main():
    build = Path(sys.argv[1])
    work = build / "learn"
    shutil.rmtree(work, ignore_errors=True)
    dictionary = work / "data" / "Dictionarys" / "1033"
    shutil.copytree(build / "bin" / "dictionaries" / "1033", dictionary)
    for name, part in pairs.split(pairs.known_words(dictionary)).items():
        lines = "".join(f"{wrong}\t{right}\n" for wrong, right in part)
        (work / f"{name}.txt").write_text(lines, encoding="utf-8")
    subprocess.run([build / "bin" / "learn_costs", work / "data", work / "learn.txt", work / "tune.txt",
                    ROOT / "engine" / "suggest" / "learned_costs.inc"], check=True)


if __name__ == "__main__":
    main()
