"""What the scenario tests of the command line share: running the program over a small data folder."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

WORDS = """a an and at be believe bold cafe café cat dog don dog's farm fine for form from hello hints
hit hits in is it line lines named naïve no of off on one receive star test text that the then there
they this to two well with word words world""".split()


def wine_failed(done):
    """Whether Wine gave up before our program began, as it does now and then on a busy machine: it
    says why, ends with 1, and the program has said nothing."""
    return done.returncode == 1 and not done.stdout and re.search(rb"^wine", done.stderr, re.MULTILINE)


class Program:
    """The program under test, perhaps behind an emulator."""

    def __init__(self, path, emulator=None):
        self.path = str(path)
        self.emulated = bool(emulator)
        self.command = ([emulator] if emulator else []) + [self.path]

    @property
    def is_windows(self):
        return self.path.lower().endswith(".exe")

    def run(self, *arguments, stdin=b"", cwd=None):
        if isinstance(stdin, str):
            stdin = stdin.encode()
        command = self.command + [str(a) for a in arguments]
        for _ in range(3):
            done = subprocess.run(command, input=stdin, cwd=cwd, capture_output=True, timeout=120)
            if not (self.emulated and wine_failed(done)):
                break
        if self.emulated:  # what Wine says about itself is not ours
            done.stderr = b"".join(line for line in done.stderr.splitlines(keepends=True)
                                   if not re.match(rb"wine:|[0-9a-f]{4}:(err|fixme|warn):", line))
        return done


class CliTest(unittest.TestCase):
    """A test with a fresh folder and data folder of its own."""

    program = None    # set by run_cli_tests.py
    reference = None  # a second build to compare with, when there is one
    template = None
    # Most tests are about the classic behaviour; those of the modern one have no option here.
    behaviour = ("--classic",)
    maxDiff = 4000

    @classmethod
    def make_template(cls, folder):
        """Builds the dictionary that every test starts with."""
        cls.template = pathlib.Path(folder) / "template"
        cls.template.mkdir()
        word_list = pathlib.Path(folder) / "words.txt"
        word_list.write_text("\n".join(WORDS) + "\n", encoding="utf-8")
        built = cls.program.run("build-dictionary", "--output", cls.template / "Dictionarys" / "1033",
                                word_list)
        if built.returncode != 0:
            raise RuntimeError("build-dictionary failed: " + built.stderr.decode(errors="replace"))

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="wordhawk-cli-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.data = self.folder / "data"
        shutil.copytree(self.template, self.data)

    def sample(self, cases):
        """All cases; behind an emulator, where each start is slow, every third of those that only
        repeat what the same code does on every system."""
        return cases[::3] if self.program.emulated else cases

    def run_raw(self, *arguments, stdin=b"", data=None):
        return self.program.run("--data", data or self.data, "--locale", "1033", "--no-install",
                                *self.behaviour, *arguments, stdin=stdin, cwd=self.folder)

    def run_cli(self, *arguments, stdin=b"", code=0):
        """Runs with the test's data folder and returns stdout as text; the exit code must be `code`."""
        done = self.run_raw(*arguments, stdin=stdin)
        self.assertEqual(done.returncode, code, done.stderr.decode(errors="replace") + f" {arguments}")
        return done.stdout.decode("utf-8")

    def fail_cli(self, *arguments, stdin=b"", code=2):
        """Runs what must fail with `code`, and returns what stderr says."""
        done = self.run_raw(*arguments, stdin=stdin)
        message = done.stderr.decode("utf-8")
        self.assertEqual(done.returncode, code, message + f" {arguments}")
        for line in message.splitlines():
            self.assertTrue(line.startswith("wordhawk-cli: "), message)
        self.assertNotEqual(message, "")
        return message

    def write(self, name, content, encoding="utf-8"):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode(encoding))
        return path

    def custom(self, name="CUSTOM.DIC"):
        path = self.data / "Dictionarys" / "Custom" / name
        return path.read_bytes() if path.exists() else None
