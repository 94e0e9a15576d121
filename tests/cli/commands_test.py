"""Scenarios of the commands other than check and pipe."""

import json
import os
import stat

from cli_support import WORDS, CliTest


class Suggest(CliTest):
    def test_prints_a_row_for_each_suggestion(self):
        self.assertEqual(self.run_cli("suggest", "recieve", "zzqq"), "recieve\treceive\t86\t*\nzzqq\t\t\t\n")

    def test_marks_the_best_and_ranks_by_score(self):
        rows = [line.split("\t") for line in self.run_cli("suggest", "hixs").splitlines()]
        self.assertEqual([row[3] for row in rows].count("*"), 1)
        self.assertEqual(rows[0], ["hixs", "hits", "99", "*"])
        scores = [int(row[2]) for row in rows]
        self.assertEqual(scores, sorted(scores, reverse=True))

    def test_reads_words_from_input(self):
        expected = self.run_cli("suggest", "recieve", "caféx", "teh")
        self.assertEqual(self.run_cli("suggest", "--stdin", stdin="recieve\r\n\ncaféx\n  teh"), expected)
        self.assertEqual(self.run_cli("suggest", "--stdin", stdin="\ufeffrecieve\ncaféx\nteh\n"), expected)

    def test_obeys_settings(self):
        self.assertEqual(self.run_cli("--set", "Diversity=0", "suggest", "recieve"), "recieve\t\t\t\n")
        self.assertEqual(self.run_cli("suggest", "teh"), "teh\t\t\t\n")
        self.assertIn("test\t67\t*", self.run_cli("--set", "ScoreValue=60", "suggest", "teh"))


class WideSearch(CliTest):
    behaviour = ()

    def first(self, *arguments):
        return self.run_cli(*arguments).splitlines()[0].split("\t")[1]

    def test_is_the_default_and_gives_way(self):
        cases = [([], "test"), (["--search", "wide"], "test"), (["--search", "file"], ""), (["--classic"], ""),
                 (["--classic", "--search", "wide"], "test"), (["--set", "WideSearch=0"], "")]
        for options, expected in self.sample(cases):
            with self.subTest(options):
                self.assertEqual(self.first(*options, "suggest", "tset"), expected)
        (self.data / "Wordhawk.ini").write_text("[Settings]\nWideSearch=0\n")
        self.assertEqual(self.first("suggest", "tset"), "")

    def test_sees_words_as_they_come_and_go(self):
        self.assertEqual(self.first("suggest", "wrold"), "world")
        self.run_cli("add", "--main", "wroldy")
        self.assertIn("wroldy", self.run_cli("suggest", "wrold"))
        self.run_cli("add", "wroldz")
        self.assertIn("wroldz", self.run_cli("suggest", "wrold"))
        self.run_cli("remove", "wroldy", "wroldz")
        self.assertNotIn("wroldy", self.run_cli("suggest", "wrold"))

    def test_serves_check_pipe_and_explain(self):
        self.write("t", "A tset.\n")
        self.assertIn("t:1:3: tset -> test (", self.run_cli("check", "t", code=1))
        self.assertRegex(self.run_cli("pipe", stdin="Tset\n"), "& Tset [0-9]+ 0: Test")
        row = json.loads(self.run_cli("explain", "--json", "tset", "test"))
        self.assertEqual((row["distance_with_swaps"], row["dropped_by"]), (1, None))
        self.assertGreater(row["edit_cost"], 0)
        self.assertIn("none of them holds", self.run_cli("explain", "tset", "tester"))


