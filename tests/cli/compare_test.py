"""The build under test against another one: the same bytes, whatever the system."""

import pathlib
import random
import unittest

from cli_support import WORDS, CliTest

SAMPLE = pathlib.Path(__file__).resolve().parents[2] / "data" / "sample.txt"


class SameBytes(CliTest):
    def setUp(self):
        super().setUp()
        if self.reference is None:
            self.skipTest("no second build to compare with")

    def expect_same(self, *arguments, stdin=b""):
        common = ["--data", "data", "--locale", "1033", "--no-install", *arguments]
        mine = self.program.run(*common, stdin=stdin, cwd=self.folder)
        other = self.reference.run(*common, stdin=stdin, cwd=self.folder)
        self.assertEqual(mine.returncode, other.returncode, mine.stderr)
        self.assertEqual(mine.stdout, other.stdout, arguments)
        self.assertEqual(mine.stderr, other.stderr, arguments)
        return mine.stdout

    def expect_same_of_file(self, name):
        for options in [[], ["--list"], ["--json"], ["--words"]]:
            self.assertNotEqual(self.expect_same("check", *options, name), b"")
        listed = self.expect_same("check", "--list", name)
        for options in [[], ["--set", "SortBy=1"], ["--set", "SortBy=2"], ["--set", "ExtraDiversity=1"]]:
            self.expect_same(*options, "suggest", "--stdin", stdin=listed)
        self.expect_same("pipe", stdin=(self.folder / name).read_bytes())

    @unittest.skipUnless(SAMPLE.exists(), "no sample text")
    def test_on_the_sample(self):
        self.write("sample.txt", SAMPLE.read_bytes())
        self.expect_same_of_file("sample.txt")

    def test_on_a_megabyte(self):
        random.seed(11)
        letters = "abcdeéfghilmnorstuwyzß–’"
        text, size = [], 0
        while size < 1_000_000:
            word = random.choice(WORDS)
            if random.random() < 0.1:
                at = random.randrange(len(word))
                word = word[:at] + random.choice(letters) + word[at + random.randrange(2):]
            if random.random() < 0.1:
                word = word.capitalize()
            text.append(word + random.choice([" ", " ", " ", " ", ", ", ".\n", "\r\n", " http://x.org/" + word + " "]))
            size += len(text[-1])
        self.write("text", "".join(text))
        self.expect_same_of_file("text")

    def test_on_errors(self):
        for arguments in [["check", "missing"], ["check", "--frob"], ["frob"], ["add", "a,b"], ["remove", "zzqq"],
                          ["--help"], ["check", "--help"], ["dictionaries"], ["explain", "recieve", "receive"],
                          ["add", "--custom", "../x", "y"]]:
            self.expect_same(*arguments)
