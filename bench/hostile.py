#!/usr/bin/env python3
"""Checks texts made to be slow, and tells whether the time grows as their size does.

hostile.py [--program PATH] [--sizes KILOBYTES,KILOBYTES] [--rounds N] [KIND...]

Each kind of text is checked with suggestions at two sizes, by processor time; the status is 1 when a
kind takes more than three times as long a byte at the larger size. --rounds adds as many random
mixtures of the pieces that the kinds are made of. --sizes 1000,10000 is the check of the promise that
any text of 10 MB is checked in time that grows with its size; the default takes a minute.
"""

import argparse
import pathlib
import random
import sys
import tempfile

import measure

PIECES = ["www.", "http:", "mailto:", "@", "a", "e", "zq", "(", ")", "[", "'", "\u2019", ".", ",", "-", " ", "\n",
          "the ", "recieve ", "WWW.", "\u00e9", "\u4e00", "1", "\t", "\0"]


def letters(number, alphabet="abcdefghijklmnopqrstuvwxyz"):
    word = ""
    while number >= 0:
        word += alphabet[number % len(alphabet)]
        number = number // len(alphabet) - 1
    return word


def repeat(piece, size):
    return (piece * (size // len(piece) + 1))[:size]


def numbered(size, form, join="\n"):
    """Texts made of a number each, up to `size` characters."""
    parts, length = [], 0
    while length < size:
        parts.append(form(len(parts)))
        length += len(parts[-1]) + len(join)
    return join.join(parts)


def shrinking(size):
    """Each line one prefix shorter than the last, then one line as long as all of them."""
    count = int((size / 4) ** 0.5)
    lines = "\n".join("www." * n for n in range(count, 0, -1))
    return lines + "\n" + repeat("www.", max(4, size - len(lines)))


def substrings(size):
    """Every stretch of one row of addresses, the longest first, then the row again and again."""
    count = max(2, int((3 * size / 6) ** (1 / 3)))
    row = [f"www.{letters(i)}" for i in range(count)]
    lines = ["".join(row[begin:begin + most]) for most in range(count, 0, -1)
             for begin in random.sample(range(count - most + 1), count - most + 1)]
    text = "\n".join(lines)
    return text + "\n" + repeat("\n".join(["".join(row)] * 20) + "\n", max(1, size - len(text)))


KINDS = {
    "one-word": lambda size: repeat("recieve ", size),
    "one-letter": lambda size: repeat("a", size),
    "one-letter-words": lambda size: repeat("zqz ", size),
    "brackets": lambda size: repeat("(", size),
    "bracket-words": lambda size: repeat("(a) [b] {c} ", size),
    "apostrophes": lambda size: repeat("a'", size),
    "quotes": lambda size: repeat("'", size),
    "unknown": lambda size: numbered(size, lambda i: "q" + letters(i), " "),
    "unknown-long": lambda size: numbered(size, lambda i: letters(i) * 30, " "),
    "unknown-of-a-kilobyte": lambda size: numbered(size, lambda i: letters(i) * 300, " "),
    "www": lambda size: repeat("www.", size),
    "www-lines": lambda size: repeat("www.", size // 2) + "\n" + repeat("www.", size // 2),
    "http": lambda size: repeat("http://", size),
    "at": lambda size: repeat("@", size),
    "mail": lambda size: repeat("mailto:a@b ", size),
    "addresses": lambda size: numbered(size, lambda i: f"http://{letters(i)}.org/{i}"),
    "addresses-joined": lambda size: numbered(size // 2, lambda i: f"www.{i}x") + "\n" +
                                     numbered(size // 2, lambda i: f"www.{i}x", "\u2019"),
    "addresses-between": lambda size: "www.k\n" + numbered(size, lambda i: f"www.kwww.{i}", ""),
    "prefixes": lambda size: repeat("http:www.ftp:", size // 2) + "\n" + repeat("ftp:http:", size // 2),
    "shrinking": shrinking,
    "substrings": substrings,
    "line-ends": lambda size: repeat("\r\r\n\n", size),
    "no-blanks": lambda size: numbered(size, lambda i: letters(i), "-"),
}


def mixture(seed):
    def make(size):
        chance = random.Random(seed)
        pieces = chance.sample(PIECES, chance.randrange(2, 8))
        stretch = ["".join(chance.choices(pieces, k=chance.choice([3, 30, 3000]))) for _ in range(8)]
        text = ""
        while len(text) < size:
            text += "".join(chance.choices(stretch, k=50))
        return text[:size]
    return make


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", default="build/native/bin/wordhawk-cli")
    parser.add_argument("--sizes", default="100,400")
    parser.add_argument("--rounds", type=int, default=0)
    parser.add_argument("kinds", nargs="*", metavar="KIND")
    options = parser.parse_args()
    small, large = (int(size) * 1000 for size in options.sizes.split(","))
    kinds = {name: KINDS[name] for name in options.kinds or KINDS}
    kinds.update({f"mixture-{seed}": mixture(seed) for seed in range(options.rounds)})

    slow = []
    with tempfile.TemporaryDirectory(prefix="wordhawk-hostile-") as name:
        folder = pathlib.Path(name)
        measure.prepare(folder)
        command = [options.program, "--data", folder / "data", "--locale", "1033", "check"]
        (folder / "text").write_text("recieve\n", encoding="utf-8")
        measure.run([*command, folder / "text"])  # installs the dictionaries
        start = measure.best([*command, folder / "text"], times=3).cpu
        print(f"{'kind':24} {small // 1000:>8} KB {large // 1000:>8} KB   times as long a byte")
        for kind, make in kinds.items():
            seconds = []
            for size in (small, large):
                (folder / "text").write_text(make(size), encoding="utf-8", newline="")
                one = measure.run([*command, folder / "text"])
                if one.status not in (0, 1):
                    sys.exit(f"{kind}: exit status {one.status}")
                # What is below a hundredth of a second says nothing about growth.
                seconds.append(max(one.cpu - start, 0.01))
            growth = seconds[1] / seconds[0] * small / large
            print(f"{kind:24} {seconds[0]:9.2f} s {seconds[1]:9.2f} s {growth:8.2f}", flush=True)
            if growth > 3:
                slow.append(kind)
    if slow:
        sys.exit("slower the longer the text: " + ", ".join(slow))


if __name__ == "__main__":
    main()
