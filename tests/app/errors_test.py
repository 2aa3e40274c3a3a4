"""What ledgrove-cli says when some of its input cannot be used."""
import json
import os
import pty
import subprocess
import unittest

from cli_desk import PROGRAM, CliTest

GOOD = '{"ecStdHome": "200000"}\n'
BAD = '{"ecIncome": "abc"}\n'


class Totals(CliTest):
    def said(self, form, given, *options, status=1):
        return self.run_cli("compare", "--folder", self.folder, "--format", form, *options, given=given,
                            status=status).stderr.decode()

    def test_a_list_ends_with_how_many_were_refused(self):
        lines = GOOD * 2 + BAD + GOOD * 96 + BAD * 2
        for jobs in ("1", "4"):
            self.assertEqual(self.said("jsonl", lines, "--jobs", jobs),
                             "ledgrove-cli: 3 of 101 comparisons were refused; the first is line 3.\n")
        self.assertEqual(self.said("csv", "ecIncome\n5\nabc\n6\n"),
                         "ledgrove-cli: 1 of 3 comparisons was refused; it is line 3.\n")

    def test_without_refusals_nothing_is_said(self):
        self.assertEqual(self.said("jsonl", GOOD * 3, status=0), "")

    def test_quiet_keeps_the_results_and_the_status(self):
        self.assertEqual(self.said("jsonl", GOOD + BAD, "--quiet"), "")
        self.assertEqual(self.said("csv", "ecStdHome,ecstdhome\nabc,1\n", "--quiet"), "")

    def test_several_files_are_named(self):
        first, second = self.folder / "a.jsonl", self.folder / "b.jsonl"
        first.write_text(GOOD)
        second.write_text(GOOD + BAD)
        run = self.run_cli("compare", "--folder", self.folder, "--format", "jsonl", first, second, status=1)
        self.assertEqual(run.stderr.decode(),
                         f'ledgrove-cli: 1 of 3 comparisons was refused; it is line 2 of "{second}".\n')
        error = json.loads(run.stdout.splitlines()[2])["error"]
        self.assertEqual((error["file"], error["line"]), (str(second), 2))

    def test_the_error_of_standard_input_names_no_file(self):
        self.assertNotIn("file", json.loads(self.compare("jsonl", BAD, status=1))["error"])


class Empty(CliTest):
    def test_an_empty_input_is_called_empty_in_every_format(self):
        for form in ("text", "json", "jsonl", "csv"):
            for given in ("", "\n\n"):
                run = self.run_cli("compare", "--folder", self.folder, "--format", form, given=given, status=1)
                said = (run.stdout if form == "json" else run.stderr).decode()
                self.assertIn("is empty", said, form)

    def test_an_empty_file_is_named(self):
        empty = self.folder / "empty.csv"
        empty.write_text("")
        run = self.run_cli("compare", "--folder", self.folder, "--format", "csv", empty, status=1)
        self.assertIn(f'"{empty}" is empty', run.stderr.decode())


class Terminal(CliTest):
    def test_reading_from_a_terminal_is_said_once(self):
        keyboard, terminal = pty.openpty()
        self.addCleanup(os.close, keyboard)
        running = subprocess.Popen([PROGRAM, "compare", "--folder", self.folder], stdin=terminal, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        os.close(terminal)
        os.write(keyboard, b'{"ecStdHome": "200000"}\n\x04')
        out, said = running.communicate(timeout=60)
        self.assertEqual(running.returncode, 0)
        self.assertIn(b"Net Monthly Payment", out)
        self.assertEqual(said.decode(), "ledgrove-cli: Reading the homes to compare from this terminal. End them with Ctrl+D "
                                        "on a new line.\n")


class Words(CliTest):
    def said(self, *words, status=2):
        run = self.run_cli(*words, status=status)
        self.assertEqual(run.stdout, b"") if status else None
        return (run.stderr if status else run.stdout).decode()

    def test_an_unknown_command_is_named_and_the_nearest_offered(self):
        self.assertEqual(self.said("reprot"), 'ledgrove-cli: "reprot" is not a command. Did you mean "report"?\n')
        self.assertIn("The commands are compare, insight, range, diff, report, brief, chart and settings.", self.said("bogus"))
        self.assertIn('"gt" is not a command. Did you mean "get"?', self.said("settings", "--folder", self.folder, "gt"))
        self.assertIn('"setings" is not a command. Did you mean "settings"?', self.said("help", "setings"))
        self.assertIn("Give a command", self.said())
        self.assertIn("Give a command after settings", self.said("settings"))

    def test_a_fault_names_its_option_once_and_the_help_to_read(self):
        for words, sentence in (
                (["report", "--output", "a.pdf", "--paper", "x"], "--paper: The paper must be letter, a4 or legal."),
                (["compare", "--format", "xml"], '--format: "xml" is not a format.'),
                (["chart", "--output", "a.png", "--tab", "x"], '--tab: There is no chart of "x".'),
                (["report"], "--output is required.")):
            said = self.said(*words)
            self.assertTrue(said.startswith("ledgrove-cli: " + sentence), said)
            self.assertTrue(said.endswith(f'"ledgrove-cli {words[0]} --help" explains it.\n'), said)

    def test_help_and_version_everywhere(self):
        for words in ([], ["compare"], ["insight"], ["report"], ["chart"], ["settings"], ["settings", "get"], ["settings", "set"],
                      ["settings", "check"], ["settings", "houses"]):
            shown = self.said(*words, "--help", status=0)
            for part in ("Usage: ledgrove-cli", "Example:", "Exit status:", "1  some input was refused"):
                self.assertIn(part, shown, words)
            self.assertRegex(self.said(*words, "--version", status=0), r"^ledgrove-(cli|report|chart) \d+\.\d+\.\d+\n$")
            self.assertEqual(self.said("help", *words, status=0), shown)
        self.assertIn("--output OUT.pdf REQUIRED", self.said("help", "report", status=0))
        self.assertIn("--paper letter|a4|legal", self.said("help", "report", status=0))

    def test_an_option_given_twice_counts_as_given_last(self):
        self.assertEqual(self.said("settings", "--folder", "/nowhere", "--folder", self.folder, "get", "FEATURE2", status=0),
                         "Larger deck\n")
        self.assertIn('--format: "xml" is not a format', self.said("compare", "--format", "json", "--format", "xml"))
        out = self.run_cli("compare", "--folder", self.folder, "--format", "json", "--only", "lblStdQual", "--only",
                           "messages", given="{}").stdout
        self.assertEqual(json.loads(out), {"messages": []})

    def test_a_number_out_of_range_names_the_range(self):
        for number in ("0", "257", "2x", ""):
            self.assertIn("--jobs: Give a whole number from 1 to 256.", self.said("compare", "--jobs", number))
        self.assertIn("--width: Give a whole number from 200 to 4000.",
                      self.said("chart", "--output", "a.png", "--width", "199"))

    def test_options_of_all_commands_may_come_first(self):
        self.assertEqual(self.said("--folder", self.folder, "settings", "get", "FEATURE2", status=0), "Larger deck\n")
        self.assertIn("--output is required", self.said("--folder", self.folder, "report"))


if __name__ == "__main__":
    unittest.main()
