#!/usr/bin/env python3
"""Installs Wordhawk under Wine as a user would, in silence, uses it and takes it away again."""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
LOCALE = "1033"


class InstallerTest(unittest.TestCase):
    build = prefix = None  # set by main

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        # A prefix of its own: what is removed at the end must be nobody's.
        shutil.rmtree(cls.prefix, ignore_errors=True)
        cls.environment = dict(os.environ, WINEPREFIX=str(cls.prefix), WINEDEBUG="-all",
                               # Nor does a shortcut there belong in the desktop's own menus here.
                               WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=")
        cls.environment.pop("WORDHAWK_DATA", None)
        cls.wine("cmd", "/c", "exit")
        subprocess.run([ROOT / "packaging/stage.py", "--build", cls.build, "--output", cls.folder,
                        "--locales", LOCALE], check=True)
        cls.files = cls.folder / "files"
        cls.setup = cls.folder / "setup.exe"
        subprocess.run(["makensis", "-V1", "-INPUTCHARSET", "UTF8", "-DFAST", "-DVERSION=1.0.0",
                        f"-DSTAGE={cls.files}", f"-DICON={ROOT / 'ui/icons/wordhawk.ico'}",
                        f"-DOUTPUT={cls.setup}", ROOT / "packaging/installer.nsi"], check=True)
        user = next(path for path in (cls.prefix / "drive_c/users").iterdir()
                    if path.name != "Public")
        cls.roaming = user / "AppData/Roaming"
        cls.installed = user / "AppData/Local/Programs/Wordhawk"
        cls.data = cls.roaming / "Wordhawk/Wordhawk"

    @classmethod
    def tearDownClass(cls):
        subprocess.run(["wineserver", "-k"], env=cls.environment, check=False)
        shutil.rmtree(cls.folder, ignore_errors=True)
        shutil.rmtree(cls.prefix, ignore_errors=True)

    @classmethod
    def wine(cls, *arguments, **options):
        # Files, as Wine's own desktop would keep pipes open for as long as any program runs.
        with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as errors:
            done = subprocess.run(["wine", *map(str, arguments)], env=cls.environment,
                                  stdout=output, stderr=errors, **{"timeout": 240, **options})
            for stream in (output, errors):
                stream.seek(0)
            done.stdout, done.stderr = output.read(), errors.read()
        if options.get("text"):
            done.stdout, done.stderr = done.stdout.decode(), done.stderr.decode()
        return done

    def install(self):
        return self.wine(self.setup, "/S").returncode

    def uninstall(self, *options, stays=()):
        """Takes the program away; of its folder only the files `stays` may be left."""
        self.assertEqual(self.wine(self.installed / "uninstall.exe", "/S", *options).returncode, 0)
        # It works from a copy of itself, which it does not wait for.
        for _ in range(1800):
            if self.left() == list(stays):
                break
            time.sleep(0.1)
        subprocess.run(["wineserver", "-w"], env=self.environment, timeout=120, check=False)
        self.assertEqual(self.left(), list(stays))
        self.assertEqual(self.installed.exists(), bool(stays))

    def left(self):
        return sorted(str(path.relative_to(self.installed)) for path in self.installed.rglob("*"))

    def traces(self):
        """Keys and values of the user's registry that speak of the program, and its files."""
        # Wine writes its registry when its server ends.
        subprocess.run(["wineserver", "-k"], env=self.environment, check=False)
        subprocess.run(["wineserver", "-w"], env=self.environment, timeout=120, check=False)
        registry = (self.prefix / "user.reg").read_text(encoding="utf-8", errors="replace")
        lines = [line for line in registry.splitlines() if re.search("wordhawk", line, re.IGNORECASE)]
        return lines + sorted(str(path) for path in (self.prefix / "drive_c").rglob("*ordhawk*"))

    def cli(self, *arguments, program=None, **options):
        return self.wine((program or self.installed) / "wordhawk-cli.exe", "--locale", LOCALE,
                         *arguments, **options)

    def test_everything_comes_works_and_goes_but_the_users_words(self):
        self.assertEqual(self.install(), 0)
        for staged in self.files.rglob("*"):
            place = self.installed / staged.relative_to(self.files)
            self.assertEqual(place.is_dir(), staged.is_dir(), place)
            if staged.is_file():
                self.assertEqual(place.read_bytes(), staged.read_bytes(), place)
        links = [self.roaming / "Microsoft/Windows" / name
                 for name in ("Start Menu/Programs/Wordhawk.lnk", "SendTo/Wordhawk.lnk")]
        for link in links:
            self.assertTrue(link.is_file(), link)
        command = self.wine("reg", "query",
                            r"HKCU\Software\Classes\Wordhawk.Document\shell\open\command")
        self.assertIn(b'Programs\\Wordhawk\\Wordhawk.exe" "%1"', command.stdout)
        for kind in (".txt", ".rtf"):
            offered = self.wine("reg", "query", rf"HKCU\Software\Classes\{kind}\OpenWithProgids")
            self.assertIn(b"Wordhawk.Document", offered.stdout)

        found = self.cli("check", "-", input=b"They recieve a letter.\n")
        self.assertEqual(found.returncode, 1, found)
        self.assertIn(b"receive", found.stdout)
        self.assertEqual(self.cli("add", "zzyzx").returncode, 0)

        self.uninstall()
        words = self.data / "Dictionarys/Custom/CUSTOM.DIC"
        self.assertIn(b"zzyzx,", words.read_bytes())
        for trace in self.traces():
            self.assertTrue(trace.startswith(str(self.data.parent)), trace)

        # Another time, with all that is the user's.
        self.assertEqual(self.install(), 0)
        self.uninstall("/DELETEDATA")
        self.assertEqual(self.traces(), [])

    def test_a_running_copy_is_not_replaced(self):
        self.assertEqual(self.install(), 0)
        mark = self.installed / "languages/lang1031.ini"
        mark.write_bytes(b"old")
        running = subprocess.Popen(
            ["wine", str(self.installed / "wordhawk-cli.exe"), "--locale", LOCALE, "pipe"],
            env=self.environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            self.assertIn(b"@(#)", running.stdout.readline())
            self.assertEqual(self.install(), 2)
            self.assertEqual(mark.read_bytes(), b"old")
        finally:
            running.communicate(timeout=60)
        self.assertEqual(self.install(), 0)
        self.assertNotEqual(mark.read_bytes(), b"old")
        # A file of someone else's in the folder survives, and the folder with it.
        own = self.installed / "notes.txt"
        own.write_bytes(b"mine")
        self.uninstall("/DELETEDATA", stays=["notes.txt"])
        shutil.rmtree(self.installed)

    def test_a_portable_copy_keeps_its_data_beside_itself(self):
        copy = self.folder / "portable"
        shutil.copytree(self.files, copy)
        shutil.copy(ROOT / "packaging/portable.ini", copy)
        self.assertEqual(self.cli("add", "zzyzx", program=copy).returncode, 0)
        self.assertIn(b"zzyzx,", (copy / "Data/Dictionarys/Custom/CUSTOM.DIC").read_bytes())
        self.assertFalse(self.data.exists())


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--prefix", type=pathlib.Path, required=True)
    arguments, rest = parser.parse_known_args()
    InstallerTest.build, InstallerTest.prefix = arguments.build, arguments.prefix
    unittest.main(argv=sys.argv[:1] + rest, verbosity=2)


main()
