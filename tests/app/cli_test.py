"""The contract of ledgrove-cli: arguments and input in, output and exit status out."""
import csv
import io
import json
import os
import shutil
import subprocess
import tempfile
import unittest

from cli_desk import PROGRAM, SOURCE, CliTest

SAMPLE = {
    "ecIncome": "72000", "ecMonthlyDebt": "350", "ecPctDown": "10", "ecStdHome": "200000", "ecGMHHome": "206000",
    "ecStdUtil": "2400", "ecGMHUtil": "1700", "cboStdMortOption": "FHA", "cboGMHMortOption": "FHA EEM",
}


class CompareJson(CliTest):
    def test_an_empty_object_is_the_start_up_state(self):
        result = self.compare_json({})
        self.assertEqual(result["fields"], {
            "ecIncome": "", "ecMonthlyDebt": "", "ecPctDown": "", "ecFixedDown": "", "ecStdHome": "", "ecGMHHome": "",
            "ecStdUtil": "", "ecGMHUtil": "", "ecStdRate": "6.5", "ecGMHRate": "6.500%", "ecStdStr": "",
            "ecGMHStr": "", "cboMortTerm": "30 years", "cboStdMortOption": "Conventional",
            "cboGMHMortOption": "Conventional", "optDownPayment": 0, "chkDoTax0": True})
        self.assertEqual(result["messages"], [])

    def test_a_present_empty_text_becomes_zero(self):
        fields = self.compare_json({"ecIncome": "", "ecStdRate": ""})["fields"]
        self.assertEqual((fields["ecIncome"], fields["ecStdRate"]), ("$0", "0.000%"))

    def test_a_number_is_read_as_its_text(self):
        self.assertEqual(self.compare_json({"ecStdRate": 6.875})["fields"]["ecStdRate"], "6.875%")
        self.assertEqual(self.refusal_of_raw('{"ecIncome": 1e3}')["value"], "1e3")

    def refusal_of_raw(self, text):
        return json.loads(self.compare("json", text, status=1))["error"]

    def test_the_sample_shows_what_the_arithmetic_gives(self):
        labels = self.compare_json(SAMPLE)["labels"]
        # 180,000 at 6.5 % over 360 months: 180000 x (0.065/12) / (1 - (1 + 0.065/12)^-360) = 1137.72
        self.assertEqual(labels["lblStdMortPayment"]["text"], "$1,138")
        # + 0.90 % tax 150 + 0.65 % insurance 108.33 + PMI 0.46 % of the loan 69 = 1465.06
        self.assertEqual(labels["lblStdPITI"]["text"], "$1,465")
        # the savings of 58.33 a month are worth 58.33 x (1 - (1 + 0.065/12)^-360) / (0.065/12) = 9229 over 30 years
        self.assertEqual(labels["lblPVofSavings"]["text"], "$9,229")
        # more than the upgrade's 6,000, so the down payment is a share of the base price
        self.assertEqual(labels["lblgmhDown"]["text"], "$20,000")

    def test_the_result_has_every_part(self):
        result = self.compare_json(SAMPLE)
        self.assertEqual(list(result), ["fields", "labels", "Scenario", "StdCase", "GMHCase", "messages", "dataCheck"])
        self.assertEqual(len(result["StdCase"]), 21)
        self.assertEqual(len(result["GMHCase"]), 21)
        for label in result["labels"].values():
            self.assertEqual(list(label), ["text", "color", "visible"])
        self.assertIs(result["Scenario"]["DownAsPercent"], True)
        self.assertEqual(result["Scenario"]["YearsInHome"], 7)

    def test_messages_come_in_order_of_appearance(self):
        result = self.compare_json({**SAMPLE, "cboStdMortOption": "Conventional", "cboGMHMortOption": "Fannie Mae EEM",
                                    "ecGMHHome": "260000"})
        texts = [message["text"] for message in result["messages"]]
        self.assertEqual(len(texts), 2)
        self.assertTrue(texts[0].startswith("Fannie Mae offers two types"))
        self.assertTrue(texts[1].startswith("The homebuyer may not qualify for the EEM"))
        self.assertEqual(result["messages"][1]["icon"], "none")
        self.assertEqual(result["messages"][1]["buttons"], "ok")

    def test_the_data_check_is_its_full_text_or_nothing(self):
        check = self.compare_json({})["dataCheck"]
        self.assertTrue(check.startswith("Attention!\r\rCost of Standard Home is missing.\r"))
        self.assertTrue(check.endswith("Annual Income is missing.\r\r"))
        self.assertEqual(self.compare_json({**SAMPLE, "ecStdRate": "6.5"})["dataCheck"], "")

    def test_a_dollar_amount_as_percent_down_is_converted_after_all_fields(self):
        fields = self.compare_json({"ecPctDown": "48000", "ecStdHome": "240000"})["fields"]
        self.assertEqual(fields["ecPctDown"], "20.00%")

    def test_unchecked_taxes_hide_the_summary_line(self):
        labels = self.compare_json({**SAMPLE, "chkDoTax0": False})["labels"]
        self.assertFalse(labels["lbltaxsavmo2"]["visible"])
        self.assertEqual(labels["lblTaxSavMo"], {"text": "$0", "color": "#000000", "visible": True})

    def test_feature_texts_of_the_settings_file_reach_the_labels_as_utf8(self):
        self.settings.write_bytes(self.settings.read_bytes().replace(b"Finished basement", b"Caf\xe9 terrace"))
        self.assertEqual(self.compare_json(SAMPLE)["labels"]["lblfeature1"]["text"], "Café terrace")


