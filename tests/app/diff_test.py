"""ledgrove-cli diff: its parts are those of an own calculation over all orders, with the figures of compare."""
import itertools
import json
import random
import unittest

from cli_desk import CliTest

HOME = {"ecIncome": "72000", "ecMonthlyDebt": "350", "ecPctDown": "10%", "ecStdHome": "200000", "ecGMHHome": "206000",
        "ecStdUtil": "2400", "ecGMHUtil": "1700", "cboStdMortOption": "FHA", "cboGMHMortOption": "FHA EEM"}
# What changes together, by its name in the diff: other texts to choose from.
OTHERS = {
    "ecIncome": [{"ecIncome": text} for text in ("55000", "60000", "140000")],
    "ecMonthlyDebt": [{"ecMonthlyDebt": text} for text in ("0", "900")],
    "downPayment": [{"ecPctDown": "4.5"}, {"ecPctDown": "20"}, {"optDownPayment": 1, "ecFixedDown": "31000"}],
    "ecStdHome": [{"ecStdHome": text} for text in ("180000", "215000")],
    "ecGMHHome": [{"ecGMHHome": text} for text in ("203000", "231000")],
    "ecStdUtil": [{"ecStdUtil": "3100"}],
    "ecGMHUtil": [{"ecGMHUtil": text} for text in ("900", "2600")],
    "ecStdRate": [{"ecStdRate": "7.125"}],
    "ecGMHRate": [{"ecGMHRate": text} for text in ("5.875", "7.25")],
    "cboMortTerm": [{"cboMortTerm": text} for text in ("15 years", "40 years")],
    "mortgageOptions": [{"cboStdMortOption": "Conventional", "cboGMHMortOption": "Fannie Mae EEM"},
                        {"cboStdMortOption": "VA", "cboGMHMortOption": "VA EEM"}],
    "chkDoTax0": [{"chkDoTax0": False}],
}
PRICES = ("lblStdHome", "lblGMHHome", "lblHouseValueStd")
# Each shows the figure of a label before it.
REPEATED = ("lblstddown2", "lblStdMort", "lblgmhdown2", "lblGMHMort", "lbltaxsavmo2", "lblMonthlyHCStd", "lblMonthlyHCGM", "lblNetCashMo2")


def is_amount(text):
    return text in ("YES", "*NO") or (text.lstrip("-").startswith("$") and " " not in text)


def value(record, figure, label):
    """The figure by compare's records, or as the arithmetic of the tabs has it."""
    if figure.endswith(".Qualifies"):
        return 1 if record["labels"][label]["text"] == "YES" else 0
    scenario, taxes = record["Scenario"], record["fields"]["chkDoTax0"]
    net = scenario["ShownTaxSavings"] + scenario["UtilitySavings"] + scenario["MortgageSavings"]
    today = scenario["PVNetCashFlow" if taxes else "PVNetBeforeTax"]
    own = {"Shown.MortgageSavingsPerYear": scenario["MortgageSavings"] * 12, "Shown.UtilitySavingsPerYear": scenario["UtilitySavings"] * 12,
           "Shown.TaxSavingsPerYear": scenario["ShownTaxSavings"] * 12, "Shown.NetCashFlow": net, "Shown.NetCashFlowPerYear": net * 12,
           "Shown.NetMonthlyPayment": record["GMHCase"]["PITIU"] - scenario["ShownTaxSavings"],
           "Shown.Net": scenario["NetMonthlyCashFlow" if taxes else "NetBeforeTax"], "Shown.PurchaseToday": today,
           "Shown.HouseValue": today + record["GMHCase"]["Cost"]}
    if figure in own:
        return own[figure]
    home, name = figure.split(".")
    return record[home][name]


