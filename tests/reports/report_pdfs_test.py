"""Every variant of the report as PDF, on letter and A4 paper: the text of the pages shows no blank page, no torn table and
no missing or extra heading."""
import json
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv.pop(1))
CONTINUED = "Summary Report for Ledgrove (continued)"
FOOTER = re.compile(r"^(Printed on \d\d/\d\d/\d{4}|Page \d+)$")
# The first and the last line of each table.
TABLES = {
    "": [("Home Buyer$", "Monthly Debt"), ("Financial$", "Interest Rate")],
    "Financial Assumptions": [("Real Estate Taxes", "Calculated Value of Energy Efficiency Upgrade"),
                              ("If Percent Down is less than:", "20% "), ("Mortgage Front End Ratio", "VA EEM")],
    "Cash Flow": [("Cash Flow$", "Net Monthly Cash Flow")],
    "More Home": [("More Home$", "Option 2")],
    "Affordability": [("Affordability$", r"\*Ledgrove only provides estimates")],
    "Summary": [("Summary$", "PV of Savings")],
}
PRESENT_VALUE = ("Variables used to calculate the PV of the energy savings", "Term ")


def text_pages(file):
    """The lines of each page in reading order, without the footer."""
    text = subprocess.run(["pdftotext", "-raw", file, "-"], capture_output=True, check=True).stdout.decode()
    pages = text.split("\f")[:-1]
    return [[line.strip() for line in page.splitlines() if line.strip() and not FOOTER.match(line.strip())]
            for page in pages]


class ReportPdfs(unittest.TestCase):
    def reports(self, width, height):
        folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, folder)
        run = subprocess.run([PROGRAM, folder, str(width), str(height)], capture_output=True, check=True, text=True)
        return [json.loads(line) for line in run.stdout.splitlines()]

    def check_heads(self, report, pages):
        for number, page in enumerate(pages):
            self.assertTrue(page, f"page {number + 1} is blank")
            self.assertNotIn(CONTINUED, page[1:], "a heading in the middle of a page")
            if number == 0:
                self.assertEqual(page[0], "Summary Report for Ledgrove")
            elif page[0] == CONTINUED:
                self.assertIn(page[1], report["sections"])
                self.assertNotEqual(page[1], "Financial Assumptions")
            else:
                self.assertEqual(page[0], "Financial Assumptions")
                self.assertIn("Financial Assumptions", report["sections"])
            self.assertNotIn(page[-1], TABLES, "a banner stands alone")

    def check_tables(self, report, pages):
        tables = list(TABLES[""])
        for section in report["sections"]:
            tables += TABLES[section]
        if report["presentValue"] and "Financial Assumptions" in report["sections"]:
            tables.append(PRESENT_VALUE)
        lines = [(number, line) for number, page in enumerate(pages) for line in page]
        for first, last in tables:
            start = next((at for at, (_, line) in enumerate(lines) if re.match(first, line)), None)
            self.assertIsNotNone(start, f"{first} is missing")
            end = next((at for at, (_, line) in enumerate(lines) if at > start and re.match(last, line)), None)
            self.assertIsNotNone(end, f"{last} is missing")
            self.assertEqual(lines[start][0], lines[end][0], f"{first} is torn")

    def check_banners(self, report, pages):
        """A banner stands once, a title bar of the same words once more."""
        lines = [line for page in pages for line in page]
        for section in ("Cash Flow", "More Home", "Affordability", "Summary"):
            wanted = (section in report["sections"]) * (2 if section == "Summary" else 1)
            self.assertEqual(lines.count(section), wanted, section)

    def check_reading_order(self, pages):
        lines = pages[0]
        start = lines.index("Home Buyer")
        self.assertEqual(lines[start:start + 3], ["Home Buyer", "Income $72,000 Down Payment 10.00%",
                                                  "Monthly Debt $350 Expected Years 7"])

    def check(self, width, height):
        reports = self.reports(width, height)
        self.assertEqual(len(reports), 384)
        for report in reports:
            pages = text_pages(report["file"])
            with self.subTest(report=report):
                self.assertEqual(len(pages), report["pages"])
                self.check_heads(report, pages)
                self.check_tables(report, pages)
                self.check_banners(report, pages)
                self.check_reading_order(pages)

    def test_the_file_names_the_people_and_lists_the_sections(self):
        for report in self.reports(12240, 15840)[::17]:
            with self.subTest(report=report):
                file = report["file"]
                subprocess.run(["qpdf", "--check", file], check=True, capture_output=True)
                shown = json.loads(subprocess.run(["qpdf", "--json=2", file], check=True, capture_output=True).stdout)
                self.assertEqual([entry["title"] for entry in shown["outlines"]],
                                 ["Home Buyer Financial Information", *report["sections"]])
                pages = text_pages(file)
                for entry in shown["outlines"]:
                    self.assertIn(entry["title"], pages[entry["destpageposfrom1"] - 1])
                info = subprocess.run(["pdfinfo", file], check=True, capture_output=True, text=True).stdout
                title = "Summary Report"
                if report["buyer"]:
                    title += f" for {report['buyer']}, prepared by {report['builder']}"
                self.assertRegex(info, rf"(?m)^Title: +{title}$")
                self.assertRegex(info, rf"(?m)^Author: +{report['builder'] or 'Ledgrove'}$")
                objects = shown["qpdf"][1]
                root = objects["obj:" + objects["trailer"]["value"]["/Root"]]["value"]
                self.assertEqual(root["/Lang"], "u:en-US")

    def test_letter(self):
        self.check(12240, 15840)

    def test_a4(self):
        self.check(11906, 16838)


if __name__ == "__main__":
    unittest.main()
