#!/usr/bin/env python3
"""Measures wordhawk-cli beside Debian's hunspell, nuspell and aspell, in one run.

    bench/compare.py             prints the tables
    bench/compare.py --write     also writes them to docs/benchmarks.md
    bench/compare.py --large     with the 1 GB text as well
    bench/compare.py --quick     fewer runs, for a first look

Wants the preset "native" built (./run does it), for the Windows column the preset "windows" too, and the
packages hunspell, hunspell-en-us, libhunspell-dev, nuspell, libnuspell-dev, libicu-dev, aspell, aspell-en,
codespell, wamerican and npm.
"""

import argparse
import datetime
import os
import random
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
import measure
import pairs
import suggestions
import texts

ROOT = Path(__file__).resolve().parents[1]
WORK = ROOT / "build" / "bench"
ENGLISH = "/usr/share/hunspell/en_US"
PARTS = ("checking", "growing", "starting", "suggesting", "millions", "changing", "under_wine")
LARGE_LIST = "/usr/share/dict/american-english-large"


class Bench:
    def __init__(self, arguments):
        self.arguments = arguments
        self.lines = []
        self.exe = self.installed(Path(arguments.build).resolve() / "bin")
        self.windows = Path(arguments.windows) / "bin" / "wordhawk-cli.exe"
        self.times = 2 if arguments.quick else 5
        self.texts = texts.make_texts(WORK, arguments.large)
        measure.prepare(WORK)
        self.data = WORK / "data"
        shutil.rmtree(self.data, ignore_errors=True)
        self.ours = [self.exe, "--data", self.data, "--locale", "1033"]
        # Copies the dictionaries, so that no measured run does.
        measure.run(self.ours + ["check", "--list", self.texts["line"]])
        self.without_index = WORK / "data-without-index"
        shutil.rmtree(self.without_index, ignore_errors=True)
        shutil.copytree(self.data, self.without_index)
        # The first suggestion makes the index.
        measure.run(self.ours + ["suggest", "wrod"])

    @staticmethod
    def installed(built):
        """Our program copied, as the others were installed: how a file was written shows in how fast it starts."""
        folder = WORK / "program"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        for name in ("languages", "dictionaries"):
            (folder / name).symlink_to(built / name)
        return Path(shutil.copy(built / "wordhawk-cli", folder))

    def say(self, line=""):
        print(line, flush=True)
        self.lines.append(line)

    def table(self, header, rows):
        self.say("| " + " | ".join(header) + " |")
        self.say("|" + "---|" * len(header))
        for row in rows:
            self.say("| " + " | ".join(str(cell) for cell in row) + " |")
        self.say()

    def program(self, source, *libraries):
        """Compiles one of this folder's helper programs."""
        target = WORK / Path(source).stem
        subprocess.run(["g++", "-O2", "-std=c++20", ROOT / "bench" / source, "-o", target, *libraries],
                       check=True)
        return target

    def checking(self):
        """Throughput of listing the unknown words of 10 MB."""
        text = self.texts["10MB"]
        megabytes = text.stat().st_size / 1e6
        libraries = self.program("peer_libraries.cpp", "-lhunspell-1.7", "-lnuspell", "-licuuc")
        bound = self.program("bound.cpp")
        contenders = [
            ("wordhawk-cli check --list", self.ours + ["check", "--list", text], None, 1),
            ("the same before the first suggestion, which makes an index",
             [self.exe, "--data", self.without_index, "--locale", "1033", "check", "--list", text], None, 1),
            ("bound: one hash-set look-up a word", [bound, LARGE_LIST], text, 1),
            ("aspell list", ["aspell", "-l", "en_US", "list"], text, 1),
            ("nuspell, library", [libraries, "nuspell", ENGLISH + ".aff", ENGLISH + ".dic"], text, 1),
            ("hunspell, library", [libraries, "hunspell", ENGLISH + ".aff", ENGLISH + ".dic"], text, 1),
            ("hunspell -l, on 1 MB", ["hunspell", "-d", "en_US", "-l"], self.texts["1MB"], 10),
        ]
        rates = []
        for name, command, source, part in contenders:
            took = measure.best(command, self.times, source=source)
            rates.append((name, megabytes / part / took.cpu, took.memory))
        own = rates[0][1]
        self.say("## Listing the unknown words of 10 MB\n")
        self.table(("program", "MB/s", "ours is", "peak memory"),
                   [(name, f"{rate:.1f}", f"{own / rate:.2f} x", f"{memory:.0f} MiB")
                    for name, rate, memory in rates])

    def growing(self):
        """Time and memory of ours over the size of the text."""
        rows = []
        for name, path in self.texts.items():
            if name == "line":
                continue
            size = path.stat().st_size / 1e6
            took = measure.best(self.ours + ["check", "--list", path], 1 if size > 500 else self.times)
            rows.append((name, f"{took.cpu:.3f} s", f"{size / took.cpu:.0f}", f"{took.memory:.0f} MiB"))
        self.say("## Growing texts\n")
        self.table(("text", "processor time", "MB/s", "peak memory"), rows)

    def starting(self):
        """Time of a check of one line."""
        line = self.texts["line"]
        times = 30 if self.arguments.quick else 200
        contenders = [
            ("wordhawk-cli check --list", self.ours + ["check", "--list", line]),
            ("aspell list", ["aspell", "-l", "en_US", "list"]),
            ("hunspell -l", ["hunspell", "-d", "en_US", "-l"]),
            ("nuspell", ["nuspell", "-d", "en_US"]),
        ]
        took = measure.medians([command for _, command in contenders[:2]], times, source=line)
        # A slow start would leave the next program a colder machine.
        took += measure.medians([command for _, command in contenders[2:]], times, source=line)
        medians = [(name, *each) for (name, _), each in zip(contenders, took)]
        aspell = medians[1][1:]
        self.say(f"## Start-up: one line of 18 words, medians of {times} runs\n")
        self.table(("program", "wall time", "of aspell's", "processor time", "of aspell's"),
                   [(name, f"{wall * 1000:.2f} ms", f"{wall / aspell[0]:.2f} x", f"{cpu * 1000:.2f} ms",
                     f"{cpu / aspell[1]:.2f} x") for name, wall, cpu in medians])

    def suggesting(self):
        """Requests a second, and how good the answers are."""
        aspell = ["aspell", "-a", "-l", "en_US"]
        suggest = self.ours + ["suggest", "--stdin"]
        contenders = [
            ("wordhawk-cli", suggest, suggestions.ours, 10000),
            ("wordhawk-cli --search file", self.ours + ["--search", "file", "suggest", "--stdin"],
             suggestions.ours, 20000),
            ("aspell, normal", aspell + ["--sug-mode=normal"], suggestions.pipe, 3000),
            ("aspell, ultra", aspell + ["--sug-mode=ultra"], suggestions.pipe, 10000),
            ("hunspell", ["hunspell", "-a", "-d", "en_US"], suggestions.pipe, 300),
            ("nuspell", ["nuspell", "-d", "en_US"], suggestions.nuspell, 300),
        ]
        quick = self.arguments.quick
        known = pairs.known_words(self.data / "Dictionarys" / "1033")
        parts = pairs.split(known)
        judged = parts["judge"][::10 if quick else 1]
        several = pairs.with_several(known)
        asked = [wrong for wrong, _ in parts["learn"]]
        random.Random(1).shuffle(asked)
        slow = judged[::10]  # for those that answer a few dozen requests a second
        words = WORK / "misspellings.txt"
        # Makes the index, so that no measured run does.
        suggestions.answer(suggest, "wrod\n")
        rows = []
        for name, command, read, count in contenders:
            chosen = asked[:count // 10 if quick else count]
            mark = "^" if read is suggestions.pipe else ""
            words.write_text("".join(f"{mark}{word}\n" for word in chosen), encoding="utf-8")
            took = measure.best(command, 2, source=words)
            sample = slow if count <= 300 else judged
            shares = suggestions.quality(read(command, [wrong for wrong, _ in sample]), sample)
            any_of = several[::10] if count <= 300 else several
            shares += suggestions.quality(read(command, [wrong for wrong, _ in any_of]), any_of)[:2]
            rows.append((name, len(chosen) / took.cpu, took.memory, len(sample), shares))
        normal = next(rate for name, rate, *_ in rows if name == "aspell, normal")
        self.say("## Suggestions\n")
        self.say(f"Judged by codespell's misspellings: {len(judged)} pairs of misspelling and word that share no "
                 "beginning of four letters with any pair that the costs were learned from or tuned on (the slowest "
                 "programs get every tenth of them). *Any of several*: misspellings for which codespell has several "
                 "words, each of which counts as right; none was learned from.\n")
        self.table(("program", "requests/s", "of aspell normal", "peak memory", "pairs", "first", "in first five",
                    "anywhere", "any of several: first", "in first five"),
                   [(name, f"{rate:,.0f}", f"{rate / normal:.2f} x", f"{memory:.0f} MiB", number,
                     *(f"{share:.1f} %" for share in shares)) for name, rate, memory, number, shares in rows])

    def hard_words(self):
        """Words of 10 to 30 letters near no word, for which the search looks everywhere."""
        chance = random.Random(2)
        file = WORK / "hard-words.txt"
        file.write_text("".join("".join(chance.choices("eariotnslcudpmhg", k=chance.randint(10, 30))) + "\n"
                                for _ in range(200)), encoding="utf-8")
        return file

    def millions(self):
        """The search in Polish, the language with the most forms."""
        folder = self.exe.parent / "dictionaries" / "1045"
        if not folder.exists():
            self.say("(The Polish dictionary is not built.)\n")
            return
        count = 500
        ours = [self.exe, "--data", WORK / "data-1045", "--locale", "1045"]
        shutil.rmtree(WORK / "data-1045", ignore_errors=True)
        measure.run(ours + ["check", "--list", self.texts["line"]])
        forms = sorted(pairs.known_words(folder, 1250))
        chance = random.Random(3)
        words = []
        for word in chance.choices([form for form in forms if 5 <= len(form) <= 20], k=count):
            at = chance.randrange(len(word) - 1)
            words.append(word[:at] + word[at + 1] + word[at] + word[at + 2:])
        wrong = WORK / "polish.txt"
        wrong.write_text("".join(f"{word}\n" for word in words), encoding="utf-8")
        one = WORK / "one.txt"
        one.write_text("słwo\n", encoding="utf-8")
        suggest = ours + ["suggest", "--stdin"]
        making = measure.run(suggest, source=one)
        once = measure.best(suggest, 2, source=one)
        swapped = measure.best(suggest, 2, source=wrong)
        hard = measure.best(suggest, 2, source=self.hard_words())
        self.say(f"## Suggestions in Polish, {len(forms):,} forms\n")
        self.table(("job", "processor time", "peak memory"), [
            ("make the index, once", f"{making.cpu:.2f} s", f"{making.memory:.0f} MiB"),
            ("start and suggest for one word", f"{once.cpu * 1000:.0f} ms", f"{once.memory:.0f} MiB"),
            ("each further word with two letters swapped", f"{(swapped.cpu - once.cpu) / count * 1000:.2f} ms",
             f"{swapped.memory:.0f} MiB"),
            ("each further word of 10 to 30 letters near no word", f"{(hard.cpu - once.cpu) / 200 * 1000:.2f} ms",
             f"{hard.memory:.0f} MiB")])

    def changing(self):
        """Adding to and importing big custom dictionaries."""
        words = texts.invented_words(100_000)
        source = WORK / "INVENTED.DIC"
        source.write_text("\r\n".join(words) + "\r\n", encoding="utf-8", newline="")
        custom = self.data / "Dictionarys" / "Custom"
        imports = []
        for _ in range(3):
            (custom / "INVENTED.DIC").unlink(missing_ok=True)
            imports.append(measure.run(self.ours + ["import", source]).wall)
        lines = (custom / "INVENTED.DIC").read_bytes().count(b"\n")
        adds = []
        for number in range(11):
            word = "added" + "abcdefghijk"[number]
            adds.append(measure.run(self.ours + ["add", "--custom", "INVENTED.DIC", word]).wall)
        grown = (custom / "INVENTED.DIC").read_bytes().count(b"\n")
        if lines != len(words) or grown != lines + 11:
            raise SystemExit(f"the custom dictionary has {lines}, then {grown} words")
        self.say("## Changing dictionaries (wall time, whole process)\n")
        self.table(("job", "time"), [
            ("import 100,000 words", f"{min(imports):.3f} s"),
            ("add one word to a dictionary of 100,000", f"{sorted(adds)[5] * 1000:.1f} ms")])

    def under_wine(self):
        """The Windows program beside the native one, without the start of each."""
        if not self.windows.exists():
            self.say("(The Windows program is not built.)\n")
            return
        wine = {"WINEPREFIX": os.environ.get("WINEPREFIX", str(ROOT / "build" / "wine")), "WINEDEBUG": "-all"}
        keep_alive = subprocess.Popen(["wineserver", "-p", "-f"], env={**os.environ, **wine},
                                      stderr=subprocess.DEVNULL)
        try:
            folder = WORK / "data-windows"
            exe = ["wine", self.windows, "--data", "Z:" + str(folder).replace("/", "\\"), "--locale", "1033"]
            measure.run(exe + ["check", "--list", self.texts["line"]], environment=wine)
            programs = ((self.ours, None, self.data), (exe, wine, folder))

            def best_of_both(*arguments, source=None):
                """Processor seconds, native and under Wine."""
                jobs = [(command + list(arguments), {"source": source, "environment": environment})
                        for command, environment, _ in programs]
                return [measure.best_of(runs).cpu for runs in measure.in_turns(jobs, self.times)]

            check, suggest = ("check", "--list"), ("suggest", "--stdin")
            for _, _, data in programs:
                shutil.rmtree(data / "Cache", ignore_errors=True)
            unindexed = best_of_both(*check, self.texts["10MB"])
            best_of_both("suggest", "wrod")  # makes the index
            short = best_of_both(*check, self.texts["line"])
            long = best_of_both(*check, self.texts["10MB"])
            none = best_of_both(*suggest)
            hard = best_of_both(*suggest, source=self.hard_words())
            rows = [(name, short[i], long[i] - short[i], unindexed[i] - short[i], (hard[i] - none[i]) / 200)
                    for i, name in enumerate(("native", "under Wine"))]
            own = rows[0][2:4]
            self.say("## wordhawk-cli.exe under Wine\n")
            self.table(("", "one line", "10 MB once started", "of native", "without the index", "of native",
                        "suggest for a word near no word"),
                       [(name, f"{short * 1000:.0f} ms", f"{rest:.3f} s", f"{rest / own[0]:.2f} x",
                         f"{unindexed:.3f} s", f"{unindexed / own[1]:.2f} x", f"{hard * 1000:.2f} ms")
                        for name, short, rest, unindexed, hard in rows])
        finally:
            keep_alive.terminate()

    def introduction(self):
        versions = ", ".join(f"{name} {measure.version_of(name)}"
                             for name in ("hunspell", "nuspell", "aspell"))
        self.say("# Benchmarks\n")
        self.say("Written by `bench/compare.py --write`, which repeats it all; every figure is from one run, ours "
                 "and theirs side by side.\n")
        self.say(f"- Date: {datetime.date.today().isoformat()}")
        self.say(f"- Machine: {measure.machine()}")
        self.say(f"- Peers: Debian's {versions}")
        self.say("- Text: the Brown corpus and the King James text joined and cut to 10 MB; misspellings and their "
                 "corrections from codespell")
        self.say("- Times are processor time (user and system) of the whole process, the best of several runs, "
                 "unless it says wall time\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--large", action="store_true")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--build", default=ROOT / "build" / "native", help="build tree of the native program")
    parser.add_argument("--windows", default=ROOT / "build" / "windows", help="build tree of the Windows one")
    parser.add_argument("--only", help="one part: " + ", ".join(PARTS))
    arguments = parser.parse_args()
    bench = Bench(arguments)
    bench.introduction()
    for part in PARTS if not arguments.only else (arguments.only,):
        getattr(bench, part)()
    if arguments.write:
        (ROOT / "docs").mkdir(exist_ok=True)
        (ROOT / "docs" / "benchmarks.md").write_text("\n".join(bench.lines).rstrip() + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
