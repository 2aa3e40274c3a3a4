"""ledgrove-cli insight: its outputs, and that compare says the same of its answers."""
import json
import unittest

from cli_desk import CliTest

HOME = {"ecIncome": "72000", "ecMonthlyDebt": "350", "ecPctDown": "10%", "ecStdHome": "200000", "ecGMHHome": "206000",
        "ecStdUtil": "2400", "ecGMHUtil": "1700", "cboStdMortOption": "FHA", "cboGMHMortOption": "FHA EEM"}
STEPS = {"ecPctDown": (0.01, "{:.2f}%"), "ecStdRate": (0.001, "{:.3f}%"), "ecGMHRate": (0.001, "{:.3f}%")}


def further(answer, direction):
    """The text of the field one step from where the answer ends."""
    step, form = STEPS.get(answer["input"], (1, "{:.0f}"))
    return form.format(float(answer["to"].strip("$%").replace(",", "")) + direction * step)


class Insight(CliTest):
    def insight(self, form, given, *options, status=0):
        return self.run_cli("insight", "--folder", self.folder, "--format", form, *options, given=given, status=status)

    def answers(self, inputs, *options):
        return json.loads(self.insight("json", json.dumps(inputs), *options).stdout)

    def test_a_bill_that_changes_the_loan_only_between_counts(self):
        # The loan is the same at $0 and from $1,601 on, and another one from $1 to $1,600.
        home = {"ecIncome": "143766", "ecMonthlyDebt": "1359", "ecPctDown": "10.00", "ecStdHome": "290852", "ecGMHHome": "277957",
                "ecGMHUtil": "9179", "ecStdRate": "4.463", "ecGMHRate": "4.463", "cboMortTerm": "10 years",
                "cboGMHMortOption": "Freddie Mac EEM", "chkDoTax0": False}
        self.assertEqual(self.answers(home, "--view", "qualify")["qualify"]["gmh"]["bill"],
                         {"input": "ecGMHUtil", "from": "$9,179", "to": "$91,790", "change": 82611, "state": "always"})

    def test_the_views_have_their_keys(self):
        self.assertEqual(list(self.answers(HOME)),
                         ["takeaway", "breakeven", "options", "qualify", "sensitivity", "years", "energy", "tax", "exit"])
        chosen = self.answers(HOME, "--view", "map,breakeven,map")
        self.assertEqual(list(chosen), ["breakeven", "map"])
        self.assertEqual([len(chosen["map"][key]) for key in ("price", "savings", "net")], [41, 41, 41])

    def test_compare_says_the_same_at_every_answer(self):
        """It holds at a limit and at a nearest, and not one step further or nearer."""
        compared = 0
        for income in ("72000", "45000"):
            for price in ("206000", "216000"):
                home = HOME | {"ecIncome": income, "ecGMHHome": price}
                views = self.answers(home, "--view", "breakeven,qualify")
                questions = [(views["breakeven"][key], lambda r: r["Scenario"]["NetMonthlyCashFlow"] >= 0)
                             for key in ("price", "bill", "rate")]
                questions += [(views["qualify"][who][key],
                               lambda r, label=label: r["labels"][label]["text"] == "YES")
                              for who, label in (("std", "lblStdQual"), ("gmh", "lblGMHQual"))
                              for key in ("income", "debt", "down", "price", "rate")]
                for answer, holds in questions:
                    if answer["state"] != "found":
                        continue
                    self.assertTrue(holds(self.compare_json(home | {answer["input"]: answer["to"]})), answer)
                    now = holds(self.compare_json(home))
                    away = 1 if answer["change"] > 0 else -1
                    beside = further(answer, away if now else -away)
                    self.assertFalse(holds(self.compare_json(home | {answer["input"]: beside})), (answer, beside))
                    compared += 1
        self.assertGreater(compared, 30)

    def test_by_sets_how_far_the_inputs_move(self):
        rows = self.answers(HOME, "--view", "sensitivity", "--by", "25")["sensitivity"]
        self.assertEqual(rows["by"], 25)
        income = next(row for row in rows["rows"] if row["input"] == "income")
        self.assertEqual((income["low"]["value"], income["high"]["value"]), ("$54,000", "$90,000"))

    def test_the_years_use_the_settings(self):
        """One is changed for each view."""
        for key, value in (("GROWTH_UTILITIES", "3"), ("EXIT_SELLING_COST", "50"), ("DEDUCTION_STANDARD", "0")):
            self.settings_verb("set", key, value)
        views = self.answers(HOME, "--view", "years,energy,tax,exit")
        years = views["years"]
        self.assertEqual(years["growth"], {"utilities": 0.03, "home": 0})
        self.assertEqual(len(years["years"]), 30)
        self.assertAlmostEqual(years["years"][2]["std"]["utilities"], 2400 * 1.03 ** 2)
        self.assertEqual(views["energy"]["rates"], [0, 0.01, 0.02, 0.03, 0.04, 0.05, 0.06])
        self.assertEqual([len(row) for row in views["energy"]["cumulative"]], [30] * 7)
        self.assertAlmostEqual(views["energy"]["cumulative"][3][6], years["years"][6]["cumulative"], places=6)
        self.assertEqual(views["tax"]["itemizes"], {"std": True, "gmh": True})
        last = views["exit"]["years"][29]
        self.assertEqual((last["year"], last["std"], last["gmh"]), (30, 200000 * 0.5, 206000 * 0.5))
        self.assertAlmostEqual(last["total"], last["difference"] + years["years"][29]["cumulative"])

    def test_the_text_is_sentences_and_tables(self):
        shown = self.insight("text", json.dumps(HOME), "--view", "breakeven,qualify").stdout.decode()
        self.assertTrue(shown.startswith("The GREENMARK home pays for itself up to a price of $"), shown)
        self.assertIn("\nBuyer Qualifies ", shown)
        for line in shown.splitlines():
            self.assertEqual(line, line.rstrip())
        self.assertIn("\n* the best of its column\n> chosen now\n",
                      self.insight("text", json.dumps(HOME), "--view", "options").stdout.decode())
        shown = self.insight("text", json.dumps(HOME), "--view", "years,energy,tax,exit").stdout.decode()
        self.assertIn("  no PMI from month 133\n", shown)
        for part in ("the buyer is never behind, and ahead by $", "Utility bills need not rise",
                     "for a couple filing jointly (tax year 2026)", "If the home is sold after 7 years, the GREENMARK home"):
            self.assertIn(part, shown.replace("\n", " "))

    def test_without_prices_there_is_no_answer(self):
        self.assertEqual(json.loads(self.insight("json", "{}", status=1).stdout),
                         {"missing": "Enter the price of the base home."})
        run = self.insight("text", "{}", status=1)
        self.assertEqual((run.stdout, run.stderr), (b"", b"ledgrove-cli: Enter the price of the base home.\n"))

    def test_a_refused_input_is_named_as_by_compare(self):
        bad = {"ecIncome": "abc"}
        refused = json.loads(self.insight("json", json.dumps(bad), status=1).stdout)
        self.assertEqual(refused["error"], self.refusal(bad))

    def test_lines_keep_their_order(self):
        lines = []
        for number in range(700):
            lines.append({4: "nonsense", 5: '{"ecIncome": "abc"}', 6: "{}"}.get(
                number % 100, json.dumps(HOME | {"ecGMHHome": 200000 + number})))
        run = self.insight("jsonl", "\n".join(lines) + "\n", "--view", "breakeven", status=1)
        self.assertEqual(run.stderr.decode(),
                         "ledgrove-cli: 21 of 700 comparisons have no answer; the first is line 5.\n")
        answers = [json.loads(line) for line in run.stdout.splitlines()]
        self.assertEqual(len(answers), 700)
        for number, answer in enumerate(answers):
            if number % 100 in (4, 5):
                self.assertEqual(answer["error"]["line"], number + 1)
            elif number % 100 == 6:
                self.assertIn("missing", answer)
            else:
                self.assertEqual(answer["breakeven"]["price"]["from"], f"${200000 + number:,}")

    def test_an_unknown_view_is_named_and_the_nearest_offered(self):
        said = self.insight("json", "{}", "--view", "breakeven,optons", status=2).stderr.decode()
        self.assertIn('--view: "optons" is not a view. Did you mean "options"? "ledgrove-cli insight --help"', said)
        self.assertIn('"" is not a view.', self.insight("json", "{}", "--view", "", status=2).stderr.decode())

    def test_a_percentage_out_of_range_is_refused(self):
        for percent in ("0", "100.5", "-5", "ten", ""):
            said = self.insight("json", "{}", "--by", percent, status=2).stderr.decode()
            self.assertIn(f'--by: "{percent}" is not a percentage above 0 and at most 100.', said)

    def test_an_empty_or_unreadable_input_is_named(self):
        self.assertIn("is empty", self.insight("jsonl", "", status=1).stderr.decode())
        self.assertIn("/nowhere", self.insight("json", "", "/nowhere", status=2).stderr.decode())


if __name__ == "__main__":
    unittest.main()
