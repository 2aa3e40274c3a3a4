"""`ledgrove-cli settings`: reading, changing and checking Ledgrove.ini."""
import csv
import io
import unittest

from cli_desk import CliTest


class Settings(CliTest):
    def get(self, key):
        return self.settings_verb("get", key).stdout.decode().removesuffix("\n")

    def test_get_prints_the_value_that_the_program_reads(self):
        self.settings.write_bytes(b"BUILDERNAME=Old\r\nBUILDERNAME=  New \r\nFEATURE1=  both ends \r\n"
                                  b"PVSAVINGS_RATE=7.5%\r\nTAXCAT=100,10\r\nTAXCAT=-1,20\r\nOWN=x=y\r\n")
        self.assertEqual(self.get("BUILDERNAME"), "New")
        self.assertEqual(self.get("FEATURE1"), "  both ends ")
        self.assertEqual(self.get("FEATURE2"), " ")
        self.assertEqual(self.get("LOGOFILE"), "")
        self.assertEqual(self.get("TAXCAT"), "100,10\n-1,20")
        self.assertEqual(self.get("PVSAVINGS_RATE"), "7.5")
        self.assertEqual(self.get("OWN"), "x=y")
        self.assertIn(b"NOPE", self.settings_verb("get", "NOPE", status=1).stderr)

    def test_a_missing_builder_name_has_a_default(self):
        self.settings.write_bytes(b"")
        self.assertEqual(self.get("BUILDERNAME"), "Partner Name")

    def test_set_replaces_every_line_of_the_key_and_keeps_all_others(self):
        self.settings.write_bytes(b"MINE\x81\x00=1\r\nBUILDERNAME=a\r\nlast\r\nBUILDERNAME=b")
        self.settings_verb("set", "BUILDERNAME", "Café")
        self.assertEqual(self.settings.read_bytes(),
                         b"MINE\x81\x00=1\r\nBUILDERNAME=Caf\xe9\r\nlast\r\nBUILDERNAME=Caf\xe9\r\n")
        self.assertEqual([p.name for p in self.folder.iterdir()], ["Ledgrove.ini"])

    def test_set_appends_a_key_that_has_no_line(self):
        self.settings.write_bytes(b"A=1")
        self.settings_verb("set", "--force", "NEWKEY", "value")
        self.assertEqual(self.settings.read_bytes(), b"A=1\r\nNEWKEY=value\r\n")

    def test_a_value_may_begin_with_a_dash(self):
        for value in ("- two blanks", "-x", "--wide porch", "-5"):
            self.settings_verb("set", "FEATURE1", value)
            self.assertEqual(self.get("FEATURE1"), value)
        self.run_cli("settings", "set", "FEATURE1", "-y", "--folder", self.folder)
        self.assertEqual(self.get("FEATURE1"), "-y")
        self.run_cli("settings", "set", "--folder", self.folder, "FEATURE1", "-z")
        self.assertEqual(self.get("FEATURE1"), "-z")
        self.settings_verb("set", "--", "FEATURE1", "-v")
        self.assertEqual(self.get("FEATURE1"), "-v")
        self.settings_verb("set", "FEATURE1", status=2)
        self.settings_verb("set", "FEATURE1", "--folder", self.folder, status=2)
        self.assertIn(b"KEY", self.settings_verb("set", "--help").stdout)

    def test_set_refuses_what_would_break_the_file(self):
        before = self.settings.read_bytes()
        for key, value, word in (("", "x", "empty"), ("BUILDERNAME", "a\nb", "line break"),
                                 ("BUILDERNAME", "a\rb", "line break"), ("BUILDERNAME", "日", "日"),
                                 ("TAXCAT", "1,2", "list"), ("FEATURE", "x", "FEATURE1")):
            sentence = self.settings_verb("set", key, value, status=1).stderr.decode()
            self.assertIn(word, sentence)
        self.assertEqual(self.settings.read_bytes(), before)

    def test_the_folder_may_follow_the_verb(self):
        run = self.run_cli("settings", "get", "FEATURE2", "--folder", self.folder)
        self.assertEqual(run.stdout, b"Larger deck\n")

    def test_houses_lists_the_saved_scenarios(self):
        rows = list(csv.DictReader(io.StringIO(self.settings_verb("houses").stdout.decode())))
        saved = [line for line in self.settings.read_text("cp1252").splitlines() if line.startswith("HOMELIST=")]
        self.assertEqual([",".join(row.values()) for row in rows], [line[len("HOMELIST="):] for line in saved])
        self.assertEqual(len(rows), 3)

    def test_set_refuses_what_the_program_cannot_read(self):
        before = self.settings.read_bytes()
        for key, value, word in (("ASSUMPTION1", "abc", "percentage"), ("ASSUMPTION1", "", "percentage"),
                                 ("ASSUMPTION1", "1e9", "percentage"), ("ASSUMPTION1", "0,9", "percentage"),
                                 ("PMI_MULT1", "66", "fraction"), ("YEARS_IN_HOME", "101", "whole number"),
                                 ("PVSAVINGS_TERM", "-1", "years"), ("PVSAVINGS_FLAG", "yes", "TRUE or FALSE"),
                                 ("LOGOOPTION", "3", "generic house"), ("NEWKEY", "value", "--force")):
            sentence = self.settings_verb("set", key, value, status=1).stderr.decode()
            self.assertIn(word, sentence)
            self.assertIn(key, sentence)
        self.assertEqual(self.settings.read_bytes(), before)

    def test_a_percent_sign_is_understood(self):
        self.settings_verb("set", "ASSUMPTION1", "0.9%")
        self.assertEqual(self.get("ASSUMPTION1"), "0.9")

    def test_get_refuses_the_beginning_of_a_key(self):
        self.assertIn(b"ASSUMPTION1", self.settings_verb("get", "ASSUMPTION", status=1).stderr)


