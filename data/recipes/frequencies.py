#!/usr/bin/env python3
"""Writes how common the words of a finished dictionary are.

    frequencies.py --dictionary FOLDER --code-page N [--common LIST] [--pairs LIST] [--prose COUNTS] MODEL...

FOLDER gets frequencies.txt: lines of word, blank, count in UTF-8, ascending. The counts come from the word
models of Debian's onboard-data (where several have a word, the highest); capitals count with their lower
case. A form that no model has, but whose stem one has, gets a small share of the stem's count. With a LIST of
a language's common words, all others count a tenth: names and terms, which the models have many of, are
seldom what a writer meant. PAIRS are two words each that are often written as one; they get lines as well,
with the count of the rarer word. COUNTS, lines of word, blank, count, are of prose of another kind; where they
are higher they hold.
"""

import argparse
from pathlib import Path

from words import read_words

# A form without a count of its own is about this much rarer than its stem.
SHARE_OF_STEM = 0.05
SHARE_OF_POSSESSIVE = 0.02
SHARE_OF_UNCOMMON = 0.1
# Common words without a count have this one.
LEAST_OF_COMMON = 100
# A smaller share says no more than no count.
LEAST_SHARE = 5
LONGEST_ENDING = 3
SHORTEST_STEM = 3


def counts_of(models):
    """{word in lower case: count}; the words that begin with "<" are the models' own marks."""
    counts = {}
    for model in models:
        one = {}
        with open(model, encoding="utf-8") as lines:
            for line in lines:
                if line.startswith("\\2-grams"):
                    break
                count, _, word = line.rstrip("\n").partition(" ")
                if word and count.isdigit() and not word.startswith("<"):
                    one[word.lower()] = one.get(word.lower(), 0) + int(count)
        for word, count in one.items():
            counts[word] = max(counts.get(word, 0), count)
    return counts


def words_of(folder, code_page):
    for file in sorted(folder.glob("*.dic")):
        for line in file.read_bytes().split(b"\r\n"):
            word = line.partition(b",")[0].decode(f"cp{code_page}", errors="replace")
            if word:
                yield word


def count_from_stem(word, counts):
    """The share of the commonest counted word that this one is longer than by an ending."""
    if word.endswith("'s"):
        return counts.get(word[:-2], 0) * SHARE_OF_POSSESSIVE
    best = 0
    for ending in range(1, LONGEST_ENDING + 1):
        stem = word[:-ending]
        if len(stem) < SHORTEST_STEM:
            break
        best = max(best, counts.get(stem, 0), counts.get(stem + "e", 0), counts.get(stem + "y", 0))
    return best * SHARE_OF_STEM


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--dictionary", type=Path, required=True)
    parser.add_argument("--code-page", type=int, default=1252)
    parser.add_argument("--common")
    parser.add_argument("--pairs")
    parser.add_argument("--prose")
    parser.add_argument("models", nargs="+")
    arguments = parser.parse_args()
    counts = counts_of(arguments.models)
    common = {word.lower() for word in read_words(arguments.common)} if arguments.common else None
    prose = dict(line.split() for line in read_words(arguments.prose)) if arguments.prose else {}
    lines = []
    for word in words_of(arguments.dictionary, arguments.code_page):
        count = counts.get(word, 0)
        if not count and (share := int(count_from_stem(word, counts))) >= LEAST_SHARE:
            count = share
        if common is not None:
            count = max(count, LEAST_OF_COMMON) if word in common else int(count * SHARE_OF_UNCOMMON)
        count = max(count, int(prose.get(word, 0)))
        if count:
            lines.append(f"{word} {count}\n")
    for pair in read_words(arguments.pairs) if arguments.pairs else ():
        count = min(counts.get(word, 0) for word in pair.split())
        lines.append(f"{pair} {max(count, LEAST_SHARE)}\n")
    target = arguments.dictionary / "frequencies.txt"
    target.write_text("".join(sorted(lines)), encoding="utf-8", newline="")


if __name__ == "__main__":
    main()