class Explain(CliTest):
    def test_measures(self):
        cases = [
            (["recieve", "receive"], {"distance": 2, "distance_with_swaps": 1, "score": 86, "dropped_by": None}),
            (["teh", "the"], {"distance": 2, "distance_with_swaps": 1, "score": 67,
                              "dropped_by": "score: 67 is below ScoreValue 80"}),
            (["Teh", "the"], {"distance": 3, "distance_with_swaps": 2, "score": 67,
                              "dropped_by": "distance: 3 is above Diversity 2"}),
            (["aba", "bab"], {"distance": 2, "distance_with_swaps": 0}),
            (["form", "from"], {"score": 75, "distance": 2}),
            (["a", "b"], {"dropped_by": "length: a word of one character has no suggestions"}),
        ]
        for words, expected in cases:
            row = json.loads(self.run_cli("explain", "--json", *words))
            self.assertEqual({key: row[key] for key in expected}, expected, words)
            self.assertEqual((row["word"], row["candidate"]), tuple(words))

    def test_tells_keys_file_and_filter(self):
        row = json.loads(self.run_cli("--set", "SortBy=2", "explain", "--json", "hello", "hitters"))
        self.assertEqual((row["word_key"], row["candidate_key"], row["dictionary_file"]), (72400, 72362, "he_.dic"))
        row = json.loads(self.run_cli("--set", "SortBy=2", "explain", "--json", "hello", "hero"))
        self.assertEqual(row["dropped_by"], "key: 72600 does not match 7240#")
        row = json.loads(self.run_cli("explain", "--json", "hallo", "hello"))
        self.assertTrue(row["dropped_by"].startswith("file: "), row)
        self.assertIn("score                86\n", self.run_cli("explain", "recieve", "receive"))


class Key(CliTest):
    def test_prints_file_and_key(self):
        self.assertEqual(self.run_cli("key", "HELLO", "a", "3d", "x-ray", "Été"),
                         "HELLO\the_.dic\t72400\na\taa_.dic\t65000\n3d\t_noncase_.dic\t51300\n"
                         "x-ray\tx_.dic\t88260\nÉté\tét_.dic\t20130\n")
        self.assertEqual(self.run_cli("key", "--stdin", stdin=b"hello\n\xc9t\xe9\n").splitlines()[1],
                         "Été\tét_.dic\t20130")


class Add(CliTest):
    def test_adds_to_the_active_custom_dictionary(self):
        self.run_cli("add", "Hawk", "wordhawk", "Éclair")
        self.assertEqual(self.custom(), "hawk,72000\r\nwordhawk,87632\r\néclair,20124\r\n".encode("cp1252"))
        self.assertEqual(self.run_cli("check", stdin="HAWKs Hawk Wordhawk éclair".encode(), code=1)[:16],
                         "<stdin>:1:1: HAW")

    def test_tells_what_it_added_where(self):
        cases = [(["hawk", "Zeta"], ["CUSTOM.DIC: added hawk, Zeta"]),
                 (["zeta", "eta"], ["CUSTOM.DIC: added eta", "CUSTOM.DIC: holds zeta already"]),
                 (["--main", "hawks"], ["main dictionary 1033: added hawks"]),
                 (["-q", "theta"], [])]
        for arguments, expected in cases:
            lines = self.run_raw("add", *arguments).stderr.decode().splitlines()
            self.assertEqual(lines, ["wordhawk-cli: " + line for line in expected])
        lines = self.run_raw("add", "--custom", "names", "a1", "b1", "c1", "d1", "e1", "f1").stderr.decode().splitlines()
        self.assertEqual(lines[0], "wordhawk-cli: names.DIC: added 6 words")
        self.assertIn("names.DIC: is not searched yet; for that: wordhawk-cli --data ", lines[1])

    def test_chooses_the_dictionary(self):
        self.run_cli("add", "--main", "Hawk")
        self.assertEqual((self.data / "Dictionarys/1033/ha_.dic").read_bytes(), b"hawk,72000\r\n")
        self.assertIsNone(self.custom())
        self.run_cli("add", "--custom", "names", "Ostrowska")
        self.assertEqual(self.custom("names.DIC"), b"ostrowska,79236\r\n")
        self.run_cli("--set", "CustomDic=mine.dic", "add", "zeta")
        self.assertEqual(self.custom("mine.dic"), b"zeta,90300\r\n")

    def test_refuses_what_no_dictionary_can_hold(self):
        for words in self.sample([["a,b"], ["two\nlines"], [""], ["fine", " "], ["żółw"]]):
            self.fail_cli("add", *words)
            self.assertIsNone(self.custom(), words)

    def test_refuses_paths_as_names(self):
        for name in self.sample(["../x", "..", "a/b", "a\\b", "C:x", "CON", "nul.dic", "x*", "tab\t", "x."]):
            self.fail_cli("add", "--custom", name, "word")
        self.assertEqual(sorted(os.listdir(self.data / "Dictionarys")), ["1033", "Custom"])
        self.assertEqual([n for n in os.listdir(self.data / "Dictionarys/Custom") if n.lower().endswith(".dic")], [])

    def test_loses_nothing_when_the_file_is_read_only(self):
        self.run_cli("add", "first")
        before = self.custom()
        path = self.data / "Dictionarys/Custom/CUSTOM.DIC"
        path.chmod(stat.S_IREAD)
        message = self.fail_cli("add", "second")
        self.assertIn("CUSTOM.DIC: ", message)
        self.assertEqual(self.custom(), before)
        self.assertEqual([n for n in os.listdir(path.parent) if "DIC" in n.upper()], ["CUSTOM.DIC"])


