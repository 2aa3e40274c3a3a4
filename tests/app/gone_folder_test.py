"""The programs started in a folder that was deleted meanwhile: they find what whole paths name, and none of them crashes.

gone_folder_test.py PROGRAM-FOLDER SOURCE [--windows]"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

WINDOWS = "--windows" in sys.argv and sys.argv.pop() == "--windows"
PROGRAMS, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
SAMPLE = (SOURCE / "data/samples/first-home.ledgrove.json").resolve()


class GoneFolder(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)

    def run_there(self, program, *arguments, patience=60):
        gone = tempfile.mkdtemp()

        def go():
            os.chdir(gone)
            os.rmdir(gone)

        environment = {"PATH": "/usr/bin:/bin", "HOME": str(self.folder), "QT_QPA_PLATFORM": "offscreen"}
        return subprocess.run([(PROGRAMS / program).resolve(), *arguments], capture_output=True, text=True, timeout=patience,
                              stdin=subprocess.DEVNULL, preexec_fn=go, env=environment | {
                                  name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")})

    def cannot_run(self, *command):
        run = self.run_there(*command)
        self.assertEqual((run.returncode, run.stdout), (2, ""), (command, run.stderr))
        self.assertRegex(run.stderr, r'"[^"]*" (is missing|cannot be found|cannot be read|cannot be written|cannot be saved)')

    def runs(self, *command):
        run = self.run_there(*command)
        self.assertEqual((run.returncode, run.stderr), (0, ""), command)
        return run.stdout

    def test_the_command_line_program(self):
        for folder in ("x", ".", ""):
            for verb in (("get", "LOGOOPTION"), ("set", "LOGOOPTION", "1"), ("houses",)):
                self.cannot_run("ledgrove-cli", "settings", "--folder", folder, *verb)
            for form in ("text", "json", "jsonl", "csv"):
                self.cannot_run("ledgrove-cli", "compare", "--folder", folder, "--format", form, SAMPLE)
        self.cannot_run("ledgrove-cli", "compare", "--folder", self.folder, "homes.json")
        self.runs("ledgrove-cli", "settings", "--folder", self.folder, "set", "LOGOOPTION", "1")
        self.assertEqual(self.runs("ledgrove-cli", "settings", "--folder", self.folder, "get", "LOGOOPTION"), "1\n")
        self.assertIn("The Alder", self.runs("ledgrove-cli", "settings", "--folder", self.folder, "houses"))
        self.assertIn("Buyer Qualifies?", self.runs("ledgrove-cli", "compare", "--folder", self.folder, SAMPLE))
        self.assertIn("Buyer Qualifies?", self.runs("ledgrove-cli", "compare", SAMPLE))

    @unittest.skipUnless(WINDOWS, "needs the programs with the toolkit")
    def test_reports_and_charts(self):
        for verb, name in (("report", "out.pdf"), ("chart", "out.svg")):
            for program in (("ledgrove-cli", verb), (f"ledgrove-{verb}",)):
                self.cannot_run(*program, "--folder", "x", "--output", self.folder / name, SAMPLE)
                self.cannot_run(*program, "--folder", self.folder, "--output", name, SAMPLE)
                self.assertFalse((self.folder / name).exists())
                self.runs(*program, "--folder", self.folder, "--output", self.folder / name, SAMPLE)
                self.assertGreater((self.folder / name).stat().st_size, 1000)
                (self.folder / name).unlink()

    @unittest.skipUnless(WINDOWS, "needs the programs with the toolkit")
    def test_the_window(self):
        for folder in ("x", ".", ""):
            self.cannot_run("ledgrove", "--folder", folder)
        with self.assertRaises(subprocess.TimeoutExpired):  # it waits for its user
            self.run_there("ledgrove", "--folder", self.folder, patience=3)


if __name__ == "__main__":
    unittest.main()
