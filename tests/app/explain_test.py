"""ledgrove-cli insight --view explain and takeaway: every expression, computed by other software, gives its figure."""
import json
import math
import re
import unittest

from cli_desk import SOURCE, CliTest

GOLDEN = SOURCE / "tests/golden"


def discount(rate, periods):
    return -math.expm1(-periods * math.log1p(rate))


def pv(rate, periods, payment):
    return -payment * (discount(rate, periods) / rate if rate else periods)


def fv(rate, periods, payment):
    return -payment * (math.expm1(periods * math.log1p(rate)) / rate if rate else periods)


def pmt(rate, periods, amount):
    return -amount * (rate / discount(rate, periods) if rate else 1 / periods)


def ipmt(rate, period, periods, amount):
    """The interest on what is owed after the payments before."""
    if not rate:
        return 0
    owed = amount * (1 + rate) ** (period - 1) + pmt(rate, periods, amount) * ((1 + rate) ** (period - 1) - 1) / rate
    return -owed * rate


FUNCTIONS = {"min": min, "max": max, "PV": pv, "FV": fv, "PMT": pmt, "IPMT": ipmt}


def computed(expression, values):
    """Names become look-ups; what remains is arithmetic."""
    code = re.sub(r"[A-Za-z_][A-Za-z0-9_.]*",
                  lambda match: match[0] if match[0] in FUNCTIONS else f"values[{match[0]!r}]", expression)
    return eval(code, {"__builtins__": {}}, {"values": values, **FUNCTIONS})  # the program's own output


class Explain(CliTest):
    def lines(self, command, inputs, *options, status=0):
        run = self.run_cli(command, "--folder", GOLDEN / "compare", "--format", "jsonl", *options, status=status,
                           given="".join(json.dumps(line) + "\n" for line in inputs))
        return [json.loads(line) for line in run.stdout.splitlines()]

    def samples(self):
        return [json.loads(line)["input"] for line in (GOLDEN / "insight/vectors.jsonl").read_text().splitlines()]

    def check_calculation(self, figure, known):
        values = figure["values"]
        for name, value in values.items():
            self.assertEqual(value, known[name]["value"], name)
        largest = max(abs(number) for number in [figure["value"], *values.values()])
        self.assertLessEqual(abs(computed(figure["expression"], values) - figure["value"]), 6e-7 * largest, figure)

    def check_labels(self, figures, labels):
        shown = {label: figure["text"] for figure in figures for label in figure["labels"]}
        amounts = {name: label["text"] for name, label in labels.items()
                   if re.match(r"-?\$|YES|\*NO", label["text"]) and name != "Label6"}
        self.assertEqual(shown, amounts)

    def test_expressions_give_the_figures_of_compare(self):
        golden = [json.loads(line) for line in (GOLDEN / "compare/cases.jsonl").read_text().splitlines() if line.startswith("{")]
        # Comparisons that cannot be explained say what is missing; the golden ones have many without a price.
        explained = self.lines("insight", golden, "--view", "explain", status=1)
        missing = [answer for answer in explained if "explain" not in answer]
        self.assertTrue(all(answer.keys() <= {"missing", "error"} for answer in missing))
        inputs = self.samples() + [given for given, answer in zip(golden, explained, strict=True) if "explain" in answer]
        self.assertGreater(len(inputs), 200)
        answers = self.lines("insight", inputs, "--view", "explain")
        results = self.lines("compare", inputs, "--quiet")
        calculations = 0
        for answer, result in zip(answers, results, strict=True):
            figures = answer["explain"]["figures"]
            known = {figure["figure"]: figure for figure in figures}
            self.assertEqual(len(known), len(figures))
            for figure in figures:
                record, _, name = figure["figure"].partition(".")
                if name in result.get(record, {}):
                    self.assertTrue(math.isclose(figure["value"], result[record][name], rel_tol=1e-6), figure)
                if "expression" in figure:
                    self.check_calculation(figure, known)
                    calculations += 1
                else:
                    self.assertTrue(figure["from"])
            self.check_labels(figures, result["labels"])
        self.assertGreater(calculations, 50 * len(inputs))

    def test_the_band_of_pmi_is_named(self):
        home = {"ecPctDown": "10%", "ecStdHome": "200000", "ecGMHHome": "206000"}
        figures = self.lines("insight", [home], "--view", "explain")[0]["explain"]["figures"]
        pmi = next(figure for figure in figures if figure["figure"] == "GMHCase.PMIMonthly")
        self.assertEqual(pmi["because"], "10.00 % down falls below 15 %: PMI_MULT3")
        self.assertEqual(pmi["expression"], "PMI_MULT3 * GMHCase.LoanAmount / 12")

    def test_the_text_is_a_numbered_table(self):
        home = json.dumps({"ecStdHome": "200000", "ecGMHHome": "206000"})
        text = self.run_cli("insight", "--folder", self.folder, "--view", "explain", given=home).stdout.decode()
        lines = text.splitlines()
        self.assertTrue(lines[2].startswith("No."))
        self.assertRegex(lines[3], r"^\[1\]   Sticker Price, Base Home .* \$200,000\.00$")
        self.assertLess(max(map(len, lines)), 200)
        # A long cell goes on below, in its own column.
        start = next(number for number, line in enumerate(lines) if "Mortgage Payment (P+I), Base Home" in line)
        column = lines[start].index("payment on")
        self.assertEqual(lines[start + 1][:column].strip(), "")
        self.assertNotEqual(lines[start + 1][column:column + 1].strip(), "")

    def test_the_takeaway_comes_first_and_is_plain_text(self):
        home = {"ecStdHome": "200000", "ecGMHHome": "206000", "ecStdUtil": "2400", "ecGMHUtil": "1700"}
        answer = self.lines("insight", [home])[0]
        self.assertEqual(list(answer)[0], "takeaway")
        sentences = answer["takeaway"]["sentences"]
        self.assertEqual(sentences[0],
                         "The GREENMARK home costs $6,000 more and saves $700 a year in utility bills.")
        text = self.run_cli("insight", "--folder", GOLDEN / "compare", "--view", "takeaway", given=json.dumps(home))
        self.assertEqual(" ".join(text.stdout.decode().split()), " ".join(sentences))


if __name__ == "__main__":
    unittest.main()
