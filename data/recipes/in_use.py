"""Words that people use, the most frequent first: the single words of a language model's counts."""

import argparse
import re
from pathlib import Path

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
    parser.add_argument("model")
    arguments = parser.parse_args()
    words = sorted(counted_words(arguments.model), key=lambda entry: (-entry[1], entry[0]))
    text = "".join(f"{word}\n" for word, _ in words)
    Path(arguments.output).write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
