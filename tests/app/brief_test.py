"""`ledgrove-cli brief`: one page that says what the comparison says, on every paper and for every buyer."""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)).resolve(), Path(sys.argv.pop(1)).resolve()
SAMPLE = SOURCE / "data/samples/first-home.ledgrove.json"
# Width and height in points.
PAPERS = {"letter": (612, 792), "a4": (595.3, 841.9), "legal": (612, 1008)}
# A page that is sent by mail and opened on a phone.
LARGEST = 150 * 1024
HEADINGS = ["Buyer's Brief", "In short", "What both homes cost a month", "What is saved over the years", "The figures",
            "Who qualifies", "What is assumed"]
DISCLAIMER = "the U.S. Corvane cannot guarantee the energy savings"
# What a page has to hold: no room to spare, nothing to gain, nobody who qualifies, the ends of the inputs.
CHANGES = {
    "sample": {},
    "no taxes": {"chkDoTax0": False},
    "fixed down payment": {"optDownPayment": 1, "ecFixedDown": "$30,000"},
    "no debt": {"ecMonthlyDebt": "0"},
    "large": {"ecIncome": "9,000,000", "ecStdHome": "16000000", "ecGMHHome": "16700000"},
    "negative": {"ecGMHHome": "$260,000", "ecGMHUtil": "$2,300"},
    "a bill that is higher": {"ecGMHUtil": "$3,000"},
    "cheaper": {"ecGMHHome": "$190,000"},
    "equal": {"ecGMHHome": "$200,000", "ecGMHUtil": "$2,400"},
    "neither qualifies": {"ecIncome": "$20,000"},
    "no income": {"ecIncome": "0"},
    "all cash": {"ecPctDown": "100%"},
    "long term": {"cboMortTerm": "40 years", "ecStdRate": "12.5", "ecGMHRate": "12"},
}


