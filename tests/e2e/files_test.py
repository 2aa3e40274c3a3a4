"""Comparisons as files: saving, opening, unsaved changes on closing, recent files, export; with keys, in the real dialogs."""
import csv
import io
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for
from reading import TABS, compare, go_to, wait_shown

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
SAVE, OPEN = "Save Comparison", "Open Comparison"
TYPED = (("Annual Income", "72000"), ("Monthly Debt", "350"), ("% Down, Down Payment", "10"),
         ("Sticker Price, Base Home", "200000"), ("Sticker Price, GREENMARK Home", "206000"),
         ("Annual Utility Cost, Base Home", "2400"), ("Annual Utility Cost, GREENMARK Home", "1700"))


def setUpModule():
    # All tests share one desktop, because the accessibility library keeps its first bus.
    FilesTest.desktop = Desktop()
    unittest.addModuleCleanup(FilesTest.desktop.close)


class Started(Program):
    """The program started with a file, as a double click does."""

    def __init__(self, desktop, folder, *files):
        self.desktop = desktop
        self.process = desktop.start(PROGRAM, "--folder", folder, *files)
        self.root = self.title = None


class FilesTest(unittest.TestCase):
    desktop = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copytree(SOURCE / "data", self.folder / "settings")
        self.recent = self.desktop.home / ".config/ledgrove"
        self.addCleanup(shutil.rmtree, self.recent, ignore_errors=True)

    def start(self, *files):
        self.program = Started(self.desktop, self.folder / "settings", *files)
        self.addCleanup(self.program.close)
        self.program.find_root()
        return self.program

    def start_empty(self):
        self.start().wait_focus("Annual Income")
        return self.program

    def wait_title(self, title):
        self.program.window()
        self.program.find("frame", title)

    def wait_end(self):
        wait_for(lambda: self.program.process.poll() is not None, "the end of the program")
        self.assertEqual(self.program.process.returncode, 0)

    def type_comparison(self):
        for name, text in TYPED:
            if self.program.focused().get_name() != name:
                go_to(self.program, name)
            self.desktop.type(text)
        for name in ("Mortgage Option, Base Home", "Mortgage Option, GREENMARK Home"):
            go_to(self.program, name)
            self.desktop.type("F")
        self.desktop.key("End")
        wait_for(lambda: self.program.focused().get_name() == "FHA EEM", "FHA EEM chosen")

    def name_file(self, title, file):
        """Types a name into the file dialog that opens."""
        self.program.window(title)
        self.program.wait_focus("File name:")
        self.desktop.key("ctrl+a")
        self.desktop.type(str(file))
        self.program.wait_text("File name:", str(file))  # on a busy machine the last letters come late
        self.desktop.key("Return")
        self.program.window()

    def in_box(self, button):
        """Presses a button of the open message box with Tab and Space; returns the text of the message."""
        from gi.repository import Atspi
        node, text = self.program.box()

        def chosen():
            return next((child.get_name().replace("&", "") for child in self.program.all(node)
                         if child.get_role_name() == "push button"
                         and child.get_state_set().contains(Atspi.StateType.FOCUSED)), None)
        for _ in range(5):
            before = wait_for(chosen, "a button with the focus")
            if before == button:
                break
            self.desktop.key("Tab")
            wait_for(lambda: chosen() != before, "the next button")
        self.assertEqual(chosen(), button)
        self.desktop.key("space")
        return text

    def labels_of(self, file):
        return compare(PROGRAM, self.folder / "settings", file)["labels"]

    def check_tabs(self, labels):
        for number, tab in enumerate(TABS, 2):
            self.desktop.key(f"ctrl+{number}")
            wait_shown(self.program, tab, labels)


class Saving(FilesTest):
    def test_a_saved_comparison_opens_in_another_run(self):
        self.start_empty()
        self.type_comparison()
        self.wait_title("Ledgrove*")
        self.desktop.key("ctrl+s")
        self.name_file(SAVE, self.folder / "first home")
        file = self.folder / "first home.ledgrove.json"
        self.wait_title("first home.ledgrove.json - Ledgrove")
        labels = self.labels_of(file)
        # 186,000 at 6.5 % over 30 years is 1,175.65 a month
        self.assertEqual(labels["lblGMHMortPayment"]["text"], "$1,176")
        self.check_tabs(labels)
        self.program.process.kill()
        self.program.process.wait()
        self.start(file)
        self.wait_title("first home.ledgrove.json - Ledgrove")
        self.program.wait_focus("Annual Income")
        self.assertEqual(self.program.text("Annual Income"), "$72,000")
        self.check_tabs(labels)

    def test_saving_again_writes_the_same_file_without_a_question(self):
        file = self.folder / "a.ledgrove.json"
        file.write_text('{"ecIncome": 50000}')
        self.start(file)
        self.wait_title("a.ledgrove.json - Ledgrove")
        self.program.wait_focus("Annual Income")
        self.desktop.type("60000")
        self.desktop.key("ctrl+s")  # also accepts the entry that is being typed
        wait_for(lambda: json.loads(file.read_text())["ecIncome"] == "$60,000", "the new income in the file")
        self.wait_title("a.ledgrove.json - Ledgrove")

    def test_another_file_is_replaced_only_after_a_question(self):
        file = self.folder / "a.ledgrove.json"
        file.write_text("of someone else")
        self.start_empty()
        self.desktop.type("60000")
        for answer in ("No", "Yes"):
            self.desktop.key("ctrl+shift+s")
            self.name_file(SAVE, self.folder / "a")
            self.assertIn(f"\"{file}\" already exists", self.in_box(answer))
            self.program.no_box()
            if answer == "No":
                self.assertEqual(file.read_text(), "of someone else")
        self.wait_title("a.ledgrove.json - Ledgrove")
        self.assertEqual(json.loads(file.read_text())["ecIncome"], "$60,000")


