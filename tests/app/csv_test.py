"""`ledgrove-cli compare --format csv`: price lists in, price lists with results out."""
import csv
import io
import json
import unittest

from cli_desk import CliTest


class CompareCsv(CliTest):
    def rows(self, given, status=0):
        return list(csv.DictReader(io.StringIO(self.compare("csv", given, status).decode())))

    def test_a_price_list_goes_in_and_comes_out_with_results(self):
        rows = self.rows("ecIncome,ecPctDown,ecStdHome,ecGMHHome,ecStdUtil,ecGMHUtil,cboStdMortOption,"
                         "cboGMHMortOption,chkDoTax0,ecMonthlyDebt\r\n"
                         '"72,000",10,"$200,000",206000,2400,1700,FHA,FHA EEM,TRUE,350\r\n')
        self.assertEqual(rows[0]["ecIncome"], "72,000")
        self.assertEqual(rows[0]["StdCase.LoanAmount"], "180000.00")
        self.assertEqual(rows[0]["StdCase.MortPayment"], "1137.72")  # 180,000 at 6.5 % over 30 years
        self.assertEqual((rows[0]["lblGMHQual"], rows[0]["error"]), ("YES", ""))

    def test_an_empty_cell_leaves_the_start_up_state(self):
        rows = self.rows("ecStdHome,ecStdRate,cboMortTerm\n100000,,\n")
        # 100,000 at the start-up rate of 6.5 % over the start-up term of 30 years
        self.assertEqual(rows[0]["StdCase.MortPayment"], "632.07")

    def test_faulty_rows_carry_their_reason_and_the_list_continues(self):
        rows = self.rows("ecIncome,ecStdHome\nabc,1\n1,2,3\n5,5\n", status=1)
        self.assertEqual(rows[0]["error"], "Line 2: ecIncome: You must enter a number here.")
        self.assertEqual(rows[2]["error"], "")
        self.assertEqual(rows[2]["StdCase.LoanAmount"], "5.00")

    def test_cells_that_a_spreadsheet_would_run_are_defused(self):
        output = self.compare("csv", 'ecIncome,=1+1\n"=cmd|\' /C calc\'!A0",@SUM(1)\n-5,+x\n', status=1).decode()
        for cell in next(csv.reader([output.splitlines()[0]])):
            self.assertNotIn(cell[:1], "=@", cell)
        rows = list(csv.reader(io.StringIO(output)))
        self.assertEqual(rows[1][:2], ["'=cmd|' /C calc'!A0", "'@SUM(1)"])
        self.assertEqual(rows[2][:2], ["-5", "'+x"])  # a negative number is not a formula

    def test_leading_blanks_are_kept_and_do_not_hide_a_formula(self):
        output = self.compare("csv", 'ecIncome,ecStdHome\n" =1+1","\n@SUM(1)"\n" 5 ", 6\n', status=1).decode()
        self.assertIn("' =1+1", output)
        rows = list(csv.reader(io.StringIO(output)))
        self.assertEqual(rows[1][:2], ["' =1+1", "'\n@SUM(1)"])
        self.assertIn('\n" 5 ",6,', output)  # without its quotes the blanks would be lost

    def test_line_numbers_count_lines_inside_quotes(self):
        rows = self.rows('ecIncome,ecStdHome\n"1\n\n",5\n\nabc,5\n', status=1)
        self.assertTrue(rows[-1]["error"].startswith("Line 6: "), rows[-1]["error"])

    def test_a_quote_that_is_never_closed_is_reported(self):
        rows = self.rows('ecIncome\n"' + "1\n" * 1_200_000, status=1)
        self.assertIn("missing closing quote", rows[0]["error"])


