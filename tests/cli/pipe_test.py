"""Scenarios of the ispell line protocol, and editors that speak it."""

import os
import shutil
import subprocess
import unittest

from cli_support import CliTest

BANNER = "@(#) International Ispell Version 3.1.20 (but really Wordhawk 1.0.0)\n"


class Pipe(CliTest):
    def talk(self, text, *arguments, encoding="utf-8"):
        stdin = text if isinstance(text, bytes) else text.encode(encoding)
        done = self.run_raw(*(arguments or ["pipe"]), stdin=stdin)
        self.assertEqual(done.returncode, 0, done.stderr)
        out = done.stdout.decode(encoding)
        self.assertTrue(out.startswith(BANNER), out)
        return out[len(BANNER):]

    def test_answers(self):
        cases = [
            ("", "", "nothing asked"),
            ("hello world\n", "*\n*\n\n", "known words"),
            ("recieve\n", "& recieve 1 0: receive\n\n", "a suggestion"),
            ("zzqq\n", "# zzqq 0\n\n", "none"),
            ("^recieve zzqq\n", "& recieve 1 1: receive\n# zzqq 9\n\n", "the caret counts"),
            ("\n^\n \n", "\n\n\n", "one empty line for each line"),
            ("zzqq\r\n^the zzqq\r\n", "# zzqq 0\n\n*\n# zzqq 5\n\n", "CR is no part of a word"),
            ("é 😀 zzqq naïve\n", "# zzqq 4\n*\n\n", "offsets in characters"),
            ("a 123 HELLO x\n", "*\n\n", "skipped words have no line"),
            ("RECIEVE Recieve\n", "& RECIEVE 1 0: RECEIVE\n& Recieve 1 8: Receive\n\n", "case of the word"),
            ("'zzqq' don't\n", "# zzqq 1\n# don't 7\n\n", "cleaned words where they start"),
            ("^*zzqq ^@ www.zzqq.org\n", "# zzqq 2\n\n", "a caret guards what would be a command"),
            ("!\nhello zzqq\n%\nhello\n", "# zzqq 6\n\n*\n\n", "terse and back"),
            ("`\nhello zzqq\n%\nhello\n", "* hello\n# zzqq 6\n\n*\n\n", "correct words named"),
            ("+tex\n-\n~latin1\n+\n#\n@\n*\n&\n", "", "commands have no answer"),
            ("$$cs x,y\n", "# cs 2\n\n", "no command of ours is text"),
            ("*Zzqr\nzzqr\n", "*\n\n", "known before it is saved"),
            ("@Zzqq\nzzqq ZZQQ\n", "*\n*\n\n", "accepted for the session"),
        ]
        # One conversation for all: only the last cases change what later ones get.
        self.assertEqual(self.talk("".join(text for text, _, _ in cases)),
                         "".join(expected for _, expected, _ in cases))
        for text, expected, why in self.sample(cases):
            with self.subTest(why):
                self.assertEqual(self.talk(text), expected)

    def test_needs_no_line_end_at_the_end(self):
        self.assertEqual(self.talk("zzqq"), "# zzqq 0\n\n")

    def test_saves_personal_words_when_told(self):
        self.talk("*Zzqq\n@session\n")
        self.assertIsNone(self.custom())
        self.assertEqual(self.talk("*Hawk\n*a,b\n*żółw\n&Éclair\n#\nhawk éclair zzqq\n"), "*\n*\n# zzqq 12\n\n")
        self.assertEqual(self.custom(), "hawk,72000\r\néclair,20124\r\n".encode("cp1252"))
        self.assertEqual(self.talk("hawk\n"), "*\n\n")

    def test_answers_ansi_clients_in_ansi(self):
        self.assertEqual(self.talk("zzé the zzqq\n", encoding="cp1252"), "# zzé 0\n*\n# zzqq 8\n\n")
        out = self.talk("zzé\ncafx\n", "--set", "ScoreValue=60", "pipe", encoding="cp1252")
        self.assertIn("café", out)

    def test_takes_the_arguments_of_ispell_clients(self):
        for arguments in self.sample([["-a"], ["-a", "-m", "-B"], ["-a", "-C", "-d", "american", "-p", "x.dic"],
                          ["-a", "-w", "äö", "-W", "3", "-S", "-T", "utf-8"], ["-damerican", "-a"],
                          ["-B", "-d", "english", "-a", "--encoding=utf-8"], ["pipe", "-a", "-m"]]):
            with self.subTest(arguments):
                self.assertEqual(self.talk("zzqq\n", *arguments), "# zzqq 0\n\n")
        for arguments in [["-v"], ["-vv"], ["-d", "american", "-vv"]]:
            self.assertEqual(self.program.run(*arguments).stdout.decode(), BANNER)
        self.assertEqual(self.run_cli("-l", "-d", "american", stdin=b"hello zzqq\nzzqq"), "zzqq\nzzqq\n")

    def test_answers_each_line_at_once(self):
        arguments = self.program.command + ["--data", str(self.data), "--locale", "1033", "--no-install", "-a"]
        with subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.PIPE) as running:
            self.assertEqual(running.stdout.readline().decode(), BANNER)
            for word in ["zzqq", "hello"]:
                running.stdin.write(f"^{word}\n".encode())
                running.stdin.flush()
                self.assertIn(running.stdout.readline(), [b"# zzqq 1\n", b"*\n"])
                self.assertEqual(running.stdout.readline(), b"\n")
            running.stdin.close()
            self.assertEqual(running.wait(timeout=20), 0)

    def test_bears_long_lines(self):
        self.assertEqual(self.talk("the " * 300_000 + "zzqq\n").count("*\n"), 300_000)

    def test_says_when_there_is_no_dictionary(self):
        done = self.run_raw("-a", data=self.folder / "empty")
        self.assertEqual((done.returncode, done.stdout), (2, b""))