class CompareRefusals(CliTest):
    def test_field_texts_are_refused_with_the_fields_own_message(self):
        self.assertEqual(self.refusal({"ecIncome": "abc"}), {
            "line": 1, "control": "ecIncome", "value": "abc", "message": "You must enter a number here."})
        self.assertEqual(self.refusal({"ecGMHStr": "-5%"})["message"], "You must enter a positive number here.")
        self.assertEqual(self.refusal({"ecIncome": True})["message"], "You must enter a number here.")

    def test_the_first_faulty_field_in_entry_order_is_named(self):
        self.assertEqual(self.refusal({"cboMortTerm": "x", "ecGMHStr": "b", "ecMonthlyDebt": "a"})["control"],
                         "ecMonthlyDebt")

    def test_unknown_items_are_refused_with_the_choices(self):
        refusal = self.refusal({"cboMortTerm": "12 years"})
        self.assertEqual((refusal["control"], refusal["value"]), ("cboMortTerm", "12 years"))
        self.assertIn('"10 years", "15 years"', refusal["message"])
        # a labelled option must go with the base option
        self.assertIn('"Conventional", "Fannie Mae EEM"', self.refusal({"cboGMHMortOption": "VA EEM"})["message"])
        self.assertEqual(self.refusal({"cboStdMortOption": "fha"})["value"], "fha")

    def test_unknown_names_and_values_of_the_wrong_type(self):
        self.assertEqual(self.refusal({"ecIncom": "5"})["control"], "ecIncom")
        for value in (None, [1], {"a": 1}):
            self.assertEqual(self.refusal({"ecIncome": value})["control"], "ecIncome")
        self.assertEqual(self.refusal({"optDownPayment": 2})["control"], "optDownPayment")
        self.assertEqual(self.refusal({"chkDoTax0": "perhaps"})["control"], "chkDoTax0")

    def test_malformed_json_names_its_line(self):
        self.assertEqual(json.loads(self.compare("json", '{\n"ecIncome": 5,\n,}', status=1))["error"]["line"], 3)
        for text in ("", "5", "[1]", '"text"', "{", '{"ecIncome": "\xff', "\0"):
            refused = json.loads(self.compare("json", text.encode("latin-1"), status=1))
            self.assertIn("Write a JSON object", refused["error"]["message"], text)

    def test_an_incomplete_character_is_malformed(self):
        for half in (r"\uDFF5", r"\uD800", r"\uD800x", r"\uD800\uD800"):
            for text in (f'{{"ecStdHome": "{half}"}}', f'{{"{half}": "1"}}'):
                refused = json.loads(self.compare("json", text, status=1))
                self.assertIn("This is not valid JSON", refused["error"]["message"], text)
        whole = json.loads(self.compare("json", r'{"ecStdHome": "\uD83C\uDFE0"}', status=1))
        self.assertEqual(whole["error"]["value"], "\U0001F3E0")

    def test_deep_nesting_is_refused(self):
        refused = json.loads(self.compare("json", '{"ecIncome":' + "[" * 200000 + "]" * 200000 + "}", status=1))
        self.assertEqual(refused["error"]["control"], "ecIncome")