class Remove(CliTest):
    def test_removes_from_main_before_custom(self):
        self.run_cli("add", "hello", "hawk")
        self.assertEqual(self.run_cli("remove", "Hello", "hawk"), "Hello\the_.dic\nhawk\tCUSTOM.DIC\n")
        self.assertEqual(self.custom(), b"hello,72400\r\n")

    def test_says_when_a_word_is_nowhere(self):
        self.assertIn("zzqq: is in no dictionary", self.fail_cli("remove", "zzqq", code=1))


class Import(CliTest):
    def test_makes_a_dictionary_of_the_new_words(self):
        self.write("Medical.dic", "aorta,65630\r\nhello\r\nZygote\r\nx\r\n")
        self.assertEqual(self.run_cli("import", "Medical.dic"), "2\n")
        self.assertEqual(self.custom("Medical.dic"), b"aorta,65630\r\nzygote,90230\r\n")
        self.assertIn("exists", self.fail_cli("import", "Medical.dic"))

    def test_obeys_the_import_flags(self):
        self.write("all.dic", "hello\nworld\nzygote\n")
        self.assertEqual(self.run_cli("--flag", "249=0", "import", "all.dic"), "3\n")

    def test_reads_lists_in_any_encoding(self):
        words = ["naïve2", "café9", "zygote"]
        for i, (encoding, mark) in enumerate([("utf-8", b""), ("utf-8", b"\xef\xbb\xbf"), ("utf-16-le", b"\xff\xfe"),
                                              ("utf-16-be", b"\xfe\xff"), ("cp1252", b"")]):
            self.write(f"list{i}.dic", mark + "\r\n".join(words).encode(encoding))
            self.assertEqual(self.run_cli("--flag", "250=0", "import", f"list{i}.dic"), "3\n", encoding)
            held = self.custom(f"list{i}.dic").decode("cp1252")
            self.assertEqual(sorted(line.split(",")[0] for line in held.splitlines()), sorted(words), encoding)

    def test_tells_what_it_left_out_and_what_is_to_be_done(self):
        self.write("My names.dic", "hello\nżółw\nx\n\nZygote\nthe\n")
        done = self.run_raw("import", "My names.dic")
        self.assertEqual((done.returncode, done.stdout), (0, b"1\n"))
        left_out, not_searched = done.stderr.decode().splitlines()
        self.assertEqual(left_out, "wordhawk-cli: My names.dic: left out: 2 known already, 1 too short, "
                         "1 that a dictionary in code page 1252 cannot hold")
        self.assertIn(' dictionaries --activate "My names.dic"', not_searched)
        self.run_cli("dictionaries", "--activate", "My names.dic")
        self.assertEqual(self.run_cli("check", stdin=b"zygote"), "")
        self.write("more.dic", "gizmo\nhello")
        self.assertEqual(self.run_raw("import", "-q", "more.dic").stderr, b"")

    def test_refuses_missing_files_and_odd_names(self):
        self.assertIn("the file does not exist", self.fail_cli("import", "missing.dic"))
        self.write("old.txt", "")
        message = self.run_raw("import", "old.txt")
        self.assertEqual(message.stdout, b"0\n")


