"""The recipes of docs/scale.md, run as they stand there."""

import os
import pathlib
import random
import re
import shlex
import shutil
import subprocess

from cli_support import CliTest, WORDS

PAGE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "scale.md"


class Scale(CliTest):
    def test_recipes_give_what_one_process_gives(self):
        if self.program.emulated:
            self.skipTest("the recipes are for this system's own shell")
        if not shutil.which("parallel"):
            self.skipTest("needs GNU parallel")
        random.seed(3)
        letters = "abcdefghijklmnopqrstuvwxyz"
        unknown = ["zq" + random.choice(letters) + random.choice(letters) + "é" for _ in range(300)] + ["hullo", "naq"]
        lines = [" ".join(random.choice(unknown if random.random() < 0.1 else WORDS) for _ in range(9)) + "."
                 for _ in range(12_000)]
        self.write("corpus.txt", "\n".join(lines) + "\n")
        for i in range(6):
            self.write(f"corpus/of {i}.txt", "\n".join(lines[i * 100:i * 100 + 100]))
        tools = self.folder / "tools"
        tools.mkdir()
        program = [*self.program.command, "--data", self.data, "--locale", "1033", "--no-install", *self.behaviour]
        (tools / "wordhawk-cli").write_text(f'#!/bin/sh\nexec {shlex.join(map(str, program))} "$@"\n')
        (tools / "wordhawk-cli").chmod(0o755)

        recipes = re.findall(r"^```sh\n(.*?)^```", PAGE.read_text(encoding="utf-8"), re.MULTILINE | re.DOTALL)
        self.assertGreaterEqual(len(recipes), 7)
        environment = dict(os.environ, PATH=f"{tools}{os.pathsep}{os.environ['PATH']}", HOME=str(self.folder))
        environment.pop("SHELL", None)  # as where a service runs the recipes
        done = subprocess.run(["sh", "-e"], input="\n".join(recipes).encode(), cwd=self.folder, env=environment,
                              capture_output=True, timeout=300)
        self.assertEqual(done.returncode, 0, done.stderr.decode())

        counts = self.run_cli("check", "--count", "corpus.txt", code=1)
        self.assertGreater(len(counts.splitlines()), 200)
        made = sorted(path.name for path in self.folder.glob("*.tsv"))
        self.assertEqual(made, ["counts-hosts.tsv", "counts-mapreduce.tsv", "counts-parallel.tsv", "counts.tsv"])
        for name in made:
            self.assertEqual((self.folder / name).read_text(encoding="utf-8"), counts, name)
        files = sorted(str(path.relative_to(self.folder)) for path in self.folder.glob("corpus/*"))
        rows = self.run_cli("check", "--json", *files, code=1).encode().splitlines()
        self.assertEqual((self.folder / "unknown.jsonl").read_bytes().splitlines(), sorted(rows))
