"""The three dialogs that the main window's buttons open, in real use. Each test reads the settings file afterwards."""
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
HOUSES, ASSUMPTIONS, OPTIONS = "House Scenarios", "Financial Assumptions", "Options"
PRICE_BASE, PRICE_GMH = "Sticker Price, Base Home", "Sticker Price, GREENMARK Home"
UTILITIES_BASE, UTILITIES_GMH = "Annual Utility Cost, Base Home", "Annual Utility Cost, GREENMARK Home"
TAXES, INSURANCE, YEARS = "Real Estate Taxes", "Home Owner's Insurance", "Anticipated Years in Home"


def setUpModule():
    # All tests share one desktop, because the accessibility library keeps its first bus.
    DialogTest.desktop = Desktop()
    unittest.addModuleCleanup(DialogTest.desktop.close)


class DialogTest(unittest.TestCase):
    desktop = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.settings = self.folder / "Ledgrove.ini"
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)
        self.program = Program(self.desktop, PROGRAM, self.folder)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.wait_focus("Annual Income")

    def open(self, title):
        self.program.window()
        self.press(title)
        self.program.window(title)

    def press(self, button):
        self.program.click(self.program.find("push button", button))

    def close_by(self, button):
        """Presses the button and waits until the dialog is closed."""
        title = self.program.title
        self.press(button)
        self.program.window()
        wait_for(lambda: self.program.find("dialog", title, missing_ok=True) is None, f"{title} closed")

    def enter(self, field, text, key="Return"):
        self.program.click(self.program.field(field))
        self.program.wait_focus(field)
        self.desktop.key("ctrl+a")
        self.desktop.type(text)
        self.desktop.key(key)

    def lines(self, key):
        return [line for line in self.settings.read_bytes().decode("cp1252").split("\r\n") if line.startswith(key)]


class Houses(DialogTest):
    def name_new(self, name):
        self.press("Add")
        box = wait_for(lambda: next((node for node in self.program.all() if node.get_role_name() == "dialog"
                                     and self.program.showing(node) and any(
                                         child.get_name() == "Enter The Name Of The New Home:"
                                         for child in self.program.all(node))), None), "the input box")
        self.assertEqual(box.get_name(), HOUSES)
        self.desktop.type(name)
        self.desktop.key("Return")

    def items(self):
        return [node.get_name() for node in self.program.all(self.program.find("list"))
                if node.get_role_name() == "list item"]

    def test_add_edit_delete_and_choose(self):
        for field, text in ((PRICE_BASE, "111000"), (PRICE_GMH, "115000"), (UTILITIES_BASE, "1200"),
                              (UTILITIES_GMH, "800")):
            self.enter(field, text)
        self.open(HOUSES)
        self.assertEqual(self.lines("HOMESELECTIONDIALOG"), ["HOMESELECTIONDIALOG=OPEN"])

        self.name_new("Lot 7")
        wait_for(lambda: "Lot 7" in self.items(), "the new house")
        self.program.wait_text(PRICE_BASE, "$111,000")
        self.name_new("Lot 7")
        self.assertEqual(self.program.answer(), ("Ledgrove", "This Home Name Has Already Been Entered."))
        self.name_new("")
        self.assertEqual(self.program.answer(), ("Ledgrove", "No Name Entered. Add Aborted"))
        self.name_new("Lot 7, east")
        self.assertEqual(self.program.answer(), ("Ledgrove", "A name cannot contain a comma."))
        self.assertEqual(len(self.items()), 4)

        self.press("Edit")
        self.enter(PRICE_GMH, "90000", key="Tab")
        self.program.wait_text(PRICE_GMH, "$90,000")
        self.press("Done")
        title, text = self.program.answer("No")
        self.assertEqual(title, "Ledgrove Data Check")
        self.assertIn("Note:  GREENMARK Home is cheaper!", text)
        self.assertTrue(text.endswith("Continue to save?"), text)
        self.program.wait_text(PRICE_GMH, "$90,000")
        self.press("Done")
        self.program.answer("Yes")
        self.assertIsNotNone(self.program.find("push button", "Edit"))

        self.program.click(next(node for node in self.program.all(self.program.find("list"))
                                if node.get_name() == "The Birch"))
        self.program.wait_text(PRICE_BASE, "$340,000")
        self.press("Delete")
        self.assertEqual(self.program.answer("No")[0], "House Package Data Delete")
        self.press("Delete")
        self.program.answer("Yes")
        wait_for(lambda: self.items() == ["The Alder", "The Cedar", "Lot 7"], "three houses left")
        self.program.click(next(node for node in self.program.all(self.program.find("list"))
                                if node.get_name() == "Lot 7"))
        self.program.wait_text(PRICE_GMH, "$90,000")
        self.close_by("OK")

        self.assertEqual(self.lines("HOMELIST"), ["HOMELIST=The Alder,285000,2400,293000,1550",
                                                  "HOMELIST=The Cedar,415000,3150,427000,2050",
                                                  "HOMELIST=Lot 7,111000,1200,90000,800"])
        self.assertEqual(self.lines("HOMESELECTIONDIALOG"), ["HOMESELECTIONDIALOG=CLOSED"])
        self.program.wait_text(PRICE_GMH, "$90,000")
        self.program.find("label", "Lot 7")
        self.enter(PRICE_GMH, "91000")
        self.program.find("label", "Custom")
        self.open(HOUSES)
        self.program.wait_text(PRICE_BASE, "$285,000")  # the first house again

    def test_cancel_saves_the_list_but_copies_nothing(self):
        self.open(HOUSES)
        self.name_new("Lot 9")
        wait_for(lambda: "Lot 9" in self.items(), "the new house")
        self.close_by("Cancel")
        self.assertEqual(self.lines("HOMELIST")[-1], "HOMELIST=Lot 9,0,0,0,0")
        self.assertEqual(self.program.text(PRICE_BASE), "")
        self.program.find("label", "Custom")

    def house(self, name):
        return next(node for node in self.program.all(self.program.find("list")) if node.get_name() == name)

    def wait_closed(self):
        self.program.window()
        wait_for(lambda: self.program.find("dialog", HOUSES, missing_ok=True) is None, "House Scenarios closed")

    def test_a_double_click_or_enter_chooses(self):
        self.open(HOUSES)
        self.desktop.xdotool("mousemove", *self.program.centre(self.house("The Cedar")))
        self.desktop.xdotool("click", "--repeat", 2, "--delay", 60, 1)
        self.wait_closed()
        self.program.wait_text(PRICE_BASE, "$415,000")
        self.open(HOUSES)
        self.program.wait_focus(HOUSES)
        self.desktop.key("Up", "Return")
        self.wait_closed()
        self.program.wait_text(PRICE_BASE, "$340,000")
        self.program.find("label", "The Birch")

    def test_a_house_is_chosen_although_the_list_cannot_be_saved(self):
        self.open(HOUSES)
        self.settings.unlink()
        self.press("OK")
        self.assertIn("The list of houses could not be saved. ", self.program.answer()[1])
        self.wait_closed()
        self.program.wait_text(PRICE_BASE, "$285,000")
        self.program.find("label", "The Alder")

    def test_cancel_edit_discards_a_bad_entry_without_a_message(self):
        self.open(HOUSES)
        self.press("Edit")
        self.enter(PRICE_BASE, "-5", key="End")
        self.press("Cancel Edit")
        self.program.wait_text(PRICE_BASE, "$285,000")
        self.program.no_box()


