"""Scenarios with something broken, full, locked or in the way: nothing hangs, nothing is lost, and a
message says what is wrong with which file."""

import os
import subprocess

try:
    import resource
except ImportError:
    resource = None

from cli_support import CliTest

MANY_WORDS = [f"word{chr(97 + i // 26 % 26)}{chr(97 + i % 26)}{chr(97 + i // 676)}" for i in range(2000)]


class Broken(CliTest):
    def main_file(self, name):
        return self.data / "Dictionarys" / "1033" / name

    def custom_file(self, name="CUSTOM.DIC"):
        return self.data / "Dictionarys" / "Custom" / name

    def natively(self):
        if self.program.is_windows:
            self.skipTest("needs what only the native system has")

    def run_limited(self, limits, *arguments, stdin=b"", stdout=subprocess.PIPE, env=None, before=None):
        """Runs the native program with limits of the system, {kind: value}."""
        def prepare():
            for kind, value in limits.items():
                resource.setrlimit(kind, (value, resource.getrlimit(kind)[1]))
            if before:
                before()
        return subprocess.run([*self.program.command, *map(str, arguments)], input=stdin, stdout=stdout,
                              stderr=subprocess.PIPE, cwd=self.folder, env=env, preexec_fn=prepare, timeout=60)

    def test_a_dictionary_that_cannot_be_read_is_an_error(self):
        self.main_file("he_.dic").unlink()
        self.main_file("he_.dic").mkdir()
        for arguments in (["check", "--list"], ["check", "--json"], ["suggest", "--stdin"], ["pipe"]):
            done = self.run_raw(*arguments, stdin="hello the\n")
            message = done.stderr.decode()
            self.assertEqual(done.returncode, 2, (arguments, message))
            self.assertEqual(message.count("he_.dic"), 1, (arguments, message))
        self.assertEqual(self.run_cli("check", "--list", stdin="the hit\n"), "", "it is not needed here")
        files = []
        for name in ("one.txt", "two.txt", "three.txt"):
            (self.folder / name).write_text("hello\n")
            files.append(name)
        for jobs in ("1", "3"):
            self.assertEqual(self.fail_cli("check", "-j", jobs, *files).count("he_.dic"), 1, "told once")

    def test_pipes_in_the_place_of_files_keep_nobody_waiting(self):
        self.natively()
        self.main_file("he_.dic").unlink()
        for path in (self.main_file("he_.dic"), self.custom_file(), self.data / "Wordhawk.ini"):
            path.parent.mkdir(exist_ok=True)
            path.unlink(missing_ok=True)
            os.mkfifo(path)
        self.assertIn("he_.dic", self.fail_cli("check", "--list", stdin="hello\n"))
        self.assertIn("pipe or a device", self.fail_cli("add", "new"))
        self.assertIn("he_.dic", self.fail_cli("remove", "hello"))

    def test_too_few_file_handles_are_an_error_and_no_unknown_words(self):
        self.natively()
        (self.folder / "known.txt").write_bytes(b"hello the cat dog\n")
        answers = set()
        for limit in range(4, 10):
            done = self.run_limited({resource.RLIMIT_NOFILE: limit}, "--data", self.data, "--locale", "1033",
                                    "--no-install", "check", "--list", self.folder / "known.txt")
            if b"memory cannot be printed" in done.stderr:
                continue  # the sanitizer needs file handles itself
            answers.add(done.returncode)
            if done.returncode == 2:
                self.assertIn(b"too many files are open", done.stderr)
            else:
                self.assertEqual((done.returncode, done.stdout), (0, b""), (limit, done))
        self.assertIn(0, answers, "nine are enough")

    def test_removing_goes_past_a_file_that_cannot_be_read(self):
        self.natively()
        self.run_cli("add", "henx", "other")
        self.main_file("he_.dic").unlink()
        os.mkfifo(self.main_file("he_.dic"))
        done = self.run_raw("remove", "henx", "zzz", "other")
        self.assertEqual(done.returncode, 2)
        self.assertEqual(done.stdout.decode(), "henx\tCUSTOM.DIC\nother\tCUSTOM.DIC\n")
        self.assertEqual(done.stderr.decode().count("he_.dic"), 1, done.stderr)
        self.assertEqual(self.custom_file().read_bytes(), b"")

    def test_a_limit_of_the_file_size_is_an_error_and_not_the_end(self):
        self.natively()
        self.run_cli("add", "before")
        held = self.custom_file().read_bytes()
        done = self.run_limited({resource.RLIMIT_FSIZE: 8192}, "--data", self.data, "--locale", "1033",
                                "--no-install", "add", *MANY_WORDS)
        self.assertEqual(done.returncode, 2, done)
        self.assertIn(b"CUSTOM.DIC: the file would grow too large", done.stderr)
        self.assertEqual(self.custom_file().read_bytes(), held)
        self.assertEqual([p.name for p in self.custom_file().parent.iterdir() if p.suffix == ".tmp"], [])
        with open(self.folder / "out", "wb") as out:
            done = self.run_limited({resource.RLIMIT_FSIZE: 8192}, "--data", self.data, "--locale", "1033",
                                    "--no-install", "check", "--list", stdin="\n".join(MANY_WORDS).encode(),
                                    stdout=out)
        self.assertEqual(done.returncode, 2, done)
        self.assertIn(b"the output: ", done.stderr)

    def test_a_full_output_is_told(self):
        self.natively()
        for arguments in (["--help"], ["--version"], ["suggest", "recieve"], ["dictionaries"]):
            with open("/dev/full", "wb") as full:
                done = self.run_limited({}, "--data", self.data, *arguments, stdout=full)
            self.assertEqual(done.returncode, 2, (arguments, done))
            self.assertIn(b"No space left", done.stderr, arguments)

    def test_a_pipe_whose_words_cannot_be_saved_fails(self):
        self.custom_file().mkdir(parents=True)
        message = self.fail_cli("pipe", stdin="*newword\n#\n")
        self.assertIn("CUSTOM.DIC", message)

    def test_without_a_home_nothing_is_made_anywhere(self):
        self.natively()
        if os.geteuid() != 0:
            self.skipTest("may not become a user without an entry")
        os.chmod(self.folder, 0o777)

        def become_nobody_known():
            os.setgid(54321)
            os.setuid(54321)
        try:
            done = self.run_limited({}, "check", "--list", stdin=b"hello\n",
                                    env={"PATH": os.environ["PATH"]}, before=become_nobody_known)
        except PermissionError:
            self.skipTest("the program's folder is closed to others")
        if b"ermission" in done.stderr or done.returncode < 0:
            self.skipTest("the program's folder is closed to others")
        self.assertEqual(done.returncode, 2, done)
        self.assertIn(b"--data", done.stderr)
        self.assertEqual([p.name for p in self.folder.iterdir()], ["data"])

    def test_an_import_that_cannot_be_read_says_why(self):
        (self.folder / "list.dic").mkdir()
        self.assertIn("folder", self.fail_cli("import", "list.dic"))
        self.assertIn("does not exist", self.fail_cli("import", "none.dic"))


