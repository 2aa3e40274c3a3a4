"""One comparison entered from an empty window by the mouse, by keys, and by keys and a screen reader's words alone: each way
gives the figures of the command line. Then the guide's first comparison, to the letter, by keyboard."""
import json
import re
import shutil
import sys
import tempfile
import time
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for
from reading import TABS, compare, go_to, wait_shown

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
FIELDS = {"Annual Income": "72000", "Monthly Debt": "350", "% Down, Down Payment": "10",
          "Sticker Price, Base Home": "200000", "Sticker Price, GREENMARK Home": "206000",
          "Annual Utility Cost, Base Home": "2400", "Annual Utility Cost, GREENMARK Home": "1700",
          "Interest Rate, Base Home": "6.25", "Interest Rate, GREENMARK Home": "6"}
INPUTS = {"ecIncome": "72000", "ecMonthlyDebt": "350", "ecPctDown": "10", "ecStdHome": "200000", "ecGMHHome": "206000",
          "ecStdUtil": "2400", "ecGMHUtil": "1700", "ecStdRate": "6.25", "ecGMHRate": "6", "cboMortTerm": "20 years",
          "cboGMHMortOption": "Freddie Mac EEM"}
TERM, OPTION_GMH = "Term, Base Home", "Mortgage Option, GREENMARK Home"
MNEMONICS = {"Cash Flow": "alt+c", "More Home": "alt+m", "Affordability": "alt+l", "Summary": "alt+y"}


class Entering(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)
        self.program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.find("frame", "Ledgrove")
        self.program.wait_focus("Annual Income")

    def settle(self):
        """Answers the notice or the data check that may be about to open."""
        time.sleep(0.2)
        while self.program.open_box():
            self.program.answer()

    def check_tabs(self, show):
        labels = compare(PROGRAM, self.folder, given=json.dumps(INPUTS))["labels"]
        for tab in TABS:
            show(tab)
            self.settle()
            wait_shown(self.program, tab, labels)

    def pick(self, description, item):
        box = self.program.find("combo box", description=description)
        self.program.click(box)
        time.sleep(0.5)  # the list ignores a release within the double-click time
        self.program.click(wait_for(lambda: next((node for node in self.program.all(box) if node.get_name() == item
                                                  and node.get_role_name() == "list item" and self.program.showing(node)),
                                                 None), f"item {item}"))

    def test_by_the_mouse(self):
        for name, text in FIELDS.items():
            self.program.click(self.program.field(name))
            self.program.wait_focus(name)
            self.desktop.type(text)
        self.pick(TERM, "20 years")
        self.pick(OPTION_GMH, "Freddie Mac EEM")
        self.settle()
        self.check_tabs(lambda tab: self.program.click(self.program.find("page tab", tab)))

    def test_by_keys(self):
        texts = list(FIELDS.values())
        for text in texts[:3]:
            self.desktop.type(text)
            self.desktop.key("Return")
        self.desktop.key("alt+s")  # Sticker Price
        for text in texts[3:]:
            self.desktop.type(text)
            self.desktop.key("Return")
        self.desktop.key("alt+r", "2", "0")  # Term
        self.desktop.key("alt+o", "Tab", "End")  # Mortgage Option
        self.settle()
        self.check_tabs(lambda tab: self.desktop.key(MNEMONICS[tab]))

    def test_by_keys_and_the_words_of_a_screen_reader(self):
        for name, text in FIELDS.items():
            if self.program.focused().get_name() != name:
                go_to(self.program, name)
            self.desktop.type(text)
        for words, key, item in ((TERM, "2", "20 years"), (OPTION_GMH, "End", "Freddie Mac EEM")):
            go_to(self.program, words)
            while self.program.focused().get_name() != item:
                self.desktop.key(key)
                self.settle()
                self.program.wait_focus(words)

        self.check_tabs(lambda tab: self.desktop.key(f"ctrl+{list(TABS).index(tab) + 2}"))

    def test_the_guides_first_comparison_by_keyboard(self):
        guide = " ".join((SOURCE / "docs/guide.md").read_text().split())
        chapter = guide[guide.index("## A first comparison"):guide.index("## Entering values")]
        typed = re.findall(r"`(\d+)`", chapter)
        self.assertEqual(typed, ["90000", "450", "10"])
        for text in typed:
            self.desktop.type(text)
            self.desktop.key("Return")
        self.program.wait_text("Annual Income", "$90,000")
        go_to(self.program, "House Scenarios")
        self.desktop.key("Return")
        self.program.window("House Scenarios")
        self.desktop.key("Home", "Return")  # The Alder
        self.program.window(None)
        self.program.wait_text("Sticker Price, Base Home", "$285,000")
        self.desktop.key("alt+c")
        self.settle()
        for words, amount in (("Additional Mortgage, Monthly", "-$59"), ("Utility Savings, Monthly", "$71"),
                              ("Tax Savings, Monthly", "$3"), ("Net Monthly Cash Flow, Monthly", "$16")):
            self.assertIn(amount.removeprefix("-"), chapter)
            self.program.wait_result(words, amount)
        self.desktop.key("alt+l")
        self.settle()
        self.program.wait_result("Buyer Qualifies?, Base Home", "YES")
        self.program.wait_result("Buyer Qualifies?, GREENMARK Home", "*NO")
        self.program.wait_result("Mortgage Amount, GREENMARK Home", "$263,700")
        self.program.wait_result("Maximum Loan Value, GREENMARK Home", "$256,374")
        self.desktop.key("alt+o", "Tab", "F")
        self.assertTrue(self.program.answer()[1].startswith("Fannie Mae offers two types"))
        self.settle()
        self.program.wait_result("Maximum Loan Value, GREENMARK Home", "$308,096")
        self.program.wait_result("Buyer Qualifies?, GREENMARK Home", "YES")
        self.desktop.key("ctrl+s")
        self.program.window("Save Comparison")
        self.desktop.type(str(self.folder / "first"))
        self.desktop.key("Return")
        saved = wait_for(lambda: json.loads((self.folder / "first.ledgrove.json").read_text()), "the saved comparison")
        self.assertEqual(saved["lblHomeName"], "The Alder")
        self.assertEqual(saved["ecPctDown"], "10.00%")


if __name__ == "__main__":
    unittest.main()
