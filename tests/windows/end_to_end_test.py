#!/usr/bin/env python3
"""Corrects real documents in the real program with nothing but the keyboard, and reads the saved files.

    end_to_end_test.py --program Wordhawk.exe --tool wordhawk-cli.exe --emulator RUNNER

Wants a display (Xvfb will do) and xdotool; without them it is skipped.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

GOOD = """about again all and are as at bird book boat but calm cat clear day deep door every fine for from garden
glass good green hand happy have hill home house in is it lake letter light long man map more morning
mountain new night of old on open our paper people quiet rain ready river road room sea sky small snow
some stone story street summer sun table the time to town train tree under very wall warm water weather
well white wind window winter with wood word work world year""".split()

# A wrong word for thirty of them, as people write them.
WRONG = {"about": "abuot", "bird": "brid", "clear": "claer", "garden": "graden", "glass": "glas",
         "green": "grean", "happy": "hapy", "house": "huose", "letter": "leter", "light": "ligth",
         "morning": "mornig", "mountain": "mountian", "night": "nihgt", "open": "opne", "paper": "papper",
         "people": "peopel", "quiet": "queit", "ready": "reday", "river": "rivver", "small": "smal",
         "story": "stroy", "street": "streat", "summer": "sumer", "table": "tabel", "train": "trian",
         "under": "undre", "water": "watter", "weather": "waether", "window": "windwo", "winter": "wintr"}


class EndToEnd(unittest.TestCase):
    options = None

    @classmethod
    def setUpClass(cls):
        cls.template = pathlib.Path(tempfile.mkdtemp(prefix="wordhawk-e2e-"))
        words = cls.template / "words.txt"
        words.write_text("\n".join(GOOD) + "\n")
        cls.wine(cls.options.tool, "build-dictionary", "--output",
                 cls.template / "data" / "Dictionarys" / "1033", words)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.template, ignore_errors=True)

    @classmethod
    def wine(cls, *command):
        subprocess.run([cls.options.emulator, *map(str, command)], check=True, timeout=120,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="wordhawk-e2e-"))
        self.data = self.folder / "data"
        shutil.copytree(self.template / "data", self.data)
        self.program = None

    def tearDown(self):
        if self.program and self.program.poll() is None:
            self.program.kill()
            self.program.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def settings(self, **values):
        lines = "".join(f"{key}={value}\r\n" for key, value in values.items())
        (self.data / "Wordhawk.ini").write_text("[Settings]\r\nLanguage=1033\r\n" + lines, newline="")

    def start(self, document):
        environment = dict(os.environ, WORDHAWK_DATA="Z:" + str(self.data).replace("/", "\\"))
        path = "Z:" + str(document).replace("/", "\\")
        self.program = subprocess.Popen([self.options.emulator, self.options.program, path],
                                        env=environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.window = self.wait_for(lambda: self.find(f"{document.name} - Wordhawk"))

    def wait_for(self, answer, seconds=60):
        end = time.time() + seconds
        while time.time() < end:
            found = answer()
            if found:
                return found
            time.sleep(0.1)
        if self.options.screenshot:
            subprocess.run(["import", "-window", "root", self.options.screenshot])
        self.fail("waited too long")

    @staticmethod
    def find(title):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                               capture_output=True, text=True)
        return found.stdout.split()[0] if found.stdout.split() else None

    def press(self, *keys, window=None):
        # Without a window manager nobody else hands out the focus.
        subprocess.run(["xdotool", "windowfocus", "--sync", window or self.window], check=False,
                       stderr=subprocess.DEVNULL, timeout=20)
        subprocess.run(["xdotool", "key", "--clearmodifiers", "--delay", "60", *keys], check=True,
                       timeout=60)

    def finish(self):
        """Answers the notice that everything is done; the program then ends by itself."""
        notice = self.wait_for(lambda: self.find("^Spell check complete$"))
        self.press("Return", window=notice)
        self.wait_for(lambda: self.program.poll() is not None)

    def test_thirty_mistakes_are_corrected_by_keyboard_alone(self):
        self.settings(SaveBack=1, Diversity=2, ScoreValue=60, SortBy=1)
        right = "".join(f"The {word} and the {other} are in the town.\r\n"
                        for word, other in zip(sorted(WRONG), reversed(GOOD)))
        wrong = "".join(f"The {WRONG[word]} and the {other} are in the town.\r\n"
                        for word, other in zip(sorted(WRONG), reversed(GOOD)))
        document = self.folder / "letter.txt"
        document.write_bytes(wrong.encode())
        self.start(document)
        for word in sorted(WRONG):
            # The change-to box, the right word instead of what stands there, and Enter for Change.
            self.press("alt+t", "ctrl+a")
            subprocess.run(["xdotool", "type", "--delay", "40", word], check=True, timeout=60)
            self.press("Return")
        self.finish()
        self.assertEqual(document.read_bytes().decode(), right)

    def test_ignoring_everything_leaves_the_file_as_it_was(self):
        self.settings(SaveBack=1)
        document = self.folder / "notes.txt"
        content = "The qqqx and the zzzy.\nThe qqqx again\n".encode("utf-16")
        document.write_bytes(content)
        self.start(document)
        self.press("alt+g", "alt+g")  # Ignore All, for two words
        self.finish()
        self.assertEqual(document.read_bytes(), content)

    def test_adding_a_word_by_keyboard_reaches_the_custom_dictionary(self):
        self.settings(SaveBack=0)
        document = self.folder / "names.txt"
        document.write_text("The Wordhawk is in the tree.\n")
        self.start(document)
        self.press("alt+u")  # Cust.
        self.finish()
        custom = (self.data / "Dictionarys" / "Custom" / "CUSTOM.DIC").read_bytes()
        self.assertEqual(custom, b"wordhawk,87632\r\n")


def main():
    parser = argparse.ArgumentParser()
    for name in ("program", "tool", "emulator"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--screenshot", help="where a picture of the screen goes when a wait fails")
    EndToEnd.options, rest = parser.parse_known_args()
    if not os.environ.get("DISPLAY") or not shutil.which("xdotool"):
        print("SKIPPED: no display or no xdotool")
        return 77  # what CTest takes for skipped
    result = unittest.main(argv=[sys.argv[0]] + rest, exit=False, verbosity=2).result
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main())