class CompareLines(CliTest):
    def test_the_run_continues_after_a_refusal_and_keeps_order_and_line_numbers(self):
        lines = [json.dumps({"ecIncome": "100"}), "nonsense", "", json.dumps({"ecIncome": "x"}),
                 json.dumps({"ecIncome": "300"})]
        results = [json.loads(line) for line in self.compare("jsonl", "\n".join(lines), status=1).splitlines()]
        self.assertEqual([r["fields"]["ecIncome"] if "fields" in r else r["error"]["line"] for r in results],
                         ["$100", 2, 4, "$300"])

    def test_every_line_starts_from_the_start_up_state(self):
        first, second = self.compare("jsonl", json.dumps(SAMPLE) + "\r\n{}\r\n").splitlines()
        self.assertNotEqual(first, second)
        self.assertEqual(second, self.compare("jsonl", "{}").splitlines()[0])
        self.assertEqual(json.loads(second)["Scenario"]["EEMAllowance"], 0)

    def test_a_byte_order_mark_is_ignored(self):
        self.compare("jsonl", b"\xef\xbb\xbf{}\n")

    def test_a_line_that_is_too_long_is_refused_and_the_next_one_is_read(self):
        given = b'{"ecIncome":"' + b"9" * 3_000_000 + b'"}\n{}\n' + b"x" * 1_500_000
        results = [json.loads(line) for line in self.compare("jsonl", given, status=1).splitlines()]
        self.assertEqual([r.get("error", {}).get("line") for r in results], [1, None, 3])
        self.assertIn("1 MiB", results[0]["error"]["message"])

    def test_files_are_read_in_order_and_each_counts_its_own_lines(self):
        first, second = self.folder / "a", self.folder / "b"
        first.write_text('{"ecIncome":"1"}\n')
        second.write_text('\nbad\n')
        run = self.run_cli("compare", "--folder", self.folder, "--format", "jsonl", first, "-", second,
                           given='{"ecIncome":"2"}\n', status=1)
        results = [json.loads(line) for line in run.stdout.splitlines()]
        self.assertEqual([r["fields"]["ecIncome"] for r in results[:2]], ["$1", "$2"])
        self.assertEqual(results[2]["error"]["line"], 2)

    def test_a_waiting_reader_gets_each_result_before_the_next_line_is_sent(self):
        with subprocess.Popen([PROGRAM, "compare", "--folder", self.folder, "--format", "jsonl"],
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE) as running:
            for income in ("$1", "$2"):
                running.stdin.write(json.dumps({"ecIncome": income}).encode() + b"\n")
                running.stdin.flush()
                self.assertEqual(json.loads(running.stdout.readline())["fields"]["ecIncome"], income)
            running.stdin.close()
            self.assertEqual(running.wait(10), 0)

    @unittest.skipIf("ASAN_OPTIONS" in os.environ, "the address sanitizer keeps freed memory")
    def test_memory_does_not_grow_with_the_input(self):
        line = json.dumps(SAMPLE).encode() + b"\n"

        def peak(count):
            with tempfile.TemporaryFile() as given:
                given.write(line * count)
                given.seek(0)
                running = subprocess.Popen([PROGRAM, "compare", "--folder", self.folder, "--format", "jsonl"],
                                           stdin=given, stdout=subprocess.DEVNULL)
                _, status, usage = os.wait4(running.pid, 0)
                running.returncode = os.waitstatus_to_exitcode(status)
                self.assertEqual(running.returncode, 0)
                return usage.ru_maxrss

        self.assertLessEqual(peak(40000) - peak(8000), 4096)  # KiB


class CompareHouse(CliTest):
    def with_house(self, name, inputs, status=0):
        return self.run_cli("compare", "--folder", self.folder, "--format", "json", "--house", name,
                            given=json.dumps(inputs), status=status)

    def test_a_saved_house_fills_the_four_fields(self):
        self.settings.write_bytes(self.settings.read_bytes() + "HOMELIST=Café 7,150000,1800,157500,900\r\n".encode("cp1252"))
        fields = json.loads(self.with_house("Café 7", {"ecGMHUtil": "850"}).stdout)["fields"]
        self.assertEqual([fields[name] for name in ("ecStdHome", "ecStdUtil", "ecGMHHome", "ecGMHUtil")],
                         ["$150,000", "$1,800", "$157,500", "$850"])

    def test_an_unknown_house_is_named(self):
        sentence = self.with_house("Lot 8", {}, status=2).stderr.decode()
        self.assertIn('"Lot 8"', sentence)
        self.assertIn("settings houses", sentence)


class CompareText(CliTest):
    def test_the_table_shows_the_figures_that_have_no_label(self):
        text = self.compare("text", json.dumps(SAMPLE)).decode()
        # MaxHome: the base home's largest loan and its down payment; Extra Cash Today and Price Difference
        self.assertRegex(text, r"Maximum Home +\$\d")
        self.assertRegex(text, r"Price Difference +\$6,000\n")
        self.assertRegex(text, r"Extra Cash Today +\$0\n")
        self.assertIn("GREENMARK Home", text)

    def test_text_is_the_default_format(self):
        run = self.run_cli("compare", "--folder", self.folder, given=json.dumps(SAMPLE))
        self.assertEqual(run.stdout, self.compare("text", json.dumps(SAMPLE)))

    def test_a_refusal_is_a_sentence(self):
        run = self.run_cli("compare", "--folder", self.folder, given='{"ecIncome": "abc"}', status=1)
        self.assertEqual(run.stdout, b"")
        self.assertEqual(run.stderr, b'ledgrove-cli: You must enter a number here. (line 1, ecIncome "abc")\n')


