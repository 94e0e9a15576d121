"""Words that people use, the most frequent first: the single words of a language model's counts, and behind
them those of more models and of lists of common words."""

import argparse
import re
from pathlib import Path

from words import read_words

WORD = re.compile(r"[^\W\d_]+(?:['’-][^\W\d_]+)*")


def counted_words(path):
    """Yields (word, count) of a model's list of single words."""
    inside = False
    with open(path, encoding="utf-8") as model:
        for line in model:
            if line.startswith("\\"):
                if inside:
                    return
                inside = line.strip() == "\\1-grams:"
            elif inside:
                fields = line.split()
                if len(fields) > 1 and WORD.fullmatch(fields[1]):
                    yield fields[1], int(fields[0])


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", required=True)
    parser.add_argument("--lists", nargs="*", default=[])
    parser.add_argument("--models", nargs="+", required=True)
    arguments = parser.parse_args()
    words = []
    for model in arguments.models:
        words += [word for word, _ in sorted(counted_words(model), key=lambda entry: (-entry[1], entry[0]))]
    for file in arguments.lists:
        words += read_words(file)
    text = "".join(f"{word}\n" for word in words)
    Path(arguments.output).write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