class Opening(FilesTest):
    def test_what_is_not_a_file_is_reported_at_the_start(self):
        pipe = self.folder / "pipe.json"
        os.mkfifo(pipe)
        bytes_name = os.fsencode(self.folder) + b"/caf\xe9.json"
        with open(bytes_name, "w") as file:
            file.write("{}")
        for name, said in ((pipe, "cannot be read: it is not an ordinary file."),
                           ("/dev/null", "cannot be read: it is not an ordinary file."),
                           (self.folder, "cannot be read: it is a folder."),
                           (os.fsdecode(bytes_name), "cannot be opened: its name contains characters that are not UTF-8.")):
            self.start(name)
            self.assertIn(said, self.program.answer()[1])
            self.wait_title("Ledgrove")
            self.program.close()

    def test_a_file_written_by_hand(self):
        file = self.folder / "von Hand.json"
        file.write_text('{"ecIncome": 90000, "ecMonthlyDebt": "450", "optDownPayment": 1, "ecFixedDown": "30,000",\n'
                        ' "ecStdHome": 285000, "ecGMHHome": "$293000", "ecStdUtil": 2400, "ecGMHUtil": 1550,\n'
                        ' "cboMortTerm": "15 years", "cboStdMortOption": "VA", "chkDoTax0": false}')
        self.start_empty()
        self.desktop.key("ctrl+o")
        self.name_file(OPEN, file)
        self.wait_title("von Hand.json - Ledgrove")
        self.assertEqual(self.program.text("or Fixed $, Down Payment"), "$30,000")
        labels = self.labels_of(file)
        self.assertEqual(labels["lblStdMort"]["text"], "$255,000")  # 285,000 - 30,000
        self.check_tabs(labels)

    def test_a_file_that_is_not_a_comparison_is_reported(self):
        file = self.folder / "bad.ledgrove.json"
        file.write_text('{"ecIncome": "much"}')
        self.start(file)
        text = self.in_box("OK")
        self.assertIn("bad.ledgrove.json", text)
        self.assertIn("You must enter a number here.", text)
        self.wait_title("Ledgrove")
        self.assertEqual(self.program.text("Annual Income"), "")

    def test_a_missing_file_is_reported(self):
        self.start(self.folder / "gone.ledgrove.json")
        self.assertIn("gone.ledgrove.json", self.in_box("OK"))
        self.wait_title("Ledgrove")


class Closing(FilesTest):
    def start_typed(self):
        self.start_empty()
        self.desktop.type("60000")
        self.desktop.key("Tab")
        self.wait_title("Ledgrove*")
        self.desktop.key("ctrl+q")

    def test_cancel_keeps_the_window_and_discard_ends_it(self):
        self.start_typed()
        self.assertIn("Save the changes to this comparison?", self.in_box("Cancel"))
        self.program.no_box()
        self.assertEqual(self.program.text("Annual Income"), "$60,000")
        self.desktop.key("alt+F4")
        self.in_box("Discard")
        self.wait_end()
        self.assertEqual(list(self.folder.glob("*.json")), [])

    def test_save_writes_the_file_and_ends(self):
        self.start_typed()
        self.in_box("Save")
        self.name_file(SAVE, self.folder / "kept")
        self.wait_end()
        self.assertEqual(json.loads((self.folder / "kept.ledgrove.json").read_text())["ecIncome"], "$60,000")

    def test_save_without_a_name_keeps_the_window(self):
        self.start_typed()
        self.in_box("Save")
        self.program.window(SAVE)
        self.program.wait_focus("File name:")
        self.assertEqual(self.program.text("File name:"), "comparison.ledgrove.json")
        # The home folder has no documents folder.
        wait_for(lambda: self.program.find("combo box", str(self.desktop.home)), "the home folder to save in")
        self.desktop.key("Escape")
        self.wait_title("Ledgrove*")
        self.assertIsNone(self.program.process.poll())

    def test_closing_without_changes_asks_nothing(self):
        file = self.folder / "a.ledgrove.json"
        file.write_text('{"ecIncome": 50000}')
        self.start(file)
        self.wait_title("a.ledgrove.json - Ledgrove")
        self.desktop.key("ctrl+q")
        self.wait_end()


