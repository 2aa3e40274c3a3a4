"""The main window in real use: real keys and clicks under a window manager, read as a screen reader reads it."""
import shutil
import sys
import tempfile
import time
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for
from reading import PRINCIPAL_AND_INTEREST, WHOLE_PAYMENT

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
OPTION_BASE, OPTION_GMH, TERM = ("Mortgage Option, Base Home", "Mortgage Option, GREENMARK Home", "Term, Base Home")
NUMBER, POSITIVE = "You must enter a number here.", "You must enter a positive number here."
PCT_DOWN = "% Down, Down Payment"
PRICE_GMH = "Sticker Price, GREENMARK Home"


class MainWindow(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)

    def start(self):
        program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(program.close)
        program.find_root()
        program.find("frame", "Ledgrove")
        program.wait_focus("Annual Income")
        return program

    def enter(self, program, name, text, key="Return"):
        """Types into a field as a user does: click it, type over the selection, commit."""
        program.click(program.field(name))
        program.wait_focus(name)
        self.desktop.type(text)
        self.desktop.key(key)

    def pick(self, program, description, item):
        """Opens a pick list with the mouse and clicks an item other than the current one."""
        box = program.find("combo box", description=description)
        program.click(box)
        time.sleep(0.5)  # the list ignores a release within the double-click time
        entry = wait_for(lambda: next((n for n in program.all(box) if n.get_role_name() == "list item"
                                       and n.get_name() == item and program.showing(n)), None), f"item {item}")
        program.click(entry)

    def picked(self, program, description):
        return program.find("combo box", description=description).get_name()

    def tab(self, program, name):
        program.click(program.find("page tab", name))

    def type_sample(self, program):
        self.enter(program, "Annual Income", "72000")
        self.enter(program, "Monthly Debt", "350")
        self.enter(program, PCT_DOWN, "10")
        for name, text in ((("Sticker Price, Base Home"), "200000"), (PRICE_GMH, "206000"),
                           ("Annual Utility Cost, Base Home", "2400"),
                           ("Annual Utility Cost, GREENMARK Home", "1700")):
            self.enter(program, name, text)
        self.pick(program, OPTION_BASE, "FHA")
        wait_for(lambda: self.picked(program, OPTION_GMH) == "FHA", "the labelled home on FHA, its first item")
        self.pick(program, OPTION_GMH, "FHA EEM")
        wait_for(lambda: self.picked(program, OPTION_GMH) == "FHA EEM", "FHA EEM")

    def test_all_tabs_show_the_figures_of_two_typed_homes(self):
        program = self.start()
        self.type_sample(program)
        program.wait_text(PRICE_GMH, "$206,000")

        # 180,000 and 186,000 (the loan finances the whole upgrade) at 6.5 % over 30 years: 1137.72 and 1175.65; taxes and
        # insurance of 1.55 % a year: 258.33 and 266.08; PMI of 0.46 % a year: 69.00 and 71.30
        self.tab(program, "Cash Flow")
        program.wait_result("Additional Mortgage, Monthly", "-$48")  # 1465.06 - 1513.03
        program.wait_result("Utility Savings, Monthly", "$58")  # 700 / 12
        program.wait_result("Utility Savings, Yearly", "$700")
        self.tab(program, "More Home")
        program.wait_result("House Value, Base Home", "$200,000")
        program.wait_result("Additional features, first", "Finished basement")
        self.tab(program, "Affordability")
        program.wait_result("Mortgage Amount, GREENMARK Home", "$186,000")
        program.wait_result(f"Mortgage Payment, Base Home. {PRINCIPAL_AND_INTEREST}", "$1,138")
        program.wait_result("Buyer Qualifies?, GREENMARK Home", "YES")
        self.tab(program, "Summary")
        program.wait_result(f"Mortgage Payment, Base Home. {WHOLE_PAYMENT}", "$1,465")
        program.wait_result(f"Mortgage Payment, GREENMARK Home. {WHOLE_PAYMENT}", "$1,513")
        program.wait_result("PV of Savings, GREENMARK Home", "$9,229")
        self.tab(program, "Welcome")
        program.find("label", "Ledgrove Instructions")

    def test_unchanged_figures_stay_silent(self):
        program = self.start()
        self.type_sample(program)
        for tab in ("Cash Flow", "More Home", "Affordability", "Summary"):
            self.tab(program, tab)
            self.enter_income(program, "72000")
            heard = program.announced(lambda: self.enter_income(program, "72000"))
            self.assertEqual(heard, [], tab)
        self.assertNotEqual(program.announced(lambda: self.enter_income(program, "60000")), [])

    def enter_income(self, program, text):
        program.field("Annual Income").grab_focus()
        program.wait_focus("Annual Income")
        self.desktop.key("ctrl+a")
        self.desktop.type(text)
        self.desktop.key("Return")
        program.wait_focus("Monthly Debt")

    def test_enter_commits_and_moves_on_tab_and_arrows_move(self):
        program = self.start()
        self.desktop.type("72000")
        self.desktop.key("Return")
        program.wait_text("Annual Income", "$72,000")
        program.wait_focus("Monthly Debt")
        self.desktop.type("350")
        self.desktop.key("Tab")
        program.wait_text("Monthly Debt", "$350")
        self.desktop.key("Up")
        program.wait_focus("Monthly Debt")
        self.assertEqual(program.selection("Monthly Debt"), "$350")
        self.desktop.key("Up")
        program.wait_focus("Annual Income")
        self.desktop.key("Down")
        program.wait_focus("Monthly Debt")
        # The arrow keys skip a pick list without changing it.
        self.desktop.key("alt+r")
        program.wait_focus(TERM)
        self.desktop.key("Down")
        wait_for(lambda: program.focused().get_description() != TERM, "the focus moved on")
        self.assertEqual(self.picked(program, TERM), "30 years")

    def test_a_refused_text_keeps_the_focus_and_is_reported_once(self):
        program = self.start()
        self.desktop.type("abc")
        self.desktop.key("Tab")
        self.assertEqual(program.answer(), ("Ledgrove", NUMBER))
        program.wait_focus("Annual Income")
        self.assertEqual(program.selection("Annual Income"), "abc")
        self.desktop.type("-5")
        self.desktop.key("Return")
        self.assertEqual(program.answer(), ("Ledgrove", POSITIVE))
        # A click on a button leaves the field: one message, and the button does nothing.
        program.click(program.find("push button", "Disclaimer"))
        self.assertEqual(program.answer(), ("Ledgrove", POSITIVE))
        program.wait_focus("Annual Income")
        time.sleep(0.3)
        program.no_box()
        # A click on a tab leaves the field: the tab does not change.
        self.tab(program, "Summary")
        self.assertEqual(program.answer(), ("Ledgrove", POSITIVE))
        program.find("label", "Ledgrove Instructions")
        self.desktop.type("5")
        self.desktop.key("Return")
        program.wait_text("Annual Income", "$5")

    def test_leaving_with_the_mouse_commits(self):
        program = self.start()
        self.desktop.type("72000")
        program.click(program.field("Monthly Debt"))
        program.wait_text("Annual Income", "$72,000")
        self.desktop.key("Tab")
        program.wait_text("Monthly Debt", "$0")

    def test_a_point_in_the_empty_percent_field_becomes_4846(self):
        program = self.start()
        program.click(program.field(PCT_DOWN))
        program.wait_focus(PCT_DOWN)
        self.desktop.type(".")
        program.wait_text(PCT_DOWN, "4846")

    def test_a_dollar_amount_as_percent_down_becomes_a_percentage(self):
        program = self.start()
        self.enter(program, "Sticker Price, Base Home", "240000")
        self.enter(program, PCT_DOWN, "48000")
        program.wait_text(PCT_DOWN, "20.00%")  # 48,000 of 240,000

    def test_pick_lists_refill_and_the_fannie_mae_message_always_appears(self):
        program = self.start()
        for _ in range(2):
            self.pick(program, OPTION_GMH, "Fannie Mae EEM")
            title, text = program.answer()
            self.assertEqual(title, "Ledgrove")
            self.assertTrue(text.startswith("Fannie Mae offers two types"))
            self.assertTrue(text.endswith("1-800-732-6643 for more details."))
        self.pick(program, OPTION_BASE, "VA")
        wait_for(lambda: self.picked(program, OPTION_GMH) == "VA", "the labelled home on VA")
        self.pick(program, TERM, "40 years")
        wait_for(lambda: self.picked(program, TERM) == "40 years", "40 years")
        program.wait_text("Term, GREENMARK Home", "40 years")

    def test_the_eem_notice_appears_once_per_edit(self):
        program = self.start()
        self.type_sample(program)
        self.enter(program, PRICE_GMH, "260000")
        title, text = program.answer()
        self.assertEqual(title, "Ledgrove")
        self.assertTrue(text.startswith("The homebuyer may not qualify for the EEM"))
        program.wait_text(PRICE_GMH, "$260,000")
        self.enter(program, "Annual Income", "80000")
        program.wait_text("Annual Income", "$80,000")
        time.sleep(0.3)
        program.no_box()

    def test_a_result_tab_runs_the_data_check_and_welcome_does_not(self):
        program = self.start()
        self.tab(program, "Cash Flow")
        title, text = program.answer()
        self.assertEqual(title, "Ledgrove Data Check")
        self.assertTrue(text.startswith("Attention!\n\nCost of Standard Home is missing.\n"), text)
        self.tab(program, "Summary")
        self.assertEqual(program.answer()[0], "Ledgrove Data Check")
        self.tab(program, "Welcome")
        program.find("label", "Ledgrove Instructions")
        program.no_box()

    def test_the_disclaimer(self):
        program = self.start()
        program.click(program.find("push button", "Disclaimer"))
        title, text = program.answer()
        self.assertEqual(title, "GREENMARK Ledgrove Disclaimer")
        self.assertTrue(text.startswith("Because actual home energy costs vary"))
        self.assertTrue(text.endswith("certified home energy rating or equivalent."))

    def test_help_without_its_file_names_the_missing_file(self):
        program = self.start()
        self.desktop.key("F1")
        self.assertIn("LEDGROVE.HLP", program.answer()[1])
        program.click(program.find("push button", "Help"))
        self.assertIn("LEDGROVE.HLP", program.answer()[1])

    def test_fixed_down_payment_and_taxes_by_keyboard(self):
        program = self.start()
        self.type_sample(program)
        self.enter(program, "or Fixed $, Down Payment", "30000")
        program.find("radio button", "or Fixed $").grab_focus()
        self.desktop.key("space")
        self.tab(program, "Summary")
        program.wait_result("Down Payment, Base Home", "$30,000")
        program.find("check box", "Include Taxes in").grab_focus()
        self.desktop.key("space")
        wait_for(lambda: program.find("label", description="Tax Savings, GREENMARK Home", missing_ok=True) is None,
                 "the hidden tax line")

    def test_closing_the_window_ends_the_program(self):
        program = self.start()
        self.desktop.key("alt+F4")
        wait_for(lambda: program.process.poll() is not None, "the end of the program")
        self.assertEqual(program.process.returncode, 0)

    def test_a_missing_settings_file_stops_the_start_with_its_full_path(self):
        (self.folder / "Ledgrove.ini").unlink()
        program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(program.close)
        program.find_root()
        _, text = program.answer()
        self.assertIn(str(self.folder / "Ledgrove.ini"), text)
        wait_for(lambda: program.process.poll() is not None, "the end of the program")
        self.assertNotEqual(program.process.returncode, 0)
        self.assertEqual(list(self.folder.iterdir()), [])


if __name__ == "__main__":
    unittest.main()
