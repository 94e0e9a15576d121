"""What the recipes share: reading word lists, writing the prepared one."""

import argparse


def read_words(path):
    """Yields the words of a list, one a line; UTF-8, or Latin-1 where it is not UTF-8."""
    with open(path, "rb") as file:
        data = file.read()
    try:
        text = data.decode("utf-8")
    except UnicodeDecodeError:
        text = data.decode("latin-1")
    for line in text.split("\n"):
        word = line.strip()
        if word:
            yield word


def run(recipe):
    """Runs `recipe`, which makes words from the lists named on the command line."""
    parser = argparse.ArgumentParser()
    parser.add_argument("--output", required=True)
    parser.add_argument("lists", nargs="+")
    arguments = parser.parse_args()
    words = sorted(set(recipe(*arguments.lists)))
    with open(arguments.output, "w", encoding="utf-8", newline="\n") as file:
        for word in words:
            file.write(word + "\n")
