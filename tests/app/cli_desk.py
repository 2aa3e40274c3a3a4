"""What the tests of ledgrove-cli share: the program, and a folder of settings for each test."""
import json
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))


class CliTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)
        self.settings = self.folder / "Ledgrove.ini"

    def run_cli(self, *arguments, given=b"", status=0):
        given = given if isinstance(given, bytes) else given.encode()
        run = subprocess.run([PROGRAM, *arguments], input=given, capture_output=True, timeout=60)
        self.assertEqual(run.returncode, status, run.stderr.decode())
        return run

    def compare(self, form, given, status=0):
        return self.run_cli("compare", "--folder", self.folder, "--format", form, given=given, status=status).stdout

    def compare_json(self, inputs, status=0):
        return json.loads(self.compare("json", json.dumps(inputs), status))

    def refusal(self, inputs):
        return self.compare_json(inputs, status=1)["error"]

    def settings_verb(self, *arguments, status=0):
        return self.run_cli("settings", "--folder", self.folder, *arguments, status=status)
