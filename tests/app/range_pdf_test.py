"""`ledgrove-cli range --output`: the saved houses as PDF, with the rows of the text."""
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)).resolve(), Path(sys.argv.pop(1)).resolve()
SAMPLE = SOURCE / "data/samples/first-home.ledgrove.json"
# Width and height in points, in landscape.
PAPERS = {"letter": (792, 612), "a4": (841.9, 595.3)}


class RangePdf(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copytree(SOURCE / "data", self.folder, dirs_exist_ok=True)
        self.pdf = self.folder / "out.pdf"

    def save_house(self, line):
        with (self.folder / "Ledgrove.ini").open("a", encoding="cp1252") as settings:
            settings.write(f"HOMELIST={line}\n")

    def range(self, *arguments, status=0):
        run = subprocess.run([PROGRAM, "range", "--folder", self.folder, *arguments, SAMPLE], capture_output=True, timeout=60,
                             env={"PATH": "/usr/bin:/bin", "HOME": str(self.folder)})
        self.assertEqual(run.returncode, status, run.stderr.decode())
        return run

    def tool(self, *command):
        return subprocess.run([*command], check=True, capture_output=True).stdout.decode()

    def text(self):
        return self.tool("pdftotext", "-layout", self.pdf, "-")

    def test_it_is_in_landscape_on_every_paper(self):
        for paper, wanted in PAPERS.items():
            self.range("--output", self.pdf, "--paper", paper)
            size = re.search(r"Page size: +([\d.]+) x ([\d.]+)", self.tool("pdfinfo", self.pdf))
            for found, want in zip(map(float, size.groups()), wanted):
                self.assertAlmostEqual(found, want, delta=1)
            self.tool("qpdf", "--check", self.pdf)
        self.range("--output", self.pdf, "--orientation", "portrait")
        self.assertIn("612 x 792", self.tool("pdfinfo", self.pdf))

    def test_the_rows_are_those_of_the_text(self):
        self.range("--output", self.pdf, "--options", "all")
        printed = self.text()
        shown = self.range("--options", "all").stdout.decode()
        amounts = re.findall(r"-?\$[\d,]+", shown)
        self.assertGreater(len(amounts), 21 * 6)
        for amount in set(amounts):
            self.assertGreaterEqual(len(re.findall(re.escape(amount) + r"(?![\d,])", printed)), amounts.count(amount), amount)
        self.assertEqual(len(re.findall(r"The (Alder|Birch|Cedar)", printed)), 21)

    def test_headings_and_numbers_are_on_every_page(self):
        for lot in range(120):
            self.save_house(f"Lot {lot},200000,2400,206000,1700")
        self.range("--output", self.pdf)
        pages = self.text().split("\f")[:-1]
        self.assertGreater(len(pages), 2)
        for number, page in enumerate(pages, 1):
            self.assertRegex(page, r"House +Base / ")
            self.assertRegex(page, rf"Printed on \d\d/\d\d/\d{{4}} +Page {number}\n")

    def test_the_header_is_the_reports(self):
        self.range("--output", self.pdf, "--builder", "Acme Homes", "--buyer", "Pat Doe", "--logo", "generic")
        self.assertRegex(self.text(), r"Prepared By: +Acme Homes\n +Prepared For: +Pat Doe")
        self.assertRegex(self.tool("pdfinfo", self.pdf), r"(?m)^Title: +House range for Pat Doe, prepared by Acme Homes$")
        self.assertEqual(len(self.tool("pdfimages", "-list", self.pdf).splitlines()[2:]), 2)

    def test_a_house_without_prices_is_named(self):
        self.save_house("Bare,0,0,0,0")
        run = self.range("--output", self.pdf, status=1)
        self.assertIn(b'the house "Bare": Enter the price of the base home.', run.stderr)
        self.assertIn("Bare", self.text())

    def test_output_and_format_exclude_each_other(self):
        said = self.range("--output", self.pdf, "--format", "csv", status=2).stderr.decode()
        self.assertIn("Give one of them.", said)
        self.assertFalse(self.pdf.exists())
        self.assertIn("--paper is for the PDF that --output names.", self.range("--paper", "a4", status=2).stderr.decode())

    def test_standard_output_is_written_to(self):
        self.assertTrue(self.range("--output", "-").stdout.startswith(b"%PDF-"))

    def test_houses_that_cannot_be_read_are_a_fault_of_the_settings(self):
        self.save_house("Bad,many,1,2,3")
        self.assertIn(b"amounts after the name must be numbers", self.range("--output", self.pdf, status=2).stderr)
        self.assertFalse(self.pdf.exists())


if __name__ == "__main__":
    unittest.main()