class Brief(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copytree(SOURCE / "data", self.folder, dirs_exist_ok=True)
        self.pdf = self.folder / "brief.pdf"

    def run_cli(self, command, *arguments, given=b"", status=0):
        run = subprocess.run([PROGRAM, command, "--folder", self.folder, *arguments], input=given, capture_output=True,
                             timeout=60, env={"PATH": "/usr/bin:/bin", "HOME": str(self.folder)})
        self.assertEqual(run.returncode, status, run.stderr.decode())
        return run

    def write(self, *arguments, changes=None):
        inputs = json.loads(SAMPLE.read_text()) | (changes or {})
        self.run_cli("brief", "--output", self.pdf, *arguments, given=json.dumps(inputs).encode())
        return inputs

    def tool(self, *command):
        return subprocess.run([*command], check=True, capture_output=True).stdout.decode()

    def text(self):
        """In the order in which the page is written, as a screen reader reads it."""
        return re.sub(r"\s+", " ", self.tool("pdftotext", "-raw", self.pdf, "-"))

    def assert_one_whole_page(self, name):
        info = self.tool("pdfinfo", self.pdf)
        self.assertRegex(info, r"(?m)^Pages: +1$", name)
        self.assertLess(self.pdf.stat().st_size, LARGEST, name)
        self.tool("qpdf", "--check", self.pdf)
        text = self.text()
        places = [text.find(heading) for heading in HEADINGS] + [text.find(DISCLAIMER)]
        self.assertNotIn(-1, places, f"{name}: {text}")
        self.assertEqual(places, sorted(places), name)


class Pages(Brief):
    def test_every_comparison_is_one_page_on_every_paper(self):
        for name, changes in CHANGES.items():
            for paper in PAPERS:
                self.write("--paper", paper, changes=changes)
                self.assert_one_whole_page(f"{name} on {paper}")

    def test_the_paper_is_the_chosen_one(self):
        for paper, size in PAPERS.items():
            self.write("--paper", paper)
            found = re.search(r"Page size: +([\d.]+) x ([\d.]+)", self.tool("pdfinfo", self.pdf)).groups()
            for is_size, want in zip(map(float, found), size):
                self.assertAlmostEqual(is_size, want, delta=1)

    def test_long_names_leave_one_page(self):
        name = "Homes and Gardens of the Three Valleys " * 20
        for paper in PAPERS:
            self.write("--paper", paper, "--builder", name, "--buyer", name, "--logo", "generic")
            self.assert_one_whole_page(paper)
            self.assertIn("Homes and Gardens of the Three Valleys", self.text())

    def test_charts_are_no_raster_pictures(self):
        self.write("--logo", "none")
        self.assertEqual(self.tool("pdfimages", "-list", self.pdf).splitlines()[2:], [])
        self.write("--logo", "generic")
        self.assertEqual(len(self.tool("pdfimages", "-list", self.pdf).splitlines()[2:]), 1)


class Contents(Brief):
    def test_the_sentences_are_those_of_takeaway(self):
        for name, changes in CHANGES.items():
            inputs = self.write(changes=changes)
            said = json.loads(self.run_cli("insight", "--view", "takeaway", "--format", "json",
                                           given=json.dumps(inputs).encode()).stdout)["takeaway"]["sentences"]
            text = self.text()
            for sentence in said:
                self.assertIn(sentence, text, name)

    def test_the_figures_are_those_of_the_comparison(self):
        for name, changes in CHANGES.items():
            inputs = self.write(changes=changes)
            labels = json.loads(self.run_cli("compare", "--format", "json",
                                             given=json.dumps(inputs).encode()).stdout)["labels"]
            text = self.text()
            for label in ("lblStdHome", "lblGMHHome", "lblStdDown", "lblgmhDown", "lblStdMortgage", "lblgmhMortgage",
                          "lblStdPITI", "lblGMHPITI", "lblStdUtilMo", "lblGMHUtilMo", "lblStdPITIU", "lblGMHPITIU",
                          "lblNetCashMo2", "lblPVofSavings", "lblStdMaxHome", "lblGMHMaxHome", "lblStdQual", "lblGMHQual"):
                self.assertIn(labels[label]["text"].lstrip("*"), text, f"{name}: {label}")

    def test_the_assumptions_have_their_dates(self):
        self.write()
        text = self.text()
        # Of data/Ledgrove.ini: the property tax of 2024, PMI for less than 15 % down, the ratios of 2015, the
        # standard deduction of 2026; insurance has no date.
        for words in ("0.90%", "2024", "0.46%", "2018-07-09", "2015", "$32,200", "2026", "no date"):
            self.assertIn(words, text)

    def test_a_changed_assumption_is_the_users_own(self):
        self.run_cli("settings", "set", "ASSUMPTION1", "1.25")
        self.write()
        self.assertIn("your own", self.text())

    def test_the_names_are_on_the_page_and_in_the_file(self):
        self.write("--builder", "Acme Homes", "--buyer", "Pat Doe")
        self.assertRegex(self.text(), "Prepared For: Pat Doe Prepared By: +Acme Homes")
        info = self.tool("pdfinfo", self.pdf)
        self.assertRegex(info, r"(?m)^Title: +Buyer's Brief for Pat Doe, prepared by Acme Homes$")
        self.assertRegex(info, r"(?m)^Author: +Acme Homes$")


class Output(Brief):
    def test_standard_output_and_pipes_are_written_to(self):
        self.assertTrue(self.run_cli("brief", "--output", "-", SAMPLE).stdout.startswith(b"%PDF-"))
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        with subprocess.Popen(["cat", pipe], stdout=subprocess.PIPE) as reader:
            self.run_cli("brief", "--output", pipe, SAMPLE)
            self.assertTrue(reader.stdout.read().startswith(b"%PDF-"))

    def test_the_input_is_never_overwritten(self):
        given = self.folder / "home.pdf"
        shutil.copy(SAMPLE, given)
        self.assertIn(str(given), self.run_cli("brief", "--output", given, given, status=2).stderr.decode())
        self.assertEqual(given.read_bytes(), SAMPLE.read_bytes())

    def test_what_cannot_be_made_writes_no_file(self):
        said = self.run_cli("brief", "--output", self.pdf, given=b"{}", status=1).stderr.decode()
        self.assertEqual(said, "ledgrove-cli: Enter the price of the base home.\n")
        said = self.run_cli("brief", "--output", self.pdf, given=b'{"ecIncome": "abc"}', status=1).stderr.decode()
        self.assertIn("a number", said)
        self.assertFalse(self.pdf.exists())

    def test_the_output_must_be_named(self):
        self.assertIn("--output", self.run_cli("brief", SAMPLE, status=2).stderr.decode())
        self.assertIn("*.pdf", self.run_cli("brief", "--output", self.folder / "a.txt", SAMPLE, status=2).stderr.decode())


if __name__ == "__main__":
    unittest.main()