class OwnLists(CliTest):
    """Price lists as people have them."""

    def run_csv(self, *files, given="", status=0):
        return self.run_cli("compare", "--folder", self.folder, "--format", "csv", *files, given=given, status=status)

    def rows(self, given, separator=","):
        run = self.run_csv(given=given)
        return list(csv.DictReader(io.StringIO(run.stdout.decode()), delimiter=separator)), run.stderr.decode()

    def file(self, name, text):
        path = self.folder / name
        path.write_text(text, encoding="utf-8")
        return path

    def test_own_columns_stand_in_front_of_the_results(self):
        rows, said = self.rows('Lot,Plan,ecStdHome,Address,ecGMHHome\n7,Alder,200000,"1, Elm St",206000\n')
        self.assertEqual(list(rows[0])[:6], ["Lot", "Plan", "ecStdHome", "Address", "ecGMHHome", "StdCase.DownPayment"])
        self.assertEqual((rows[0]["Lot"], rows[0]["Address"]), ("7", "1, Elm St"))
        self.assertEqual(rows[0]["StdCase.LoanAmount"], "200000.00")
        self.assertEqual(said, "")

    def test_captions_and_other_separators_are_understood(self):
        rows, _ = self.rows("Lot;Sticker Price, Base Home;sticker price, greenmark home\n7;200000;206000\n", ";")
        self.assertEqual(rows[0]["StdCase.LoanAmount"], "200000.00")
        self.assertEqual(rows[0]["GMHCase.LoanAmount"], "206000.00")
        rows, _ = self.rows("Lot\tecStdHome\n7\t200000\n", "\t")
        self.assertEqual(rows[0]["StdCase.LoanAmount"], "200000.00")

    def test_a_heading_that_is_nearly_an_input_gets_a_warning(self):
        rows, said = self.rows("ecStdHome,ecGMHhome\n200000,206000\n")
        self.assertIn('The column "ecGMHhome" is not an input', said)
        self.assertIn('"ecGMHHome" is meant', said)
        self.assertEqual(rows[0]["GMHCase.LoanAmount"], "0.00")

    def test_doubled_headings_are_refused(self):
        run = self.run_csv(given="Lot,ecStdHome,ecStdHome\n1,2,3\n", status=1)
        self.assertEqual(run.stdout, b"")
        self.assertIn(b'The heading "ecStdHome" stands twice, in columns 2 and 3.', run.stderr)

    def test_empty_headings_at_the_end_are_passed_over(self):
        rows, said = self.rows("ecStdHome,,\n200000,,\n")
        self.assertEqual(list(rows[0])[1], "StdCase.DownPayment")
        self.assertEqual(said, "")

    def test_short_rows_and_doubtful_numbers_are_named(self):
        _, said = self.rows("Lot,ecStdHome,ecGMHHome\n1,200.000,206000\n2,200000\n")
        self.assertIn('Line 2, column "ecStdHome": "200.000" is read with a decimal point.', said)
        self.assertIn('Line 3 has no cell for the column "ecGMHHome"', said)

    def test_many_warnings_are_counted(self):
        _, said = self.rows("ecStdHome,ecGMHHome\n" + "200000\n" * 50)
        self.assertEqual(said.count("\n"), 21)
        self.assertIn("There are 30 more warnings.", said)

    def test_a_second_list_adds_its_rows_only(self):
        first = self.file("a.csv", "Lot,ecStdHome\n1,200000\n")
        second = self.file("b.csv", "Lot,ecStdHome\n2,300000\n")
        lines = self.run_csv(first, second).stdout.decode().splitlines()
        self.assertEqual([line.split(",")[0] for line in lines], ["Lot", "1", "2"])
        other = self.file("c.csv", "ecStdHome\n400000\n")
        run = self.run_csv(first, other, status=1)
        self.assertEqual(len(run.stdout.splitlines()), 2)
        self.assertIn(str(other).encode() + b": The columns differ", run.stderr)

    def test_the_output_can_be_compared_again(self):
        once = self.run_csv(given="Lot,ecStdHome,ecGMHHome\n1,200000,206000\n2,300000,\n").stdout
        again = self.run_csv(given=once)
        self.assertEqual(again.stdout, once)
        self.assertEqual(again.stderr, b"")

    def test_the_saved_houses_are_a_price_list(self):
        houses = self.settings_verb("houses").stdout
        rows = list(csv.DictReader(io.StringIO(self.run_csv(given=houses).stdout.decode())))
        self.assertEqual([row["name"] for row in rows], ["The Alder", "The Birch", "The Cedar"])
        self.assertEqual(rows[0]["StdCase.LoanAmount"], "285000.00")
        self.assertEqual(rows[0]["GMHCase.LoanAmount"], "293000.00")

    def test_json_results_can_be_compared_again(self):
        given = '{"ecIncome":"72000","ecStdHome":"200000","ecGMHHome":"206000","ecStdRate":"6","ecPctDown":"10"}\n'
        once = self.compare("jsonl", given)
        self.assertEqual(self.compare("jsonl", once), once)
        self.assertEqual(json.loads(self.compare("json", once)), json.loads(once))

    def test_data_check_and_messages_have_columns_of_one_line(self):
        rows, _ = self.rows("ecStdHome,ecGMHHome,cboStdMortOption,cboGMHMortOption\n0,206000,FHA,FHA EEM\n")
        self.assertIn("Cost of Standard Home is missing.", rows[0]["dataCheck"])
        self.assertNotIn("\n", rows[0]["dataCheck"] + rows[0]["messages"])
        self.assertNotIn("\r", rows[0]["dataCheck"] + rows[0]["messages"])
        self.assertEqual(list(rows[0])[-3:], ["dataCheck", "messages", "error"])

    def test_columns_are_chosen(self):
        run = self.run_csv("--columns", "StdCase.PITI,lblStdQual,Scenario.PctDown",
                           given="Lot,ecStdHome,ecPctDown\n7,200000,10\n8,abc,10\n", status=1)
        lines = run.stdout.decode().splitlines()
        self.assertEqual(lines[0], "Lot,ecStdHome,ecPctDown,StdCase.PITI,lblStdQual,Scenario.PctDown,error")
        self.assertRegex(lines[1], r"^7,200000,10,\d+\.\d\d,\*NO,0\.1,$")
        self.assertEqual(lines[2], "8,abc,10,,,,Line 3: ecStdHome: You must enter a number here.")
        again = self.run_csv("--columns", "StdCase.PITI,lblStdQual,Scenario.PctDown", given=run.stdout, status=1)
        self.assertEqual(again.stdout.decode().splitlines()[:2], lines[:2])


