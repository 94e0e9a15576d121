#!/usr/bin/env python3
"""Measures each language's dictionary on prose: how many words it flags, and how many slips it lets pass,
beside Debian's hunspell and aspell.

    bench/languages.py              prints the tables
    bench/languages.py --write      also puts them into docs/languages.md
    bench/languages.py 1030 1031    these languages alone
    bench/languages.py --others     builds ten more languages from their hunspell dictionaries and compares

Wants the preset "native" built with its dictionaries (./run FILE does it), and the packages gnome-user-docs,
hunspell, aspell, and of each language manpages-XX, hunspell-XX and aspell-XX; a column or row whose package is
missing is left empty.
"""

import argparse
import random
import shutil
import subprocess
import sys
import time
from pathlib import Path
from typing import Callable, NamedTuple

sys.path.insert(0, str(Path(__file__).resolve().parent))
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "data" / "recipes"))
import in_use
import prose

ROOT = Path(__file__).resolve().parents[1]
WORK = ROOT / "build" / "bench" / "languages"
PAGE = ROOT / "docs" / "languages.md"
BEGIN, END = "<!-- measured -->", "<!-- end of measured -->"
SLIPS = 3000


class Language(NamedTuple):
    name: str
    locale: int
    manual: str
    pages: str
    hunspell: str
    aspell: str
    model: str


LANGUAGES = [
    Language("English", 1033, "C", "", "en_US", "en_US", "en_US"),
    Language("Danish", 1030, "da", "da", "da_DK", "da", "da_DK"),
    Language("German", 1031, "de", "de", "de_DE", "de", "de_DE"),
    Language("Spanish", 1034, "es", "es", "es_ES", "es", "es_ES"),
    Language("French", 1036, "fr", "fr", "fr", "fr", "fr_FR"),
    Language("Italian", 1040, "it", "it", "it_IT", "it", "it_IT"),
    Language("Dutch", 1043, "nl", "nl", "nl", "nl", "nl_NL"),
    Language("Polish", 1045, "pl", "pl", "pl_PL", "pl", "pl_PL"),
    Language("Portuguese (Brazil)", 1046, "pt_BR", "pt_BR", "pt_BR", "pt_BR", "pt_BR"),
    Language("Swedish", 1053, "sv", "sv", "sv_SE", "sv", "sv_SE"),
    Language("Portuguese (Portugal)", 2070, "pt", "pt", "pt_PT", "pt_PT", "pt_PT"),
]


def answer(command, words):
    """What a checker prints about `words`, one a line; None where it is not installed."""
    if not shutil.which(str(command[0])):
        return None
    done = subprocess.run([str(part) for part in command], input="\n".join(words) + "\n", text=True,
                          capture_output=True, encoding="utf-8")
    if done.returncode not in (0, 1):
        print(f"{' '.join(map(str, command))}: {done.stderr.strip()}", file=sys.stderr)
        return None
    return done.stdout.split("\n")


def on_lines(words, lines):
    """Those of `words` on whose line anything is unknown: FILE:LINE:COLUMN: WORD."""
    numbers = {int(line.split(":", 2)[1]) for line in lines if line}
    return {word for number, word in enumerate(words, 1) if number in numbers}


def whole_lines(words, lines):
    """The same of a checker that prints such lines themselves."""
    return set(words) & set(lines)


def with_parts(words, lines):
    """The same of a checker that prints the unknown words, or what it took for one."""
    unknown = set(lines)
    return {word for word in words if not unknown.isdisjoint([word, *word.split("'")])}


def slips(words, known):
    """Words with one letter dropped, added, mistaken or swapped, that nobody writes."""
    chance = random.Random(7)
    sources = sorted(word for word in words if len(word) >= 4)
    letters = sorted({c for word in sources for c in word.lower() if c.isalpha()})
    known = known | {word.lower() for word in words}
    made = set()
    while len(made) < SLIPS:
        word = chance.choice(sources)
        at = chance.randrange(len(word))
        rest = word[at + 1:]
        slip = word[:at] + chance.choice([rest, chance.choice(letters) + word[at:], chance.choice(letters) + rest,
                                          rest[:1] + word[at] + rest[1:]])
        if slip.lower() not in known and len(slip) > 2 and "'" not in slip and not slip.isupper():
            made.add(slip)
    return sorted(made)


class Checker(NamedTuple):
    name: str
    command: list
    # Which words are unknown by what it prints. Some take a word apart, and name the part.
    read: Callable

    def misses(self, words):
        """Those of `words` that are flagged, or None."""
        lines = answer(self.command, words)
        return None if lines is None else self.read(words, lines)


def checkers(language, program):
    data = WORK / f"data-{language.locale}"
    ours = [program, "--data", data, "--locale", language.locale]
    listing = ["check", "--no-suggestions", "-"]
    return [Checker("ours", ours + listing, on_lines),
            Checker("ours, --classic", ours + ["--classic"] + listing, on_lines),
            Checker("hunspell", ["hunspell", "-i", "utf-8", "-d", language.hunspell, "-L"], whole_lines),
            Checker("aspell", ["aspell", "--encoding=utf-8", "-l", language.aspell, "list"], with_parts)]