class Menus(FilesTest):
    def menu_items(self):
        """The names in the open menus, without the menu bar's."""
        return [node.get_name() for node in self.program.all() if node.get_role_name() == "menu item"
                and self.program.showing(node) and node.get_parent().get_role_name() == "popup menu"]

    def open_recent(self):
        self.desktop.key("alt+f")
        wait_for(lambda: "Open Recent" in self.menu_items(), "the menu File")
        self.desktop.key("r")
        wait_for(lambda: "Clear List" in self.menu_items(), "the recent files")
        return [name for name in self.menu_items() if name.endswith(".json")]

    def save_as(self, name):
        self.desktop.key("ctrl+shift+s")
        self.name_file(SAVE, self.folder / name)
        self.wait_title(f"{name}.ledgrove.json - Ledgrove")

    def test_recent_files(self):
        from gi.repository import Atspi
        self.start_empty()
        for name, income in (("one", "51000"), ("two", "52000"), ("three", "53000")):
            self.desktop.key("ctrl+a")
            self.desktop.type(income)
            self.save_as(name)
        self.desktop.key("ctrl+q")
        self.wait_end()

        self.start_empty()  # a new run of the program still lists them
        self.assertEqual(self.open_recent(), [f"{number} {name}.ledgrove.json"
                                              for number, name in enumerate(("three", "two", "one"), 1)])
        self.desktop.key("2")
        self.wait_title("two.ledgrove.json - Ledgrove")
        self.program.wait_text("Annual Income", "$52,000")
        (self.folder / "one.ledgrove.json").unlink()
        self.assertEqual(self.open_recent()[0], "1 two.ledgrove.json")
        self.desktop.key("3")
        self.assertIn("one.ledgrove.json", self.in_box("OK"))
        self.program.no_box()
        self.assertEqual(self.open_recent(), ["1 two.ledgrove.json", "2 three.ledgrove.json"])
        self.desktop.key("c")
        self.desktop.key("alt+f")
        wait_for(lambda: "Open Recent" in self.menu_items(), "the menu File")
        self.assertFalse(self.program.find("menu item", "Open Recent").get_state_set().contains(Atspi.StateType.ENABLED))

    def export(self, key, title, file):
        self.desktop.key("alt+f")
        wait_for(self.menu_items, "the menu File")
        self.desktop.key(key)
        self.name_file(title, file)

    def test_pdf(self):
        self.start(self.folder / "settings/samples/first-home.ledgrove.json")
        self.wait_title("first-home.ledgrove.json - Ledgrove")
        pdf = self.folder / "report.pdf"
        self.desktop.key("alt+f")
        wait_for(self.menu_items, "the menu File")
        self.desktop.key("e")
        self.program.wait_focus("Paper")
        self.desktop.type("A")
        self.desktop.key("Return")
        self.name_file("Export PDF", self.folder / "report")
        wait_for(pdf.exists, "the PDF")
        sheet = subprocess.run(["pdfinfo", pdf], check=True, capture_output=True, text=True).stdout
        self.assertRegex(sheet, r"Page size: +595 x 842 pts \(A4\)")
        text = subprocess.run(["pdftotext", "-layout", pdf, "-"], check=True, capture_output=True, text=True).stdout
        for part in ("Summary Report for Ledgrove", "$206,000", "$1,176", "Buy More Home", "Front End Ratio"):
            self.assertIn(part, text)

    def test_csv(self):
        self.start(self.folder / "settings/samples/first-home.ledgrove.json")
        self.wait_title("first-home.ledgrove.json - Ledgrove")
        table = self.folder / "table.csv"
        self.export("c", "Export CSV", table)
        wait_for(table.exists, "the table")
        # ledgrove-cli gives the same table for these inputs as a price list
        saved = table.read_bytes()
        rows = list(csv.reader(saved.decode().splitlines()))
        results = rows[0].index("StdCase.DownPayment")
        inputs = io.StringIO()
        csv.writer(inputs).writerows(row[:results] for row in rows)
        compared = subprocess.run([PROGRAM.with_name("ledgrove-cli"), "compare", "--folder", self.folder / "settings",
                                   "--format", "csv"], input=inputs.getvalue().encode(), capture_output=True, check=True)
        self.assertEqual(compared.stdout, saved)
        self.assertEqual(rows[1][results:results + 3], ["20000.00", "180000.00", "1137.72"])



if __name__ == "__main__":
    unittest.main()
