"""A whole comparison by a blind user: only keys and the accessibility tree, no screen positions and no clicks. The texts must
match the results of `ledgrove-cli compare` for the same inputs."""
import json
import re
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for
from reading import TABS, compare, go_to, wait_shown

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
INPUTS = {"ecIncome": "72000", "ecMonthlyDebt": "350", "ecPctDown": "10", "ecStdHome": "200000", "ecGMHHome": "206000",
          "ecStdUtil": "2400", "ecGMHUtil": "1700", "ecStdRate": "6.75", "ecGMHRate": "6.5",
          "cboMortTerm": "30 years", "cboStdMortOption": "FHA", "cboGMHMortOption": "FHA EEM"}
NAMES = {"ecIncome": "Annual Income", "ecMonthlyDebt": "Monthly Debt", "ecPctDown": "% Down, Down Payment",
         "ecStdHome": "Sticker Price, Base Home", "ecGMHHome": "Sticker Price, GREENMARK Home",
         "ecStdUtil": "Annual Utility Cost, Base Home", "ecGMHUtil": "Annual Utility Cost, GREENMARK Home",
         "ecStdRate": "Interest Rate, Base Home", "ecGMHRate": "Interest Rate, GREENMARK Home"}
CHARTS = {"Cash Flow": "Monthly Cost of Both Homes", "Affordability": "Mortgage and Maximum Loan",
          "Summary": "Accumulated Net Savings by Year"}


def setUpModule():
    # All tests share one desktop, because the accessibility library keeps its first bus.
    WalkTest.desktop = Desktop()
    unittest.addModuleCleanup(WalkTest.desktop.close)


def money(amount):
    """Whole dollars; amounts in these tests are never below 0."""
    return f"${int(amount + 0.5):,}"


class WalkTest(unittest.TestCase):
    desktop = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copytree(SOURCE / "data", self.folder, dirs_exist_ok=True)
        self.program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.wait_focus("Annual Income")

    def told(self):
        """Reads the open message box, checks that a button has the focus, and presses Enter."""
        from gi.repository import Atspi
        node, text = self.program.box()
        wait_for(lambda: any(child.get_role_name() == "push button" and child.get_name()
                             and child.get_state_set().contains(Atspi.StateType.FOCUSED)
                             for child in self.program.all(node)), "a button of the message with the focus")
        title = node.get_name()
        self.desktop.key("Return")
        self.program.no_box()
        return title, text

    def enter_inputs(self):
        for control, name in NAMES.items():
            if self.program.focused().get_name() != name:
                go_to(self.program, name)
            self.assertEqual(self.program.focused().get_role_name(), "text")
            self.desktop.type(INPUTS[control])
        go_to(self.program, "Mortgage Option, Base Home")
        self.choose("F", INPUTS["cboStdMortOption"])
        go_to(self.program, "Mortgage Option, GREENMARK Home")
        self.choose("End", INPUTS["cboGMHMortOption"])

    def choose(self, key, item):
        self.assertEqual(self.program.focused().get_role_name(), "combo box")
        self.desktop.key(key)
        wait_for(lambda: self.program.focused().get_name() == item, f"{item} chosen")

    def open(self, keys, title):
        self.program.window()
        self.desktop.key(keys)
        self.program.window(title)
        wait_for(self.program.focused, f"the focus in {title}")

    def leave(self, key="Escape", back_to=None):
        title = self.program.title
        self.desktop.key(key)
        self.program.window(back_to)
        wait_for(lambda: not any(child.get_name() == title and self.program.showing(child)
                                 for child in self.windows()), f"{title} closed")
        wait_for(self.program.focused, f"the focus after {title}")

    def windows(self):
        root = self.program.root
        return [root.get_child_at_index(index) for index in range(root.get_child_count())]

    def round_by_tab(self):
        """Goes once around the dialog with Tab. Every control must have a name; returns role and name of each."""
        met = []
        for _ in range(80):
            node = wait_for(self.program.focused, "a control with the focus")
            at = (node.get_role_name(), node.get_name(), node.get_description())
            if at in met:
                return met
            self.assertTrue(at[1] or at[2], f"a {at[0]} without a name after {met}")
            met.append(at)
            self.desktop.key("Tab")
            wait_for(lambda: self.program.focused() is not None and self.program.focused() != node, f"a control after {at}")
        raise AssertionError(f"Tab does not return to the first control: {met}")