class Diff(CliTest):
    def diff(self, a, b, *options, status=0):
        for name, content in (("a.json", a), ("b.json", b)):
            (self.folder / name).write_text(json.dumps(content))
        return self.run_cli("diff", "--folder", self.folder, *options, self.folder / "a.json", self.folder / "b.json", status=status)

    def diff_json(self, a, b, status=0):
        return json.loads(self.diff(a, b, "--format", "json", status=status).stdout)

    def records(self, comparisons):
        run = self.compare("jsonl", "\n".join(map(json.dumps, comparisons)) + "\n")
        return [json.loads(line) for line in run.splitlines()]

    def test_the_parts_are_the_averages_over_all_orders(self):
        rng = random.Random(3)
        checked = 0
        for _ in range(40):
            changed = rng.sample(list(OTHERS), rng.randint(1, 5))
            texts = {name: rng.choice(OTHERS[name]) for name in changed}
            subsets = [frozenset(some) for size in range(len(changed) + 1) for some in itertools.combinations(changed, size)]
            mixtures = [HOME | {key: text for name in subset for key, text in texts[name].items()} for subset in subsets]
            record = dict(zip(subsets, self.records(mixtures)))
            first, last = record[frozenset()], record[frozenset(changed)]
            found = self.diff_json(mixtures[0], mixtures[-1])
            self.assertEqual([one["input"] for one in found["inputs"]], [name for name in OTHERS if name in changed])
            moved = [label for label, shown in first["labels"].items() if is_amount(shown["text"]) and label not in PRICES + REPEATED
                     and shown["text"] != last["labels"][label]["text"]]
            self.assertEqual([one["label"] for one in found["figures"]], moved)
            for figure in found["figures"]:
                worth = {subset: value(record[subset], figure["figure"], figure["label"]) for subset in subsets}
                parts = dict.fromkeys(changed, 0)
                orders = list(itertools.permutations(changed))
                for order in orders:
                    for at, name in enumerate(order):
                        parts[name] += (worth[frozenset(order[:at + 1])] - worth[frozenset(order[:at])]) / len(orders)
                # compare prints singles by their shortest text.
                near = max(1, *map(abs, worth.values())) * 5e-7
                self.assertAlmostEqual(figure["a"], worth[frozenset()], delta=near)
                self.assertAlmostEqual(figure["b"], worth[frozenset(changed)], delta=near)
                self.assertAlmostEqual(figure["change"], figure["b"] - figure["a"], delta=1e-9)
                for part in figure["parts"]:
                    self.assertAlmostEqual(part["amount"], parts[part["input"]], delta=near, msg=(texts, figure["figure"]))
                self.assertAlmostEqual(sum(part["amount"] for part in figure["parts"]), figure["change"], delta=near / 1000)
                checked += 1
        self.assertGreater(checked, 500)

    def test_all_inputs_may_differ_at_once(self):
        """The twelve that figures depend on, and the two of the mortgage stretch."""
        other = {key: text for texts in OTHERS.values() for key, text in texts[0].items()}
        found = self.diff_json(HOME, HOME | other | {"ecStdStr": "1", "ecGMHStr": "2"})
        self.assertEqual([one["input"] for one in found["inputs"]],
                         ["ecIncome", "ecMonthlyDebt", "downPayment", "ecStdHome", "ecGMHHome", "ecStdUtil", "ecGMHUtil", "ecStdRate",
                          "ecGMHRate", "ecStdStr", "ecGMHStr", "cboMortTerm", "mortgageOptions", "chkDoTax0"])
        for figure in found["figures"]:
            self.assertEqual(len(figure["parts"]), 14)
            self.assertAlmostEqual(sum(part["amount"] for part in figure["parts"]), figure["change"], places=6)

    def test_inputs_are_as_the_fields_show_them(self):
        found = self.diff_json(HOME, HOME | {"ecPctDown": "0.2", "ecStdHome": " $201000 ", "chkDoTax0": False})
        shown = [self.compare_json(one)["fields"] for one in (HOME, HOME | {"ecPctDown": "0.2", "ecStdHome": "201000"})]
        self.assertEqual(found["inputs"],
                         [{"input": "downPayment", "a": shown[0]["ecPctDown"], "b": shown[1]["ecPctDown"]},
                          {"input": "ecStdHome", "a": "$200,000", "b": "$201,000"}, {"input": "chkDoTax0", "a": True, "b": False}])

    def test_the_same_texts_are_no_difference(self):
        self.assertEqual(self.diff_json(HOME, HOME | {"ecIncome": "$72,000", "ecFixedDown": "5000"}), {"inputs": [], "figures": []})
        self.assertEqual(self.diff(HOME, HOME).stdout, b"Both comparisons have the same inputs.\n")

    def test_the_text_has_inputs_figures_and_the_parts_of_the_net(self):
        shown = self.diff(HOME, HOME | {"ecGMHHome": "209000", "ecIncome": "71000"}).stdout.decode()
        self.assertTrue(shown.startswith("2 inputs differ.\n\nInput "), shown)
        self.assertIn("\nNet Monthly Cash Flow with Tax Savings goes from $13 to -$", shown)
        self.assertIn(" contributes the most: -$", shown.replace("\n", " "))

    def test_an_input_without_effect_changes_no_figure(self):
        self.assertIn("\nNo figure changes.\n", self.diff(HOME, HOME | {"ecStdStr": "1"}).stdout.decode())

    def test_standard_input_is_one_of_the_two(self):
        (self.folder / "a.json").write_text(json.dumps(HOME))
        other = json.dumps(HOME | {"ecGMHUtil": "900"})
        forth, back = (json.loads(self.run_cli("diff", "--folder", self.folder, "--format", "json", *files, given=other).stdout)
                       for files in ((self.folder / "a.json", "-"), ("-", self.folder / "a.json")))
        self.assertEqual(forth["inputs"], [{"input": "ecGMHUtil", "a": "$1,700", "b": "$900"}])
        self.assertEqual(back["inputs"], [{"input": "ecGMHUtil", "a": "$900", "b": "$1,700"}])
        said = self.run_cli("diff", "--folder", self.folder, "-", "-", given=other, status=2).stderr.decode()
        self.assertIn("Standard input can be only one of the two comparisons. Give a file for the other.", said)

    def test_a_comparison_that_cannot_be_used_is_named(self):
        file = str(self.folder / "b.json")
        refused = self.diff_json(HOME, {"ecIncome": "abc"}, status=1)
        self.assertEqual(refused["error"], self.refusal({"ecIncome": "abc"}) | {"file": file})
        self.assertEqual(self.diff_json(HOME, {}, status=1), {"file": file, "missing": "Enter the price of the base home."})
        self.assertEqual(self.diff(HOME, {}, status=1).stderr.decode(),
                         f"ledgrove-cli: {file}: Enter the price of the base home.\n")
        self.assertIn("/nowhere", self.run_cli("diff", "--folder", self.folder, self.folder / "a.json", "/nowhere", status=2).stderr.decode())
        self.assertIn("B is required", self.run_cli("diff", "--folder", self.folder, file, status=2).stderr.decode())


if __name__ == "__main__":
    unittest.main()