def flagged(checker, counts):
    misses = checker.misses(list(counts))
    if misses is None or not counts:
        return ""
    return (f"{100 * len(misses) / len(counts):.1f} / "
            f"{100 * sum(counts[word] for word in misses) / sum(counts.values()):.2f}")


def passed(checker, made):
    misses = checker.misses(made)
    return "" if misses is None else f"{100 - 100 * len(misses) / len(made):.2f}"


def size_of(program, locale):
    folder = Path(program).parent / "dictionaries" / str(locale)
    return sum(file.stat().st_size for file in folder.glob("*")) / 1e6


def measure(language, program):
    model = Path(f"/usr/share/onboard/models/{language.model}.lm")
    known = {word.lower() for word, _ in in_use.counted_words(model)}
    manual = prose.manual(language.manual)
    pages = prose.words_of(prose.manual_pages(language.pages)) if language.pages else {}
    made = slips(manual, known)
    rows = []
    for checker in checkers(language, program):
        rows.append((language.name, checker.name, flagged(checker, manual), passed(checker, made),
                     flagged(checker, pages)))
        print(" | ".join(rows[-1]), flush=True)
    return rows


class Other(NamedTuple):
    name: str
    locale: int
    page: int
    manual: str
    hunspell: str


OTHERS = [Other("Catalan", 1027, 1252, "ca", "ca"), Other("Croatian", 1050, 1250, "hr", "hr_HR"),
          Other("Czech", 1029, 1250, "cs", "cs_CZ"), Other("Greek", 1032, 1253, "el", "el_GR"),
          Other("Hungarian", 1038, 1250, "hu", "hu_HU"), Other("Lithuanian", 1063, 1257, "lt", "lt_LT"),
          Other("Romanian", 1048, 1250, "ro", "ro_RO"), Other("Russian", 1049, 1251, "ru", "ru_RU"),
          Other("Slovenian", 1060, 1250, "sl", "sl_SI"), Other("Ukrainian", 1058, 1251, "uk", "uk_UA")]


def measure_other(language, program, folder):
    """A row of the table of languages made from hunspell dictionaries."""
    data = WORK / f"data-{language.locale}"
    output = data / "Dictionarys" / str(language.locale)
    start = time.monotonic()
    built = subprocess.run([program, "build-dictionary", "--pieces", "--code-page", str(language.page), "--hunspell",
                            folder / f"{language.hunspell}.dic", "--output", output], capture_output=True, text=True,
                           timeout=600)
    if built.returncode != 0:
        return language.name, built.stderr.strip()
    seconds = time.monotonic() - start
    size = sum(file.stat().st_size for file in output.glob("*")) / 1e6
    manual = prose.manual(language.manual)
    ours = Checker("ours", [program, "--no-install", "--data", data, "--locale", language.locale, "check",
                            "--no-suggestions", "-"], on_lines)
    theirs = Checker("hunspell", ["hunspell", "-i", "utf-8", "-d", folder / language.hunspell, "-L"], whole_lines)
    made = slips(manual, set())
    return (language.name, str(language.page), f"{size:.1f}", f"{seconds:.0f}", str(len(manual)), flagged(ours, manual),
            flagged(theirs, manual), passed(ours, made), passed(theirs, made), built.stderr.strip().replace("\n", "; "))


def others(program, folder):
    print("| language | page | MB | s | words | ours: flagged | hunspell: flagged | ours: slips | hunspell: slips | said |")
    print("|---|---|---|---|---|---|---|---|---|---|")
    for language in OTHERS:
        if (folder / f"{language.hunspell}.dic").exists():
            print("| " + " | ".join(measure_other(language, program, folder)) + " |", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("locales", nargs="*", type=int)
    parser.add_argument("--others", action="store_true")
    parser.add_argument("--hunspell", type=Path, default=Path("/usr/share/hunspell"), metavar="FOLDER",
                        help="where --others finds the dictionaries")
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--program", default=ROOT / "build" / "native" / "bin" / "wordhawk-cli")
    arguments = parser.parse_args()
    shutil.rmtree(WORK, ignore_errors=True)
    WORK.mkdir(parents=True)
    if arguments.others:
        return others(arguments.program, arguments.hunspell)
    chosen = [one for one in LANGUAGES if not arguments.locales or one.locale in arguments.locales]
    lines = ["| language | checker | manual: % of words flagged, each once / all | slips let pass, % | "
             "manual pages: % flagged |", "|---|---|---|---|---|"]
    for language in chosen:
        lines += ["| " + " | ".join(row) + " |" for row in measure(language, arguments.program)]
    lines += ["", "| language | size of the dictionary, MB |", "|---|---|"]
    lines += [f"| {language.name} | {size_of(arguments.program, language.locale):.1f} |" for language in chosen]
    if arguments.write:
        before, _, rest = PAGE.read_text(encoding="utf-8").partition(BEGIN)
        after = rest.partition(END)[2]
        PAGE.write_text(before + BEGIN + "\n" + "\n".join(lines) + "\n" + END + after, encoding="utf-8")
    else:
        print("\n".join(lines))


if __name__ == "__main__":
    main()
