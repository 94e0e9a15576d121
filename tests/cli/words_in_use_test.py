"""Words that are forbidden, ignored, or written with typographic apostrophes."""

import os

from cli_support import CliTest


class WordsInUse(CliTest):
    def test_forbidden_words_are_flagged_until_they_are_allowed(self):
        self.write("t", "The cat and the Dog hwll")
        known = self.run_cli("check", "--list", "t", code=1)
        self.assertEqual(known, "hwll\n")
        self.assertEqual(self.run_cli("forbid"), "")
        self.run_cli("forbid", "CAT", "feline", "tom cat")
        self.run_cli("forbid", "dog")
        self.assertEqual(self.run_cli("forbid"), "cat\tfeline, tom cat\ndog\t\n")
        for jobs in (1, 2):
            lines = self.run_cli("check", "-j", jobs, "t", code=1).splitlines()
            self.assertTrue(lines[0].startswith("t:1:5: cat -> feline (100%), tom cat (100%)"), lines)
            self.assertTrue(lines[1].startswith("t:1:17: Dog"), lines)
        self.assertEqual(self.run_cli("suggest", "cat").splitlines()[0], "cat\tfeline\t100\t*")
        self.assertIn("& cat", self.run_cli("pipe", stdin="^cat\n"))
        self.run_cli("forbid", "cat", "kitten")
        self.assertEqual(self.run_cli("forbid"), "dog\t\ncat\tkitten\n")
        self.assertIn("bird: is not forbidden", self.fail_cli("forbid", "--remove", "dog", "bird", code=1))
        self.run_cli("forbid", "--remove", "cat")
        self.assertEqual(self.run_cli("check", "--list", "t", code=1), known)

    def test_forbids_only_what_a_check_can_meet(self):
        for word in ["a-b", "x", "two words", "", "a1", "#a"]:
            self.assertIn("cannot be forbidden", self.fail_cli("forbid", "--", word, "better"))
        self.assertIn("cannot be preferred", self.fail_cli("forbid", "word", "one, two"))
        self.assertIsNone(self.custom("FORBIDDEN.TXT"))

    def test_reads_typographic_apostrophes_as_straight_ones(self):
        self.write("t", "dog’s ‘dog’s’ dogg’s dogg's naïve’ l’zzz")
        places = [f"t:1:{c}: {w}" for c, w in [(15, "dogg’s"), (22, "dogg's"), (36, "l’zzz")]]
        modern = ("--set", "StraightApostrophe=1", "--set", "ScoreValue=1")
        out = self.run_cli(*modern, "check", "t", code=1).splitlines()
        self.assertEqual([line.split(" -> ")[0] for line in out], places)
        self.assertIn(" -> dog’s (", out[0])
        self.assertIn(" -> dog's (", out[1])
        self.assertEqual(self.run_cli("check", "--words", "t"), "dogg\ndogg's\nzzz\n")
        self.run_cli(*modern, "add", "l’zzz")
        self.assertIn(b"l'zzz,", self.custom())
        self.assertEqual(self.run_cli(*modern, "check", "--list", "t", code=1), "dogg’s\ndogg's\n")
        self.assertEqual(self.run_cli(*modern, "remove", "l’zzz"), "l'zzz\tCUSTOM.DIC\n")

    def test_leaves_out_the_words_of_lists(self):
        self.write("list", "# names\r\nZeta\r\n\r\n  o’neil ")
        self.write("utf16", "qq\nww\n", "utf-16")
        self.write("t", "zeta ZETA helo O'Neil qq ww")
        self.assertEqual(self.run_cli("check", "--list", "--ignore-words", "list", "t", code=1), "helo\nqq\nww\n")
        both = ["--ignore-words", "list", "--ignore-words", "utf16"]
        self.assertEqual(self.run_cli("check", "--count", *both, "t", code=1), "helo\t1\n")
        self.write("u", "zeta qq")
        self.assertEqual(self.run_cli("check", *both, "u"), "")
        self.assertIn("nolist", self.fail_cli("check", "--ignore-words", "nolist", "t"))
        self.run_cli("forbid", "zeta", "eta")
        self.assertIn("u:1:1: zeta -> eta (100%)", self.run_cli("check", *both, "u", code=1))

    def test_finds_the_lists_of_projects(self):
        lists = {"": "outsidez", "repo/": "rootz", "repo/a/": "middlez", "repo/a/b/": "innerz"}
        for name, words in lists.items():
            self.write(name + ".wordhawk-words", words + "\n")
        text = "outsidez rootz middlez innerz"
        (self.folder / "repo/.git").mkdir()
        (self.folder / "repo/a/b/c").mkdir()
        for name in ["t", "repo/t", "repo/a/t", "repo/a/b/c/t", "plain/t"]:
            self.write(name, text)
        cases = {
            "t": "rootz\nmiddlez\ninnerz\n",
            "repo/t": "outsidez\nmiddlez\ninnerz\n",
            "repo/a/t": "outsidez\ninnerz\n",
            "repo/a/b/c/t": "outsidez\n",
            "plain/t": "outsidez\nrootz\nmiddlez\ninnerz\n",
        }
        for name, expected in cases.items():
            for jobs in (1, 2):
                self.assertEqual(self.run_cli("check", "--list", "-j", jobs, name, code=1), expected, name)
        self.assertEqual(self.run_cli("check", "--words", *cases).split(), " ".join(cases.values()).split())
        self.assertEqual(self.run_cli("check", "--list", "--no-project-words", "repo/a/t", code=1),
                         text.replace(" ", "\n") + "\n")
        self.assertEqual(self.run_cli("check", "--list", stdin=text, code=1), cases["t"])
        if not self.program.is_windows:
            os.remove(self.folder / "repo/.wordhawk-words")
            (self.folder / "repo/.wordhawk-words").mkdir()
            done = self.run_raw("check", "--list", "repo/a/t")
            self.assertEqual((done.returncode, done.stdout), (2, text.replace(" ", "\n").encode() + b"\n"))
            self.assertIn(b".wordhawk-words", done.stderr)
