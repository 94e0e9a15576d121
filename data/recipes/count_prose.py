#!/usr/bin/env python3
"""Counts the words of the technical English that is installed here: sources/english-prose.txt.

    count_prose.py --common LIST... -- LIST...

Prints lines of word, blank, count for the words of the LISTs that manual pages, headers, scripts and notes of
programs use much more than the word models do; short words must be in a list of common ones. The counts are
on the scale of the models. A text or project counts a word a few times at most, so that none speaks for all.
What is found depends on the packages that are installed, so this runs by hand and the figures are kept.
"""

import argparse
import gzip
import re
import zlib
from collections import Counter
from pathlib import Path

from frequencies import counts_of
from words import read_words

FOLDERS = ("/usr/share/doc", "/usr/include", "/usr/lib/python3/dist-packages", "/usr/lib/python3.11",
           "/usr/share/perl", *map(str, sorted(Path("/usr/share/man").glob("man*"))))
KINDS = re.compile(r"\.(h|hpp|py|txt|md|rst|html|pod|pm|pl|\d)(\.gz)?$|^[^.]+(\.gz)?$|\.Debian(\.gz)?$")
MODELS = ("en_US", "en_GB", "en_CA", "en_AU")
# A word of running text, as opposed to a part of a name, path or call.
WORD = re.compile(r"(?<![\w.$%@<\\/'-])[A-Z]?[a-z]{2,}(?:'[a-z]+)?(?![\w(=/\\@-])")
MOST_BYTES = 2_000_000
MOST_IN_TEXT = 5
MOST_IN_PROJECT = 20
# Rarer words are there by chance.
LEAST = 10
# What one of these counts stands for in the models, which are made of far more text.
SCALE = 1000
# Shorter words of the long lists are mostly abbreviations.
SHORTEST = 5
# Words that are not this much more frequent than in the models are left to them.
MUCH = 4
# Lists of misspellings are no prose.
SKIPPED = re.compile("codespell|wordlist|misspell")


def read(file):
    data = file.read_bytes()
    if file.suffix == ".gz":
        data = gzip.decompress(data)
    return "" if b"\0" in data[:1000] else data.decode("utf-8", errors="ignore")


def project_of(folder, file):
    """Texts of one project: those whose paths agree up to the first sign that is no letter."""
    return folder, re.match(r"[A-Za-z]*", str(file.relative_to(folder))).group()


def count():
    counts = {}
    for folder in FOLDERS:
        for file in sorted(Path(folder).rglob("*")):
            if SKIPPED.search(str(file)) or not KINDS.search(file.name):
                continue
            try:
                if not file.is_file() or file.is_symlink() or file.stat().st_size > MOST_BYTES:
                    continue
                words = Counter(word.lower() for word in WORD.findall(read(file)))
            except (OSError, EOFError, zlib.error):
                continue
            project = counts.setdefault(project_of(folder, file), Counter())
            for word, number in words.items():
                project[word] += min(number, MOST_IN_TEXT)
    total = Counter()
    for project in counts.values():
        for word, number in project.items():
            total[word] += min(number, MOST_IN_PROJECT)
    return total


def rounded(number):
    """To two digits."""
    digits = len(str(number)) - 2
    return round(number, -digits) if digits > 0 else number


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--common", nargs="+", required=True)
    parser.add_argument("lists", nargs="+")
    arguments = parser.parse_args()
    known = {word for path in arguments.lists for word in read_words(path) if len(word) >= SHORTEST}
    known.update(word for path in arguments.common for word in read_words(path))
    models = counts_of(f"/usr/share/onboard/models/{name}.lm" for name in MODELS)
    for word, number in sorted(count().items()):
        if word in known and number >= LEAST and number * SCALE > MUCH * models.get(word, 0):
            print(word, rounded(number * SCALE))


if __name__ == "__main__":
    main()
