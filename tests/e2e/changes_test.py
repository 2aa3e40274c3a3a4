"""The window "What changed?" beside the real main window: versions are kept and compared, once with keys alone and once with the
mouse alone, the answer is previewed, and the versions are there after the file is opened again."""
import json
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from desktop import Desktop, Program, wait_for

PROGRAM, SOURCE = Path(sys.argv.pop(1)), Path(sys.argv.pop(1))
TITLE = "What changed?"
TYPED = (("Annual Income", "72000"), ("Monthly Debt", "350"), ("% Down, Down Payment", "10"),
         ("Sticker Price, Base Home", "200000"), ("Sticker Price, GREENMARK Home", "206000"),
         ("Annual Utility Cost, Base Home", "2400"), ("Annual Utility Cost, GREENMARK Home", "1700"))
PRICE = "Sticker Price, GREENMARK Home"


class Started(Program):
    """The program started with a file, as a double click does."""

    def __init__(self, desktop, folder, *files):
        self.desktop = desktop
        self.process = desktop.start(PROGRAM, "--folder", folder, *files)
        self.root = self.title = None


class Changes(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copy(SOURCE / "data/Ledgrove.ini", self.folder)
        self.file = self.folder / "doe.ledgrove.json"
        self.start()

    def start(self, *files):
        self.program = Started(self.desktop, self.folder, *files)
        self.addCleanup(self.program.close)
        self.program.find_root()
        self.program.wait_focus("Annual Income")

    def enter(self, name, text):
        self.program.click(self.program.field(name))
        self.desktop.type(text)
        self.desktop.key("Return")
        shown = f"${int(text):,}"
        wait_for(lambda: self.program.text(name) in (shown, "10.00%"), f"{name} showing {shown}")

    def keep(self, name):
        """Keeps a version with keys; the first one asks for the file's name."""
        self.desktop.key("ctrl+k")
        self.program.window("Keep This Version")
        self.desktop.type(name)
        self.desktop.key("Return")
        if not self.file.exists():
            self.program.window("Save Comparison")
            self.program.wait_focus("File name:")
            self.desktop.key("ctrl+a")
            self.desktop.type(str(self.file))
            self.desktop.key("Return")
        self.program.window()
        wait_for(lambda: name in self.versions_in_file(), f"{name} in the file")

    def versions_in_file(self):
        return [version["name"] for version in json.loads(self.file.read_text())["labels"]["versions"]]

    def keep_two_prices(self):
        for name, text in TYPED:
            self.enter(name, text)
        self.keep("Asking price")
        self.enter(PRICE, "203000")
        self.keep("Our offer")

    def wait_front(self, title):
        wait_for(lambda: self.desktop.xdotool("getactivewindow", "getwindowname").strip() == title,
                 f"the window {title} in front")

    def sentence(self):
        return wait_for(lambda: next((node.get_name() for node in self.program.all() if node.get_role_name() == "label"
                                      and self.program.showing(node)
                                      and (node.get_name() or "").startswith(("From \"", "From the", "Nothing"))), None),
                        "the sentence")

    def cells(self):
        return [node.get_name() for node in self.program.all()
                if node.get_role_name() == "table cell" and self.program.showing(node)]

    def wait_cell(self, text):
        wait_for(lambda: text in self.cells(), f"the cell {text} among {self.cells()}")

    def list(self, description):
        return self.program.find("combo box", description=description)

    def items(self, description):
        combo = self.list(description)
        return [node.get_name() for node in self.program.all(combo) if node.get_role_name() == "list item"]

    def test_keys_alone(self):
        self.keep_two_prices()
        self.desktop.key("ctrl+d")
        self.wait_front(TITLE)
        self.assertEqual(self.sentence(), 'Nothing differs between "Our offer" and the screen.')
        self.desktop.key("alt+f", "Up")
        wait_for(lambda: self.sentence().startswith('From "Asking price" to the screen the monthly net goes from '),
                 "the change since the asking price")
        self.assertTrue(self.sentence().endswith("; all of it comes from the price, GREENMARK home."), self.sentence())
        self.wait_cell(f"{PRICE}, From: $206,000")
        self.wait_cell(f"{PRICE}, To: $203,000")
        # 10 % down on both prices; the parts of the figure that the keys choose stand beside the table.
        self.desktop.key("alt+g", "ctrl+Home")
        self.wait_cell("Mortgage Amount, GREENMARK Home, From: $185,400")
        self.wait_cell("Mortgage Amount, GREENMARK Home, To: $182,700")
        wait_for(lambda: [name for name in self.cells() if name.startswith(f"{PRICE}, Change: -$")], "the part of the price")
        self.desktop.key("alt+p")
        self.wait_front(TITLE)
        self.program.window(TITLE)
        self.program.find("push button", "Print")
        self.desktop.key("Escape")
        self.program.window()
        self.desktop.key("Escape")
        self.wait_front("doe.ledgrove.json - Ledgrove")

    def test_the_mouse_alone(self):
        self.keep_two_prices()
        self.program.click(self.program.find("menu item", "File"))
        self.program.click(self.program.find("menu item", "Compare With…"))
        self.wait_front(TITLE)
        self.program.click(self.list("From, a comparison"))
        first = wait_for(lambda: next((node for node in self.program.all(self.list("From, a comparison"))
                                       if node.get_role_name() == "list item"
                                       and node.get_name().startswith("Asking price (")), None), "the first version")
        self.program.click(first)
        wait_for(lambda: self.sentence().startswith('From "Asking price" to the screen'), "the change")
        self.program.click(self.program.find("push button", "Swap From and To"))
        wait_for(lambda: self.sentence().startswith('From the screen to "Asking price"'), "the sides exchanged")
        self.wait_cell(f"{PRICE}, From: $203,000")
        self.program.click(self.program.find("push button", "Close"))
        self.wait_front("doe.ledgrove.json - Ledgrove")

    def test_versions_are_there_after_opening_again(self):
        self.keep_two_prices()
        self.assertEqual(self.versions_in_file(), ["Asking price", "Our offer"])
        self.program.process.kill()
        self.program.process.wait()
        self.start(self.file)
        self.desktop.key("ctrl+d")
        self.wait_front(TITLE)
        self.assertEqual(self.sentence(), 'Nothing differs between "Our offer" and the screen.')
        names = self.items("To, a comparison")
        self.assertEqual([name.partition(" (")[0] for name in names], ["The screen", "Asking price", "Our offer"])

    def test_it_follows_the_main_window(self):
        self.keep_two_prices()
        self.desktop.key("ctrl+d")
        self.wait_front(TITLE)
        self.desktop.xdotool("search", "--name", "doe.ledgrove.json - Ledgrove", "windowactivate", "--sync")
        self.desktop.key("alt+b", "shift+Tab")  # Monthly Debt and the field before it
        self.program.wait_focus("Annual Income")
        self.desktop.type("80000")
        self.desktop.key("Return")
        self.wait_cell("Annual Income, From: $72,000")
        self.wait_cell("Annual Income, To: $80,000")
        self.keep("With a raise")
        names = wait_for(lambda: [name for name in self.items("To, a comparison") if name.startswith("With a raise (")],
                         "the new version in the list")
        self.assertEqual(len(names), 1)


if __name__ == "__main__":
    unittest.main()
