"""Price lists: the same comparisons as JSON lines and as CSV, each with a different price."""
import csv
import io
import json
import re
import subprocess

from timing import ROOT, NotMeasured, peak_memory

LOWEST = 100_000  # the price of the first home; each next one costs a dollar more
COLUMNS = ("ecIncome", "ecMonthlyDebt", "optDownPayment", "ecPctDown", "ecFixedDown", "ecStdHome", "ecGMHHome", "ecStdUtil", "ecGMHUtil",
           "ecStdRate", "ecGMHRate", "ecStdStr", "ecGMHStr", "cboMortTerm", "cboStdMortOption", "cboGMHMortOption", "chkDoTax0")


def as_typed(value):
    """The text of a CSV cell for a JSON value."""
    if isinstance(value, bool):
        return "true" if value else "false"
    return str(value) or "0"


class PriceLists:
    """Repeats the golden comparisons that are not refused."""

    def __init__(self, place, lines):
        self.place = place
        self.lines = lines
        self._cases = None

    def command(self, style, *options):
        return [self.place.program("ledgrove-cli"), "compare", "--folder", ROOT / "data", "--format", style, *options]

    def cases(self):
        """Each comparison as its line of JSON and as a dictionary of texts."""
        if self._cases is None:
            golden = [line for line in (ROOT / "tests/golden/compare/cases.jsonl").read_text().splitlines() if line.startswith("{")]
            run = subprocess.run(list(map(str, self.command("jsonl"))), input="\n".join(golden), capture_output=True, text=True,
                                 timeout=60, env=self.place.environment)
            results = run.stdout.splitlines()
            if len(results) != len(golden):
                raise NotMeasured("the golden comparisons do not run")
            self._cases = [(line, json.loads(line, parse_float=str, parse_int=str))
                           for line, result in zip(golden, results) if not result.startswith('{"error"')]
        return self._cases

    def json(self, lines=None):
        return self._write("homes", "jsonl", lines or self.lines, self._json_rows)

    def csv(self, lines=None):
        return self._write("homes", "csv", lines or self.lines, self._csv_rows)

    def _write(self, name, style, lines, rows):
        path = self.place.folder / f"{name}-{lines}.{style}"
        if not path.exists():
            with path.open("w", newline="") as file:
                templates = rows(file)
                for number in range(lines):
                    before, behind = templates[number % len(templates)]
                    file.write(f"{before}{LOWEST + number}{behind}")
        return path

    def _json_rows(self, _):
        rows = []
        for line, _ in self.cases():
            priced, found = re.subn(r'"ecStdHome": ("[^"]*"|[^,}]*)', '"ecStdHome": @', line)
            rows.append(((priced if found else '{"ecStdHome": @, ' + line[1:]) + "\n").split("@"))
        return rows

    def _csv_rows(self, file):
        csv.writer(file, lineterminator="\n").writerow(COLUMNS)
        rows = []
        for _, case in self.cases():
            row = io.StringIO()
            csv.writer(row, lineterminator="\n").writerow(
                "@" if key == "ecStdHome" else as_typed(case[key]) if key in case else "" for key in COLUMNS)
            rows.append(row.getvalue().split("@"))
        return rows

    def check(self, command):
        """Runs a comparison of the whole JSON list. Returns the first line with a wrong result, if any, and the peak KiB."""
        first_wrong = None
        count = peak = 0
        with subprocess.Popen([*map(str, command)], stdout=subprocess.PIPE, bufsize=1 << 20) as process:
            for count, line in enumerate(process.stdout, 1):
                if b'"ecStdHome":"$%s"' % f"{LOWEST + count - 1:,}".encode() not in line[:1000] and first_wrong is None:
                    first_wrong = count
                if count % 5000 == 1:
                    peak = max(peak, peak_memory(process.pid))
        if process.returncode:
            raise NotMeasured(f"compare ended with status {process.returncode}")
        if count != self.lines and first_wrong is None:
            first_wrong = count + 1
        return first_wrong, peak
