"""Figures entered by real clicks and keys while messages open in between: no new figure may mix with an old one, and no click
may get lost."""
import shutil
import sys
import tempfile
import time
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
INCOME, DEBT = "Annual Income", "Monthly Debt"
PRICE_BASE, PRICE_GMH = "Sticker Price, Base Home", "Sticker Price, GREENMARK Home"
BILL_BASE, BILL_GMH = "Annual Utility Cost, Base Home", "Annual Utility Cost, GREENMARK Home"
OPTION_GMH = "Mortgage Option, GREENMARK Home"


class Hands(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", folder)
        self.program = Program(self.desktop, PROGRAM, folder)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.find("frame", "Ledgrove")
        self.program.wait_focus(INCOME)

    def go(self, field):
        """Clicks into the middle of a field and waits until it has the focus."""
        self.program.click(self.program.field(field))
        self.program.wait_focus(field)

    def enter(self, field, text):
        """Enters a text with Enter and answers the notice if there is one."""
        self.go(field)
        self.desktop.type(text)
        self.desktop.key("Return")
        wait_for(lambda: self.program.open_box() or "$" in self.program.text(field), "the entry")
        self.settle()

    def settle(self):
        """Answers the message box that may be about to open."""
        time.sleep(0.2)
        while self.program.open_box():
            self.program.answer()

    def prepare(self):
        """A comparison in which a price of $321,000 for the GREENMARK home raises the notice of its mortgage."""
        for field, text in ((INCOME, "60000"), (PRICE_BASE, "200000"), (PRICE_GMH, "201000"),
                            (BILL_BASE, "2400"), (BILL_GMH, "1200")):
            self.enter(field, text)
        box = self.program.find("combo box", description=OPTION_GMH)
        self.program.wait_focus("Interest Rate, Base Home")
        self.desktop.key(*["Tab"] * 6)
        self.program.wait_focus(OPTION_GMH)
        self.desktop.key("End")  # Freddie Mac EEM is the last item
        wait_for(lambda: box.get_name() == "Freddie Mac EEM", "the option")
        self.settle()

    def raise_notice(self, leave):
        self.go(PRICE_GMH)
        self.desktop.type("321000")
        leave()
        self.program.box()

    def text_after(self, field):
        """What stands in the field after the notice is answered and 70000 is typed and left with Tab."""
        self.program.wait_focus(field)
        self.desktop.type("70000")
        self.desktop.key("Tab")
        self.settle()
        return self.program.text(field)

    def test_typing_after_the_notice_replaces_the_figure(self):
        click_on = {f"a click on {field}": (lambda field=field: self.program.click(self.program.field(field)), field)
                    for field in (INCOME, PRICE_BASE, BILL_BASE)}
        keys = {"Enter": (lambda: self.desktop.key("Return"), BILL_BASE), "Tab": (lambda: self.desktop.key("Tab"), BILL_BASE),
                "Down": (lambda: self.desktop.key("Down"), BILL_BASE), "Up": (lambda: self.desktop.key("Up"), PRICE_BASE),
                "Shift+Tab": (lambda: self.desktop.key("shift+Tab"), PRICE_BASE)}
        self.prepare()
        for number, (way, (leave, next_field)) in enumerate((click_on | keys).items()):
            with self.subTest(left_by=way):
                self.enter(PRICE_GMH, "201000")
                self.raise_notice(leave)
                if number % 2:
                    self.desktop.key("Return")
                    self.program.no_box()
                else:
                    self.program.answer()
                self.assertEqual(self.text_after(next_field), "$70,000")
                self.enter(BILL_BASE, "2400")
                self.enter(PRICE_BASE, "200000")

    def leave_by_click_on(self, node, x=None):
        """Leaves the price with the notice by a click on the control, and answers the notice."""
        left, middle = self.program.centre(node)
        if x is not None:
            from gi.repository import Atspi
            left = node.get_extents(Atspi.CoordType.SCREEN).x + x
        self.raise_notice(lambda: self.desktop.click(left, middle))
        self.program.answer()

    def test_the_click_that_raises_the_notice_is_not_lost(self):
        from gi.repository import Atspi
        self.prepare()

        def checked(node):
            return node.get_state_set().contains(Atspi.StateType.CHECKED)

        taxes = self.program.find("check box", "Include Taxes in")
        self.assertTrue(checked(taxes))
        self.leave_by_click_on(taxes, 8)
        wait_for(lambda: not checked(taxes), "the check box off")

        self.enter(PRICE_GMH, "201000")
        fixed = self.program.find("radio button", "or Fixed $")
        self.leave_by_click_on(fixed, 8)
        wait_for(lambda: checked(fixed), "the fixed amount chosen")
        self.settle()

        self.enter(PRICE_GMH, "201000")
        print_reports = self.program.find("push button", "Print Reports")
        self.raise_notice(lambda: self.program.click(print_reports))
        self.desktop.key("Return")
        wait_for(lambda: self.program.box()[0].get_name() == "Ledgrove Data Check", "the data check")
        _, text = self.program.answer()
        self.assertIn("GREENMARK Home costs more than 10% more!", text)
        self.program.window("Report Selection")
        self.desktop.key("Escape")
        self.program.window(None)
        wait_for(lambda: self.program.focused().get_name() == "Print Reports", "the main window in front")
        self.assertFalse(print_reports.get_state_set().contains(Atspi.StateType.PRESSED))

    def test_a_double_click_selects_the_whole_figure(self):
        self.enter(INCOME, "60000")
        x, y = self.program.centre(self.program.field(INCOME))
        width = self.program.field(INCOME).get_component_iface().get_extents(0).width
        for _ in range(4):
            self.desktop.xdotool("mousemove", x + width // 2 - 15, y, "click", "--repeat", 2, "--delay", 60, 1)
            wait_for(lambda: self.program.selection(INCOME) == self.program.text(INCOME), "the whole text selected")
            self.desktop.type("70000")
            self.assertEqual(self.program.text(INCOME), "70000")
            self.desktop.key("Return")
            wait_for(lambda: self.program.text(INCOME) == "$70,000", "the entry")

    def test_a_middle_click_pastes_over_the_whole_figure(self):
        self.enter(INCOME, "55000")
        self.go(INCOME)
        wait_for(lambda: self.program.selection(INCOME) == "$55,000", "the whole text selected")
        self.desktop.xdotool("click", 2)
        self.desktop.key("Return")
        wait_for(lambda: self.program.text(INCOME) == "$55,000", "the pasted figure")
        self.assertIsNone(self.program.open_box())

    def test_a_middle_click_without_a_selection_keeps_the_figure(self):
        self.desktop.type("55000")
        self.desktop.key("Return")
        self.program.wait_text(INCOME, "$55,000")
        self.desktop.xdotool("mousemove", *self.program.centre(self.program.field(INCOME)), "click", 2)
        self.program.wait_focus(INCOME)
        self.desktop.key("Return")
        self.program.wait_focus(DEBT)
        self.assertEqual(self.program.text(INCOME), "$55,000")

    def test_the_tax_grid_selects_on_entering_by_click(self):
        self.program.click(self.program.find("push button", "Financial Assumptions"))
        self.program.window("Financial Assumptions")
        field = "High End, Row 2"
        shown = self.program.text(field)
        self.assertNotEqual(shown, "")
        node = self.program.field(field)
        x, y = self.program.centre(node)
        self.desktop.click(x + node.get_component_iface().get_extents(0).width // 2 - 15, y)
        wait_for(lambda: self.program.selection(field) == shown, "the whole text selected")
        self.desktop.type("150000")
        self.assertEqual(self.program.text(field), "150000")
        self.desktop.key("Escape")

    def test_the_wheel_changes_no_value_and_no_tab(self):
        term = self.program.find("combo box", description="Term, Base Home")
        self.program.click(term)
        time.sleep(0.5)  # the list ignores a release within the double-click time
        self.desktop.key("Return")
        self.desktop.xdotool("mousemove", *self.program.centre(term), "click", "--repeat", 3, 5)
        welcome = self.program.find("page tab", "Welcome")
        self.program.click(welcome)
        self.desktop.xdotool("mousemove", *self.program.centre(welcome), "click", "--repeat", 3, 5)
        self.program.find("label", "Ledgrove Instructions")
        self.assertEqual(term.get_name(), "30 years")
        self.assertIsNone(self.program.open_box())

    def test_the_down_payment_by_keys(self):
        for text in ("90000", "450", "10"):
            self.desktop.type(text)
            self.desktop.key("Return")
        self.program.wait_text("% Down, Down Payment", "10.00%")
        self.assertEqual(self.program.text(INCOME), "$90,000")
        self.assertEqual(self.program.text(DEBT), "$450")
        # On the option button, the amount is chosen with an arrow; Tab leads to its field.
        self.program.wait_focus("% Down")
        self.desktop.key("Right")
        self.program.wait_focus("or Fixed $")
        self.desktop.key("Tab")
        self.desktop.type("30000")
        self.desktop.key("Return")
        self.program.wait_text("or Fixed $, Down Payment", "$30,000")
        for _ in range(3):
            self.desktop.key("Return")
        self.program.wait_focus("House Scenarios")


if __name__ == "__main__":
    unittest.main()
