"""Of the words that people use, those that a hunspell dictionary accepts: the common compounds that it
makes by rule are then simply in the list."""

import argparse
import subprocess
from pathlib import Path


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", required=True)
    parser.add_argument("--dictionary", required=True, help="path without .dic")
    parser.add_argument("words", help="one a line")
    arguments = parser.parse_args()
    words = Path(arguments.words).read_text(encoding="utf-8").split("\n")
    checked = subprocess.run(["hunspell", "-i", "utf-8", "-d", arguments.dictionary, "-l"],
                             input="\n".join(words), capture_output=True, text=True, encoding="utf-8",
                             check=True)
    unknown = set(checked.stdout.split("\n"))
    accepted = [word for word in words if word and word not in unknown]
    if len(accepted) < len(words) // 10:
        raise SystemExit(f"{arguments.dictionary} accepts next to nothing: {checked.stderr.strip()}")
    Path(arguments.output).write_text("\n".join(accepted) + "\n", encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
