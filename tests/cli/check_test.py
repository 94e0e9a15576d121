"""Scenarios of the check command."""

import json
import os
import random
import subprocess

from cli_support import CliTest


class Check(CliTest):
    def places(self, text):
        """(line, column, word) of each line of output about the file 't'."""
        found = []
        for line in text.splitlines():
            name, row, column, rest = line.split(":", 3)
            self.assertEqual(name, "t")
            found.append((int(row), int(column), rest.strip().split(" -> ")[0]))
        return found

    def test_prints_place_word_and_suggestions(self):
        self.write("t", "This is a recieve test\n")
        self.assertEqual(self.run_cli("check", "t", code=1), "t:1:11: recieve -> receive (86%)\n")

    def test_is_quiet_about_a_text_without_unknown_words(self):
        self.write("t", "Hello world, this is the dog's line. HELLO 123 www.xqz.org")
        self.assertEqual(self.run_cli("check", "t"), "")
        self.assertEqual(self.run_cli("check", stdin=b""), "")

    def test_reads_every_encoding_and_line_end(self):
        text = "This café wrold\nlien of héllo\n\nthe 'tset'"
        expected = [(1, 11, "wrold"), (2, 1, "lien"), (2, 9, "héllo"), (4, 6, "tset")]
        contents = [mark + text.replace("\n", line_end).encode(encoding)
                    for encoding, mark in [("utf-8", b""), ("utf-8", b"\xef\xbb\xbf"), ("utf-16-le", b"\xff\xfe"),
                                           ("utf-16-be", b"\xfe\xff"), ("cp1252", b"")]
                    for line_end in ["\n", "\r\n", "\r"]]
        names = [f"f{i}" for i in range(len(contents))]
        for name, content in zip(names, contents):
            self.write(name, content)
        lines = self.run_cli("check", *names, code=1).splitlines()
        for i, name in enumerate(names):
            mine = [line.replace(name, "t", 1) for line in lines if line.startswith(name + ":")]
            self.assertEqual(self.places("\n".join(mine)), expected, contents[i])
        for content in contents[1::3]:
            piped = self.run_cli("check", "-", stdin=content, code=1)
            self.assertEqual(self.places(piped.replace("<stdin>", "t")), expected, content)

    def test_counts_columns_in_characters(self):
        self.write("t", "😀 wrold\n\u0301\tthe 😀😀 helo")
        self.assertEqual(self.places(self.run_cli("check", "t", code=1)), [(1, 3, "wrold"), (2, 10, "helo")])

    def test_keeps_the_spelling_of_the_document(self):
        self.write("t", "WRold Wrold wrold")
        self.assertEqual([p[2] for p in self.places(self.run_cli("check", "t", code=1))],
                         ["WRold", "Wrold", "wrold"])
        self.assertEqual(self.run_cli("check", "--list", "t", code=1), "wrold\n")
        self.assertEqual(self.run_cli("check", "--words", "t"), "WRold\nWrold\nwrold\n")
        self.assertEqual(self.run_cli("-l", stdin=b"WRold Wrold wrold"), "WRold\nWrold\nwrold\n")

    def test_suggests_in_the_case_of_the_word(self):
        self.write("t", "Recieve RECIEVE recieve Recieve")
        words = ["Receive", "RECEIVE", "receive", "Receive"]
        lines = self.run_cli("check", "t", code=1).splitlines()
        self.assertEqual([line.split(" -> ")[1] for line in lines], [word + " (86%)" for word in words])
        rows = [json.loads(line) for line in self.run_cli("check", "--json", "t", code=1).splitlines()]
        self.assertEqual([row["suggestions"][0]["word"] for row in rows], words)

    def test_shows_control_characters(self):
        self.write("t", "he\x1blo \u202ewrold \u0085zz")
        out = self.run_cli("check", "--no-suggestions", "t", code=1)
        self.assertEqual([p[2] for p in self.places(out)], ["he\\x1blo", "\\u202ewrold", "\\u0085zz"])
        out = self.run_cli("check", "--json", "t", code=1)
        self.assertNotIn("\u202e", out)
        self.assertNotIn("\u0085", out)
        self.assertEqual([json.loads(line)["word"] for line in out.splitlines()],
                         ["he\x1blo", "\u202ewrold", "\u0085zz"])
        self.assertEqual(self.run_cli("check", "--words", "t"), "he\x1blo\n\u202ewrold\n\u0085zz\n")
        if not self.program.is_windows:
            self.write("x\nt:1:1: \x1b[31m", "helo")
            self.assertEqual(self.run_cli("check", "--no-suggestions", "x\nt:1:1: \x1b[31m", code=1),
                             "x\\x0at:1:1: \\x1b[31m:1:1: helo\n")
            self.assertEqual(self.fail_cli("check", "no\x7f\u009bsuch"),
                             "wordhawk-cli: no\\x7f\\u009bsuch: no such file\n")

    def test_shows_control_characters_on_a_terminal_in_every_format(self):
        if self.program.is_windows:
            self.skipTest("needs a pseudo-terminal")
        import pty
        self.write("t", "he\x1blo")
        for option in ["--list", "--words", "--no-suggestions"]:
            main, terminal = pty.openpty()
            arguments = [*self.program.command, "--data", self.data, "--locale", "1033", "check", option, "t"]
            subprocess.run(list(map(str, arguments)), stdout=terminal, stderr=subprocess.DEVNULL, cwd=self.folder,
                           env=dict(os.environ, NO_COLOR="1"), check=False)
            os.close(terminal)
            self.assertIn(b"he\\x1blo", os.read(main, 4096), option)
            os.close(main)

    def test_memory_does_not_grow_with_the_text(self):
        if self.program.is_windows:
            self.skipTest("Wine's own memory is in the figure")
        def peak(*arguments):
            process = subprocess.Popen([*self.program.command, "--data", str(self.data), "--locale", "1033", "check",
                                        *arguments], stdout=subprocess.DEVNULL, cwd=self.folder,
                                       env=dict(os.environ, ASAN_OPTIONS="quarantine_size_mb=1"))
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
            self.assertIn(process.returncode, (0, 1))
            return usage.ru_maxrss // 1024
        letters = "abcdefghijklmnopqrstuvwxyz"
        words = ["zq" + "".join(letters[i // 26 ** k % 26] for k in range(4)) for i in range(240_000)]
        for name, count in [("small", 80_000), ("large", 240_000)]:
            self.write(name + ".txt", "\n".join(words[:count]))
            self.write(name + ".rtf", "{\\rtf1 " + "\\par\n".join(words[:count]) + "}")
        # A list needs its words, and little more; the others need nothing of what was.
        for option, kind, most in [("-l", ".txt", 16), ("-l", ".rtf", 16), ("--no-suggestions", ".txt", 16),
                                   ("--list", ".txt", 24)]:
            grown = peak(option, "large" + kind) - peak(option, "small" + kind)
            self.assertLess(grown, most, (option, kind))

    def test_lists_each_word_once_over_all_files(self):
        self.write("t", "zeta helo zeta")
        self.write("u", "helo eta\nZETA Zeta")
        self.assertEqual(self.run_cli("check", "--list", "t", "u", code=1), "zeta\nhelo\neta\n")

    def test_reads_rich_text_by_name_and_by_content(self):
        rtf = rb"{\rtf1\ansi{\fonttbl{\f0 Arial;}}Hello \b wro\b0 ld\par caf\'e9 the xq\u233?z}"
        expected = [(1, 7, "wrold"), (2, 10, "xqéz")]
        self.write("t.rtf", rtf)
        out = self.run_cli("check", "t.rtf", code=1)
        self.assertEqual(self.places(out.replace("t.rtf:", "t:")), expected)
        self.write("t", rtf)
        self.assertEqual(self.places(self.run_cli("check", "t", code=1)), expected)

    def test_writes_json(self):
        self.write("ü \\1", "x\nform recieve faxm\tzzqq") if not self.program.is_windows else \
            self.write("ü 1", "x\nform recieve faxm\tzzqq")
        name = "ü 1" if self.program.is_windows else "ü \\1"
        rows = [json.loads(line) for line in self.run_cli("check", "--json", name, code=1).splitlines()]
        self.assertEqual(rows[0], {"file": name, "line": 2, "column": 6, "word": "recieve",
                                   "suggestions": [{"word": "receive", "score": 86}]})
        self.assertEqual([(s["word"], s["score"]) for s in rows[1]["suggestions"]], [("farm", 99)])
        self.assertEqual(rows[2]["suggestions"], [])
        self.assertEqual([list(row) for row in rows], [["file", "line", "column", "word", "suggestions"]] * 3)

    def test_limits_suggestions(self):
        self.write("t", "hixs")
        cases = [([], "hits (99%)"), (["--max-suggestions", "1"], "t:1:1: hixs -> hits (99%)\n"),
                 (["--no-suggestions"], "t:1:1: hixs\n"), (["--set", "ScoreValue=100"], "t:1:1: hixs\n")]
        for options, expected in cases:
            self.assertIn(expected, self.run_cli("check", *options, "t", code=1))

    def test_obeys_settings_flags_and_exit_zero(self):
        self.write("t", "wrold xq9z a-zzy")
        for options, expected in [([], "wrold\nzzy\n"), (["--set", "IgnoreNumbers=0"], "wrold\nxq9z\nzzy\n"),
                                  (["--flag", "13=0"], "wrold\na-zzy\n")]:
            with self.subTest(options=options):
                self.assertEqual(self.run_cli(*options, "check", "--list", "t", code=1), expected)
        self.assertEqual(self.run_cli("check", "--list", "--exit-zero", "t"), "wrold\nzzy\n")

    def test_goes_on_after_a_file_that_cannot_be_read(self):
        self.write("t", "helo")
        self.write("folder/x", "")
        done = self.run_raw("check", "missing é.txt", "folder", "t")
        self.assertEqual(done.returncode, 2)
        self.assertEqual(done.stderr.decode().splitlines(),
                         ["wordhawk-cli: missing é.txt: no such file", "wordhawk-cli: folder: is a folder"])
        self.assertIn("t:1:1: helo", done.stdout.decode())

    def test_checks_several_files_at_once_in_their_order(self):
        names = []
        for i in range(12):
            names.append(f"f{i}.txt")
            self.write(names[-1], "word recieve\n" * (i * 700 % 5000) + f"zz{'abcdefghijkl'[i]}\n")
        names.insert(5, "missing")
        for options in [[], ["--list"], ["--json"], ["--words"]]:
            one = self.run_raw("check", *options, *names)
            many = self.run_raw("check", *options, "-j", "4", *names)
            self.assertEqual(one.returncode, 2)
            self.assertEqual((one.returncode, one.stdout, one.stderr), (many.returncode, many.stdout, many.stderr))

    def large_texts(self):
        """Texts of many blocks: what is known of one, addresses and place, matters in the next."""
        random.seed(11)
        pieces = ["the", "café", "wrold", "Recieve", "😀 word", "zzxé.", "http://a.zz/qqq", "www.zzq", "ftp:www.", "www.",
                  "xwww.zzqyy", "one line", "mailto:zz@qq", "(http://a.zz)", "qqwww.zq"]
        ends = [" ", " ", " ", " ", "\n", "\r\n", "\r", "\r \n", "\t", ", "]
        text = "".join(random.choice(pieces) + random.choice(ends) for _ in range(24_000))
        late = text + "http://late.zz/qqq " + "word\r" * 175_000 + "xhttp://late.zz/qqqy \n\nzzlate"
        ansi = late.replace("😀", "–").encode("cp1252")
        return {
            "utf8": late.encode(), "ansi": ansi, "utf8-mark": b"\xef\xbb\xbf" + late.encode(),
            "utf16": late.encode("utf-16"), "utf16be": b"\xfe\xff" + late.encode("utf-16-be"),
            "broken": b"\xef\xbb\xbf" + ansi,
            "no-blanks": ("😀wrold-" * 420_000).encode() + b" zz", "line-ends": b"zzlong\r\n" * 140_000, "text.rtf": rb"{\rtf1\ansi " +
            ansi.replace(b"\r\n", b"\\par\r\n").replace(b"\r", b"\\line ") + b"}",
        }

    def test_divides_large_texts_without_a_trace(self):
        texts = self.large_texts()
        if self.program.emulated:
            texts = {name: texts[name] for name in ["utf8", "utf16"]}
        for name, content in texts.items():
            self.write(name, content)
        formats = [[], ["--json"], ["--list"], ["--words"], ["--count"]]
        for name, content in texts.items():
            for options in formats if name == "utf8" else formats[4:] if name == "no-blanks" else formats[:1]:
                with self.subTest(name=name, options=options):
                    one, many = (self.run_raw("check", "--max-suggestions", 1, *options, "-j", jobs, name)
                                 for jobs in (1, 3))
                    self.assertGreater(len(one.stdout), 10)
                    self.assertEqual((one.returncode, one.stderr), (many.returncode, many.stderr))
                    self.assertEqual((one.stderr, one.stdout == many.stdout), (b"", True))
        for name in ["utf8", "utf16"]:
            one, many = (self.run_raw("check", "-j", jobs, stdin=texts[name]).stdout for jobs in (1, 2))
            self.assertTrue(one == many, name)
        several = ["utf8", "missing", "utf8", "utf16"]
        one, many = (self.run_raw("check", "--list", "-j", jobs, *several) for jobs in (1, 3))
        self.assertEqual(one.returncode, 2)
        self.assertEqual((one.stdout, one.stderr), (many.stdout, many.stderr))

    def test_counts_words_so_that_counts_merge_by_sorting(self):
        self.write("t", "zeta helo Zeta éta zeta word")
        self.write("u", "helo\neta HELO éta")
        whole = "eta\t1\nhelo\t3\nzeta\t3\néta\t2\n"
        self.assertEqual(self.run_cli("check", "--count", "t", "u", code=1), whole)
        self.assertEqual(self.run_cli("check", "--count", "-j", 3, "t", "u", code=1), whole)
        self.assertEqual(self.run_cli("check", "--count", stdin="word"), "")
        lines = [line.split("\t") for name in "tu"
                 for line in self.run_cli("check", "--count", name, code=1).splitlines()]
        merged = {}
        for word, count in sorted(lines):
            merged[word] = merged.get(word, 0) + int(count)
        self.assertEqual("".join(f"{word}\t{count}\n" for word, count in merged.items()), whole)

    def test_finds_places_in_long_texts(self):
        # Longer than the blocks that texts are read in, so that every kind of cut comes up.
        random.seed(7)
        known = ["the", "café", "word", "naïve", "one", "😀", "line"]
        for encoding in ["utf-8", "cp1252", "utf-16"]:
            pieces, expected = [], []
            row = column = 1
            for _ in range(60_000):
                word = random.choice(known)
                if random.random() < 0.02:
                    word = random.choice(["zzxé", "qqwy"])
                    expected.append((row, column, word))
                if word == "😀" and encoding == "cp1252":
                    word = "–"
                if random.random() < 0.1:
                    pieces.append(word + random.choice(["\n", "\r\n", "\r\n", "\r \n"]))
                    row, column = row + (2 if pieces[-1].endswith("\r \n") else 1), 1
                else:
                    pieces.append(word + " ")
                    column += len(word) + 1
            content = "".join(pieces).encode(encoding)
            self.write("t", content)
            with self.subTest(encoding=encoding):
                out = self.run_cli("check", "--no-suggestions", "t", code=1)
                self.assertEqual(self.places(out), expected)
                piped = self.run_cli("check", "--no-suggestions", stdin=content, code=1)
                self.assertEqual(piped.replace("<stdin>", "t"), out)

    def test_decides_the_encoding_by_the_whole_text(self):
        plain = b"the word\n" * 60_000
        for end, word in [(b"zz\xe9zz", "zzézz"), ("zz\u0142zz".encode(), "zzłzz")]:
            self.write("t", plain + end)
            self.assertEqual(self.run_cli("check", "--list", "t", code=1), word + "\n")
            self.assertEqual(self.run_cli("check", "--list", stdin=plain + end, code=1), word + "\n")
        # UTF-8 for half a megabyte, then not: the first words are read as ANSI too.
        self.write("t", "zzé\n".encode() + plain + b"\xe9")
        self.assertEqual(self.run_cli("check", "--list", "t", code=1), "zzã\n")

    def test_bears_odd_input(self):
        cases = {
            "zero": b"the \0 word\0 helo\0",
            "lone surrogates": b"\xff\xfe" + b"\x00\xd8 \x00h\x00e\x00l\x00o\x00\x00\xdc",
            "half a unit": b"\xff\xfeh\x00e\x00l\x00o\x00 ",
            "mark only": b"\xef\xbb\xbf",
            "megabyte without a blank": b"x" * 1_000_000 + b" helo",
            "five megabytes without a blank": b"x" * 5_000_000,
            "marks inside": "the \ufeffhelo\ufeff word".encode(),
            "bytes": bytes(range(256)) * 30,
        }
        for why, content in cases.items():
            self.write(why, content)
        out = self.run_cli("check", "--json", "--no-suggestions", *cases, code=1)
        rows = [json.loads(line) for line in out.splitlines()]
        found = {row["file"] for row in rows if "helo" in row["word"]}
        self.assertEqual(found, {"zero", "lone surrogates", "half a unit", "megabyte without a blank", "marks inside"})

    def test_takes_file_names_beyond_ascii(self):
        self.write("Ordner ż/日本 ä.txt", "helo")
        self.assertIn("Ordner ż/日本 ä.txt:1:1: helo", self.run_cli("check", "Ordner ż/日本 ä.txt", code=1))

    def test_says_when_there_is_no_dictionary(self):
        empty = self.folder / "empty"
        done = self.run_raw("check", stdin=b"helo", data=empty)
        self.assertEqual((done.returncode, done.stdout), (2, b""))
        self.assertIn("no dictionary is installed for language 1033; choose another with --set Language=N",
                      done.stderr.decode())
        self.assertEqual(list((empty / "Resources" / "1033").iterdir()), [])
        self.write("file", "")
        done = self.run_raw("check", stdin=b"helo", data=self.folder / "file" / "data")
        self.assertEqual(done.returncode, 2)
        self.assertIn("the data folder cannot be made", done.stderr.decode())

    def test_reads_each_language_in_its_own_code_page(self):
        self.write("words", "piękny\ndom\n")
        built = self.program.run("build-dictionary", "--output", self.data / "Dictionarys" / "1045", "--code-page",
                                 "1250", self.folder / "words")
        self.assertEqual(built.returncode, 0, built.stderr)
        for text in ["dom piękny naïve", "dom piękny naive".encode("cp1250")]:
            self.write("t", text)
            self.assertEqual(self.run_cli("--set", "Language=1045", "check", "--list", "t", code=1).strip()[:2], "na")
        self.write("t", "café piękny")
        self.assertEqual(self.run_cli("check", "--list", "t", code=1), "piękny\n")
        self.assertEqual(self.run_cli("--set", "Language=1045", "key", "piękny").split("\t")[1], "pi_.dic")
        self.run_cli("--set", "Language=1045", "add", "--main", "ćma")
        self.assertIn("ćma,".encode("cp1250"), (self.data / "Dictionarys/1045/ćm_.dic").read_bytes())

    def test_writes_no_colour_to_a_pipe(self):
        self.write("t", "helo")
        self.assertNotIn("\x1b", self.run_cli("check", "t", code=1))
