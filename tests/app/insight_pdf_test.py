"""`ledgrove-cli insight --output`: the answers as PDF, the same as in the text, on every paper."""
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
QUESTIONS = {"takeaway": "In short", "breakeven": "How far can the price go?", "options": "Which loan is best?",
             "qualify": "Do we qualify, and what would help?", "sensitivity": "What matters most?",
             "map": "Price against savings", "years": "Year by year", "energy": "If energy prices rise",
             "tax": "Is the tax saving real?", "exit": "If we sell", "explain": "Where does this number come from?"}


# Every list of answers ends with what they assume.
ASSUMED = "What is assumed"


class InsightPdf(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copytree(SOURCE / "data", self.folder, dirs_exist_ok=True)
        self.pdf = self.folder / "out.pdf"

    def run_cli(self, *arguments, given=b"", status=0):
        run = subprocess.run([PROGRAM, *arguments], input=given, capture_output=True, timeout=60,
                             env={"PATH": "/usr/bin:/bin", "HOME": str(self.folder)})
        self.assertEqual(run.returncode, status, run.stderr.decode())
        return run

    def insight(self, *arguments, given=b"", status=0):
        return self.run_cli("insight", "--folder", self.folder, *arguments, given=given, status=status)

    def write(self, *arguments):
        return self.insight("--output", self.pdf, *arguments, SAMPLE)

    def tool(self, *command):
        return subprocess.run([*command], check=True, capture_output=True).stdout.decode()

    def text(self):
        return self.tool("pdftotext", "-layout", self.pdf, "-")

    def pages(self):
        return self.text().split("\f")[:-1]

    def outline(self):
        return [entry["title"] for entry in json.loads(self.tool("qpdf", "--json=2", self.pdf))["outlines"]]


class Pages(InsightPdf):
    def test_without_a_list_there_are_all_views_but_map_and_explain(self):
        self.write()
        self.assertEqual(self.outline(), [QUESTIONS[view] for view in QUESTIONS if view not in ("map", "explain")] + [ASSUMED])

    def test_each_view_is_a_section_on_every_paper(self):
        for paper, (width, height) in PAPERS.items():
            for orientation in ("portrait", "landscape"):
                self.write("--view", ",".join(QUESTIONS), "--paper", paper, "--orientation", orientation)
                self.assertEqual(self.outline(), list(QUESTIONS.values()) + [ASSUMED])
                size = re.search(r"Page size: +([\d.]+) x ([\d.]+)", self.tool("pdfinfo", self.pdf))
                wanted = (width, height) if orientation == "portrait" else (height, width)
                for found, want in zip(map(float, size.groups()), wanted):
                    self.assertAlmostEqual(found, want, delta=1)
                for number, page in enumerate(self.pages(), 1):
                    self.assertRegex(page, rf"Printed on \d\d/\d\d/\d{{4}} +Page {number}\n")
                self.tool("qpdf", "--check", self.pdf)

    def test_the_cells_are_those_of_the_text(self):
        for view in ("breakeven", "options", "qualify", "sensitivity", "map"):
            self.write("--view", view)
            printed = re.sub(r"\s+", " ", self.text())
            shown = self.insight("--view", view, SAMPLE).stdout.decode()
            amounts = set(re.findall(r"-?\$[\d,]+|[\d.]+%", shown))
            self.assertGreater(len(amounts), 5, view)
            for amount in amounts:
                self.assertIn(amount, printed, view)

    def test_a_bar_of_no_length_is_not_drawn(self):
        # No term is longer than 40 years.
        given = json.dumps({"ecStdHome": "250000", "ecGMHHome": "260000", "ecStdUtil": "2400", "ecGMHUtil": "1700", "ecIncome": "60000",
                            "cboMortTerm": "40 years"}).encode()
        self.insight("--output", self.pdf, "--view", "sensitivity", given=given)
        run = subprocess.run(["pdftoppm", "-r", "20", self.pdf, self.folder / "page"], capture_output=True, check=True)
        self.assertEqual(run.stderr.decode(), "")

    def test_the_explanation_has_every_figure(self):
        self.write("--view", "explain")
        figures = json.loads(self.insight("--view", "explain", "--format", "json", SAMPLE).stdout)["explain"]["figures"]
        numbers = re.findall(r"^ {0,4}\[(\d+)\]", self.text(), re.M)
        self.assertEqual([int(number) for number in numbers], list(range(1, len(figures) + 1)))
        for page in self.pages():
            self.assertRegex(page, r"No\. +Figure +Formula +With Numbers +Value +Why")

    def test_the_assumptions_of_the_answers_are_at_the_end(self):
        self.write("--view", "exit")
        printed = re.sub(r"\s+", " ", self.text())
        # The words of a cell may stand on several lines.
        for words in ("Cost of selling, of", "6.00%", "a sample value without a published source", "older than", "Growth of utility", "2018-07-09"):
            self.assertIn(words, printed)
        self.assertNotIn("Standard deduction", printed)
        self.run_cli("settings", "set", "--folder", self.folder, "EXIT_SELLING_COST", "5")
        self.write("--view", "exit")
        self.assertRegex(re.sub(r"\s+", " ", self.text()), r"Cost of selling, of 5\.00% your own")

    def test_the_sentence_about_the_summary_is_printed(self):
        self.write("--view", "years")
        self.assertIn("The expected savings on the Summary tab differ", re.sub(r"\s+", " ", self.text()))

    def test_by_moves_the_inputs_as_in_the_text(self):
        self.write("--view", "sensitivity", "--by", "25")
        # The sample's bill of $1,700 saves $700 a year: 25 % less are $525, and 25 % more $875.
        self.assertRegex(self.text(), r"Yearly energy savings +\$525 .* \$875 ")

    def test_charts_are_no_raster_pictures(self):
        self.write("--view", "sensitivity,map", "--logo", "none")
        pictures = self.tool("pdfimages", "-list", self.pdf).splitlines()[2:]
        self.assertEqual(len(pictures), 1, "more than the emblem")
        self.assertIn("Monthly Net When an Input Changes", self.text())
        self.assertIn("Price difference", self.text())


class Properties(InsightPdf):
    def test_the_names_are_on_the_page_and_in_the_file(self):
        self.write("--builder", "Acme Homes", "--buyer", "Pat Doe", "--logo", "generic")
        info = self.tool("pdfinfo", self.pdf)
        self.assertRegex(info, r"(?m)^Title: +Insight for Pat Doe, prepared by Acme Homes$")
        self.assertRegex(info, r"(?m)^Author: +Acme Homes$")
        shown = json.loads(self.tool("qpdf", "--json=2", self.pdf))["qpdf"][1]
        self.assertEqual(shown["obj:" + shown["trailer"]["value"]["/Root"]]["value"]["/Lang"], "u:en-US")
        self.assertRegex(self.text(), r"Prepared For: +Pat Doe")
        self.assertEqual(len(self.tool("pdfimages", "-list", self.pdf).splitlines()[2:]), 2)

    def test_the_settings_file_is_never_touched(self):
        before = (self.folder / "Ledgrove.ini").read_bytes()
        self.write("--builder", "X", "--logo", "generic")
        self.assertEqual((self.folder / "Ledgrove.ini").read_bytes(), before)


class Output(InsightPdf):
    def test_standard_output_and_pipes_are_written_to(self):
        self.assertTrue(self.insight("--output", "-", SAMPLE).stdout.startswith(b"%PDF-"))
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        with subprocess.Popen(["cat", pipe], stdout=subprocess.PIPE) as reader:
            self.insight("--output", pipe, SAMPLE)
            self.assertTrue(reader.stdout.read().startswith(b"%PDF-"))

    def test_the_input_is_never_overwritten(self):
        given = self.folder / "home.pdf"
        shutil.copy(SAMPLE, given)
        self.assertIn(str(given), self.insight("--output", given, given, status=2).stderr.decode())
        self.assertEqual(given.read_bytes(), SAMPLE.read_bytes())

    def test_another_ending_is_refused(self):
        self.assertIn("*.pdf", self.insight("--output", self.folder / "a.txt", SAMPLE, status=2).stderr.decode())
        self.assertFalse((self.folder / "a.txt").exists())

    def test_without_prices_there_is_no_file(self):
        said = self.insight("--output", self.pdf, given=b"{}", status=1).stderr.decode()
        self.assertEqual(said, "ledgrove-cli: Enter the price of the base home.\n")
        self.assertFalse(self.pdf.exists())

    def test_a_refused_input_writes_no_file(self):
        self.assertIn(b"a number", self.insight("--output", self.pdf, given=b'{"ecIncome": "abc"}', status=1).stderr)
        self.assertFalse(self.pdf.exists())


class Words(InsightPdf):
    def test_options_that_do_not_fit_each_other_are_named(self):
        for option, value in (("--paper", "a4"), ("--orientation", "landscape"), ("--logo", "none"), ("--builder", "X"),
                              ("--buyer", "X")):
            said = self.insight(option, value, SAMPLE, status=2).stderr.decode()
            self.assertTrue(said.startswith(f"ledgrove-cli: {option} is for the PDF that --output names."), said)
        said = self.insight("--output", self.pdf, "--format", "json", SAMPLE, status=2).stderr.decode()
        self.assertIn("Give one of them.", said)
        self.assertFalse(self.pdf.exists())

    def test_unusable_values_are_named(self):
        for option, value, word in (("--paper", "a5", "legal"), ("--orientation", "up", "portrait"),
                                    ("--logo", "big", "generic"), ("--view", "optons", 'Did you mean "options"?')):
            said = self.insight("--output", self.pdf, option, value, SAMPLE, status=2).stderr.decode()
            self.assertIn(word, said)
            self.assertTrue(said.endswith('"ledgrove-cli insight --help" explains it.\n'), said)

    def test_a_missing_program_is_named(self):
        alone = self.folder / "alone"
        alone.mkdir()
        shutil.copy(PROGRAM, alone)
        run = subprocess.run([alone / "ledgrove-cli", "insight", "--folder", self.folder, "--output", self.pdf, SAMPLE],
                             capture_output=True, text=True, check=False)
        self.assertEqual(run.returncode, 2)
        self.assertIn("ledgrove-report\" cannot be started", run.stderr)
        self.assertIn("The option --output needs that program", run.stderr)

    def test_a_report_of_a_file_named_insight_is_a_report(self):
        shutil.copy(SAMPLE, self.folder / "insight")
        subprocess.run([PROGRAM, "report", "--folder", self.folder, "--output", self.pdf, "insight"], cwd=self.folder, check=True,
                       capture_output=True)
        self.assertIn("Summary Report for Ledgrove", self.text())


if __name__ == "__main__":
    unittest.main()
