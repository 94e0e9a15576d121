#!/usr/bin/env python3
"""The native program and the Windows program under Wine, adding to one dictionary at once, some of them
through a link from another data folder: no word may be lost.

mixed_writers.py --windows word_writer.exe --emulator PATH --native word_writer...
"""

import argparse
import os
import pathlib
import subprocess
import sys
import tempfile

WORDS_EACH = 100
SKIPPED = 77


def words_of(prefix):
    letters = "abcdefghij"
    return {prefix + "".join(letters[n // 10 ** i % 10] for i in range(4)) for n in range(WORDS_EACH)}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--windows", required=True)
    parser.add_argument("--emulator", required=True)
    parser.add_argument("--native", nargs="+", required=True)
    options = parser.parse_args()
    native = next((path for path in options.native if os.path.exists(path)), None)
    if native is None:
        print("no native build to meet")
        return SKIPPED

    with tempfile.TemporaryDirectory(prefix="wordhawk-mixed-") as folder:
        real = pathlib.Path(folder, "one", "Dictionarys", "Custom")
        linked = pathlib.Path(folder, "two", "Dictionarys", "Custom")
        real.mkdir(parents=True)
        linked.mkdir(parents=True)
        (real / "CUSTOM.DIC").write_bytes(b"")
        (linked / "CUSTOM.DIC").symlink_to("../../../one/Dictionarys/Custom/CUSTOM.DIC")
        writers = [([native], "one", "na"), ([native], "two", "nb"),
                   ([options.emulator, options.windows], "one", "wa"),
                   ([options.emulator, options.windows], "two", "wb")]
        running = [subprocess.Popen([*command, str(pathlib.Path(folder, data)), prefix, str(WORDS_EACH)])
                   for command, data, prefix in writers]
        codes = [process.wait() for process in running]
        held = {line.split(",")[0] for line in (real / "CUSTOM.DIC").read_text().splitlines()}
        expected = set().union(*(words_of(prefix) for _, _, prefix in writers))
        lost = expected - held
        is_link = (linked / "CUSTOM.DIC").is_symlink()
    print(f"exit codes {codes}, {len(held)} words, {len(lost)} lost, the link is {'there' if is_link else 'gone'}")
    return 0 if codes == [0] * len(writers) and not lost and is_link else 1


if __name__ == "__main__":
    sys.exit(main())