class Chosen(CliTest):
    def test_only_some_members(self):
        given = '{"ecStdHome":"200000"}\n{"ecStdHome":"300000"}\n'
        whole = [json.loads(line) for line in self.compare("jsonl", given).splitlines()]
        names = "StdCase.LoanAmount,lblStdHome,ecStdHome,dataCheck"
        for jobs in ("1", "4"):
            run = self.run_cli("compare", "--folder", self.folder, "--format", "jsonl", "--jobs", jobs, "--only", names,
                               given=given)
            self.assertEqual([json.loads(line) for line in run.stdout.splitlines()], [
                {"fields": {"ecStdHome": result["fields"]["ecStdHome"]},
                 "labels": {"lblStdHome": result["labels"]["lblStdHome"]},
                 "StdCase": {"LoanAmount": result["StdCase"]["LoanAmount"]}, "dataCheck": result["dataCheck"]}
                for result in whole])

    def test_every_name_of_a_result_is_listed(self):
        listed = self.run_cli("compare", "--list-names").stdout.decode().splitlines()
        names = {line.split("  ")[0] for line in listed}
        result = self.compare_json({})
        wanted = set(result["fields"]) | set(result["labels"]) | {"messages", "dataCheck"}
        for record in ("Scenario", "StdCase", "GMHCase"):
            wanted |= {f"{record}.{key}" for key in result[record]}
        self.assertEqual(names, wanted)

    def test_a_wrong_choice_is_refused(self):
        for words, part in ((["--format", "csv", "--columns", "PITI"], '"PITI"'),
                            (["--format", "json", "--columns", "StdCase.PITI"], "use --only"),
                            (["--only", "StdCase.PITI"], "--only is for")):
            run = self.run_cli("compare", "--folder", self.folder, *words, given="{}", status=2)
            self.assertIn(part, run.stderr.decode())


if __name__ == "__main__":
    unittest.main()