class Settings(CliTest):
    def test_programs_that_activate_at_once_lose_nothing(self):
        names = [f"list{i}.dic" for i in range(8)]
        custom = self.data / "Dictionarys" / "Custom"
        custom.mkdir(exist_ok=True)
        for name in names:
            (custom / name).write_bytes(b"")
        running = [subprocess.Popen([*self.program.command, "--data", str(self.data), "--locale", "1033",
                                     "--no-install", "dictionaries", "--activate", name],
                                    stdout=subprocess.DEVNULL) for name in names]
        self.assertEqual([process.wait(timeout=120) for process in running], [0] * len(names))
        text = (self.data / "Wordhawk.ini").read_text(encoding="latin-1")
        for name in ["CUSTOM.DIC", *names]:
            self.assertIn(f"={name}\n", text.replace("\r", ""))

    def test_a_name_that_the_settings_cannot_hold_is_refused(self):
        custom = self.data / "Dictionarys" / "Custom"
        custom.mkdir(exist_ok=True)
        (custom / "żaba.dic").write_bytes(b"")
        self.assertIn("żaba.dic", self.fail_cli("dictionaries", "--activate", "żaba.dic"))
        self.assertNotIn("aba", (self.data / "Wordhawk.ini").read_text(encoding="latin-1"))
        if not self.program.is_windows:  # the Windows program's page is the system's
            done = self.program.run("--data", self.data, "--locale", "1045", "--no-install", "dictionaries",
                                    "--activate", "żaba.dic", cwd=self.folder)
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertIn(b"=\xbfaba.dic", (self.data / "Wordhawk.ini").read_bytes())