class Assumptions(DialogTest):
    def test_editing_with_the_keyboard_only(self):
        self.desktop.key("shift+Tab")  # moves from the first field to the last control, past the end to the buttons
        for _ in range(12):
            if self.program.focused() and self.program.focused().get_name() == ASSUMPTIONS:
                break
            self.desktop.key("shift+Tab")
        self.assertEqual(self.program.focused().get_name(), ASSUMPTIONS)
        self.desktop.key("space")
        self.program.window(ASSUMPTIONS)
        self.program.wait_focus("PMI Multiplier, 5%")
        self.desktop.type("0.0091")
        self.desktop.key("Return")
        self.program.wait_focus("PMI Multiplier, 10%")
        self.desktop.key("alt+i")
        self.program.wait_focus(INSURANCE)
        self.desktop.type("0.8")
        self.desktop.key("Return")
        self.program.wait_text(INSURANCE, "0.80%")
        self.desktop.key("alt+y")
        self.program.wait_focus(YEARS)
        self.desktop.type("12")
        self.desktop.key("Tab")
        self.desktop.key("alt+v")
        self.desktop.key("alt+o")
        self.program.window()
        wait_for(lambda: self.lines("YEARS_IN_HOME") == ["YEARS_IN_HOME=12"], "the saved years")
        self.assertEqual(self.lines("PMI_MULT1"), ["PMI_MULT1=0.0091"])
        self.assertEqual(self.lines("ASSUMPTION2"), ["ASSUMPTION2=0.80"])
        self.assertEqual(self.lines("PVSAVINGS_FLAG"), ["PVSAVINGS_FLAG=TRUE"])
        self.assertEqual(self.lines("TAXCAT")[-1], "TAXCAT=-1,35.00")

    def test_the_next_low_end_changes_at_once(self):
        self.open(ASSUMPTIONS)
        self.enter("High End, Row 2", "150000", key="Tab")
        self.program.wait_text("Low End, Row 3", "$150,001")

    def test_property_tax_by_enter_and_by_click(self):
        self.open(ASSUMPTIONS)
        self.enter(TAXES, "0.5")
        self.program.wait_text(TAXES, "0.50%")
        self.enter(TAXES, "0.5", key="End")
        self.program.click(self.program.field(YEARS))
        self.program.wait_text(TAXES, "50.00%")

    def test_cancel_does_not_change_the_file(self):
        before = self.settings.read_bytes()
        self.open(ASSUMPTIONS)
        self.enter(YEARS, "25")
        self.close_by("Cancel")
        self.assertEqual(self.settings.read_bytes(), before)

    def test_a_file_that_cannot_be_written_keeps_the_dialog_open(self):
        before = self.settings.read_bytes()
        (self.folder / "Pennaro2.INI").mkdir()
        self.open(ASSUMPTIONS)
        self.enter(YEARS, "25")
        self.press("OK")
        self.assertIn(str(self.folder / "Pennaro2.INI"), self.program.answer()[1])
        self.assertEqual(self.program.text(YEARS), "25")
        self.assertEqual(self.settings.read_bytes(), before)


class Options(DialogTest):
    def test_features_are_saved_and_the_header_lines_appended(self):
        self.open(OPTIONS)
        self.enter("Option 1", "Sun room")
        self.close_by("OK")
        self.assertEqual(self.lines("FEATURE"), ["FEATURE1=Sun room", "FEATURE2=Larger deck"])
        self.assertEqual(len(self.lines("BUILDERNAME")), 2)
        self.assertEqual(len(self.lines("LOGOFILE")), 2)

    def test_cancel_writes_nothing(self):
        before = self.settings.read_bytes()
        self.open(OPTIONS)
        self.enter("Option 1", "Sun room")
        self.close_by("Cancel")
        self.assertEqual(self.settings.read_bytes(), before)


if __name__ == "__main__":
    unittest.main()