class UnusableCalls(CliTest):
    def sentence(self, *arguments):
        run = self.run_cli(*arguments, status=2)
        self.assertEqual(run.stdout, b"")
        return run.stderr.decode()

    def test_a_missing_settings_file_is_named_with_the_remedy(self):
        self.settings.unlink()
        for verb in (["compare"], ["settings", "get", "BUILDERNAME"], ["settings", "set", "BUILDERNAME", "x"],
                     ["settings", "houses"]):
            sentence = self.sentence(verb[0], "--folder", self.folder, *verb[1:])
            self.assertIn(str(self.settings), sentence)
            self.assertIn("Copy", sentence)
        self.assertEqual(list(self.folder.iterdir()), [])

    def test_no_settings_file_is_created_after_an_interrupted_save(self):
        self.settings.rename(self.folder / "Pennaro2.INI")
        for verb in (["compare"], ["settings", "get", "FEATURE1"], ["settings", "set", "FEATURE1", "x"]):
            self.assertIn("Pennaro2.INI", self.sentence(verb[0], "--folder", self.folder, *verb[1:]))
        self.assertEqual([p.name for p in self.folder.iterdir()], ["Pennaro2.INI"])

    def test_a_folder_in_place_of_the_settings_file(self):
        self.settings.unlink()
        self.settings.mkdir()
        self.assertIn(str(self.settings), self.sentence("compare", "--folder", self.folder))

    def test_a_loan_type_that_does_not_convert_names_its_line(self):
        lines = self.settings.read_bytes().split(b"\r\n")
        number = next(n for n, line in enumerate(lines, 1) if line.startswith(b"LOANTYPE=4"))
        lines[number - 1] = b"LOANTYPE=4,FHA,,abc,0.43,,,,FALSE"
        self.settings.write_bytes(b"\r\n".join(lines))
        self.assertIn(f"ine {number}", self.sentence("compare", "--folder", self.folder))

    def test_unknown_arguments_and_formats(self):
        self.assertIn("--format", self.sentence("compare", "--folder", self.folder, "--format", "xml"))
        for arguments in ([], ["bogus"], ["settings"], ["settings", "get"], ["compare", "--nope"]):
            self.assertNotEqual(self.sentence(*arguments), "")

    def test_an_input_file_that_cannot_be_read(self):
        missing = self.folder / "none.json"
        self.assertIn(str(missing), self.sentence("compare", "--folder", self.folder, missing))
        self.assertIn(str(self.folder), self.sentence("compare", "--folder", self.folder, self.folder))

    def test_output_that_cannot_be_written_is_reported(self):
        with open("/dev/full", "wb") as full:
            run = subprocess.run([PROGRAM, "compare", "--folder", self.folder, "--format", "jsonl"], input=b"{}",
                                 stdout=full, stderr=subprocess.PIPE, timeout=60)
        self.assertEqual(run.returncode, 2)
        self.assertIn(b"could not be written", run.stderr)
        for verb in (["get", "FEATURE1"], ["houses"]):
            with open("/dev/full", "wb") as full:
                run = subprocess.run([PROGRAM, "settings", "--folder", self.folder, *verb], stdout=full,
                                     stderr=subprocess.PIPE, timeout=60)
            self.assertEqual(run.returncode, 2)
            self.assertIn(b"could not be written", run.stderr)

    def test_help_and_version(self):
        self.assertIn(b"compare", self.run_cli("--help").stdout)
        self.assertRegex(self.run_cli("--version").stdout, rb"^ledgrove-cli \d+\.\d+")

    def test_the_default_folder_is_the_programs_own(self):
        copy = self.folder / "ledgrove-cli"
        shutil.copy(PROGRAM, copy)
        run = subprocess.run([copy, "settings", "get", "FEATURE2"], capture_output=True, cwd="/", timeout=60)
        self.assertEqual(run.stdout, b"Larger deck\n")


class AnyBytes(CliTest):
    def test_random_bytes_are_refused_in_every_format_without_a_crash(self):
        data = bytes((i * 7919 + i // 251 * 31) % 256 for i in range(20000))
        for form in ("text", "json", "jsonl", "csv"):
            run = subprocess.run([PROGRAM, "compare", "--folder", self.folder, "--format", form], input=data,
                                 capture_output=True, timeout=60)
            self.assertEqual(run.returncode, 1, form)


class NoToolkit(unittest.TestCase):
    def test_the_program_links_no_window_toolkit(self):
        libraries = subprocess.run(["ldd", PROGRAM], capture_output=True, check=True).stdout
        self.assertNotIn(b"Qt", libraries)


if __name__ == "__main__":
    unittest.main()
