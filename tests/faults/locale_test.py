"""The system's language changes nothing in settings, comparisons, price lists and reports: locale_test.py CLI SOURCE."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CLI, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
SAMPLE = SOURCE / "data/samples/first-home.ledgrove.json"
# Languages with a decimal comma, with blanks between thousands, and with other digits and right-to-left text.
LANGUAGES = ("de_DE", "fr_FR", "ar_EG")
LIST = b"ecIncome,ecStdHome,ecGMHHome,cboMortTerm\n72000.50,\"$200,000\",206000,30 years\n\"1.234,5\",1,2,30 years\n"


def made_locales(folder):
    """The locales that this system can build; their definitions are in a separate package."""
    for language in LANGUAGES:
        run = subprocess.run(["localedef", "-i", language, "-f", "UTF-8", folder / f"{language}.UTF-8"],
                             capture_output=True, check=False)
        if run.returncode == 0:
            yield f"{language}.UTF-8"


class Locales(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def run_in(self, language, *arguments, given=None):
        environment = {"PATH": "/usr/bin:/bin", "HOME": str(self.folder), "LOCPATH": str(self.folder),
                       "LC_ALL": language, "LANGUAGE": language}
        run = subprocess.run([CLI, *arguments], input=given, capture_output=True, timeout=60, env=environment)
        return run.returncode, run.stdout

    def everything(self, language):
        """The output and files of each program, by name."""
        data = self.folder / "data"
        shutil.copytree(SOURCE / "data", data)
        given = ("--folder", data)
        results = {
            "json": self.run_in(language, "compare", *given, "--format", "json", SAMPLE),
            "table": self.run_in(language, "compare", *given, SAMPLE),
            "csv": self.run_in(language, "compare", *given, "--format", "csv", given=LIST),
            "set": self.run_in(language, "settings", *given, "set", "ASSUMPTION1", "1.25"),
            "get": self.run_in(language, "settings", *given, "get", "ASSUMPTION1"),
            "houses": self.run_in(language, "settings", *given, "houses"),
            "file": (data / "Ledgrove.ini").read_bytes(),
        }
        if (CLI.parent / "ledgrove-report").exists():
            pdf = self.folder / "report.pdf"
            results["report"] = self.run_in(language, "report", *given, "--output", pdf, SAMPLE)
            text = subprocess.run(["pdftotext", "-layout", pdf, "-"], capture_output=True, check=True).stdout
            results["pages"] = text
            pdf.unlink()
        shutil.rmtree(data)
        return results

    def test_nothing_changes(self):
        languages = list(made_locales(self.folder))
        if not languages:
            self.skipTest("localedef makes no locales here")
        plain = self.everything("C")
        self.assertEqual(plain["json"][0], 0)
        self.assertEqual(plain["get"], (0, b"1.25\n"))
        for language in languages:
            # Checks that the locale is active; the test would prove nothing without it.
            point = subprocess.run(["locale", "decimal_point"], capture_output=True, check=True,
                                   env={**os.environ, "LOCPATH": str(self.folder), "LC_ALL": language}).stdout
            self.assertNotEqual((language, point.strip()), ("de_DE.UTF-8", b"."))
            for name, result in self.everything(language).items():
                self.assertEqual(result, plain[name], f"{name} in {language}")


if __name__ == "__main__":
    unittest.main()
