#!/usr/bin/env python3
"""Builds the Debian package, unpacks it and uses what is in it: the program with its dictionaries, the
manual page, the completion, and the examples for git and continuous integration."""

import argparse
import gzip
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

LETTER = "They recieve the frobnicator.\n"


class DebianPackageTest(unittest.TestCase):
    build = None  # set by main

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        subprocess.run(["cpack", "--config", cls.build / "CPackConfig.cmake", "-B", cls.folder,
                        "-D", "CPACK_DEBIAN_COMPRESSION_TYPE=none"], check=True, capture_output=True)
        cls.package = next(cls.folder.glob("*.deb"))
        cls.root = cls.folder / "root"
        subprocess.run(["dpkg-deb", "-x", cls.package, cls.root], check=True)
        cls.examples = cls.root / "usr/share/doc/wordhawk-cli/examples"

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        self.environment = dict(
            os.environ, HOME=str(self.home), LC_ALL="en_US.UTF-8",
            PATH=f"{self.root / 'usr/bin'}:{os.environ['PATH']}",
            GIT_AUTHOR_NAME="A", GIT_AUTHOR_EMAIL="a@b.example", GIT_COMMITTER_NAME="A",
            GIT_COMMITTER_EMAIL="a@b.example", GIT_CONFIG_NOSYSTEM="1")
        self.environment.pop("XDG_DATA_HOME", None)

    def run_in_home(self, *command, **options):
        return subprocess.run([str(part) for part in command], cwd=self.home, env=self.environment,
                              capture_output=True, text=True, timeout=120, **options)

    def test_the_program_finds_what_was_delivered_with_it(self):
        done = self.run_in_home("wordhawk-cli", "--locale", "1033", "check", "-", input=LETTER)
        self.assertEqual(done.returncode, 1, done.stderr)
        self.assertIn("receive", done.stdout)
        done = self.run_in_home("wordhawk-cli", "--data", "german", "--locale", "1031", "check", "-",
                                input="Das Fahrad\n")
        self.assertIn("fahrrad", done.stdout.lower())
        self.assertTrue((self.home / ".local/share/Wordhawk/Wordhawk/Wordhawk.ini").is_file())
        self.assertTrue((self.home / "german/Resources/1031/lang1031.ini").is_file())
        fields = subprocess.run(["dpkg-deb", "-f", self.package], capture_output=True, text=True).stdout
        for field in ("Package: wordhawk-cli", "Architecture: amd64", "Depends: libc6"):
            self.assertIn(field, fields)

    def test_manual_page_and_completion_know_every_command(self):
        told = self.run_in_home("wordhawk-cli", "--help").stdout
        listed = told[told.index("\nCommands:"):]
        commands = [line.split()[0] for line in listed[:listed.index("\n\n")].splitlines()[2:]]
        self.assertGreater(len(commands), 8)
        page = gzip.decompress((self.root / "usr/share/man/man1/wordhawk-cli.1.gz").read_bytes()).decode()
        for command in commands:
            self.assertIn(".SS " + command.replace("-", "\\-"), page)
        completion = self.root / "usr/share/bash-completion/completions/wordhawk-cli"
        for typed, expected in (("", commands), ("ch", ["check"]), ("check --js", ["--json"])):
            words = ["wordhawk-cli", *typed.rsplit(" ", 1)]
            done = self.run_in_home("bash", "-c", f". {completion}; COMP_WORDS=(\"$@\"); "
                                    "COMP_CWORD=$(($# - 1)); _wordhawk_cli; printf '%s\\n' \"${COMPREPLY[@]}\"",
                                    "-", *words)
            self.assertEqual(sorted(done.stdout.split()), sorted(expected), (typed, done.stderr))

    def test_the_hook_stops_what_the_project_does_not_know(self):
        self.run_in_home("git", "init", "-q", ".")
        for source in ("git/pre-commit", "ci/check-spelling.sh"):
            shutil.copy(self.examples / source, self.home / ".git/hooks")
        text = self.home / "docs" / "a letter.txt"
        text.parent.mkdir()
        text.write_text(LETTER)
        self.run_in_home("git", "add", "docs")
        stopped = self.run_in_home("git", "commit", "-qm", "x")
        said = stopped.stdout + stopped.stderr
        self.assertNotEqual(stopped.returncode, 0)
        self.assertIn("docs/a letter.txt:1:6: recieve", said)
        self.assertIn("frobnicator", said)
        (self.home / ".wordhawk-words").write_text("# of this project\nfrobnicator\n")
        text.write_text("Not what is about to be committed: recieve\n")
        stopped = self.run_in_home("git", "commit", "-qm", "x")
        self.assertNotEqual(stopped.returncode, 0)
        self.assertNotIn("frobnicator", stopped.stdout + stopped.stderr)
        text.write_text(LETTER.replace("recieve", "receive"))
        self.run_in_home("git", "add", "docs")
        passed = self.run_in_home("git", "commit", "-qm", "x")
        self.assertEqual(passed.returncode, 0, passed.stderr)

    def test_the_editors_accept_their_examples(self):
        letter = self.home / "letter.txt"
        letter.write_text(LETTER)
        vim = self.run_in_home(
            "vim", "-Nu", "NONE", "-es", "-S", self.examples / "vim/wordhawk.vim", letter,
            "-c", "Wordhawk", "-c", "call writefile(map(getqflist(), 'v:val.text'), 'found')", "-c", "qa!")
        self.assertTrue((self.home / "found").is_file(), vim)
        self.assertIn("recieve", (self.home / "found").read_text())
        emacs = self.run_in_home(
            "emacs", "--batch", "-l", self.examples / "emacs/wordhawk.el", "--eval",
            '(with-temp-buffer (insert "They recieve it.") (goto-char 7) (ispell-set-spellchecker-params)'
            ' (princ ispell-program-name))')
        self.assertIn("wordhawk-cli", emacs.stdout, emacs.stderr)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, required=True)
    arguments, rest = parser.parse_known_args()
    DebianPackageTest.build = arguments.build
    unittest.main(argv=sys.argv[:1] + rest, verbosity=2)


main()