class Check(CliTest):
    def spoil(self, good, bad):
        self.settings.write_bytes(self.settings.read_bytes().replace(good, bad))

    def test_every_line_of_the_shipped_file_can_be_used(self):
        self.assertEqual(self.settings_verb("check").stdout, b"Every line of Ledgrove.ini can be used.\n")

    def test_each_unusable_line_is_named_with_what_is_in_force(self):
        self.spoil(b"PMI_MULT3=0.0046", b"PMI_MULT3=x")
        self.spoil(b"LOGOOPTION=0", b"LOGOOPTION=9")
        lines = self.settings_verb("check", status=1).stdout.decode().splitlines()
        self.assertEqual(lines, [
            'Line 3 of Ledgrove.ini, "LOGOOPTION=9", cannot be used: it is not 0, 1 or 2. 0 (no logo) is in force instead.',
            'Line 21 of Ledgrove.ini, "PMI_MULT3=x", cannot be used: it is not a number. 0 is in force instead.',
            'Line 22 of Ledgrove.ini, "PMI_MULT4=0.0023", cannot be used: it is not read, because reading ends at line 21. '
            '0 is in force instead.'])

    def test_compare_says_the_same_once_and_keeps_figures_and_status(self):
        self.spoil(b"PVSAVINGS_FLAG=FALSE", b"PVSAVINGS_FLAG=no")
        given = b"{}\n{}\n"
        run = self.run_cli("compare", "--folder", self.folder, "--format", "jsonl", given=given)
        self.assertEqual(len(run.stdout.splitlines()), 2)
        self.assertEqual(run.stderr.decode(), 'ledgrove-cli: Line 17 of Ledgrove.ini, "PVSAVINGS_FLAG=no", cannot be used: '
                                              "it is neither TRUE nor FALSE. FALSE is in force instead.\n")

    def test_without_the_file_nothing_is_checked(self):
        self.settings.unlink()
        self.assertIn(b"is missing", self.settings_verb("check", status=2).stderr)


if __name__ == "__main__":
    unittest.main()