class Comparison(WalkTest):
    def test_every_tab_shows_the_results_of_the_command_line(self):
        self.enter_inputs()
        self.check_tabs(compare(PROGRAM, self.folder, given=json.dumps(INPUTS)))

    def test_the_other_options(self):
        from gi.repository import Atspi
        inputs = {"ecIncome": "72000", "optDownPayment": 1, "ecFixedDown": "30000", "chkDoTax0": False,
                  "ecStdHome": "200000", "ecGMHHome": "206000", "ecStdUtil": "2400", "ecGMHUtil": "1700",
                  "cboMortTerm": "15 years", "cboGMHMortOption": "Fannie Mae EEM"}
        result = compare(PROGRAM, self.folder, given=json.dumps(inputs))
        self.desktop.type("72000")
        self.desktop.key("alt+x")
        wait_for(lambda: self.program.focused().get_name() == "or Fixed $"
                 and self.program.focused().get_state_set().contains(Atspi.StateType.CHECKED), "the fixed amount chosen")
        go_to(self.program, "or Fixed $, Down Payment")
        self.desktop.type("30000")
        go_to(self.program, "Include Taxes in")
        self.desktop.key("space")
        wait_for(lambda: not self.program.focused().get_state_set().contains(Atspi.StateType.CHECKED), "no taxes")
        for control in ("ecStdHome", "ecGMHHome", "ecStdUtil", "ecGMHUtil"):
            go_to(self.program, NAMES[control])
            self.desktop.type(inputs[control])
        go_to(self.program, "Term, Base Home")
        self.desktop.type("15")
        wait_for(lambda: self.program.focused().get_name() == "15 years", "15 years")
        go_to(self.program, "Mortgage Option, GREENMARK Home")
        self.desktop.type("Fa")
        self.assertEqual(self.told(), ("Ledgrove", result["messages"][0]["text"].replace("\r", "\n")))
        self.assertEqual(self.program.focused().get_name(), "Fannie Mae EEM")
        self.assertEqual(result["labels"]["lblStdMort"]["text"], "$170,000")  # 200,000 - 30,000
        self.check_tabs(result)

    def check_tabs(self, result):
        for number, tab in enumerate(TABS, 2):
            self.desktop.key(f"ctrl+{number}")
            wait_shown(self.program, tab, result["labels"])
        self.program.no_box()  # nothing is missing, so there is no data check message

    def test_every_chart_describes_its_figures(self):
        self.enter_inputs()
        result = compare(PROGRAM, self.folder, given=json.dumps(INPUTS))
        label = {name: entry["text"] for name, entry in result["labels"].items()}
        words = {"Cash Flow": self.monthly_cost(result), "Affordability": self.loans(label), "Summary": self.savings(label)}
        for number, tab in enumerate(TABS, 2):
            self.desktop.key(f"ctrl+{number}")
            if tab not in CHARTS:
                continue
            go_to(self.program, CHARTS[tab])
            description = self.program.focused().get_description()
            for sentence in words[tab]:
                self.assertIn(sentence, description)

    @staticmethod
    def monthly_cost(result):
        base, green = result["StdCase"], result["GMHCase"]
        parts = {"Principal and Interest": "MortPayment", "Taxes": "TaxMonthly", "Insurance": "InsMonthly",
                 "PMI": "PMIMonthly", "Utilities": "UtilMonthly"}
        costs = [sum(home[part] for part in parts.values()) for home in (base, green)]
        costs[1] -= result["Scenario"]["ShownTaxSavings"]
        return [f"Monthly cost: Base Home {money(costs[0])}, GREENMARK Home {money(costs[1])}, "
                f"{money(costs[0] - costs[1])} less."] + [
            f"{name}: Base Home {money(base[part])}, GREENMARK Home {money(green[part])}." for name, part in parts.items()]

    @staticmethod
    def loans(label):
        return [f"With the {home} the mortgage of {label[mortgage]} is within the maximum loan of {label[loan]}."
                for home, mortgage, loan in (("Base Home", "lblStdMort", "lblStdMaxHome"),
                                             ("GREENMARK Home", "lblGMHMort", "lblGMHMaxHome"))]

    @staticmethod
    def savings(label):
        years = re.search(r"(\d+) Years", label["lblYrsIn"])[1]
        return [f"{label['lblExpYrPre']} after {years} years in the home, {label['lbl30YrPre']} after 30 years."]

    def test_the_data_check_message_appears(self):
        self.desktop.key("ctrl+2")
        title, text = self.told()
        self.assertEqual(title, "Ledgrove Data Check")
        expected = compare(PROGRAM, self.folder, given="{}")["dataCheck"]
        self.assertIn("Annual Income is missing.", expected)
        self.assertEqual(text.split("\n"), expected.split("\r"))
        self.assertTrue(any(node.get_name() == "Cash Flow" and node.get_role_name() == "page tab"
                            and self.is_chosen(node) for node in self.program.all()))

    @staticmethod
    def is_chosen(tab):
        from gi.repository import Atspi
        return tab.get_state_set().contains(Atspi.StateType.FOCUSED)

    def test_a_refusal_shows_a_message_and_keeps_the_field(self):
        for text in ("abc", "-5"):
            self.desktop.type(text)
            self.desktop.key("Tab")
            error = compare(PROGRAM, self.folder, given=f'{{"ecIncome": "{text}"}}')["error"]
            self.assertEqual(self.told(), ("Ledgrove", error["message"]))
            self.program.wait_focus("Annual Income")
            self.assertEqual(self.program.selection("Annual Income"), text)
        self.desktop.type("5")
        self.desktop.key("Tab")
        self.program.wait_focus("Monthly Debt")

    def test_tab_reaches_every_control_of_the_window(self):
        met = self.names_around()
        for name in NAMES.values():
            self.assertIn(name, met)
        for button in ("House Scenarios", "Financial Assumptions", "Options", "Print Reports", "Disclaimer", "Help"):
            self.assertIn(button, met)
        self.assertLess(met.index("Monthly Debt"), met.index("Sticker Price, Base Home"))
        self.assertLess(met.index("Sticker Price, Base Home"), met.index("Print Reports"))

    def names_around(self):
        names = [name for name, _ in go_to(self.program, "Annual Income")]
        self.assertEqual(names.count(""), 1)  # only the tab bar has no name of its own
        return names


