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


def corrections(known):
    """Yields every misspelling that is not `known` with its set of corrections, whose words all are."""
    for line in CODESPELL.read_text(encoding="utf-8").splitlines():
        wrong, _, rights = line.strip().lower().partition("->")
        # What follows the last comma is a reason to doubt it, if anything.
        several = {right.strip() for right in rights.split(",")[:-1]}
        if not re.fullmatch("[^\\W\\d_']['\\w]+", wrong) or wrong in known or len(several) == 1:
            continue
        rights = several or {rights}
        if all(word in known for right in rights for word in right.split()):
            yield wrong, rights


def with_several(known):
    """[(misspelling, corrections)] of those with several corrections."""
    return [(wrong, rights) for wrong, rights in corrections(known) if len(rights) > 1]


def split(known):
    """{part: [(misspelling, word)]} of those with one correction, which may be words with blanks between."""
    pairs = {wrong: rights.pop() for wrong, rights in corrections(known) if len(rights) == 1}
    parts = {name: [] for name in PARTS}
    for wrong, right in sorted(pairs.items()):
        number = zlib.crc32(right[:FAMILY].encode()) % 20
        parts[next(name for name, numbers in PARTS.items() if number in numbers)].append((wrong, right))
    return parts
