"""Pairs of misspelling and word from Debian's codespell, in three parts that share no family of words: one to
learn the costs of misspellings from, one to tune on, and one that only judges."""

import re
import zlib
from pathlib import Path

CODESPELL = Path("/usr/lib/python3/dist-packages/codespell_lib/data/dictionary.txt")
FAMILY = 4  # words that begin with the same letters go into the same part
PARTS = {"learn": range(0, 13), "tune": range(13, 16), "judge": range(16, 20)}


def known_words(folder, code_page=1252):
    """The words of a folder of main dictionary files."""
    return {line.partition(b",")[0].decode(f"cp{code_page}") for file in Path(folder).glob("*.dic")
            for line in file.read_bytes().split(b"\r\n") if line}


def split(known):
    """{part: [(misspelling, word)]} of the misspellings that are not `known`, with one correction that is."""
    pairs = {}
    for line in CODESPELL.read_text(encoding="utf-8").splitlines():
        wrong, _, right = line.strip().lower().partition("->")
        if "," not in right and re.fullmatch("[^\\W\\d_']['\\w]+", wrong) and wrong not in known and right in known:
            pairs[wrong] = right
    parts = {name: [] for name in PARTS}
    for wrong, right in sorted(pairs.items()):
        number = zlib.crc32(right[:FAMILY].encode()) % 20
        parts[next(name for name, numbers in PARTS.items() if number in numbers)].append((wrong, right))
    return parts