class Dialogs(WalkTest):
    def test_house_scenarios(self):
        self.open("ctrl+h", "House Scenarios")
        self.assertEqual([node.get_name() for node in self.program.all(self.program.front())
                          if node.get_role_name() == "list item"], ["The Alder", "The Birch", "The Cedar"])
        names = [name for _, name, _ in self.round_by_tab()]
        for name in ("House Scenarios", "Add", "Edit", "Delete", "OK", "Cancel", "Help"):
            self.assertIn(name, names)
        self.leave()

    def test_financial_assumptions(self):
        self.open("ctrl+shift+f", "Financial Assumptions")
        self.assertGreater(len(self.round_by_tab()), 30)
        self.leave()

    def test_options(self):
        self.open("ctrl+shift+o", "Options")
        self.assertEqual(self.texts(), ["Finished basement", "Larger deck"])
        self.round_by_tab()
        self.leave()

    def texts(self):
        from gi.repository import Atspi
        return [Atspi.Text.get_text(node, 0, -1) for node in self.program.all(self.program.front())
                if node.get_role_name() == "text" and self.program.showing(node)]

    def test_printing_up_to_the_preview(self):
        from gi.repository import Atspi
        self.enter_inputs()
        self.open("ctrl+p", "Report Selection")
        for section in ("Cash Flow", "More Home", "Affordability", "Summary", "Financial Assumptions"):
            if self.program.focused().get_name() != section:
                go_to(self.program, section)
            box = self.program.focused()
            self.assertEqual(box.get_role_name(), "check box")
            self.assertTrue(box.get_state_set().contains(Atspi.StateType.CHECKED), section)
        self.desktop.key("space")
        wait_for(lambda: not box.get_state_set().contains(Atspi.StateType.CHECKED), f"{section} left out")
        self.desktop.key("space")
        wait_for(lambda: box.get_state_set().contains(Atspi.StateType.CHECKED), f"{section} chosen")
        self.open_inner("alt+r", "Print Options")
        self.round_by_tab()
        self.leave(back_to="Report Selection")
        self.open_inner("alt+p", "Summary Report")
        self.program.find("label", "Page 1 of 2")
        self.round_by_tab()
        self.leave(back_to="Report Selection")
        self.leave()

    def test_a_name_that_the_settings_cannot_hold(self):
        """The message comes after the dialog, so that the keys belong to the selection again when it closes."""
        from gi.repository import Atspi
        self.enter_inputs()
        self.open("ctrl+p", "Report Selection")
        self.open_inner("alt+r", "Print Options")
        Atspi.EditableText.set_text_contents(self.program.field("User Name"), "李明")
        self.desktop.key("alt+o")
        _, text = self.told()
        self.assertIn("李明", text)
        self.program.window("Report Selection")
        self.open_inner("alt+r", "Print Options")
        self.assertIn("李明", self.texts())
        self.leave(back_to="Report Selection")
        self.leave()

    def open_inner(self, keys, title):
        self.desktop.key(keys)
        self.program.window(title)
        wait_for(self.program.focused, f"the focus in {title}")

    def test_file_dialogs(self):
        for keys, title in (("ctrl+o", "Open Comparison"), ("ctrl+s", "Save Comparison"), ("ctrl+shift+x", "Export CSV")):
            self.open(keys, title)
            self.assertEqual(self.program.focused().get_name(), "File name:")
            self.leave()

    def test_exporting_a_pdf_up_to_the_file_dialog(self):
        self.open("ctrl+shift+p", "Export PDF")
        self.program.wait_focus("Paper")
        self.round_by_tab()
        self.desktop.key("Return")
        self.program.wait_focus("File name:")
        self.leave()

    def test_messages_of_the_help_menu(self):
        self.desktop.key("alt+h")
        self.program.find("menu item", "Disclaimer")
        self.desktop.key("d")
        title, text = self.told()
        self.assertEqual(title, "GREENMARK Ledgrove Disclaimer")
        self.assertTrue(text.startswith("Because actual home energy costs vary"))
        self.desktop.key("alt+h")
        self.program.find("menu item", "About Ledgrove")
        self.desktop.key("a")
        title, text = self.told()
        self.assertEqual(title, "About Ledgrove")
        version = re.search(r"project\(Ledgrove VERSION ([\d.]+)", (SOURCE / "CMakeLists.txt").read_text())[1]
        self.assertTrue(text.startswith(f"Ledgrove {version}\n"), text)

    def test_the_help_opens_is_read_and_closes(self):
        from gi.repository import Atspi
        self.desktop.key("F1")
        window = wait_for(lambda: next((node for node in self.windows() if node.get_name() == "Ledgrove Help"), None),
                          "the help")
        reading = wait_for(lambda: next((node for node in self.program.all(window) if node.get_name() == "Help"
                                         and node.get_state_set().contains(Atspi.StateType.FOCUSED)), None),
                           "the focus on the help's text")
        text = Atspi.Text.get_text(reading, 0, -1)
        for words in ("Welcome: a first comparison", "Affordability", "Glossary"):
            self.assertIn(words, text)
        self.desktop.key("Escape")
        wait_for(lambda: all(node.get_name() != "Ledgrove Help" or not self.program.showing(node)
                             for node in self.windows()), "the help closed")
        self.program.wait_focus("Annual Income")


if __name__ == "__main__":
    unittest.main()
