"""Runs the examples of the documents and compares their output: docs_test.py PROGRAM SOURCE [BUILD].

With the build folder, those of the folder that users get run in that folder."""
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
BUILD = Path(sys.argv.pop(1)) if len(sys.argv) > 1 and not sys.argv[1].startswith("-") else None
DOCUMENTS = ("docs/cli.md", "docs/guide.md") if BUILD else ("README.md", "docs/cli.md", "docs/guide.md")


def fenced(text):
    """Blocks of a shell session: lines that begin with "$ " are commands, the others are output."""
    return re.findall(r"^```console\n(.*?)^```$", text, re.M | re.S)


def indented(text):
    """Commands on separate lines, indented by four blanks."""
    commands = [line.strip() for line in re.findall(r"^    (ledgrove-cli .*)$", text, re.M)]
    # A synopsis is not a command.
    return [command for command in commands if not re.search(r"\[|--help \|", command)]


class Examples(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        if BUILD:
            subprocess.run(["cmake", "--install", BUILD, "--prefix", self.folder], check=True, capture_output=True)
            self.documents = self.programs = self.folder
        else:
            self.documents, self.programs = SOURCE, self.make_program_folder()
        shutil.copy(SOURCE / "data/samples/first-home.ledgrove.json", self.folder / "home.ledgrove.json")
        (self.folder / "homes.jsonl").write_text('{"ecStdHome": 200000}\n{"ecStdHome": 210000}\n')
        (self.folder / "pricelist.csv").write_text("ecStdHome,ecGMHHome\n200000,206000\n")

    def make_program_folder(self):
        """Each test has its own program folder, because an example may change the settings."""
        shutil.copytree(SOURCE / "data", self.folder / "data")
        shutil.copytree(SOURCE / "data/samples", self.folder / "samples")
        programs = self.folder / "program"
        shutil.copytree(SOURCE / "data", programs)
        for name in ("ledgrove-cli", "ledgrove-report", "ledgrove-chart"):
            shutil.copy(PROGRAM.parent / name, programs)
        return programs

    def run_shell(self, command):
        return subprocess.run(["sh", "-c", command], cwd=self.folder, capture_output=True, text=True, timeout=60,
                              env={"PATH": f"{self.programs}:/usr/bin:/bin", "HOME": str(self.folder)})

    def test_commands_run(self):
        count = 0
        for document in DOCUMENTS:
            for command in indented((self.documents / document).read_text()):
                run = self.run_shell(command)
                self.assertEqual(run.returncode, 0, f"{document}: {command}\n{run.stderr}")
                count += 1
        self.assertGreaterEqual(count, 6)

    def test_sessions_print_what_is_shown(self):
        count = 0
        for document in DOCUMENTS:
            for block in fenced((self.documents / document).read_text()):
                for typed, answer in re.findall(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", block, re.M):
                    run = self.run_shell(typed)
                    self.assertEqual(run.stdout + run.stderr, answer, f"{document}: {typed}")
                    count += 1
        self.assertGreaterEqual(count, 5)

    def test_every_verb_and_option_is_described(self):
        text = (SOURCE / "docs/cli.md").read_text()
        for verb in ("compare", "insight", "range", "diff", "report", "chart", "settings"):
            self.assertIn(f"\n## {verb}\n", text)
            help_text = self.run_shell(f"ledgrove-cli {verb} --help").stdout
            for option in set(re.findall(r"--[a-z]+", help_text)) - {"--help", "--version"}:
                self.assertIn(option, text, f"{verb} {option}")

    def test_links_have_targets(self):
        for path in (SOURCE / "README.md", *(SOURCE / "docs").glob("*.md")):
            for target in re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", path.read_text()):
                if "://" not in target:
                    self.assertTrue((path.parent / target).exists(), f"{path.name}: {target}")


if __name__ == "__main__":
    unittest.main()
