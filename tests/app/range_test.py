"""ledgrove-cli range: its rows are what compare and insight say of every house, and its outputs agree."""
import csv
import io
import json
import random
import struct
import unittest

from cli_desk import CliTest

BUYER = {"ecIncome": "72000", "ecMonthlyDebt": "350", "ecPctDown": "10%"}
PAIRS = [("Conventional", "Conventional"), ("Conventional", "Fannie Mae EEM"), ("Conventional", "Freddie Mac EEM"),
         ("FHA", "FHA"), ("FHA", "FHA EEM"), ("VA", "VA"), ("VA", "VA EEM")]
COLUMNS = ["house", "stdPrice", "gmhPrice", "stdBill", "gmhBill", "base", "labelled", "stdPITIU", "gmhPITIU", "ShownNet",
           "PVSavings", "stdQualifies", "gmhQualifies", "stdMargin", "gmhMargin", "price"]


def single(number):
    """The single that the shortest text stands for."""
    return struct.unpack("f", struct.pack("f", number))[0]


class Range(CliTest):
    def save_houses(self, houses):
        """Each is a name, the base price and bill, and the labelled price and bill."""
        kept = [line for line in self.settings.read_text("cp1252").splitlines() if not line.startswith("HOMELIST")]
        lines = kept + ["HOMELIST=" + ",".join(map(str, house)) for house in houses]
        self.settings.write_text("\n".join(lines) + "\n", "cp1252")

    def range(self, form, inputs, *options, status=0):
        return self.run_cli("range", "--folder", self.folder, "--format", form, *options, given=json.dumps(inputs), status=status)

    def rows(self, inputs, *options, status=0):
        return json.loads(self.range("json", inputs, *options, status=status).stdout)["rows"]

    def lines(self, command, comparisons, *options):
        run = self.run_cli(command, "--folder", self.folder, "--format", "jsonl", *options,
                           given="\n".join(map(json.dumps, comparisons)) + "\n")
        return [json.loads(line) for line in run.stdout.splitlines()]

    def test_rows_are_those_of_compare_and_insight_one_by_one(self):
        rng = random.Random(7)
        houses = []
        for lot in range(300):
            price = rng.randrange(90_000, 400_000)
            houses.append((f"Lot {lot}", price, rng.randrange(1000, 4000), price + rng.randrange(-5000, 20_000), rng.randrange(500, 3000)))
        self.save_houses(houses)
        alone = [BUYER | dict(zip(("ecStdHome", "ecStdUtil", "ecGMHHome", "ecGMHUtil"), map(str, house[1:]))) |
                 {"cboStdMortOption": base, "cboGMHMortOption": labelled} for house in houses for base, labelled in PAIRS]
        records = self.lines("compare", alone)
        limits = self.lines("insight", alone, "--view", "breakeven")
        rows = self.rows(BUYER, "--options", "all")
        self.assertEqual(len(rows), 2100)
        for number, (row, record, limit) in enumerate(zip(rows, records, limits)):
            name, price, bill, labelled_price, labelled_bill = houses[number // 7]
            std, gmh = record["StdCase"], record["GMHCase"]
            self.assertEqual(row, {
                "house": name, "stdPrice": price, "gmhPrice": labelled_price, "stdBill": bill, "gmhBill": labelled_bill,
                "base": PAIRS[number % 7][0], "labelled": PAIRS[number % 7][1], "stdPITIU": std["PITIU"], "gmhPITIU": gmh["PITIU"],
                "ShownNet": record["Scenario"]["NetMonthlyCashFlow"], "PVSavings": gmh["PVSavings"],
                "stdQualifies": record["labels"]["lblStdQual"]["text"] == "YES",
                "gmhQualifies": record["labels"]["lblGMHQual"]["text"] == "YES",
                "stdMargin": single(std["MaxLoan"]) - single(std["LoanAmount"]),
                "gmhMargin": single(gmh["MaxLoan"]) - single(gmh["LoanAmount"]), "price": limit["breakeven"]["price"]})

    def test_without_options_each_house_has_those_of_the_input(self):
        rows = self.rows(BUYER | {"cboStdMortOption": "FHA", "cboGMHMortOption": "FHA EEM"})
        self.assertEqual([(row["house"], row["base"], row["labelled"]) for row in rows],
                         [(name, "FHA", "FHA EEM") for name in ("The Alder", "The Birch", "The Cedar")])

    def test_options_have_the_order_of_the_lists_and_come_once(self):
        rows = self.rows(BUYER, "--options", "VA, Fannie Mae EEM,VA")
        self.assertEqual([(row["base"], row["labelled"]) for row in rows[:2]], [PAIRS[1], PAIRS[5]])
        self.assertEqual(len(rows), 6)

    def test_an_amount_is_taken_in_as_the_field_shows_it(self):
        """The main window shows whole dollars."""
        self.save_houses([("Odd", 200000.6, 2400, 206000, 1700.4)])
        row, = self.rows(BUYER)
        self.assertEqual((row["stdPrice"], row["gmhBill"]), (200001, 1700))

    def test_csv_has_the_numbers_of_the_json(self):
        self.save_houses([("The Alder", 285000, 2400, 293000, 1550), ("Bare", 0, 0, 0, 0)])
        rows = self.rows(BUYER, "--options", "all", status=1)
        read = csv.DictReader(io.StringIO(self.range("csv", BUYER, "--options", "all", status=1).stdout.decode()))
        self.assertEqual(read.fieldnames, [*COLUMNS, "missing"])
        for row, line in zip(rows, list(read), strict=True):
            for column in COLUMNS:
                if isinstance(row.get(column), bool):
                    self.assertEqual(line[column], str(row[column]).lower())
                elif isinstance(row.get(column), (int, float)):
                    self.assertEqual(float(line[column]), row[column])
            self.assertEqual(line["price"], row["price"]["to"] if "price" in row else "")
            self.assertEqual(line["missing"], row.get("missing", ""))

    def test_a_house_without_prices_is_named(self):
        self.save_houses([("Good", 200000, 2400, 206000, 1700), ("Bare", 200000, 0, 0, 0)])
        run = self.range("json", BUYER, status=1)
        self.assertEqual(json.loads(run.stdout)["rows"][1],
                         {"house": "Bare", "stdPrice": 200000, "gmhPrice": 0, "stdBill": 0, "gmhBill": 0, "base": "Conventional",
                          "labelled": "Conventional", "missing": "Enter the price of the GREENMARK home."})
        self.assertEqual(run.stderr.decode(), "ledgrove-cli: 1 of 2 rows has no figures; it is that of the house \"Bare\": "
                         "Enter the price of the GREENMARK home.\n")

    def test_without_limits_the_price_is_left_out(self):
        with_limits, without = self.rows(BUYER), self.rows(BUYER, "--no-limits")
        for row in with_limits:
            del row["price"]
        self.assertEqual(without, with_limits)
        self.assertNotIn("price,", self.range("csv", BUYER, "--no-limits").stdout.decode().splitlines()[0])

    def test_the_text_is_a_sentence_and_an_aligned_table(self):
        shown = self.range("text", BUYER, "--options", "VA").stdout.decode()
        self.assertTrue(shown.startswith("3 saved houses. The buyer qualifies for none of the 3 GREENMARK homes;"), shown)
        self.assertIn("Qualifies For", shown)
        table = shown.split("\n\n")[1].splitlines()
        self.assertIn("those of the base home", shown.split("\n\n")[2])
        self.assertEqual(len(table), 4)
        self.assertEqual(len({line.index("VA / VA") for line in table[1:]}), 1)

    def test_no_houses_are_no_rows(self):
        self.save_houses([])
        self.assertEqual(self.rows(BUYER), [])
        self.assertIn(b"No houses are saved.", self.range("text", BUYER).stdout)

    def test_a_refused_input_is_named_as_by_compare(self):
        bad = {"ecIncome": "abc"}
        self.assertEqual(json.loads(self.range("json", bad, status=1).stdout)["error"], self.refusal(bad))
        self.assertIn("ecIncome", self.range("csv", bad, status=1).stderr.decode())

    def test_an_unknown_option_is_named_and_the_nearest_offered(self):
        said = self.range("json", BUYER, "--options", "FHA EM", status=2).stderr.decode()
        self.assertIn('--options: "FHA EM" is not a mortgage option. Did you mean "FHA EEM"?', said)
        self.assertIn('"jsonl" is not a format.', self.range("jsonl", BUYER, status=2).stderr.decode())

    def test_a_house_list_that_cannot_be_read_is_a_fault_of_the_settings(self):
        self.save_houses([("Bad", "many", 1, 2, 3)])
        self.assertIn("amounts after the name must be numbers", self.range("json", BUYER, status=2).stderr.decode())


if __name__ == "__main__":
    unittest.main()