class Dictionaries(CliTest):
    def test_lists_them_with_word_counts(self):
        self.run_cli("add", "hawk", "zeta")
        self.run_cli("add", "--custom", "names", "ostrowska")
        self.assertEqual(self.run_cli("dictionaries"),
                         f"main\t1033\t{len(WORDS)}\t*\ncustom\tCUSTOM.DIC\t2\t*\ncustom\tnames.DIC\t1\t\n")

    def test_activates_one(self):
        self.run_cli("add", "hawk")
        self.run_cli("add", "--custom", "names", "ostrowska")
        self.run_cli("check", stdin=b"ostrowska", code=1)
        self.assertIn("names.DIC\t1\t*", self.run_cli("dictionaries", "--activate", "names"))
        self.run_cli("check", stdin=b"ostrowska hawk")
        self.fail_cli("dictionaries", "--activate", "nowhere")
        self.fail_cli("dictionaries", "--activate", "../names")


class BuildDictionary(CliTest):
    def build(self, *arguments, code=0):
        return self.program.run("build-dictionary", "--output", "out", *arguments, cwd=self.folder)

    def test_writes_sorted_unique_lower_case_entries(self):
        self.write("list", "Hello\nhe\nhello\n  HERO \n\nheld, back\nx-ray\n", "utf-8")
        done = self.build("list")
        self.assertEqual((done.returncode, done.stdout), (0, b"4 words in 2 files, 1 left out\n"), done.stderr)
        self.assertEqual((self.folder / "out/he_.dic").read_bytes(), b"he,72000\r\nhello,72400\r\nhero,72600\r\n")
        self.assertEqual((self.folder / "out/x_.dic").read_bytes(), b"x-ray,88260\r\n")

    def test_takes_code_page_pieces_and_exclusions(self):
        self.write("list", "żółw\nisn't\nwell-known\nbad\n")
        self.write("bad words", "BAD\n")
        done = self.build("--code-page", "1250", "--pieces", "--exclude", "bad words", "list")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual((self.folder / "out/codepage.txt").read_bytes(), b"1250\r\n")
        for files, expected in [("*.dic", ["isn't", "known", "well", "well-known", "żółw"]), ("_pieces_.lst", ["isn"])]:
            out = b"".join(p.read_bytes() for p in (self.folder / "out").glob(files))
            words = [line.split(",")[0] for line in out.decode("cp1250").split("\r\n") if line]
            self.assertEqual(sorted(words), sorted(expected))

    def test_fails_without_its_list(self):
        done = self.build("missing")
        self.assertEqual(done.returncode, 2)
        self.assertIn(b"missing", done.stderr)


class CommandLine(CliTest):
    def test_refuses_what_it_does_not_know(self):
        cases = [[], ["frobnicate"], ["check", "--frobnicate"], ["check", "--list", "--json"], ["check", "-j", "0"],
                 ["suggest"], ["key"], ["add"], ["explain", "one"], ["--set", "Nonsense=1", "dictionaries"],
                 ["--set", "ScoreValue", "dictionaries"], ["--flag", "3", "dictionaries"],
                 ["--flag", "3=2", "dictionaries"], ["--flag", "256=1", "dictionaries"],
                 ["--set", "ScoreValue=abc", "dictionaries"], ["--set", "Language=abc", "dictionaries"],
                 ["--set", "ScoreBox=2", "dictionaries"], ["--set", "Diversity=99999", "dictionaries"],
                 ["--locale", "x", "dictionaries"], ["add", "--main", "--custom", "x", "word"],
                 ["build-dictionary", "--output", "x"], ["build-dictionary", "--code-page", "1", "--output", "x", "y"]]
        for arguments in self.sample(cases):
            self.fail_cli(*arguments)

    def test_helps_with_examples(self):
        overview = self.program.run("--help").stdout.decode()
        commands = ["check", "suggest", "explain", "key", "add", "remove", "import", "dictionaries",
                    "build-dictionary", "pipe"]
        for command in commands:
            self.assertIn("\n  " + command, overview)
        for command in self.sample(commands):
            done = self.program.run(command, "--help")
            self.assertEqual(done.returncode, 0)
            self.assertIn("Examples:", done.stdout.decode(), command)
        self.assertEqual(self.program.run("--version").stdout, b"wordhawk-cli 1.0.0\n")

    def test_takes_global_options_behind_the_command_too(self):
        self.assertEqual(self.run_cli("suggest", "recieve", "--set", "Diversity=0"), "recieve\t\t\t\n")
        self.assertEqual(self.run_cli("suggest", "--", "--set"), "--set\t\t\t\n")
