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


if __name__ == "__main__":
    unittest.main()
