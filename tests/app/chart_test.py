"""`ledgrove-cli chart`: pictures without a display that show the comparison's figures."""
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
SAMPLE = SOURCE / "data/samples/first-home.ledgrove.json"
SVG = "{http://www.w3.org/2000/svg}"


class ChartTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)

    def chart(self, *arguments, given=b"", status=0):
        run = subprocess.run([PROGRAM, "chart", "--folder", self.folder, *arguments], input=given, capture_output=True,
                             timeout=60, env={"PATH": "/usr/bin:/bin", "HOME": str(self.folder)})
        self.assertEqual(run.returncode, status, run.stderr.decode())
        return run.stderr.decode()

    def svg(self, *arguments, **options):
        path = self.folder / "out.svg"
        self.chart("--output", path, *arguments, **options)
        return ElementTree.parse(path).getroot()

    def texts(self, root):
        return [text for element in root.iter(SVG + "text") for text in ["".join(element.itertext()).strip()] if text]

    def test_each_tab_has_its_description(self):
        description = {
            "cashflow": "Monthly cost: Base Home $1,665, GREENMARK Home $1,652, $13 less.",
            "affordability": "With the Base Home the mortgage of $180,000 is within the maximum loan of $242,484.",
            "summary": "$1,399 after 7 years, $1,399 after 7 years in the home, $14,600 after 30 years.",
        }
        for tab, words in description.items():
            root = self.svg("--tab", tab, SAMPLE)
            self.assertIn(words, root.find(SVG + "desc").text)

    def test_axes_and_legend_are_drawn(self):
        drawn = self.texts(self.svg("--tab", "cashflow", SAMPLE))
        for text in ("Monthly Cost of Both Homes", "Principal and Interest", "Tax Savings", "GREENMARK Home", "$1,500"):
            self.assertIn(text, drawn)

    def test_years_are_marked(self):
        drawn = self.texts(self.svg(SAMPLE))
        self.assertIn("7 Years: $1,399", drawn)
        self.assertIn("30 Years: $14,600", drawn)

    def test_stacks_are_as_high_as_their_amounts(self):
        """Compares the lowest part of the base home, $1,137.72, with that of the labelled home, $1,175.65."""
        root = self.svg("--tab", "cashflow", SAMPLE)
        heights = []
        for group in root.iter(SVG + "g"):
            if group.get("fill", "").lower() == "#17404f":
                heights += [float(rect.get("height")) for rect in group.iter(SVG + "rect")]
                heights += [self.path_height(path.get("d")) for path in group.iter(SVG + "path")]
        bars = sorted(height for height in heights if height > 50)
        self.assertEqual(len(bars), 2, heights)
        self.assertAlmostEqual(bars[1] / bars[0], 1175.65 / 1137.72, 2)

    def path_height(self, commands):
        rows = [float(y) for _, y in re.findall(r"[ML]\s*(-?[\d.]+),(-?[\d.]+)", commands)]
        return max(rows) - min(rows) if rows else 0

    def test_png_has_two_dots_per_pixel(self):
        path = self.folder / "out.PNG"
        self.chart("--output", path, "--width", "400", "--height", "300", SAMPLE)
        head = path.read_bytes()[:24]
        self.assertEqual(head[:8], b"\x89PNG\r\n\x1a\n")
        self.assertEqual(struct.unpack(">II", head[16:24]), (800, 600))

    def test_standard_input(self):
        root = self.svg("--tab", "affordability", given=b'{"ecStdHome": 100000, "ecPctDown": "20"}')
        self.assertIn("Mortgage Amount: Base Home $80,000", root.find(SVG + "desc").text)

    def test_an_empty_comparison_has_a_chart(self):
        for tab in ("cashflow", "affordability", "summary"):
            self.assertIn("$0", self.svg("--tab", tab, given=b"{}").find(SVG + "desc").text)

    def test_faults_are_reported(self):
        output = ("--output", self.folder / "out.png")
        cases = ((("--output", "chart.gif"), b"{}", 2, "*.png or *.svg"),
                 ((*output, "--tab", "welcome"), b"{}", 2, "cashflow, affordability or summary"),
                 ((*output, "--width", "5"), b"{}", 2, "width"),
                 ((*output, self.folder / "gone.json"), b"", 2, "gone.json"),
                 (("--output", self.folder / "none/out.png"), b"{}", 2, "none/out.png"),
                 (output, b'{"ecIncome": "many"}', 1, "ecIncome"),
                 (output, b"nonsense", 1, "JSON"))
        for arguments, given, status, words in cases:
            self.assertIn(words, self.chart(*arguments, given=given, status=status))
        self.assertFalse((self.folder / "out.png").exists())

    def test_missing_settings_are_reported(self):
        (self.folder / "Ledgrove.ini").unlink()
        words = self.chart("--output", self.folder / "out.png", SAMPLE, status=2)
        self.assertIn("Ledgrove.ini", words)

    def test_a_failed_write_leaves_the_old_picture(self):
        path = self.folder / "out.png"
        path.write_bytes(b"old")
        run = subprocess.run(["sh", "-c", f'ulimit -f 8; trap "" XFSZ; exec "{PROGRAM}" chart --folder "{self.folder}" '
                              f'--output "{path}" "{SAMPLE}"'], capture_output=True, timeout=60)
        self.assertEqual(run.returncode, 2, run.stderr)
        self.assertIn(b"out.png", run.stderr)
        self.assertEqual(path.read_bytes(), b"old")


if __name__ == "__main__":
    unittest.main()