EMACS = r"""
(require 'ispell)
(require 'cl-lib)
(setq ispell-program-name (getenv "WORDHAWK") ispell-extra-args (list "--data" (getenv "WORDHAWK_DATA") "--locale" "1033"))
(with-temp-buffer
  (insert "Zzqq is fine.\nA recieve, *star at wrold\n*bold lien\n\n#zzx élève 😀 helo\n- item the\n")
  (cl-letf (((symbol-function 'ispell-command-loop)
             (lambda (miss _guess word start end)
               (unless (equal word (buffer-substring start end)) (error "misplaced %s" word))
               (princ (format "%s %s %s\n" word start (car miss)))
               nil)))
    (ispell-buffer)))
(with-temp-buffer
  (insert "zzqq")
  (cl-letf (((symbol-function 'ispell-command-loop) (lambda (&rest _) ?a)))
    (goto-char (point-min)) (ispell-word))
  (princ "done\n"))
"""


class Editors(CliTest):
    @unittest.skipUnless(shutil.which("emacs"), "Emacs is not installed")
    def test_emacs_checks_a_buffer(self):
        wrapper = self.write("ispell", "#!/bin/sh\nexec " + " ".join(f"'{c}'" for c in self.program.command) + ' "$@"\n')
        wrapper.chmod(0o755)
        script = self.write("check.el", EMACS)
        environment = dict(os.environ, WORDHAWK=str(wrapper), WORDHAWK_DATA=str(self.data), LC_ALL="C.UTF-8")
        done = subprocess.run(["emacs", "-Q", "--batch", "-l", str(script)], env=environment, capture_output=True,
                              timeout=120, cwd=self.folder)
        self.assertEqual(done.stdout.decode(), "Zzqq 1 nil\nrecieve 17 receive\nwrold 35 world\nlien 47 line\n"
                         "zzx 54 nil\nélève 58 line\nhelo 66 hello\nitem 73 it\ndone\n", done.stderr.decode())
